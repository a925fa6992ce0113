#include "QtString.h"
#include "tools/ToolTesting.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

namespace tarn {
namespace {

using namespace tarn::testing;

constexpr const char* SmithRooms = "width,length,covering\n150,168,C1\n120,96,T2\n";

/// A data folder with the project SMITH.
class CareTool : public ToolTest {
  protected:
    ToolRun On(const char* command, const Args& more = {}) const {
        return Data(Args{S(command), S("--database"), database_} + more);
    }
    std::string Listed() const { return On("list").Out.toStdString(); }
    QByteArray DatabaseBytes() const { return Read(S("data/DATA/Tarn.mdb")); }
    /// A backup where the program makes its own.
    QString BackUp(const char* name) const {
        QString path = Path(S("data/BACKUP/") + S(name));
        EXPECT_EQ(On("backup", {path}).Status, 0);
        return path;
    }

    QString database_ = MakeDatabase(S("SMITH"), SmithRooms, {S("--directory"), S("MARCH")});
};

TEST_F(CareTool, CheckNamesWhatIsOutOfOrderAndChangesNothing) {
    Change(database_, "UPDATE InputData SET RoomW = -5 WHERE ObjNum = 1");
    Change(database_, "DELETE FROM ProjTab");
    const QByteArray before = DatabaseBytes();
    const ToolRun run = On("check");
    EXPECT_EQ(run.Status, 1);
    EXPECT_EQ(run.Error.toStdString(),
              "tarn-data: The database " + database_.toStdString() +
                  " has faults:\n"
                  "  RoomW in InputData is no whole number from 0 to 32767: SMITH, room 2 (-5).\n"
                  "  Sheets without a project: number 0 of SMITH.\n");
    EXPECT_EQ(DatabaseBytes(), before);
}

TEST_F(CareTool, PipesAndDevicesAreRefusedAtOnce) {
    const QString pipe = Path(S("pipe.mdb"));
    ASSERT_EQ(mkfifo(pipe.toUtf8().constData(), 0600), 0);
    for (const QString& path : {pipe, S("/dev/zero")}) {
        for (const char* command : {"check", "list"}) {
            const ToolRun run = Data({S(command), S("--database"), path});
            EXPECT_EQ(run.Status, 1) << command;
            EXPECT_TRUE(run.Error.contains("is a pipe, a device or a socket"))
                << run.Error.toStdString();
        }
    }
    const ToolRun run = On("restore", {pipe});
    EXPECT_EQ(run.Status, 1);
    EXPECT_TRUE(run.Error.contains("is a pipe")) << run.Error.toStdString();
}

TEST_F(CareTool, RepairWritesACleanCopyAndTellsWhatItChanged) {
    Change(database_, "UPDATE InputData SET RoomW = -5 WHERE ObjNum = 1");
    const QByteArray before = DatabaseBytes();
    const QString repaired = Path(S("new/Repaired.mdb"));
    const ToolRun run = On("repair", {S("--to"), repaired});
    EXPECT_EQ(run.Status, 0) << run.Error.toStdString();
    EXPECT_EQ(run.Out.toStdString(),
              "Made " + repaired.toStdString() + ".\nIt differs from " + database_.toStdString() +
                  ":\n  Values that were changed: SMITH, room 2: RoomW -5 became 0.\n");
    EXPECT_EQ(DatabaseBytes(), before);
    EXPECT_EQ(Data({S("check"), S("--database"), repaired}).Status, 0);

    const ToolRun again = On("repair", {S("--to"), repaired});
    EXPECT_EQ(again.Status, 1);
    EXPECT_TRUE(again.Error.contains("is there already")) << again.Error.toStdString();
    EXPECT_EQ(On("repair").Status, 2) << "it needs a target";
}

TEST_F(CareTool, RepairOfASoundDatabaseSaysSo) {
    const ToolRun run = On("repair", {S("--to"), Path(S("Repaired.mdb"))});
    EXPECT_EQ(run.Status, 0) << run.Error.toStdString();
    EXPECT_TRUE(run.Out.contains("It holds all that")) << run.Out.toStdString();
}

TEST_F(CareTool, BackupsAreListedWithTheirProjectsAndWhetherTheyAreSound) {
    EXPECT_TRUE(
        On("backups").Out.contains("There is no backup in " + Path(S("data/BACKUP")).toUtf8()));
    BackUp("Tarn 2026-11-20 10-00-00.mdb");
    const QString bad = BackUp("Tarn 2026-11-21 10-00-00.mdb");
    Write(bad, "spoilt");
    const ToolRun run = On("backups");
    EXPECT_EQ(run.Status, 0) << run.Error.toStdString();
    const QList<QByteArray> lines = run.Out.split('\n');
    ASSERT_EQ(lines.size(), 4);
    EXPECT_TRUE(
        lines.at(1).startsWith("  Tarn 2026-11-21 10-00-00.mdb  1 kilobyte, cannot be read"))
        << run.Out.toStdString();
    EXPECT_TRUE(lines.at(2).startsWith("  Tarn 2026-11-20 10-00-00.mdb  "))
        << run.Out.toStdString();
    EXPECT_TRUE(lines.at(2).endsWith(" kilobytes, 1 project, sound")) << run.Out.toStdString();
}

TEST_F(CareTool, RestorePutsABackupInPlaceByItsNameAndKeepsWhatWasThere) {
    BackUp("Tarn 2026-11-20 10-00-00.mdb");
    const std::string before = Listed();
    Change(database_, "UPDATE InputData SET RoomW = 99");
    const std::string changed = Listed();
    ASSERT_NE(before, changed);
    const ToolRun run = On("restore", {S("Tarn 2026-11-20 10-00-00.mdb")});
    EXPECT_EQ(run.Status, 0) << run.Error.toStdString();
    EXPECT_EQ(Listed(), before);
    const QStringList kept = QDir(Path(S("data/BACKUP"))).entryList({S("Tarn before restoring *")});
    ASSERT_EQ(kept.size(), 1);
    EXPECT_TRUE(run.Out.contains("What was there is kept as " +
                                 Path(S("data/BACKUP/") + kept.first()).toUtf8()))
        << run.Out.toStdString();
    EXPECT_EQ(On("restore", {kept.first()}).Status, 0);
    EXPECT_EQ(Listed(), changed);
}

TEST_F(CareTool, RestoreRefusesAFileThatIsNoBackup) {
    const std::string before = Listed();
    const ToolRun run = On("restore", {Write(S("text.mdb"), "this is no database at all")});
    EXPECT_EQ(run.Status, 1);
    EXPECT_TRUE(run.Error.contains("text.mdb")) << run.Error.toStdString();
    EXPECT_EQ(Listed(), before);
    const ToolRun missing = On("restore", {S("Tarn 2026-11-19 10-00-00.mdb")});
    EXPECT_EQ(missing.Status, 1);
    EXPECT_EQ(missing.Error.toStdString(),
              "tarn-data: There is no backup Tarn 2026-11-19 10-00-00.mdb. \"tarn-data backups\" "
              "tells the backups that there are.\n");
    EXPECT_EQ(Listed(), before);
    EXPECT_EQ(On("restore").Status, 2) << "it needs a backup";
}

} // namespace
} // namespace tarn
