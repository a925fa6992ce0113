#include "store/OtherProgram.h"

#include "store/TestDatabase.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <sys/wait.h>
#include <unistd.h>

namespace tarn::testing {

OtherProgram::OtherProgram(const std::string& path, const std::vector<std::string>& statements) {
    std::array<int, 2> ready{};
    if (pipe(ready.data()) != 0) {
        std::abort();
    }
    process_ = fork();
    if (process_ == 0) {
        RawDatabase database(path);
        for (const std::string& statement : statements) {
            database.Run(statement);
        }
        if (write(ready[1], "x", 1) == 1) {
            for (;;) {
                pause();
            }
        }
        _exit(1);
    }
    close(ready[1]);
    char told = 0;
    const bool isReady = read(ready[0], &told, 1) == 1;
    close(ready[0]);
    if (process_ < 0 || !isReady) {
        std::abort();
    }
}

OtherProgram::~OtherProgram() {
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
}

} // namespace tarn::testing
