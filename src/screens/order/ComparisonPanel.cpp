#include "screens/order/ComparisonPanel.h"

#include "base/Text.h"
#include "base/Words.h"
#include "files/QtText.h"
#include "order/ComparisonText.h"
#include "screens/Arrangement.h"
#include "screens/ControlNames.h"
#include "screens/Controls.h"
#include "screens/Theme.h"
#include "screens/order/ComparisonGrid.h"

#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

namespace tarn {

namespace {

constexpr int TextColumns = 3; ///< the mark, the roll and the lay; figures follow

/// As much of the remarks as leaves room for the rest: hundreds of rooms may be named.
QString Shortened(const QString& remarks) {
    constexpr qsizetype Most = 240;
    return remarks.size() <= Most ? remarks : remarks.left(Most) + QChar(0x2026);
}

/// A row of the table from one of the comparison: what is decided by comes first, what one looks up
/// is behind it.
std::vector<std::string> TableRow(std::string mark, const std::vector<std::string>& comparison,
                                  std::string aboveLeast, std::string remarks) {
    constexpr std::array<std::size_t, 8> First{0, 1, 2, 5, 8, 9, 10, 11}; // roll .. price
    constexpr std::array<std::size_t, 4> Second{3, 4, 6, 7};              // needed .. trimmed
    std::vector<std::string> row{std::move(mark)};
    for (const std::size_t column : First) {
        row.push_back(comparison.at(column));
    }
    row.push_back(std::move(aboveLeast));
    for (const std::size_t column : Second) {
        row.push_back(comparison.at(column));
    }
    row.push_back(std::move(remarks));
    return row;
}

/// What one decides by: mark, roll, lay, order and price.
constexpr std::array KeptColumns{0, 1, 2, 3, 8};

std::vector<std::string> Heads(Units units) {
    return TableRow(Words("Take"), ComparisonHeads(units), Words("Above least %"), Words("Notes"));
}

QLabel* NewLine(QWidget* parent, const char* name, TextRole role) {
    QLabel* label = NewLabel(parent, name, {});
    SetRole(*label, role);
    label->setWordWrap(true);
    return label;
}

} // namespace

ComparisonPanel::ComparisonPanel(QWidget* parent)
    : QWidget(parent) {
    setObjectName(Controls::comparisonPanel);
    taken_ = NewLine(this, Controls::comparisonTaken, TextRole::Heading);
    rule_ = NewLine(this, Controls::comparisonRule, TextRole::Hint);
    table_ = new ComparisonGrid(this);
    NameControl(*table_, Controls::comparison, ToQt(Words("Comparison of rolls and lays")));
    table_->OnLeftOut = [this] { ShowLeftOut(); };
    connect(table_, &QTableWidget::currentCellChanged, this, [this](int row, int, int before, int) {
        if (row >= 0 && row != before) {
            OnRow(static_cast<std::size_t>(row));
        }
    });
    leftOut_ = NewLine(this, Controls::comparisonLeftOut, TextRole::Label);
    remarks_ = NewLine(this, Controls::comparisonRemarks, TextRole::Label);
    auto* rows = new QVBoxLayout(this);
    SetSpacing(*rows, 0, Metrics::Spacing / 2);
    rows->addWidget(taken_);
    rows->addWidget(rule_);
    rows->addWidget(table_, 1);
    rows->addWidget(leftOut_);
    rows->addWidget(remarks_);
    Clear();
}

QTableWidget& ComparisonPanel::Table() {
    return *table_;
}

void ComparisonPanel::Show(const Order& order, std::optional<std::size_t> taken) {
    const QSignalBlocker silent(table_);
    const auto rows = static_cast<int>(order.Candidates.size());
    const bool isNew = table_->rowCount() != rows;
    if (isNew) {
        SetHeads(order.Request.In);
        table_->setRowCount(rows);
        table_->updateGeometry();
    }
    for (std::size_t row = 0; row < order.Candidates.size(); ++row) {
        SetCells(order, row, taken == row);
    }
    table_->FitToCells();
    if (taken && static_cast<int>(*taken) != table_->currentRow()) {
        table_->setCurrentCell(static_cast<int>(*taken), std::max(table_->currentColumn(), 0));
    }
    takenRow_ = taken && order.Candidates[*taken].Figures ? static_cast<int>(*taken) : -1;
    ShowTaken(order, taken);
    ShowLeftOut();
}

/// What the table has no room for, of the row that is taken.
void ComparisonPanel::ShowLeftOut() {
    std::string figures;
    for (const int column : table_->LeftOut()) {
        const QTableWidgetItem* cell = table_->item(takenRow_, column);
        if (cell != nullptr && !cell->text().isEmpty()) {
            figures += figures.empty() ? "" : ";  ";
            figures += Words("%1: %2", table_->Head(column), FromQt(cell->text()));
        }
    }
    SetText(*leftOut_, figures);
    leftOut_->setVisible(!figures.empty());
}

void ComparisonPanel::ShowTaken(const Order& order, std::optional<std::size_t> taken) {
    const bool hasFigures = taken && order.Candidates[*taken].Figures;
    SetText(*taken_, hasFigures ? TakenText(order, *taken) : std::string());
    taken_->setVisible(hasFigures);
    const std::string rule = RuleOfBest(order);
    SetText(*rule_, rule);
    rule_->setVisible(!rule.empty());
    const std::string remarks = taken ? RemarksOf(order.Candidates[*taken]) : std::string();
    SetText(*remarks_, remarks);
    remarks_->setText(Shortened(remarks_->text()));
    SetToolTip(*remarks_, remarks_->accessibleName());
    remarks_->setVisible(!remarks.empty());
}

void ComparisonPanel::Clear() {
    const QSignalBlocker silent(table_);
    table_->setRowCount(0);
    takenRow_ = -1;
    taken_->hide();
    rule_->hide();
    leftOut_->hide();
    remarks_->hide();
}

void ComparisonPanel::SetHeads(Units units) {
    table_->SetHeads(Heads(units), {KeptColumns.begin(), KeptColumns.end()});
}

void ComparisonPanel::SetCells(const Order& order, std::size_t row, bool isTaken) {
    const OrderCandidate& candidate = order.Candidates[row];
    const Phrase mark = order.Best == row              ? Words("best")
                        : isTaken && candidate.Figures ? Words("chosen")
                                                       : Phrase();
    const auto cells = TableRow(mark, ComparisonCells(order, candidate), AboveLeastText(candidate),
                                OneLine(RemarksOf(candidate)));
    for (int column = 0; column < table_->columnCount(); ++column) {
        QTableWidgetItem& cell = Cell(static_cast<int>(row), column);
        const QString text = ToQt(cells[static_cast<std::size_t>(column)]);
        if (cell.text() != text) {
            cell.setText(text);
        }
        if (cell.font().bold() != isTaken) {
            QFont font = cell.font();
            font.setBold(isTaken);
            cell.setFont(font);
        }
    }
}

QTableWidgetItem& ComparisonPanel::Cell(int row, int column) {
    QTableWidgetItem* cell = table_->item(row, column);
    if (cell == nullptr) {
        cell = new QTableWidgetItem;
        const bool isText = column < TextColumns || column == table_->columnCount() - 1;
        cell->setTextAlignment((isText ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
        table_->setItem(row, column, cell);
    }
    return *cell;
}

} // namespace tarn
