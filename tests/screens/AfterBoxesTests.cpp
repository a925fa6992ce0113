// What waits for the boxes in front.

#include "screens/AfterBoxes.h"

#include <QDialog>
#include <QTest>

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
    first.open();
    AfterBoxes(context, [&] {
        ++ran;
        EXPECT_TRUE(wentOn);
    });
    QDialog second;
    second.open();
    second.reject();
    QTest::qWait(1);
    EXPECT_EQ(ran, 0) << "one is still up";
    first.reject();
    EXPECT_EQ(ran, 0);
    wentOn = true;
    EXPECT_TRUE(QTest::qWaitFor([&] { return ran > 0; }));
    second.open();
    second.reject();
    QTest::qWait(1);
    EXPECT_EQ(ran, 1);
}

TEST(AfterBoxes, ForgetsWhatIsGone) {
    auto context = std::make_unique<QObject>();
    bool ran = false;
    QDialog box;
    box.open();
    AfterBoxes(*context, [&] { ran = true; });
    context.reset();
    box.reject();
    QTest::qWait(1);
    EXPECT_FALSE(ran);
}

} // namespace
} // namespace tarn
