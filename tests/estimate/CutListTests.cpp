#include "estimate/CutList.h"
#include "estimate/EstimateTesting.h"
#include "estimate/MatchPattern.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace tarn {
namespace {

using testing::Centimetres;
using ::testing::Contains;
using testing::Cut;
using ::testing::ElementsAre;
using testing::Imperial;
using ::testing::IsEmpty;
using testing::Job;
using testing::MakeEstimate;
using testing::Metric;
using ::testing::Not;
using testing::Request;
using ::testing::StartsWith;

std::vector<std::string> Listing(const Job& job) {
    return CutListLines(job.State, job.Engine, job.Estimate);
}

EstimateRequest WithMatch(EstimateRequest request, std::string width, std::string length) {
    request.Match = EstimateRequest::Repeat{std::move(width), std::move(length)};
    return request;
}

TEST(CutList, ImperialDownLay) {
    Job job = Imperial({{180, 144}, {108, 120}, {60, 96}});
    MakeEstimate(job, Request(144));
    EXPECT_THAT(Listing(job), ElementsAre("Carpet-1  Width=12'0\"  DOWNLAY",       //
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
    Job job = Imperial({{120, 300, 2, 8}, {120, 120, 8, 8}, {24, 36, 10}, {100, 50, 1, 1}});
    EstimateRequest request = WithMatch(Request(144, false), "18", "24");
    request.Carpet = 2;
    MakeEstimate(job, request);
    EXPECT_THAT(Listing(job),
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
    Job job = Metric({{400, 496, 0, 5}, {200, 300, 11}});
    MakeEstimate(job, WithMatch(Request(Centimetres("366")), "31", "64"));
    EXPECT_THAT(Listing(job), ElementsAre("Carpet-1  Width=366  DOWNLAY",                  //
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
    Job job = Metric({{250, 914}, {100, 457}});
    MakeEstimate(job, Request(Centimetres("457"), false));
    EXPECT_THAT(Listing(job), ElementsAre("Carpet-1  Width=457  CROSSLAY",    //
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
    Job job = Imperial({{100, 75}});
    MakeEstimate(job, Request(162));
    EXPECT_THAT(Listing(job), ElementsAre("Carpet-1  Width=13'6\"  DOWNLAY",      //
                                          "A: 8'4\" X 6'3\"",                     //
                                          "Total Cuts:0   Total Cut-Len:0'0\"",   //
                                          "Total Fills:1   Total Fill-Len:6'3\"", //
                                          "Total Length:6'3\"",                   //
                                          "Total SQ. Yards:9.38",                 //
                                          "Total SQ. FT.:84.38",                  //
                                          "Total BASE: 0.00 FEET"));
}

TEST(CutList, WithoutCutsAndPiecesIsEmpty) {
    Job job = Imperial({{120, 120, 8, 8}});
    EXPECT_THAT(Listing(job), IsEmpty());
    MakeEstimate(job, WithMatch(Request(144), "18", "24"));
    EXPECT_THAT(Listing(job), IsEmpty());
    job.Estimate.CarpetNo = NoCarpet;
    EXPECT_THAT(Listing(job), IsEmpty());
}

TEST(CutList, BaseSumsOverTheRoomsOfAllCarpets) {
    Job job = Imperial({{144, 120, 0, 0}, {60, 96, 5, 8}});
    MakeEstimate(job, Request(144));
    EXPECT_EQ(Listing(job).back(), "Total BASE: 26.00 FEET");
}

TEST(CutList, ARollOf144InchesWith240OfCutsAnd120OfFillsIsFortySquareYards) {
    Job job = Imperial({{144, 240}});
    Cut(job, 144, true);
    job.Engine.ResultLen = 120;
    EXPECT_THAT(Listing(job), Contains("Total Length:30'0\""));
    EXPECT_THAT(Listing(job), Contains("Total SQ. Yards:40.00"));
    EXPECT_THAT(Listing(job), Contains("Total SQ. FT.:360.00"));
}

// Thousands are grouped in the totals and not in the pattern's size.
TEST(CutList, LargeFigures) {
    Job job = Imperial({{150, 8653}});
    MakeEstimate(job, WithMatch(Request(150), "18", "0"));
    const auto lines = Listing(job);
    EXPECT_THAT(lines, Contains("Carpet-1  Width=12'6\"  DOWNLAY"));
    EXPECT_THAT(lines, Contains("Total SQ. Yards:1,001.50"));
    EXPECT_THAT(lines, Contains("Total SQ. FT.:9,013.54"));
    EXPECT_THAT(lines, Contains("Total Match Pattern Size: 9013.54 SQ. FT.   1001.50 SQ. Yards"));
}

TEST(CutList, SquareMetresOfHalvesPrintTrue) {
    Job job = Metric({{183, 150}});
    MakeEstimate(job, Request(Centimetres("183")));
    EXPECT_THAT(Listing(job), Contains("Total SQ. Meters:2.74"));
}

// The two parts of a 97 inch strip lie side by side: 48.5 inches, of which 48 are reported.
TEST(CutList, PartsShareTheirFillsLabelAndHalfInchesAreRaised) {
    Job job = Imperial({{72, 97}});
    MakeEstimate(job, Request(144, true, PackEstOption(0, 2)));
    const auto lines = Listing(job);
    ASSERT_GE(lines.size(), 6U);
    EXPECT_EQ(lines[1], "A: 6'0\" X 4'1\"");
    EXPECT_EQ(lines[2], "A: 6'0\" X 4'1\"");
    EXPECT_EQ(lines[4], "Total Fills:2   Total Fill-Len:4'0\"");
    EXPECT_EQ(lines[5], "Fills end at:4'1\"");
}

TEST(CutList, FillsThatEndWithinTheReportedLengthAreNotToldTwice) {
    Job job = Imperial({});
    testing::AddPlaced(job, {0, 0, 144, 120});
    job.Engine.RollWidth = 144;
    job.Engine.ResultLen = 120;
    job.Engine.PosL[0] = 120.004F;
    EXPECT_THAT(Listing(job), Not(Contains(StartsWith("Fills end at:"))));
    job.Engine.PosL[0] = 120.006F;
    EXPECT_THAT(Listing(job), Contains("Fills end at:10'1\""));
    job.Engine.PosL[0] = 118;
    EXPECT_THAT(Listing(job), Not(Contains(StartsWith("Fills end at:"))));
}

TEST(CutList, TilesWithoutRoomsHaveNoLine) {
    Job job = Imperial({{144, 120}, {10, 10, 11}, {10, 10, 9}, {10, 10, 11}});
    MakeEstimate(job, Request(144));
    const auto lines = Listing(job);
    EXPECT_EQ(lines[lines.size() - 2], "Tile-2:  0.69 SQ. FT.  Tile Base: 3.33 FEET");
    EXPECT_EQ(lines[lines.size() - 1], "Tile-4:  1.39 SQ. FT.  Tile Base: 6.67 FEET");
    EXPECT_EQ(std::count_if(lines.begin(), lines.end(),
                            [](const std::string& line) { return line.rfind("Tile-", 0) == 0; }),
              2);
}

TEST(CutList, ALengthBeyondALongOverflows) {
    Job job = Imperial({{144, 144}});
    MakeEstimate(job, Request(144));
    job.State.ECutY2[0] = 1e12F;
    EXPECT_EQ(testing::ErrorOf([&] { Listing(job); }).Number(), OverflowNumber);
}

TEST(CarpetHeading, NamesCarpetRollAndLay) {
    Job job = Imperial({});
    job.Engine.RollWidth = 150.5F;
    job.Engine.LayDir = 1;
    job.Estimate.CarpetNo = 7;
    EXPECT_EQ(CarpetHeading(job.State, job.Engine, job.Estimate),
              "Carpet-8  Width=12'7\"  CROSSLAY");
    job.State.MetricFlag = 1;
    job.Engine.LayDir = 0;
    EXPECT_EQ(CarpetHeading(job.State, job.Engine, job.Estimate), "Carpet-8  Width=382  DOWNLAY");
}

TEST(CarpetHeading, RoundsTheCentimetresOfTheRollToTheNearest) {
    Job job = Metric({});
    job.Estimate.CarpetNo = 0;
    job.Engine.RollWidth = Centimetres("366.4");
    EXPECT_EQ(CarpetHeadingLines(job.State, job.Engine, job.Estimate)[0], "Carpet-1  Width=366");
    job.Engine.RollWidth = Centimetres("366.6");
    EXPECT_EQ(CarpetHeadingLines(job.State, job.Engine, job.Estimate)[0], "Carpet-1  Width=367");
}

TEST(SizeText, RaisesToWholeInches) {
    EXPECT_EQ(SizeText(144, 120, false), "12'0\" X 10'0\"");
    EXPECT_EQ(SizeText(30.004, 30.006, false), "2'6\" X 2'7\"");
    EXPECT_EQ(SizeText(0.5, 11.5, false), "0'1\" X 1'0\"");
}

TEST(SizeText, RaisesToWholeCentimetresButKeepsRoundedWholeOnes) {
    EXPECT_EQ(SizeText(133.35 / 2.54, 420.014 / 2.54, true), "134 X 420");
    EXPECT_EQ(SizeText(366.029 / 2.54, 366.031 / 2.54, true), "366 X 367");
}

TEST(PieceLabel, TwentySixPiecesAreLabelledAToZ) {
    EXPECT_EQ(PieceLabel(0, 26), "A");
    EXPECT_EQ(PieceLabel(12, 26), "M");
    EXPECT_EQ(PieceLabel(25, 26), "Z");
}

TEST(PieceLabel, TwentySevenPiecesHaveTwoLettersEach) {
    EXPECT_EQ(PieceLabel(0, 27), "AA");
    EXPECT_EQ(PieceLabel(25, 27), "AZ");
    EXPECT_EQ(PieceLabel(26, 27), "BA");
    EXPECT_EQ(PieceLabel(500, 501), "TG");
}

TEST(CutList, LabelsHaveOneLetterForTwentySixPiecesAndTwoForTwentySeven) {
    Job job;
    for (int room = 1; room <= 26; ++room) {
        job.Add({10, 20});
    }
    MakeEstimate(job, Request(144));
    EXPECT_EQ(Listing(job)[1], "A: 0'10\" X 1'8\"");
    EXPECT_EQ(Listing(job)[26], "Z: 0'10\" X 1'8\"");
    job.Add({10, 20});
    MakeEstimate(job, Request(144));
    EXPECT_EQ(Listing(job)[1], "AA: 0'10\" X 1'8\"");
    EXPECT_EQ(Listing(job)[26], "AZ: 0'10\" X 1'8\"");
    EXPECT_EQ(Listing(job)[27], "BA: 0'10\" X 1'8\"");
}

TEST(CutList, LabelsGoByTheFillsAndNotByTheirParts) {
    Job job;
    for (int part = 0; part < 40; ++part) {
        testing::AddPlaced(job, {0, 0, 10, 20});
        job.Engine.OrgPC[static_cast<Integer>(part)] = static_cast<Integer>(part / 2);
    }
    job.Estimate.SavedFillCount = 20;
    EXPECT_EQ(Listing(job)[40], "T: 0'10\" X 1'8\"");
}

} // namespace
} // namespace tarn
