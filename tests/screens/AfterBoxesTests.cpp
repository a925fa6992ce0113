// What waits for the boxes in front.

#include "screens/AfterBoxes.h"

#include <QDialog>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <memory>

namespace tarn {
namespace {

TEST(AfterBoxes, RunsAtOnceWhenNoBoxIsUp) {
    QObject context;
    bool ran = false;
    AfterBoxes(context, [&] { ran = true; });
    EXPECT_TRUE(ran);
}

TEST(AfterBoxes, WaitsForTheLastBoxAndForWhatShowedIt) {
    QObject context;
    int ran = 0;
    bool wentOn = false;
    QDialog first;
    QTimer::singleShot(0, &first, [&] {
        AfterBoxes(context, [&] {
            ++ran;
            EXPECT_TRUE(wentOn);
        });
        QDialog second;
        QTimer::singleShot(0, &second, &QDialog::reject);
        second.exec();
        QTest::qWait(1);
        EXPECT_EQ(ran, 0) << "one is still up";
        first.reject();
    });
    first.exec();
    EXPECT_EQ(ran, 0);
    wentOn = true;
    EXPECT_TRUE(QTest::qWaitFor([&] { return ran > 0; }));
    QDialog third;
    QTimer::singleShot(0, &third, &QDialog::reject);
    third.exec();
    QTest::qWait(1);
    EXPECT_EQ(ran, 1);
}

TEST(AfterBoxes, ForgetsWhatIsGone) {
    auto context = std::make_unique<QObject>();
    bool ran = false;
    QDialog box;
    QTimer::singleShot(0, &box, [&] {
        AfterBoxes(*context, [&] { ran = true; });
        context.reset();
        box.reject();
    });
    box.exec();
    QTest::qWait(1);
    EXPECT_FALSE(ran);
}

} // namespace
} // namespace tarn
