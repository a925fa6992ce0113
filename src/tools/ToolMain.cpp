#include "tools/ToolMain.h"

#include "base/RunTimeError.h"
#include "tools/ExitStatus.h"

#include <iostream>

namespace tarn {

int RunTool(std::string_view program, const std::function<void()>& body) {
    try {
        body();
        return Done;
    } catch (const RunTimeError& error) {
        std::cerr << program << ": " << error.Heading() << ' ' << error.Sentences() << '\n';
    } catch (const std::exception& error) {
        std::cerr << program << ": " << error.what() << '\n';
    }
    return Refused;
}

} // namespace tarn
