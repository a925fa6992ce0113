#include "screens/Arrangement.h"

#include "screens/Display.h"

#include <QLayout>
#include <QWidget>

namespace tarn {

void SetSpacing(QLayout& layout, double margin, double spacing) {
    const int edge = Pixels(margin);
    layout.setContentsMargins(edge, edge, edge, edge);
    layout.setSpacing(Pixels(spacing));
}

void KeepRoom(QWidget& control) {
    QSizePolicy policy = control.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    control.setSizePolicy(policy);
}

void SetTabOrders(const std::vector<QWidget*>& controls) {
    for (std::size_t i = 1; i < controls.size(); ++i) {
        QWidget::setTabOrder(controls[i - 1], controls[i]);
    }
}

} // namespace tarn
