// Runs a fuzz target once for each file that is named, and for an empty input: so that the targets
// still compile, and take the inputs to begin with, wherever the tests run.

#include "Fuzzing.h"

#include <cstdio>
#include <fstream>
#include <iterator>

int main(int count, char** names) {
    LLVMFuzzerTestOneInput(nullptr, 0);
    for (int i = 1; i < count; ++i) {
        std::ifstream file(names[i], std::ios::binary);
        const std::string input{std::istreambuf_iterator<char>(file), {}};
        if (!file.is_open() || file.bad()) {
            std::fprintf(stderr, "%s cannot be read\n", names[i]);
            return 2;
        }
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
    }
    return 0;
}
