#include "engine/EngineTesting.h"
#include "engine/FinishLayout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace tarn {
namespace {

using testing::Below;
using testing::MakeJob;
using testing::PlacedAt;

TEST(FinishLayout, RestoresTheOrderOfCreationWithThePlaces) {
    for (unsigned seed = 0; seed < 100; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        std::vector<Placed> layout;
        const int count = 1 + Below(random, 40);
        layout.reserve(static_cast<std::size_t>(count));
        for (int i = 0; i < count; ++i) {
            layout.push_back(
                PlacedAt(0, static_cast<Single>(10 * i), {1.0 + i, 10}, static_cast<Integer>(i)));
        }
        const std::vector<Placed> expected = layout;
        for (int i = 0; i < count; ++i) {
            std::swap(layout[static_cast<std::size_t>(i)],
                      layout[static_cast<std::size_t>(Below(random, count))]);
        }
        SearchResult result;
        FinishLayout(layout, MakeJob(144), result);
        ASSERT_EQ(result.Layout, expected);
        ASSERT_EQ(result.Length, (10 * count + 2) / 3 * 3);
    }
}

TEST(FinishLayout, PartsOfOnePieceStayInTheOrderOfPlacing) {
    Placed first = PlacedAt(0, 0, {20, 30}, 1);
    first.Part.Y1 = 3000;
    first.Part.Y2 = 6000;
    const std::vector<Placed> layout{first, PlacedAt(20, 0, {20, 30}, 1),
                                     PlacedAt(40, 0, {104, 30}, 0)};
    SearchResult result;
    FinishLayout(layout, MakeJob(144), result);
    EXPECT_EQ(result.Layout, (std::vector<Placed>{layout[2], layout[0], layout[1]}));
}

TEST(FinishLayout, CrossLaidPiecesComeBackInTheJobsOrientation) {
    SearchJob job = MakeJob(144);
    job.Direction = Lay::Cross;
    SearchResult result;
    FinishLayout({{{0, 7200, 0, 30000, 0, true}, 0, 0, 72, 300}}, job, result);
    EXPECT_EQ(result.Layout, (std::vector<Placed>{{{0, 30000, 0, 7200, 0, true}, 0, 0, 72, 300}}));
}

} // namespace
} // namespace tarn
