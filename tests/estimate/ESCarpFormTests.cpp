// The way from the choices to a result.

#include "estimate/EstimateScreenTesting.h"

#include <gmock/gmock.h>

namespace tarn {
namespace {

using namespace tarn::testing;
using ::testing::ElementsAre;

using ESCarpForms = EstimateScreenTest;

TEST_F(ESCarpForms, BearTheProjectsName) {
    Open({{10, 10}});
    EXPECT_EQ(form->Caption(), QStringLiteral("ESTIMATE FOR PROJECT: MAPLE STREET 9"));
    EXPECT_EQ(Control<QLabel>("FTitle").text(),
              QStringLiteral("ESTIMATE FOR PROJECT: MAPLE STREET 9"));
    EXPECT_EQ(Control<QLabel>("Label2").text(), QStringLiteral("PROJ: MAPLE STREET 9"));
}

TEST_F(ESCarpForms, AreNoWiderForALongName) {
    state.CurProjName = std::string(64, 'W');
    Open({{10, 10}});
    EXPECT_EQ(Control<QLabel>("Label2").text(), ToQt("PROJ: " + state.CurProjName));
    EXPECT_EQ(Control("Body").width(), form->width());
    EXPECT_LE(Control("FTitle").geometry().right(), form->width());
}

TEST_F(ESCarpForms, BearTheirCaptions) {
    Open({{10, 10}});
    const std::pair<const char*, const char*> captions[] = {
        {"Command2", "BACK"},  {"Command3", "ESTIMATE"}, {"Command4", "PASTE CUTS"},
        {"Command5", "PRINT"}, {"Command6", "SAVE"},     {"Command7", "REDRAW"}};
    for (const auto& [name, caption] : captions) {
        EXPECT_EQ(Button(name).accessibleName(), QString::fromLatin1(caption));
    }
}

TEST_F(ESCarpForms, ForgetAnEarlierEstimateWhenTheyLoad) {
    state.ECutCount = 3;
    engine.PieceCount = engine.PosCount = 2;
    engine.BestLen = 5;
    engine.BestMode = 1;
    engine.ResultLen = 77;
    Open({{10, 10}});
    ExpectNothingEstimated();
    EXPECT_FALSE(Picture1().isVisible());
}

TEST_F(ESCarpForms, RebuildTheExtentsOfTheRoomsWhenTheyLoadAndAtEachOk) {
    state.RoomX(0, 1) = 1;
    Open({{288, 120}});
    EXPECT_EQ(state.RoomX(0, 1), 28800);
    state.RoomX(0, 1) = 1;
    PressOk();
    EXPECT_EQ(state.ECutCount, 2);
}

TEST_F(ESCarpForms, EnableTheirButtonsOnceThePanelWasClosed) {
    const auto names = {"Command2", "Command3", "Command4", "Command5", "Command6", "Command7"};
    for (const char* closing : {"Command1(0)", "Command1(1)"}) {
        state.ObjNum = 0;
        Open({{288, 120}});
        for (const char* name : names) {
            EXPECT_FALSE(Button(name).isEnabled()) << name;
        }
        Click(Button(closing));
        EXPECT_FALSE(Panel().isVisible());
        for (const char* name : names) {
            EXPECT_TRUE(Button(name).isEnabled()) << name << " after " << closing;
        }
        Click(Button("Command3"));
        EXPECT_TRUE(Panel().isVisible());
        EXPECT_TRUE(Option("Option1(0)").hasFocus());
        EXPECT_TRUE(Button("Command2").isEnabled());
    }
}

TEST_F(ESCarpForms, KeepChoicesAndResultWhenThePanelIsCancelled) {
    Open({{288, 120}});
    PressOk();
    const auto written = Written();
    ASSERT_FALSE(written.empty());
    Click(Button("Command3"));
    Click(Option("Option1(11)"));
    Click(Button("Command1(1)"));
    EXPECT_FALSE(Panel().isVisible());
    EXPECT_EQ(Written(), written);
    EXPECT_EQ(engine.RollWidth, 144);
    EXPECT_EQ(state.ECutCount, 2);
    Click(Button("Command3"));
    EXPECT_TRUE(Option("Option1(11)").isChecked());
}

TEST_F(ESCarpForms, KeepAllThatIsChosenAndTypedWhenThePanelIsCancelled) {
    Open({{288, 120}, {100, 100, 5}});
    Click(Option("Option1(5)"));
    Click(Option("Option1(15)"));
    Type(Box("Text1(0)"), "12'6");
    Type(Box("Text1(1)"), "7");
    Click(Option("Option2(1)"));
    Click(Control<QCheckBox>("Check1"));
    Type(Box("Text2(0)"), "18");
    Type(Box("Text2(1)"), "-2");
    Click(Button("Command1(1)"));
    EXPECT_TRUE(Button("Command3").hasFocus()) << "there is no picture yet";
    EXPECT_TRUE(boxes.Messages.empty());
    Click(Button("Command3"));
    for (const char* option : {"Option1(5)", "Option1(15)", "Option2(1)"}) {
        EXPECT_TRUE(Option(option).isChecked()) << option;
    }
    EXPECT_TRUE(Control<QCheckBox>("Check1").isChecked());
    EXPECT_EQ(Box("Text1(0)").text(), QStringLiteral("12'6"));
    EXPECT_EQ(Box("Text1(1)").text(), QStringLiteral("7"));
    EXPECT_EQ(Box("Text2(0)").text(), QStringLiteral("18"));
    EXPECT_EQ(Box("Text2(1)").text(), QStringLiteral("-2"));
    EXPECT_TRUE(Option("Option1(5)").hasFocus());
}

TEST_F(ESCarpForms, PutTheFocusOnThePictureWhenThePanelIsCancelledOverOne) {
    Open({{288, 120}});
    PressOk();
    Click(Button("Command3"));
    Click(Button("Command1(1)"));
    EXPECT_TRUE(Picture1().hasFocus());
}

TEST_F(ESCarpForms, DrawAndListACarpetWithoutFillsAtOnce) {
    Open({{288, 120}});
    PressOk();
    EXPECT_FALSE(Panel().isVisible());
    EXPECT_TRUE(screens.Calls.empty());
    EXPECT_TRUE(Picture1().isVisible());
    EXPECT_TRUE(Picture1().hasFocus()) << "so that its keys work";
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
    EXPECT_EQ(heading.Color, QBColor::Black);
    const DrawingStep notice = StepOf("NO FILLS TO DISPLAY");
    EXPECT_EQ(notice.X1, 7500);
    EXPECT_EQ(notice.Y1, 3000);
    EXPECT_EQ(notice.Color, QBColor::Red);
}

TEST_F(ESCarpForms, HandPiecesToTheOptionsScreenAndDrawWhatItFound) {
    Open({{200, 120}});
    PressOk();
    EXPECT_FALSE(Panel().isVisible());
    EXPECT_EQ(screens.Calls, std::vector<std::string>{"options"});
    EXPECT_EQ(screens.Client, static_cast<FillsClient*>(form.get()));
    EXPECT_EQ(engine.PieceCount, 1);
    EXPECT_EQ(engine.OrgCount, 1);
    EXPECT_EQ(engine.FillFlag, 1);
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
    EXPECT_TRUE(Picture1().isVisible());
}

TEST_F(ESCarpForms, AreEmptyWhenNoLayoutComes) {
    Open({{200, 120}});
    PressOk();
    screens.Client->NoLayout();
    ExpectNothingEstimated();
    Click(Button("Command7"));
    EXPECT_THAT(Written(), ElementsAre("NO FILLS TO DISPLAY"));
}

TEST_F(ESCarpForms, ClearTheEarlierResultBeforeTheNextSearch) {
    Open({{288, 120, 0}, {200, 120, 1}});
    PressOk();
    ASSERT_FALSE(Written().empty());
    Click(Button("Command3"));
    Click(Option("Option1(1)"));
    PressOk();
    EXPECT_TRUE(Written().empty());
    EXPECT_EQ(state.ECutCount, 1);
}

TEST_F(ESCarpForms, ShowNothingForACarpetWithoutArea) {
    Open({{288, 120, 0}, {0, 120, 1}});
    PressOk();
    Click(Button("Command3"));
    Click(Option("Option1(1)"));
    PressOk();
    ExpectNothingEstimated();
    EXPECT_FALSE(Panel().isVisible());
    EXPECT_TRUE(screens.Calls.empty());
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(ESCarpForms, CutAlongTheOtherWayForCrossLay) {
    Open({{100, 288}});
    Click(Option("Option2(1)"));
    PressOk();
    EXPECT_EQ(engine.LayDir, 1);
    EXPECT_THAT(Written(), ::testing::Contains("Carpet-1  Width=12'0\"  CROSSLAY"));
    EXPECT_EQ(TimesWritten("Cut2: 12'0\" X 8'4\""), 1);
}

TEST_F(ESCarpForms, TakeTheCarpetAndTheWidthChosen) {
    Open({{162, 120, 5}, {100, 100, 2}});
    Click(Option("Option1(5)"));
    Click(Option("Option1(13)"));
    PressOk();
    EXPECT_EQ(engine.RollWidth, 162);
    EXPECT_EQ(TimesWritten("Carpet-6  Width=13'6\"  DOWNLAY"), 1);
    EXPECT_EQ(TimesWritten("Cut1: 13'6\" X 10'0\""), 1);
}

TEST_F(ESCarpForms, TakeAFreeWidthInFeetAndInches) {
    for (const Byte metric : {Byte{0}, Byte{1}}) {
        state.MetricFlag = metric;
        state.ObjNum = 0;
        Open({metric == 1 ? Room{381, 300} : Room{150, 120}});
        Click(Option("Option1(15)"));
        Type(Box("Text1(0)"), "12");
        Type(Box("Text1(1)"), "6");
        PressOk();
        EXPECT_EQ(engine.RollWidth, 150);
        EXPECT_EQ(state.ECutCount, 1);
        EXPECT_EQ(engine.PieceCount, 0);
    }
}

TEST_F(ESCarpForms, CutAMetricRoomFromItsOwnRollWithoutASliver) {
    state.MetricFlag = 1;
    Open({{366, 500}});
    PressOk();
    EXPECT_EQ(state.ECutCount, 1);
    EXPECT_EQ(engine.PieceCount, 0);
    EXPECT_EQ(TimesWritten("Carpet-1  Width=366  DOWNLAY"), 1);
    EXPECT_EQ(TimesWritten("Cut1: 366 X 500"), 1);
}

TEST_F(ESCarpForms, ListAMatchPattern) {
    Open({{144, 110}});
    Click(Control<QCheckBox>("Check1"));
    Type(Box("Text2(0)"), "18");
    Type(Box("Text2(1)"), "24");
    PressOk();
    EXPECT_EQ(TimesWritten("Match Pattern: 1'6\" X 2'0\""), 1);
    EXPECT_EQ(TimesWritten("Total Match Pattern Length: 10'0\""), 1);
    Click(Button("Command3"));
    Click(Control<QCheckBox>("Check1"));
    PressOk();
    EXPECT_EQ(TimesWritten("Match Pattern: 1'6\" X 2'0\""), 0);
}

TEST_F(ESCarpForms, ListAMetricRepeatAsItWasTyped) {
    state.MetricFlag = 1;
    Open({{366, 500}});
    Click(Control<QCheckBox>("Check1"));
    Type(Box("Text2(0)"), "31");
    Type(Box("Text2(1)"), "47");
    PressOk();
    EXPECT_EQ(TimesWritten("Match Pattern: 31 X 47"), 1);
    EXPECT_EQ(TimesWritten("Total Match Pattern Length: 517"), 1) << "11 repeats of 47";
}

TEST_F(ESCarpForms, EnableTheirButtonsAlsoWhenOkIsRefused) {
    Open({{288, 120}});
    Click(Option("Option1(15)"));
    PressOk();
    EXPECT_TRUE(Panel().isVisible());
    EXPECT_TRUE(Button("Command2").isEnabled());
}

TEST_F(ESCarpForms, AreEmptyAfterAnErrorAndKeepThePanelAsItStood) {
    Open({{288, 120}, {30000, 120, 1}});
    PressOk();
    ASSERT_FALSE(Written().empty());
    Click(Button("Command3"));
    Click(Option("Option1(1)"));
    Click(Option("Option1(15)"));
    Type(Box("Text1(1)"), "1");
    PressOk();
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_EQ(
        boxes.Messages[0],
        "Run-time error '9':\r\n\r\nSubscript out of range\r\nThe estimate could not be made. "
        "There are more than 3001 cuts: choose a wider roll or estimate the rooms in two "
        "projects.");
    ExpectNothingEstimated();
    EXPECT_TRUE(Panel().isVisible());
    EXPECT_EQ(Box("Text1(1)").text(), QStringLiteral("1"));
    EXPECT_TRUE(Option("Option1(15)").isChecked());
    EXPECT_TRUE(Option("Option1(1)").isChecked());
}

TEST_F(ESCarpForms, KeepTheEarlierResultWhenANumberCannotBeRead) {
    Open({{288, 120}});
    PressOk();
    const auto written = Written();
    Click(Button("Command3"));
    Click(Control<QCheckBox>("Check1"));
    Type(Box("Text2(1)"), "40000");
    PressOk();
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_THAT(boxes.Messages[0], ::testing::StartsWith("Run-time error '6':"));
    EXPECT_TRUE(Panel().isVisible());
    EXPECT_EQ(Written(), written);
    EXPECT_EQ(Box("Text2(1)").text(), QStringLiteral("40000"));
}

TEST_F(ESCarpForms, AreEmptyWhenTheOptionsScreenDoesNotLoad) {
    Open({{200, 120}});
    screens.OnCall = [] { throw std::runtime_error("No memory."); };
    PressOk();
    EXPECT_EQ(boxes.Messages,
              std::vector<std::string>{"The estimate could not be made. No memory."});
    EXPECT_TRUE(Panel().isVisible());
    ExpectNothingEstimated();
}

TEST_F(ESCarpForms, DoNotLoadWhenTheRoomsHaveNoExtent) {
    Add({10, 10});
    state.DimScale = 0;
    EXPECT_THROW(ESCarpForm(session, true), RunTimeError);
}

TEST_F(ESCarpForms, KeepTheCutListLeftOfTheRoll) {
    state.MetricFlag = 0;
    for (int i = 0; i < 20; ++i) {
        Add({1000 - 13 * i, 1200 + 17 * i, 0, 8});
    }
    Open({{3000, 3000, 8}, {3000, 3000, 11}});
    Click(Control<QCheckBox>("Check1"));
    Type(Box("Text2(0)"), "100");
    Type(Box("Text2(1)"), "110");
    PressOk();
    Search();
    double right = 0;
    for (const DrawingStep& step : Picture1().Drawing().Steps()) {
        if (step.What == DrawingStep::Kind::Text && step.X1 == 100) {
            right = std::max(right, step.X2);
        }
    }
    EXPECT_GT(right, 3000);
    EXPECT_LT(right, 7500);
}

} // namespace
} // namespace tarn
