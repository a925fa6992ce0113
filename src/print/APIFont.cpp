#include "print/APIFont.h"

#include "app/Numbers.h"

namespace tarn {

namespace {

constexpr Integer True = -1;

} // namespace

void APIFont::FaceName(std::string_view value) {
    record_.FaceName = FaceField(value);
}

void APIFont::CharPlace(TextSurface& o, std::string_view txt, Double x, Double y) {
    const Long left = CLng(x);
    const Long top = CLng(y);
    const Long right = CLng(x + 2 * o.TextWidth(txt));
    const Long bottom = CLng(y + 2 * o.TextHeight(txt));
    o.hdc().SelectClipRgn(QRectF(QPointF(left, top), QPointF(right, bottom)));
    o.hdc().TextOut(left, top, txt);
}

void APIFont::SetAlign(TextSurface& o, Integer Top, Integer BaseLine, Integer Bottom, Integer Left,
                       Integer Center, Integer Right) {
    int vertical = TA_TOP;
    int horizontal = TA_LEFT;
    const auto choose = [](int& flag, Integer argument, int value) {
        if (argument == True) {
            flag = value;
        }
    };
    choose(vertical, Top, TA_TOP);
    choose(vertical, BaseLine, TA_BASELINE);
    choose(vertical, Bottom, TA_BOTTOM);
    choose(horizontal, Left, TA_LEFT);
    choose(horizontal, Center, TA_CENTER);
    choose(horizontal, Right, TA_RIGHT);
    o.hdc().SetTextAlign(vertical | horizontal);
}

void APIFont::setcolor(TextSurface& o, Long Cvalue) {
    o.hdc().SetTextColor(Cvalue);
}

void APIFont::SelectOrg(TextSurface& o) {
    o.hdc().SelectObject(std::move(original_));
    original_.reset();
    font_.reset();
}

void APIFont::SelectFont(TextSurface& o) {
    font_ = o.hdc().CreateFont(EncodeFont(record_));
    FontHandle before = o.hdc().SelectObject(font_);
    if (!original_) {
        original_ = std::move(before);
    }
}

void APIFont::FontOut(std::string_view text, TextSurface& o, Double XX, Double YY) {
    o.hdc().TextOut(CLng(XX), CLng(YY), text);
}

} // namespace tarn
