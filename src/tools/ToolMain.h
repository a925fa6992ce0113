#pragma once

#include <functional>
#include <string_view>

namespace tarn {

/// Run the body of a command-line program: a refusal, a database failure or a run-time error is
/// told on standard error behind the program's name. Returns the exit status.
int RunTool(std::string_view program, const std::function<void()>& body);

} // namespace tarn
