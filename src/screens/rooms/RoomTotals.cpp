#include "screens/rooms/RoomTotals.h"

#include "base/Words.h"
#include "files/QtText.h"
#include "screens/ControlNames.h"
#include "screens/Controls.h"
#include "screens/Display.h"
#include "screens/Theme.h"

#include <QAbstractTableModel>
#include <QEvent>
#include <QHeaderView>
#include <QScrollBar>

#include <algorithm>
#include <string>
#include <utility>

namespace tarn {

namespace {

using Texts = std::vector<std::string>;

constexpr int MostLinesShown = 13; ///< that it asks room for
constexpr const char* LongFigure = "99,999.99";

} // namespace

class RoomTotals::Model : public QAbstractTableModel {
  public:
    Model(Units shown, QObject* parent)
        : QAbstractTableModel(parent)
        , shown_(shown)
        , captions_(TotalCaptions(shown)) {}

    /// Answers whether there are more or fewer lines than before.
    bool Show(const std::vector<CoveringTotal>& totals) {
        auto lines = TotalLines(totals, shown_);
        if (lines.size() != lines_.size()) {
            beginResetModel();
            lines_ = std::move(lines);
            endResetModel();
            return true;
        }
        if (lines != lines_) {
            lines_ = std::move(lines);
            Q_EMIT dataChanged(index(0, 0), index(rowCount({}) - 1, columnCount({}) - 1));
        }
        return false;
    }

    int rowCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : static_cast<int>(lines_.size());
    }
    int columnCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : static_cast<int>(captions_.size());
    }
    QVariant data(const QModelIndex& index, int role) const override {
        const auto column = static_cast<std::size_t>(index.column());
        const QString text = ToQt(lines_.at(static_cast<std::size_t>(index.row())).at(column));
        switch (role) {
        case Qt::DisplayRole:
            return text;
        case Qt::TextAlignmentRole:
            return AlignmentOf(index.column());
        case Qt::AccessibleTextRole:
            return ToQt(captions_.at(column)) + QLatin1Char(' ') + text;
        default:
            return {};
        }
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        if (orientation == Qt::Horizontal && role == Qt::DisplayRole) {
            return ToQt(captions_.at(static_cast<std::size_t>(section)));
        }
        return role == Qt::TextAlignmentRole ? AlignmentOf(section) : QVariant();
    }

  private:
    static QVariant AlignmentOf(int column) {
        return QVariant((column == 0 ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    }

    Units shown_;
    Texts captions_;
    std::vector<Texts> lines_;
};

RoomTotals::RoomTotals(Units shown)
    : model_(new Model(shown, this)) {
    NameControl(*this, Controls::roomTotals, ToQt(Words("TOTALS BY COVERING")));
    setModel(model_);
    setSelectionMode(QAbstractItemView::NoSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setShowGrid(false);
    setWordWrap(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setHighlightSections(false);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    ensurePolished();
    horizontalHeader()->ensurePolished();
    Fit();
}

void RoomTotals::Show(const std::vector<CoveringTotal>& totals) {
    if (model_->Show(totals)) {
        updateGeometry();
    }
}

void RoomTotals::Fit() {
    width_ = 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
    horizontalHeader()->setMinimumSectionSize(1);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    for (int column = 0; column < model_->columnCount({}); ++column) {
        const QString caption =
            model_->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        const QString sample = QLatin1String(column == 0   ? "CARPET-8"
                                             : column == 1 ? "501"
                                                           : LongFigure);
        const int wider = std::max(horizontalHeader()->fontMetrics().horizontalAdvance(caption),
                                   fontMetrics().horizontalAdvance(sample));
        setColumnWidth(column, wider + 2 * Pixels(Metrics::CellPadding));
        width_ += columnWidth(column);
    }
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + Pixels(Metrics::RowPadding));
    horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    updateGeometry();
}

int RoomTotals::HeightOf(int lines) const {
    return horizontalHeader()->sizeHint().height() +
           lines * verticalHeader()->defaultSectionSize() + 2 * frameWidth();
}

QSize RoomTotals::sizeHint() const {
    const int lines = std::clamp(model_->rowCount({}), 1, MostLinesShown);
    return {minimumSizeHint().width(), HeightOf(lines)};
}

QSize RoomTotals::minimumSizeHint() const {
    return {width_, HeightOf(1)};
}

void RoomTotals::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        Fit();
    }
}

} // namespace tarn
