#include "store/Names.h"

#include "Fuzzing.h"
#include "base/Text.h"
#include "files/QtText.h"
#include "project/TypedText.h"
#include "store/ProjectNames.h"

namespace tarn {
namespace {

void CheckNameText(const NameText& text, std::string_view from) {
    Require(text.Text.find_first_of(ForbiddenInProjectName) == std::string::npos,
            "a name has no forbidden character");
    const NameText again = PastedNameText(text.Text);
    Require(!again.LeftOut || HoldsControlCharacter(text.Text), "nothing is left out twice");
    Require(text.Text.size() <= 3 * from.size(), "a name does not grow beyond its letters' cases");
}

/// The text as a screen has it, in which what is no UTF-8 is replaced, without the end of its line.
std::string WithoutLastBreaks(std::string_view text) {
    std::u32string characters = ToQt(text).toStdU32String();
    characters.resize(characters.find_last_not_of(LineBreaks) + 1);
    return FromQt(FromCharacters(characters));
}

void CheckNames(std::string_view text) {
    CheckNameText(TypedNameText(text), text);
    const NameText pasted = PastedNameText(text);
    CheckNameText(pasted, text);
    Require(!HoldsForbiddenCharacter(pasted.Text), "a pasted name may be a project's");
    Require(pasted.LeftOut || pasted.Text == UpperCase(WithoutLastBreaks(text)),
            "what is left out is told");

    const std::string stored = StoredName(text);
    Require(StoredName(stored) == stored, "a stored name is stored as it is");
    Require(StoredName(" " + std::string(text) + " ") == stored, "blanks at the ends do not count");
    Require(UpperCase(stored) == stored, "a stored name is in upper case");
}

void CheckFitting(std::string_view text) {
    for (const long long length : {0LL, 1LL, MaxNameLength - 1, MaxNameLength, MaxNameLength + 1}) {
        const std::string fitting = FittingNameText(text, length);
        const QString fits = ToQt(fitting);
        Require(ToQt(text).left(fits.size()) == fits, "what fits is how the text begins");
        Require(length + Len(fitting) <= std::max(length, MaxNameLength),
                "no name grows beyond the limit");
    }
}

/// The lines of the input: a text, and what is put into it; behind them where, and in place of how
/// many characters.
void CheckFitted(FuzzInput input) {
    const std::u32string before = ToQt(input.Line()).toStdU32String();
    const std::u32string inserted = ToQt(input.Line()).toStdU32String();
    const std::size_t place = input.Byte() % (before.size() + 1);
    TypedText typed{before, place + inserted.size()};
    typed.Text.replace(place, input.Byte(), inserted);
    constexpr std::size_t Most = 8;
    const TypedText fitted = Fitted(before, typed, Most);
    Require(fitted.Text.size() <= std::max(Most, before.size()),
            "a field takes no more than its limit");
    Require(fitted.Text.starts_with(before.substr(0, place)), "what was not touched stays");
    Require(fitted.Cursor <= fitted.Text.size(), "the cursor stays in the text");
    Require(Fitted(before, fitted, Most) == fitted, "a text that fits stays");
}

} // namespace
} // namespace tarn

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tarn::CheckNames(tarn::TextOf(data, size));
    tarn::CheckFitting(tarn::TextOf(data, size));
    tarn::CheckFitted(tarn::FuzzInput(data, size));
    return 0;
}
