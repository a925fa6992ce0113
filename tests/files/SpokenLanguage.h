#pragma once

#include "base/PseudoLanguage.h"
#include "files/Language.h"

#include <string_view>

namespace tarn::testing {

/// Has a language spoken as long as it exists: one that the programs know, or "pseudo".
class SpokenLanguage {
  public:
    explicit SpokenLanguage(std::string_view code) {
        if (code == "pseudo") {
            UseTranslation(Pseudo);
        } else {
            SpeakLanguage(code);
        }
    }
    ~SpokenLanguage() { UseTranslation({}); }
    SpokenLanguage(const SpokenLanguage&) = delete;
    SpokenLanguage& operator=(const SpokenLanguage&) = delete;
};

} // namespace tarn::testing
