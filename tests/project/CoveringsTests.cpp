#include "project/Coverings.h"

#include <gtest/gtest.h>

#include <array>

namespace tarn {
namespace {

constexpr std::array CoveringCaptions{"CARPET-1", "CARPET-2", "CARPET-3", "CARPET-4",
                                      "CARPET-5", "CARPET-6", "CARPET-7", "CARPET-8",
                                      "TILE-1",   "TILE-2",   "TILE-3",   "TILE-4"};
constexpr std::array ReportTexts{"C1", "C2", "C3", "C4", "C5", "C6",
                                 "C7", "C8", "T1", "T2", "T3", "T4"};

TEST(Coverings, HaveTheirCaptionsAndReportTextsForEveryCode) {
    ASSERT_EQ(CoveringCaptions.size(), static_cast<std::size_t>(LastTileCode) + 1);
    for (std::size_t code = 0; code < CoveringCaptions.size(); ++code) {
        EXPECT_EQ(CoveringCaption(static_cast<Byte>(code)), CoveringCaptions[code]);
        EXPECT_EQ(CoveringReportText(static_cast<Byte>(code)), ReportTexts[code]);
    }
}

TEST(Coverings, AreCarpetsBelowEightAndTilesFromThereOn) {
    for (int code = 0; code <= 255; ++code) {
        EXPECT_EQ(IsCarpet(static_cast<Byte>(code)), code < 8) << code;
    }
}

TEST(Coverings, AreNumberedFromOneInEitherKind) {
    EXPECT_EQ(CoveringNumber(0), 1);
    EXPECT_EQ(CoveringNumber(7), 8);
    EXPECT_EQ(CoveringNumber(8), 1);
    EXPECT_EQ(CoveringNumber(11), 4);
}

TEST(Coverings, BeyondTheLastTileAreStillToldApart) {
    EXPECT_EQ(CoveringCaption(12), "TILE-5");
    EXPECT_EQ(CoveringReportText(255), "T248");
}

TEST(Coverings, StandBehindTheNameOfTheProjectInATitle) {
    EXPECT_EQ(CoveringTitle("SMITH", 2), "SMITH, CARPET-3");
    EXPECT_EQ(CoveringTitle("", 11), "TILE-4");
}

TEST(ReadCovering, ReadsEveryCaptionAndReportText) {
    for (std::size_t code = 0; code < CoveringCaptions.size(); ++code) {
        EXPECT_EQ(ReadCovering(CoveringCaptions[code]), code);
        EXPECT_EQ(ReadCovering(ReportTexts[code]), code);
    }
}

TEST(ReadCovering, TakesEitherLetterCaseAndBlanksAround) {
    EXPECT_EQ(ReadCovering("carpet-3"), 2);
    EXPECT_EQ(ReadCovering("Tile-4"), 11);
    EXPECT_EQ(ReadCovering("  t2 "), 9);
    EXPECT_EQ(ReadCovering(" c8"), 7);
}

TEST(ReadCovering, GivesNothingForAnythingElse) {
    for (const char* text :
         {"", " ", "C", "C0", "C9", "T0", "T5", "TILE-5", "CARPET-9", "CARPET-0", "CARPET 1", "C 1",
          "C01", "C1x", "0", "11", "VINYL", "CARPET-1,", "С1" /* a Cyrillic letter */}) {
        EXPECT_EQ(ReadCovering(text), std::nullopt) << text;
    }
}

} // namespace
} // namespace tarn
