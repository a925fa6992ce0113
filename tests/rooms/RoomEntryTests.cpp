#include "rooms/RoomEntry.h"
#include "rooms/RoomTesting.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using testing::ErrorNumberOf;
using Outcome = StoreResult::Outcome;

RoomFields Fields(const std::string& widthMajor, const std::string& widthMinor,
                  const std::string& lengthMajor, const std::string& lengthMinor) {
    return {{widthMajor, widthMinor}, {lengthMajor, lengthMinor}, Byte{0}, "", "", ""};
}

class EnteringRooms : public ::testing::Test {
  protected:
    /// Make the project one of `count` rooms: room i is (100 + i) x (200 + i).
    void Fill(Integer count) {
        state_.ObjNum = count;
        for (Integer i = 0; i < count; ++i) {
            PutRoom(state_, i, Room(i));
        }
    }
    static RoomRecord Room(Integer i) {
        return {static_cast<Integer>(100 + i), static_cast<Integer>(200 + i),
                static_cast<Byte>(i % 12),     static_cast<Byte>(i % 9),
                "N" + std::to_string(i),       "R" + std::to_string(i)};
    }
    StoreResult Store(Integer room, const RoomFields& fields) {
        return StoreRoom(state_, project_, room, fields);
    }
    Outcome StoreNew(const RoomFields& fields) { return Store(state_.ObjNum, fields).What; }

    SharedState state_;
    OpenProject project_;
};

TEST_F(EnteringRooms, ShowsARoomByItsFields) {
    state_.ObjNum = 1;
    PutRoom(state_, 0, {150, 168, 9, 5, "12b", "bay window"});
    EXPECT_EQ(FieldsOf(state_, 0),
              (RoomFields{{"12", "6"}, {"14", "0"}, Byte{9}, "W2L1", "12b", "bay window"}));
    state_.MetricFlag = 1;
    EXPECT_EQ(FieldsOf(state_, 0).Width, (SizeParts{"1", "50"}));
}

TEST_F(EnteringRooms, ShowsNoCoveringAndNoBaseForCodesThatCannotBeTyped) {
    PutRoom(state_, 0, {1, 1, 12, 9, "", ""});
    EXPECT_EQ(FieldsOf(state_, 0).Covering, std::nullopt);
    EXPECT_EQ(FieldsOf(state_, 0).Base, "");
    PutRoom(state_, 0, {1, 1, 11, 8, "", ""});
    EXPECT_EQ(FieldsOf(state_, 0).Covering, Byte{11});
    EXPECT_EQ(FieldsOf(state_, 0).Base, "W2L2");
}

TEST_F(EnteringRooms, StoresANewRoomBehindTheLast) {
    Fill(2);
    EXPECT_EQ(StoreNew({{"12", "6"}, {"14", ""}, Byte{9}, "w2l1", "12b", "bay"}), Outcome::Stored);
    EXPECT_EQ(state_.ObjNum, 3);
    EXPECT_EQ(TakeRoom(state_, 2), (RoomRecord{150, 168, 9, 5, "12b", "bay"}));
    EXPECT_EQ(TakeRoom(state_, 1), Room(1));
    EXPECT_EQ(state_.RoomX(2, 1), 15000);
    EXPECT_EQ(state_.RoomY(2, 1), 16800);
    EXPECT_FALSE(project_.TypedInMetric);
}

TEST_F(EnteringRooms, StoresCentimetresInMetricAndNotesIt) {
    state_.MetricFlag = 1;
    EXPECT_EQ(StoreNew(Fields("3", "50", "4", "20")), Outcome::Stored);
    EXPECT_EQ(state_.RoomWidth[0], 350);
    EXPECT_EQ(state_.RoomLength[0], 420);
    EXPECT_EQ(state_.RoomX(0, 1), static_cast<Single>(350 / 0.01 / 2.54));
    EXPECT_TRUE(project_.TypedInMetric);
}

TEST_F(EnteringRooms, NotesMetricOnlyForARoomThatChanges) {
    Fill(1);
    state_.MetricFlag = 1;
    EXPECT_TRUE(Store(0, FieldsOf(state_, 0)).IsStored());
    EXPECT_FALSE(project_.TypedInMetric);
    RoomFields fields = FieldsOf(state_, 0);
    fields.Remark = "other";
    EXPECT_TRUE(Store(0, fields).IsStored());
    EXPECT_TRUE(project_.TypedInMetric);
    state_.MetricFlag = 0;
    EXPECT_TRUE(Store(0, FieldsOf(state_, 0)).IsStored());
    EXPECT_TRUE(project_.TypedInMetric);
}

TEST_F(EnteringRooms, StoresNothingForANewRoomWithoutSizes) {
    RoomFields fields = Fields("", "", "", "");
    fields.Remark = "remark";
    const StoreResult result = Store(0, fields);
    EXPECT_EQ(result.What, Outcome::Empty);
    EXPECT_EQ(result.Message(), "");
    EXPECT_FALSE(result.Stops());
    EXPECT_EQ(state_.ObjNum, 0);
    EXPECT_EQ(TakeRoom(state_, 0), RoomRecord());
}

TEST_F(EnteringRooms, RefusesANewRoomWithOneSize) {
    for (const RoomFields& fields : {Fields("12", "", "", ""), Fields("", "", "", "1")}) {
        const StoreResult result = Store(0, fields);
        EXPECT_EQ(result.What, Outcome::OneSizeMissing);
        EXPECT_EQ(result.Message(), "The Size of room is not correct. Data is not changed");
        EXPECT_FALSE(result.Stops());
        EXPECT_EQ(state_.ObjNum, 0);
    }
}

TEST_F(EnteringRooms, StoresARoomOfTheProjectWhateverItsSizes) {
    Fill(2);
    EXPECT_TRUE(Store(0, Fields("", "", "", "")).IsStored());
    EXPECT_EQ(state_.RoomWidth[0], 0);
    EXPECT_EQ(state_.RoomLength[0], 0);
    EXPECT_TRUE(Store(1, Fields("", "", "1", "")).IsStored());
    EXPECT_EQ(state_.RoomWidth[1], 0);
    EXPECT_EQ(state_.RoomLength[1], 12);
    EXPECT_EQ(state_.RoomX(0, 1), 0);
    EXPECT_EQ(state_.ObjNum, 2);
}

TEST_F(EnteringRooms, PointsAtTheSizeTextToCorrect) {
    Fill(1);
    const struct {
        RoomFields Typed;
        SizeField Wrong;
    } cases[] = {{Fields("12'6", "", "10", ""), SizeField::WidthMajor},
                 {Fields("12", "6 1/2", "10", ""), SizeField::WidthMinor},
                 {Fields("12", "", "3,45", ""), SizeField::LengthMajor},
                 {Fields("12", "", "3", "1½"), SizeField::LengthMinor},
                 {Fields("-12", "", "10", ""), SizeField::WidthMajor},
                 {Fields("1", "-13", "10", ""), SizeField::WidthMinor},
                 {Fields("-1", "6 1/2", "10", ""), SizeField::WidthMinor},
                 {Fields("12", "", "-1", "6"), SizeField::LengthMajor},
                 {Fields("12'6", "", "-1", "6"), SizeField::WidthMajor},
                 {Fields("", "", "", "-1"), SizeField::LengthMinor},
                 {Fields("12'6", "1e400", "10", ""), SizeField::WidthMajor},
                 {Fields("1e400", "6 1/2", "10", ""), SizeField::WidthMinor},
                 {Fields("12", "", "3,45", "1e400"), SizeField::LengthMajor},
                 {Fields("-2731", "", "10", ""), SizeField::WidthMajor},
                 {Fields("10", "", "0", "-99999"), SizeField::LengthMinor},
                 {Fields("-1e308", "", "10", ""), SizeField::WidthMajor}};
    for (const auto& each : cases) {
        for (const Integer room : {Integer{0}, Integer{1}}) {
            SCOPED_TRACE(each.Typed.Width.Major + "|" + each.Typed.Width.Minor + "|" +
                         each.Typed.Length.Major + "|" + each.Typed.Length.Minor);
            const StoreResult result = Store(room, each.Typed);
            EXPECT_EQ(result.What, Outcome::WrongSize);
            EXPECT_EQ(result.Wrong, each.Wrong);
            EXPECT_TRUE(result.Stops());
            EXPECT_EQ(result.Message(), "The Size of room is not correct. Data is not changed");
            EXPECT_EQ(state_.ObjNum, 1);
            EXPECT_EQ(TakeRoom(state_, 0), Room(0));
        }
    }
}

TEST_F(EnteringRooms, AcceptsTextBehindANumber) {
    EXPECT_EQ(StoreNew(Fields("12 ft", "", "10", "6 in")), Outcome::Stored);
    EXPECT_EQ(state_.RoomWidth[0], 144);
    EXPECT_EQ(state_.RoomLength[0], 126);
}

TEST_F(EnteringRooms, HoldsFiveHundredAndOneRooms) {
    Fill(500);
    EXPECT_EQ(StoreNew(Fields("10", "", "12", "")), Outcome::Stored);
    EXPECT_EQ(state_.ObjNum, 501);
    EXPECT_EQ(state_.RoomWidth[500], 120);
    for (const RoomFields& fields : {Fields("10", "", "12", ""), Fields("10", "", "", "")}) {
        const StoreResult result = Store(501, fields);
        EXPECT_EQ(result.What, Outcome::ProjectFull);
        EXPECT_EQ(result.Message(), "The project is full: it can hold 501 rooms.");
        EXPECT_TRUE(result.Stops());
    }
    EXPECT_EQ(StoreNew(Fields("", "", "", "")), Outcome::Empty);
    EXPECT_EQ(state_.ObjNum, 501);
    EXPECT_EQ(Store(500, Fields("1", "", "1", "")).What, Outcome::Stored);
}

TEST_F(EnteringRooms, RaisesOverflowForASizeBeyondAnIntegerAndChangesNothing) {
    Fill(1);
    for (const RoomFields& fields : {Fields("2730", "8", "10", ""), Fields("10", "", "2731", ""),
                                     Fields("1e400", "", "10", "")}) {
        for (const Integer room : {Integer{0}, Integer{1}}) {
            EXPECT_EQ(ErrorNumberOf([&] { Store(room, fields); }), OverflowNumber);
            EXPECT_EQ(state_.ObjNum, 1);
            EXPECT_EQ(TakeRoom(state_, 0), Room(0));
            EXPECT_EQ(TakeRoom(state_, 1), RoomRecord());
        }
    }
    EXPECT_EQ(StoreNew(Fields("2730", "7", "10", "")), Outcome::Stored);
    try {
        Store(0, Fields("10", "", "2731", ""));
        FAIL();
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Advice(), "The length of a room can be 32767 inches at most.");
    }
}

TEST_F(EnteringRooms, ChangesNothingWhenTheExtentsCannotBeBuilt) {
    Fill(1);
    state_.DimScale = 0;
    state_.MetricFlag = 1;
    EXPECT_EQ(ErrorNumberOf([&] { StoreNew(Fields("1", "", "1", "")); }), DivisionByZeroNumber);
    EXPECT_EQ(ErrorNumberOf([&] { Store(0, Fields("1", "", "1", "")); }), DivisionByZeroNumber);
    EXPECT_EQ(state_.ObjNum, 1);
    EXPECT_EQ(TakeRoom(state_, 0), Room(0));
    EXPECT_EQ(TakeRoom(state_, 1), RoomRecord());
    EXPECT_FALSE(project_.TypedInMetric);
}

TEST_F(EnteringRooms, KeepsACoveringThatCannotBeChosenUntilOneIs) {
    Fill(1);
    state_.RoomCarpet[0] = 77;
    RoomFields fields = FieldsOf(state_, 0);
    fields.Remark = "new";
    EXPECT_TRUE(Store(0, fields).IsStored());
    EXPECT_EQ(state_.RoomCarpet[0], 77);
    EXPECT_EQ(state_.RoomRemark[0], "new");
    fields.Covering = Byte{3};
    EXPECT_TRUE(Store(0, fields).IsStored());
    EXPECT_EQ(state_.RoomCarpet[0], 3);
}

TEST_F(EnteringRooms, KeepsABaseCodeWithoutATextUntilOneIsTyped) {
    Fill(1);
    for (int code = 0; code <= 255; ++code) {
        state_.RoomBase[0] = static_cast<Byte>(code);
        EXPECT_TRUE(Store(0, FieldsOf(state_, 0)).IsStored());
        EXPECT_EQ(state_.RoomBase[0], code);
    }
    RoomFields fields = FieldsOf(state_, 0);
    fields.Base = "W2";
    EXPECT_TRUE(Store(0, fields).IsStored());
    EXPECT_EQ(state_.RoomBase[0], 2);
    fields.Base = "";
    EXPECT_TRUE(Store(0, fields).IsStored());
    EXPECT_EQ(state_.RoomBase[0], 0);
    state_.RoomBase[1] = 9;
    EXPECT_EQ(StoreNew(Fields("1", "", "1", "")), Outcome::Stored);
    EXPECT_EQ(state_.RoomBase[1], 0) << "a new room does not take what its slot held";
}

TEST_F(EnteringRooms, DeletesARoomByMovingUpTheOnesBehind) {
    constexpr Integer Count = 6;
    for (Integer deleted = 0; deleted < Count - 1; ++deleted) {
        Fill(Count);
        state_.RoomX(deleted, 1) = 4711;
        DeleteRoom(state_, deleted);
        ASSERT_EQ(state_.ObjNum, Count - 1);
        for (Integer i = 0; i < Count - 1; ++i) {
            EXPECT_EQ(TakeRoom(state_, i), Room(static_cast<Integer>(i < deleted ? i : i + 1)));
        }
        EXPECT_EQ(TakeRoom(state_, Count - 1), Room(Count - 1)) << "the last old slot stays";
        EXPECT_EQ(state_.RoomX(deleted, 1), 4711) << "extents are not moved";
    }
}

TEST_F(EnteringRooms, EmptiesTheLastRoomAndTheNewOneWhenTheyAreDeleted) {
    Fill(3);
    PutRoom(state_, 3, Room(3));
    DeleteRoom(state_, 3);
    EXPECT_EQ(state_.ObjNum, 3);
    EXPECT_EQ(TakeRoom(state_, 3), RoomRecord());
    EXPECT_EQ(TakeRoom(state_, 2), Room(2));
    DeleteRoom(state_, 2);
    EXPECT_EQ(state_.ObjNum, 2);
    EXPECT_EQ(TakeRoom(state_, 2), RoomRecord());
    EXPECT_EQ(TakeRoom(state_, 1), Room(1));
    Fill(1);
    DeleteRoom(state_, 0);
    EXPECT_EQ(state_.ObjNum, 0);
    EXPECT_EQ(TakeRoom(state_, 0), RoomRecord());
}

TEST_F(EnteringRooms, DeletesNothingBehindAFullProject) {
    Fill(501);
    DeleteRoom(state_, 501);
    EXPECT_EQ(state_.ObjNum, 501);
    EXPECT_EQ(TakeRoom(state_, 500), Room(500));
    DeleteRoom(state_, 500);
    EXPECT_EQ(state_.ObjNum, 500);
}

TEST_F(EnteringRooms, TakesBackWhatStoringChanged) {
    Fill(2);
    state_.MetricFlag = 1;
    state_.RoomX(2, 1) = 5;
    state_.RoomY(2, 1) = 6;
    const RoomBackup before(state_, project_, 2);
    EXPECT_EQ(StoreNew(Fields("3", "", "4", "")), Outcome::Stored);
    before.Restore(state_, project_);
    EXPECT_EQ(state_.ObjNum, 2);
    EXPECT_EQ(TakeRoom(state_, 2), RoomRecord());
    EXPECT_EQ(state_.RoomX(2, 1), 5);
    EXPECT_EQ(state_.RoomY(2, 1), 6);
    EXPECT_FALSE(project_.TypedInMetric);
    Fill(501);
    RoomBackup(state_, project_, 501).Restore(state_, project_);
    EXPECT_EQ(state_.ObjNum, 501);
}

TEST(SizeTexts, WithoutASizeAreEmptied) {
    for (const char* text :
         {"0", "00", "-", "+", "a", "abc5", " ", ",5", "0.", ".", ".0", "-.", "½"}) {
        EXPECT_TRUE(IsEmptiedSizeText(text, false)) << text;
    }
    for (const char* text : {"", "1", "05", ".85", "-1", "0.5", "12 ft", "1e400"}) {
        EXPECT_FALSE(IsEmptiedSizeText(text, false)) << text;
        EXPECT_FALSE(IsEmptiedSizeText(text, true)) << text;
    }
}

TEST(SizeTexts, OfAPointAndZerosStayWhileTheyAreTyped) {
    for (const char* text : {".", ".0", ".00", "0."}) {
        EXPECT_FALSE(IsEmptiedSizeText(text, true)) << text;
    }
    for (const char* text : {"0", "00", "-", "a", "..", ".0.", "-.", ". ", ".a"}) {
        EXPECT_TRUE(IsEmptiedSizeText(text, true)) << text;
    }
}

TEST(BaseMessages, HaveTwoDifferentSecondExamples) {
    const std::string lines = "Sorry, you entered wrong string for base\r\n"
                              "You should enter L or W with 1 or 2 to be calculated\r\n"
                              "Example1: L2W1 - means 2 x Length + 1 x Width\r\n";
    EXPECT_EQ(BaseMessage(TypedBaseExample),
              lines + "Example2: W21 - means 2 x Width and Length is not calculated.\r\n");
    EXPECT_EQ(BaseMessage(EnteredBaseExample),
              lines + "Example2: W2 - means 2 x Width and Length is not calculated.\r\n");
}

} // namespace
} // namespace tarn
