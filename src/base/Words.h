// What the program says to people, in the language in force. The source holds it in English; a
// translation is looked up by the English text. Programs that read what is written never meet a
// translation: keys, numbers and names are no words of this kind.
//
// The texts are collected from the calls of Words and CountedWords ("./dev words"), so each of them
// takes its English as a literal.

#pragma once

#include <concepts>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

namespace tarn {

/// Finds a translation: of `english`, or for a count of the form that belongs to it, where `many`
/// is the English for more than one ("" without a count). Nothing where there is none. It is called
/// from any thread.
using Translation =
    std::function<std::optional<std::string>(const char* english, const char* many, int count)>;

/// Put a language in force; without one, and with an empty `translation`, all is said in English.
/// To be called at the start of a program, before anything is said and before any thread.
void UseTranslation(Translation translation);

/// A text as it stands in the source, and in the language in force wherever it is used as a text,
/// which stays valid, and the same, as long as the program runs. So it can be a constant.
class Phrase {
  public:
    constexpr Phrase() = default;
    constexpr explicit Phrase(const char* english)
        : english_(english) {}

    constexpr const char* English() const { return english_; }
    std::string_view Text() const;

    operator std::string_view() const { return Text(); }         // NOLINT: it is a text
    operator std::string() const { return std::string(Text()); } // NOLINT
    bool operator==(std::string_view text) const { return Text() == text; }

  private:
    const char* english_ = "";
};

template <typename... Texts>
concept AreTexts = sizeof...(Texts) > 0 &&
                   (std::convertible_to<const Texts&, std::string_view> && ...);

/// `pattern` with the arguments in the place of %1, %2, .. A translation may have them in another
/// order.
std::string Filled(std::string_view pattern, std::initializer_list<std::string_view> arguments);

/// A text in the language in force.
constexpr Phrase Words(const char* english) {
    return Phrase(english);
}
/// One with arguments, which are texts: numbers are written by whoever knows how. (lupdate takes a
/// literal behind the first for a remark to the translator: an argument is none.)
template <typename... Arguments>
requires AreTexts<Arguments...> std::string Words(const char* english,
                                                  const Arguments&... arguments) {
    return Filled(Phrase(english), {std::string_view(arguments)...});
}
template <typename... Arguments>
requires AreTexts<Arguments...> std::string Words(Phrase phrase, const Arguments&... arguments) {
    return Filled(phrase, {std::string_view(arguments)...});
}

/// A text for a count: `one` for exactly one, `many` for any other. %n in them is the count.
std::string CountedWords(const char* one, const char* many, long long count);
template <typename... Arguments>
requires AreTexts<Arguments...> std::string
CountedWords(const char* one, const char* many, long long count, const Arguments&... arguments) {
    return Filled(CountedWords(one, many, count), {std::string_view(arguments)...});
}

/// While one exists in a thread, that thread says all in English: for what programs read.
class InEnglish {
  public:
    InEnglish();
    ~InEnglish();
    InEnglish(const InEnglish&) = delete;
    InEnglish& operator=(const InEnglish&) = delete;

  private:
    bool before_;
};

/// What is told to people, and stands in documents that programs read, too.
struct Saying {
    std::string English;
    std::string Shown; ///< in the language in force when it was made

    Saying() = default;
    /// One that is the same in every language.
    Saying(const char* same) // NOLINT: it is a text
        : English(same)
        , Shown(same) {}

    bool IsEmpty() const { return English.empty(); }
    bool operator==(const Saying&) const = default;
    bool operator==(const char* english) const { return English == english; }
};

/// What `make` says, in both.
template <std::invocable Make>
Saying Said(Make make) {
    Saying saying;
    saying.Shown = std::string(make());
    const InEnglish english;
    saying.English = std::string(make());
    return saying;
}

} // namespace tarn
