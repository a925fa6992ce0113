// LAST CHOICES: what was chosen for the project's last estimate in this run.

#include "screens/Theme.h"
#include "screens/estimate/EstimateScreenTesting.h"

#include <gmock/gmock.h>

namespace tarn {
namespace {

using namespace tarn::testing;
using ::testing::ElementsAre;

struct EstimateLastChoices : EstimateScreenTest {
    QPushButton& Last() { return Button(Controls::lastChoices); }
    /// Estimate carpet 4 on a free width in cross lay with a pattern, and load the screen anew.
    void EstimateAndOpenAgain() {
        Open({{200, 120, 0}, {200, 120, 3}});
        Click(Option(Controls::carpets[3]));
        Click(Option(Controls::otherWidth));
        Type(Box(Controls::otherWidthMajor), "11");
        Type(Box(Controls::otherWidthMinor), "6");
        Click(Option(Controls::crossLay));
        Click(Control<QCheckBox>(Controls::matchPattern));
        Type(Box(Controls::repeatWidth), "18");
        Type(Box(Controls::repeatLength), "24");
        PressOk();
        asked = screens.Request;
        EstimateRequest request = asked;
        request.ShortestPart = MinCut::HalfFoot;
        request.PiecesPerFill = 3;
        SearchObserver nobody;
        screens.Client->EstimateReady(MakeEstimate(open.Now, request, nobody));
        Open({});
    }
    void ExpectDefaults() {
        EXPECT_TRUE(Option(Controls::carpets[0]).isChecked());
        EXPECT_TRUE(Option(Controls::standardWidths[1]).isChecked());
        EXPECT_TRUE(Option(Controls::downLay).isChecked());
        EXPECT_FALSE(Control<QCheckBox>(Controls::matchPattern).isChecked());
        EXPECT_EQ(form->FirstChoices(), std::nullopt);
    }

    EstimateRequest asked;
};

TEST_F(EstimateLastChoices, CanBeChosenOnceThereAreSome) {
    Open({{200, 120}});
    EXPECT_FALSE(Last().isEnabled());
    PressOk();
    EXPECT_FALSE(Last().isEnabled()) << "nothing is estimated yet";
    screens.Client->NoEstimate();
    Click(Button(Controls::openChoices));
    EXPECT_FALSE(Last().isEnabled());
    PressOk();
    Search();
    Click(Button(Controls::openChoices));
    EXPECT_TRUE(Last().isEnabled());
}

TEST_F(EstimateLastChoices, LeaveNothingForTheOptionsOnceTheyAreCancelled) {
    EstimateAndOpenAgain();
    Click(Last());
    EXPECT_NE(form->FirstChoices(), std::nullopt);
    Click(Button(Controls::cancelChoices));
    EXPECT_EQ(form->FirstChoices(), std::nullopt);
}

TEST_F(EstimateLastChoices, GoWithTheProjectNotWithItsName) {
    OpenProject project;
    project.Chosen["OLD"] = {Units::Metric, {}, std::nullopt};
    project.Chosen["NEW"] = {Units::Imperial, {}, std::nullopt};
    MoveChosen(project, "OLD", "NEW");
    EXPECT_EQ(project.Chosen.size(), 1U);
    EXPECT_EQ(project.Chosen.at("NEW").In, Units::Metric);
    MoveChosen(project, "NEW", "NEW");
    EXPECT_EQ(project.Chosen.size(), 1U);
    ForgetChosen(project, "NEW");
    EXPECT_TRUE(project.Chosen.empty());
}

TEST_F(EstimateLastChoices, AreChosenAndTypedAgain) {
    EstimateAndOpenAgain();
    ExpectDefaults();
    Click(Last());
    EXPECT_TRUE(Option(Controls::carpets[3]).isChecked());
    EXPECT_TRUE(Option(Controls::otherWidth).isChecked());
    EXPECT_FALSE(IsMarked(Option(Controls::standardWidths[1]))) << "as after a click";
    EXPECT_TRUE(Box(Controls::otherWidthMajor).isVisible());
    EXPECT_TRUE(Box(Controls::repeatLength).isEnabled());
    EXPECT_TRUE(Button(Controls::acceptChoices).hasFocus());
    Press(*form, Qt::Key_Return);
    EXPECT_EQ(screens.Request, asked);
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(EstimateLastChoices, GoOnInTheOptionsOfTheSameOk) {
    EstimateAndOpenAgain();
    std::optional<FillChoices> first;
    screens.OnCall = [&] { first = screens.Client->FirstChoices(); };
    Click(Last());
    PressOk();
    EXPECT_EQ(first, (FillChoices{MinCut::HalfFoot, 3}));
    Click(Button(Controls::openChoices));
    PressOk();
    EXPECT_EQ(first, std::nullopt) << "the defaults stay";
}

TEST_F(EstimateLastChoices, OfCutsAloneSayNothingOfFills) {
    Open({{144, 80}});
    PressOk();
    Open({});
    Click(Last());
    std::optional<FillChoices> first = FillChoices();
    screens.OnCall = [&] { first = screens.Client->FirstChoices(); };
    open.Now.Rooms[0].Width = 100;
    PressOk();
    EXPECT_EQ(first, std::nullopt);
}

TEST_F(EstimateLastChoices, LeaveACarpetOutThatHasNoRoomAnyMore) {
    EstimateAndOpenAgain();
    open.Now.Rooms.pop_back();
    Open({});
    Click(Last());
    EXPECT_TRUE(Option(Controls::carpets[0]).isChecked());
    EXPECT_TRUE(Option(Controls::crossLay).isChecked());
}

TEST_F(EstimateLastChoices, AreThoseOfTheProjectInTheUnitsInForce) {
    EstimateAndOpenAgain();
    open.Now.Name = "OAK STREET";
    Open({});
    EXPECT_FALSE(Last().isEnabled()) << "another project";
    DropRooms(open);
    open.Now.Name = "MAPLE STREET 9";
    open.Shown = Units::Metric;
    Open({{366, 500}});
    EXPECT_FALSE(Last().isEnabled()) << "the texts mean something else";
    open.Shown = Units::Imperial;
    Open({});
    EXPECT_TRUE(Last().isEnabled()) << "opened again in the same run";
}

} // namespace
} // namespace tarn
