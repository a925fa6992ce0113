#include "Sanitized.h"
#include "base/RunTimeError.h"
#include "improve/Improver.h"
#include "order/OrderStrips.h"
#include "order/OrderTesting.h"
#include "order/PlainOrderCheck.h"
#include "order/RandomOrders.h"

#include <functional>
#include <limits>
#include <stdexcept>

namespace tarn {
namespace {

using testing::MakeOrderOf;
using testing::PlainFaultOf;
using testing::ProjectOf;
using testing::RandomRequest;
using testing::RandomRooms;
using testing::RequestFor;
using testing::StepLimits;

/// Why the only row of an order is refused.
std::string RefusalOf(const Project& project, const OrderRequest& request) {
    const Order order = MakeOrderOf(project, request, 10);
    EXPECT_EQ(order.Candidates.size(), 1U);
    EXPECT_FALSE(order.Candidates[0].Figures);
    EXPECT_TRUE(order.Candidates[0].Pieces.empty());
    EXPECT_FALSE(order.Best);
    return order.Candidates[0].Refused.English;
}

TEST(MakeOrder, OfRandomProjectsPassesBothChecks) {
    Long laid = 0;
    Long matched = 0;
    Long divided = 0;
    constexpr unsigned Projects = testing::UnlessSanitized(400U, 40U);
    for (unsigned seed = 1; seed <= Projects; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const Project project = RandomRooms(random, 12, 60);
        const OrderRequest request = RandomRequest(random, 24);
        ASSERT_FALSE(FaultOf(request));
        const Order order = MakeOrderOf(project, request, 150);
        ASSERT_EQ(CheckOrder(project, order), "");
        for (const OrderCandidate& row : order.Candidates) {
            if (!row.Figures) {
                continue;
            }
            ASSERT_EQ(PlainFaultOf(project, order, row), "");
            ++laid;
            for (const OrderPiece& piece : row.Pieces) {
                matched += piece.Strips > 1 && request.Pattern.Along > 0 ? 1 : 0;
                divided += piece.Parts > 1 ? 1 : 0;
            }
        }
    }
    EXPECT_GT(laid, static_cast<Long>(Projects));
    EXPECT_GT(matched, static_cast<Long>(Projects));
    EXPECT_GT(divided, static_cast<Long>(Projects));
}

// Without a pattern, trim or selvage an order is laid out by the improving search itself.
TEST(MakeOrder, IsNeverLongerThanTheImprovingSearchMakesIt) {
    for (unsigned seed = 1; seed <= 60; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const Project project = RandomRooms(random, 20, 60);
        OrderRequest request = RequestFor(24);
        request.MostParts = testing::Between(random, 1, 6);
        request.ShortestPart = testing::Between(random, 1, 12);
        request.JoinRooms = testing::OneIn(random, 2);
        const OrderStrips strips = StripsOf(project, 0, request, 24, Lay::Down);
        ImproveJob job;
        job.Width = 24;
        job.MinPart = request.ShortestPart;
        Long whole = 0;
        for (const OrderStrip& strip : strips.Strips) {
            if (strip.Width == 24) {
                whole += strip.Length;
            } else {
                job.Fills.push_back(
                    {strip.Width, strip.Length, strip.MayDivide ? request.MostParts : 1});
            }
        }
        const Order order = MakeOrderOf(project, request, 500);
        if (job.Fills.empty() || !order.Best) {
            continue;
        }
        ImproveRun run(job, {static_cast<Long>(StackedLength(job)) + 1, 1000, 0}, {0, 500, 1},
                       [](Long, Long) { return true; });
        Improve(run, 1);
        EXPECT_EQ(order.Candidates[0].Figures->LengthNeeded, whole + run.Best().Length);
        EXPECT_EQ(order.Candidates[0].Figures->LeastLength, whole + run.Bound());
    }
}

TEST(MakeOrder, RefusesDropsThatCannotMatch) {
    OrderRequest request = RequestFor(150);
    request.Pattern = {18, 0, false};
    Project project = ProjectOf({{100, 100}, {300, 100}});
    EXPECT_EQ(
        RefusalOf(project, request),
        "Room 2 cannot match: strips as wide as the roll lie beside each other in it, and the "
        "roll's usable width of 12'6\" is not a whole number of repeats of 1'6\" across.");
    project.Rooms[1].Remark = "HALL";
    EXPECT_EQ(RefusalOf(project, request).substr(0, 13), "Room 2 (HALL)");
    project.Rooms[1].Number = "12A";
    EXPECT_EQ(RefusalOf(project, request).substr(0, 12), "Room 2 (12A)");
    project.Rooms[1].Width = 200;
    EXPECT_TRUE(MakeOrderOf(project, request, 10).Best) << "one drop and a narrow fill can match";
}

TEST(MakeOrder, RefusesAFillWithoutAPlaceAcross) {
    OrderRequest request = RequestFor(144);
    request.Pattern = {32, 0, false};
    EXPECT_EQ(RefusalOf(ProjectOf({{285, 100}}), request),
              "Room 1 cannot match: its fill of 11'9\" has no place across the roll's usable width "
              "of 12'0\" by the repeat of 2'8\".");
    EXPECT_TRUE(MakeOrderOf(ProjectOf({{272, 100}}), request, 10).Best) << "at 16, 128 wide";
    EXPECT_FALSE(MakeOrderOf(ProjectOf({{273, 100}}), request, 10).Best);
}

TEST(MakeOrder, RefusesAStripThatIsTooLongWithItsTrim) {
    OrderRequest request = RequestFor(144);
    const Project project = ProjectOf({{100, 32767}});
    EXPECT_TRUE(MakeOrderOf(project, request, 10).Best);
    request.TrimAlong = 1;
    EXPECT_EQ(RefusalOf(project, request),
              "Room 1 is too long: with its trim a strip may be 2730'7\" long.");
}

TEST(MakeOrder, LaysARollOutThatIsLongerThanAnyStrip) {
    const Project project = ProjectOf({{144, 32767}, {144, 32767}, {144, 32767}});
    const Order order = MakeOrderOf(project, RequestFor(144), 10);
    EXPECT_EQ(order.Candidates[0].Figures->LengthNeeded, 3 * 32767);
}

TEST(MakeOrder, RefusesARollThatIsNoWiderThanItsSelvage) {
    OrderRequest request = RequestFor(12);
    request.Selvage = 6;
    EXPECT_EQ(RefusalOf(ProjectOf({{10, 10}}), request), "The roll is no wider than its selvage.");
    request.Rolls[0].Width = 13;
    EXPECT_TRUE(MakeOrderOf(ProjectOf({{1, 10}}), request, 10).Best);
}

TEST(MakeOrder, RefusesMoreStripsThanItCanLay) {
    EXPECT_EQ(RefusalOf(ProjectOf({{6002, 10}}), RequestFor(1)),
              "There are more than 6001 strips: choose a wider roll or order the rooms in two "
              "projects.");
    EXPECT_TRUE(MakeOrderOf(ProjectOf({{6001, 10}}), RequestFor(1), 10).Best);
}

TEST(MakeOrder, RefusesOneRowAndMakesTheOthers) {
    OrderRequest request = RequestFor(150);
    request.Rolls.push_back({144, "", "", std::nullopt});
    request.Lays = {Lay::Down, Lay::Cross};
    request.Pattern = {18, 24, false};
    const Order order = MakeOrderOf(ProjectOf({{300, 100}}), request);
    ASSERT_EQ(order.Candidates.size(), 4U);
    EXPECT_NE(order.Candidates[0].Refused, "");
    EXPECT_TRUE(order.Candidates[1].Figures) << "cross lay: no room is wider than the roll";
    EXPECT_TRUE(order.Candidates[2].Figures);
    EXPECT_TRUE(order.Candidates[3].Figures);
    EXPECT_EQ(order.Candidates[1].Direction, Lay::Cross);
    EXPECT_EQ(order.Candidates[2].Roll, 1U);
    EXPECT_TRUE(order.Best);
}

TEST(MakeOrder, HasNoBestRowWithoutARoom) {
    Project project = ProjectOf({{100, 100}, {0, 100}});
    project.Rooms[0].Covering = 3;
    const Order order = MakeOrderOf(project, RequestFor(144));
    ASSERT_EQ(order.Candidates.size(), 1U);
    EXPECT_EQ(order.Candidates[0].Refused, "");
    EXPECT_FALSE(order.Candidates[0].Figures);
    EXPECT_FALSE(order.Best);
    EXPECT_EQ(CheckOrder(project, order), "");
}

TEST(MakeOrder, RaisesForARequestWithAFault) {
    OrderRequest request = RequestFor(144);
    request.Pattern = {0, 25, true};
    OrderObserver nobody;
    try {
        MakeOrder(ProjectOf({{1, 1}}), 0, request, StepLimits(1), nobody);
        FAIL() << "nothing raised";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), InvalidCallNumber);
        EXPECT_EQ(error.Advice(), "A half drop needs an even pattern repeat along.");
    }
    Project full;
    full.Rooms.resize(RoomCapacity + 1);
    EXPECT_THROW(MakeOrder(full, 0, RequestFor(144), StepLimits(1), nobody), RunTimeError);
}

/// A job whose search would go on for long.
struct LongJob {
    Project Rooms;
    OrderRequest Request;

    LongJob() {
        std::mt19937 random(3);
        Rooms = RandomRooms(random, 1, 60);
        while (Rooms.Rooms.size() < 30) {
            Rooms.Rooms.push_back(RandomRooms(random, 1, 240).Rooms.front());
        }
        Request = RequestFor(144);
        Request.Rolls.push_back({162, "", "", std::nullopt});
        Request.Rolls.push_back({180, "", "", std::nullopt});
        Request.Lays = {Lay::Down, Lay::Cross};
        Request.TrimAlong = 3;
        Request.Pattern = {0, 25, false};
    }
};

TEST(MakeOrder, ByStepsIsTheSameOnAnyNumberOfCores) {
    LongJob job;
    job.Rooms.Rooms.resize(12);
    OrderObserver nobody;
    OrderLimits limits = StepLimits(testing::UnlessSanitized(6000, 1500), 5);
    limits.Threads = 1;
    const Order one = MakeOrder(job.Rooms, 0, job.Request, limits, nobody);
    for (const std::size_t threads : {0U, 2U, 5U, 40U}) {
        limits.Threads = threads;
        EXPECT_TRUE(one == MakeOrder(job.Rooms, 0, job.Request, limits, nobody)) << threads;
    }
    limits.Seed = 6;
    EXPECT_FALSE(one == MakeOrder(job.Rooms, 0, job.Request, limits, nobody));
}

/// Looks at what it is told, and calls the search off at a call of that number, or when it is first
/// told of a layout if that is later: on a busy machine none may be there yet.
class Watcher : public OrderObserver {
  public:
    Watcher(const Project& project, int last)
        : project_(project)
        , last_(last) {}

    bool Progress(const Order& soFar, bool changed) override {
        EXPECT_FALSE(hasCalledOff_);
        ++calls_;
        changes_ += changed ? 1 : 0;
        EXPECT_EQ(CheckOrder(project_, soFar), "");
        if (calls_ > 1 && !changed) {
            EXPECT_TRUE(soFar == lastSeen_);
        }
        for (std::size_t i = 0; i < lastSeen_.Candidates.size(); ++i) {
            ExpectNotWorse(soFar.Candidates[i], lastSeen_.Candidates[i]);
        }
        lastSeen_ = soFar;
        hasCalledOff_ = calls_ >= last_ && changes_ > 0;
        return !hasCalledOff_;
    }

    int Calls() const { return calls_; }
    int Changes() const { return changes_; }
    const Order& LastSeen() const { return lastSeen_; }

    static void ExpectNotWorse(const OrderCandidate& now, const OrderCandidate& before) {
        if (before.Figures) {
            ASSERT_TRUE(now.Figures);
            EXPECT_LE(now.Figures->LengthNeeded, before.Figures->LengthNeeded);
            EXPECT_GE(now.Figures->LeastLength, before.Figures->LeastLength);
        }
    }

  private:
    const Project& project_;
    int last_;
    int calls_ = 0;
    int changes_ = 0;
    bool hasCalledOff_ = false;
    Order lastSeen_;
};

TEST(MakeOrder, TellsWhatIsFoundAndStopsWhenItIsToldTo) {
    const LongJob job;
    OrderLimits limits;
    limits.Seconds = 600;
    for (const int last : {1, 2, 5}) {
        Watcher watcher(job.Rooms, last);
        const Order order = MakeOrder(job.Rooms, 0, job.Request, limits, watcher);
        EXPECT_GE(watcher.Calls(), last);
        EXPECT_GE(watcher.Changes(), 1);
        EXPECT_EQ(CheckOrder(job.Rooms, order), "");
        for (std::size_t i = 0; i < order.Candidates.size(); ++i) {
            EXPECT_TRUE(order.Candidates[i].Figures) << "each row has a layout all the same";
            Watcher::ExpectNotWorse(order.Candidates[i], watcher.LastSeen().Candidates[i]);
        }
        EXPECT_TRUE(order.Best);
    }
}

TEST(MakeOrder, HasAPlainLayoutOfEachRowInNoTimeAtAll) {
    const LongJob job;
    OrderObserver nobody;
    const Order order = MakeOrder(job.Rooms, 0, job.Request, {}, nobody);
    for (const OrderCandidate& row : order.Candidates) {
        EXPECT_TRUE(row.Figures);
    }
    EXPECT_EQ(CheckOrder(job.Rooms, order), "");
}

TEST(MakeOrder, EndsBeforeItsTimeWhenEachRowIsTheLeast) {
    OrderObserver nobody;
    OrderLimits limits;
    limits.Seconds = 600;
    const Order order = MakeOrder(ProjectOf({{144, 100}}), 0, RequestFor(144), limits, nobody);
    EXPECT_EQ(order.Candidates[0].Figures->LengthNeeded, 100);
    EXPECT_EQ(order.Candidates[0].Figures->LeastLength, 100);
}

TEST(MakeOrder, RaisesWhatTheObserverRaises) {
    class Angry : public OrderObserver {
      public:
        bool Progress(const Order& /*soFar*/, bool /*changed*/) override {
            throw std::runtime_error("the caller's own");
        }
    };
    const LongJob job;
    Angry angry;
    OrderLimits limits;
    limits.Seconds = 600;
    EXPECT_THROW(MakeOrder(job.Rooms, 0, job.Request, limits, angry), std::runtime_error);
}

} // namespace
} // namespace tarn
