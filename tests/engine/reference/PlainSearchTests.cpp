#include "engine/reference/PlainNumbers.h"
#include "engine/reference/PlainSearchTesting.h"
#include "engine/reference/RandomJobs.h"
#include "engine/reference/StoredJobs.h"

// Layouts worked out by hand. In the sketches x runs to the right (0 .. roll width) and y, along
// the roll, downwards; all figures are inches.

namespace tarn::reference {

namespace {

TEST(PlainSearch, PlacesTheFirstPieceAtTheStartOfTheRoll) {
    const PlainResult result = RunPlainSearch(DownLayJob(144, 1, {{60, 100}}));
    EXPECT_EQ(result.placed, (Layout{{0, 0, 60, 100}}));
    EXPECT_EQ(result.pieces, (Pieces{{0, 6000, 0, 10000, 0, 1, 0}}));
    EXPECT_EQ(result.cases, 1);
    EXPECT_EQ(result.undivided, 1);
    ExpectBest(result, 1, 100);
}

TEST(PlainSearch, RaisesTheResultToAMultipleOfThree) {
    EXPECT_EQ(RunPlainSearch(DownLayJob(144, 1, {{60, 100}})).resultLength, 102);
    EXPECT_EQ(RunPlainSearch(DownLayJob(144, 1, {{60, 99}})).resultLength, 99);
    EXPECT_EQ(RunPlainSearch(DownLayJob(144, 1, {{60, 98}})).resultLength, 99);
}

//   0        72  84      144
//   +--------+   +--------+ 0
//   |   0    |   |   1    |
//   |        |   +--------+ 60
//   +--------+ 120
TEST(PlainSearch, PushesAPieceWithNothingToItsRightToTheFarEdge) {
    const PlainResult result = RunPlainSearch(DownLayJob(144, 1, {{72, 120}, {60, 60}}));
    EXPECT_EQ(result.placed, (Layout{{0, 0, 72, 120}, {84, 0, 60, 60}}));
    ExpectBest(result, 1, 120);
}

//   0      48      96     144
//   +------+       +------+ 0
//   |  0   |       |  1   |
//   +------+       +------+ 100      the push gave up corner (48, 0)
//   |  2   |
//   +------+ 200
TEST(PlainSearch, GivesUpTheCornerThatAPushLeaves) {
    const PlainResult result = RunPlainSearch(Stored("push gives up its corner"));
    EXPECT_EQ(result.placed, (Layout{{0, 0, 48, 100}, {96, 0, 48, 100}, {0, 100, 48, 100}}));
    ExpectBest(result, 1, 200);
}

//   0     36     72 84 96  108   144
//   +------------+--+--+---------+ 0
//   |      4     |  |  |         |
//   +-----+------+ 1|  |    6    | 60
//   |     |  2   |  |  |         |
//   |  3  |      +--+  +---------+ 120
//   |     +------+  |      +-----+ 156   strip 5 is pushed to x = 132 only if
//   |     |      |5 |      |     |       piece 0 is overlooked, which begins lower
//   +-----+ 192  |  |      |  0  |
//                |  |      +-----+ 240
//                +--+ 288
TEST(PlainSearch, KeepsAPieceAtItsCornerWhereThePushIsBlocked) {
    const PlainResult result = RunPlainSearch(Stored("strip blocked from the far edge"));
    EXPECT_EQ(result.placed, (Layout{{108, 156, 36, 84},
                                     {72, 0, 24, 120},
                                     {36, 60, 36, 96},
                                     {0, 60, 36, 132},
                                     {0, 0, 72, 60},
                                     {72, 120, 12, 168},
                                     {96, 0, 48, 120}}));
    ExpectBest(result, 0, 288);
    EXPECT_EQ(result.resultLength, 288);
}

//   0         100    132 144
//   +----------+      +---+ 0
//   |    0     |      |   |
//   +----------+ 50   | 1 |     at (0, 50) piece 2 would cross piece 1,
//                     |   |     with no corner of either inside the other
//   +-----------------+---+ 200
//   |          2          |
//   +---------------------+ 210
TEST(PlainSearch, SeesACrossingWithoutACornerInside) {
    const PlainResult result = RunPlainSearch(Stored("crossing without a corner inside"));
    EXPECT_EQ(result.placed, (Layout{{0, 0, 100, 50}, {132, 0, 12, 200}, {0, 200, 144, 10}}));
    ExpectBest(result, 1, 210);
}

//   0          100      144
//   +----------+--------+ 0
//   |    0     |   1    |
//   |          +--------+ 50     corner (100, 50) has the key 50.1,
//   +----------+ 50.05           corner (0, 50.05) the key 50.05
//   | 2  |
//   +----+
TEST(PlainSearch, OrdersCornersByAKeyOfBothCoordinates) {
    const PlainResult result = RunPlainSearch(Stored("nearer row behind a corner on the left"));
    EXPECT_EQ(result.placed, (Layout{{0, 0, 100, 50.05F}, {100, 0, 44, 50}, {0, 50.05F, 44, 10}}));
    ExpectBest(result, 1, 60);
}

TEST(PlainSearch, FitsPiecesThatAreTooWideTogetherByLessThanTheTolerance) {
    const PlainJob job = Stored("metric halves");
    const float half = WidthOf(job.pieces[0]);
    const float length = LengthOf(job.pieces[0]);
    ASSERT_GT(half + half, job.rollWidth);
    const PlainResult result = RunPlainSearch(job);
    EXPECT_EQ(result.placed, (Layout{{0, 0, half, length}, {half, 0, half, length}}));
    ExpectBest(result, 1, 39);
}

TEST(PlainSearch, KeepsAPieceWholeThatIsWiderThanTheRollByRoundingAlone) {
    const PlainJob job = Stored("wider by rounding alone");
    ASSERT_GT(WidthOf(job.pieces[0]), job.rollWidth);
    const PlainResult result = RunPlainSearch(job);
    EXPECT_EQ(result.pieces, job.pieces);
    EXPECT_EQ(result.undivided, 1);
    ExpectBest(result, 1, 197);
}

//   0       56            144
//   +---------------------+ 0
//   |        strip        |
//   +--------+------------+ 50
//   |  rest  |
//   +--------+ 100
TEST(PlainSearch, TakesAStripOffAPieceTooWide) {
    const PlainResult result = RunPlainSearch(Stored("wider than the roll"));
    EXPECT_EQ(result.pieces,
              (Pieces{{0, 14400, 0, 5000, 0, 0, 0}, {14400, 20000, 0, 5000, 0, 1, 1}}));
    EXPECT_EQ(result.placed, (Layout{{0, 0, 144, 50}, {0, 50, 56, 50}}));
    EXPECT_EQ(result.undivided, 2);
    ExpectBest(result, 1, 100);
}

//   0                     144              256
//   +---------------------+----------------+ 0
//   |             rest    |                |
//   +---------------------+----------------+ 50
//   |        strip        |
//   +---------------------+ 100
TEST(PlainSearch, PlacesARestThatFitsNowhereAtTheLeftBehindEverything) {
    const PlainResult result = RunPlainSearch(Stored("more than twice the roll"));
    EXPECT_EQ(result.pieces,
              (Pieces{{14400, 40000, 0, 5000, 0, 1, 0}, {0, 14400, 0, 5000, 0, 0, 1}}));
    EXPECT_EQ(result.placed, (Layout{{0, 0, 256, 50}, {0, 50, 144, 50}}));
    ExpectBest(result, 1, 100);
}

//   0              144   150
//   +--------------+ 0
//   |      1       |
//   +--------------+-----+ 300
//   |      rest 0        |
//   +--------------+-----+ 310
//   |   strip 0    |
//   +--------------+ 320
TEST(PlainSearch, PlacesARestThatFitsNowhereBehindPiecesPlacedBefore) {
    const PlainResult result = RunPlainSearch(DownLayJob(144, 1, {{294, 10}, {144, 300}}));
    EXPECT_EQ(result.placed, (Layout{{0, 300, 150, 10}, {0, 310, 144, 10}, {0, 0, 144, 300}}));
    ExpectBest(result, 1, 320);
}

//   0               142 144
//   +---------------+ 0
//   |     strip     |
//   ++--------------+ 50
//   || rest, 2 wide
//   ++ 100
TEST(PlainSearch, PlacesANarrowRestOfAPieceTooWide) {
    const PlainResult result = RunPlainSearch(Stored("narrow rest"));
    EXPECT_EQ(result.placed, (Layout{{0, 0, 142, 50}, {0, 50, 2, 50}}));
    ExpectBest(result, 1, 100);
}

//   0        50   62    72 84 96   144
//   +--------+----+           +----+ 0
//   |        |    |           |    |     piece 4 stood at x = 72, where
//   |   0    | 4  |           |    |     only its corner met piece 3
//   |        |    |           | 1  |
//   +-----+--+----+---+ 60    |    |
//   |  2  |     3     |       +----+ 120
//   |     +-----------+ 156
//   +-----+ 192
TEST(PlainSearch, MovesAFreeStandingPieceLeft) {
    const PlainResult result = RunPlainSearch(Stored("free-standing strip moves left"));
    EXPECT_EQ(result.placed, (Layout{{0, 0, 50, 60},
                                     {96, 0, 48, 120},
                                     {0, 60, 36, 132},
                                     {36, 60, 36, 96},
                                     {50, 0, 12, 60}}));
    ExpectBest(result, 0, 192);
}

//   0        72  84  96 108 120  144
//   +--------+---+-----------+ 0
//   |        | 3 |     1     |
//   |   4    +---+-----------+ 72    piece 2 could go to the far edge below piece 1,
//   |        |2|3|                   but piece 3 stands to its right (to y = 84)
//   +--------+-+-+ 120
//   |     0      |
//   +------------+ 216
TEST(PlainSearch, KeepsAPieceAtItsCornerWhereAnotherStandsToItsRight) {
    const PlainResult result = RunPlainSearch(Stored("crossed row keeps a strip in place"));
    EXPECT_EQ(result.placed, (Layout{{0, 120, 84, 96},
                                     {96, 0, 48, 72},
                                     {72, 72, 12, 48},
                                     {84, 0, 12, 84},
                                     {0, 0, 72, 120}}));
    ExpectBest(result, 1, 216);
}

//   0        72 84 96 108 120  144
//   +--------+  +---------------+ 0
//   |   1    |  |       5       |
//   |        +--+--+--+---+-----+ 60   piece 4 would fit at the far edge (120, 60),
//   |        |  4  |  |   |  7  |      but piece 0 starts on its row
//   +--------+-----+0 |   +-----+ 96
//   |      6       |  |
//   +-----------+--+  |   +-----+ 156
//   |     3     |  |  |   |     |
//   |           |  +--+   |     | 180
//   +-----------+--+      |  8  | 216
//   |      2       |      |     |
//   +--------------+ 240  +-----+ 264
TEST(PlainSearch, KeepsAPieceAtItsCornerWhereAnotherStartsOnItsRow) {
    const PlainResult result = RunPlainSearch(Stored("piece on the same row"));
    EXPECT_EQ(result.placed, (Layout{{96, 60, 12, 120},
                                     {0, 0, 72, 96},
                                     {0, 216, 96, 24},
                                     {0, 156, 84, 60},
                                     {72, 60, 24, 36},
                                     {84, 0, 60, 60},
                                     {0, 96, 96, 60},
                                     {120, 60, 24, 36},
                                     {120, 156, 24, 108}}));
    ExpectBest(result, 1, 264);
}

//   by area, 60 long:               by width:
//   0       84  96   144            0       84  96   144
//   +-------+   +-----+ 0           +-------+   +-----+ 0
//   |   1   |   |  0  |             |   1   |   |  0  |
//   +-------+   +-----+ 36          +-------+-+-+-----+ 36
//   |   2   |                       |   2   | |   3   |
//   +-------+ 48                    +-------+ +-------+ 48
//   |  3 |                          corner (84, 36) exists only when piece 2, which
//   +----+ 60                       starts at y = 36, is there before piece 0
TEST(PlainSearch, StopsAPointMovedLeftAtPiecesThatStartButNotThatEndOnItsRow) {
    const PlainResult result = RunPlainSearch(Stored("row ends where another starts"));
    EXPECT_EQ(result.placed,
              (Layout{{96, 0, 48, 36}, {0, 0, 84, 36}, {0, 36, 84, 12}, {108, 36, 36, 12}}));
    ExpectBest(result, 0, 48);
}

//   0   24  48         144
//   +---+   +-----------+ 0
//   | 1 |   |     0     |      equal areas: the longer one comes first
//   |   |   +-----------+ 24
//   +---+ 96
TEST(PlainSearch, PlacesTheLongerOfTwoEqualAreasFirst) {
    const PlainResult result = RunPlainSearch(Stored("equal areas"));
    EXPECT_EQ(result.placed, (Layout{{48, 0, 96, 24}, {0, 0, 24, 96}}));
    ExpectBest(result, 1, 96);
}

//   0        48  60    96 108 120  144
//   +--------+   +---------+   +----+ 0
//   |        |   |    0    |   |    |
//   |   4    +---+-----+---+   |    | 60    piece 0 touches piece 3 alone,
//   |        |    3    |       | 2  |       which lies below it
//   +--------+---+-----+       +----+ 108
//   |     1      |
//   +------------+ 168
TEST(PlainSearch, LeavesAPieceThatTouchesAnotherAtItsEndAlone) {
    const PlainResult result = RunPlainSearch(Stored("touching at the end"));
    EXPECT_EQ(result.placed, (Layout{{60, 0, 48, 60},
                                     {0, 108, 60, 60},
                                     {120, 0, 24, 108},
                                     {48, 60, 48, 48},
                                     {0, 0, 48, 108}}));
    ExpectBest(result, 2, 168);
}

//   0        72  84  96     144
//   +--------+   +---+-------+ 0
//   |        |   | 1 |       |
//   |   3    |   +---+   2   | 12     piece 1 touches piece 2 beside it
//   |        |       +-------+ 72
//   +--------+---+ 84
//   |     0      |
//   +------------+ 132
TEST(PlainSearch, LeavesAPieceThatTouchesAnotherBesideItAlone) {
    const PlainResult result = RunPlainSearch(Stored("touching beside"));
    EXPECT_EQ(result.placed,
              (Layout{{0, 84, 84, 48}, {84, 0, 12, 12}, {96, 0, 48, 72}, {0, 0, 72, 84}}));
    ExpectBest(result, 1, 132);
}

// The same in centimetres on the 366 cm roll: piece 1 reaches 0.000008 inch into piece 2.
//   0       122 183     305   366
//   +--------+   +-------+-----+ 0
//   |        |   |   1   |     |
//   |   3    |   +-------+     | 61
//   |        |           |  2  |
//   +--------+---+ 183   |     |
//   |     0      |       +-----+ 244
//   +------------+ 305
TEST(PlainSearch, CountsEdgesAsTouchingWithinTheTolerance) {
    const PlainJob job = Stored("touching within the tolerance");
    const PlainResult result = RunPlainSearch(job);
    ASSERT_EQ(result.placed.size(), 4U);
    const PlainPlaced& one = result.placed[1];
    EXPECT_EQ(one.x, WidthOf(job.pieces[0]));
    EXPECT_EQ(one.y, 0.0F);
    EXPECT_GT(one.x + one.w, result.placed[2].x);
    EXPECT_EQ(result.placed[2].x, job.rollWidth - WidthOf(job.pieces[2]));
    ExpectBest(result, 2, 120);
}

//   0    30     114   144           256
//   +------------------+-------------+ 0
//   |       rest       |             |
//   +------------------+-------------+ 50
//   |      strip       |
//   +----+       +-----+ 100
//   | 1  |       |  2  |
//   +----+       +-----+ 120
TEST(PlainSearch, GoesOnBehindAPieceThatFitsNowhere) {
    const PlainResult result = RunPlainSearch(DownLayJob(144, 1, {{400, 50}, {30, 20}, {30, 20}}));
    EXPECT_EQ(result.placed,
              (Layout{{0, 0, 256, 50}, {0, 50, 144, 50}, {0, 100, 30, 20}, {114, 100, 30, 20}}));
    ExpectBest(result, 1, 120);
}

} // namespace

} // namespace tarn::reference
