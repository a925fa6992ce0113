#include "store/FileIdentity.h"

#include <sys/stat.h>

namespace tarn {

std::optional<FileIdentity> IdentityOf(const std::string& path) {
    struct stat found {};
    if (stat(path.c_str(), &found) != 0) {
        return std::nullopt;
    }
    return FileIdentity{found.st_dev, found.st_ino};
}

} // namespace tarn
