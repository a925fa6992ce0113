#include "screens/roll/RollPainter.h"

#include "files/QtText.h"
#include "screens/Display.h"
#include "screens/Theme.h"
#include "screens/roll/LetterLane.h"
#include "screens/roll/RollRuler.h"
#include "screens/roll/Tints.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPixmap>
#include <QPolygonF>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarn {

namespace {

constexpr double LetterMargin = 30;  ///< twips, above and below a letter alone
constexpr double LabelMargin = 45;   ///< twips, inside a piece
constexpr double RowGap = 180;       ///< twips
constexpr double HatchApart = 105;   ///< twips
constexpr double MarkWidth = 45;     ///< twips
constexpr std::size_t RulerSize = 3; ///< place in LabelSizes
constexpr std::size_t LaneSize = 3;  ///< the same of letters in a lane
constexpr double LaneGap = 240;      ///< twips, between the roll and them
constexpr double LaneKnee = 45;      ///< twips, before their lines turn
constexpr double LaneDot = 24;       ///< twips, half of what is on the piece
constexpr double MostOfLane = 0.8;   ///< that letters take
constexpr const char* WidestTick = "0000'";
constexpr double Nearly = 1e-6;    ///< a piece that begins with a row is not continued there
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

RollSpread RollPainter::SpreadOn(QSizeF size) const {
    SpreadArea area = AreaOf(size);
    RollSpread spread = SpreadOver(chart_, area);
    const Labelling labelling = LabellingOf(spread, 1);
    double widest = 0;
    for (const std::size_t piece : labelling.Outside) {
        widest = std::max(widest, widths_[LaneSize].Of(chart_.Pieces[piece].Label));
    }
    const double along = spread.Stands ? heights_[LaneSize] : widest + PixelsExact(LabelMargin);
    double rows = 0;
    for (const SpreadRow& row : spread.Rows) {
        rows += (row.To - row.From) * spread.Scale;
    }
    const auto letters = static_cast<double>(labelling.Outside.size());
    if (letters == 0 || letters * along > rows * MostOfLane) {
        return spread; // a lane of some letters only tells less than it takes
    }
    area.StandingLane = PixelsExact(LaneGap) + widest;
    area.LyingLane = PixelsExact(LaneGap) + heights_[LaneSize];
    return SpreadOver(chart_, area);
}

RollPainter::Labelling RollPainter::LabellingOf(const RollSpread& spread, double zoom) const {
    Labelling labelling{spread, zoom, 0, {}};
    std::vector<std::size_t> sizes; // of the letters that stand with other texts
    for (std::size_t i = 0; i < chart_.Pieces.size(); ++i) {
        const ChartPiece& piece = chart_.Pieces[i];
        const auto [first, last] = RowsOf(spread, piece.Y, piece.Y + piece.Length);
        bool hasLetter = false;
        for (std::size_t row = first; row < last; ++row) {
            const SpreadBox box = spread.BoxIn(row, piece.X, piece.Y, piece.Width, piece.Length);
            const FittedLabel label =
                FitLabel(piece, box.Width * zoom, box.Height * zoom, measure_, {row > first, 0});
            hasLetter = hasLetter || !label.Lines.empty();
            const bool saysMore = label.Lines.size() > 1 ||
                                  (label.Lines.size() == 1 && label.Lines[0].Text != piece.Label);
            if (row == first && saysMore) {
                sizes.push_back(label.Lines[0].Size);
            }
        }
        if (!hasLetter && first < last) {
            labelling.Outside.push_back(i);
        }
    }
    if (!sizes.empty()) { // one that three of four of them have room for
        const auto most = sizes.begin() + static_cast<std::ptrdiff_t>(sizes.size() * 3 / 4);
        std::nth_element(sizes.begin(), most, sizes.end());
        labelling.Largest = *most;
    }
    return labelling;
}

/// Found once for all parts of a picture.
const RollPainter::Labelling& RollPainter::LabellingAt(const RollSpread& spread,
                                                       double zoom) const {
    if (labelling_.Zoom != zoom || labelling_.Of != spread) {
        labelling_ = LabellingOf(spread, zoom);
    }
    return labelling_;
}

/// The letters of pieces that are too small for them, beside the row, with their lines.
void RollPainter::PaintLane(QPainter& painter, const RollSpread& spread, const PictureAt& at,
                            std::size_t row, const QRectF& roll) const {
    std::vector<LaneLetter> letters;
    for (const std::size_t i : LabellingAt(spread, at.Zoom).Outside) {
        const ChartPiece& piece = chart_.Pieces[i];
        const SpreadRow& stretch = spread.Rows[row];
        const double middle = piece.Y + piece.Length / 2;
        if (middle < stretch.From || middle >= stretch.To) {
            continue;
        }
        const QPointF centre =
            OnView(spread.BoxIn(row, piece.X, piece.Y, piece.Width, piece.Length), at).center();
        const double width = widths_[LaneSize].Of(piece.Label) + PixelsExact(LabelMargin);
        letters.push_back({i, spread.Stands ? centre.y() : centre.x(),
                           spread.Stands ? heights_[LaneSize] : width});
    }
    const double from = spread.Stands ? roll.top() : roll.left();
    const double to = spread.Stands ? roll.bottom() : roll.right();
    const double knee = PixelsExact(LaneKnee);
    const double lane = PixelsExact(LaneGap);
    painter.setFont(bold_[LaneSize]);
    const double ascent = QFontMetricsF(painter.font()).ascent();
    for (const LaneLetter& letter : PlaceInLane(std::move(letters), from, to)) {
        const ChartPiece& piece = chart_.Pieces[letter.Piece];
        const QPointF centre =
            OnView(spread.BoxIn(row, piece.X, piece.Y, piece.Width, piece.Length), at).center();
        const double middle = letter.Begin + letter.Extent / 2;
        const auto point = [&](double across, double along) {
            return spread.Stands ? QPointF(roll.right() + across, along)
                                 : QPointF(along, roll.bottom() + across);
        };
        painter.setPen(QPen(CurrentColours().Text, 1));
        painter.setRenderHint(QPainter::Antialiasing);
        const QPointF edge = point(knee, letter.At);
        painter.drawPolyline(QPolygonF{centre, edge, point(lane - knee, middle)});
        painter.setBrush(CurrentColours().Text);
        painter.drawEllipse(centre, PixelsExact(LaneDot), PixelsExact(LaneDot));
        painter.setBrush(Qt::NoBrush);
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.drawText(point(lane, letter.Begin) + QPointF(0, ascent), ToQt(piece.Label));
    }
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
    const double lane = spread.Lane * at.Zoom;
    if (!Reaches(roll.adjusted(0, 0, spread.Stands ? lane : 0, spread.Stands ? 0 : lane), part)) {
        return;
    }
    const std::size_t largest = LabellingAt(spread, at.Zoom).Largest;
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
    std::vector<std::pair<const ChartPiece*, QRectF>> seen;
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
        seen.push_back({&piece, box});
    }
    if (spread.Lane > 0) {
        PaintLane(painter, spread, at, row, roll);
    }
    for (const auto& [piece, box] : seen) { // above the lines that may cross them
        PaintLabel(painter, *piece, box, {piece->Y < stretch.From - Nearly, largest});
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

void RollPainter::PaintLabel(QPainter& painter, const ChartPiece& piece, const QRectF& box,
                             const LabelWish& wish) const {
    const FittedLabel label = FitLabel(piece, box.width(), box.height(), measure_, wish);
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
