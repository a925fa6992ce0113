#include "base/RunTimeError.h"
#include "engine/EngineTesting.h"
#include "engine/FreeCorners.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace tarn {
namespace {

using testing::Point;

std::vector<Point> Points(const FreeCorners& corners) {
    std::vector<Point> points;
    for (std::size_t k = 0; k < corners.Count(); ++k) {
        points.push_back({corners[k].X, corners[k].Y});
    }
    return points;
}

FreeCorners With(const std::vector<Point>& points) {
    FreeCorners corners;
    corners.Replace(0, points[0].X, points[0].Y);
    for (std::size_t i = 1; i < points.size(); ++i) {
        corners.Append(points[i].X, points[i].Y);
    }
    return corners;
}

TEST(FreeCorners, BeginWithTheStartOfTheRoll) {
    EXPECT_EQ(Points(FreeCorners()), (std::vector<Point>{{0, 0}}));
    FreeCorners corners = With({{1, 2}, {3, 4}});
    corners.Reset();
    EXPECT_EQ(Points(corners), (std::vector<Point>{{0, 0}}));
}

TEST(FreeCorners, ThePositionAlongDecidesAndAcrossBreaksTies) {
    EXPECT_EQ(Points(With({{100, 50}, {0, 60}, {10, 50}, {140, 0}})),
              (std::vector<Point>{{140, 0}, {10, 50}, {100, 50}, {0, 60}}));
}

TEST(FreeCorners, NearTiesAlongComeOutByTheCombinedKey) {
    EXPECT_EQ(Points(With({{140, 50}, {0, 50.1F}})), (std::vector<Point>{{0, 50.1F}, {140, 50}}));
}

TEST(FreeCorners, EqualKeysKeepTheirOrderAlsoWhereSingleRoundsThemTogether) {
    // 20000 + 0.0001 rounds to 20000 in a Single.
    EXPECT_EQ(Points(With({{0.1F, 20000}, {0, 20000}})),
              (std::vector<Point>{{0.1F, 20000}, {0, 20000}}));
}

TEST(FreeCorners, EqualCornersAreKeptOnce) {
    EXPECT_EQ(Points(With({{0, 1}, {2, 1}, {0, 1}, {0, 1}, {2, 1}, {5, 5}})),
              (std::vector<Point>{{0, 1}, {2, 1}, {5, 5}}));
}

TEST(FreeCorners, OfEqualCornersTheFirstInOrderIsKept) {
    FreeCorners corners = With({{0.1F, 20000}, {0, 20000}, {0, 30000}});
    corners.Replace(2, 0.1F, 20000); // would stand behind both
    EXPECT_EQ(Points(corners), (std::vector<Point>{{0.1F, 20000}, {0, 20000}}));
    corners = With({{0, 10000}, {0, 20000}, {0.1F, 20000}});
    corners.Replace(0, 0.1F, 20000); // would stand before both
    EXPECT_EQ(Points(corners), (std::vector<Point>{{0.1F, 20000}, {0, 20000}}));
}

TEST(FreeCorners, CornersThatDifferByTheLeastBitStay) {
    EXPECT_EQ(With({{1, 1}, {std::nextafter(1.0F, 2.0F), 1}}).Count(), 2U);
}

TEST(FreeCorners, AChangedCornerForgetsWhatWasInItsWay) {
    FreeCorners corners = With({{1, 1}, {2, 2}});
    corners[0].Blocked = true;
    corners.Replace(0, 3, 3);
    EXPECT_FALSE(corners[0].Blocked);
    EXPECT_FALSE(corners[1].Blocked);
}

TEST(FreeCorners, AKeyThatIsNotFiniteIsAnOverflow) {
    FreeCorners corners;
    EXPECT_THROW(corners.Append(0, std::numeric_limits<Single>::infinity()), RunTimeError);
}

/// The list as it is described: replace or append, sort stably, drop later equal ones.
struct PlainCorners {
    std::vector<Point> List{{0, 0}};

    void Settle() {
        std::stable_sort(List.begin(), List.end(), [](const Point& a, const Point& b) {
            return CornerKey(a.X, a.Y) < CornerKey(b.X, b.Y);
        });
        for (std::size_t i = 0; i < List.size(); ++i) {
            const auto next = List.begin() + static_cast<std::ptrdiff_t>(i) + 1;
            List.erase(std::remove(next, List.end(), List[i]), List.end());
        }
    }
};

TEST(FreeCorners, GiveTheSameAsSortingTheWholeListEachTime) {
    for (unsigned seed = 0; seed < 300; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        // Far down the roll many different corners share a key.
        const Single base = seed % 2 == 0 ? 0.0F : 30000.0F;
        FreeCorners corners;
        PlainCorners plain;
        for (int step = 0; step < 120; ++step) {
            const auto x = static_cast<Single>(testing::Below(random, 6)) / 4;
            const Single y = base + static_cast<Single>(testing::Below(random, 5));
            if (testing::Below(random, 2) == 0) {
                const auto k = static_cast<std::size_t>(
                    testing::Below(random, static_cast<int>(corners.Count())));
                corners.Replace(k, x, y);
                plain.List[k] = {x, y};
            } else {
                corners.Append(x, y);
                plain.List.push_back({x, y});
            }
            plain.Settle();
            ASSERT_EQ(Points(corners), plain.List) << "step " << step;
        }
    }
}

} // namespace
} // namespace tarn
