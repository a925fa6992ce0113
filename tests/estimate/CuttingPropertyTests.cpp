#include "estimate/EstimateTesting.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tarn {
namespace {

using testing::Corners;
using testing::Cuts;
using testing::Job;
using testing::Pieces;
using testing::Turned;

constexpr double HalfUnit = 0.5; ///< coordinate units: 0.005 inch

/// Walks the cuts and pieces of a job in order and checks that they tile its rooms one by one.
class Tiling {
  public:
    Tiling(const Job& job, bool downLay)
        : cuts_(Cuts(job))
        , pieces_(Pieces(job))
        , roll_(static_cast<double>(job.Engine.RollWidth) * 100)
        , downLay_(downLay) {}

    /// The next strips cover that room, exactly once and without a gap.
    void ExpectCovers(const Corners& room) {
        const Corners turned = Turned(room, downLay_);
        const auto far = static_cast<double>(turned[1]);
        Single reached = turned[0];
        while (far - static_cast<double>(reached) > roll_ - HalfUnit) {
            ASSERT_LT(nextCut_, cuts_.size()) << "a cut is missing";
            const Corners cut = Turned(cuts_[nextCut_++], downLay_);
            EXPECT_NEAR(cut[1] - cut[0], roll_, HalfUnit);
            ExpectStripAt(cut, reached, turned);
            reached = cut[1];
        }
        if (far - static_cast<double>(reached) < HalfUnit) {
            EXPECT_NEAR(reached, far, HalfUnit);
            return;
        }
        ASSERT_LT(nextPiece_, pieces_.size()) << "a piece is missing";
        const Corners piece = Turned(pieces_[nextPiece_++], downLay_);
        EXPECT_LT(piece[1] - piece[0], roll_);
        ExpectStripAt(piece, reached, turned);
        EXPECT_EQ(piece[1], turned[1]);
    }

    void ExpectNothingLeft() const {
        EXPECT_EQ(nextCut_, cuts_.size());
        EXPECT_EQ(nextPiece_, pieces_.size());
    }

  private:
    static void ExpectStripAt(const Corners& strip, Single left, const Corners& room) {
        EXPECT_EQ(strip[0], left);
        EXPECT_EQ(strip[2], room[2]);
        EXPECT_EQ(strip[3], room[3]);
    }

    std::vector<Corners> cuts_;
    std::vector<Corners> pieces_;
    double roll_;
    bool downLay_;
    std::size_t nextCut_ = 0;
    std::size_t nextPiece_ = 0;
};

/// Unit and lay.
class Cutting : public ::testing::TestWithParam<std::tuple<bool, bool>> {};

// Independent of how a strip is computed: walking from the near edge, each strip begins exactly
// where the one before it ended, and the last ends at the room's far edge, to half a unit.
TEST_P(Cutting, CutsAndPiecesTileEveryRoomOfTheCarpet) {
    const auto [metric, downLay] = GetParam();
    Job job(metric);
    for (unsigned seed = 1; seed <= 3000; ++seed) {
        SCOPED_TRACE(::testing::Message() << "seed " << seed);
        std::mt19937 random(seed);
        const Single roll = testing::RandomRollWidth(random, metric);
        job.State.ObjNum = 0;
        testing::AddRandomRooms(job, random, roll, 12);
        testing::Cut(job, roll, downLay);

        Tiling tiling(job, downLay);
        for (Integer room = 0; room < job.State.ObjNum; ++room) {
            const SharedState& state = job.State;
            if (state.RoomCarpet[room] == 0 && state.RoomWidth[room] > 0 &&
                state.RoomLength[room] > 0) {
                SCOPED_TRACE(::testing::Message() << "room " << room);
                tiling.ExpectCovers({0, state.RoomX(room, 1), 0, state.RoomY(room, 1)});
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
    const auto [metric, downLay] = GetParam();
    Job job(metric);
    for (unsigned seed = 1; seed <= 1000; ++seed) {
        SCOPED_TRACE(::testing::Message() << "seed " << seed);
        std::mt19937 random(seed);
        const Single roll = testing::RandomRollWidth(random, metric);
        job.State.ObjNum = 0;
        testing::AddRandomRooms(job, random, roll, 12);
        testing::Cut(job, roll, downLay);

        const double small = metric ? 100 / 2.54 : 100;
        double rooms = 0;
        double slack = 0;
        for (Integer room = 0; room < job.State.ObjNum; ++room) {
            const double width = small * job.State.RoomWidth[room];
            const double length = small * job.State.RoomLength[room];
            if (job.State.RoomCarpet[room] == 0 && width > 0 && length > 0) {
                rooms += width * length;
                slack += HalfUnit * (downLay ? length : width) + 0.1 * (width + length);
            }
        }
        double strips = 0;
        for (const auto& boxes : {Cuts(job), Pieces(job)}) {
            for (const Corners& box : boxes) {
                strips +=
                    static_cast<double>(box[1] - box[0]) * static_cast<double>(box[3] - box[2]);
            }
        }
        ASSERT_NEAR(strips, rooms, slack);
    }
}

INSTANTIATE_TEST_SUITE_P(BothUnitsBothLays, Cutting,
                         ::testing::Combine(::testing::Bool(), ::testing::Bool()),
                         [](const auto& job) {
                             return std::string(std::get<0>(job.param) ? "Metric" : "Imperial") +
                                    (std::get<1>(job.param) ? "DownLay" : "CrossLay");
                         });

} // namespace
} // namespace tarn
