#include "estimate/ElidedLabel.h"

#include <QPainter>
#include <QStyleOption>

namespace tarn {

QSize ElidedLabel::minimumSizeHint() const {
    return {0, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent([[maybe_unused]] QPaintEvent* event) {
    QStyleOption option;
    option.initFrom(this);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, width());
    style()->drawItemText(&painter, rect(), static_cast<int>(alignment()), option.palette,
                          isEnabled(), shown, foregroundRole());
}

} // namespace tarn
