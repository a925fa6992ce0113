#include "app/Controls.h"
#include "estimate/EstimateScreenTesting.h"

#include <QTimer>

#include <gmock/gmock.h>

namespace tarn {
namespace {

using namespace tarn::testing;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

struct Improving : EstimateScreenTest {
    QPushButton& ImproveButton() { return Button("Command8"); }
    QWidget& ImproveView() { return Control("Frame8"); }

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
    Click(Button("Command1(1)"));
    EXPECT_FALSE(ImproveButton().isEnabled()) << "nothing is estimated";
    Click(Button("Command3"));
    PressOk();
    EXPECT_FALSE(ImproveButton().isEnabled()) << "the options stand in front";
    Search();
    EXPECT_TRUE(ImproveButton().isEnabled());
    screens.Client->NoLayout();
    EXPECT_FALSE(ImproveButton().isEnabled());
}

TEST_F(Improving, IsNotOfferedForCutsAlone) {
    Open({{144, 80}});
    PressOk();
    EXPECT_EQ(state.ECutCount, 1);
    EXPECT_FALSE(ImproveButton().isEnabled());
}

TEST_F(Improving, ShowsTheShorterLayoutEverywhereAndSaysSo) {
    OpenThreeStrips();
    EXPECT_EQ(engine.ResultLen, 201);
    EXPECT_THAT(Written(), Contains("Total Fills:3   Total Fill-Len:16'9\""));
    Click(ImproveButton());
    EXPECT_EQ(engine.BestLen, 100);
    EXPECT_EQ(engine.ResultLen, 102);
    EXPECT_THAT(Written(), Contains("Total Fills:3   Total Fill-Len:8'6\""));
    EXPECT_THAT(Written(), Contains("Improved: fills 50.0% shorter, the least possible"));
    EXPECT_EQ(TimesWritten("A"), 1);
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_TRUE(ImproveView().isHidden());
    Click(Button("Command5"));
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
    Click(Button("Command3"));
    const std::vector<std::string> before = EnabledButtons();
    std::vector<std::string> during;
    QTimer::singleShot(0, form.get(), [&] {
        during = EnabledButtons();
        EXPECT_FALSE(Picture1().isEnabled());
        EXPECT_FALSE(Panel().isEnabled());
        Click(Button("Command1(2)"));
    });
    Click(ImproveButton());
    EXPECT_THAT(during, ElementsAre("STOP"));
    EXPECT_EQ(EnabledButtons(), before);
    EXPECT_TRUE(Panel().isEnabled());
    EXPECT_TRUE(Picture1().isEnabled());
}

TEST_F(Improving, IsStoppedByClosingTheWindowAndKeepsAWholeLayout) {
    OpenLargeHouse();
    const Long before = engine.BestLen;
    QTimer::singleShot(0, form.get(), [&] { form->CloseByFrame(); });
    Click(ImproveButton());
    EXPECT_THAT(screens.Calls, ElementsAre("options")) << "the screen stays";
    EXPECT_LE(engine.BestLen, before);
    EXPECT_EQ(engine.PosCount, engine.PieceCount);
    form->CloseByFrame();
    EXPECT_THAT(screens.Calls, ElementsAre("options", "menu returning"));
}

TEST_F(Improving, TakesTheWaitingPasteBack) {
    OpenThreeStrips();
    Click(Button("Command4"));
    Click(ImproveButton());
    const std::vector<std::string> before = Written();
    Click(Paper());
    EXPECT_EQ(Written(), before);
}

TEST_F(Improving, IsForgottenByTheNextEstimate) {
    OpenThreeStrips();
    Click(ImproveButton());
    Click(Button("Command3"));
    PressOk();
    Search();
    EXPECT_EQ(engine.ResultLen, 201);
    for (const std::string& text : Written()) {
        EXPECT_THAT(text, ::testing::Not(HasSubstr("Improved")));
    }
}

} // namespace
} // namespace tarn
