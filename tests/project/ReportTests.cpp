#include "base/RunTimeError.h"
#include "project/ReportTesting.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tarn {
namespace {

using testing::ProjectWith;
using testing::RowOf;
using testing::RowsOf;

std::string WithCrLf(std::string_view text) {
    std::string result;
    for (const char c : text) {
        result += c == '\n' ? "\r\n" : std::string(1, c);
    }
    return result;
}

// clang-format off
TEST(MakeReport, ListsAnImperialProjectToTheCharacter) {
    const Project project = ProjectWith({{150, 168, 0, 0, "101", "Front room"},
                                         {120, 144, 7, 5, "12", ""},
                                         {9, 8, 9, 1, "", "Closet"},
                                         {1211, 1319, 2, 6, "GROUND-7", "Hall, \"long\""},
                                         {0, 150, 0, 0, "9", "not cut"}});
    EXPECT_EQ(MakeReport(project, Units::Imperial, "11/21/2031").Text(), WithCrLf(
"\n"
"                                                       ENTERED DATA REPORT\n"
"\n"
"     11/21/2031\n"
"     PROJECT NAME:   MAPLE HOUSE                   \n"
"\n"
" ITEM                                      SQ.     CARPET             BASE         ROOM\n"
"   No.      WIDTH   LENGTH      Yrds     /TILE   BASE     LENGTH     No.       REMARK\n"
"===========================================================================\n"
"    1         12'6\"  X  14'0\"           19.44       C1               101      Front room    \n"
"    2         10'0\"  X  12'0\"           13.33       C8    W2L1        32'3\"      12           \n"
"    3         0'9\"    X    0'8\"              0.06       T2    W1        1'0\"                 Closet    \n"
"    4         100'11\"  X  109'11\"   1232.49     C3    L2        220'0\"    GROUND-7 Hall, \"long\"    \n"
"    5         0'0\"    X    12'6\"             0.00       C1               9        not cut    \n"));
}

TEST(MakeReport, ListsAMetricProjectToTheCharacter) {
    const Project project = ProjectWith({{350, 420, 1, 5, "3", ""},
                                         {95, 1250, 11, 0, "Zimmer 9", "Küche"},
                                         {7, 12345, 7, 1, "A", "x"},
                                         {32767, 32767, 0, 0, "", "Halle"}},
                                        "EINFAMILIENHAUS MÜLLER, ERLENGRUND");
    EXPECT_EQ(MakeReport(project, Units::Metric, "21.11.31").Text(), WithCrLf(
"\n"
"                                                       ENTERED DATA REPORT\n"
"\n"
"     21.11.31\n"
"     PROJECT NAME:   EINFAMILIENHAUS MÜLLER, ERLENGRUND\n"
"\n"
" ITEM                                      SQ.     CARPET             BASE         ROOM\n"
"   No.      WIDTH   LENGTH     METERS    /TILE   BASE     LENGTH     No.       REMARK\n"
"===========================================================================\n"
"    1         350  X  420    14.70      C2    W2L1         1122        3            \n"
"    2         95   X   1250   11.88      T4               Zimmer 9 Küche    \n"
"    3         7    X    12345  8.64       C8    W1           9           A        x    \n"
"    4         32767  X  32767  107367.63  C1                        Halle    \n"));
}

TEST(MakeReport, ListsEveryCoveringAndBaseToTheCharacter) {
    const Project project = ProjectWith({{420, 366, 0, 0, "1", "Woonkamer"},
                                         {300, 250, 1, 1, "2", "Keuken"},
                                         {90, 1205, 2, 2, "3", "Gang"},
                                         {8, 60, 3, 3, "4", ""},
                                         {400, 400, 4, 4, "5", "Slaapkamer 1"},
                                         {275, 310, 5, 5, "6", "Slaapkamer 2"},
                                         {1000, 2000, 6, 6, "7", "Zaal"},
                                         {99, 99, 7, 7, "8", ""},
                                         {350, 420, 8, 8, "9", "Serre"},
                                         {120, 180, 9, 0, "10", "Bad"},
                                         {100, 50, 10, 3, "11", "wc"},
                                         {600, 300, 11, 6, "BEL-12", "Garage"}},
                                        "KANAALHUIS");
    EXPECT_EQ(MakeReport(project, Units::Metric, "21-11-31").Text(), WithCrLf(
"\n"
"                                                       ENTERED DATA REPORT\n"
"\n"
"     21-11-31\n"
"     PROJECT NAME:   KANAALHUIS                    \n"
"\n"
" ITEM                                      SQ.     CARPET             BASE         ROOM\n"
"   No.      WIDTH   LENGTH     METERS    /TILE   BASE     LENGTH     No.       REMARK\n"
"===========================================================================\n"
"    1         420  X  366    15.37      C1               1        Woonkamer    \n"
"    2         300  X  250    7.50       C2    W1           303         2        Keuken    \n"
"    3         90   X   1205   10.85      C3    W2           183         3        Gang    \n"
"    4         8    X    60     0.05       C4    L1           63          4            \n"
"    5         400  X  400    16.00      C5    W1L1         801         5        Slaapkamer 1    \n"
"    6         275  X  310    8.53       C6    W2L1         861         6        Slaapkamer 2    \n"
"    7         1000  X  2000   200.00     C7    L2           4002        7        Zaal    \n"
"    8         99   X   99     0.98       C8    W1L2         300         8            \n"
"    9         350  X  420    14.70      T1    W2L2         1542        9        Serre    \n"
"    10        120  X  180    2.16       T2               10       Bad    \n"
"    11        100  X  50     0.50       T3    L1           51          11       wc    \n"
"    12        600  X  300    18.00      T4    L2           603         BEL-12   Garage    \n"));
}

TEST(MakeReport, EndsAfterTheRuleWhenThereAreNoRooms) {
    EXPECT_EQ(MakeReport(ProjectWith({}, ""), Units::Imperial, "").Text(), WithCrLf(
"\n"
"                                                       ENTERED DATA REPORT\n"
"\n"
"     \n"
"     PROJECT NAME:                                 \n"
"\n"
" ITEM                                      SQ.     CARPET             BASE         ROOM\n"
"   No.      WIDTH   LENGTH      Yrds     /TILE   BASE     LENGTH     No.       REMARK\n"
"===========================================================================\n"));
}

TEST(MakeReport, OfAMetric350By420RoomWithW2L1ShowsItsSquareMetresAndRaisedBaseLength) {
    EXPECT_EQ(RowOf({350, 420, 1, 5, "", ""}, Units::Metric),
              "    1         350  X  420    14.70      C2    W2L1         1122                     \r\n");
}

TEST(MakeReport, OfAnImperial150By168RoomHasElevenBlanksBeforeItsSquareYards) {
    EXPECT_EQ(RowOf({150, 168, 0, 0, "", ""}, Units::Imperial),
              "    1         12'6\"  X  14'0\"           19.44       C1                            \r\n");
}

TEST(MakeReport, ShowsT2ForTileCodeNine) {
    EXPECT_EQ(RowOf({100, 100, 9, 0, "", ""}, Units::Metric),
              "    1         100  X  100    1.00       T2                            \r\n");
}

TEST(MakeReport, PutsTheRoomNumberUnderTheBaseLengthWhenThereIsNoBase) {
    const std::string without = RowOf({100, 100, 0, 0, "no", ""}, Units::Metric);
    const std::string with = RowOf({100, 100, 0, 1, "no", ""}, Units::Metric);
    EXPECT_EQ(without, "    1         100  X  100    1.00       C1               no           \r\n");
    EXPECT_EQ(with, "    1         100  X  100    1.00       C1    W1           102         no           \r\n");
}

TEST(MakeReport, ShowsTheBaseLengthOfAnUnknownBaseCodeWithoutItsText) {
    EXPECT_EQ(RowOf({100, 100, 0, 9, "", ""}, Units::Metric),
              "    1         100  X  100    1.00       C1                 303                      \r\n");
}

TEST(MakeReport, HoldsTheAreaAsASingle) {
    EXPECT_EQ(RowOf({30001, 30035, 0, 0, "", ""}, Units::Metric), // 901080035 is rounded to 901080064
              "    1         30001  X  30035  90108.01   C1                            \r\n");
}

TEST(MakeReport, PadsNothingWhereATextIsTooLong) {
    EXPECT_EQ(RowOf({100, 100, 0, 0, "0123456789", "x"}, Units::Metric),
              "    1         100  X  100    1.00       C1               0123456789x    \r\n");
    EXPECT_EQ(RowOf({32759, 32759, 0, 0, "", ""}, Units::Imperial), // 33 - 2 × 17 blanks behind the length
              "    1         2729'11\"  X  2729'11\"828049.43  C1                            \r\n");
}
// clang-format on

TEST(MakeReport, CountsCharactersNotBytes) {
    EXPECT_EQ(RowOf({100, 100, 0, 0, "Büro", "x"}, Units::Metric),
              "    1         100  X  100    1.00       C1               Büro     x    \r\n");
    const std::string report = MakeReport(ProjectWith({}, "浴室"), Units::Metric, "").Text();
    EXPECT_NE(report.find("NAME:   浴室" + std::string(28, ' ') + "\r\n"), std::string::npos);
}

TEST(MakeReport, NamesTheRoomWhoseBaseLengthOverflows) {
    for (const Units shown : {Units::Imperial, Units::Metric}) {
        const Project project =
            ProjectWith({{100, 100, 0, 8, "", ""}, {20000, 20000, 0, 8, "", ""}});
        try {
            MakeReport(project, shown, "");
            FAIL() << "no overflow";
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.Number(), OverflowNumber);
            EXPECT_EQ(error.Advice(), std::string("The wall base of room 2 is longer than 32767 ") +
                                          (shown == Units::Metric ? "centimetres" : "inches") +
                                          ": correct its size or its base.");
        }
    }
}

TEST(MakeReport, EndsEveryLineWithBothCharacters) {
    const std::string report =
        MakeReport(ProjectWith(std::vector<Room>(12)), Units::Imperial, "x").Text();
    int lines = 0;
    for (std::size_t i = 0; i < report.size(); ++i) {
        if (report[i] == '\n') {
            ASSERT_GT(i, 0U);
            EXPECT_EQ(report[i - 1], '\r');
            ++lines;
        }
    }
    EXPECT_EQ(lines, 9 + 12);
    EXPECT_EQ(report.substr(report.size() - 2), "\r\n");
}
TEST(MakeReport, HasTheHeadingThatItsConstantsTell) {
    const std::string report =
        MakeReport(ProjectWith({{100, 100, 0, 0, "", ""}}), Units::Metric, "").Text();
    const std::string rows = RowsOf(report); // skips nine lines
    EXPECT_EQ(ReportHeadingLines, 9U);
    EXPECT_EQ(rows.substr(0, 5), "    1");
    EXPECT_EQ(ReportColumnHeadLines, 3U);
    std::size_t widest = 0;
    for (std::size_t begin = 0; begin < report.size();) {
        const std::size_t end = report.find("\r\n", begin);
        if (report.substr(begin, 5) != "    1") {
            widest = std::max(widest, end - begin);
        }
        begin = end + 2;
    }
    EXPECT_EQ(widest, ReportHeadingWidth);
}

TEST(MakeReport, HasOneLineForARoomWhateverItsTextsHold) {
    Project project = ProjectWith(
        {{150, 168, 0, 0, "1\t2", "one\r\ntwo\x7F\u0085."}, {150, 168, 0, 0, "9", "next"}});
    project.Name = "A\nB";
    const EnteredDataReport report = MakeReport(project, Units::Imperial, "");
    ASSERT_EQ(report.Lines.size(), ReportHeadingLines + 2);
    EXPECT_EQ(report.Lines[4].Text.substr(5, 19), "PROJECT NAME:   A B");
    const ReportLine& row = report.Lines[ReportHeadingLines];
    EXPECT_EQ(row.Text.substr(row.Remark - 9), "1 2      one  two  .    ");
    EXPECT_EQ(report.Lines[ReportHeadingLines + 1].Text.substr(row.Remark - 9),
              "9        next    ");
}

} // namespace
} // namespace tarn
