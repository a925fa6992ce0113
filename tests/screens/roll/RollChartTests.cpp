#include "estimate/CutList.h"
#include "estimate/EstimateTesting.h"
#include "estimate/RollPlaces.h"
#include "order/CutLines.h"
#include "order/OrderTesting.h"
#include "screens/roll/RollChart.h"
#include "screens/roll/Tints.h"

#include <gmock/gmock.h>

#include <numeric>

namespace tarn {
namespace {

using namespace tarn::testing;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

double AreaOf(const std::vector<ChartPiece>& pieces) {
    return std::accumulate(pieces.begin(), pieces.end(), 0.0, [](double sum, const auto& piece) {
        return sum + piece.Width * piece.Length;
    });
}
double AreaOf(const std::vector<ChartSpace>& spaces) {
    return std::accumulate(spaces.begin(), spaces.end(), 0.0, [](double sum, const auto& space) {
        return sum + space.Width * space.Length;
    });
}

Project HouseOf(const Rooms& rooms) {
    Project project = ProjectOf(rooms);
    project.Name = "MAPLE STREET 9";
    return project;
}

TEST(RollChart, OfAnEstimateHasTheCutsBehindEachOtherThenTheFills) {
    // Two cuts of 12' by 14' and 12' by 10', and two fills beside each other.
    Project project = HouseOf({{200, 168}, {216, 120}});
    project.Rooms[0].Number = "101";
    project.Rooms[1].Number = "102";
    const Estimate estimate = EstimateOf(project, Request(144));
    const RollChart chart = ChartOf(estimate, project);
    ASSERT_EQ(chart.Pieces.size(), 4U);
    EXPECT_EQ(chart.In, Units::Imperial);
    EXPECT_EQ(chart.RollWidth, 144);
    EXPECT_EQ(chart.Pieces[0].Label, "Cut1");
    EXPECT_EQ(chart.Pieces[1].Label, "Cut2");
    EXPECT_EQ(chart.Pieces[1].Y, 168);
    EXPECT_EQ(chart.Pieces[1].Length, 120);
    EXPECT_EQ(chart.Pieces[1].Width, 144);
    EXPECT_EQ(chart.Pieces[1].Size, "12'0\" X 10'0\"");
    EXPECT_EQ(chart.Pieces[1].Room, "102");
    EXPECT_EQ(chart.Pieces[1].Description,
              "Cut2, 12'0\" by 10'0\", room 102, from 14'0\" to 24'0\"");
    for (std::size_t i = 0; i < estimate.Fills.Layout.size(); ++i) {
        const Placed& placed = estimate.Fills.Layout[i];
        const ChartPiece& piece = chart.Pieces[2 + i];
        EXPECT_DOUBLE_EQ(piece.X, placed.X);
        EXPECT_DOUBLE_EQ(piece.Y, 288 + static_cast<double>(placed.Y));
        EXPECT_NEAR(piece.Width, placed.Width, 1e-4);
        EXPECT_NEAR(piece.Length, placed.Length, 1e-4);
    }
    EXPECT_EQ(chart.Length, 288 + estimate.Fills.Length);
    EXPECT_EQ(chart.Pieces[0].Tint, chart.Pieces[2].Tint) << "the same room";
    EXPECT_NE(chart.Pieces[0].Tint, chart.Pieces[1].Tint);
}

TEST(RollChart, OfAnEstimateKnowsEachPiecesRoomInBothLaysAndUnits) {
    for (const Units units : BothUnits) {
        for (const Lay lay : BothLays) {
            Project project = HouseOf({{30, 40}, {500, 200}, {150, 90}, {60, 300}});
            project.Rooms[0].Covering = 1; // not this carpet
            EstimateRequest request =
                units == Units::Metric ? MetricRequest("366", lay) : Request(144, lay);
            request = WithParts(request, MinCut::HalfFoot, 3);
            const Estimate estimate = EstimateOf(project, request);
            const RollChart chart = ChartOf(estimate, project);
            std::vector<double> areas(project.Rooms.size(), 0);
            for (const ChartPiece& piece : chart.Pieces) {
                ASSERT_EQ(piece.Room.substr(0, 5), "room ");
                areas.at(std::stoul(piece.Room.substr(5)) - 1) += piece.Width * piece.Length;
            }
            EXPECT_EQ(areas[0], 0);
            for (std::size_t i = 1; i < areas.size(); ++i) {
                const Room& room = project.Rooms[i];
                EXPECT_NEAR(areas[i], static_cast<double>(room.Width) * room.Length, 1) << i;
            }
        }
    }
}

TEST(RollChart, HatchesAllThatNoPieceTakes) {
    std::mt19937 random(11);
    for (int i = 0; i < 200; ++i) {
        SCOPED_TRACE(i);
        const Units units = i % 2 == 0 ? Units::Imperial : Units::Metric;
        EstimateRequest request = Request(RandomRollWidth(random, units));
        request.In = units;
        const Project project = RandomProject(random, units, request.RollWidth, 8);
        const Estimate estimate = EstimateOf(project, request);
        const RollChart chart = ChartOf(estimate, project);
        if (chart.Pieces.empty()) {
            EXPECT_TRUE(HasNothingToCut(estimate));
            continue;
        }
        const double roll = chart.RollWidth * chart.Length;
        EXPECT_NEAR(AreaOf(chart.Pieces) + AreaOf(chart.LeftOver), roll, roll * 1e-3 + 1);
        for (const ChartSpace& space : chart.LeftOver) {
            EXPECT_GE(space.X, 0);
            EXPECT_LE(space.X + space.Width, chart.RollWidth + 0.01);
            EXPECT_LE(space.Y + space.Length, chart.Length + 0.01);
        }
    }
}

TEST(RollChart, ListsTheCutListWithThePiecesOfItsLines) {
    const Project project = HouseOf({{200, 168}, {130, 90}});
    const Estimate estimate = EstimateOf(project, WithParts(Request(144), MinCut::HalfFoot, 2));
    const RollChart chart = ChartOf(estimate, project);
    std::vector<std::string> texts;
    std::vector<bool> seen(chart.Pieces.size(), false);
    for (const ChartLine& line : chart.Lines) {
        texts.push_back(line.Text);
        if (line.Piece) {
            const ChartPiece& piece = chart.Pieces.at(*line.Piece);
            EXPECT_EQ(line.Text, piece.Label + ": " + piece.Size);
            EXPECT_FALSE(seen[*line.Piece]);
            seen[*line.Piece] = true;
        } else {
            EXPECT_TRUE(line.Text.starts_with("Carpet-1") || line.Text.starts_with("Total"))
                << line.Text;
        }
    }
    EXPECT_EQ(texts, CutListLines(estimate));
    EXPECT_TRUE(std::all_of(seen.begin(), seen.end(), [](bool each) { return each; }));
}

TEST(RollChart, SaysCentimetresOfAMetricPiece) {
    Project project = HouseOf({{366, 400}});
    project.Rooms[0].Remark = "KITCHEN";
    const RollChart chart = ChartOf(EstimateOf(project, MetricRequest("366")), project);
    ASSERT_EQ(chart.Pieces.size(), 1U);
    EXPECT_NEAR(chart.Pieces[0].Length, 400, 0.01);
    EXPECT_NEAR(chart.RollWidth, 366, 0.01);
    EXPECT_EQ(chart.Pieces[0].Size, "366 X 400");
    EXPECT_EQ(chart.Pieces[0].Description,
              "Cut1, 366 cm by 400 cm, room KITCHEN, from 0 cm to 400 cm");
    EXPECT_EQ(chart.Description, "Roll 366 cm wide, 400 cm long, 1 piece");
}

TEST(RollChart, CallsARoomByItsNumberOrItsRemarkOrItsPlace) {
    Project project = HouseOf({{144, 100}, {144, 100}, {144, 100}, {144, 100}});
    project.Rooms[0].Number = "12";
    project.Rooms[0].Remark = "HALL";
    project.Rooms[1].Remark = "ST\tAIRS";
    project.Rooms[3].Number = "Room 7";
    const RollChart chart = ChartOf(EstimateOf(project, Request(144)), project);
    ASSERT_EQ(chart.Pieces.size(), 4U);
    EXPECT_EQ(chart.Pieces[0].Room, "12");
    EXPECT_EQ(chart.Pieces[1].Room, "ST\xEF\xBF\xBD"
                                    "AIRS");
    EXPECT_EQ(chart.Pieces[2].Room, "room 3");
    EXPECT_THAT(chart.Pieces[2].Description, HasSubstr(", room 3, "));
    EXPECT_THAT(chart.Pieces[3].Description, HasSubstr(", Room 7, "));
}

TEST(RollChart, BeginsEveryCutOnARepeatOfThePattern) {
    const Project project = HouseOf({{288, 100}});
    const Estimate estimate = EstimateOf(project, WithRepeat(Request(144), 0, 36));
    const RollChart chart = ChartOf(estimate, project);
    ASSERT_EQ(chart.Pieces.size(), 2U);
    EXPECT_EQ(chart.Pieces[1].Y, 108);
    EXPECT_EQ(chart.Length, 216);
    EXPECT_THAT(chart.LeftOver,
                ElementsAre(ChartSpace{0, 100, 144, 8}, ChartSpace{0, 208, 144, 8}));
}

TEST(RollChart, IsAsLongAsALayoutThatRunsPastItsTotal) {
    Estimate estimate;
    estimate.Request = Request(144);
    estimate.Job.Direction = Lay::Down;
    AddPlaced(estimate, 0, 0, 100, 120.6F);
    estimate.Fills.Length = 120;
    const RollChart chart = ChartOf(estimate, HouseOf({{100, 121}}));
    EXPECT_NEAR(chart.Length, 120.6, 1e-3);
}

TEST(RollChart, OfNothingIsEmpty) {
    EXPECT_EQ(ChartOf(Estimate(), Project()), RollChart());
}

TEST(RollChart, OfAnOrderHasItsPiecesBehindTheSelvage) {
    Project project = ProjectOf(std::vector<RoomSides>{{200, 168}, {100, 90}});
    project.Rooms[1].Number = "102";
    OrderRequest request = RequestFor(144);
    request.Selvage = 1;
    const Order order = MakeOrderOf(project, request, 300);
    ASSERT_TRUE(order.Best);
    const OrderCandidate& row = order.Candidates[*order.Best];
    const RollChart chart = ChartOf(order, *order.Best, project);
    EXPECT_EQ(chart.RollWidth, 144);
    EXPECT_EQ(chart.Length, static_cast<double>(row.Figures->Length));
    ASSERT_EQ(chart.Pieces.size(), row.Pieces.size());
    const auto lines = CutLines(project, request, row);
    for (std::size_t i = 0; i < row.Pieces.size(); ++i) {
        EXPECT_EQ(chart.Pieces[i].Label, row.Pieces[i].Label);
        EXPECT_EQ(chart.Pieces[i].X, row.Pieces[i].X + 1);
        EXPECT_EQ(chart.Pieces[i].Y, row.Pieces[i].Y);
        EXPECT_EQ(chart.Pieces[i].Size, lines[i].Size);
        const ChartLine& line = chart.Lines[chart.Lines.size() - row.Pieces.size() + i];
        EXPECT_EQ(line.Piece, i);
        for (const std::string& part : {lines[i].Label + ": " + lines[i].Size, lines[i].Room,
                                        lines[i].From, lines[i].To, lines[i].Which}) {
            EXPECT_THAT(line.Text, HasSubstr(part));
        }
    }
    EXPECT_FALSE(chart.Lines[0].Piece);
    EXPECT_NEAR(AreaOf(chart.Pieces) + AreaOf(chart.LeftOver), chart.RollWidth * chart.Length,
                1e-6);
}

TEST(RollChart, OfARefusedRowIsEmpty) {
    const Project project = ProjectOf(std::vector<RoomSides>{{200, 168}});
    OrderRequest request = RequestFor(144);
    request.Pattern.Across = 7; // the fill has no place that matches
    request.Pattern.Along = 7;
    request.Rolls[0].Width = 143;
    Order order = MakeOrderOf(project, request, 10);
    order.Candidates[0].Pieces.clear();
    EXPECT_EQ(ChartOf(order, 0, project), RollChart());
}

} // namespace
} // namespace tarn
