#include "print/TextSurface.h"

#include "app/QtText.h"

#include <QStringList>

#include <algorithm>

namespace tarn {

Double PainterSurface::TextWidth(std::string_view text) const {
    Double width = 0;
    for (const QString& line : ToQtLines(text).split(QLatin1Char('\n'))) {
        width = std::max(width, hdc_.OwnAdvance(FromQt(line)));
    }
    return width;
}

Double PainterSurface::TextHeight(std::string_view text) const {
    const auto breaks = std::count(text.begin(), text.end(), '\n');
    return static_cast<Double>(breaks + 1) * (hdc_.OwnFont().Ascent() + hdc_.OwnFont().Descent());
}

} // namespace tarn
