// Where boxes stand, so that the field that they are about is seen.

#include "screens/BoxPlace.h"
#include "screens/ControlNames.h"
#include "screens/MessageBoxes.h"
#include "screens/ScreenTesting.h"
#include "screens/rooms/RoomScreen.h"

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>
#include <QTableView>
#include <QTimer>

namespace tarn {
namespace {

using namespace tarn::testing;

constexpr QRect Display(0, 0, 800, 600);

QRect PlacedAt(const QRect& box, const QRect& field) {
    return {BoxPlace(box, Display, field), box.size()};
}

//    +--------------------+
//    |                    |
//    |    +--box--+       |
//    |    | [fld] |       |
//    |    +-------+       |
//    |                    |
//    +--------------------+
TEST(BoxPlace, StaysWhereItCoversNothing) {
    const QRect box(250, 200, 300, 200);
    for (const QRect& field : {QRect(), QRect(100, 250, 150, 20), QRect(300, 400, 50, 20),
                               QRect(300, 180, 50, 20), QRect(550, 300, 10, 10)}) {
        EXPECT_EQ(PlacedAt(box, field), box);
    }
}

TEST(BoxPlace, GoesTheShortestWayBesideTheField) {
    const QRect box(250, 200, 300, 200);
    EXPECT_EQ(PlacedAt(box, QRect(380, 210, 40, 20)).topLeft(), QPoint(250, 238)) << "below";
    EXPECT_EQ(PlacedAt(box, QRect(380, 370, 40, 20)).topLeft(), QPoint(250, 162)) << "above";
    const QRect high(250, 20, 300, 560); // neither below nor above a field is room for it
    EXPECT_EQ(PlacedAt(high, QRect(260, 290, 20, 20)).topLeft(), QPoint(288, 20)) << "right";
    EXPECT_EQ(PlacedAt(high, QRect(520, 290, 20, 20)).topLeft(), QPoint(212, 20)) << "left";
}

TEST(BoxPlace, CoversNoFieldWhereverItIsAndStaysOnTheScreen) {
    for (const QSize& size : {QSize(300, 150), QSize(420, 240), QSize(700, 250)}) {
        QRect box({}, size);
        box.moveCenter(Display.center());
        for (int x = 0; x + 80 <= 800; x += 16) {
            for (int y = 0; y + 24 <= 600; y += 8) {
                const QRect field(x, y, 80, 24);
                const QRect placed = PlacedAt(box, field);
                ASSERT_FALSE(placed.intersects(field)) << x << " " << y;
                ASSERT_TRUE(Display.contains(placed)) << x << " " << y;
            }
        }
    }
}

TEST(BoxPlace, CoversTheLeastWhereThereIsNoRoom) {
    const QRect placed = PlacedAt(QRect(100, 50, 600, 500), QRect(150, 280, 500, 40));
    EXPECT_TRUE(Display.contains(placed));
    EXPECT_EQ(placed.topLeft(), QPoint(200, 50)) << "50 pixels of the field are seen";
}

/// The box that stands, in a window of that size, while the field has the focus.
struct PlacedBoxes : ScreenTest {
    PlacedBoxes() { open.Now.Name = "Mill house"; }

    /// Look at the box that `show` opens, and close it.
    static void WithBox(const std::function<void(QDialog&)>& look,
                        const std::function<void()>& show) {
        QTimer timer;
        timer.setInterval(1);
        bool seen = false;
        QObject::connect(&timer, &QTimer::timeout, [&] {
            auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (box != nullptr && box->isVisible() && QApplication::activeWindow() == box) {
                timer.stop();
                seen = true;
                look(*box);
                box->close();
            }
        });
        timer.start();
        show();
        EXPECT_TRUE(seen);
    }
    /// The focus goes to the field, from a box that has closed.
    static void GoTo(QWidget& field) {
        field.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(field.window()));
        Focus(field);
    }
    static void ExpectClear(const QDialog& box, const QWidget& field, const QRect& part) {
        const QRect seen(field.mapToGlobal(part.topLeft()), part.size());
        EXPECT_FALSE(box.frameGeometry().intersects(seen)) << FromQt(field.objectName());
        const QRect display = box.screen()->availableGeometry();
        if (field.window()->width() <= display.width()) {
            EXPECT_TRUE(display.contains(box.frameGeometry()));
        }
    }
};

TEST_F(PlacedBoxes, LeaveEveryFieldOfTheRoomsToBeSeen) {
    for (const QSize& size : {QSize(800, 600), QSize(1366, 768), QSize(1920, 1080)}) {
        SCOPED_TRACE(size.width());
        RoomScreen screen(session);
        ShowOnDisplay(screen, size.width(), size.height());
        MessageBoxes real(&screen);
        Dialogs& box = real;
        for (const char* name :
             {Controls::roomWidthMajor, Controls::roomWidthMinor, Controls::roomLengthMajor,
              Controls::roomLengthMinor, Controls::covering, Controls::wallBase,
              Controls::roomNumber, Controls::remark}) {
            auto& field = Find(screen, name);
            GoTo(field);
            const auto look = [&](QDialog& shown) { ExpectClear(shown, field, field.rect()); };
            WithBox(look, [&] {
                box.Message("The Size of room is not correct. Data is not changed",
                            "Room width:\r\n12'6 is not taken: type it like 6.5, 6 1/2\" or "
                            "12'6\"");
            });
            WithBox(look, [&] { box.AskYesNo("Really want to delete current data?"); });
            WithBox(look, [&] { box.Choose("It is gone.", {"Save it as a new project"}); });
            WithBox(look, [&] { box.Input("Enter the new name you want to change to:", "it"); });
        }
    }
}

TEST_F(PlacedBoxes, LeaveTheNoteOnASizeToBeSeen) {
    for (const QSize& size : {QSize(800, 600), QSize(1366, 768), QSize(1920, 1080)}) {
        SCOPED_TRACE(size.width());
        RoomScreen screen(session);
        ShowOnDisplay(screen, size.width(), size.height());
        MessageBoxes real(&screen);
        Dialogs& box = real;
        auto& note = Find<QLabel>(screen, Controls::roomNote);
        for (const char* name : {Controls::roomWidthMajor, Controls::roomLengthMinor}) {
            auto& field = Find<QLineEdit>(screen, name);
            GoTo(field);
            Type(field, "3,45");
            ASSERT_FALSE(note.text().isEmpty());
            WithBox(
                [&](QDialog& shown) {
                    ExpectClear(shown, field, field.rect());
                    ExpectClear(shown, note, note.rect());
                },
                [&] {
                    box.Message("The Size of room is not correct. Data is not changed",
                                "Room width:\r\n3,45 is not taken: type 3.45");
                });
            field.clear();
        }
    }
}

TEST_F(PlacedBoxes, LeaveTheWholeRowOfATableToBeSeen) {
    for (int room = 0; room < 30; ++room) {
        open.Now.Rooms.push_back({120, 144, 0, 0, "101", "the longest remark that there is"});
    }
    RoomScreen screen(session);
    ShowOnDisplay(screen, 1366, 768);
    MessageBoxes real(&screen);
    auto& table = Find<QTableView>(screen, Controls::roomTable);
    GoTo(table);
    const int most = table.viewport()->height() / table.rowHeight(0);
    for (int row = 30 - most + 1; row <= 30; ++row) {
        table.setCurrentIndex(table.model()->index(row, 0));
        QRect entry = table.visualRect(table.currentIndex());
        entry.setRight(table.viewport()->width() - 1);
        WithBox([&](QDialog& shown) { ExpectClear(shown, *table.viewport(), entry); },
                [&] { real.AskYesNo("Really want to delete current data?"); });
    }
}

TEST_F(PlacedBoxes, LeaveTheChosenEntryOfAListToBeSeen) {
    QListWidget list;
    for (int i = 0; i < 40; ++i) {
        list.addItem(QString::number(i));
    }
    ShowOnDisplay(list, 800, 600);
    MessageBoxes real(&list);
    Focus(list);
    for (const int row : {0, 10, 12, 15, 20, 25}) {
        list.setCurrentRow(row);
        const QRect entry = list.visualItemRect(list.currentItem());
        ASSERT_TRUE(list.viewport()->rect().contains(entry));
        // An entry as wide as its list is.
        WithBox([&](QDialog& shown) { ExpectClear(shown, *list.viewport(), entry); },
                [&] { real.AskYesNo("Are you sure to delete this project?"); });
    }
}

TEST_F(PlacedBoxes, StandInTheMiddleWhenTheyAreAboutNoField) {
    QWidget window;
    auto* field = new QLineEdit(&window);
    field->setGeometry(350, 250, 100, 30);
    field->setEnabled(false);
    ShowOnDisplay(window, 800, 600);
    MessageBoxes real(&window);
    Dialogs& box = real;
    WithBox(
        [&](QDialog& shown) {
            const QPoint apart = shown.frameGeometry().center() - window.frameGeometry().center();
            EXPECT_LE(apart.manhattanLength(), 40);
        },
        [&] { box.Message("Data is saved"); });
}

TEST(FieldOnScreen, IsThePartThatIsSeen) {
    QWidget window;
    auto* half = new QLineEdit(&window);
    half->setGeometry(700, 100, 300, 30);
    auto* gone = new QLineEdit(&window);
    gone->setGeometry(1000, 200, 100, 30);
    auto* other = new QWidget(&window);
    other->setFocusPolicy(Qt::StrongFocus);
    ShowOnDisplay(window, 800, 600);
    Focus(*half);
    EXPECT_EQ(FieldOnScreen(window),
              QRect(half->mapToGlobal(QPoint(0, 0)), QSize(window.width() - 700, half->height())));
    Focus(*gone);
    EXPECT_EQ(FieldOnScreen(window), QRect());
    Focus(*other);
    EXPECT_EQ(FieldOnScreen(window), QRect());
}

} // namespace
} // namespace tarn
