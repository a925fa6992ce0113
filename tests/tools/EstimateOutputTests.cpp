#include "QtString.h"
#include "tools/ToolTesting.h"

#include <QDir>
#include <QProcess>

#include <array>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace tarn {
namespace {

using namespace tarn::testing;

class EstimateOutput : public ToolTest {
  protected:
    QStringList Arguments(const char* output, const QString& file) const {
        return {S("--rooms"),      Write(S("rooms.csv"), "width,length,covering\n60,96,C1\n"),
                S("--carpet"),     S("1"),
                S("--roll-width"), S("12ft"),
                S(output),         file};
    }
    void ExpectCannotBeWritten(const char* output, const QString& file) const {
        const ToolRun run = Estimate(Arguments(output, file));
        EXPECT_EQ(run.Status, 1);
        EXPECT_TRUE(run.Out.isEmpty()) << run.Out.toStdString();
        EXPECT_TRUE(run.Error.contains(file.toUtf8() + " cannot be written: "))
            << run.Error.toStdString();
    }
};

TEST_F(EstimateOutput, AFolderThatIsNotThereIsRefused) {
    for (const char* output : {"--text", "--json", "--svg", "--pdf"}) {
        ExpectCannotBeWritten(output, S("no/such/folder/out"));
    }
}

TEST_F(EstimateOutput, AFolderInPlaceOfTheFileIsRefused) {
    ASSERT_TRUE(QDir(Path(S("."))).mkdir(S("taken")));
    ExpectCannotBeWritten("--text", S("taken"));
    EXPECT_TRUE(QDir(Path(S("taken"))).exists());
}

TEST_F(EstimateOutput, ADiskThatTakesNoMoreLeavesTheOldFile) {
    // Below and above what output buffers hold: the cut list of one room and of many.
    for (const int rooms : {1, 500}) {
        QByteArray csv = "width,length,covering\n";
        for (int room = 0; room < rooms; ++room) {
            csv += "288,96,C1\n";
        }
        Write(S("rooms.csv"), csv);
        for (const char* output : {"--text", "--json", "--svg", "--pdf"}) {
            SCOPED_TRACE(output);
            Write(S("out"), "the old one");
            const ToolRun run =
                Shell((std::string("trap '' XFSZ; ulimit -f 0; tarn-estimate --rooms rooms.csv "
                                   "--carpet 1 --roll-width 12ft ") +
                       output + " out")
                          .c_str());
            EXPECT_EQ(run.Status, 1);
            EXPECT_EQ(run.Error.toStdString(),
                      "tarn-estimate: The file out cannot be written: File too large.\n");
            EXPECT_EQ(Read(S("out")), "the old one");
            EXPECT_EQ(QDir(Path(S("."))).entryList(QDir::Files | QDir::Hidden),
                      QStringList({S("out"), S("rooms.csv")}));
        }
    }
}

TEST_F(EstimateOutput, ANameAsLongAsNamesMayBeIsTaken) {
    const QString longest(255, u'n');
    Write(longest, "the old list");
    EXPECT_EQ(Estimate(Arguments("--text", longest)).Status, 0);
    EXPECT_TRUE(Read(longest).startsWith("Carpet-1"));
}

TEST_F(EstimateOutput, ADatabaseAndALinkTakeForce) {
    MakeDatabase();
    const QByteArray database = Read(S("data/DATA/Tarn.mdb"));
    Write(S("real"), "the old one");
    for (const char* output : {"--text", "--json", "--svg", "--pdf"}) {
        SCOPED_TRACE(output);
        Write(S("copy.mdb"), database);
        QFile::remove(Path(S("link")));
        ASSERT_TRUE(QFile::link(S("real"), Path(S("link"))));
        Write(S("real"), "the old one");
        const ToolRun overDatabase = Estimate(Arguments(output, S("copy.mdb")));
        EXPECT_EQ(overDatabase.Status, 1);
        EXPECT_EQ(overDatabase.Error.toStdString(),
                  "tarn-estimate: The file copy.mdb is a database and stays as it is. Name another "
                  "file for the output.\n");
        EXPECT_EQ(Read(S("copy.mdb")), database);
        const ToolRun overLink = Estimate(Arguments(output, S("link")));
        EXPECT_EQ(overLink.Status, 1);
        EXPECT_EQ(
            overLink.Error.toStdString(),
            "tarn-estimate: The file link is a link, which leads to real, and stays as it is. "
            "Name another file for the output.\n");
        EXPECT_EQ(Read(S("real")), "the old one");
        for (const char* file : {"copy.mdb", "link"}) {
            const ToolRun forced = Estimate(Arguments(output, S(file)) + QStringList{S("--force")});
            EXPECT_EQ(forced.Status, 0) << forced.Error.toStdString();
        }
        EXPECT_FALSE(Read(S("copy.mdb")).startsWith("SQLite"));
        EXPECT_NE(Read(S("real")), "the old one");
        EXPECT_TRUE(QFileInfo(Path(S("link"))).isSymLink());
    }
}

TEST_F(EstimateOutput, WhatIsReadIsNeverWrittenOver) {
    const QString database = MakeDatabase(S("SMITH"), "width,length,covering\n60,96,C1\n");
    const QByteArray before = Read(S("data/DATA/Tarn.mdb"));
    const ToolRun run =
        Estimate({S("--database"), database, S("--project"), S("SMITH"), S("--carpet"), S("1"),
                  S("--roll-width"), S("12ft"), S("--text"), database, S("--force")});
    EXPECT_EQ(run.Status, 1);
    EXPECT_TRUE(run.Error.contains("the rooms are read from it")) << run.Error.toStdString();
    EXPECT_EQ(Read(S("data/DATA/Tarn.mdb")), before);
}

TEST_F(EstimateOutput, WhatAKilledRunLeftIsRemoved) {
    Write(S(".tarn-0123456789abcdef.part"), "half a li");
    EXPECT_EQ(Estimate(Arguments("--text", S("out"))).Status, 0);
    EXPECT_FALSE(Exists(S(".tarn-0123456789abcdef.part")));
}

TEST_F(EstimateOutput, APipeThatNobodyReadsIsRefused) {
    ASSERT_EQ(Shell("mkfifo unread").Status, 0);
    const ToolRun run = Estimate(Arguments("--text", S("unread")));
    EXPECT_EQ(run.Status, 1);
    EXPECT_EQ(run.Error.toStdString(),
              "tarn-estimate: The file unread cannot be written: nothing reads from it.\n");
}

TEST_F(EstimateOutput, AnOldFileIsReplaced) {
    Write(S("out.txt"), QByteArray(10000, 'x'));
    EXPECT_EQ(Estimate(Arguments("--text", S("out.txt"))).Status, 0);
    EXPECT_TRUE(Read(S("out.txt")).startsWith("Carpet-1  Width=12'0\"  DOWNLAY\n"));
    EXPECT_FALSE(Read(S("out.txt")).contains('x'));
}

TEST_F(EstimateOutput, APipeIsWrittenToAndNotReplaced) {
    const QByteArray pipe = Path(S("pipe")).toUtf8();
    ASSERT_EQ(mkfifo(pipe.constData(), S_IRUSR | S_IWUSR), 0);
    const int reader = open(pipe.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    ASSERT_GE(reader, 0);
    const ToolRun run = Estimate(Arguments("--text", S("pipe")));
    std::array<char, 4096> buffer{};
    const ssize_t count = read(reader, buffer.data(), buffer.size());
    close(reader);
    EXPECT_EQ(run.Status, 0) << run.Error.toStdString();
    ASSERT_GT(count, 0) << "nothing came through the pipe";
    EXPECT_TRUE(QByteArray(buffer.data(), count).startsWith("Carpet-1  Width=12'0\"  DOWNLAY\n"));
    struct stat there {};
    ASSERT_EQ(stat(pipe.constData(), &there), 0);
    EXPECT_TRUE(S_ISFIFO(there.st_mode));
}

TEST_F(EstimateOutput, NoTwoOutputsGoToOnePlace) {
    const std::array outputs{"--text", "--json", "--svg", "--pdf"};
    for (std::size_t first = 0; first < outputs.size(); ++first) {
        for (std::size_t second = first + 1; second < outputs.size(); ++second) {
            const QByteArray names = QByteArray(outputs[first]) + " and " + outputs[second];
            for (const auto& [file, place] : {std::pair("out", "out"), {"-", "standard output"}}) {
                const ToolRun run = Estimate(Arguments(outputs[first], S(file)) +
                                             QStringList{S(outputs[second]), S(file)});
                EXPECT_NE(run.Status, 0);
                EXPECT_TRUE(run.Out.isEmpty());
                EXPECT_TRUE(run.Error.contains(names + " cannot both go to " + place))
                    << run.Error.toStdString();
                EXPECT_FALSE(QFile::exists(Path(S("out"))));
            }
        }
    }
}

TEST_F(EstimateOutput, TwoOutputsInOneFileThatIsNotThereYetAreRefused) {
    ASSERT_TRUE(QDir(Path(S("."))).mkdir(S("real")));
    ASSERT_TRUE(QFile::link(S("real"), Path(S("link"))));
    ASSERT_TRUE(QFile::link(S("real/out"), Path(S("later"))));
    for (const char* other : {"real/out", "./real/../real/out", "link/out", "link/../real/out",
                              "later", "link/../later"}) {
        const ToolRun run =
            Estimate(Arguments("--json", S("real/out")) + QStringList{S("--svg"), S(other)});
        EXPECT_NE(run.Status, 0) << other;
        EXPECT_TRUE(run.Error.contains("--json and --svg cannot both go to")) << other;
        EXPECT_TRUE(QDir(Path(S("real"))).isEmpty()) << other;
    }
    EXPECT_EQ(Estimate(Arguments("--json", S("real/out")) + QStringList{S("--svg"), S("link/new")})
                  .Status,
              0);
    EXPECT_TRUE(Read(S("real/out")).startsWith("{"));
    EXPECT_TRUE(Read(S("real/new")).startsWith("<"));
}

TEST_F(EstimateOutput, AFullStandardOutputIsRefused) {
    QProcess process;
    process.setStandardOutputFile(S("/dev/full"));
    process.start(S(TARN_TOOLS_DIRECTORY "/tarn-estimate"), Arguments("--text", S("-")));
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 1);
    EXPECT_EQ(process.readAllStandardError().toStdString(),
              "tarn-estimate: Standard output cannot be written.\n");
}

} // namespace
} // namespace tarn
