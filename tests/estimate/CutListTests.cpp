#include "estimate/CutList.h"
#include "estimate/EstimateTesting.h"
#include "estimate/FillLabels.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace tarn {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using testing::Estimated;
using ::testing::IsEmpty;
using testing::MetricRequest;
using ::testing::Not;
using testing::Request;
using testing::Rooms;
using ::testing::StartsWith;
using testing::WithCarpet;
using testing::WithParts;
using testing::WithRepeat;

using Lines = std::vector<std::string>;

Lines Listing(const Rooms& rooms, const EstimateRequest& request) {
    return CutListLines(Estimated(rooms, request));
}

TEST(CutList, ImperialDownLay) {
    const Lines lines = Listing({{180, 144}, {108, 120}, {60, 96}}, Request(144));
    EXPECT_THAT(lines, ElementsAre("Carpet-1  Width=12'0\"  DOWNLAY",       //
                                   "Cut1: 12'0\" X 12'0\"",                 //
                                   "A: 3'0\" X 12'0\"",                     //
                                   "B: 9'0\" X 10'0\"",                     //
                                   "C: 5'0\" X 8'0\"",                      //
                                   "Total Cuts:1   Total Cut-Len:12'0\"",   //
                                   "Total Fills:3   Total Fill-Len:18'0\"", //
                                   "Total Length:30'0\"",                   //
                                   "Total SQ. Yards:40.00",                 //
                                   "Total SQ. FT.:360.00",                  //
                                   "Total BASE: 0.00 FEET"));
}

TEST(CutList, ImperialCrossLayWithPatternTilesAndBase) {
    const EstimateRequest request = WithCarpet(WithRepeat(Request(144, Lay::Cross), 18, 24), 2);
    const Lines lines =
        Listing({{120, 300, 2, 8}, {120, 120, 8, 8}, {24, 36, 10}, {100, 50, 1, 1}}, request);
    EXPECT_THAT(lines,
                ElementsAre("Carpet-3  Width=12'0\"  CROSSLAY",                           //
                            "Cut1: 12'0\" X 10'0\"",                                      //
                            "Cut2: 12'0\" X 10'0\"",                                      //
                            "A: 1'0\" X 10'0\"",                                          //
                            "Match Pattern: 1'6\" X 2'0\"",                               //
                            "Total Cuts:2   Total Cut-Len:20'0\"",                        //
                            "Total Fills:1   Total Fill-Len:10'0\"",                      //
                            "Total Length:30'0\"",                                        //
                            "Total SQ. Yards:40.00",                                      //
                            "Total SQ. FT.:360.00",                                       //
                            "Total Match Pattern Length: 30'0\"",                         //
                            "Total Match Pattern Size: 360.00 SQ. FT.   40.00 SQ. Yards", //
                            "Total BASE: 118.33 FEET",                                    //
                            "Tile-1:  100.00 SQ. FT.  Tile Base: 40.00 FEET",             //
                            "Tile-3:  6.00 SQ. FT.  Tile Base: 10.00 FEET"));
}

// 496 cm are 195.28 inches, a little past the 195 that is reported.
TEST(CutList, MetricDownLayWithPatternTileBaseAndFillsPastTheReportedLength) {
    const Lines lines =
        Listing({{400, 496, 0, 5}, {200, 300, 11}}, WithRepeat(MetricRequest("366"), 31, 64));
    EXPECT_THAT(lines, ElementsAre("Carpet-1  Width=366  DOWNLAY",                  //
                                   "Cut1: 366 X 496",                               //
                                   "A: 34 X 496",                                   //
                                   "Match Pattern: 31 X 64",                        //
                                   "Total Cuts:1   Total Cut-Len:496",              //
                                   "Total Fills:1   Total Fill-Len:495",            //
                                   "Fills end at:496",                              //
                                   "Total Length:991",                              //
                                   "Total SQ. Meters:36.28",                        //
                                   "Total Match Pattern Length: 1024",              //
                                   "Total Match Pattern Size: 37.48 SQ. Meters   ", //
                                   "Total BASE: 1296 CM",                           //
                                   "Tile-4:  6.00 SQ. Meters.  Tile Base: 1000 CM"));
}

TEST(CutList, MetricCrossLayOfWholeWidthCutsAlone) {
    const Lines lines = Listing({{250, 914}, {100, 457}}, MetricRequest("457", Lay::Cross));
    EXPECT_THAT(lines, ElementsAre("Carpet-1  Width=457  CROSSLAY",    //
                                   "Cut1: 457 X 250",                  //
                                   "Cut2: 457 X 250",                  //
                                   "Cut3: 457 X 100",                  //
                                   "Total Cuts:3   Total Cut-Len:600", //
                                   "Total Fills:0   Total Fill-Len:0", //
                                   "Total Length:600",                 //
                                   "Total SQ. Meters:27.42",           //
                                   "Total BASE: 0 CM"));
}

TEST(CutList, FillsAlone) {
    const Lines lines = Listing({{100, 75}}, Request(162));
    EXPECT_THAT(lines, ElementsAre("Carpet-1  Width=13'6\"  DOWNLAY",      //
                                   "A: 8'4\" X 6'3\"",                     //
                                   "Total Cuts:0   Total Cut-Len:0'0\"",   //
                                   "Total Fills:1   Total Fill-Len:6'3\"", //
                                   "Total Length:6'3\"",                   //
                                   "Total SQ. Yards:9.38",                 //
                                   "Total SQ. FT.:84.38",                  //
                                   "Total BASE: 0.00 FEET"));
}

TEST(CutList, WithoutCutsAndFillsIsEmpty) {
    EXPECT_THAT(CutListLines(Estimate()), IsEmpty());
    EXPECT_THAT(Listing({{120, 120, 8, 8}}, WithRepeat(Request(144), 18, 24)), IsEmpty());
}

TEST(CutList, BaseSumsOverTheRoomsOfAllCarpets) {
    EXPECT_EQ(Listing({{144, 120, 0, 0}, {60, 96, 5, 8}}, Request(144)).back(),
              "Total BASE: 26.00 FEET");
}

TEST(CutList, ARollOf144InchesWith240OfCutsAnd120OfFillsIsFortySquareYards) {
    Estimate estimate = Estimated({{144, 240}}, Request(144));
    estimate.Fills.Length = 120;
    const Lines lines = CutListLines(estimate);
    EXPECT_THAT(lines, Contains("Total Length:30'0\""));
    EXPECT_THAT(lines, Contains("Total SQ. Yards:40.00"));
    EXPECT_THAT(lines, Contains("Total SQ. FT.:360.00"));
}

// Thousands are grouped in the totals and not in the pattern's size.
TEST(CutList, LargeFigures) {
    const Lines lines = Listing({{150, 8653}}, WithRepeat(Request(150), 18, 0));
    EXPECT_THAT(lines, Contains("Carpet-1  Width=12'6\"  DOWNLAY"));
    EXPECT_THAT(lines, Contains("Total SQ. Yards:1,001.50"));
    EXPECT_THAT(lines, Contains("Total SQ. FT.:9,013.54"));
    EXPECT_THAT(lines, Contains("Total Match Pattern Size: 9013.54 SQ. FT.   1001.50 SQ. Yards"));
}

TEST(CutList, SquareMetresOfHalvesPrintTrue) {
    EXPECT_THAT(Listing({{183, 150}}, MetricRequest("183")), Contains("Total SQ. Meters:2.74"));
}

// The two parts of a 97 inch strip lie side by side: 48.5 inches, of which 48 are reported.
TEST(CutList, PartsShareTheirFillsLabelAndHalfInchesAreRaised) {
    const Lines lines = Listing({{72, 97}}, WithParts(Request(144), MinCut::ThreeFeet, 2));
    ASSERT_GE(lines.size(), 6U);
    EXPECT_EQ(lines[1], "A: 6'0\" X 4'1\"");
    EXPECT_EQ(lines[2], "A: 6'0\" X 4'1\"");
    EXPECT_EQ(lines[4], "Total Fills:2   Total Fill-Len:4'0\"");
    EXPECT_EQ(lines[5], "Fills end at:4'1\"");
}

TEST(CutList, FillsThatEndWithinTheReportedLengthAreNotToldTwice) {
    Estimate estimate;
    estimate.Request = Request(144);
    testing::AddPlaced(estimate, 0, 0, 144, 120);
    estimate.Fills.Length = 120;
    Single& length = estimate.Fills.Layout[0].Length;
    length = 120.004F;
    EXPECT_THAT(CutListLines(estimate), Not(Contains(StartsWith("Fills end at:"))));
    length = 120.006F;
    EXPECT_THAT(CutListLines(estimate), Contains("Fills end at:10'1\""));
    length = 118;
    EXPECT_THAT(CutListLines(estimate), Not(Contains(StartsWith("Fills end at:"))));
}

TEST(CutList, TilesWithoutRoomsHaveNoLine) {
    const Lines lines =
        Listing({{144, 120}, {10, 10, 11}, {10, 10, 9}, {10, 10, 11}}, Request(144));
    EXPECT_EQ(lines[lines.size() - 2], "Tile-2:  0.69 SQ. FT.  Tile Base: 3.33 FEET");
    EXPECT_EQ(lines[lines.size() - 1], "Tile-4:  1.39 SQ. FT.  Tile Base: 6.67 FEET");
    EXPECT_EQ(std::count_if(lines.begin(), lines.end(),
                            [](const std::string& line) { return line.rfind("Tile-", 0) == 0; }),
              2);
}

TEST(CutList, ALengthBeyondALongOverflows) {
    Estimate estimate = Estimated({{144, 144}}, Request(144));
    estimate.Cuts[0].Y2 = 1e12F;
    EXPECT_EQ(testing::ErrorOf([&] { CutListLines(estimate); }).Number(), OverflowNumber);
}

TEST(CarpetHeading, NamesCarpetRollAndLay) {
    EstimateRequest request = WithCarpet(Request(150.5F, Lay::Cross), 7);
    EXPECT_EQ(CarpetHeading(request), "Carpet-8  Width=12'7\"  CROSSLAY");
    request.In = Units::Metric;
    request.Direction = Lay::Down;
    EXPECT_EQ(CarpetHeading(request), "Carpet-8  Width=382  DOWNLAY");
}

TEST(CarpetHeading, RoundsTheCentimetresOfTheRollToTheNearest) {
    EXPECT_EQ(CarpetHeadingLines(MetricRequest("366.4"))[0], "Carpet-1  Width=366");
    EXPECT_EQ(CarpetHeadingLines(MetricRequest("366.6"))[0], "Carpet-1  Width=367");
}

TEST(SizeText, RaisesToWholeInches) {
    EXPECT_EQ(SizeText(144, 120, Units::Imperial), "12'0\" X 10'0\"");
    EXPECT_EQ(SizeText(30.004, 30.006, Units::Imperial), "2'6\" X 2'7\"");
    EXPECT_EQ(SizeText(0.5, 11.5, Units::Imperial), "0'1\" X 1'0\"");
}

TEST(SizeText, RaisesToWholeCentimetresButKeepsRoundedWholeOnes) {
    EXPECT_EQ(SizeText(133.35 / 2.54, 420.014 / 2.54, Units::Metric), "134 X 420");
    EXPECT_EQ(SizeText(366.029 / 2.54, 366.031 / 2.54, Units::Metric), "366 X 367");
}

TEST(CutList, LabelsHaveOneLetterForTwentySixFillsAndTwoForTwentySeven) {
    Rooms rooms(26, {10, 20});
    const Lines one = Listing(rooms, Request(144));
    EXPECT_EQ(one[1], "A: 0'10\" X 1'8\"");
    EXPECT_EQ(one[26], "Z: 0'10\" X 1'8\"");
    rooms.push_back({10, 20});
    const Lines two = Listing(rooms, Request(144));
    EXPECT_EQ(two[1], "AA: 0'10\" X 1'8\"");
    EXPECT_EQ(two[26], "AZ: 0'10\" X 1'8\"");
    EXPECT_EQ(two[27], "BA: 0'10\" X 1'8\"");
}

TEST(CutList, LabelsGoByTheFillsAndNotByTheirParts) {
    Estimate estimate;
    for (Integer part = 0; part < 40; ++part) {
        testing::AddPlaced(estimate, 0, 0, 10, 20);
        estimate.Fills.Layout.back().Part.Number = static_cast<Integer>(part / 2);
    }
    estimate.Job.Pieces.resize(20);
    EXPECT_EQ(CutListLines(estimate)[40], "T: 0'10\" X 1'8\"");
}

TEST(CutList, KnowsWhatItsLinesAreAbout) {
    const Estimate estimate = Estimated({{200, 100}, {300, 90}}, Request(144));
    std::size_t cuts = 0;
    std::size_t pieces = 0;
    for (const CutListLine& line : CutListItems(estimate)) {
        if (line.Cut) {
            EXPECT_EQ(*line.Cut, cuts++);
            EXPECT_EQ(line.Text,
                      CutLabel(*line.Cut) + ": " + SizeOf(estimate, estimate.Cuts.at(*line.Cut)));
        } else if (line.Piece) {
            EXPECT_EQ(*line.Piece, pieces++);
            EXPECT_TRUE(line.Text.ends_with(
                ": " + SizeOf(estimate, estimate.Fills.Layout.at(*line.Piece).Part)));
        } else {
            EXPECT_TRUE(line.Text.starts_with("Carpet-") || line.Text.starts_with("Total"));
        }
    }
    EXPECT_EQ(cuts, estimate.Cuts.size());
    EXPECT_EQ(pieces, estimate.Fills.Layout.size());
}

} // namespace
} // namespace tarn
