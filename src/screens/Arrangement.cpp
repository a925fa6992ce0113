#include "screens/Arrangement.h"

#include "screens/Display.h"

#include <QEvent>
#include <QLayout>
#include <QWidget>

namespace tarn {

void SetSpacing(QLayout& layout, double margin, double spacing) {
    const int edge = Pixels(margin);
    layout.setContentsMargins(edge, edge, edge, edge);
    layout.setSpacing(Pixels(spacing));
}

namespace {

class TextWidth : public QObject {
  public:
    TextWidth(QWidget& control, double twips)
        : QObject(&control)
        , control_(control)
        , twips_(twips) {
        control.installEventFilter(this);
        Set();
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
            Set();
        }
        return false;
    }

  private:
    void Set() { control_.setFixedWidth(TextPixels(twips_)); }

    QWidget& control_;
    double twips_;
};

} // namespace

void KeepTextWidth(QWidget& control, double twips) {
    new TextWidth(control, twips); // its child
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
