#include "files/OutputFile.h"
#include "files/SystemCallFaults.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarn {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// Sizes on both sides of what output buffers hold.
constexpr std::array Sizes{0, 1, 100, 16383, 16384, 20000, 300000};

/// How a database of the program begins.
const std::string Database = std::string("SQLite format 3\0", 16) + std::string(100, 'x');

class OutputFile : public ::testing::Test {
  protected:
    std::string Path(const std::string& name) const {
        return directory_.filePath(QString::fromStdString(name)).toStdString();
    }
    std::string Write(const std::string& name, const std::string& content) const {
        std::ofstream(Path(name), std::ios::binary) << content;
        return Path(name);
    }
    static std::string ContentOf(const std::string& path) {
        std::ifstream file(path, std::ios::binary);
        EXPECT_TRUE(file.is_open()) << path;
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }
    /// The names of everything in the directory, hidden or not.
    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(directory_.path().toStdString())) {
            names.push_back(entry.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        return names;
    }
    /// What WriteOutputFile refuses with; empty when it does not.
    static std::string Refusal(const std::string& path, const std::string& content,
                               Overwrite over = Overwrite::Chosen) {
        try {
            WriteOutputFile(path, content, over);
        } catch (const OutputFileError& error) {
            return error.what();
        }
        return {};
    }
    static std::string CannotBeWritten(const std::string& path, const std::string& cause) {
        return "The file " + path + " cannot be written: " + cause + ".";
    }
    static struct stat StatusOf(const std::string& path) {
        struct stat status {};
        EXPECT_EQ(::stat(path.c_str(), &status), 0) << path;
        return status;
    }

  private:
    QTemporaryDir directory_;
};

constexpr const char* FullDisk = "the disk is full. Free some space and try again";

TEST_F(OutputFile, IsMadeOfAnySize) {
    for (const int size : Sizes) {
        const std::string content(static_cast<std::size_t>(size), 'n');
        WriteOutputFile(Path("out"), content);
        EXPECT_EQ(ContentOf(Path("out")), content);
        EXPECT_THAT(Names(), ElementsAre("out"));
        fs::remove(Path("out"));
    }
}

TEST_F(OutputFile, TakesThePlaceOfALongerAndAShorterOne) {
    for (const int size : Sizes) {
        Write("out", std::string(5000, 'o'));
        const std::string content(static_cast<std::size_t>(size), 'n');
        WriteOutputFile(Path("out"), content);
        EXPECT_EQ(ContentOf(Path("out")), content);
        EXPECT_THAT(Names(), ElementsAre("out"));
    }
}

TEST_F(OutputFile, IsWholeWhenTheSystemTakesAFewBytesAtATime) {
    std::string content;
    for (int i = 0; i < 10000; ++i) {
        content += std::to_string(i) + "\n";
    }
    testing::WithShortWrites(1000, [&] { WriteOutputFile(Path("out"), content); });
    EXPECT_EQ(ContentOf(Path("out")), content);
}

TEST_F(OutputFile, IsStoredBeforeItTakesTheOldOnesPlaceAndItsFolderAfterThat) {
    Write("out", "old");
    const auto calls = testing::CallsOf([&] { WriteOutputFile(Path("out"), "new"); });
    const auto rename = std::find(calls.begin(), calls.end(), "rename");
    ASSERT_NE(rename, calls.end());
    EXPECT_NE(std::find(calls.begin(), rename, "write"), rename);
    EXPECT_NE(std::find(calls.begin(), rename, "fsync"), rename);
    EXPECT_NE(std::find(rename, calls.end(), "fsync"), calls.end());
}

/// Whatever call fails: either it does not matter and the new file is there, or the failure is told
/// and everything is as it was. Gives back the calls that matter.
class FailingCalls : public OutputFile {
  protected:
    std::vector<std::string> CallsThatMatter(const std::string& content, bool replaces) {
        const auto begin = [&] {
            fs::remove(Path("out"));
            if (replaces) {
                Write("out", "old");
            }
        };
        begin();
        const auto calls = testing::CallsOf([&] { WriteOutputFile(Path("out"), content); });
        std::vector<std::string> mattering;
        for (std::size_t place = 0; place < calls.size(); ++place) {
            SCOPED_TRACE(calls[place] + ", call " + std::to_string(place));
            begin();
            std::string refusal;
            testing::WithFailingCall(place, ENOSPC,
                                     [&] { refusal = Refusal(Path("out"), content); });
            if (refusal.empty()) {
                EXPECT_EQ(ContentOf(Path("out")), content);
                EXPECT_THAT(Names(), ElementsAre("out"));
                continue;
            }
            mattering.push_back(calls[place]);
            EXPECT_EQ(refusal, CannotBeWritten(Path("out"), FullDisk));
            if (replaces) {
                EXPECT_EQ(ContentOf(Path("out")), "old");
                EXPECT_THAT(Names(), ElementsAre("out"));
            } else {
                EXPECT_THAT(Names(), IsEmpty());
            }
        }
        return mattering;
    }
};

TEST_F(FailingCalls, LeaveTheOldFileAndNoOtherAndAreTold) {
    for (const int size : Sizes) {
        SCOPED_TRACE(size);
        auto expected = std::vector<std::string>{"open",  "fchmod", "write", "fsync",
                                                 "close", "rename", "open",  "fsync"};
        if (size == 0) {
            expected.erase(expected.begin() + 2);
        }
        EXPECT_EQ(CallsThatMatter(std::string(static_cast<std::size_t>(size), 'n'), true),
                  expected);
    }
}

TEST_F(FailingCalls, LeaveNoNewFileAndAreTold) {
    for (const int size : {1, 100, 20000}) {
        SCOPED_TRACE(size);
        EXPECT_THAT(CallsThatMatter(std::string(static_cast<std::size_t>(size), 'n'), false),
                    ElementsAre("open", "write", "fsync", "close", "rename", "open", "fsync"));
    }
}

TEST_F(OutputFile, IsWrittenAgainAfterAnInterruption) {
    const auto calls = testing::CallsOf([&] { WriteOutputFile(Path("out"), "first"); });
    fs::remove(Path("out"));
    for (std::size_t place = 0; place < calls.size(); ++place) {
        if (calls[place] == "write" || calls[place] == "fsync") {
            testing::WithFailingCall(place, EINTR, [&] { WriteOutputFile(Path("out"), "second"); });
            EXPECT_EQ(ContentOf(Path("out")), "second");
            fs::remove(Path("out"));
        }
    }
}

TEST_F(OutputFile, NeedsNoWayToStoreAFolder) {
    for (const int error : {EINVAL, ENOTSUP}) {
        const auto calls = testing::CallsOf([&] { WriteOutputFile(Path("out"), "first"); });
        ASSERT_EQ(calls.at(calls.size() - 3), "fsync");
        fs::remove(Path("out"));
        testing::WithFailingCall(calls.size() - 3, error,
                                 [&] { WriteOutputFile(Path("out"), "second"); });
        EXPECT_EQ(ContentOf(Path("out")), "second");
        fs::remove(Path("out"));
    }
}

/// Files of this process can grow to so many bytes while it lives.
class FileSizeLimit {
  public:
    explicit FileSizeLimit(rlim_t bytes) {
        ::getrlimit(RLIMIT_FSIZE, &before_);
        signal_ = std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{bytes, before_.rlim_max};
        EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
    }
    ~FileSizeLimit() {
        ::setrlimit(RLIMIT_FSIZE, &before_);
        static_cast<void>(std::signal(SIGXFSZ, signal_));
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

  private:
    rlimit before_{};
    void (*signal_)(int) = nullptr;
};

TEST_F(OutputFile, ThatTheSystemLetsGrowNoFurtherLeavesTheOldOne) {
    for (const int size : {101, 5000, 16384, 300000}) {
        Write("out", "old");
        std::string refusal;
        {
            const FileSizeLimit limit(100);
            refusal = Refusal(Path("out"), std::string(static_cast<std::size_t>(size), 'n'));
        }
        EXPECT_EQ(refusal, CannotBeWritten(Path("out"), "File too large"));
        EXPECT_EQ(ContentOf(Path("out")), "old");
        EXPECT_THAT(Names(), ElementsAre("out"));
    }
}

TEST_F(OutputFile, HasThePermissionsOfTheOneThatItReplaces) {
    for (const mode_t mode : {0600U, 0640U, 0666U, 0755U, 0200U}) {
        ASSERT_EQ(::chmod(Write("out", "old").c_str(), mode), 0);
        WriteOutputFile(Path("out"), "new");
        EXPECT_EQ(StatusOf(Path("out")).st_mode & 07777U, mode);
    }
}

TEST_F(OutputFile, HasTheOwnerAndTheGroupOfTheOneThatItReplaces) {
    if (::geteuid() != 0) {
        GTEST_SKIP() << "only the system's administrator can give a file away";
    }
    ASSERT_EQ(::chown(Write("out", "old").c_str(), 12345, 23456), 0);
    ASSERT_EQ(::chmod(Path("out").c_str(), 0664), 0);
    WriteOutputFile(Path("out"), "new");
    EXPECT_EQ(StatusOf(Path("out")).st_uid, 12345U);
    EXPECT_EQ(StatusOf(Path("out")).st_gid, 23456U);
    EXPECT_EQ(StatusOf(Path("out")).st_mode & 07777U, 0664U);
}

TEST_F(OutputFile, IsMadeWithTheUsersMask) {
    const mode_t before = ::umask(027);
    WriteOutputFile(Path("out"), "new");
    ::umask(before);
    EXPECT_EQ(StatusOf(Path("out")).st_mode & 07777U, 0640U);
}

TEST_F(OutputFile, ThatIsReadOnlyStaysWhateverIsAllowed) {
    ASSERT_EQ(::chmod(Write("out", "old").c_str(), 0444), 0);
    for (const Overwrite over : {Overwrite::Files, Overwrite::Chosen, Overwrite::Anything}) {
        EXPECT_EQ(Refusal(Path("out"), "new", over),
                  CannotBeWritten(Path("out"), "it is read-only"));
        EXPECT_EQ(ContentOf(Path("out")), "old");
    }
}

TEST_F(OutputFile, CanHaveTheLongestName) {
    const std::string longest(255, 'n');
    Write(longest, "old");
    WriteOutputFile(Path(longest), "new");
    EXPECT_EQ(ContentOf(Path(longest)), "new");
}

TEST_F(OutputFile, NeedsAFolderAndIsNone) {
    EXPECT_EQ(Refusal(Path("no/out"), "new"),
              CannotBeWritten(Path("no/out"), "No such file or directory"));
    EXPECT_EQ(Refusal(Path("no") + "/", "new"),
              CannotBeWritten(Path("no") + "/", "No such file or directory"));
    EXPECT_EQ(Refusal("", "new"), CannotBeWritten("", "No such file or directory"));
    const std::string folder = fs::path(Path("x")).parent_path();
    EXPECT_EQ(Refusal(folder, "new"), CannotBeWritten(folder, "Is a directory"));
    Write("file", "old");
    EXPECT_EQ(Refusal(Path("file/out"), "new"),
              CannotBeWritten(Path("file/out"), "Not a directory"));
    EXPECT_THAT(Names(), ElementsAre("file"));
}

TEST_F(OutputFile, TakesANameOfAnyBytes) {
    const std::string path = Path("x") + "\xFF\xC3";
    WriteOutputFile(path, "first");
    WriteOutputFile(path, "second");
    EXPECT_EQ(ContentOf(path), "second");
    fs::remove(path); // the toolkit, which removes the directory, cannot name it
}

TEST_F(OutputFile, ReplacesADatabaseOnlyByForce) {
    for (const std::string& database :
         {Database, std::string("\0\1\0\0Standard Jet DB", 19) + std::string(100, 'x'),
          std::string("\xD9\xD5\x05\xF9\x20\xA1\x63\xD7") + std::string(20, 'x')}) {
        Write("data.mdb", database);
        for (const Overwrite over : {Overwrite::Files, Overwrite::Chosen}) {
            EXPECT_EQ(Refusal(Path("data.mdb"), "new", over),
                      "The file " + Path("data.mdb") +
                          " is a database and stays as it is. Name another file for the output.");
            EXPECT_EQ(ContentOf(Path("data.mdb")), database);
        }
        WriteOutputFile(Path("data.mdb"), "new", Overwrite::Anything);
        EXPECT_EQ(ContentOf(Path("data.mdb")), "new");
    }
}

TEST_F(OutputFile, IsNotWrittenThroughALinkUnlessThatWasChosen) {
    fs::create_directory(Path("elsewhere"));
    Write("elsewhere/real", "old");
    fs::create_symlink("elsewhere/real", Path("link"));
    fs::create_symlink("elsewhere/later", Path("loose"));
    fs::create_symlink("link", Path("chain"));
    for (const auto& [name, end] : {std::pair("link", "elsewhere/real"),
                                    {"loose", "elsewhere/later"},
                                    {"chain", "elsewhere/real"}}) {
        EXPECT_EQ(Refusal(Path(name), "new", Overwrite::Files),
                  "The file " + Path(name) + " is a link, which leads to " + Path(end) +
                      ", and stays as it is. Name another file for the output.");
    }
    EXPECT_EQ(ContentOf(Path("elsewhere/real")), "old");
    EXPECT_FALSE(fs::exists(Path("elsewhere/later")));
    int count = 0;
    for (const Overwrite over : {Overwrite::Chosen, Overwrite::Anything}) {
        for (const auto& [name, end] : {std::pair("link", "elsewhere/real"),
                                        {"loose", "elsewhere/later"},
                                        {"chain", "elsewhere/real"}}) {
            const std::string content = "new " + std::to_string(++count);
            WriteOutputFile(Path(name), content, over);
            EXPECT_TRUE(fs::is_symlink(Path(name)));
            EXPECT_EQ(ContentOf(Path(end)), content);
        }
    }
    fs::create_symlink("round", Path("round"));
    EXPECT_EQ(Refusal(Path("round"), "new"),
              CannotBeWritten(Path("round"), "Too many levels of symbolic links"));
    EXPECT_THAT(Names(), ElementsAre("chain", "elsewhere", "link", "loose", "round"));
}

TEST_F(OutputFile, ThroughALinkToADatabaseIsRefused) {
    Write("data.mdb", Database);
    fs::create_symlink("data.mdb", Path("link"));
    EXPECT_THAT(Refusal(Path("link"), "new"), HasSubstr("is a database"));
    EXPECT_EQ(ContentOf(Path("data.mdb")), Database);
}

TEST_F(OutputFile, IsPutIntoAFolderBehindALink) {
    fs::create_directory(Path("folder"));
    fs::create_directory_symlink("folder", Path("link"));
    WriteOutputFile(Path("link/out"), "new", Overwrite::Files);
    EXPECT_EQ(ContentOf(Path("folder/out")), "new");
}

constexpr const char* LeftOver = ".tarn-0123456789abcdef.part";

TEST_F(OutputFile, RemovesWhatAKilledRunLeftAndNothingElse) {
    const std::vector<std::string> others{".tarn-0123456789abcdeg.part", ".tarn-012.part",
                                          ".tarn-0123456789abcdef.part.txt", "tarn.part"};
    for (const std::string& name : others) {
        Write(name, "other");
    }
    Write(LeftOver, "half a li");
    fs::create_directory(Path(".tarn-00000000000000aa.part"));
    fs::create_symlink("tarn.part", Path(".tarn-00000000000000bb.part"));
    WriteOutputFile(Path("out"), "new");
    auto expected = others;
    expected.insert(expected.end(),
                    {"out", ".tarn-00000000000000aa.part", ".tarn-00000000000000bb.part"});
    EXPECT_THAT(Names(), ::testing::UnorderedElementsAreArray(expected));
}

TEST_F(OutputFile, RemovesAFolderInTheMakingThatAKilledRunLeftAndNoOther) {
    const std::vector<std::string> others{".tarn-aBcD1", ".tarn-aBcD123", ".tarn-aBcD-2", "tarn"};
    for (const std::string& name : others) {
        fs::create_directory(Path(name));
    }
    fs::create_directory(Path(".tarn-aBcD12"));
    Write(".tarn-aBcD12/Tarn.mdb", "half a database");
    Write(".tarn-aBcD34", "a file");
    fs::create_symlink("tarn", Path(".tarn-aBcD56"));
    fs::create_directory(Path(".tarn-aBcD78"));
    const int alive = ::open(Path(".tarn-aBcD78").c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    ASSERT_EQ(::flock(alive, LOCK_EX), 0);
    WriteOutputFile(Path("out"), "new");
    ::close(alive);
    auto expected = others;
    expected.insert(expected.end(), {"out", ".tarn-aBcD34", ".tarn-aBcD56", ".tarn-aBcD78"});
    EXPECT_THAT(Names(), ::testing::UnorderedElementsAreArray(expected));
}

TEST_F(OutputFile, LeavesTheFileInTheMakingOfARunThatIsAlive) {
    const int alive = ::open(Write(LeftOver, "half a li").c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_EQ(::flock(alive, LOCK_EX), 0);
    WriteOutputFile(Path("out"), "new");
    EXPECT_THAT(Names(), ElementsAre(LeftOver, "out"));
    ::close(alive);
    WriteOutputFile(Path("out"), "newer");
    EXPECT_THAT(Names(), ElementsAre("out"));
}

TEST_F(OutputFile, IsLockedAgainstOtherRunsWhileItIsMade) {
    Write("out", "old");
    const auto calls = testing::CallsOf([&] { WriteOutputFile(Path("out"), "new"); });
    std::size_t looks = 0;
    for (std::size_t place = 0; place < calls.size(); ++place) {
        if (calls[place] != "open") {
            // Another run writes into the folder in the middle of this one.
            testing::BeforeCall(
                place, [&] { WriteOutputFile(Path("other"), "other"); },
                [&] { WriteOutputFile(Path("out"), "new"); });
            EXPECT_EQ(ContentOf(Path("out")), "new") << calls[place];
            EXPECT_THAT(Names(), ElementsAre("other", "out"));
            ++looks;
        }
    }
    EXPECT_GT(looks, 4U);
}

TEST_F(OutputFile, GoesToADeviceAsItIs) {
    WriteOutputFile("/dev/null", "new", Overwrite::Files);
    EXPECT_TRUE(S_ISCHR(StatusOf("/dev/null").st_mode));
    for (const int size : {1, 20000}) {
        EXPECT_EQ(Refusal("/dev/full", std::string(static_cast<std::size_t>(size), 'n')),
                  CannotBeWritten("/dev/full", FullDisk));
    }
}

TEST(SynchroniseFolder, StoresAFolderOrNamesIt) {
    const QTemporaryDir folder;
    EXPECT_THAT(testing::CallsOf([&] { SynchroniseFolder(folder.path().toStdString()); }),
                ElementsAre("open", "fsync", "close"));
    const auto refusal = [](const std::string& path) {
        try {
            SynchroniseFolder(path);
        } catch (const OutputFileError& error) {
            return std::string(error.what());
        }
        return std::string();
    };
    const std::string missing = folder.filePath(QStringLiteral("no")).toStdString();
    EXPECT_EQ(refusal(missing),
              "The folder " + missing + " cannot be stored: No such file or directory.");
    testing::WithFailingCall(1, EIO, [&] {
        EXPECT_EQ(refusal(folder.path().toStdString()), "The folder " +
                                                            folder.path().toStdString() +
                                                            " cannot be stored: Input/output "
                                                            "error.");
    });
}

} // namespace
} // namespace tarn
