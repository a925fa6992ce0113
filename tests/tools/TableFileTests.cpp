// tarn-data: report and rooms as tables for spreadsheets.

#include "QtString.h"
#include "tools/ToolTesting.h"

#include <QJsonDocument>

namespace tarn {
namespace {

using namespace tarn::testing;

class TableFiles : public ToolTest {
  protected:
    ToolRun On(const char* command, const QStringList& more) const {
        return Data(
            QStringList{S(command), S("--database"), database_, S("--project"), S("SMITH")} + more);
    }
    /// The sheets of a spreadsheet as an independent reader has them.
    std::string Sheets(const char* file) const {
        const ToolRun run =
            Shell("/usr/bin/python3 " TARN_SOURCE_DIRECTORY "/tests/tools/xlsx_as_json.py " +
                  QByteArray(file));
        EXPECT_EQ(run.Status, 0) << run.Error.toStdString();
        return Json(run.Out);
    }
    /// A document without what does not count.
    static std::string Json(const QByteArray& text) {
        return QJsonDocument::fromJson(text).toJson(QJsonDocument::Compact).toStdString();
    }

    QString database_ = MakeDatabase(
        S("SMITH"),
        "width,length,covering,base,room,remark\n108,144,C1,W2L1,101,'=1+1\n36,36,T1,,,\n");
};

TEST_F(TableFiles, HoldTheReport) {
    const ToolRun run = On("report", {S("--csv"), S("r.csv"), S("--xlsx"), S("r.xlsx")});
    EXPECT_EQ(run.Status, 0) << run.Error.toStdString();
    EXPECT_EQ(run.Out, "") << "instead of the listing";
    EXPECT_EQ(
        Read(S("r.csv")),
        "item,width (in),length (in),square yards,covering,base,base length (in),room,remark\r\n"
        "1,108,144,12,CARPET-1,W2L1,363,101,'=1+1\r\n"
        "2,36,36,1,TILE-1,,,,\r\n");
    const std::string wanted = Json(R"json([["Report", [
                  ["item", "width (in)", "length (in)", "square yards", "covering", "base",
                   "base length (in)", "room", "remark"],
                  [1, 108, 144, 12, "CARPET-1", "W2L1", 363, "101", "=1+1"],
                  [2, 36, 36, 1, "TILE-1", null, null, null, null]]]])json");
    EXPECT_EQ(Sheets("r.xlsx"), wanted);
    EXPECT_EQ(On("report", {S("--csv"), S("-"), S("--metric")}).Out.left(16), "item,width (cm),");
}

TEST_F(TableFiles, HoldTheRoomsAndTheirTotals) {
    const ToolRun run = On("export", {S("--xlsx"), S("e.xlsx")});
    EXPECT_EQ(run.Status, 0) << run.Error.toStdString();
    EXPECT_EQ(run.Out, "") << "the CSV is not asked for";
    const std::string wanted = Json(R"json([["Rooms", [
                  ["width (in)", "length (in)", "covering", "base", "room", "remark"],
                  [108, 144, "CARPET-1", "W2L1", "101", "=1+1"],
                  [36, 36, "TILE-1", null, null, null]]],
                  ["Totals", [["covering", "rooms", "square yards", "square feet"],
                  ["CARPET-1", 1, 12, 108], ["TILE-1", 1, 1, 9]]]])json");
    EXPECT_EQ(Sheets("e.xlsx"), wanted);
    EXPECT_EQ(On("export", {S("--xlsx"), S("e.xlsx"), S("--output"), S("e.csv")}).Status, 0);
    EXPECT_EQ(Read(S("e.csv")), On("export", {}).Out);
}

TEST_F(TableFiles, AreWrittenToFilesOfTheirOwn) {
    for (const char* command : {"report", "export"}) {
        const char* const csv = std::string(command) == "report" ? "--csv" : "--output";
        EXPECT_EQ(On(command, {S(csv), S("-"), S("--xlsx"), S("-")}).Status, 2);
        for (const char* option : {csv, "--xlsx"}) {
            const ToolRun run = On(command, {S(option), database_});
            EXPECT_EQ(run.Status, 1) << option;
            EXPECT_TRUE(run.Error.contains("the rooms are read from it"));
            EXPECT_EQ(On(command, {S(option), S("no/such/file")}).Status, 1) << option;
        }
    }
}

} // namespace
} // namespace tarn
