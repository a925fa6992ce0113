// Standard output that cannot be written ends every command with a reason and status 1.

#include "tools/ToolTesting.h"

#include <array>
#include <string>

namespace tarn {
namespace {

using namespace tarn::testing;

class StandardOutput : public ToolTest {
  protected:
    StandardOutput() { MakeDatabase(QStringLiteral("SMITH"), "width,length,covering\n60,96,C1\n"); }

    /// What each command that prints something prints.
    static constexpr std::array Lists{
        "tarn-data list --database data/DATA/Tarn.mdb",
        "tarn-data report --database data/DATA/Tarn.mdb --project SMITH",
        "tarn-data export --database data/DATA/Tarn.mdb --project SMITH",
        "tarn-estimate --rooms rooms.csv --carpet 1 --roll-width 12ft",
        "tarn-estimate --rooms rooms.csv --carpet 1 --roll-width 12ft --json -",
        "tarn-data --help",
        "tarn-data import --help",
        "tarn-data --version",
        "tarn-estimate --help",
        "tarn-estimate --version"};
    /// Commands that are done before they say so.
    static constexpr std::array Changes{
        "tarn-data check --database data/DATA/Tarn.mdb",
        "tarn-data import --database data/DATA/Tarn.mdb --project NEW rooms.csv",
        "tarn-data backup --database data/DATA/Tarn.mdb copy.mdb", "tarn-data create other"};

    void ExpectTold(const std::string& command, const char* redirection) const {
        SCOPED_TRACE(command + redirection);
        const ToolRun run = Shell((command + redirection).c_str());
        EXPECT_EQ(run.Status, 1);
        EXPECT_TRUE(run.Error.toLower().contains("standard output cannot be written."))
            << run.Error.toStdString();
        EXPECT_EQ(run.Error.count('\n'), 1) << run.Error.toStdString();
    }
};

TEST_F(StandardOutput, ThatIsFullIsTold) {
    for (const char* command : Lists) {
        ExpectTold(command, " > /dev/full");
    }
    for (const char* command : Changes) {
        ExpectTold(command, " > /dev/full");
    }
    EXPECT_TRUE(Exists(QStringLiteral("copy.mdb"))) << "it was done all the same";
    EXPECT_TRUE(Exists(QStringLiteral("other/DATA/Tarn.mdb")));
}

TEST_F(StandardOutput, ThatIsClosedIsToldAndNoFileTakesItsPlace) {
    for (const char* command : Lists) {
        ExpectTold(command, " >&-");
    }
    for (const char* command : Changes) {
        ExpectTold(command, " >&-");
    }
    EXPECT_EQ(Shell("tarn-data check --database copy.mdb").Status, 0);
    // A file that was opened in the place of standard output would get the cut list too.
    ExpectTold("tarn-estimate --rooms rooms.csv --carpet 1 --roll-width 12ft --json out.json "
               "--text -",
               " >&- <&-");
    EXPECT_TRUE(Read(QStringLiteral("out.json")).startsWith('{'));
    EXPECT_TRUE(Read(QStringLiteral("out.json")).endsWith("}\n"));
}

TEST_F(StandardOutput, WhoseReaderIsGoneIsTold) {
    ASSERT_EQ(Shell("mkfifo pipe").Status, 0);
    for (const char* command : Lists) {
        // The reader goes when the writer has opened the pipe.
        ExpectTold(std::string("exec 3<>pipe 4>pipe 3<&-; ") + command, " >&4");
    }
}

TEST_F(StandardOutput, IsNotNeededByACommandThatPrintsNothing) {
    for (const char* redirection : {"> /dev/full", ">&-"}) {
        const std::string command = "tarn-estimate --rooms rooms.csv --carpet 1 --roll-width 12ft "
                                    "--text out.txt ";
        const ToolRun run = Shell((command + redirection).c_str());
        EXPECT_EQ(run.Status, 0) << run.Error.toStdString();
        EXPECT_TRUE(Read(QStringLiteral("out.txt")).startsWith("Carpet-1"));
    }
}

} // namespace
} // namespace tarn
