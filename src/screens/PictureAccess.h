#pragma once

class QWidget;

namespace tarn {

/// Tell assistive programs that a widget is a picture; what it shows is its description.
void TellAsPicture(QWidget& widget);

} // namespace tarn
