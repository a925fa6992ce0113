#pragma once

#include <QProxyStyle>

namespace tarn {

/// Draws the marks of option buttons and check boxes in the theme's colours, large enough to be
/// read at arm's length in light and dark. Everything else is the Fusion style's.
class IndicatorStyle : public QProxyStyle {
  public:
    IndicatorStyle();

    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    /// No icons on the buttons of boxes: they are another program's.
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};

} // namespace tarn
