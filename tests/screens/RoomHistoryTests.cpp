#include "base/RunTimeError.h"
#include "project/RoomEntry.h"
#include "project/RoomTesting.h"
#include "screens/OpenProject.h"
#include "screens/RoomHistory.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using namespace tarn::testing;

using Rooms = std::vector<Room>;

/// A project of three rooms, loaded, and its history.
struct RoomHistories : ::testing::Test {
    RoomHistories() {
        file.AddProject("MARCH", "P", 5, 3);
        Load();
        history.Follow();
    }
    void Load() {
        LoadedProject loaded = store.Load("P");
        open.Now = loaded.Value;
        open.Now.Name = "P";
        open.Saved = open.Now;
        open.Read = loaded.Mark;
    }
    Rooms& Now() { return open.Now.Rooms; }
    void Add(Integer width) {
        history.Do(Now().size(), [&] { Now().push_back({width, 9, 0, 0, "", ""}); });
    }
    void Delete(std::size_t room) {
        history.Do(room, [&] { DeleteRoom(open.Now, room); });
    }
    void Save() {
        ASSERT_EQ(SaveOpenProject(open, store), SaveResult::Outcome::Saved);
        history.NoteSaved();
    }

    TestDatabase file;
    ProjectStore store = file.Open(ShortWait);
    OpenProject open;
    RoomHistory history{open};
};

TEST_F(RoomHistories, BeginWithNothing) {
    EXPECT_FALSE(history.CanUndo());
    EXPECT_FALSE(history.CanRedo());
    EXPECT_EQ(history.UndoName(), "");
    EXPECT_EQ(history.RedoName(), "");
    EXPECT_EQ(history.RoomsAfterUndo(), Now());
}

TEST_F(RoomHistories, NoteNothingWhereNothingChanges) {
    history.Do(1, [&] { Now()[1] = Room(Now()[1]); });
    history.Do(1, [&] { open.Now.EnteredIn = Units::Metric; });
    EXPECT_FALSE(history.CanUndo());
}

TEST_F(RoomHistories, TakeBackAndMakeAgain) {
    const Rooms before = Now();
    history.Do(1, [&] { Now()[1].Remark = "hall"; });
    const Rooms after = Now();
    EXPECT_EQ(history.UndoName(), "change room 2");
    EXPECT_EQ(history.RoomsAfterUndo(), before);
    EXPECT_EQ(Now(), after) << "nothing is taken back by a look";
    EXPECT_EQ(history.Undo(), 1U);
    EXPECT_EQ(Now(), before);
    EXPECT_EQ(history.UndoName(), "");
    EXPECT_EQ(history.RedoName(), "change room 2");
    EXPECT_EQ(history.Redo(), 1U);
    EXPECT_EQ(Now(), after);
    EXPECT_FALSE(history.CanRedo());
}

TEST_F(RoomHistories, PutADeletedRoomBackWithAllThatItHad) {
    const Room odd{-7, 3, 200, 250, "\u0085", std::string(300, 'r')};
    history.Do(1, [&] { Now()[1] = odd; });
    const Rooms before = Now();
    Delete(1);
    EXPECT_EQ(history.UndoName(), "delete room 2");
    EXPECT_EQ(history.Undo(), 1U);
    EXPECT_EQ(Now(), before);
    EXPECT_EQ(history.Redo(), 1U);
    EXPECT_EQ(Now().size(), 2U);
}

TEST_F(RoomHistories, ForgetWhatANewChangeReplaces) {
    Add(1);
    Add(2);
    history.Undo();
    Add(3);
    EXPECT_FALSE(history.CanRedo());
    EXPECT_EQ(history.UndoName(), "new room 5");
    history.Undo();
    history.Undo();
    EXPECT_EQ(Now(), open.Saved.Rooms);
}

TEST_F(RoomHistories, KeepTheUnitsWithTheRooms) {
    open.Shown = Units::Metric;
    history.Do(0, [&] {
        StoreRoom(open.Now, Units::Metric, 0, {{"1", "2"}, {"3", ""}, {}, "", "", ""});
    });
    EXPECT_EQ(open.Now.EnteredIn, Units::Metric);
    history.Undo();
    EXPECT_EQ(open.Now.EnteredIn, Units::Imperial);
    history.Redo();
    EXPECT_EQ(open.Now.EnteredIn, Units::Metric);
}

TEST_F(RoomHistories, GoOnAcrossASave) {
    Delete(0);
    Save();
    EXPECT_FALSE(open.HasUnsavedRooms());
    history.Undo();
    EXPECT_TRUE(open.HasUnsavedRooms());
    Save();
    EXPECT_EQ(store.Load("P").Value.Rooms.size(), 3U);
    history.Redo();
    EXPECT_EQ(Now().size(), 2U);
}

TEST_F(RoomHistories, KeepTheUnitsThatASaveGaveToAProjectWithoutRooms) {
    open.Now.EnteredIn = Units::Metric;
    Delete(0);
    Delete(0);
    Delete(0);
    Save();
    EXPECT_EQ(open.Now.EnteredIn, Units::Imperial) << "there is nothing that was typed in metric";
    history.Undo();
    EXPECT_EQ(open.Now.EnteredIn, Units::Metric);
    history.Redo();
    EXPECT_EQ(open.Now.EnteredIn, Units::Imperial);
}

TEST_F(RoomHistories, StayWhenTheSameRoomsAreLoadedAgain) {
    Add(1);
    Save();
    Load();
    history.Follow();
    EXPECT_EQ(history.UndoName(), "new room 4");
}

TEST_F(RoomHistories, EndWithOtherRoomsOrAnotherProject) {
    Add(1);
    open.Now.Rooms[0].Width = 77; // another program's
    history.Follow();
    EXPECT_FALSE(history.CanUndo());
    Add(2);
    open.Now.Name = "Q";
    Add(3);
    EXPECT_EQ(history.UndoName(), "new room 6");
    history.Undo();
    EXPECT_FALSE(history.CanUndo()) << "the steps of P are no steps of Q";
}

TEST_F(RoomHistories, StayWithAProjectThatIsSavedUnderAnotherName) {
    Add(1);
    open.Now.Name = "Q";
    history.NoteSaved();
    history.Follow();
    EXPECT_TRUE(history.CanUndo());
}

TEST_F(RoomHistories, NoteWhatAnActionDidBeforeItFailed) {
    EXPECT_THROW(history.Do(3,
                            [&] {
                                Now().emplace_back();
                                RaiseSubscript();
                            }),
                 RunTimeError);
    EXPECT_EQ(history.UndoName(), "new room 4");
}

TEST_F(RoomHistories, ForgetStepsThatWereTakenBackOtherwise) {
    Add(1);
    const Rooms before = Now();
    const int position = history.Position();
    Add(2);
    Add(3);
    Now() = before;
    history.ForgetBehind(position);
    EXPECT_EQ(Now(), before);
    EXPECT_FALSE(history.CanRedo());
    EXPECT_EQ(history.UndoName(), "new room 4");
    history.Undo();
    EXPECT_EQ(Now(), open.Saved.Rooms);
    history.Redo();
    EXPECT_EQ(Now(), before);
}

TEST_F(RoomHistories, ChangeNothingWhereRoomsWouldHaveNoExtent) {
    Now()[0] = {32767, 1, 0, 0, "", ""};
    history.Follow();
    Delete(0);
    const Project before = open.Now;
    open.Now.Scale = 9.5e-35; // in centimetres it would have one
    EXPECT_THROW(history.Undo(), RunTimeError);
    EXPECT_EQ(Now(), before.Rooms);
    EXPECT_TRUE(history.CanUndo());
    open.Shown = Units::Metric;
    history.Undo();
    EXPECT_EQ(Now().size(), 3U);
}

TEST_F(RoomHistories, HaveTheNameThatAnActionIsGiven) {
    history.Do(
        AnyRoom, [&] { Now().clear(); }, "Take back rooms of 22 Nov 14:05");
    EXPECT_EQ(history.UndoName(), "Take back rooms of 22 Nov 14:05");
    EXPECT_EQ(history.Undo(), 0U);
    EXPECT_EQ(Now(), open.Saved.Rooms);
}

TEST_F(RoomHistories, TellOfEveryStep) {
    int told = 0;
    {
        QObject context;
        history.OnChange(context, [&] { ++told; });
        Add(1);
        EXPECT_EQ(told, 1);
        history.Undo();
        EXPECT_EQ(told, 2);
        history.Redo();
        EXPECT_EQ(told, 3);
        history.Clear();
        EXPECT_EQ(told, 4);
    }
    Add(2);
    EXPECT_EQ(told, 4) << "nobody listens any more";
}

/// Rooms and units, as a history that is written otherwise keeps them: whole, one state for each
/// step.
struct State {
    Rooms Of;
    Units EnteredIn = Units::Imperial;

    bool operator==(const State&) const = default;
};

class AnyHistory : public RoomHistories, public ::testing::WithParamInterface<unsigned> {
  protected:
    AnyHistory()
        : random_(GetParam()) {
        states_.push_back(Present());
    }
    State Present() const { return {open.Now.Rooms, open.Now.EnteredIn}; }
    int Any(int bound) { return Below(random_, bound); }
    std::size_t AnyPlace() {
        return static_cast<std::size_t>(Any(static_cast<int>(Now().size()) + 1));
    }
    RoomDraft AnyDraft() {
        const auto number = [this] { return std::to_string(Any(3)); };
        return {{number(), ""}, {number(), ""}, static_cast<Byte>(Any(12)), "", number(), ""};
    }
    /// What was done is the state after the present one, unless it changed no room.
    void Note() {
        if (Present().Of != states_.at(at_).Of) {
            states_.resize(++at_);
            states_.push_back(Present());
        } else {
            states_.at(at_) = Present();
        }
    }
    void Act() {
        const int kind = Any(100);
        if (kind < 45) { // a new room, a changed one, or one that is only looked at
            const auto place = AnyPlace();
            const RoomDraft draft = AnyDraft();
            history.Do(place, [&] { StoreRoom(open.Now, open.Shown, place, draft); });
            Note();
        } else if (kind < 65) {
            const auto place = AnyPlace();
            history.Do(place, [&] { DeleteRoom(open.Now, place); });
            Note();
        } else if (kind < 80 && history.CanUndo()) {
            history.Undo();
            --at_;
        } else if (kind < 90 && history.CanRedo()) {
            history.Redo();
            ++at_;
        } else if (kind < 93) {
            Draft draft;
            draft.Rooms = Rooms(AnyPlace(), Room{1, 2, 3, 255, "", "odd"});
            draft.EnteredIn = Units::Metric;
            history.Do(
                AnyRoom, [&] { TakeBack(open, draft); }, "Take back");
            Note();
        } else if (kind < 95) {
            Save();
            states_.at(at_) = Present();
        } else {
            open.Shown = open.Shown == Units::Metric ? Units::Imperial : Units::Metric;
        }
    }

    std::mt19937 random_;
    std::vector<State> states_;
    std::size_t at_ = 0;
};

INSTANTIATE_TEST_SUITE_P(Seeds, AnyHistory, ::testing::Range(1U, 7U));

TEST_P(AnyHistory, LeadsBackToItsBeginningAndToItsEndAgain) {
    SCOPED_TRACE(GetParam());
    for (int i = 0; i < 1000; ++i) {
        Act();
        ASSERT_EQ(Present(), states_.at(at_)) << "after " << i << " actions";
    }
    ASSERT_GT(states_.size(), 20U);
    while (history.CanRedo()) {
        history.Redo();
        ASSERT_EQ(Present(), states_.at(++at_));
    }
    const State end = Present();
    while (history.CanUndo()) {
        history.Undo();
        ASSERT_EQ(Present(), states_.at(--at_));
    }
    EXPECT_EQ(at_, 0U);
    EXPECT_EQ(Now(), states_.front().Of);
    while (history.CanRedo()) {
        history.Redo();
        ASSERT_EQ(Present(), states_.at(++at_));
    }
    EXPECT_EQ(Present(), end);
    EXPECT_EQ(at_ + 1, states_.size());
}

} // namespace
} // namespace tarn
