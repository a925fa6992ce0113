// The roll as a DXF drawing, read back by a reader that is not ours and compared with the JSON.

#include "QtString.h"
#include "tools/ToolTesting.h"

namespace tarn {
namespace {

using namespace tarn::testing;

class RollDxf : public ToolTest {
  protected:
    void ExpectAgrees(const QByteArray& command, const QByteArray& pieces) const {
        const ToolRun run = Shell(command + " --json a.json --dxf a.dxf");
        EXPECT_EQ(run.Status, 0) << run.Error.toStdString();
        const ToolRun compared = Shell("/usr/bin/python3 " TARN_SOURCE_DIRECTORY
                                       "/tests/tools/dxf_agrees.py a.json a.dxf");
        EXPECT_EQ(compared.Status, 0) << compared.Error.toStdString();
        EXPECT_EQ(compared.Out, "pieces: " + pieces + '\n') << compared.Out.toStdString();
    }
};

constexpr const char* OddTexts =
    "width,length,covering,room,remark\n192,240,C1,101,\n60,96,C1,,Küche\n"
    "30,500,C1,,\n500,30,C1,,%%d^J\\U+0041 50%\n";

TEST_F(RollDxf, OfAnOrderHasItsPiecesWhereTheyLie) {
    Write(S("a.csv"), OddTexts);
    ExpectAgrees("tarn-order --rooms a.csv --roll 12ft --trim 3 --max-parts 3 --steps 500", "8");
}

TEST_F(RollDxf, OfAnOrderHasTheSelvagesOfTheRoll) {
    Write(S("a.csv"), OddTexts);
    ExpectAgrees("tarn-order --rooms a.csv --metric --roll 400cm --selvage 3cm --lay both "
                 "--steps 500",
                 "5");
}

TEST_F(RollDxf, OfAnEstimateHasCutsAndFills) {
    Write(S("a.csv"), OddTexts);
    ExpectAgrees("tarn-estimate --rooms a.csv --carpet 1 --roll-width 12ft --max-pieces 2", "10");
    ExpectAgrees("tarn-estimate --rooms a.csv --carpet 1 --roll-width 366cm --metric --lay cross",
                 "5");
}

TEST_F(RollDxf, ShowsOneCarpet) {
    Write(S("a.csv"), "width,length,covering\n60,96,C1\n60,96,C2\n");
    const ToolRun run = Shell("tarn-order --rooms a.csv --roll 12ft --steps 10 --dxf a.dxf");
    EXPECT_EQ(run.Status, 1);
    EXPECT_TRUE(run.Error.contains(
        "The drawing of --dxf shows one carpet, and there are several: choose one with --carpet."));
    EXPECT_FALSE(Exists(S("a.dxf")));
    ExpectAgrees("tarn-order --rooms a.csv --roll 12ft --steps 10 --carpet 2", "1");
}

TEST_F(RollDxf, IsNotWrittenWhereNoRollIsTaken) {
    Write(S("a.csv"), "width,length,covering\n100,32767,C1\n");
    const ToolRun run = Shell(
        "tarn-order --rooms a.csv --roll 12ft --trim 3in --steps 10 --dxf a.dxf --text a.txt");
    EXPECT_EQ(run.Status, 1);
    EXPECT_TRUE(run.Error.contains("No carpet has an order")) << run.Error.toStdString();
    EXPECT_FALSE(Exists(S("a.dxf")));
    EXPECT_TRUE(Exists(S("a.txt")));
}

TEST_F(RollDxf, GoesToAFileOfItsOwn) {
    Write(S("a.csv"), OddTexts);
    for (const char* command :
         {"tarn-order --roll 12ft --steps 10", "tarn-estimate --carpet 1 --roll-width 12ft"}) {
        EXPECT_EQ(Shell(command + QByteArray(" --rooms a.csv --dxf - --json -")).Status, 2);
        const ToolRun run = Shell(command + QByteArray(" --rooms a.csv --dxf a.csv"));
        EXPECT_EQ(run.Status, 1);
        EXPECT_TRUE(run.Error.contains("the rooms are read from it"));
        EXPECT_TRUE(
            Shell(command + QByteArray(" --rooms a.csv --dxf -")).Out.startsWith("999\r\n"));
    }
}

} // namespace
} // namespace tarn
