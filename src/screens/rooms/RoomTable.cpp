#include "screens/rooms/RoomTable.h"

#include "base/Words.h"
#include "files/QtText.h"
#include "screens/ControlNames.h"
#include "screens/Controls.h"
#include "screens/Display.h"
#include "screens/Theme.h"
#include "screens/rooms/RoomTableModel.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <array>

namespace tarn {

namespace {

/// What a column has to hold in letters of its own, from left to right: no less than most rooms
/// have. A longer text ends in dots and is its tool tip.
constexpr std::array<const char*, RoomColumns> Samples{"501",  "99'11\"", "99'11\"",   "C8",
                                                       "W2L2", "106.12",  "Bedroom 2", "9,999.99"};
/// The longest remark that is read at one glance.
constexpr const char* LongRemark = "The second room on the left behind the hall, with a bay window";

constexpr double FrameLine = 45;

} // namespace

RoomTable::RoomTable(const OpenProject& project)
    : model_(new RoomTableModel(project, this)) {
    NameControl(*this, Controls::roomTable, ToQt(Words("ROOMS")));
    setModel(model_);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setShowGrid(false);
    setWordWrap(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setHighlightSections(false);
    ensurePolished(); // gives it the type that the columns are measured in
    horizontalHeader()->ensurePolished();
    FitColumns();
    connect(this, &QTableView::clicked, this, [this](const QModelIndex& index) {
        if (OnChosen) {
            OnChosen(static_cast<std::size_t>(index.row()));
        }
    });
}

void RoomTable::Show(std::size_t room, const std::optional<Room>& typed) {
    model_->ShowTyped(room, typed);
    if (shown_ == room && selectionModel()->hasSelection()) {
        return;
    }
    shown_ = room;
    const QModelIndex index = model_->index(static_cast<int>(room), 0);
    selectionModel()->select(index,
                             QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    ReturnToSelected();
}

void RoomTable::ReturnToSelected() {
    const auto rows = selectionModel()->selectedRows();
    if (!rows.isEmpty()) {
        selectionModel()->setCurrentIndex(rows.front(), QItemSelectionModel::NoUpdate);
        scrollTo(rows.front());
        viewport()->update();
    }
}

void RoomTable::NoteRooms() {
    model_->NoteRooms();
}

int RoomTable::WidthOf(const QString& text) const {
    return fontMetrics().horizontalAdvance(text) + 2 * Pixels(Metrics::CellPadding);
}

void RoomTable::FitColumns() {
    horizontalHeader()->setMinimumSectionSize(1);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    for (int column = 0; column < RoomColumns; ++column) {
        const QString caption =
            model_->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        const int head = horizontalHeader()->fontMetrics().horizontalAdvance(caption) +
                         2 * Pixels(Metrics::CellPadding);
        const QString sample = QString::fromLatin1(Samples.at(static_cast<std::size_t>(column)));
        setColumnWidth(column, std::max(head, WidthOf(sample)));
    }
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + Pixels(Metrics::RowPadding));
    const int remark = static_cast<int>(RoomColumn::Remark);
    setMinimumWidth(LeastWidth());
    horizontalHeader()->setSectionResizeMode(remark, QHeaderView::Stretch);
    updateGeometry();
}

int RoomTable::WidthBeside(int remark) const {
    int width = remark + 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
    for (int column = 0; column < RoomColumns; ++column) {
        if (column != static_cast<int>(RoomColumn::Remark)) {
            width += columnWidth(column);
        }
    }
    return width;
}

int RoomTable::LeastWidth() const {
    const auto remark = static_cast<std::size_t>(RoomColumn::Remark);
    return WidthBeside(WidthOf(QString::fromLatin1(Samples.at(remark))));
}

int RoomTable::MostWidth() const {
    return WidthBeside(WidthOf(QString::fromLatin1(LongRemark)));
}

int RoomTable::HeightOf(int rows) const {
    return horizontalHeader()->sizeHint().height() + rows * verticalHeader()->defaultSectionSize() +
           2 * frameWidth();
}

QSize RoomTable::minimumSizeHint() const {
    constexpr int LeastRows = 3;
    return {LeastWidth(), HeightOf(LeastRows)};
}

QItemSelectionModel::SelectionFlags RoomTable::selectionCommand(const QModelIndex& /*index*/,
                                                                const QEvent* /*event*/) const {
    return QItemSelectionModel::NoUpdate;
}

/// The frame is around the whole row, and the toolkit paints the cell alone.
void RoomTable::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    viewport()->update();
}

void RoomTable::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    BringSelectedIntoView();
}

/// While it was hidden the screen may have got another size.
void RoomTable::showEvent(QShowEvent* event) {
    QTableView::showEvent(event);
    BringSelectedIntoView();
}

void RoomTable::BringSelectedIntoView() {
    const auto rows = selectionModel()->selectedRows();
    if (!rows.isEmpty()) {
        scrollTo(rows.front());
    }
}

void RoomTable::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Paste)) {
        if (!event->isAutoRepeat() && OnPaste) {
            OnPaste();
        }
        return;
    }
    const auto& act = event->key() == Qt::Key_Delete ? OnDelete : OnChosen;
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_F2:
    case Qt::Key_Delete:
        if (!event->isAutoRepeat() && currentIndex().isValid() && act) {
            act(static_cast<std::size_t>(currentIndex().row()));
        }
        break;
    default:
        QTableView::keyPressEvent(event);
    }
}

/// The first click has done it.
void RoomTable::mouseDoubleClickEvent(QMouseEvent* event) {
    event->accept();
}

/// The frame around the row that the keys act on.
void RoomTable::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    if (!hasFocus() || !currentIndex().isValid()) {
        return;
    }
    const QRect cell = visualRect(currentIndex());
    const int line = std::max(Pixels(FrameLine), 1);
    const QRect row(0, cell.top(), viewport()->width(), cell.height());
    QPainter painter(viewport());
    const bool isSelected = selectionModel()->isSelected(currentIndex());
    painter.setPen(QPen(isSelected ? CurrentColours().Text : CurrentColours().Accent, line));
    painter.drawRect(row.adjusted(line / 2, line / 2, -(line + 1) / 2, -(line + 1) / 2));
}

void RoomTable::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        FitColumns();
    }
}

void RoomTable::focusInEvent(QFocusEvent* event) {
    QTableView::focusInEvent(event);
    viewport()->update();
}

void RoomTable::focusOutEvent(QFocusEvent* event) {
    QTableView::focusOutEvent(event);
    viewport()->update();
}

} // namespace tarn
