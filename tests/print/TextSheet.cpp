#include "print/TextSheet.h"

#include <QPainter>

#include <array>

namespace tarn::testing {

namespace {

constexpr int CellSize = 200;
constexpr Integer True = -1;
constexpr Integer False = 0;

/// Of Liberation Sans, which has the letters of Arial, of its size.
constexpr double Ascent = 0.905;
constexpr double Descent = 0.212;
constexpr double WordAdvance = 0.722 + 0.500 + 0.556;

} // namespace

std::vector<SheetText> SheetTexts() {
    constexpr std::array<Long, 9> Escapements{0, 300, 900, 1350, 1800, 2250, 2700, -450, 3600};
    std::vector<SheetText> texts;
    int row = 0;
    for (const Long escapement : Escapements) {
        int column = 0;
        for (int vertical = 0; vertical < 3; ++vertical) {
            for (int horizontal = 0; horizontal < 3; ++horizontal) {
                SheetText text;
                text.BaseLine = vertical == 1;
                text.Bottom = vertical == 2;
                text.Center = horizontal == 1;
                text.Right = horizontal == 2;
                text.Escapement = escapement;
                text.Cell = {column * CellSize, row * CellSize, CellSize, CellSize};
                text.Anchor = text.Cell.center();
                texts.push_back(text);
                ++column;
            }
        }
        ++row;
    }
    return texts;
}

QImage PaintTextSheet() {
    const auto texts = SheetTexts();
    QRect all;
    for (const SheetText& text : texts) {
        all |= text.Cell;
    }
    QImage image(all.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    PainterSurface surface(painter);
    const auto truth = [](bool value) { return value ? True : False; };
    for (const SheetText& text : texts) {
        painter.setPen(QColor(200, 200, 200));
        painter.drawRect(text.Cell);
        painter.drawLine(text.Anchor - QPointF(8, 0), text.Anchor + QPointF(8, 0));
        painter.drawLine(text.Anchor - QPointF(0, 8), text.Anchor + QPointF(0, 8));
        APIFont font;
        font.FaceName("Liberation Sans");
        font.Height(SheetTextHeight);
        font.Width(0);
        font.Weight(400);
        font.Escapement(text.Escapement);
        font.SelectFont(surface);
        font.SetAlign(surface, False, truth(text.BaseLine), truth(text.Bottom), False,
                      truth(text.Center), truth(text.Right));
        font.FontOut(SheetWord, surface, text.Anchor.x(), text.Anchor.y());
        font.SelectOrg(surface);
    }
    return image;
}

double SheetTypeSize() {
    return SheetTextHeight / (Ascent + Descent);
}

QTransform FrameOf(const SheetText& text) {
    QTransform frame;
    frame.translate(text.Anchor.x(), text.Anchor.y());
    frame.rotate(-text.Escapement / 10.0);
    return frame;
}

QRectF BoxOf(const SheetText& text) {
    const double width = WordAdvance * SheetTypeSize();
    const double left = text.Center ? -width / 2 : text.Right ? -width : 0;
    return {left, BaseLineOf(text) - Ascent * SheetTypeSize(), width, SheetTextHeight};
}

double BaseLineOf(const SheetText& text) {
    return text.BaseLine ? 0 : text.Bottom ? -Descent * SheetTypeSize() : Ascent * SheetTypeSize();
}

bool IsInk(QRgb pixel) {
    return qGray(pixel) < 128;
}

} // namespace tarn::testing
