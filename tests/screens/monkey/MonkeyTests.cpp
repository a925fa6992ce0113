// The whole program under random use. The environment asks for more of it: TARN_MONKEY_FIRST is the
// first seed, TARN_MONKEY_SEEDS how many there are, TARN_MONKEY_STEPS how long each goes on.

#include "Sanitized.h"
#include "screens/ControlNames.h"
#include "screens/monkey/Monkey.h"
#include "store/Schema.h"
#include "store/TestDatabase.h"

#include <QDir>

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <map>
#include <numeric>
#include <set>

namespace tarn::testing {
namespace {

using ::testing::IsEmpty;

int FromEnvironment(const char* name, int otherwise) {
    bool isNumber = false;
    const int number = qEnvironmentVariableIntValue(name, &isNumber);
    return isNumber ? number : otherwise;
}

constexpr int Steps = UnlessSanitized(600, 450);
constexpr int StepsBetweenChecks = 50;

/// A data folder with projects, in a home of its own: nothing of the user is read or written.
class MonkeyTest : public ::testing::TestWithParam<int> {
  protected:
    MonkeyTest() {
        for (const char* variable :
             {"HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"}) {
            before_[variable] = qgetenv(variable);
            qputenv(variable, QByteArray::fromStdString(folder_.Path("home")));
        }
        CreateDatabaseFile(Database());
        WriteFile(folder_.Path("TarnWin.INI"),
                  "[TarnWin Directory]\n" + folder_.Path("data") + "\n");
        QDir().mkpath(ToQt(folder_.Path("home")));
        FillDatabase();
    }
    ~MonkeyTest() override {
        for (const auto& [variable, value] : before_) {
            if (value.isNull()) {
                qunsetenv(variable);
            } else {
                qputenv(variable, value);
            }
        }
    }

    /// A monkey that sits before one screen finds nothing.
    static void TearDownTestSuite() {
        EXPECT_GT(saves, 0);
        EXPECT_THAT(screens, ::testing::IsSupersetOf(Wanted));
    }

    /// Whether there is no need to go on for what TearDownTestSuite wants. How far a seed comes
    /// depends on how soon searches end.
    static bool HasSeenEnough(const Monkey& monkey) {
        std::set<std::string> seen = screens;
        seen.insert(monkey.ScreensSeen().begin(), monkey.ScreensSeen().end());
        return saves + monkey.Saves() > 0 &&
               std::all_of(Wanted.begin(), Wanted.end(),
                           [&seen](const char* screen) { return seen.contains(screen); });
    }

    std::string Database() const { return folder_.Path("data/DATA/Tarn.mdb"); }
    std::string Configuration() const { return folder_.Path(); }

    static constexpr std::array<const char*, 5> Wanted{
        Controls::projectScreen, Controls::menuScreen, Controls::roomScreen,
        Controls::optionsScreen, Controls::estimateScreen};
    /// Of all seeds of this process.
    static inline int saves = 0;
    static inline std::set<std::string> screens;

  private:
    void FillDatabase() const {
        ProjectStore store(Database(), DatabaseAccess::ReadWrite);
        store.AddDirectory("OWN");
        for (const char* name : {"FIRST", "SECOND"}) {
            store.AddProject("MARCH", name);
            Project project = store.Load(name).Value;
            for (int i = 0; i < 4; ++i) {
                project.Rooms.push_back({static_cast<Integer>(100 + 40 * i),
                                         static_cast<Integer>(250 - 30 * i),
                                         static_cast<Byte>(i == 3 ? 8 : i % 2), 4, "1", "a"});
            }
            store.Save(project, Units::Imperial);
        }
        store.AddProject("OWN", "THIRD");
    }

    TestFolder folder_;
    std::map<const char*, QByteArray> before_;
};

std::vector<int> Seeds() {
    std::vector<int> seeds(static_cast<std::size_t>(FromEnvironment("TARN_MONKEY_SEEDS", 2)));
    std::iota(seeds.begin(), seeds.end(), FromEnvironment("TARN_MONKEY_FIRST", 1));
    return seeds;
}

INSTANTIATE_TEST_SUITE_P(Seeds, MonkeyTest, ::testing::ValuesIn(Seeds()),
                         [](const auto& seed) { return std::to_string(seed.param); });

TEST_P(MonkeyTest, BreaksNothing) {
    SCOPED_TRACE("seed " + std::to_string(GetParam()));
    Monkey monkey(static_cast<unsigned>(GetParam()), Configuration(), Database());
    const int steps = FromEnvironment("TARN_MONKEY_STEPS", Steps);
    for (int step = 1; step <= steps || (!HasSeenEnough(monkey) && step <= 8 * steps); ++step) {
        monkey.Step();
        ASSERT_THAT(monkey.Faults(), IsEmpty()) << "step " << step << ", after\n"
                                                << monkey.LastActions();
        if (step % StepsBetweenChecks == 0) {
            ASSERT_THAT(monkey.DatabaseFaults(), IsEmpty()) << "step " << step << ", after\n"
                                                            << monkey.LastActions();
        }
    }
    ASSERT_THAT(monkey.DatabaseFaults(), IsEmpty()) << monkey.LastActions();
    saves += monkey.Saves();
    screens.insert(monkey.ScreensSeen().begin(), monkey.ScreensSeen().end());
}

} // namespace
} // namespace tarn::testing
