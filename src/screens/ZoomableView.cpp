#include "screens/ZoomableView.h"

#include "screens/Display.h"
#include "screens/Guard.h"

#include <QHelpEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace tarn {

namespace {

constexpr double ZoomStep = 1.25;  ///< for a key or one notch of the wheel
constexpr double WheelNotch = 120; ///< in the units of a wheel event
constexpr double ScrollStep = 600; ///< twips

} // namespace

ZoomableView::ZoomableView(QWidget* parent, Dialogs& boxes, Phrase failure)
    : QAbstractScrollArea(parent)
    , boxes_(boxes)
    , failure_(failure)
    , picture_(
          *viewport(),
          [this](QPainter& painter, const PictureAt& at, const QRect& part) {
              PaintPart(painter, at, part);
          },
          [this] { return Extent(); }) {
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    // It paints its own paper, so that scrolling moves what is there and paints only the rest.
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    // So that a drag whose release went elsewhere ends with the next move.
    viewport()->setMouseTracking(true);
}

bool ZoomableView::Guard(const std::function<void()>& body) const {
    return Guarded(boxes_, failure_, body);
}

void ZoomableView::SetZoom(double zoom) {
    zoom_ = zoom;
    Arrange();
    viewport()->update();
}

void ZoomableView::ZoomAbout(QPointF position, double zoom) {
    const PictureAt before = Place();
    const QPointF kept = (position - before.Origin) / before.Zoom;
    ChangeZoom(zoom);
    ScrollTo(kept * Place().Zoom + QPointF(1, 1) * Margin() - position);
}

bool ZoomableView::PressZoomKey(int key) {
    const QPointF middle = QRectF(viewport()->rect()).center();
    switch (key) {
    case Qt::Key_Plus:
    case Qt::Key_Equal: // + without Shift on many keyboards
        ZoomAbout(middle, zoom_ * ZoomStep);
        return true;
    case Qt::Key_Minus:
        ZoomAbout(middle, zoom_ / ZoomStep);
        return true;
    case Qt::Key_0:
        ZoomAbout(middle, 1);
        return true;
    default:
        return false;
    }
}

QPoint ZoomableView::Scrolled() const {
    return {horizontalScrollBar()->value(), verticalScrollBar()->value()};
}

void ZoomableView::ScrollTo(QPointF scrolled) {
    horizontalScrollBar()->setValue(static_cast<int>(std::lround(scrolled.x())));
    verticalScrollBar()->setValue(static_cast<int>(std::lround(scrolled.y())));
}

void ZoomableView::SetScrolling(QSize beyond, QSize page) {
    horizontalScrollBar()->setRange(0, std::max(0, beyond.width()));
    verticalScrollBar()->setRange(0, std::max(0, beyond.height()));
    horizontalScrollBar()->setPageStep(page.width());
    verticalScrollBar()->setPageStep(page.height());
    horizontalScrollBar()->setSingleStep(Pixels(ScrollStep));
    verticalScrollBar()->setSingleStep(Pixels(ScrollStep));
}

bool ZoomableView::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        Guard([&] { ShowTip(help->pos(), help->globalPos()); });
        return true;
    }
    return QAbstractScrollArea::viewportEvent(event);
}

void ZoomableView::wheelEvent(QWheelEvent* event) {
    Guard([&] {
        if (!event->modifiers().testFlag(Qt::ControlModifier)) {
            QAbstractScrollArea::wheelEvent(event);
            return;
        }
        event->accept();
        const double notches = event->angleDelta().y() / WheelNotch;
        ZoomAbout(event->position(), zoom_ * std::pow(ZoomStep, notches));
    });
}

void ZoomableView::BeginDrag(const QMouseEvent& press) {
    if (press.button() == Qt::LeftButton || press.button() == Qt::MiddleButton) {
        dragging_ = true;
        dragFrom_ = press.pos();
        dragScrolled_ = Scrolled();
    }
}

void ZoomableView::mouseMoveEvent(QMouseEvent* event) {
    Guard([&] {
        EndDragUnlessHeld(event->buttons());
        if (dragging_) {
            ScrollTo(dragScrolled_ + dragFrom_ - event->pos());
        } else {
            PointAt(event->position());
        }
    });
}

void ZoomableView::mouseReleaseEvent(QMouseEvent* event) {
    Guard([&] { EndDragUnlessHeld(event->buttons()); });
}

void ZoomableView::EndDragUnlessHeld(Qt::MouseButtons held) {
    if (dragging_ && held == Qt::NoButton) {
        dragging_ = false;
        UpdatePointer();
    }
}

} // namespace tarn
