#include "estimate/RollWidth.h"

#include "app/Lengths.h"
#include "app/Numbers.h"

#include <regex>
#include <stdexcept>

namespace tarn {

namespace {

constexpr std::size_t CaptionNumberAt = 12; ///< behind "CARPET WIDTH"
constexpr Double InchesPerFoot = 12;

/// Centimetres as a standard metric roll has them: rounded as a caption's figure is.
Single FromCentimetres(Double centimetres) {
    const Single asFeet = CSng(centimetres * InchesPerFoot);
    return CSng(static_cast<Double>(asFeet) / CentimetresPerInch / InchesPerFoot);
}

} // namespace

const std::array<std::string_view, 4>& WidthCaptions(bool metric) {
    return metric ? MetricWidthCaptions : ImperialWidthCaptions;
}

Single CaptionRollWidth(std::string_view caption, bool metric) {
    const Double number = Val(caption.substr(CaptionNumberAt));
    return metric ? FromCentimetres(number) : CSng(number * InchesPerFoot);
}

Single OtherRollWidth(std::string_view feet, std::string_view inches) {
    return CSng(Val(feet) * InchesPerFoot + Val(inches));
}

Single ReadRollWidth(const std::string& text) {
    static const std::regex Form(R"((\d+(?:\.\d+)?)(?:(cm)|(in)|ft(?:(\d+(?:\.\d+)?)in)?))",
                                 std::regex::icase);
    std::smatch match;
    if (!std::regex_match(text, match, Form)) {
        throw std::invalid_argument("The roll width \"" + text +
                                    "\" is not readable: write it as 12ft, 13.5ft, 12ft6in, 150in "
                                    "or 366cm.");
    }
    const std::string number = match[1];
    Single width = 0;
    if (match[2].matched) {
        width = FromCentimetres(Val(number));
    } else if (match[3].matched) {
        width = OtherRollWidth("", number);
    } else {
        width = OtherRollWidth(number, match[4].str());
    }
    if (width <= 0) {
        throw std::invalid_argument("The roll width \"" + text + "\" must be more than 0.");
    }
    return width;
}

} // namespace tarn
