// The room entry screen: stepping through the rooms and deleting them.

#include "rooms/RoomScreenTesting.h"
#include "rooms/RoomTesting.h"

namespace tarn {
namespace {

using namespace tarn::testing;

const Lines Empty(7);
const Lines FirstRoom{"10", "", "12", "", "", "N0", "remark 0"};
const Lines SecondRoom{"10", "1", "12", "1", "W1", "N1", "remark 1"};

using SteppingThroughRooms = RoomScreen;
using DeletingRooms = RoomScreen;

TEST_F(SteppingThroughRooms, BeginsOnANewRoomBehindTheLast) {
    AddRooms(2);
    Open();
    EXPECT_EQ(Texts(), Empty);
    EXPECT_EQ(Item(), "3");
    EXPECT_TRUE(HasFocus("Text1(0)"));
    EXPECT_FALSE(Find(*form, "Frame4").isVisible());
}

TEST_F(SteppingThroughRooms, StoresANewRoomAndGoesOnToTheNext) {
    Open();
    TypeSizes({"12", "6", "14", ""});
    Focus(Covering());
    Type(Covering(), "TILE-2");
    TypeInto(4, "w2l1");
    TypeInto(5, "12b");
    TypeInto(6, "bay window");
    ClickOn(NextButton);
    EXPECT_EQ(state.ObjNum, 1);
    EXPECT_EQ(TakeRoom(state, 0), (RoomRecord{150, 168, 9, 5, "12b", "bay window"}));
    EXPECT_EQ(state.RoomX(0, 1), 15000);
    EXPECT_EQ(Texts(), Empty);
    EXPECT_EQ(Covering().currentIndex(), 9) << "a new room keeps the selection";
    EXPECT_EQ(Item(), "2");
    EXPECT_TRUE(HasFocus("Text1(0)"));
    EXPECT_FALSE(project.TypedInMetric);
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(SteppingThroughRooms, StoresCentimetresInMetricAndNotesIt) {
    state.MetricFlag = 1;
    Open();
    TypeSizes({"3", "50", "4", "20"});
    ClickOn(NextButton);
    EXPECT_EQ(state.RoomWidth[0], 350);
    EXPECT_EQ(state.RoomLength[0], 420);
    EXPECT_TRUE(project.TypedInMetric);
    ClickOn(PreviousButton);
    EXPECT_EQ(Texts(), (Lines{"3", "50", "4", "20", "", "", ""}));
}

TEST_F(SteppingThroughRooms, ShowsEachRoomWithAZeroLeftEmpty) {
    AddRooms(2);
    Open();
    ClickOn(PreviousButton);
    EXPECT_EQ(Texts(), SecondRoom);
    EXPECT_EQ(Covering().currentIndex(), 1);
    EXPECT_EQ(Item(), "2");
    EXPECT_TRUE(HasFocus("Text1(0)"));
    ClickOn(PreviousButton);
    EXPECT_EQ(Texts(), FirstRoom);
    EXPECT_EQ(Covering().currentIndex(), 0);
    EXPECT_EQ(Item(), "1");
    ClickOn(NextButton);
    EXPECT_EQ(Texts(), SecondRoom);
    ClickOn(NextButton);
    EXPECT_EQ(Texts(), Empty);
    EXPECT_EQ(Item(), "3");
    EXPECT_EQ(TakeRooms(state), project.StoredRooms) << "looking at rooms changes none";
}

TEST_F(SteppingThroughRooms, LeavesStoredTextsOfAnyCharactersAsTheyAre) {
    AddRooms(30);
    std::mt19937 random(20260314);
    for (Integer i = 0; i < state.ObjNum; ++i) {
        state.RoomNoStr[i] = RandomText(random, 12);
        state.RoomRemark[i] = RandomText(random, 300);
    }
    project.StoredRooms = TakeRooms(state);
    Open();
    for (Integer i = 0; i < state.ObjNum; ++i) {
        ClickOn(PreviousButton);
    }
    EXPECT_EQ(Item(), "1");
    ClickOn(NextButton);
    EXPECT_EQ(TakeRooms(state), project.StoredRooms);
}

TEST_F(SteppingThroughRooms, StoresAChangedRoomInBothDirections) {
    AddRooms(3);
    Open();
    ClickOn(PreviousButton);
    TypeInto(6, "!");
    ClickOn(PreviousButton);
    EXPECT_EQ(state.RoomRemark[2], "remark 2!");
    TypeInto(5, "?");
    ClickOn(NextButton);
    EXPECT_EQ(state.RoomNoStr[1], "N1?");
    EXPECT_EQ(state.ObjNum, 3);
}

TEST_F(SteppingThroughRooms, StoresATypedNewRoomWhenItStepsBack) {
    AddRooms(1);
    Open();
    TypeSizes({"1", "2", "3", "4"});
    ClickOn(PreviousButton);
    EXPECT_EQ(state.ObjNum, 2);
    EXPECT_EQ(state.RoomWidth[1], 14);
    EXPECT_EQ(state.RoomLength[1], 40);
    EXPECT_EQ(Texts(), FirstRoom);
    EXPECT_EQ(Item(), "1");
}

TEST_F(SteppingThroughRooms, OnlyTakesTheFocusBeforeTheFirstRoom) {
    AddRooms(1);
    Open();
    ClickOn(PreviousButton);
    TypeInto(6, "!");
    ClickOn(PreviousButton);
    EXPECT_EQ(Item(), "1");
    EXPECT_EQ(Texts()[6], "remark 0!") << "what was typed stays on the screen";
    EXPECT_EQ(TakeRooms(state), project.StoredRooms);
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_TRUE(HasFocus("Text1(0)"));
}

TEST_F(SteppingThroughRooms, DoesNothingWithoutSizesButStepBack) {
    AddRooms(1);
    Open();
    TypeInto(6, "remark");
    ClickOn(NextButton);
    EXPECT_EQ(Item(), "2");
    EXPECT_EQ(Texts()[6], "remark");
    EXPECT_TRUE(HasFocus("Text1(0)"));
    ClickOn(PreviousButton);
    EXPECT_EQ(Texts(), FirstRoom);
    EXPECT_EQ(state.ObjNum, 1);
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(SteppingThroughRooms, RefusesANewRoomWithOneSize) {
    AddRooms(1);
    Open();
    TypeSizes({"12"});
    ClickOn(NextButton);
    EXPECT_EQ(boxes.Messages, Lines{WrongSize});
    EXPECT_EQ(Item(), "2");
    EXPECT_EQ(Texts()[0], "12");
    EXPECT_EQ(state.ObjNum, 1);
    EXPECT_TRUE(HasFocus("Text1(0)"));
    ClickOn(PreviousButton);
    EXPECT_EQ(boxes.Messages, (Lines{WrongSize, WrongSize}));
    EXPECT_EQ(Texts(), FirstRoom);
    EXPECT_EQ(state.ObjNum, 1);
}

TEST_F(SteppingThroughRooms, StoresARoomWhoseSizesWereErased) {
    AddRooms(1);
    Open();
    ClickOn(PreviousButton);
    for (const int field : {0, 2}) {
        Focus(Text(field));
        Press(*form, Qt::Key_A, Qt::ControlModifier);
        Press(*form, Qt::Key_Delete);
    }
    ClickOn(NextButton);
    EXPECT_EQ(state.RoomWidth[0], 0);
    EXPECT_EQ(state.RoomLength[0], 0);
    EXPECT_EQ(state.ObjNum, 1);
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
                ClickOn(PreviousButton);
            } else {
                TypeSizes({"12", "1", "", ""});
            }
            const std::string item = Item();
            Paste(each.Field, each.Text);
            for (const char* button :
                 {NextButton, PreviousButton, SaveButton, "Command3", "RepMnu"}) {
                if (existing && button == PreviousButton) {
                    continue; // there is no room before the first
                }
                boxes.Messages.clear();
                ClickOn(button);
                EXPECT_EQ(boxes.Messages, Lines{WrongSize}) << button;
                EXPECT_TRUE(Text(each.Field).hasFocus()) << button;
                EXPECT_EQ(FromQt(Text(each.Field).text()), each.Text) << button;
                EXPECT_EQ(Item(), item) << button;
                EXPECT_TRUE(Find(*form, "Frame1").isVisible()) << button;
            }
            EXPECT_EQ(TakeRooms(state), project.StoredRooms);
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
    for (const char* button : {NextButton, PreviousButton, SaveButton, "Command3", "RepMnu"}) {
        boxes.Messages.clear();
        ClickOn(button);
        EXPECT_EQ(boxes.Messages, Lines{"The project is full: it can hold 501 rooms."}) << button;
        EXPECT_EQ(Texts(), typed) << button;
        EXPECT_EQ(Item(), "502") << button;
    }
    EXPECT_TRUE(screens.Calls.empty());
    EXPECT_EQ(TakeRooms(state), project.StoredRooms);
    boxes.YesNo = {true};
    ClickOn(DeleteButton);
    EXPECT_EQ(Texts(), Empty);
    EXPECT_EQ(state.ObjNum, 501);
    boxes.Messages.clear();
    ClickOn(NextButton);
    EXPECT_EQ(Item(), "502");
    EXPECT_TRUE(boxes.Messages.empty()) << "an empty room is not refused";
    ClickOn(PreviousButton);
    EXPECT_EQ(Item(), "501");
    EXPECT_EQ(Texts()[5], "N500");
}

TEST_F(SteppingThroughRooms, SaysOverflowOnceAndKeepsWhatWasTyped) {
    AddRooms(1);
    Open();
    Paste(0, "2731");
    TypeInto(2, "10");
    for (const char* button : {NextButton, PreviousButton, SaveButton, "Command3", "RepMnu"}) {
        boxes.Messages.clear();
        ClickOn(button);
        ASSERT_EQ(boxes.Messages.size(), 1U) << button;
        EXPECT_TRUE(boxes.Messages[0].starts_with("Run-time error '6':\r\n\r\nOverflow\r\n"));
        EXPECT_TRUE(
            boxes.Messages[0].ends_with("The width of a room can be 32767 inches at most."));
        EXPECT_EQ(Texts()[0], "2731") << button;
        EXPECT_EQ(Item(), "2") << button;
    }
    EXPECT_EQ(TakeRooms(state), project.StoredRooms);
    EXPECT_TRUE(screens.Calls.empty());
    boxes.Messages.clear();
    Paste(0, "1e400");
    EXPECT_TRUE(boxes.Messages.empty());
    ClickOn(NextButton);
    EXPECT_EQ(boxes.Messages.size(), 1U);
    EXPECT_EQ(Texts()[0], "1e400");
    EXPECT_TRUE(HasFocus("Text1(0)"));
}

TEST_F(SteppingThroughRooms, KeepsACoveringThatCannotBeChosen) {
    AddRooms(1);
    state.RoomCarpet[0] = 12;
    state.RoomBase[0] = 9;
    Open();
    ClickOn(PreviousButton);
    EXPECT_EQ(Covering().currentIndex(), -1);
    EXPECT_EQ(Texts()[4], "");
    ClickOn(NextButton);
    EXPECT_EQ(state.RoomCarpet[0], 12);
    EXPECT_EQ(Covering().currentIndex(), 0) << "a new room has a covering";
    ClickOn(PreviousButton);
    Focus(Covering());
    Type(Covering(), "TILE-4");
    ClickOn(NextButton);
    EXPECT_EQ(state.RoomCarpet[0], 11);
}

TEST_F(SteppingThroughRooms, ChangesNoBaseCodeInPassing) {
    state.MetricFlag = 1;
    AddRooms(3);
    for (Integer i = 0; i < 3; ++i) {
        state.RoomBase[i] = static_cast<Byte>(9 + 100 * i);
    }
    project.StoredRooms = TakeRooms(state);
    Open();
    ClickOn(PreviousButton);
    ClickOn(PreviousButton);
    ClickOn(PreviousButton);
    ClickOn(NextButton);
    EXPECT_EQ(TakeRooms(state), project.StoredRooms);
    EXPECT_FALSE(project.TypedInMetric);
}

TEST_F(SteppingThroughRooms, ShowsElevenFeetThirteenAsTwelveFeetOne) {
    Open();
    TypeSizes({"11", "13", "1", ""});
    ClickOn(NextButton);
    EXPECT_EQ(state.RoomWidth[0], 145);
    ClickOn(PreviousButton);
    EXPECT_EQ(Texts()[0], "12");
    EXPECT_EQ(Texts()[1], "1");
}

TEST_F(DeletingRooms, AsksAndLeavesEverythingWhenDeclined) {
    AddRooms(2);
    Open();
    ClickOn(PreviousButton);
    TypeInto(6, "!");
    boxes.YesNo = {false};
    ClickOn(DeleteButton);
    EXPECT_EQ(boxes.Questions, Lines{"Really want to delete current data?"});
    EXPECT_EQ(Texts()[6], "remark 1!");
    EXPECT_EQ(TakeRooms(state), project.StoredRooms);
    EXPECT_FALSE(Text(0).hasFocus()) << "the focus stays where it was";
    ClickOn(PreviousButton);
    EXPECT_EQ(state.RoomRemark[1], "remark 1!");
}

TEST_F(DeletingRooms, ShowsTheRoomThatMovedUp) {
    AddRooms(3);
    Open();
    ClickOn(PreviousButton);
    ClickOn(PreviousButton);
    ClickOn(PreviousButton);
    boxes.YesNo = {true, true, true, true};
    ClickOn(DeleteButton);
    EXPECT_EQ(state.ObjNum, 2);
    EXPECT_EQ(Texts(), SecondRoom);
    EXPECT_EQ(Item(), "1");
    EXPECT_TRUE(HasFocus("Text1(0)"));
    ClickOn(DeleteButton);
    ClickOn(DeleteButton);
    EXPECT_EQ(state.ObjNum, 0);
    EXPECT_EQ(Texts(), Empty);
    EXPECT_EQ(Item(), "1");
    TypeInto(6, "typed");
    ClickOn(DeleteButton);
    EXPECT_EQ(Texts(), Empty) << "the new room is emptied";
    EXPECT_EQ(state.ObjNum, 0);
}

} // namespace
} // namespace tarn
