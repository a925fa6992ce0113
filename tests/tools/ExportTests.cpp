// What leaves a database as a room file, and what is shown of it on a terminal.

#include "QtString.h"
#include "store/TestDatabase.h"
#include "tools/ToolTesting.h"

#include <array>

namespace tarn {
namespace {

using namespace tarn::testing;

class Export : public ToolTest {
  protected:
    Export() {
        database_ = MakeDatabase(S("SMITH"), "width,length,covering\n60,96,C1\n61,97,C2\n",
                                 {S("--directory"), S("TOWN")});
    }

    ToolRun ToFile(const QStringList& more = {}) const {
        return Data(QStringList{S("export"), S("--database"), database_, S("--project"), S("SMITH"),
                                S("--output"), S("out.csv")} +
                    more);
    }

    QString database_;
};

TEST_F(Export, OfRoomsThatNoImportTakesNamesThemAndWritesNothing) {
    const auto expectRefused = [this](const char* reason) {
        const ToolRun run = ToFile();
        EXPECT_EQ(run.Status, 1);
        EXPECT_TRUE(run.Error.contains(
            "The project SMITH cannot be exported: no import would take these rooms. Correct them "
            "in the program first; nothing was written.\n"))
            << run.Error.toStdString();
        EXPECT_TRUE(run.Error.contains(reason)) << run.Error.toStdString();
        EXPECT_FALSE(Exists(S("out.csv")));
    };
    Change(database_, "UPDATE InputData SET RoomW = -5 WHERE ObjNum = 1");
    expectRefused("\n  room 2: width \"-5\" is negative\n");
    Change(database_, "UPDATE InputData SET RoomW = 5, CTType = 12 WHERE ObjNum = 1");
    expectRefused("\n  room 2: covering \"TILE-5\" is not a covering");
    Change(database_, "UPDATE InputData SET CTType = 0, RoomNoStr = '123456789' WHERE ObjNum = 1");
    expectRefused("\n  room 2: room \"123456789\" has more than 8 characters\n");
    Change(database_, "UPDATE InputData SET RoomNoStr = ''");
    EXPECT_EQ(ToFile().Status, 0);
}

TEST_F(Export, IsImportedAgainWhateverTheTexts) {
    const std::array texts{"=1+1", "+49",        "-",       "@SUM(A1)", "'",  "''",    "'twas",
                           "a,b",  "say \"so\"", " blank ", "浴室",     "#1", "12'6\""};
    QByteArray csv = "width,length,covering,room,remark\n";
    for (std::size_t i = 0; i < texts.size(); ++i) {
        csv += "60,96,C1,,\n";
    }
    Write(S("many.csv"), csv);
    ASSERT_EQ(Data({S("import"), S("--replace"), S("--database"), database_, S("--project"),
                    S("SMITH"), S("many.csv")})
                  .Status,
              0);
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const std::string number = S(texts.at(i)).left(8).toStdString();
        Change(database_, "UPDATE InputData SET RoomNoStr = " + Literal(number) +
                              ", RoomRemark = " + Literal(texts.at(i)) +
                              " WHERE ObjNum = " + std::to_string(i));
    }
    const QByteArray before = Data({S("list"), S("--database"), database_}).Out;
    ASSERT_EQ(ToFile().Status, 0);
    EXPECT_TRUE(Read(S("out.csv")).contains(",'=1+1,'=1+1\r\n"));
    ASSERT_EQ(Data({S("import"), S("--replace"), S("--database"), database_, S("--project"),
                    S("SMITH"), S("out.csv")})
                  .Status,
              0);
    EXPECT_EQ(Data({S("list"), S("--database"), database_}).Out, before);
}

TEST_F(Export, OverADatabaseTakesForceButNeverOverItsOwn) {
    Write(S("out.csv"), Read(S("data/DATA/Tarn.mdb")));
    const ToolRun refused = ToFile();
    EXPECT_EQ(refused.Status, 1);
    EXPECT_TRUE(refused.Error.contains("is a database and stays as it is"));
    EXPECT_EQ(ToFile({S("--force")}).Status, 0);
    EXPECT_TRUE(Read(S("out.csv")).startsWith("width,length"));
    const ToolRun itself = Data({S("export"), S("--database"), database_, S("--project"),
                                 S("SMITH"), S("--output"), database_, S("--force")});
    EXPECT_EQ(itself.Status, 1);
    EXPECT_TRUE(itself.Error.contains("the rooms are read from it"));
}

/// Names and texts that another program stored, which would move things on a terminal.
class TerminalControls : public Export {
  protected:
    TerminalControls() {
        const std::string evil = "\x1B[2J\r\n\t\u009B31m\u007F";
        Change(database_, "UPDATE InputData SET RoomNoStr = " + Literal(evil) +
                              ", RoomRemark = " + Literal(evil));
        Change(database_, "UPDATE ProjTab SET Dir = " + Literal("T" + evil));
        Change(database_, "INSERT INTO ProjTab VALUES ('TOWN', " + Literal("X" + evil) + ", 0)");
        Change(database_, "INSERT INTO DirTab VALUES (" + Literal("D" + evil) + ")");
    }
    static void ExpectHarmless(const QByteArray& printed) {
        for (const QChar c : QString::fromUtf8(printed)) {
            EXPECT_TRUE(c == u'\n' || c.category() != QChar::Other_Control)
                << static_cast<int>(c.unicode()) << " in " << printed.toStdString();
        }
    }
};

TEST_F(TerminalControls, AreNotPrinted) {
    const ToolRun list = Data({S("list"), S("--database"), database_});
    EXPECT_EQ(list.Status, 0);
    ExpectHarmless(list.Out);
    EXPECT_TRUE(list.Out.contains("D\uFFFD[2J\uFFFD\uFFFD\uFFFD\uFFFD31m\uFFFD\n"))
        << list.Out.toStdString();
    EXPECT_TRUE(list.Out.contains("  X\uFFFD[2J"));
    const QStringList ofSmith{S("--database"), database_, S("--project"), S("SMITH")};
    const ToolRun report = Data(QStringList(S("report")) + ofSmith);
    EXPECT_EQ(report.Status, 0);
    ExpectHarmless(report.Out);
    ExpectHarmless(
        Data(QStringList(S("export")) + ofSmith).Error); // the texts are too long for an import
    Change(database_, "UPDATE MainTab SET TabIndex = 7");
    Change(database_, "INSERT INTO MainTab (TabIndex, ProjName, ObjNum, DigScale) VALUES (7, " +
                          Literal("Y\x1B[2J") + ", 0, 0.01)");
    ExpectHarmless(
        Data({S("report"), S("--database"), database_, S("--project"), S("SMITH")}).Error);
    ExpectHarmless(
        Data({S("report"), S("--database"), database_, S("--project"), S("Z\x1B[2J")}).Error);
}

} // namespace
} // namespace tarn
