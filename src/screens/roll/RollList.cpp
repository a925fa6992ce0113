#include "screens/roll/RollList.h"

#include "base/Words.h"
#include "files/QtText.h"
#include "screens/ControlNames.h"
#include "screens/Controls.h"
#include "screens/Display.h"
#include "screens/Theme.h"

#include <QEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include <algorithm>
#include <utility>

namespace tarn {

namespace {

constexpr double LeastListWidth = 3000; ///< twips
constexpr double MostListWidth = 6600;
constexpr double LinePadding = 150; ///< before and behind a line
constexpr double LineGap = 30;
constexpr int LinesShown = 8; ///< at least

/// Shows a line that is pointed at, and is as high as a line is when it is wrapped: the toolkit's
/// own delegate forgets what stands around the text.
class LineDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// A style sheet leaves out the colour behind an item.
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const QVariant behind = index.data(Qt::BackgroundRole);
        if (behind.isValid()) {
            painter->fillRect(option.rect, behind.value<QColor>());
        }
        QStyledItemDelegate::paint(painter, option, index);
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        QSize hint = QStyledItemDelegate::sizeHint(option, index);
        const auto* list = static_cast<const QListView*>(option.widget);
        const QFontMetrics metrics(list->font());
        const QString text = index.data().toString();
        const int room = list->viewport()->width() - 2 * TextPixels(LinePadding);
        if (room > 0 && metrics.horizontalAdvance(text) > room) {
            const QRect most(0, 0, room, QWIDGETSIZE_MAX);
            const int wrapped = metrics.boundingRect(most, Qt::TextWordWrap, text).height();
            hint.setHeight(std::max(hint.height(), wrapped + 2 * Pixels(LineGap)));
        }
        return hint;
    }
};

} // namespace

void ChartLineModel::Show(std::vector<ChartLine> lines) {
    beginResetModel();
    lines_ = std::move(lines);
    pointed_ = -1;
    rows_.clear();
    for (std::size_t row = 0; row < lines_.size(); ++row) {
        if (const auto piece = lines_[row].Piece) {
            rows_.resize(std::max(rows_.size(), *piece + 1), -1);
            rows_[*piece] = static_cast<int>(row);
        }
    }
    endResetModel();
}

std::optional<std::size_t> ChartLineModel::PieceOf(int row) const {
    return row < 0 || row >= rowCount() ? std::nullopt
                                        : lines_[static_cast<std::size_t>(row)].Piece;
}

int ChartLineModel::RowOf(std::optional<std::size_t> piece) const {
    return piece && *piece < rows_.size() ? rows_[*piece] : -1;
}

void ChartLineModel::SetPointed(int row) {
    if (row != pointed_) {
        const int before = std::exchange(pointed_, row);
        Tell(before);
        Tell(row);
    }
}

void ChartLineModel::Tell(int row) {
    if (row >= 0 && row < rowCount()) {
        dataChanged(index(row), index(row), {Qt::BackgroundRole});
    }
}

int ChartLineModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(lines_.size());
}

QVariant ChartLineModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    if (role == Qt::DisplayRole) {
        return ToQt(lines_[static_cast<std::size_t>(index.row())].Text);
    }
    if (role == Qt::BackgroundRole && index.row() == pointed_) {
        return CurrentColours().Border;
    }
    return {};
}

RollList::RollList(QWidget* parent)
    : QListView(parent)
    , lines_(new ChartLineModel(this)) {
    NameControl(*this, Controls::rollList, ToQt(Words("Cut list")));
    setModel(lines_);
    setItemDelegate(new LineDelegate(this));
    setWordWrap(true);
    setResizeMode(QListView::Adjust);
    setMouseTracking(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTextElideMode(Qt::ElideNone);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(this, &QListView::entered, this,
            [this](const QModelIndex& index) { PointFrom(index); });
    connect(this, &QListView::viewportEntered, this, [this] { PointFrom({}); });
}

void RollList::Show(std::vector<ChartLine> lines) {
    setting_ = true;
    lines_->Show(std::move(lines));
    setting_ = false;
    scrollToTop();
    MeasureLines();
}

void RollList::SetCurrent(std::optional<std::size_t> piece) {
    setting_ = true;
    const int row = lines_->RowOf(piece);
    if (row < 0) {
        selectionModel()->clear();
    } else {
        setCurrentIndex(lines_->index(row));
    }
    setting_ = false;
}

void RollList::SetPointed(std::optional<std::size_t> piece) {
    const int row = lines_->RowOf(piece);
    lines_->SetPointed(row);
    if (row >= 0) {
        scrollTo(lines_->index(row));
    }
}

void RollList::MeasureLines() {
    const QFontMetrics metrics(font());
    widest_ = 0;
    for (int row = 0; row < lines_->rowCount(); ++row) {
        if (lines_->PieceOf(row)) {
            const QString text = lines_->index(row).data().toString();
            widest_ = std::max(widest_, metrics.horizontalAdvance(text));
        }
    }
    updateGeometry();
}

QSize RollList::sizeHint() const {
    const int bar = verticalScrollBar()->sizeHint().width();
    const int frame = 2 * frameWidth();
    const int least = TextPixels(LeastListWidth);
    const int most = std::max(least, most_ > 0 ? most_ : TextPixels(MostListWidth));
    const int width = std::clamp(widest_ + 2 * TextPixels(LinePadding) + bar + frame, least, most);
    return {width, LinesShown * std::max(1, sizeHintForRow(0)) + frame};
}

void RollList::SetMostWidth(int width) {
    if (width != most_) {
        most_ = width;
        updateGeometry();
    }
}

void RollList::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QListView::currentChanged(current, previous);
    if (!setting_) {
        OnCurrent(lines_->PieceOf(current.row()));
    }
}

bool RollList::event(QEvent* event) {
    const bool taken = QListView::event(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        MeasureLines();
    }
    return taken;
}

bool RollList::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::Leave) {
        PointFrom({});
    }
    return QListView::viewportEvent(event);
}

void RollList::PointFrom(const QModelIndex& index) {
    const auto piece = lines_->PieceOf(index.row());
    lines_->SetPointed(lines_->RowOf(piece));
    OnPointed(piece);
}

} // namespace tarn
