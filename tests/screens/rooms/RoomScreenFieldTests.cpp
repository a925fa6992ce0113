// The room entry screen: Enter, and what the fields do as they are typed in.

#include "screens/rooms/RoomScreenTesting.h"

#include <QSignalBlocker>
#include <QWheelEvent>

namespace tarn {
namespace {

using namespace tarn::testing;

std::string BaseText(const char* secondExample) {
    return std::string("Sorry, you entered wrong string for base\r\n"
                       "You should enter L or W with 1 or 2 to be calculated\r\n"
                       "Example1: L2W1 - means 2 x Length + 1 x Width\r\n") +
           secondExample + "\r\n";
}
const std::string TypedMessage =
    BaseText("Example2: W21 - means 2 x Width and Length is not calculated.");
const std::string EnteredMessage =
    BaseText("Example2: W2 - means 2 x Width and Length is not calculated.");

using EnterKey = RoomScreenTest;
using SizeFields = RoomScreenTest;
using BaseField = RoomScreenTest;
using TextLimits = RoomScreenTest;
using CoveringBox = RoomScreenTest;

TEST_F(EnterKey, MovesFromFieldToFieldAndPressesTheButtonBehindThem) {
    Open();
    const Lines order{
        Controls::roomWidthMajor,  Controls::roomWidthMinor, Controls::roomLengthMajor,
        Controls::roomLengthMinor, Controls::covering,       Controls::wallBase,
        Controls::roomNumber,      Controls::remark,         Controls::nextRoom};
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        Focus(Text(0));
        for (const std::string& name : order) {
            EXPECT_TRUE(HasFocus(name.c_str())) << name;
            if (name != Controls::nextRoom) {
                Press(*form, key);
            }
        }
    }
    EXPECT_TRUE(open.Now.Rooms.empty());
    Focus(Text(0));
    for (const char* typed : {"12", "6", "14", "0", "", "W1", "7", "hall"}) {
        Type(*QApplication::focusWidget(), typed);
        Press(*form, Qt::Key_Return);
    }
    EXPECT_TRUE(open.Now.Rooms.empty()) << "the last Enter only moves to the button";
    Press(*form, Qt::Key_Return);
    ASSERT_EQ(open.Now.Rooms.size(), 1U);
    EXPECT_EQ(open.Now.Rooms.at(0), (Room{150, 168, 0, 1, "7", "hall"}));
    EXPECT_TRUE(HasFocus(Controls::roomWidthMajor));
}

TEST_F(EnterKey, PressesWhicheverButtonHasTheFocus) {
    AddRooms(2);
    Open();
    Find(*form, Controls::previousRoom).setFocus();
    Press(*form, Qt::Key_Enter);
    EXPECT_EQ(Item(), "2");
    Find(*form, Controls::leaveRooms).setFocus();
    Press(*form, Qt::Key_Return);
    EXPECT_EQ(screens.Calls, Lines{"menu returning"});
}

TEST_F(SizeFields, AreEmptiedWhenTheyHoldNoSize) {
    Open();
    for (int field = 0; field < 4; ++field) {
        for (const char* text : {"0", "-", "+", "abc", " ", "00"}) {
            TypeInto(field, text);
            EXPECT_EQ(Texts()[static_cast<std::size_t>(field)], "") << text;
        }
        TypeInto(field, "10");
        EXPECT_EQ(Texts()[static_cast<std::size_t>(field)], "10");
    }
}

TEST_F(SizeFields, KeepALeadingZeroBeforeASize) {
    Open();
    TypeInto(0, "5");
    Press(*form, Qt::Key_Home);
    Type(Text(0), "0");
    EXPECT_EQ(Texts()[0], "05");
}

TEST_F(SizeFields, KeepAPointAndZerosWhileTheyAreTyped) {
    Open();
    for (const char* text : {".85", ".05", ".005"}) {
        TypeInto(0, text);
        EXPECT_EQ(Texts()[0], text);
        Text(0).clear();
    }
    for (const char* text : {".", ".0", ".00"}) {
        TypeInto(1, text);
        EXPECT_EQ(Texts()[1], text);
        Press(*form, Qt::Key_Tab);
        EXPECT_EQ(Texts()[1], "") << "not left behind";
    }
    Paste(2, ".x");
    EXPECT_EQ(Texts()[2], "");
}

TEST_F(SizeFields, CountAPointAsNothingTyped) {
    Open();
    TypeInto(1, ".");
    Press(*form, Qt::Key_N, Qt::AltModifier);
    EXPECT_TRUE(HasFocus(Controls::roomWidthMajor)) << "the button was pressed";
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_TRUE(open.Now.Rooms.empty());
}

TEST_F(BaseField, LosesCharactersFromTheEndWithOneMessageEach) {
    Open();
    Lines standing;
    boxes.OnMessage = [&] { standing.push_back(Texts()[4]); };
    Paste(4, "XW1");
    EXPECT_EQ(boxes.Messages, Lines(3, TypedMessage));
    EXPECT_EQ(standing, (Lines{"XW1", "XW", "X"}));
    EXPECT_EQ(Texts()[4], "");
    EXPECT_TRUE(Text(4).hasFocus());

    boxes.Messages.clear();
    Paste(4, "W1x2");
    EXPECT_EQ(boxes.Messages, Lines(2, TypedMessage));
    EXPECT_EQ(Texts()[4], "W1");
    EXPECT_EQ(Text(4).cursorPosition(), 2);
}

TEST_F(BaseField, IsTestedAtEveryKey) {
    Open();
    TypeInto(4, "W3");
    EXPECT_EQ(boxes.Messages, Lines{TypedMessage});
    Type(Text(4), "12 l");
    EXPECT_EQ(Texts()[4], "W12 l");
    EXPECT_EQ(boxes.Messages.size(), 1U);
    Paste(4, "1W");
    EXPECT_EQ(boxes.Messages.size(), 3U);
    EXPECT_EQ(Texts()[4], "");
    Paste(4, "\U0001F6C1");
    EXPECT_EQ(boxes.Messages.size(), 4U) << "one character, though it is made of two";
}

TEST_F(BaseField, IsPutIntoUpperCaseByEnter) {
    Open();
    TypeInto(4, "w2l1");
    EXPECT_EQ(Texts()[4], "w2l1");
    Press(*form, Qt::Key_Return);
    EXPECT_EQ(Texts()[4], "W2L1");
    EXPECT_TRUE(HasFocus(Controls::roomNumber));
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(BaseField, IsTestedAgainAfterEnter) {
    Open();
    Focus(Text(4));
    {
        const QSignalBlocker untested(Text(4));
        Type(Text(4), "1W");
    }
    Press(*form, Qt::Key_Return);
    EXPECT_EQ(boxes.Messages, Lines{EnteredMessage});
    EXPECT_TRUE(HasFocus(Controls::wallBase));
    EXPECT_EQ(Texts()[4], "1W");
}

TEST_F(BaseField, StoresTheCodeOfItsText) {
    const std::pair<const char*, Byte> cases[] = {{"", Byte{0}},     {"WL", Byte{0}},
                                                  {"W12", Byte{2}},  {"L2W1", Byte{7}},
                                                  {"w2l1", Byte{5}}, {"W 1", Byte{1}}};
    Open();
    for (const auto& [text, code] : cases) {
        const std::size_t room = open.Now.Rooms.size();
        TypeSizes({"1", "", "1", ""});
        TypeInto(4, text);
        ClickOn(Controls::nextRoom);
        EXPECT_EQ(open.Now.Rooms.at(room).Base, code) << text;
    }
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(TextLimits, EndTheTypingAndThePasting) {
    Open();
    TypeInto(4, "W1 L2 W1 ");
    EXPECT_EQ(Texts()[4], "W1 L2 W1");
    TypeInto(5, "123456789");
    EXPECT_EQ(Texts()[5], "12345678");
    Paste(5, "abcdefghij");
    EXPECT_EQ(Texts()[5], "abcdefgh");
    Paste(6, std::string(300, 'r'));
    EXPECT_EQ(Texts()[6], std::string(255, 'r'));
}

TEST_F(TextLimits, LeaveLongerStoredTextsWhole) {
    AddRooms(2);
    open.Now.Rooms.at(0).Number = "a number of 24 letters..";
    open.Now.Rooms.at(0).Remark = std::string(300, 'r');
    open.Saved = open.Now;
    Open();
    ClickOn(Controls::previousRoom);
    ClickOn(Controls::previousRoom);
    EXPECT_EQ(Texts()[5], "a number of 24 letters..");
    EXPECT_EQ(Texts()[6], std::string(300, 'r'));
    TypeInto(5, "x");
    EXPECT_EQ(Texts()[5], "a number of 24 letters..");
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(open.Now.Rooms, open.Saved.Rooms);
    TypeInto(5, "2345678");
    EXPECT_EQ(Texts()[5], "N1234567") << "the limit of the next room is its own";
}

TEST_F(CoveringBox, IsNotChangedByAWheelInPassing) {
    Open();
    const auto turn = [this] {
        const QPointF middle = Covering().rect().center();
        QWheelEvent event(middle, Covering().mapToGlobal(middle), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&Covering(), &event);
    };
    turn();
    EXPECT_EQ(Covering().currentIndex(), 0);
    EXPECT_EQ(Covering().focusPolicy(), Qt::StrongFocus) << "nor takes the focus";
    Focus(Covering());
    turn();
    EXPECT_EQ(Covering().currentIndex(), 1);
}

} // namespace
} // namespace tarn
