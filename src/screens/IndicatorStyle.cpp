#include "screens/IndicatorStyle.h"

#include "screens/Theme.h"

#include <QPainter>
#include <QStyleOption>

namespace tarn {

namespace {

constexpr double IndicatorSize = 255; // twips

struct Pens {
    QColor Ring;
    QColor Inside;
    QColor Mark;
};

Pens PensFor(const QStyleOption& option, bool filled) {
    const Colours& colours = CurrentColours();
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    const bool on = option.state.testFlag(QStyle::State_On);
    const QColor accent = enabled ? colours.Accent : colours.DisabledText;
    Pens pens{colours.Border, enabled ? colours.Field : colours.Surface, accent};
    if (on) {
        pens.Ring = accent;
    } else if (enabled) {
        pens.Ring = colours.MutedText;
    }
    if (on && filled) {
        pens.Inside = accent;
        pens.Mark = colours.AccentText;
    }
    return pens;
}

void DrawOption(QPainter& painter, const QRectF& box, const QStyleOption& option) {
    const Pens pens = PensFor(option, false);
    painter.setPen(QPen(pens.Ring, box.width() / 9));
    painter.setBrush(pens.Inside);
    painter.drawEllipse(box);
    if (option.state.testFlag(QStyle::State_On)) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(pens.Mark);
        painter.drawEllipse(box.center(), box.width() / 4, box.height() / 4);
    }
}

void DrawCheck(QPainter& painter, const QRectF& box, const QStyleOption& option) {
    const Pens pens = PensFor(option, true);
    painter.setPen(QPen(pens.Ring, box.width() / 9));
    painter.setBrush(pens.Inside);
    painter.drawRoundedRect(box, box.width() / 6, box.width() / 6);
    if (option.state.testFlag(QStyle::State_On)) {
        const auto at = [&](double x, double y) {
            return QPointF(box.left() + x * box.width(), box.top() + y * box.height());
        };
        painter.setPen(
            QPen(pens.Mark, box.width() / 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPolyline(QPolygonF{at(0.22, 0.52), at(0.42, 0.72), at(0.78, 0.28)});
    }
}

} // namespace

IndicatorStyle::IndicatorStyle()
    : QProxyStyle(QStringLiteral("Fusion")) {}

int IndicatorStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                                const QWidget* widget) const {
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return TextPixels(IndicatorSize);
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int IndicatorStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                              QStyleHintReturn* returnData) const {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) {
        return 0;
    }
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}

void IndicatorStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                   QPainter* painter, const QWidget* widget) const {
    if (element != PE_IndicatorRadioButton && element != PE_IndicatorCheckBox) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const QRectF box = QRectF(option->rect).adjusted(1.5, 1.5, -1.5, -1.5);
    if (element == PE_IndicatorRadioButton) {
        DrawOption(*painter, box, *option);
    } else {
        DrawCheck(*painter, box, *option);
    }
    painter->restore();
}

} // namespace tarn
