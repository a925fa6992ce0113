#include "screens/BoxPlace.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QVariant>
#include <QWidget>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <tuple>

namespace tarn {

namespace {

/// What is left free around the field, for its frame and its caption.
constexpr int Gap = 8;

QRect Within(QRect box, const QRect& screen) {
    box.moveRight(std::min(box.right(), screen.right()));
    box.moveBottom(std::min(box.bottom(), screen.bottom()));
    box.moveLeft(std::max(box.left(), screen.left()));
    box.moveTop(std::max(box.top(), screen.top()));
    return box;
}

long long Covered(const QRect& box, const QRect& field) {
    const QRect common = box.intersected(field);
    return common.isEmpty() ? 0 : static_cast<long long>(common.width()) * common.height();
}

constexpr const char* NoteProperty = "noteOnField";

QRect OnScreen(const QWidget& widget, const QRect& part) {
    const QRect seen = widget.visibleRegion().boundingRect().intersected(part);
    return seen.isEmpty() ? QRect() : QRect(widget.mapToGlobal(seen.topLeft()), seen.size());
}

/// The note on a field, where it says something.
QRect NoteOnScreen(const QWidget& field) {
    const auto* note = field.property(NoteProperty).value<QLabel*>();
    const bool says = note != nullptr && note->isVisible() && !note->text().isEmpty();
    return says ? OnScreen(*note, note->rect()) : QRect();
}

/// The entry of a list that the keys act on, pixels of its viewport.
QRect EntryOf(const QAbstractItemView& list) {
    QRect entry = list.visualRect(list.currentIndex());
    if (!entry.isEmpty() && list.selectionBehavior() == QAbstractItemView::SelectRows) {
        entry.setLeft(0);
        entry.setRight(list.viewport()->width() - 1);
    }
    return entry;
}

} // namespace

QPoint BoxPlace(const QRect& box, const QRect& screen, const QRect& field) {
    if (Covered(box, field) == 0) {
        return box.topLeft();
    }
    const int below = field.bottom() + 1 + Gap;
    const int above = field.top() - Gap - box.height();
    const int right = field.right() + 1 + Gap;
    const int left = field.left() - Gap - box.width();
    const auto movedBy = [&](int across, int down) {
        return Within(box.translated(across, down), screen);
    };
    const std::array<QRect, 4> places{movedBy(0, below - box.top()), movedBy(0, above - box.top()),
                                      movedBy(right - box.left(), 0),
                                      movedBy(left - box.left(), 0)};
    const auto rankOf = [&](const QRect& place) {
        const QPoint way = place.topLeft() - box.topLeft();
        return std::tuple(Covered(place, field), std::abs(way.x()), std::abs(way.y()));
    };
    const auto isBetter = [&](const QRect& a, const QRect& b) { return rankOf(a) < rankOf(b); };
    return std::min_element(places.begin(), places.end(), isBetter)->topLeft();
}

QRect FieldOnScreen(const QWidget& window) {
    const QWidget* focus = window.focusWidget();
    if (focus == nullptr || !focus->isVisible()) {
        return {};
    }
    if (const auto* list = qobject_cast<const QAbstractItemView*>(focus)) {
        const QRect entry = EntryOf(*list);
        return entry.isEmpty() ? QRect() : OnScreen(*list->viewport(), entry);
    }
    const bool isField = qobject_cast<const QLineEdit*>(focus) != nullptr ||
                         qobject_cast<const QComboBox*>(focus) != nullptr ||
                         qobject_cast<const QAbstractSpinBox*>(focus) != nullptr;
    return isField ? OnScreen(*focus, focus->rect()).united(NoteOnScreen(*focus)) : QRect();
}

void SetNoteOn(QWidget& field, QLabel& note) {
    field.setProperty(NoteProperty, QVariant::fromValue(&note));
}

void PlaceBox(QWidget& box, const QWidget& window) {
    // The box has no frame yet: it gets one like the window's.
    const QSize frame = window.frameGeometry().size() - window.size();
    const QPoint place = BoxPlace({box.pos(), box.size() + frame},
                                  window.screen()->availableGeometry(), FieldOnScreen(window));
    if (place != box.pos()) {
        box.move(place);
    }
}

} // namespace tarn
