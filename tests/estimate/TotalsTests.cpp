#include "base/Format.h"
#include "estimate/EstimateTesting.h"
#include "estimate/Totals.h"

#include <gtest/gtest.h>

#include <array>
#include <type_traits>

namespace tarn {
namespace {

using testing::ErrorOf;
using testing::Estimated;
using testing::MetricRequest;
using testing::ProjectOf;
using testing::Request;
using testing::Sized;

TEST(TotalBase, CountsTheWidthsAndLengthsOfEachCode) {
    constexpr std::array<int, 9> Expected{0, 100, 200, 150, 250, 350, 300, 400, 500};
    for (std::size_t code = 0; code < Expected.size(); ++code) {
        EXPECT_EQ(TotalBase(ProjectOf({{100, 150, 0, static_cast<Byte>(code)}})), Expected.at(code))
            << "code " << code;
    }
}

TEST(TotalBase, SumsOverAllRoomsOfEveryCovering) {
    EXPECT_EQ(
        TotalBase(ProjectOf({{120, 144, 0, 5}, {100, 150, 3, 1}, {60, 80, 8, 8}, {36, 48, 11, 0}})),
        (240 + 144) + 100 + (120 + 160));
}

TEST(TotalBase, IsThePlainSumInTheRoomsUnit) {
    EXPECT_EQ(TotalBase(ProjectOf({{101, 203, 0, 8}})), 202 + 406);
}

TEST(TotalBase, OfNoRoomIsZero) {
    EXPECT_EQ(TotalBase(Project()), 0);
}

TEST(TotalBase, OfTheLargestRoomDoesNotOverflow) {
    EXPECT_EQ(TotalBase(ProjectOf({{32767, 32767, 0, 8}})), 4 * 32767);
}

TEST(TotalCutLength, SumsTheExtentsAlongTheRoll) {
    EXPECT_EQ(TotalCutLength(Estimated({{288, 120}, {150, 200}}, Request(144))), 120 + 120 + 200);
    EXPECT_EQ(TotalCutLength(Estimated({{120, 288}, {200, 150}}, Request(144, Lay::Cross))),
              120 + 120 + 200);
}

TEST(TotalCutLength, MeasuresAlongTheRollOfTheLay) {
    Estimate estimate = Estimated({{144, 200}}, Request(144));
    EXPECT_EQ(TotalCutLength(estimate), 200);
    estimate.Request.Direction = Lay::Cross;
    EXPECT_EQ(TotalCutLength(estimate), 144);
}

TEST(TotalCutLength, OfNoCutsIsZero) {
    EXPECT_EQ(TotalCutLength(Estimate()), 0);
}

TEST(TotalCutLength, BeyondASingleOverflows) {
    Estimate estimate;
    estimate.Cuts.resize(2, Cut{0, 0, 0, 3e38F});
    EXPECT_EQ(ErrorOf([&] { TotalCutLength(estimate); }).Number(), OverflowNumber);
}

Single AreaOfCovering(const Project& project, Byte code) {
    return CoveringArea(project, code, Units::Imperial);
}
Single PerimeterOfCovering(const Project& project, Byte code) {
    return CoveringPerimeter(project, code, Units::Imperial);
}

TEST(CoveringArea, SumsTheRoomsOfThatCoveringInSquareInches) {
    const Project project = ProjectOf({{100, 50, 8}, {20, 30, 9}, {10, 10, 8}});
    EXPECT_EQ(AreaOfCovering(project, 8), 5100);
    EXPECT_EQ(AreaOfCovering(project, 9), 600);
    EXPECT_EQ(AreaOfCovering(project, 10), 0);
}

TEST(CoveringArea, OfMetricRoomsIsInSquareInchesToo) {
    EXPECT_NEAR(CoveringArea(ProjectOf({{254, 508, 8}}), 8, Units::Metric), 100 * 200, 1e-2);
}

TEST(CoveringArea, TakesTheAreaOfANegativeRoomAsPositive) {
    const Project project = ProjectOf({{-100, 50, 8}});
    EXPECT_EQ(AreaOfCovering(project, 8), 5000);
    EXPECT_EQ(PerimeterOfCovering(project, 8), 300);
}

TEST(CoveringArea, BeyondASingleOverflows) {
    Project project = ProjectOf({{100, 50, 8}});
    project.Scale = 1e-28;
    EXPECT_EQ(ErrorOf([&] { AreaOfCovering(project, 8); }).Number(), OverflowNumber);
}

TEST(CoveringPerimeter, BeyondASingleOverflows) {
    Project project = ProjectOf({{30000, 50, 8}});
    project.Scale = 1e-34;
    EXPECT_EQ(ErrorOf([&] { PerimeterOfCovering(project, 8); }).Number(), OverflowNumber);
}

TEST(CoveringPerimeter, SumsTheRoomsOfThatCoveringInInches) {
    const Project project = ProjectOf({{100, 50, 8}, {20, 30, 9}, {10, 10, 8}});
    EXPECT_EQ(PerimeterOfCovering(project, 8), 300 + 40);
    EXPECT_EQ(PerimeterOfCovering(project, 9), 100);
    EXPECT_EQ(PerimeterOfCovering(project, 11), 0);
}

TEST(TileFloors, AreThoseOfTheTilesThatHaveRoomsInAscendingOrder) {
    const std::vector<TileFloor> floors = TileFloors(
        ProjectOf({{20, 30, 11}, {100, 50, 8}, {7, 7, 7}, {10, 10, 8}, {0, 5, 10}, {9, 9, 12}}),
        Units::Imperial);
    ASSERT_EQ(floors.size(), 3U);
    EXPECT_EQ(floors[0], (TileFloor{8, 5100, 340}));
    EXPECT_EQ(floors[1], (TileFloor{10, 0, 10}));
    EXPECT_EQ(floors[2], (TileFloor{11, 600, 100}));
}

TEST(HasRooms, AnswersForEachCovering) {
    const Project project = ProjectOf({{100, 50, 8}, {20, 30, 2}});
    EXPECT_TRUE(HasRooms(project, 8));
    EXPECT_TRUE(HasRooms(project, 2));
    EXPECT_FALSE(HasRooms(project, 9));
    EXPECT_FALSE(HasRooms(Project(), 0));
}

TEST(Totals, TheSumsAreSingles) {
    EXPECT_TRUE((std::is_same_v<decltype(TotalBase(Project())), Single>));
    EXPECT_TRUE((std::is_same_v<decltype(TotalCutLength(Estimate())), Single>));
    EXPECT_TRUE((std::is_same_v<decltype(AreaOfCovering(Project(), 8)), Single>));
    EXPECT_TRUE((std::is_same_v<decltype(PerimeterOfCovering(Project(), 8)), Single>));
}

// 2^24 + 1 is no Single: four ones added one by one are lost.
TEST(Totals, AreasAndCutsAreAccumulatedInSingle) {
    Estimate estimate;
    estimate.Cuts.resize(5, Cut{0, 0, 0, 1});
    estimate.Cuts[0].Y2 = 4096 * 4096;
    EXPECT_EQ(TotalCutLength(estimate), 167772.16F);
    Project project = ProjectOf({{4096, 4096}, {1, 1}, {1, 1}, {1, 1}, {1, 1}});
    project.Scale = 1;
    EXPECT_EQ(AreaOfCovering(project, 0), 16777216);
}

// 257 perimeters are just above 2^25, where a Single counts by fours: of the four twos behind them
// the first is rounded up and the others are lost.
TEST(Totals, PerimetersAreAccumulatedInSingle) {
    Project project;
    project.Scale = 1;
    project.Rooms.resize(257, Sized{32767, 32767}.AsRoom());
    project.Rooms.resize(261, Sized{1, 0}.AsRoom());
    EXPECT_EQ(PerimeterOfCovering(project, 0), 257 * 4 * 32767 + 4);
}

TEST(Totals, TheBaseIsAccumulatedInSingle) {
    Project project;
    project.Rooms.resize(129, Sized{32767, 32767, 0, 8}.AsRoom());
    project.Rooms.resize(133, Sized{1, 1, 0, 1}.AsRoom());
    EXPECT_EQ(TotalBase(project), 129 * 4 * 32767);
}

TEST(AreaOf, GivesSquareFeetYardsAndMetres) {
    const Area area = AreaOf(1296);
    EXPECT_DOUBLE_EQ(area.SquareFeet, 9);
    EXPECT_DOUBLE_EQ(area.SquareYards, 1);
    EXPECT_DOUBLE_EQ(area.SquareMeters, 0.83612736);
}

TEST(TotalRoll, AddsTheFillsToTheCuts) {
    Estimate estimate = Estimated({{144, 240}}, Request(144));
    estimate.Fills.Length = 120;
    const RollTotals totals = TotalRoll(estimate);
    EXPECT_EQ(totals.CutLength, 240);
    EXPECT_EQ(totals.Length, 360);
    EXPECT_EQ(totals.Size.SquareYards, 40);
    EXPECT_EQ(totals.Size.SquareFeet, 360);
    EXPECT_NEAR(totals.Size.SquareMeters, 360 * 0.09290304, 1e-9);
}

// As Singles these would print 1,001.51 and 2.75.
TEST(TotalRoll, FiguresAreDoubleSoThatHalvesPrintTrue) {
    const Estimate yards = Estimated({{150, 8653}}, Request(150));
    EXPECT_EQ(Format(TotalRoll(yards).Size.SquareYards, "#,##0.00"), "1,001.50");
    const Estimate metres = Estimated({{183, 150}}, MetricRequest("183"));
    EXPECT_EQ(Format(TotalRoll(metres).Size.SquareMeters, "#,##0.00"), "2.74");
}

} // namespace
} // namespace tarn
