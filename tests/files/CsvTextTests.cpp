#include "files/CsvText.h"
#include "project/RoomTesting.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using testing::Below;
using testing::RandomText;
using Fields = std::vector<std::string>;

std::vector<CsvRecord> RecordsOf(std::string_view text) {
    std::vector<CsvRecord> records;
    CsvReader reader(text);
    while (const auto record = reader.Next()) {
        records.push_back(*record);
    }
    return records;
}

/// The only record of `text`, which must be free of faults.
Fields OnlyRecord(std::string_view text) {
    const auto records = RecordsOf(text);
    if (records.size() != 1 || records.front().Fault != CsvFault::None) {
        ADD_FAILURE() << records.size() << " records of " << text;
        return {};
    }
    return records.front().Fields;
}

TEST(CsvReader, SeparatesFieldsAtCommas) {
    EXPECT_EQ(OnlyRecord("a,b,c"), (Fields{"a", "b", "c"}));
    EXPECT_EQ(OnlyRecord(",,"), (Fields{"", "", ""}));
    EXPECT_EQ(OnlyRecord(" a , b"), (Fields{" a ", " b"}));
}

TEST(CsvReader, EndsRecordsAtEveryKindOfLineEnd) {
    for (const char* text :
         {"a,b\nc,d", "a,b\nc,d\n", "a,b\r\nc,d", "a,b\r\nc,d\r\n", "a,b\rc,d", "a,b\rc,d\r"}) {
        const auto records = RecordsOf(text);
        ASSERT_EQ(records.size(), 2U);
        EXPECT_EQ(records[0].Fields, (Fields{"a", "b"}));
        EXPECT_EQ(records[1].Fields, (Fields{"c", "d"}));
        EXPECT_EQ(records[1].Line, 2);
    }
}

TEST(CsvReader, LeavesOutEmptyLinesButCountsThem) {
    const auto records = RecordsOf("\n\r\na\n\n\nb\n\n");
    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[0].Line, 3);
    EXPECT_EQ(records[1].Line, 6);
    EXPECT_TRUE(RecordsOf("").empty());
    EXPECT_TRUE(RecordsOf("\n\n").empty());
}

TEST(CsvReader, KeepsAQuotedEmptyFieldAsARecord) {
    EXPECT_EQ(OnlyRecord("\"\"\n"), (Fields{""}));
}

TEST(CsvReader, SkipsAByteOrderMarkAtTheStartAlone) {
    EXPECT_EQ(OnlyRecord("\xEF\xBB\xBF\"a\",b"), (Fields{"a", "b"}));
    EXPECT_EQ(OnlyRecord("a,\xEF\xBB\xBF"), (Fields{"a", "\xEF\xBB\xBF"}));
    EXPECT_TRUE(RecordsOf("\xEF\xBB\xBF").empty());
}

TEST(CsvReader, TakesCommasLineEndsAndDoubledQuotesInsideQuotes) {
    EXPECT_EQ(OnlyRecord("\"a,b\",\"12'6\"\"\",\"x\r\ny\nz\rw\""),
              (Fields{"a,b", "12'6\"", "x\r\ny\nz\rw"}));
    EXPECT_EQ(OnlyRecord(R"("""","""""","""x")"), (Fields{R"(")", R"("")", R"("x)"}));
}

TEST(CsvReader, TakesAQuoteInsideAnUnquotedFieldAsItself) {
    EXPECT_EQ(OnlyRecord("12'6\",10'\",C1"), (Fields{"12'6\"", "10'\"", "C1"}));
    EXPECT_EQ(OnlyRecord(" \"a\""), (Fields{" \"a\""}));
}

TEST(CsvReader, NumbersRecordsByTheLineOnWhichTheyBegin) {
    const auto records = RecordsOf("a\n\"b\r\nb\rb\nb\"\nc\r\nd");
    ASSERT_EQ(records.size(), 4U);
    EXPECT_EQ(records[0].Line, 1);
    EXPECT_EQ(records[1].Line, 2);
    EXPECT_EQ(records[2].Line, 6);
    EXPECT_EQ(records[3].Line, 7);
}

TEST(CsvReader, ReportsTextBehindAClosingQuoteAndGoesOn) {
    const auto records = RecordsOf("x,\"a\"b,\"c\nd\" ,e\nf");
    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[0].Fault, CsvFault::TextAfterQuote);
    EXPECT_EQ(records[0].FaultyField, 1U);
    EXPECT_EQ(records[0].Fields, (Fields{"x", "ab", "c\nd ", "e"}));
    EXPECT_EQ(records[1].Fault, CsvFault::None);
    EXPECT_EQ(records[1].Line, 3);
}

TEST(CsvReader, ReportsAQuoteThatIsNeverClosed) {
    const auto records = RecordsOf("a\nb,\"c\nd,\"\"\n");
    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[0].Fault, CsvFault::None);
    EXPECT_EQ(records[1].Fault, CsvFault::UnclosedQuote);
    EXPECT_EQ(records[1].FaultyField, 1U);
    EXPECT_EQ(records[1].Line, 2);
    EXPECT_EQ(RecordsOf("\"").front().Fault, CsvFault::UnclosedQuote);
}

TEST(CsvReader, KeepsTheFirstFieldsOfMillionsAndCountsTheRest) {
    std::string text(3'000'000, ',');
    text.replace(0, 1, "a,b,");
    text += "\nc,d\n";
    const auto records = RecordsOf(text);
    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[0].FieldCount, 3'000'002U);
    Fields first(MostCsvFields);
    first[0] = "a";
    first[1] = "b";
    EXPECT_EQ(records[0].Fields, first);
    EXPECT_EQ(records[0].Fault, CsvFault::None);
    EXPECT_EQ(records[1].Fields, (Fields{"c", "d"}));
    EXPECT_EQ(records[1].FieldCount, 2U);
}

TEST(CsvReader, FindsAFaultInAFieldThatIsNotKept) {
    const auto records = RecordsOf(std::string(100, ',') + "\"a\"b");
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0].Fault, CsvFault::TextAfterQuote);
    EXPECT_EQ(records[0].FaultyField, 100U);
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
    const auto records = RecordsOf(text);
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
        for (const CsvRecord& record : RecordsOf(text)) {
            EXPECT_EQ(record.Fault, CsvFault::None);
            read.push_back(record.Fields);
        }
        EXPECT_EQ(read, written);
    }
}

} // namespace
} // namespace tarn
