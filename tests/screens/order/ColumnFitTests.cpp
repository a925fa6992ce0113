// Which columns of a table have room beside each other.

#include "screens/order/ColumnFit.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>

namespace tarn {
namespace {

using ::testing::ElementsAre;

/// Two that are kept, one that is looked up, another kept one, two that are looked up, the notes.
const std::vector<ColumnNeed> Columns{
    {ColumnUse::Kept, 50, 40, 30},     {ColumnUse::Kept, 120, 110, 60},
    {ColumnUse::LookedUp, 60, 50, 50}, {ColumnUse::Kept, 70, 60, 50},
    {ColumnUse::LookedUp, 90, 70, 60}, {ColumnUse::LookedUp, 80, 60, 50},
    {ColumnUse::Repeated, 40, 40, 40}};

void ExpectFit(int room, bool isTight, const std::vector<int>& widths) {
    const ColumnFit fit = FitColumns(Columns, room);
    EXPECT_EQ(fit.IsTight, isTight) << room;
    EXPECT_EQ(fit.Widths, widths) << room;
}

TEST(ColumnFits, AreAsUsualWhereThereIsRoom) {
    ExpectFit(2000, false, {50, 120, 60, 70, 90, 80, 40});
    ExpectFit(510, false, {50, 120, 60, 70, 90, 80, 40});
}

TEST(ColumnFits, LeaveOutWhatIsRepeatedFirst) {
    ExpectFit(509, false, {50, 120, 60, 70, 90, 80, 0});
    ExpectFit(470, false, {50, 120, 60, 70, 90, 80, 0});
}

TEST(ColumnFits, GetTightThen) {
    ExpectFit(469, true, {40, 110, 50, 60, 70, 60, 0});
    ExpectFit(390, true, {40, 110, 50, 60, 70, 60, 0});
}

TEST(ColumnFits, LeaveOutWhatIsLookedUpFromTheEnd) {
    ExpectFit(389, true, {40, 110, 50, 60, 70, 0, 0});
    ExpectFit(330, true, {40, 110, 50, 60, 70, 0, 0});
    ExpectFit(329, true, {40, 110, 50, 60, 0, 0, 0});
    ExpectFit(259, true, {40, 110, 0, 60, 0, 0, 0});
    ExpectFit(210, true, {40, 110, 0, 60, 0, 0, 0});
}

TEST(ColumnFits, NarrowTheWidestThatIsKeptAtLast) {
    ExpectFit(209, true, {40, 109, 0, 60, 0, 0, 0});
    ExpectFit(160, true, {40, 60, 0, 60, 0, 0, 0});
    ExpectFit(100, true, {40, 60, 0, 60, 0, 0, 0});
    EXPECT_THAT(FitColumns({}, 0).Widths, ElementsAre());
}

TEST(ColumnFits, AreNoWiderThanTheRoomAndShowNoLessInMoreOfIt) {
    std::size_t shown = 0;
    for (int room = 160; room < 600; ++room) {
        const std::vector<int> widths = FitColumns(Columns, room).Widths;
        EXPECT_LE(std::accumulate(widths.begin(), widths.end(), 0), room);
        const std::size_t left =
            widths.size() - static_cast<std::size_t>(std::count(widths.begin(), widths.end(), 0));
        EXPECT_GE(left, shown) << room;
        shown = left;
    }
    EXPECT_EQ(shown, Columns.size());
}

} // namespace
} // namespace tarn
