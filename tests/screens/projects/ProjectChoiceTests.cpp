// How the current project is chosen, and how it follows what is renamed or deleted.

#include "base/RunTimeError.h"
#include "screens/projects/ProjectChoice.h"
#include "store/ProjectStore.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using namespace tarn::testing;

using Outcome = ChoiceResult::Outcome;

struct ProjectChoices : ::testing::Test {
    ProjectChoices() {
        file.AddDirectory("HOUSES");
        file.AddProject("HOUSES", "VILLA", 1, 2);
        file.AddProject("MAY", "CABIN", 2, 1);
        store = file.Open(ShortWait);
        current.Directory = "MARCH";
        current.Name = "BEFORE";
    }
    void ExpectCurrent(const std::string& directory, const std::string& project) const {
        EXPECT_EQ(current.Directory, directory);
        EXPECT_EQ(current.Name, project);
    }
    void ExpectRefused(const ProjectChoice& choice, const std::string& message) {
        const Lines before = file.Rows("SELECT * FROM ProjTab");
        const ChoiceResult result = AcceptProject(store, current, choice);
        EXPECT_EQ(result.Result, Outcome::Refused);
        EXPECT_EQ(result.Message, message);
        ExpectCurrent("MARCH", "BEFORE");
        EXPECT_EQ(file.Rows("SELECT * FROM ProjTab"), before);
    }

    TestDatabase file;
    ProjectStore store;
    Project current;
};

TEST_F(ProjectChoices, AnEmptyBoxSelectsNoProject) {
    for (const bool existing : {true, false}) {
        current.Name = "BEFORE";
        EXPECT_EQ(AcceptProject(store, current, {"  ", existing, "MAY"}).Result,
                  Outcome::NoProject);
        ExpectCurrent("MARCH", "");
    }
}

TEST_F(ProjectChoices, AnExistingProjectIsTakenWithTheSelection) {
    EXPECT_EQ(AcceptProject(store, current, {"VILLA", true, "MAY"}).Result, Outcome::Existing);
    ExpectCurrent("MAY", "VILLA");
    EXPECT_EQ(file.Rows("SELECT Dir, ProjName FROM ProjTab ORDER BY rowid"),
              (Lines{"HOUSES|VILLA", "MAY|CABIN"}))
        << "it is not moved";
}

TEST_F(ProjectChoices, AnExistingProjectWithoutASelectionIsInItsOwnDirectory) {
    EXPECT_EQ(AcceptProject(store, current, {"VILLA", true, {}}).Result, Outcome::Existing);
    ExpectCurrent("HOUSES", "VILLA");
}

TEST_F(ProjectChoices, AnExistingProjectThatIsGoneIsRefused) {
    ExpectRefused({"HUT", true, "MAY"}, "The project is no longer there. Please select it again!");
}

TEST_F(ProjectChoices, ANewProjectIsStoredInTheSelection) {
    EXPECT_EQ(AcceptProject(store, current, {" hütte 7 ", false, "June"}).Result, Outcome::New);
    ExpectCurrent("June", "HÜTTE 7");
    EXPECT_EQ(file.Rows("SELECT * FROM ProjTab WHERE Dir = 'JUNE'"), Lines{"JUNE|HÜTTE 7|0"});
}

TEST_F(ProjectChoices, ANewProjectNeedsAFreeName) {
    ExpectRefused({" Villa ", false, "MAY"}, "The Project Name: Villa has been used\r\n"
                                             "Please change to another name!");
}

TEST_F(ProjectChoices, ANewProjectNeedsASelection) {
    ExpectRefused({"HUT", false, {}}, "Please select a month or a directory.");
}

TEST_F(ProjectChoices, ANewProjectThatCannotBeStoredChangesNothing) {
    RawDatabase other(file.Path());
    other.Run("BEGIN IMMEDIATE");
    EXPECT_NE(DatabaseErrorOf([&] {
                  AcceptProject(store, current, {"HUT", false, "MAY"});
              }).find("another program is using the database"),
              std::string::npos);
    other.Run("ROLLBACK");
    ExpectCurrent("MARCH", "BEFORE");
    EXPECT_EQ(file.Rows("SELECT ProjName FROM ProjTab ORDER BY rowid"), (Lines{"VILLA", "CABIN"}));
    EXPECT_NE(DatabaseErrorOf([&] {
                  AcceptProject(store, current, {"A:B", false, "MAY"});
              }).find("holds one of the characters"),
              std::string::npos);
    ExpectCurrent("MARCH", "BEFORE");
}

TEST_F(ProjectChoices, AFailedLookUpIsNoFreeName) {
    file.Run("DROP TABLE ProjTab");
    EXPECT_THROW(AcceptProject(store, current, {"HUT", false, "MAY"}), DatabaseError);
    EXPECT_THROW(AcceptProject(store, current, {"VILLA", true, "MAY"}), DatabaseError);
    ExpectCurrent("MARCH", "BEFORE");
}

TEST_F(ProjectChoices, RenamesMoveTheCurrentNamesWithThem) {
    current.Directory = "houses";
    current.Name = "VILLA";
    RenameDirectory(store, current, "HOUSES", " homes ");
    RenameProject(store, current, "VILLA", " manor ");
    ExpectCurrent("HOMES", "MANOR");
    EXPECT_EQ(file.Rows("SELECT Dir, ProjName FROM ProjTab ORDER BY rowid"),
              (Lines{"HOMES|MANOR", "MAY|CABIN"}));
    EXPECT_EQ(file.Rows("SELECT Directory FROM DirTab"), Lines{"HOMES"});
    EXPECT_EQ(file.Rows("SELECT ProjName FROM MainTab ORDER BY rowid"), (Lines{"MANOR", "CABIN"}));
}

TEST_F(ProjectChoices, RenamesOfOthersLeaveTheCurrentNames) {
    RenameDirectory(store, current, "HOUSES", "HOMES");
    RenameProject(store, current, "VILLA", "MANOR");
    ExpectCurrent("MARCH", "BEFORE");
}

TEST_F(ProjectChoices, ADeletedDirectoryMakesWayForTheMonth) {
    current.Directory = "HOUSES";
    current.Name = "VILLA";
    DeleteDirectory(store, current, "HOUSES", "JULY");
    ExpectCurrent("JULY", "");
    EXPECT_EQ(file.Rows("SELECT ProjName FROM ProjTab ORDER BY rowid"), Lines{"CABIN"});
    EXPECT_EQ(file.Rows("SELECT TabIndex FROM InputData"), Lines{"2"});
}

TEST_F(ProjectChoices, DeletionsOfOthersLeaveTheCurrentNames) {
    current.Name = "CABIN";
    DeleteDirectory(store, current, "HOUSES", "JULY");
    ExpectCurrent("MARCH", "CABIN");
    DeleteProject(store, current, "CABIN");
    ExpectCurrent("MARCH", "");
    EXPECT_EQ(file.Rows("SELECT * FROM ProjTab"), Lines{});
}

struct SharedNumbers : ProjectChoices {
    /// VILLA, in the directory HOUSES, and HUT, elsewhere, have a sheet numbered 1.
    SharedNumbers() { file.AddProject("MAY", "HUT", 1, 4); }
    Lines Sheets() const {
        return file.Rows("SELECT TabIndex, ProjName, ObjNum FROM MainTab ORDER BY rowid");
    }
    Lines Rooms() const {
        return file.Rows("SELECT TabIndex, count(*) FROM InputData GROUP BY TabIndex");
    }
};

TEST_F(SharedNumbers, ADeletedProjectLeavesTheSheetAndTheRoomsOfTheOther) {
    DeleteProject(store, current, "VILLA");
    EXPECT_EQ(Sheets(), (Lines{"2|CABIN|1", "1|HUT|4"}));
    EXPECT_EQ(Rooms(), (Lines{"1|6", "2|1"})) << "whose the rows are cannot be told";
    DeleteProject(store, current, "hut");
    EXPECT_EQ(Sheets(), Lines{"2|CABIN|1"});
    EXPECT_EQ(Rooms(), Lines{"2|1"}) << "with the last project of the number they go";
}

TEST_F(SharedNumbers, ADeletedDirectoryLeavesTheSheetsAndTheRoomsOfOthers) {
    file.AddProject("HOUSES", "TOWER", 1, 1);
    DeleteDirectory(store, current, "HOUSES", "JULY");
    EXPECT_EQ(Sheets(), (Lines{"2|CABIN|1", "1|HUT|4"}));
    EXPECT_EQ(Rooms(), (Lines{"1|7", "2|1"}));
    EXPECT_EQ(file.Rows("SELECT ProjName FROM ProjTab ORDER BY rowid"), (Lines{"CABIN", "HUT"}));
}

TEST_F(SharedNumbers, ADirectoryWhoseProjectsShareANumberAmongThemselvesIsDeletedWhole) {
    DeleteDirectory(store, current, "MAY", "JULY"); // HUT leaves number 1 to VILLA
    ASSERT_EQ(Sheets(), Lines{"1|VILLA|2"});
    file.AddProject("HOUSES", "TOWER", 1, 1);
    DeleteDirectory(store, current, "HOUSES", "JULY");
    EXPECT_EQ(Sheets(), Lines{});
    EXPECT_EQ(Rooms(), Lines{});
}

TEST_F(SharedNumbers, AnotherSheetsBadNumberStopsNoDeletion) {
    for (const char* bad : {"NULL", "'many'"}) {
        SCOPED_TRACE(bad);
        file.AddProject("MAY", "SHED", 9);
        file.Run("UPDATE MainTab SET TabIndex = " + std::string(bad) + " WHERE ProjName = 'HUT'");
        DeleteProject(store, current, "SHED");
        EXPECT_EQ(file.Rows("SELECT ProjName FROM MainTab ORDER BY rowid"),
                  (Lines{"VILLA", "CABIN", "HUT"}));
    }
}

TEST_F(SharedNumbers, ADeletionNeedsNoNumber) {
    file.AddProject("HOUSES", "TOWER", 1, 1);
    file.AddProject("MAY", "LAST", 32767);
    DeleteDirectory(store, current, "HOUSES", "JULY");
    EXPECT_EQ(Sheets(), (Lines{"2|CABIN|1", "1|HUT|4", "32767|LAST|0"}));
    EXPECT_EQ(Rooms(), (Lines{"1|7", "2|1"}));
}

TEST_F(ProjectChoices, ADeletionThatFailsOnTheWayLeavesEverything) {
    current.Directory = "HOUSES";
    current.Name = "VILLA";
    const Lines projects = file.Rows("SELECT * FROM ProjTab");
    file.Run("CREATE TRIGGER Stop BEFORE DELETE ON DirTab BEGIN SELECT RAISE(ABORT, 'stop'); END");
    EXPECT_EQ(DatabaseErrorOf([&] { DeleteDirectory(store, current, "HOUSES", "JULY"); }),
              "DirTab cannot be deleted from: stop.");
    EXPECT_EQ(file.Rows("SELECT * FROM ProjTab"), projects);
    ExpectCurrent("HOUSES", "VILLA");
}

TEST_F(ProjectChoices, FailedChangesLeaveTheCurrentNames) {
    file.AddDirectory("A\"B");
    current.Directory = "A\"B";
    current.Name = "VILLA";
    EXPECT_THROW(RenameDirectory(store, current, "A\"B", "AB"), DatabaseError);
    EXPECT_THROW(DeleteDirectory(store, current, "A\"B", "JULY"), DatabaseError);
    file.Run("DROP TABLE MainTab");
    EXPECT_THROW(RenameProject(store, current, "VILLA", "MANOR"), DatabaseError);
    EXPECT_THROW(DeleteProject(store, current, "VILLA"), DatabaseError);
    ExpectCurrent("A\"B", "VILLA");
    EXPECT_EQ(file.Rows("SELECT ProjName FROM ProjTab ORDER BY rowid"), (Lines{"VILLA", "CABIN"}));
}

} // namespace
} // namespace tarn
