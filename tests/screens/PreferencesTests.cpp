#include "screens/Preferences.h"
#include "screens/ScreenTesting.h"

#include <QFile>
#include <QFileInfo>

#include <filesystem>
#include <sys/stat.h>

namespace tarn {
namespace {

struct PreferencesFile : ::testing::Test {
    QTemporaryDir folder;
    QString file = folder.filePath(QStringLiteral("new/preferences.ini"));
};

TEST_F(PreferencesFile, OutlastsARun) {
    {
        Preferences first(file);
        EXPECT_FALSE(first.IsOn(Preference::WholeRoll));
        EXPECT_FALSE(QFileInfo::exists(file)) << "nothing was chosen";
        first.Set(Preference::WholeRoll, true);
        EXPECT_TRUE(first.IsOn(Preference::WholeRoll));
        EXPECT_TRUE(Preferences(file).IsOn(Preference::WholeRoll)) << "kept at once";
    }
    Preferences second(file);
    EXPECT_TRUE(second.IsOn(Preference::WholeRoll));
    second.Set(Preference::WholeRoll, false);
    EXPECT_FALSE(Preferences(file).IsOn(Preference::WholeRoll));
}

TEST_F(PreferencesFile, HoldsTheLanguageOfTheNextStart) {
    {
        Preferences first(file);
        EXPECT_EQ(first.Language(), "");
        first.ChooseLanguage("de");
        EXPECT_EQ(first.Language(), "de");
    }
    Preferences second(file);
    EXPECT_EQ(second.Language(), "de");
    EXPECT_FALSE(second.IsOn(Preference::WholeRoll));
    Preferences nowhere;
    nowhere.ChooseLanguage("es");
    EXPECT_EQ(nowhere.Language(), "es") << "in this run";
}

TEST_F(PreferencesFile, IsItsOwnersAlone) {
    const mode_t before = umask(0);
    Preferences(file).Set(Preference::WholeRoll, true);
    umask(before);
    using Perms = std::filesystem::perms;
    const auto modeOf = [](const QString& path) {
        return std::filesystem::status(path.toStdString()).permissions();
    };
    EXPECT_EQ(modeOf(file), Perms::owner_read | Perms::owner_write);
    EXPECT_EQ(modeOf(QFileInfo(file).path()), Perms::owner_all);
}

TEST_F(PreferencesFile, ThatCannotBeReadOrWrittenIsNoFailure) {
    file = folder.filePath(QStringLiteral("preferences.ini"));
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("preferences.ini")));
    Preferences kept(file);
    EXPECT_FALSE(kept.IsOn(Preference::WholeRoll));
    kept.Set(Preference::WholeRoll, true);
    EXPECT_TRUE(kept.IsOn(Preference::WholeRoll)) << "in this run";
    EXPECT_TRUE(QFileInfo(file).isDir());
}

TEST_F(PreferencesFile, ThatHoldsSomethingElseCountsAsEmpty) {
    file = folder.filePath(QStringLiteral("preferences.ini"));
    QFile broken(file);
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write("\x01\x02 no settings\n[\nWholeRoll");
    broken.close();
    EXPECT_FALSE(Preferences(file).IsOn(Preference::WholeRoll));
}

TEST(PreferencesOfTheUser, AreInTheConfigurationDirectory) {
    const QString home = qEnvironmentVariable("XDG_CONFIG_HOME");
    ASSERT_FALSE(home.isEmpty());
    EXPECT_EQ(UserPreferencesFile(), home + QStringLiteral("/tarn/preferences.ini"));
}

TEST(PreferencesWithoutAFile, AreKeptForTheRun) {
    Preferences kept;
    kept.Set(Preference::WholeRoll, true);
    EXPECT_TRUE(kept.IsOn(Preference::WholeRoll));
}

} // namespace
} // namespace tarn
