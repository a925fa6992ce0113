// Devices and pipes, which take what is written to them as it comes.

#pragma once

#include <chrono>
#include <string>
#include <string_view>

namespace tarn {

/// How long a device or a pipe is waited for before it is given up.
struct DevicePatience {
    std::chrono::milliseconds ForReader{5000};  ///< until a program opens the pipe to read it
    std::chrono::milliseconds ForTaking{60000}; ///< until the next bytes are taken
};

/// Write `content` to the device or pipe that stands at `path`. Raises std::system_error when it
/// takes no more, when its reader goes away, and, as std::errc::timed_out, when nobody reads it for
/// longer than the patience.
void WriteToDevice(const std::string& path, std::string_view content,
                   const DevicePatience& patience = {});

} // namespace tarn
