// What the choices are refused for.

#include "estimate/EstimateScreenTesting.h"

#include <gmock/gmock.h>

namespace tarn {
namespace {

using namespace tarn::testing;
using ::testing::ElementsAre;

const std::string WrongWidth(WrongWidthMessage);
const std::string WrongMatch(WrongMatchMessage);

/// A screen with a result on the 12 ft roll and its panel open again.
struct ESCarpFormRefusals : EstimateScreenTest {
    void OpenEstimated() {
        Open({state.IsMetric() ? Room{732, 300} : Room{288, 120}});
        PressOk();
        written = Written();
        ASSERT_FALSE(written.empty());
        Click(Button("Command3"));
    }
    void Retype(const char* box, const char* text) {
        Box(box).clear();
        Type(Box(box), text);
    }
    void ExpectRefused(const std::string& message, const char* focused) {
        boxes.Messages.clear();
        const Single rollWidth = engine.RollWidth;
        PressOk();
        EXPECT_THAT(boxes.Messages, ElementsAre(message));
        EXPECT_TRUE(Panel().isVisible());
        EXPECT_TRUE(Box(focused).hasFocus()) << focused;
        EXPECT_EQ(Written(), written);
        EXPECT_EQ(engine.RollWidth, rollWidth);
        EXPECT_EQ(state.ECutCount, 2);
    }
    std::vector<std::string> written;
};

TEST_F(ESCarpFormRefusals, KeepWhatWasThereForAWrongWidth) {
    OpenEstimated();
    Click(Option("Option1(15)"));
    for (const char* text : {"", "0", "-3", "12'6", "6 1/2"}) {
        boxes.Messages.clear();
        Box("Text1(0)").clear();
        Type(Box("Text1(0)"), text);
        PressOk();
        EXPECT_EQ(boxes.Messages, std::vector<std::string>{"The carpet width is not correct."});
        EXPECT_TRUE(Panel().isVisible());
        EXPECT_EQ(Box("Text1(0)").text(), QString::fromLatin1(text));
        EXPECT_TRUE(Box("Text1(0)").hasFocus());
        EXPECT_EQ(Written(), written);
        EXPECT_EQ(engine.RollWidth, 144);
        EXPECT_EQ(state.ECutCount, 2);
    }
}

TEST_F(ESCarpFormRefusals, KeepWhatWasThereForAWrongMatchPattern) {
    OpenEstimated();
    Click(Option("Option1(11)"));
    Click(Control<QCheckBox>("Check1"));
    Type(Box("Text2(0)"), "1'6");
    PressOk();
    EXPECT_EQ(boxes.Messages, std::vector<std::string>{"The match pattern is not correct."});
    EXPECT_TRUE(Panel().isVisible());
    EXPECT_TRUE(Box("Text2(0)").hasFocus());
    EXPECT_EQ(Written(), written);
    EXPECT_EQ(engine.RollWidth, 144);
}

TEST_F(ESCarpFormRefusals, PutTheFocusIntoTheBoxThatIsWrong) {
    for (const Byte metric : {Byte{0}, Byte{1}}) {
        state.MetricFlag = metric;
        state.ObjNum = 0;
        OpenEstimated();
        Click(Option("Option1(15)"));
        Retype("Text1(0)", "12");
        Retype("Text1(1)", "6 1/2");
        ExpectRefused(WrongWidth, "Text1(1)");
        Retype("Text1(0)", "12,5");
        ExpectRefused(WrongWidth, "Text1(0)");
        Retype("Text1(0)", "-12");
        Retype("Text1(1)", "6");
        ExpectRefused(WrongWidth, "Text1(0)");

        Click(Option("Option1(12)"));
        Click(Control<QCheckBox>("Check1"));
        Retype("Text2(0)", "18");
        Retype("Text2(1)", "2'0");
        ExpectRefused(WrongMatch, "Text2(1)");
        Retype("Text2(0)", "1,5");
        ExpectRefused(WrongMatch, "Text2(0)");
    }
}

TEST_F(ESCarpFormRefusals, CoverANegativeRepeat) {
    OpenEstimated();
    Click(Control<QCheckBox>("Check1"));
    Retype("Text2(0)", "-5");
    Retype("Text2(1)", "24");
    ExpectRefused(WrongMatch, "Text2(0)");
    Retype("Text2(0)", "18");
    Retype("Text2(1)", "-5");
    ExpectRefused(WrongMatch, "Text2(1)");
    EXPECT_EQ(Box("Text2(1)").text(), QStringLiteral("-5"));
}

TEST_F(ESCarpFormRefusals, TellOfTheWidthFirst) {
    OpenEstimated();
    Click(Option("Option1(15)"));
    Click(Control<QCheckBox>("Check1"));
    Retype("Text1(0)", "12'6");
    Retype("Text2(1)", "1'6");
    ExpectRefused(WrongWidth, "Text1(0)");
    Retype("Text1(0)", "12");
    ExpectRefused(WrongMatch, "Text2(1)");
}

} // namespace
} // namespace tarn
