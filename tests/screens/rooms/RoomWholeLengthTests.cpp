// The room entry screen: whole lengths that are typed into one field.

#include "screens/rooms/RoomScreenTesting.h"

namespace tarn {
namespace {

using namespace tarn::testing;

struct WholeLengths : RoomScreenTest {
    std::string Note() const { return FromQt(Find<QLabel>(*form, Controls::roomNote).text()); }
    Lines Sizes() const {
        const Lines texts = Texts();
        return {texts.begin(), texts.begin() + 4};
    }
    void EmptyField(int field) const {
        Focus(Text(field));
        Press(*form, Qt::Key_A, Qt::ControlModifier);
        Press(*form, Qt::Key_Delete);
    }
};

TEST_F(WholeLengths, AreSpreadWhenTheFieldIsLeft) {
    Open();
    for (const int field : {0, 1}) {
        for (const char* text : {"12'6\"", "12-6", "12ft 6in", "12' 6\"", "12FT6IN"}) {
            EmptyField(0);
            EmptyField(1);
            TypeInto(field, text);
            EXPECT_EQ(Texts().at(static_cast<std::size_t>(field)), text) << "as it is typed";
            Press(*form, Qt::Key_Tab);
            EXPECT_EQ(Sizes(), (Lines{"12", "6", "", ""})) << text;
            EXPECT_EQ(Note(), "");
        }
    }
    TypeInto(2, "10'4\"");
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(open.Now.Rooms, (std::vector<Room>{{150, 124, 0, 0, "", ""}}));
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(WholeLengths, TakeOneEnterForEachSize) {
    Open();
    TypeInto(0, "12'6\"");
    Press(*form, Qt::Key_Return);
    EXPECT_TRUE(HasFocus(Controls::roomLengthMajor));
    TypeInto(2, "14-3");
    Press(*form, Qt::Key_Return);
    EXPECT_TRUE(HasFocus(Controls::covering));
    Press(*form, Qt::Key_N, Qt::AltModifier);
    EXPECT_EQ(open.Now.Rooms, (std::vector<Room>{{150, 171, 0, 0, "", ""}}));
    TypeInto(0, "12'");
    Press(*form, Qt::Key_Return);
    EXPECT_TRUE(HasFocus(Controls::roomWidthMinor)) << "inches may follow";
}

TEST_F(WholeLengths, AreSpreadInMetric) {
    open.Shown = Units::Metric;
    Open();
    TypeInto(0, "3.66m");
    Press(*form, Qt::Key_Return);
    EXPECT_TRUE(HasFocus(Controls::roomLengthMajor)) << "both fields of the width are filled";
    TypeInto(3, "420cm");
    Press(*form, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Sizes(), (Lines{"3", "66", "4", "20"}));
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(open.Now.Rooms, (std::vector<Room>{{366, 420, 0, 0, "", ""}}));
}

TEST_F(WholeLengths, AreSpreadByWhateverLeavesTheField) {
    Open();
    const std::function<void()> ways[] = {
        [this] { Press(*form, Qt::Key_Tab); },
        [this] { Press(*form, Qt::Key_Return); },
        [this] { Press(*form, Qt::Key_Enter); },
        [this] { Press(*form, Qt::Key_Backtab, Qt::ShiftModifier); },
        [this] { Press(*form, Qt::Key_L, Qt::AltModifier); },
        [this] { Click(Text(6)); },
    };
    for (const auto& leave : ways) {
        EmptyField(0);
        EmptyField(1);
        TypeInto(1, "12' 6 1/2\"");
        leave();
        EXPECT_EQ(Sizes(), (Lines{"12", "6.5", "", ""}));
        EXPECT_EQ(Note(), "Kept as 12'6\" (typed 12'6.5\")");
    }
}

/// What the key of each button does while the focus is still in the field.
TEST_F(WholeLengths, AreStoredByEveryButton) {
    const std::pair<Qt::Key, const char*> keys[] = {{Qt::Key_N, "next"},   {Qt::Key_P, "previous"},
                                                    {Qt::Key_S, "save"},   {Qt::Key_E, "estimate"},
                                                    {Qt::Key_R, "report"}, {Qt::Key_B, "back"}};
    for (const auto& [key, name] : keys) {
        SCOPED_TRACE(name);
        AddRooms(1);
        boxes.Messages.clear();
        screens.Calls.clear();
        Open();
        TypeInto(0, "12'6\"");
        TypeInto(2, "9");
        Press(*form, Qt::Key_Tab);
        TypeInto(2, "-3");
        ASSERT_TRUE(Text(2).hasFocus());
        Press(*form, key, Qt::AltModifier);
        ASSERT_TRUE(QTest::qWaitFor([this] { return open.Now.Rooms.size() == 2; }));
        EXPECT_EQ(open.Now.Rooms.at(1), (Room{150, 111, 0, 0, "", ""}));
        EXPECT_TRUE(open.Typed.IsEmpty());
        if (key == Qt::Key_S) {
            EXPECT_EQ(Sizes(), (Lines{"12", "6", "9", "3"}));
        }
    }
}

TEST_F(WholeLengths, AreRefusedByEveryButton) {
    for (const Qt::Key key : {Qt::Key_N, Qt::Key_P, Qt::Key_S, Qt::Key_E, Qt::Key_R}) {
        AddRooms(1);
        boxes.Messages.clear();
        boxes.Informative.clear();
        screens.Calls.clear();
        Open();
        TypeInto(0, "10");
        TypeInto(2, "3");
        TypeInto(3, "12'6\"");
        Press(*form, key, Qt::AltModifier);
        ASSERT_TRUE(QTest::qWaitFor([this] { return !boxes.Messages.empty(); }));
        EXPECT_EQ(boxes.Messages, Lines{WrongSize});
        EXPECT_EQ(boxes.Informative,
                  Lines{"Room length:\r\n12'6\" is a whole length: empty the field beside it"});
        EXPECT_EQ(Item(), "2");
        EXPECT_EQ(Sizes(), (Lines{"10", "", "3", "12'6\""}));
        EXPECT_TRUE(HasFocus(Controls::roomLengthMinor));
        EXPECT_EQ(open.Now.Rooms.size(), 1U);
        EXPECT_TRUE(screens.Calls.empty());
    }
}

TEST_F(WholeLengths, StandAsTypedWhenTheRoomIsLeftWithARefusal) {
    Open();
    TypeInto(0, "3");
    TypeInto(1, "12'6\"");
    ClickOn(Controls::leaveRooms);
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_TRUE(open.Now.Rooms.empty());
    Open();
    EXPECT_EQ(Sizes(), (Lines{"3", "12'6\"", "", ""}));
    EXPECT_EQ(Note(), "12'6\" is a whole length: empty the field beside it");
}

TEST_F(WholeLengths, AreSpreadWhenTheyComeBackFromADraft) {
    Open();
    TypeInto(0, "12'6\"");
    drafts.Flush();
    ASSERT_EQ(open.Typed.New->Width, (SizeParts{"12'6\"", ""})) << "as it is typed";
    Open();
    EXPECT_EQ(Sizes(), (Lines{"12'6\"", "", "", ""}));
    TypeInto(2, "10");
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(open.Now.Rooms, (std::vector<Room>{{150, 120, 0, 0, "", ""}}));
}

TEST_F(WholeLengths, StayWhileAMenuOrAnotherWindowHasTheFocus) {
    Open();
    TypeInto(0, "12'");
    {
        QWidget other;
        ShowOnDisplay(other, 100, 100);
    }
    form->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    ASSERT_TRUE(HasFocus(Controls::roomWidthMajor));
    EXPECT_EQ(Sizes(), (Lines{"12'", "", "", ""}));
    Type(Text(0), "6\"");
    Press(*form, Qt::Key_Tab);
    EXPECT_EQ(Sizes(), (Lines{"12", "6", "", ""}));
}

TEST_F(WholeLengths, GoToTheFieldOfTheirUnit) {
    Open();
    TypeInto(0, "6\"");
    Press(*form, Qt::Key_Tab);
    EXPECT_EQ(Sizes(), (Lines{"", "6", "", ""}));
    TypeInto(3, "12'");
    Press(*form, Qt::Key_Tab);
    EXPECT_EQ(Sizes(), (Lines{"", "6", "12", ""}));
    EmptyField(1);
    TypeInto(0, "12 ft");
    TypeInto(1, "6 in");
    Focus(Text(6));
    EXPECT_EQ(Sizes(), (Lines{"12", "6", "12", ""}));
}

TEST_F(WholeLengths, LoseTheirZeroAndComeOutRight) {
    Open();
    TypeInto(0, "0'6\"");
    EXPECT_EQ(Texts()[0], "6\"");
    EXPECT_EQ(Note(), "");
    Press(*form, Qt::Key_Tab);
    EXPECT_EQ(Sizes(), (Lines{"", "6", "", ""}));
    Paste(2, "0' 6 1/2\"");
    EXPECT_EQ(Texts()[2], "6.5\"") << "a field holds no zero, however it comes";
    Press(*form, Qt::Key_Tab);
    EXPECT_EQ(Sizes(), (Lines{"", "6", "", "6.5"}));
}

TEST_F(WholeLengths, TellHowInchesAreTypedBehindADroppedZero) {
    Open();
    TypeInto(0, "0'6");
    EXPECT_EQ(Texts()[0], "6");
    EXPECT_EQ(Note(), "0' is dropped: for inches type 6\"");
    Press(*form, Qt::Key_Tab);
    EXPECT_EQ(Note(), "0' is dropped: for inches type 6\"");
}

TEST_F(WholeLengths, AreToldWhenTheyCannotBeReadOnceTheFieldIsLeft) {
    Open();
    for (const auto& [text, note] :
         {std::pair{"12'6", "12'6 is not taken: type it like 6.5, 6 1/2\" or 12'6\""},
          {"6 1/2", "6 1/2 is not taken: type it like 6.5, 6 1/2\" or 12'6\""},
          {"3.66m", "Only feet and inches are taken here: type it like 12'6\""}}) {
        EmptyField(0);
        TypeInto(0, text);
        Press(*form, Qt::Key_Tab);
        EXPECT_EQ(Note(), note);
        EXPECT_EQ(Texts()[0], text);
        Focus(Text(6));
        EXPECT_EQ(Note(), note) << "it stays";
        Type(Text(6), "x");
        EXPECT_EQ(Note(), "") << "until the next change";
    }
}

TEST_F(WholeLengths, AreTakenBackByUndo) {
    Open();
    TypeInto(0, "12'6\"");
    Press(*form, Qt::Key_Tab);
    ASSERT_EQ(Sizes(), (Lines{"12", "6", "", ""}));
    Focus(Text(0));
    Press(*form, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Texts()[0], "12'6\"");
}

TEST_F(WholeLengths, LeaveWhatIsTypedInTwoFieldsAlone) {
    Open();
    TypeSizes({"12.5", "", "11", "13"});
    Focus(Text(6));
    EXPECT_EQ(Sizes(), (Lines{"12.5", "", "11", "13"}));
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(open.Now.Rooms, (std::vector<Room>{{150, 145, 0, 0, "", ""}}));
}

TEST_F(WholeLengths, HaveTheFieldInFocusWhileTheBoxIsThere) {
    Open();
    TypeInto(0, "12");
    Paste(3, "6 1/2");
    const char* about = "none";
    boxes.OnMessage = [&] { about = Text(3).hasFocus() ? "the length" : "another"; };
    ClickOn(Controls::nextRoom);
    EXPECT_STREQ(about, "the length");
    EmptyField(3);
    boxes.OnMessage = [&] { about = Text(2).hasFocus() ? "the missing length" : "another"; };
    ClickOn(Controls::nextRoom);
    EXPECT_STREQ(about, "the missing length");
    EXPECT_EQ(boxes.Informative.back(), "The length is empty: a new room needs both its sizes.");
    EXPECT_TRUE(HasFocus(Controls::roomWidthMajor)) << "as after every command";
}

} // namespace
} // namespace tarn
