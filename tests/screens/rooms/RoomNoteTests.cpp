// The line below the sizes of the room entry.

#include "screens/rooms/RoomEntryFrame.h"
#include "screens/rooms/RoomScreenTesting.h"

namespace tarn {
namespace {

using namespace tarn::testing;

struct RoomNote : RoomScreenTest {
    std::string Note() const {
        const auto& note = Find<QLabel>(*form, Controls::roomNote);
        EXPECT_EQ(note.accessibleName(), note.text());
        return FromQt(note.text());
    }
    RoomEntryFrame& Entry() const {
        return dynamic_cast<RoomEntryFrame&>(Find<QGroupBox>(*form, Controls::roomPanel));
    }
};

TEST_F(RoomNote, IsEmptyAtFirst) {
    AddRooms(1);
    Open();
    EXPECT_EQ(Note(), "");
    ClickOn(Controls::previousRoom);
    EXPECT_EQ(Note(), "");
}

TEST_F(RoomNote, HoldsAHintUntilTheNextChangeOfAField) {
    Open();
    for (int field = 4; field < 7; ++field) {
        Entry().SetHint(QStringLiteral("Mind the step."));
        EXPECT_EQ(Note(), "Mind the step.");
        Focus(Text(field));
        EXPECT_EQ(Note(), "Mind the step.");
        Type(Text(field), "W");
        EXPECT_EQ(Note(), "") << field;
    }
    Entry().SetHint(QStringLiteral("Mind the step."));
    Focus(Covering());
    Press(*form, Qt::Key_Down);
    EXPECT_EQ(Note(), "");
}

TEST_F(RoomNote, HoldsAHintUntilAnotherRoomIsShown) {
    AddRooms(2);
    open.Now.Rooms.at(1) = open.Now.Rooms.at(0);
    Open();
    ClickOn(Controls::previousRoom);
    Entry().SetHint(QStringLiteral("Mind the step."));
    ClickOn(Controls::previousRoom);
    EXPECT_EQ(Item(), "1");
    EXPECT_EQ(Note(), "");
}

TEST_F(RoomNote, HoldsAWarningBeforeTheHintUntilItIsTakenBack) {
    AddRooms(1);
    Open();
    Entry().SetHint(QStringLiteral("Mind the step."));
    Entry().SetWarning(QStringLiteral("NOT KEPT: the disk is full."));
    EXPECT_EQ(Note(), "NOT KEPT: the disk is full.\nMind the step.");
    TypeInto(6, "hall");
    EXPECT_EQ(Note(), "NOT KEPT: the disk is full.");
    ClickOn(Controls::previousRoom);
    EXPECT_EQ(Note(), "NOT KEPT: the disk is full.");
    Entry().SetWarning({});
    EXPECT_EQ(Note(), "");
}

TEST_F(RoomNote, TellsWhatASizeFieldDroppedWhileTheRestIsTyped) {
    Open();
    const std::pair<const char*, const char*> typed[] = {
        {"-5", "A sign is not taken: type the number alone, such as 5"},
        {"0,5", "A comma is not taken: type 0.5"},
        {"3,45", "A comma is not taken: type 3.45"},
        {"abc", "Letters are not taken: type the number alone, such as 12"}};
    for (int field = 0; field < 4; ++field) {
        for (const auto& [text, note] : typed) {
            Text(field).clear();
            TypeInto(field, text);
            EXPECT_EQ(Note(), note) << text;
            Press(*form, Qt::Key_Tab);
            EXPECT_EQ(Note(), note) << "it stays when the field is left";
            TypeInto(6, "x");
            EXPECT_EQ(Note(), "") << "and goes with the next change";
        }
        Text(field).clear();
        TypeInto(field, "-");
        TypeInto((field + 1) % 4, "7");
        TypeInto(field, "5");
        EXPECT_EQ(Note(), "") << "another typing";
        Text((field + 1) % 4).clear();
        Text(field).clear();
    }
}

TEST_F(RoomNote, ForgetsWhatWasDroppedWhenTheFieldIsEmptied) {
    Open();
    TypeInto(0, "-5");
    Press(*form, Qt::Key_Backspace);
    Type(Text(0), "6");
    EXPECT_EQ(Note(), "");
}

TEST_F(RoomNote, TellsOfAWholeNumberThatIsKept) {
    Open();
    TypeInto(0, "12");
    TypeInto(1, "6.5");
    EXPECT_EQ(Note(), "Kept as 12'6\" (typed 12'6.5\")");
    Press(*form, Qt::Key_Backspace);
    EXPECT_EQ(Note(), "");
    open.Shown = Units::Metric;
    Open();
    TypeInto(2, "3.455");
    EXPECT_EQ(Note(), "Kept as 3 m 46 cm (typed 3.455 m)");
}

TEST_F(RoomNote, TellsOfASizeThatIsErased) {
    AddRooms(2);
    Open();
    ClickOn(Controls::previousRoom);
    Focus(Text(2));
    Press(*form, Qt::Key_A, Qt::ControlModifier);
    Press(*form, Qt::Key_Delete);
    EXPECT_EQ(Note(), "") << "an inch is left";
    Focus(Text(3));
    Press(*form, Qt::Key_A, Qt::ControlModifier);
    Press(*form, Qt::Key_Delete);
    EXPECT_EQ(Note(), "The length is empty and counts as 0.");
    Press(*form, Qt::Key_Tab);
    EXPECT_EQ(Note(), "The length is empty and counts as 0.");
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(Note(), "");
    ClickOn(Controls::previousRoom);
    EXPECT_EQ(Note(), "The length is empty and counts as 0.") << "as it is stored";
}

TEST_F(RoomNote, TellsOfOneSizeMissingOnceTheSizesAreLeft) {
    Open();
    TypeInto(0, "12");
    Press(*form, Qt::Key_Tab);
    Press(*form, Qt::Key_Tab);
    EXPECT_EQ(Note(), "") << "it may still come";
    Focus(Text(6));
    EXPECT_EQ(Note(), "The length is empty and counts as 0.");
    TypeInto(2, "9");
    EXPECT_EQ(Note(), "");
    Focus(Text(6));
    EXPECT_EQ(Note(), "");
}

TEST_F(RoomNote, TellsAgainOfTypingThatComesBack) {
    AddRooms(1);
    Open();
    TypeInto(0, "9");
    TypeInto(1, "3,45");
    ClickOn(Controls::leaveRooms);
    Open();
    EXPECT_EQ(Note(), "A comma is not taken: type 3.45");
    TypeInto(1, "");
    Press(*form, Qt::Key_A, Qt::ControlModifier);
    Type(Text(1), "3.6");
    ClickOn(Controls::leaveRooms);
    Open();
    EXPECT_EQ(Note(), "Kept as 9'4\" (typed 9'3.6\")");
}

TEST_F(RoomNote, TellsWhereWhatWasTypedForANewRoomComesFromAfterADeletion) {
    AddRooms(2);
    Open();
    TypeInto(0, "9");
    ClickOn(Controls::previousRoom);
    EXPECT_EQ(Item(), "2");
    boxes.YesNo = {true, true};
    ClickOn(Controls::deleteRoom);
    EXPECT_EQ(Item(), "2");
    EXPECT_EQ(FromQt(Text(0).text()), "9");
    EXPECT_EQ(Note(), "Typed before for a new room, and not stored. DELETE empties the fields.");
    ClickOn(Controls::deleteRoom);
    EXPECT_EQ(FromQt(Text(0).text()), "");
    EXPECT_EQ(Note(), "");
}

TEST_F(RoomNote, TellsWhereItComesFromWhenTheLastRoomIsTakenBack) {
    AddRooms(1);
    open.Typed.New = RoomDraft{{"9", ""}, {}, Byte{0}, "", "", ""};
    Open();
    boxes.YesNo = {true};
    ClickOn(Controls::previousRoom);
    ClickOn(Controls::deleteRoom);
    Press(*form, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Item(), "1");
    EXPECT_EQ(FromQt(Text(0).text()), "10");
    EXPECT_EQ(Note(), "");
    Press(*form, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(FromQt(Text(0).text()), "9");
    EXPECT_EQ(Note(), "Typed before for a new room, and not stored. DELETE empties the fields.");
    TypeInto(2, "8");
    EXPECT_EQ(Note(), "") << "it is being typed";
}

TEST_F(RoomNote, SaysNothingOfANewRoomThatIsPassed) {
    Open();
    for (int i = 0; i < 12; ++i) {
        Press(*form, Qt::Key_Tab);
        EXPECT_EQ(Note(), "");
    }
}

TEST_F(RoomNote, MovesNothingWhenItComes) {
    for (const auto& [width, height] : {std::pair{800, 600}, {1920, 1080}}) {
        Open(width, height);
        std::vector<QRect> before;
        before.reserve(TextNames.size());
        for (const char* name : TextNames) {
            before.push_back(Find(*form, name).geometry());
        }
        const QRect next = Find(*form, Controls::nextRoom).geometry();
        Entry().SetWarning(QStringLiteral("NOT KEPT: the disk is full."));
        Entry().SetHint(QStringLiteral("Kept as 12'6\" (typed 12'6.5\")"));
        QCoreApplication::processEvents();
        for (std::size_t i = 0; i < TextNames.size(); ++i) {
            EXPECT_EQ(Find(*form, TextNames.at(i)).geometry(), before[i]) << i;
        }
        EXPECT_EQ(Find(*form, Controls::nextRoom).geometry(), next);
        const auto& note = Find<QLabel>(*form, Controls::roomNote);
        EXPECT_GE(note.height(), note.heightForWidth(note.width())) << "it is seen whole";
    }
}

TEST_F(RoomNote, GrowsForALongTextInPlaceOfBecomingWider) {
    Open();
    const int width = Find(*form, Controls::roomSizes).width();
    Entry().SetWarning(QString(20, QLatin1Char('w')).append(QLatin1Char(' ')).repeated(12));
    QCoreApplication::processEvents();
    const auto& note = Find<QLabel>(*form, Controls::roomNote);
    EXPECT_EQ(Find(*form, Controls::roomSizes).width(), width);
    EXPECT_GE(note.height(), note.heightForWidth(note.width())) << "it is seen whole";
}

} // namespace
} // namespace tarn
