// A program built like the real ones, which happen to call nothing that is given a buffer of known
// size: this one does.

#include <cstdio>
#include <cstring>

int main(int count, char** arguments) {
    char buffer[16];
    std::memcpy(buffer, arguments[0], static_cast<std::size_t>(count));
    return std::puts(buffer) < 0 ? 1 : 0;
}
