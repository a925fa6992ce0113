// The order on paper and in files.

#include "base/Lengths.h"
#include "screens/order/OrderScreenTesting.h"
#include "store/TestDatabase.h"

#include <QAction>
#include <QMenu>
#include <QSignalSpy>

#include <gmock/gmock.h>

namespace tarn {
namespace {

using namespace tarn::testing;
using ::testing::HasSubstr;
using ::testing::StartsWith;

struct OrderScreenOutput : OrderScreenTest {
    void OpenQuick() {
        Add(168, 120, 2);
        Keep(2, {Roll(144, "12ft"), Roll(180, "15ft")});
        OpenCompared();
    }
    void SaveAs(std::size_t kind) {
        Control<QMenu>(Controls::orderFiles).actions().at(static_cast<int>(kind))->trigger();
    }

    TestFolder folder;
};

TEST_F(OrderScreenOutput, PrintsTheSheetOfTheBestRow) {
    OpenQuick();
    Click(Button(Controls::printOrder));
    AwaitPrinter();
    Press(*form, Qt::Key_P, Qt::ControlModifier);
    AwaitPrinter();
    ASSERT_EQ(printer.Orders.size(), 2U);
    const OrderDocument& document = printer.Orders[1];
    EXPECT_EQ(document.Of.Name, "MAPLE STREET 9");
    EXPECT_EQ(document.In, Units::Imperial);
    ASSERT_EQ(document.Orders.size(), 1U);
    EXPECT_EQ(document.Orders[0].Carpet, 2);
    EXPECT_EQ(document.Orders[0].Request, open.Now.Orders.at(2));
    ASSERT_TRUE(document.Orders[0].Best);
    EXPECT_EQ(Cell(Table(), static_cast<int>(*document.Orders[0].Best), 0), "best");
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(OrderScreenOutput, IsPrintedByKeyWhereverTheFocusIs) {
    OpenQuick();
    const QSignalSpy presses(&Button(Controls::printOrder), &QPushButton::clicked);
    qsizetype count = 0;
    for (const char* name : {Controls::comparison, Controls::orderRolls, Controls::orderTrimAlong,
                             Controls::orderCarpet, Controls::rollView, Controls::rollList}) {
        Focus(Control(name));
        Press(*form, Qt::Key_P, Qt::ControlModifier);
        EXPECT_EQ(presses.count(), ++count) << name;
    }
}

TEST_F(OrderScreenOutput, TellsWhyItCouldNotBePrinted) {
    OpenQuick();
    printer.Failure = "out of paper";
    Click(Button(Controls::printOrder));
    AwaitPrinter();
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_EQ(boxes.Messages[0], PrinterNotReadyMessage);
    EXPECT_THAT(boxes.Informative[0], StartsWith("out of paper"));
    EXPECT_THAT(boxes.Informative[0], HasSubstr("Save as PDF"));
    EXPECT_TRUE(Button(Controls::printOrder).isEnabled());
}

TEST_F(OrderScreenOutput, EndsTheComparisonThatIsBeingMadeFirst) {
    OpenEndless();
    Click(Button(Controls::printOrder));
    WaitUntil([this] { return printing.IsPrinting(); });
    EXPECT_EQ(State(), "Stopped: the best so far.");
    AwaitPrinter();
    ASSERT_EQ(printer.Orders.size(), 1U);
    const OrderFigures& printed = *printer.Orders[0].Orders[0].Candidates[0].Figures;
    EXPECT_EQ(WholeLengthText(static_cast<Long>(printed.Length), Units::Imperial), Column(3).at(0));
}

// A double click on BACK, say: leaving a second time would leave the screen below, too.
TEST_F(OrderScreenOutput, IsLeftOnceHoweverOftenThatIsAskedForBeforeThePrintedOneIsDone) {
    OpenEndless();
    Click(Button(Controls::printOrder));
    Click(Button(Controls::leaveOrder));
    Press(*form, Qt::Key_Escape);
    form->CloseByFrame();
    EXPECT_THAT(screens.Calls, ::testing::IsEmpty()) << "the order is printed first";
    WaitUntil([this] { return !screens.Calls.empty(); });
    AwaitPrinter();
    EXPECT_EQ(printer.Orders.size(), 1U);
    EXPECT_THAT(screens.Calls, ::testing::ElementsAre("return"));
}

TEST_F(OrderScreenOutput, SavesEveryKindOfFile) {
    OpenQuick();
    auto& menu = Control<QMenu>(Controls::orderFiles);
    ASSERT_EQ(menu.actions().size(), 7);
    const std::vector<std::pair<std::string, std::string>> kinds{
        {"pdf", "%PDF"},
        {"svg", "<?xml"},
        {"xlsx", "PK"},
        {"csv", "carpet,name,roll,"},
        {"txt", "MAPLE STREET 9, CARPET-3"},
        {"json", "{"},
        {"dxf", "999\r\nLengths are inches"}};
    for (std::size_t kind = 0; kind < kinds.size(); ++kind) {
        const std::string path = folder.Path("order." + kinds[kind].first);
        boxes.Files.push_back(path);
        SaveAs(kind);
        EXPECT_THAT(ReadFile(path), StartsWith(kinds[kind].second));
        EXPECT_EQ(boxes.SuggestedFiles.back(),
                  "MAPLE STREET 9 ORDER CARPET-3." + kinds[kind].first);
        EXPECT_EQ(notes.back(), "Saved: order." + kinds[kind].first);
    }
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(OrderScreenOutput, SavesTheRowThatWasChosenAsSuch) {
    OpenQuick();
    const int other = Cell(Table(), 0, 0) == "best" ? 1 : 0;
    Table().setCurrentCell(other, 0);
    boxes.Files = {folder.Path("a.txt"), folder.Path("a.csv")};
    SaveAs(4);
    EXPECT_THAT(ReadFile(folder.Path("a.txt")), HasSubstr("\nChosen: "));
    SaveAs(3);
    EXPECT_THAT(ReadFile(folder.Path("a.csv")), HasSubstr(",chosen,"));
}

TEST_F(OrderScreenOutput, TellsWhichFileCouldNotBeWritten) {
    OpenQuick();
    const std::string path = folder.Path("missing/order.pdf");
    boxes.Files = {path, std::nullopt};
    SaveAs(0);
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_THAT(boxes.Messages[0], StartsWith("The order could not be saved. "));
    EXPECT_THAT(boxes.Messages[0], HasSubstr(path));
    EXPECT_EQ(notes.back(), "");
    SaveAs(0);
    EXPECT_EQ(boxes.Messages.size(), 1U) << "the box was cancelled";
    EXPECT_EQ(notes.back(), "");
}

TEST_F(OrderScreenOutput, IsOfferedInAMenuByKey) {
    OpenQuick();
    boxes.Files = {folder.Path("a.pdf")};
    auto& menu = Control<QMenu>(Controls::orderFiles);
    QTimer timer; // the menu takes all events until an item is chosen
    QObject::connect(&timer, &QTimer::timeout, &menu, [&] {
        if (menu.isVisible()) {
            timer.stop();
            QTest::keyClick(&menu, Qt::Key_P);
        }
    });
    timer.start(1);
    Press(*form, Qt::Key_S, Qt::AltModifier);
    WaitUntil([this] { return boxes.SuggestedFiles.size() == 1; });
    EXPECT_THAT(ReadFile(folder.Path("a.pdf")), StartsWith("%PDF"));
}

} // namespace
} // namespace tarn
