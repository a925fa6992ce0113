// The room entry screen: SAVE.

#include "rooms/RoomScreenTesting.h"
#include "store/TestDatabase.h"

namespace tarn {
namespace {

using namespace tarn::testing;

struct SavingRooms : RoomScreen {
    SavingRooms() {
        file.AddProject("MARCH", "MILL", 5, 2);
        file.OpenInto(state, ShortWait);
        state.CurProjName = "MILL";
        EXPECT_EQ(LoadOpenProject(state, project).Result, ProjectLoad::Outcome::Loaded);
    }
    /// The rooms stored, and the count on the sheet.
    Lines Stored() const {
        Lines rows = file.Rows("SELECT ObjNum, RoomW, RoomL, RoomRemark FROM InputData "
                               "WHERE TabIndex = 5 ORDER BY ObjNum");
        rows.push_back(file.Rows("SELECT ObjNum FROM MainTab WHERE TabIndex = 5").at(0));
        return rows;
    }

    TestDatabase file;
};

const Lines OldRooms{"0|100|200|", "1|101|201|", "2"};
const Lines NewRooms{"0|100|200|", "1|101|201|", "2|150|168|hall", "3"};

TEST_F(SavingRooms, StoresTheRoomOnTheScreenAndAllOthers) {
    Open();
    TypeSizes({"12", "6", "14", ""});
    TypeInto(6, "hall");
    ClickOn(SaveButton);
    EXPECT_EQ(boxes.Messages, Lines{"Data is saved"});
    EXPECT_EQ(Stored(), NewRooms);
    EXPECT_FALSE(HasUnsavedRooms(state, project));
    EXPECT_EQ(Texts(), (Lines{"12", "6", "14", "", "", "", "hall"})) << "it stays on the screen";
    EXPECT_EQ(Item(), "3");
    EXPECT_TRUE(HasFocus("Text1(0)"));
    ClickOn(SaveButton);
    EXPECT_EQ(Stored(), NewRooms) << "saved twice, stored once";
    ClickOn(NextButton);
    EXPECT_EQ(Item(), "4");
}

TEST_F(SavingRooms, IsDoneByTheFileMenuToo) {
    Open();
    TypeSizes({"12", "6", "14", ""});
    TypeInto(6, "hall");
    ChooseFileItem(Qt::Key_S);
    EXPECT_EQ(boxes.Messages, Lines{"Data is saved"});
    EXPECT_EQ(Stored(), NewRooms);
    EXPECT_TRUE(HasFocus("Text1(0)"));
}

TEST_F(SavingRooms, SavesTheOthersBesideAHalfTypedRoom) {
    Open();
    ClickOn(PreviousButton);
    TypeInto(6, "hall");
    ClickOn(NextButton);
    TypeSizes({"12", "6", "", ""});
    ClickOn(SaveButton);
    EXPECT_EQ(boxes.Messages, (Lines{WrongSize, "Data is saved"}));
    EXPECT_EQ(Stored(), (Lines{"0|100|200|", "1|101|201|hall", "2"}));
    EXPECT_EQ(Texts()[0], "12") << "the half-typed room stays";
}

TEST_F(SavingRooms, KeepsABaseCodeWithoutAText) {
    file.Run("UPDATE InputData SET BaseSty = 9 WHERE ObjNum = 1");
    ASSERT_EQ(LoadOpenProject(state, project).Result, ProjectLoad::Outcome::Loaded);
    Open();
    ClickOn(PreviousButton);
    TypeInto(6, "hall");
    ClickOn(SaveButton);
    EXPECT_EQ(boxes.Messages, Lines{"Data is saved"});
    EXPECT_EQ(file.Rows("SELECT BaseSty, RoomRemark FROM InputData WHERE ObjNum = 1"),
              Lines{"9|hall"});
}

TEST_F(SavingRooms, SavesAnEmptyProject) {
    state.ObjNum = 0;
    Open();
    ClickOn(SaveButton);
    EXPECT_EQ(boxes.Messages, Lines{"Data is saved"});
    EXPECT_EQ(Stored(), Lines{"0"});
}

TEST_F(SavingRooms, NamesTheCauseWhenTheDatabaseIsLockedAndKeepsTheRooms) {
    Open();
    TypeSizes({"12", "6", "14", ""});
    TypeInto(6, "hall");
    {
        RawDatabase other(file.Path());
        other.Run("BEGIN EXCLUSIVE");
        ClickOn(SaveButton);
        other.Run("ROLLBACK");
    }
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_EQ(boxes.Messages[0], "The project could not be saved. " + state.DatabaseFailure);
    EXPECT_GT(state.DatabaseFailure.size(), 10U);
    EXPECT_EQ(Stored(), OldRooms);
    EXPECT_EQ(state.ObjNum, 3);
    EXPECT_EQ(state.RoomRemark[2], "hall");
    EXPECT_TRUE(HasUnsavedRooms(state, project));
    EXPECT_EQ(Texts(), (Lines{"12", "6", "14", "", "", "", "hall"}));
    EXPECT_TRUE(HasFocus("Text1(0)"));
    boxes.Messages.clear();
    ClickOn(SaveButton);
    EXPECT_EQ(boxes.Messages, Lines{"Data is saved"});
    EXPECT_EQ(Stored(), NewRooms);
}

TEST_F(SavingRooms, NamesTheCauseWhenTheDatabaseIsGone) {
    Open();
    state.CurDB.reset();
    TypeSizes({"12", "6", "14", ""});
    ClickOn(SaveButton);
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_TRUE(boxes.Messages[0].starts_with("The project could not be saved. "));
    EXPECT_EQ(state.ObjNum, 3);
    EXPECT_EQ(Texts()[0], "12");
}

TEST_F(SavingRooms, TakesBackTheRoomWhenTheSheetNumbersRunOut) {
    file.Run("UPDATE MainTab SET TabIndex = 32767, ProjName = 'OTHER'");
    state.CurTabIndex = 32767;
    Open();
    TypeSizes({"12", "6", "14", ""});
    ClickOn(SaveButton);
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_TRUE(boxes.Messages[0].starts_with("Run-time error '6':\r\n\r\nOverflow\r\n"
                                              "The project could not be saved."))
        << boxes.Messages[0];
    EXPECT_EQ(TakeRooms(state), project.StoredRooms);
    EXPECT_EQ(Texts()[0], "12");
    EXPECT_EQ(file.Rows("SELECT TabIndex, ProjName FROM MainTab"), Lines{"32767|OTHER"});
    ClickOn(NextButton);
    EXPECT_EQ(state.ObjNum, 3) << "it can still be stored";
}

TEST_F(SavingRooms, ThenLeavingStoresNothingMore) {
    Open();
    TypeSizes({"12", "6", "14", ""});
    ClickOn("Back");
    EXPECT_EQ(Stored(), OldRooms) << "only SAVE writes";
    EXPECT_TRUE(HasUnsavedRooms(state, project));
}

/// Both ways to save, from a field that is not the first.
class SavingEitherWay : public SavingRooms, public ::testing::WithParamInterface<bool> {
  protected:
    void Save() const {
        Focus(Text(6));
        if (GetParam()) {
            ChooseFileItem(Qt::Key_S);
        } else {
            ClickOn(SaveButton);
        }
    }
    /// Make saving fail with a run-time error: no sheet number is left.
    void UseUpSheetNumbers() {
        file.Run("UPDATE MainTab SET TabIndex = 32767, ProjName = 'OTHER'");
        state.CurTabIndex = 32767;
    }
};
INSTANTIATE_TEST_SUITE_P(Ways, SavingEitherWay, ::testing::Bool());

TEST_P(SavingEitherWay, GoesToTheSizesWhenItSaves) {
    Open();
    ClickOn(PreviousButton);
    TypeInto(6, "hall");
    Save();
    EXPECT_EQ(boxes.Messages, Lines{"Data is saved"});
    EXPECT_TRUE(HasFocus("Text1(0)"));
}

TEST_P(SavingEitherWay, TakesBackAChangedRoomAndGoesToTheSizesWhenItFails) {
    UseUpSheetNumbers();
    Open();
    ClickOn(PreviousButton);
    TypeInto(6, "hall");
    Save();
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_TRUE(boxes.Messages[0].starts_with("Run-time error '6':\r\n\r\nOverflow\r\n"
                                              "The project could not be saved."))
        << boxes.Messages[0];
    EXPECT_EQ(TakeRooms(state), project.StoredRooms);
    EXPECT_EQ(Texts()[6], "hall") << "what was typed stays";
    EXPECT_EQ(Item(), "2");
    EXPECT_TRUE(HasFocus("Text1(0)"));
    ClickOn(NextButton);
    EXPECT_EQ(state.RoomRemark[1], "hall");
}

TEST_P(SavingEitherWay, KeepsASavedRoomWhenTheMessageFails) {
    Open();
    TypeSizes({"12", "6", "14", ""});
    TypeInto(6, "hall");
    bool failed = false;
    boxes.OnMessage = [&failed] {
        if (!failed) {
            failed = true;
            throw std::runtime_error("The box is gone.");
        }
    };
    Save();
    EXPECT_EQ(boxes.Messages,
              (Lines{"Data is saved", "The project could not be saved. The box is gone."}));
    EXPECT_EQ(Stored(), NewRooms);
    EXPECT_EQ(state.ObjNum, 3);
    EXPECT_FALSE(HasUnsavedRooms(state, project));
}

TEST_F(SavingRooms, StoresThatARoomWasDeleted) {
    Open();
    ClickOn(PreviousButton);
    ClickOn(PreviousButton);
    boxes.YesNo = {true};
    ClickOn(DeleteButton);
    ClickOn(SaveButton);
    EXPECT_EQ(Stored(), (Lines{"0|101|201|", "1"}));
    SharedState again;
    OpenProject loaded;
    file.OpenInto(again, ShortWait);
    again.CurProjName = "MILL";
    EXPECT_EQ(LoadOpenProject(again, loaded).Result, ProjectLoad::Outcome::Loaded);
    EXPECT_EQ(TakeRooms(again), TakeRooms(state));
    EXPECT_EQ(again.ObjNum, 1);
}

} // namespace
} // namespace tarn
