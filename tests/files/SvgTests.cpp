#include "estimate/EstimateTesting.h"
#include "estimate/LayoutDrawing.h"
#include "files/Svg.h"

#include <QXmlStreamReader>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <sstream>

namespace tarn {
namespace {

using ::testing::ElementsAre;

/// What a reader makes of a document.
struct Document {
    struct Element {
        std::string Name;
        std::map<std::string, std::string> Attributes;
        std::string Text; ///< its own, or that of a title in it

        double Number(const std::string& attribute) const {
            return std::stod(Attributes.at(attribute));
        }
    };

    std::string Title;
    Element Root;
    std::vector<Element> Drawn; ///< boxes and texts of the drawing, in document order
};

Document Read(const std::string& svg) {
    Document document;
    QXmlStreamReader reader(QByteArray::fromStdString(svg));
    bool inDrawing = false;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement()) {
            Document::Element element{reader.name().toString().toStdString(), {}, {}};
            for (const QXmlStreamAttribute& attribute : reader.attributes()) {
                element.Attributes[attribute.qualifiedName().toString().toStdString()] =
                    attribute.value().toString().toStdString();
            }
            if (element.Name == "svg") {
                document.Root = element;
            } else if (element.Name == "g") {
                inDrawing = true;
            } else if (inDrawing && element.Name != "title") {
                document.Drawn.push_back(element);
            }
        } else if (reader.isCharacters() && !reader.isWhitespace()) {
            std::string& text = inDrawing ? document.Drawn.back().Text : document.Title;
            text += reader.text().toString().toStdString();
        }
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    return document;
}

TEST(Svg, DrawsBoxesAsRectangles) {
    Drawing drawing;
    drawing.AddBox(100, 200, 400.5, 700.25, DrawingColor::Red);
    const Document document = Read(SvgDocument(drawing, ""));
    ASSERT_EQ(document.Drawn.size(), 1U);
    const auto& box = document.Drawn[0];
    EXPECT_EQ(box.Name, "rect");
    EXPECT_EQ(box.Number("x"), 100);
    EXPECT_EQ(box.Number("y"), 200);
    EXPECT_EQ(box.Number("width"), 300.5);
    EXPECT_EQ(box.Number("height"), 500.25);
    EXPECT_EQ(box.Attributes.at("stroke"), "#FF0000");
}

TEST(Svg, WritesTextsOnTheirBaselineInTwips) {
    Drawing drawing;
    drawing.PenX = 100;
    drawing.PenY = 200;
    drawing.FontSize = 10;
    drawing.Color = DrawingColor::Green;
    drawing.WriteLine("some text");
    const Document document = Read(SvgDocument(drawing, ""));
    ASSERT_EQ(document.Drawn.size(), 1U);
    const auto& text = document.Drawn[0];
    EXPECT_EQ(text.Name, "text");
    EXPECT_EQ(text.Text, "some text");
    EXPECT_EQ(text.Number("x"), 100);
    EXPECT_NEAR(text.Number("y"), 200 + 0.905 * 200, 0.01);
    EXPECT_EQ(text.Number("font-size"), 200);
    EXPECT_EQ(text.Attributes.at("fill"), "#008000");
}

// 9 points are 180 twips, and "some" is 500 + 556 + 833 + 556 thousandths wide.
TEST(Svg, TextsKeepTheirWidthInAnotherFace) {
    Drawing drawing;
    drawing.PenX = 300;
    drawing.WriteLine("some");
    const Document document = Read(SvgDocument(drawing, ""));
    ASSERT_EQ(document.Drawn.size(), 1U);
    EXPECT_NEAR(document.Drawn[0].Number("textLength"), 2.445 * 180, 0.01);
    EXPECT_EQ(document.Drawn[0].Attributes.at("lengthAdjust"), "spacingAndGlyphs");
}

TEST(Svg, TheViewIsTheFarthestPointAndAHundredTwipsAt15TwipsAPixel) {
    Drawing drawing;
    drawing.AddBox(0, 0, 1400, 2900, DrawingColor::Black);
    const Document document = Read(SvgDocument(drawing, ""));
    EXPECT_EQ(document.Root.Attributes.at("viewBox"), "0 0 1500.00 3000.00");
    EXPECT_EQ(document.Root.Number("width"), 100);
    EXPECT_EQ(document.Root.Number("height"), 200);
}

TEST(Svg, AnEmptyDrawingIsASmallWhitePaper) {
    const Document document = Read(SvgDocument(Drawing(), ""));
    EXPECT_EQ(document.Root.Attributes.at("viewBox"), "0 0 100.00 100.00");
    EXPECT_TRUE(document.Drawn.empty());
}

TEST(Svg, KeepsTheOrderOfTheSteps) {
    Drawing drawing;
    drawing.WriteLine("first");
    drawing.AddBox(0, 0, 10, 10, DrawingColor::Black, "tip");
    drawing.WriteLine("second");
    std::vector<std::string> order;
    for (const auto& element : Read(SvgDocument(drawing, "")).Drawn) {
        order.push_back(element.Name + " " + element.Text);
    }
    EXPECT_THAT(order, ElementsAre("text first", "rect tip", "text second"));
}

TEST(Svg, MarkupInTextsAndTitleIsKeptAsText) {
    Drawing drawing;
    drawing.WriteLine("12'0\" <&> 10'0\"");
    drawing.AddBox(0, 0, 10, 10, DrawingColor::Black, "A: 1'0\" & <");
    const Document document = Read(SvgDocument(drawing, "SMITH & \"SONS\" <UPPER> 'FLAT'"));
    EXPECT_EQ(document.Title, "SMITH & \"SONS\" <UPPER> 'FLAT'");
    EXPECT_EQ(document.Drawn[0].Text, "12'0\" <&> 10'0\"");
    EXPECT_EQ(document.Drawn[1].Text, "A: 1'0\" & <");
}

TEST(Svg, ControlCharactersBecomeBlanks) {
    std::string title = "A";
    for (char c = 0; c < ' '; ++c) {
        title.push_back(c);
    }
    title.push_back('Z');
    EXPECT_EQ(Read(SvgDocument(Drawing(), title)).Title, "A" + std::string(32, ' ') + "Z");
}

TEST(Svg, OtherLanguagesAreKept) {
    EXPECT_EQ(Read(SvgDocument(Drawing(), "HÔTEL 日本 😀")).Title, "HÔTEL 日本 😀");
}

TEST(Svg, WhatIsNoCharacterIsReplaced) {
    EXPECT_EQ(Read(SvgDocument(Drawing(), "A\xFF\x80Z")).Title, "A\uFFFD\uFFFDZ");
    EXPECT_EQ(Read(SvgDocument(Drawing(), "A\uFFFE\uFFFFZ")).Title, "A\uFFFD\uFFFDZ");
}

TEST(Svg, BlanksInsideTextsAreKept) {
    Drawing drawing;
    drawing.WriteLine("Total Cuts:2   Total Cut-Len:20'0\"");
    const std::string svg = SvgDocument(drawing, "");
    EXPECT_EQ(Read(svg).Drawn[0].Text, "Total Cuts:2   Total Cut-Len:20'0\"");
    EXPECT_NE(svg.find("xml:space=\"preserve\""), std::string::npos);
}

TEST(Svg, DrawsLinesAsWideAsTheyAre) {
    Drawing drawing;
    drawing.AddLine(10, 20, 300, 5, DrawingColor::Gray, 6);
    const auto line = Read(SvgDocument(drawing, "")).Drawn.at(0);
    EXPECT_EQ(line.Name, "line");
    EXPECT_EQ(line.Number("x1"), 10);
    EXPECT_EQ(line.Number("y1"), 20);
    EXPECT_EQ(line.Number("x2"), 300);
    EXPECT_EQ(line.Number("y2"), 5);
    EXPECT_EQ(line.Number("stroke-width"), 6);
    EXPECT_EQ(line.Attributes.at("stroke"), "#808080");
}

TEST(Svg, TurnsUpwardTextsAroundWhereTheyBegin) {
    Drawing drawing;
    drawing.AddUpwardText(100, 2000, "up", 10);
    const auto text = Read(SvgDocument(drawing, "")).Drawn.at(0);
    EXPECT_EQ(text.Number("x"), 281); // 0.905 of 200 twips
    EXPECT_EQ(text.Number("y"), 2000);
    EXPECT_EQ(text.Attributes.at("transform"), "rotate(-90 281.00 2000.00)");
    EXPECT_NEAR(text.Number("textLength"), WidthOfText("up", 10), 0.01);
}

TEST(Svg, DoesNotDrawOutALooseTextOfOtherLetters) {
    Drawing drawing;
    drawing.AddText(0, 0, "één", 10);
    drawing.AddText(0, 500, "een", 10);
    const auto drawn = Read(SvgDocument(drawing, "")).Drawn;
    EXPECT_EQ(drawn.at(0).Attributes.count("textLength"), 0U);
    EXPECT_EQ(drawn.at(1).Attributes.count("textLength"), 1U);
}

TEST(Svg, EverythingOfARandomEstimateIsInsideTheView) {
    for (unsigned seed = 1; seed <= 300; ++seed) {
        SCOPED_TRACE(::testing::Message() << "seed " << seed);
        std::mt19937 random(seed);
        EstimateRequest request;
        request.In = seed % 2 == 0 ? Units::Metric : Units::Imperial;
        request.Direction = seed % 3 == 0 ? Lay::Down : Lay::Cross;
        request.RollWidth = testing::RandomRollWidth(random, request.In);
        const Estimate estimate = testing::EstimateOf(
            testing::RandomProject(random, request.In, request.RollWidth, 8), request);
        Drawing drawing;
        DrawLayout(drawing, estimate, PieceSizes::Shown);
        DrawCutList(drawing, estimate, CutListX, CutListY);

        const Document document = Read(SvgDocument(drawing, "A"));
        ASSERT_EQ(document.Drawn.size(), drawing.Steps().size());
        double left = 0;
        double top = 0;
        double right = 0;
        double bottom = 0;
        std::istringstream view(document.Root.Attributes.at("viewBox"));
        ASSERT_TRUE(view >> left >> top >> right >> bottom);
        EXPECT_EQ(left, 0);
        EXPECT_EQ(top, 0);
        for (const auto& element : document.Drawn) {
            EXPECT_GE(element.Number("x"), 0);
            EXPECT_GE(element.Number("y"), 0);
            if (element.Name == "rect") {
                EXPECT_LE(element.Number("x") + element.Number("width"), right - 99.9);
                EXPECT_LE(element.Number("y") + element.Number("height"), bottom - 99.9);
            } else {
                Drawing ruler;
                ruler.FontSize = element.Number("font-size") / 20;
                EXPECT_LE(element.Number("x") + ruler.TextWidth(element.Text), right - 99.9);
                EXPECT_LE(element.Number("y"), bottom - 99.9);
            }
        }
    }
}

} // namespace
} // namespace tarn
