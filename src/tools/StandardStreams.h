// The streams that a program is started with.

#pragma once

#include "base/Words.h"

#include <string>
#include <string_view>

namespace tarn {

/// See to it that standard input, output and error are there, before any file is opened: a file
/// would take the place of one that was closed, and get what is written to it. Writing to standard
/// output that was closed then fails, as to one whose reader went away, which no longer ends the
/// program.
void HoldStandardStreams();

/// Write `text` to standard output, behind what was written before. Raises Refusal when it cannot
/// be written.
void WriteStandardOutput(std::string_view text);

/// Whether everything that was written to standard output came through.
bool IsStandardOutputWritten();

/// Text of several lines as it is shown: every line as ShownText, so that what was stored or typed
/// moves nothing on a terminal.
std::string ShownLines(std::string_view text);

/// What standard output that cannot be written is refused with.
inline constexpr auto StandardOutputRefusal = Words("Standard output cannot be written.");

} // namespace tarn
