#include "drawing/Drawing.h"

#include "base/Text.h"
#include "base/Twips.h"

#include <algorithm>
#include <array>

namespace tarn {

namespace {

constexpr Double ArialLineHeight = 1.15; ///< of the type size
constexpr Double ArialAscent = 0.905;    ///< of the type size

/// Advance widths of the characters 32 .. 126 of Arial, in thousandths of the type size. Its metric
/// equivalents have the same.
constexpr std::array<int, 95> ArialWidths{
    278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333,  278, 278, 556, 556, 556,
    556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556, 1015, 667, 667, 722, 722, 667,
    611, 778, 722, 278, 500, 667, 556, 833, 722, 778, 667, 778, 722, 667,  611, 722, 667, 944, 667,
    667, 611, 278, 278, 278, 469, 556, 333, 556, 556, 500, 556, 556, 278,  556, 556, 222, 222, 500,
    222, 833, 556, 556, 556, 556, 333, 500, 278, 556, 500, 722, 500, 500,  500, 334, 260, 334, 584};
constexpr int WidestLetter = 1000; ///< assumed for every character outside the table

int LetterWidth(unsigned char c) {
    constexpr unsigned char First = 32;
    const auto index = static_cast<std::size_t>(c - First);
    return c >= First && index < ArialWidths.size() ? ArialWidths[index] : WidestLetter;
}

} // namespace

std::string_view ColorText(DrawingColor color) {
    switch (color) {
    case DrawingColor::Green:
        return "#008000";
    case DrawingColor::Red:
        return "#FF0000";
    case DrawingColor::Gray:
        return "#808080";
    case DrawingColor::Black:
        break;
    }
    return "#000000";
}

Double LetterHeight(Double fontSize) {
    return fontSize * TwipsPerPoint;
}

Double HeightOfLine(Double fontSize) {
    return fontSize * TwipsPerPoint * ArialLineHeight;
}

Double AscentOfLine(Double fontSize) {
    return ArialAscent * LetterHeight(fontSize);
}

Double WidthOfText(std::string_view utf8, Double fontSize) {
    int thousandths = 0;
    for (const char c : utf8) {
        thousandths += ContinuesCharacter(c) ? 0 : LetterWidth(static_cast<unsigned char>(c));
    }
    return thousandths * fontSize * TwipsPerPoint / 1000;
}

void Drawing::Clear() {
    steps_.clear();
    farthestX_ = 0;
    farthestY_ = 0;
    PenX = 0;
    PenY = 0;
}

void Drawing::AddBox(Double x1, Double y1, Double x2, Double y2, DrawingColor color,
                     std::string tip) {
    DrawingStep step;
    step.What = DrawingStep::Kind::Box;
    step.Color = color;
    step.X1 = x1;
    step.Y1 = y1;
    step.X2 = x2;
    step.Y2 = y2;
    step.Tip = std::move(tip);
    steps_.push_back(std::move(step));
    Reach(x2, y2);
}

void Drawing::WriteLine(std::string_view text) {
    DrawingStep step;
    step.What = DrawingStep::Kind::Text;
    step.Color = Color;
    step.X1 = PenX;
    step.Y1 = PenY;
    step.X2 = PenX + TextWidth(text);
    step.FontSize = FontSize;
    step.Text = text;
    Reach(step.X2, PenY + LineHeight());
    steps_.push_back(std::move(step));
    PenX = 0;
    PenY += LineHeight();
}

void Drawing::AddLine(Double x1, Double y1, Double x2, Double y2, DrawingColor color,
                      Double width) {
    DrawingStep step;
    step.What = DrawingStep::Kind::Line;
    step.Color = color;
    step.X1 = x1;
    step.Y1 = y1;
    step.X2 = x2;
    step.Y2 = y2;
    step.LineWidth = width;
    steps_.push_back(std::move(step));
    Reach(std::max(x1, x2), std::max(y1, y2));
}

void Drawing::AddText(Double x, Double y, std::string_view text, Double fontSize) {
    DrawingStep step;
    step.What = DrawingStep::Kind::Text;
    step.Color = Color;
    step.X1 = x;
    step.Y1 = y;
    step.X2 = x + WidthOfText(text, fontSize);
    step.FontSize = fontSize;
    step.IsLoose = true;
    step.Text = text;
    Reach(step.X2, y + HeightOfLine(fontSize));
    steps_.push_back(std::move(step));
}

void Drawing::AddUpwardText(Double x, Double y, std::string_view text, Double fontSize) {
    DrawingStep step;
    step.What = DrawingStep::Kind::Text;
    step.Color = Color;
    step.X1 = x;
    step.Y1 = y;
    step.X2 = x + HeightOfLine(fontSize);
    step.Y2 = y - WidthOfText(text, fontSize);
    step.FontSize = fontSize;
    step.IsUpward = true;
    step.IsLoose = true;
    step.Text = text;
    Reach(step.X2, y);
    steps_.push_back(std::move(step));
}

void Drawing::Append(const Drawing& other, Double dx, Double dy) {
    for (DrawingStep step : other.steps_) {
        step.X1 += dx;
        step.X2 += dx;
        step.Y1 += dy;
        step.Y2 += dy;
        steps_.push_back(std::move(step));
    }
    Reach(other.farthestX_ + dx, other.farthestY_ + dy);
}

Double Drawing::LineHeight() const {
    return HeightOfLine(FontSize);
}

Double Drawing::TextWidth(std::string_view utf8) const {
    return WidthOfText(utf8, FontSize);
}

void Drawing::Reach(Double x, Double y) {
    farthestX_ = std::max(farthestX_, x);
    farthestY_ = std::max(farthestY_, y);
}

} // namespace tarn
