#include "QtString.h"
#include "tools/ToolTesting.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QXmlStreamReader>

#include <gmock/gmock.h>

namespace tarn {
namespace {

using namespace tarn::testing;

/// Arguments from a text with blanks between them.
Args Words(const char* text) {
    return S(text).split(QLatin1Char(' '));
}

constexpr const char* House = "width,length,covering,base,room,remark\n"
                              "15'0\",12'0\",CARPET-1,,1,\n"
                              "9'0\",10'0\",C1,,2,\n"
                              "60,96,c1,,3,\n"
                              "120,120,TILE-1,W2L2,4,kitchen\n";

class EstimateTool : public ToolTest {
  protected:
    /// Estimate carpet 1 of a CSV text on a 12 ft roll, with further options.
    ToolRun EstimateCsv(const QByteArray& csv, const Args& more = {}) const {
        Write(S("rooms.csv"), csv);
        return Estimate(Words("--rooms rooms.csv --carpet 1 --roll-width 12ft") + more);
    }

    /// Arguments for carpet 1 of the project SMITH on a 12 ft roll.
    Args OfSmith(const QString& database) const {
        return Args{S("--database"), database} +
               Words("--project SMITH --carpet 1 --roll-width 12ft");
    }
};

TEST_F(EstimateTool, PrintsTheCutListOfACsvFile) {
    const ToolRun run = EstimateCsv(House);
    EXPECT_EQ(run.Status, 0);
    EXPECT_EQ(run.Out.toStdString(), "Carpet-1  Width=12'0\"  DOWNLAY\n"
                                     "Cut1: 12'0\" X 12'0\"\n"
                                     "A: 3'0\" X 12'0\"\n"
                                     "B: 9'0\" X 10'0\"\n"
                                     "C: 5'0\" X 8'0\"\n"
                                     "Total Cuts:1   Total Cut-Len:12'0\"\n"
                                     "Total Fills:3   Total Fill-Len:18'0\"\n"
                                     "Total Length:30'0\"\n"
                                     "Total SQ. Yards:40.00\n"
                                     "Total SQ. FT.:360.00\n"
                                     "Total BASE: 40.00 FEET\n"
                                     "Tile-1:  100.00 SQ. FT.  Tile Base: 40.00 FEET\n");
    EXPECT_TRUE(run.Error.isEmpty()) << run.Error.toStdString();
}

TEST_F(EstimateTool, PrintsTheSameOfAProjectInADatabase) {
    const QString database = MakeDatabase(S("Smith's 100%"), House);
    const ToolRun run =
        Estimate(Args{S("--database"), database, S("--project"), S("smith's 100%")} +
                 Words("--carpet 1 --roll-width 144in"));
    EXPECT_EQ(run.Status, 0) << run.Error.toStdString();
    EXPECT_EQ(run.Out, EstimateCsv(House).Out);
}

TEST_F(EstimateTool, ReadsADatabaseThatIsReadOnly) {
    const QString database = MakeDatabase(S("SMITH"), House);
    QFile::setPermissions(database, QFile::ReadOwner);
    const ToolRun run = Estimate(OfSmith(database));
    EXPECT_EQ(run.Status, 0) << run.Error.toStdString();
}

TEST_F(EstimateTool, EstimatesMetricRooms) {
    Write(S("m.csv"), "width,length,covering\n732,300,C2\n100,300,C2\n266,300,C2\n");
    const ToolRun run =
        Estimate(Words("--rooms m.csv --metric --carpet 2 --roll-width 366cm --max-pieces 1"));
    EXPECT_EQ(run.Out.toStdString(), "Carpet-2  Width=366  DOWNLAY\n"
                                     "Cut1: 366 X 300\n"
                                     "Cut2: 366 X 300\n"
                                     "A: 100 X 300\n"
                                     "B: 266 X 300\n"
                                     "Total Cuts:2   Total Cut-Len:600\n"
                                     "Total Fills:2   Total Fill-Len:305\n"
                                     "Total Length:905\n"
                                     "Total SQ. Meters:33.12\n"
                                     "Total BASE: 0 CM\n");
}

TEST_F(EstimateTool, WritesJsonWithEveryKey) {
    const ToolRun run =
        EstimateCsv(House, Words("--json - --lay cross --min-cut 2 --max-pieces 6"));
    EXPECT_EQ(run.Status, 0);
    const QJsonObject json = QJsonDocument::fromJson(run.Out).object();
    EXPECT_EQ(json[S("layDir")].toInt(), 1);
    EXPECT_EQ(json[S("estOption")].toInt(), 25);
    EXPECT_EQ(json[S("carpet")].toInt(), 1);
    EXPECT_EQ(json[S("rollWidth")].toDouble(), 144);
    EXPECT_GT(json[S("pieces")].toArray().size(), 0);
    EXPECT_EQ(json[S("totals")].toObject()[S("base")].toDouble(), 480);
}

TEST_F(EstimateTool, WritesADrawingThatShowsPiecesAndCutList) {
    const ToolRun run = EstimateCsv(House, Words("--svg out.svg"));
    EXPECT_EQ(run.Status, 0);
    EXPECT_TRUE(run.Out.isEmpty()) << "no text was asked for";
    QXmlStreamReader xml(Read(S("out.svg")));
    QStringList texts;
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == S("text")) {
            texts.append(xml.readElementText());
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    EXPECT_TRUE(texts.contains(S("A")));
    EXPECT_TRUE(texts.contains(S("3'0\" X 12'0\"")));
    EXPECT_TRUE(texts.contains(S("Total Length:30'0\"")));
}

TEST_F(EstimateTool, WritesSeveralOutputsAtOnce) {
    const ToolRun run = EstimateCsv(House, Words("--svg a.svg --json a.json --text a.txt"));
    EXPECT_EQ(run.Status, 0);
    EXPECT_TRUE(Read(S("a.txt")).startsWith("Carpet-1"));
    EXPECT_FALSE(QJsonDocument::fromJson(Read(S("a.json"))).isNull());
    EXPECT_TRUE(Read(S("a.svg")).startsWith("<?xml"));
}

TEST_F(EstimateTool, TakesAPatternRepeat) {
    const ToolRun run = EstimateCsv(House, Words("--match 18x50"));
    EXPECT_TRUE(run.Out.contains("Match Pattern: 1'6\" X 4'2\"\n")) << run.Out.toStdString();
    // 144 is raised to 150, 216 to 250.
    EXPECT_TRUE(run.Out.contains("Total Match Pattern Length: 33'4\"\n")) << run.Out.toStdString();
}

TEST_F(EstimateTool, RefusesAnUnknownProject) {
    const QString database = MakeDatabase(S("SMITH"), House);
    ExpectRefused(Estimate(Args{S("--database"), database} +
                           Words("--project JONES --carpet 1 --roll-width 12ft")),
                  "There is no project JONES. \"tarn-data list\" tells");
    ExpectRefused(Estimate(Args{S("--database"), database, S("--project"), S(" ")} +
                           Words("--carpet 1 --roll-width 12ft")),
                  "The project needs a name.");
}

TEST_F(EstimateTool, RefusesADatabaseThatIsNotThere) {
    ExpectRefused(
        Estimate(Words("--database none.mdb --project SMITH --carpet 1 --roll-width 12ft")),
        "The database file none.mdb is missing. Correct its path");
}

TEST_F(EstimateTool, RefusesAProjectThatWasNeverSaved) {
    const QString database = MakeDatabase(S("SMITH"), House);
    Change(database, "DELETE FROM MainTab");
    ExpectRefused(Estimate(OfSmith(database)), "The project SMITH has no saved rooms.");
}

TEST_F(EstimateTool, RefusesAProjectThatCannotBeLoaded) {
    const QString database = MakeDatabase(S("SMITH"), House);
    Change(database, "UPDATE MainTab SET ObjNum=NULL");
    ExpectRefused(Estimate(OfSmith(database)), "The project SMITH cannot be loaded: ");
}

TEST_F(EstimateTool, WarnsOfRoomsThatAreMissing) {
    const QString database = MakeDatabase(S("SMITH"), House);
    Change(database, "DELETE FROM InputData WHERE ObjNum=2");
    const ToolRun run = Estimate(OfSmith(database));
    EXPECT_EQ(run.Status, 0);
    EXPECT_EQ(run.Error.toStdString(), "Warning: Missing, read as empty: room 3.\n");
    EXPECT_TRUE(run.Out.contains("Total Fills:2 ")) << run.Out.toStdString();
}

TEST_F(EstimateTool, RefusesAFileThatCannotBeRead) {
    for (const char* file : {"none.csv", "."}) {
        ExpectRefused(Estimate(Words("--carpet 1 --roll-width 12ft --rooms") + Args{S(file)}),
                      "cannot be read: ");
    }
}

TEST_F(EstimateTool, RefusesACarpetWithoutRooms) {
    Write(S("rooms.csv"), House);
    ExpectRefused(Estimate(Words("--rooms rooms.csv --carpet 5 --roll-width 12ft")),
                  "No room has CARPET-5.");
}

TEST_F(EstimateTool, RefusesAnUnreadableWidth) {
    Write(S("rooms.csv"), House);
    for (const char* width : {"twelve", "12", "12feet", "ft", "12ft6", "-12ft", "1e3ft"}) {
        ExpectRefused(
            Estimate(Words("--rooms rooms.csv --carpet 1") + Args{S("--roll-width=") + S(width)}),
            "roll width");
    }
}

TEST_F(EstimateTool, RefusesAWidthOfZero) {
    Write(S("rooms.csv"), House);
    for (const char* width : {"0ft", "0in", "0cm", "0ft0in", "0.0ft"}) {
        ExpectRefused(Estimate(Words("--rooms rooms.csv --carpet 1 --roll-width") + Args{S(width)}),
                      "must be more than 0");
    }
}

TEST_F(EstimateTool, RefusesAnUnreadablePattern) {
    for (const char* match : {"18", "18x", "x24", "18x24x3", "-1x5", "axb"}) {
        ExpectRefused(EstimateCsv(House, Args{S("--match=") + S(match)}), "match pattern");
    }
}

TEST_F(EstimateTool, NamesTheWidthOrPatternThatOverflows) {
    ExpectRefused(EstimateCsv(House, Words("--match 18x32768")),
                  "Overflow. The match pattern's 32768 is too large: a repeat is at most 32767.");
    const QByteArray width = "1" + QByteArray(40, '0') + "ft";
    ExpectRefused(Estimate(Words("--rooms rooms.csv --carpet 1 --roll-width") +
                           Args{QString::fromUtf8(width)}),
                  "The roll width \"" + width + "\" is too large.");
}

TEST_F(EstimateTool, RefusesAWidthTooLargeToList) {
    Write(S("rooms.csv"), House);
    for (const char* width : {"1000000000ft", "9999999999999in", "9999999999cm"}) {
        ExpectRefused(Estimate(Words("--rooms rooms.csv --carpet 1 --roll-width") + Args{S(width)}),
                      "is too large");
    }
}

TEST_F(EstimateTool, RefusesAPatternOfAnyLength) {
    ExpectRefused(EstimateCsv(House, {S("--match"), QString(120000, u'1')}), "match pattern");
}

TEST_F(EstimateTool, RefusesASizeThatOverflows) {
    ExpectRefused(EstimateCsv("width,length,covering\n32768,100,C1\n"), "line 2: width");
    ExpectRefused(EstimateCsv("width,length,covering\n9999999999999,100,C1\n"), "line 2: width");
}

TEST_F(EstimateTool, RefusesMoreRollThanCanBeCounted) {
    ExpectRefused(EstimateCsv("width,length,covering\n100,32767,C1\n"),
                  "Run-time error '6': Overflow. The fills need more than 32767 inches of roll: "
                  "estimate the rooms in two projects.");
}

TEST_F(EstimateTool, Refuses502Rooms) {
    QByteArray csv = "width,length,covering\n";
    for (int room = 0; room < 501; ++room) {
        csv += "12,12,C1\n";
    }
    EXPECT_EQ(EstimateCsv(csv).Status, 0);
    ExpectRefused(EstimateCsv(csv + "12,12,C1\n"), "The project is full: it can hold 501 rooms.");
}

TEST_F(EstimateTool, NeverWritesOverTheRoomsItReads) {
    QFile::link(S("rooms.csv"), Path(S("link.csv")));
    for (const char* output : {"--text", "--json", "--svg", "--pdf"}) {
        for (const char* name : {"rooms.csv", "./rooms.csv", "link.csv"}) {
            ExpectRefused(EstimateCsv(House, Args{S(output), S(name)}),
                          "cannot be written: the rooms are read from it");
            EXPECT_EQ(Read(S("rooms.csv")), House) << output << " " << name;
        }
    }
    const QString database = MakeDatabase(S("SMITH"), House);
    const QByteArray before = Read(database);
    ExpectRefused(Estimate(Args{S("--database"), database, S("--svg"), database} +
                           Words("--project SMITH --carpet 1 --roll-width 12ft")),
                  "cannot be written: the rooms are read from it");
    EXPECT_EQ(Read(database), before);
}

TEST_F(EstimateTool, NamesEveryBadLineOfACsvFile) {
    const ToolRun run = EstimateCsv("width,length,covering,base,room,remark\n"
                                    "120,96,C1,,,\n"
                                    "-5,96,C1,,,\n"
                                    "120,12'6x,C1,,,\n"
                                    "120,96,C9,,,\n"
                                    "120,96,C1,W3,,\n"
                                    "120,96,C1,,123456789,\n"
                                    "120,96\n"
                                    "120,96,C1,,,,,\n"
                                    "40000,96,C1,,,\n"
                                    ",96,C1,,,\n"
                                    "120,96,C1,,,\"ok\" no\n"
                                    "120,96,C1,,,\"open\n");
    EXPECT_EQ(run.Status, 1);
    EXPECT_TRUE(run.Out.isEmpty()) << "nothing is estimated";
    EXPECT_FALSE(run.Error.contains("line 2:"));
    for (int line = 3; line <= 13; ++line) {
        EXPECT_TRUE(run.Error.contains("line " + QByteArray::number(line) + ":"))
            << line << "\n"
            << run.Error.toStdString();
    }
}

TEST_F(EstimateTool, WarnsWhenAProjectWasEnteredInMetric) {
    const QString database =
        MakeDatabase(S("SMITH"), "width,length,covering\n366,500,C1\n", {S("--metric")});
    const Args arguments =
        Args{S("--database"), database} + Words("--project SMITH --carpet 1 --roll-width 366cm");
    const ToolRun inches = Estimate(arguments);
    EXPECT_EQ(inches.Status, 0);
    EXPECT_TRUE(inches.Error.contains("was entered in metric")) << inches.Error.toStdString();
    const ToolRun metric = Estimate(arguments + Args{S("--metric")});
    EXPECT_TRUE(metric.Error.isEmpty()) << metric.Error.toStdString();
    EXPECT_TRUE(metric.Out.contains("Cut1: 366 X 500\nTotal Cuts:1 "));
}

TEST_F(EstimateTool, SaysSoWhenTheRoomsHaveNoArea) {
    const ToolRun run = EstimateCsv("width,length,covering\n0,100,C1\n");
    EXPECT_EQ(run.Status, 0);
    EXPECT_TRUE(run.Out.isEmpty());
    EXPECT_TRUE(run.Error.contains("nothing to cut"));
}

TEST_F(EstimateTool, WrongUsageHasAStatusOfItsOwn) {
    Write(S("rooms.csv"), House);
    for (const char* arguments :
         {"--carpet 1 --roll-width 12ft",
          "--rooms rooms.csv --roll-width 12ft",
          "--rooms rooms.csv --carpet 1",
          "--rooms rooms.csv --carpet 9 --roll-width 12ft",
          "--rooms rooms.csv --carpet 0 --roll-width 12ft",
          "--rooms rooms.csv --carpet 1 --roll-width 12ft --lay sideways",
          "--rooms rooms.csv --carpet 1 --roll-width 12ft --min-cut 3",
          "--rooms rooms.csv --carpet 1 --roll-width 12ft --max-pieces 7",
          "--rooms rooms.csv --carpet 1 --roll-width 12ft --text - --json -",
          "--rooms rooms.csv --carpet 1 --roll-width 12ft --text - --svg -",
          "--rooms rooms.csv --carpet 1 --roll-width 12ft --json a --svg ./a",
          "--rooms rooms.csv --carpet 1 --roll-width 12ft --pdf a --svg ./a",
          "--rooms rooms.csv --carpet 1 --roll-width 12ft --json a --pdf a",
          "--rooms rooms.csv --carpet 1 --roll-width 12ft --pdf - --text -",
          "--rooms rooms.csv --carpet 1 --roll-width 12ft --pdf=",
          "--rooms rooms.csv --database d --project p --carpet 1 --roll-width 12ft",
          "--database d --carpet 1 --roll-width 12ft",
          "--no-such-option",
          "--rooms rooms.csv --carpet 1 --roll-width 12ft --match=",
          "--rooms rooms.csv --carpet 1 --roll-width 12ft --text=",
          "--rooms rooms.csv --carpet 1 --roll-width 12ft --json=",
          "--rooms rooms.csv --carpet 1 --roll-width 12ft --svg="}) {
        const ToolRun run = Estimate(Words(arguments));
        EXPECT_EQ(run.Status, 2) << arguments;
        EXPECT_FALSE(run.Error.isEmpty()) << arguments;
    }
}

TEST_F(EstimateTool, HelpTellsEveryOption) {
    const ToolRun run = Estimate({S("--help")});
    EXPECT_EQ(run.Status, 0);
    for (const char* option :
         {"--database", "--project", "--rooms", "--metric", "--carpet", "--roll-width", "--lay",
          "--match", "--min-cut", "--max-pieces", "--text", "--json", "--svg", "--pdf", "--force",
          "--version", "Exit status"}) {
        EXPECT_TRUE(run.Out.contains(option)) << option;
    }
}

TEST_F(EstimateTool, HelpTellsTheBoundsOfARoomFile) {
    const QString help = QString::fromUtf8(Estimate({S("--help")}).Out).simplified();
    for (const char* bound : {"at most 8 characters", "a remark 255", "501 rooms", "16 MB"}) {
        EXPECT_TRUE(help.contains(QLatin1String(bound))) << bound << " in " << help.toStdString();
    }
}

TEST_F(EstimateTool, HelpTellsWhatTheMinimumCutsKeep) {
    const QString help = QString::fromUtf8(Estimate({S("--help")}).Out).simplified();
    for (const char* text :
         {"0 = 3 FT, 1 = 1FT 6\" or 2 = 1/2FT.",
          "at 3 inches, 1.5 inch or 0.5 inch or more (19.4 cm, 9.7 cm or 3.2 cm with --metric)",
          "--improve keeps them at 36, 18 or 6 inches or more (91 cm, 46 cm or 15 cm with "
          "--metric)",
          "divided, 1 to 6"}) {
        EXPECT_TRUE(help.contains(QLatin1String(text))) << text << " in " << help.toStdString();
    }
}

TEST_F(EstimateTool, TellsItsVersion) {
    const ToolRun run = Estimate({S("--version")});
    EXPECT_EQ(run.Status, 0);
    EXPECT_THAT(run.Out.toStdString(),
                ::testing::MatchesRegex("tarn-estimate " TARN_VERSION "(\\+git\\.[0-9a-f]+)?\n"));
}

} // namespace
} // namespace tarn
