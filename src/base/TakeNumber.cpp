#include "base/TakeNumber.h"

#include "base/Text.h"

#include <algorithm>

namespace tarn {

namespace {

std::size_t DigitsAt(std::string_view text, std::size_t from) {
    return std::min(text.find_first_not_of(DecimalDigits, from), text.size()) - from;
}

std::size_t NumberLength(std::string_view text) {
    const std::size_t whole = DigitsAt(text, 0);
    if (whole == 0 || whole == text.size() || text[whole] != '.') {
        return whole;
    }
    const std::size_t places = DigitsAt(text, whole + 1);
    return places == 0 ? 0 : whole + 1 + places;
}

} // namespace

std::string_view TakeNumber(std::string_view& text) {
    const std::string_view number = text.substr(0, NumberLength(text));
    text.remove_prefix(number.size());
    return number;
}

} // namespace tarn
