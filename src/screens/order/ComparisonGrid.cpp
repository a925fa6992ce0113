#include "screens/order/ComparisonGrid.h"

#include "files/QtText.h"
#include "screens/Display.h"
#include "screens/Theme.h"

#include <QEvent>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>
#include <numeric>

namespace tarn {

namespace {

constexpr double ComparedRowHeight = 400; ///< twips
constexpr double WidestColumn = 9000;
constexpr double UsualPadding = 120; ///< of a column, on each side
constexpr double TightPadding = 90;
constexpr int LeastRowsCompared = 3; ///< in sight
constexpr int MostRowsCompared = 8;  ///< where there is room

/// A head on two lines, so that its column is no wider than need be.
QString OnTwoLines(const std::string& head) {
    QString text = ToQt(head);
    const auto blank = text.indexOf(QLatin1Char(' '));
    if (blank >= 0) {
        text[blank] = QLatin1Char('\n');
    }
    return text;
}

/// A head on a line for each word. What is one unit stays together, such as "sq. ft.", and a third
/// line is not for a mere mark.
QString OnALineForEachWord(const std::string& head) {
    QString text;
    for (const QString& word : ToQt(head).split(QLatin1Char(' '))) {
        const bool isMark = word.size() == 1 && text.contains(QLatin1Char('\n'));
        const bool goesOn = isMark || text.endsWith(QLatin1Char('.'));
        if (!text.isEmpty()) {
            text += QLatin1Char(goesOn ? ' ' : '\n');
        }
        text += word;
    }
    return text;
}

} // namespace

ComparisonGrid::ComparisonGrid(QWidget* parent)
    : QTableWidget(parent) {
    setTabKeyNavigation(false); // it leads on to the next control
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setWordWrap(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(TextPixels(ComparedRowHeight));
    verticalHeader()->setMinimumSectionSize(TextPixels(ComparedRowHeight));
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setMinimumSectionSize(0);
}

QSize ComparisonGrid::sizeHint() const {
    const int rows = std::clamp(rowCount(), LeastRowsCompared, MostRowsCompared);
    return {QTableWidget::sizeHint().width(), HeightFor(rows)};
}

QSize ComparisonGrid::minimumSizeHint() const {
    return {QTableWidget::minimumSizeHint().width(), HeightFor(LeastRowsCompared)};
}

int ComparisonGrid::HeightFor(int rows) const {
    return 2 * frameWidth() + horizontalHeader()->sizeHint().height() +
           rows * verticalHeader()->defaultSectionSize() +
           horizontalScrollBar()->sizeHint().height();
}

void ComparisonGrid::SetHeads(const std::vector<std::string>& heads, const std::vector<int>& kept) {
    heads_ = heads;
    kept_ = kept;
    needs_.clear();
    fit_ = {false, {}};
    setColumnCount(static_cast<int>(heads.size()));
}

std::string ComparisonGrid::Head(int column) const {
    return heads_.at(static_cast<std::size_t>(column));
}

void ComparisonGrid::FitToCells() {
    Measure();
    Fit();
}

/// 0 where no cell of the column says anything.
int ComparisonGrid::TextWidth(int column) const {
    ensurePolished(); // gives it the type that it is measured in
    int width = 0;
    for (int row = 0; row < rowCount(); ++row) {
        if (const QTableWidgetItem* cell = item(row, column)) {
            QFont type = font();
            type.setBold(cell->font().bold());
            width = std::max(width, QFontMetrics(type).horizontalAdvance(cell->text()));
        }
    }
    return width;
}

void ComparisonGrid::Measure() {
    horizontalHeader()->ensurePolished();
    const QFontMetrics heads = horizontalHeader()->fontMetrics();
    const int most = TextPixels(WidestColumn);
    needs_.clear();
    for (int column = 0; column < columnCount(); ++column) {
        const bool isKept = std::count(kept_.begin(), kept_.end(), column) > 0;
        const int cells = TextWidth(column);
        const bool isRepeated = IsNotes(column) || cells == 0;
        const auto width = [&](const QString& head, double padding) {
            const int text = std::max(heads.size(0, head).width(), IsNotes(column) ? 0 : cells);
            return std::min(text + 2 * Pixels(padding), most);
        };
        const QString narrow = OnALineForEachWord(Head(column));
        needs_.push_back({isRepeated ? ColumnUse::Repeated
                          : isKept   ? ColumnUse::Kept
                                     : ColumnUse::LookedUp,
                          width(OnTwoLines(Head(column)), UsualPadding),
                          width(narrow, TightPadding),
                          heads.size(0, narrow).width() + 2 * Pixels(TightPadding)});
    }
}

/// The room is the same with the bar beside the rows and without: what is fitted does not bring it
/// or take it away.
void ComparisonGrid::Fit() {
    if (isFitting_ || needs_.empty()) {
        return;
    }
    const QScopedValueRollback fitting(isFitting_, true);
    const std::vector<int> before = LeftOut();
    Apply(FitColumns(needs_, width() - 2 * frameWidth() - verticalScrollBar()->sizeHint().width()));
    if (LeftOut() != before) {
        OnLeftOut();
    }
}

void ComparisonGrid::Apply(const ColumnFit& fit) {
    if (fit_.Widths.empty() || fit.IsTight != fit_.IsTight) {
        QStringList heads;
        for (const std::string& head : heads_) {
            heads += fit.IsTight ? OnALineForEachWord(head) : OnTwoLines(head);
        }
        setHorizontalHeaderLabels(heads);
        updateGeometry();
    }
    fit_ = fit;
    Widen();
    if (currentColumn() >= 0 && isColumnHidden(currentColumn())) {
        setCurrentCell(currentRow(), 0);
    }
}

/// What is left of the room goes to the notes, else to all columns.
void ComparisonGrid::Widen() {
    const auto& widths = fit_.Widths;
    const int taken = std::accumulate(widths.begin(), widths.end(), 0);
    const int left = std::max(0, viewport()->width() - taken);
    const auto shown = static_cast<int>(
        widths.size() - static_cast<std::size_t>(std::count(widths.begin(), widths.end(), 0)));
    const bool hasNotes = widths.back() > 0;
    for (int column = 0, given = 0, place = 0; column < columnCount(); ++column) {
        const int width = widths.at(static_cast<std::size_t>(column));
        setColumnHidden(column, width == 0);
        if (width > 0) {
            ++place;
            const int share =
                hasNotes ? (IsNotes(column) ? left : 0) : left * place / shown - given;
            given += share;
            setColumnWidth(column, width + share);
        }
    }
}

std::vector<int> ComparisonGrid::LeftOut() const {
    std::vector<int> columns;
    for (int column = 0; column < columnCount(); ++column) {
        const auto place = static_cast<std::size_t>(column);
        if (place < fit_.Widths.size() && fit_.Widths[place] == 0 &&
            needs_.at(place).Use == ColumnUse::LookedUp) {
            columns.push_back(column);
        }
    }
    return columns;
}

void ComparisonGrid::resizeEvent(QResizeEvent* event) {
    QTableWidget::resizeEvent(event);
    Fit();
}

void ComparisonGrid::changeEvent(QEvent* event) {
    QTableWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        FitToCells();
    }
}

} // namespace tarn
