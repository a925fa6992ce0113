// The way from the estimate to the order.

#include "screens/estimate/EstimateScreenTesting.h"

#include <gmock/gmock.h>

namespace tarn {
namespace {

using namespace tarn::testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;

struct EstimateScreenOrders : EstimateScreenTest {
    QPushButton& Order() { return Button(Controls::openOrder); }
};

TEST_F(EstimateScreenOrders, OpenWithTheCarpetThatWasEstimated) {
    Open({{120, 120, 1}, {200, 120, 3}});
    EXPECT_FALSE(Order().isEnabled()) << "the choices come first";
    Click(Option(Controls::carpets[3]));
    Click(Option(Controls::standardWidths[1]));
    PressOk();
    Search();
    Click(Order());
    EXPECT_THAT(screens.Calls, ::testing::Contains("order CARPET-4"));
}

TEST_F(EstimateScreenOrders, OpenAfterACancelTooWithoutACarpet) {
    Open({{120, 120, 1}});
    Click(Button(Controls::cancelChoices));
    EXPECT_TRUE(Order().isEnabled());
    EXPECT_FALSE(Button(Controls::improveFills).isEnabled());
    Click(Order());
    EXPECT_THAT(screens.Calls, ElementsAre("order"));
}

TEST_F(EstimateScreenOrders, StandBesideImprove) {
    Open({{120, 120}});
    Click(Button(Controls::cancelChoices));
    EXPECT_GT(Order().y(), Button(Controls::improveFills).y());
    EXPECT_LT(Order().y(), Button(Controls::pasteCuts).y());
    Focus(Button(Controls::openChoices));
    Press(*form, Qt::Key_Tab);
    EXPECT_TRUE(Order().hasFocus()) << "IMPROVE cannot be used yet";
    Press(*form, Qt::Key_Tab);
    EXPECT_TRUE(Button(Controls::pasteCuts).hasFocus());
}

TEST_F(EstimateScreenOrders, AreNotThereWithoutACarpetRoom) {
    Open({{120, 120, 8}});
    QCoreApplication::processEvents();
    EXPECT_FALSE(Order().isEnabled());
}

TEST_F(EstimateScreenOrders, ThatCannotBeOpenedSayWhy) {
    Open({{120, 120}});
    Click(Button(Controls::cancelChoices));
    screens.OnCall = [] { throw std::runtime_error("No thread."); };
    Click(Order());
    EXPECT_THAT(boxes.Messages, ElementsAre("The order could not be opened. No thread."));
}

} // namespace
} // namespace tarn
