// How the order screen begins, compares, is stopped and left.

#include "Sanitized.h"
#include "screens/ControlChecks.h"
#include "screens/order/OrderScreenTesting.h"

#include <QHeaderView>
#include <QScrollBar>

#include <gmock/gmock.h>

namespace tarn {
namespace {

using namespace tarn::testing;
using ::testing::Contains;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::MatchesRegex;
using ::testing::Not;
using ::testing::StartsWith;

struct OrderScreens : OrderScreenTest {
    std::vector<std::string> Carpets() {
        const auto& box = Control<QComboBox>(Controls::orderCarpet);
        std::vector<std::string> carpets;
        carpets.reserve(static_cast<std::size_t>(box.count()));
        for (int i = 0; i < box.count(); ++i) {
            carpets.push_back(FromQt(box.itemText(i)));
        }
        return carpets;
    }
    std::string Carpet() { return FromQt(Control<QComboBox>(Controls::orderCarpet).currentText()); }
    bool Shows(const char* name) { return Control(name).isVisible(); }
};

TEST_F(OrderScreens, CompareTheStandardRollsInBothLaysByThemselves) {
    Add(168, 120);
    Add(60, 96);
    Open();
    WaitUntil([this] { return State() == "Compared."; });
    EXPECT_THAT(Column(1),
                ElementsAre("6ft", "6ft", "12ft", "12ft", "13.5ft", "13.5ft", "15ft", "15ft"));
    EXPECT_THAT(Column(2),
                ElementsAre("down", "cross", "down", "cross", "down", "cross", "down", "cross"));
    EXPECT_THAT(Column(3), Each(Not(IsEmpty())));
    EXPECT_THAT(Column(0), Contains("best").Times(1));
    EXPECT_THAT(LabelText(Controls::comparisonTaken), StartsWith("Best: "));
    EXPECT_THAT(LabelText(Controls::comparisonRule), StartsWith("Best is the least carpet"));
    EXPECT_FALSE(ListedLines().empty());
    EXPECT_TRUE(Button(Controls::printOrder).isEnabled());
    EXPECT_TRUE(Table().hasFocus());
    EXPECT_FALSE(open.HasUnsavedChanges()) << "nothing was chosen yet";
}

TEST_F(OrderScreens, BeginWithTheCarpetOfTheEstimateOrElseTheLowestThatCanBeOrdered) {
    Add(100, 100, 2);
    Add(0, 100, 3);
    Add(100, 100, 5);
    Add(100, 100, 8);
    for (const Byte carpet : {Byte{2}, Byte{5}}) {
        Keep(carpet, {Roll(144, "12ft")});
    }
    Open(Byte{5});
    EXPECT_THAT(Carpets(), ElementsAre("CARPET-3", "CARPET-6"));
    EXPECT_EQ(Carpet(), "CARPET-6");
    Open(Byte{3});
    EXPECT_EQ(Carpet(), "CARPET-3") << "4 has no room with an area";
    Open();
    EXPECT_EQ(Carpet(), "CARPET-3");
}

TEST_F(OrderScreens, SayWhenThereIsNothingToOrder) {
    Add(0, 100);
    Add(100, 100, 8);
    Open(Byte{0});
    EXPECT_EQ(State(), "No room with an area has a carpet.");
    for (const char* name : {Controls::compare, Controls::stopComparing, Controls::printOrder,
                             Controls::saveOrderAs, Controls::orderRolls}) {
        EXPECT_FALSE(Control(name).isEnabled()) << name;
    }
    EXPECT_TRUE(Button(Controls::leaveOrder).hasFocus());
    Press(*form, Qt::Key_Return);
    EXPECT_THAT(screens.Calls, ElementsAre("return"));
}

TEST_F(OrderScreens, SayWhenEveryRowIsRefusedAndWhy) {
    Add(168, 120);
    Keep(0, {Roll(10, "10in")}).Selvage = 6;
    Open();
    WaitFor("Every roll and lay is refused: the notes say why.");
    EXPECT_THAT(Column(0), ElementsAre(""));
    EXPECT_THAT(Column(3), ElementsAre("refused"));
    EXPECT_THAT(Column(Table().columnCount() - 1), Each(Not(IsEmpty())));
    EXPECT_EQ(LabelText(Controls::comparisonTaken), "");
    EXPECT_FALSE(Button(Controls::printOrder).isEnabled());
    EXPECT_FALSE(Button(Controls::saveOrderAs).isEnabled());
    EXPECT_THAT(ListedLines(), IsEmpty());
    Press(*form, Qt::Key_P, Qt::ControlModifier);
    EXPECT_THAT(printer.Orders, IsEmpty());
}

TEST_F(OrderScreens, FillTheTableWhileTheyCompareUntilTheyAreStopped) {
    OpenEndless();
    EXPECT_EQ(State(), "Comparing. STOP keeps the best so far.");
    EXPECT_THAT(Column(3), ElementsAre(MatchesRegex("3[0-9][0-9]'[0-9]+\""))) << "about 340 feet";
    EXPECT_THAT(ListedLines(), Not(IsEmpty()));
    EXPECT_TRUE(Button(Controls::printOrder).isEnabled()) << "whoever is in a hurry prints that";
    Click(Button(Controls::stopComparing));
    WaitFor("Stopped: the best so far.");
    EXPECT_FALSE(Button(Controls::stopComparing).isEnabled());
    EXPECT_TRUE(Table().hasFocus()) << "the button cannot keep it";
    EXPECT_THAT(Column(0), ElementsAre("best"));
    EXPECT_TRUE(Button(Controls::printOrder).isEnabled());
    Click(Button(Controls::compare));
    WaitFor("Comparing. STOP keeps the best so far.");
}

TEST_F(OrderScreens, AreLeftAtOnceWhileTheyCompare) {
    KeepEndless();
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_unknown, Qt::Key_B}) {
        Open();
        WaitUntil([this] { return Table().rowCount() == 1; });
        screens.Calls.clear();
        if (key == Qt::Key_B) {
            Click(Button(Controls::leaveOrder));
        } else if (key == Qt::Key_Escape) {
            Press(*form, key);
        } else {
            form->CloseByFrame();
        }
        EXPECT_THAT(screens.Calls, ElementsAre("return"));
        form.reset();
    }
}

TEST_F(OrderScreens, TellWhenAnOrderCannotBeMade) {
    for (std::size_t room = 0; room <= RoomCapacity; ++room) {
        Add(100, 100);
    }
    Keep(0, {Roll(144, "12ft")});
    Open();
    WaitUntil([this] { return !boxes.Messages.empty(); });
    EXPECT_THAT(boxes.Messages, ElementsAre(StartsWith("Run-time error '9':")));
    EXPECT_NE(boxes.Messages[0].find("The order could not be made."), std::string::npos);
    EXPECT_EQ(Table().rowCount(), 0);
    EXPECT_EQ(State(), "");
    EXPECT_FALSE(Button(Controls::stopComparing).isEnabled());
    EXPECT_FALSE(Button(Controls::printOrder).isEnabled());
    EXPECT_TRUE(Button(Controls::compare).isEnabled());
}

TEST_F(OrderScreens, StartAgainWithAnotherCarpet) {
    KeepEndless();
    Add(100, 100, 3);
    Keep(3, {Roll(144, "12ft"), Roll(180, "15ft")});
    Open();
    WaitUntil([this] { return Table().rowCount() == 1; });
    QTest::keyClick(&Control(Controls::orderCarpet), Qt::Key_Down);
    EXPECT_EQ(Carpet(), "CARPET-4");
    WaitFor("Compared.");
    EXPECT_EQ(Table().rowCount(), 2);
    EXPECT_EQ(Cell(Rolls(), 1, 0), "15ft");
    EXPECT_FALSE(open.HasUnsavedChanges());
}

TEST_F(OrderScreens, TakeTheRowThatIsChosen) {
    Add(168, 120);
    Keep(0, {Roll(144, "12ft"), Roll(180, "15ft"), Roll(6, "6in")}).Selvage = 4;
    OpenCompared();
    const std::size_t best = Cell(Table(), 0, 0) == "best" ? 0 : 1;
    const auto other = static_cast<int>(1 - best);
    const std::vector<std::string> listed = ListedLines();
    Focus(Table());
    Press(*form, best == 0 ? Qt::Key_Down : Qt::Key_Up);
    EXPECT_EQ(Cell(Table(), other, 0), "chosen");
    EXPECT_EQ(Cell(Table(), static_cast<int>(best), 0), "best");
    EXPECT_THAT(LabelText(Controls::comparisonTaken), StartsWith("Chosen: "));
    EXPECT_NE(ListedLines(), listed);
    Click(Button(Controls::printOrder));
    AwaitPrinter();
    ASSERT_EQ(printer.Orders.size(), 1U);
    EXPECT_EQ(printer.Orders[0].Orders[0].Best, static_cast<std::size_t>(other));
    Table().setCurrentCell(2, 1);
    EXPECT_EQ(Cell(Table(), 2, 0), "") << "it is refused";
    EXPECT_NE(LabelText(Controls::comparisonRemarks), "");
    EXPECT_THAT(ListedLines(), IsEmpty());
    EXPECT_FALSE(Button(Controls::printOrder).isEnabled());
    Table().setCurrentCell(static_cast<int>(best), 1);
    EXPECT_EQ(ListedLines(), listed);
    EXPECT_THAT(LabelText(Controls::comparisonTaken), StartsWith("Best: "));
}

TEST_F(OrderScreens, LeaveRoomBesideRemarksOnManyRooms) {
    for (int room = 0; room < 100; ++room) {
        Add(147, 120);
    }
    Keep(0, {Roll(144, "12ft")});
    OpenCompared();
    const auto& remarks = Control<QLabel>(Controls::comparisonRemarks);
    EXPECT_EQ(remarks.text().size(), 241);
    EXPECT_GT(remarks.accessibleName().size(), 900) << "all of it for those who hear it";
    EXPECT_THAT(ShownToolTip(remarks), ::testing::HasSubstr("room 100."));
    EXPECT_LE(Control(Controls::body).height(), form->height());
}

TEST_F(OrderScreens, GiveTheNotesNoMoreThanWhatIsLeftOfTheComparison) {
    for (int room = 0; room < 100; ++room) {
        Add(147, 120);
    }
    Keep(0, {Roll(144, "12ft")});
    Open(std::nullopt, 1920, 1080);
    WaitFor("Compared.");
    EXPECT_EQ(Table().horizontalScrollBar()->maximum(), 0);
    EXPECT_GT(Cell(Table(), 0, Table().columnCount() - 1).size(), 900U) << "all of it is there";
    form->resize(1500, 1080);
    const int last = Table().columnCount() - 1;
    EXPECT_TRUE(QTest::qWaitFor([&] { return Table().isColumnHidden(last); }))
        << "those of the row that is taken stand below";
}

/// A house of several thousand square feet, with the standard rolls in both lays.
void AddHouse(OrderScreenTest& test, std::optional<Double> price = std::nullopt) {
    for (const auto& [width, length] :
         {std::pair{242, 212}, {204, 155}, {48, 186}, {182, 197}, {138, 148}, {306, 171}}) {
        test.Add(static_cast<Integer>(2 * width), static_cast<Integer>(length));
    }
    std::vector<RollChoice> rolls = OfferedRequest(test.open.Shown).Rolls;
    for (RollChoice& roll : rolls) {
        roll.Price = price;
    }
    test.Keep(0, rolls).Lays = {Lay::Down, Lay::Cross};
}

/// The heads of the columns that are shown, each on one line; all of each is in sight.
std::vector<std::string> HeadsInSight(const QTableWidget& table) {
    EXPECT_EQ(table.horizontalScrollBar()->maximum(), 0);
    std::vector<std::string> heads;
    for (int column = 0; column < table.columnCount(); ++column) {
        if (!table.isColumnHidden(column)) {
            heads.push_back(FromQt(table.horizontalHeaderItem(column)->text().replace(
                QLatin1Char('\n'), QLatin1Char(' '))));
            EXPECT_LE(table.columnViewportPosition(column) + table.columnWidth(column),
                      table.viewport()->width())
                << heads.back();
        }
    }
    return heads;
}

TEST_F(OrderScreens, ShowTheComparisonAsBeforeWhereThereIsRoom) {
    AddHouse(*this, 12.5);
    Open(std::nullopt, 1920, 1080);
    WaitFor("Compared.");
    EXPECT_THAT(HeadsInSight(Table()),
                ElementsAre("Take", "Roll", "Lay", "Order", "Bought sq. ft.", "Waste %", "Seams",
                            "Joins", "Price", "Above least %", "Needed", "Least possible",
                            "Rooms sq. ft.", "Trimmed sq. ft.", "Notes"));
    EXPECT_EQ(FromQt(Table().horizontalHeaderItem(4)->text()), "Bought\nsq. ft.");
    EXPECT_EQ(LabelText(Controls::comparisonLeftOut), "");
}

TEST_F(OrderScreens, ShowWhatTheComparisonIsDecidedByBesideTheChoices) {
    AddHouse(*this);
    OpenCompared();
    EXPECT_THAT(HeadsInSight(Table()),
                ElementsAre("Take", "Roll", "Lay", "Order", "Bought sq. ft.", "Waste %", "Seams",
                            "Joins", "Above least %", "Needed", "Least possible", "Rooms sq. ft."))
        << "no roll has a price, and the notes stand below";
    EXPECT_EQ(LabelText(Controls::comparisonLeftOut), "Trimmed sq. ft.: 2,784.11");
}

/// What one looks up in the row that is taken stands below the table where that has no room for it.
TEST_F(OrderScreens, NeverScrollTheComparisonSideways) {
    AddHouse(*this, 123.45);
    Open(std::nullopt, 800, 600);
    WaitFor("Compared.");
    constexpr int Step = UnlessSanitized(16, 128);
    std::size_t least = 99;
    for (int width = 640; width <= 1920; width += Step) {
        form->resize(width, 600);
        QCoreApplication::processEvents();
        const std::vector<std::string> heads = HeadsInSight(Table());
        least = std::min(least, heads.size());
        for (const char* always : {"Take", "Roll", "Lay", "Order", "Price"}) {
            EXPECT_THAT(heads, Contains(always)) << width;
        }
        const std::string below = LabelText(Controls::comparisonLeftOut);
        const int row = Table().currentRow();
        for (int column = 0; column + 1 < Table().columnCount(); ++column) {
            const bool isBelow = below.find(Cell(Table(), row, column)) != std::string::npos;
            EXPECT_TRUE(isBelow || !Table().isColumnHidden(column)) << width << " " << column;
        }
    }
    EXPECT_LT(least, 14U) << "some did not fit";
}

TEST_F(OrderScreens, TellWhatTheComparisonHasNoRoomForOfTheRowThatIsTaken) {
    AddHouse(*this, 123.45);
    Open(std::nullopt, 640, 600);
    WaitFor("Compared.");
    const int last = Table().columnCount() - 2;
    ASSERT_TRUE(Table().isColumnHidden(last));
    EXPECT_THAT(LabelText(Controls::comparisonLeftOut),
                ::testing::EndsWith("Trimmed sq. ft.: " + Cell(Table(), 0, last)));
    const std::string best = LabelText(Controls::comparisonLeftOut);
    Focus(Table());
    Press(*form, Table().currentRow() == 0 ? Qt::Key_Down : Qt::Key_Up);
    EXPECT_NE(LabelText(Controls::comparisonLeftOut), best);
}

TEST_F(OrderScreens, MakeNoColumnOfTheComparisonNarrowerThanItsText) {
    AddHouse(*this, 1234.5);
    OpenCompared();
    QFont bold = Table().font();
    bold.setBold(true);
    const auto& heads = *Table().horizontalHeader();
    constexpr int Padding = 2 * 2 + 1; // of a cell in the theme, and the line beside it
    const int drawnAround =
        2 * (Table().style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1) + Padding;
    for (int column = 0; column + 1 < Table().columnCount(); ++column) {
        const QString head = Table().horizontalHeaderItem(column)->text();
        if (Table().isColumnHidden(column)) {
            continue;
        }
        EXPECT_GE(Table().columnWidth(column),
                  heads.fontMetrics().size(0, head).width() + drawnAround);
        for (int row = 0; row < Table().rowCount(); ++row) {
            const QTableWidgetItem& cell = *Table().item(row, column);
            const QFontMetrics metrics(cell.font().bold() ? bold : Table().font());
            EXPECT_GE(Table().visualItemRect(&cell).width(),
                      metrics.horizontalAdvance(cell.text()) + drawnAround)
                << row << " " << FromQt(head);
        }
    }
}

TEST_F(OrderScreens, SayInWhichUnitsTheProjectWasEnteredAndShowTheirOwn) {
    Add(300, 400);
    open.Saved.EnteredIn = open.Now.EnteredIn = Units::Metric;
    Open();
    EXPECT_EQ(LabelText(Controls::titleWarning), "ENTERED IN METRIC");
    WaitFor("Compared.");
    open.Shown = Units::Metric;
    Open();
    EXPECT_EQ(LabelText(Controls::titleWarning), "");
    EXPECT_EQ(Cell(Rolls(), 1, 0), "366cm");
    WaitFor("Compared.");
    EXPECT_EQ(FromQt(Table().horizontalHeaderItem(3)->text()), "Order\ncm");
    EXPECT_EQ(LabelText(Controls::formTitle), "ORDER FOR PROJECT: MAPLE STREET 9");
}

TEST_F(OrderScreens, ShowAllPartsWhereThereIsRoomAndElseOneAtATime) {
    Add(168, 120);
    Keep(0, {Roll(144, "12ft")});
    OpenCompared();
    EXPECT_TRUE(Shows(Controls::orderChoices));
    EXPECT_TRUE(Shows(Controls::comparisonPanel));
    EXPECT_TRUE(Shows(Controls::rollView));
    EXPECT_FALSE(Shows(Controls::orderParts));
    Open(std::nullopt, 800, 600);
    EXPECT_TRUE(Shows(Controls::orderParts));
    EXPECT_FALSE(Shows(Controls::orderChoices));
    EXPECT_TRUE(Shows(Controls::comparisonPanel)) << "the result is what one came for";
    EXPECT_FALSE(Shows(Controls::rollView));
    Focus(Control(Controls::orderParts));
    Press(*form, Qt::Key_Right);
    EXPECT_TRUE(Shows(Controls::rollView));
    EXPECT_FALSE(Shows(Controls::comparisonPanel));
    Press(*form, Qt::Key_Left);
    Press(*form, Qt::Key_Left);
    EXPECT_TRUE(Shows(Controls::orderChoices));
    Fill(Controls::orderTrimAlong, "1");
    Press(*form, Qt::Key_Return);
    EXPECT_TRUE(Shows(Controls::comparisonPanel)) << "it is compared";
    EXPECT_TRUE(Table().hasFocus());
}

TEST_F(OrderScreens, FitTheDisplaysThereAre) {
    Add(168, 120);
    Keep(0, OfferedRequest(Units::Imperial).Rolls).Lays = {Lay::Down, Lay::Cross};
    for (const QSize size : {QSize(800, 600), QSize(1366, 740), QSize(1920, 1080)}) {
        Open(std::nullopt, size.width(), size.height());
        WaitFor("Compared.");
        for (int part = 0; part < 3; ++part) {
            Control<QTabBar>(Controls::orderParts).setCurrentIndex(part);
            QCoreApplication::processEvents();
            EXPECT_LE(Control(Controls::body).width(), form->width()) << size.width() << part;
            EXPECT_LE(Control(Controls::body).height(), form->height()) << size.width() << part;
        }
    }
}

TEST_F(OrderScreens, HaveNamesAndMnemonicsOnce) {
    Add(168, 120);
    Open();
    ExpectNamesAndMnemonicsOnce(*form, 19);
    EXPECT_EQ(FromQt(Table().accessibleName()), "Comparison of rolls and lays");
    EXPECT_EQ(FromQt(Rolls().accessibleName()), "ROLLS");
    EXPECT_EQ(FromQt(Field(Controls::orderTrimAcross).accessibleName()), "TRIM ACROSS");
}

TEST_F(OrderScreens, LeadTheTabKeyThroughEveryControl) {
    Add(168, 120);
    Keep(0, {Roll(144, "12ft")});
    OpenCompared();
    Focus(Control(Controls::orderCarpet));
    std::vector<std::string> visited;
    for (int step = 0; step < 30; ++step) {
        visited.push_back(FromQt(form->focusWidget()->objectName()));
        Press(*form, Qt::Key_Tab);
    }
    const std::vector<std::string> expected{
        Controls::orderCarpet,        Controls::orderRolls,        Controls::removeRoll,
        Controls::orderDownLay,       Controls::orderCrossLay,     Controls::orderSelvage,
        Controls::orderStep,          Controls::orderTrimAlong,    Controls::orderTrimAcross,
        Controls::orderParting,       Controls::orderShortestPart, Controls::orderJoinRooms,
        Controls::orderPatternAcross, Controls::orderPatternAlong, Controls::orderHalfDrop,
        Controls::orderPatternDrift,  Controls::orderSeconds,      Controls::comparison,
        Controls::rollView,           Controls::rollList,          Controls::compare,
        Controls::printOrder,         Controls::saveOrderAs,       Controls::leaveOrder,
        Controls::orderCarpet};
    visited.resize(expected.size());
    EXPECT_EQ(visited, expected);
}

} // namespace
} // namespace tarn
