// The layout that keeps the minimum cut, offered beside an estimate whose parts are shorter.

#include "screens/estimate/EstimateScreenTesting.h"

#include <gmock/gmock.h>

#include <string>

namespace tarn {
namespace {

using namespace tarn::testing;
using ::testing::Contains;
using ::testing::Not;

/// A strip of 72 by 60 inches that the search lays in two halves, shorter than the 3 FT of its
/// minimum cut. IMPROVE was pressed.
//       0     72    144            0     72    144
//     0 +-----+-----+            0 +-----+
//       |  A  |  A  |              |  A  |
//    30 +-----+-----+           60 +-----+
struct KeptLayouts : EstimateScreenTest {
    void OpenOffered() {
        Open({{72, 60}});
        PressOk();
        screens.Request.ShortestPart = MinCut::ThreeFeet;
        screens.Request.PiecesPerFill = 2;
        Search();
        before = Written();
        Click(Button(Controls::improveFills));
    }
    QWidget& Offer() { return Control(Controls::improvePanel); }
    QPushButton& Take() { return Button(Controls::takeKept); }
    QPushButton& Leave() { return Button(Controls::leaveKept); }
    void ExpectKept() {
        EXPECT_THAT(Written(), Contains("Total Fills:1   Total Fill-Len:5'0\""));
        EXPECT_EQ(TimesWritten("A"), 1);
    }
    void ExpectGone() {
        EXPECT_TRUE(Offer().isHidden());
        EXPECT_FALSE(Offer().isAncestorOf(form->focusWidget()));
    }

    std::vector<std::string> before;
};

TEST_F(KeptLayouts, AreOfferedInThePanelWithWhatTheyTake) {
    OpenOffered();
    EXPECT_TRUE(Offer().isVisible());
    EXPECT_EQ(FromQt(Control<QLabel>(Controls::improvedSoFar).text()),
              "5'0\" with parts of at least 3 FT");
    EXPECT_EQ(FromQt(Control<QLabel>(Controls::improveGap).text()),
              "none whose parts keep the minimum cut is as short");
    EXPECT_TRUE(Take().hasFocus());
    EXPECT_EQ(Written(), before) << "nothing changes by itself";
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_TRUE(Button(Controls::printEstimate).isEnabled());
}

TEST_F(KeptLayouts, AreTakenByAClickAndTakenBackByUndo) {
    OpenOffered();
    Click(Take());
    ExpectKept();
    ExpectGone();
    Click(Button(Controls::undoImprovement));
    EXPECT_EQ(Written(), before);
    ExpectGone();
}

TEST_F(KeptLayouts, AreTakenByKeys) {
    OpenOffered();
    Press(Take(), Qt::Key_Space);
    ExpectKept();
    ExpectGone();
}

TEST_F(KeptLayouts, OnceTakenAreTheLeastAndNothingIsOfferedBesideThem) {
    OpenOffered();
    Click(Take());
    Click(Button(Controls::improveFills));
    EXPECT_TRUE(Offer().isHidden());
    EXPECT_THAT(boxes.Messages,
                Contains("No better layout was found: this one is the least possible."));
}

TEST_F(KeptLayouts, AreLeftByAClickOrEscape) {
    OpenOffered();
    Press(Take(), Qt::Key_Tab);
    EXPECT_TRUE(Leave().hasFocus());
    Click(Leave());
    ExpectGone();
    EXPECT_EQ(Written(), before);
    Click(Button(Controls::improveFills));
    EXPECT_TRUE(Offer().isVisible()) << "offered again";
    Press(*form, Qt::Key_Escape);
    ExpectGone();
    EXPECT_EQ(Written(), before);
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(KeptLayouts, AreNotOfferedAnyMoreWhereAnotherEstimateIsChosen) {
    OpenOffered();
    Click(Button(Controls::openChoices));
    EXPECT_TRUE(Offer().isHidden());
    PressOk();
    Search();
    EXPECT_TRUE(Offer().isHidden());
    EXPECT_THAT(Written(), Not(Contains("Improved")));
}

} // namespace
} // namespace tarn
