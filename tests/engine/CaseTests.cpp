#include "app/RunTimeError.h"
#include "engine/Cases.h"
#include "engine/Division.h"
#include "engine/EngineTesting.h"

#include <gtest/gtest.h>

#include <vector>

namespace tarn {
namespace {

using testing::MakeEngine;

int NumberOfError(const SharedState& state) {
    EngineArrays engine = MakeEngine(144);
    try {
        DecodeOptions(state, engine);
    } catch (const RunTimeError& error) {
        return error.Number();
    }
    return 0;
}

TEST(DecodeOptions, PiecesPerFillAreTheUnitsPlusOne) {
    SharedState state;
    for (Integer option = 0; option < 30; ++option) {
        state.EstOption = option;
        EngineArrays engine = MakeEngine(144);
        DecodeOptions(state, engine);
        EXPECT_EQ(engine.MaxParts, option % 10 + 1);
    }
}

TEST(DecodeOptions, TheFeetOfTheOptionCountAsInches) {
    SharedState state;
    EngineArrays engine = MakeEngine(144);
    const Integer imperial[] = {300, 150, 50};
    const Integer metric[] = {762, 381, 127};
    for (Integer choice = 0; choice < 3; ++choice) {
        state.EstOption = static_cast<Integer>(10 * choice + 5);
        state.MetricFlag = 0;
        DecodeOptions(state, engine);
        EXPECT_EQ(engine.MinCut, imperial[choice]);
        state.MetricFlag = 1;
        DecodeOptions(state, engine);
        EXPECT_EQ(engine.MinCut, metric[choice]);
    }
}

TEST(DecodeOptions, MetricRoundsHalfToEvenAndImperialTruncates) {
    SharedState state;
    EngineArrays engine = MakeEngine(144);
    state.MinCutLen[0] = 0.2599F;
    DecodeOptions(state, engine);
    EXPECT_EQ(engine.MinCut, 25);
    state.MetricFlag = 1;
    DecodeOptions(state, engine);
    EXPECT_EQ(engine.MinCut, 66); // 66.01
    state.MinCutLen[0] = 0.125F;
    DecodeOptions(state, engine);
    EXPECT_EQ(engine.MinCut, 32); // 31.75
}

TEST(DecodeOptions, AMinimumCutOfZeroIsADivisionByZero) {
    SharedState state;
    for (Integer option = 30; option < 40; ++option) {
        state.EstOption = option;
        EXPECT_EQ(NumberOfError(state), DivisionByZeroNumber);
    }
}

TEST(DecodeOptions, AnOptionBeyondTheMinimumCutsIsASubscriptError) {
    SharedState state;
    for (const Integer option : {Integer{40}, Integer{55}, Integer{32767}, Integer{-1}}) {
        state.EstOption = option;
        EXPECT_EQ(NumberOfError(state), SubscriptNumber) << option;
    }
}

TEST(GetTotalCase, OnePartPerPieceGivesOneCase) {
    EngineArrays engine = MakeEngine(144, {{10, 100}, {10, 100}});
    engine.MaxParts = 1;
    engine.MinCut = 300;
    EXPECT_EQ(GetTotalCase(engine), 1);
    EXPECT_EQ(engine.CaseRadix[0], 1);
    EXPECT_EQ(engine.CaseRadix[1], 1);
}

TEST(GetTotalCase, AboutEightyCasesWhateverTheOptions) {
    const struct {
        Integer MaxParts;
        Long Cases;
    } rows[] = {{2, 64}, {3, 81}, {4, 64}, {5, 125}, {6, 36}, {10, 100}};
    for (const auto& row : rows) {
        EngineArrays engine = MakeEngine(144);
        for (int i = 0; i < 12; ++i) {
            testing::AddPiece(engine, {10, 100});
        }
        engine.MaxParts = row.MaxParts;
        engine.MinCut = 300;
        EXPECT_EQ(GetTotalCase(engine), row.Cases) << row.MaxParts << " parts";
        EXPECT_EQ(engine.CaseCount, row.Cases);
    }
}

TEST(GetTotalCase, APieceHasAsManyAlternativesAsMinimumCutsFit) {
    EngineArrays engine = MakeEngine(144, {{10, 8.98}, {10, 8.99}, {10, 3}, {10, 100}, {10, 100}});
    engine.PCDivide[3] = 0;
    engine.MaxParts = 3;
    engine.MinCut = 300;
    EXPECT_EQ(GetTotalCase(engine), 2 * 3);
    EXPECT_EQ(engine.CaseRadix[0], 2); // 898 + 1 is a unit short of 3 × 300
    EXPECT_EQ(engine.CaseRadix[1], 3); // 899 + 1
    EXPECT_EQ(engine.CaseRadix[2], 1);
    EXPECT_EQ(engine.CaseRadix[3], 1) << "not divisible";
    EXPECT_EQ(engine.CaseRadix[4], 1) << "beyond those that vary";
}

TEST(GetTotalCase, APieceShorterThanTheMinimumCutLeavesNoCase) {
    EngineArrays engine = MakeEngine(144, {{10, 100}, {10, 2.98}});
    engine.MaxParts = 2;
    engine.MinCut = 300;
    EXPECT_EQ(GetTotalCase(engine), 0);
    EXPECT_EQ(engine.CaseRadix[1], 0);
}

TEST(DecodeCase, EveryCaseOfTheMixedRadixComesOnceTheFirstPieceFastest) {
    EngineArrays engine = MakeEngine(144, {{1, 1}, {1, 1}, {1, 1}});
    engine.CaseRadix[0] = 3;
    engine.CaseRadix[1] = 1;
    engine.CaseRadix[2] = 2;
    std::vector<std::vector<int>> seen;
    for (Long number = 0; number < 6; ++number) {
        DecodeCase(engine, number);
        seen.push_back({engine.CaseDigit[0], engine.CaseDigit[1], engine.CaseDigit[2]});
    }
    EXPECT_EQ(seen, (std::vector<std::vector<int>>{
                        {0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {0, 0, 1}, {1, 0, 1}, {2, 0, 1}}));
}

TEST(DeriveCase, DividesEachPieceByItsLengthAtMostAsOftenAsTheCaseSays) {
    EngineArrays engine =
        MakeEngine(144, {{1, 2.99}, {1, 5.99}, {1, 6}, {1, 9}, {1, 100}, {1, 100}});
    engine.PCDivide[5] = 0;
    engine.MinCut = 300;
    CopyFillPC(engine);
    const std::vector<std::vector<int>> expected{
        {0, 0, 0, 0, 0, 0}, {0, 0, 1, 1, 1, 0}, {0, 0, 1, 2, 2, 0}, {0, 0, 1, 2, 3, 0}};
    const Long parts[] = {6, 9, 11, 12};
    for (Integer most = 0; most < 4; ++most) {
        EXPECT_EQ(DeriveCase(engine, most), parts[most]);
        for (Integer k = 0; k < 6; ++k) {
            EXPECT_EQ(engine.CaseDigit[k],
                      expected[static_cast<std::size_t>(most)][static_cast<std::size_t>(k)])
                << most << " " << k;
        }
    }
}

TEST(DeriveCase, ReadsTheSavedPiecesNotThoseInHand) {
    EngineArrays engine = MakeEngine(144, {{1, 9}});
    engine.MinCut = 300;
    CopyFillPC(engine);
    engine.PCY2[0] = 300;
    DeriveCase(engine, 5);
    EXPECT_EQ(engine.CaseDigit[0], 2);
}

} // namespace
} // namespace tarn
