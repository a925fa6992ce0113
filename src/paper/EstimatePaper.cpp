#include "paper/EstimatePaper.h"

#include "base/Words.h"
#include "files/QtText.h"
#include "paper/Arial.h"
#include "paper/PaintDrawing.h"
#include "paper/Paper.h"
#include "paper/Printer.h"

#include <QFontMetricsF>
#include <QMarginsF>
#include <QPagedPaintDevice>
#include <QPainter>

#include <algorithm>
#include <string>
#include <vector>

namespace tarn {

namespace {

constexpr Double TypeSize = 12; ///< points
constexpr Double LeftEdge = 500;
constexpr Double TitleTop = 400;
constexpr Double DrawingTop = 800;
constexpr Double CarpetLinesBelow = 600;
constexpr int CarpetLineCount = 2;
/// Of the note in the drawing's place: a drawing that loses its list is a line along an edge there.
constexpr Double NoteInset = 500;

/// A line with its top left at `place`, smaller letters where it does not fit into `width`.
void PaintLine(QPainter& painter, QPointF place, double width, const std::string& text) {
    const QString line = ToQt(text);
    const double natural = QFontMetricsF(painter.font(), painter.device()).horizontalAdvance(line);
    painter.save();
    painter.translate(place + QPointF(0, AscentOfLine(TypeSize)));
    if (natural > width) {
        painter.scale(width / natural, width / natural);
    }
    painter.drawText(QPointF(), line);
    painter.restore();
}

/// Lines below each other, each no farther than `right`.
void PaintLines(QPainter& painter, QPointF place, double right,
                const std::vector<std::string>& lines) {
    for (const std::string& line : lines) {
        PaintLine(painter, place, right - place.x(), line);
        place.ry() += HeightOfLine(TypeSize);
    }
}

EstimatePlaces PlacesOf(const EstimatePage& page, const QSizeF& sheet) {
    return page.Sheet.IsKnown() ? PlacesOn(page.Sheet.Width, page.Sheet.Height)
                                : PlacesOn(sheet.width(), sheet.height());
}

bool LosesCutList(const EstimatePage& page, const EstimatePlaces& places, const QTransform& fit) {
    if (page.ListTypeSize == 0) {
        return false;
    }
    const QRectF source = PrintedSource(page.Picture, places.Picture);
    const double scale = source.isEmpty() ? 0 : fit.m11() * places.Picture.width() / source.width();
    return !AreLettersPainted(page.ListTypeSize, scale * PageResolution / TwipsPerInch);
}

void PaintScaled(QPainter& painter, const Drawing& drawing, const QRectF& target) {
    const QRectF source = PrintedSource(drawing, target);
    if (source.isEmpty()) {
        return;
    }
    painter.save();
    painter.translate(target.topLeft());
    painter.scale(target.width() / source.width(), target.height() / source.height());
    painter.setClipRect(source);
    PaintDrawing(painter, drawing);
    painter.restore();
}

} // namespace

EstimatePlaces PlacesOn(Double width, Double height) {
    EstimatePlaces places;
    places.Title = {LeftEdge, TitleTop};
    places.Picture = {LeftEdge, DrawingTop, width / 1.2, height / 1.35};
    places.CarpetLines = {LeftEdge, CarpetLinesBelow + height / 1.25};
    const double bottom = places.CarpetLines.y() + CarpetLineCount * HeightOfLine(TypeSize);
    places.ListNote = places.Picture.topLeft() + QPointF(NoteInset, NoteInset);
    places.All = {places.Title,
                  QPointF(places.Picture.right(), std::max(places.Picture.bottom(), bottom))};
    return places;
}

QRectF PrintedSource(const Drawing& drawing, const QRectF& target) {
    if (drawing.Steps().empty() || target.isEmpty()) {
        return {};
    }
    const double width = drawing.FarthestX() + DrawingMargin;
    const double height = drawing.FarthestY() + DrawingMargin;
    const double scale = std::min(target.width() / width, target.height() / height);
    return {QPointF(), target.size() / scale};
}

QTransform FitInto(const QRectF& all, const QRectF& printable) {
    const double scale =
        std::min({1.0, printable.width() / all.width(), printable.height() / all.height()});
    const QRectF scaled(all.topLeft() * scale, all.size() * scale);
    const auto shift = [](double low, double high, double least, double most) {
        return low < least ? least - low : std::min(0.0, most - high);
    };
    QTransform transform = QTransform::fromTranslate(
        shift(scaled.left(), scaled.right(), printable.left(), printable.right()),
        shift(scaled.top(), scaled.bottom(), printable.top(), printable.bottom()));
    transform.scale(scale, scale);
    return transform;
}

bool LosesCutList(const EstimatePage& page, const Paper& paper) {
    const QRectF sheet(0, 0, paper.Size.Width, paper.Size.Height);
    const QRectF printable =
        sheet.marginsRemoved(QMarginsF(paper.Left, paper.Top, paper.Right, paper.Bottom));
    const EstimatePlaces places = PlacesOf(page, sheet.size());
    return LosesCutList(page, places, FitInto(places.All, printable));
}

void PaintEstimate(QPagedPaintDevice& device, const EstimatePage& page) {
    QPainter painter;
    if (!painter.begin(&device)) {
        throw PrinterError(Words("The estimate could not be put on paper."));
    }
    CountInTwips(painter, device);
    const EstimatePlaces places = PlacesOf(page, SheetOf(device).size());
    const QTransform fit = FitInto(places.All, PrintableOf(device));
    if (fit.m11() * LetterHeight(TypeSize) < LeastLetters) {
        throw PrinterError(Words("The paper is too small for the estimate."), LargerPaperAdvice);
    }
    painter.setTransform(fit, true);
    painter.setFont(Arial(static_cast<int>(LetterHeight(TypeSize))));
    painter.setPen(Qt::black);
    PaintLine(painter, places.Title, places.All.right() - places.Title.x(), page.Title);
    PaintScaled(painter, page.Picture, places.Picture);
    PaintLines(painter, places.CarpetLines, places.All.right(), page.CarpetLines);
    if (LosesCutList(page, places, fit)) {
        PaintLines(painter, places.ListNote, places.All.right(),
                   {std::string(ListNotShownText), std::string(ListElsewhereText)});
    }
}

} // namespace tarn
