#include "tools/ToolMain.h"

#include "base/RunTimeError.h"
#include "base/Words.h"
#include "tools/ExitStatus.h"
#include "tools/StandardStreams.h"

#include <CLI/CLI.hpp>

#include <iostream>

namespace tarn {

namespace {

void Tell(std::string_view program, std::string_view text) {
    std::cerr << program << ": " << ShownLines(text) << '\n';
}

/// Tell why the arguments give nothing to run; the exit status.
int ExplainArguments(const CLI::App& options, const CLI::ParseError& error) {
    if (options.exit(error) != 0) {
        return WrongUsage;
    }
    if (IsStandardOutputWritten()) {
        return Done;
    }
    Tell(options.get_name(), StandardOutputRefusal);
    return Refused;
}

} // namespace

int RunTool(std::string_view program, const std::function<void()>& body) {
    try {
        body();
        if (IsStandardOutputWritten()) {
            return Done;
        }
        Tell(program, Words("What was asked for is done, but standard output cannot be written."));
    } catch (const RunTimeError& error) {
        Tell(program, error.Heading() + ' ' + error.Sentences());
    } catch (const std::exception& error) {
        Tell(program, error.what());
    }
    return Refused;
}

bool ParseArguments(CLI::App& app, int argc, const char* const* argv,
                    const std::function<void()>& check, int& status) {
    try {
        app.parse(argc, argv);
        check();
        return true;
    } catch (const CLI::ParseError& error) {
        status = ExplainArguments(app, error);
        return false;
    }
}

} // namespace tarn
