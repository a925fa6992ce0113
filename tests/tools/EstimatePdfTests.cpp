#include "QtString.h"
#include "paper/PdfTesting.h"
#include "paper/PrintServer.h"
#include "tools/ToolTesting.h"

namespace tarn {
namespace {

using namespace tarn::testing;

constexpr const char* TwoRooms = "width,length,covering\n180,144,C1\n108,120,C1\n";

class EstimatePdf : public ToolTest {
  protected:
    QStringList Arguments(const QString& file = S("page.pdf")) const {
        return {S("--rooms"),      Write(S("rooms.csv"), TwoRooms),
                S("--carpet"),     S("1"),
                S("--roll-width"), S("12ft"),
                S("--pdf"),        file};
    }
    void ExpectDone(const ToolRun& run) const {
        EXPECT_EQ(run.Status, 0);
        EXPECT_TRUE(run.Error.isEmpty()) << run.Error.toStdString();
    }
    Pdf Page() const { return Pdf(Read(S("page.pdf")).toStdString()); }
};

TEST_F(EstimatePdf, IsThePrintedPageOnA4WithoutAPrinterAndADisplay) {
    const ToolRun run = Estimate(Arguments());
    ExpectDone(run);
    EXPECT_TRUE(run.Out.isEmpty()); // no cut list unless it is asked for
    const Pdf page = Page();
    EXPECT_EQ(page.Pages(), 1);
    EXPECT_EQ(page.PageSize(), QSizeF(842, 595));
    const QString text = page.Text();
    EXPECT_TRUE(text.startsWith(S("TARN RESULT (PROJECT: ) "))) << text.toStdString();
    EXPECT_TRUE(text.endsWith(S("Carpet-1 Width=12'0\" DOWNLAY"))) << text.toStdString();
    for (const char* part : {"Cut1: 12'0\" X 12'0\"", "A: 3'0\" X 12'0\"", "Total Cuts:1"}) {
        EXPECT_TRUE(text.contains(S(part))) << part;
    }
    EXPECT_EQ(text.count(S("3'0\" X 12'0\"")), 1); // in the cut list, as on the screen
    EXPECT_FALSE(page.Fonts().isEmpty());
    EXPECT_EQ(page.Images(), 0);
}

TEST_F(EstimatePdf, NamesTheProjectOfADatabase) {
    const QString database = MakeDatabase(S("MAPLE HOUSE"), TwoRooms);
    ExpectDone(Estimate({S("--database"), database, S("--project"), S("maple house"), S("--carpet"),
                         S("1"), S("--roll-width"), S("12ft"), S("--lay"), S("cross"), S("--pdf"),
                         S("page.pdf")}));
    const QString text = Page().Text();
    EXPECT_TRUE(text.startsWith(S("TARN RESULT (PROJECT: MAPLE HOUSE) "))) << text.toStdString();
    EXPECT_TRUE(text.endsWith(S("Carpet-1 Width=12'0\" CROSSLAY"))) << text.toStdString();
}

TEST_F(EstimatePdf, IsOnThePaperOfTheDefaultPrinter) {
    QueueSetup queue;
    queue.DriverPaper = "Letter";
    const PrintServer server({queue});
    ExpectDone(EstimateFor(server.Address(), Arguments()));
    EXPECT_EQ(Page().PageSize(), QSizeF(792, 612));
    EXPECT_TRUE(server.JobStates().empty()); // nothing is printed
}

TEST_F(EstimatePdf, GoesToStandardOutputToo) {
    const ToolRun run = Estimate(Arguments(S("-")));
    ExpectDone(run);
    EXPECT_EQ(Pdf(run.Out.toStdString()).Pages(), 1);
}

TEST_F(EstimatePdf, StandsBesideTheOtherOutputs) {
    const ToolRun run =
        Estimate(Arguments() + QStringList{S("--text"), S("-"), S("--svg"), S("drawing.svg")});
    ExpectDone(run);
    EXPECT_TRUE(run.Out.startsWith("Carpet-1  Width=12'0\"  DOWNLAY\n"));
    EXPECT_TRUE(Exists(S("drawing.svg")));
    EXPECT_EQ(Page().Pages(), 1);
}

TEST_F(EstimatePdf, NeverReplacesTheRoomsOrADatabase) {
    const QString database = MakeDatabase();
    const QByteArray before = Read(database);
    EXPECT_EQ(Estimate(Arguments(database)).Status, 1);
    EXPECT_EQ(Read(database), before);
    EXPECT_EQ(Estimate(Arguments(S("rooms.csv"))).Status, 1);
    EXPECT_EQ(Read(S("rooms.csv")), TwoRooms);
}

} // namespace
} // namespace tarn
