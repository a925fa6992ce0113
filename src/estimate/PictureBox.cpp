#include "estimate/PictureBox.h"

#include "app/Controls.h"
#include "app/Display.h"
#include "app/Guard.h"
#include "app/QtText.h"
#include "estimate/PaintDrawing.h"

#include <QHelpEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace tarn {

namespace {

constexpr double ReadableZoom = 0.75; ///< 9 point type is then as large as 7 point type
constexpr double LargestFit = 2;      ///< a small drawing on a large display grows no further
constexpr double LeastOwnZoom = 0.1;  ///< less only to fit a drawing
constexpr double GreatestZoom = 8;
constexpr double ZoomStep = 1.25;      ///< for a key or one notch of the wheel
constexpr double WheelNotch = 120;     ///< in the units of a wheel event
constexpr double MostPixels = 1e9;     ///< scroll bars count in int
constexpr double RoundingError = 1e-3; ///< pixels
constexpr double ScrollStep = 600;     ///< twips

/// What is written in a picture, for those who cannot see it.
QString WrittenIn(const Picture& picture) {
    QString text;
    for (const DrawingStep& step : picture.Steps()) {
        if (step.What == DrawingStep::Kind::Text) {
            text += (text.isEmpty() ? QString() : QStringLiteral("\n")) + ToQt(step.Text);
        }
    }
    return text;
}

} // namespace

PictureBox::PictureBox(QWidget* parent, Dialogs& boxes)
    : QAbstractScrollArea(parent)
    , boxes_(boxes) {
    NameControl(*this, QStringLiteral("Picture1"), QStringLiteral("Layout drawing"));
    setToolTip(ZoomHint());
    setFocusPolicy(Qt::StrongFocus);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
    // It paints its own paper, so that scrolling moves what is there and paints only the rest.
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    hide();
}

QString PictureBox::ZoomHint() {
    return QStringLiteral("Zoom: + and \u2212, or Ctrl and wheel.  0: actual size.  "
                          "Double click: everything.");
}

void PictureBox::ShowChanged() {
    setVisible(picture_.Visible);
    setAccessibleDescription(WrittenIn(picture_));
    Arrange();
    viewport()->update();
}

void PictureBox::ShowFromStart() {
    fitted_ = true;
    zoom_ = FirstZoom();
    ShowChanged();
    horizontalScrollBar()->setValue(0);
    verticalScrollBar()->setValue(0);
}

void PictureBox::SetWaiting(bool waiting) {
    waiting_ = waiting;
    UpdatePointer();
}

QPointF PictureBox::ToTwips(QPointF position) const {
    const QPointF scrolled(horizontalScrollBar()->value(), verticalScrollBar()->value());
    return (position + scrolled) / PixelsPerTwip();
}

QPointF PictureBox::ToViewport(QPointF twips) const {
    const QPointF scrolled(horizontalScrollBar()->value(), verticalScrollBar()->value());
    return twips * PixelsPerTwip() - scrolled;
}

bool PictureBox::Guard(const std::function<void()>& body) const {
    return Guarded(boxes_, "The layout could not be shown.", body);
}

double PictureBox::PixelsPerTwip() const {
    return zoom_ * PixelsExact(1);
}

QSizeF PictureBox::DrawnTwips() const {
    return {picture_.FarthestX() + DrawingMargin, picture_.FarthestY() + DrawingMargin};
}

QSize PictureBox::Drawn() const {
    const QSizeF size = DrawnTwips() * PixelsPerTwip();
    const auto pixels = [](double length) {
        return static_cast<int>(std::ceil(std::min(length, MostPixels) - RoundingError));
    };
    return {pixels(size.width()), pixels(size.height())};
}

double PictureBox::FittingZoom() const {
    const QSizeF drawn = DrawnTwips() * PixelsExact(1);
    const QSizeF room = maximumViewportSize();
    const double fitting = std::min(room.width() / drawn.width(), room.height() / drawn.height());
    return std::min(fitting, LargestFit);
}

double PictureBox::FirstZoom() const {
    const double whole = FittingZoom();
    if (whole >= ReadableZoom) {
        return whole;
    }
    const int bar = verticalScrollBar()->sizeHint().width();
    const double across =
        (maximumViewportSize().width() - bar) / (DrawnTwips().width() * PixelsExact(1));
    return across >= ReadableZoom ? std::min(across, 1.0) : 1;
}

double PictureBox::LeastZoom() const {
    return std::min(LeastOwnZoom, FittingZoom());
}

void PictureBox::Fit(double zoom) {
    zoom_ = zoom;
    Arrange();
    viewport()->update();
}

void PictureBox::ZoomAbout(QPointF position, double zoom) {
    const QSizeF drawn = DrawnTwips() * PixelsExact(1);
    const double most =
        std::min(GreatestZoom, MostPixels / std::max(drawn.width(), drawn.height()));
    const QPointF kept = ToTwips(position);
    fitted_ = false;
    Fit(std::clamp(zoom, LeastZoom(), std::max(most, LeastZoom())));
    const QPointF scrolled = kept * PixelsPerTwip() - position;
    horizontalScrollBar()->setValue(static_cast<int>(std::lround(scrolled.x())));
    verticalScrollBar()->setValue(static_cast<int>(std::lround(scrolled.y())));
}

void PictureBox::ZoomAboutMiddle(double zoom) {
    ZoomAbout(QRectF(viewport()->rect()).center(), zoom);
}

void PictureBox::Arrange() {
    const QSize drawn = Drawn();
    const QSize most = maximumViewportSize();
    const bool fits = drawn.width() <= most.width() && drawn.height() <= most.height();
    const QSize room = fits ? most : viewport()->size();
    horizontalScrollBar()->setRange(0, std::max(0, drawn.width() - room.width()));
    verticalScrollBar()->setRange(0, std::max(0, drawn.height() - room.height()));
    horizontalScrollBar()->setPageStep(room.width());
    verticalScrollBar()->setPageStep(room.height());
    horizontalScrollBar()->setSingleStep(Pixels(ScrollStep));
    verticalScrollBar()->setSingleStep(Pixels(ScrollStep));
    UpdatePointer();
}

bool PictureBox::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        Guard([&] { ShowTip(help->pos(), help->globalPos()); });
        return true;
    }
    return QAbstractScrollArea::viewportEvent(event);
}

void PictureBox::ShowTip(QPoint position, QPoint global) {
    const QPointF twips = ToTwips(position);
    QString tip = ZoomHint();
    for (const DrawingStep& step : picture_.Steps()) {
        const QRectF box(QPointF(step.X1, step.Y1), QPointF(step.X2, step.Y2));
        if (!step.Tip.empty() && box.contains(twips)) {
            tip = ToQt(step.Tip);
        }
    }
    QToolTip::showText(global, tip, viewport());
}

void PictureBox::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    painter.fillRect(event->rect(), Qt::white);
    painter.setClipRect(event->rect());
    painter.translate(-horizontalScrollBar()->value(), -verticalScrollBar()->value());
    painter.scale(PixelsPerTwip(), PixelsPerTwip());
    PaintDrawing(painter, picture_);
}

void PictureBox::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    Guard([this] {
        if (fitted_) {
            Fit(FirstZoom());
        }
        Arrange();
    });
}

void PictureBox::scrollContentsBy(int dx, int dy) {
    viewport()->scroll(dx, dy);
}

void PictureBox::wheelEvent(QWheelEvent* event) {
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    event->accept();
    Guard([&] {
        const double notches = event->angleDelta().y() / WheelNotch;
        ZoomAbout(event->position(), zoom_ * std::pow(ZoomStep, notches));
    });
}

bool PictureBox::PressZoomKey(int key) {
    switch (key) {
    case Qt::Key_Plus:
    case Qt::Key_Equal: // + without Shift on many keyboards
        ZoomAboutMiddle(zoom_ * ZoomStep);
        return true;
    case Qt::Key_Minus:
        ZoomAboutMiddle(zoom_ / ZoomStep);
        return true;
    case Qt::Key_0:
        ZoomAboutMiddle(1);
        return true;
    default:
        return false;
    }
}

bool PictureBox::PressScrollKey(int key) {
    if (key != Qt::Key_Home && key != Qt::Key_End) {
        return false;
    }
    verticalScrollBar()->triggerAction(key == Qt::Key_Home ? QScrollBar::SliderToMinimum
                                                           : QScrollBar::SliderToMaximum);
    return true;
}

void PictureBox::keyPressEvent(QKeyEvent* event) {
    bool pressed = false;
    Guard([&] {
        const bool plain = !event->modifiers().testFlag(Qt::AltModifier);
        pressed = plain && (PressZoomKey(event->key()) || PressScrollKey(event->key()));
    });
    if (!pressed) {
        QAbstractScrollArea::keyPressEvent(event);
    }
}

void PictureBox::mousePressEvent(QMouseEvent* event) {
    Guard([&] {
        const QPointF twips = ToTwips(event->position());
        taken_ = MouseDown(twips.x(), twips.y());
        const bool drags = event->button() == Qt::LeftButton || event->button() == Qt::MiddleButton;
        if (!taken_ && drags) {
            dragging_ = true;
            dragFrom_ = event->pos();
            dragScrolled_ = QPoint(horizontalScrollBar()->value(), verticalScrollBar()->value());
        }
        UpdatePointer();
    });
}

void PictureBox::mouseMoveEvent(QMouseEvent* event) {
    if (dragging_) {
        Guard([&] {
            const QPoint scrolled = dragScrolled_ + dragFrom_ - event->pos();
            horizontalScrollBar()->setValue(scrolled.x());
            verticalScrollBar()->setValue(scrolled.y());
        });
    }
}

void PictureBox::mouseReleaseEvent([[maybe_unused]] QMouseEvent* event) {
    dragging_ = false;
    UpdatePointer();
}

/// A double click whose first press was taken is no double click on the paper.
void PictureBox::mouseDoubleClickEvent(QMouseEvent* event) {
    if (taken_ || event->button() != Qt::LeftButton) {
        mousePressEvent(event);
        return;
    }
    Guard([this] {
        fitted_ = false;
        Fit(FittingZoom());
    });
}

void PictureBox::UpdatePointer() {
    const bool scrolls = horizontalScrollBar()->maximum() > 0 || verticalScrollBar()->maximum() > 0;
    if (waiting_) {
        viewport()->setCursor(Qt::CrossCursor);
    } else if (dragging_) {
        viewport()->setCursor(Qt::ClosedHandCursor);
    } else if (scrolls) {
        viewport()->setCursor(Qt::OpenHandCursor);
    } else {
        viewport()->unsetCursor();
    }
}

} // namespace tarn
