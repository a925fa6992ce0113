// What the library that reads the command lines says of them, in the language in force.

#pragma once

#include <string>

namespace CLI {
class Error;
} // namespace CLI

namespace tarn {

/// Why arguments cannot be understood, and where there is more about them: two lines. The library
/// writes its sentences with the arguments in them and keeps no others; those that it is known to
/// write are translated, what it may write besides stays as it is.
std::string ArgumentErrorText(const CLI::Error& error);

} // namespace tarn
