#include "base/RunTimeError.h"
#include "store/DatabaseFile.h"
#include "store/Tables.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using namespace tarn::testing;

/// A table T with the fields A, of any kind, and B, of texts.
class Tables : public ::testing::Test {
  protected:
    Tables() { file_.Run("CREATE TABLE T (A, B TEXT COLLATE NOCASE)"); }

    /// Add rows by their values: "(7, 'seven'), (NULL, NULL)".
    void Insert(const std::string& rows) { file_.Run("INSERT INTO T VALUES " + rows); }
    /// The one row that has that value in its field A.
    StoredRow RowHolding(const std::string& expression) {
        file_.Run("DELETE FROM T");
        Insert("(" + expression + ", '')");
        return table_.Rows().at(0);
    }
    Lines Stored() const { return file_.Rows("SELECT A, B FROM T ORDER BY rowid"); }
    /// The field B of the rows.
    static Lines TextsOf(const std::vector<StoredRow>& rows) {
        Lines texts;
        for (const StoredRow& row : rows) {
            texts.push_back(row.TextIn("B"));
        }
        return texts;
    }

    TestDatabase file_;
    std::unique_ptr<Connection> connection_ =
        OpenDatabaseFile(file_.Path(), DatabaseAccess::ReadWrite, ShortWait);
    Table table_{*connection_, "T"};
};

TEST_F(Tables, ANullIsNoNumberAndReadsAsZeroAndAsAnEmptyText) {
    const StoredRow row = RowHolding("NULL");
    EXPECT_EQ(row.NumberIn("A"), std::nullopt);
    EXPECT_EQ(row.IntegerIn("A"), 0);
    EXPECT_EQ(row.ByteIn("A"), 0);
    EXPECT_EQ(row.TextIn("A"), "");
}

TEST_F(Tables, NumbersAreRoundedWithHalvesToEven) {
    EXPECT_EQ(RowHolding("2.5").IntegerIn("A"), 2);
    EXPECT_EQ(RowHolding("3.5").IntegerIn("A"), 4);
    EXPECT_EQ(RowHolding("1.6").ByteIn("A"), 2);
    EXPECT_EQ(RowHolding("2.5").NumberIn("A"), 2.5);
}

TEST_F(Tables, NumbersThatDoNotFitOverflow) {
    EXPECT_EQ(RowHolding("32767").IntegerIn("A"), 32767);
    EXPECT_EQ(RowHolding("-32768").IntegerIn("A"), -32768);
    EXPECT_THROW(RowHolding("32768").IntegerIn("A"), RunTimeError);
    EXPECT_EQ(RowHolding("255").ByteIn("A"), 255);
    EXPECT_THROW(RowHolding("256").ByteIn("A"), RunTimeError);
    EXPECT_THROW(RowHolding("-1").ByteIn("A"), RunTimeError);
    EXPECT_THROW(RowHolding("9223372036854775807").ByteIn("A"), RunTimeError);
}

TEST_F(Tables, ATextWhereANumberBelongsIsAnError) {
    const StoredRow row = RowHolding("'12'");
    EXPECT_EQ(DatabaseErrorOf([&] { row.NumberIn("A"); }),
              "The field A should hold a number and holds \"12\".");
    EXPECT_THROW(row.IntegerIn("A"), DatabaseError);
}

TEST_F(Tables, ANumberWhereATextBelongsReadsAsItsDecimalText) {
    EXPECT_EQ(RowHolding("101").TextIn("A"), "101");
    EXPECT_EQ(RowHolding("-2.5").TextIn("A"), "-2.5");
    EXPECT_EQ(RowHolding("0.1").TextIn("A"), "0.1");
    EXPECT_EQ(RowHolding("'101 B'").TextIn("A"), "101 B");
}

TEST_F(Tables, FieldsAreFoundWhateverTheirLetterCase) {
    const StoredRow row = RowHolding("7");
    EXPECT_TRUE(row.HasField("a"));
    EXPECT_EQ(row.IntegerIn("a"), 7);
    EXPECT_FALSE(row.HasField("C"));
    EXPECT_FALSE(row.HasField("rowid")) << "the row number is no field of the table";
    EXPECT_TRUE(table_.HasField("b"));
    EXPECT_FALSE(table_.HasField("rowid"));
    EXPECT_EQ(DatabaseErrorOf([&] { row.TextIn("Nowhere"); }), "T has no field Nowhere.");
}

TEST_F(Tables, AnEmptyOneHasItsFields) {
    EXPECT_TRUE(table_.Rows().empty());
    EXPECT_TRUE(Table(*connection_, "MainTab").HasField("DigScale"));
}

TEST_F(Tables, GiveTheirRowsByRowNumber) {
    Insert("(3, 'C'), (1, 'a'), (2, 'B')");
    EXPECT_EQ(TextsOf(table_.Rows()), (Lines{"C", "a", "B"}));
    EXPECT_EQ(TextsOf(table_.Rows("B")), (Lines{"a", "B", "C"}));
    EXPECT_EQ(TextsOf(table_.Rows("A")), (Lines{"a", "B", "C"}));
}

TEST_F(Tables, GiveTheirRowsByRowNumberAlsoWhereAnIndexHoldsAllThatIsAskedFor) {
    file_.Run("CREATE INDEX I ON T (B, A)");
    Insert("(9, 'x'), (3, 'x'), (5, 'x')");
    std::vector<Integer> numbers;
    for (const StoredRow& row : table_.RowsWhere("B", TextValue("x"))) {
        numbers.push_back(row.IntegerIn("A"));
    }
    EXPECT_EQ(numbers, (std::vector<Integer>{9, 3, 5}));
}

TEST_F(Tables, GiveEqualRowsOfAnOrderByRowNumber) {
    Insert("(1, 'b'), (0, 'a'), (1, 'c'), (0, 'd')");
    EXPECT_EQ(TextsOf(table_.Rows("A")), (Lines{"a", "d", "b", "c"}));
}

TEST_F(Tables, FindTextsThatLookLikeColumnsOrSyntax) {
    const Lines names = {"A", "B",    "T",        "O'HARA", "100% WOOL", "A;B", "A--B", "A\"B",
                         "?", ":DIR", "КВАРТИРА", "床 3",   "NULL",      "\\",  "%",    "'"};
    for (const std::string& name : names) {
        table_.Add({{"B", TextValue(name)}});
    }
    for (const std::string& name : names) {
        EXPECT_EQ(TextsOf(table_.RowsWhere("B", TextValue(name))), Lines{name});
    }
}

TEST_F(Tables, IgnoreTheLetterCaseOfAToZInTexts) {
    Insert("(1, 'MARCH'), (2, 'ДОМ')");
    EXPECT_EQ(table_.RowsWhere("B", TextValue("march")).size(), 1U);
    EXPECT_EQ(table_.RowsWhere("B", TextValue("дом")).size(), 0U);
}

TEST_F(Tables, FindNoRowByANull) {
    Insert("(1, NULL)");
    EXPECT_TRUE(table_.RowsWhere("B", QVariant()).empty());
}

TEST_F(Tables, TellTheirGreatestNumber) {
    EXPECT_EQ(table_.Greatest("A"), std::nullopt);
    Insert("(2, ''), (7.5, ''), (NULL, '')");
    EXPECT_EQ(table_.Greatest("A"), 7.5);
    Insert("('z', '')");
    EXPECT_THROW(table_.Greatest("A"), DatabaseError);
}

TEST_F(Tables, ThatCannotBeReadAreNamedWithTheCause) {
    Table nowhere(*connection_, "Nowhere");
    const std::string text = "Nowhere cannot be read: no such table: Nowhere.";
    EXPECT_EQ(DatabaseErrorOf([&] { nowhere.Rows(); }), text);
    EXPECT_EQ(DatabaseErrorOf([&] { nowhere.HasField("A"); }), text);
    EXPECT_EQ(DatabaseErrorOf([&] { nowhere.Add({{"A", 1}}); }), text);
    EXPECT_EQ(DatabaseErrorOf([&] { nowhere.DeleteWhere("A", 1); }), text);
    EXPECT_EQ(DatabaseErrorOf([&] { nowhere.Greatest("A"); }), text);
    EXPECT_EQ(DatabaseErrorOf([&] { table_.RowsWhere("Nobody", 1); }),
              "T cannot be read: no such column: Nobody.");
}

TEST_F(Tables, LearnOfFieldsThatOthersAddOrDrop) {
    Insert("(1, 'x')");
    EXPECT_EQ(table_.Rows().size(), 1U);
    file_.Run("ALTER TABLE T ADD COLUMN C");
    EXPECT_TRUE(table_.Rows().at(0).HasField("C"));
    file_.Run("ALTER TABLE T DROP COLUMN C");
    EXPECT_FALSE(table_.Rows().at(0).HasField("C"));
    file_.Run("ALTER TABLE T ADD COLUMN C");
    EXPECT_TRUE(Table(*connection_, "T").HasField("C"));
}

TEST_F(Tables, StoreANewRowWithNullsInTheFieldsLeftOut) {
    table_.Add({{"b", TextValue("new")}});
    table_.Add({{"A", 5}});
    EXPECT_EQ(Stored(), (Lines{"NULL|new", "5|NULL"}));
    EXPECT_EQ(DatabaseErrorOf([&] { table_.Add({{"Nowhere", 1}}); }), "T has no field Nowhere.");
}

TEST_F(Tables, StoreAnEmptyTextAsATextAndNotAsNull) {
    table_.Add({{"A", QVariant()}, {"B", TextValue("")}});
    EXPECT_EQ(Stored(), Lines{"NULL|"});
}

TEST_F(Tables, StoreNumbersExactly) {
    Table sheets(*connection_, "MainTab");
    sheets.Add({{"TabIndex", -32768}, {"DigScale", 0.1}});
    EXPECT_EQ(file_.Rows("SELECT TabIndex, DigScale = 0.1 FROM MainTab"), Lines{"-32768|1"});
}

TEST_F(Tables, ChangeOneRowAlone) {
    Insert("(1, 'same'), (1, 'same'), (1, 'same')");
    table_.Change(table_.Rows().at(1), "B", TextValue("other"));
    EXPECT_EQ(Stored(), (Lines{"1|same", "1|other", "1|same"}));
}

TEST_F(Tables, DeleteTheRowsFoundAlone) {
    Insert("(1, 'x'), (2, 'y'), (1, 'z'), (NULL, NULL), (1.5, x'00FF')");
    table_.DeleteWhere("A", 1);
    EXPECT_EQ(file_.Rows("SELECT A FROM T"), (Lines{"2", "NULL", "1.5"}));
    table_.DeleteWhere("A", 1.5);
    EXPECT_EQ(file_.Rows("SELECT A FROM T"), (Lines{"2", "NULL"}));
}

TEST_F(Tables, TellWhatARowCouldNotDo) {
    Insert("(1, 'x')");
    for (const char* change : {"UPDATE", "DELETE", "INSERT"}) {
        file_.Run("CREATE TRIGGER Stop" + std::string(change) + " BEFORE " + change +
                  " ON T BEGIN SELECT RAISE(ABORT, 'stop'); END");
    }
    EXPECT_EQ(DatabaseErrorOf([&] { table_.Change(table_.Rows().at(0), "A", 2); }),
              "T cannot be changed: stop.");
    EXPECT_EQ(DatabaseErrorOf([&] { table_.DeleteWhere("A", 1); }),
              "T cannot be deleted from: stop.");
    EXPECT_EQ(DatabaseErrorOf([&] { table_.Add({{"A", 2}}); }), "T takes no new row: stop.");
    EXPECT_EQ(Stored(), Lines{"1|x"});
}

TEST_F(Tables, TellOfARowThatTheDatabaseSilentlyKeeps) {
    Insert("(1, 'x')");
    for (const char* change : {"UPDATE", "DELETE"}) {
        file_.Run("CREATE TRIGGER Keep" + std::string(change) + " BEFORE " + change +
                  " ON T BEGIN SELECT RAISE(IGNORE); END");
    }
    EXPECT_EQ(DatabaseErrorOf([&] { table_.Change(table_.Rows().at(0), "A", 2); }),
              "T cannot be changed: the database keeps a row as it was.");
    EXPECT_EQ(DatabaseErrorOf([&] { table_.DeleteWhere("A", 1); }),
              "T cannot be deleted from: the database keeps a row as it was.");
    EXPECT_EQ(Stored(), Lines{"1|x"});
}

} // namespace
} // namespace tarn
