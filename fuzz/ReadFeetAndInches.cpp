#include "Fuzzing.h"
#include "base/Lengths.h"

namespace tarn {
namespace {

void CheckReadFeetAndInches(std::string_view text) {
    const auto inches = ReadFeetAndInches(text);
    if (!inches) {
        return;
    }
    Require(*inches >= 0, "no negative length is read");
    Require(text.find_first_not_of("0123456789'\"") == std::string_view::npos,
            "nothing but digits and the two marks is read");
    Require(ReadFeetAndInches(FeetAndInches(*inches)) == inches,
            "a length survives being written and read");
}

} // namespace
} // namespace tarn

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tarn::CheckReadFeetAndInches(tarn::TextOf(data, size));
    return 0;
}
