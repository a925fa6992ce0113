#include "tools/StandardStreams.h"

#include "base/Text.h"
#include "tools/Refusal.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <iostream>
#include <unistd.h>

namespace tarn {

void HoldStandardStreams() {
    static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(stream, F_GETFD) < 0) {
            // It becomes the lowest number that is free, which is this one. Opened the other way
            // round, it refuses what a closed one refuses.
            static_cast<void>(::open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY) <
                              0);
        }
    }
}

void WriteStandardOutput(std::string_view text) {
    std::cout.write(text.data(), static_cast<std::streamsize>(text.size()));
    if (!IsStandardOutputWritten()) {
        throw Refusal(std::string(StandardOutputRefusal));
    }
}

bool IsStandardOutputWritten() {
    std::cout.flush();
    return std::cout.good() && std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
}

std::string ShownLines(std::string_view text) {
    std::string shown;
    for (;;) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        shown += ShownText(text.substr(0, end));
        if (end == text.size()) {
            return shown;
        }
        shown += '\n';
        text.remove_prefix(end + 1);
    }
}

} // namespace tarn
