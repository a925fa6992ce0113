// The room entry screen: the list of the rooms and its totals.

#include "base/RunTimeError.h"
#include "screens/Theme.h"
#include "screens/rooms/RoomListFrame.h"
#include "screens/rooms/RoomScreenTesting.h"
#include "screens/rooms/RoomTable.h"
#include "screens/rooms/RoomTotals.h"

#include <QAccessible>
#include <QHeaderView>
#include <QImage>
#include <QScrollBar>
#include <QSignalSpy>

namespace tarn {
namespace {

using namespace tarn::testing;
using Rows = std::vector<Lines>;

struct RoomTables : RoomScreenTest {
    QTableView& Table() const { return Find<QTableView>(*form, Controls::roomTable); }
    QTableView& Totals() const { return Find<QTableView>(*form, Controls::roomTotals); }
    QWidget& List() const { return Find(*form, Controls::roomList); }
    QPushButton& Switch() const { return Find<QPushButton>(*form, Controls::showRoomList); }

    static Lines Cells(const QTableView& table, int row) {
        Lines cells;
        for (int column = 0; column < table.model()->columnCount(); ++column) {
            cells.push_back(FromQt(table.model()->index(row, column).data().toString()));
        }
        return cells;
    }
    static Rows AllCells(const QTableView& table) {
        Rows rows;
        for (int row = 0; row < table.model()->rowCount(); ++row) {
            rows.push_back(Cells(table, row));
        }
        return rows;
    }
    /// The selected rows.
    std::vector<int> Selected() const {
        std::vector<int> rows;
        for (const QModelIndex& index : Table().selectionModel()->selectedRows()) {
            rows.push_back(index.row());
        }
        return rows;
    }
    void ClickRow(int row, int column = 6) const {
        Table().scrollTo(Table().model()->index(row, column));
        const QRect cell = Table().visualRect(Table().model()->index(row, column));
        ASSERT_TRUE(Table().viewport()->rect().contains(cell.center())) << row;
        QTest::mouseClick(Table().viewport(), Qt::LeftButton, {}, cell.center());
    }
    bool IsFormShown() const { return Find(*form, Controls::roomPanel).isVisible(); }
    void ExpectAt(std::size_t room) const {
        EXPECT_EQ(Item(), std::to_string(room + 1));
        EXPECT_EQ(Selected(), std::vector<int>{static_cast<int>(room)});
    }
};

TEST_F(RoomTables, ListTheRoomsAndTheNewOne) {
    AddRooms(2);
    Open(1920, 1080);
    EXPECT_EQ(AllCells(Table()),
              (Rows{{"1", "10'0\"", "12'0\"", "C1", "", "N0", "remark 0", "13.33"},
                    {"2", "10'1\"", "12'1\"", "C2", "W1", "N1", "remark 1", "13.54"},
                    {"3", "", "", "", "", "", "New room", ""}}));
    Lines heads;
    for (int column = 0; column < Table().model()->columnCount(); ++column) {
        heads.push_back(FromQt(Table().model()->headerData(column, Qt::Horizontal).toString()));
    }
    EXPECT_EQ(heads,
              (Lines{"ITEM", "WIDTH", "LENGTH", "TYPE", "BASE", "ROOM", "REMARK", "SQ. YD."}));
    EXPECT_EQ(AllCells(Totals()), (Rows{{"CARPET-1", "1", "13.33", "120.00"},
                                        {"CARPET-2", "1", "13.54", "121.84"},
                                        {"ALL", "2", "26.87", "241.84"}}));
    ExpectAt(2);
}

TEST_F(RoomTables, ListSizesInMetric) {
    AddRooms(1);
    open.Shown = Units::Metric;
    Open(1920, 1080);
    EXPECT_EQ(Cells(Table(), 0), (Lines{"1", "120", "144", "C1", "", "N0", "remark 0", "1.73"}));
    EXPECT_EQ(AllCells(Totals()), (Rows{{"CARPET-1", "1", "1.73"}}));
}

TEST_F(RoomTables, MarkTheRoomOnTheScreen) {
    AddRooms(3);
    Open(1366, 768);
    ExpectAt(3);
    ClickOn(Controls::previousRoom);
    ExpectAt(2);
    ClickOn(Controls::previousRoom);
    ClickOn(Controls::nextRoom);
    ExpectAt(2);
    boxes.YesNo = {true};
    ClickOn(Controls::deleteRoom);
    ExpectAt(2);
    EXPECT_EQ(Table().model()->rowCount(), 3);
    TypeSizes({"1", "", "2", ""});
    ClickOn(Controls::nextRoom);
    ExpectAt(3);
    EXPECT_EQ(Table().model()->rowCount(), 4);
    EXPECT_TRUE(Table().visualRect(Table().model()->index(3, 0)).isValid());
}

TEST_F(RoomTables, GoToTheRoomThatIsClicked) {
    AddRooms(3);
    Open(1366, 768);
    ClickRow(0);
    ExpectAt(0);
    EXPECT_EQ(Texts()[6], "remark 0");
    EXPECT_TRUE(HasFocus(Controls::roomWidthMajor));
    TypeInto(6, "!");
    ClickRow(1);
    EXPECT_EQ(open.Now.Rooms.at(0).Remark, "remark 0!") << "the one on the screen is stored";
    ExpectAt(1);
    ClickRow(3);
    ExpectAt(3);
    EXPECT_EQ(Texts(), Lines(7)) << "the new room";
    TypeSizes({"1", "", "2", ""});
    ClickRow(0);
    ExpectAt(0);
    EXPECT_EQ(open.Now.Rooms.size(), 4U);
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(RoomTables, StayAtTheRoomThatIsClickedAgain) {
    AddRooms(2);
    Open(1366, 768);
    ClickRow(1);
    Paste(0, "12'6");
    ClickRow(1);
    ExpectAt(1);
    EXPECT_EQ(Texts()[0], "12'6") << "nothing is left, and so nothing stored";
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_TRUE(HasFocus(Controls::roomWidthMajor));
}

TEST_F(RoomTables, StayWhileASizeIsRefused) {
    AddRooms(3);
    Open(1366, 768);
    ClickRow(1);
    Paste(2, "3,45");
    ClickRow(0);
    EXPECT_EQ(boxes.Messages, Lines{WrongSize});
    ExpectAt(1);
    EXPECT_EQ(Table().currentIndex().row(), 1) << "the frame of the keys is back";
    EXPECT_TRUE(HasFocus(Controls::roomLengthMajor));
    EXPECT_EQ(Texts()[2], "3,45");
    EXPECT_EQ(open.Now.Rooms, open.Saved.Rooms);
}

TEST_F(RoomTables, StayWithANewRoomOfOneSize) {
    AddRooms(2);
    Open(1366, 768);
    TypeSizes({"12"});
    ClickRow(0);
    EXPECT_EQ(boxes.Messages, Lines{WrongSize});
    ExpectAt(2);
    EXPECT_EQ(Texts()[0], "12");
}

TEST_F(RoomTables, StayWithASizeThatIsTooLarge) {
    AddRooms(2);
    Open(1366, 768);
    ClickRow(0);
    Paste(0, "2731");
    ClickRow(1);
    EXPECT_EQ(boxes.Messages.size(), 1U);
    ExpectAt(0);
    EXPECT_EQ(Table().currentIndex().row(), 0);
    EXPECT_TRUE(HasFocus(Controls::roomWidthMajor));
}

TEST_F(RoomTables, LeaveANewRoomWithoutSizesInItsFields) {
    AddRooms(2);
    Open(1366, 768);
    TypeInto(6, "hall");
    ClickRow(0);
    ExpectAt(0);
    EXPECT_EQ(Cells(Table(), 2)[6], "New room, half typed");
    ClickRow(2);
    EXPECT_EQ(Texts()[6], "hall");
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(RoomTables, GoByEnterAndF2ButNotByTheArrows) {
    AddRooms(4);
    Open(1366, 768);
    ClickRow(1);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_F2}) {
        Press(*form, Qt::Key_F6);
        ASSERT_TRUE(Table().hasFocus());
        Press(*form, Qt::Key_Home, Qt::ControlModifier);
        Press(*form, Qt::Key_Down);
        Press(*form, Qt::Key_Down);
        ExpectAt(1);
        EXPECT_EQ(Table().currentIndex().row(), 2);
        Press(*form, key);
        ExpectAt(2);
        EXPECT_TRUE(HasFocus(Controls::roomWidthMajor));
        ClickRow(1);
    }
}

TEST_F(RoomTables, DeleteByTheDeleteKey) {
    AddRooms(4);
    Open(1366, 768);
    Press(*form, Qt::Key_F6);
    Press(*form, Qt::Key_Home, Qt::ControlModifier);
    Press(*form, Qt::Key_Down);
    boxes.YesNo = {false, true};
    Press(*form, Qt::Key_Delete);
    EXPECT_EQ(boxes.Questions, Lines{"Really want to delete current data?"});
    ExpectAt(1);
    EXPECT_EQ(open.Now.Rooms.size(), 4U);
    EXPECT_TRUE(Table().hasFocus());
    Press(*form, Qt::Key_Delete);
    EXPECT_EQ(open.Now.Rooms.size(), 3U);
    EXPECT_EQ(open.Now.Rooms.at(1).Number, "N2");
    ExpectAt(1);
    EXPECT_EQ(Texts()[5], "N2");
    EXPECT_TRUE(Table().hasFocus()) << "so that the next one can be deleted";
}

TEST_F(RoomTables, DeleteNoRoomThatIsNotThere) {
    AddRooms(1);
    Open(1366, 768);
    Press(*form, Qt::Key_F6);
    Press(*form, Qt::Key_Delete);
    EXPECT_TRUE(boxes.Questions.empty());
    TypeInto(6, "hall");
    Press(*form, Qt::Key_F6);
    boxes.YesNo = {true};
    Press(*form, Qt::Key_Delete);
    EXPECT_EQ(Texts(), Lines(7)) << "what is typed of the new room goes";
    EXPECT_EQ(open.Now.Rooms.size(), 1U);
}

TEST_F(RoomTables, DeleteNothingWhileASizeIsRefused) {
    AddRooms(3);
    Open(1366, 768);
    ClickRow(1);
    Paste(0, "12'6");
    Press(*form, Qt::Key_F6);
    Press(*form, Qt::Key_Up);
    Press(*form, Qt::Key_Delete);
    EXPECT_TRUE(boxes.Questions.empty());
    EXPECT_EQ(boxes.Messages, Lines{WrongSize});
    ExpectAt(1);
}

TEST_F(RoomTables, ShowWhatIsTypedAsItWouldBeStored) {
    AddRooms(1);
    open.Now.Rooms[0].Covering = 8;
    open.Saved = open.Now;
    Open(1366, 768);
    EXPECT_EQ(AllCells(Totals()), (Rows{{"TILE-1", "1", "13.33", "120.00"}}));
    TypeSizes({"10", "", "9", ""});
    EXPECT_EQ(Cells(Table(), 1), (Lines{"2", "10'0\"", "9'0\"", "C1", "", "", "", "10.00"}));
    EXPECT_EQ(AllCells(Totals()), (Rows{{"CARPET-1", "1", "10.00", "90.00"},
                                        {"TILE-1", "1", "13.33", "120.00"},
                                        {"ALL", "2", "23.33", "210.00"}}));
    EXPECT_EQ(open.Now.Rooms.size(), 1U) << "it is not stored yet";
    Paste(2, "9'6");
    EXPECT_EQ(Cells(Table(), 1)[6], "New room, half typed");
    EXPECT_EQ(AllCells(Totals()), (Rows{{"TILE-1", "1", "13.33", "120.00"}}));
    Paste(2, "9");
    ClickRow(0);
    Focus(Covering());
    Type(Covering(), "TILE-3");
    EXPECT_EQ(AllCells(Totals())[1], (Lines{"TILE-3", "1", "13.33", "120.00"}));
    EXPECT_EQ(Cells(Table(), 0)[3], "T3");
}

TEST_F(RoomTables, RebuildNothingWhileTyping) {
    AddRooms(501);
    Open(1920, 1080);
    ClickRow(250);
    ExpectAt(250);
    const QAbstractItemModel& model = *Table().model();
    EXPECT_EQ(model.rowCount(), 502);
    const QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    const QSignalSpy inserts(&model, &QAbstractItemModel::rowsInserted);
    QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    TypeInto(6, "!");
    EXPECT_EQ(resets.count() + inserts.count(), 0);
    ASSERT_FALSE(changes.isEmpty());
    for (const auto& change : changes) {
        EXPECT_EQ(change.at(0).toModelIndex().row(), 250);
        EXPECT_EQ(change.at(1).toModelIndex().row(), 250);
    }
    EXPECT_EQ(Cells(Table(), 250)[6], "remark 250!");
    for (const QObject* child : Table().viewport()->children()) {
        EXPECT_FALSE(child->isWidgetType()) << "a row is no widget";
    }
}

TEST_F(RoomTables, SayWhatTheirCellsAre) {
    AddRooms(2);
    Open(1920, 1080);
    ClickRow(0);
    QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(&Table());
    ASSERT_NE(seen, nullptr);
    EXPECT_EQ(seen->role(), QAccessible::Table);
    EXPECT_EQ(seen->text(QAccessible::Name), QStringLiteral("ROOMS"));
    QAccessibleTableInterface* table = seen->tableInterface();
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->columnDescription(1), QStringLiteral("WIDTH"));
    EXPECT_EQ(table->cellAt(1, 1)->text(QAccessible::Name), QStringLiteral("WIDTH 10'1\""));
    EXPECT_EQ(table->cellAt(0, 4)->text(QAccessible::Name), QStringLiteral("BASE none"));
    EXPECT_TRUE(table->isRowSelected(0));
    EXPECT_TRUE(table->cellAt(0, 1)->state().selected);
    EXPECT_FALSE(table->cellAt(1, 1)->state().selected);
    const QAccessibleInterface* totals = QAccessible::queryAccessibleInterface(&Totals());
    EXPECT_EQ(totals->text(QAccessible::Name), QStringLiteral("TOTALS BY COVERING"));
}

TEST_F(RoomTables, ShowALongRemarkAsItIsWrittenInATip) {
    AddRooms(1);
    open.Now.Rooms[0].Remark = "<b>" + std::string(200, 'w');
    Open(1920, 1080);
    const QModelIndex remark = Table().model()->index(0, 6);
    const QString tip = remark.data(Qt::ToolTipRole).toString();
    EXPECT_TRUE(Qt::mightBeRichText(tip)) << "escaped";
    EXPECT_TRUE(tip.contains(QStringLiteral("&lt;b&gt;")));
    EXPECT_EQ(Table().model()->index(0, 5).data(Qt::ToolTipRole).toString(), QStringLiteral("N0"));
}

TEST_F(RoomTables, StandToTheRightOfTheFormWhereTheyFit) {
    AddRooms(10);
    Open(1920, 1080);
    const QRect frame = Find(*form, Controls::roomPanel).geometry();
    EXPECT_TRUE(List().isVisible());
    EXPECT_GT(List().x(), frame.right());
    EXPECT_EQ(List().y(), frame.y());
    EXPECT_LE(List().geometry().right(), form->width());
    EXPECT_GT(Totals().mapTo(&List(), QPoint()).y(), Table().geometry().bottom());
    EXPECT_FALSE(Switch().isVisible());
}

TEST_F(RoomTables, StandBelowTheFormWhereTheyDoNot) {
    AddRooms(10);
    for (const auto& [width, height] : {std::pair{1100, 768}, std::pair{1366, 768}}) {
        Open(width, height);
        const QWidget& save = Find(*form, Controls::saveRooms);
        EXPECT_TRUE(List().isVisible());
        EXPECT_GT(List().y(), save.mapTo(List().parentWidget(), QPoint()).y() + save.height());
        EXPECT_LT(List().geometry().bottom(), List().parentWidget()->height());
        EXPECT_FALSE(Switch().isVisible());
        form->close();
    }
}

TEST_F(RoomTables, TakeNothingFromTheForm) {
    AddRooms(10);
    Open(1099, 768);
    const QRect frame = Find(*form, Controls::roomPanel).geometry();
    EXPECT_FALSE(List().isVisible());
    EXPECT_TRUE(Switch().isVisible());
    form->resize(1101, form->height());
    EXPECT_TRUE(QTest::qWaitFor([&] { return List().isVisible(); }));
    EXPECT_FALSE(Switch().isVisible());
    EXPECT_EQ(Find(*form, Controls::roomPanel).geometry(), frame.translated(1, 0));
    form->resize(1101, 500);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !List().isVisible(); })) << "there is no room below";
    EXPECT_TRUE(Switch().isVisible());
}

TEST_F(RoomTables, HaveTheShownRoomInSightWheneverTheyAreShown) {
    AddRooms(60);
    Open(1366, 768);
    const auto sees = [this](int row) {
        const QRect cell = Table().visualRect(Table().model()->index(row, 0));
        return !cell.isEmpty() && Table().viewport()->rect().contains(cell);
    };
    EXPECT_TRUE(sees(60)) << "the new room";
    form->hide();
    form->resize(1366, 740);
    form->show();
    EXPECT_TRUE(QTest::qWaitFor([&] { return List().isVisible() && sees(60); }));
    Table().scrollToTop();
    ASSERT_FALSE(sees(60));
    form->setEnabled(false);
    form->hide();
    form->setEnabled(true);
    form->show();
    EXPECT_TRUE(QTest::qWaitFor([&] { return sees(60); })) << "as when another screen was above";
}

TEST_F(RoomTables, ShowTheWholeRowThatTheKeysActOn) {
    AddRooms(10);
    Open(1366, 768);
    Focus(Table());
    const auto hasFrame = [this](int row, int column) {
        const QRect cell = Table().visualRect(Table().model()->index(row, column));
        const QImage image = Table().viewport()->grab().toImage();
        const QPoint middle(cell.center().x(), cell.top() + 1);
        return image.pixelColor(middle * image.devicePixelRatio()) == CurrentColours().Accent;
    };
    const int last = Table().model()->columnCount() - 1;
    Press(*form, Qt::Key_Up);
    Press(*form, Qt::Key_Up);
    const int row = Table().currentIndex().row();
    ASSERT_EQ(row, 8);
    for (const int column : {0, 4, last}) {
        EXPECT_TRUE(hasFrame(row, column)) << column;
        EXPECT_FALSE(hasFrame(row - 1, column)) << column;
    }
    Press(*form, Qt::Key_Up);
    for (const int column : {0, 4, last}) {
        EXPECT_TRUE(hasFrame(row - 1, column)) << column;
        EXPECT_FALSE(hasFrame(row, column)) << column;
    }
}

class TableOnEveryDisplay : public RoomTables,
                            public ::testing::WithParamInterface<std::tuple<int, int, bool>> {};
INSTANTIATE_TEST_SUITE_P(Displays, TableOnEveryDisplay,
                         ::testing::Values(std::tuple{800, 600, false}, std::tuple{800, 600, true},
                                           std::tuple{1100, 768, false},
                                           std::tuple{1366, 768, false},
                                           std::tuple{1366, 768, true},
                                           std::tuple{1920, 1080, false},
                                           std::tuple{1920, 1080, true}));

TEST_P(TableOnEveryDisplay, CanBeReadWhole) {
    const auto [width, height, metric] = GetParam();
    AddRooms(40);
    open.Shown = metric ? Units::Metric : Units::Imperial;
    Open(width, height);
    if (!List().isVisible()) {
        Click(Switch());
    }
    EXPECT_EQ(Table().horizontalScrollBar()->maximum(), 0);
    EXPECT_EQ(Totals().horizontalScrollBar()->maximum(), 0);
    const int line = Table().verticalHeader()->defaultSectionSize();
    EXPECT_GE(Table().viewport()->height(), 3 * line);
    EXPECT_GE(line, Table().fontMetrics().height());
    for (int row = 0; row < 40; ++row) {
        for (int column = 0; column < 8; ++column) {
            const QString text = Table().model()->index(row, column).data().toString();
            EXPECT_LE(Table().fontMetrics().horizontalAdvance(text) + 10,
                      Table().columnWidth(column))
                << FromQt(text);
        }
    }
    const QRect inside = List().parentWidget()->rect();
    EXPECT_TRUE(inside.contains(List().geometry()));
}

TEST_F(RoomTables, TakeTheFormsPlaceBehindAButtonOnASmallDisplay) {
    AddRooms(3);
    Open();
    EXPECT_FALSE(List().isVisible());
    EXPECT_EQ(CaptionOf(Switch()), QStringLiteral("SHOW LIST"));
    const QPoint back = Find(*form, Controls::leaveRooms).mapTo(form.get(), QPoint());
    Click(Switch());
    EXPECT_TRUE(List().isVisible());
    EXPECT_FALSE(IsFormShown());
    EXPECT_TRUE(Table().hasFocus());
    EXPECT_EQ(CaptionOf(Switch()), QStringLiteral("SHOW FORM"));
    EXPECT_EQ(Find(*form, Controls::leaveRooms).mapTo(form.get(), QPoint()).x(), back.x());
    Click(Switch());
    EXPECT_FALSE(List().isVisible());
    EXPECT_TRUE(IsFormShown());
    EXPECT_TRUE(HasFocus(Controls::roomWidthMajor));
    for (const auto& [there, modifier] :
         {std::pair{Qt::Key_H, Qt::AltModifier}, std::pair{Qt::Key_F6, Qt::NoModifier}}) {
        Press(*form, there, modifier);
        EXPECT_TRUE(List().isVisible());
        Press(*form, Qt::Key_Escape);
        EXPECT_TRUE(IsFormShown());
        EXPECT_TRUE(HasFocus(Controls::roomWidthMajor));
    }
}

TEST_F(RoomTables, ShowTheFormOfTheRoomThatIsChosenOnASmallDisplay) {
    AddRooms(3);
    Open();
    Click(Switch());
    ClickRow(1);
    EXPECT_TRUE(IsFormShown());
    EXPECT_FALSE(List().isVisible());
    ExpectAt(1);
    EXPECT_TRUE(HasFocus(Controls::roomWidthMajor));
}

TEST_F(RoomTables, ShowTheFormOfARefusedRoomOnASmallDisplay) {
    AddRooms(3);
    for (const bool saves : {false, true}) {
        Open();
        Paste(0, "12'6");
        Click(Switch());
        boxes.Messages.clear();
        if (saves) {
            ClickOn(Controls::saveRooms);
        } else {
            ClickRow(1);
        }
        EXPECT_EQ(boxes.Messages, Lines{WrongSize});
        EXPECT_TRUE(IsFormShown());
        EXPECT_TRUE(HasFocus(Controls::roomWidthMajor));
        ExpectAt(3);
        form->close();
    }
}

TEST_F(RoomTables, ComeBesideTheFormWhenTheWindowGrows) {
    AddRooms(3);
    Open();
    Click(Switch());
    form->resize(1366, 752);
    EXPECT_TRUE(QTest::qWaitFor([&] { return IsFormShown(); }));
    EXPECT_TRUE(List().isVisible());
    EXPECT_FALSE(Switch().isVisible());
    form->resize(800, 584);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !List().isVisible(); }));
    EXPECT_TRUE(IsFormShown());
    EXPECT_EQ(CaptionOf(Switch()), QStringLiteral("SHOW LIST"));
}

TEST_F(RoomTables, AreReachedByTheKeysAlone) {
    AddRooms(3);
    Open(1366, 768);
    Press(*form, Qt::Key_F6);
    EXPECT_TRUE(Table().hasFocus());
    Press(*form, Qt::Key_F6);
    EXPECT_TRUE(HasFocus(Controls::roomWidthMajor));
    Press(*form, Qt::Key_F6);
    Press(*form, Qt::Key_Escape);
    EXPECT_TRUE(HasFocus(Controls::roomWidthMajor));
    Press(*form, Qt::Key_Escape);
    EXPECT_TRUE(HasFocus(Controls::roomWidthMajor)) << "there is nothing to close";
    Focus(Find(*form, Controls::saveRooms));
    for (const char* name : {Controls::roomTable, Controls::roomTotals, Controls::roomWidthMajor}) {
        Press(*form, Qt::Key_Tab);
        EXPECT_TRUE(HasFocus(name)) << name;
    }
}

TEST_F(RoomTables, MakeWayForTheReport) {
    AddRooms(3);
    for (const auto& [width, height] : {std::pair{800, 600}, std::pair{1366, 768}}) {
        Open(width, height);
        ClickOn(Controls::showReport);
        EXPECT_FALSE(List().isVisible());
        Press(*form, Qt::Key_F6);
        EXPECT_FALSE(List().isVisible());
        ClickOn(Controls::closeReport);
        EXPECT_EQ(List().isVisible(), width > 1100);
        EXPECT_TRUE(IsFormShown());
        form->close();
    }
}

TEST(RoomListPlaces, AreWhereThereIsRoom) {
    OpenProject project;
    const RoomListFrame list(project);
    const QRect panel(586, 368, 748, 297);
    const int under = 706;
    const auto right = list.PlaceBeside({1920, 1030}, panel, under);
    ASSERT_TRUE(right);
    EXPECT_EQ(right->Area.topLeft(), QPoint(1342, 368));
    EXPECT_FALSE(right->TotalsBeside);
    const auto far = list.PlaceBeside({4000, 1030}, panel, under);
    EXPECT_LT(far->Area.width(), 1300) << "no line is longer than one reads";
    const auto below = list.PlaceBeside({1366, 900}, panel.translated(-277, 0), under);
    ASSERT_TRUE(below);
    EXPECT_EQ(below->Area.top(), under + 8);
    EXPECT_LE(below->Area.bottom(), 900 - 8);
    EXPECT_NEAR(below->Area.center().x(), 683, 1);
    EXPECT_TRUE(below->TotalsBeside) << "it is low";
    const auto high = list.PlaceBeside({1366, 1200}, panel.translated(-277, 0), under);
    EXPECT_FALSE(high->TotalsBeside);
    EXPECT_EQ(list.PlaceBeside({1366, 760}, panel.translated(-277, 0), under), std::nullopt);
    EXPECT_EQ(list.PlaceBeside({500, 1200}, QRect(0, 300, 490, 297), under), std::nullopt);
}

} // namespace
} // namespace tarn
