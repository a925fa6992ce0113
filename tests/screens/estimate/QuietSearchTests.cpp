// The search beside the screen: its begin, its end, and what it hands over.

#include "base/RunTimeError.h"
#include "estimate/EstimateTesting.h"
#include "screens/ScreenTesting.h"
#include "screens/estimate/QuietSearch.h"

#include <QThread>

#include <atomic>
#include <memory>

namespace tarn {
namespace {

using namespace tarn::testing;

/// A search of the test's own: it goes on until it is stopped, or let go.
struct QuietSearches : ::testing::Test {
    ~QuietSearches() override { released = true; }

    ImprovedEstimate Look(const Estimate& estimate, const ImproveLimits& limits,
                          ImproveObserver& observer) {
        seconds = limits.Seconds;
        elsewhere = QThread::currentThread() != window.thread();
        ++begun;
        while (!released && observer.Progress({630, 619})) {
            QThread::yieldCurrentThread();
        }
        stopped = !released;
        if (fails) {
            RaiseInternal();
        }
        ImprovedEstimate result{estimate, {}};
        result.Value.Fills.Length = 7;
        result.Result.Improved = better;
        return result;
    }
    void Begin() {
        const int before = begun;
        quiet->Begin(Estimated({{100, 120}}, Request(144)));
        EXPECT_TRUE(QTest::qWaitFor([&] { return begun > before; }));
    }
    void AwaitEnd() {
        EXPECT_TRUE(QTest::qWaitFor([this] { return !quiet->IsRunning(); }));
    }

    QWidget window;
    std::atomic<bool> released = false;
    std::atomic<bool> fails = false;
    std::atomic<bool> better = true;
    std::atomic<bool> stopped = false;
    std::atomic<bool> elsewhere = false;
    std::atomic<int> begun = 0;
    std::atomic<double> seconds = 0;
    std::vector<Estimate> found; ///< better ones
    std::unique_ptr<QuietSearch> quiet = std::make_unique<QuietSearch>(
        [this](const Estimate& estimate, const ImproveLimits& limits, ImproveObserver& observer) {
            return Look(estimate, limits, observer);
        },
        [this](const Estimate& estimate, const Estimate& improved) {
            EXPECT_EQ(estimate, Estimated({{100, 120}}, Request(144)));
            EXPECT_EQ(QThread::currentThread(), window.thread());
            found.push_back(improved);
        });
};

TEST_F(QuietSearches, LookForASecondWhileTheWindowGoesOn) {
    Begin();
    EXPECT_TRUE(elsewhere);
    EXPECT_EQ(seconds, 1);
    EXPECT_TRUE(quiet->IsRunning());
    EXPECT_TRUE(found.empty());
    released = true;
    AwaitEnd();
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].Fills.Length, 7);
}

TEST_F(QuietSearches, SayNothingWhenThereIsNothingBetterAndWhenTheyFail) {
    released = true;
    better = false;
    Begin();
    AwaitEnd();
    better = true;
    fails = true;
    Begin();
    AwaitEnd();
    EXPECT_TRUE(found.empty());
}

TEST_F(QuietSearches, EndWithAnyPressAndKeepWhatTheyFound) {
    ShowOnDisplay(window);
    const std::vector<std::function<void()>> presses{
        [this] { QTest::keyPress(&window, Qt::Key_A); },
        [this] { QTest::keyPress(&window, Qt::Key_Escape); },
        [this] { QTest::keyPress(&window, Qt::Key_V, Qt::AltModifier); },
        [this] { QTest::mousePress(&window, Qt::LeftButton); },
        [this] { QTest::mousePress(&window, Qt::RightButton); },
        [this] { QTest::mouseDClick(&window, Qt::LeftButton); }};
    for (const auto& press : presses) {
        stopped = false;
        found.clear();
        Begin();
        press();
        AwaitEnd();
        EXPECT_TRUE(stopped);
        EXPECT_EQ(found.size(), 1U);
    }
}

TEST_F(QuietSearches, GoOnWhileNothingIsPressed) {
    ShowOnDisplay(window);
    Begin();
    QTest::mouseMove(&window, {5, 5});
    QTest::mouseRelease(&window, Qt::LeftButton);
    QTest::keyRelease(&window, Qt::Key_Return);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, {}, true);
    QCoreApplication::sendEvent(&window, &held); // from pressing the button before
    QCoreApplication::processEvents();
    released = true;
    AwaitEnd();
    EXPECT_FALSE(stopped);
}

TEST_F(QuietSearches, AreDroppedForTheNextAndForNothing) {
    Begin();
    Begin();
    EXPECT_TRUE(stopped) << "the first one";
    quiet->Drop();
    EXPECT_FALSE(quiet->IsRunning());
    QCoreApplication::processEvents();
    EXPECT_TRUE(found.empty());
    Begin();
    released = true;
    AwaitEnd();
    EXPECT_EQ(found.size(), 1U);
}

TEST_F(QuietSearches, EndWithTheirScreen) {
    Begin();
    quiet.reset();
    EXPECT_TRUE(stopped);
    QCoreApplication::processEvents();
    EXPECT_TRUE(found.empty());
}

} // namespace
} // namespace tarn
