// The files in which unsaved rooms are kept.

#include "files/OutputFile.h"
#include "files/SystemCallFaults.h"
#include "store/Drafts.h"
#include "store/EnvironmentSetting.h"
#include "store/TestDatabase.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <sys/stat.h>

namespace tarn {
namespace {

using namespace tarn::testing;

const QDateTime Noon(QDate(2026, 11, 22), QTime(12, 0), Qt::UTC);

Draft RoomsOf(Integer width) {
    Draft draft;
    draft.Rooms.emplace().push_back({width, 120, 0, 0, "", ""});
    return draft;
}

struct KeptDrafts : ::testing::Test {
    Drafts NewRun(const std::string& database = "/data/Tarn.mdb") const {
        return Drafts(folder.Path("state"), database);
    }
    /// Write a new draft of a project, so many minutes past noon; its file.
    static std::string Keep(Drafts& drafts, const std::string& project, Integer width,
                            int minute = 0) {
        std::string file = drafts.NewFile(project);
        drafts.Write(file, project, RoomsOf(width), Noon.addSecs(60LL * minute));
        return file;
    }
    /// The width of the first room in each of a project's drafts, in their order.
    static std::vector<Integer> Widths(const Drafts& drafts, const std::string& project) {
        std::vector<Integer> widths;
        for (const KeptDraft& draft : drafts.Of(project)) {
            widths.push_back(draft.Record.Content.Rooms->at(0).Width);
        }
        return widths;
    }
    std::size_t FileCount() const {
        return static_cast<std::size_t>(
            QDir(QString::fromStdString(folder.Path("state")))
                .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)
                .size());
    }

    TestFolder folder;
    Drafts drafts = NewRun();
};

using Numbers = std::vector<Integer>;

TEST_F(KeptDrafts, AreReadByALaterRun) {
    const std::string file = Keep(drafts, "P", 100);
    const auto found = NewRun().Of("P");
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].File, file);
    EXPECT_EQ(found[0].Record.Content, RoomsOf(100));
    EXPECT_EQ(found[0].Record.Written, Noon);
    EXPECT_EQ(found[0].Record.Project, "P");
    EXPECT_FALSE(found[0].Record.Superseded.isValid());
}

TEST_F(KeptDrafts, AreReplacedInTheirFile) {
    const std::string file = Keep(drafts, "P", 100);
    drafts.Write(file, "P", RoomsOf(200), Noon.addSecs(2));
    EXPECT_EQ(Widths(drafts, "P"), Numbers{200});
    EXPECT_EQ(FileCount(), 1U) << "nothing else is left";
}

TEST_F(KeptDrafts, StandInAFolderAndAFileOfTheirOwnersAlone) {
    const std::string file = Keep(drafts, "P", 100);
    struct stat status {};
    ASSERT_EQ(stat(file.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);
    ASSERT_EQ(stat(folder.Path("state").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0700U);
}

TEST_F(KeptDrafts, AreWholeOrNotThereWhileTheyAreFirstWritten) {
    const std::size_t calls = CallsOf([&] { Keep(drafts, "P", 100); }).size();
    const auto areWhole = [&] {
        const QString state = QString::fromStdString(folder.Path("state"));
        const auto files = QDir(state).entryList({QStringLiteral("draft-*")}, QDir::Files);
        return static_cast<std::size_t>(files.size()) == Widths(drafts, "P").size();
    };
    ASSERT_GT(calls, 0U);
    for (std::size_t call = 0; call < calls; ++call) {
        EXPECT_TRUE(std::filesystem::remove_all(folder.Path("state")));
        bool whole = true;
        BeforeCall(
            call, [&] { whole = areWhole(); }, [&] { Keep(drafts, "P", 100); });
        EXPECT_TRUE(whole) << "a kill before call " << call << " leaves half a draft";
        EXPECT_EQ(Widths(drafts, "P"), Numbers{100});
    }
}

TEST_F(KeptDrafts, ComeTheLastWrittenFirst) {
    Keep(drafts, "P", 1, 1);
    Keep(drafts, "P", 3, 3);
    Keep(drafts, "P", 2, 2);
    EXPECT_EQ(Widths(drafts, "P"), (Numbers{3, 2, 1}));
}

TEST_F(KeptDrafts, AreThoseOfTheProjectInTheDatabase) {
    Drafts other = NewRun("/other/Tarn.mdb");
    Keep(drafts, "P", 1);
    Keep(drafts, "Q", 2);
    Keep(other, "P", 3);
    EXPECT_EQ(Widths(drafts, "P"), Numbers{1});
    EXPECT_EQ(Widths(drafts, " p "), Numbers{1}) << "as names are compared";
    EXPECT_EQ(Widths(drafts, "Q"), Numbers{2});
    EXPECT_EQ(Widths(other, "P"), Numbers{3});
    EXPECT_TRUE(Widths(drafts, "R").empty());
}

TEST_F(KeptDrafts, KnowTheDatabaseByWhateverPath) {
    WriteFile(folder.Path("Tarn.mdb"), "");
    QFile::link(QString::fromStdString(folder.Path("Tarn.mdb")),
                QString::fromStdString(folder.Path("Link.mdb")));
    QDir().mkpath(QString::fromStdString(folder.Path("below")));
    Drafts linked = NewRun(folder.Path("below/../Link.mdb"));
    Keep(linked, "P", 1);
    EXPECT_EQ(Widths(NewRun(folder.Path("Tarn.mdb")), "P"), Numbers{1});
}

TEST_F(KeptDrafts, OfTwoRunsStandBesideEachOther) {
    Drafts other = NewRun();
    const std::string first = Keep(drafts, "P", 1, 1);
    const std::string second = Keep(other, "P", 2, 2);
    EXPECT_NE(first, second);
    EXPECT_EQ(Widths(drafts, "P"), (Numbers{2, 1}));
    EXPECT_EQ(Widths(other, "P"), (Numbers{2, 1}));
}

TEST_F(KeptDrafts, OfNoFolderAreNone) {
    Drafts none("There is no home.");
    const std::string file = none.NewFile("P");
    try {
        none.Write(file, "P", RoomsOf(1), Noon);
        FAIL() << "nothing was raised";
    } catch (const OutputFileError& error) {
        EXPECT_STREQ(error.what(), "There is no home.");
    }
    EXPECT_TRUE(none.Of("P").empty());
    none.Supersede("P", "", Noon);
    none.Move("P", "Q");
    none.End("P");
    none.EndExpired(Noon);
}

TEST_F(KeptDrafts, SayWhyTheyCannotBeWritten) {
    WriteFile(folder.Path("state"), "no folder");
    const std::string file = drafts.NewFile("P");
    try {
        drafts.Write(file, "P", RoomsOf(1), Noon);
        FAIL() << "nothing was raised";
    } catch (const OutputFileError& error) {
        EXPECT_EQ(error.what(),
                  "The folder " + folder.Path("state") + " cannot be written: Not a directory.");
    }
    EXPECT_TRUE(drafts.Of("P").empty());
    EXPECT_EQ(ReadFile(folder.Path("state")), "no folder");
}

TEST_F(KeptDrafts, NameTheirFolderWhenTheirFileCannotBeReplaced) {
    const std::string file = Keep(drafts, "P", 1);
    drafts.Remove(file);
    QDir().mkpath(QString::fromStdString(file + "/below"));
    try {
        drafts.Write(file, "P", RoomsOf(2), Noon);
        FAIL() << "nothing was raised";
    } catch (const OutputFileError& error) {
        EXPECT_EQ(std::string(error.what()).find(file), std::string::npos) << error.what();
        EXPECT_NE(std::string(error.what()).find(folder.Path("state")), std::string::npos)
            << error.what();
    }
}

TEST_F(KeptDrafts, ThatAreDamagedArePassedOverAndStay) {
    const std::string damaged = Keep(drafts, "P", 1, 5);
    Keep(drafts, "P", 2, 1);
    const std::string sound = ReadFile(damaged);
    const std::string halves[] = {"", sound.substr(0, sound.size() / 2), std::string(1000, '\0'),
                                  "[1,2", "\xFF\xFE\xFD"};
    for (const std::string& text : halves) {
        WriteFile(damaged, text);
        EXPECT_EQ(Widths(drafts, "P"), Numbers{2});
        drafts.Supersede("P", "", Noon);
        drafts.EndExpired(Noon.addYears(1));
        EXPECT_EQ(ReadFile(damaged), text);
        Keep(drafts, "P", 2, 1);
    }
}

TEST_F(KeptDrafts, ThatAreNoFilesArePassedOver) {
    const std::string pipe = Keep(drafts, "P", 1);
    const std::string loop = Keep(drafts, "P", 2);
    const std::string child = Keep(drafts, "P", 3);
    for (const std::string& file : {pipe, loop, child}) {
        drafts.Remove(file);
    }
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    QFile::link(QString::fromStdString(loop), QString::fromStdString(loop));
    QDir().mkpath(QString::fromStdString(child));
    EXPECT_TRUE(drafts.Of("P").empty());
}

TEST_F(KeptDrafts, OfAnotherProjectInAFileOfThisOnesNameArePassedOver) {
    const std::string file = Keep(drafts, "P", 1);
    WriteFile(file, ReadFile(Keep(drafts, "Q", 2)));
    EXPECT_TRUE(drafts.Of("P").empty());
    EXPECT_EQ(drafts.Read(file)->Project, "Q");
}

TEST_F(KeptDrafts, AreMarkedOnceSomethingNewerIsThere) {
    Keep(drafts, "P", 1, 1);
    Keep(drafts, "Q", 9, 1);
    const std::string newest = Keep(drafts, "P", 2, 2);
    drafts.Supersede("P", newest, Noon.addDays(1));
    auto found = drafts.Of("P");
    ASSERT_EQ(found.size(), 2U);
    EXPECT_FALSE(found[0].Record.Superseded.isValid());
    EXPECT_EQ(found[1].Record.Superseded, Noon.addDays(1));
    EXPECT_EQ(found[1].Record.Content, RoomsOf(1));
    EXPECT_EQ(found[1].Record.Written, Noon.addSecs(60));
    drafts.Supersede("P", "", Noon.addDays(2));
    found = drafts.Of("P");
    EXPECT_EQ(found[0].Record.Superseded, Noon.addDays(2));
    EXPECT_EQ(found[1].Record.Superseded, Noon.addDays(1)) << "marked once";
    EXPECT_FALSE(drafts.Of("Q")[0].Record.Superseded.isValid());
}

TEST_F(KeptDrafts, AreFiveAtMostOfAProject) {
    std::string newest;
    for (Integer i = 1; i <= 7; ++i) {
        newest = Keep(drafts, "P", i, i);
    }
    Keep(drafts, "Q", 9);
    drafts.Supersede("P", newest, Noon);
    EXPECT_EQ(Widths(drafts, "P"), (Numbers{7, 6, 5, 4, 3}));
    EXPECT_EQ(Widths(drafts, "Q"), Numbers{9});
}

TEST_F(KeptDrafts, NeverEndTheOneInUse) {
    std::string oldest = Keep(drafts, "P", 1, 0);
    for (Integer i = 2; i <= 7; ++i) {
        Keep(drafts, "P", i, i);
    }
    drafts.Supersede("P", oldest, Noon);
    EXPECT_EQ(Widths(drafts, "P"), (Numbers{7, 6, 5, 4, 3, 1}));
}

TEST_F(KeptDrafts, EndThirtyDaysAfterTheyWereSuperseded) {
    Drafts other = NewRun("/other/Tarn.mdb");
    Keep(drafts, "P", 1);
    Keep(other, "P", 2);
    const std::string inUse = Keep(drafts, "Q", 3);
    drafts.Supersede("P", "", Noon);
    other.Supersede("P", "", Noon);
    drafts.EndExpired(Noon.addDays(30));
    EXPECT_EQ(Widths(drafts, "P"), Numbers{1});
    drafts.EndExpired(Noon.addDays(30).addSecs(1));
    EXPECT_TRUE(Widths(drafts, "P").empty());
    EXPECT_TRUE(Widths(other, "P").empty()) << "whatever the database";
    drafts.EndExpired(Noon.addYears(10));
    EXPECT_EQ(Widths(drafts, "Q"), Numbers{3}) << "what nothing superseded";
}

TEST_F(KeptDrafts, MoveWithTheirProject) {
    Keep(drafts, "P", 1, 1);
    Keep(drafts, "P", 2, 2);
    Keep(drafts, "R", 3, 3);
    Keep(drafts, "NEW", 9, 9); // of a project that another program deleted
    drafts.Supersede("P", "", Noon);
    drafts.Move("p", "new");
    EXPECT_TRUE(Widths(drafts, "P").empty());
    EXPECT_EQ(Widths(NewRun(), "NEW"), (Numbers{2, 1}));
    EXPECT_EQ(drafts.Of("NEW")[0].Record.Project, "NEW");
    EXPECT_EQ(drafts.Of("NEW")[0].Record.Written, Noon.addSecs(120));
    EXPECT_EQ(drafts.Of("NEW")[0].Record.Superseded, Noon);
    EXPECT_EQ(Widths(drafts, "R"), Numbers{3});
    EXPECT_EQ(FileCount(), 3U);
}

TEST_F(KeptDrafts, EndWithTheirProject) {
    const std::string damaged = Keep(drafts, "P", 1);
    WriteFile(damaged, "{");
    Keep(drafts, "P", 2);
    Keep(drafts, "Q", 3);
    drafts.End("p");
    EXPECT_TRUE(Widths(drafts, "P").empty());
    EXPECT_FALSE(QFile::exists(QString::fromStdString(damaged)));
    EXPECT_EQ(Widths(drafts, "Q"), Numbers{3});
}

TEST(UserStateDirectory, FollowsTheEnvironment) {
    const EnvironmentSetting home("HOME", "/home/user");
    {
        const EnvironmentSetting state("XDG_STATE_HOME", "/elsewhere");
        EXPECT_EQ(UserStateDirectory(), "/elsewhere/tarn");
    }
    for (const char* value : {static_cast<const char*>(nullptr), "", "relative"}) {
        const EnvironmentSetting state("XDG_STATE_HOME", value);
        EXPECT_EQ(UserStateDirectory(), "/home/user/.local/state/tarn");
        const EnvironmentSetting noHome("HOME", nullptr);
        EXPECT_EQ(UserStateDirectory(), std::nullopt);
    }
}

} // namespace
} // namespace tarn
