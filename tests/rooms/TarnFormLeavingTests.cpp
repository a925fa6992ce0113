// The room entry screen: ESTIMATE, BACK and closing.

#include "app/RunTimeError.h"
#include "app/ScreenWindow.h"
#include "rooms/RoomScreenTesting.h"

namespace tarn {
namespace {

using namespace tarn::testing;

using OpeningTheEstimate = RoomScreen;

TEST_F(OpeningTheEstimate, TakesTheRoomFirst) {
    Open();
    TypeSizes({"12", "6", "14", ""});
    ClickOn("Command3");
    EXPECT_EQ(screens.Calls, Lines{"estimate from rooms"});
    EXPECT_EQ(state.ObjNum, 1);
    EXPECT_EQ(state.RoomWidth[0], 150);
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(OpeningTheEstimate, NeedsARoom) {
    Open();
    ClickOn("Command3");
    EXPECT_EQ(boxes.Messages, Lines{"There is no data to estimate. Please fill in the room "
                                    "information before estimating."});
    EXPECT_TRUE(screens.Calls.empty());
}

TEST_F(OpeningTheEstimate, SaysBothOfAHalfTypedFirstRoom) {
    Open();
    TypeSizes({"12"});
    ClickOn("Command3");
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
    ClickOn("Command3");
    EXPECT_EQ(boxes.Messages, Lines{WrongSize});
    EXPECT_EQ(screens.Calls, Lines{"estimate from rooms"});
    form->setEnabled(false);
    form->Uncover();
    EXPECT_EQ(Texts(), typed);
    EXPECT_EQ(Item(), "2");
    EXPECT_TRUE(HasFocus("Text1(0)"));
    TypeInto(2, "10");
    ClickOn(NextButton);
    EXPECT_EQ(state.RoomRemark[1], "hall");
}

TEST_F(OpeningTheEstimate, TakesBackTheRoomWhenItFails) {
    Open();
    TypeSizes({"12", "6", "14", ""});
    screens.OnCall = [] { RaiseSubscript(); };
    ClickOn("Command3");
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_TRUE(boxes.Messages[0].starts_with("Run-time error '9':"));
    EXPECT_EQ(state.ObjNum, 0);
    EXPECT_EQ(Texts()[0], "12");
    screens.OnCall = nullptr;
    ClickOn("Command3");
    EXPECT_EQ(state.ObjNum, 1);
}

enum class Exit { Back, FileClose, Frame };

class LeavingTheRooms : public RoomScreen, public ::testing::WithParamInterface<Exit> {
  protected:
    void Leave() {
        switch (GetParam()) {
        case Exit::Back:
            ClickOn("Back");
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
    EXPECT_EQ(state.ObjNum, 2);
    EXPECT_EQ(TakeRoom(state, 1), (RoomRecord{150, 168, 0, 0, "", "hall"}));
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_P(LeavingTheRooms, TakesAChangedRoomIntoMemory) {
    AddRooms(2);
    Open();
    ClickOn(PreviousButton);
    TypeInto(6, "!");
    Leave();
    EXPECT_EQ(state.ObjNum, 2);
    EXPECT_EQ(state.RoomRemark[1], "remark 1!");
}

TEST_P(LeavingTheRooms, ChangesNothingOfARoomThatWasOnlyLookedAt) {
    state.MetricFlag = 1;
    AddRooms(1);
    state.RoomBase[0] = 9;
    state.RoomCarpet[0] = 12;
    project.StoredRooms = TakeRooms(state);
    Open();
    ClickOn(PreviousButton);
    Leave();
    EXPECT_EQ(TakeRooms(state), project.StoredRooms);
    EXPECT_FALSE(project.TypedInMetric);
}

TEST_P(LeavingTheRooms, SaysNothingOfWhatCannotBeTaken) {
    AddRooms(1);
    const Lines cases[] = {{"12", "", "", ""},
                           {"12", "6 1/2", "10", ""},
                           {"2731", "", "10", ""},
                           {"-12", "", "10", ""},
                           {"", "", "", ""}};
    for (const Lines& sizes : cases) {
        Open();
        for (int i = 0; i < 4; ++i) {
            Paste(i, sizes[static_cast<std::size_t>(i)]);
        }
        TypeInto(6, "hall");
        Leave();
        EXPECT_TRUE(boxes.Messages.empty());
        EXPECT_EQ(TakeRooms(state), project.StoredRooms);
        screens.Calls.clear();
    }
}

TEST_P(LeavingTheRooms, LeavesARoomWithABadSizeAsItWas) {
    AddRooms(2);
    for (const char* size : {"12'6", "-12", "2731", "1e400"}) {
        Open();
        ClickOn(PreviousButton);
        TypeInto(6, "!");
        Paste(2, size);
        Leave();
        EXPECT_TRUE(boxes.Messages.empty()) << size;
        EXPECT_EQ(TakeRooms(state), project.StoredRooms) << size;
        screens.Calls.clear();
    }
}

TEST_P(LeavingTheRooms, SaysNothingOfThe502ndRoom) {
    AddRooms(501);
    Open();
    TypeSizes({"12", "", "10", ""});
    Leave();
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_EQ(TakeRooms(state), project.StoredRooms);
}

TEST_P(LeavingTheRooms, StaysWithEverythingWhenTheMenuCannotBeShown) {
    Open();
    TypeSizes({"12", "6", "14", ""});
    screens.OnCall = [] { throw DatabaseError("The file is gone."); };
    Leave();
    EXPECT_EQ(boxes.Messages, Lines{"The screen could not be closed. The file is gone."});
    EXPECT_EQ(Texts()[0], "12");
    EXPECT_EQ(state.ObjNum, 1);
    ClickOn(NextButton);
    EXPECT_EQ(state.ObjNum, 1) << "the room is not stored twice";
}

/// The program's way between the room entry and the estimate, with the screen above left out.
struct CoveredRooms : RoomScreen {
    struct Above : Screen {
        using Screen::Screen;
        void OnCloseByFrame() override {}
    };
};

TEST_F(CoveredRooms, ComeBackAsTheyWereTyped) {
    AddRooms(1);
    ScreenWindow window;
    auto* rooms = new TarnForm(session);
    window.Replace(std::unique_ptr<Screen>(rooms));
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    screens.OnCall = [&] {
        window.Cover(std::make_unique<Above>(session, QStringLiteral("Above")));
    };
    auto& remark = Find<QLineEdit>(*rooms, "Text1(6)");
    Type(Find(*rooms, "Text1(0)"), "12");
    Type(remark, "hall");
    Click(Find(*rooms, "Command3"));
    EXPECT_FALSE(rooms->isVisible());
    rooms->CloseByFrame();
    EXPECT_EQ(screens.Calls, Lines{"estimate from rooms"}) << "a disabled screen does not close";
    window.Uncover();
    EXPECT_TRUE(rooms->isVisible());
    EXPECT_EQ(remark.text(), QStringLiteral("hall"));
    auto& width = Find<QLineEdit>(*rooms, "Text1(0)");
    EXPECT_EQ(width.text(), QStringLiteral("12"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return width.hasFocus(); }));
}

} // namespace
} // namespace tarn
