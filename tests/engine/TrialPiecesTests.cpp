#include "engine/Division.h"
#include "engine/EngineTesting.h"
#include "engine/Pieces.h"
#include "engine/TrialPieces.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace tarn {
namespace {

using testing::Below;

EngineArrays RandomEngine(std::mt19937& random) {
    EngineArrays engine = testing::MakeEngine(144);
    const int count = 1 + Below(random, 40);
    const double unit = Below(random, 2) == 0 ? 1 : 2.54;
    for (int i = 0; i < count; ++i) {
        testing::AddPiece(engine,
                          {(1 + Below(random, 12)) / unit, (1 + Below(random, 300)) / unit});
    }
    return engine;
}

TEST(TrialPieces, DividesAndOrdersAsTheArraysWould) {
    for (unsigned seed = 0; seed < 500; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        EngineArrays engine = RandomEngine(random);
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

} // namespace
} // namespace tarn
