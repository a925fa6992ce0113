#include "store/TestDatabase.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using testing::DatabaseErrorOf;
using testing::TestDatabase;

/// A table with one row of each kind of value.
class RecordsetReading : public ::testing::Test {
  protected:
    RecordsetReading() {
        file_.Run("CREATE TABLE Kinds (A, B TEXT COLLATE NOCASE)");
        file_.Run("INSERT INTO Kinds VALUES (7, 'seven'), (2.5, ''), (NULL, NULL)");
        file_.OpenInto(state_);
    }

    std::unique_ptr<Recordset> Snapshot(const std::string& query) {
        return state_.CurDB->OpenSnapshot(query);
    }
    std::unique_ptr<Recordset> Dynaset(const std::string& query) {
        return state_.CurDB->OpenDynaset(query);
    }
    /// The field of every row, as texts.
    static std::vector<std::string> All(Recordset& rows, const std::string& field) {
        std::vector<std::string> texts;
        for (; !rows.AtEnd(); rows.MoveNext()) {
            texts.push_back(std::get<std::string>(rows.Field(field)));
        }
        return texts;
    }

    TestDatabase file_;
    SharedState state_;
};

TEST_F(RecordsetReading, GivesWholeNumbersNumbersTextsAndNulls) {
    const auto rows = Snapshot("Select * from Kinds");
    EXPECT_EQ(rows->Field("A"), FieldValue(std::int64_t{7}));
    EXPECT_EQ(rows->Field("B"), FieldValue(std::string("seven")));
    rows->MoveNext();
    EXPECT_EQ(rows->Field("A"), FieldValue(2.5));
    EXPECT_EQ(rows->Field("B"), FieldValue(std::string()));
    rows->MoveNext();
    EXPECT_EQ(rows->Field("A"), FieldValue(std::monostate()));
    EXPECT_EQ(rows->Field("B"), FieldValue(std::monostate()));
    rows->MoveNext();
    EXPECT_TRUE(rows->AtEnd());
}

TEST_F(RecordsetReading, FindsFieldsWhateverTheirLetterCase) {
    const auto rows = Dynaset("Select * from Kinds");
    EXPECT_TRUE(rows->HasField("a"));
    EXPECT_EQ(rows->Field("b"), rows->Field("B"));
    EXPECT_FALSE(rows->HasField("C"));
    EXPECT_FALSE(rows->HasField("rowid")) << "the row number is no field of the table";
}

TEST_F(RecordsetReading, KnowsTheFieldsOfAnEmptySet) {
    const auto rows = Dynaset("Select * from MainTab");
    EXPECT_TRUE(rows->AtEnd());
    EXPECT_TRUE(rows->HasField("DigScale"));
}

TEST_F(RecordsetReading, AnEmptySetStaysAtItsEndAtMoveFirst) {
    for (const auto& rows : {Snapshot("Select * from MainTab"), Dynaset("Select * from MainTab")}) {
        rows->MoveFirst();
        EXPECT_TRUE(rows->AtEnd());
    }
}

TEST_F(RecordsetReading, RefusesAFieldThatIsNotThere) {
    const auto rows = Snapshot("Select * from Kinds");
    EXPECT_EQ(DatabaseErrorOf([&] { rows->Field("Nowhere"); }), "Kinds has no field Nowhere.");
}

TEST_F(RecordsetReading, RefusesToReadOrGoOnPastTheEnd) {
    const auto rows = Snapshot("Select * from MainTab");
    EXPECT_THROW(rows->Field("TabIndex"), DatabaseError);
    EXPECT_THROW(rows->MoveNext(), DatabaseError);
}

TEST_F(RecordsetReading, RefusesEverythingOnceClosed) {
    for (const auto& rows : {Snapshot("Select * from Kinds"), Dynaset("Select * from Kinds")}) {
        rows->Close();
        EXPECT_THROW(rows->AtEnd(), DatabaseError);
        EXPECT_THROW(rows->MoveFirst(), DatabaseError);
        EXPECT_THROW(rows->MoveNext(), DatabaseError);
        EXPECT_THROW(rows->HasField("A"), DatabaseError);
        EXPECT_THROW(rows->Field("A"), DatabaseError);
        EXPECT_THROW(rows->AddNew(), DatabaseError);
        EXPECT_THROW(rows->Edit(), DatabaseError);
        EXPECT_THROW(rows->SetField("A", std::int64_t{1}), DatabaseError);
        EXPECT_THROW(rows->Update(), DatabaseError);
        EXPECT_THROW(rows->Delete(), DatabaseError);
        EXPECT_THROW(rows->Close(), DatabaseError);
    }
}

TEST_F(RecordsetReading, RefusesEverythingOnceItsDatabaseIsGone) {
    const auto rows = Dynaset("Select * from Kinds");
    state_.CurDB.reset();
    EXPECT_THROW(rows->AtEnd(), DatabaseError);
    EXPECT_THROW(rows->MoveFirst(), DatabaseError);
    EXPECT_THROW(rows->Field("A"), DatabaseError);
    EXPECT_THROW(rows->Delete(), DatabaseError);
}

TEST_F(RecordsetReading, ComesInTheOrderOfTheRowNumbers) {
    for (const char* name : {"C", "A", "B"}) {
        file_.AddDirectory(name);
    }
    EXPECT_EQ(All(*Snapshot("Select * from DirTab"), "Directory"),
              (std::vector<std::string>{"C", "A", "B"}));
    EXPECT_EQ(All(*Dynaset("Select * from DirTab"), "Directory"),
              (std::vector<std::string>{"C", "A", "B"}));
    EXPECT_EQ(All(*Dynaset("SELECT * from DirTab Order by Directory"), "Directory"),
              (std::vector<std::string>{"A", "B", "C"}));
}

TEST_F(RecordsetReading, ComesByRowNumberAlsoWhereAnIndexHoldsAllThatIsAskedFor) {
    for (const int number : {9, 3, 5}) {
        file_.AddProject("MARCH", std::string("P").append(std::to_string(number)), number);
    }
    std::vector<FieldValue> numbers;
    for (const auto rows = Snapshot("Select TabIndex from MainTab"); !rows->AtEnd();
         rows->MoveNext()) {
        numbers.push_back(rows->Field("TabIndex"));
    }
    EXPECT_EQ(numbers,
              (std::vector<FieldValue>{std::int64_t{9}, std::int64_t{3}, std::int64_t{5}}));
}

TEST_F(RecordsetReading, GivesEqualRowsOfAnOrderByRowNumber) {
    file_.Run("INSERT INTO InputData (ObjNum, RoomNoStr, TabIndex) VALUES (1, 'b', 5), "
              "(0, 'a', 5), (1, 'c', 5), (0, 'd', 5), (0, 'other', 6)");
    EXPECT_EQ(
        All(*Snapshot("Select * from InputData where TabIndex=5 Order by ObjNum"), "RoomNoStr"),
        (std::vector<std::string>{"a", "d", "b", "c"}));
}

TEST_F(RecordsetReading, GivesTheRowsOfTwoTablesByTheRowNumbersOfTheFirst) {
    file_.AddProject("MAY", "P5", 5);
    file_.Run("INSERT INTO MainTab (TabIndex, ProjName) VALUES (9, 'P9'), (3, 'P3')");
    file_.Run("INSERT INTO ProjTab (Dir, ProjName) VALUES ('MARCH', 'P3'), ('MARCH', 'P9')");
    const auto rows = Snapshot("Select * from MainTab, ProjTab where "
                               "MainTab.ProjName=ProjTab.ProjName and Dir=\"MARCH\"");
    EXPECT_EQ(rows->Field("TabIndex"), FieldValue(std::int64_t{9}));
    rows->MoveNext();
    EXPECT_EQ(rows->Field("TabIndex"), FieldValue(std::int64_t{3}));
    rows->MoveNext();
    EXPECT_TRUE(rows->AtEnd());
}

TEST_F(RecordsetReading, IgnoresTheLetterCaseOfALiteral) {
    file_.AddDirectory("MARCH");
    EXPECT_FALSE(Snapshot("Select * from DirTab where Directory=\"march\"")->AtEnd());
}

TEST_F(RecordsetReading, FindsNamesThatLookLikeColumnsOrSyntax) {
    const std::vector<std::string> names = {"DIR",  "PROJNAME", "TABINDEX", "O'HARA", "100% WOOL",
                                            "A;B",  "A--B",     "?",        ":DIR",   "КВАРТИРА",
                                            "床 3", "NULL",     "\\",       "%"};
    for (const std::string& name : names) {
        file_.AddProject(name, name, 1);
    }
    for (const std::string& name : names) {
        EXPECT_EQ(All(*Dynaset("Select * from ProjTab where ProjName=\"" + name + "\""), "Dir"),
                  std::vector<std::string>{name});
    }
}

TEST_F(RecordsetReading, FailsForANameWithADoubleQuote) {
    file_.AddDirectory("A\"B");
    EXPECT_THROW(Dynaset("Select * from DirTab where Directory=\"A\"B\""), DatabaseError);
}

TEST_F(RecordsetReading, SaysWhichTableCannotBeReadAndWhy) {
    EXPECT_EQ(DatabaseErrorOf([&] { Snapshot("Select * from Nowhere"); }),
              "Nowhere cannot be read: no such table: Nowhere.");
    EXPECT_THROW(Snapshot("Select Nothing from DirTab"), DatabaseError);
}

TEST_F(RecordsetReading, ADynasetSeesWhatOthersStoredFromMoveFirstOn) {
    const auto rows = Dynaset("SELECT * from DirTab Order by Directory");
    file_.AddDirectory("JUNE");
    EXPECT_TRUE(rows->AtEnd());
    rows->MoveFirst();
    EXPECT_EQ(All(*rows, "Directory"), std::vector<std::string>{"JUNE"});
}

TEST_F(RecordsetReading, ASnapshotKeepsWhatItRead) {
    file_.AddDirectory("JUNE");
    const auto rows = Snapshot("Select * from DirTab");
    file_.Run("DELETE FROM DirTab");
    rows->MoveFirst();
    EXPECT_EQ(All(*rows, "Directory"), std::vector<std::string>{"JUNE"});
}

TEST_F(RecordsetReading, LeavesNoLockBehind) {
    file_.AddDirectory("JUNE");
    const auto snapshot = Snapshot("Select * from DirTab");
    const auto dynaset = Dynaset("Select * from DirTab");
    testing::RawDatabase other(file_.Path());
    other.Run("BEGIN EXCLUSIVE"); // ends the test when the file is locked
    other.Run("COMMIT");
    EXPECT_FALSE(snapshot->AtEnd());
    EXPECT_FALSE(dynaset->AtEnd());
}

} // namespace
} // namespace tarn
