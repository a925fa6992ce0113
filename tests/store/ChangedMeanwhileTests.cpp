#include "store/TestDatabase.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using namespace tarn::testing;
using Outcome = SaveResult::Outcome;

/// P, with three rooms under number 5, was loaded; one of its rooms is changed since.
class ChangedMeanwhile : public ::testing::Test {
  protected:
    ChangedMeanwhile() {
        file_.AddDirectory("HOUSES");
        file_.AddProject("HOUSES", "P", 5, 3);
        file_.AddProject("HOUSES", "OTHER", 6, 2);
        Load();
    }

    void Load() {
        LoadedProject loaded = store_.Load("P");
        project_ = loaded.Value;
        read_ = loaded.Mark;
        if (!project_.Rooms.empty()) {
            project_.Rooms[0].Width = 999;
        }
    }
    SaveResult Save() { return store_.Save(project_, Units::Imperial, read_); }
    Lines Everything() const {
        Lines all;
        for (const char* table : {"DirTab", "ProjTab", "MainTab", "InputData"}) {
            for (const std::string& row :
                 file_.Rows("SELECT rowid, * FROM " + std::string(table))) {
                all.push_back(table + ("|" + row));
            }
        }
        return all;
    }
    /// Expect that a save stores nothing, for that reason.
    void ExpectRefusal(Outcome why) {
        const Lines before = Everything();
        const SaveResult result = Save();
        EXPECT_EQ(result.What, why);
        EXPECT_FALSE(result.IsSaved());
        EXPECT_EQ(result.Value, project_);
        EXPECT_EQ(result.Mark, read_);
        EXPECT_EQ(Everything(), before);
    }

    TestDatabase file_;
    ProjectStore store_ = file_.Open(ShortWait);
    Project project_;
    StoredMark read_;
};

TEST_F(ChangedMeanwhile, AProjectThatNobodyChangedIsSaved) {
    const SaveResult result = Save();
    EXPECT_TRUE(result.IsSaved());
    EXPECT_EQ(file_.Rows("SELECT RoomW FROM InputData WHERE TabIndex = 5"),
              (Lines{"999", "101", "102"}));
    EXPECT_EQ(result.Mark, store_.Load("P").Mark);
    EXPECT_NE(result.Mark, read_);
}

TEST_F(ChangedMeanwhile, SavesOneAfterTheOtherNeedNoNewLoad) {
    read_ = Save().Mark;
    project_.Rooms.pop_back();
    read_ = Save().Mark;
    project_.Rooms.clear();
    EXPECT_TRUE(Save().IsSaved());
    EXPECT_EQ(file_.Rows("SELECT ObjNum FROM MainTab WHERE TabIndex = 5"), Lines{"0"});
}

TEST_F(ChangedMeanwhile, EveryChangeOfItsSheetOrItsRoomsIsSeen) {
    for (const char* change :
         {"UPDATE InputData SET RoomW = 7 WHERE TabIndex = 5 AND ObjNum = 2",
          "UPDATE InputData SET RoomL = 7 WHERE TabIndex = 5 AND ObjNum = 0",
          "UPDATE InputData SET RoomNoStr = 'a' WHERE TabIndex = 5 AND ObjNum = 0",
          "UPDATE InputData SET RoomRemark = 'a' WHERE TabIndex = 5 AND ObjNum = 0",
          "UPDATE InputData SET RoomRemark = 'A' WHERE TabIndex = 5 AND ObjNum = 0",
          "UPDATE InputData SET RoomRemark = x'41' WHERE TabIndex = 5 AND ObjNum = 0",
          "UPDATE InputData SET RoomRemark = NULL WHERE TabIndex = 5 AND ObjNum = 0",
          "UPDATE InputData SET CTType = 1 WHERE TabIndex = 5 AND ObjNum = 0",
          "UPDATE InputData SET BaseSty = 1 WHERE TabIndex = 5 AND ObjNum = 0",
          "DELETE FROM InputData WHERE TabIndex = 5 AND ObjNum = 1",
          "INSERT INTO InputData VALUES (3, 1, 1, '', '', 0, 0, 5)",
          "INSERT INTO InputData VALUES (600, 1, 1, '', '', 0, 0, 5)",
          "UPDATE MainTab SET ObjNum = 2 WHERE TabIndex = 5",
          "UPDATE MainTab SET DigScale = 0.0100000000001 WHERE TabIndex = 5",
          "UPDATE MainTab SET EnteredMetric = 1 WHERE TabIndex = 5",
          "INSERT INTO MainTab (TabIndex, ProjName) VALUES (9, 'P')",
          "UPDATE MainTab SET TabIndex = 8 WHERE TabIndex = 5",
          "DELETE FROM MainTab WHERE TabIndex = 5"}) {
        SCOPED_TRACE(change);
        Load();
        file_.Run(change);
        ExpectRefusal(Outcome::Changed);
        file_.Run("DELETE FROM MainTab WHERE ProjName = 'P'");
        file_.Run("DELETE FROM InputData WHERE TabIndex = 5");
        file_.Run("DELETE FROM ProjTab WHERE ProjName = 'P'");
        file_.AddProject("HOUSES", "P", 5, 3);
    }
}

TEST_F(ChangedMeanwhile, WithoutAMarkAProjectIsReplacedWhateverOthersStored) {
    file_.Run("UPDATE InputData SET RoomW = 7 WHERE TabIndex = 5");
    const SaveResult result = store_.Save(project_, Units::Imperial);
    EXPECT_TRUE(result.IsSaved());
    EXPECT_EQ(file_.Rows("SELECT RoomW FROM InputData WHERE TabIndex = 5"),
              (Lines{"999", "101", "102"}));
    EXPECT_EQ(result.Mark, store_.Load("P").Mark);
}

TEST_F(ChangedMeanwhile, ASheetThatAProjectWithoutOneWasGivenIsSeen) {
    store_.AddProject("HOUSES", "NEW");
    const LoadedProject loaded = store_.Load("NEW");
    Project project = loaded.Value;
    project.Rooms.resize(1);
    file_.Run("INSERT INTO MainTab VALUES (9, 'NEW', 0, NULL, 0.01, 0, 1, -500, -500, 0)");
    EXPECT_EQ(store_.Save(project, Units::Imperial, loaded.Mark).What, Outcome::Changed);
    EXPECT_EQ(file_.Rows("SELECT TabIndex FROM MainTab WHERE ProjName = 'NEW'"), Lines{"9"});

    file_.Run("DELETE FROM MainTab WHERE TabIndex = 9");
    const SaveResult result = store_.Save(project, Units::Imperial, loaded.Mark);
    EXPECT_TRUE(result.IsSaved());
    EXPECT_EQ(result.Mark, store_.Load("NEW").Mark);
}

TEST_F(ChangedMeanwhile, ARenamedProjectIsGoneAndGetsNoSheetUnderItsOldName) {
    file_.Run("UPDATE ProjTab SET ProjName = 'Q' WHERE ProjName = 'P'");
    file_.Run("UPDATE MainTab SET ProjName = 'Q' WHERE ProjName = 'P'");
    ExpectRefusal(Outcome::Gone);
}

TEST_F(ChangedMeanwhile, ADeletedProjectIsGone) {
    file_.Open().DeleteProject("P");
    ExpectRefusal(Outcome::Gone);
}

TEST_F(ChangedMeanwhile, AProjectWithoutARowIsNeverStored) {
    file_.Run("DELETE FROM ProjTab WHERE ProjName = 'P'");
    const Lines before = Everything();
    EXPECT_EQ(store_.Save(project_, Units::Imperial).What, Outcome::Gone);
    EXPECT_EQ(Everything(), before);
}

TEST_F(ChangedMeanwhile, OtherProjectsAndAMoveIntoAnotherDirectoryDoNotMatter) {
    file_.Run("UPDATE InputData SET RoomW = 7 WHERE TabIndex = 6");
    file_.Run("UPDATE MainTab SET ObjNum = 1 WHERE TabIndex = 6");
    file_.Run("UPDATE ProjTab SET Dir = 'SHOPS'");
    file_.Run("UPDATE DirTab SET Directory = 'SHOPS'");
    EXPECT_TRUE(Save().IsSaved());
}

TEST_F(ChangedMeanwhile, AFieldThatIsAddedDoesNotMatterUnlessItHoldsSomething) {
    file_.Run("ALTER TABLE MainTab ADD COLUMN More");
    file_.Run("ALTER TABLE InputData ADD COLUMN More");
    EXPECT_EQ(store_.Load("P").Mark, read_);
    file_.Run("UPDATE InputData SET More = 0 WHERE TabIndex = 5");
    ExpectRefusal(Outcome::Changed);
}

TEST_F(ChangedMeanwhile, TheFieldThatASaveOfAnotherProjectAddsDoesNotMatter) {
    file_.Run("ALTER TABLE MainTab DROP COLUMN EnteredMetric");
    Load();
    store_.Save(store_.Load("OTHER").Value, Units::Imperial);
    EXPECT_TRUE(Save().IsSaved());
}

TEST_F(ChangedMeanwhile, OddValuesThatStayAsTheyAreDoNotMatter) {
    file_.Run("UPDATE InputData SET RoomW = NULL, RoomRemark = CAST(x'41FF0042' AS TEXT), "
              "RoomNoStr = x'FF00', CTType = 200, RoomL = 2.25 WHERE ObjNum = 1");
    file_.Run("UPDATE MainTab SET PicScale = 9e999, MagScale = 'much', TileLabelNUm = NULL");
    file_.Run("INSERT INTO InputData VALUES (NULL, 1, 1, '', '', 0, 0, 5), "
              "(0, 1, 1, '', '', 0, 0, 5), (0, 2, 1, '', '', 0, 0, 5), "
              "(99999, 1, 1, NULL, NULL, 0, 0, 5)");
    Load();
    EXPECT_EQ(read_, store_.Load("P").Mark);
    const SaveResult result = Save();
    EXPECT_TRUE(result.IsSaved());
    const LoadedProject again = store_.Load("P");
    EXPECT_EQ(result.Mark, again.Mark);
    EXPECT_EQ(result.Value, again.Value);
}

TEST_F(ChangedMeanwhile, WhereTheRowsLieInTheFileDoesNotMatter) {
    file_.Run("CREATE TABLE Copy AS SELECT * FROM InputData ORDER BY ObjNum DESC");
    file_.Run("DELETE FROM InputData");
    file_.Run("INSERT INTO InputData SELECT * FROM Copy");
    EXPECT_TRUE(Save().IsSaved());
}

} // namespace
} // namespace tarn
