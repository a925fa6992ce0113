#include "tools/ProgramVersion.h"

#include "base/Version.h"

namespace tarn {

std::string FullVersion() {
    const std::string version(Version);
    return BuiltCommit.empty() ? version : version + "+git." + std::string(BuiltCommit);
}

std::string VersionText(std::string_view program) {
    return std::string(program) + " " + FullVersion();
}

} // namespace tarn
