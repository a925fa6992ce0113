#include "screens/PictureAccess.h"

#include <QAccessibleWidget>
#include <QVariant>
#include <QWidget>

namespace tarn {

namespace {

constexpr const char* PictureProperty = "picture";

QAccessibleInterface* MakeAccess(const QString& /*className*/, QObject* object) {
    if (object->isWidgetType() && object->property(PictureProperty).toBool()) {
        return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Graphic);
    }
    return nullptr;
}

} // namespace

void TellAsPicture(QWidget& widget) {
    QAccessible::installFactory(MakeAccess); // once, however often it is called
    widget.setProperty(PictureProperty, true);
}

} // namespace tarn
