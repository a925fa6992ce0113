// The room entry screen: stepping through the rooms and deleting them.

#include "project/RoomTesting.h"
#include "screens/rooms/RoomScreenTesting.h"

namespace tarn {
namespace {

using namespace tarn::testing;

const Lines Empty(7);
const Lines FirstRoom{"10", "", "12", "", "", "N0", "remark 0"};
const Lines SecondRoom{"10", "1", "12", "1", "W1", "N1", "remark 1"};

using SteppingThroughRooms = RoomScreenTest;
using DeletingRooms = RoomScreenTest;

TEST_F(SteppingThroughRooms, BeginsOnANewRoomBehindTheLast) {
    AddRooms(2);
    Open();
    EXPECT_EQ(Texts(), Empty);
    EXPECT_EQ(Item(), "3");
    EXPECT_TRUE(HasFocus(Controls::roomWidthMajor));
    EXPECT_FALSE(Find(*form, Controls::reportPanel).isVisible());
}

TEST_F(SteppingThroughRooms, StoresANewRoomAndGoesOnToTheNext) {
    Open();
    TypeSizes({"12", "6", "14", ""});
    Focus(Covering());
    Type(Covering(), "TILE-2");
    TypeInto(4, "w2l1");
    TypeInto(5, "12b");
    TypeInto(6, "bay window");
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(open.Now.Rooms.size(), 1U);
    EXPECT_EQ(open.Now.Rooms.at(0), (Room{150, 168, 9, 5, "12b", "bay window"}));
    EXPECT_EQ(Texts(), Empty);
    EXPECT_EQ(Covering().currentIndex(), 9) << "a new room keeps the selection";
    EXPECT_EQ(Item(), "2");
    EXPECT_TRUE(HasFocus(Controls::roomWidthMajor));
    EXPECT_EQ(open.Now.EnteredIn, Units::Imperial);
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(SteppingThroughRooms, StoresCentimetresInMetricAndNotesIt) {
    open.Shown = Units::Metric;
    Open();
    TypeSizes({"3", "50", "4", "20"});
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(open.Now.Rooms.at(0).Width, 350);
    EXPECT_EQ(open.Now.Rooms.at(0).Length, 420);
    EXPECT_EQ(open.Now.EnteredIn, Units::Metric);
    ClickOn(Controls::previousRoom);
    EXPECT_EQ(Texts(), (Lines{"3", "50", "4", "20", "", "", ""}));
}

TEST_F(SteppingThroughRooms, ShowsEachRoomWithAZeroLeftEmpty) {
    AddRooms(2);
    Open();
    ClickOn(Controls::previousRoom);
    EXPECT_EQ(Texts(), SecondRoom);
    EXPECT_EQ(Covering().currentIndex(), 1);
    EXPECT_EQ(Item(), "2");
    EXPECT_TRUE(HasFocus(Controls::roomWidthMajor));
    ClickOn(Controls::previousRoom);
    EXPECT_EQ(Texts(), FirstRoom);
    EXPECT_EQ(Covering().currentIndex(), 0);
    EXPECT_EQ(Item(), "1");
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(Texts(), SecondRoom);
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(Texts(), Empty);
    EXPECT_EQ(Item(), "3");
    EXPECT_EQ(open.Now.Rooms, open.Saved.Rooms) << "looking at rooms changes none";
}

TEST_F(SteppingThroughRooms, LeavesStoredTextsOfAnyCharactersAsTheyAre) {
    AddRooms(30);
    std::mt19937 random(20260314);
    for (Room& room : open.Now.Rooms) {
        room.Number = RandomText(random, 12);
        room.Remark = RandomText(random, 300);
    }
    open.Saved = open.Now;
    Open();
    for (std::size_t i = 0; i < open.Now.Rooms.size(); ++i) {
        ClickOn(Controls::previousRoom);
    }
    EXPECT_EQ(Item(), "1");
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(open.Now.Rooms, open.Saved.Rooms);
}

TEST_F(SteppingThroughRooms, StoresAChangedRoomInBothDirections) {
    AddRooms(3);
    Open();
    ClickOn(Controls::previousRoom);
    TypeInto(6, "!");
    ClickOn(Controls::previousRoom);
    EXPECT_EQ(open.Now.Rooms.at(2).Remark, "remark 2!");
    TypeInto(5, "?");
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(open.Now.Rooms.at(1).Number, "N1?");
    EXPECT_EQ(open.Now.Rooms.size(), 3U);
}

TEST_F(SteppingThroughRooms, StoresATypedNewRoomWhenItStepsBack) {
    AddRooms(1);
    Open();
    TypeSizes({"1", "2", "3", "4"});
    ClickOn(Controls::previousRoom);
    EXPECT_EQ(open.Now.Rooms.size(), 2U);
    EXPECT_EQ(open.Now.Rooms.at(1).Width, 14);
    EXPECT_EQ(open.Now.Rooms.at(1).Length, 40);
    EXPECT_EQ(Texts(), FirstRoom);
    EXPECT_EQ(Item(), "1");
}

TEST_F(SteppingThroughRooms, OnlyTakesTheFocusBeforeTheFirstRoom) {
    AddRooms(1);
    Open();
    ClickOn(Controls::previousRoom);
    TypeInto(6, "!");
    ClickOn(Controls::previousRoom);
    EXPECT_EQ(Item(), "1");
    EXPECT_EQ(Texts()[6], "remark 0!") << "what was typed stays on the screen";
    EXPECT_EQ(open.Now.Rooms, open.Saved.Rooms);
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_TRUE(HasFocus(Controls::roomWidthMajor));
}

TEST_F(SteppingThroughRooms, DoesNothingWithoutSizesButStepBack) {
    AddRooms(1);
    Open();
    TypeInto(6, "remark");
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(Item(), "2");
    EXPECT_EQ(Texts()[6], "remark");
    EXPECT_TRUE(HasFocus(Controls::roomWidthMajor));
    ClickOn(Controls::previousRoom);
    EXPECT_EQ(Texts(), FirstRoom);
    EXPECT_EQ(open.Now.Rooms.size(), 1U);
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(SteppingThroughRooms, RefusesANewRoomWithOneSize) {
    AddRooms(1);
    Open();
    TypeSizes({"12"});
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(boxes.Messages, Lines{WrongSize});
    EXPECT_EQ(Item(), "2");
    EXPECT_EQ(Texts()[0], "12");
    EXPECT_EQ(open.Now.Rooms.size(), 1U);
    EXPECT_TRUE(HasFocus(Controls::roomWidthMajor));
    ClickOn(Controls::previousRoom);
    EXPECT_EQ(boxes.Messages, (Lines{WrongSize, WrongSize}));
    EXPECT_EQ(Texts(), FirstRoom);
    EXPECT_EQ(open.Now.Rooms.size(), 1U);
}

TEST_F(SteppingThroughRooms, StoresARoomWhoseSizesWereErased) {
    AddRooms(1);
    Open();
    ClickOn(Controls::previousRoom);
    for (const int field : {0, 2}) {
        Focus(Text(field));
        Press(*form, Qt::Key_A, Qt::ControlModifier);
        Press(*form, Qt::Key_Delete);
    }
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(open.Now.Rooms.at(0).Width, 0);
    EXPECT_EQ(open.Now.Rooms.at(0).Length, 0);
    EXPECT_EQ(open.Now.Rooms.size(), 1U);
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(SteppingThroughRooms, StopsAtARefusedOrNegativeSize) {
    AddRooms(1);
    Open();
    const struct {
        int Field;
        const char* Text;
    } cases[] = {{0, "12'6"}, {1, "6 1/2"}, {2, "-1"}, {3, "3,45"}};
    for (const bool existing : {false, true}) {
        for (const auto& each : cases) {
            SCOPED_TRACE(each.Text);
            form->close();
            AddRooms(1);
            Open();
            if (existing) {
                ClickOn(Controls::previousRoom);
            } else {
                TypeSizes({"12", "1", "", ""});
            }
            const std::string item = Item();
            Paste(each.Field, each.Text);
            for (const char* button :
                 {Controls::nextRoom, Controls::previousRoom, Controls::saveRooms,
                  Controls::estimateFromRooms, Controls::showReport}) {
                if (existing && button == Controls::previousRoom) {
                    continue; // there is no room before the first
                }
                boxes.Messages.clear();
                ClickOn(button);
                EXPECT_EQ(boxes.Messages, Lines{WrongSize}) << button;
                EXPECT_TRUE(Text(each.Field).hasFocus()) << button;
                EXPECT_EQ(FromQt(Text(each.Field).text()), each.Text) << button;
                EXPECT_EQ(Item(), item) << button;
                EXPECT_TRUE(Find(*form, Controls::roomPanel).isVisible()) << button;
            }
            EXPECT_EQ(open.Now.Rooms, open.Saved.Rooms);
            EXPECT_TRUE(screens.Calls.empty());
        }
    }
}

TEST_F(SteppingThroughRooms, RefusesThe502ndRoomAndKeepsWhatWasTyped) {
    AddRooms(501);
    Open();
    EXPECT_EQ(Item(), "502");
    TypeSizes({"12", "", "10", ""});
    const Lines typed = Texts();
    for (const char* button : {Controls::nextRoom, Controls::previousRoom, Controls::saveRooms,
                               Controls::estimateFromRooms, Controls::showReport}) {
        boxes.Messages.clear();
        ClickOn(button);
        EXPECT_EQ(boxes.Messages, Lines{"The project is full: it can hold 501 rooms."}) << button;
        EXPECT_EQ(Texts(), typed) << button;
        EXPECT_EQ(Item(), "502") << button;
    }
    EXPECT_TRUE(screens.Calls.empty());
    EXPECT_EQ(open.Now.Rooms, open.Saved.Rooms);
    boxes.YesNo = {true};
    ClickOn(Controls::deleteRoom);
    EXPECT_EQ(Texts(), Empty);
    EXPECT_EQ(open.Now.Rooms.size(), 501U);
    boxes.Messages.clear();
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(Item(), "502");
    EXPECT_TRUE(boxes.Messages.empty()) << "an empty room is not refused";
    ClickOn(Controls::previousRoom);
    EXPECT_EQ(Item(), "501");
    EXPECT_EQ(Texts()[5], "N500");
}

TEST_F(SteppingThroughRooms, SaysOverflowOnceAndKeepsWhatWasTyped) {
    AddRooms(1);
    Open();
    Paste(0, "2731");
    TypeInto(2, "10");
    for (const char* button : {Controls::nextRoom, Controls::previousRoom, Controls::saveRooms,
                               Controls::estimateFromRooms, Controls::showReport}) {
        boxes.Messages.clear();
        ClickOn(button);
        ASSERT_EQ(boxes.Messages.size(), 1U) << button;
        EXPECT_TRUE(boxes.Messages[0].starts_with("Run-time error '6':\r\n\r\nOverflow\r\n"));
        EXPECT_TRUE(
            boxes.Messages[0].ends_with("The width of a room can be 32767 inches at most."));
        EXPECT_EQ(Texts()[0], "2731") << button;
        EXPECT_EQ(Item(), "2") << button;
    }
    EXPECT_EQ(open.Now.Rooms, open.Saved.Rooms);
    EXPECT_TRUE(screens.Calls.empty());
    boxes.Messages.clear();
    Paste(0, "1e400");
    EXPECT_TRUE(boxes.Messages.empty());
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(boxes.Messages.size(), 1U);
    EXPECT_EQ(Texts()[0], "1e400");
    EXPECT_TRUE(HasFocus(Controls::roomWidthMajor));
}

TEST_F(SteppingThroughRooms, KeepsACoveringThatCannotBeChosen) {
    AddRooms(1);
    open.Now.Rooms.at(0).Covering = 12;
    open.Now.Rooms.at(0).Base = 9;
    Open();
    ClickOn(Controls::previousRoom);
    EXPECT_EQ(Covering().currentIndex(), -1);
    EXPECT_EQ(Texts()[4], "");
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(open.Now.Rooms.at(0).Covering, 12);
    EXPECT_EQ(Covering().currentIndex(), 0) << "a new room has a covering";
    ClickOn(Controls::previousRoom);
    Focus(Covering());
    Type(Covering(), "TILE-4");
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(open.Now.Rooms.at(0).Covering, 11);
}

TEST_F(SteppingThroughRooms, ChangesNoBaseCodeInPassing) {
    open.Shown = Units::Metric;
    AddRooms(3);
    for (std::size_t i = 0; i < 3; ++i) {
        open.Now.Rooms.at(i).Base = static_cast<Byte>(9 + 100 * i);
    }
    open.Saved = open.Now;
    Open();
    ClickOn(Controls::previousRoom);
    ClickOn(Controls::previousRoom);
    ClickOn(Controls::previousRoom);
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(open.Now.Rooms, open.Saved.Rooms);
    EXPECT_EQ(open.Now.EnteredIn, Units::Imperial);
}

TEST_F(SteppingThroughRooms, ShowsElevenFeetThirteenAsTwelveFeetOne) {
    Open();
    TypeSizes({"11", "13", "1", ""});
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(open.Now.Rooms.at(0).Width, 145);
    ClickOn(Controls::previousRoom);
    EXPECT_EQ(Texts()[0], "12");
    EXPECT_EQ(Texts()[1], "1");
}

TEST_F(DeletingRooms, AsksAndLeavesEverythingWhenDeclined) {
    AddRooms(2);
    Open();
    ClickOn(Controls::previousRoom);
    TypeInto(6, "!");
    boxes.YesNo = {false};
    ClickOn(Controls::deleteRoom);
    EXPECT_EQ(boxes.Questions, Lines{"Really want to delete current data?"});
    EXPECT_EQ(Texts()[6], "remark 1!");
    EXPECT_EQ(open.Now.Rooms, open.Saved.Rooms);
    EXPECT_FALSE(Text(0).hasFocus()) << "the focus stays where it was";
    ClickOn(Controls::previousRoom);
    EXPECT_EQ(open.Now.Rooms.at(1).Remark, "remark 1!");
}

TEST_F(DeletingRooms, ShowsTheRoomThatMovedUp) {
    AddRooms(3);
    Open();
    ClickOn(Controls::previousRoom);
    ClickOn(Controls::previousRoom);
    ClickOn(Controls::previousRoom);
    boxes.YesNo = {true, true, true, true};
    ClickOn(Controls::deleteRoom);
    EXPECT_EQ(open.Now.Rooms.size(), 2U);
    EXPECT_EQ(Texts(), SecondRoom);
    EXPECT_EQ(Item(), "1");
    EXPECT_TRUE(HasFocus(Controls::roomWidthMajor));
    ClickOn(Controls::deleteRoom);
    ClickOn(Controls::deleteRoom);
    EXPECT_TRUE(open.Now.Rooms.empty());
    EXPECT_EQ(Texts(), Empty);
    EXPECT_EQ(Item(), "1");
    TypeInto(6, "typed");
    ClickOn(Controls::deleteRoom);
    EXPECT_EQ(Texts(), Empty) << "the new room is emptied";
    EXPECT_TRUE(open.Now.Rooms.empty());
}

} // namespace
} // namespace tarn
