// The rows of the report against rows computed a second time, in whole numbers and one blank after
// the other.

#include "project/ReportTesting.h"
#include "project/RoomTesting.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <utility>

namespace tarn {
namespace {

using testing::Below;
using testing::ProjectWith;
using testing::RandomText;
using testing::RowsOf;

std::string Blanks(long long count) {
    std::string blanks;
    for (; count > 0; --count) {
        blanks += ' ';
    }
    return blanks;
}

long long Characters(std::string_view text) {
    long long count = 0;
    while (!text.empty()) {
        const auto lead = static_cast<unsigned char>(text.front());
        text.remove_prefix(lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4);
        ++count;
    }
    return count;
}

std::string FeetAndInches(int inches) {
    return std::to_string(inches / 12) + "'" + std::to_string(inches % 12) + "\"";
}

/// area / divisor with two places, halves away from zero.
std::string TwoPlaces(long long area, long long divisor) {
    const long long hundredths = (200 * area + divisor) / (2 * divisor);
    const std::string places = std::to_string(hundredths % 100);
    return std::to_string(hundredths / 100) + "." + (places.size() < 2 ? "0" : "") + places;
}

/// Blanks on either side of the X, by the number of digits of the width: 4 less half of it.
int GapAroundX(std::size_t digits) {
    constexpr std::array Gaps{4, 3, 2, 2, 2}; // 3.5, 3, 2.5, 2, 1.5
    return Gaps.at(digits - 1);
}

std::string ExpectedRow(const Room& room, int number, Units shown) {
    const std::string no = std::to_string(number);
    const std::string ws = std::to_string(room.Width);
    const std::string ls = std::to_string(room.Length);
    const auto area = static_cast<long long>(static_cast<float>(room.Width * room.Length));
    const std::string squareMetres = TwoPlaces(area, 10000);
    const std::string gap = Blanks(GapAroundX(ws.size()));

    std::string row = "    " + no + Blanks(10 - Characters(no));
    if (shown == Units::Metric) {
        row += ws + gap + "X" + gap + ls + Blanks(7 - Characters(ls)) + squareMetres;
    } else {
        const std::string wide = FeetAndInches(room.Width);
        const std::string along = FeetAndInches(room.Length);
        long long n = Characters(wide) + 1 + Characters(along);
        const long long k = n <= 8 ? 17 : 24 - n;
        if (k + 9 - n == 15) {
            ++n;
        }
        row += wide + gap + "X" + gap + along + Blanks(k + 9 - n) + TwoPlaces(area, 1296);
    }
    row += Blanks(11 - Characters(squareMetres));

    const bool carpet = room.Covering < 8;
    row += carpet ? "C" : "T";
    row += std::to_string(carpet ? room.Covering + 1 : room.Covering - 7) + "    ";

    const int widths = room.Base % 3;
    const int lengths = room.Base / 3;
    const std::string base = (widths > 0 ? "W" + std::to_string(widths) : "") +
                             (lengths > 0 ? "L" + std::to_string(lengths) : "");
    row += base;
    const int raised = ((widths * room.Width + lengths * room.Length) / 3 + 1) * 3;
    if (room.Base == 0) {
        row += Blanks(11);
    } else if (shown == Units::Metric) {
        row += Blanks(13 - Characters(base)) + std::to_string(raised) +
               Blanks(12 - Characters(std::to_string(raised)));
    } else {
        const std::string text = FeetAndInches(raised);
        const long long n = Characters(text);
        row += Blanks(8) + text + Blanks(12 - (n == 4 ? 4 : n == 5 ? 6 : n + 2));
    }
    row += room.Number + Blanks(9 - Characters(room.Number)) + room.Remark;
    // A row is one line: line breaks, tabs and the like are blanks.
    std::replace_if(
        row.begin(), row.end(), [](char c) { return (c >= 0 && c < ' ') || c == 0x7F; }, ' ');
    return row + "    \r\n";
}

Room RandomRoom(std::mt19937& random) {
    // Few digits as often as many; with base, small enough for the base length to fit.
    const auto size = [&random](int most) {
        constexpr std::array Limits{10, 100, 1000, 10000, 32768};
        const int limit = Limits[static_cast<std::size_t>(Below(random, Limits.size()))];
        return static_cast<Integer>(Below(random, std::min(limit, most)));
    };
    Room room;
    room.Base = static_cast<Byte>(Below(random, 9));
    const int most = room.Base == 0 ? 32768 : 8190;
    room.Width = size(most);
    room.Length = size(most);
    room.Covering = static_cast<Byte>(Below(random, 12));
    room.Number = RandomText(random, 12);
    room.Remark = RandomText(random, 30);
    return room;
}

TEST(MakeReport, ListsRandomRoomsByTheRules) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        for (const Units shown : {Units::Imperial, Units::Metric}) {
            SCOPED_TRACE("seed " + std::to_string(seed) +
                         (shown == Units::Metric ? " metric" : " imperial"));
            std::mt19937 random(seed);
            std::vector<Room> rooms;
            for (int number = 1; number <= 120; ++number) {
                rooms.push_back(RandomRoom(random));
            }
            const std::string rows = RowsOf(MakeReport(ProjectWith(rooms), shown, "").Text());
            std::size_t begin = 0;
            for (int number = 1; number <= 120; ++number) {
                const std::string expected =
                    ExpectedRow(rooms[static_cast<std::size_t>(number - 1)], number, shown);
                ASSERT_EQ(rows.substr(begin, expected.size()), expected);
                begin += expected.size();
            }
            EXPECT_EQ(begin, rows.size());
        }
    }
}

/// The last `count` bytes of a text, and the characters before them.
std::pair<std::string, std::size_t> Split(const std::string& text, std::size_t count) {
    const std::size_t before = text.size() - count;
    return {text.substr(before), static_cast<std::size_t>(Characters(text.substr(0, before)))};
}

TEST(MakeReport, TellsWhereTheRemarkOfEveryRowBegins) {
    for (unsigned seed = 1; seed <= 10; ++seed) {
        for (const Units shown : {Units::Imperial, Units::Metric}) {
            SCOPED_TRACE("seed " + std::to_string(seed) +
                         (shown == Units::Metric ? " metric" : " imperial"));
            std::mt19937 random(seed);
            std::vector<Room> rooms;
            for (const char* number : {"", "7", "  12", "1 0", " C 3 ", "        ", "12'6\"X3'0\"",
                                       "T1    L2   40     9", "B\u00fcro", "\u6d74\u5ba4"}) {
                for (const char* remark : {"", "hall", "  12", "   W2L1  1122 "}) {
                    for (int i = 0; i < 10; ++i) {
                        rooms.push_back(RandomRoom(random));
                        rooms.back().Number = number;
                        rooms.back().Remark = remark;
                    }
                }
            }
            const EnteredDataReport report = MakeReport(ProjectWith(rooms), shown, "11/21/2031");
            ASSERT_EQ(report.Lines.size(), ReportHeadingLines + rooms.size());
            for (std::size_t i = 0; i < rooms.size(); ++i) {
                const std::string& remark = rooms[i].Remark;
                const std::string expected = ExpectedRow(rooms[i], static_cast<int>(i) + 1, shown);
                const auto [tail, column] = Split(expected, remark.size() + 6);
                ASSERT_EQ(tail, remark + "    \r\n");
                const ReportLine& line = report.Lines[ReportHeadingLines + i];
                EXPECT_EQ(line.Remark, column) << line.Text;
                EXPECT_EQ(line.Text + "\r\n", expected);
            }
        }
    }
}

TEST(MakeReport, TellsWhereTheRemarkBeginsForAnUnknownBaseCode) {
    for (const Units shown : {Units::Imperial, Units::Metric}) {
        const auto report = MakeReport(ProjectWith({{100, 120, 0, 9, "", "remark"}}), shown, "");
        const ReportLine& row = report.Lines.back();
        EXPECT_EQ(row.Remark, row.Text.find("remark")) << row.Text;
    }
}

TEST(MakeReport, HasNoRemarkInTheHeading) {
    const Project project = ProjectWith({{100, 120, 0, 0, "", "remark"}}, "    4 ROOMS X 2");
    const EnteredDataReport report = MakeReport(project, Units::Metric, "11/21/2031");
    for (std::size_t i = 0; i < ReportHeadingLines; ++i) {
        EXPECT_EQ(report.Lines[i].Remark, 0U) << report.Lines[i].Text;
    }
    EXPECT_NE(report.Lines[ReportHeadingLines].Remark, 0U);
}

} // namespace
} // namespace tarn
