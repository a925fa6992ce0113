#include "improve/ImproveTesting.h"
#include "improve/RankedFills.h"

#include <gtest/gtest.h>

#include <numeric>
#include <set>

namespace tarn {
namespace {

using testing::Between;

/// The same questions, answered by looking at every rank.
class PlainRankedFills {
  public:
    PlainRankedFills(const ImproveJob& job, std::vector<std::size_t> order)
        : Order(std::move(order))
        , job_(job) {}

    std::vector<std::size_t> Order;
    std::set<std::size_t> Taken;

    RankedFills::Choice Choose(Long gapWidth, const Walls& walls, Long room, Long widest,
                               Long longest) const {
        const RankedFills::Choice filling = Filling(gapWidth, room, walls);
        if (filling.Fit != FitClass::None) {
            return filling;
        }
        const auto first = [&](Long most, Long least, Long length, FitClass fit) {
            const std::size_t rank = First([&](const ImproveFill& f) {
                return f.Width <= most && f.Length <= length && f.Length >= least;
            });
            return rank != RankedFills::NoRank ? RankedFills::Choice{rank, fit}
                                               : RankedFills::Choice{};
        };
        for (const RankedFills::Choice& choice :
             {first(gapWidth, walls.Tall, walls.Tall, FitClass::LevelTall),
              first(gapWidth, walls.Short, walls.Short, FitClass::LevelShort),
              first(widest, 0, longest, FitClass::Fits)}) {
            if (choice.Fit != FitClass::None) {
                return choice;
            }
        }
        return {};
    }
    RankedFills::Choice Earliest(Long gapWidth, const Walls& walls, Long room) const {
        const std::size_t rank =
            First([&](const ImproveFill& f) { return f.Width <= gapWidth && f.Length <= room; });
        if (rank == RankedFills::NoRank) {
            return {};
        }
        const ImproveFill& fill = job_.Fills[Order[rank]];
        return {rank, ClassOf(fill.Width == gapWidth, fill.Length, walls)};
    }
    RankedFills::Choice Filling(Long width, Long longest, const Walls& walls) const {
        RankedFills::Choice best;
        for (std::size_t rank = 0; rank < Order.size(); ++rank) {
            const ImproveFill& fill = job_.Fills[Order[rank]];
            if (Taken.count(rank) == 0 && fill.Width == width && fill.Length <= longest) {
                const FitClass fit = ClassOf(true, fill.Length, walls);
                best = fit < best.Fit ? RankedFills::Choice{rank, fit} : best;
            }
        }
        return best;
    }

  private:
    template <typename Wanted>
    std::size_t First(Wanted wanted) const {
        for (std::size_t rank = 0; rank < Order.size(); ++rank) {
            if (Taken.count(rank) == 0 && wanted(job_.Fills[Order[rank]])) {
                return rank;
            }
        }
        return RankedFills::NoRank;
    }

    const ImproveJob& job_;
};

/// A large unit too, so that values are searched instead of looked up.
class RankedFillsAgainstPlain : public ::testing::TestWithParam<Long> {};

TEST_P(RankedFillsAgainstPlain, AnswersTheSame) {
    const Long unit = GetParam();
    for (unsigned seed = 1; seed <= 40; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        ImproveJob job = testing::RandomFills(random, 150, 12, 1, 9);
        for (ImproveFill& fill : job.Fills) {
            fill.Width *= unit;
            fill.Length *= unit;
        }
        std::vector<std::size_t> order(job.Fills.size());
        std::iota(order.begin(), order.end(), std::size_t{0});
        RankedFills fills(job);
        fills.Rank(order);
        PlainRankedFills plain(job, order);
        const auto count = static_cast<Long>(order.size());
        for (int step = 0; step < 100; ++step) {
            const auto a = static_cast<std::size_t>(Between(random, 0, count - 1));
            const auto b = static_cast<std::size_t>(Between(random, 0, count - 1));
            if (Between(random, 0, 2) > 0) {
                fills.TakeNone();
                fills.Exchange(a, b);
                std::swap(plain.Order[a], plain.Order[b]);
                plain.Taken.clear();
            } else if (plain.Taken.count(a) == 0 && plain.Taken.size() + 1 < order.size()) {
                fills.Take(a);
                plain.Taken.insert(a);
            }
            const Long width = Between(random, 0, 13) * unit;
            const Long room = Between(random, 1, 10) * unit;
            const Gap gap{
                0, 0, 0, width, Between(random, 1, 9) * unit, Between(random, 1, 9) * unit};
            const Walls walls(gap, room);
            const Long widest = width - Between(random, 0, 1) * Between(random, 0, 4) * unit;
            const Long longest = Between(random, 0, 1) == 0 ? room : walls.Tall;
            const RankedFills::Choice choice = fills.Choose(width, walls, room, widest, longest);
            const RankedFills::Choice expected = plain.Choose(width, walls, room, widest, longest);
            EXPECT_EQ(choice.Rank, expected.Rank);
            EXPECT_EQ(choice.Fit, expected.Fit);
            const RankedFills::Choice first = fills.First(width, walls, room);
            const RankedFills::Choice earliest = plain.Earliest(width, walls, room);
            EXPECT_EQ(first.Rank, earliest.Rank);
            EXPECT_EQ(first.Fit, earliest.Fit);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Units, RankedFillsAgainstPlain, ::testing::Values(1, 1000));

TEST(RankedFills, TellsTheAreaOfTheRemainingThatAreTooLong) {
    const ImproveJob job{12, 1, 1, 100, {{2, 9, 1}, {3, 9, 1}, {5, 7, 1}, {4, 2, 1}}};
    RankedFills fills(job);
    fills.Rank({0, 1, 2, 3});
    EXPECT_EQ(fills.TooLong(9), 0);
    fills.Take(1);
    EXPECT_EQ(fills.TooLong(8), 18) << "2 x 9";
    EXPECT_EQ(fills.TooLong(7), 18);
    fills.Take(3);
    EXPECT_EQ(fills.TooLong(0), 53) << "and 5 x 7, but not 4 x 2, which is taken";
    EXPECT_EQ(fills.TooLong(-3), 53);
    fills.TakeNone();
    EXPECT_EQ(fills.TooLong(8), 45) << "both of 9";
}

TEST(RankedFills, TheNarrowestIsThatOfTheRemaining) {
    const ImproveJob job{12, 1, 1, 100, {{5, 1, 1}, {3, 1, 1}, {3, 2, 1}, {9, 1, 1}}};
    RankedFills fills(job);
    fills.Rank({3, 2, 1, 0});
    EXPECT_EQ(fills.Narrowest(), 3);
    fills.Take(1);
    EXPECT_EQ(fills.Narrowest(), 3);
    fills.Take(2);
    EXPECT_EQ(fills.Narrowest(), 5);
    fills.TakeNone();
    EXPECT_EQ(fills.Narrowest(), 3);
}

TEST(FitClass, NamesHowAPartFitsBetweenTheWalls) {
    const Walls walls(Gap{0, 0, 0, 10, 4, 7}, 100);
    EXPECT_EQ(walls.Tall, 7);
    EXPECT_EQ(walls.Short, 4);
    EXPECT_FALSE(walls.TallIsLeft);
    EXPECT_EQ(ClassOf(true, 7, walls), FitClass::FillsLevelTall);
    EXPECT_EQ(ClassOf(true, 4, walls), FitClass::FillsLevelShort);
    EXPECT_EQ(ClassOf(true, 3, walls), FitClass::FillsBelow);
    EXPECT_EQ(ClassOf(true, 5, walls), FitClass::FillsBetween);
    EXPECT_EQ(ClassOf(true, 8, walls), FitClass::FillsAbove);
    EXPECT_EQ(ClassOf(false, 7, walls), FitClass::LevelTall);
    EXPECT_EQ(ClassOf(false, 4, walls), FitClass::LevelShort);
    EXPECT_EQ(ClassOf(false, 5, walls), FitClass::Fits);
    EXPECT_TRUE(StandsLeft(FitClass::LevelShort, walls)) << "beside the wall it is as long as";
    EXPECT_FALSE(StandsLeft(FitClass::LevelTall, walls));
    EXPECT_FALSE(StandsLeft(FitClass::Fits, walls)) << "else beside the taller";
}

TEST(FitClass, TheRoofCutsTheWallsOff) {
    const Walls walls(Gap{0, 0, 0, 10, NoWall, 7}, 5);
    EXPECT_EQ(walls.Tall, 5);
    EXPECT_EQ(walls.Short, 5);
    EXPECT_TRUE(walls.TallIsLeft);
}

} // namespace
} // namespace tarn
