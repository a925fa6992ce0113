#include "estimate/EstimateTesting.h"
#include "project/RoomExtents.h"

#include <gtest/gtest.h>

#include <tuple>

namespace tarn {
namespace {

using testing::EdgesOf;
using testing::Turned;

constexpr double HalfUnit = 0.5; ///< coordinate units: 0.005 inch

/// Walks the cuts and fills of a project in order and checks that they tile its rooms one by one.
class Tiling {
  public:
    Tiling(RoomCuts cut, const EstimateRequest& request)
        : cuts_(std::move(cut.Cuts))
        , pieces_(EdgesOf(cut.Fills))
        , roll_(static_cast<double>(request.RollWidth) * 100)
        , lay_(request.Direction) {}

    /// The next strips cover that room, exactly once and without a gap.
    void ExpectCovers(const Cut& room) {
        const Cut turned = Turned(room, lay_);
        const auto far = static_cast<double>(turned.X2);
        Single reached = turned.X1;
        while (far - static_cast<double>(reached) > roll_ - HalfUnit) {
            ASSERT_LT(nextCut_, cuts_.size()) << "a cut is missing";
            const Cut cut = Turned(cuts_[nextCut_++], lay_);
            EXPECT_NEAR(cut.X2 - cut.X1, roll_, HalfUnit);
            ExpectStripAt(cut, reached, turned);
            reached = cut.X2;
        }
        if (far - static_cast<double>(reached) < HalfUnit) {
            EXPECT_NEAR(reached, far, HalfUnit);
            return;
        }
        ASSERT_LT(nextPiece_, pieces_.size()) << "a piece is missing";
        const Cut piece = Turned(pieces_[nextPiece_++], lay_);
        EXPECT_LT(piece.X2 - piece.X1, roll_);
        ExpectStripAt(piece, reached, turned);
        EXPECT_EQ(piece.X2, turned.X2);
    }

    void ExpectNothingLeft() const {
        EXPECT_EQ(nextCut_, cuts_.size());
        EXPECT_EQ(nextPiece_, pieces_.size());
    }

  private:
    static void ExpectStripAt(const Cut& strip, Single left, const Cut& room) {
        EXPECT_EQ(strip.X1, left);
        EXPECT_EQ(strip.Y1, room.Y1);
        EXPECT_EQ(strip.Y2, room.Y2);
    }

    std::vector<Cut> cuts_;
    std::vector<Cut> pieces_;
    double roll_;
    Lay lay_;
    std::size_t nextCut_ = 0;
    std::size_t nextPiece_ = 0;
};

/// Units and lay.
class Cutting : public ::testing::TestWithParam<std::tuple<Units, Lay>> {};

EstimateRequest RequestOf(std::mt19937& random, Units units, Lay lay) {
    EstimateRequest request = testing::Request(testing::RandomRollWidth(random, units), lay);
    request.In = units;
    return request;
}

bool IsCut(const Room& room) {
    return room.Covering == 0 && room.Width > 0 && room.Length > 0;
}

// Independent of how a strip is computed: walking from the near edge, each strip begins exactly
// where the one before it ended, and the last ends at the room's far edge, to half a unit.
TEST_P(Cutting, CutsAndFillsTileEveryRoomOfTheCarpet) {
    const auto [units, lay] = GetParam();
    for (unsigned seed = 1; seed <= 3000; ++seed) {
        SCOPED_TRACE(::testing::Message() << "seed " << seed);
        std::mt19937 random(seed);
        const EstimateRequest request = RequestOf(random, units, lay);
        const Project project = testing::RandomProject(random, units, request.RollWidth, 12);

        Tiling tiling(CutAcrossRoll(project, request), request);
        for (const Room& room : project.Rooms) {
            if (IsCut(room)) {
                SCOPED_TRACE(::testing::Message() << "room " << room.Width << " " << room.Length);
                const RoomExtent extent = ExtentOf(room, units, project.Scale);
                tiling.ExpectCovers({0, extent.X, 0, extent.Y});
            }
        }
        tiling.ExpectNothingLeft();
        if (HasFailure()) {
            return;
        }
    }
}

// The area of the strips is that of the rooms, to half a unit along each strip.
TEST_P(Cutting, StripsHaveTheAreaOfTheRooms) {
    const auto [units, lay] = GetParam();
    for (unsigned seed = 1; seed <= 1000; ++seed) {
        SCOPED_TRACE(::testing::Message() << "seed " << seed);
        std::mt19937 random(seed);
        const EstimateRequest request = RequestOf(random, units, lay);
        const Project project = testing::RandomProject(random, units, request.RollWidth, 12);

        const double small = units == Units::Metric ? 100 / 2.54 : 100;
        double rooms = 0;
        double slack = 0;
        for (const Room& room : project.Rooms) {
            if (IsCut(room)) {
                const double width = small * room.Width;
                const double length = small * room.Length;
                rooms += width * length;
                slack += HalfUnit * (lay == Lay::Down ? length : width) + 0.1 * (width + length);
            }
        }
        double strips = 0;
        const RoomCuts cut = CutAcrossRoll(project, request);
        for (const auto& boxes : {cut.Cuts, EdgesOf(cut.Fills)}) {
            for (const Cut& box : boxes) {
                strips +=
                    static_cast<double>(box.X2 - box.X1) * static_cast<double>(box.Y2 - box.Y1);
            }
        }
        ASSERT_NEAR(strips, rooms, slack);
    }
}

INSTANTIATE_TEST_SUITE_P(BothUnitsBothLays, Cutting,
                         ::testing::Combine(::testing::ValuesIn(testing::BothUnits),
                                            ::testing::ValuesIn(testing::BothLays)),
                         [](const auto& job) {
                             return std::string(std::get<0>(job.param) == Units::Metric
                                                    ? "Metric"
                                                    : "Imperial") +
                                    (std::get<1>(job.param) == Lay::Down ? "DownLay" : "CrossLay");
                         });

} // namespace
} // namespace tarn
