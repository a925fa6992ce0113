// The printing system behind the screens.

#include "files/ShortDate.h"
#include "paper/PdfTesting.h"
#include "paper/PrintServer.h"
#include "paper/SystemPrinter.h"
#include "project/Report.h"
#include "screens/ControlNames.h"
#include "screens/estimate/EstimateScreenTesting.h"
#include "screens/rooms/RoomScreen.h"

#include <functional>
#include <memory>
#include <optional>

namespace tarn {
namespace {

using namespace tarn::testing;

/// How the printing system stands when it is of no use.
struct Trouble {
    const char* What;
    std::optional<std::vector<QueueSetup>> Queues; ///< nothing: there is no server
    const char* Told;                              ///< of its cause and what helps
};

std::vector<Trouble> Troubles() {
    QueueSetup stopped;
    stopped.Stopped = true;
    QueueSetup closed;
    closed.Accepting = false;
    return {{"no queue", std::vector<QueueSetup>{},
             "There is no default printer.\r\nChoose a default printer in "},
            {"a stopped queue", std::vector<QueueSetup>{stopped},
             "The printer Paper is stopped.\r\nStart it again in "},
            {"a queue that takes no jobs", std::vector<QueueSetup>{closed},
             "The printer Paper takes no jobs.\r\nLet it accept jobs in "},
            {"no server", std::nullopt, " cannot be reached.\r\nCheck that the printing system "}};
}

/// Printing fails once with one message in every trouble, and works when the queue is back.
void ExpectToldOnceAndPrintedLater(FakeBoxes& boxes, const std::function<void()>& press,
                                   const std::function<void()>& expectUsable) {
    for (const Trouble& trouble : Troubles()) {
        SCOPED_TRACE(trouble.What);
        boxes.Messages.clear();
        boxes.Informative.clear();
        std::optional<PrintServer> server;
        if (trouble.Queues) {
            server.emplace(*trouble.Queues);
        } else {
            UseServer(DeadAddress());
        }
        press();
        EXPECT_EQ(boxes.Messages, std::vector<std::string>{PrinterNotReadyMessage});
        EXPECT_NE(boxes.Informative.at(0).find(trouble.Told), std::string::npos)
            << boxes.Informative.at(0);
        EXPECT_TRUE(boxes.Informative.at(0).ends_with("choose \"Save as PDF\"."));
        expectUsable();
        if (server) {
            EXPECT_TRUE(server->JobStates().empty());
        }
    }
    boxes.Messages.clear();
    const PrintServer server({QueueSetup()});
    press();
    EXPECT_EQ(server.Printed(1).size(), 1U);
    EXPECT_TRUE(boxes.Messages.empty());
}

/// Wait until everything is printed, as long as the printing system may take.
void AwaitEnd(const PrintQueue& queue) {
    constexpr int AtMost = 60000; // milliseconds
    EXPECT_TRUE(QTest::qWaitFor([&queue] { return !queue.IsPrinting(); }, AtMost));
}

struct PrintedFromRooms : ScreenTest {
    PrintedFromRooms() {
        open.Now.Name = "MAPLE STREET 9";
        open.Now.Rooms = {{150, 168, 1, 2, "N1", "hall"}, {200, 120, 0, 0, "N2", "kitchen"}};
        open.Saved = open.Now;
        form = std::make_unique<RoomScreen>(real);
        ShowOnDisplay(*form);
        Click(Find(*form, Controls::showReport));
    }
    void Print() {
        Click(Find(*form, Controls::printReport));
        AwaitEnd(queue);
    }
    bool IsReportShown() { return Find(*form, Controls::reportPanel).isVisible(); }

    SystemPrinter system;
    PrintQueue queue{system, page, boxes};
    Session real{open, store, page, boxes, queue, screens, drafts, kept, history, session.Today};
    std::unique_ptr<RoomScreen> form;
};

TEST_F(PrintedFromRooms, TheReportArrivesAndIsClosed) {
    const PrintServer server({QueueSetup()});
    Print();
    const PrintedJob job = server.Printed(1).at(0);
    EXPECT_EQ(job.Title, "ENTERED DATA REPORT");
    EXPECT_EQ(Pdf(job.Document).Text(),
              Words(MakeReport(open.Now, open.Shown, ShortDate(2026, 3, 14)).Text()));
    EXPECT_FALSE(IsReportShown());
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(PrintedFromRooms, TheReportStaysOpenUntilThePrinterIsThere) {
    ExpectToldOnceAndPrintedLater(
        boxes, [this] { Print(); }, [this] { EXPECT_TRUE(IsReportShown()); });
    EXPECT_FALSE(IsReportShown());
}

struct PrintedFromEstimate : EstimateScreenTest {
    PrintedFromEstimate() {
        Add({200, 120});
        form = std::make_unique<EstimateScreen>(real, true);
        ShowOnDisplay(*form);
        PressOk();
        Search();
    }
    void Print() {
        Click(Button(Controls::printEstimate));
        AwaitEnd(queue);
    }

    SystemPrinter system;
    PrintQueue queue{system, page, boxes};
    Session real{open, store, page, boxes, queue, screens, drafts, kept, history, session.Today};
};

TEST_F(PrintedFromEstimate, TheEstimateArrives) {
    const PrintServer server({QueueSetup()});
    Print();
    const PrintedJob job = server.Printed(1).at(0);
    EXPECT_EQ(job.Title, "TARN RESULT  (PROJECT: MAPLE STREET 9)  " + ShortDate(2026, 3, 14));
    const QString text = Pdf(job.Document).Text();
    for (const std::string& written : Written()) {
        EXPECT_TRUE(text.contains(Words(written))) << written;
    }
    EXPECT_TRUE(text.endsWith(QStringLiteral("DOWNLAY"))) << text.toStdString();
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_EQ(page.Width, 16838);
    EXPECT_EQ(page.Height, 11906);
}

TEST_F(PrintedFromEstimate, TheEstimateStaysUsableUntilThePrinterIsThere) {
    for (const Integer known : {Integer{0}, Integer{1}}) {
        SCOPED_TRACE(known != 0 ? "the page is known" : "the page is not known");
        page = {static_cast<Integer>(known * 15840), static_cast<Integer>(known * 12240)};
        const auto written = Written();
        ExpectToldOnceAndPrintedLater(
            boxes, [this] { Print(); },
            [&] {
                EXPECT_EQ(Written(), written);
                Click(Button(Controls::redrawLayout));
                Click(Button(Controls::pasteCuts));
                QTest::mouseClick(&Paper(), Qt::LeftButton, {}, {50, 50});
                EXPECT_EQ(Written(), written);
            });
        screens.Calls.clear();
    }
}

} // namespace
} // namespace tarn
