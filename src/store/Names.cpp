#include "store/Names.h"

#include "base/Text.h"
#include "files/QtText.h"

#include <algorithm>

namespace tarn {

namespace {

bool IsBreak(QChar c) {
    return c.category() == QChar::Separator_Line || c.category() == QChar::Separator_Paragraph;
}

} // namespace

std::string UpperCase(std::string_view text) {
    return FromQt(ToQt(text).toUpper());
}

bool HoldsControlCharacter(std::string_view text) {
    const QString decoded = ToQt(text);
    return FindTextFault(text) != TextFault::None ||
           std::any_of(decoded.begin(), decoded.end(), IsBreak);
}

bool HoldsForbiddenCharacter(std::string_view name) {
    return name.find_first_of(ForbiddenInProjectName) != std::string_view::npos ||
           HoldsControlCharacter(name);
}

std::string NameTooLongText(std::string_view kind, std::string_view name) {
    return "The " + std::string(kind) + " name " + std::string(name) + " has more than " +
           TrimStr(MaxNameLength) + " characters.";
}

std::string NoNameText(std::string_view kind) {
    return "The " + std::string(kind) + " needs a name.";
}

std::string ControlCharacterText(std::string_view kind) {
    return "The " + std::string(kind) + " name holds a line break or another control character.";
}

std::string StoredName(std::string_view name) {
    return UpperCase(TrimStr(name));
}

} // namespace tarn
