#include "engine/Cases.h"
#include "engine/EngineTesting.h"

#include <gtest/gtest.h>

#include <vector>

namespace tarn {
namespace {

using testing::MakeJob;
using Numbers = std::vector<Integer>;

TEST(AlternativesOf, OnePartPerPieceGivesOneCase) {
    const SearchJob job = MakeJob(144, {{10, 100}, {10, 100}});
    const Numbers alternatives = AlternativesOf(job.Pieces, 1, 300);
    EXPECT_EQ(alternatives, (Numbers{1, 1}));
    EXPECT_EQ(CountCases(alternatives), 1);
}

TEST(AlternativesOf, AboutEightyCasesWhateverTheOptions) {
    const struct {
        Integer MostParts;
        Long Cases;
    } rows[] = {{2, 64}, {3, 81}, {4, 64}, {5, 125}, {6, 36}, {10, 100}};
    SearchJob job = MakeJob(144);
    for (int i = 0; i < 12; ++i) {
        testing::AddPiece(job, {10, 100});
    }
    for (const auto& row : rows) {
        EXPECT_EQ(CountCases(AlternativesOf(job.Pieces, row.MostParts, 300)), row.Cases)
            << row.MostParts << " parts";
    }
}

TEST(AlternativesOf, APieceHasAsManyAsMinimumCutsFit) {
    SearchJob job = MakeJob(144, {{10, 8.98}, {10, 8.99}, {10, 3}, {10, 100}, {10, 100}});
    job.Pieces[3].IsDivisible = false;
    const Numbers alternatives = AlternativesOf(job.Pieces, 3, 300);
    // 898 + 1 is a unit short of 3 × 300, 899 + 1 is not; the fourth is not divisible; the fifth is
    // beyond those that vary.
    EXPECT_EQ(alternatives, (Numbers{2, 3, 1, 1, 1}));
    EXPECT_EQ(CountCases(alternatives), 2 * 3);
}

TEST(AlternativesOf, APieceShorterThanTheMinimumCutLeavesNoCase) {
    const SearchJob job = MakeJob(144, {{10, 100}, {10, 2.98}});
    const Numbers alternatives = AlternativesOf(job.Pieces, 2, 300);
    EXPECT_EQ(alternatives, (Numbers{2, 0}));
    EXPECT_EQ(CountCases(alternatives), 0);
}

TEST(FirstPassCase, EveryCaseOfTheMixedRadixComesOnceTheFirstPieceFastest) {
    const Long expectedParts[] = {3, 4, 5, 4, 5, 6};
    std::vector<CaseCuts> seen;
    CaseCuts cuts;
    for (Long number = 0; number < 6; ++number) {
        EXPECT_EQ(FirstPassCase(number, {3, 1, 2}, cuts), expectedParts[number]);
        seen.push_back(cuts);
    }
    EXPECT_EQ(seen, (std::vector<CaseCuts>{
                        {0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {0, 0, 1}, {1, 0, 1}, {2, 0, 1}}));
}

TEST(SecondPassCase, DividesEachPieceByItsLengthAtMostAsOftenAsTheCaseSays) {
    SearchJob job = MakeJob(144, {{1, 2.99}, {1, 5.99}, {1, 6}, {1, 9}, {1, 100}, {1, 100}});
    job.Pieces[5].IsDivisible = false;
    const std::vector<CaseCuts> expected{
        {0, 0, 0, 0, 0, 0}, {0, 0, 1, 1, 1, 0}, {0, 0, 1, 2, 2, 0}, {0, 0, 1, 2, 3, 0}};
    const Long parts[] = {6, 9, 11, 12};
    CaseCuts cuts;
    for (Integer most = 0; most < 4; ++most) {
        EXPECT_EQ(SecondPassCase(most, job.Pieces, 300, cuts), parts[most]);
        EXPECT_EQ(cuts, expected[static_cast<std::size_t>(most)]) << most;
    }
}

} // namespace
} // namespace tarn
