#include "app/RunTimeError.h"
#include "rooms/RoomStore.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using testing::TestDatabase;

using Lines = std::vector<std::string>;

constexpr const char* AllRooms = "SELECT ObjNum, RoomW, RoomL, RoomNoStr, RoomRemark, CTType, "
                                 "BaseSty, TabIndex FROM InputData ORDER BY rowid";

class RoomStore : public ::testing::Test {
  protected:
    RoomStore() { file_.OpenInto(state_); }

    void SetRoom(Integer room, Integer width, Integer length, const std::string& number = {},
                 const std::string& remark = {}, Byte carpet = 0, Byte base = 0) {
        state_.RoomWidth[room] = width;
        state_.RoomLength[room] = length;
        state_.RoomNoStr[room] = number;
        state_.RoomRemark[room] = remark;
        state_.RoomCarpet[room] = carpet;
        state_.RoomBase[room] = base;
    }
    /// Add a stored room by its values, in the order of AllRooms.
    void Store(const std::string& values) {
        file_.Run("INSERT INTO InputData VALUES (" + values + ")");
    }
    /// The number of the RunTimeError that loading sheet 5 raises; 0 for none.
    int ErrorOfLoading() {
        try {
            LoadInputData(state_, 5);
        } catch (const RunTimeError& error) {
            return error.Number();
        }
        return 0;
    }

    TestDatabase file_;
    SharedState state_;
};

TEST_F(RoomStore, SavesEveryRoomInUse) {
    state_.ObjNum = 2;
    SetRoom(0, 120, 144, "101", "North; 5% \"x\"", 11, 8);
    SetRoom(1, -32768, 32767, "", "Küche'床", 0, 0);
    SetRoom(2, 1, 1, "not in use");
    EXPECT_TRUE(SaveInputData(state_, 5));
    EXPECT_EQ(file_.Rows(AllRooms),
              (Lines{"0|120|144|101|North; 5% \"x\"|11|8|5", "1|-32768|32767||Küche'床|0|0|5"}));
}

TEST_F(RoomStore, SavingReplacesTheRoomsOfTheSheetAndOfNoOther) {
    Store("0, 1, 1, '', '', 0, 0, 5");
    Store("7, 1, 1, '', '', 0, 0, 5");
    Store("0, 2, 2, '', '', 0, 0, 6");
    state_.ObjNum = 1;
    SetRoom(0, 10, 20);
    SaveInputData(state_, 5);
    EXPECT_EQ(file_.Rows("SELECT TabIndex, ObjNum, RoomW FROM InputData ORDER BY TabIndex"),
              (Lines{"5|0|10", "6|0|2"}));
}

TEST_F(RoomStore, SavingNoRoomDeletesAllOldOnes) {
    Store("0, 1, 1, '', '', 0, 0, 5");
    SaveInputData(state_, 5);
    EXPECT_EQ(file_.Rows(AllRooms), Lines{});
}

TEST_F(RoomStore, SavesAFullProjectAndRefusesOneRoomMore) {
    state_.ObjNum = 501;
    {
        Transaction transaction(*state_.CurDB);
        SaveInputData(state_, 5);
        transaction.Commit();
    }
    EXPECT_EQ(file_.Rows("SELECT count(*), max(ObjNum) FROM InputData"), Lines{"501|500"});
    state_.ObjNum = 502;
    Transaction transaction(*state_.CurDB);
    EXPECT_THROW(SaveInputData(state_, 5), RunTimeError);
}

TEST_F(RoomStore, SavingRaisesDatabaseErrors) {
    file_.Run("DROP TABLE InputData");
    EXPECT_THROW(SaveInputData(state_, 5), DatabaseError);
    EXPECT_THROW(LoadInputData(state_, 5), DatabaseError);
    state_.CurDB.reset();
    EXPECT_THROW(SaveInputData(state_, 5), DatabaseError);
    EXPECT_THROW(LoadInputData(state_, 5), DatabaseError);
}

TEST_F(RoomStore, WhatIsSavedLoadsAsItWas) {
    state_.ObjNum = 3;
    SetRoom(0, 120, 144, "101", "a\r\nb", 11, 8);
    SetRoom(1, -1, 0, "DIR", "\"", 255, 255);
    SetRoom(2, 32767, -32768, " blanks ", "ß", 7, 1);
    SaveInputData(state_, 5);

    SharedState other;
    file_.OpenInto(other);
    EXPECT_TRUE(LoadInputData(other, 5));
    for (Integer room = 0; room < 3; ++room) {
        EXPECT_EQ(other.RoomWidth[room], state_.RoomWidth[room]);
        EXPECT_EQ(other.RoomLength[room], state_.RoomLength[room]);
        EXPECT_EQ(other.RoomNoStr[room], state_.RoomNoStr[room]);
        EXPECT_EQ(other.RoomRemark[room], state_.RoomRemark[room]);
        EXPECT_EQ(other.RoomCarpet[room], state_.RoomCarpet[room]);
        EXPECT_EQ(other.RoomBase[room], state_.RoomBase[room]);
    }
    EXPECT_EQ(other.ObjNum, 0) << "the number of rooms is the sheet's to say";
}

TEST_F(RoomStore, RowsLoadIntoTheSlotsOfTheirOwnNumbersAndGapsKeepTheirContents) {
    Store("500, 5, 6, 'last', '', 1, 2, 5");
    Store("2, 3, 4, 'two', '', 1, 2, 5");
    SetRoom(1, 77, 88, "old");
    LoadInputData(state_, 5);
    EXPECT_EQ(state_.RoomWidth[2], 3);
    EXPECT_EQ(state_.RoomNoStr[500], "last");
    EXPECT_EQ(state_.RoomWidth[1], 77);
    EXPECT_EQ(state_.RoomNoStr[1], "old");
}

TEST_F(RoomStore, NullTextsLoadAsEmptyAndNullNumbersAsZero) {
    Store("1, NULL, NULL, NULL, NULL, NULL, NULL, 5");
    SetRoom(1, 7, 7, "old", "old", 7, 7);
    LoadInputData(state_, 5);
    EXPECT_EQ(state_.RoomWidth[1], 0);
    EXPECT_EQ(state_.RoomLength[1], 0);
    EXPECT_EQ(state_.RoomNoStr[1], "");
    EXPECT_EQ(state_.RoomRemark[1], "");
    EXPECT_EQ(state_.RoomCarpet[1], 0);
    EXPECT_EQ(state_.RoomBase[1], 0);
}

TEST_F(RoomStore, ANullRoomNumberIsRoomZeroUnlessThereIsOne) {
    Store("NULL, 9, 9, '', '', 0, 0, 5");
    LoadInputData(state_, 5);
    EXPECT_EQ(state_.RoomWidth[0], 9);
    Store("0, 4, 4, '', '', 0, 0, 5");
    LoadInputData(state_, 5);
    EXPECT_EQ(state_.RoomWidth[0], 4);
}

TEST_F(RoomStore, ARoomNumberOutsideTheSlotsIsASubscriptError) {
    for (const char* number : {"-1", "501", "40000", "-40000", "99999999999999"}) {
        file_.Run("DELETE FROM InputData");
        Store("0, 9, 9, '', '', 0, 0, 5");
        Store(std::string(number) + ", 1, 1, '', '', 0, 0, 5");
        EXPECT_EQ(ErrorOfLoading(), SubscriptNumber) << number;
        EXPECT_EQ(state_.RoomWidth[0], 0) << "nothing is loaded then";
    }
}

TEST_F(RoomStore, ANumberThatDoesNotFitOverflows) {
    for (const char* values : {"0, 32768, 1, '', '', 0, 0, 5", "0, 1, -32769, '', '', 0, 0, 5",
                               "0, 1, 1, '', '', 256, 0, 5", "0, 1, 1, '', '', -1, 0, 5",
                               "0, 1, 1, '', '', 0, 256, 5"}) {
        file_.Run("DELETE FROM InputData");
        Store(values);
        EXPECT_EQ(ErrorOfLoading(), OverflowNumber) << values;
    }
}

TEST_F(RoomStore, ATextWhereANumberBelongsIsADatabaseError) {
    Store("0, 'wide', 1, '', '', 0, 0, 5");
    EXPECT_NE(testing::DatabaseErrorOf([&] { LoadInputData(state_, 5); }).find("RoomW"),
              std::string::npos);
}

TEST_F(RoomStore, EmptyRoomsEmptiesEverySlot) {
    for (const Integer room : {Integer{0}, Integer{500}}) {
        SetRoom(room, 1, 2, "3", "4", 5, 6);
    }
    EmptyRooms(state_);
    for (const Integer room : {Integer{0}, Integer{500}}) {
        EXPECT_EQ(state_.RoomWidth[room], 0);
        EXPECT_EQ(state_.RoomLength[room], 0);
        EXPECT_EQ(state_.RoomNoStr[room], "");
        EXPECT_EQ(state_.RoomRemark[room], "");
        EXPECT_EQ(state_.RoomCarpet[room], 0);
        EXPECT_EQ(state_.RoomBase[room], 0);
    }
}

} // namespace
} // namespace tarn
