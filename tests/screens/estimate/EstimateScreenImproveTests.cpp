#include "screens/ControlNames.h"
#include "screens/Controls.h"
#include "screens/estimate/EstimateScreenTesting.h"

#include <QTimer>

#include <gmock/gmock.h>

namespace tarn {
namespace {

using namespace tarn::testing;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

struct Improving : EstimateScreenTest {
    QPushButton& ImproveButton() { return Button(Controls::improveFills); }
    QWidget& ImproveView() { return Control(Controls::improvePanel); }

    /// Three strips that lie beside each other, but that the search lays in two rows.
    //      0    48   96   144
    //    0 +----+----+----+
    //      | A  | B  | C  |
    //  100 +----+----+----+
    void OpenThreeStrips() {
        Open({{48, 100}, {48, 100}, {48, 100}});
        PressOk();
        Search();
    }
    /// Rooms enough to keep a search busy.
    void OpenLargeHouse() {
        for (int i = 0; i < 40; ++i) {
            Add({17 + 29 * i % 120, 50 + 37 * i % 170});
        }
        Open({});
        PressOk();
        Search();
    }
    /// How many fills the picture shows on the 12 ft roll, and where the last of them ends, inches.
    int FillsDrawn() {
        int count = 0;
        for (const DrawingStep& step : Picture().Shown().Steps()) {
            count += IsBox(step, DrawingColor::Red) ? 1 : 0;
        }
        return count;
    }
    double EndOfFillsDrawn() {
        double end = 0;
        double top = 0;
        double twipsPerInch = 1;
        for (const DrawingStep& step : Picture().Shown().Steps()) {
            if (IsBox(step, DrawingColor::Red)) {
                end = std::max(end, step.Y2);
            } else if (IsBox(step, DrawingColor::Black)) { // the roll
                top = step.Y1;
                twipsPerInch = (step.X2 - step.X1) / 144;
            }
        }
        return (end - top) / twipsPerInch;
    }
    static bool IsBox(const DrawingStep& step, DrawingColor color) {
        return step.What == DrawingStep::Kind::Box && step.Color == color;
    }
    std::vector<std::string> EnabledButtons() {
        std::vector<std::string> names;
        for (const auto* button : form->findChildren<QPushButton*>()) {
            if (button->isVisible() && button->isEnabled()) {
                names.push_back(FromQt(CaptionOf(*button)));
            }
        }
        std::sort(names.begin(), names.end());
        return names;
    }
};

TEST_F(Improving, IsOfferedOnlyForALayoutOfFills) {
    Open({{100, 120}, {144, 80}});
    EXPECT_EQ(CaptionOf(ImproveButton()), QStringLiteral("IMPROVE"));
    EXPECT_FALSE(ImproveButton().isEnabled());
    Click(Button(Controls::cancelChoices));
    EXPECT_FALSE(ImproveButton().isEnabled()) << "nothing is estimated";
    Click(Button(Controls::openChoices));
    PressOk();
    EXPECT_FALSE(ImproveButton().isEnabled()) << "the options stand in front";
    Search();
    EXPECT_TRUE(ImproveButton().isEnabled());
    screens.Client->NoEstimate();
    EXPECT_FALSE(ImproveButton().isEnabled());
}

TEST_F(Improving, IsNotOfferedForCutsAlone) {
    Open({{144, 80}});
    PressOk();
    EXPECT_EQ(CutsListed(), 1);
    EXPECT_FALSE(ImproveButton().isEnabled());
}

TEST_F(Improving, ShowsTheShorterLayoutEverywhereAndSaysSo) {
    OpenThreeStrips();
    EXPECT_THAT(Written(), Contains("Total Fills:3   Total Fill-Len:16'9\""));
    Click(ImproveButton());
    EXPECT_NEAR(EndOfFillsDrawn(), 100, 1e-6);
    EXPECT_THAT(Written(), Contains("Total Fills:3   Total Fill-Len:8'6\""));
    EXPECT_THAT(Written(), Contains("Improved: fills 50.0% shorter, the least possible"));
    EXPECT_EQ(TimesWritten("A"), 1);
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_TRUE(ImproveView().isHidden());
    PressPrint();
    ASSERT_EQ(printer.Estimates.size(), 1U);
}

TEST_F(Improving, SaysWhenThereIsNothingBetter) {
    Open({{100, 120}});
    PressOk();
    Search();
    const std::vector<std::string> before = Written();
    Click(ImproveButton());
    EXPECT_THAT(boxes.Messages,
                ElementsAre("No better layout was found: this one is the least possible."));
    EXPECT_EQ(Written(), before);
}

TEST_F(Improving, LeavesNothingElseUsableWhileItRuns) {
    OpenLargeHouse();
    Click(Button(Controls::openChoices));
    const std::vector<std::string> before = EnabledButtons();
    std::vector<std::string> during;
    QTimer::singleShot(0, form.get(), [&] {
        during = EnabledButtons();
        EXPECT_FALSE(Picture().isEnabled());
        EXPECT_FALSE(Panel().isEnabled());
        Click(Button(Controls::stopImproving));
    });
    Click(ImproveButton());
    EXPECT_THAT(during, ElementsAre("STOP"));
    std::vector<std::string> after = EnabledButtons();
    std::erase(after, "UNDO"); // there if the search found anything until then
    EXPECT_EQ(after, before);
    EXPECT_TRUE(Panel().isEnabled());
    EXPECT_TRUE(Picture().isEnabled());
}

TEST_F(Improving, IsStoppedByClosingTheWindowAndKeepsAWholeLayout) {
    OpenLargeHouse();
    const double before = EndOfFillsDrawn();
    QTimer::singleShot(0, form.get(), [&] { form->CloseByFrame(); });
    Click(ImproveButton());
    EXPECT_THAT(screens.Calls, ElementsAre("options")) << "the screen stays";
    EXPECT_LE(EndOfFillsDrawn(), before + 1e-6);
    EXPECT_EQ(FillsDrawn(), 40);
    form->CloseByFrame();
    EXPECT_THAT(screens.Calls, ElementsAre("options", "menu returning"));
}

TEST_F(Improving, TakesTheWaitingPasteBack) {
    OpenThreeStrips();
    Click(Button(Controls::pasteCuts));
    Click(ImproveButton());
    const std::vector<std::string> before = Written();
    Click(Paper());
    EXPECT_EQ(Written(), before);
}

TEST_F(Improving, IsForgottenByTheNextEstimate) {
    OpenThreeStrips();
    Click(ImproveButton());
    Click(Button(Controls::openChoices));
    PressOk();
    Search();
    EXPECT_THAT(Written(), Contains("Total Fills:3   Total Fill-Len:16'9\""));
    for (const std::string& text : Written()) {
        EXPECT_THAT(text, ::testing::Not(HasSubstr("Improved")));
    }
}

} // namespace
} // namespace tarn
