#include "QtString.h"
#include "store/TestDatabase.h"
#include "tools/ToolTesting.h"

#include <QDir>
#include <QFile>
#include <QProcess>

#include <gmock/gmock.h>

namespace tarn {
namespace {

using namespace tarn::testing;

constexpr const char* Rooms = "width,length,covering,base,room,remark\r\n"
                              "150,168,CARPET-1,W2L1,101,bay window\r\n"
                              "120,96,TILE-2,,,\"north, east\"\r\n";

class DataTool : public ToolTest {
  protected:
    ToolRun On(const QString& database, const char* command, const Args& more = {}) const {
        return Data(Args{S(command), S("--database"), database} + more);
    }
    ToolRun OnProject(const QString& database, const char* command, const char* project,
                      const Args& more = {}) const {
        return On(database, command, Args{S("--project"), S(project)} + more);
    }
};

TEST_F(DataTool, CreateMakesADatabaseAndAConfigurationThatNamesTheFolder) {
    const ToolRun run = Data({S("create"), S("my data")});
    EXPECT_EQ(run.Status, 0) << run.Error.toStdString();
    EXPECT_TRUE(Exists(S("my data/DATA/Tarn.mdb")));
    EXPECT_EQ(Read(S("config/tarn/TarnWin.INI")),
              QByteArray("[TarnWin Directory]\n" + Path(S("my data")).toUtf8() + "\n"));
    EXPECT_TRUE(run.Out.contains(Path(S("my data")).toUtf8()));
}

TEST_F(DataTool, CreateLeavesAConfigurationInForceAndSaysWhichFolderItNames) {
    Data({S("create"), S("first")});
    const QByteArray before = Read(S("config/tarn/TarnWin.INI"));
    const ToolRun run = Data({S("create"), S("second")});
    EXPECT_EQ(run.Status, 0);
    EXPECT_TRUE(Exists(S("second/DATA/Tarn.mdb")));
    EXPECT_EQ(Read(S("config/tarn/TarnWin.INI")), before);
    EXPECT_TRUE(run.Out.contains("is in force")) << run.Out.toStdString();
    EXPECT_TRUE(run.Out.contains(Path(S("first")).toUtf8())) << run.Out.toStdString();
}

TEST_F(DataTool, CreateSaysWhenTheConfigurationInForceNamesNoFolder) {
    QDir(Path(S("."))).mkdir(S("other"));
    Write(S("other/TarnWin.INI"), "[Something else]\n/data\n");
    const ToolRun run = Data({S("create"), S("data"), S("--config-dir"), S("other")});
    EXPECT_EQ(run.Status, 0) << run.Error.toStdString();
    EXPECT_TRUE(run.Out.contains("is in force; it names no folder.")) << run.Out.toStdString();
}

TEST_F(DataTool, CreateTakesAFolderWithASeparatorAtItsEndAndTheCurrentOne) {
    for (const char* folder : {"data/", "."}) {
        QFile::remove(Path(S("config/tarn/TarnWin.INI")));
        const ToolRun run = Data({S("create"), S(folder)});
        EXPECT_EQ(run.Status, 0) << folder << run.Error.toStdString();
        const QString path = S(folder) == S(".") ? Path({}) : Path(S("data"));
        EXPECT_EQ(Read(S("config/tarn/TarnWin.INI")),
                  "[TarnWin Directory]\n" + QDir::cleanPath(path).toUtf8() + "\n");
    }
    EXPECT_TRUE(Exists(S("data/DATA/Tarn.mdb")));
    EXPECT_TRUE(Exists(S("DATA/Tarn.mdb")));
}

TEST_F(DataTool, CreateSaysWhatToDoWhenTheConfigurationCannotBeWritten) {
    Write(S("file"), "in the way");
    const ToolRun run = Data({S("create"), S("data"), S("--config-dir"), S("file")});
    EXPECT_EQ(run.Status, 1) << run.Out.toStdString();
    for (const char* text : {"TarnWin.INI", "The database is made all the same."}) {
        EXPECT_TRUE(run.Error.contains(text)) << run.Error.toStdString();
    }
    EXPECT_TRUE(Exists(S("data/DATA/Tarn.mdb")));
}

TEST_F(DataTool, CreateTakesTheConfigurationDirectoryItIsGivenAndNoOther) {
    Data({S("create"), S("first")});
    const ToolRun run = Data({S("create"), S("second"), S("--config-dir"), S("other")});
    EXPECT_EQ(run.Status, 0) << run.Error.toStdString();
    EXPECT_TRUE(Read(S("other/TarnWin.INI")).contains(Path(S("second")).toUtf8()));
}

TEST_F(DataTool, CreateRefusesToTouchAnExistingDatabase) {
    const QString database = MakeDatabase(S("SMITH"), Rooms);
    const ToolRun run = Data({S("create"), S("data")});
    ExpectRefused(run, "Tarn.mdb");
    EXPECT_EQ(Value(database, "SELECT count(*) FROM InputData"), "2");
}

TEST_F(DataTool, CreateNeedsTheNameOfAFolder) {
    ExpectRefused(Data({S("create"), S("")}), "Name the folder");
}

TEST_F(DataTool, ListTellsWhenItsOutputCannotBeWritten) {
    const QString database = MakeDatabase(S("SMITH"), Rooms);
    QProcess process;
    process.setStandardOutputFile(S("/dev/full"));
    process.start(S(TARN_TOOLS_DIRECTORY "/tarn-data"), {S("list"), S("--database"), database});
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 1);
    EXPECT_TRUE(process.readAllStandardError().contains("cannot be written"));
}

TEST_F(DataTool, CheckFindsASoundDatabaseSound) {
    const ToolRun run = On(MakeDatabase(S("SMITH"), Rooms), "check");
    EXPECT_EQ(run.Status, 0) << run.Error.toStdString();
    EXPECT_TRUE(run.Out.contains("sound"));
}

TEST_F(DataTool, CheckTellsFaults) {
    const QString database = MakeDatabase();
    Change(database, "DROP TABLE MainTab");
    Change(database, "DROP TABLE FillCut");
    const ToolRun run = On(database, "check");
    ExpectRefused(run, "MainTab");
    EXPECT_TRUE(run.Error.contains("FillCut"));
    ExpectRefused(On(Write(S("text.mdb"), "this is no database at all"), "check"), "text.mdb");
    ExpectRefused(On(Path(S("none.mdb")), "check"), "none.mdb");
}

TEST_F(DataTool, ListShowsDirectoriesProjectsAndRooms) {
    const QString database = MakeDatabase(S("smith"), Rooms, {S("--directory"), S("old town")});
    Write(S("metric.csv"), "width,length,covering\n366,500,C3\n");
    EXPECT_EQ(OnProject(database, "import", "zoë",
                        {S("--metric"), S("--directory"), S("MARCH"), Path(S("metric.csv"))})
                  .Status,
              0);
    const ToolRun run = On(database, "list");
    EXPECT_EQ(run.Status, 0) << run.Error.toStdString();
    EXPECT_EQ(run.Out.toStdString(), "MARCH\n"
                                     "  ZOË (1 room)\n"
                                     "    1: 366 X 500 CM  CARPET-3\n"
                                     "OLD TOWN\n"
                                     "  SMITH (2 rooms)\n"
                                     "    1: 12'6\" X 14'0\"  CARPET-1  W2L1  101  bay window\n"
                                     "    2: 10'0\" X 8'0\"  TILE-2  north, east\n");
}

TEST_F(DataTool, ListTellsWhyAProjectCannotBeLoadedAndWhatIsOddInOne) {
    const QString database = MakeDatabase(S("SMITH"), Rooms, {S("--directory"), S("A")});
    Change(database, "INSERT INTO ProjTab VALUES ('A', 'NEW', 0), ('B', 'O\"HARA', 0)");
    const auto list = [&] { return On(database, "list").Out.toStdString(); };
    Change(database, "DELETE FROM InputData WHERE ObjNum = 0");
    EXPECT_EQ(list(),
              "A\n"
              "  SMITH (2 rooms)\n"
              "    Missing, read as empty: room 1.\n"
              "    1: 0'0\" X 0'0\"  CARPET-1\n"
              "    2: 10'0\" X 8'0\"  TILE-2  north, east\n"
              "  NEW (0 rooms)\n"
              "B\n"
              "  O\"HARA (cannot be loaded: The name O\"HARA cannot be used: a double quote "
              "stands inside it.)\n");
    Change(database, "UPDATE InputData SET RoomW = 40000");
    EXPECT_TRUE(list().starts_with(
        "A\n  SMITH (cannot be loaded: Overflow. A number stored in the room row with ObjNum 1 is "
        "too large.)\n  NEW (0 rooms)\n"))
        << list();
    ExpectRefused(OnProject(database, "report", "SMITH"),
                  "The project SMITH cannot be loaded: Overflow.");
    ExpectRefused(OnProject(database, "export", "NEW"), "The project NEW has no saved rooms.");
}

TEST_F(DataTool, ImportMakesTheDirectoryOfANewProjectUnlessItIsAMonth) {
    const QString database = MakeDatabase(S("SMITH"), Rooms, {S("--directory"), S("old town")});
    EXPECT_EQ(Value(database, "SELECT Directory FROM DirTab"), "OLD TOWN");
    EXPECT_EQ(Value(database, "SELECT Dir FROM ProjTab"), "OLD TOWN");
    EXPECT_EQ(
        OnProject(database, "import", "JONES", {S("--directory"), S("march"), Path(S("rooms.csv"))})
            .Status,
        0);
    EXPECT_EQ(Value(database, "SELECT count(*) FROM DirTab"), "1");
    EXPECT_EQ(Value(database, "SELECT Dir FROM ProjTab WHERE ProjName='JONES'"), "MARCH");
}

TEST_F(DataTool, ImportDoesNotReplaceRoomsUnlessItIsTold) {
    const QString database = MakeDatabase(S("SMITH"), Rooms);
    Write(S("other.csv"), "width,length,covering\n99,98,C2\n");
    ExpectRefused(OnProject(database, "import", "smith", {Path(S("other.csv"))}), "--replace");
    EXPECT_EQ(Value(database, "SELECT count(*) FROM InputData"), "2");
    EXPECT_EQ(OnProject(database, "import", "smith", {S("--replace"), Path(S("other.csv"))}).Status,
              0);
    EXPECT_EQ(Value(database, "SELECT RoomW FROM InputData"), "99");
    EXPECT_EQ(Value(database, "SELECT count(*) FROM ProjTab"), "1");
}

TEST_F(DataTool, AFileWithoutRoomsReplacesNone) {
    const QString database = MakeDatabase(S("SMITH"), Rooms);
    Write(S("empty.csv"), "width,length,covering\n");
    ExpectRefused(OnProject(database, "import", "smith", {S("--replace"), Path(S("empty.csv"))}),
                  "has no rooms; the project SMITH keeps those that it has");
    EXPECT_EQ(Value(database, "SELECT count(*) FROM InputData"), "2");
}

TEST_F(DataTool, ImportRemembersTheUnitOfTheRoomsInForce) {
    const QString database = MakeDatabase(S("SMITH"), Rooms, {S("--metric")});
    EXPECT_EQ(Value(database, "SELECT EnteredMetric FROM MainTab"), "1");
    EXPECT_EQ(OnProject(database, "import", "SMITH", {S("--replace"), Path(S("rooms.csv"))}).Status,
              0);
    EXPECT_EQ(Value(database, "SELECT EnteredMetric FROM MainTab"), "0");
}

TEST_F(DataTool, AnImportThatFailsInTheMiddleKeepsTheOldRooms) {
    const QString database = MakeDatabase(S("SMITH"), Rooms, {S("--metric")});
    Change(database, "CREATE TRIGGER full BEFORE INSERT ON InputData WHEN NEW.RoomW = 99 "
                     "BEGIN SELECT RAISE(ABORT, 'no place'); END");
    Write(S("other.csv"), "width,length,covering\n120,130,C1\n99,98,C2\n");
    ExpectRefused(OnProject(database, "import", "SMITH", {S("--replace"), Path(S("other.csv"))}),
                  "no place");
    EXPECT_EQ(Value(database, "SELECT count(*) FROM InputData"), "2");
    EXPECT_EQ(Value(database, "SELECT RoomW FROM InputData WHERE ObjNum = 0"), "150");
    EXPECT_EQ(Value(database, "SELECT ObjNum FROM MainTab"), "2");
    EXPECT_EQ(Value(database, "SELECT EnteredMetric FROM MainTab"), "1");
}

TEST_F(DataTool, AnImportOfANewProjectThatFailsLeavesNeitherItNorItsDirectory) {
    const QString database = MakeDatabase();
    Write(S("rooms.csv"), Rooms);
    const Args into = {S("--directory"), S("old town"), Path(S("rooms.csv"))};
    ExpectRefused(OnProject(database, "import", "a/b", into), "A/B");
    EXPECT_EQ(Value(database, "SELECT count(*) FROM DirTab"), "0");
    Change(database, "DROP TABLE InputData");
    ExpectRefused(OnProject(database, "import", "SMITH", into), "InputData");
    for (const char* count : {"SELECT count(*) FROM DirTab", "SELECT count(*) FROM ProjTab",
                              "SELECT count(*) FROM MainTab"}) {
        EXPECT_EQ(Value(database, count), "0") << count;
    }
}

TEST_F(DataTool, ImportDoesNotReplaceRoomsThatTheSheetDoesNotCount) {
    const QString database = MakeDatabase(S("SMITH"), Rooms);
    Change(database, "UPDATE MainTab SET ObjNum = 0");
    ExpectRefused(OnProject(database, "import", "SMITH", {Path(S("rooms.csv"))}), "--replace");
    EXPECT_EQ(Value(database, "SELECT count(*) FROM InputData"), "2");
}

TEST_F(DataTool, AnImportOfABadFileChangesNothing) {
    const QString database = MakeDatabase();
    Write(S("bad.csv"), "width,length,covering\n99,98,C2\n99,x,C2\n");
    ExpectRefused(OnProject(database, "import", "SMITH", {Path(S("bad.csv"))}), "line 3: length");
    EXPECT_EQ(Value(database, "SELECT count(*) FROM ProjTab"), "0");
    ExpectRefused(OnProject(database, "import", "SMITH", {Path(S("none.csv"))}), "none.csv");
}

TEST_F(DataTool, ImportRefusesNamesThatCannotBeStored) {
    const QString database = MakeDatabase();
    Write(S("rooms.csv"), Rooms);
    for (const QString& name :
         {S("a/b"), S("what?"), S("say \"so\""), S("  "), QString(65, u'x')}) {
        const ToolRun run = On(database, "import", {S("--project"), name, Path(S("rooms.csv"))});
        EXPECT_EQ(run.Status, 1) << name.toStdString() << run.Error.toStdString();
    }
    EXPECT_EQ(Value(database, "SELECT count(*) FROM ProjTab"), "0");
}

TEST_F(DataTool, ExportGivesBackWhatWasImported) {
    const QString database = MakeDatabase(S("SMITH"), Rooms);
    const ToolRun run = OnProject(database, "export", "Smith");
    EXPECT_EQ(run.Status, 0) << run.Error.toStdString();
    EXPECT_EQ(run.Out.toStdString(), Rooms);
    EXPECT_EQ(OnProject(database, "export", "SMITH", {S("--output"), Path(S("out.csv"))}).Status,
              0);
    EXPECT_EQ(Read(S("out.csv")), run.Out);
    ExpectRefused(OnProject(database, "export", "JONES"), "no project JONES");
}

TEST_F(DataTool, ExportNeverWritesOverADatabase) {
    const QString database = MakeDatabase(S("SMITH"), Rooms);
    const QByteArray before = Read(S("data/DATA/Tarn.mdb"));
    ExpectRefused(OnProject(database, "export", "SMITH", {S("--output"), database}),
                  "the rooms are read from it");
    EXPECT_EQ(Read(S("data/DATA/Tarn.mdb")), before);
    const QByteArray jet = QByteArray("\0\1\0\0Standard Jet DB", 19);
    Write(S("old.mdb"), jet);
    ExpectRefused(OnProject(database, "export", "SMITH", {S("--output"), Path(S("old.mdb"))}),
                  "is a database");
    EXPECT_EQ(Read(S("old.mdb")), jet);
}

TEST_F(DataTool, ReportPrintsTheEnteredData) {
    const QString database = MakeDatabase(S("SMITH"), Rooms);
    const ToolRun run = OnProject(database, "report", "smith");
    EXPECT_EQ(run.Status, 0) << run.Error.toStdString();
    EXPECT_FALSE(run.Out.contains('\r'));
    EXPECT_TRUE(run.Out.contains("PROJECT NAME:   SMITH"));
    EXPECT_TRUE(run.Out.contains("12'6\"")) << run.Out.toStdString();
    EXPECT_TRUE(OnProject(database, "report", "smith", {S("--metric")}).Out.contains("METERS"));
    ExpectRefused(OnProject(database, "report", "JONES"), "no project JONES");
}

TEST_F(DataTool, ReportAndExportWarnOfAProjectEnteredInMetric) {
    const QString database = MakeDatabase(S("SMITH"), Rooms, {S("--metric")});
    const QByteArray warning = "SMITH was entered in metric";
    const ToolRun report = OnProject(database, "report", "SMITH");
    EXPECT_EQ(report.Status, 0);
    EXPECT_TRUE(report.Error.contains(warning)) << report.Error.toStdString();
    EXPECT_EQ(OnProject(database, "report", "SMITH", {S("--metric")}).Error, "");
    const ToolRun exported = OnProject(database, "export", "SMITH");
    EXPECT_EQ(exported.Out.toStdString(), Rooms);
    EXPECT_TRUE(exported.Error.contains(warning)) << exported.Error.toStdString();
    Change(database, "UPDATE MainTab SET EnteredMetric = 0");
    EXPECT_EQ(OnProject(database, "export", "SMITH").Error, "");
    EXPECT_EQ(OnProject(database, "report", "SMITH").Error, "");
}

TEST_F(DataTool, BackupCopiesADatabaseThatIsInUse) {
    const QString database = MakeDatabase(S("SMITH"), Rooms);
    RawDatabase writer(database.toStdString());
    writer.Run("BEGIN IMMEDIATE");
    writer.Run("DELETE FROM InputData");
    const ToolRun run = On(database, "backup", {Path(S("copy.mdb"))});
    EXPECT_EQ(run.Status, 0) << run.Error.toStdString();
    writer.Run("ROLLBACK");
    EXPECT_EQ(Value(Path(S("copy.mdb")), "SELECT count(*) FROM InputData"), "2");
    EXPECT_EQ(On(Path(S("copy.mdb")), "check").Status, 0);
}

TEST_F(DataTool, BackupRefusesAnExistingTarget) {
    const QString database = MakeDatabase(S("SMITH"), Rooms);
    Write(S("copy.mdb"), "precious");
    ExpectRefused(On(database, "backup", {Path(S("copy.mdb"))}), "copy.mdb");
    EXPECT_EQ(Read(S("copy.mdb")), "precious");
}

TEST_F(DataTool, WrongUsageHasAStatusOfItsOwn) {
    EXPECT_EQ(Data({}).Status, 2);
    EXPECT_EQ(Data({S("destroy")}).Status, 2);
    EXPECT_EQ(Data({S("create")}).Status, 2);
    EXPECT_EQ(Data({S("list")}).Status, 2);
    EXPECT_EQ(Data({S("report"), S("--database"), S("x")}).Status, 2);
}

TEST_F(DataTool, HelpTellsEveryCommand) {
    const ToolRun run = Data({S("--help")});
    EXPECT_EQ(run.Status, 0);
    for (const char* command :
         {"create", "check", "list", "report", "import", "export", "backup", "Exit status"}) {
        EXPECT_TRUE(run.Out.contains(command)) << command;
    }
    EXPECT_TRUE(Data({S("import"), S("--help")}).Out.contains("--replace"));
    EXPECT_TRUE(Data({S("export"), S("--help")}).Out.contains("--force"));
    EXPECT_TRUE(run.Out.contains("at most 64 characters")) << run.Out.toStdString();
    EXPECT_THAT(Data({S("--version")}).Out.toStdString(),
                ::testing::MatchesRegex("tarn-data " TARN_VERSION "(\\+git\\.[0-9a-f]+)?\n"));
}

} // namespace
} // namespace tarn
