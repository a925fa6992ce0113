#include "app/RunTimeError.h"
#include "store/Fields.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using testing::TestDatabase;

/// The value of an SQL expression as the only field, A, of a set.
class Fields : public ::testing::Test {
  protected:
    std::unique_ptr<Recordset> Holding(const std::string& expression) {
        file_.Run("DROP TABLE IF EXISTS T");
        file_.Run("CREATE TABLE T (A)");
        file_.Run("INSERT INTO T VALUES (" + expression + ")");
        file_.OpenInto(state_);
        return state_.CurDB->OpenSnapshot("Select * from T");
    }

    TestDatabase file_;
    SharedState state_;
};

TEST_F(Fields, ANullIsNoNumberAndReadsAsZero) {
    const auto rows = Holding("NULL");
    EXPECT_EQ(NumberIn(*rows, "A"), std::nullopt);
    EXPECT_EQ(IntegerIn(*rows, "A"), 0);
    EXPECT_EQ(ByteIn(*rows, "A"), 0);
    EXPECT_EQ(TextIn(*rows, "A"), "");
}

TEST_F(Fields, NumbersAreRoundedWithHalvesToEven) {
    EXPECT_EQ(IntegerIn(*Holding("2.5"), "A"), 2);
    EXPECT_EQ(IntegerIn(*Holding("3.5"), "A"), 4);
    EXPECT_EQ(ByteIn(*Holding("1.6"), "A"), 2);
    EXPECT_EQ(NumberIn(*Holding("2.5"), "A"), 2.5);
}

TEST_F(Fields, NumbersThatDoNotFitOverflow) {
    EXPECT_EQ(IntegerIn(*Holding("32767"), "A"), 32767);
    EXPECT_EQ(IntegerIn(*Holding("-32768"), "A"), -32768);
    EXPECT_THROW(IntegerIn(*Holding("32768"), "A"), RunTimeError);
    EXPECT_EQ(ByteIn(*Holding("255"), "A"), 255);
    EXPECT_THROW(ByteIn(*Holding("256"), "A"), RunTimeError);
    EXPECT_THROW(ByteIn(*Holding("-1"), "A"), RunTimeError);
    EXPECT_THROW(ByteIn(*Holding("9223372036854775807"), "A"), RunTimeError);
}

TEST_F(Fields, ATextWhereANumberBelongsIsAnError) {
    const auto rows = Holding("'12'");
    EXPECT_EQ(testing::DatabaseErrorOf([&] { NumberIn(*rows, "A"); }),
              "The field A should hold a number and holds \"12\".");
    EXPECT_THROW(IntegerIn(*rows, "A"), DatabaseError);
}

TEST_F(Fields, ANumberWhereATextBelongsReadsAsItsDecimalText) {
    EXPECT_EQ(TextIn(*Holding("101"), "A"), "101");
    EXPECT_EQ(TextIn(*Holding("-2.5"), "A"), "-2.5");
    EXPECT_EQ(TextIn(*Holding("'101 B'"), "A"), "101 B");
}

} // namespace
} // namespace tarn
