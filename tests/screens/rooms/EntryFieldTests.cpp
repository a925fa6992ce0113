// The texts of the room entry screen: what is pasted and dropped, limits, and undo.

#include "project/Report.h"
#include "screens/rooms/RoomScreenTesting.h"

#include <QDropEvent>
#include <QMimeData>

#include <algorithm>

namespace tarn {
namespace {

using namespace tarn::testing;

struct EntryFields : RoomScreenTest {
    /// Drop a text at the beginning of a field.
    void Drop(int index, const std::string& text) const {
        QMimeData data;
        data.setText(ToQt(text));
        QDragEnterEvent enter(QPoint(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&Text(index), &enter);
        QDropEvent event(QPointF(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&Text(index), &event);
    }
    void Undo(int index) const {
        Focus(Text(index));
        Press(*form, Qt::Key_Z, Qt::ControlModifier);
    }
};

const std::string Bath = "\U0001F6C1"; // two halves in a QString

TEST_F(EntryFields, HoldOneLine) {
    Open();
    for (const int field : {5, 6}) {
        Paste(field, "a\nb\tc\r\n\u2028");
        EXPECT_EQ(Text(field).text(), QStringLiteral("a b c"));
        EXPECT_EQ(Text(field).cursorPosition(), 5);
        Text(field).clear();
        Drop(field, "x\u2029y\n");
        EXPECT_EQ(Text(field).text(), QStringLiteral("x y"));
    }
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(EntryFields, KeepWhatMarksAnEncodingElsewhere) {
    Open();
    Paste(6, "\uFEFFhall");
    EXPECT_EQ(FromQt(Text(6).text()), "\uFEFFhall");
}

TEST_F(EntryFields, MakeOneLineOfTheReportEach) {
    Open();
    TypeSizes({"10", "", "12", ""});
    Paste(5, "1\n2");
    Paste(6, "hall\r\nand\u2028stairs\u2029");
    ClickOn(Controls::nextRoom);
    const std::string report = MakeReport(open.Now, open.Shown, "").Text();
    EXPECT_EQ(std::count(report.begin(), report.end(), '\n'), 10);
    EXPECT_EQ(open.Now.Rooms.at(0).Number, "1 2");
    EXPECT_EQ(open.Now.Rooms.at(0).Remark, "hall and stairs");
}

TEST_F(EntryFields, LoseTheLineBreaksBehindABaseBeforeItIsTested) {
    Open();
    Paste(4, "W2L1\r\n\n");
    EXPECT_EQ(Texts()[4], "W2L1");
    Paste(4, "W1\nL1");
    EXPECT_EQ(Texts()[4], "W1 L1");
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(EntryFields, TakeNoControlCharacterAndNoHalfOfAPair) {
    Open();
    for (const int field : {5, 6}) {
        for (const char16_t bad :
             {u'\1', u'\x1B', u'\x7F', u'\x9F', u'\xFFFE', u'\xFFFF', u'\xD83D', u'\xDEC1'}) {
            QApplication::clipboard()->setText(QStringLiteral("a") + QChar(bad) +
                                               QStringLiteral("b"));
            Text(field).clear();
            Focus(Text(field));
            Press(*form, Qt::Key_V, Qt::ControlModifier);
            EXPECT_EQ(Texts()[static_cast<std::size_t>(field)], "ab") << int{bad};
            Text(field).clear();
            QInputMethodEvent typed;
            typed.setCommitString(QStringLiteral("c") + QChar(bad));
            QApplication::sendEvent(&Text(field), &typed);
            EXPECT_EQ(Texts()[static_cast<std::size_t>(field)], "c") << int{bad};
        }
    }
    Paste(6, Bath + "\t" + Bath);
    EXPECT_EQ(Texts()[6], Bath + " " + Bath);
}

TEST_F(EntryFields, LeaveStoredLineBreaksWhereNothingIsTyped) {
    AddRooms(1);
    open.Now.Rooms.at(0).Number = "1\n2\n";
    open.Now.Rooms.at(0).Remark = "hall\tand\r\nstairs\n";
    open.Saved = open.Now;
    Open();
    ClickOn(Controls::previousRoom);
    TypeInto(6, "!");
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(open.Now.Rooms.at(0).Number, "1\n2\n");
    EXPECT_EQ(open.Now.Rooms.at(0).Remark, "hall\tand\r\nstairs\n!");
}

TEST_F(EntryFields, CountCharacters) {
    Open();
    const auto baths = [](int count) {
        std::string text;
        for (; count > 0; --count) {
            text += Bath;
        }
        return text;
    };
    Paste(5, baths(9));
    EXPECT_EQ(Texts()[5], baths(8));
    Paste(5, "1234567" + Bath + "9");
    EXPECT_EQ(Texts()[5], "1234567" + Bath) << "no half of a character";
    Paste(6, baths(300));
    EXPECT_EQ(Texts()[6], baths(255));
}

TEST_F(EntryFields, LetALongStoredTextBecomeShorterOnly) {
    AddRooms(1);
    open.Now.Rooms.at(0).Number = Bath + "234567890123";
    Open();
    ClickOn(Controls::previousRoom);
    TypeInto(5, "x");
    EXPECT_EQ(Texts()[5], Bath + "234567890123");
    Press(*form, Qt::Key_Backspace);
    Press(*form, Qt::Key_Backspace);
    Type(Text(5), "xy");
    EXPECT_EQ(Texts()[5], Bath + "2345678901");
    Undo(5);
    EXPECT_EQ(Texts()[5], Bath + "234567890123") << "but undo may bring it back";
}

TEST_F(EntryFields, UndoAPasteThatWasFitted) {
    Open();
    TypeInto(6, "hall");
    Press(*form, Qt::Key_Left);
    Press(*form, Qt::Key_End);
    QApplication::clipboard()->setText(QStringLiteral("\tand\nstairs\n"));
    Press(*form, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Texts()[6], "hall and stairs");
    Undo(6);
    EXPECT_EQ(Texts()[6], "hall");
    Press(*form, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Texts()[6], "hall and stairs");
}

TEST_F(EntryFields, UndoABaseThatWasCut) {
    Open();
    TypeInto(4, "W1");
    Press(*form, Qt::Key_Return);
    Paste(4, "L1xy");
    EXPECT_EQ(Texts()[4], "L1");
    EXPECT_EQ(boxes.Messages.size(), 2U);
    Undo(4);
    EXPECT_EQ(Texts()[4], "W1");
    EXPECT_EQ(boxes.Messages.size(), 2U) << "what was refused does not come back";
}

TEST_F(EntryFields, UndoTheCapitalsOfABase) {
    Open();
    TypeInto(4, "w2l1");
    Press(*form, Qt::Key_Return);
    EXPECT_EQ(Texts()[4], "W2L1");
    Undo(4);
    EXPECT_EQ(Texts()[4], "w2l1");
    Undo(4);
    EXPECT_EQ(Texts()[4], "");
}

} // namespace
} // namespace tarn
