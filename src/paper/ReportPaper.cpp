#include "paper/ReportPaper.h"

#include "base/Words.h"
#include "paper/FixedPitchFont.h"
#include "paper/Paper.h"
#include "paper/Printer.h"
#include "paper/ReportPages.h"
#include "project/Report.h"
#include "project/ReportType.h"

#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPainter>

#include <algorithm>

namespace tarn {

namespace {

/// Where letters stand on a page, twips.
struct Grid {
    QRectF Area;
    int Size = 0;

    double Advance() const { return CourierAdvance * Size; }
    double LineHeight() const { return CourierLineHeight * Size; }
    std::size_t Columns() const { return static_cast<std::size_t>(Area.width() / Advance()); }
    std::size_t Lines() const { return static_cast<std::size_t>(Area.height() / LineHeight()); }
};

Grid GridOf(const QRectF& area) {
    static_assert(ReportHeadingWidth >= LeastPageColumns);
    const double size =
        std::min({ReportTypeSize, area.width() / (ReportHeadingWidth * CourierAdvance),
                  area.height() / (LeastPageLines * CourierLineHeight)});
    if (size < LeastLetters) {
        throw PrinterError(Words("The paper is too small for the report."), LargerPaperAdvice);
    }
    return {area, static_cast<int>(size)};
}

/// Paints the lines of pages, field by field: what two blanks part is a field, and so is the
/// remark.
class LinePainter {
  public:
    LinePainter(QPainter& painter, const Grid& grid)
        : painter_(painter)
        , grid_(grid)
        , metrics_(CourierNew(grid.Size), painter.device()) {
        painter_.setFont(CourierNew(grid.Size));
        painter_.setPen(Qt::black);
    }

    void Line(const ReportLine& line, std::size_t number) {
        const std::u32string text = QString::fromStdString(line.Text).toStdU32String();
        std::size_t begin = 0;
        while ((begin = text.find_first_not_of(U' ', begin)) != std::u32string::npos) {
            std::size_t end = std::min(text.find(U"  ", begin), text.size());
            if (begin < line.Remark && line.Remark < end) {
                end = line.Remark;
            }
            Field(text.substr(begin, end - begin), begin, number);
            begin = end;
        }
    }

  private:
    void Field(const std::u32string& characters, std::size_t column, std::size_t number) {
        const QString text = QString::fromStdU32String(characters);
        const double room = static_cast<double>(characters.size()) * grid_.Advance();
        const double natural = metrics_.horizontalAdvance(text);
        painter_.save();
        painter_.translate(grid_.Area.left() + static_cast<double>(column) * grid_.Advance(),
                           grid_.Area.top() + static_cast<double>(number) * grid_.LineHeight() +
                               CourierAscent * grid_.Size);
        if (natural > room) {
            painter_.scale(room / natural, 1); // letters of another face
        }
        painter_.drawText(QPointF(), text);
        painter_.restore();
    }

    QPainter& painter_;
    Grid grid_;
    QFontMetricsF metrics_;
};

} // namespace

void PaintReport(QPagedPaintDevice& device, const EnteredDataReport& report) {
    QPainter painter;
    if (!painter.begin(&device)) {
        throw PrinterError(Words("The report could not be put on paper."));
    }
    CountInTwips(painter, device);
    const Grid grid = GridOf(PrintableOf(device));
    LinePainter lines(painter, grid);
    bool first = true;
    for (const PaperPage& page : ReportPages(report, grid.Columns(), grid.Lines())) {
        if (!first && !device.newPage()) {
            throw PrinterError(Words("The report could not be put on a further page."));
        }
        first = false;
        for (std::size_t number = 0; number < page.size(); ++number) {
            lines.Line(page[number], number);
        }
    }
}

} // namespace tarn
