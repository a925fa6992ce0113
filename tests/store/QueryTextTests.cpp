#include "app/Database.h"
#include "store/QueryText.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

TEST(ReadQuery, OrdersRowsByRowNumber) {
    EXPECT_EQ(ReadQuery("SELECT * from ProjTab").Statement(),
              "SELECT * FROM ProjTab ORDER BY ProjTab.rowid");
}

TEST(ReadQuery, BreaksTiesOfAnOrderByRowNumber) {
    EXPECT_EQ(ReadQuery("SELECT * from DirTab Order by Directory").Statement(),
              "SELECT * FROM DirTab ORDER BY Directory, DirTab.rowid");
    EXPECT_EQ(ReadQuery("Select * from InputData where TabIndex=7 Order  by ObjNum").Statement(),
              "SELECT * FROM InputData WHERE TabIndex=7 ORDER BY ObjNum, InputData.rowid");
}

TEST(ReadQuery, OrdersTheRowsOfTwoTablesByTheRowNumbersOfBoth) {
    EXPECT_EQ(ReadQuery("Select * from MainTab, ProjTab where MainTab.ProjName=ProjTab.ProjName")
                  .Statement(),
              "SELECT * FROM MainTab, ProjTab WHERE MainTab.ProjName=ProjTab.ProjName ORDER BY "
              "MainTab.rowid, ProjTab.rowid");
}

TEST(ReadQuery, PutsTheRowNumberInFrontForEditing) {
    EXPECT_EQ(ReadQuery("Select * from T where A=1").StatementWithRowNumber(),
              "SELECT T.rowid, * FROM T WHERE A=1 ORDER BY T.rowid");
}

TEST(ReadQuery, TurnsTheLiteralIntoAValue) {
    const QueryText query = ReadQuery("Select TabIndex from MainTab where ProjName = \"O'HARA\"");
    EXPECT_EQ(query.Statement(),
              "SELECT TabIndex FROM MainTab WHERE ProjName = ? ORDER BY MainTab.rowid");
    EXPECT_EQ(query.Literal, "O'HARA");
}

TEST(ReadQuery, TakesEveryTextThatHoldsNoDoubleQuote) {
    for (const char* name : {"DIR", "PROJNAME", "TABINDEX", "A'B", "100%", "A;B", "A--B", "?", ":X",
                             " ", "", "where order by from", "КВАРТИРА 5", "床"}) {
        const QueryText query =
            ReadQuery("Select * from ProjTab where Dir=\"" + std::string(name) + "\"");
        EXPECT_EQ(query.Literal, name);
        EXPECT_EQ(query.Condition, "Dir=?") << name;
        EXPECT_EQ(query.Order, "") << name;
    }
}

TEST(ReadQuery, AllowsBlanksBehindTheLiteral) {
    EXPECT_EQ(ReadQuery("Select * from T where A=\"X\" \t\r\n ").Literal, "X");
}

TEST(ReadQuery, HasNoLiteralWhereThereIsNone) {
    EXPECT_FALSE(ReadQuery("Select * from T where A=5").Literal.has_value());
}

struct BadQuery {
    const char* Name;
    const char* Text;
};

class RefusedQuery : public ::testing::TestWithParam<BadQuery> {};

TEST_P(RefusedQuery, RaisesDatabaseErrorWithTheText) {
    try {
        ReadQuery(GetParam().Text);
        FAIL() << "nothing was raised";
    } catch (const DatabaseError& error) {
        EXPECT_NE(std::string(error.what()).find(GetParam().Text), std::string::npos)
            << error.what();
    }
}

INSTANTIATE_TEST_SUITE_P(
    ReadQuery, RefusedQuery,
    ::testing::Values(BadQuery{"LiteralNotClosed", "Select * from T where A=\"X"},
                      BadQuery{"TextBehindALiteral", "Select * from T where A=\"X\" and B=1"},
                      BadQuery{"DoubledQuoteInALiteral", "Select * from T where A=\"X\"\"Y\""},
                      BadQuery{"QuoteAtTheEndOfAName", "Select * from T where A=\"X\"\""},
                      BadQuery{"TwoLiterals", "Select * from T where A=\"X\" or \"1\"=\"1\""},
                      BadQuery{"LiteralAsATable", "Select * from \"T\""},
                      BadQuery{"LiteralAsAnOrder", "Select * from T order by \"A\""},
                      BadQuery{"ApostropheOutside", "Select * from T where A='X'"},
                      BadQuery{"SecondStatement", "Select * from T; Delete from T"},
                      BadQuery{"ConditionWithoutText", "Select * from T where "},
                      BadQuery{"OrderWithoutFields", "Select * from T order by"},
                      BadQuery{"OrderWithoutBy", "Select * from T order A"},
                      BadQuery{"NoTable", "Select 1"},
                      BadQuery{"SubQuery", "Select * from (Select * from T)"},
                      BadQuery{"TableMissingInAList", "Select * from T, "},
                      BadQuery{"NoFields", "Select from T"}, BadQuery{"NoSelect", "Delete from T"},
                      BadQuery{"WordsBeforeSelect", "Explain Select * from T"},
                      BadQuery{"Empty", ""}),
    [](const auto& bad) { return bad.param.Name; });

} // namespace
} // namespace tarn
