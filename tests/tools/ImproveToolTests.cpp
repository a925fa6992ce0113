#include "tools/ToolTesting.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace tarn {
namespace {

using namespace tarn::testing;

constexpr const char* FiveRooms = "width,length,covering\n"
                                  "100,150,C1\n60,170,C1\n84,90,C1\n44,110,C1\n80,60,C1\n";

class ImproveTool : public ToolTest {
  protected:
    ToolRun Improve(const char* arguments, const char* rooms = FiveRooms) const {
        Write(QStringLiteral("rooms.csv"), rooms);
        const QString all = QStringLiteral("--rooms rooms.csv --carpet 1 --roll-width 12ft "
                                           "--min-cut 2 --max-pieces 6 ") +
                            QString::fromUtf8(arguments);
        return Estimate(all.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    }
};

TEST_F(ImproveTool, SaysInOneLineWhatWasGained) {
    const ToolRun plain = Improve("");
    EXPECT_FALSE(plain.Out.contains("Improved"));
    const ToolRun run = Improve("--improve-steps 2000");
    EXPECT_EQ(run.Status, 0) << run.Error.toStdString();
    EXPECT_EQ(run.Out.count("\nImproved: fills "), 1) << run.Out.toStdString();
    EXPECT_TRUE(run.Error.isEmpty()) << "no progress where it is not read from a terminal";
    EXPECT_NE(run.Out, plain.Out);
}

TEST_F(ImproveTool, GivesTheSameForTheSameSeedAndSteps) {
    const ToolRun first = Improve("--improve-steps 700 --seed 5 --json -");
    EXPECT_EQ(first.Out, Improve("--improve-steps 700 --seed 5 --json -").Out);
    EXPECT_EQ(first.Status, 0);
    const ToolRun threads = Improve("--improve-steps 700 --threads 3 --json -");
    EXPECT_EQ(threads.Out, Improve("--improve-steps 700 --threads 3 --json -").Out);
    EXPECT_EQ(threads.Status, 0);
}

TEST_F(ImproveTool, WritesTheImprovementIntoTheJson) {
    const ToolRun run = Improve("--improve-steps 2000 --json -");
    const QJsonObject json = QJsonDocument::fromJson(run.Out).object();
    const QJsonObject improved = json.value(QStringLiteral("improved")).toObject();
    EXPECT_LT(improved.value(QStringLiteral("length")).toDouble(),
              improved.value(QStringLiteral("startLength")).toDouble());
    EXPECT_LE(improved.value(QStringLiteral("bound")).toDouble(),
              improved.value(QStringLiteral("length")).toDouble());
    EXPECT_FALSE(Improve("--json -").Out.contains("improved"));
}

// It ends by itself long before the time, for the two halves fill the roll.
TEST_F(ImproveTool, EndsByItselfAndSaysThatNothingBetterWasFound) {
    const ToolRun run = Improve("--improve 1000",
                                "width,length,covering\n72,90,C1\n72,90,C1\n72,30,C1\n72,30,C1\n");
    EXPECT_EQ(run.Status, 0);
    EXPECT_FALSE(run.Out.contains("Improved"));
    EXPECT_EQ(run.Error.toStdString(),
              "Note: no better layout was found; this one is the least possible.\n");
}

TEST_F(ImproveTool, LeavesAnEstimateWithoutFillsAlone) {
    const ToolRun run = Improve("--improve 1000", "width,length,covering\n144,90,C1\n");
    EXPECT_EQ(run.Status, 0);
    EXPECT_TRUE(run.Error.isEmpty()) << run.Error.toStdString();
    EXPECT_FALSE(run.Out.contains("Improved"));
}

TEST_F(ImproveTool, RefusesTimesAndStepsThatAreNone) {
    for (const char* arguments :
         {"--improve 0", "--improve -1", "--improve soon", "--improve", "--improve-steps 0",
          "--improve-steps 1.5", "--seed x", "--threads 0", "--threads 9"}) {
        EXPECT_EQ(Improve(arguments).Status, 2) << arguments;
    }
}

} // namespace
} // namespace tarn
