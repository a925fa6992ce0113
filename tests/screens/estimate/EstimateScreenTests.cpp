// The way from the choices to a result.

#include "screens/estimate/EstimateScreenTesting.h"

#include <gmock/gmock.h>

namespace tarn {
namespace {

using namespace tarn::testing;
using ::testing::ElementsAre;

using EstimateScreens = EstimateScreenTest;

TEST_F(EstimateScreens, BearTheProjectsName) {
    Open({{10, 10}});
    EXPECT_EQ(form->Caption(), QStringLiteral("ESTIMATE FOR PROJECT: MAPLE STREET 9"));
    EXPECT_EQ(Control<QLabel>(Controls::formTitle).text(),
              QStringLiteral("ESTIMATE FOR PROJECT: MAPLE STREET 9"));
    EXPECT_EQ(Control<QLabel>(Controls::estimatedProject).text(),
              QStringLiteral("PROJ: MAPLE STREET 9"));
}

TEST_F(EstimateScreens, AreNoWiderForALongName) {
    open.Now.Name = std::string(64, 'W');
    Open({{10, 10}});
    EXPECT_EQ(Control<QLabel>(Controls::estimatedProject).text(), ToQt("PROJ: " + open.Now.Name));
    EXPECT_EQ(Control(Controls::body).width(), form->width());
    EXPECT_LE(Control(Controls::formTitle).geometry().right(), form->width());
}

TEST_F(EstimateScreens, BearTheirCaptions) {
    Open({{10, 10}});
    const std::pair<const char*, const char*> captions[] = {
        {Controls::leaveEstimate, "BACK"},    {Controls::openChoices, "ESTIMATE"},
        {Controls::pasteCuts, "PASTE CUTS"},  {Controls::printEstimate, "PRINT"},
        {Controls::saveFromEstimate, "SAVE"}, {Controls::redrawLayout, "REDRAW"},
        {Controls::undoImprovement, "UNDO"},  {Controls::lastChoices, "LAST CHOICES"}};
    for (const auto& [name, caption] : captions) {
        EXPECT_EQ(Button(name).accessibleName(), QString::fromLatin1(caption));
    }
}

TEST_F(EstimateScreens, ForgetAnEarlierEstimateWhenTheyLoad) {
    Open({{200, 120}});
    PressOk();
    Search();
    ASSERT_FALSE(PrintedCarpetLines().empty());
    Open({});
    EXPECT_FALSE(Picture().isVisible());
    Click(Button(Controls::cancelChoices));
    ExpectNothingEstimated();
}

TEST_F(EstimateScreens, CutTheRoomsAsTheyAreAtEachOk) {
    Open({{144, 120}});
    open.Now.Rooms[0].Width = 288;
    PressOk();
    EXPECT_EQ(CutsListed(), 2);
    open.Now.Rooms[0].Width = 432;
    Click(Button(Controls::openChoices));
    PressOk();
    EXPECT_EQ(CutsListed(), 3);
}

TEST_F(EstimateScreens, EnableTheirButtonsOnceThePanelWasClosed) {
    const auto names = {Controls::leaveEstimate,    Controls::openChoices,
                        Controls::pasteCuts,        Controls::printEstimate,
                        Controls::saveFromEstimate, Controls::redrawLayout};
    for (const char* closing : {Controls::acceptChoices, Controls::cancelChoices}) {
        open.Now.Rooms.clear();
        Open({{288, 120}});
        for (const char* name : names) {
            EXPECT_FALSE(Button(name).isEnabled()) << name;
        }
        Click(Button(closing));
        EXPECT_FALSE(Panel().isVisible());
        for (const char* name : names) {
            EXPECT_TRUE(Button(name).isEnabled()) << name << " after " << closing;
        }
        Click(Button(Controls::openChoices));
        EXPECT_TRUE(Panel().isVisible());
        EXPECT_TRUE(Option(Controls::carpets[0]).hasFocus());
        EXPECT_TRUE(Button(Controls::leaveEstimate).isEnabled());
    }
}

TEST_F(EstimateScreens, KeepChoicesAndResultWhenThePanelIsCancelled) {
    Open({{288, 120}});
    PressOk();
    const auto written = Written();
    ASSERT_FALSE(written.empty());
    Click(Button(Controls::openChoices));
    Click(Option(Controls::standardWidths[0]));
    Click(Button(Controls::cancelChoices));
    EXPECT_FALSE(Panel().isVisible());
    EXPECT_EQ(Written(), written);
    EXPECT_EQ(CutsListed(), 2);
    EXPECT_THAT(PrintedCarpetLines(), ElementsAre("Carpet-1  Width=12'0\"", "DOWNLAY"));
    Click(Button(Controls::openChoices));
    EXPECT_TRUE(Option(Controls::standardWidths[0]).isChecked());
}

TEST_F(EstimateScreens, KeepAllThatIsChosenAndTypedWhenThePanelIsCancelled) {
    Open({{288, 120}, {100, 100, 5}});
    Click(Option(Controls::carpets[5]));
    Click(Option(Controls::otherWidth));
    Type(Box(Controls::otherWidthMajor), "12'6");
    Type(Box(Controls::otherWidthMinor), "7");
    Click(Option(Controls::crossLay));
    Click(Control<QCheckBox>(Controls::matchPattern));
    Type(Box(Controls::repeatWidth), "18");
    Type(Box(Controls::repeatLength), "-2");
    Click(Button(Controls::cancelChoices));
    EXPECT_TRUE(Button(Controls::openChoices).hasFocus()) << "there is no picture yet";
    EXPECT_TRUE(boxes.Messages.empty());
    Click(Button(Controls::openChoices));
    for (const char* option : {Controls::carpets[5], Controls::otherWidth, Controls::crossLay}) {
        EXPECT_TRUE(Option(option).isChecked()) << option;
    }
    EXPECT_TRUE(Control<QCheckBox>(Controls::matchPattern).isChecked());
    EXPECT_EQ(Box(Controls::otherWidthMajor).text(), QStringLiteral("12'6"));
    EXPECT_EQ(Box(Controls::otherWidthMinor).text(), QStringLiteral("7"));
    EXPECT_EQ(Box(Controls::repeatWidth).text(), QStringLiteral("18"));
    EXPECT_EQ(Box(Controls::repeatLength).text(), QStringLiteral("-2"));
    EXPECT_TRUE(Option(Controls::carpets[5]).hasFocus());
}

TEST_F(EstimateScreens, PutTheFocusOnThePictureWhenThePanelIsCancelledOverOne) {
    Open({{288, 120}});
    PressOk();
    Click(Button(Controls::openChoices));
    Click(Button(Controls::cancelChoices));
    EXPECT_TRUE(Picture().hasFocus());
}

TEST_F(EstimateScreens, DrawAndListACarpetWithoutFillsAtOnce) {
    Open({{288, 120}});
    PressOk();
    EXPECT_FALSE(Panel().isVisible());
    EXPECT_TRUE(screens.Calls.empty());
    EXPECT_TRUE(Picture().isVisible());
    EXPECT_TRUE(Picture().hasFocus()) << "so that its keys work";
    EXPECT_THAT(Written(), ElementsAre("NO FILLS TO DISPLAY", "Carpet-1  Width=12'0\"  DOWNLAY",
                                       "Cut1: 12'0\" X 10'0\"", "Cut2: 12'0\" X 10'0\"",
                                       "Total Cuts:2   Total Cut-Len:20'0\"",
                                       "Total Fills:0   Total Fill-Len:0'0\"",
                                       "Total Length:20'0\"", "Total SQ. Yards:26.67",
                                       "Total SQ. FT.:240.00", "Total BASE: 0.00 FEET"));
    const DrawingStep heading = StepOf("Carpet-1  Width=12'0\"  DOWNLAY");
    EXPECT_EQ(heading.X1, 100);
    EXPECT_EQ(heading.Y1, 100);
    EXPECT_EQ(heading.FontSize, 9);
    EXPECT_EQ(heading.Color, DrawingColor::Black);
    const DrawingStep notice = StepOf("NO FILLS TO DISPLAY");
    EXPECT_EQ(notice.X1, 7500);
    EXPECT_EQ(notice.Y1, 3000);
    EXPECT_EQ(notice.Color, DrawingColor::Red);
}

TEST_F(EstimateScreens, HandPiecesToTheOptionsScreenAndDrawWhatItFound) {
    Open({{200, 120}});
    PressOk();
    EXPECT_FALSE(Panel().isVisible());
    EXPECT_EQ(screens.Calls, std::vector<std::string>{"options"});
    EXPECT_EQ(screens.Client, static_cast<EstimateClient*>(form.get()));
    EXPECT_EQ(screens.Request, Request(144));
    EXPECT_EQ(Searched().Job.Pieces.size(), 1U);
    EXPECT_TRUE(Written().empty());

    Search();
    EXPECT_THAT(Written(),
                ElementsAre("A", "Carpet-1  Width=12'0\"  DOWNLAY", "Cut1: 12'0\" X 10'0\"",
                            "A: 4'8\" X 10'0\"", "Total Cuts:1   Total Cut-Len:10'0\"",
                            "Total Fills:1   Total Fill-Len:10'0\"", "Total Length:20'0\"",
                            "Total SQ. Yards:26.67", "Total SQ. FT.:240.00",
                            "Total BASE: 0.00 FEET"));
    EXPECT_EQ(StepOf("Carpet-1  Width=12'0\"  DOWNLAY").X1, 100);
    EXPECT_EQ(StepOf("Carpet-1  Width=12'0\"  DOWNLAY").Y1, 100);
    EXPECT_TRUE(Picture().isVisible());
}

TEST_F(EstimateScreens, AreEmptyWhenNoLayoutComes) {
    Open({{200, 120}});
    PressOk();
    screens.Client->NoEstimate();
    ExpectNothingEstimated();
    Click(Button(Controls::redrawLayout));
    EXPECT_THAT(Written(), ElementsAre("NO FILLS TO DISPLAY"));
}

TEST_F(EstimateScreens, ClearTheEarlierResultBeforeTheNextSearch) {
    Open({{288, 120, 0}, {200, 120, 1}});
    PressOk();
    ASSERT_FALSE(Written().empty());
    Click(Button(Controls::openChoices));
    Click(Option(Controls::carpets[1]));
    PressOk();
    EXPECT_TRUE(Written().empty());
    EXPECT_EQ(screens.Request, WithCarpet(Request(144), 1));
    EXPECT_EQ(Searched().Cuts.size(), 1U);
}

TEST_F(EstimateScreens, ShowNothingForACarpetWithoutArea) {
    Open({{288, 120, 0}, {0, 120, 1}});
    PressOk();
    Click(Button(Controls::openChoices));
    Click(Option(Controls::carpets[1]));
    PressOk();
    ExpectNothingEstimated();
    EXPECT_FALSE(Panel().isVisible());
    EXPECT_TRUE(screens.Calls.empty());
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(EstimateScreens, CutAlongTheOtherWayForCrossLay) {
    Open({{100, 288}});
    Click(Option(Controls::crossLay));
    PressOk();
    EXPECT_THAT(PrintedCarpetLines(), ElementsAre("Carpet-1  Width=12'0\"", "CROSSLAY"));
    EXPECT_THAT(Written(), ::testing::Contains("Carpet-1  Width=12'0\"  CROSSLAY"));
    EXPECT_EQ(TimesWritten("Cut2: 12'0\" X 8'4\""), 1);
}

TEST_F(EstimateScreens, TakeTheCarpetAndTheWidthChosen) {
    Open({{162, 120, 5}, {100, 100, 2}});
    Click(Option(Controls::carpets[5]));
    Click(Option(Controls::standardWidths[2]));
    PressOk();
    EXPECT_EQ(TimesWritten("Carpet-6  Width=13'6\"  DOWNLAY"), 1);
    EXPECT_EQ(TimesWritten("Cut1: 13'6\" X 10'0\""), 1);
}

TEST_F(EstimateScreens, TakeAFreeWidthInFeetAndInches) {
    for (const Units units : BothUnits) {
        open.Shown = units;
        open.Now.Rooms.clear();
        Open({units == Units::Metric ? Sized{381, 300} : Sized{150, 120}});
        Click(Option(Controls::otherWidth));
        Type(Box(Controls::otherWidthMajor), "12");
        Type(Box(Controls::otherWidthMinor), "6");
        PressOk();
        EXPECT_EQ(PrintedCarpetLines().front(),
                  units == Units::Metric ? "Carpet-1  Width=381" : "Carpet-1  Width=12'6\"");
        EXPECT_EQ(CutsListed(), 1);
        EXPECT_EQ(TimesWritten("NO FILLS TO DISPLAY"), 1);
    }
}

TEST_F(EstimateScreens, CutAMetricRoomFromItsOwnRollWithoutASliver) {
    open.Shown = Units::Metric;
    Open({{366, 500}});
    PressOk();
    EXPECT_EQ(CutsListed(), 1);
    EXPECT_EQ(TimesWritten("NO FILLS TO DISPLAY"), 1);
    EXPECT_EQ(TimesWritten("Carpet-1  Width=366  DOWNLAY"), 1);
    EXPECT_EQ(TimesWritten("Cut1: 366 X 500"), 1);
}

TEST_F(EstimateScreens, ListAMatchPattern) {
    Open({{144, 110}});
    Click(Control<QCheckBox>(Controls::matchPattern));
    Type(Box(Controls::repeatWidth), "18");
    Type(Box(Controls::repeatLength), "24");
    PressOk();
    EXPECT_EQ(TimesWritten("Match Pattern: 1'6\" X 2'0\""), 1);
    EXPECT_EQ(TimesWritten("Total Match Pattern Length: 10'0\""), 1);
    Click(Button(Controls::openChoices));
    Click(Control<QCheckBox>(Controls::matchPattern));
    PressOk();
    EXPECT_EQ(TimesWritten("Match Pattern: 1'6\" X 2'0\""), 0);
}

TEST_F(EstimateScreens, ListAMetricRepeatAsItWasTyped) {
    open.Shown = Units::Metric;
    Open({{366, 500}});
    Click(Control<QCheckBox>(Controls::matchPattern));
    Type(Box(Controls::repeatWidth), "31");
    Type(Box(Controls::repeatLength), "47");
    PressOk();
    EXPECT_EQ(TimesWritten("Match Pattern: 31 X 47"), 1);
    EXPECT_EQ(TimesWritten("Total Match Pattern Length: 517"), 1) << "11 repeats of 47";
}

TEST_F(EstimateScreens, EnableTheirButtonsAlsoWhenOkIsRefused) {
    Open({{288, 120}});
    Click(Option(Controls::otherWidth));
    PressOk();
    EXPECT_TRUE(Panel().isVisible());
    EXPECT_TRUE(Button(Controls::leaveEstimate).isEnabled());
}

TEST_F(EstimateScreens, AreEmptyAfterAnErrorAndKeepThePanelAsItStood) {
    Open({{288, 120}, {30000, 120, 1}});
    PressOk();
    ASSERT_FALSE(Written().empty());
    Click(Button(Controls::openChoices));
    Click(Option(Controls::carpets[1]));
    Click(Option(Controls::otherWidth));
    Type(Box(Controls::otherWidthMinor), "1");
    PressOk();
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_EQ(
        boxes.Messages[0],
        "Run-time error '9':\r\n\r\nSubscript out of range\r\nThe estimate could not be made. "
        "There are more than 3001 cuts: choose a wider roll or estimate the rooms in two "
        "projects.");
    ExpectNothingEstimated();
    EXPECT_TRUE(Panel().isVisible());
    EXPECT_EQ(Box(Controls::otherWidthMinor).text(), QStringLiteral("1"));
    EXPECT_TRUE(Option(Controls::otherWidth).isChecked());
    EXPECT_TRUE(Option(Controls::carpets[1]).isChecked());
}

TEST_F(EstimateScreens, AreEmptyWhenTheOptionsScreenDoesNotLoad) {
    Open({{200, 120}});
    screens.OnCall = [] { throw std::runtime_error("No memory."); };
    PressOk();
    EXPECT_EQ(boxes.Messages,
              std::vector<std::string>{"The estimate could not be made. No memory."});
    EXPECT_TRUE(Panel().isVisible());
    ExpectNothingEstimated();
}

TEST_F(EstimateScreens, DoNotLoadWhenTheRoomsHaveNoExtent) {
    Add({10, 10});
    open.Now.Scale = 0;
    EXPECT_THROW(EstimateScreen(session, true), RunTimeError);
}

TEST_F(EstimateScreens, KeepTheCutListLeftOfTheRoll) {
    open.Shown = Units::Imperial;
    for (int i = 0; i < 20; ++i) {
        Add({1000 - 13 * i, 1200 + 17 * i, 0, 8});
    }
    Open({{3000, 3000, 8}, {3000, 3000, 11}});
    Click(Control<QCheckBox>(Controls::matchPattern));
    Type(Box(Controls::repeatWidth), "100");
    Type(Box(Controls::repeatLength), "110");
    PressOk();
    Search();
    double right = 0;
    for (const DrawingStep& step : Picture().Shown().Steps()) {
        if (step.What == DrawingStep::Kind::Text && step.X1 == 100) {
            right = std::max(right, step.X2);
        }
    }
    EXPECT_GT(right, 3000);
    EXPECT_LT(right, 7500);
}

} // namespace
} // namespace tarn
