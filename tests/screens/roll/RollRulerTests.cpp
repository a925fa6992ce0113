#include "screens/roll/RollRuler.h"

#include <gmock/gmock.h>

#include <cmath>

namespace tarn {
namespace {

using ::testing::ElementsAre;

std::vector<std::string> LabelsOf(const std::vector<RulerTick>& ticks) {
    std::vector<std::string> labels;
    for (const RulerTick& tick : ticks) {
        if (!tick.Label.empty()) {
            labels.push_back(tick.Label);
        }
    }
    return labels;
}

TEST(RollRuler, LabelsFeetAtReadableSteps) {
    EXPECT_THAT(LabelsOf(RulerTicks(Units::Imperial, 0, 60, 10, 60)),
                ElementsAre("0'", "1'", "2'", "3'", "4'", "5'"));
    EXPECT_THAT(LabelsOf(RulerTicks(Units::Imperial, 0, 300, 1, 60)),
                ElementsAre("0'", "5'", "10'", "15'", "20'", "25'"));
    EXPECT_THAT(LabelsOf(RulerTicks(Units::Imperial, 130, 300, 1, 60)),
                ElementsAre("15'", "20'", "25'"));
}

TEST(RollRuler, LabelsMetres) {
    EXPECT_THAT(LabelsOf(RulerTicks(Units::Metric, 0, 200, 2, 60)),
                ElementsAre("0 m", "0.5 m", "1 m", "1.5 m", "2 m"));
    EXPECT_THAT(LabelsOf(RulerTicks(Units::Metric, 0, 2000, 0.1, 60)),
                ElementsAre("0 m", "10 m", "20 m"));
}

TEST(RollRuler, KeepsLabelsAndMarksApartAtEveryScale) {
    for (const Units units : {Units::Imperial, Units::Metric}) {
        for (int step = 0; step < 95; ++step) {
            const double scale = 1e-3 * std::pow(1.13, step); // up to 100
            const auto ticks = RulerTicks(units, 7, 7 + 900 / scale, scale, 50);
            ASSERT_FALSE(ticks.empty());
            double lastLabel = -1e9;
            for (std::size_t i = 0; i < ticks.size(); ++i) {
                EXPECT_GE(ticks[i].At, 7);
                if (i > 0) {
                    EXPECT_GE((ticks[i].At - ticks[i - 1].At) * scale, 5 - 1e-6);
                }
                if (!ticks[i].Label.empty()) {
                    EXPECT_GE((ticks[i].At - lastLabel) * scale, 50 - 1e-6);
                    lastLabel = ticks[i].At;
                }
            }
        }
    }
}

} // namespace
} // namespace tarn
