#include "app/Display.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <cmath>

namespace tarn {

namespace {

constexpr double TwipsPerInch = 1440;

} // namespace

QSize PhysicalSize(const QScreen& screen) {
    const QSizeF size = QSizeF(screen.size()) * screen.devicePixelRatio();
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

void FitFormToScreen(QWidget& window) {
    const QRect display = window.screen()->geometry();
    const QSize frame = window.frameGeometry().size() - window.size();
    window.resize(display.width() - frame.width(),
                  display.height() - Pixels(FreeStrip) - frame.height());
    window.move(display.topLeft());
}

} // namespace tarn
