#include "engine/CaseParts.h"
#include "engine/Division.h"
#include "engine/EngineTesting.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace tarn {
namespace {

using testing::Below;
using testing::MakeJob;

TEST(CaseParts, ThePartsOfAPieceTakeOverItsNumberAndEdges) {
    std::vector<Piece> wholes{{100, 1100, 0, 9000, 4, true}, {0, 2000, 0, 500, 5, false}};
    CaseParts parts(wholes, 0.01, 300);
    parts.Divide({2, 0});
    // By width: the undivided piece first, then the parts from the piece's beginning on.
    EXPECT_EQ(parts.PiecesInOrder(0), (std::vector<Piece>{{0, 2000, 0, 500, 5, false},
                                                          {100, 1100, 0, 3000, 4, true},
                                                          {100, 1100, 3000, 6000, 4, true},
                                                          {100, 1100, 6000, 9000, 4, true}}));
    EXPECT_EQ(parts.SizesInOrder(0),
              (std::vector<PieceSize>{{20, 5}, {10, 30}, {10, 30}, {10, 30}}));
}

TEST(CaseParts, OfEqualOnesTheFirstPartsGoBeforeTheOthers) {
    const std::vector<Piece> wholes{{0, 100, 0, 600, 0, true}, {0, 100, 0, 600, 1, true}};
    CaseParts parts(wholes, 0.01, 300);
    parts.Divide({1, 1});
    EXPECT_EQ(parts.PiecesInOrder(1), (std::vector<Piece>{{0, 100, 0, 300, 0, true},
                                                          {0, 100, 0, 300, 1, true},
                                                          {0, 100, 300, 600, 0, true},
                                                          {0, 100, 300, 600, 1, true}}));
}

TEST(CaseParts, APieceOfOnePartKeepsItsCoordinatesBitForBit) {
    const std::vector<Piece> wholes{{0.1F, 1000.3F, 0.7F, 123.456F, 0, true}};
    CaseParts parts(wholes, 0.01, 300);
    parts.Divide({0});
    EXPECT_EQ(parts.PiecesInOrder(1), wholes);
}

/// What a case comes to, step by step: rows, sizes, a stable sort.
std::vector<Piece> PlainParts(const std::vector<Piece>& wholes, const CaseCuts& cuts,
                              Integer power) {
    std::vector<Piece> rows = wholes;
    for (std::size_t k = 0; k < wholes.size(); ++k) {
        const auto parts = static_cast<Integer>(cuts[k] + 1);
        const EqualParts equal(wholes[k].Y1, wholes[k].Y2, parts, 300);
        for (Integer part = 0; part < parts; ++part) {
            Piece piece = wholes[k];
            piece.Y1 = equal.Edge(part);
            piece.Y2 = equal.Edge(static_cast<Integer>(part + 1));
            if (part == 0) {
                rows[k] = piece;
            } else {
                rows.push_back(piece);
            }
        }
    }
    std::stable_sort(rows.begin(), rows.end(), [&](const Piece& a, const Piece& b) {
        return OrderKey(SizeOf(a, 0.01), power) > OrderKey(SizeOf(b, 0.01), power);
    });
    return rows;
}

TEST(CaseParts, AreWhatDividingAndSortingThePiecesGives) {
    for (unsigned seed = 0; seed < 500; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        SearchJob job = MakeJob(144);
        const double unit = Below(random, 2) == 0 ? 1 : 2.54;
        for (int i = Below(random, 40); i >= 0; --i) {
            testing::AddPiece(job,
                              {(1 + Below(random, 12)) / unit, (1 + Below(random, 300)) / unit});
        }
        CaseParts parts(job.Pieces, 0.01, 300);
        for (int again = 0; again < 2; ++again) {
            CaseCuts cuts;
            for (std::size_t k = 0; k < job.Pieces.size(); ++k) {
                cuts.push_back(static_cast<Integer>(Below(random, 6)));
            }
            parts.Divide(cuts);
            for (const Integer power : OrderPowers) {
                const std::vector<Piece> plain = PlainParts(job.Pieces, cuts, power);
                ASSERT_EQ(parts.PiecesInOrder(power), plain);
                std::vector<PieceSize> sizes;
                sizes.reserve(plain.size());
                for (const Piece& piece : plain) {
                    sizes.push_back(SizeOf(piece, 0.01));
                }
                ASSERT_EQ(parts.SizesInOrder(power), sizes);
            }
        }
    }
}

} // namespace
} // namespace tarn
