#include "base/RunTimeError.h"
#include "engine/EngineTesting.h"
#include "engine/PreparePieces.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace tarn {
namespace {

using testing::MakeJob;

TEST(PreparePieces, PutsTheLongestFirstAndKeepsTheOrderOfEqualOnes) {
    const SearchJob job = MakeJob(144, {{20, 30}, {12, 60}, {20, 30}, {140, 30}});
    std::vector<Integer> numbers;
    for (const Piece& piece : PreparePieces(job)) {
        numbers.push_back(piece.Number);
    }
    // Length squared times width: 18000, 43200, 18000, 126000.
    EXPECT_EQ(numbers, (std::vector<Integer>{3, 1, 0, 2}));
}

TEST(PreparePieces, LaysCrossPiecesAlongYWithoutRounding) {
    SearchJob job = MakeJob(144);
    job.Direction = Lay::Cross;
    job.Pieces.push_back({0.25F, 150.5F, 0, 2000.75F, 7, false});
    EXPECT_EQ(PreparePieces(job), (std::vector<Piece>{{0, 2000.75F, 0.25F, 150.5F, 7, false}}));
}

TEST(PreparePieces, CutsAPieceTooWideInAStripAndARest) {
    SearchJob job = MakeJob(144);
    job.Pieces = {{500, 20500, 0, 3000, 4, true}, {0, 14400, 0, 100, 5, true}};
    EXPECT_EQ(PreparePieces(job),
              (std::vector<Piece>{
                  {500, 500 + 14400, 0, 3000, 4, false},  // the strip is never divided
                  {500 + 14400, 20500, 0, 3000, 4, true}, // the rest
                  {0, 14400, 0, 100, 5, true} // a piece as wide as the roll is not too wide
              }));
}

TEST(PreparePieces, ThePieceThatIsMoreThanTwiceTooWideStaysTooWideInItsRest) {
    EXPECT_EQ(PreparePieces(MakeJob(100, {{350, 30}})),
              (std::vector<Piece>{{10000, 35000, 0, 3000, 0, true}, {0, 10000, 0, 3000, 0, false}}))
        << "the rest is the larger one";
}

TEST(PreparePieces, LessThanHalfAUnitTooWideIsNotTooWide) {
    SearchJob job = MakeJob(144, {{144, 30}, {144, 30}});
    job.Pieces[0].X2 = 14400.4F;
    job.Pieces[1].X2 = 14400.6F;
    const std::vector<Piece> pieces = PreparePieces(job);
    ASSERT_EQ(pieces.size(), 3U);
    EXPECT_EQ(pieces[0].X2, 14400.4F);
    EXPECT_EQ(pieces[1].Number, 1);
    EXPECT_EQ(pieces[2].Number, 1);
}

TEST(PreparePieces, MoreThanThreeThousandPiecesIsASubscriptError) {
    SearchJob job = MakeJob(144);
    for (int i = 0; i < 2999; ++i) {
        testing::AddPiece(job, {1, 10});
    }
    job.Pieces[0].X2 = 20000;
    EXPECT_EQ(PreparePieces(job).size(), 3000U);
    job.Pieces[1].X2 = 20000;
    try {
        PreparePieces(job);
        FAIL() << "a 3001st piece was taken";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), SubscriptNumber);
        EXPECT_FALSE(error.Advice().empty());
    }
}

TEST(PreparePieces, ASizeThatIsNotFiniteIsAnOverflow) {
    SearchJob job = MakeJob(144, {{1, 1}});
    job.Pieces[0].Y1 = -std::numeric_limits<Single>::max();
    job.Pieces[0].Y2 = std::numeric_limits<Single>::max();
    EXPECT_THROW(PreparePieces(job), RunTimeError);
}

} // namespace
} // namespace tarn
