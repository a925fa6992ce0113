#include "base/Text.h"
#include "files/RoomCsv.h"
#include "project/RoomTesting.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

namespace tarn {
namespace {

using testing::Below;
using testing::RandomText;
using Rooms = std::vector<Room>;
using Lines = std::vector<std::string>;

Rooms RoomsOf(std::string_view text, Units units = Units::Imperial) {
    const RoomCsvReading reading = ReadRoomCsv(text, units);
    for (const RoomCsvError& error : reading.Errors) {
        ADD_FAILURE() << ErrorText(error);
    }
    EXPECT_TRUE(reading.Succeeded());
    return reading.Rooms;
}

/// The errors of a text as lines; also sees to it that no room was taken.
Lines ErrorsOf(std::string_view text, Units units = Units::Imperial) {
    const RoomCsvReading reading = ReadRoomCsv(text, units);
    EXPECT_FALSE(reading.Succeeded());
    EXPECT_TRUE(reading.Rooms.empty());
    Lines lines;
    for (const RoomCsvError& error : reading.Errors) {
        lines.push_back(ErrorText(error));
    }
    return lines;
}

/// The errors of one room line behind a header with all columns.
Lines ErrorsOfRoom(const std::string& line, Units units = Units::Imperial) {
    return ErrorsOf("width,length,covering,base,room,remark\n" + line + "\n", units);
}

constexpr std::string_view NoCovering =
    " is not a covering: CARPET-1 to CARPET-8, TILE-1 to TILE-4, or short as C1 or T1";
constexpr std::string_view NoBase = " is not a wall base: L or W with 1 or 2, such as W2L1";
constexpr std::string_view NoInches =
    " is not a size in whole inches, or in feet and inches such as 12'6\"";

std::string Line(std::string_view start, std::string_view end) {
    return std::string(start).append(end);
}

TEST(ReadRoomCsv, ReadsAllColumns) {
    EXPECT_EQ(RoomsOf("width,length,covering,base,room,remark\n"
                      "150,168,CARPET-2,w2l1,101,Front room\n"
                      "9,8,TILE-4,,,\n"),
              (Rooms{{150, 168, 1, 5, "101", "Front room"}, {9, 8, 11, 0, "", ""}}));
}

TEST(ReadRoomCsv, TakesColumnsInAnyOrderAndLetterCase) {
    EXPECT_EQ(RoomsOf("Remark, COVERING ,Length,room,Width\nx,t1,2,y,1"),
              (Rooms{{1, 2, 8, 0, "y", "x"}}));
}

TEST(ReadRoomCsv, NeedsOnlyTheFirstThreeColumns) {
    EXPECT_EQ(RoomsOf("covering,width,length\nC8,1,2\n"), (Rooms{{1, 2, 7, 0, "", ""}}));
}

TEST(ReadRoomCsv, ReadsFeetAndInchesQuotedOrNot) {
    const Rooms expected{{150, 144, 0, 0, "", ""}};
    EXPECT_EQ(RoomsOf("width,length,covering\n12'6\",12',C1\n"), expected);
    EXPECT_EQ(RoomsOf("width,length,covering\n\"12'6\"\"\",\"12'0\"\"\",C1\n"), expected);
    EXPECT_EQ(RoomsOf("width,length,covering\n12'6,11'12,C1\n"), expected);
}

TEST(ReadRoomCsv, ReadsZeroAndTheLargestSize) {
    EXPECT_EQ(RoomsOf("width,length,covering\n0,32767,C1\n0'0\",2730'7\",C1\n"),
              (Rooms{{0, 32767, 0, 0, "", ""}, {0, 32767, 0, 0, "", ""}}));
}

TEST(ReadRoomCsv, LeavesOutBlanksAroundAllButRoomAndRemark) {
    EXPECT_EQ(RoomsOf("width,length,covering,base,room,remark\n 150 , 12'6\" , c1 , W1 , a , b \n"),
              (Rooms{{150, 150, 0, 1, " a ", " b "}}));
}

TEST(ReadRoomCsv, KeepsCommasAndQuotesOfTexts) {
    EXPECT_EQ(RoomsOf("\xEF\xBB\xBFwidth,length,covering,remark\r\n"
                      "1,2,C1,\"a, \"\"b\"\"\"\r\n"
                      "3,4,C2,浴室\r\n"),
              (Rooms{{1, 2, 0, 0, "", "a, \"b\""}, {3, 4, 1, 0, "", "浴室"}}));
}

TEST(ReadRoomCsv, RefusesWhatNoTextMayHold) {
    constexpr std::string_view Control =
        "holds a line break or another control character; write it in one line";
    constexpr std::string_view NoCharacter =
        "holds U+FFFE or U+FFFF, which are no characters; leave them out";
    for (const std::string text :
         {"\"a\nb\"", "\"a\r\nb\"", "a\tb", "a\x1B[31m", "a\x7F", "a\u0085", "a\u009F"}) {
        for (const std::string column : {"room", "remark"}) {
            const std::string line = column == "room" ? text + "," : "," + text;
            const Lines errors = ErrorsOfRoom("1,2,C1,," + line);
            ASSERT_EQ(errors.size(), 1U);
            EXPECT_THAT(errors[0], ::testing::StartsWith("line 2: " + column + " \"a"));
            EXPECT_THAT(errors[0], ::testing::EndsWith("\" " + std::string(Control)));
        }
    }
    EXPECT_EQ(ErrorsOfRoom("1,2,C1,,a\uFFFE,\uFFFF b"),
              (Lines{Line("line 2: room \"a\uFFFE\" ", NoCharacter),
                     Line("line 2: remark \"\uFFFF b\" ", NoCharacter)}));
    EXPECT_EQ(ErrorsOfRoom(std::string("1,2,C1,,,\0", 10)).size(), 1U);
}

TEST(ReadRoomCsv, TakesOneApostropheOffTheStartOfATextAlone) {
    EXPECT_EQ(RoomsOf("width,length,covering,base,room,remark\n"
                      "1,2,C1,,'007,'=1+1\n1,2,C1,,'12345678,''twas\n1,2,C1,,',a'b\n"),
              (Rooms{{1, 2, 0, 0, "007", "=1+1"},
                     {1, 2, 0, 0, "12345678", "'twas"},
                     {1, 2, 0, 0, "", "a'b"}}));
    EXPECT_EQ(ErrorsOfRoom("'1,2,C1,,'123456789,"),
              (Lines{Line("line 2: width \"'1\"", NoInches),
                     "line 2: room \"'123456789\" has more than 8 characters"}));
}

TEST(ReadRoomCsv, TellsTheFirstMistakesOfManyAndCountsTheOthers) {
    std::string text = "width,length,covering\n";
    for (int line = 0; line < 1000; ++line) {
        text += "-1,x,C1\n";
    }
    const RoomCsvReading reading = ReadRoomCsv(text, Units::Imperial);
    ASSERT_EQ(reading.Errors.size(), 20U);
    EXPECT_EQ(reading.Errors.front().Line, 2);
    EXPECT_EQ(reading.Errors.back().Line, 11);
    EXPECT_EQ(reading.MoreErrors, 1000 * 2 + 1 - 20) << "two a line, and too many rooms";
    EXPECT_TRUE(reading.Rooms.empty());
    const RoomCsvReading few = ReadRoomCsv("width,length,covering\n-1,x,C1\n", Units::Imperial);
    EXPECT_EQ(few.Errors.size(), 2U);
    EXPECT_EQ(few.MoreErrors, 0);
}

TEST(ReadRoomCsv, RefusesAHeaderOfManyColumns) {
    const Lines errors = ErrorsOf("width,length,covering" + std::string(1'000'000, ','));
    ASSERT_EQ(errors.size(), 20U);
    EXPECT_EQ(errors[0], "line 1: a column has no name");
    std::string header = "width,length,covering,base,room,remark";
    for (int column = 6; column < 100; ++column) {
        header += ",width";
    }
    const RoomCsvReading reading = ReadRoomCsv(header + "\n1,2\n", Units::Imperial);
    EXPECT_EQ(reading.Errors.front().Problem, "appears twice");
    EXPECT_EQ(reading.MoreErrors, 64 - 6 - 20 + 1 + 1)
        << "every other column that is kept, their number, and the last line";
}

TEST(ReadRoomCsv, TellsAFaultInAFieldBehindThoseThatAreKept) {
    EXPECT_EQ(ErrorsOfRoom("1,2,C1,,," + std::string(100, ',') + "\"a\"b"),
              (Lines{"line 2: field has text behind its closing quote"}));
}

TEST(ReadRoomCsv, ReadsAHeaderAloneAsNoRooms) {
    EXPECT_TRUE(RoomsOf("width,length,covering").empty());
}

TEST(ReadRoomCsv, CountsCharactersNotBytes) {
    EXPECT_EQ(RoomsOf("width,length,covering,room\n1,2,C1,Приёмная\n")[0].Number, "Приёмная");
    const std::string remark(255, 'x');
    EXPECT_EQ(RoomsOf("width,length,covering,remark\n1,2,C1," + remark + "\n")[0].Remark, remark);
}

TEST(ReadRoomCsv, RefusesANegativeSize) {
    EXPECT_EQ(ErrorsOfRoom("-5,-1'6\",C1,,,"),
              (Lines{"line 2: width \"-5\" is negative", "line 2: length \"-1'6\"\" is negative"}));
}

TEST(ReadRoomCsv, RefusesASizeBeyond32767) {
    for (const std::string size : {"32768", "99999999999999999999999", "2730'8\""}) {
        EXPECT_EQ(ErrorsOfRoom(size + ",1,C1,,,"),
                  (Lines{"line 2: width \"" + size + "\" is too large: a size is at most 32767"}));
    }
}

TEST(ReadRoomCsv, RefusesAMissingSizeOrCovering) {
    EXPECT_EQ(ErrorsOfRoom(", ,,,,"),
              (Lines{"line 2: width is missing", "line 2: length \" \" is missing",
                     "line 2: covering is missing"}));
}

TEST(ReadRoomCsv, RefusesSizesThatAreNotWhole) {
    for (const std::string size :
         {"12.5", "12 ft", "6 1/2", "+5", "1e2", "-", "--5", "12'6x", "x", "12' 6", "-x", "0x10"}) {
        EXPECT_EQ(ErrorsOfRoom(size + ",1,C1,,,"),
                  (Lines{Line("line 2: width \"" + size + "\"", NoInches)}));
    }
}

TEST(ReadRoomCsv, TakesWholeCentimetresAloneWhenMetric) {
    EXPECT_EQ(RoomsOf("width,length,covering\n350,420,C1\n", Units::Metric),
              (Rooms{{350, 420, 0, 0, "", ""}}));
    EXPECT_EQ(ErrorsOfRoom("12'6\",3.5,C1,,,", Units::Metric),
              (Lines{"line 2: width \"12'6\"\" is not a size in whole centimetres",
                     "line 2: length \"3.5\" is not a size in whole centimetres"}));
    EXPECT_EQ(ErrorsOfRoom("-1,1,C1,,,", Units::Metric),
              (Lines{"line 2: width \"-1\" is negative"}));
}

TEST(ReadRoomCsv, RefusesAnUnknownCovering) {
    EXPECT_EQ(ErrorsOfRoom("1,2,TILE-5,,,"),
              (Lines{Line("line 2: covering \"TILE-5\"", NoCovering)}));
}

TEST(ReadRoomCsv, RefusesAWrongBase) {
    EXPECT_EQ(ErrorsOfRoom("1,2,C1,W3,,"), (Lines{Line("line 2: base \"W3\"", NoBase)}));
    EXPECT_EQ(ErrorsOfRoom("1,2,C1,1W,,"), (Lines{Line("line 2: base \"1W\"", NoBase)}));
    EXPECT_EQ(ErrorsOfRoom("1,2,C1,W11111111,,"),
              (Lines{"line 2: base \"W11111111\" has more than 8 characters"}));
}

TEST(ReadRoomCsv, RefusesALongRoomNumberOrRemark) {
    EXPECT_EQ(ErrorsOfRoom("1,2,C1,,123456789,"),
              (Lines{"line 2: room \"123456789\" has more than 8 characters"}));
    EXPECT_EQ(
        ErrorsOfRoom("1,2,C1,,," + std::string(256, 'x')),
        (Lines{"line 2: remark \"" + std::string(40, 'x') + "...\" has more than 255 characters"}));
}

TEST(ReadRoomCsv, RefusesAWrongNumberOfFields) {
    EXPECT_EQ(ErrorsOfRoom("1,2,C1\n1,2,C1,,,,"),
              (Lines{"line 2: the line has 3 fields and the header 6",
                     "line 3: the line has 7 fields and the header 6"}));
}

TEST(ReadRoomCsv, RefusesTextBehindAClosingQuote) {
    EXPECT_EQ(ErrorsOfRoom("1,2,C1,,\"a\"b,\n-1,2,C1,,,"),
              (Lines{"line 2: room \"ab\" has text behind its closing quote",
                     "line 3: width \"-1\" is negative"}));
}

TEST(ReadRoomCsv, RefusesAQuoteThatIsNeverClosedAtTheLineWhereItsRecordBegins) {
    EXPECT_EQ(ErrorsOfRoom("-1,2,C1,,,\n1,2,C1,,,\"open\n3,4,C1,,,"),
              (Lines{"line 2: width \"-1\" is negative",
                     "line 3: remark \"open 3,4,C1,,, \" has a quote that is never closed"}));
}

TEST(ReadRoomCsv, RefusesInvalidUtf8) {
    for (const std::string bytes : {"\xFF", "\xC3", "\xC0\x80", "\xED\xA0\x80", "\xE6\xB5"}) {
        const Lines errors = ErrorsOfRoom("1,2,C1,,,caf" + bytes);
        ASSERT_EQ(errors.size(), 1U);
        EXPECT_THAT(errors[0], ::testing::StartsWith("line 2: remark \"caf\uFFFD"));
        EXPECT_THAT(
            errors[0],
            ::testing::EndsWith(
                "\" is not valid UTF-8; save it as UTF-8 (\"CSV UTF-8\" in a spreadsheet)"));
    }
}

TEST(ReadRoomCsv, RefusesAnEmptyFile) {
    for (const char* text : {"", "\n\r\n", "\xEF\xBB\xBF"}) {
        EXPECT_EQ(ErrorsOf(text), (Lines{"line 1: the file is empty"}));
    }
}

TEST(ReadRoomCsv, RefusesAMissingRequiredColumn) {
    EXPECT_EQ(ErrorsOf("length,remark\n1,x"), (Lines{"line 1: column \"width\" is missing",
                                                     "line 1: column \"covering\" is missing"}));
}

TEST(ReadRoomCsv, RefusesAnUnknownColumnAndOneWithoutAName) {
    EXPECT_EQ(ErrorsOf("width,length,covering,colour\n1,2,C1,red"),
              (Lines{"line 1: column \"colour\" is unknown"}));
    EXPECT_EQ(ErrorsOf("width,length,covering,\n1,2,C1,"), (Lines{"line 1: a column has no name"}));
}

TEST(ReadRoomCsv, TellsWhichSeparatorStandsInPlaceOfCommas) {
    EXPECT_EQ(ErrorsOf("width;length;covering\n12,5;96;C1\n"),
              (Lines{"line 1: the columns are separated by semicolons; save the file with commas "
                     "between them"}));
    EXPECT_EQ(ErrorsOf("\xEF\xBB\xBFwidth\tlength\tcovering\r\n120\t96\tC1\r\n"),
              (Lines{"line 1: the columns are separated by tabs; save the file with commas between "
                     "them"}));
    EXPECT_EQ(ErrorsOf("width,length,covering,a;b\n1,2,C1,3"),
              (Lines{"line 1: column \"a;b\" is unknown"}));
}

TEST(ReadRoomCsv, RefusesUtf16WithOneMistake) {
    const Lines expected{"line 1: the file is not UTF-8; save it as UTF-8 (\"CSV UTF-8\" in a "
                         "spreadsheet)"};
    EXPECT_EQ(ErrorsOf(std::string("\xFF\xFEw\0,\0\n\0x\0", 10)), expected);
    EXPECT_EQ(ErrorsOf(std::string("\xFE\xFF\0w\0,\0\n\0x", 10)), expected);
}

TEST(ReadRoomCsv, RefusesAColumnThatAppearsTwice) {
    EXPECT_EQ(ErrorsOf("width,length,covering,Width\n1,2,C1,3"),
              (Lines{"line 1: column \"Width\" appears twice"}));
}

TEST(ReadRoomCsv, RefusesAFileWithoutAHeader) {
    EXPECT_EQ(
        ErrorsOf("144,168,C1"),
        (Lines{"line 1: column \"144\" is unknown", "line 1: column \"168\" is unknown",
               "line 1: column \"C1\" is unknown", "line 1: column \"width\" is missing",
               "line 1: column \"length\" is missing", "line 1: column \"covering\" is missing"}));
}

TEST(ReadRoomCsv, RefusesABadlyQuotedHeader) {
    EXPECT_EQ(ErrorsOf("\"width\"x,length,covering\n1,2,C1\n1,2"),
              (Lines{"line 1: field \"widthx\" has text behind its closing quote",
                     "line 3: the line has 2 fields and the header 3"}));
    EXPECT_EQ(ErrorsOf("width,\"length,covering"),
              (Lines{"line 1: field \"length,covering\" has a quote that is never closed"}));
}

TEST(ReadRoomCsv, ChecksTheOtherColumnsEvenWhenTheHeaderIsWrong) {
    EXPECT_EQ(ErrorsOf("width,length,covering,colour\n-1,2,C1,red"),
              (Lines{"line 1: column \"colour\" is unknown", "line 2: width \"-1\" is negative"}));
}

TEST(ReadRoomCsv, RefusesMoreThan501RoomsAtTheFirstTooMany) {
    std::string text = "width,length,covering\n";
    for (int room = 0; room < 501; ++room) {
        text += "1,2,C1\n";
    }
    EXPECT_EQ(RoomsOf(text).size(), 501U);
    EXPECT_EQ(ErrorsOf(text + "1,2,C1\n1,2,C1\n-1,2,C1\n"),
              (Lines{"line 503: The project is full: it can hold 501 rooms.",
                     "line 505: width \"-1\" is negative"}));
}

TEST(ReadRoomCsv, ReportsEveryBadLineOfAFileAndTakesNoRoom) {
    EXPECT_EQ(
        ErrorsOf("remark,covering,width,length\r\n"
                 "fine,C1,144,168\r\n"
                 "two\r\nlines,C1,144,168\r\n"
                 "\"two\r\nlines\",C9,144,168\r\n"
                 ",C1,-4,168\r\n"
                 "\r\n"
                 ",VINYL,40000,12'6 1/2\r\n"
                 "fine,T4,144,168\r\n"),
        (Lines{"line 3: the line has 1 fields and the header 4",
               Line("line 5: remark \"two  lines\"",
                    " holds a line break or another control character; write it in one line"),
               Line("line 5: covering \"C9\"", NoCovering), "line 7: width \"-4\" is negative",
               Line("line 9: covering \"VINYL\"", NoCovering),
               "line 9: width \"40000\" is too large: a size is at most 32767",
               Line("line 9: length \"12'6 1/2\"", NoInches)}));
}

TEST(RoomCsvError, HoldsLineFieldValueAndProblem) {
    const auto errors = ReadRoomCsv("width,length,covering\n1,-7,C1\n", Units::Imperial).Errors;
    EXPECT_EQ(errors, (std::vector<RoomCsvError>{{2, "length", "-7", "is negative"}}));
}

TEST(ErrorText, ShortensALongValueBetweenCharactersAndKeepsOneLine) {
    const std::string bath = "\U0001F6C1";
    std::string value = "x";
    std::string shown = "x";
    for (int i = 0; i < 100; ++i) {
        value += bath;
        shown += i < 19 ? bath : "";
    }
    EXPECT_EQ(ErrorText({3, "remark", value, "is wrong"}),
              "line 3: remark \"" + shown + "...\" is wrong");
    EXPECT_EQ(ErrorText({3, "remark", "a\r\nb\tc", "is wrong"}),
              "line 3: remark \"a  b c\" is wrong");
}

TEST(WriteRoomCsv, WritesAHeaderAndOneLineForEachRoom) {
    EXPECT_EQ(WriteRoomCsv({{150, 168, 1, 5, "101", "Front, \"big\""}, {0, 9, 11, 0, "", ""}}),
              "width,length,covering,base,room,remark\r\n"
              "150,168,CARPET-2,W2L1,101,\"Front, \"\"big\"\"\"\r\n"
              "0,9,TILE-4,,,\r\n");
    EXPECT_EQ(WriteRoomCsv({}), "width,length,covering,base,room,remark\r\n");
}

TEST(WriteRoomCsv, MarksWhatASpreadsheetWouldTakeForAFormula) {
    EXPECT_EQ(WriteRoomCsv({{1, 2, 0, 0, "=1", "+1"},
                            {1, 2, 0, 0, "-1", "@SUM(A1)"},
                            {1, 2, 0, 0, "'1", "a=1"},
                            {1, 2, 0, 0, "'", " =1"}}),
              "width,length,covering,base,room,remark\r\n"
              "1,2,CARPET-1,,'=1,'+1\r\n"
              "1,2,CARPET-1,,'-1,'@SUM(A1)\r\n"
              "1,2,CARPET-1,,''1,a=1\r\n"
              "1,2,CARPET-1,,'', =1\r\n");
}

TEST(WriteRoomCsv, WritesEachRoomInOneLineAndAFaultOfATextAsItIsShown) {
    EXPECT_EQ(WriteRoomCsv({{1, 2, 0, 0, "a\tb", "two\r\nlines"}, {1, 2, 0, 0, "\uFFFE", "\xFF"}}),
              "width,length,covering,base,room,remark\r\n"
              "1,2,CARPET-1,,a\uFFFDb,two\uFFFD\uFFFDlines\r\n"
              "1,2,CARPET-1,,\uFFFD,\uFFFD\r\n");
}

/// A text that may begin as none should.
std::string RandomStart(std::mt19937& random) {
    static constexpr std::array Starts{"",   "=",    "+",   "-",      "@",    "'",  "''",
                                       "'=", "\x1B", "\r=", "\uFFFE", "\xFF", "-1", "@'"};
    return Starts[static_cast<std::size_t>(Below(random, Starts.size()))];
}

TEST(WriteRoomCsv, IsReadBackAsItIsShownWhateverTheRooms) {
    for (unsigned seed = 1; seed <= 300; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        Rooms rooms;
        for (int count = Below(random, 20); count > 0; --count) {
            rooms.push_back(
                {static_cast<Integer>(Below(random, 32768)),
                 static_cast<Integer>(Below(random, 32768)), static_cast<Byte>(Below(random, 12)),
                 static_cast<Byte>(Below(random, 9)), RandomStart(random) + RandomText(random, 6),
                 RandomStart(random) + RandomText(random, 253)});
        }
        Rooms shown = rooms;
        for (Room& room : shown) {
            room.Number = ShownText(room.Number);
            room.Remark = ShownText(room.Remark);
        }
        const std::string text = WriteRoomCsv(rooms);
        for (const Units units : {Units::Imperial, Units::Metric}) {
            EXPECT_EQ(RoomsOf(text, units), shown);
        }
        EXPECT_EQ(WriteRoomCsv(RoomsOf(text)), text);
    }
}

TEST(WriteRoomCsv, WritesRoomsThatCannotBeEnteredSoThatReadingNamesThem) {
    EXPECT_EQ(
        ErrorsOf(WriteRoomCsv({{-1, 2, 12, 0, "123456789", ""}})),
        (Lines{"line 2: width \"-1\" is negative", Line("line 2: covering \"TILE-5\"", NoCovering),
               "line 2: room \"123456789\" has more than 8 characters"}));
    EXPECT_EQ(RoomsOf(WriteRoomCsv({{1, 2, 0, 9, "", ""}}))[0].Base, 0);
}

} // namespace
} // namespace tarn
