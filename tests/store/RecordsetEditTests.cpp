#include "store/TestDatabase.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using testing::DatabaseErrorOf;
using testing::TestDatabase;

using Lines = std::vector<std::string>;

class RecordsetEditing : public ::testing::Test {
  protected:
    RecordsetEditing() {
        for (const char* project : {"P1", "P2", "P3"}) {
            file_.AddProject("MARCH", project, 1);
        }
        file_.OpenInto(state_);
        rows_ = state_.CurDB->OpenDynaset("SELECT * from ProjTab");
    }

    Lines Stored() const {
        return file_.Rows("SELECT Dir, ProjName, DrawingNum FROM ProjTab ORDER BY rowid");
    }

    TestDatabase file_;
    SharedState state_;
    std::unique_ptr<Recordset> rows_;
};

TEST_F(RecordsetEditing, StoresANewRowAtOnce) {
    rows_->AddNew();
    rows_->SetField("projname", std::string("P4"));
    rows_->SetField("Dir", std::string("MAY"));
    rows_->SetField("DrawingNum", std::int64_t{0});
    rows_->Update();
    EXPECT_EQ(Stored().back(), "MAY|P4|0");
}

TEST_F(RecordsetEditing, LeavesFieldsOfANewRowNullUnlessTheyAreSet) {
    rows_->AddNew();
    rows_->SetField("ProjName", std::string("P4"));
    rows_->Update();
    EXPECT_EQ(Stored().back(), "NULL|P4|NULL");
    rows_->AddNew();
    rows_->Update();
    EXPECT_EQ(Stored().back(), "NULL|NULL|NULL");
}

TEST_F(RecordsetEditing, StoresAnEmptyTextAsATextAndNotAsNull) {
    rows_->AddNew();
    rows_->SetField("Dir", std::string());
    rows_->SetField("ProjName", std::monostate());
    rows_->Update();
    EXPECT_EQ(Stored().back(), "|NULL|NULL");
}

TEST_F(RecordsetEditing, StoresTextsWithEveryCharacter) {
    for (const char* text : {"O'HARA", "100%", "A;B", "A\"B", "КВАРТИРА", "床", "?", "DIR"}) {
        rows_->AddNew();
        rows_->SetField("ProjName", std::string(text));
        rows_->Update();
        EXPECT_EQ(Stored().back(), "NULL|" + std::string(text) + "|NULL");
    }
}

TEST_F(RecordsetEditing, StoresNumbersExactly) {
    const auto sheets = state_.CurDB->OpenDynaset("SELECT * from MainTab");
    sheets->AddNew();
    sheets->SetField("TabIndex", std::int64_t{-32768});
    sheets->SetField("DigScale", 0.1);
    sheets->Update();
    EXPECT_EQ(file_.Rows("SELECT TabIndex, DigScale = 0.1 FROM MainTab").back(), "-32768|1");
}

TEST_F(RecordsetEditing, StoresTheLastValueOfAFieldSetTwice) {
    rows_->AddNew();
    rows_->SetField("ProjName", std::string("P4"));
    rows_->SetField("projname", std::string("P5"));
    rows_->Update();
    EXPECT_EQ(Stored().back(), "NULL|P5|NULL");
}

TEST_F(RecordsetEditing, ShowsANewRowFromMoveFirstOnAndStaysOnItsRowTillThen) {
    rows_->MoveNext();
    rows_->AddNew();
    rows_->SetField("ProjName", std::string("P4"));
    rows_->Update();
    EXPECT_EQ(rows_->Field("ProjName"), FieldValue(std::string("P2")));
    int count = 0;
    for (rows_->MoveFirst(); !rows_->AtEnd(); rows_->MoveNext()) {
        ++count;
    }
    EXPECT_EQ(count, 4);
}

TEST_F(RecordsetEditing, ChangesTheCurrentRowAlone) {
    rows_->MoveNext();
    rows_->Edit();
    rows_->SetField("Dir", std::string("MAY"));
    rows_->SetField("Dir", std::string("JUNE"));
    rows_->Update();
    EXPECT_EQ(Stored(), (Lines{"MARCH|P1|0", "JUNE|P2|0", "MARCH|P3|0"}));
    EXPECT_EQ(rows_->Field("Dir"), FieldValue(std::string("JUNE")));
}

TEST_F(RecordsetEditing, ChangesARowTwice) {
    for (const char* name : {"MAY", "JUNE"}) {
        rows_->Edit();
        rows_->SetField("Dir", std::string(name));
        rows_->Update();
    }
    EXPECT_EQ(Stored().front(), "JUNE|P1|0");
}

TEST_F(RecordsetEditing, AnEditWithoutAChangeStoresNothing) {
    rows_->Edit();
    rows_->Update();
    EXPECT_EQ(Stored(), (Lines{"MARCH|P1|0", "MARCH|P2|0", "MARCH|P3|0"}));
}

TEST_F(RecordsetEditing, DeletesTheCurrentRowAlone) {
    rows_->MoveNext();
    rows_->Delete();
    EXPECT_EQ(Stored(), (Lines{"MARCH|P1|0", "MARCH|P3|0"}));
    rows_->MoveNext();
    EXPECT_EQ(rows_->Field("ProjName"), FieldValue(std::string("P3")));
}

TEST_F(RecordsetEditing, DeletesRowsThatAreEqualInEveryFieldOneByOne) {
    file_.Run("DELETE FROM ProjTab");
    file_.Run("INSERT INTO ProjTab VALUES ('A', 'B', 0), ('A', 'B', 0)");
    rows_->MoveFirst();
    rows_->Delete();
    EXPECT_EQ(Stored(), Lines{"A|B|0"});
}

TEST_F(RecordsetEditing, DeletesARowOfNullsAndOddValues) {
    file_.Run("DELETE FROM ProjTab");
    file_.Run("INSERT INTO ProjTab VALUES (NULL, x'00FF', 'no number'), (1.5, '', NULL)");
    rows_->MoveFirst();
    rows_->Delete();
    rows_->MoveNext();
    rows_->Delete();
    EXPECT_EQ(Stored(), Lines{});
}

TEST_F(RecordsetEditing, HasNoCurrentRowOnceItIsDeleted) {
    rows_->Delete();
    EXPECT_FALSE(rows_->AtEnd());
    EXPECT_THROW(rows_->Field("Dir"), DatabaseError);
    EXPECT_THROW(rows_->Edit(), DatabaseError);
    EXPECT_THROW(rows_->Delete(), DatabaseError);
    EXPECT_EQ(Stored(), (Lines{"MARCH|P2|0", "MARCH|P3|0"}));
}

TEST_F(RecordsetEditing, RefusesToEditOrDeletePastTheEnd) {
    while (!rows_->AtEnd()) {
        rows_->MoveNext();
    }
    EXPECT_THROW(rows_->Edit(), DatabaseError);
    EXPECT_THROW(rows_->Delete(), DatabaseError);
    rows_->AddNew(); // needs no current row
    rows_->Update();
    EXPECT_EQ(Stored().size(), 4U);
}

TEST_F(RecordsetEditing, RefusesSetFieldAndUpdateWithoutARowBegun) {
    EXPECT_THROW(rows_->SetField("Dir", std::string("X")), DatabaseError);
    EXPECT_THROW(rows_->Update(), DatabaseError);
    rows_->Edit();
    rows_->Update();
    EXPECT_THROW(rows_->Update(), DatabaseError) << "the row begun is stored and done with";
}

TEST_F(RecordsetEditing, MovingAwayDropsTheRowBegun) {
    rows_->AddNew();
    rows_->MoveNext();
    EXPECT_THROW(rows_->Update(), DatabaseError);
    rows_->Edit();
    rows_->MoveFirst();
    EXPECT_THROW(rows_->Update(), DatabaseError);
    EXPECT_EQ(Stored().size(), 3U);
}

TEST_F(RecordsetEditing, BeginningANewRowDropsTheChangesOfAnother) {
    rows_->Edit();
    rows_->SetField("Dir", std::string("MAY"));
    rows_->AddNew();
    rows_->SetField("ProjName", std::string("P4"));
    rows_->Update();
    EXPECT_EQ(Stored(), (Lines{"MARCH|P1|0", "MARCH|P2|0", "MARCH|P3|0", "NULL|P4|NULL"}));
}

TEST_F(RecordsetEditing, RefusesAFieldThatIsNotThere) {
    rows_->AddNew();
    EXPECT_EQ(DatabaseErrorOf([&] { rows_->SetField("Nowhere", std::int64_t{1}); }),
              "ProjTab has no field Nowhere.");
}

TEST_F(RecordsetEditing, ARowDeletedMeanwhileCannotBeChangedOrDeleted) {
    file_.Run("DELETE FROM ProjTab WHERE ProjName = 'P1'");
    EXPECT_THROW(rows_->Delete(), DatabaseError);
    rows_->Edit();
    rows_->SetField("Dir", std::string("MAY"));
    EXPECT_NE(DatabaseErrorOf([&] { rows_->Update(); }).find("meanwhile"), std::string::npos);
    EXPECT_EQ(Stored(), (Lines{"MARCH|P2|0", "MARCH|P3|0"}));
}

TEST_F(RecordsetEditing, ARowNumberThatNowBelongsToAnotherRowIsLeftAlone) {
    rows_->MoveNext();
    rows_->MoveNext();
    // The greatest row number is given anew.
    file_.Run("DELETE FROM ProjTab WHERE ProjName = 'P3'");
    file_.Run("INSERT INTO ProjTab VALUES ('MAY', 'P4', 0)");
    EXPECT_THROW(rows_->Delete(), DatabaseError);
    rows_->Edit();
    rows_->SetField("Dir", std::string("JUNE"));
    EXPECT_THROW(rows_->Update(), DatabaseError);
    EXPECT_EQ(Stored().back(), "MAY|P4|0");
}

TEST_F(RecordsetEditing, AFailedUpdateLeavesTheRowAndCanBeTriedAgain) {
    rows_->Edit();
    rows_->SetField("Dir", std::string("MAY"));
    file_.Run(
        "CREATE TRIGGER Stop BEFORE UPDATE ON ProjTab BEGIN SELECT RAISE(ABORT, 'stop'); END");
    EXPECT_EQ(DatabaseErrorOf([&] { rows_->Update(); }), "ProjTab cannot be changed: stop.");
    EXPECT_EQ(rows_->Field("Dir"), FieldValue(std::string("MARCH")));
    file_.Run("DROP TRIGGER Stop");
    rows_->Update();
    EXPECT_EQ(Stored().front(), "MAY|P1|0");
}

TEST_F(RecordsetEditing, ASnapshotRefusesEveryEdit) {
    const auto rows = state_.CurDB->OpenSnapshot("SELECT * from ProjTab");
    EXPECT_THROW(rows->AddNew(), DatabaseError);
    EXPECT_THROW(rows->Edit(), DatabaseError);
    EXPECT_THROW(rows->SetField("Dir", std::string("X")), DatabaseError);
    EXPECT_THROW(rows->Update(), DatabaseError);
    EXPECT_THROW(rows->Delete(), DatabaseError);
    EXPECT_EQ(Stored().size(), 3U);
}

TEST_F(RecordsetEditing, ADynasetNeedsAllFieldsOfOneTable) {
    EXPECT_THROW(state_.CurDB->OpenDynaset("Select Dir from ProjTab"), DatabaseError);
    EXPECT_THROW(state_.CurDB->OpenDynaset("Select * from MainTab, ProjTab"), DatabaseError);
    EXPECT_THROW(state_.CurDB->OpenDynaset("Select Max(TabIndex) from MainTab"), DatabaseError);
}

} // namespace
} // namespace tarn
