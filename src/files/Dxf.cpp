#include "files/Dxf.h"

#include "base/Format.h"
#include "base/Text.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace tarn {

namespace {

// A document is pairs of lines: a number that says what a value is, and the value.

void Append(std::string& document, int code, std::string_view value) {
    document.append(TrimStr(code)).append(CrLf).append(value).append(CrLf);
}

void Append(std::string& document, int code, Double value) {
    std::string number = Format(value, "0.0000");
    number.erase(number.find_last_not_of('0') + 1);
    number += number.ends_with('.') ? "0" : "";
    Append(document, code, number);
}

/// A point, whose X has that code.
void Append(std::string& document, int code, DxfPoint point) {
    constexpr int NextAxis = 10;
    Append(document, code, point.X);
    Append(document, code + NextAxis, point.Y);
    Append(document, code + 2 * NextAxis, Double{0});
}

void AppendVariable(std::string& document, std::string_view name, int code, int value) {
    Append(document, 9, name);
    Append(document, code, TrimStr(value));
}

void AppendEntity(std::string& document, std::string_view kind, std::string_view layer) {
    Append(document, 0, kind);
    Append(document, 8, layer);
}

void AppendTable(std::string& document, std::string_view kind, std::string_view entries,
                 std::size_t count) {
    Append(document, 0, "TABLE");
    Append(document, 2, kind);
    Append(document, 70, TrimStr(static_cast<long long>(count)));
    document += entries;
    Append(document, 0, "ENDTAB");
}

std::string LineTypes() {
    std::string entry;
    Append(entry, 0, "LTYPE");
    Append(entry, 2, "CONTINUOUS");
    Append(entry, 70, "0");
    Append(entry, 3, "Solid line");
    Append(entry, 72, "65");
    Append(entry, 73, "0");
    Append(entry, 40, Double{0});
    return entry;
}

std::string TextStyles() {
    std::string entry;
    Append(entry, 0, "STYLE");
    Append(entry, 2, "STANDARD");
    Append(entry, 70, "0");
    Append(entry, 40, Double{0});
    Append(entry, 41, Double{1});
    Append(entry, 50, Double{0});
    Append(entry, 71, "0");
    Append(entry, 42, Double{1});
    Append(entry, 3, "txt");
    Append(entry, 4, "");
    return entry;
}

/// Take the first character off a text that is UTF-8.
char32_t TakeCharacter(std::string_view& utf8) {
    constexpr std::uint32_t ContinuedBits = 0x3FU;
    constexpr int BitsContinued = 6;
    const auto lead = static_cast<unsigned char>(utf8.front());
    utf8.remove_prefix(1);
    std::uint32_t character = lead < 0x80U   ? lead
                              : lead < 0xE0U ? lead & 0x1FU
                              : lead < 0xF0U ? lead & 0x0FU
                                             : lead & 0x07U;
    while (!utf8.empty() && ContinuesCharacter(utf8.front())) {
        character = character << static_cast<unsigned>(BitsContinued) |
                    (static_cast<unsigned char>(utf8.front()) & ContinuedBits);
        utf8.remove_prefix(1);
    }
    return character;
}

std::string Escaped(char32_t character) {
    constexpr std::string_view Digits = "0123456789ABCDEF";
    std::string escaped = "\\U+";
    for (unsigned shift = 16; shift > 0; shift -= 4) {
        escaped += Digits[(character >> (shift - 4)) & 0xFU];
    }
    return escaped;
}

/// A text as the format writes it. A backslash begins such a code, and a caret one for a control
/// character. Two percent signs begin one for a sign, and programs differ in how they are written
/// themselves: they are parted by a blank.
std::string TextValue(std::string_view text) {
    constexpr char32_t LastOfFour = 0xFFFF;
    constexpr char32_t Replacement = 0xFFFD;
    const std::string shown = ShownText(text);
    std::string_view rest = shown;
    std::string value;
    bool behindPercent = false;
    while (!rest.empty()) {
        const char32_t character = TakeCharacter(rest);
        const bool isPercent = character == U'%';
        value += isPercent && behindPercent ? " " : "";
        if (character == U'^') {
            value += "^ ";
        } else if (character > U'~' || character == U'\\') {
            value += Escaped(character > LastOfFour ? Replacement : character);
        } else {
            value += static_cast<char>(character);
        }
        behindPercent = isPercent;
    }
    return value;
}

} // namespace

DxfDocument::DxfDocument(Units units, const std::vector<DxfLayer>& layers)
    : units_(units) {
    std::string entries;
    const auto add = [&entries](const DxfLayer& layer) {
        Append(entries, 0, "LAYER");
        Append(entries, 2, layer.Name);
        Append(entries, 70, "0");
        Append(entries, 62, TrimStr(layer.Colour));
        Append(entries, 6, "CONTINUOUS");
    };
    add({"0"}); // every document has it
    std::for_each(layers.begin(), layers.end(), add);
    AppendTable(layers_, "LAYER", entries, layers.size() + 1);
}

void DxfDocument::Reach(DxfPoint point) {
    low_ = isEmpty_ ? point : DxfPoint{std::min(low_.X, point.X), std::min(low_.Y, point.Y)};
    high_ = isEmpty_ ? point : DxfPoint{std::max(high_.X, point.X), std::max(high_.Y, point.Y)};
    isEmpty_ = false;
}

void DxfDocument::AddRectangle(std::string_view layer, DxfPoint low, DxfPoint high) {
    const std::array<DxfPoint, 4> corners{{low, {high.X, low.Y}, high, {low.X, high.Y}}};
    AppendEntity(entities_, "POLYLINE", layer);
    Append(entities_, 66, "1"); // vertices follow
    Append(entities_, 10, DxfPoint());
    Append(entities_, 70, "1"); // closed
    for (const DxfPoint corner : corners) {
        AppendEntity(entities_, "VERTEX", layer);
        Append(entities_, 10, corner);
        Reach(corner);
    }
    AppendEntity(entities_, "SEQEND", layer);
}

void DxfDocument::AddLine(std::string_view layer, DxfPoint from, DxfPoint to) {
    AppendEntity(entities_, "LINE", layer);
    Append(entities_, 10, from);
    Append(entities_, 11, to);
    Reach(from);
    Reach(to);
}

void DxfDocument::AddText(std::string_view layer, const DxfText& text) {
    AppendEntity(entities_, "TEXT", layer);
    Append(entities_, 10, text.At);
    Append(entities_, 40, text.Height);
    Append(entities_, 1, TextValue(text.Text));
    Append(entities_, 50, text.Direction);
    if (text.Anchor == DxfAnchor::Middle) {
        Append(entities_, 72, "1"); // the middle of its width
        Append(entities_, 11, text.At);
        Append(entities_, 73, "2"); // and of its height
    }
    Reach(text.At);
}

std::string DxfDocument::Document() const {
    const bool isMetric = units_ == Units::Metric;
    constexpr int Inches = 1;
    constexpr int Centimetres = 5;
    std::string document;
    Append(document, 999, isMetric ? "Lengths are centimetres" : "Lengths are inches");
    Append(document, 0, "SECTION");
    Append(document, 2, "HEADER");
    Append(document, 9, "$ACADVER");
    Append(document, 1, "AC1009");
    AppendVariable(document, "$INSUNITS", 70, isMetric ? Centimetres : Inches);
    AppendVariable(document, "$MEASUREMENT", 70, isMetric ? 1 : 0);
    Append(document, 9, "$EXTMIN");
    Append(document, 10, low_);
    Append(document, 9, "$EXTMAX");
    Append(document, 10, high_);
    Append(document, 0, "ENDSEC");
    Append(document, 0, "SECTION");
    Append(document, 2, "TABLES");
    AppendTable(document, "LTYPE", LineTypes(), 1);
    document += layers_;
    AppendTable(document, "STYLE", TextStyles(), 1);
    Append(document, 0, "ENDSEC");
    Append(document, 0, "SECTION");
    Append(document, 2, "ENTITIES");
    document += entities_;
    Append(document, 0, "ENDSEC");
    Append(document, 0, "EOF");
    return document;
}

} // namespace tarn
