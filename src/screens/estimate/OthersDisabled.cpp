#include "screens/estimate/OthersDisabled.h"

#include <QWidget>

namespace tarn {

OthersDisabled::OthersDisabled(const QWidget& parent, const QWidget& but) {
    for (auto* child : parent.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (child != &but && child->isEnabled()) {
            child->setEnabled(false);
            disabled_.push_back(child);
        }
    }
}

OthersDisabled::~OthersDisabled() {
    for (QWidget* widget : disabled_) {
        widget->setEnabled(true);
    }
}

} // namespace tarn
