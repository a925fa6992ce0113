// The room entry screen: SAVE.

#include "screens/rooms/RoomScreenTesting.h"
#include "store/TestDatabase.h"

namespace tarn {
namespace {

using namespace tarn::testing;

struct SavingRooms : RoomScreenTest {
    SavingRooms() {
        file.AddProject("MARCH", "MILL", 5, 2);
        store = file.Open(ShortWait);
        LoadStored();
    }
    void LoadStored() {
        open.Now = store.Load("MILL").Value;
        open.Saved = open.Now;
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
    ClickOn(Controls::saveRooms);
    EXPECT_EQ(boxes.Messages, Lines{"Data is saved"});
    EXPECT_EQ(Stored(), NewRooms);
    EXPECT_FALSE(open.HasUnsavedRooms());
    EXPECT_EQ(Texts(), (Lines{"12", "6", "14", "", "", "", "hall"})) << "it stays on the screen";
    EXPECT_EQ(Item(), "3");
    EXPECT_TRUE(HasFocus(Controls::roomWidthMajor));
    ClickOn(Controls::saveRooms);
    EXPECT_EQ(Stored(), NewRooms) << "saved twice, stored once";
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(Item(), "4");
}

TEST_F(SavingRooms, IsDoneByTheFileMenuToo) {
    Open();
    TypeSizes({"12", "6", "14", ""});
    TypeInto(6, "hall");
    ChooseFileItem(Qt::Key_S);
    EXPECT_EQ(boxes.Messages, Lines{"Data is saved"});
    EXPECT_EQ(Stored(), NewRooms);
    EXPECT_TRUE(HasFocus(Controls::roomWidthMajor));
}

TEST_F(SavingRooms, SavesTheOthersBesideAHalfTypedRoom) {
    Open();
    ClickOn(Controls::previousRoom);
    TypeInto(6, "hall");
    ClickOn(Controls::nextRoom);
    TypeSizes({"12", "6", "", ""});
    ClickOn(Controls::saveRooms);
    EXPECT_EQ(boxes.Messages, (Lines{WrongSize, "Data is saved"}));
    EXPECT_EQ(Stored(), (Lines{"0|100|200|", "1|101|201|hall", "2"}));
    EXPECT_EQ(Texts()[0], "12") << "the half-typed room stays";
}

TEST_F(SavingRooms, KeepsABaseCodeWithoutAText) {
    file.Run("UPDATE InputData SET BaseSty = 9 WHERE ObjNum = 1");
    LoadStored();
    Open();
    ClickOn(Controls::previousRoom);
    TypeInto(6, "hall");
    ClickOn(Controls::saveRooms);
    EXPECT_EQ(boxes.Messages, Lines{"Data is saved"});
    EXPECT_EQ(file.Rows("SELECT BaseSty, RoomRemark FROM InputData WHERE ObjNum = 1"),
              Lines{"9|hall"});
}

TEST_F(SavingRooms, SavesAnEmptyProject) {
    open.Now.Rooms.clear();
    Open();
    ClickOn(Controls::saveRooms);
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
        ClickOn(Controls::saveRooms);
        other.Run("ROLLBACK");
    }
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_TRUE(boxes.Messages[0].starts_with("The project could not be saved. "))
        << boxes.Messages[0];
    EXPECT_TRUE(boxes.Messages[0].ends_with("another program is using the database. "
                                            "Close that program and try again."))
        << boxes.Messages[0];
    EXPECT_EQ(Stored(), OldRooms);
    EXPECT_EQ(open.Now.Rooms.size(), 3U);
    EXPECT_EQ(open.Now.Rooms.at(2).Remark, "hall");
    EXPECT_TRUE(open.HasUnsavedRooms());
    EXPECT_EQ(Texts(), (Lines{"12", "6", "14", "", "", "", "hall"}));
    EXPECT_TRUE(HasFocus(Controls::roomWidthMajor));
    boxes.Messages.clear();
    ClickOn(Controls::saveRooms);
    EXPECT_EQ(boxes.Messages, Lines{"Data is saved"});
    EXPECT_EQ(Stored(), NewRooms);
}

TEST_F(SavingRooms, NamesTheCauseWhenTheDatabaseIsGone) {
    Open();
    store = ProjectStore::Unavailable("It is gone.");
    TypeSizes({"12", "6", "14", ""});
    ClickOn(Controls::saveRooms);
    EXPECT_EQ(boxes.Messages, Lines{"The project could not be saved. It is gone."});
    EXPECT_EQ(open.Now.Rooms.size(), 3U);
    EXPECT_EQ(Texts()[0], "12");
}

TEST_F(SavingRooms, TakesBackTheRoomWhenTheSheetNumbersRunOut) {
    file.Run("UPDATE MainTab SET TabIndex = 32767, ProjName = 'OTHER'");
    open.Now.Sheet = 32767;
    Open();
    TypeSizes({"12", "6", "14", ""});
    ClickOn(Controls::saveRooms);
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_TRUE(boxes.Messages[0].starts_with("Run-time error '6':\r\n\r\nOverflow\r\n"
                                              "The project could not be saved."))
        << boxes.Messages[0];
    EXPECT_EQ(open.Now.Rooms, open.Saved.Rooms);
    EXPECT_EQ(Texts()[0], "12");
    EXPECT_EQ(file.Rows("SELECT TabIndex, ProjName FROM MainTab"), Lines{"32767|OTHER"});
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(open.Now.Rooms.size(), 3U) << "it can still be stored";
}

TEST_F(SavingRooms, ThenLeavingStoresNothingMore) {
    Open();
    TypeSizes({"12", "6", "14", ""});
    ClickOn(Controls::leaveRooms);
    EXPECT_EQ(Stored(), OldRooms) << "only SAVE writes";
    EXPECT_TRUE(open.HasUnsavedRooms());
}

/// Both ways to save, from a field that is not the first.
class SavingEitherWay : public SavingRooms, public ::testing::WithParamInterface<bool> {
  protected:
    void Save() const {
        Focus(Text(6));
        if (GetParam()) {
            ChooseFileItem(Qt::Key_S);
        } else {
            ClickOn(Controls::saveRooms);
        }
    }
    /// Make saving fail with a run-time error: no sheet number is left.
    void UseUpSheetNumbers() {
        file.Run("UPDATE MainTab SET TabIndex = 32767, ProjName = 'OTHER'");
        open.Now.Sheet = 32767;
    }
};
INSTANTIATE_TEST_SUITE_P(Ways, SavingEitherWay, ::testing::Bool());

TEST_P(SavingEitherWay, GoesToTheSizesWhenItSaves) {
    Open();
    ClickOn(Controls::previousRoom);
    TypeInto(6, "hall");
    Save();
    EXPECT_EQ(boxes.Messages, Lines{"Data is saved"});
    EXPECT_TRUE(HasFocus(Controls::roomWidthMajor));
}

TEST_P(SavingEitherWay, TakesBackAChangedRoomAndGoesToTheSizesWhenItFails) {
    UseUpSheetNumbers();
    Open();
    ClickOn(Controls::previousRoom);
    TypeInto(6, "hall");
    Save();
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_TRUE(boxes.Messages[0].starts_with("Run-time error '6':\r\n\r\nOverflow\r\n"
                                              "The project could not be saved."))
        << boxes.Messages[0];
    EXPECT_EQ(open.Now.Rooms, open.Saved.Rooms);
    EXPECT_EQ(Texts()[6], "hall") << "what was typed stays";
    EXPECT_EQ(Item(), "2");
    EXPECT_TRUE(HasFocus(Controls::roomWidthMajor));
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(open.Now.Rooms.at(1).Remark, "hall");
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
    EXPECT_EQ(open.Now.Rooms.size(), 3U);
    EXPECT_FALSE(open.HasUnsavedRooms());
}

TEST_F(SavingRooms, NamesRoomsThatAreStoredWithoutASizeOnce) {
    const std::string named =
        "Room 2 has no width or no length: it is stored with 0, and nothing is cut for it.";
    Open();
    ClickOn(Controls::previousRoom);
    for (const int field : {2, 3}) {
        Text(field).selectAll();
        Focus(Text(field));
        Press(*form, Qt::Key_Delete);
    }
    ClickOn(Controls::saveRooms);
    EXPECT_EQ(boxes.Messages, Lines{"Data is saved"});
    EXPECT_EQ(boxes.Informative, Lines{named});
    EXPECT_EQ(Stored(), (Lines{"0|100|200|", "1|101|0|", "2"}));
    ClickOn(Controls::saveRooms);
    EXPECT_EQ(boxes.Informative, (Lines{named, ""}));
    TypeInto(6, "hall");
    ClickOn(Controls::saveRooms);
    EXPECT_EQ(boxes.Informative, (Lines{named, "", named})) << "it was changed";
}

TEST_F(SavingRooms, NamesNoRoomWhenItFails) {
    Open();
    ClickOn(Controls::previousRoom);
    for (const int field : {2, 3}) {
        Text(field).clear();
    }
    store = ProjectStore::Unavailable("It is gone.");
    ClickOn(Controls::saveRooms);
    EXPECT_EQ(boxes.Informative, Lines{""});
}

TEST_F(SavingRooms, StoresThatARoomWasDeleted) {
    Open();
    ClickOn(Controls::previousRoom);
    ClickOn(Controls::previousRoom);
    boxes.YesNo = {true};
    ClickOn(Controls::deleteRoom);
    ClickOn(Controls::saveRooms);
    EXPECT_EQ(Stored(), (Lines{"0|101|201|", "1"}));
    ProjectStore again = file.Open(ShortWait);
    const Project loaded = again.Load("MILL").Value;
    EXPECT_EQ(loaded.Rooms, open.Now.Rooms);
    EXPECT_EQ(loaded.Rooms.size(), 1U);
}

} // namespace
} // namespace tarn
