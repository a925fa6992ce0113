// Texts on a sheet: broken into lines and shortened, by the letter widths of its face.

#pragma once

#include "base/Types.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// A text (UTF-8) as lines of at most `width` twips: parted at blanks, and inside a word that is
/// wider by itself. One empty line for an empty text.
std::vector<std::string> WrappedText(std::string_view text, Double width, Double fontSize);

/// The text, or as much of it as goes into `width` twips with an ellipsis.
std::string ShortenedText(std::string_view text, Double width, Double fontSize);

/// The text, or its first `most` characters with an ellipsis.
std::string FirstCharacters(std::string_view text, long long most);

} // namespace tarn
