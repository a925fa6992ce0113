#include "files/RoomHeadings.h"

#include "base/Text.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace tarn {

namespace {

using HeadingWords = std::vector<std::string>;

/// The usual headings, each by its words in the singular.
constexpr std::array<std::pair<std::string_view, RoomField>, 19> UsualHeadings{{
    {"width", RoomField::Width},
    {"room width", RoomField::Width},
    {"length", RoomField::Length},
    {"room length", RoomField::Length},
    {"covering", RoomField::Covering},
    {"floor covering", RoomField::Covering},
    {"floor", RoomField::Covering},
    {"carpet", RoomField::Covering},
    {"carpet tile", RoomField::Covering},
    {"type", RoomField::Covering},
    {"base", RoomField::Base},
    {"wall base", RoomField::Base},
    {"room", RoomField::Room},
    {"room no", RoomField::Room},
    {"room number", RoomField::Room},
    {"room #", RoomField::Room},
    {"remark", RoomField::Remark},
    {"note", RoomField::Remark},
    {"comment", RoomField::Remark},
}};

/// Whether a byte belongs to a word: a letter or digit, any byte beyond ASCII, and the marks that
/// mean something by themselves.
bool IsOfWord(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 0x80U || (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') ||
           (c >= 'a' && c <= 'z') || c == '#' || c == '\'' || c == '"';
}

HeadingWords WordsOf(std::string_view text) {
    constexpr std::string_view NoBreakSpace = "\xC2\xA0";
    HeadingWords words;
    bool isInWord = false;
    while (!text.empty()) {
        if (text.starts_with(NoBreakSpace)) {
            text.remove_prefix(NoBreakSpace.size());
            isInWord = false;
            continue;
        }
        if (!IsOfWord(text.front())) {
            isInWord = false;
        } else if (isInWord) {
            words.back() += text.front();
        } else {
            words.emplace_back(1, text.front());
            isInWord = true;
        }
        text.remove_prefix(1);
    }
    return words;
}

bool IsSameWord(std::string_view word, std::string_view singular) {
    const bool isPlural =
        word.size() == singular.size() + 1 && (word.ends_with('s') || word.ends_with('S'));
    return EqualsIgnoringCase(word.substr(0, word.size() - (isPlural ? 1 : 0)), singular);
}

/// How many of the words a heading has when they begin with all of its; else 0.
std::size_t CountOf(const HeadingWords& words, std::string_view heading) {
    const HeadingWords wanted = WordsOf(heading);
    const bool begins =
        words.size() >= wanted.size() && std::equal(wanted.begin(), wanted.end(), words.begin(),
                                                    [](const auto& singular, const auto& word) {
                                                        return IsSameWord(word, singular);
                                                    });
    return begins ? wanted.size() : 0;
}

/// The unit that the words from `first` on name: "ft", "in ft", "in".
std::optional<LengthUnit> UnitOf(const HeadingWords& words, std::size_t first) {
    if (words.size() == first + 2 && EqualsIgnoringCase(words[first], "in")) {
        ++first;
    }
    return words.size() == first + 1 ? ReadLengthUnit(words[first]) : std::nullopt;
}

} // namespace

std::optional<RoomHeading> ReadRoomHeading(std::string_view text) {
    const HeadingWords words = WordsOf(text);
    for (const auto& [heading, field] : UsualHeadings) {
        const std::size_t count = CountOf(words, heading);
        if (count > 0 && count == words.size()) {
            return RoomHeading{field, std::nullopt};
        }
        if (count > 0 && IsSize(field)) {
            if (const auto unit = UnitOf(words, count)) {
                return RoomHeading{field, unit};
            }
        }
    }
    return std::nullopt;
}

} // namespace tarn
