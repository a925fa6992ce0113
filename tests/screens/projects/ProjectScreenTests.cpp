// The project selection: its panels, its lists and DONE.

#include "screens/ControlChecks.h"
#include "screens/Controls.h"
#include "screens/projects/ProjectScreenTesting.h"

#include <QGroupBox>

namespace tarn {
namespace {

using namespace tarn::testing;

struct ProjectScreens : ProjectScreenTest {};

TEST_F(ProjectScreens, ShowTheCurrentSetting) {
    open.Now.Name = "BARN";
    Load();
    EXPECT_EQ(Label(Controls::productTitle), "SOLVANE 2040");
    EXPECT_EQ(Label(Controls::formTitle), "*PROJECT SELECTION*");
    EXPECT_EQ(form->Caption(), QStringLiteral("PROJECT SELECTION"));
    EXPECT_EQ(Find<QGroupBox>(*form, Controls::currentSetting).title(),
              QStringLiteral(" CURRENT SETTING"));
    EXPECT_EQ(Label(Controls::currentDirectory), "DIRECTORY:MARCH");
    EXPECT_EQ(Label(Controls::currentProject), "PROJECT:BARN");
    EXPECT_TRUE(Find(*form, Controls::settingsPanel).isVisible());
    EXPECT_TRUE(Find(*form, Controls::selectionPanel).isHidden());
}

TEST_F(ProjectScreens, SayWhenNoProjectIsSelected) {
    Load();
    EXPECT_EQ(Label(Controls::currentProject), "No Project Selected");
}

TEST_F(ProjectScreens, ShowALongNameWithinTheScreenAndWholeInTheToolTip) {
    open.Now.Name = std::string(64, 'W');
    Load();
    auto& label = Find<QLabel>(*form, Controls::currentProject);
    EXPECT_EQ(label.text(), ToQt("PROJECT:" + open.Now.Name));
    EXPECT_TRUE(form->rect().contains(label.mapTo(form.get(), label.rect().bottomRight())));
    EXPECT_TRUE(QTest::qWaitFor([&] { return label.toolTip() == label.text(); }));
    EXPECT_EQ(Find<QLabel>(*form, Controls::currentDirectory).toolTip(), QString());
}

TEST_F(ProjectScreens, ShowALongNameInTheToolTipAsItIsWritten) {
    open.Now.Directory = "<I>" + std::string(61, 'W');
    open.Now.Name = "SMITH & SONS " + std::string(51, 'W');
    Load();
    const auto shown = [&](const char* name) { return ShownToolTip(Find(*form, name)); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return !shown(Controls::currentProject).empty(); }));
    EXPECT_EQ(shown(Controls::currentDirectory), "DIRECTORY:" + open.Now.Directory);
    EXPECT_EQ(shown(Controls::currentProject), "PROJECT:" + open.Now.Name);
}

TEST_F(ProjectScreens, DropTheRoomsOfTheProjectThatWasOpen) {
    open.Now.Name = "BARN";
    open.Now.Rooms.resize(3);
    open.Now.Rooms.at(2).Width = 100;
    open.Now.Scale = 0.5;
    open.IsUsable = false;
    open.Saved.Rooms.resize(3);
    Load();
    EXPECT_TRUE(open.Now.Rooms.empty());
    EXPECT_EQ(open.Now.Scale, 0.01);
    EXPECT_EQ(open.Now.Name, "BARN") << "it stays the current one";
    EXPECT_TRUE(open.IsUsable);
    EXPECT_TRUE(open.Saved.Rooms.empty());
}

TEST_F(ProjectScreens, CarryTheirCaptions) {
    Open();
    const std::vector<std::pair<const char*, const char*>> captions{
        {Controls::selectProject, "SELECT PROJECT"}, {Controls::exitProgram, "EXIT"},
        {Controls::newProject, "NEW PROJECT"},       {Controls::newDirectory, "NEW DIRECTORY"},
        {Controls::acceptProject, "DONE"},           {Controls::closeSelection, "EXIT"},
        {Controls::besideSelectProject, ""}};
    for (const auto& [name, caption] : captions) {
        EXPECT_EQ(CaptionOf(Button(name)), QLatin1String(caption)) << name;
        EXPECT_EQ(Button(name).accessibleName(), QLatin1String(caption)) << name;
    }
    EXPECT_EQ(Months().accessibleName(), QStringLiteral("MONTHS"));
    EXPECT_EQ(Directories().accessibleName(), QStringLiteral("DIRECTORIES"));
    EXPECT_EQ(Projects().accessibleName(), QStringLiteral("PROJECTS"));
}

TEST_F(ProjectScreens, AreCentredAndLowEnoughForTheSmallestDisplay) {
    Open();
    for (const char* name : {Controls::settingsPanel, Controls::selectionPanel}) {
        if (name[5] == '1') {
            Click(Button(Controls::closeSelection));
        } else {
            Click(Button(Controls::selectProject));
        }
        const QRect frame = Find(*form, name).geometry();
        EXPECT_LE(frame.height(), Pixels(5300)) << name;
        EXPECT_NEAR(frame.center().x(), 400, 1) << name;
        EXPECT_EQ(frame.top() - Find(*form, Controls::productTitle).geometry().top(), Pixels(1700))
            << name;
        EXPECT_EQ(frame.top() - Find(*form, Controls::formTitle).geometry().top(), Pixels(800))
            << name;
        for (const QWidget* control : Find(*form, name).findChildren<QWidget*>()) {
            if (control->isVisible() && !control->objectName().isEmpty()) {
                EXPECT_TRUE(form->rect().contains(
                    QRect(control->mapTo(form.get(), QPoint(0, 0)), control->size())))
                    << FromQt(control->objectName());
            }
        }
    }
}

TEST_F(ProjectScreens, EndTheProgramByExitAndByTheFrame) {
    Load();
    Click(Button(Controls::exitProgram));
    EXPECT_EQ(screens.Calls, Lines{"end"});
    form->CloseByFrame();
    EXPECT_EQ(screens.Calls, (Lines{"end", "end"}));
    form->setEnabled(false);
    form->CloseByFrame();
    EXPECT_EQ(screens.Calls.size(), 2U);
}

TEST_F(ProjectScreens, LeadBackToSelectProject) {
    Load();
    Focus(Button(Controls::exitProgram));
    Click(Button(Controls::besideSelectProject));
    EXPECT_TRUE(Button(Controls::selectProject).hasFocus());
    Press(*form, Qt::Key_Tab);
    EXPECT_TRUE(Button(Controls::exitProgram).hasFocus()) << "no blank control on the way";
    Press(*form, Qt::Key_Tab);
    EXPECT_TRUE(Button(Controls::selectProject).hasFocus());
}

TEST_F(ProjectScreens, OpenTheSelectionOnTheCurrentMonth) {
    open.Now.Directory = "HOUSES";
    Open();
    EXPECT_TRUE(Find(*form, Controls::settingsPanel).isHidden());
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
    EXPECT_EQ(open.Now.Directory, "HOUSES") << "nothing is chosen yet";
}

TEST_F(ProjectScreens, ShowEveryMonthWithoutScrolling) {
    Open();
    EXPECT_TRUE(Months().viewport()->rect().contains(Months().visualItemRect(Months().item(0))));
    EXPECT_TRUE(Months().viewport()->rect().contains(Months().visualItemRect(Months().item(11))));
}

TEST_F(ProjectScreens, ListTheProjectsOfTheMonthOrDirectorySelected) {
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

TEST_F(ProjectScreens, ListThemForTheArrowKeysToo) {
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

TEST_F(ProjectScreens, ListAnewWhenTheSelectedEntryIsClickedAgain) {
    Open();
    file.AddProject("MARCH", "SHED", 9);
    ClickEntry(Months(), "MARCH");
    EXPECT_EQ(Entries(Projects()), (Lines{"ANNEX", "BARN", "SHED"}));
    ClickEntry(Months(), "MARCH", Qt::ControlModifier);
    EXPECT_EQ(Selected(Months()), "MARCH") << "no click leaves a list without a selection";
}

TEST_F(ProjectScreens, CopyTheProjectClickedIntoTheLockedBox) {
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

TEST_F(ProjectScreens, CloseTheSelectionWithoutAnyChange) {
    open.Now.Name = "VILLA";
    Open();
    ClickEntry(Projects(), "BARN");
    Click(Button(Controls::closeSelection));
    EXPECT_TRUE(Find(*form, Controls::selectionPanel).isHidden());
    EXPECT_TRUE(Find(*form, Controls::settingsPanel).isVisible());
    EXPECT_TRUE(Button(Controls::selectProject).hasFocus());
    EXPECT_EQ(Label(Controls::currentProject), "PROJECT:VILLA");
    EXPECT_EQ(open.Now.Name, "VILLA");
    EXPECT_EQ(open.Now.Directory, "MARCH");
    EXPECT_TRUE(screens.Calls.empty());
}

TEST_F(ProjectScreens, OpenTheSelectionAfreshEachTime) {
    Open();
    TypeNew("HUT");
    ClickEntry(Directories(), "HOUSES");
    Click(Button(Controls::closeSelection));
    file.AddDirectory("BARNS");
    Click(Button(Controls::selectProject));
    EXPECT_EQ(BoxText(), "");
    EXPECT_TRUE(Box().isReadOnly());
    EXPECT_EQ(Selected(Months()), "MARCH");
    EXPECT_EQ(Selected(Directories()), "(none)");
    EXPECT_EQ(Entries(Directories()), (Lines{"BARNS", "HOUSES", "SHOPS"}));
    EXPECT_EQ(Entries(Projects()), (Lines{"ANNEX", "BARN"}));
}

TEST_F(ProjectScreens, HandAnExistingProjectOver) {
    Open();
    ClickEntry(Directories(), "HOUSES");
    ClickEntry(Projects(), "TOWER");
    screens.OnCall = [&] {
        EXPECT_EQ(open.Now.Name, "TOWER");
        EXPECT_EQ(open.Now.Directory, "HOUSES");
    };
    Click(Button(Controls::acceptProject));
    EXPECT_EQ(screens.Calls, Lines{"menu existing"});
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_EQ(Label(Controls::currentDirectory), "DIRECTORY:HOUSES");
    EXPECT_EQ(Label(Controls::currentProject), "PROJECT:TOWER");
    EXPECT_TRUE(Find(*form, Controls::settingsPanel).isVisible());
}

TEST_F(ProjectScreens, HandANewProjectOverOnceItIsStored) {
    Open();
    TypeNew("hut 7");
    screens.OnCall = [&] {
        EXPECT_EQ(file.Rows("SELECT * FROM ProjTab WHERE ProjName = 'HUT 7'"),
                  Lines{"MARCH|HUT 7|0"});
    };
    Click(Button(Controls::acceptProject));
    EXPECT_EQ(screens.Calls, Lines{"menu new"});
    EXPECT_EQ(open.Now.Name, "HUT 7");
    EXPECT_EQ(open.Now.Directory, "MARCH");
    EXPECT_EQ(file.Rows("SELECT * FROM DirTab"), (Lines{"HOUSES", "SHOPS"}))
        << "a month gets no row";
}

TEST_F(ProjectScreens, StayAfterDoneWithAnEmptyBox) {
    open.Now.Name = "VILLA";
    open.Now.Directory = "HOUSES";
    Open();
    Click(Button(Controls::acceptProject));
    EXPECT_TRUE(Find(*form, Controls::settingsPanel).isVisible());
    EXPECT_EQ(Label(Controls::currentProject), "No Project Selected");
    EXPECT_EQ(open.Now.Name, "");
    EXPECT_EQ(open.Now.Directory, "HOUSES");
    EXPECT_TRUE(screens.Calls.empty());
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(ProjectScreens, RefuseANewNameThatIsUsed) {
    Open();
    TypeNew(" cabin ");
    Click(Button(Controls::acceptProject));
    EXPECT_EQ(boxes.Messages, Lines{"The Project Name: CABIN has been used\r\n"
                                    "Please change to another name!"});
    EXPECT_TRUE(Find(*form, Controls::selectionPanel).isVisible());
    EXPECT_EQ(BoxText(), " CABIN ");
    EXPECT_FALSE(Box().isReadOnly());
    EXPECT_TRUE(screens.Calls.empty());
}

TEST_F(ProjectScreens, RefuseAProjectThatIsGone) {
    Open();
    ClickEntry(Projects(), "BARN");
    file.Run("DELETE FROM ProjTab WHERE ProjName = 'BARN'");
    Click(Button(Controls::acceptProject));
    EXPECT_EQ(boxes.Messages, Lines{"The project is no longer there. Please select it again!"});
    EXPECT_TRUE(Find(*form, Controls::selectionPanel).isVisible());
    EXPECT_TRUE(screens.Calls.empty());
    EXPECT_EQ(open.Now.Name, "");
}

TEST_F(ProjectScreens, RefuseANewNameWithoutASelection) {
    file.Run("DELETE FROM DirTab WHERE Directory = 'SHOPS'");
    Open();
    DeleteEntry(Directories(), "HOUSES");
    ASSERT_EQ(Selected(Months()) + Selected(Directories()), "(none)(none)");
    TypeNew("HUT");
    EXPECT_EQ(Entries(Projects()), Lines{});
    Click(Button(Controls::acceptProject));
    EXPECT_EQ(boxes.Messages, Lines{"Please select a month or a directory."});
    EXPECT_EQ(BoxText(), "HUT");
    EXPECT_TRUE(screens.Calls.empty());
}

TEST_F(ProjectScreens, AreReachedByTabInTheirOrderButTheBox) {
    Open();
    for (const char* name :
         {Controls::directories, Controls::projects, Controls::newProject, Controls::newDirectory,
          Controls::acceptProject, Controls::closeSelection, Controls::months}) {
        Press(*form, Qt::Key_Tab);
        EXPECT_TRUE(Find(*form, name).hasFocus()) << name;
    }
    EXPECT_TRUE(Box().isReadOnly());
}

TEST_F(ProjectScreens, UseEachNameAndMnemonicOnce) {
    Open();
    ExpectNamesAndMnemonicsOnce(*form, 9);
}

} // namespace
} // namespace tarn
