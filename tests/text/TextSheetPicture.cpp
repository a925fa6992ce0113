// tarn_text_sheet FILE: the sheet of texts as a picture, with its rows and columns labelled.

#include "text/TextSheet.h"

#include <QGuiApplication>
#include <QImage>

#include <iostream>

namespace {

using tarn::testing::PaintTextSheet;
using tarn::testing::SheetCellSize;
using tarn::testing::SheetColumns;
using tarn::testing::SheetInk;
using tarn::testing::SheetRow;
using tarn::testing::SheetRows;
using tarn::testing::SheetSize;

constexpr double Scale = 0.5;
constexpr int Cell = static_cast<int>(SheetCellSize * Scale);
constexpr int Head = 32;
constexpr int Side = 150;
constexpr int Gap = 8;

QString LabelOf(const SheetRow& row) {
    const QString degrees = QString::number(row.Escapement / 10.0);
    return QStringLiteral("%1\nEscapement %2\n(%3°)")
        .arg(QString::fromStdString(row.Label), QString::number(row.Escapement), degrees);
}

void PaintLabels(QPainter& painter) {
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(13);
    painter.setFont(font);
    painter.setPen(Qt::black);
    int x = Side;
    for (const std::string& column : SheetColumns()) {
        painter.drawText(QRect(x, 0, Cell, Head), Qt::AlignCenter, QString::fromStdString(column));
        x += Cell;
    }
    int y = Head;
    for (const SheetRow& row : SheetRows()) {
        painter.drawText(QRect(0, y, Side - Gap, Cell), Qt::AlignRight | Qt::AlignVCenter,
                         LabelOf(row));
        y += Cell;
    }
}

QImage Sheet(SheetInk ink) {
    QImage image(SheetSize() * Scale, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.scale(Scale, Scale);
    PaintTextSheet(painter, ink);
    return image;
}

QImage Picture() {
    const QImage sheet = Sheet(SheetInk::All);
    QImage image(sheet.size() + QSize(Side + Gap, Head + Gap), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    PaintLabels(painter);
    painter.drawImage(Side, Head, sheet);
    // What the clips cut off shows through.
    painter.setCompositionMode(QPainter::CompositionMode_Multiply);
    painter.setOpacity(0.15);
    painter.drawImage(Side, Head, Sheet(SheetInk::Unclipped));
    return image;
}

} // namespace

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    if (argc != 2) {
        std::cerr << "usage: tarn_text_sheet FILE\n";
        return 2;
    }
    if (!Picture().save(QString::fromLocal8Bit(argv[1]))) {
        std::cerr << "tarn_text_sheet: cannot write " << argv[1] << '\n';
        return 1;
    }
    return 0;
}
