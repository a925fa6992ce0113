#include "app/Numbers.h"
#include "engine/Division.h"
#include "engine/EngineTesting.h"
#include "engine/Pieces.h"
#include "engine/PlacedIndex.h"
#include "engine/Placement.h"
#include "engine/TrialLayout.h"
#include "engine/TrialPieces.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <vector>

namespace tarn {
namespace {

using testing::Below;
using testing::MakeEngine;

constexpr Long NoBound = std::numeric_limits<Long>::max();

/// Sizes of several kinds: whole inches, whole centimetres, hundredths, many equal ones.
double RandomSize(std::mt19937& random, int kind, int most) {
    switch (kind) {
    case 0:
        return 1 + Below(random, most);
    case 1:
        return (1 + Below(random, most * 2)) / 2.54;
    case 2:
        return (1 + Below(random, most * 100)) / 100.0;
    default:
        return 12 * (1 + Below(random, most / 12));
    }
}

EngineArrays RandomEngine(std::mt19937& random, int most) {
    const Single rolls[] = {144, 72, 162, 180, 144.09449F, 161.81102F, 100.3F};
    EngineArrays engine = MakeEngine(rolls[Below(random, 7)]);
    engine.FillFlag = static_cast<Integer>(Below(random, 8) > 0);
    const int count = 1 + Below(random, most);
    const int kind = Below(random, 4);
    for (int i = 0; i < count; ++i) {
        const auto divide = static_cast<Integer>(Below(random, 6) > 0);
        // Some are wider than the roll and fit nowhere.
        testing::AddPiece(engine, {RandomSize(random, kind, 150), RandomSize(random, kind, 300)},
                          divide);
    }
    engine.CutCount = engine.PieceCount;
    return engine;
}

std::vector<PieceSize> SizesInOrder(const EngineArrays& engine) {
    std::vector<PieceSize> sizes;
    for (Integer i = 0; i < engine.CutCount; ++i) {
        sizes.push_back({engine.PieceWid[i], engine.PieceLen[i]});
    }
    return sizes;
}

TEST(TrialLayout, NeedsAsMuchRollAsTheRuleOfPlacement) {
    TrialLayout trial;
    for (unsigned seed = 0; seed < 3000; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        EngineArrays engine = RandomEngine(random, seed % 10 == 0 ? 150 : 40);
        ReorderPiece(engine, static_cast<Integer>(Below(random, 3)), 0.01);
        const Long length = CLng(static_cast<Double>(GetPCLen(engine)));
        const auto sizes = SizesInOrder(engine);
        const Single usable = UsableWidth(engine);
        ASSERT_EQ(trial.Length(sizes, usable, NoBound), length);
        ASSERT_EQ(trial.Length(sizes, usable, length + 1), length);
        ASSERT_GE(trial.Length(sizes, usable, length), length);
        ASSERT_GE(trial.Length(sizes, usable, length / 2), length / 2);
    }
}

TEST(TrialLayout, NeedsNoRollForNoPieces) {
    EXPECT_EQ(TrialLayout().Length({}, 144, NoBound), 0);
}

TEST(TrialLayout, AFarPositionIsPlacedByTheSameRule) {
    TrialLayout trial;
    for (unsigned seed = 0; seed < 50; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        EngineArrays engine = MakeEngine(144);
        testing::AddPiece(engine, {144, 30000.0 + Below(random, 4000)});
        for (int i = 0; i < 40; ++i) {
            testing::AddPiece(engine, {RandomSize(random, 2, 143), RandomSize(random, 2, 300)});
        }
        engine.CutCount = engine.PieceCount;
        ReorderPiece(engine, 1, 0.01);
        const Long length = CLng(static_cast<Double>(GetPCLen(engine)));
        ASSERT_EQ(trial.Length(SizesInOrder(engine), 144, NoBound), length);
    }
}

TEST(TrialPieces, DividesAndOrdersAsTheArraysWould) {
    for (unsigned seed = 0; seed < 500; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        EngineArrays engine = RandomEngine(random, 40);
        engine.MinCut = 300;
        CopyFillPC(engine);
        for (Integer k = 0; k < engine.OrgCount; ++k) {
            engine.CaseDigit[k] = static_cast<Integer>(Below(random, 6));
        }
        TrialPieces pieces(engine, 0.01);
        pieces.Divide();
        for (const Integer power : {Integer{1}, Integer{0}, Integer{2}}) {
            const std::vector<PieceSize> sizes = pieces.InOrder(power);
            EngineArrays literal = engine;
            RestoreFillPC(literal);
            DivideAll(literal, literal.CaseDigit);
            GetPieceSZ(literal, 0.01);
            QuickSortPiece(literal, 0, literal.CutCount, power);
            ASSERT_EQ(sizes.size(), static_cast<std::size_t>(literal.CutCount));
            for (std::size_t i = 0; i < sizes.size(); ++i) {
                ASSERT_EQ(sizes[i].Width, literal.PieceWid[static_cast<long long>(i)]);
                ASSERT_EQ(sizes[i].Length, literal.PieceLen[static_cast<long long>(i)]);
            }
        }
    }
}

TEST(PlacedIndex, AnswersWhatTheLinearScansAnswer) {
    for (unsigned seed = 0; seed < 200; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        EngineArrays engine = RandomEngine(random, 60);
        ReorderPiece(engine, 1, 0.01);
        PlacedIndex index;
        index.Add({0, 0, 1, 1000});
        index.Clear();
        for (Integer i = 0; i < engine.PosCount; ++i) {
            index.Add(PlacedBox(engine, i));
        }
        const int along = 1 + static_cast<int>(GetPCLen(engine));
        for (int question = 0; question < 300; ++question) {
            // Half of the points lie on edges, where a mistake would show.
            const auto i = static_cast<Integer>(Below(random, engine.PosCount));
            const bool onEdge = Below(random, 2) == 0;
            const Box box = PlacedBox(engine, i);
            const Single x = onEdge ? box.X2 : static_cast<Single>(Below(random, 160));
            const Single y = onEdge ? box.Y2 : static_cast<Single>(Below(random, along + 40));
            const auto w = static_cast<Single>(1 + Below(random, 60));
            const auto l = static_cast<Single>(1 + Below(random, 200));
            ASSERT_EQ(index.ScanLeft(x, y), scanleftnew(engine, x, y, 0, engine.PosCount));
            ASSERT_EQ(index.ScanUp(x, y), scanupnew(engine, x, y, 0, engine.PosCount));
            ASSERT_EQ(index.Overlapping({x, y, x + w, y + l}).has_value(),
                      OverlapsPlaced(engine, x, y, w, l));
            engine.StartPX[0] = x;
            engine.StartPY[0] = y;
            ASSERT_EQ(index.IsAnyRight(x, y, UsableWidth(engine)), IsAnyRightSide(engine, 0));
        }
    }
}

TEST(PlacedIndex, IsEmptyAtFirst) {
    const PlacedIndex index;
    EXPECT_FALSE(index.Overlapping({0, 0, 10, 10}));
    EXPECT_EQ(index.ScanLeft(10, 10), 0);
    EXPECT_EQ(index.ScanUp(10, 10), 0);
    EXPECT_FALSE(index.IsAnyRight(0, 0, 144));
}

} // namespace
} // namespace tarn
