#include "project/Typing.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

RoomDraft Sizes(SizeParts width, SizeParts length) {
    RoomDraft fields;
    fields.Width = std::move(width);
    fields.Length = std::move(length);
    return fields;
}

Room Sized(Integer width) {
    Room room;
    room.Width = width;
    return room;
}

TEST(IsBlank, IsSoWhateverTheCovering) {
    RoomDraft fields;
    EXPECT_TRUE(IsBlank(fields));
    fields.Covering = 3;
    EXPECT_TRUE(IsBlank(fields));
}

TEST(IsBlank, IsNotSoWithAnyText) {
    for (const auto text : {&RoomDraft::Base, &RoomDraft::Number, &RoomDraft::Remark}) {
        RoomDraft fields;
        fields.*text = "1";
        EXPECT_FALSE(IsBlank(fields));
    }
    EXPECT_FALSE(IsBlank(Sizes({"1", ""}, {})));
    EXPECT_FALSE(IsBlank(Sizes({"", "1"}, {})));
    EXPECT_FALSE(IsBlank(Sizes({}, {"1", ""})));
    EXPECT_FALSE(IsBlank(Sizes({}, {"", " "})));
}

TEST(TypingInUnits, IsTheSameInItsOwn) {
    Typing typing;
    typing.In = Units::Metric;
    typing.New = Sizes({"3.5", ""}, {"0", "6,6"});
    EXPECT_EQ(InUnits(typing, Units::Metric), typing);
}

TEST(TypingInUnits, KeepsTheNumberOfSmallUnits) {
    Typing typing;
    typing.In = Units::Metric;
    typing.New = Sizes({"3", "66"}, {"", "50"});
    typing.Changed = ChangedRoom{1, Sized(7), Sizes({"1", ""}, {})};
    const Typing feet = InUnits(typing, Units::Imperial);
    EXPECT_EQ(feet.In, Units::Imperial);
    EXPECT_EQ(feet.New, Sizes({"30", "6"}, {"4", "2"}));
    EXPECT_EQ(feet.Changed->Texts, Sizes({"8", "4"}, {}));
    EXPECT_EQ(feet.Changed->Place, 1U);
    EXPECT_EQ(feet.Changed->Before, Sized(7));
    EXPECT_EQ(InUnits(feet, Units::Metric).New, Sizes({"3", "66"}, {"0", "50"}));
}

TEST(TypingInUnits, TakesLengthsThatNameTheirUnits) {
    Typing typing;
    typing.New = Sizes({"12'6\"", ""}, {"", "4'"});
    EXPECT_EQ(InUnits(typing, Units::Metric).New, Sizes({"1", "50"}, {"0", "48"}));
}

TEST(TypingInUnits, LeavesWhatCannotBeReadAsTyped) {
    Typing typing;
    typing.New = Sizes({"12'6", ""}, {"1e400", ""});
    Typing expected = typing;
    expected.In = Units::Metric;
    EXPECT_EQ(InUnits(typing, Units::Metric), expected);
}

TEST(TypingFittedTo, StaysAtItsRoom) {
    Typing typing;
    typing.New = Sizes({"1", ""}, {});
    typing.Changed = ChangedRoom{1, Sized(7), Sizes({"2", ""}, {})};
    EXPECT_EQ(FittedTo(typing, {Sized(1), Sized(7)}), typing);
    EXPECT_EQ(FittedTo(typing, {Sized(1), Sized(7), Sized(9)}), typing);
}

TEST(TypingFittedTo, BecomesTheNewRoomWhereTheRoomIsAnotherOne) {
    Typing typing;
    typing.Changed = ChangedRoom{1, Sized(7), Sizes({"2", ""}, {})};
    Typing expected;
    expected.New = Sizes({"2", ""}, {});
    EXPECT_EQ(FittedTo(typing, {Sized(7)}), expected) << "the room is gone";
    EXPECT_EQ(FittedTo(typing, {Sized(1), Sized(8)}), expected) << "the room was changed";
    typing.New = Sizes({"3", ""}, {});
    expected.New = Sizes({"3", ""}, {});
    EXPECT_EQ(FittedTo(typing, {Sized(7)}), expected) << "one of its own goes first";
}

} // namespace
} // namespace tarn
