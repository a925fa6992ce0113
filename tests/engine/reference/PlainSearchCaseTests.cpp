#include "base/RunTimeError.h"
#include "engine/reference/PlainSearchTesting.h"
#include "engine/reference/StoredJobs.h"

#include <algorithm>
#include <cstddef>
#include <utility>

// Division of pieces, the cases of both passes, joining, cross lay and errors; layouts worked out
// by hand, all figures in inches.

namespace tarn::reference {

namespace {

//   0       72      144
//   +-------+-------+ 0
//   |  0 a  |  0 b  |
//   +-------+-------+ 100
TEST(PlainSearch, DividesALongPiece) {
    const PlainResult result = RunPlainSearch(Stored("one long strip in two"));
    EXPECT_EQ(result.radix, (Numbers{2}));
    EXPECT_EQ(result.digits, (Numbers{1}));
    EXPECT_EQ(result.cases, 2);
    EXPECT_EQ(result.pieces,
              (Pieces{{0, 7200, 0, 10000, 0, 1, 0}, {0, 7200, 10000, 20000, 0, 1, 1}}));
    EXPECT_EQ(result.placed, (Layout{{0, 0, 72, 100}, {72, 0, 72, 100}}));
    ExpectBest(result, 1, 100);
}

TEST(PlainSearch, RoundsPartsUpPastTheEndOfThePiece) {
    PlainJob job = Stored("one long strip in two");
    job.pieces[0].y1 = 1;
    job.pieces[0].y2 = 20002; // two parts of Int((20001 + 1.8) / 2)
    const PlainResult result = RunPlainSearch(job);
    EXPECT_EQ(result.pieces,
              (Pieces{{0, 7200, 1, 10002, 0, 1, 0}, {0, 7200, 10002, 20003, 0, 1, 1}}));
}

TEST(PlainSearch, DividesNoPieceThatIsNotMarked) {
    const PlainResult result = RunPlainSearch(Stored("indivisible"));
    EXPECT_EQ(result.radix, (Numbers{1}));
    EXPECT_EQ(result.placed, (Layout{{0, 0, 72, 200}}));
    ExpectBest(result, 1, 200);
}

//   0       72      144
//   +-------+-------+ 0
//   |  0 a  |   1   |
//   |       +-------+ 100      parts a and b of piece 0 become one strip again
//   |  0 b  |  0 c  |
//   +-------+-------+ 200
TEST(PlainSearch, JoinsPartsThatLieEndToEnd) {
    const PlainResult result = RunPlainSearch(Stored("two of three parts end to end"));
    EXPECT_EQ(result.cases, 9);
    EXPECT_EQ(result.digits, (Numbers{2, 0}));
    EXPECT_EQ(result.pieces, (Pieces{{0, 7200, 0, 20000, 0, 1, 0},
                                     {0, 7200, 20000, 30000, 0, 1, 3},
                                     {0, 7200, 0, 10000, 1, 1, 1}}));
    EXPECT_EQ(result.placed, (Layout{{0, 0, 72, 200}, {72, 100, 72, 100}, {72, 0, 72, 100}}));
    ExpectBest(result, 1, 200);
}

//   0    36      108  144
//   +------------------+ 0
//   |       0 a        |
//   +------------------+ 3
//   |       1 a        |
//   +------------------+ 6
//   |       0 b        |
//   +------------------+ 9
//   |       1 b        |
//   +----+-------+-----+ 12
//   |2 a |       | 2 b |       only pieces 0 and 1 vary in the first pass, which needs 20
//   +----+       +-----+ 16
TEST(PlainSearch, DividesEveryPieceInTheSecondPass) {
    const PlainResult result = RunPlainSearch(Stored("only the second pass divides the third"));
    EXPECT_EQ(result.radix, (Numbers{2, 2, 1}));
    EXPECT_EQ(result.cases, 4);
    EXPECT_EQ(result.digits, (Numbers{1, 1, 1}));
    EXPECT_EQ(result.placed, (Layout{{0, 0, 144, 3},
                                     {0, 6, 144, 3},
                                     {0, 3, 144, 3},
                                     {0, 9, 144, 3},
                                     {0, 12, 36, 4},
                                     {108, 12, 36, 4}}));
    ExpectBest(result, 1, 16);
}

TEST(PlainSearch, DividesIntoAsManyPartsAsAllowedInTheSecondPass) {
    // Six parts of the third piece, 3 long, fit in two rows: 12 + 6.
    const PlainResult result = RunPlainSearch(DownLayJob(144, 6, {{144, 6}, {144, 6}, {12, 18}}));
    EXPECT_EQ(result.digits, (Numbers{1, 1, 5}));
    ExpectBest(result, 1, 18);
}

TEST(PlainSearch, DividesInTheFirstPassAPieceOneUnitShortOfTwoCuts) {
    PlainJob job = DownLayJob(144, 2, {{72, 1}});
    job.pieces[0].y2 = 599;
    const PlainResult result = RunPlainSearch(job);
    EXPECT_EQ(result.cases, 2);
    EXPECT_EQ(result.pieces, (Pieces{{0, 7200, 0, 300, 0, 1, 0}, {0, 7200, 300, 600, 0, 1, 1}}));
    ExpectBest(result, 1, 3);
}

TEST(PlainSearch, RecordsNoCaseThatNeedsTheLongestLengthThereIs) {
    PlainJob job = DownLayJob(144, 1, {{144, 1}});
    job.pieces[0].y2 = 3276690;
    const PlainResult result = RunPlainSearch(job);
    ExpectBest(result, 0, 32767);
    EXPECT_EQ(result.resultLength, 32766);
}

TEST(PlainSearch, DividesInTheSecondPassOnlyWhatGivesPartsOfTheMinimumCut) {
    // The third piece, 5 long, would need two parts of at least 3.
    const PlainResult result = RunPlainSearch(DownLayJob(144, 6, {{144, 6}, {144, 6}, {36, 5}}));
    EXPECT_EQ(result.digits, (Numbers{0, 0, 0}));
    ExpectBest(result, 1, 17);
}

TEST(PlainSearch, FindsALayoutWhereTheFirstPassHasNoCase) {
    const PlainResult result = RunPlainSearch(Stored("shorter than the minimum cut"));
    EXPECT_EQ(result.radix, (Numbers{2, 0}));
    EXPECT_EQ(result.cases, 0);
    EXPECT_EQ(result.digits, (Numbers{0, 0}));
    EXPECT_EQ(result.placed, (Layout{{0, 0, 144, 100}, {0, 100, 30, 2}}));
    ExpectBest(result, 1, 102);
}

TEST(PlainSearch, KeepsTheFirstOfEqualLengths) {
    // Dividing a piece of the full width gains nothing, nor does another order.
    const PlainResult result = RunPlainSearch(DownLayJob(144, 6, {{144, 200}, {144, 100}}, 50));
    EXPECT_EQ(result.digits, (Numbers{0, 0}));
    ExpectBest(result, 1, 300);
}

TEST(PlainSearch, VariesAsManyPiecesAsTheBudgetOfCasesAllows) {
    const std::vector<Extent> eight(8, {100, 20});
    const std::vector<long> expected = {1, 64, 81, 64, 125, 36};
    for (int parts = 1; parts <= 6; ++parts) {
        const PlainResult result = RunPlainSearch(DownLayJob(144, parts, eight));
        EXPECT_EQ(result.cases, expected[static_cast<std::size_t>(parts - 1)]) << parts;
    }
}

TEST(PlainSearch, CountsThePartsThatTheMinimumCutAllows) {
    for (const int minimum : {300, 150, 50, 762, 381, 127}) {
        for (const int length : {minimum - 2, minimum - 1, 3 * minimum - 2, 3 * minimum - 1,
                                 6 * minimum - 1, 9 * minimum}) {
            PlainJob job = DownLayJob(144, 6, {{30, 1}}, minimum);
            job.pieces[0].y2 = static_cast<float>(length);
            const int radix = std::min((length + 1) / minimum, 6);
            EXPECT_EQ(RunPlainSearch(job).radix, (Numbers{radix})) << length;
        }
    }
}

TEST(PlainSearch, KeepsCrossLaidPiecesBitForBit) {
    const PlainJob job = Stored("cross lay");
    const PlainResult result = RunPlainSearch(job);
    EXPECT_EQ(result.placed, (Layout{{0, 0, 72.0025F, 120.005F}}));
    EXPECT_EQ(result.pieces, job.pieces);
}

TEST(PlainSearch, LeavesOutCasesWithMorePartsThanThereIsRoomFor) {
    const PlainResult result = RunPlainSearch(Stored("cases with too many parts"));
    EXPECT_EQ(result.cases, 4);
    EXPECT_EQ(result.pieces.size(), 2999U);
    ExpectBest(result, 1, 2999L * 6);
}

TEST(PlainSearch, RaisesTheErrorOfAJobThatCannotBeDone) {
    for (const FailingJob& failing : FailingJobs()) {
        SCOPED_TRACE(failing.name);
        try {
            RunPlainSearch(failing.job);
            ADD_FAILURE() << "no error";
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.Number(), failing.error);
        }
    }
}

} // namespace

} // namespace tarn::reference
