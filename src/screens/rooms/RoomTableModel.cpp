#include "screens/rooms/RoomTableModel.h"

#include "base/Words.h"
#include "files/QtText.h"
#include "screens/Theme.h"

#include <QTextDocument>

namespace tarn {

namespace {

bool IsNumber(RoomColumn column) {
    return column == RoomColumn::Item || column == RoomColumn::Width ||
           column == RoomColumn::Length || column == RoomColumn::Area;
}

/// What a tool tip shows as it is written.
QString PlainTip(const QString& text) {
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

} // namespace

RoomTableModel::RoomTableModel(const OpenProject& project, QObject* parent)
    : QAbstractTableModel(parent)
    , project_(project)
    , rows_(static_cast<int>(project.Now.Rooms.size()) + 1) {}

void RoomTableModel::ShowTyped(std::size_t room, const std::optional<Room>& typed) {
    const std::size_t before = shown_;
    if (room == before && typed == typed_ && room < project_.Now.Rooms.size()) {
        return;
    }
    shown_ = room;
    typed_ = typed;
    TellRow(before);
    TellRow(room);
}

void RoomTableModel::TellRow(std::size_t row) {
    const int at = static_cast<int>(row);
    if (at < rows_) {
        Q_EMIT dataChanged(index(at, 0), index(at, RoomColumns - 1));
    }
}

void RoomTableModel::NoteRooms() {
    const int rows = static_cast<int>(project_.Now.Rooms.size()) + 1;
    if (rows > rows_) {
        beginInsertRows({}, rows_, rows - 1);
        rows_ = rows;
        endInsertRows();
    } else if (rows < rows_) {
        beginRemoveRows({}, rows, rows_ - 1);
        rows_ = rows;
        endRemoveRows();
    }
    const QModelIndex last = index(rows_ - 1, RoomColumns - 1);
    Q_EMIT dataChanged(index(0, 0), last);
}

int RoomTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int RoomTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : RoomColumns;
}

const Room* RoomTableModel::RoomAt(int row) const {
    const auto at = static_cast<std::size_t>(row);
    if (at == shown_ && typed_) {
        return &*typed_;
    }
    return at < project_.Now.Rooms.size() ? &project_.Now.Rooms[at] : nullptr;
}

QString RoomTableModel::TextAt(int row, RoomColumn column) const {
    const auto place = static_cast<std::size_t>(row);
    if (const Room* room = RoomAt(row)) {
        return ToQt(ListText(column, *room, place, project_.Shown));
    }
    if (column == RoomColumn::Item) {
        return ToQt(ListText(column, Room(), place, project_.Shown));
    }
    return column == RoomColumn::Remark ? ToQt(NewRoomText(project_.Typed.New.has_value()))
                                        : QString();
}

QVariant RoomTableModel::data(const QModelIndex& index, int role) const {
    const auto column = static_cast<RoomColumn>(index.column());
    const auto text = [&] { return TextAt(index.row(), column); };
    switch (role) {
    case Qt::DisplayRole:
        return text();
    case Qt::ToolTipRole:
        return PlainTip(text());
    case Qt::TextAlignmentRole:
        return QVariant((IsNumber(column) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    case Qt::ForegroundRole:
        return RoomAt(index.row()) == nullptr ? QVariant(CurrentColours().MutedText) : QVariant();
    case Qt::AccessibleTextRole: {
        const QString cell = text();
        return ToQt(CaptionOf(column, project_.Shown)) + QLatin1Char(' ') +
               (cell.isEmpty() ? ToQt(Words("none")) : cell);
    }
    default:
        return {};
    }
}

QVariant RoomTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) {
        return {};
    }
    const auto column = static_cast<RoomColumn>(section);
    if (role == Qt::DisplayRole) {
        return ToQt(CaptionOf(column, project_.Shown));
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant((IsNumber(column) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    }
    return {};
}

} // namespace tarn
