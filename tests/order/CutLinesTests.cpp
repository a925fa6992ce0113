#include "order/CutLines.h"
#include "order/OrderTesting.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using testing::MakeOrderOf;
using testing::ProjectOf;
using testing::RequestFor;

std::vector<CutLine> LinesOf(const Project& project, const OrderRequest& request) {
    const Order order = MakeOrderOf(project, request);
    return CutLines(project, request, order.Candidates.at(order.Best.value()));
}

TEST(CutLines, SayWhereAPieceIsCutAndWhichItIs) {
    Project project = ProjectOf({{240, 136}});
    project.Rooms[0].Number = "102";
    project.Rooms[0].Remark = "Hall";
    const auto lines = LinesOf(project, RequestFor(144));
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].Label, "A");
    EXPECT_EQ(lines[0].From, "0'0\"");
    EXPECT_EQ(lines[0].To, "11'4\"");
    EXPECT_EQ(lines[0].Across, "0'0\"");
    EXPECT_EQ(lines[0].Room, "102 Hall");
    EXPECT_EQ(lines[1].From, "11'4\"");
    EXPECT_EQ(lines[1].To, "22'8\"");
    const bool dropFirst = lines[0].Which == "drop 1 of 2";
    EXPECT_EQ(lines[dropFirst ? 0 : 1].Which, "drop 1 of 2");
    EXPECT_EQ(lines[dropFirst ? 1 : 0].Which, "fill 2 of 2");
    EXPECT_EQ(lines[dropFirst ? 0 : 1].Size, "12'0\" X 11'4\"");
    EXPECT_EQ(lines[dropFirst ? 1 : 0].Size, "8'0\" X 11'4\"");
    EXPECT_EQ(lines[0].Match + lines[1].Match, "");
}

TEST(CutLines, CountThePatternFromTheRoomsFirstPiece) {
    OrderRequest request = RequestFor(144);
    request.Pattern = {18, 24, false};
    auto lines = LinesOf(ProjectOf({{240, 136}}), request);
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].Match, "");
    EXPECT_EQ(lines[1].Match, "6 repeats on from A"); // 144 in behind it

    request.Pattern.HalfDrop = true;
    lines = LinesOf(ProjectOf({{288, 132}}), request); // eight columns on: no half repeat
    EXPECT_EQ(lines[1].Match, "6 repeats on from A");
    request.Pattern.Across = 16; // nine columns on
    lines = LinesOf(ProjectOf({{288, 132}}), request);
    EXPECT_EQ(lines[1].Match, "5 repeats and 12\" on from A");
}

TEST(CutLines, SayWhichPartAndWhichRoom) {
    OrderRequest request = RequestFor(144);
    request.MostParts = 4;
    request.JoinRooms = true;
    Project project = ProjectOf({{28, 109}, {65, 239}});
    project.Rooms[1].Remark = "Gallery";
    bool parts = false;
    for (const CutLine& line : LinesOf(project, request)) {
        EXPECT_TRUE(line.Room == "room 1" || line.Room == "Gallery") << line.Room;
        parts = parts || line.Which.starts_with("part 1 of ");
        EXPECT_TRUE(line.Which.empty() || line.Which.starts_with("part ")) << line.Which;
    }
    EXPECT_TRUE(parts);
}

TEST(CutLines, AreInCentimetresWithMetric) {
    OrderRequest request = RequestFor(366, Units::Metric);
    request.Pattern = {0, 50, false};
    const auto lines = LinesOf(ProjectOf({{600, 340}}), request);
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[1].From, "350");
    EXPECT_EQ(lines[1].Match, "7 repeats on from A");
}

} // namespace
} // namespace tarn
