#include "app/Controls.h"
#include "screens/ControlChecks.h"
#include "store/ProjectFormTesting.h"

#include <QGroupBox>

namespace tarn {
namespace {

using namespace tarn::testing;

struct ProjectForms : ProjectFormTest {};

TEST_F(ProjectForms, ShowTheCurrentSetting) {
    state.CurProjName = "BARN";
    Load();
    EXPECT_EQ(Label("PTitle"), "SOLVANE 2040");
    EXPECT_EQ(Label("FTitle"), "*PROJECT SELECTION*");
    EXPECT_EQ(form->Caption(), QStringLiteral("PROJECT SELECTION"));
    EXPECT_EQ(Find<QGroupBox>(*form, "Frame3").title(), QStringLiteral(" CURRENT SETTING"));
    EXPECT_EQ(Label("Label1(0)"), "DIRECTORY:MARCH");
    EXPECT_EQ(Label("Label1(1)"), "PROJECT:BARN");
    EXPECT_TRUE(Find(*form, "Frame1").isVisible());
    EXPECT_TRUE(Find(*form, "Frame5").isHidden());
}

TEST_F(ProjectForms, SayWhenNoProjectIsSelected) {
    Load();
    EXPECT_EQ(Label("Label1(1)"), "No Project Selected");
}

TEST_F(ProjectForms, ShowALongNameWithinTheScreenAndWholeInTheToolTip) {
    state.CurProjName = std::string(64, 'W');
    Load();
    auto& label = Find<QLabel>(*form, "Label1(1)");
    EXPECT_EQ(label.text(), ToQt("PROJECT:" + state.CurProjName));
    EXPECT_TRUE(form->rect().contains(label.mapTo(form.get(), label.rect().bottomRight())));
    EXPECT_TRUE(QTest::qWaitFor([&] { return label.toolTip() == label.text(); }));
    EXPECT_EQ(Find<QLabel>(*form, "Label1(0)").toolTip(), QString());
}

TEST_F(ProjectForms, ShowALongNameInTheToolTipAsItIsWritten) {
    state.CurDirName = "<I>" + std::string(61, 'W');
    state.CurProjName = "SMITH & SONS " + std::string(51, 'W');
    Load();
    const auto shown = [&](const char* name) { return ShownToolTip(Find(*form, name)); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return !shown("Label1(1)").empty(); }));
    EXPECT_EQ(shown("Label1(0)"), "DIRECTORY:" + state.CurDirName);
    EXPECT_EQ(shown("Label1(1)"), "PROJECT:" + state.CurProjName);
}

TEST_F(ProjectForms, DropTheRoomsOfTheProjectThatWasOpen) {
    state.ObjNum = 3;
    state.RoomWidth[2] = 100;
    state.RoomRemark[500] = "left";
    state.DimScale = 0.5;
    project.Usable = false;
    project.StoredRooms.resize(3);
    Load();
    EXPECT_EQ(state.ObjNum, 0);
    EXPECT_EQ(state.RoomWidth[2], 0);
    EXPECT_EQ(state.RoomRemark[500], "");
    EXPECT_EQ(state.DimScale, 0.01);
    EXPECT_TRUE(project.Usable);
    EXPECT_TRUE(project.StoredRooms.empty());
}

TEST_F(ProjectForms, CarryTheirCaptions) {
    Open();
    const std::vector<std::pair<const char*, const char*>> captions{{"Command3", "SELECT PROJECT"},
                                                                    {"Command2", "EXIT"},
                                                                    {"Command1", "NEW PROJECT"},
                                                                    {"Command7", "NEW DIRECTORY"},
                                                                    {"Command5", "DONE"},
                                                                    {"Command6", "EXIT"},
                                                                    {"Command4", ""}};
    for (const auto& [name, caption] : captions) {
        EXPECT_EQ(CaptionOf(Button(name)), QLatin1String(caption)) << name;
        EXPECT_EQ(Button(name).accessibleName(), QLatin1String(caption)) << name;
    }
    EXPECT_EQ(Months().accessibleName(), QStringLiteral("MONTHS"));
    EXPECT_EQ(Directories().accessibleName(), QStringLiteral("DIRECTORIES"));
    EXPECT_EQ(Projects().accessibleName(), QStringLiteral("PROJECTS"));
}

TEST_F(ProjectForms, AreCentredAndLowEnoughForTheSmallestDisplay) {
    Open();
    for (const char* name : {"Frame1", "Frame5"}) {
        if (name[5] == '1') {
            Click(Button("Command6"));
        } else {
            Click(Button("Command3"));
        }
        const QRect frame = Find(*form, name).geometry();
        EXPECT_LE(frame.height(), Pixels(5300)) << name;
        EXPECT_NEAR(frame.center().x(), 400, 1) << name;
        EXPECT_EQ(frame.top() - Find(*form, "PTitle").geometry().top(), Pixels(1700)) << name;
        EXPECT_EQ(frame.top() - Find(*form, "FTitle").geometry().top(), Pixels(800)) << name;
        for (const QWidget* control : Find(*form, name).findChildren<QWidget*>()) {
            if (control->isVisible() && !control->objectName().isEmpty()) {
                EXPECT_TRUE(form->rect().contains(
                    QRect(control->mapTo(form.get(), QPoint(0, 0)), control->size())))
                    << FromQt(control->objectName());
            }
        }
    }
}

TEST_F(ProjectForms, EndTheProgramByExitAndByTheFrame) {
    Load();
    Click(Button("Command2"));
    EXPECT_EQ(screens.Calls, Lines{"end"});
    form->CloseByFrame();
    EXPECT_EQ(screens.Calls, (Lines{"end", "end"}));
    form->setEnabled(false);
    form->CloseByFrame();
    EXPECT_EQ(screens.Calls.size(), 2U);
}

TEST_F(ProjectForms, LeadBackToSelectProject) {
    Load();
    Focus(Button("Command2"));
    Click(Button("Command4"));
    EXPECT_TRUE(Button("Command3").hasFocus());
    Press(*form, Qt::Key_Tab);
    EXPECT_TRUE(Button("Command2").hasFocus()) << "no blank control on the way";
    Press(*form, Qt::Key_Tab);
    EXPECT_TRUE(Button("Command3").hasFocus());
}

TEST_F(ProjectForms, OpenTheSelectionOnTheCurrentMonth) {
    state.CurDirName = "HOUSES";
    Open();
    EXPECT_TRUE(Find(*form, "Frame1").isHidden());
    EXPECT_EQ(Entries(Months()),
              (Lines{"JANUARY", "FEBRUARY", "MARCH", "APRIL", "MAY", "JUNE", "JULY", "AUGUST",
                     "SEPTEMBER", "OCTOBER", "NOVEMBER", "DECEMBER"}));
    EXPECT_EQ(Entries(Directories()), (Lines{"HOUSES", "SHOPS"}));
    EXPECT_EQ(Selected(Months()), "MARCH");
    EXPECT_EQ(Selected(Directories()), "(none)");
    EXPECT_EQ(Entries(Projects()), (Lines{"ANNEX", "BARN"})) << "of the month selected";
    EXPECT_EQ(Selected(Projects()), "(none)");
    EXPECT_TRUE(Months().hasFocus());
    EXPECT_TRUE(Box().isReadOnly());
    EXPECT_EQ(BoxText(), "");
    EXPECT_EQ(state.CurDirName, "HOUSES") << "nothing is chosen yet";
}

TEST_F(ProjectForms, ShowEveryMonthWithoutScrolling) {
    Open();
    EXPECT_TRUE(Months().viewport()->rect().contains(Months().visualItemRect(Months().item(0))));
    EXPECT_TRUE(Months().viewport()->rect().contains(Months().visualItemRect(Months().item(11))));
}

TEST_F(ProjectForms, ListTheProjectsOfTheMonthOrDirectorySelected) {
    Open();
    ClickEntry(Directories(), "HOUSES");
    EXPECT_EQ(Entries(Projects()), (Lines{"VILLA", "TOWER"}));
    EXPECT_EQ(Selected(Months()), "(none)");
    ClickEntry(Months(), "MAY");
    EXPECT_EQ(Entries(Projects()), Lines{"CABIN"});
    EXPECT_EQ(Selected(Directories()), "(none)");
    ClickEntry(Directories(), "SHOPS");
    EXPECT_EQ(Entries(Projects()), Lines{});
}

TEST_F(ProjectForms, ListThemForTheArrowKeysToo) {
    Open();
    Press(*form, Qt::Key_Down);
    Press(*form, Qt::Key_Down);
    EXPECT_EQ(Selected(Months()), "MAY");
    EXPECT_EQ(Entries(Projects()), Lines{"CABIN"});
    Press(*form, Qt::Key_Tab);
    EXPECT_TRUE(Directories().hasFocus());
    EXPECT_EQ(Selected(Directories()), "(none)") << "the focus alone selects nothing";
    EXPECT_EQ(Entries(Projects()), Lines{"CABIN"});
    Press(*form, Qt::Key_Down);
    EXPECT_EQ(Selected(Directories()), "HOUSES");
    EXPECT_EQ(Selected(Months()), "(none)");
    EXPECT_EQ(Entries(Projects()), (Lines{"VILLA", "TOWER"}));
}

TEST_F(ProjectForms, ListAnewWhenTheSelectedEntryIsClickedAgain) {
    Open();
    file.AddProject("MARCH", "SHED", 9);
    ClickEntry(Months(), "MARCH");
    EXPECT_EQ(Entries(Projects()), (Lines{"ANNEX", "BARN", "SHED"}));
    ClickEntry(Months(), "MARCH", Qt::ControlModifier);
    EXPECT_EQ(Selected(Months()), "MARCH") << "no click leaves a list without a selection";
}

TEST_F(ProjectForms, CopyTheProjectClickedIntoTheLockedBox) {
    Open();
    ClickEntry(Projects(), "BARN");
    EXPECT_EQ(BoxText(), "BARN");
    ClickEntry(Projects(), "ANNEX");
    EXPECT_EQ(BoxText(), "ANNEX");
    EXPECT_TRUE(Box().isReadOnly());
    ClickEntry(Directories(), "HOUSES");
    EXPECT_EQ(BoxText(), "ANNEX");
    EXPECT_TRUE(Box().isReadOnly());
}

TEST_F(ProjectForms, CloseTheSelectionWithoutAnyChange) {
    state.CurProjName = "VILLA";
    Open();
    ClickEntry(Projects(), "BARN");
    Click(Button("Command6"));
    EXPECT_TRUE(Find(*form, "Frame5").isHidden());
    EXPECT_TRUE(Find(*form, "Frame1").isVisible());
    EXPECT_TRUE(Button("Command3").hasFocus());
    EXPECT_EQ(Label("Label1(1)"), "PROJECT:VILLA");
    EXPECT_EQ(state.CurProjName, "VILLA");
    EXPECT_EQ(state.CurDirName, "MARCH");
    EXPECT_TRUE(screens.Calls.empty());
}

TEST_F(ProjectForms, OpenTheSelectionAfreshEachTime) {
    Open();
    TypeNew("HUT");
    ClickEntry(Directories(), "HOUSES");
    Click(Button("Command6"));
    file.AddDirectory("BARNS");
    Click(Button("Command3"));
    EXPECT_EQ(BoxText(), "");
    EXPECT_TRUE(Box().isReadOnly());
    EXPECT_EQ(Selected(Months()), "MARCH");
    EXPECT_EQ(Selected(Directories()), "(none)");
    EXPECT_EQ(Entries(Directories()), (Lines{"BARNS", "HOUSES", "SHOPS"}));
    EXPECT_EQ(Entries(Projects()), (Lines{"ANNEX", "BARN"}));
}

TEST_F(ProjectForms, HandAnExistingProjectOver) {
    Open();
    ClickEntry(Directories(), "HOUSES");
    ClickEntry(Projects(), "TOWER");
    screens.OnCall = [&] {
        EXPECT_EQ(state.CurProjName, "TOWER");
        EXPECT_EQ(state.CurDirName, "HOUSES");
    };
    Click(Button("Command5"));
    EXPECT_EQ(screens.Calls, Lines{"menu existing"});
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_EQ(Label("Label1(0)"), "DIRECTORY:HOUSES");
    EXPECT_EQ(Label("Label1(1)"), "PROJECT:TOWER");
    EXPECT_TRUE(Find(*form, "Frame1").isVisible());
}

TEST_F(ProjectForms, HandANewProjectOverOnceItIsStored) {
    Open();
    TypeNew("hut 7");
    screens.OnCall = [&] {
        EXPECT_EQ(file.Rows("SELECT * FROM ProjTab WHERE ProjName = 'HUT 7'"),
                  Lines{"MARCH|HUT 7|0"});
    };
    Click(Button("Command5"));
    EXPECT_EQ(screens.Calls, Lines{"menu new"});
    EXPECT_EQ(state.CurProjName, "HUT 7");
    EXPECT_EQ(state.CurDirName, "MARCH");
    EXPECT_EQ(file.Rows("SELECT * FROM DirTab"), (Lines{"HOUSES", "SHOPS"}))
        << "a month gets no row";
}

TEST_F(ProjectForms, StayAfterDoneWithAnEmptyBox) {
    state.CurProjName = "VILLA";
    state.CurDirName = "HOUSES";
    Open();
    Click(Button("Command5"));
    EXPECT_TRUE(Find(*form, "Frame1").isVisible());
    EXPECT_EQ(Label("Label1(1)"), "No Project Selected");
    EXPECT_EQ(state.CurProjName, "");
    EXPECT_EQ(state.CurDirName, "HOUSES");
    EXPECT_TRUE(screens.Calls.empty());
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(ProjectForms, RefuseANewNameThatIsUsed) {
    Open();
    TypeNew(" cabin ");
    Click(Button("Command5"));
    EXPECT_EQ(boxes.Messages, Lines{"The Project Name: CABIN has been used\r\n"
                                    "Please change to another name!"});
    EXPECT_TRUE(Find(*form, "Frame5").isVisible());
    EXPECT_EQ(BoxText(), " CABIN ");
    EXPECT_FALSE(Box().isReadOnly());
    EXPECT_TRUE(screens.Calls.empty());
}

TEST_F(ProjectForms, RefuseAProjectThatIsGone) {
    Open();
    ClickEntry(Projects(), "BARN");
    file.Run("DELETE FROM ProjTab WHERE ProjName = 'BARN'");
    Click(Button("Command5"));
    EXPECT_EQ(boxes.Messages, Lines{"The project is no longer there. Please select it again!"});
    EXPECT_TRUE(Find(*form, "Frame5").isVisible());
    EXPECT_TRUE(screens.Calls.empty());
    EXPECT_EQ(state.CurProjName, "");
}

TEST_F(ProjectForms, RefuseANewNameWithoutASelection) {
    file.Run("DELETE FROM DirTab WHERE Directory = 'SHOPS'");
    Open();
    DeleteEntry(Directories(), "HOUSES");
    ASSERT_EQ(Selected(Months()) + Selected(Directories()), "(none)(none)");
    TypeNew("HUT");
    EXPECT_EQ(Entries(Projects()), Lines{});
    Click(Button("Command5"));
    EXPECT_EQ(boxes.Messages, Lines{"Please select a month or a directory."});
    EXPECT_EQ(BoxText(), "HUT");
    EXPECT_TRUE(screens.Calls.empty());
}

TEST_F(ProjectForms, AreReachedByTabInTheirOrderButTheBox) {
    Open();
    for (const char* name :
         {"List1(1)", "List2", "Command1", "Command7", "Command5", "Command6", "List1(0)"}) {
        Press(*form, Qt::Key_Tab);
        EXPECT_TRUE(Find(*form, name).hasFocus()) << name;
    }
    EXPECT_TRUE(Box().isReadOnly());
}

TEST_F(ProjectForms, UseEachNameAndMnemonicOnce) {
    Open();
    ExpectNamesAndMnemonicsOnce(*form, 9);
}

} // namespace
} // namespace tarn
