#include "screens/roll/RollPainter.h"

#include "files/QtText.h"
#include "screens/Display.h"
#include "screens/Theme.h"
#include "screens/roll/RollRuler.h"
#include "screens/roll/Tints.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPixmap>

#include <algorithm>
#include <cmath>

namespace tarn {

namespace {

constexpr double LetterMargin = 30;  ///< twips, above and below a letter alone
constexpr double LabelMargin = 45;   ///< twips, inside a piece
constexpr double RowGap = 180;       ///< twips
constexpr double HatchApart = 105;   ///< twips
constexpr double MarkWidth = 45;     ///< twips
constexpr std::size_t RulerSize = 3; ///< place in LabelSizes
constexpr const char* WidestTick = "0000'";
constexpr double SmallTick = 0.35; ///< of a ruler's line

QRectF OnView(const SpreadBox& box, const PictureAt& at) {
    return {QPointF(box.Left, box.Top) * at.Zoom + at.Origin,
            QSizeF(box.Width, box.Height) * at.Zoom};
}

/// The box in whole pixels, so that neighbours share their edge.
QRect OnPixels(const QRectF& box) {
    const auto whole = [](double edge) { return static_cast<int>(std::lround(edge)); };
    return {QPoint(whole(box.left()), whole(box.top())),
            QPoint(whole(box.right()) - 1, whole(box.bottom()) - 1)};
}

bool Reaches(const QRectF& box, const QRect& part) {
    constexpr double Outline = 2;
    return box.right() + Outline >= part.left() && box.left() - Outline <= part.right() + 1 &&
           box.bottom() + Outline >= part.top() && box.top() - Outline <= part.bottom() + 1;
}

/// Edges far outside are brought near: a device has no pixels for them.
QRectF Near(const QRectF& box, const QRect& part) {
    constexpr double Far = 64;
    return box.intersected(QRectF(part).adjusted(-Far, -Far, Far, Far));
}

QColor ColourOfTint(std::size_t tint) {
    const Tint& of = Tints()[tint % TintCount];
    const bool isDark = CurrentColours().Field.lightness() < CurrentColours().Text.lightness();
    return QColor::fromRgb(isDark ? of.Dark : of.Light);
}

/// Slanting lines, for carpet that is left over.
QBrush Hatch(const QPainter& painter) {
    const Colours& colours = CurrentColours();
    const double ratio = painter.device()->devicePixelRatioF();
    const int side = std::max(6, static_cast<int>(std::lround(PixelsExact(HatchApart) * ratio)));
    QPixmap tile(side, side);
    tile.fill(colours.Window);
    QPainter lines(&tile);
    lines.setRenderHint(QPainter::Antialiasing);
    lines.setPen(QPen(colours.DisabledText, std::max(1.0, ratio)));
    for (const int shift : {-side, 0, side}) {
        lines.drawLine(QPointF(shift - 1, side + 1), QPointF(shift + side + 1, -1));
    }
    lines.end();
    tile.setDevicePixelRatio(ratio);
    return QBrush(tile);
}

QFont Scaled(QFont font, double factor) {
    if (font.pointSizeF() > 0) {
        font.setPointSizeF(font.pointSizeF() * factor);
    } else {
        font.setPixelSize(std::max(1, static_cast<int>(std::lround(font.pixelSize() * factor))));
    }
    return font;
}

/// The rows that a piece lies in: first, and behind the last.
std::pair<std::size_t, std::size_t> RowsOf(const RollSpread& spread, double from, double to) {
    const auto& rows = spread.Rows;
    const auto first = std::upper_bound(rows.begin(), rows.end(), from,
                                        [](double y, const SpreadRow& row) { return y < row.To; });
    const auto last = std::lower_bound(first, rows.end(), to,
                                       [](const SpreadRow& row, double y) { return row.From < y; });
    return {first - rows.begin(), last - rows.begin()};
}

} // namespace

LetterWidths::LetterWidths(const QFont& font)
    : font_(font) {
    const QFontMetricsF metrics(font);
    for (std::size_t i = 0; i < Known; ++i) {
        widths_[i] = metrics.horizontalAdvance(QChar(static_cast<char16_t>(i)));
    }
}

double LetterWidths::Of(std::string_view utf8) const {
    double width = 0;
    for (const char each : utf8) {
        const auto letter = static_cast<unsigned char>(each);
        if (letter >= Known) {
            return QFontMetricsF(font_).horizontalAdvance(ToQt(utf8));
        }
        width += widths_[letter];
    }
    return width;
}

RollPainter::RollPainter(const RollChart& chart, const QFont& font)
    : chart_(chart) {
    for (std::size_t i = 0; i < LabelSizes.size(); ++i) {
        fonts_[i] = Scaled(font, LabelSizes[i]);
        bold_[i] = fonts_[i];
        bold_[i].setWeight(QFont::DemiBold);
        widths_[i] = LetterWidths(bold_[i]);
        heights_[i] = QFontMetricsF(bold_[i]).height();
    }
    measure_.Width = [this](std::string_view text, std::size_t size) {
        return widths_[size].Of(text);
    };
    measure_.Height = [this](std::size_t size) { return heights_[size]; };
    measure_.LetterHeight = [this](std::size_t size) {
        return QFontMetricsF(bold_[size]).capHeight() + 2 * PixelsExact(LetterMargin);
    };
    measure_.Margin = PixelsExact(LabelMargin);
}

SpreadArea RollPainter::AreaOf(QSizeF size) const {
    const double tick = heights_[RulerSize] * SmallTick;
    return {size.width(), size.height(), heights_[RulerSize] + tick,
            widths_[RulerSize].Of(WidestTick) + tick, PixelsExact(RowGap)};
}

std::vector<QRectF> RollPainter::BoxesOf(const ChartPiece& piece, const RollSpread& spread,
                                         const PictureAt& at) {
    std::vector<QRectF> boxes;
    const auto [first, last] = RowsOf(spread, piece.Y, piece.Y + piece.Length);
    for (std::size_t row = first; row < last; ++row) {
        boxes.push_back(OnView(spread.BoxIn(row, piece.X, piece.Y, piece.Width, piece.Length), at));
    }
    return boxes;
}

void RollPainter::Paint(QPainter& painter, const RollSpread& spread, const PictureAt& at,
                        const QRect& part) const {
    painter.fillRect(part.isEmpty() ? painter.window() : part, CurrentColours().Field);
    if (part.isEmpty()) {
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setRenderHint(QPainter::TextAntialiasing);
    for (std::size_t row = 0; row < spread.Rows.size(); ++row) {
        PaintRow(painter, spread, at, row, part);
    }
}

void RollPainter::PaintRow(QPainter& painter, const RollSpread& spread, const PictureAt& at,
                           std::size_t row, const QRect& part) const {
    const SpreadRow& stretch = spread.Rows[row];
    const auto boxOf = [&](const auto& each) {
        return OnView(spread.BoxIn(row, each.X, each.Y, each.Width, each.Length), at);
    };
    const QRectF roll =
        OnView(spread.BoxIn(row, 0, stretch.From, spread.RollWidth, stretch.To - stretch.From), at);
    PaintRuler(painter, spread, at, row, part);
    if (!Reaches(roll, part)) {
        return;
    }
    const QBrush hatch = Hatch(painter);
    painter.setBrushOrigin(at.Origin);
    for (const ChartSpace& space : chart_.LeftOver) {
        if (space.Y < stretch.To && space.Y + space.Length > stretch.From) {
            const QRectF box = boxOf(space);
            if (Reaches(box, part)) {
                painter.fillRect(OnPixels(Near(box, part)), hatch);
            }
        }
    }
    const QColor outline = CurrentColours().MutedText;
    painter.setPen(outline);
    for (const ChartPiece& piece : chart_.Pieces) {
        if (piece.Y >= stretch.To || piece.Y + piece.Length <= stretch.From) {
            continue;
        }
        const QRectF box = boxOf(piece);
        if (!Reaches(box, part)) {
            continue;
        }
        const QRect pixels = OnPixels(Near(box, part));
        painter.fillRect(pixels, ColourOfTint(piece.Tint));
        painter.setPen(outline);
        painter.drawRect(pixels);
        PaintLabel(painter, piece, box);
    }
    PaintOutline(painter, spread, row, OnPixels(Near(roll, part)).adjusted(-1, -1, 1, 1));
}

/// Where the roll goes on in another row its edge is dashed.
void RollPainter::PaintOutline(QPainter& painter, const RollSpread& spread, std::size_t row,
                               const QRect& roll) {
    const QPen whole(CurrentColours().Text, 1);
    QPen goesOn = whole;
    goesOn.setDashPattern({4, 4});
    const bool first = row == 0;
    const bool last = row + 1 == spread.Rows.size();
    const auto draw = [&](bool isBroken, QPoint from, QPoint to) {
        painter.setPen(isBroken ? goesOn : whole);
        painter.drawLine(from, to);
    };
    draw(spread.Stands && !first, roll.topLeft(), roll.topRight());
    draw(spread.Stands && !last, roll.bottomLeft(), roll.bottomRight());
    draw(!spread.Stands && !first, roll.topLeft(), roll.bottomLeft());
    draw(!spread.Stands && !last, roll.topRight(), roll.bottomRight());
}

void RollPainter::PaintRuler(QPainter& painter, const RollSpread& spread, const PictureAt& at,
                             std::size_t row, const QRect& part) const {
    const SpreadRow& stretch = spread.Rows[row];
    const double line = heights_[RulerSize];
    const double apart = spread.Stands ? 2 * line : 1.4 * widths_[RulerSize].Of(WidestTick);
    const QRectF roll =
        OnView(spread.BoxIn(row, 0, stretch.From, spread.RollWidth, stretch.To - stretch.From), at);
    const double scale = spread.Scale * at.Zoom;
    painter.setPen(CurrentColours().MutedText);
    painter.setFont(fonts_[RulerSize]);
    const double small = line * SmallTick;
    for (const RulerTick& tick : RulerTicks(chart_.In, stretch.From, stretch.To, scale, apart)) {
        const double along = (tick.At - stretch.From) * scale;
        const QString text = ToQt(tick.Label);
        const double width = widths_[RulerSize].Of(tick.Label);
        if (spread.Stands) {
            const double y = std::round(roll.top() + along);
            if (y < part.top() - line || y > part.bottom() + line) {
                continue;
            }
            painter.drawLine(QPointF(roll.left() - 2 - small, y), QPointF(roll.left() - 2, y));
            if (!text.isEmpty() && y + line <= roll.bottom() + 1) {
                painter.drawText(QRectF(roll.left() - small - 4 - width, y, width + 1, line),
                                 Qt::AlignRight | Qt::AlignTop, text);
            }
        } else {
            const double x = std::round(roll.left() + along);
            if (x < part.left() - 2 * apart || x > part.right() + apart) {
                continue;
            }
            const double high = text.isEmpty() ? small : small + line;
            painter.drawLine(QPointF(x, roll.top() - 2 - high), QPointF(x, roll.top() - 2));
            if (!text.isEmpty() && x + width + 3 <= roll.right() + 1) {
                painter.drawText(QRectF(x + 3, roll.top() - 2 - small - line, width + 1, line),
                                 Qt::AlignLeft | Qt::AlignTop, text);
            }
        }
    }
}

void RollPainter::PaintLabel(QPainter& painter, const ChartPiece& piece, const QRectF& box) const {
    const FittedLabel label = FitLabel(piece, box.width(), box.height(), measure_);
    if (label.Lines.empty()) {
        return;
    }
    painter.setPen(CurrentColours().Text);
    if (label.Upward) {
        painter.save();
        painter.translate(box.center());
        painter.rotate(-90);
        painter.translate(-box.center());
    }
    double height = 0;
    for (const LabelLine& line : label.Lines) {
        height += heights_[line.Size];
    }
    double top = box.center().y() - height / 2;
    bool isFirst = true;
    for (const LabelLine& line : label.Lines) {
        painter.setFont((isFirst ? bold_ : fonts_)[line.Size]);
        const QFontMetricsF metrics(painter.font());
        const QString text = ToQt(line.Text);
        const double width = metrics.horizontalAdvance(text);
        // One line has its capitals in the middle; below each other lines share the box evenly.
        const double base = label.Lines.size() == 1 ? box.center().y() + metrics.capHeight() / 2
                                                    : top + metrics.ascent();
        painter.drawText(QPointF(box.center().x() - width / 2, base), text);
        top += heights_[line.Size];
        isFirst = false;
    }
    if (label.Upward) {
        painter.restore();
    }
}

void RollPainter::PaintMark(QPainter& painter, const RollSpread& spread, const PictureAt& at,
                            std::size_t piece) const {
    const Colours& colours = CurrentColours();
    const double wide = PixelsExact(MarkWidth);
    painter.setBrush(Qt::NoBrush);
    painter.setRenderHint(QPainter::Antialiasing, false);
    for (const QRectF& box : BoxesOf(chart_.Pieces[piece], spread, at)) {
        const QRectF pixels = OnPixels(Near(box, painter.window()));
        for (const auto& [colour, inset] :
             {std::pair{colours.Field, wide + 1}, std::pair{colours.Accent, wide / 2}}) {
            const double room = std::min(inset, std::min(pixels.width(), pixels.height()) / 2);
            painter.setPen(QPen(colour, wide, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
            painter.drawRect(pixels.adjusted(room, room, -room, -room));
        }
    }
}

} // namespace tarn
