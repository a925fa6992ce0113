#include "screens/roll/RollView.h"

#include "base/Words.h"
#include "files/QtText.h"
#include "screens/ControlNames.h"
#include "screens/Controls.h"
#include "screens/Display.h"
#include "screens/roll/RollAccess.h"

#include <QAccessible>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarn {

namespace {

constexpr double ViewMargin = 120; ///< twips around the roll
constexpr double GreatestZoom = 60;
constexpr double LeastWidth = 3600; ///< twips
constexpr double LeastHeight = 2400;

} // namespace

RollView::RollView(QWidget* parent, Dialogs& boxes)
    : ZoomableView(parent, boxes, Words("The roll could not be shown.")) {
    painter_.emplace(chart_, font());
    InstallRollAccess();
    NameControl(*this, Controls::rollView, ToQt(Words("Whole roll")));
    setMinimumSize(Pixels(LeastWidth), Pixels(LeastHeight));
}

RollView::~RollView() = default;

void RollView::Show(RollChart chart) {
    chart_ = std::move(chart);
    current_.reset();
    pointed_.reset();
    ForgetPieces(*this);
    setAccessibleDescription(ToQt(chart_.Description));
    SetZoom(1);
    Spread();
    ScrollTo({0, 0});
}

QSize RollView::sizeHint() const {
    return {Pixels(2 * LeastWidth), Pixels(2 * LeastHeight)};
}

/// Lay the roll out anew for the size of the view.
void RollView::Spread() {
    const double margins = 2 * Margin();
    const QSizeF room = QSizeF(maximumViewportSize()) - QSizeF(margins, margins);
    spread_ = painter_->SpreadOn(room.expandedTo(QSizeF(1, 1)));
    Arrange();
    Picture().Forget();
    viewport()->update();
}

void RollView::Arrange() {
    const QSize room = maximumViewportSize();
    QSize beyond(0, 0);
    if (Zoom() > 1) {
        const QSizeF size = spread_.Rows.empty() ? QSizeF() : Extent() * Zoom();
        const auto range = [this](double length, int most) {
            const double over = length + 2 * Margin() - most;
            return static_cast<int>(std::ceil(std::clamp(over, 0.0, MostPixels)));
        };
        beyond = {range(size.width(), room.width()), range(size.height(), room.height())};
    }
    SetScrolling(beyond, room);
}

/// What is smaller than the view stands in its middle.
PictureAt RollView::Place() const {
    const QSizeF size = Extent() * Zoom();
    const auto origin = [this](double length, int room, int scrolled) {
        return std::round(std::max(Margin(), (room - length) / 2)) - scrolled;
    };
    return {Zoom(),
            {origin(size.width(), viewport()->width(), Scrolled().x()),
             origin(size.height(), viewport()->height(), Scrolled().y())}};
}

QSizeF RollView::Extent() const {
    return {spread_.Width(), spread_.Height()};
}

double RollView::Margin() const {
    return PixelsExact(ViewMargin);
}

void RollView::PaintPart(QPainter& painter, const PictureAt& at, const QRect& part) const {
    painter_->Paint(painter, spread_, at, part);
}

void RollView::ChangeZoom(double zoom) {
    SetZoom(std::clamp(zoom, 1.0, GreatestZoom));
}

std::optional<std::size_t> RollView::PieceAt(QPointF position) const {
    if (spread_.Rows.empty()) {
        return std::nullopt;
    }
    const PictureAt at = Place();
    for (std::size_t i = 0; i < chart_.Pieces.size(); ++i) {
        for (const QRectF& box : RollPainter::BoxesOf(chart_.Pieces[i], spread_, at)) {
            if (box.contains(position)) {
                return i;
            }
        }
    }
    return std::nullopt;
}

QRect RollView::BoxOf(std::size_t piece) const {
    QRectF largest;
    for (const QRectF& box : RollPainter::BoxesOf(chart_.Pieces.at(piece), spread_, Place())) {
        if (box.width() * box.height() > largest.width() * largest.height()) {
            largest = box;
        }
    }
    return largest.toAlignedRect();
}

void RollView::SetCurrent(std::optional<std::size_t> piece) {
    Mark(piece);
    if (piece) {
        BringIntoView(*piece);
    }
}

void RollView::Mark(std::optional<std::size_t> piece) {
    if (piece != current_) {
        current_ = piece;
        TellFocus();
        viewport()->update();
    }
}

void RollView::SetPointed(std::optional<std::size_t> piece) {
    if (piece != pointed_) {
        pointed_ = piece;
        viewport()->update();
    }
}

void RollView::Choose(std::optional<std::size_t> piece) {
    SetCurrent(piece);
    OnCurrent(piece);
}

void RollView::Point(std::optional<std::size_t> piece) {
    if (piece != pointed_) {
        SetPointed(piece);
        OnPointed(piece);
    }
}

void RollView::PointAt(QPointF position) {
    Point(PieceAt(position));
}

void RollView::BringIntoView(std::size_t piece) {
    const QRect box = BoxOf(piece);
    const auto bring = [](QScrollBar& bar, int from, int to, int room) {
        if (from < 0 || to > room) {
            bar.setValue(bar.value() + (from + to - room) / 2);
        }
    };
    bring(*horizontalScrollBar(), box.left(), box.right(), viewport()->width());
    bring(*verticalScrollBar(), box.top(), box.bottom(), viewport()->height());
}

/// To those who cannot see the mark.
void RollView::TellFocus() {
    if (current_ && hasFocus()) {
        QAccessibleEvent focused(this, QAccessible::Focus);
        focused.setChild(static_cast<int>(*current_));
        QAccessible::updateAccessibility(&focused);
    }
}

bool RollView::event(QEvent* event) {
    const bool taken = QAbstractScrollArea::event(event);
    switch (event->type()) {
    case QEvent::Resize:
    case QEvent::StyleChange:
    case QEvent::PaletteChange:
    case QEvent::FontChange:
        Guard([&] {
            if (event->type() != QEvent::Resize) {
                painter_.emplace(chart_, font());
            }
            Spread();
        });
        break;
    default:
        break;
    }
    return taken;
}

bool RollView::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::Leave) {
        Guard([this] { Point(std::nullopt); });
    }
    return ZoomableView::viewportEvent(event);
}

void RollView::ShowTip(QPoint position, QPoint global) {
    const auto piece = PieceAt(position);
    if (!piece) {
        QToolTip::hideText();
        return;
    }
    const QString tip = ToQt(chart_.Pieces[*piece].Description);
    QToolTip::showText(global, tip.toHtmlEscaped(), viewport(), BoxOf(*piece));
}

void RollView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(viewport());
    const PictureAt at = spread_.Rows.empty() ? PictureAt{} : Place();
    Picture().Paint(painter, at);
    for (const auto& piece : {current_, pointed_}) {
        if (piece) {
            painter_->PaintMark(painter, spread_, at, *piece);
        }
    }
}

void RollView::scrollContentsBy(int /*dx*/, int /*dy*/) {
    viewport()->update();
}

/// In the order of the list.
bool RollView::PressWalkKey(int key) {
    if (chart_.Pieces.empty()) {
        return false;
    }
    const std::size_t last = chart_.Pieces.size() - 1;
    switch (key) {
    case Qt::Key_Down:
    case Qt::Key_Right:
        Choose(current_ ? std::min(*current_ + 1, last) : 0);
        return true;
    case Qt::Key_Up:
    case Qt::Key_Left:
        Choose(current_ && *current_ > 0 ? *current_ - 1 : 0);
        return true;
    case Qt::Key_Home:
        Choose(0);
        return true;
    case Qt::Key_End:
        Choose(last);
        return true;
    default:
        return false;
    }
}

void RollView::keyPressEvent(QKeyEvent* event) {
    Guard([&] {
        const auto others = Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier;
        const bool plain = (event->modifiers() & others) == 0;
        if (!plain || (!PressZoomKey(event->key()) && !PressWalkKey(event->key()))) {
            QAbstractScrollArea::keyPressEvent(event);
        }
    });
}

void RollView::mousePressEvent(QMouseEvent* event) {
    Guard([&] {
        if (event->button() == Qt::LeftButton) {
            Mark(PieceAt(event->position())); // and the paper stays under the pointer
            OnCurrent(current_);
        }
        BeginDrag(*event);
    });
}

void RollView::mouseDoubleClickEvent(QMouseEvent* event) {
    Guard([&] {
        if (event->button() == Qt::LeftButton) {
            ZoomAbout(event->position(), 1);
        }
    });
}

void RollView::focusInEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusInEvent(event);
    TellFocus();
}

} // namespace tarn
