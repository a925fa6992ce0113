#include "text/TextSurface.h"

#include <algorithm>
#include <string>

namespace tarn {

Double PainterSurface::TextWidth(std::string_view text) const {
    Double width = 0;
    std::string lines(text);
    std::erase(lines, '\r');
    for (std::size_t begin = 0; begin <= lines.size();) {
        const std::size_t end = std::min(lines.find('\n', begin), lines.size());
        width = std::max(width,
                         context_.OwnAdvance(std::string_view(lines).substr(begin, end - begin)));
        begin = end + 1;
    }
    return width;
}

Double PainterSurface::TextHeight(std::string_view text) const {
    const auto breaks = std::count(text.begin(), text.end(), '\n');
    return static_cast<Double>(breaks + 1) *
           (context_.OwnFont().Ascent() + context_.OwnFont().Descent());
}

} // namespace tarn
