// tarn-order: from rooms and options to comparison, list and files, and what it refuses.

#include "QtString.h"
#include "paper/PdfTesting.h"
#include "paper/PrintServer.h"
#include "project/OrderLengths.h"
#include "store/ProjectStore.h"
#include "tools/ToolTesting.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QXmlStreamReader>

namespace tarn {
namespace {

using namespace tarn::testing;

class OrderTool : public ToolTest {
  protected:
    ToolRun Order(const char* options) const {
        return Shell(("tarn-order " + std::string(options)).c_str());
    }
    QJsonObject Carpet(const char* options) const {
        const ToolRun run = Order((std::string(options) + " --steps 2000 --json -").c_str());
        const QJsonObject document = QJsonDocument::fromJson(run.Out).object();
        EXPECT_FALSE(document.isEmpty()) << run.Error.toStdString();
        return document.value(u"carpets").toArray().at(0).toObject();
    }
    void ExpectRefused(const char* options, const char* reason, int status = 1) const {
        const ToolRun run = Order(options);
        EXPECT_EQ(run.Status, status) << options;
        EXPECT_TRUE(run.Error.contains(reason)) << options << ": " << run.Error.toStdString();
    }
};

TEST_F(OrderTool, ComparesRollsAndLaysAndListsTheBest) {
    Write(S("a.csv"), "width,length,covering,room\n192,240,C1,1\n192,240,C1,2\n192,240,C1,3\n");
    const ToolRun run =
        Order("--rooms a.csv --roll Shop:12ft=10 --roll 15ft=20 --lay both --trim 3 --steps 2000");
    EXPECT_EQ(run.Status, 0) << run.Error.toStdString();
    const QByteArray text = run.Out;
    EXPECT_TRUE(text.startsWith("CARPET-1\n\n")) << text.toStdString();
    for (const char* row : {"Shop 12ft down", "Shop 12ft cross", " 15ft down", " 15ft cross"}) {
        EXPECT_TRUE(text.simplified().contains(row)) << row << ": " << text.toStdString();
    }
    EXPECT_EQ(text.count("\n*  "), 1);
    EXPECT_TRUE(text.contains("in one length without a join\n"));
    EXPECT_TRUE(text.contains("drop 1 of 2"));
    EXPECT_FALSE(run.Error.contains('\r')) << "progress is for terminals alone";
}

TEST_F(OrderTool, WritesEveryFileAlike) {
    Write(S("a.csv"),
          "width,length,covering,room,remark\n192,240,C1,1,=1+1\n60,96,C1,''2,\"a, b\"\n"
          "180,100,C3,x,-\n300,100,C3,,\n");
    const ToolRun run = Order("--rooms a.csv --roll 12ft=3 --roll K:200in --roll 150in --lay both "
                              "--pattern 18x0 --steps 300 --json o.json --csv o.csv --xlsx o.xlsx");
    EXPECT_EQ(run.Status, 0) << run.Error.toStdString();
    const ToolRun compared =
        Shell("python3 " TARN_SOURCE_DIRECTORY "/tests/tools/orders_agree.py o.json o.csv o.xlsx");
    EXPECT_EQ(compared.Status, 0) << compared.Error.toStdString();
    EXPECT_TRUE(compared.Out.startsWith("rows: 12 ")) << compared.Out.toStdString();
    EXPECT_TRUE(Read(S("o.json")).contains("\"refused\": \"")) << "a row should be refused";
}

constexpr const char* TwoCarpets =
    "width,length,covering,base,room,remark\n192,240,C1,W2L2,101,Hall\n60,96,C1,,102,\n"
    "180,100,C3,,103,\"a, b\"\n100,100,T1,,104,\n";

TEST_F(OrderTool, WritesTheSheetOfAllCarpetsAsPdf) {
    Write(S("a.csv"), TwoCarpets);
    const ToolRun run = Order("--rooms a.csv --roll 12ft --trim 3 --steps 100 --pdf -");
    EXPECT_EQ(run.Status, 0) << run.Error.toStdString();
    const Pdf pdf(run.Out.toStdString());
    EXPECT_EQ(pdf.PageSize(), QSizeF(595, 842));
    EXPECT_EQ(pdf.Pages(), 6);
    const QString text = pdf.Text();
    EXPECT_EQ(text.count(S("Order and cutting sheet")), 2);
    EXPECT_TRUE(text.contains(S("Carpet CARPET-1"))) << text.toStdString();
    EXPECT_TRUE(text.contains(S("Carpet CARPET-3")));
    EXPECT_TRUE(text.contains(S("TILE-1 69.44 sq. ft.")));
    EXPECT_TRUE(text.contains(S("6 of 6")));
}

TEST_F(OrderTool, WritesTheSheetOnThePaperOfTheDefaultPrinter) {
    Write(S("a.csv"), TwoCarpets);
    QueueSetup queue;
    queue.DriverPaper = "Letter";
    const PrintServer server({queue});
    const ToolRun run = RunProgram(S("tarn-order"),
                                   {S("--rooms"), Path(S("a.csv")), S("--roll"), S("12ft"),
                                    S("--steps"), S("10"), S("--pdf"), Path(S("a.pdf"))},
                                   Path(S("")), server.Address());
    EXPECT_EQ(run.Status, 0) << run.Error.toStdString();
    EXPECT_EQ(Pdf(Read(S("a.pdf")).toStdString()).PageSize(), QSizeF(612, 792));
}

TEST_F(OrderTool, WritesTheSheetOfOneCarpetAsSvg) {
    Write(S("a.csv"), TwoCarpets);
    ExpectRefused("--rooms a.csv --roll 12ft --steps 10 --svg a.svg",
                  "there are several: choose one with --carpet.");
    EXPECT_FALSE(Exists(S("a.svg")));
    const ToolRun run =
        Order("--rooms a.csv --roll 12ft --steps 10 --carpet 3 --svg a.svg --text a.txt");
    EXPECT_EQ(run.Status, 0) << run.Error.toStdString();
    QXmlStreamReader reader(Read(S("a.svg")));
    QStringList texts;
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == u"text") {
            texts += reader.readElementText();
        }
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    EXPECT_TRUE(texts.contains(S("103 a, b")));
    EXPECT_TRUE(texts.contains(S("3 of 3")));
}

TEST_F(OrderTool, GivesTheSameDocumentForTheSameSteps) {
    Write(S("a.csv"), "width,length,covering\n192,240,C1\n65,239,C1\n28,109,C1\n200,130,C1\n");
    const char* const options = "--rooms a.csv --roll 12ft --roll 13.5ft --lay both --max-parts 4 "
                                "--steps 5000 --json -";
    const ToolRun first = Order(options);
    EXPECT_EQ(first.Status, 0);
    EXPECT_FALSE(first.Out.isEmpty());
    EXPECT_EQ(first.Out, Order(options).Out);
    EXPECT_EQ(first.Out, Shell(("taskset -c 0 tarn-order " + std::string(options)).c_str()).Out);
}

TEST_F(OrderTool, TakesLengthsInEveryUnitAndRaisesOrRoundsThem) {
    Write(S("a.csv"), "width,length,covering\n100,100,C1\n");
    const QJsonObject carpet =
        Carpet("--rooms a.csv --roll 13.5ft --roll 411cm --trim 1.1in --selvage 2.54cm "
               "--min-part 1m --step 1ft --pattern 18inx2ft --half-drop --pattern-drift 2.5");
    const QJsonObject request = carpet.value(u"request").toObject();
    EXPECT_EQ(request.value(u"trimAlong").toInt(), 2);
    EXPECT_EQ(request.value(u"selvage").toInt(), 1);
    EXPECT_EQ(request.value(u"minPart").toInt(), 40);
    EXPECT_EQ(request.value(u"step").toInt(), 12);
    EXPECT_EQ(request.value(u"patternAcross").toInt(), 18);
    EXPECT_EQ(request.value(u"patternAlong").toInt(), 24);
    EXPECT_TRUE(request.value(u"halfDrop").toBool());
    EXPECT_EQ(request.value(u"patternDrift").toDouble(), 2.5);
    const QJsonArray rows = carpet.value(u"candidates").toArray();
    EXPECT_EQ(rows.at(0).toObject().value(u"rollWidth").toInt(), 162);
    EXPECT_EQ(rows.at(1).toObject().value(u"rollWidth").toInt(), 161);
    EXPECT_EQ(rows.at(1).toObject().value(u"roll").toString(), S("411cm"));
}

TEST_F(OrderTool, OrdersTheProjectOfADatabaseInItsUnits) {
    const QString database =
        MakeDatabase(S("SMITH"), "width,length,covering\n488,610,C2\n", {S("--metric")});
    const std::string input = "--database " + database.toStdString() + " --project smith ";
    ExpectRefused((input + "--roll 366cm").c_str(), "was entered in metric. Use --metric");
    const ToolRun run = Order((input + "--metric --roll 366cm --steps 100").c_str());
    EXPECT_EQ(run.Status, 0) << run.Error.toStdString();
    EXPECT_TRUE(run.Out.startsWith("SMITH, CARPET-2\n")) << run.Out.toStdString();
    EXPECT_EQ(Order((input + "--feet --roll 12ft --steps 100").c_str()).Status, 0);
    ExpectRefused((input + "--metric --roll 366cm --carpet 1").c_str(),
                  "No room with an area has CARPET-1.");
}

/// Keeps a request with CARPET-2 of the only project of a database.
void KeepRequest(const QString& database, Units units, const char* roll) {
    ProjectStore store(database.toStdString(), DatabaseAccess::ReadWrite);
    Project project = store.Load("SMITH").Value;
    OrderRequest request = DefaultOrderRequest(units);
    request.Rolls = {{*ReadOrderLength(roll, units), "Kept", roll, std::nullopt}};
    request.TrimAlong = 5;
    project.Orders[1] = request;
    EXPECT_TRUE(store.Save(project, units).IsSaved());
}

TEST_F(OrderTool, UsesTheRequestThatIsSavedWhereNoOptionSaysOtherwise) {
    const QString database = MakeDatabase(S("SMITH"), "width,length,covering\n100,100,C2\n");
    KeepRequest(database, Units::Imperial, "15ft");
    const std::string input = "--database " + database.toStdString() + " --project SMITH";
    const QByteArray before = Read(database);
    QJsonObject request = Carpet(input.c_str()).value(u"request").toObject();
    EXPECT_EQ(request.value(u"trimAlong").toInt(), 5);
    EXPECT_EQ(request.value(u"rolls").toArray().at(0).toObject().value(u"name").toString(),
              S("Kept"));
    request = Carpet((input + " --trim 2 --roll 12ft").c_str()).value(u"request").toObject();
    EXPECT_EQ(request.value(u"trimAlong").toInt(), 2);
    EXPECT_EQ(request.value(u"rolls").toArray().at(0).toObject().value(u"width").toString(),
              S("12ft"));
    EXPECT_EQ(Read(database), before) << "the request is never written";
}

TEST_F(OrderTool, DoesNotUseARequestInOtherUnits) {
    const QString database = MakeDatabase(S("SMITH"), "width,length,covering\n100,100,C2\n");
    KeepRequest(database, Units::Metric, "366cm");
    const std::string input = "--database " + database.toStdString() + " --project SMITH";
    ExpectRefused(input.c_str(), "CARPET-2: the saved request is in other units and is not used.");
    ExpectRefused(input.c_str(), "There is no roll to order from");
}

TEST_F(OrderTool, LeavesOutCarpetsWithoutAnArea) {
    Write(S("a.csv"), "width,length,covering\n0,100,C1\n100,100,C2\n100,100,T1\n");
    EXPECT_EQ(Carpet("--rooms a.csv --roll 12ft").value(u"carpet").toInt(), 2);
    Write(S("b.csv"), "width,length,covering\n0,100,C1\n100,100,T1\n");
    ExpectRefused("--rooms b.csv --roll 12ft", "No room with an area has a carpet.");
}

TEST_F(OrderTool, PrintsTheDocumentWhenEverythingIsRefused) {
    Write(S("a.csv"), "width,length,covering,room\n285,100,C1,17\n");
    const ToolRun run = Order("--rooms a.csv --roll 12ft --pattern 32x0 --json -");
    EXPECT_EQ(run.Status, 1);
    const QJsonObject carpet =
        QJsonDocument::fromJson(run.Out).object().value(u"carpets").toArray().at(0).toObject();
    EXPECT_TRUE(carpet.value(u"best").isNull());
    EXPECT_TRUE(carpet.value(u"pieces").toArray().isEmpty());
    const QJsonObject row = carpet.value(u"candidates").toArray().at(0).toObject();
    EXPECT_TRUE(row.value(u"refused").toString().contains(S("17")));
    EXPECT_TRUE(row.value(u"length").isNull());
    EXPECT_TRUE(row.value(u"sideSeams").isNull());
    EXPECT_TRUE(run.Error.contains("CARPET-1, 12ft, down is refused: ")) << run.Error.toStdString();
    EXPECT_TRUE(run.Error.contains("No carpet has an order"));
}

TEST_F(OrderTool, TellsOfACarpetWithoutAnOrderAmongOthers) {
    Write(S("a.csv"), "width,length,covering\n285,100,C1\n100,100,C2\n");
    const ToolRun run = Order("--rooms a.csv --roll 12ft --pattern 32x0 --steps 100");
    EXPECT_EQ(run.Status, 0);
    EXPECT_TRUE(run.Error.contains("CARPET-1, 12ft, down is refused: ")) << run.Error.toStdString();
    EXPECT_TRUE(run.Error.contains("CARPET-2, 12ft, down: ")) << "the notes of the best";
}

TEST_F(OrderTool, RefusesWhatItCannotSearchWith) {
    Write(S("a.csv"), "width,length,covering\n200,100,C1\n");
    const auto refused = [this](const std::string& options, const char* reason) {
        ExpectRefused(("--rooms a.csv " + options).c_str(), reason);
    };
    refused("", "There is no roll to order from: name its width. Use --roll.");
    refused("--roll wide", "--roll \"wide\": write the length as 12ft6in");
    refused("--roll 12ft=-1", "--roll \"12ft=-1\": the price must be a number of 0 or more.");
    refused("--roll 12ft=inf", "the price must be a number of 0 or more.");
    refused("--roll 12ft --selvage 7in", "The selvage must be between 0'0\" and 0'6\".");
    refused("--roll 12ft --trim 25in", "The trim along must be between 0'0\" and 2'0\".");
    refused("--roll 12ft --trim x", "--trim \"x\": write the length as");
    refused("--roll 12ft --pattern 18", "--pattern \"18\": write the repeat across and along");
    refused("--roll 12ft --pattern 0x45.7cm", "The pattern along must be whole inches");
    refused("--roll 12ft --pattern 18x25 --half-drop", "A half drop needs an even pattern repeat");
    refused("--roll 12ft --half-drop", "A half drop needs a pattern repeat along.");
    refused("--roll 12ft --pattern 18x24 --pattern-drift 11", "The pattern drift must be 0 to 10");
    const auto wrong = [this](const char* options, const char* reason) {
        ExpectRefused(options, reason, 2);
    };
    wrong("--roll 12ft", "either --database and --project, or --rooms is required");
    wrong("--rooms a.csv --roll 12ft --max-parts 7", "--max-parts");
    wrong("--rooms a.csv --roll 12ft --metric --feet", "--feet");
    wrong("--rooms a.csv --roll 12ft --json - --text -", "cannot both go to standard output");
    ExpectRefused("--rooms a.csv --roll 12ft --csv a.csv", "the rooms are read from it");
}

} // namespace
} // namespace tarn
