#include "screens/estimate/PictureBox.h"

#include "base/Words.h"
#include "files/QtText.h"
#include "paper/PaintDrawing.h"
#include "screens/Arrangement.h"
#include "screens/ControlNames.h"
#include "screens/Controls.h"
#include "screens/Display.h"
#include "screens/PictureAccess.h"

#include <QContextMenuEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarn {

namespace {

constexpr double ReadableZoom = 0.75; ///< 9 point type is then as large as 7 point type
constexpr double LargestFit = 2;      ///< a small drawing on a large display grows no further
constexpr double LeastOwnZoom = 0.1;  ///< less only to fit a drawing
constexpr double GreatestZoom = 8;
constexpr double RoundingError = 1e-3;  ///< pixels
constexpr std::size_t ManySteps = 1000; ///< more of them are not painted anew for each movement
constexpr double KeyPressInset = 100;   ///< twips from the visible top left

/// What is written in a drawing, for those who cannot see it.
QString WrittenIn(const Drawing& drawing) {
    QString text;
    for (const DrawingStep& step : drawing.Steps()) {
        if (step.What == DrawingStep::Kind::Text) {
            text += (text.isEmpty() ? QString() : QStringLiteral("\n")) + ToQt(step.Text);
        }
    }
    return text;
}

} // namespace

PictureBox::PictureBox(QWidget* parent, Dialogs& boxes)
    : ZoomableView(parent, boxes, Words("The layout could not be shown.")) {
    TellAsPicture(*this); // before it is named, which is told already
    NameControl(*this, Controls::layoutPicture, ToQt(Words("Layout drawing")));
    setToolTip(ZoomHint());
    KeepRoom(*this);
    hide();
}

QString PictureBox::ZoomHint() {
    return ToQt(Words("Zoom: + and \u2212, or Ctrl and wheel.  0: actual size.  "
                      "Double click: everything."));
}

void PictureBox::ShowChanged(Drawing drawing) {
    drawing_ = std::move(drawing);
    ShowDrawing();
}

void PictureBox::ShowFromStart(Drawing drawing) {
    drawing_ = std::move(drawing);
    fitted_ = true;
    FitFirst();
    ShowDrawing();
    ScrollTo({0, 0});
}

void PictureBox::ShowDrawing() {
    Picture().Forget();
    setVisible(drawing_.Visible);
    setAccessibleDescription(WrittenIn(drawing_));
    Arrange();
    viewport()->update();
}

void PictureBox::SetWaiting(bool waiting) {
    waiting_ = waiting;
    UpdatePointer();
}

QPointF PictureBox::ToTwips(QPointF position) const {
    return (position + Scrolled()) / PixelsPerTwip();
}

QPointF PictureBox::ToViewport(QPointF twips) const {
    return twips * PixelsPerTwip() - Scrolled();
}

double PictureBox::PixelsPerTwip() const {
    return Zoom() * PixelsExact(1);
}

QSizeF PictureBox::Extent() const {
    return {drawing_.FarthestX() + DrawingMargin, drawing_.FarthestY() + DrawingMargin};
}

QSize PictureBox::DrawnPixels() const {
    const QSizeF size = Extent() * PixelsPerTwip();
    const auto pixels = [](double length) {
        return static_cast<int>(std::ceil(std::min(length, MostPixels) - RoundingError));
    };
    return {pixels(size.width()), pixels(size.height())};
}

double PictureBox::FittingZoom() const {
    const QSizeF drawn = Extent() * PixelsExact(1);
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
        (maximumViewportSize().width() - bar) / (Extent().width() * PixelsExact(1));
    return across >= ReadableZoom ? std::min(across, 1.0) : 1;
}

double PictureBox::LeastZoom() const {
    return std::min(LeastOwnZoom, FittingZoom());
}

void PictureBox::FitFirst() {
    fittedTo_ = maximumViewportSize();
    SetZoom(FirstZoom());
}

void PictureBox::ChangeZoom(double zoom) {
    const QSizeF drawn = Extent() * PixelsExact(1);
    const double most =
        std::min(GreatestZoom, MostPixels / std::max(drawn.width(), drawn.height()));
    fitted_ = false;
    SetZoom(std::clamp(zoom, LeastZoom(), std::max(most, LeastZoom())));
}

/// What the scroll bars that such a drawing needs leave of the box. The viewport itself follows
/// only later, when the bars were shown or hidden.
QSize PictureBox::RoomFor(QSize drawn) const {
    const QSize most = maximumViewportSize();
    const int besideBar = most.width() - verticalScrollBar()->sizeHint().width();
    const int aboveBar = most.height() - horizontalScrollBar()->sizeHint().height();
    const bool wide = drawn.width() > most.width();
    const bool high = drawn.height() > most.height();
    const bool across = wide || (high && drawn.width() > besideBar);
    const bool down = high || (wide && drawn.height() > aboveBar);
    return {down ? besideBar : most.width(), across ? aboveBar : most.height()};
}

void PictureBox::Arrange() {
    const QSize drawn = DrawnPixels();
    const QSize room = RoomFor(drawn);
    SetScrolling(drawn - room, room);
    UpdatePointer();
}

/// The box's own size is what counts: a scroll bar that comes with the drawing's growth must not
/// change the zoom.
bool PictureBox::event(QEvent* event) {
    const bool taken = QAbstractScrollArea::event(event);
    if (event->type() == QEvent::Resize || event->type() == QEvent::StyleChange) {
        Guard([this] { FollowSize(); });
    }
    return taken;
}

void PictureBox::FollowSize() {
    if (fitted_ && fittedTo_ != maximumViewportSize()) {
        FitFirst();
    }
    Arrange();
}

/// A piece's tip goes when the pointer leaves the piece.
void PictureBox::ShowTip(QPoint position, QPoint global) {
    const QPointF twips = ToTwips(position);
    QString tip = ZoomHint();
    QRect shownFor;
    for (const DrawingStep& step : drawing_.Steps()) {
        const QRectF box(QPointF(step.X1, step.Y1), QPointF(step.X2, step.Y2));
        if (!step.Tip.empty() && box.contains(twips)) {
            tip = ToQt(step.Tip);
            shownFor = QRectF(ToViewport(box.topLeft()), ToViewport(box.bottomRight()))
                           .intersected(viewport()->rect())
                           .toAlignedRect();
        }
    }
    QToolTip::showText(global, tip, viewport(), shownFor);
}

bool PictureBox::HasManySteps() const {
    return drawing_.Steps().size() > ManySteps;
}

PictureAt PictureBox::Place() const {
    return {PixelsPerTwip(), -QPointF(Scrolled())};
}

/// The paper alone where the part is empty.
void PictureBox::PaintPart(QPainter& painter, const PictureAt& at, const QRect& part) const {
    painter.fillRect(part.isEmpty() ? viewport()->rect() : part, Qt::white);
    if (!part.isEmpty()) {
        painter.setClipRect(part);
        painter.translate(at.Origin);
        painter.scale(at.Zoom, at.Zoom);
        PaintDrawing(painter, drawing_);
    }
}

void PictureBox::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    if (HasManySteps()) {
        Picture().Paint(painter, Place());
    } else {
        PaintPart(painter, Place(), event->rect());
    }
}

void PictureBox::scrollContentsBy(int dx, int dy) {
    if (HasManySteps()) {
        viewport()->update();
    } else {
        viewport()->scroll(dx, dy);
    }
}

bool PictureBox::PressWaitedFor(int key) {
    if (!waiting_ || (key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_Space)) {
        return false;
    }
    const QPointF corner = ToTwips({0, 0});
    return MouseDown(corner.x() + KeyPressInset, corner.y() + KeyPressInset);
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
    Guard([&] {
        const bool plain = !event->modifiers().testFlag(Qt::AltModifier);
        // A key that is still held from pressing a button is none for the drawing.
        const bool pressed = plain && ((!event->isAutoRepeat() && PressWaitedFor(event->key())) ||
                                       PressZoomKey(event->key()) || PressScrollKey(event->key()));
        if (!pressed) {
            QAbstractScrollArea::keyPressEvent(event);
        }
    });
}

void PictureBox::mousePressEvent(QMouseEvent* event) {
    Guard([&] {
        const QPointF twips = ToTwips(event->position());
        taken_ = MouseDown(twips.x(), twips.y());
        if (!taken_) {
            BeginDrag(*event);
        }
        UpdatePointer();
    });
}

/// A double click whose first press was taken is no double click on the paper.
void PictureBox::mouseDoubleClickEvent(QMouseEvent* event) {
    if (taken_ || event->button() != Qt::LeftButton) {
        mousePressEvent(event);
        return;
    }
    Guard([this] {
        fitted_ = false;
        SetZoom(FittingZoom());
    });
}

void PictureBox::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() != QContextMenuEvent::Mouse || !taken_) {
        Guard([&] { ContextMenu(event->globalPos()); });
    }
}

void PictureBox::UpdatePointer() {
    const bool scrolls = horizontalScrollBar()->maximum() > 0 || verticalScrollBar()->maximum() > 0;
    if (waiting_) {
        viewport()->setCursor(Qt::CrossCursor);
    } else if (IsDragging()) {
        viewport()->setCursor(Qt::ClosedHandCursor);
    } else if (scrolls) {
        viewport()->setCursor(Qt::OpenHandCursor);
    } else {
        viewport()->unsetCursor();
    }
}

} // namespace tarn
