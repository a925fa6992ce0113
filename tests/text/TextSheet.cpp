#include "text/TextSheet.h"

#include <QRegion>

#include <array>

namespace tarn::testing {

namespace {

constexpr Integer True = -1;
constexpr Integer False = 0;
constexpr int Columns = 9;
constexpr int MarkWidth = 2;
constexpr int OwnSize = 20; ///< of the letters of the surface's own font, pixels
constexpr QPoint SecondText{20, 24};

constexpr std::array<const char*, 3> Verticals{"top", "baseline", "bottom"};
constexpr std::array<const char*, 3> Horizontals{"left", "center", "right"};

constexpr SheetColor Black{0, qRgb(0, 0, 0)};
constexpr SheetColor Red{255, qRgb(255, 0, 0)};
constexpr std::array<SheetColor, Columns> Colors{{
    Red,
    {65280, qRgb(0, 255, 0)},
    {16711680, qRgb(0, 0, 255)},
    {33023, qRgb(255, 128, 0)},
    {8388736, qRgb(128, 0, 128)},
    {8421376, qRgb(0, 128, 128)},
    {8421504, qRgb(128, 128, 128)},
    {13107200, qRgb(0, 0, 200)},
    {1973790, qRgb(30, 30, 30)},
}};

SheetCell CellAt(const SheetRow& row, int number, int column) {
    SheetCell cell;
    cell.BaseLine = column / 3 == 1;
    cell.Bottom = column / 3 == 2;
    cell.Center = column % 3 == 1;
    cell.Right = column % 3 == 2;
    cell.Row = row;
    cell.Area = {column * SheetCellSize, number * SheetCellSize, SheetCellSize, SheetCellSize};
    const QPoint middle = cell.Area.topLeft() + QPoint(SheetCellSize / 2, SheetCellSize / 2);
    cell.Texts.push_back(
        {middle, row.Colored ? Colors.at(static_cast<std::size_t>(column)) : Black});
    if (row.Twice) {
        cell.Texts.push_back({middle + SecondText, Red});
    }
    return cell;
}

void PaintMarks(QPainter& painter, const SheetCell& cell) {
    const QColor line(225, 225, 225);
    const QColor mark(120, 160, 220);
    const auto outline = [&painter](const QRect& around, const QColor& color) {
        const QRect inside = around.adjusted(MarkWidth, MarkWidth, -MarkWidth, -MarkWidth);
        for (const QRect& part : QRegion(around) - inside) {
            painter.fillRect(part, color);
        }
    };
    outline(cell.Area, line);
    if (cell.Row.Clipped) {
        outline(ClipOf(cell).adjusted(-MarkWidth, -MarkWidth, MarkWidth, MarkWidth), mark);
    }
    for (const SheetText& text : cell.Texts) {
        painter.fillRect(QRect(text.Position - QPoint(8, 1), QSize(16, MarkWidth)), mark);
        painter.fillRect(QRect(text.Position - QPoint(1, 8), QSize(MarkWidth, 16)), mark);
    }
}

void PaintTexts(QPainter& painter, const SheetCell& cell, bool clipped) {
    painter.save(); // the clip stays in force on the surface
    PainterSurface surface(painter);
    const auto truth = [](bool value) { return value ? True : False; };
    TextWriter writer;
    writer.Font.SetFace("Liberation Sans");
    writer.Font.Height = SheetTextHeight;
    writer.Font.Width = 0;
    writer.Font.Weight = 400;
    writer.Font.Escapement = cell.Row.Escapement;
    writer.SelectFont(surface);
    TextWriter::SetAlignment(surface, False, truth(cell.BaseLine), truth(cell.Bottom), False,
                             truth(cell.Center), truth(cell.Right));
    for (const SheetText& text : cell.Texts) {
        TextWriter::SetColor(surface, text.Color.Value);
        if (clipped && &text == &cell.Texts.front()) {
            TextWriter::WriteClipped(surface, SheetWord, text.Position.x(), text.Position.y());
        } else {
            TextWriter::Write(surface, SheetWord, text.Position.x(), text.Position.y());
        }
    }
    writer.RestoreFont(surface);
    painter.restore();
}

} // namespace

std::vector<SheetRow> SheetRows() {
    std::vector<SheetRow> rows;
    for (const Long escapement : {0, 300, 900, 1350, 1800, 2250, 2700, -450, 3600}) {
        rows.push_back({"Write", escapement});
    }
    for (const Long escapement : {0, 300}) {
        rows.push_back({"SetColor", escapement, true});
    }
    for (const Long escapement : {0, 300, -450, 1800}) {
        rows.push_back({"WriteClipped", escapement, false, true});
    }
    for (const Long escapement : {0, 1800}) {
        rows.push_back({"WriteClipped, Write", escapement, false, true, true});
    }
    return rows;
}

std::vector<std::string> SheetColumns() {
    std::vector<std::string> columns;
    for (const char* vertical : Verticals) {
        for (const char* horizontal : Horizontals) {
            columns.push_back(std::string(vertical) + " " + horizontal);
        }
    }
    return columns;
}

std::vector<SheetCell> SheetCells() {
    std::vector<SheetCell> cells;
    int number = 0;
    for (const SheetRow& row : SheetRows()) {
        for (int column = 0; column < Columns; ++column) {
            cells.push_back(CellAt(row, number, column));
        }
        ++number;
    }
    return cells;
}

QSize SheetSize() {
    return QSize(Columns, static_cast<int>(SheetRows().size())) * SheetCellSize;
}

std::string NameOf(const SheetCell& cell) {
    const auto column = static_cast<std::size_t>(cell.Area.left() / SheetCellSize);
    return cell.Row.Label + " " + SheetColumns().at(column) + ", escapement " +
           std::to_string(cell.Row.Escapement);
}

QRect ClipOf(const SheetCell& cell) {
    // Of 20 pixels "Hxg" is 35.56 wide and 22.34 high in Liberation Sans; twice that is left.
    return {cell.Texts.front().Position, QSize(71, 45)};
}

void PaintTextSheet(QPainter& painter, SheetInk ink) {
    painter.setRenderHint(QPainter::Antialiasing);
    QFont own(QStringLiteral("Liberation Sans"));
    own.setPixelSize(OwnSize);
    own.setHintingPreference(QFont::PreferNoHinting);
    painter.setFont(own);
    painter.fillRect(QRect(QPoint(), SheetSize()), Qt::white);
    const auto cells = SheetCells();
    for (const SheetCell& cell : cells) {
        PaintMarks(painter, cell);
    }
    for (const SheetCell& cell : cells) {
        if (ink != SheetInk::None) {
            PaintTexts(painter, cell, cell.Row.Clipped && ink == SheetInk::All);
        }
    }
}

} // namespace tarn::testing
