#include "estimate/EstimateTesting.h"
#include "estimate/RollPlaces.h"
#include "estimate/Totals.h"

#include <gmock/gmock.h>

#include <random>

namespace tarn {
namespace {

using namespace tarn::testing;
using ::testing::ElementsAre;

TEST(RollPlaces, AreTheCutsBehindEachOtherThenTheFills) {
    const Estimate estimate = Estimated({{300, 100}, {160, 50}}, Request(144));
    const RollPlaces places = PlacesOnRoll(estimate);
    EXPECT_THAT(places.Cuts, ElementsAre(0, 100, 200));
    EXPECT_EQ(places.Fills, 250);
    EXPECT_EQ(places.Length, 250 + estimate.Fills.Length);
}

TEST(RollPlaces, AreAsLongAsTheTotals) {
    std::mt19937 random(21);
    for (int i = 0; i < 200; ++i) {
        SCOPED_TRACE(i);
        const Units units = i % 2 == 0 ? Units::Imperial : Units::Metric;
        EstimateRequest request = Request(RandomRollWidth(random, units));
        request.In = units;
        const Project project = RandomProject(random, units, request.RollWidth, 6);
        const Estimate plain = EstimateOf(project, request);
        EXPECT_NEAR(PlacesOnRoll(plain).Length, TotalRoll(plain).Length, 1);
        const PatternRepeat repeat{0, static_cast<Integer>(Between(random, 0, 50))};
        request.Repeat = repeat;
        const Estimate matched = EstimateOf(project, request);
        const Double scale = units == Units::Metric ? 2.54 : 1;
        const RollPlaces places = PlacesOnRoll(matched);
        EXPECT_NEAR(places.Length * scale, TotalPattern(matched, repeat).Length, 1);
        for (const Double begin : places.Cuts) {
            if (repeat.Along > 0) {
                EXPECT_NEAR(std::remainder(begin * scale, repeat.Along), 0, 1e-6);
            }
        }
    }
}

} // namespace
} // namespace tarn
