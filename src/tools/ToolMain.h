#pragma once

#include <functional>
#include <string_view>

namespace CLI {
class App;
} // namespace CLI

namespace tarn {

/// Run the body of a command-line program: a refusal, a database failure or a run-time error is
/// told on standard error behind the program's name, and so is standard output that could not be
/// written. Returns the exit status.
int RunTool(std::string_view program, const std::function<void()>& body);

/// Parse the arguments, and then `check` what the single options cannot tell; both may raise
/// CLI::ParseError. When they ask for help or the version, or cannot be understood, prints that and
/// answers false; `status` is then the exit status.
bool ParseArguments(CLI::App& app, int argc, const char* const* argv,
                    const std::function<void()>& check, int& status);

} // namespace tarn
