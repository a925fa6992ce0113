// The project selection when the database fails.

#include "screens/projects/ProjectScreenTesting.h"
#include "store/DataFolder.h"

#include <filesystem>

namespace tarn {
namespace {

using namespace tarn::testing;

struct FailingProjects : ProjectScreenTest {
    /// The one message shown, which begins with what could not be done.
    void ExpectMessage(const std::string& failure, const std::string& cause) {
        ASSERT_EQ(boxes.Messages.size(), 1U);
        EXPECT_EQ(boxes.Messages[0].rfind(failure + " ", 0), 0U) << boxes.Messages[0];
        EXPECT_NE(boxes.Messages[0].find(cause), std::string::npos) << boxes.Messages[0];
        boxes.Messages.clear();
    }
    /// As at a start without the file.
    void StartWithout() {
        std::filesystem::rename(file.Path(), away);
        DataFolder folder;
        folder.Path = file.Folder().Path();
        folder.DatabaseName = file.Path();
        store = OpenStore(folder);
    }

    std::string away = file.Folder().Path("away.mdb");
};

TEST_F(FailingProjects, SelectProjectTriesTheDatabaseAgain) {
    StartWithout();
    Load();
    Click(Button(Controls::selectProject));
    ExpectMessage("The projects could not be listed.", "is missing");
    EXPECT_TRUE(Find(*form, Controls::settingsPanel).isVisible());
    EXPECT_TRUE(Find(*form, Controls::selectionPanel).isHidden());

    std::filesystem::rename(away, file.Path());
    Click(Button(Controls::selectProject));
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_TRUE(Find(*form, Controls::selectionPanel).isVisible());
    EXPECT_EQ(Entries(Projects()), (Lines{"ANNEX", "BARN"}));
}

TEST_F(FailingProjects, AReadOnlyFileGivesTheMessage) {
    StartWithout();
    std::filesystem::rename(away, file.Path());
    std::filesystem::permissions(file.Path(), std::filesystem::perms::owner_read);
    Load();
    Click(Button(Controls::selectProject));
    ExpectMessage("The projects could not be listed.", "read-only");
    EXPECT_TRUE(Find(*form, Controls::settingsPanel).isVisible());
}

TEST_F(FailingProjects, AMissingTableGivesTheMessageAndTheSettingsStay) {
    file.Run("DROP TABLE DirTab");
    Load();
    Click(Button(Controls::selectProject));
    ExpectMessage("The projects could not be listed.", "DirTab");
    EXPECT_TRUE(Find(*form, Controls::selectionPanel).isHidden());
}

TEST_F(FailingProjects, AListThatCannotBeReadKeepsTheSelectionAndTheProjects) {
    Open();
    ClickEntry(Projects(), "BARN");
    file.Run("ALTER TABLE ProjTab RENAME TO Gone");
    boxes.OnMessage = [&] { EXPECT_EQ(Selected(Months()), "MARCH") << "behind the message"; };
    ClickEntry(Directories(), "HOUSES");
    ExpectMessage("The projects could not be listed.", "ProjTab");
    EXPECT_EQ(Selected(Months()), "MARCH");
    EXPECT_EQ(Selected(Directories()), "(none)");
    EXPECT_EQ(Entries(Projects()), (Lines{"ANNEX", "BARN"}));
    ClickEntry(Months(), "MAY");
    ExpectMessage("The projects could not be listed.", "ProjTab");
    EXPECT_EQ(Selected(Months()), "MARCH");
    EXPECT_EQ(BoxText(), "BARN");

    file.Run("ALTER TABLE Gone RENAME TO ProjTab");
    ClickEntry(Directories(), "HOUSES");
    EXPECT_EQ(Entries(Projects()), (Lines{"VILLA", "TOWER"}));
}

TEST_F(FailingProjects, TheBoxStaysLockedWhenTheProjectsCannotBeListed) {
    Open();
    file.Run("ALTER TABLE ProjTab RENAME TO Gone");
    Click(Button(Controls::newProject));
    ExpectMessage("The projects could not be listed.", "ProjTab");
    EXPECT_TRUE(Box().isReadOnly());
    Click(Box());
    ExpectMessage("The projects could not be listed.", "ProjTab");
    EXPECT_TRUE(Box().isReadOnly());
    EXPECT_FALSE(Box().hasFocus());
    file.Run("ALTER TABLE Gone RENAME TO ProjTab");
    Click(Box());
    EXPECT_FALSE(Box().isReadOnly());
}

TEST_F(FailingProjects, ANewProjectThatCannotBeStoredStaysTyped) {
    open.Now.Name = "VILLA";
    Open();
    TypeNew("HUT");
    RawDatabase other(file.Path());
    other.Run("BEGIN IMMEDIATE");
    Click(Button(Controls::acceptProject));
    ExpectMessage("The project could not be selected.", "another program is using the database");
    other.Run("ROLLBACK");
    EXPECT_TRUE(Find(*form, Controls::selectionPanel).isVisible());
    EXPECT_EQ(BoxText(), "HUT");
    EXPECT_FALSE(Box().isReadOnly());
    EXPECT_EQ(open.Now.Name, "VILLA");
    EXPECT_EQ(open.Now.Directory, "MARCH");
    EXPECT_EQ(Label(Controls::currentProject), "PROJECT:VILLA");
    EXPECT_TRUE(screens.Calls.empty());

    Click(Button(Controls::acceptProject));
    EXPECT_EQ(screens.Calls, Lines{"menu new"});
}

TEST_F(FailingProjects, AFileThatVanishesWhileTheProgramRunsLosesNothingTyped) {
    Open();
    TypeNew("HUT");
    std::filesystem::rename(file.Path(), away);
    Click(Button(Controls::acceptProject));
    ExpectMessage("The project could not be selected.", file.Path() + " is missing.");
    EXPECT_EQ(BoxText(), "HUT");
    EXPECT_TRUE(screens.Calls.empty());
    EXPECT_FALSE(std::filesystem::exists(file.Path())) << "no other file is made";
    std::filesystem::rename(away, file.Path());
    Click(Button(Controls::acceptProject));
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_EQ(screens.Calls.size(), 1U) << "it goes on when the file is back";
}

TEST_F(FailingProjects, ALockedDatabaseKeepsDirectoriesAndProjectsAsTheyAre) {
    Open();
    const Lines before = Stored();
    RawDatabase other(file.Path());
    other.Run("BEGIN IMMEDIATE");

    boxes.Inputs = {"BARNS", std::nullopt};
    Click(Button(Controls::newDirectory));
    ExpectMessage("The directory could not be made.", "another program");
    boxes.Inputs = {"HOMES", std::nullopt};
    DoubleClickEntry(Directories(), "HOUSES");
    ExpectMessage("The directory could not be renamed.", "another program");
    boxes.Inputs = {"MANOR", std::nullopt};
    DoubleClickEntry(Projects(), "VILLA");
    ExpectMessage("The project could not be renamed.", "another program");
    EXPECT_EQ(boxes.InitialTexts, (Lines{"", "BARNS", "", "HOMES", "", "MANOR"}));
    DeleteEntry(Projects(), "VILLA");
    ExpectMessage("The project could not be deleted.", "another program");
    EXPECT_EQ(Selected(Projects()), "VILLA");
    EXPECT_EQ(BoxText(), "VILLA");
    DeleteEntry(Directories(), "HOUSES");
    ExpectMessage("The directory could not be deleted.", "another program");

    other.Run("ROLLBACK");
    EXPECT_EQ(Stored(), before);
    EXPECT_EQ(Entries(Directories()), (Lines{"HOUSES", "SHOPS"}));
    EXPECT_EQ(Selected(Directories()), "HOUSES");
    EXPECT_EQ(Entries(Projects()), (Lines{"VILLA", "TOWER"}));
    EXPECT_EQ(open.Now.Directory, "MARCH");
}

TEST_F(FailingProjects, ADirectoryThatCannotBeDeletedWholeKeepsItsProjects) {
    open.Now.Name = "VILLA";
    const Lines before = Stored();
    for (const char* trigger :
         {"CREATE TRIGGER Stop BEFORE DELETE ON DirTab BEGIN SELECT RAISE(ABORT, 'stop'); END",
          "CREATE TRIGGER Stop BEFORE DELETE ON ProjTab WHEN OLD.ProjName = 'TOWER' "
          "BEGIN SELECT RAISE(ABORT, 'stop'); END"}) {
        SCOPED_TRACE(trigger);
        file.Run(trigger);
        Open();
        ClickEntry(Directories(), "HOUSES");
        ClickEntry(Projects(), "VILLA");
        boxes.YesNo.push_back(true);
        QTest::keyClick(&Directories(), Qt::Key_Delete);
        ExpectMessage("The directory could not be deleted.", "stop");
        EXPECT_EQ(Stored(), before);
        EXPECT_EQ(Label(Controls::currentProject), "PROJECT:VILLA");
        EXPECT_EQ(Entries(Directories()), (Lines{"HOUSES", "SHOPS"}));
        EXPECT_EQ(Selected(Directories()), "HOUSES");
        EXPECT_EQ(Entries(Projects()), (Lines{"VILLA", "TOWER"}));
        EXPECT_EQ(Selected(Projects()), "VILLA");
        EXPECT_EQ(BoxText(), "VILLA");
        file.Run("DROP TRIGGER Stop");
        form.reset();
    }
    Open();
    DeleteEntry(Directories(), "HOUSES");
    EXPECT_EQ(Entries(Directories()), Lines{"SHOPS"});
}

TEST_F(FailingProjects, ADeletionThatFailsKeepsANameBeingTyped) {
    file.Run("CREATE TRIGGER Stop BEFORE DELETE ON DirTab BEGIN SELECT RAISE(ABORT, 'stop'); END");
    Open();
    ClickEntry(Directories(), "HOUSES");
    TypeNew("HUT");
    DeleteEntry(Directories(), "HOUSES");
    ExpectMessage("The directory could not be deleted.", "stop");
    EXPECT_EQ(Entries(Projects()), (Lines{"VILLA", "TOWER"}));
    EXPECT_EQ(BoxText(), "HUT");
}

TEST_F(FailingProjects, AnEntryThatAFailedDeletionFindsGoneStaysUntilTheListIsReadAgain) {
    // Another program deletes the directory and locks the file.
    Open();
    ClickEntry(Directories(), "HOUSES");
    RawDatabase other(file.Path());
    other.Run("DELETE FROM DirTab WHERE Directory = 'HOUSES'");
    other.Run("BEGIN IMMEDIATE");
    boxes.YesNo.push_back(true);
    QTest::keyClick(&Directories(), Qt::Key_Delete);
    ExpectMessage("The directory could not be deleted.", "another program");
    other.Run("ROLLBACK");
    EXPECT_EQ(Entries(Directories()), (Lines{"HOUSES", "SHOPS"}));
    EXPECT_EQ(Selected(Directories()), "HOUSES");
    EXPECT_EQ(Entries(Projects()), (Lines{"VILLA", "TOWER"}));
    Click(Button(Controls::closeSelection));
    Click(Button(Controls::selectProject));
    EXPECT_EQ(Entries(Directories()), Lines{"SHOPS"});
}

TEST_F(FailingProjects, AListThatCannotBeReadWhereNoneWasShownLeavesNoSelection) {
    file.Run("DELETE FROM DirTab WHERE Directory = 'HOUSES'");
    Open();
    DeleteEntry(Directories(), "SHOPS");
    boxes.Inputs = {"BARNS"};
    Click(Button(Controls::newDirectory));
    file.Run("ALTER TABLE ProjTab RENAME TO Gone");
    ClickEntry(Directories(), "BARNS");
    ExpectMessage("The projects could not be listed.", "ProjTab");
    EXPECT_EQ(Selected(Directories()), "(none)");
    EXPECT_EQ(Entries(Projects()), Lines{});
}

TEST_F(FailingProjects, ListsThatCannotBeReadAfterAFailedDeletionStayAsTheyAre) {
    Open();
    ClickEntry(Directories(), "HOUSES");
    ClickEntry(Projects(), "VILLA");
    file.Run("ALTER TABLE ProjTab RENAME TO Gone");
    boxes.YesNo.push_back(true);
    QTest::keyClick(&Directories(), Qt::Key_Delete);
    ExpectMessage("The directory could not be deleted.", "ProjTab");
    EXPECT_EQ(Selected(Directories()), "HOUSES");
    EXPECT_EQ(Entries(Projects()), (Lines{"VILLA", "TOWER"}));
    EXPECT_EQ(Selected(Projects()), "VILLA");
    EXPECT_EQ(BoxText(), "VILLA");
}

TEST_F(FailingProjects, ASheetNumberThatDoesNotFitIsARunTimeError) {
    file.AddProject("SHOPS", "STALL", 40000);
    Open();
    DeleteEntry(Directories(), "SHOPS");
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_EQ(boxes.Messages[0].rfind("Run-time error '6':\r\n\r\nOverflow\r\n"
                                      "The directory could not be deleted.",
                                      0),
              0U)
        << boxes.Messages[0];
    EXPECT_EQ(Entries(Directories()), (Lines{"HOUSES", "SHOPS"}));
}

TEST_F(FailingProjects, AMenuThatCannotBeLoadedLeavesTheScreenUsable) {
    Open();
    ClickEntry(Projects(), "BARN");
    screens.OnCall = [] { throw DatabaseError("No menu."); };
    Click(Button(Controls::acceptProject));
    EXPECT_EQ(boxes.Messages, Lines{"The project could not be selected. No menu."});
    EXPECT_TRUE(Find(*form, Controls::settingsPanel).isVisible());
    EXPECT_EQ(Label(Controls::currentProject), "PROJECT:BARN");
}

} // namespace
} // namespace tarn
