#include "tools/ToolMain.h"

#include "app/ExitStatus.h"
#include "app/RunTimeError.h"

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
