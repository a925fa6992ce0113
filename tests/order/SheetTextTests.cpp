#include "drawing/Drawing.h"
#include "order/SheetText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarn {
namespace {

using ::testing::ElementsAre;

TEST(WrappedText, IsPartedAtBlanks) {
    const Double width = WidthOfText("living room", 10);
    EXPECT_THAT(WrappedText("living room north", width, 10), ElementsAre("living room", "north"));
    EXPECT_THAT(WrappedText("  living room ", width, 10), ElementsAre("living room"));
    EXPECT_THAT(WrappedText("", width, 10), ElementsAre(""));
}

TEST(WrappedText, BreaksAWordThatIsTooWideBetweenCharacters) {
    EXPECT_THAT(WrappedText("WWWWW", WidthOfText("WW", 10), 10), ElementsAre("WW", "WW", "W"));
    EXPECT_THAT(WrappedText("ÄÄÄ", WidthOfText("ÄÄ", 10), 10), ElementsAre("ÄÄ", "Ä"));
    EXPECT_THAT(WrappedText("ÄÄ", 0, 10), ElementsAre("Ä", "Ä")); // one at least
}

TEST(ShortenedText, EndsWithAnEllipsisInsideItsWidth) {
    EXPECT_EQ(ShortenedText("kitchen", WidthOfText("kitchen", 9), 9), "kitchen");
    const Double width = WidthOfText("kitch", 9) + WidthOfText("…", 9) + 1;
    EXPECT_EQ(ShortenedText("kitchen and hall", width, 9), "kitch…");
    EXPECT_EQ(ShortenedText("kit chen", WidthOfText("kit ", 9) + WidthOfText("…", 9) + 1, 9),
              "kit…");
}

TEST(FirstCharacters, CountCharactersAndNotBytes) {
    EXPECT_EQ(FirstCharacters("één baan", 8), "één baan");
    EXPECT_EQ(FirstCharacters("één baan", 3), "één…");
}

} // namespace
} // namespace tarn
