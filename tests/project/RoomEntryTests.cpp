#include "base/ErrorNumber.h"
#include "project/RoomEntry.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using Outcome = StoreResult::Outcome;

RoomDraft Draft(const std::string& widthMajor, const std::string& widthMinor,
                const std::string& lengthMajor, const std::string& lengthMinor) {
    return {{widthMajor, widthMinor}, {lengthMajor, lengthMinor}, Byte{0}, "", "", ""};
}

class EnteringRooms : public ::testing::Test {
  protected:
    /// Make the project one of `count` rooms: room i is (100 + i) x (200 + i).
    void Fill(int count) {
        project_.Rooms.clear();
        for (int i = 0; i < count; ++i) {
            project_.Rooms.push_back(RoomNumber(i));
        }
    }
    static Room RoomNumber(int i) {
        return {static_cast<Integer>(100 + i), static_cast<Integer>(200 + i),
                static_cast<Byte>(i % 12),     static_cast<Byte>(i % 9),
                "N" + std::to_string(i),       "R" + std::to_string(i)};
    }
    RoomDraft DraftOfRoom(std::size_t room) const { return DraftOf(project_.Rooms[room], shown_); }
    StoreResult Store(std::size_t room, const RoomDraft& draft) {
        return StoreRoom(project_, shown_, room, draft);
    }
    Outcome StoreNew(const RoomDraft& draft) { return Store(project_.Rooms.size(), draft).What; }

    Project project_;
    Units shown_ = Units::Imperial;
};

TEST(DraftOf, ShowsARoomByItsFields) {
    const Room room{150, 168, 9, 5, "12b", "bay window"};
    EXPECT_EQ(DraftOf(room, Units::Imperial),
              (RoomDraft{{"12", "6"}, {"14", "0"}, Byte{9}, "W2L1", "12b", "bay window"}));
    EXPECT_EQ(DraftOf(room, Units::Metric).Width, (SizeParts{"1", "50"}));
}

TEST(DraftOf, ShowsNoCoveringAndNoBaseForCodesThatCannotBeTyped) {
    const RoomDraft untypable = DraftOf({1, 1, 12, 9, "", ""}, Units::Imperial);
    EXPECT_EQ(untypable.Covering, std::nullopt);
    EXPECT_EQ(untypable.Base, "");
    const RoomDraft last = DraftOf({1, 1, 11, 8, "", ""}, Units::Imperial);
    EXPECT_EQ(last.Covering, Byte{11});
    EXPECT_EQ(last.Base, "W2L2");
}

TEST_F(EnteringRooms, StoresANewRoomBehindTheLast) {
    Fill(2);
    EXPECT_EQ(StoreNew({{"12", "6"}, {"14", ""}, Byte{9}, "w2l1", "12b", "bay"}), Outcome::Stored);
    EXPECT_EQ(project_.Rooms,
              (std::vector<Room>{RoomNumber(0), RoomNumber(1), {150, 168, 9, 5, "12b", "bay"}}));
    EXPECT_EQ(project_.EnteredIn, Units::Imperial);
}

TEST_F(EnteringRooms, StoresCentimetresInMetricAndNotesIt) {
    shown_ = Units::Metric;
    EXPECT_EQ(StoreNew(Draft("3", "50", "4", "20")), Outcome::Stored);
    EXPECT_EQ(project_.Rooms[0].Width, 350);
    EXPECT_EQ(project_.Rooms[0].Length, 420);
    EXPECT_EQ(project_.EnteredIn, Units::Metric);
}

TEST_F(EnteringRooms, NotesTheUnitsOfASizeThatChangesAndOfNothingElse) {
    Fill(1);
    const auto storeChanged = [&](auto change) {
        RoomDraft draft = DraftOfRoom(0);
        change(draft);
        EXPECT_TRUE(Store(0, draft).IsStored());
        return project_.EnteredIn;
    };
    for (const Units shown : {Units::Metric, Units::Imperial}) {
        const Units before = project_.EnteredIn;
        ASSERT_NE(before, shown);
        shown_ = shown;
        EXPECT_EQ(storeChanged([](RoomDraft&) {}), before);
        EXPECT_EQ(storeChanged([](RoomDraft& draft) { draft.Remark += "x"; }), before);
        EXPECT_EQ(storeChanged([](RoomDraft& draft) { draft.Number += "1"; }), before);
        EXPECT_EQ(storeChanged([](RoomDraft& draft) { draft.Base = "W1"; }), before);
        EXPECT_EQ(storeChanged([](RoomDraft& draft) { draft.Covering = 3; }), before);
        EXPECT_EQ(storeChanged([](RoomDraft& draft) { draft.Width.Minor = "1"; }), shown);
        project_.EnteredIn = before;
        EXPECT_EQ(storeChanged([](RoomDraft& draft) { draft.Length.Minor = "2"; }), shown);
    }
}

TEST_F(EnteringRooms, NotesTheUnitsOfEachNewRoom) {
    for (const Units shown : {Units::Metric, Units::Imperial}) {
        shown_ = shown;
        EXPECT_EQ(StoreNew(Draft("3", "", "4", "")), Outcome::Stored);
        EXPECT_EQ(project_.EnteredIn, shown);
    }
}

TEST_F(EnteringRooms, StoresNothingForANewRoomWithoutSizes) {
    RoomDraft draft = Draft("", "", "", "");
    draft.Remark = "remark";
    const StoreResult result = Store(0, draft);
    EXPECT_EQ(result.What, Outcome::Empty);
    EXPECT_EQ(result.Message(), "");
    EXPECT_FALSE(result.Stops());
    EXPECT_TRUE(project_.Rooms.empty());
}

TEST_F(EnteringRooms, RefusesANewRoomWithOneSize) {
    for (const RoomDraft& draft : {Draft("12", "", "", ""), Draft("", "", "", "1")}) {
        const StoreResult result = Store(0, draft);
        EXPECT_EQ(result.What, Outcome::OneSizeMissing);
        EXPECT_EQ(result.Message(), "The Size of room is not correct. Data is not changed");
        EXPECT_FALSE(result.Stops());
        EXPECT_TRUE(project_.Rooms.empty());
    }
}

TEST_F(EnteringRooms, StoresARoomOfTheProjectWhateverItsSizes) {
    Fill(2);
    EXPECT_TRUE(Store(0, Draft("", "", "", "")).IsStored());
    EXPECT_EQ(project_.Rooms[0].Width, 0);
    EXPECT_EQ(project_.Rooms[0].Length, 0);
    EXPECT_TRUE(Store(1, Draft("", "", "1", "")).IsStored());
    EXPECT_EQ(project_.Rooms[1].Width, 0);
    EXPECT_EQ(project_.Rooms[1].Length, 12);
    EXPECT_EQ(project_.Rooms.size(), 2U);
}

TEST_F(EnteringRooms, PointsAtTheSizeTextToCorrect) {
    Fill(1);
    const struct {
        RoomDraft Typed;
        SizeField Wrong;
    } cases[] = {{Draft("12'6", "", "10", ""), SizeField::WidthMajor},
                 {Draft("12", "6 1/2", "10", ""), SizeField::WidthMinor},
                 {Draft("12", "", "3,45", ""), SizeField::LengthMajor},
                 {Draft("12", "", "3", "1½"), SizeField::LengthMinor},
                 {Draft("-12", "", "10", ""), SizeField::WidthMajor},
                 {Draft("1", "-13", "10", ""), SizeField::WidthMinor},
                 {Draft("-1", "6 1/2", "10", ""), SizeField::WidthMinor},
                 {Draft("12", "", "-1", "6"), SizeField::LengthMajor},
                 {Draft("12'6", "", "-1", "6"), SizeField::WidthMajor},
                 {Draft("", "", "", "-1"), SizeField::LengthMinor},
                 {Draft("12'6", "1e400", "10", ""), SizeField::WidthMajor},
                 {Draft("1e400", "6 1/2", "10", ""), SizeField::WidthMinor},
                 {Draft("12", "", "3,45", "1e400"), SizeField::LengthMajor},
                 {Draft("3.66m", "", "10", ""), SizeField::WidthMajor},
                 {Draft("10", "", "12", "12'6\""), SizeField::LengthMinor},
                 {Draft("-1", "13", "10", ""), SizeField::WidthMajor},
                 {Draft("-2731", "", "10", ""), SizeField::WidthMajor},
                 {Draft("10", "", "0", "-99999"), SizeField::LengthMinor},
                 {Draft("-1e308", "", "10", ""), SizeField::WidthMajor}};
    for (const auto& each : cases) {
        for (const std::size_t room : {0, 1}) {
            SCOPED_TRACE(each.Typed.Width.Major + "|" + each.Typed.Width.Minor + "|" +
                         each.Typed.Length.Major + "|" + each.Typed.Length.Minor);
            const StoreResult result = Store(room, each.Typed);
            EXPECT_EQ(result.What, Outcome::WrongSize);
            EXPECT_EQ(result.Wrong, each.Wrong);
            EXPECT_TRUE(result.Stops());
            EXPECT_EQ(result.Message(), "The Size of room is not correct. Data is not changed");
            EXPECT_NE(result.Advice, "");
            EXPECT_EQ(project_.Rooms, std::vector<Room>{RoomNumber(0)});
        }
    }
}

TEST_F(EnteringRooms, SaysWhichSizeIsWrongAndHowToWriteIt) {
    EXPECT_EQ(Store(0, Draft("12", "", "3,45", "")).Advice,
              "Room length:\r\nA comma is not taken: type 3.45");
    EXPECT_EQ(Store(0, Draft("3.66m", "", "10", "")).Advice,
              "Room width:\r\nOnly feet and inches are taken here: type it like 12'6\"");
    const StoreResult missing = Store(0, Draft("12", "", "", ""));
    EXPECT_EQ(missing.Advice, "The length is empty: a new room needs both its sizes.");
    EXPECT_EQ(missing.Wrong, SizeField::LengthMajor);
    EXPECT_EQ(Store(0, Draft("", "", "12", "")).Advice,
              "The width is empty: a new room needs both its sizes.");
    EXPECT_EQ(Store(0, Draft("12", "", "10", "")).Advice, "");
}

TEST_F(EnteringRooms, StoresALengthThatNamesItsUnitsFromOneField) {
    EXPECT_EQ(StoreNew(Draft("12'6\"", "", "", "10ft 3in")), Outcome::Stored);
    EXPECT_EQ(project_.Rooms[0].Width, 150);
    EXPECT_EQ(project_.Rooms[0].Length, 123);
}

TEST_F(EnteringRooms, AcceptsTextBehindANumber) {
    EXPECT_EQ(StoreNew(Draft("12 ft", "", "10", "6 in")), Outcome::Stored);
    EXPECT_EQ(project_.Rooms[0].Width, 144);
    EXPECT_EQ(project_.Rooms[0].Length, 126);
}

TEST_F(EnteringRooms, HoldsFiveHundredAndOneRooms) {
    Fill(500);
    EXPECT_EQ(StoreNew(Draft("10", "", "12", "")), Outcome::Stored);
    EXPECT_EQ(project_.Rooms.size(), 501U);
    EXPECT_EQ(project_.Rooms[500].Width, 120);
    for (const RoomDraft& draft : {Draft("10", "", "12", ""), Draft("10", "", "", "")}) {
        const StoreResult result = Store(501, draft);
        EXPECT_EQ(result.What, Outcome::ProjectFull);
        EXPECT_EQ(result.Message(), "The project is full: it can hold 501 rooms.");
        EXPECT_TRUE(result.Stops());
    }
    EXPECT_EQ(StoreNew(Draft("", "", "", "")), Outcome::Empty);
    EXPECT_EQ(project_.Rooms.size(), 501U);
    EXPECT_EQ(Store(500, Draft("1", "", "1", "")).What, Outcome::Stored);
}

TEST_F(EnteringRooms, RaisesOverflowForASizeBeyondAnIntegerAndChangesNothing) {
    Fill(1);
    for (const RoomDraft& draft : {Draft("2730", "8", "10", ""), Draft("10", "", "2731", ""),
                                   Draft("1e400", "", "10", "")}) {
        for (const std::size_t room : {0, 1}) {
            EXPECT_EQ(ErrorNumber([&] { Store(room, draft); }), OverflowNumber);
            EXPECT_EQ(project_.Rooms, std::vector<Room>{RoomNumber(0)});
        }
    }
    EXPECT_EQ(StoreNew(Draft("2730", "7", "10", "")), Outcome::Stored);
    try {
        Store(0, Draft("10", "", "2731", ""));
        FAIL();
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Advice(), "The length of a room can be 32767 inches at most.");
    }
}

TEST_F(EnteringRooms, ChangesNothingWhenARoomHasNoExtent) {
    Fill(1);
    project_.Scale = 0;
    shown_ = Units::Metric;
    const Project before = project_;
    EXPECT_EQ(ErrorNumber([&] { StoreNew(Draft("1", "", "1", "")); }), DivisionByZeroNumber);
    EXPECT_EQ(ErrorNumber([&] { Store(0, Draft("1", "", "1", "")); }), DivisionByZeroNumber);
    EXPECT_EQ(project_, before);
}

TEST_F(EnteringRooms, IsOutOfRangeBeyondTheNewRoom) {
    Fill(1);
    const Project before = project_;
    EXPECT_EQ(ErrorNumber([&] { Store(2, Draft("1", "", "1", "")); }), SubscriptNumber);
    EXPECT_EQ(project_, before);
}

TEST_F(EnteringRooms, KeepsACoveringThatCannotBeChosenUntilOneIs) {
    Fill(1);
    project_.Rooms[0].Covering = 77;
    RoomDraft draft = DraftOfRoom(0);
    draft.Remark = "new";
    EXPECT_TRUE(Store(0, draft).IsStored());
    EXPECT_EQ(project_.Rooms[0].Covering, 77);
    EXPECT_EQ(project_.Rooms[0].Remark, "new");
    draft.Covering = Byte{3};
    EXPECT_TRUE(Store(0, draft).IsStored());
    EXPECT_EQ(project_.Rooms[0].Covering, 3);
}

TEST_F(EnteringRooms, TakesTheFirstCarpetForANewRoomWithoutAChosenCovering) {
    Fill(1);
    project_.Rooms[0].Covering = 5;
    RoomDraft draft = Draft("1", "", "1", "");
    draft.Covering.reset();
    EXPECT_EQ(StoreNew(draft), Outcome::Stored);
    EXPECT_EQ(project_.Rooms[1].Covering, 0);
}

TEST_F(EnteringRooms, KeepsABaseCodeWithoutATextUntilOneIsTyped) {
    Fill(1);
    for (int code = 0; code <= 255; ++code) {
        project_.Rooms[0].Base = static_cast<Byte>(code);
        EXPECT_TRUE(Store(0, DraftOfRoom(0)).IsStored());
        EXPECT_EQ(project_.Rooms[0].Base, code);
    }
    RoomDraft draft = DraftOfRoom(0);
    draft.Base = "W2";
    EXPECT_TRUE(Store(0, draft).IsStored());
    EXPECT_EQ(project_.Rooms[0].Base, 2);
    draft.Base = "";
    EXPECT_TRUE(Store(0, draft).IsStored());
    EXPECT_EQ(project_.Rooms[0].Base, 0);
    project_.Rooms[0].Base = 9;
    EXPECT_EQ(StoreNew(Draft("1", "", "1", "")), Outcome::Stored);
    EXPECT_EQ(project_.Rooms[1].Base, 0) << "a new room does not take the base of another";
}

TEST_F(EnteringRooms, DeletesARoomByMovingUpTheOnesBehind) {
    constexpr int Count = 6;
    for (int deleted = 0; deleted < Count; ++deleted) {
        Fill(Count);
        DeleteRoom(project_, static_cast<std::size_t>(deleted));
        ASSERT_EQ(project_.Rooms.size(), Count - 1U);
        for (int i = 0; i < Count - 1; ++i) {
            EXPECT_EQ(project_.Rooms[static_cast<std::size_t>(i)],
                      RoomNumber(i < deleted ? i : i + 1));
        }
    }
    Fill(1);
    DeleteRoom(project_, 0);
    EXPECT_TRUE(project_.Rooms.empty());
}

TEST_F(EnteringRooms, DeletesNothingForTheNewRoom) {
    for (const int count : {0, 3, 501}) {
        Fill(count);
        const Project before = project_;
        DeleteRoom(project_, static_cast<std::size_t>(count));
        EXPECT_EQ(project_, before);
    }
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

TEST(AddedRooms, StandBehindTheOthersInTheUnitsShown) {
    Project project;
    project.Rooms = {{1, 2, 0, 0, "", ""}};
    AddRooms(project, Units::Metric, {{3, 4, 1, 0, "a", ""}, {0, 5, 2, 0, "", "b"}});
    EXPECT_EQ(
        project.Rooms,
        (std::vector<Room>{{1, 2, 0, 0, "", ""}, {3, 4, 1, 0, "a", ""}, {0, 5, 2, 0, "", "b"}}));
    EXPECT_EQ(project.EnteredIn, Units::Metric);
    AddRooms(project, Units::Imperial, {});
    EXPECT_EQ(project.EnteredIn, Units::Metric) << "nothing was added";
}

TEST(AddedRooms, AreAllRefusedWhereOneHasNoPlace) {
    Project project;
    project.Rooms.resize(RoomCapacity - 1);
    const Project before = project;
    EXPECT_EQ(ErrorNumber([&] { AddRooms(project, Units::Metric, {Room(), Room()}); }), 9);
    EXPECT_EQ(project, before);
    AddRooms(project, Units::Metric, {Room()});
    EXPECT_EQ(project.Rooms.size(), RoomCapacity);
    project.Scale = 0;
    EXPECT_EQ(ErrorNumber([&] { AddRooms(project, Units::Metric, {Room()}); }), 11);
}

} // namespace
} // namespace tarn
