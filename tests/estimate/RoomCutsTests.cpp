#include "base/Lengths.h"
#include "estimate/EstimateTesting.h"
#include "estimate/RoomCuts.h"
#include "project/Coverings.h"
#include "project/RoomExtents.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace tarn {
namespace {

using testing::AcrossAlong;
using testing::BothLays;
using testing::BothUnits;
using testing::EdgesOf;
using ::testing::ElementsAre;
using testing::ErrorOf;
using ::testing::Field;
using ::testing::IsEmpty;
using testing::MetricRequest;
using testing::ProjectOf;
using testing::Request;
using testing::Rooms;
using testing::Sized;
using testing::Turned;
using testing::WithCarpet;

RoomCuts CutRooms(const Rooms& rooms, const EstimateRequest& request) {
    return CutAcrossRoll(ProjectOf(rooms), request);
}

//      0        144       288   360
//    0 +---------+---------+-----+
//      |  Cut1   |  Cut2   |  A  |
//  120 +---------+---------+-----+
TEST(CutAcrossRoll, DownLayCutsTheWidthAcrossTheRoll) {
    const RoomCuts cut = CutRooms({{360, 120}}, Request(144));
    EXPECT_THAT(cut.Cuts, ElementsAre(Cut{0, 14400, 0, 12000}, Cut{14400, 28800, 0, 12000}));
    EXPECT_THAT(EdgesOf(cut.Fills), ElementsAre(Cut{28800, 36000, 0, 12000}));
}

//      0         360
//    0 +---------+
//      |  Cut1   |
//   72 +---------+
//      |    A    |
//  120 +---------+
TEST(CutAcrossRoll, CrossLayCutsTheLengthAcrossTheRoll) {
    const RoomCuts cut = CutRooms({{360, 120}}, Request(72, Lay::Cross));
    EXPECT_THAT(cut.Cuts, ElementsAre(Cut{0, 36000, 0, 7200}));
    EXPECT_THAT(EdgesOf(cut.Fills), ElementsAre(Cut{0, 36000, 7200, 12000}));
}

TEST(CutAcrossRoll, FillsAreNumberedInTheirOrderAndMayBeDivided) {
    for (const Lay lay : BothLays) {
        const RoomCuts cut = CutRooms({{200, 200}, {144, 144}, {100, 110}}, Request(144, lay));
        ASSERT_EQ(cut.Fills.size(), 2U);
        for (std::size_t i = 0; i < 2; ++i) {
            EXPECT_EQ(cut.Fills[i].Number, static_cast<Integer>(i));
            EXPECT_TRUE(cut.Fills[i].IsDivisible);
        }
    }
}

TEST(CutAcrossRoll, ARoomOfExactlyTwoRollWidthsGivesTwoCutsAndNoFill) {
    for (const Single roll : {72.0F, 144.0F, 162.0F, 180.0F, 150.0F, 37.5F}) {
        for (const Lay lay : BothLays) {
            SCOPED_TRACE(::testing::Message() << roll << (lay == Lay::Down ? " down" : " cross"));
            const RoomCuts cut =
                CutRooms({AcrossAlong(lay, static_cast<int>(2 * roll), 90)}, Request(roll, lay));
            ASSERT_EQ(cut.Cuts.size(), 2U);
            const Single edge = 100 * roll;
            EXPECT_EQ(Turned(cut.Cuts[0], lay), (Cut{0, edge, 0, 9000}));
            EXPECT_EQ(Turned(cut.Cuts[1], lay), (Cut{edge, 2 * edge, 0, 9000}));
            EXPECT_THAT(cut.Fills, IsEmpty());
        }
    }
}

TEST(CutAcrossRoll, AnInchMoreThanTwoRollWidthsGivesTwoCutsAndAFillOneInchWide) {
    for (const Single roll : {72.0F, 144.0F, 162.0F, 180.0F, 150.0F, 37.5F}) {
        for (const Lay lay : BothLays) {
            SCOPED_TRACE(::testing::Message() << roll << (lay == Lay::Down ? " down" : " cross"));
            const RoomCuts cut = CutRooms({AcrossAlong(lay, static_cast<int>(2 * roll) + 1, 90)},
                                          Request(roll, lay));
            EXPECT_EQ(cut.Cuts.size(), 2U);
            ASSERT_EQ(cut.Fills.size(), 1U);
            EXPECT_EQ(Turned(EdgesOf(cut.Fills[0]), lay),
                      (Cut{200 * roll, 200 * roll + 100, 0, 9000}));
        }
    }
}

TEST(CutAcrossRoll, RoomsNarrowerThanTheRollGiveOnlyFills) {
    for (const Lay lay : BothLays) {
        const RoomCuts cut =
            CutRooms({AcrossAlong(lay, 143, 300), AcrossAlong(lay, 1, 150)}, Request(144, lay));
        EXPECT_THAT(cut.Cuts, IsEmpty());
        ASSERT_EQ(cut.Fills.size(), 2U);
        EXPECT_EQ(Turned(EdgesOf(cut.Fills[0]), lay), (Cut{0, 14300, 0, 30000}));
        EXPECT_EQ(Turned(EdgesOf(cut.Fills[1]), lay), (Cut{0, 100, 0, 15000}));
    }
}

TEST(CutAcrossRoll, ARoomAsWideAsTheRollGivesOneCut) {
    for (const Lay lay : BothLays) {
        const RoomCuts cut = CutRooms({AcrossAlong(lay, 144, 300)}, Request(144, lay));
        EXPECT_EQ(cut.Cuts.size(), 1U);
        EXPECT_THAT(cut.Fills, IsEmpty());
    }
}

TEST(CutAcrossRoll, NoRoomGivesNothing) {
    EXPECT_EQ(CutRooms({}, Request(144)), RoomCuts());
}

TEST(CutAcrossRoll, RoomsOfOtherCarpetsAndTilesAreIgnored) {
    const Rooms rooms{{150, 100, 0}, {200, 110, 2}, {150, 100, 7}, {150, 100, 8}, {150, 9, 11}};
    const RoomCuts cut = CutRooms(rooms, WithCarpet(Request(144), 2));
    EXPECT_THAT(cut.Cuts, ElementsAre(Cut{0, 14400, 0, 11000, 1}));
    EXPECT_THAT(EdgesOf(cut.Fills), ElementsAre(Cut{14400, 20000, 0, 11000}));
    EXPECT_EQ(CutRooms(rooms, WithCarpet(Request(144), 1)), RoomCuts());
}

TEST(CutAcrossRoll, OnlyTileRoomsGiveNothingForACarpet) {
    for (Byte carpet = 0; carpet < FirstTileCode; ++carpet) {
        EXPECT_EQ(CutRooms({{150, 100, 8}, {150, 100, 11}}, WithCarpet(Request(144), carpet)),
                  RoomCuts());
    }
}

TEST(CutAcrossRoll, RoomsWithASizeOfZeroOrLessAreNotCut) {
    for (const Units units : BothUnits) {
        for (const Lay lay : BothLays) {
            EstimateRequest request = Request(144, lay);
            request.In = units;
            EXPECT_EQ(CutRooms({{0, 500}, {500, 0}, {0, 0}, {-500, 500}, {500, -500}, {-500, -500}},
                               request),
                      RoomCuts());
        }
    }
}

// The two halves of a coordinate unit on either side of the roll's width.
TEST(CutAcrossRoll, AWidthWithinHalfAUnitOfTheRollIsTheRollsWidth) {
    for (const Lay lay : BothLays) {
        for (const Single same : {143.996F, 144.004F}) {
            const RoomCuts cut = CutRooms({{144, 144}}, Request(same, lay));
            EXPECT_EQ(cut.Cuts.size(), 1U);
            EXPECT_THAT(cut.Fills, IsEmpty());
        }
        const RoomCuts below = CutRooms({{144, 144}}, Request(143.994F, lay));
        EXPECT_EQ(below.Cuts.size(), 1U);
        EXPECT_EQ(below.Fills.size(), 1U);
        const RoomCuts above = CutRooms({{144, 144}}, Request(144.006F, lay));
        EXPECT_EQ(above.Cuts.size(), 0U);
        EXPECT_EQ(above.Fills.size(), 1U);
    }
}

// Every standard metric roll, up to 20 widths of it: rounding to inches neither loses a cut nor
// leaves a sliver.
TEST(CutAcrossRoll, MetricMultiplesOfTheRollGiveExactlyThatManyCuts) {
    for (const int roll : {183, 366, 411, 457}) {
        for (const Lay lay : BothLays) {
            for (std::size_t m = 1; m <= 20; ++m) {
                SCOPED_TRACE(::testing::Message() << m << " x " << roll << " cm");
                const RoomCuts cut = CutRooms({AcrossAlong(lay, static_cast<int>(m) * roll, 500)},
                                              MetricRequest(std::to_string(roll), lay));
                EXPECT_EQ(cut.Cuts.size(), m);
                EXPECT_THAT(cut.Fills, IsEmpty());
            }
        }
    }
}

TEST(CutAcrossRoll, ACentimetreMoreThanAMultipleLeavesAFillOneCentimetreWide) {
    for (const Lay lay : BothLays) {
        const RoomCuts cut =
            CutRooms({AcrossAlong(lay, 7 * 411 + 1, 500)}, MetricRequest("411", lay));
        EXPECT_EQ(cut.Cuts.size(), 7U);
        ASSERT_EQ(cut.Fills.size(), 1U);
        const Cut fill = Turned(EdgesOf(cut.Fills[0]), lay);
        EXPECT_NEAR(fill.X2 - fill.X1, 100 / 2.54, 0.5);
        EXPECT_EQ(WholeCentimetres((fill.X2 - fill.X1) * 0.01), 1);
    }
}

TEST(CutAcrossRoll, CutEdgesAreMultiplesOfTheRollRoundedOnce) {
    const Sized room{5 * 457 + 100, 300};
    const EstimateRequest request = MetricRequest("457");
    const RoomCuts cut = CutRooms({room}, request);
    ASSERT_EQ(cut.Cuts.size(), 5U);
    for (std::size_t k = 0; k < 5; ++k) {
        const auto roll = static_cast<double>(request.RollWidth);
        const double left = (static_cast<double>(k) * roll) / 0.01;
        const double right = (static_cast<double>(k + 1) * roll) / 0.01;
        EXPECT_EQ(cut.Cuts[k].X1, static_cast<float>(left));
        EXPECT_EQ(cut.Cuts[k].X2, static_cast<float>(right));
    }
    ASSERT_EQ(cut.Fills.size(), 1U);
    EXPECT_EQ(cut.Fills[0].X1, cut.Cuts[4].X2);
    EXPECT_EQ(cut.Fills[0].X2, ExtentOf(room.AsRoom(), Units::Metric, 0.01).X);
}

TEST(CutAcrossRoll, ThreeThousandAndOneCutsAreTheMost) {
    const RoomCuts cut = CutRooms({{3001, 50}}, Request(1));
    ASSERT_EQ(cut.Cuts.size(), 3001U);
    EXPECT_EQ(cut.Cuts[3000].X2, 300100);
    EXPECT_THAT(cut.Fills, IsEmpty());
}

TEST(CutAcrossRoll, OneCutMoreIsASubscriptErrorThatSaysTheWayOut) {
    for (const Lay lay : BothLays) {
        const RunTimeError error = ErrorOf([&] {
            CutRooms({{200, 120}, {3002, 3002}}, Request(1, lay));
        });
        EXPECT_EQ(error.Number(), SubscriptNumber);
        EXPECT_EQ(error.Advice(), "There are more than 3001 cuts: choose a wider roll or estimate "
                                  "the rooms in two projects.");
    }
}

TEST(CutAcrossRoll, ARollWithoutWidthIsAnError) {
    for (const Single roll : {0.0F, -144.0F}) {
        EXPECT_EQ(ErrorOf([&] {
                      CutRooms({{200, 120}}, Request(roll));
                  }).Number(),
                  SubscriptNumber);
        EXPECT_EQ(CutRooms({{200, 120, 1}}, Request(roll)), RoomCuts()) << "nothing is cut";
    }
}

TEST(CutAcrossRoll, AScaleOfZeroIsAnErrorForWhateverRoomThereIs) {
    Project project = ProjectOf({{100, 100, 8}});
    project.Scale = 0;
    EXPECT_EQ(ErrorOf([&] { CutAcrossRoll(project, Request(144)); }).Number(),
              DivisionByZeroNumber);
    project.Rooms.clear();
    EXPECT_EQ(CutAcrossRoll(project, Request(144)), RoomCuts());
}

TEST(CutAcrossRoll, AnExtentThatIsNotFiniteOverflows) {
    Project project = ProjectOf({{100, 100}});
    project.Scale = 1e-40;
    EXPECT_EQ(ErrorOf([&] { CutAcrossRoll(project, Request(144)); }).Number(), OverflowNumber);
}

TEST(RoomCuts, KnowWhichRoomTheyAreOf) {
    for (const Lay lay : BothLays) {
        const Rooms rooms{AcrossAlong(lay, 300, 90),
                          {50, 50, 1},
                          {0, 70},
                          AcrossAlong(lay, 100, 80),
                          AcrossAlong(lay, 144, 60)};
        const RoomCuts cut = CutRooms(rooms, Request(144, lay));
        EXPECT_THAT(cut.Cuts,
                    ElementsAre(Field(&Cut::Room, 0), Field(&Cut::Room, 0), Field(&Cut::Room, 4)));
        EXPECT_THAT(cut.Fills, ElementsAre(Field(&Piece::Room, 0), Field(&Piece::Room, 3)));
        const Estimate estimate = Estimated(rooms, Request(144, lay));
        EXPECT_EQ(estimate.Cuts, cut.Cuts);
        for (const Placed& placed : estimate.Fills.Layout) {
            EXPECT_EQ(placed.Part.Room, placed.Part.Number == 0 ? 0 : 3);
        }
        EXPECT_EQ(estimate.Fills.Layout.size(), 2U);
    }
}

} // namespace
} // namespace tarn
