#include "base/Text.h"
#include "files/RoomCsv.h"
#include "files/SpokenLanguage.h"
#include "files/TextEncoding.h"
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
    EXPECT_EQ(reading.Errors.front().Problem, "column \"width\" appears twice");
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

TEST(ReadRoomCsv, FindsSemicolonsAndTabs) {
    EXPECT_EQ(RoomsOf("width;length;covering;remark\n12'6\";96;C1;a, b\n"),
              (Rooms{{150, 96, 0, 0, "", "a, b"}}));
    EXPECT_EQ(RoomsOf("\xEF\xBB\xBFwidth\tlength\tcovering\tremark\r\n120\t96\tC1\ta; b, c\r\n"),
              (Rooms{{120, 96, 0, 0, "", "a; b, c"}}));
    EXPECT_EQ(RoomsOf("\"width\";\"length\";\"covering\";\"remark\"\n1;2;C1;\"a;\"\"b\"\n"),
              (Rooms{{1, 2, 0, 0, "", "a;\"b"}}));
    EXPECT_EQ(ErrorsOf("width,length,covering,a;b\n1,2,C1,3"),
              (Lines{"line 1: column \"a;b\" is unknown"}));
    EXPECT_EQ(ErrorsOf("width;length;covering;a,b,c,d,e,f\n1;2;C1;3"),
              (Lines{"line 1: column \"a,b,c,d,e,f\" is unknown"}))
        << "known headings count before columns";
    EXPECT_EQ(ErrorsOf("a;b,c\n1;2,3").front(), "line 1: column \"a;b\" is unknown")
        << "of equals the comma";
}

TEST(ReadRoomCsv, TakesTheSeparatorThatAFirstLineNames) {
    EXPECT_EQ(RoomsOf("sep=;\r\nwidth;length;covering\r\n1;2;C1\r\n"),
              (Rooms{{1, 2, 0, 0, "", ""}}));
    EXPECT_EQ(RoomsOf("\xEF\xBB\xBFSEP=\t\nwidth\tlength\tcovering\n1\t2\tC1\n"),
              (Rooms{{1, 2, 0, 0, "", ""}}));
    EXPECT_EQ(ErrorsOf("sep=,\nwidth,length,covering\n-1,2,C1\n"),
              (Lines{"line 3: width \"-1\" is negative"}));
    EXPECT_EQ(ErrorsOf("sep=;\n"), (Lines{"line 1: the file is empty"}));
    EXPECT_EQ(ErrorsOf("sep=|\nwidth|length|covering\n1|2|C1\n").front(),
              "line 1: column \"sep=|\" is unknown");
}

TEST(ReadRoomCsv, LeavesOutLinesOfSeparatorsAlone) {
    EXPECT_EQ(RoomsOf("width;length;covering\n;;\n1;2;C1\n;;\n;;;\n"),
              (Rooms{{1, 2, 0, 0, "", ""}}));
    EXPECT_EQ(ErrorsOf("width,length,covering\n,,\n, ,\n"),
              (Lines{"line 3: width is missing", "line 3: length \" \" is missing",
                     "line 3: covering is missing"}));
}

/// A text in UTF-16, with a mark.
std::string Utf16(std::u16string_view text, bool bigEndian) {
    std::string bytes;
    const std::u16string marked = std::u16string(u"\uFEFF").append(text);
    for (const char16_t unit : marked) {
        const std::array<char, 2> pair{static_cast<char>(unit >> 8U), static_cast<char>(unit)};
        bytes += pair[bigEndian ? 0 : 1];
        bytes += pair[bigEndian ? 1 : 0];
    }
    return bytes;
}

TEST(ReadRoomCsv, ReadsUtf16WithAMarkInEitherOrder) {
    for (const bool bigEndian : {false, true}) {
        EXPECT_EQ(
            RoomsOf(Utf16(u"width\tlength\tcovering\tremark\r\n1\t2\tC1\tKüche 浴室 \U0001F6C1"
                          u"\r\n",
                          bigEndian)),
            (Rooms{{1, 2, 0, 0, "", "Küche 浴室 \U0001F6C1"}}));
        std::u16string half = u"width,length,covering,remark\n1,2,C1,a";
        half += char16_t{0xD83D};
        half += u"b\n";
        EXPECT_EQ(ErrorsOf(Utf16(half, bigEndian)),
                  (Lines{bigEndian ? "line 2: column 9: the byte 0xD8 0x3D is none of UTF-16BE"
                                   : "line 2: column 9: the byte 0x3D 0xD8 is none of UTF-16LE"}));
    }
    EXPECT_EQ(ErrorsOf("\xFF\xFE"), (Lines{"line 1: the file is empty"}));
    EXPECT_EQ(ErrorsOf(Utf16(u"width,length,covering\n", false) + "x"),
              (Lines{"line 2: column 1: the byte 0x78 is none of UTF-16LE"}));
}

TEST(ReadRoomCsv, ReadsTheEncodingThatIsNamed) {
    const RoomCsvReading reading = ReadRoomCsv("width;length;covering;remark\n1;2;C1;K\xFC"
                                               "che \x80\n",
                                               Units::Imperial, "windows-1252");
    EXPECT_EQ(reading.Rooms, (Rooms{{1, 2, 0, 0, "", "Küche €"}}));
    const RoomCsvReading japanese =
        ReadRoomCsv("width,length,covering,room\n1,2,C1,\x95\x94\n", Units::Imperial, "Shift_JIS");
    EXPECT_EQ(japanese.Rooms, (Rooms{{1, 2, 0, 0, "部", ""}}));
    EXPECT_THROW(ReadRoomCsv("width,length,covering\n", Units::Imperial, "klingon"),
                 UnknownEncoding);
}

TEST(ReadRoomCsv, TellsBytesThatAreNoneOfTheEncodingByLineAndColumn) {
    const auto errorsIn = [](std::string_view text, const char* encoding) {
        return MistakeLines(ReadRoomCsv(text, Units::Imperial, encoding));
    };
    EXPECT_EQ(
        errorsIn("width,length,covering,remark\r\n1,2,C1,\xE9\x81\r\n3,-4,C1,\x9D", "windows-1252"),
        (Lines{"line 2: column 9: the byte 0x81 is none of windows-1252",
               "line 3: column 9: the byte 0x9D is none of windows-1252"}))
        << "and nothing else";
    EXPECT_EQ(errorsIn("width,length,covering,remark\n1,2,C1,\xC3\xA9\xFF", "utf-8"),
              (Lines{"line 2: column 9: the byte 0xFF is none of utf-8"}));
    const Lines many = errorsIn("width\n" + std::string(25, '\x81'), "windows-1252");
    ASSERT_EQ(many.size(), 21U);
    EXPECT_EQ(many[19], "line 2: column 20: the byte 0x81 is none of windows-1252");
    EXPECT_EQ(many[20], "and 5 more mistakes");
}

TEST(ReadRoomCsv, RefusesFilesOfOtherKindsWithOneMistake) {
    using namespace std::string_literals;
    const auto refusal = [](const std::string& kind) {
        return Lines{"line 1: the file is " + kind +
                     "; open it in a spreadsheet and save it as CSV"};
    };
    EXPECT_EQ(ErrorsOf("PK\x03\x04\x14\0\x06\0 [Content_Types].xml"s),
              refusal("an Excel workbook (XLSX)"));
    EXPECT_EQ(ErrorsOf("PK\x03\x04\x14\0 xl/workbook.xml"s), refusal("an Excel workbook (XLSX)"));
    EXPECT_EQ(
        ErrorsOf("PK\x03\x04\x14\0 mimetypeapplication/vnd.oasis.opendocument.spreadsheetPK"s),
        refusal("an OpenDocument spreadsheet (ODS)"));
    EXPECT_EQ(ErrorsOf("PK\x03\x04 photo.jpg"),
              refusal("an archive (ZIP), as spreadsheets such as XLSX and ODS are"));
    EXPECT_EQ(ErrorsOf("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1\0\0"s),
              refusal("an older Excel workbook (XLS) or another Office file"));
    EXPECT_EQ(ErrorsOf("%PDF-1.7\n"), refusal("a PDF document"));
    EXPECT_EQ(ErrorsOf("PK,width,length,covering\n1,2,3,C1"),
              (Lines{"line 1: column \"PK\" is unknown"}));
}

TEST(ReadRoomCsv, TakesHeadingsAsTheyAreUsuallyWritten) {
    EXPECT_EQ(RoomsOf("Notes; Floor coverings ;LENGTHS;Room No.;Width;Wall base\nx;t1;2;y;1;w2\n"),
              (Rooms{{1, 2, 8, 2, "y", "x"}}));
}

TEST(ReadRoomCsv, ReadsSizesInTheUnitOfTheirHeading) {
    EXPECT_EQ(RoomsOf("Width (ft),Length (in),covering\n12.5,150,C1\n12'6\",12' 6\",C1\n"
                      "12,12.5ft,C1\n.5ft,0,C1\n"),
              (Rooms{{150, 150, 0, 0, "", ""},
                     {150, 150, 0, 0, "", ""},
                     {144, 150, 0, 0, "", ""},
                     {6, 0, 0, 0, "", ""}}));
    EXPECT_EQ(RoomsOf("Width (m),Length [cm],covering\n3.45,420,C1\n3,3.66m,C1\n", Units::Metric),
              (Rooms{{345, 420, 0, 0, "", ""}, {300, 366, 0, 0, "", ""}}));
    EXPECT_EQ(ErrorsOf("Width (ft),Length (ft),covering\n3.5m,12 or so,C1\n-1,2731,C1\n1e2,,C1\n"
                       "9999999999,1 2,C1\n"),
              (Lines{"line 2: width \"3.5m\" is not a size such as 12.5 or 12'6\"",
                     "line 2: length \"12 or so\" is not a size such as 12.5 or 12'6\"",
                     "line 3: width \"-1\" is negative",
                     "line 3: length \"2731\" is too large: a size is at most 32767",
                     "line 4: width \"1e2\" is not a size such as 12.5 or 12'6\"",
                     "line 4: length is missing",
                     "line 5: width \"9999999999\" is too large: a size is at most 32767",
                     "line 5: length \"1 2\" is not a size such as 12.5 or 12'6\""}));
    EXPECT_EQ(ErrorsOf("Width (m),length,covering\n12ft,1,C1\n", Units::Metric),
              (Lines{"line 2: width \"12ft\" is not a size such as 3.45 or 3.45m"}));
}

TEST(ReadRoomCsv, RoundsSizesAsTheScreensDoAndNotesIt) {
    const RoomCsvReading reading =
        ReadRoomCsv("Width (ft),Length (ft),covering\n12.33,12.125,C1\n12.333333333333334,12,C1\n",
                    Units::Imperial);
    EXPECT_EQ(reading.Rooms, (Rooms{{148, 146, 0, 0, "", ""}, {148, 144, 0, 0, "", ""}}))
        << "halves to the even one";
    Lines notes;
    for (const RoomCsvError& note : reading.Notes) {
        notes.push_back(ErrorText(note));
    }
    EXPECT_EQ(notes, (Lines{"line 2: width \"12.33\" is kept as 12'4\"",
                            "line 2: length \"12.125\" is kept as 12'2\""}))
        << "12'4\", as a spreadsheet computes it, is not told";
    const RoomCsvReading metric =
        ReadRoomCsv("Width (m),Length (m),covering\n3.4499999999999997,3.456,C1\n", Units::Metric);
    EXPECT_EQ(metric.Rooms, (Rooms{{345, 346, 0, 0, "", ""}}));
    ASSERT_EQ(metric.Notes.size(), 1U);
    EXPECT_EQ(ErrorText(metric.Notes[0]), "line 2: length \"3.456\" is kept as 346 cm");
    std::string many = "Width (ft),length,covering\n";
    for (int room = 0; room < 30; ++room) {
        many += "0.1,1,C1\n";
    }
    EXPECT_EQ(ReadRoomCsv(many, Units::Imperial).Notes.size(), 20U);
    EXPECT_EQ(ReadRoomCsv(many, Units::Imperial).MoreNotes, 10);
    EXPECT_TRUE(ReadRoomCsv(many + "x,1,C1\n", Units::Imperial).Notes.empty()) << "refused";
}

TEST(ReadRoomCsv, RefusesUnitsOfTheOtherSystemAndThoseInWhichNoSizeIsRead) {
    EXPECT_EQ(
        ErrorsOf("Width (m),length,covering\n3,3,C1\n").front(),
        "line 1: column \"Width (m)\" is in metric, and the rooms are read in feet and inches; "
        "read them with metric");
    EXPECT_EQ(ErrorsOf("width,Length (ft),covering\n3,3,C1\n", Units::Metric).front(),
              "line 1: column \"Length (ft)\" is in feet or inches, and the rooms are read in "
              "metric; read them without metric");
    EXPECT_EQ(
        ErrorsOf("Width (mm),length,covering\n3000,3,C1\n", Units::Metric).front(),
        "line 1: column \"Width (mm)\" has a unit in which no size is read; give the sizes in "
        "ft, in, m or cm");
}

TEST(ReadRoomCsv, RefusesADecimalCommaByName) {
    EXPECT_EQ(
        ErrorsOf("Width (m);Length (m);covering\n3,45;-4,5;C1\n1,200;1,x;C1\n", Units::Metric),
        (Lines{"line 2: width \"3,45\" has a decimal comma: write 3.45",
               "line 2: length \"-4,5\" has a decimal comma: write 4.5",
               "line 3: width \"1,200\" has a comma: write 1.200, or 1200",
               "line 3: length \"1,x\" is not a size such as 3.45 or 3.45m"}));
    EXPECT_EQ(ErrorsOf("width,length,covering\n\"3,45\",1,C1\n", Units::Metric),
              (Lines{"line 2: width \"3,45\" has a decimal comma: write 3.45 below a heading with "
                     "its unit, such as width (m)"}));
    EXPECT_EQ(ErrorsOf("width;length;covering\n12,5;96;C1\n"),
              (Lines{"line 2: width \"12,5\" has a decimal comma: write 12.5 below a heading with "
                     "its unit, such as width (ft)"}));
}

Rooms PastedRooms(std::string_view text, Units units = Units::Imperial) {
    const RoomCsvReading reading = ReadPastedRooms(text, units);
    EXPECT_THAT(MistakeLines(reading), ::testing::IsEmpty());
    return reading.Rooms;
}

Lines PasteErrors(std::string_view text, Units units = Units::Imperial,
                  std::size_t most = RoomCapacity) {
    const RoomCsvReading reading = ReadPastedRooms(text, units, most);
    EXPECT_TRUE(reading.Rooms.empty());
    return MistakeLines(reading);
}

TEST(ReadPastedRooms, TakesTheUsualColumnsWithoutHeadings) {
    EXPECT_EQ(PastedRooms("150\t12'0\"\tC1\tW1\t101\tHall, upper\n9\t8\tT4\t\t\t\n"),
              (Rooms{{150, 144, 0, 1, "101", "Hall, upper"}, {9, 8, 11, 0, "", ""}}));
    EXPECT_EQ(PastedRooms("1\t2\tC1"), (Rooms{{1, 2, 0, 0, "", ""}}));
    EXPECT_EQ(PastedRooms("1;2;C1\r\n3;4;C2\r\n"),
              (Rooms{{1, 2, 0, 0, "", ""}, {3, 4, 1, 0, "", ""}}));
    EXPECT_EQ(PastedRooms("1\t2\tC1\t\tnote\tcarpet\n"), (Rooms{{1, 2, 0, 0, "note", "carpet"}}))
        << "headings have those of the sizes among them";
}

TEST(ReadPastedRooms, TakesColumnsByTheirHeadings) {
    EXPECT_EQ(PastedRooms("Remark\tWidth (m)\tLength (m)\tType\nBad\t3.45\t4\tC2\n", Units::Metric),
              (Rooms{{345, 400, 1, 0, "", "Bad"}}));
    EXPECT_EQ(PasteErrors("Width\tCovering\n1\tC1\n"),
              (Lines{"line 1: column \"length\" is missing"}));
}

TEST(ReadPastedRooms, TellsWhatIsWrongByLine) {
    EXPECT_EQ(
        PasteErrors("1\t2\tC1\n3,5\t2\tC1\n", Units::Metric),
        (Lines{"line 2: width \"3,5\" has a decimal comma: write 3.5 below a heading with its "
               "unit, such as width (m)"}));
    EXPECT_EQ(PasteErrors("3,45\t2,80\tC1\n", Units::Metric).size(), 2U) << "tabs, not commas";
    EXPECT_EQ(
        PasteErrors("Living room"),
        (Lines{"line 1: there are no headings, and 1 column: without headings they are width, "
               "length, covering, base, room, remark, of which the first 3 are needed"}));
    EXPECT_EQ(PasteErrors("1\t2\t3\t4\t5\t6\t7").size(), 1U);
    EXPECT_EQ(PasteErrors(""), (Lines{"line 1: there is no text to paste"}));
    EXPECT_EQ(PasteErrors("1\t2\tC1\n1\t2\tC1\n\n1\t2\tC1\n", Units::Imperial, 2),
              (Lines{"line 4: The project is full: it can hold 501 rooms."}));
    EXPECT_EQ(PasteErrors(std::string(MaxRoomCsvBytes + 1, 'x')),
              (Lines{"line 1: the text has more than 16 MB"}));
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
    EXPECT_EQ(errors,
              (std::vector<RoomCsvError>{{2, "length", "-7", "length \"-7\" is negative"}}));
    const auto heading = ReadRoomCsv("width,length,covering,colour\n", Units::Imperial).Errors;
    EXPECT_EQ(heading,
              (std::vector<RoomCsvError>{{1, "", "colour", "column \"colour\" is unknown"}}));
}

TEST(ErrorText, ShortensALongValueBetweenCharactersAndKeepsOneLine) {
    const std::string bath = "\U0001F6C1";
    std::string value = "x";
    std::string shown = "x";
    for (int i = 0; i < 100; ++i) {
        value += bath;
        shown += i < 19 ? bath : "";
    }
    EXPECT_EQ(ErrorsOf("width,length,covering\n1,2," + value + "\n"),
              (Lines{Line("line 2: covering \"" + shown + "...\"", NoCovering)}));
    EXPECT_EQ(ErrorsOf("width,length,covering\n1,2,\"a\r\nb\tc\"\n"),
              (Lines{Line("line 2: covering \"a  b c\"", NoCovering)}));
    EXPECT_EQ(ErrorsOf("width,length," + value + "\n").front(),
              "line 1: column \"" + shown + "...\" is unknown");
}

// --- languages ---

/// What is read, and in which units and encoding.
struct Input {
    std::string Text;
    Units In = Units::Imperial;
    const char* Encoding = "";
};

/// Files that are wrong in every way there is.
std::vector<Input> WrongFiles() {
    const std::string header = "width,length,covering,base,room,remark\n";
    std::string many = "width,length,covering\n";
    for (std::size_t line = 0; line <= MaxRoomCsvErrors; ++line) {
        many += "-1,2,C1\n";
    }
    std::string full = "width,length,covering\n";
    for (std::size_t room = 0; room <= RoomCapacity; ++room) {
        full += "1,2,C1\n";
    }
    return {
        {header + "-1,,VINYL,X,123456789,\"a\nb\"\n40000,x,,123456789,,\xEF\xBF\xBE\n"
                  "\"1,5\",\"1,200\",C1,,,\xFF\n1,2\n\"a\"b,1,C1,,,\n1,2,C1,,,\"a\n"},
        {"width (m),colour,,Width,length (mm)\n"},
        {"width (ft),length,covering\n1,2,C1\n", Units::Metric},
        {"width (m),length,covering\nx,1.5,C1\n\"3,45\",\"3,45\",C1\n", Units::Metric},
        {"width (ft),length,covering\nx,1,C1\n"},
        {many},
        {full},
        {""},
        {"\"width,length"},
        {"\"\"x"},
        {"width,length,covering" + std::string(70, ',')},
        {"width\n\xFF", Units::Imperial, "utf-8"},
        {"PK\x03\x04 xl/"},
        {"PK\x03\x04 application/vnd.oasis.opendocument.spreadsheet"},
        {"PK\x03\x04 photo.jpg"},
        {"\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1"},
        {"%PDF-1.7"},
    };
}

/// All that is said of the wrong files and pastes, and of sizes that are rounded.
Lines AllThatIsSaid() {
    Lines all;
    const auto add = [&all](const RoomCsvReading& reading) {
        for (const std::string& line : MistakeLines(reading)) {
            all.push_back(line);
        }
        for (const RoomCsvError& note : reading.Notes) {
            all.push_back(ErrorText(note));
        }
    };
    for (const Input& input : WrongFiles()) {
        add(ReadRoomCsv(input.Text, input.In, input.Encoding));
    }
    add(ReadRoomCsv("width (ft),length,covering\n12.33,1,C1\n", Units::Imperial));
    add(ReadRoomCsv("width (m),length,covering\n3.456,1,C1\n", Units::Metric));
    add(ReadPastedRooms("", Units::Imperial));
    add(ReadPastedRooms("1", Units::Imperial));
    add(ReadPastedRooms("1\t2", Units::Imperial));
    add(ReadPastedRooms(std::string(MaxRoomCsvBytes + 1, 'x'), Units::Imperial));
    return all;
}

/// Whether every pair of brackets of a text closes, and the last one behind all else.
bool IsInBrackets(std::string_view text) {
    long depth = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        depth += text[i] == '[' ? 1 : text[i] == ']' ? -1 : 0;
        if (depth <= 0 && i + 1 < text.size()) {
            return false;
        }
    }
    return depth == 0 && !text.empty();
}

TEST(RoomCsvTexts, AreAllSaidInTheLanguageInForce) {
    const Lines english = AllThatIsSaid();
    EXPECT_GT(english.size(), 70U);
    const testing::SpokenLanguage spoken("pseudo");
    const Lines translated = AllThatIsSaid();
    ASSERT_EQ(translated.size(), english.size());
    const std::string line = testing::PseudoText("line %1: %2");
    const std::size_t behind = line.size() - line.find("%2") - 2;
    for (std::size_t i = 0; i < english.size(); ++i) {
        const std::string& text = translated[i];
        EXPECT_TRUE(IsInBrackets(text)) << text;
        if (english[i].starts_with("line ")) { // and so is what is said of it
            const std::size_t sentence = text.find(": ") + 2;
            ASSERT_GT(text.size(), sentence + behind);
            EXPECT_TRUE(IsInBrackets(text.substr(sentence, text.size() - behind - sentence)))
                << text;
        }
    }
}

TEST(RoomCsvTexts, NameWhatIsReadInEveryLanguage) {
    for (const char* language : {"de", "es"}) {
        const testing::SpokenLanguage spoken(language);
        const std::string covering = ErrorsOfRoom("1,2,VINYL,,,").front();
        EXPECT_THAT(covering, ::testing::HasSubstr("CARPET-1"));
        EXPECT_THAT(covering, ::testing::HasSubstr("TILE-4"));
        EXPECT_THAT(
            ErrorsOf("width;length;covering\n12,5;96;C1\n").front(),
            ::testing::AllOf(::testing::HasSubstr("12.5"), ::testing::HasSubstr("width (ft)")));
        EXPECT_EQ(RoomsOf("Width (ft);Length (ft);covering\n12.5;12'6\";carpet-2\n"),
                  (Rooms{{150, 150, 1, 0, "", ""}}));
    }
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
