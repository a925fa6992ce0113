#include "store/ProjectNames.h"

#include "base/Text.h"
#include "base/Words.h"
#include "files/QtText.h"
#include "project/TypedText.h"
#include "store/Months.h"
#include "store/Names.h"

#include <algorithm>
#include <utility>

namespace tarn {

namespace {

std::u32string Characters(std::string_view utf8) {
    return ToQt(utf8).toStdU32String();
}

std::string Encoded(const std::u32string& characters) {
    return FromQt(FromCharacters(characters));
}

/// The characters for which `isForbidden`, which takes each as UTF-8, and those that no text keeps
/// are left out.
template <typename Test>
NameText Without(std::u32string characters, Test isForbidden) {
    const auto left = std::erase_if(characters, [&](char32_t c) {
        return !IsKeptCharacter(c) || isForbidden(Encoded(std::u32string(1, c)));
    });
    return {Encoded(characters), left > 0};
}

} // namespace

NameText TypedNameText(std::string_view text) {
    NameText typed = Without(Characters(text), [](const std::string& c) {
        return c.find_first_of(ForbiddenInProjectName) != std::string::npos;
    });
    typed.Text = UpperCaseLetters(typed.Text);
    return typed;
}

NameText PastedNameText(std::string_view text) {
    std::u32string characters = Characters(text);
    // What is copied as a whole line has one at its end.
    characters.resize(characters.find_last_not_of(LineBreaks) + 1); // npos + 1 is 0
    NameText pasted = Without(std::move(characters), HoldsForbiddenCharacter);
    pasted.Text = UpperCase(pasted.Text);
    return pasted;
}

std::string FittingNameText(std::string_view text, long long length) {
    std::u32string characters = Characters(text);
    const long long room = std::max(MaxNameLength - length, 0LL);
    if (static_cast<long long>(characters.size()) > room) {
        characters.resize(static_cast<std::size_t>(room));
    }
    return Encoded(characters);
}

bool IsDirectoryTaken(ProjectStore& store, std::string_view name) {
    return std::find(MonthNames.begin(), MonthNames.end(), StoredName(name)) != MonthNames.end() ||
           store.HasDirectory(name);
}

std::optional<std::string> DirectoryNameRefusal(ProjectStore& store, std::string_view name) {
    if (HoldsControlCharacter(name)) {
        return ControlCharacterText("directory");
    }
    if (Len(StoredName(name)) > MaxNameLength) {
        return NameTooLongText("directory", StoredName(name));
    }
    if (IsDirectoryTaken(store, name)) {
        return Words("There is one directory with the same name, change to other one!");
    }
    return std::nullopt;
}

std::optional<std::string> ProjectNameRefusal(ProjectStore& store, std::string_view name) {
    if (HoldsForbiddenCharacter(StoredName(name))) {
        return std::string(ForbiddenCharactersMessage);
    }
    if (Len(StoredName(name)) > MaxNameLength) {
        return NameTooLongText("project", StoredName(name));
    }
    if (store.DirectoryOf(name)) {
        return Words("There is one project with the same name, change to other one!");
    }
    return std::nullopt;
}

} // namespace tarn
