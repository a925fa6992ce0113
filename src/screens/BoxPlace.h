#pragma once

#include <QPoint>
#include <QRect>

class QLabel;
class QWidget;

namespace tarn {

/// Where a box, its frame included, stands so that it does not cover `field`: where it is, or below
/// or above the field, so that what belongs to it in its row is seen too, else beside it; each time
/// the shortest way that keeps it whole on `screen`. Where no side of the field has room for it,
/// where it covers the least. All of them are in the same coordinates; `field` may be empty.
QPoint BoxPlace(const QRect& box, const QRect& screen, const QRect& field);

/// What a box above the window is about, on the screen: the field that has the focus there, as far
/// as it is seen, with the note on it, or the entry chosen in a list, which is the whole row of a
/// table; nothing for any other control.
QRect FieldOnScreen(const QWidget& window);

/// Let a label be the note on a field: while it says something, boxes about the field leave it free
/// too. It must live as long as the field.
void SetNoteOn(QWidget& field, QLabel& note);

/// Move a box, which is about to be seen above `window`, to its BoxPlace.
void PlaceBox(QWidget& box, const QWidget& window);

} // namespace tarn
