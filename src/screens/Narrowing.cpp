#include "screens/Narrowing.h"

#include "screens/Arrangement.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QLabel>
#include <QStringList>

#include <algorithm>

namespace tarn {

namespace {

template <class Measure>
int SumOf(const QBoxLayout& columns, Measure widthOf) {
    if (QWidget* parent = columns.parentWidget()) {
        parent->ensurePolished(); // gives all in it the type that it is measured in
    }
    int sum = std::max(0, columns.count() - 1) * columns.spacing();
    for (int i = 0; i < columns.count(); ++i) {
        sum += widthOf(*columns.itemAt(i));
    }
    return sum;
}

QString Wrapped(const QString& text, const QFontMetrics& metrics, int room) {
    QString whole = text;
    whole.replace(QLatin1Char('\n'), QLatin1Char(' '));
    const auto fits = [&](const QString& line) {
        return metrics.size(Qt::TextShowMnemonic, line).width() <= room;
    };
    if (fits(whole)) {
        return whole;
    }
    QStringList lines;
    for (const QString& word : whole.split(QLatin1Char(' '))) {
        const QString longer = lines.isEmpty() ? word : lines.back() + QLatin1Char(' ') + word;
        if (!lines.isEmpty() && fits(longer)) {
            lines.back() = longer;
        } else {
            lines += word;
        }
    }
    return lines.join(QLatin1Char('\n'));
}

int WidthOf(const QWidget& button) {
    return std::max(button.sizeHint().width(), button.minimumWidth());
}

} // namespace

int NaturalWidth(const QBoxLayout& columns) {
    return SumOf(columns, [](const QLayoutItem& column) {
        return std::max(column.sizeHint().width(), column.minimumSize().width());
    });
}

int LeastWidth(const QBoxLayout& columns) {
    return SumOf(columns, [](const QLayoutItem& column) { return column.minimumSize().width(); });
}

void SetStacked(QBoxLayout& columns, bool stacked) {
    columns.setDirection(stacked ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
}

void WrapWithin(QLabel& label, int room) {
    label.ensurePolished();
    label.setText(Wrapped(label.text(), label.fontMetrics(), room));
}

void WrapWithin(QAbstractButton& button, int room) {
    button.ensurePolished();
    const int beside = button.sizeHint().width() -
                       button.fontMetrics().size(Qt::TextShowMnemonic, button.text()).width();
    button.setText(Wrapped(button.text(), button.fontMetrics(), room - beside));
}

WrappingRow::WrappingRow() {
    SetSpacing(*this, 0);
}

void WrappingRow::Add(QWidget& button, bool atTheEnd) {
    items_.push_back({&button, atTheEnd});
    Fill({static_cast<int>(items_.size())});
}

void WrappingRow::SetRoom(int room) {
    const std::vector<int> rows = RowsIn(room);
    if (rows != rows_) {
        Fill(rows);
    }
}

std::vector<int> WrappingRow::RowsIn(int room) const {
    std::vector<int> rows;
    int width = 0;
    for (const Item& item : items_) {
        item.Button->ensurePolished();
        const int wide = WidthOf(*item.Button);
        if (rows.empty() || width + spacing() + wide > room) {
            rows.push_back(1);
            width = wide;
        } else {
            ++rows.back();
            width += spacing() + wide;
        }
    }
    return rows;
}

void WrappingRow::Fill(const std::vector<int>& rows) {
    while (QLayoutItem* row = takeAt(0)) {
        delete row; // a layout, whose buttons stay
    }
    auto item = items_.begin();
    bool isAtTheEnd = false;
    for (const int count : rows) {
        auto* row = new QHBoxLayout;
        row->setSpacing(spacing());
        for (int i = 0; i < count; ++i, ++item) {
            if (item->IsAtTheEnd || (isAtTheEnd && i == 0)) {
                isAtTheEnd = true;
                row->addStretch();
            }
            row->addWidget(item->Button);
        }
        addLayout(row);
    }
    rows_ = rows;
}

} // namespace tarn
