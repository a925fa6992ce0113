#include "text/TextWriter.h"

#include "base/Numbers.h"

#include <utility>

namespace tarn {

void TextWriter::SelectFont(TextSurface& surface) {
    font_ = surface.Context().CreateFont(EncodeFont(Font));
    FontHandle before = surface.Context().SelectFont(font_);
    if (!original_) {
        original_ = std::move(before);
    }
}

void TextWriter::RestoreFont(TextSurface& surface) {
    surface.Context().SelectFont(std::move(original_));
    original_.reset();
    font_.reset();
}

void TextWriter::SetAlignment(TextSurface& surface, Integer top, Integer baseline, Integer bottom,
                              Integer left, Integer center, Integer right) {
    constexpr Integer True = -1;
    TextAlignment alignment;
    const auto choose = [](auto& direction, Integer argument, auto value) {
        if (argument == True) {
            direction = value;
        }
    };
    choose(alignment.Down, top, TextAlignment::Vertical::Top);
    choose(alignment.Down, baseline, TextAlignment::Vertical::Baseline);
    choose(alignment.Down, bottom, TextAlignment::Vertical::Bottom);
    choose(alignment.Across, left, TextAlignment::Horizontal::Left);
    choose(alignment.Across, center, TextAlignment::Horizontal::Center);
    choose(alignment.Across, right, TextAlignment::Horizontal::Right);
    surface.Context().SetAlignment(alignment);
}

void TextWriter::SetColor(TextSurface& surface, Long color) {
    surface.Context().SetColor(color);
}

void TextWriter::Write(TextSurface& surface, std::string_view text, Double x, Double y) {
    surface.Context().Write(CLng(x), CLng(y), text);
}

void TextWriter::WriteClipped(TextSurface& surface, std::string_view text, Double x, Double y) {
    const Long left = CLng(x);
    const Long top = CLng(y);
    const Long right = CLng(x + 2 * surface.TextWidth(text));
    const Long bottom = CLng(y + 2 * surface.TextHeight(text));
    surface.Context().ClipTo(QRectF(QPointF(left, top), QPointF(right, bottom)));
    surface.Context().Write(left, top, text);
}

} // namespace tarn
