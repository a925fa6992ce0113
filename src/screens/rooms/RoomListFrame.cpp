#include "screens/rooms/RoomListFrame.h"

#include "base/Words.h"
#include "files/QtText.h"
#include "screens/Arrangement.h"
#include "screens/ControlNames.h"
#include "screens/Controls.h"
#include "screens/Display.h"
#include "screens/Theme.h"
#include "screens/rooms/RoomPaste.h"
#include "screens/rooms/RoomTable.h"
#include "screens/rooms/RoomTotals.h"

#include <QAction>
#include <QBoxLayout>
#include <QMenu>

#include <algorithm>

namespace tarn {

namespace {

constexpr int LeastRows = 3;
/// Where the list is higher the totals stand below the table, twips.
constexpr double LowHeight = 6000;

} // namespace

RoomListFrame::RoomListFrame(const OpenProject& project)
    : project_(project)
    , table_(new RoomTable(project))
    , totals_(new RoomTotals(project.Shown))
    , layout_(new QBoxLayout(QBoxLayout::TopToBottom, this)) {
    NameControl(*this, Controls::roomList, ToQt(Words("ROOMS")));
    SetPanel(*this);
    SetSpacing(*layout_, Metrics::Spacing);
    layout_->addWidget(table_, 1);
    layout_->addWidget(totals_);
    table_->OnPaste = [this] { OnPaste(); };
    MakeMenu();
}

/// A child of the table that pops up without waiting, so that the screen may close under it.
void RoomListFrame::MakeMenu() {
    auto* menu = new QMenu(table_);
    menu->setObjectName(Controls::roomListMenu);
    const auto add = [this, menu](const char* name, Phrase caption, auto act) {
        QAction* action = menu->addAction(ToQt(caption));
        action->setObjectName(name);
        connect(action, &QAction::triggered, this, act);
    };
    add(Controls::pasteIntoList, PasteRoomsCaption, [this] { OnPaste(); });
    menu->addSeparator();
    for (const RoomListFile& file : RoomListFiles()) {
        add(file.Control, file.Caption, [this, &file] { OnSave(file); });
    }
    table_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(table_, &QWidget::customContextMenuRequested, menu,
            [this, menu](const QPoint& at) { menu->popup(table_->viewport()->mapToGlobal(at)); });
}

void RoomListFrame::Show(std::size_t room, const std::optional<Room>& typed) {
    table_->Show(room, typed);
    totals_->Show(TotalsByCovering(project_.Now.Rooms, room, typed));
}

void RoomListFrame::NoteRooms() {
    table_->NoteRooms();
}

QSize RoomListFrame::LeastSize(bool totalsBeside) const {
    const int frame = 2 * (Pixels(Metrics::Spacing) + frameWidth());
    const int gap = Pixels(Metrics::Spacing);
    const QSize totals = totals_->sizeHint();
    const int rows = table_->HeightOf(LeastRows);
    return totalsBeside ? QSize(table_->LeastWidth() + gap + totals.width() + frame, rows + frame)
                        : QSize(table_->LeastWidth() + frame, rows + gap + totals.height() + frame);
}

int RoomListFrame::WholeRows(int most, bool totalsBeside) const {
    const int none = table_->HeightOf(0);
    const int row = table_->HeightOf(1) - none;
    const int around = LeastSize(totalsBeside).height() - LeastRows * row;
    return around + (most - around) / row * row;
}

std::optional<RoomListPlace> RoomListFrame::PlaceBeside(QSize screen, const QRect& form,
                                                        int under) const {
    const int gap = Pixels(Metrics::Spacing);
    const int frame = 2 * (gap + frameWidth());
    const int right = form.right() + 1 + gap;
    const QSize toTheRight(screen.width() - right - gap, screen.height() - form.top() - gap);
    const int most = table_->MostWidth() + frame;
    const QSize tall = LeastSize(false);
    if (toTheRight.width() >= tall.width() && toTheRight.height() >= tall.height()) {
        const QSize size(std::min(toTheRight.width(), most), WholeRows(toTheRight.height(), false));
        return RoomListPlace{QRect(QPoint(right, form.top()), size), false};
    }
    const int top = under + gap;
    const QSize below(screen.width() - 2 * gap, screen.height() - top - gap);
    const bool isLow = below.height() < std::max(Pixels(LowHeight), tall.height());
    const QSize least = LeastSize(isLow);
    if (below.width() < least.width() || below.height() < least.height()) {
        return std::nullopt;
    }
    const int mostBelow = most + (isLow ? totals_->sizeHint().width() + gap : 0);
    const QSize size(std::min(below.width(), mostBelow), WholeRows(below.height(), isLow));
    return RoomListPlace{QRect(QPoint((screen.width() - size.width()) / 2, top), size), isLow};
}

void RoomListFrame::StandAt(const RoomListPlace& place) {
    layout_->setDirection(place.TotalsBeside ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    setGeometry(place.Area);
}

void RoomListFrame::StandAlone() {
    layout_->setDirection(QBoxLayout::TopToBottom);
}

} // namespace tarn
