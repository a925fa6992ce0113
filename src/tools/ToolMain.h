#pragma once

#include "files/OutputFile.h"

#include <functional>
#include <string_view>

namespace CLI {
class App;
class ParseError;
} // namespace CLI

namespace tarn {

/// Run the body of a command-line program: a refusal, a database failure or a run-time error is
/// told on standard error behind the program's name, and so is standard output that could not be
/// written. Returns the exit status.
int RunTool(std::string_view program, const std::function<void()>& body);

/// Add the option --force to a program or command: it allows Overwrite::Anything.
void AddForce(CLI::App& command, Overwrite& over);

/// Tell why the arguments give nothing to run: they ask for help or the version, or cannot be
/// understood. Returns the exit status.
int ExplainArguments(const CLI::App& options, const CLI::ParseError& error);

} // namespace tarn
