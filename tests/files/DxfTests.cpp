#include "files/Dxf.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

namespace tarn {
namespace {

using ::testing::ElementsAre;
using Pair = std::pair<int, std::string>;

/// The document as its pairs of code and value.
std::vector<Pair> PairsOf(const std::string& document) {
    std::vector<Pair> pairs;
    std::string_view rest = document;
    const auto takeLine = [&rest] {
        const std::size_t end = rest.find("\r\n");
        std::string line(rest.substr(0, end));
        rest.remove_prefix(end + 2);
        return line;
    };
    while (!rest.empty()) {
        const int code = std::stoi(takeLine());
        pairs.emplace_back(code, takeLine());
    }
    return pairs;
}

/// The values with that code of the entities of one kind.
std::vector<std::string> ValuesOf(const std::string& document, const std::string& kind, int code) {
    std::vector<std::string> values;
    bool isIn = false;
    for (const auto& [each, value] : PairsOf(document)) {
        isIn = each == 0 ? value == kind : isIn;
        if (isIn && each == code) {
            values.push_back(value);
        }
    }
    return values;
}

/// What a text is written as.
std::string Written(const std::string& text) {
    DxfDocument dxf(Units::Imperial, {{"A"}});
    dxf.AddText("A", {text, {0, 0}});
    return ValuesOf(dxf.Document(), "TEXT", 1).at(0);
}

TEST(DxfDocument, SaysItsUnits) {
    for (const auto& [units, code] :
         std::map<Units, std::string>{{Units::Imperial, "1"}, {Units::Metric, "5"}}) {
        const std::vector<Pair> pairs = PairsOf(DxfDocument(units, {}).Document());
        const auto at = std::find(pairs.begin(), pairs.end(), Pair(9, "$INSUNITS"));
        ASSERT_NE(at, pairs.end());
        EXPECT_EQ(*(at + 1), Pair(70, code));
        EXPECT_EQ(pairs.back(), Pair(0, "EOF"));
    }
}

TEST(DxfDocument, DrawsARectangleAsOneClosedPolyline) {
    DxfDocument dxf(Units::Imperial, {{"A"}, {"B", 3}});
    dxf.AddRectangle("B", {0, 1.5}, {10, 4.00004});
    const std::string document = dxf.Document();
    EXPECT_THAT(ValuesOf(document, "LAYER", 2), ElementsAre("0", "A", "B"));
    EXPECT_THAT(ValuesOf(document, "LAYER", 62), ElementsAre("7", "7", "3"));
    EXPECT_THAT(ValuesOf(document, "POLYLINE", 8), ElementsAre("B"));
    EXPECT_THAT(ValuesOf(document, "POLYLINE", 70), ElementsAre("1"));
    EXPECT_THAT(ValuesOf(document, "VERTEX", 8), ElementsAre("B", "B", "B", "B"));
    EXPECT_THAT(ValuesOf(document, "VERTEX", 10), ElementsAre("0.0", "10.0", "10.0", "0.0"));
    EXPECT_THAT(ValuesOf(document, "VERTEX", 20), ElementsAre("1.5", "1.5", "4.0", "4.0"));
}

TEST(DxfDocument, KnowsHowFarItReaches) {
    DxfDocument dxf(Units::Imperial, {{"A"}});
    dxf.AddLine("A", {5, 6}, {-1, 2});
    dxf.AddText("A", {"x", {0, 9}});
    const std::vector<Pair> pairs = PairsOf(dxf.Document());
    const auto after = [&](const char* name) {
        const auto at = std::find(pairs.begin(), pairs.end(), Pair(9, name));
        return std::vector<Pair>(at + 1, at + 3);
    };
    EXPECT_THAT(after("$EXTMIN"), ElementsAre(Pair(10, "-1.0"), Pair(20, "2.0")));
    EXPECT_THAT(after("$EXTMAX"), ElementsAre(Pair(10, "5.0"), Pair(20, "9.0")));
}

TEST(DxfDocument, WritesTextsInAsciiSoThatNoneMeansAnythingElse) {
    EXPECT_EQ(Written("Hall 12'6\" X 3"), "Hall 12'6\" X 3");
    EXPECT_EQ(Written("Küche 浴"), "K\\U+00FCche \\U+6D74");
    EXPECT_EQ(Written("\U0001F6C1"), "\\U+FFFD");
    EXPECT_EQ(Written("a\\U+0041"), "a\\U+005CU+0041");
    EXPECT_EQ(Written("50% 50%%d %%%"), "50% 50% %d % % %");
    EXPECT_EQ(Written("^J"), "^ J");
    EXPECT_EQ(Written("a\nb\xFF"), "a\\U+FFFDb\\U+FFFD") << "no line is broken";
    EXPECT_EQ(Written("\x7F"), "\\U+FFFD");
}

TEST(DxfDocument, IsPlainAsciiWhateverItHolds) {
    DxfDocument dxf(Units::Metric, {{"A"}});
    for (char32_t c = 1; c < 0x800; ++c) {
        std::string text;
        if (c < 0x80) {
            text += static_cast<char>(c);
        } else {
            text += static_cast<char>(0xC0U | (c >> 6U));
            text += static_cast<char>(0x80U | (c & 0x3FU));
        }
        dxf.AddText("A", {text, {0, 0}});
    }
    for (const char c : dxf.Document()) {
        EXPECT_TRUE((c >= ' ' && c <= '~') || c == '\r' || c == '\n') << static_cast<int>(c);
    }
    EXPECT_EQ(ValuesOf(dxf.Document(), "TEXT", 1).size(), 0x7FFU);
}

} // namespace
} // namespace tarn
