#include "improve/ImproveTesting.h"
#include "improve/OpenFills.h"

#include <gtest/gtest.h>

#include <optional>

namespace tarn {
namespace {

using testing::Between;

/// The same questions, answered from the rules of a turn by looking at every fill.
class PlainOpenFills {
  public:
    PlainOpenFills(const ImproveJob& job, const PartTurns& turns)
        : job_(job)
        , turns_(turns) {}

    /// The length of a fill's next part; nothing when it does not fit.
    std::optional<Long> Length(std::size_t fill, const Walls& walls, Long room) const {
        const PartTurn& turn = turns_.NextOf(fill);
        const Long rest = turns_.StateOf(fill).Rest;
        Long wanted = rest;
        if (turn.Rule == PartCut::ToTall) {
            wanted = turns_.WholeSteps(walls.Tall);
        } else if (turn.Rule == PartCut::ToShort) {
            wanted = turns_.WholeSteps(walls.Short);
        } else if (turn.Rule == PartCut::OfLength) {
            wanted = turn.Length;
        }
        if (wanted != rest && !turns_.MayCut(fill, wanted)) {
            wanted = rest;
        }
        if (wanted > room && turns_.MayCut(fill, turns_.WholeSteps(room))) {
            wanted = turns_.WholeSteps(room);
        }
        return wanted <= room ? std::optional(wanted) : std::nullopt;
    }

    OpenFills::Choice Choose(Long gapWidth, const Walls& walls, Long room, Long widest,
                             Long longest) const {
        return Best(gapWidth, walls, room, false, [&](const OpenFills::Choice& choice) {
            return choice.Fit != FitClass::Fits ||
                   (job_.Fills[choice.Fill].Width <= widest && choice.Length <= longest);
        });
    }
    OpenFills::Choice First(Long gapWidth, const Walls& walls, Long room) const {
        return Best(gapWidth, walls, room, true, [](const OpenFills::Choice&) { return true; });
    }

  private:
    template <typename Allowed>
    OpenFills::Choice Best(Long gapWidth, const Walls& walls, Long room, bool byPlace,
                           Allowed allowed) const {
        OpenFills::Choice best;
        for (std::size_t fill = 0; fill < job_.Fills.size(); ++fill) {
            const Long width = job_.Fills[fill].Width;
            if (turns_.StateOf(fill).Rest == 0 || width > gapWidth) {
                continue;
            }
            const std::optional<Long> length = Length(fill, walls, room);
            if (!length) {
                continue;
            }
            const OpenFills::Choice choice{fill, ClassOf(width == gapWidth, *length, walls),
                                           turns_.NextOf(fill).Place, *length};
            const bool better = best.Fit == FitClass::None ||
                                (byPlace ? choice.Place < best.Place : choice.BetterThan(best));
            if (allowed(choice) && better) {
                best = choice;
            }
        }
        return best;
    }

    const ImproveJob& job_;
    const PartTurns& turns_;
};

void ExpectSame(const OpenFills::Choice& choice, const OpenFills::Choice& expected) {
    EXPECT_EQ(choice.Fit, expected.Fit);
    if (expected.Fit != FitClass::None) {
        EXPECT_EQ(choice.Place, expected.Place);
    }
}

/// A large unit too, so that widths are searched instead of looked up.
class OpenFillsAgainstPlain : public ::testing::TestWithParam<Long> {};
INSTANTIATE_TEST_SUITE_P(Units, OpenFillsAgainstPlain, ::testing::Values(1, 1000));

TEST_P(OpenFillsAgainstPlain, AnswersTheSame) {
    const Long unit = GetParam();
    int laid = 0;
    for (unsigned seed = 1; seed <= 40; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        ImproveJob job = testing::RandomFills(random, 90, 12, 4, 40);
        job.CutStep = Between(random, 1, 3);
        for (ImproveFill& fill : job.Fills) {
            fill.Width *= unit;
        }
        job.Width *= unit;
        PartTurns turns(job);
        OpenFills open(job);
        const PlainOpenFills plain(job, turns);
        RandomSteps steps(seed);
        turns.Begin(steps.Below(turns.Orders()));
        for (int change = 0; change < 200; ++change) {
            turns.Change(steps);
        }
        turns.ResetStates();
        open.OpenAll(turns);
        while (open.Any()) {
            const Long width = Between(random, 1, 12) * unit;
            const Long room = Between(random, 1, 45);
            const Gap gap{0, 0, 0, width, Between(random, 1, 40), Between(random, 1, 40)};
            const Walls walls(gap, room);
            const Long widest = width - Between(random, 0, 1) * Between(random, 0, 4) * unit;
            const Long longest = Between(random, 0, 1) == 0 ? room : walls.Tall;
            const OpenFills::Choice first = open.First(width, walls, room);
            const OpenFills::Choice earliest = plain.First(width, walls, room);
            EXPECT_EQ(first.Fit == FitClass::None, earliest.Fit == FitClass::None);
            EXPECT_EQ(first.Place, earliest.Place);
            const OpenFills::Choice choice = open.Choose(width, walls, room, widest, longest);
            ExpectSame(choice, plain.Choose(width, walls, room, widest, longest));
            if (choice.Fit != FitClass::None) {
                EXPECT_EQ(choice.Length, plain.Length(choice.Fill, walls, room));
                turns.Advance(choice.Fill, choice.Length);
                open.Laid(choice.Fill, turns);
                ++laid;
            }
        }
    }
    EXPECT_GT(laid, 1000);
}

TEST(OpenFills, TheNarrowestIsThatOfTheOpenFills) {
    const ImproveJob job{12, 1, 1, 100, {{5, 1, 1}, {3, 1, 1}, {9, 1, 1}}};
    PartTurns turns(job);
    turns.Begin(0);
    OpenFills open(job);
    open.OpenAll(turns);
    EXPECT_EQ(open.Narrowest(), 3);
    turns.Advance(1, 1);
    open.Laid(1, turns);
    EXPECT_EQ(open.Narrowest(), 5);
    turns.ResetStates();
    open.OpenAll(turns);
    EXPECT_EQ(open.Narrowest(), 3);
}

} // namespace
} // namespace tarn
