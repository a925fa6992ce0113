// The languages that the programs speak: English, and those whose translations are built in.

#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarn {

struct KnownLanguage {
    std::string Code; ///< as it is asked for: "de"
    std::string Name; ///< in itself: "Deutsch"
};

/// English first.
const std::vector<KnownLanguage>& KnownLanguages();
bool IsKnownLanguage(std::string_view code);
/// Why a language is not spoken, with those that are.
std::string UnknownLanguageText(std::string_view code);

/// Put a known language in force (see base/Words.h): at the start of a program, before any thread.
void SpeakLanguage(std::string_view code);
/// The code of the one in force: English unless another was put there.
const std::string& LanguageInForce();

} // namespace tarn
