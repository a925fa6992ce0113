#include "screens/roll/RollView.h"

#include "base/Words.h"
#include "files/QtText.h"
#include "screens/ControlNames.h"
#include "screens/Controls.h"
#include "screens/Display.h"
#include "screens/Guard.h"
#include "screens/roll/RollAccess.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarn {

namespace {

constexpr double ViewMargin = 120; ///< twips around the roll
constexpr double GreatestZoom = 60;
constexpr double ZoomStep = 1.25;
constexpr double WheelNotch = 120;  ///< in the units of a wheel event
constexpr double MostPixels = 1e9;  ///< scroll bars count in int
constexpr double ScrollStep = 600;  ///< twips
constexpr double LeastWidth = 3600; ///< twips
constexpr double LeastHeight = 2400;

} // namespace

RollView::RollView(QWidget* parent, Dialogs& boxes)
    : QAbstractScrollArea(parent)
    , boxes_(boxes)
    , picture_(
          *viewport(),
          [this](QPainter& painter, const PictureAt& at, const QRect& part) {
              painter_->Paint(painter, spread_, at, part);
          },
          [this] { return QSizeF(spread_.Width(), spread_.Height()); }) {
    painter_.emplace(chart_, font());
    InstallRollAccess();
    NameControl(*this, Controls::rollView, ToQt(Words("Whole roll")));
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMinimumSize(Pixels(LeastWidth), Pixels(LeastHeight));
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    viewport()->setMouseTracking(true);
}

RollView::~RollView() = default;

void RollView::Show(RollChart chart) {
    chart_ = std::move(chart);
    current_.reset();
    pointed_.reset();
    zoom_ = 1;
    ForgetPieces(*this);
    setAccessibleDescription(ToQt(chart_.Description));
    Spread();
    horizontalScrollBar()->setValue(0);
    verticalScrollBar()->setValue(0);
}

QSize RollView::sizeHint() const {
    return {Pixels(2 * LeastWidth), Pixels(2 * LeastHeight)};
}

bool RollView::Guard(const std::function<void()>& body) const {
    return Guarded(boxes_, Words("The roll could not be shown."), body);
}

/// Lay the roll out anew for the size of the view.
void RollView::Spread() {
    const double margins = 2 * PixelsExact(ViewMargin);
    const QSizeF room = QSizeF(maximumViewportSize()) - QSizeF(margins, margins);
    spread_ = painter_->SpreadOn(room.expandedTo(QSizeF(1, 1)));
    Arrange();
    picture_.Forget();
    viewport()->update();
}

void RollView::Arrange() {
    const QSizeF size =
        spread_.Rows.empty() ? QSizeF() : QSizeF(spread_.Width(), spread_.Height()) * zoom_;
    const double margins = zoom_ > 1 ? 2 * PixelsExact(ViewMargin) : 0;
    const QSize room = maximumViewportSize();
    const auto range = [&](double length, int most) {
        const double over = length + margins - most;
        return static_cast<int>(std::ceil(std::clamp(over, 0.0, MostPixels)));
    };
    const bool larger = zoom_ > 1;
    horizontalScrollBar()->setRange(0, larger ? range(size.width(), room.width()) : 0);
    verticalScrollBar()->setRange(0, larger ? range(size.height(), room.height()) : 0);
    horizontalScrollBar()->setPageStep(room.width());
    verticalScrollBar()->setPageStep(room.height());
    horizontalScrollBar()->setSingleStep(Pixels(ScrollStep));
    verticalScrollBar()->setSingleStep(Pixels(ScrollStep));
}

/// What is smaller than the view stands in its middle.
PictureAt RollView::Place() const {
    const QSizeF size = QSizeF(spread_.Width(), spread_.Height()) * zoom_;
    const double margin = PixelsExact(ViewMargin);
    const auto origin = [&](double length, int room, int scrolled) {
        return std::round(std::max(margin, (room - length) / 2)) - scrolled;
    };
    return {zoom_,
            {origin(size.width(), viewport()->width(), horizontalScrollBar()->value()),
             origin(size.height(), viewport()->height(), verticalScrollBar()->value())}};
}

void RollView::ZoomAbout(QPointF position, double zoom) {
    const PictureAt before = Place();
    const QPointF kept = (position - before.Origin) / before.Zoom;
    zoom_ = std::clamp(zoom, 1.0, GreatestZoom);
    Arrange();
    const QPointF scrolled = kept * zoom_ + QPointF(1, 1) * PixelsExact(ViewMargin) - position;
    horizontalScrollBar()->setValue(static_cast<int>(std::lround(scrolled.x())));
    verticalScrollBar()->setValue(static_cast<int>(std::lround(scrolled.y())));
    viewport()->update();
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
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        Guard([&] { ShowTip(help->pos(), help->globalPos()); });
        return true;
    }
    if (event->type() == QEvent::Leave) {
        Guard([this] { Point(std::nullopt); });
    }
    return QAbstractScrollArea::viewportEvent(event);
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
    picture_.Paint(painter, at);
    for (const auto& piece : {current_, pointed_}) {
        if (piece) {
            painter_->PaintMark(painter, spread_, at, *piece);
        }
    }
}

void RollView::scrollContentsBy(int /*dx*/, int /*dy*/) {
    viewport()->update();
}

void RollView::wheelEvent(QWheelEvent* event) {
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

bool RollView::PressZoomKey(int key) {
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
        if (event->button() != Qt::LeftButton && event->button() != Qt::MiddleButton) {
            return;
        }
        if (event->button() == Qt::LeftButton) {
            Mark(PieceAt(event->position())); // and the paper stays under the pointer
            OnCurrent(current_);
        }
        dragging_ = true;
        dragFrom_ = event->pos();
        dragScrolled_ = QPoint(horizontalScrollBar()->value(), verticalScrollBar()->value());
    });
}

void RollView::mouseMoveEvent(QMouseEvent* event) {
    Guard([&] {
        dragging_ = dragging_ && event->buttons() != Qt::NoButton;
        if (dragging_) {
            const QPoint scrolled = dragScrolled_ + dragFrom_ - event->pos();
            horizontalScrollBar()->setValue(scrolled.x());
            verticalScrollBar()->setValue(scrolled.y());
        } else {
            Point(PieceAt(event->position()));
        }
    });
}

void RollView::mouseReleaseEvent(QMouseEvent* event) {
    dragging_ = dragging_ && event->buttons() != Qt::NoButton;
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
