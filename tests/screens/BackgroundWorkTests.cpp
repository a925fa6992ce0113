// Work on a thread of its own.

#include "screens/BackgroundWork.h"

#include <QCoreApplication>
#include <QTest>
#include <QThread>

#include <gtest/gtest.h>

#include <atomic>
#include <string>

namespace tarn {
namespace {

TEST(BackgroundWork, IsDoneElsewhereAndTakenInTheEventLoop) {
    BackgroundWork work;
    const QThread* here = QThread::currentThread();
    const QThread* there = nullptr;
    bool taken = false;
    work.Start([&] { there = QThread::currentThread(); },
               [&] {
                   taken = true;
                   EXPECT_EQ(QThread::currentThread(), here);
                   EXPECT_NE(there, nullptr);
                   EXPECT_NE(there, here);
                   EXPECT_FALSE(work.IsRunning()) << "the next may be started";
               });
    EXPECT_TRUE(work.IsRunning());
    EXPECT_FALSE(taken);
    EXPECT_TRUE(QTest::qWaitFor([&] { return taken; }));
    EXPECT_FALSE(work.IsRunning());
}

TEST(BackgroundWork, IsTakenAtOnceWhenItIsWaitedForAndNotAgain) {
    BackgroundWork work;
    int taken = 0;
    std::string written;
    work.Start([&] { written = "done"; }, [&] { ++taken; });
    work.Finish();
    EXPECT_EQ(taken, 1);
    EXPECT_EQ(written, "done");
    std::atomic<bool> go = false;
    work.Start([&] { go.wait(false); }, [&] { ++taken; });
    QCoreApplication::processEvents(); // word of the first arrives
    EXPECT_EQ(taken, 1);
    EXPECT_TRUE(work.IsRunning());
    go = true;
    go.notify_one();
    work.Finish();
    EXPECT_EQ(taken, 2);
    work.Finish();
    EXPECT_EQ(taken, 2) << "nothing runs";
}

TEST(BackgroundWork, MayGoOnFromWhatWasTaken) {
    BackgroundWork work;
    int rounds = 0;
    std::function<void()> again = [&] {
        if (++rounds < 3) {
            work.Start([] {}, again);
        }
    };
    work.Start([] {}, again);
    EXPECT_TRUE(QTest::qWaitFor([&] { return rounds == 3; }));
}

TEST(BackgroundWork, IsWaitedForButNotTakenWhenItIsDropped) {
    bool worked = false;
    bool taken = false;
    {
        BackgroundWork work;
        work.Start([&] { worked = true; }, [&] { taken = true; });
        work.Drop();
        EXPECT_TRUE(worked);
        EXPECT_FALSE(work.IsRunning());
        worked = false;
        work.Start([&] { worked = true; }, [&] { taken = true; });
    }
    EXPECT_TRUE(worked);
    QCoreApplication::processEvents();
    EXPECT_FALSE(taken);
}

} // namespace
} // namespace tarn
