// The room entry screen: ESTIMATE, BACK and closing.

#include "base/RunTimeError.h"
#include "screens/ScreenWindow.h"
#include "screens/rooms/RoomScreenTesting.h"

namespace tarn {
namespace {

using namespace tarn::testing;

using OpeningTheEstimate = RoomScreenTest;

TEST_F(OpeningTheEstimate, TakesTheRoomFirst) {
    Open();
    TypeSizes({"12", "6", "14", ""});
    ClickOn(Controls::estimateFromRooms);
    EXPECT_EQ(screens.Calls, Lines{"estimate from rooms"});
    EXPECT_EQ(open.Now.Rooms.size(), 1U);
    EXPECT_EQ(open.Now.Rooms.at(0).Width, 150);
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(OpeningTheEstimate, NeedsARoom) {
    Open();
    ClickOn(Controls::estimateFromRooms);
    EXPECT_EQ(boxes.Messages, Lines{"There is no data to estimate. Please fill in the room "
                                    "information before estimating."});
    EXPECT_TRUE(screens.Calls.empty());
}

TEST_F(OpeningTheEstimate, SaysBothOfAHalfTypedFirstRoom) {
    Open();
    TypeSizes({"12"});
    ClickOn(Controls::estimateFromRooms);
    EXPECT_EQ(boxes.Messages,
              (Lines{WrongSize, "There is no data to estimate. Please fill in the room "
                                "information before estimating."}));
    EXPECT_TRUE(screens.Calls.empty());
    EXPECT_EQ(Texts()[0], "12");
}

TEST_F(OpeningTheEstimate, GoesOnWithAHalfTypedRoomAndKeepsIt) {
    AddRooms(1);
    Open();
    TypeSizes({"12"});
    TypeInto(6, "hall");
    const Lines typed = Texts();
    ClickOn(Controls::estimateFromRooms);
    EXPECT_EQ(boxes.Messages, Lines{WrongSize});
    EXPECT_EQ(screens.Calls, Lines{"estimate from rooms"});
    form->setEnabled(false);
    form->Uncover();
    EXPECT_EQ(Texts(), typed);
    EXPECT_EQ(Item(), "2");
    EXPECT_TRUE(HasFocus(Controls::roomWidthMajor));
    TypeInto(2, "10");
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(open.Now.Rooms.at(1).Remark, "hall");
}

TEST_F(OpeningTheEstimate, TakesBackTheRoomWhenItFails) {
    Open();
    TypeSizes({"12", "6", "14", ""});
    screens.OnCall = [] { RaiseSubscript(); };
    ClickOn(Controls::estimateFromRooms);
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_TRUE(boxes.Messages[0].starts_with("Run-time error '9':"));
    EXPECT_TRUE(open.Now.Rooms.empty());
    EXPECT_EQ(Texts()[0], "12");
    screens.OnCall = nullptr;
    ClickOn(Controls::estimateFromRooms);
    EXPECT_EQ(open.Now.Rooms.size(), 1U);
}

enum class Exit { Back, FileClose, Frame };

class LeavingTheRooms : public RoomScreenTest, public ::testing::WithParamInterface<Exit> {
  protected:
    void Leave() {
        switch (GetParam()) {
        case Exit::Back:
            ClickOn(Controls::leaveRooms);
            break;
        case Exit::FileClose:
            ChooseFileItem(Qt::Key_C);
            break;
        case Exit::Frame:
            form->CloseByFrame();
            break;
        }
        EXPECT_EQ(screens.Calls, Lines{"menu returning"});
    }
};
INSTANTIATE_TEST_SUITE_P(Ways, LeavingTheRooms,
                         ::testing::Values(Exit::Back, Exit::FileClose, Exit::Frame));

TEST_P(LeavingTheRooms, TakesANewRoomIntoMemory) {
    AddRooms(1);
    Open();
    TypeSizes({"12", "6", "14", ""});
    TypeInto(6, "hall");
    Leave();
    EXPECT_EQ(open.Now.Rooms.size(), 2U);
    EXPECT_EQ(open.Now.Rooms.at(1), (Room{150, 168, 0, 0, "", "hall"}));
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_P(LeavingTheRooms, TakesAChangedRoomIntoMemory) {
    AddRooms(2);
    Open();
    ClickOn(Controls::previousRoom);
    TypeInto(6, "!");
    Leave();
    EXPECT_EQ(open.Now.Rooms.size(), 2U);
    EXPECT_EQ(open.Now.Rooms.at(1).Remark, "remark 1!");
}

TEST_P(LeavingTheRooms, ChangesNothingOfARoomThatWasOnlyLookedAt) {
    open.Shown = Units::Metric;
    AddRooms(1);
    open.Now.Rooms.at(0).Base = 9;
    open.Now.Rooms.at(0).Covering = 12;
    open.Saved = open.Now;
    Open();
    ClickOn(Controls::previousRoom);
    Leave();
    EXPECT_EQ(open.Now.Rooms, open.Saved.Rooms);
    EXPECT_EQ(open.Now.EnteredIn, Units::Imperial);
}

TEST_P(LeavingTheRooms, SaysNothingOfWhatCannotBeTaken) {
    AddRooms(1);
    const Lines cases[] = {{"12", "", "", ""},
                           {"12", "6 1/2", "10", ""},
                           {"2731", "", "10", ""},
                           {"-12", "", "10", ""},
                           {"", "", "", ""}};
    for (const Lines& sizes : cases) {
        open.Typed = {}; // which would stand in the fields again
        Open();
        for (int i = 0; i < 4; ++i) {
            Paste(i, sizes[static_cast<std::size_t>(i)]);
        }
        TypeInto(6, "hall");
        Leave();
        EXPECT_TRUE(boxes.Messages.empty());
        EXPECT_EQ(open.Now.Rooms, open.Saved.Rooms);
        screens.Calls.clear();
    }
}

TEST_P(LeavingTheRooms, LeavesARoomWithABadSizeAsItWas) {
    AddRooms(2);
    for (const char* size : {"12'6", "-12", "2731", "1e400"}) {
        open.Typed = {}; // which would stand in the fields again
        Open();
        ClickOn(Controls::previousRoom);
        TypeInto(6, "!");
        Paste(2, size);
        Leave();
        EXPECT_TRUE(boxes.Messages.empty()) << size;
        EXPECT_EQ(open.Now.Rooms, open.Saved.Rooms) << size;
        screens.Calls.clear();
    }
}

TEST_P(LeavingTheRooms, SaysNothingOfThe502ndRoom) {
    AddRooms(501);
    Open();
    TypeSizes({"12", "", "10", ""});
    Leave();
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_EQ(open.Now.Rooms, open.Saved.Rooms);
}

TEST_P(LeavingTheRooms, StaysWithEverythingWhenTheMenuCannotBeShown) {
    Open();
    TypeSizes({"12", "6", "14", ""});
    screens.OnCall = [] { throw DatabaseError("The file is gone."); };
    Leave();
    EXPECT_EQ(boxes.Messages, Lines{"The screen could not be closed. The file is gone."});
    EXPECT_EQ(Texts()[0], "12");
    EXPECT_EQ(open.Now.Rooms.size(), 1U);
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(open.Now.Rooms.size(), 1U) << "the room is not stored twice";
}

/// The program's way between the room entry and the estimate, with the screen above left out.
struct CoveredRooms : RoomScreenTest {
    struct Above : Screen {
        using Screen::Screen;
        void OnCloseByFrame() override {}
    };
};

TEST_F(CoveredRooms, ComeBackAsTheyWereTyped) {
    AddRooms(1);
    ScreenWindow window;
    auto* rooms = new RoomScreen(session);
    window.Replace(std::unique_ptr<Screen>(rooms));
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    screens.OnCall = [&] {
        window.Cover(std::make_unique<Above>(session, QStringLiteral("Above")));
    };
    auto& remark = Find<QLineEdit>(*rooms, Controls::remark);
    Type(Find(*rooms, Controls::roomWidthMajor), "12");
    Type(remark, "hall");
    Click(Find(*rooms, Controls::estimateFromRooms));
    EXPECT_FALSE(rooms->isVisible());
    rooms->CloseByFrame();
    EXPECT_EQ(screens.Calls, Lines{"estimate from rooms"}) << "a disabled screen does not close";
    window.Uncover();
    EXPECT_TRUE(rooms->isVisible());
    EXPECT_EQ(remark.text(), QStringLiteral("hall"));
    auto& width = Find<QLineEdit>(*rooms, Controls::roomWidthMajor);
    EXPECT_EQ(width.text(), QStringLiteral("12"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return width.hasFocus(); }));
}

} // namespace
} // namespace tarn
