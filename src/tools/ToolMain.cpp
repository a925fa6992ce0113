#include "tools/ToolMain.h"

#include "app/RunTimeError.h"
#include "tools/Refusal.h"

#include <iostream>

namespace tarn {

int RunTool(std::string_view program, const std::function<void()>& body) {
    try {
        body();
        return Done;
    } catch (const RunTimeError& error) {
        std::cerr << program << ": Run-time error '" << error.Number() << "': " << error.Text()
                  << ".";
        if (!error.Advice().empty()) {
            std::cerr << ' ' << error.Advice();
        }
        std::cerr << '\n';
    } catch (const std::exception& error) {
        std::cerr << program << ": " << error.what() << '\n';
    }
    return Refused;
}

} // namespace tarn
