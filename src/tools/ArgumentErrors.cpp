#include "tools/ArgumentErrors.h"

#include "base/Words.h"

#include <CLI/Error.hpp>

#include <array>
#include <optional>
#include <string_view>

namespace tarn {

namespace {

/// A sentence of the library, as it writes it.
struct LibrarySentence {
    CLI::ExitCodes Kind; ///< of the error that says it
    Phrase Sentence;     ///< its arguments in their order
};
constexpr std::array Sentences{
    LibrarySentence{CLI::ExitCodes::RequiredError, Words("A subcommand is required")},
    LibrarySentence{CLI::ExitCodes::RequiredError, Words("%1 is required")},
    LibrarySentence{CLI::ExitCodes::RequiresError, Words("%1 requires %2")},
    LibrarySentence{CLI::ExitCodes::ExcludesError, Words("%1 excludes %2")},
    LibrarySentence{CLI::ExitCodes::ExtrasError,
                    Words("The following argument was not expected: %1")},
    LibrarySentence{CLI::ExitCodes::ExtrasError,
                    Words("The following arguments were not expected: %1")},
    LibrarySentence{CLI::ExitCodes::ConversionError, Words("Could not convert: %1 = %2")},
    LibrarySentence{CLI::ExitCodes::ArgumentMismatch, Words("%1: %2 required %3 missing")},
    LibrarySentence{CLI::ExitCodes::ArgumentMismatch,
                    Words("%1: At Most %2 required but received %3")},
    LibrarySentence{CLI::ExitCodes::ValidationError, Words("%1: Value %2 not in range %3 to %4")},
    LibrarySentence{CLI::ExitCodes::ValidationError, Words("%1: %2 not in %3")},
};

constexpr std::size_t MostArguments = 4;
using Arguments = std::array<std::string_view, MostArguments>;

/// The arguments with which `text` is `sentence`; nothing when it is another. Each but the last
/// ends where it is followed by the sentence for the first time.
std::optional<Arguments> ArgumentsOf(std::string_view text, std::string_view sentence) {
    constexpr std::size_t MarkLength = 2; // %1
    Arguments arguments;
    std::size_t count = 0;
    const std::size_t start = sentence.find('%');
    if (start == std::string_view::npos) {
        return text == sentence ? std::optional(arguments) : std::nullopt;
    }
    if (!text.starts_with(sentence.substr(0, start))) {
        return std::nullopt;
    }
    text.remove_prefix(start);
    sentence.remove_prefix(start);
    while (!sentence.empty()) {
        sentence.remove_prefix(MarkLength);
        const std::string_view between = sentence.substr(0, sentence.find('%'));
        const bool isLast = between.size() == sentence.size();
        if (isLast && !text.ends_with(between)) {
            return std::nullopt;
        }
        const std::size_t end = isLast ? text.size() - between.size() : text.find(between);
        if (end == std::string_view::npos) {
            return std::nullopt;
        }
        arguments.at(count++) = text.substr(0, end);
        text.remove_prefix(end + between.size());
        sentence.remove_prefix(between.size());
    }
    return arguments;
}

std::string SaidAgain(const CLI::Error& error) {
    for (const LibrarySentence& each : Sentences) {
        if (static_cast<int>(each.Kind) != error.get_exit_code()) {
            continue;
        }
        if (const auto found = ArgumentsOf(error.what(), each.Sentence.English())) {
            const auto& [first, second, third, fourth] = *found;
            return Words(each.Sentence, first, second, third, fourth);
        }
    }
    return error.what();
}

} // namespace

std::string ArgumentErrorText(const CLI::Error& error) {
    return SaidAgain(error) + '\n' + std::string(Words("Run with --help for more information.")) +
           '\n';
}

} // namespace tarn
