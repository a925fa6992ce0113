// Which file stands at a path, whatever its name and content: how a file that was put in the place
// of another is noticed.

#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tarn {

/// What tells one file from every other that there is.
struct FileIdentity {
    std::uint64_t Device = 0;
    std::uint64_t Number = 0; ///< of the file on its device

    bool operator==(const FileIdentity&) const = default;
};

/// The file at `path`, that to which a link leads; nothing where none can be reached.
std::optional<FileIdentity> IdentityOf(const std::string& path);

} // namespace tarn
