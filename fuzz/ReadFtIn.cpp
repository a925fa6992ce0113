#include "Fuzzing.h"
#include "app/Lengths.h"
#include "app/Text.h"

namespace tarn {
namespace {

void CheckReadFtIn(std::string_view text) {
    const auto inches = ReadFtIn(text);
    if (!inches) {
        return;
    }
    Require(*inches >= 0, "no negative length is read");
    Require(text.find_first_not_of("0123456789'\"") == std::string_view::npos,
            "nothing but digits and the two marks is read");
    Require(ReadFtIn(FtInStr(*inches)) == inches, "a length survives being written and read");
}

} // namespace
} // namespace tarn

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tarn::CheckReadFtIn(tarn::TextOf(data, size));
    return 0;
}
