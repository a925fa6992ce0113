#include "order/SheetText.h"

#include "base/Text.h"
#include "drawing/Drawing.h"

namespace tarn {

namespace {

constexpr std::string_view Ellipsis = "\xE2\x80\xA6";

/// Bytes of the longest beginning of `text` that ends between characters and of which `fits`.
template <typename Fits>
std::size_t LongestBeginning(std::string_view text, Fits fits) {
    std::size_t longest = 0;
    for (std::size_t end = 1; end <= text.size(); ++end) {
        if (end < text.size() && ContinuesCharacter(text[end])) {
            continue;
        }
        if (!fits(text.substr(0, end))) {
            break;
        }
        longest = end;
    }
    return longest;
}

std::size_t FirstCharacter(std::string_view text) {
    return LongestBeginning(text, [](std::string_view begin) { return Len(begin) <= 1; });
}

} // namespace

std::vector<std::string> WrappedText(std::string_view text, Double width, Double fontSize) {
    const auto fits = [&](std::string_view line) { return WidthOfText(line, fontSize) <= width; };
    std::vector<std::string> lines;
    std::string rest = TrimStr(text);
    while (!rest.empty() && !fits(rest)) {
        std::size_t end = LongestBeginning(rest, fits);
        const std::size_t blank = rest.rfind(' ', end);
        if (blank != std::string::npos && blank > 0) {
            end = blank;
        } else if (end == 0) {
            end = FirstCharacter(rest);
        }
        lines.push_back(TrimStr(std::string_view(rest).substr(0, end)));
        rest = TrimStr(std::string_view(rest).substr(end));
    }
    if (!rest.empty() || lines.empty()) {
        lines.push_back(rest);
    }
    return lines;
}

std::string ShortenedText(std::string_view text, Double width, Double fontSize) {
    if (WidthOfText(text, fontSize) <= width) {
        return std::string(text);
    }
    const Double left = width - WidthOfText(Ellipsis, fontSize);
    const std::size_t end = LongestBeginning(
        text, [&](std::string_view begin) { return WidthOfText(begin, fontSize) <= left; });
    return TrimStr(text.substr(0, end)) + std::string(Ellipsis);
}

std::string FirstCharacters(std::string_view text, long long most) {
    if (Len(text) <= most) {
        return std::string(text);
    }
    const std::size_t end =
        LongestBeginning(text, [&](std::string_view begin) { return Len(begin) <= most; });
    return TrimStr(text.substr(0, end)) + std::string(Ellipsis);
}

} // namespace tarn
