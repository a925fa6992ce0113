#include "paper/IppAttributes.h"

#include <array>

namespace tarn {

int NumberIn(ipp_t* message, const char* name) {
    ipp_attribute_t* found = ippFindAttribute(message, name, IPP_TAG_ZERO);
    return found == nullptr ? 0 : ippGetInteger(found, 0);
}

std::vector<std::string> TextsIn(ipp_t* message, const char* name) {
    std::vector<std::string> texts;
    ipp_attribute_t* found = ippFindAttribute(message, name, IPP_TAG_ZERO);
    for (int i = 0; found != nullptr && i < ippGetCount(found); ++i) {
        const char* text = ippGetString(found, i, nullptr);
        texts.emplace_back(text == nullptr ? "" : text);
    }
    return texts;
}

std::string TextIn(ipp_t* message, const char* name) {
    const auto texts = TextsIn(message, name);
    return texts.empty() ? std::string() : texts.front();
}

std::string ValueIn(ipp_t* message, const std::string& name) {
    ipp_attribute_t* found = ippFindAttribute(message, name.c_str(), IPP_TAG_ZERO);
    if (found == nullptr || ippGetValueTag(found) == IPP_TAG_NOVALUE) {
        return {};
    }
    std::array<char, 256> text{};
    ippAttributeString(found, text.data(), text.size());
    return text.data();
}

} // namespace tarn
