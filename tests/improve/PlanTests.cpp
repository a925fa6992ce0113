#include "Sanitized.h"
#include "improve/ImproveTesting.h"
#include "improve/PartPlan.h"
#include "improve/WholePlan.h"

#include <gtest/gtest.h>

#include <memory>

namespace tarn {
namespace {

using testing::FaultOf;

std::unique_ptr<Plan> PlanOf(const ImproveJob& job, bool divides) {
    if (divides) {
        return std::make_unique<PartPlan>(job);
    }
    return std::make_unique<WholePlan>(job);
}

/// Changes plans of random jobs; `look` is called after each change.
template <typename Look>
void ForChangedPlans(bool divides, Look look) {
    for (unsigned seed = 1; seed <= 30; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const ImproveJob job = testing::RandomFills(random, 20, 12, divides ? 4 : 1);
        SCOPED_TRACE(testing::Describe(job));
        const std::unique_ptr<Plan> plan = PlanOf(job, divides);
        RandomSteps steps(seed);
        for (std::size_t order = 0; order < plan->Orders(); ++order) {
            plan->Begin(order, PlacingRule::Number(order % PlacingRule::Count));
            for (int step = 0; step < 15; ++step) {
                look(job, *plan, steps);
                plan->Change(steps, true);
            }
        }
    }
}

class EveryPlan : public ::testing::TestWithParam<bool> {};
INSTANTIATE_TEST_SUITE_P(WholeAndParts, EveryPlan, ::testing::Bool());

TEST_P(EveryPlan, LaysEveryFillOutWhole) {
    ForChangedPlans(GetParam(), [](const ImproveJob& job, Plan& plan, RandomSteps&) {
        const Area64 length = plan.Length(LongestRoll);
        const std::vector<ImprovePart> parts = plan.Layout();
        EXPECT_EQ(FaultOf(job, parts), "");
        EXPECT_EQ(MeritOf(job, parts).Length, length);
    });
}

TEST_P(EveryPlan, TellsTheAreaThatStaysUnpackedBelowARoof) {
    ForChangedPlans(GetParam(), [](const ImproveJob& job, Plan& plan, RandomSteps& steps) {
        const Area64 least = TotalArea(job) / job.Width + 1;
        const Long roof = static_cast<Long>(least + steps.Below(8));
        const Area64 unpacked = plan.Unpacked(roof, NoLimit);
        Area64 packed = 0;
        for (const ImprovePart& part : plan.Layout()) {
            EXPECT_LE(part.Y + part.Length, roof);
            packed += static_cast<Area64>(job.Fills[part.Fill].Width) * part.Length;
        }
        EXPECT_EQ(packed + unpacked, TotalArea(job));
        if (unpacked == 0) {
            EXPECT_EQ(FaultOf(job, plan.Layout()), "");
        }
    });
}

TEST_P(EveryPlan, GivesUpOnlyAboveTheLimit) {
    ForChangedPlans(GetParam(), [](const ImproveJob& job, Plan& plan, RandomSteps& steps) {
        const Area64 length = plan.Length(LongestRoll);
        const Area64 limit = length - 2 + steps.Below(5);
        const Area64 limited = plan.Length(limit);
        EXPECT_EQ(limited <= limit, length <= limit);
        if (length <= limit) {
            EXPECT_EQ(limited, length);
        }
        const Long roof = static_cast<Long>(TotalArea(job) / job.Width + 1 + steps.Below(8));
        const Area64 unpacked = plan.Unpacked(roof, NoLimit);
        const Area64 most = std::max<Area64>(0, unpacked - 2 + steps.Below(5));
        const Area64 bounded = plan.Unpacked(roof, most);
        EXPECT_EQ(bounded <= most, unpacked <= most);
        if (unpacked <= most) {
            EXPECT_EQ(bounded, unpacked);
        }
    });
}

TEST_P(EveryPlan, UndoneAndCopiedPlansGiveTheSame) {
    ForChangedPlans(GetParam(), [](const ImproveJob&, Plan& plan, RandomSteps& steps) {
        const Area64 before = plan.Length(LongestRoll);
        const std::unique_ptr<Plan> copy = plan.Copy();
        plan.Change(steps, true);
        plan.Length(LongestRoll);
        plan.Undo();
        EXPECT_EQ(plan.Length(LongestRoll), before);
        EXPECT_EQ(copy->Length(LongestRoll), before);
        plan.Change(steps, true);
        plan.TakeFrom(*copy);
        EXPECT_EQ(plan.Length(LongestRoll), before);
    });
}

/// A changed plan that has forgotten how it was laid out before.
std::unique_ptr<Plan> ChangedAndForgetful(const Plan& plan, RandomSteps steps) {
    std::unique_ptr<Plan> other = plan.Copy();
    other->Change(steps, true);
    other->Change(steps, true);
    other->Undo();
    return other;
}

void ExpectSameLayout(const Plan& plan, const Plan& other) {
    const std::vector<ImprovePart> parts = plan.Layout();
    const std::vector<ImprovePart> others = other.Layout();
    ASSERT_EQ(parts.size(), others.size());
    for (std::size_t i = 0; i < parts.size(); ++i) {
        EXPECT_EQ(parts[i].Fill, others[i].Fill);
        EXPECT_EQ(parts[i].X, others[i].X);
        EXPECT_EQ(parts[i].Y, others[i].Y);
        EXPECT_EQ(parts[i].Length, others[i].Length);
    }
}

// Steps that a change leaves as they were are not laid out again; nothing may depend on that.
TEST_P(EveryPlan, LaysAChangedPlanOutAsIfItWereNew) {
    for (unsigned seed = 1; seed <= testing::UnlessSanitized(60U, 15U); ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const ImproveJob job = testing::RandomFills(random, 20, 12, GetParam() ? 4 : 1);
        SCOPED_TRACE(testing::Describe(job));
        const std::unique_ptr<Plan> plan = PlanOf(job, GetParam());
        RandomSteps steps(seed);
        plan->Begin(seed % plan->Orders(), PlacingRule::Number(seed % PlacingRule::Count));
        const Long roof = static_cast<Long>(TotalArea(job) / job.Width + 1 + steps.Below(8));
        const bool length = seed % 3 == 0;
        const auto score = [&](Plan& one, Area64 limit) {
            return length ? one.Length(std::min(limit, LongestRoll)) : one.Unpacked(roof, limit);
        };
        Area64 before = score(*plan, NoLimit);
        for (int step = 0; step < 150; ++step) {
            const bool limited = steps.Below(3) == 0;
            const std::unique_ptr<Plan> fresh = ChangedAndForgetful(*plan, steps);
            plan->Change(steps, true);
            const Area64 changed = score(*plan, limited ? before : NoLimit);
            ASSERT_EQ(changed, score(*fresh, limited ? before : NoLimit));
            const bool whole = !limited || changed <= before;
            if (whole) {
                ExpectSameLayout(*plan, *fresh);
            }
            // What is changed next may depend on what was laid.
            const std::unique_ptr<Plan> next = ChangedAndForgetful(*plan, steps);
            const std::unique_ptr<Plan> freshNext = ChangedAndForgetful(*fresh, steps);
            ASSERT_EQ(score(*next, NoLimit), score(*freshNext, NoLimit));
            if (!whole || steps.Below(3) == 0) {
                plan->Undo();
            } else {
                before = changed;
            }
        }
    }
}

TEST(WholePlan, ChangesNothingWhereAllFillsAreEqual) {
    const ImproveJob job{12, 1, 1, 100, {{5, 7, 1}, {5, 7, 1}, {5, 7, 1}}};
    WholePlan plan(job);
    plan.Begin(0, {});
    RandomSteps random(1);
    for (int step = 0; step < 50; ++step) {
        plan.Change(random, false);
        EXPECT_EQ(plan.Length(LongestRoll), 14);
    }
}

//   0     6     12
// 0 +-----+-----+
//   |  a  |  a  |     a fill of 6 x 20 in two parts
// 10+-----+-----+
TEST(PartPlan, BeginsWithEqualPartsToo) {
    const ImproveJob job{12, 3, 1, 100, {{6, 20, 2}}};
    PartPlan plan(job);
    EXPECT_EQ(plan.Orders(), 10U);
    plan.Begin(0, {});
    EXPECT_EQ(plan.Length(LongestRoll), 20) << "undivided";
    plan.Begin(5, {});
    EXPECT_EQ(plan.Length(LongestRoll), 10);
    EXPECT_EQ(plan.Layout().size(), 2U);
}

//   +------+--+
//   |  a   |b |
//   +--+---+  |     A piece cut into five, and the largest of them again: such layouts cannot be
//   |d | e |  |     cut apart from edge to edge.
//   |  +---+--+
//   |  |  c   |
//   +--+------+
void CutIntoFive(std::mt19937& random, std::vector<ImproveFill>& pieces) {
    const auto larger = [](const ImproveFill& a, const ImproveFill& b) {
        return a.Width * a.Length < b.Width * b.Length;
    };
    const auto whole = std::max_element(pieces.begin(), pieces.end(), larger);
    const Long width = whole->Width;
    const Long length = whole->Length;
    pieces.erase(whole);
    const Long left = testing::Between(random, 1, width / 2);
    const Long right = testing::Between(random, left + 1, width - 1);
    const Long begin = testing::Between(random, 1, length / 2);
    const Long end = testing::Between(random, begin + 1, length - 1);
    pieces.insert(pieces.end(), {{right, begin, 1},
                                 {width - right, end, 1},
                                 {width - left, length - end, 1},
                                 {left, length - begin, 1},
                                 {right - left, end - begin, 1}});
}

/// A square cut into 21 pieces: it can be laid without any gap.
ImproveJob CutSquare(unsigned seed) {
    constexpr Long Side = 200;
    std::mt19937 random(seed);
    ImproveJob job{Side, 1, 1, 100, {{Side, Side, 1}}};
    for (int times = 0; times < 5; ++times) {
        CutIntoFive(random, job.Fills);
    }
    return job;
}

TEST(WholePlan, DeparturesReachLayoutsThatNoOrderGives) {
    const auto squares = [](bool departures) {
        int count = 0;
        for (unsigned seed = 1; seed <= 40; ++seed) {
            const ImproveJob job = CutSquare(seed);
            WholePlan plan(job);
            RandomSteps random(seed);
            plan.Begin(0, {});
            Area64 unpacked = plan.Unpacked(job.Width, NoLimit);
            for (int step = 0; unpacked > 0 && step < 10000; ++step) {
                plan.Change(random, departures);
                const Area64 changed = plan.Unpacked(job.Width, unpacked);
                if (changed <= unpacked) {
                    unpacked = changed;
                } else {
                    plan.Undo();
                }
            }
            count += unpacked == 0 ? 1 : 0;
        }
        return count;
    };
    EXPECT_GT(squares(true), squares(false));
}

// The first part ends at the roof, the second lies beside it.
TEST(PartPlan, CutsAtTheRoofWhereTheFillMayBeDivided) {
    const ImproveJob job{12, 3, 1, 100, {{6, 20, 2}}};
    PartPlan plan(job);
    plan.Begin(0, {});
    EXPECT_EQ(plan.Unpacked(16, NoLimit), 0);
    EXPECT_EQ(plan.Layout().at(0).Length, 16);
    EXPECT_EQ(plan.Layout().at(1).Length, 4);
    EXPECT_GT(plan.Unpacked(18, NoLimit), 0) << "the rest of 2 is shorter than the minimum part";
}

TEST(PartPlan, CutsAtWholeSteps) {
    const ImproveJob job{12, 3, 5, 100, {{6, 23, 3}, {6, 7, 1}}};
    PartPlan plan(job);
    RandomSteps random(3);
    plan.Begin(0, {});
    int divided = 0;
    for (int step = 0; step < 2000; ++step) {
        plan.Change(random, true);
        if (plan.Unpacked(17, NoLimit) > 0) {
            continue;
        }
        int broken = 0;
        int parts = 0;
        for (const ImprovePart& part : plan.Layout()) {
            broken += part.Fill == 0 && part.Length % 5 != 0 ? 1 : 0;
            parts += part.Fill == 0 ? 1 : 0;
        }
        EXPECT_EQ(broken, 1) << "23 is no whole number of steps: one part is not";
        divided += parts > 1 ? 1 : 0;
    }
    EXPECT_GT(divided, 0);
}

} // namespace
} // namespace tarn
