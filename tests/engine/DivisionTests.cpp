#include "engine/Division.h"

#include <gtest/gtest.h>

#include <vector>

namespace tarn {
namespace {

std::vector<Single> EdgesOf(Single top, Single bottom, Integer parts, Integer minCut) {
    const EqualParts equal(top, bottom, parts, minCut);
    std::vector<Single> edges;
    for (Integer edge = 0; edge <= parts; ++edge) {
        edges.push_back(equal.Edge(edge));
    }
    return edges;
}

TEST(EqualParts, LieEndToEnd) {
    EXPECT_EQ(EdgesOf(0, 9000, 3, 300), (std::vector<Single>{0, 3000, 6000, 9000}));
    EXPECT_EQ(EdgesOf(500, 1500, 2, 300), (std::vector<Single>{500, 1000, 1500}));
}

TEST(EqualParts, APartIsRoundedUpUnlessItsFractionIsBelowATenth) {
    const struct {
        Single Length;
        Integer Parts;
        Single Part;
    } cases[] = {
        {1000, 3, 334},    // 333.33
        {1001, 2, 501},    // 500.5
        {1000, 4, 250},    // exact
        {1000.2F, 2, 501}, // 500.1: just a tenth
        {1000.1F, 2, 500}, // 500.05
        {2001, 10, 201},   // 200.1
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Length);
        const std::vector<Single> edges = EdgesOf(0, c.Length, c.Parts, 50);
        EXPECT_EQ(edges[1], c.Part);
        EXPECT_EQ(edges.back(), c.Parts * c.Part) << "the parts lie end to end";
    }
}

TEST(EqualParts, APartIsNeverShorterThanTheMinimumCut) {
    EXPECT_EQ(EdgesOf(100, 700, 6, 300),
              (std::vector<Single>{100, 400, 700, 1000, 1300, 1600, 1900}))
        << "the last runs past the piece's end";
}

TEST(EqualParts, OnePartIsThePieceBitForBit) {
    EXPECT_EQ(EdgesOf(0.1F, 123.456F, 1, 300), (std::vector<Single>{0.1F, 123.456F}));
}

} // namespace
} // namespace tarn
