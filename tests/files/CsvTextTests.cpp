#include "files/CsvText.h"
#include "project/RoomTesting.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using testing::Below;
using testing::RandomText;
using Fields = std::vector<std::string>;

/// The only record of `text`, which must be free of faults.
Fields OnlyRecord(std::string_view text) {
    const auto records = SplitCsv(text);
    if (records.size() != 1 || records.front().Fault != CsvFault::None) {
        ADD_FAILURE() << records.size() << " records of " << text;
        return {};
    }
    return records.front().Fields;
}

TEST(SplitCsv, SeparatesFieldsAtCommas) {
    EXPECT_EQ(OnlyRecord("a,b,c"), (Fields{"a", "b", "c"}));
    EXPECT_EQ(OnlyRecord(",,"), (Fields{"", "", ""}));
    EXPECT_EQ(OnlyRecord(" a , b"), (Fields{" a ", " b"}));
}

TEST(SplitCsv, EndsRecordsAtEveryKindOfLineEnd) {
    for (const char* text :
         {"a,b\nc,d", "a,b\nc,d\n", "a,b\r\nc,d", "a,b\r\nc,d\r\n", "a,b\rc,d", "a,b\rc,d\r"}) {
        const auto records = SplitCsv(text);
        ASSERT_EQ(records.size(), 2U);
        EXPECT_EQ(records[0].Fields, (Fields{"a", "b"}));
        EXPECT_EQ(records[1].Fields, (Fields{"c", "d"}));
        EXPECT_EQ(records[1].Line, 2);
    }
}

TEST(SplitCsv, LeavesOutEmptyLinesButCountsThem) {
    const auto records = SplitCsv("\n\r\na\n\n\nb\n\n");
    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[0].Line, 3);
    EXPECT_EQ(records[1].Line, 6);
    EXPECT_TRUE(SplitCsv("").empty());
    EXPECT_TRUE(SplitCsv("\n\n").empty());
}

TEST(SplitCsv, KeepsAQuotedEmptyFieldAsARecord) {
    EXPECT_EQ(OnlyRecord("\"\"\n"), (Fields{""}));
}

TEST(SplitCsv, SkipsAByteOrderMarkAtTheStartAlone) {
    EXPECT_EQ(OnlyRecord("\xEF\xBB\xBF\"a\",b"), (Fields{"a", "b"}));
    EXPECT_EQ(OnlyRecord("a,\xEF\xBB\xBF"), (Fields{"a", "\xEF\xBB\xBF"}));
    EXPECT_TRUE(SplitCsv("\xEF\xBB\xBF").empty());
}

TEST(SplitCsv, TakesCommasLineEndsAndDoubledQuotesInsideQuotes) {
    EXPECT_EQ(OnlyRecord("\"a,b\",\"12'6\"\"\",\"x\r\ny\nz\rw\""),
              (Fields{"a,b", "12'6\"", "x\r\ny\nz\rw"}));
    EXPECT_EQ(OnlyRecord(R"("""","""""","""x")"), (Fields{R"(")", R"("")", R"("x)"}));
}

TEST(SplitCsv, TakesAQuoteInsideAnUnquotedFieldAsItself) {
    EXPECT_EQ(OnlyRecord("12'6\",10'\",C1"), (Fields{"12'6\"", "10'\"", "C1"}));
    EXPECT_EQ(OnlyRecord(" \"a\""), (Fields{" \"a\""}));
}

TEST(SplitCsv, NumbersRecordsByTheLineOnWhichTheyBegin) {
    const auto records = SplitCsv("a\n\"b\r\nb\rb\nb\"\nc\r\nd");
    ASSERT_EQ(records.size(), 4U);
    EXPECT_EQ(records[0].Line, 1);
    EXPECT_EQ(records[1].Line, 2);
    EXPECT_EQ(records[2].Line, 6);
    EXPECT_EQ(records[3].Line, 7);
}

TEST(SplitCsv, ReportsTextBehindAClosingQuoteAndGoesOn) {
    const auto records = SplitCsv("x,\"a\"b,\"c\nd\" ,e\nf");
    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[0].Fault, CsvFault::TextAfterQuote);
    EXPECT_EQ(records[0].FaultyField, 1U);
    EXPECT_EQ(records[0].Fields, (Fields{"x", "ab", "c\nd ", "e"}));
    EXPECT_EQ(records[1].Fault, CsvFault::None);
    EXPECT_EQ(records[1].Line, 3);
}

TEST(SplitCsv, ReportsAQuoteThatIsNeverClosed) {
    const auto records = SplitCsv("a\nb,\"c\nd,\"\"\n");
    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[0].Fault, CsvFault::None);
    EXPECT_EQ(records[1].Fault, CsvFault::UnclosedQuote);
    EXPECT_EQ(records[1].FaultyField, 1U);
    EXPECT_EQ(records[1].Line, 2);
    EXPECT_EQ(SplitCsv("\"").front().Fault, CsvFault::UnclosedQuote);
}

TEST(AppendCsvRecord, QuotesOnlyWhereItMust) {
    std::string text;
    AppendCsvRecord(text, {"a b", "1,2", "12'6\"", "x\ny", "x\ry", ""});
    EXPECT_EQ(text, "a b,\"1,2\",\"12'6\"\"\",\"x\ny\",\"x\ry\",\r\n");
}

TEST(AppendCsvRecord, DoesNotBeginATextWithAByteOrderMarkOfAField) {
    const Fields fields{"\xEF\xBB\xBFone", "two"};
    std::string text;
    AppendCsvRecord(text, fields);
    AppendCsvRecord(text, fields);
    EXPECT_EQ(text, "\"\xEF\xBB\xBFone\",two\r\n\xEF\xBB\xBFone,two\r\n");
    const auto records = SplitCsv(text);
    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[0].Fields, fields);
    EXPECT_EQ(records[1].Fields, fields);
}

TEST(AppendCsvRecord, IsReadBackWhateverTheTexts) {
    for (unsigned seed = 1; seed <= 300; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        std::vector<Fields> written;
        std::string text;
        for (int record = Below(random, 8); record > 0; --record) {
            Fields fields{"first"};
            for (int field = Below(random, 5); field > 0; --field) {
                fields.push_back(RandomText(random, 20));
            }
            written.push_back(fields);
            AppendCsvRecord(text, fields);
        }
        std::vector<Fields> read;
        for (const CsvRecord& record : SplitCsv(text)) {
            EXPECT_EQ(record.Fault, CsvFault::None);
            read.push_back(record.Fields);
        }
        EXPECT_EQ(read, written);
    }
}

} // namespace
} // namespace tarn
