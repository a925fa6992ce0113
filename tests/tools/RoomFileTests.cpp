// Files of rooms as spreadsheets write them, in every program that reads one.

#include "QtString.h"
#include "tools/ToolTesting.h"

namespace tarn {
namespace {

using namespace tarn::testing;

class RoomFiles : public ToolTest {
  protected:
    /// What each program says of the file.
    std::vector<ToolRun> RunAll(const QStringList& more = {}) const {
        return {Estimate(QStringList{S("--rooms"), Path(S("a.csv")), S("--carpet"), S("1"),
                                     S("--roll-width"), S("12ft")} +
                         more),
                RunProgram(S("tarn-order"),
                           QStringList{S("--rooms"), Path(S("a.csv")), S("--roll"), S("12ft"),
                                       S("--trim"), S("3in"), S("--steps"), S("10")} +
                               more,
                           Path(S(""))),
                Data(QStringList{S("import"), S("--database"), database_, S("--project"),
                                 S("SMITH"), S("--replace"), Path(S("a.csv"))} +
                     more)};
    }
    void ExpectRead(const QByteArray& content, const QStringList& more = {},
                    const QByteArray& note = {}) const {
        Write(S("a.csv"), content);
        for (const ToolRun& run : RunAll(more)) {
            EXPECT_EQ(run.Status, 0) << run.Error.toStdString();
            EXPECT_TRUE(note.isEmpty() ? run.Error.isEmpty() : run.Error.contains(note))
                << run.Error.toStdString();
        }
    }
    void ExpectAllRefuse(const QByteArray& content, const QByteArray& reason,
                         const QStringList& more = {}) const {
        Write(S("a.csv"), content);
        for (const ToolRun& run : RunAll(more)) {
            ExpectRefused(run, reason);
        }
    }

    QString database_ = MakeDatabase();
};

TEST_F(RoomFiles, AreReadAsSpreadsheetsWriteThem) {
    ExpectRead("Width;Length;Covering;Remarks\r\n120;144;C1;a, b\r\n;;;\r\n");
    EXPECT_TRUE(Data({S("list"), S("--database"), database_}).Out.contains("a, b"));
    const QString utf16 = QString(QChar(QChar::ByteOrderMark)) +
                          S("width\tlength\tcovering\troom\n120\t144\tC1\tKüche\n");
    ExpectRead(QByteArray(reinterpret_cast<const char*>(utf16.utf16()), 2 * utf16.size()));
    EXPECT_TRUE(Data({S("list"), S("--database"), database_}).Out.contains("Küche"));
}

TEST_F(RoomFiles, AreReadInTheEncodingThatIsNamed) {
    const QByteArray file = "width,length,covering,room\n120,144,C1,K\xFC\x63he\n";
    ExpectRead(file, {S("--encoding"), S("windows-1252")});
    EXPECT_TRUE(Data({S("list"), S("--database"), database_}).Out.contains("Küche"));
    ExpectAllRefuse(file,
                    "Or name the encoding of the file with --encoding, such as windows-1252.");
    ExpectAllRefuse(file, "line 2: column 13: the byte 0xFC is none of utf-8",
                    {S("--encoding"), S("utf-8")});
    ExpectAllRefuse(file,
                    "The encoding \"klingon\" is not known; \"iconv -l\" lists those that are.",
                    {S("--encoding"), S("klingon")});
}

TEST_F(RoomFiles, TellWhichSizesAreRounded) {
    ExpectRead("Width (ft),Length (ft),covering\n12.33,12,C1\n", {},
               "Note: " + Path(S("a.csv")).toUtf8() +
                   ", line 2: width \"12.33\" is kept as 12'4\"\n");
}

TEST_F(RoomFiles, AreRefusedWithWordsThatHelp) {
    ExpectAllRefuse(
        "PK\x03\x04 [Content_Types].xml",
        "line 1: the file is an Excel workbook (XLSX); open it in a spreadsheet and save "
        "it as CSV");
    ExpectAllRefuse("Width (m);Length (m);covering\n3,45;4;C1\n",
                    "line 2: width \"3,45\" has a decimal comma: write 3.45", {S("--metric")});
}

TEST_F(RoomFiles, AloneHaveAnEncoding) {
    EXPECT_EQ(Estimate({S("--database"), database_, S("--project"), S("SMITH"), S("--carpet"),
                        S("1"), S("--roll-width"), S("12ft"), S("--encoding"), S("utf-8")})
                  .Status,
              2);
    Write(S("a.csv"), "width,length,covering\n");
    for (const ToolRun& run : RunAll({S("--encoding=")})) {
        EXPECT_EQ(run.Status, 2);
    }
}

} // namespace
} // namespace tarn
