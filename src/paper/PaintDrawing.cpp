#include "paper/PaintDrawing.h"

#include "files/QtText.h"
#include "paper/Arial.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <optional>

namespace tarn {

namespace {

QColor ColorOf(DrawingColor color) {
    return QColor(ToQt(ColorText(color)));
}

QFont FontOf(Double fontSize) {
    return Arial(std::max(1, static_cast<int>(std::lround(LetterHeight(fontSize)))));
}

/// The painting of one drawing: what stays the same from step to step.
class Brush {
  public:
    explicit Brush(QPainter& painter)
        : painter_(painter)
        , toDevice_(painter.deviceTransform())
        , fromDevice_(toDevice_.inverted())
        , scale_(std::sqrt(std::abs(toDevice_.determinant())))
        , lineWidth_(std::max(1.0, std::round(DrawnLineWidth * scale_))) {
        if (painter.hasClipping()) {
            // Room for the thickness of a line and for letters that reach out of their line.
            const double reach = HeightOfLine(12) + 2 * lineWidth_ / scale_;
            visible_ = painter.clipBoundingRect().adjusted(-reach, -reach, reach, reach);
        }
    }

    void Box(const DrawingStep& step) {
        QRectF box(QPointF(step.X1, step.Y1), QPointF(step.X2, step.Y2));
        box = box.normalized();
        if (visible_) {
            if (!Reaches(box)) {
                return;
            }
            // Edges far outside are brought near: a device has no pixels for them.
            box = QRectF(QPointF(std::max(box.left(), visible_->left()),
                                 std::max(box.top(), visible_->top())),
                         QPointF(std::min(box.right(), visible_->right()),
                                 std::min(box.bottom(), visible_->bottom())));
        }
        FillOutline(OnWholePixels(box), ColorOf(step.Color));
    }

    void Line(const DrawingStep& step) {
        const QPointF begin(step.X1, step.Y1);
        const QPointF end(step.X2, step.Y2);
        if (visible_ && !Reaches(QRectF(begin, end).normalized())) {
            return;
        }
        painter_.save();
        painter_.setRenderHint(QPainter::Antialiasing);
        painter_.setPen(QPen(ColorOf(step.Color), std::max(step.LineWidth, 1 / scale_)));
        painter_.drawLine(begin, end);
        painter_.restore();
    }

    void Text(const DrawingStep& step) {
        if (!AreLettersPainted(step.FontSize, scale_) || step.Text.empty() ||
            (visible_ && !Reaches(BoxOf(step)))) {
            return;
        }
        if (fontSize_ != step.FontSize) {
            fontSize_ = step.FontSize;
            font_ = FontOf(step.FontSize);
            metrics_.emplace(font_, painter_.device());
        }
        const QString text = ToQt(step.Text);
        const double natural = metrics_->horizontalAdvance(text);
        const double width = step.IsUpward ? step.Y1 - step.Y2 : step.X2 - step.X1;
        painter_.save();
        painter_.setPen(ColorOf(step.Color));
        painter_.setFont(font_);
        if (step.IsUpward) {
            painter_.translate(step.X1 + AscentOfLine(step.FontSize), step.Y1);
            painter_.rotate(-90);
        } else {
            painter_.translate(step.X1, step.Y1 + AscentOfLine(step.FontSize));
        }
        if (natural > (step.IsLoose ? width : 0)) {
            painter_.scale(width / natural, 1);
        }
        painter_.drawText(QPointF(0, 0), text);
        painter_.restore();
    }

  private:
    /// The place of a text.
    static QRectF BoxOf(const DrawingStep& text) {
        return text.IsUpward ? QRectF(QPointF(text.X1, text.Y2), QPointF(text.X2, text.Y1))
                             : QRectF(QPointF(text.X1, text.Y1),
                                      QPointF(text.X2, text.Y1 + HeightOfLine(text.FontSize)));
    }

    /// Like QRectF::intersects, but true of rectangles without an area too.
    bool Reaches(const QRectF& box) const {
        return box.right() >= visible_->left() && box.left() <= visible_->right() &&
               box.bottom() >= visible_->top() && box.top() <= visible_->bottom();
    }

    /// The box in device pixels, with the thickness of its lines. The same box falls on the same
    /// pixels of the paper wherever that is scrolled to.
    QRectF OnWholePixels(const QRectF& box) const {
        constexpr double RoundingError = 1e-4;
        const auto first = [this](double edge) {
            return std::floor(edge - lineWidth_ / 2 + 0.5 + RoundingError);
        };
        const QRectF device = toDevice_.mapRect(box);
        return QRectF(
            QPointF(first(device.left()), first(device.top())),
            QPointF(first(device.right()) + lineWidth_, first(device.bottom()) + lineWidth_));
    }

    /// Four strips: a stroke would leave the corners pale.
    void FillOutline(const QRectF& device, const QColor& color) {
        const double thick = lineWidth_;
        const auto fill = [&](double x, double y, double width, double height) {
            painter_.fillRect(fromDevice_.mapRect(QRectF(x, y, width, height)), color);
        };
        fill(device.left(), device.top(), device.width(), thick);
        fill(device.left(), device.bottom() - thick, device.width(), thick);
        fill(device.left(), device.top(), thick, device.height());
        fill(device.right() - thick, device.top(), thick, device.height());
    }

    QPainter& painter_;
    QTransform toDevice_;
    QTransform fromDevice_;
    double scale_;                  ///< device pixels per twip
    double lineWidth_;              ///< device pixels
    std::optional<QRectF> visible_; ///< twips; everything without a clip
    Double fontSize_ = 0;
    QFont font_;
    std::optional<QFontMetricsF> metrics_;
};

} // namespace

bool AreLettersPainted(Double fontSize, double scale) {
    return LetterHeight(fontSize) * scale >= 1;
}

void PaintDrawing(QPainter& painter, const Drawing& drawing) {
    painter.save();
    // Lines lie on whole pixels; letters do not.
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setRenderHint(QPainter::TextAntialiasing);
    Brush brush(painter);
    for (const DrawingStep& step : drawing.Steps()) {
        switch (step.What) {
        case DrawingStep::Kind::Box:
            brush.Box(step);
            break;
        case DrawingStep::Kind::Line:
            brush.Line(step);
            break;
        case DrawingStep::Kind::Text:
            brush.Text(step);
            break;
        }
    }
    painter.restore();
}

} // namespace tarn
