// The room entry screen: rooms pasted from the clipboard of a spreadsheet.

#include "screens/rooms/RoomScreenTesting.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QTableView>

#include <gmock/gmock.h>

namespace tarn {
namespace {

using namespace tarn::testing;
using ::testing::HasSubstr;
using ::testing::StartsWith;

struct PastedRooms : RoomScreenTest {
    QTableView& Table() const { return Find<QTableView>(*form, Controls::roomTable); }
    QAction& Item(const char* name) const {
        return *form->findChild<QAction*>(QString::fromLatin1(name));
    }
    static void Copy(const char* text) {
        QApplication::clipboard()->setText(QString::fromUtf8(text));
    }
    /// Ctrl+V in the table of the rooms.
    void PasteIntoTable(const char* text) const {
        Copy(text);
        Focus(Table());
        Press(*form, Qt::Key_V, Qt::ControlModifier);
    }
    void ExpectNothingPasted(const std::string& reason) {
        ASSERT_EQ(boxes.Messages.size(), 1U);
        EXPECT_EQ(boxes.Messages[0], "The rooms could not be pasted: nothing was changed.");
        EXPECT_EQ(boxes.Informative[0], reason);
    }
};

constexpr const char* TwoRooms = "150\t12'0\"\tC2\tW1\t101\tHall, upper\n9\t8\tT4\t\t\t\n";

TEST_F(PastedRooms, StandBehindTheOthers) {
    AddRooms(2);
    Open(1366, 768);
    PasteIntoTable(TwoRooms);
    EXPECT_TRUE(boxes.Messages.empty());
    ASSERT_EQ(open.Now.Rooms.size(), 4U);
    EXPECT_EQ(open.Now.Rooms[1], NumberedRoom(1));
    EXPECT_EQ(open.Now.Rooms[2], (Room{150, 144, 1, 1, "101", "Hall, upper"}));
    EXPECT_EQ(open.Now.Rooms[3], (Room{9, 8, 11, 0, "", ""}));
    EXPECT_EQ(RoomScreenTest::Item(), "3") << "the first of them is shown";
    EXPECT_EQ(Texts(), (Lines{"12", "6", "12", "", "W1", "101", "Hall, upper"}));
    EXPECT_TRUE(Table().hasFocus());
    EXPECT_EQ(Table().model()->rowCount(), 5);
    EXPECT_TRUE(open.HasUnsavedRooms());
}

TEST_F(PastedRooms, AreOneStepOfUndo) {
    AddRooms(1);
    Open(1366, 768);
    PasteIntoTable(TwoRooms);
    EXPECT_EQ(FromQt(Item(Controls::undoRooms).text()), "&Undo paste 2 rooms");
    Press(*form, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(open.Now.Rooms.size(), 1U);
    EXPECT_FALSE(open.HasUnsavedRooms());
    EXPECT_EQ(FromQt(Item(Controls::redoRooms).text()), "&Redo paste 2 rooms");
    Press(*form, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(open.Now.Rooms.size(), 3U);
}

TEST_F(PastedRooms, ArePastedByTheEditMenuFromTheForm) {
    Open();
    Copy("1\t2\tC1\n");
    Focus(Text(0));
    auto& menu = Find<QMenu>(*form, Controls::editMenu);
    menu.popup(form->mapToGlobal(QPoint(5, 5)));
    QTest::keyClick(&menu, Qt::Key_P);
    EXPECT_EQ(open.Now.Rooms, (std::vector<Room>{{1, 2, 0, 0, "", ""}}));
    EXPECT_EQ(FromQt(Item(Controls::undoRooms).text()), "&Undo paste 1 room");
    EXPECT_EQ(RoomScreenTest::Item(), "1");
}

TEST_F(PastedRooms, ArePastedByTheMenuOfTheList) {
    Open(1366, 768);
    Copy("1\t2\tC1\n");
    for (const auto reason : {QContextMenuEvent::Mouse, QContextMenuEvent::Keyboard}) {
        QWidget& target = reason == QContextMenuEvent::Mouse ? *Table().viewport() : Table();
        QContextMenuEvent event(reason, QPoint(5, 5), target.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&target, &event);
        QWidget* menu = QApplication::activePopupWidget();
        ASSERT_NE(menu, nullptr);
        QTest::keyClick(menu, Qt::Key_P);
    }
    EXPECT_EQ(open.Now.Rooms.size(), 2U);
}

TEST_F(PastedRooms, CountInTheUnitsInForce) {
    open.Shown = Units::Metric;
    Open(1366, 768);
    PasteIntoTable("Room\tWidth (m)\tLength\tCovering\n7\t3.45\t420\tC1\n");
    EXPECT_EQ(open.Now.Rooms, (std::vector<Room>{{345, 420, 0, 0, "7", ""}}));
    EXPECT_EQ(open.Now.EnteredIn, Units::Metric);
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(PastedRooms, AreAllRefusedForOneMistakeWhichIsTold) {
    AddRooms(2);
    Open(1366, 768);
    PasteIntoTable("1\t2\tC1\n3,45\t2\tC1\n1\t2\tC9\n");
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_EQ(boxes.Messages[0], "The rooms could not be pasted: nothing was changed.");
    EXPECT_THAT(boxes.Informative[0],
                StartsWith("line 2: width \"3,45\" has a decimal comma: write 3.45"));
    EXPECT_THAT(boxes.Informative[0], HasSubstr("\r\nline 3: covering \"C9\" is not a covering"));
    EXPECT_EQ(open.Now.Rooms.size(), 2U);
    EXPECT_FALSE(open.HasUnsavedRooms());
    EXPECT_FALSE(Item(Controls::undoRooms).isEnabled());
    EXPECT_TRUE(Table().hasFocus());
}

TEST_F(PastedRooms, TellAFewMistakesOfMany) {
    Open(1366, 768);
    std::string text;
    for (int line = 0; line < 30; ++line) {
        text += "-1\t2\tC1\n";
    }
    PasteIntoTable(text.c_str());
    ASSERT_EQ(boxes.Informative.size(), 1U);
    EXPECT_THAT(boxes.Informative[0], HasSubstr("line 5: width \"-1\" is negative\r\nand 25 more"));
}

TEST_F(PastedRooms, NeedAText) {
    Open(1366, 768);
    PasteIntoTable("");
    ExpectNothingPasted("line 1: there is no text to paste");
}

TEST_F(PastedRooms, NeedARoomBelowTheHeadings) {
    Open(1366, 768);
    PasteIntoTable("width\tlength\tcovering\n");
    ExpectNothingPasted("line 1: there is no room below the headings");
}

TEST_F(PastedRooms, FitIntoTheProjectOrAreRefused) {
    AddRooms(500);
    Open(1366, 768);
    PasteIntoTable("1\t2\tC1\n3\t4\tC1\n");
    ExpectNothingPasted("line 2: The project is full: it can hold 501 rooms.");
    EXPECT_EQ(open.Now.Rooms.size(), 500U);
    PasteIntoTable("1\t2\tC1\n");
    EXPECT_EQ(open.Now.Rooms.size(), 501U);
    EXPECT_EQ(boxes.Messages.size(), 1U);
}

TEST_F(PastedRooms, TellWhichSizesAreRounded) {
    Open(1366, 768);
    PasteIntoTable("Width (ft)\tLength (ft)\tCovering\n12.33\t12\tC1\n");
    EXPECT_EQ(open.Now.Rooms, (std::vector<Room>{{148, 144, 0, 0, "", ""}}));
    EXPECT_EQ(boxes.Messages, Lines{"The rooms are pasted. Some sizes are rounded:"});
    EXPECT_EQ(boxes.Informative, Lines{"line 2: width \"12.33\" is kept as 12'4\""});
}

TEST_F(PastedRooms, LetTheRoomInTheFormBeStoredFirst) {
    AddRooms(1);
    Open(1366, 768);
    TypeSizes({"5", "", "6", ""});
    PasteIntoTable("1\t2\tC1\n");
    ASSERT_EQ(open.Now.Rooms.size(), 3U);
    EXPECT_EQ(open.Now.Rooms[1].Width, 60);
    EXPECT_EQ(open.Now.Rooms[2].Width, 1);
    Press(*form, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(open.Now.Rooms.size(), 2U) << "a step of its own";
}

TEST_F(PastedRooms, WaitForARefusedSize) {
    AddRooms(1);
    Open(1366, 768);
    Paste(0, "3,45");
    PasteIntoTable("1\t2\tC1\n");
    EXPECT_EQ(boxes.Messages, Lines{WrongSize});
    EXPECT_EQ(open.Now.Rooms.size(), 1U);
    EXPECT_TRUE(HasFocus(Controls::roomWidthMajor));
}

TEST_F(PastedRooms, LeaveAHalfTypedNewRoomAsItIs) {
    AddRooms(1);
    Open(1366, 768);
    TypeInto(6, "later");
    PasteIntoTable("1\t2\tC1\n");
    ASSERT_EQ(open.Now.Rooms.size(), 2U);
    ASSERT_TRUE(open.Typed.New);
    EXPECT_EQ(open.Typed.New->Remark, "later");
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(Texts()[6], "later");
}

TEST_F(PastedRooms, DoNotTakeThePasteIntoAField) {
    AddRooms(1);
    Open(1366, 768);
    Paste(6, "1\t2\tC1");
    EXPECT_EQ(Texts()[6], "1 2 C1");
    EXPECT_EQ(open.Now.Rooms.size(), 1U);
}

} // namespace
} // namespace tarn
