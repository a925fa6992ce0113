// What the choices are refused for.

#include "estimate/EstimateChoices.h"
#include "screens/estimate/EstimateScreenTesting.h"

#include <gmock/gmock.h>

namespace tarn {
namespace {

using namespace tarn::testing;
using ::testing::ElementsAre;

const std::string WrongWidth(WrongWidthMessage);
const std::string WrongMatch(WrongMatchMessage);

/// A screen with a result on the 12 ft roll and its panel open again.
struct EstimateRefusals : EstimateScreenTest {
    void OpenEstimated() {
        Open({open.Shown == Units::Metric ? Sized{732, 300} : Sized{288, 120}});
        PressOk();
        written = Written();
        ASSERT_FALSE(written.empty());
        carpetLines = PrintedCarpetLines();
        Click(Button(Controls::openChoices));
    }
    void Retype(const char* box, const char* text) {
        Box(box).clear();
        Type(Box(box), text);
    }
    void ExpectRefused(const std::string& message, const char* focused) {
        boxes.Messages.clear();
        PressOk();
        EXPECT_THAT(boxes.Messages, ElementsAre(message));
        EXPECT_TRUE(Panel().isVisible());
        EXPECT_TRUE(Box(focused).hasFocus()) << focused;
        ExpectKept();
    }
    /// The earlier result, of two cuts.
    void ExpectKept() {
        EXPECT_EQ(Written(), written);
        EXPECT_EQ(CutsListed(), 2);
        EXPECT_EQ(PrintedCarpetLines(), carpetLines);
    }
    std::vector<std::string> written;
    std::vector<std::string> carpetLines;
};

TEST_F(EstimateRefusals, KeepWhatWasThereForAWrongWidth) {
    OpenEstimated();
    Click(Option(Controls::otherWidth));
    for (const char* text : {"", "0", "-3", "12'6", "6 1/2"}) {
        boxes.Messages.clear();
        Box(Controls::otherWidthMajor).clear();
        Type(Box(Controls::otherWidthMajor), text);
        PressOk();
        EXPECT_EQ(boxes.Messages, std::vector<std::string>{"The carpet width is not correct."});
        EXPECT_TRUE(Panel().isVisible());
        EXPECT_EQ(Box(Controls::otherWidthMajor).text(), QString::fromLatin1(text));
        EXPECT_TRUE(Box(Controls::otherWidthMajor).hasFocus());
        ExpectKept();
        EXPECT_THAT(carpetLines, ElementsAre("Carpet-1  Width=12'0\"", "DOWNLAY"));
    }
}

TEST_F(EstimateRefusals, KeepWhatWasThereForAWrongMatchPattern) {
    OpenEstimated();
    Click(Option(Controls::standardWidths[0]));
    Click(Control<QCheckBox>(Controls::matchPattern));
    Type(Box(Controls::repeatWidth), "1'6");
    PressOk();
    EXPECT_EQ(boxes.Messages, std::vector<std::string>{"The match pattern is not correct."});
    EXPECT_TRUE(Panel().isVisible());
    EXPECT_TRUE(Box(Controls::repeatWidth).hasFocus());
    ExpectKept();
}

TEST_F(EstimateRefusals, PutTheFocusIntoTheBoxThatIsWrong) {
    for (const Units units : BothUnits) {
        open.Shown = units;
        open.Now.Rooms.clear();
        OpenEstimated();
        Click(Option(Controls::otherWidth));
        Retype(Controls::otherWidthMajor, "12");
        Retype(Controls::otherWidthMinor, "6 1/2");
        ExpectRefused(WrongWidth, Controls::otherWidthMinor);
        Retype(Controls::otherWidthMajor, "12,5");
        ExpectRefused(WrongWidth, Controls::otherWidthMajor);
        Retype(Controls::otherWidthMajor, "-12");
        Retype(Controls::otherWidthMinor, "6");
        ExpectRefused(WrongWidth, Controls::otherWidthMajor);

        Click(Option(Controls::standardWidths[1]));
        Click(Control<QCheckBox>(Controls::matchPattern));
        Retype(Controls::repeatWidth, "18");
        Retype(Controls::repeatLength, "2'0");
        ExpectRefused(WrongMatch, Controls::repeatLength);
        Retype(Controls::repeatWidth, "1,5");
        ExpectRefused(WrongMatch, Controls::repeatWidth);
    }
}

TEST_F(EstimateRefusals, CoverANegativeRepeat) {
    OpenEstimated();
    Click(Control<QCheckBox>(Controls::matchPattern));
    Retype(Controls::repeatWidth, "-5");
    Retype(Controls::repeatLength, "24");
    ExpectRefused(WrongMatch, Controls::repeatWidth);
    Retype(Controls::repeatWidth, "18");
    Retype(Controls::repeatLength, "-5");
    ExpectRefused(WrongMatch, Controls::repeatLength);
    EXPECT_EQ(Box(Controls::repeatLength).text(), QStringLiteral("-5"));
}

TEST_F(EstimateRefusals, CoverANegativePartOfAWidthThatIsPositiveAsAWhole) {
    OpenEstimated();
    Click(Option(Controls::otherWidth));
    Retype(Controls::otherWidthMajor, "-1");
    Retype(Controls::otherWidthMinor, "20");
    ExpectRefused(WrongWidth, Controls::otherWidthMajor);
    EXPECT_EQ(Box(Controls::otherWidthMajor).text(), QStringLiteral("-1"));
    EXPECT_EQ(Box(Controls::otherWidthMinor).text(), QStringLiteral("20"));
}

TEST_F(EstimateRefusals, CoverNumbersThatDoNotFit) {
    OpenEstimated();
    Click(Option(Controls::otherWidth));
    for (const char* text : {"40000", "1e999"}) {
        Retype(Controls::otherWidthMajor, text);
        ExpectRefused(WrongWidth, Controls::otherWidthMajor);
        EXPECT_EQ(Box(Controls::otherWidthMajor).text(), QString::fromLatin1(text));
    }
    Click(Option(Controls::standardWidths[1]));
    Click(Control<QCheckBox>(Controls::matchPattern));
    for (const char* text : {"40000", "1e999"}) {
        Retype(Controls::repeatLength, text);
        ExpectRefused(WrongMatch, Controls::repeatLength);
        EXPECT_EQ(Box(Controls::repeatLength).text(), QString::fromLatin1(text));
    }
}

TEST_F(EstimateRefusals, TellOfTheWidthFirst) {
    OpenEstimated();
    Click(Option(Controls::otherWidth));
    Click(Control<QCheckBox>(Controls::matchPattern));
    Retype(Controls::otherWidthMajor, "12'6");
    Retype(Controls::repeatLength, "1'6");
    ExpectRefused(WrongWidth, Controls::otherWidthMajor);
    Retype(Controls::otherWidthMajor, "12");
    ExpectRefused(WrongMatch, Controls::repeatLength);
}

} // namespace
} // namespace tarn
