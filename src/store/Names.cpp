#include "store/Names.h"

#include "base/Text.h"
#include "base/Words.h"
#include "files/QtText.h"

#include <algorithm>

namespace tarn {

namespace {

bool IsBreak(QChar c) {
    return c.category() == QChar::Separator_Line || c.category() == QChar::Separator_Paragraph;
}

/// Of the kinds of names there are; the other one is a directory.
bool IsProject(std::string_view kind) {
    return kind == "project";
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
    return Words(IsProject(kind) ? Words("The project name %1 has more than %2 characters.")
                                 : Words("The directory name %1 has more than %2 characters."),
                 name, TrimStr(MaxNameLength));
}

std::string NoNameText(std::string_view kind) {
    return IsProject(kind) ? Words("The project needs a name.")
                           : Words("The directory needs a name.");
}

std::string ControlCharacterText(std::string_view kind) {
    return IsProject(kind)
               ? Words("The project name holds a line break or another control character.")
               : Words("The directory name holds a line break or another control character.");
}

std::string StoredName(std::string_view name) {
    return UpperCase(TrimStr(name));
}

} // namespace tarn
