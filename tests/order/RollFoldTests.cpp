#include "order/RandomOrders.h"
#include "order/RollFold.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using Stretches = std::vector<RollStretch>;
using testing::Between;

OrderPiece PieceAt(Long x, Long y, Long width, Long length) {
    OrderPiece piece;
    piece.X = x;
    piece.Y = y;
    piece.Width = width;
    piece.Length = length;
    return piece;
}

/// The whole roll, stretch after stretch.
Stretches FoldedRoll(const std::vector<OrderPiece>& pieces, Long length, Long most, Long least) {
    Stretches stretches;
    Long from = 0;
    do {
        stretches.push_back(StretchFrom(pieces, from, length, {most, least}));
        from = stretches.back().To;
    } while (from < length);
    return stretches;
}

TEST(FoldedRoll, IsOneStretchWhereItFits) {
    EXPECT_EQ(FoldedRoll({PieceAt(0, 0, 10, 90)}, 100, 100, 5), (Stretches{{0, 100}}));
    EXPECT_EQ(FoldedRoll({}, 0, 100, 5), (Stretches{{0, 0}}));
}

TEST(FoldedRoll, IsBrokenBetweenPieces) {
    const std::vector<OrderPiece> pieces{PieceAt(0, 0, 5, 70), PieceAt(5, 0, 5, 80),
                                         PieceAt(0, 80, 10, 60)};
    EXPECT_EQ(FoldedRoll(pieces, 150, 100, 5), (Stretches{{0, 80}, {80, 150}}));
}

TEST(FoldedRoll, LeavesEnoughOfABrokenPieceOnBothSides) {
    const std::vector<OrderPiece> pieces{PieceAt(0, 0, 5, 97), PieceAt(5, 0, 5, 160)};
    EXPECT_EQ(FoldedRoll(pieces, 160, 100, 10), (Stretches{{0, 100}, {100, 160}}));
    EXPECT_EQ(FoldedRoll({PieceAt(0, 0, 10, 250)}, 250, 100, 60),
              (Stretches{{0, 100}, {100, 190}, {190, 250}}));
    const std::vector<OrderPiece> three{PieceAt(0, 0, 5, 40), PieceAt(5, 0, 5, 160),
                                        PieceAt(0, 40, 5, 64), PieceAt(0, 104, 5, 56)};
    EXPECT_EQ(FoldedRoll(three, 160, 100, 10), (Stretches{{0, 94}, {94, 160}}));
}

TEST(FoldedRoll, IsBrokenAnywhereWhereNothingElseGoes) {
    EXPECT_EQ(FoldedRoll({PieceAt(0, 0, 10, 110)}, 110, 100, 60),
              (Stretches{{0, 100}, {100, 110}}));
}

TEST(FoldedRoll, OfAnyRollHasAllOfItInStretchesThatFit) {
    std::mt19937 random(3);
    for (int i = 0; i < 500; ++i) {
        std::vector<OrderPiece> pieces;
        Long y = 0;
        for (Long count = Between(random, 0, 30); count > 0; --count) {
            pieces.push_back(PieceAt(0, y, 5, Between(random, 1, 80)));
            y += Between(random, 0, 40);
        }
        const Long length = y + 100;
        const Long most = Between(random, 1, 120);
        const auto stretches = FoldedRoll(pieces, length, most, Between(random, 1, 30));
        Long at = 0;
        for (const RollStretch& stretch : stretches) {
            EXPECT_EQ(stretch.From, at);
            EXPECT_GT(stretch.To, stretch.From);
            EXPECT_LE(stretch.To - stretch.From, most);
            at = stretch.To;
        }
        EXPECT_EQ(at, length);
    }
}

TEST(LeftOvers, AreJoinedAlongTheRoll) {
    const std::vector<OrderPiece> pieces{PieceAt(0, 0, 6, 50), PieceAt(6, 10, 4, 20)};
    const auto left = LeftOvers(pieces, 12, {0, 60});
    EXPECT_EQ(left, (std::vector<LeftOver>{
                        {6, 0, 12, 10}, {10, 10, 12, 30}, {6, 30, 12, 50}, {0, 50, 12, 60}}));
}

TEST(LeftOvers, AndPiecesCoverAnyStretchOnce) {
    std::mt19937 random(5);
    for (int i = 0; i < 300; ++i) {
        const Project project = testing::RandomRooms(random, 12, 60);
        const Order order = testing::MakeOrderOf(project, testing::RequestFor(40), 20);
        if (!order.Best) {
            continue;
        }
        const OrderCandidate& best = order.Candidates.front();
        const auto length = static_cast<Long>(best.Figures->Length);
        const Long from = Between(random, 0, length / 2);
        const Long to = Between(random, from + 1, length);
        std::vector<int> taken(std::size_t{40} * static_cast<std::size_t>(length));
        const auto take = [&](Long x1, Long y1, Long x2, Long y2) {
            for (Long y = std::max(y1, from); y < std::min(y2, to); ++y) {
                for (Long x = x1; x < x2; ++x) {
                    ++taken[static_cast<std::size_t>(y) * 40 + static_cast<std::size_t>(x)];
                }
            }
        };
        for (const OrderPiece& piece : best.Pieces) {
            take(piece.X, piece.Y, piece.X + piece.Width, piece.Y + piece.Length);
        }
        for (const LeftOver& each : LeftOvers(best.Pieces, 40, {from, to})) {
            EXPECT_TRUE(each.Y1 >= from && each.Y2 <= to);
            take(each.X1, each.Y1, each.X2, each.Y2);
        }
        for (Long y = from; y < to; ++y) {
            for (Long x = 0; x < 40; ++x) {
                ASSERT_EQ(taken[static_cast<std::size_t>(y * 40 + x)], 1) << x << ", " << y;
            }
        }
    }
}

} // namespace
} // namespace tarn
