#include "screens/Display.h"

#include "base/Twips.h"

#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <cmath>

namespace tarn {

QSize PhysicalSize(const QScreen& screen) {
    const double factor = screen.devicePixelRatio();
    const QSizeF size = QSizeF(screen.size()) * factor;
    // The toolkit rounds the scaled size: 799 pixels at factor 2 are 400 of its own, and so are
    // 800. A picture of the display has its own size.
    if (std::abs(size.width() - LeastDisplayWidth) < factor ||
        std::abs(size.height() - LeastDisplayHeight) < factor) {
        const QPixmap picture = const_cast<QScreen&>(screen).grabWindow();
        if (!picture.isNull()) {
            return picture.size();
        }
    }
    return {static_cast<int>(std::lround(size.width())),
            static_cast<int>(std::lround(size.height()))};
}

bool IsDisplayLargeEnough(QSize physicalPixels) {
    return physicalPixels.width() >= LeastDisplayWidth &&
           physicalPixels.height() >= LeastDisplayHeight;
}

double PixelsExact(double twips) {
    return twips * QGuiApplication::primaryScreen()->logicalDotsPerInch() / TwipsPerInch;
}

int Pixels(double twips) {
    return static_cast<int>(std::lround(PixelsExact(twips)));
}

QMargins FrameMargins(const QWidget& window) {
    const QWindow* handle = window.windowHandle();
    return handle != nullptr ? handle->frameMargins() : QMargins();
}

void FitToDisplay(QWidget& window) {
    const QRect display = window.screen()->geometry();
    const QMargins frame = FrameMargins(window);
    window.resize(display.width() - frame.left() - frame.right(),
                  display.height() - Pixels(FreeStrip) - frame.top() - frame.bottom());
    window.move(display.topLeft());
}

} // namespace tarn
