#pragma once

// The display: whether it is large enough, twips as its pixels, and how a window fills it.

#include "base/Words.h"

#include <QMargins>
#include <QSize>

#include <string_view>

class QScreen;
class QWidget;

namespace tarn {

/// The least display that the program runs on, physical pixels.
inline constexpr int LeastDisplayWidth = 800;
inline constexpr int LeastDisplayHeight = 600;

/// Shown on a smaller display; the program then ends.
inline constexpr auto DisplayTooSmallMessage =
    Words("Sorry, the program must run under display resolution 800 X 600 or higher\r\n"
          "Please change the display resolution!");

/// A screen's size in physical pixels, exact as far as it decides whether the display is large
/// enough.
QSize PhysicalSize(const QScreen& screen);
bool IsDisplayLargeEnough(QSize physicalPixels);

/// Twips (1/1440 inch) as the pixels that widgets are measured in: 15 to one at 96 dpi, more on a
/// display with larger letters. A scale factor of the display is the toolkit's own work.
int Pixels(double twips);
/// The same without rounding, for drawing.
double PixelsExact(double twips);

/// How much of the display a screen leaves free at the bottom, twips.
inline constexpr double FreeStrip = 240;

/// The window's frame, as far as the window system tells.
QMargins FrameMargins(const QWidget& window);

/// Fit a window to its display: the whole width, the whole height less FreeStrip, at the top left,
/// its frame included as far as the window system tells.
void FitToDisplay(QWidget& window);

} // namespace tarn
