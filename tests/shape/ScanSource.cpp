// A reading of C++ and of CMake that is just good enough to find includes, string literals and link
// lines whatever comments stand around them.

#include "shape/Shape.h"

#include <algorithm>
#include <cctype>
#include <optional>
#include <set>

namespace tarn::testing {

namespace {

bool IsSpace(char c) {
    return std::isspace(static_cast<unsigned char>(c)) != 0;
}

bool IsWordCharacter(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_';
}

/// Goes through a text and counts its lines.
class Cursor {
  public:
    explicit Cursor(std::string_view text)
        : text_(text) {}

    bool AtEnd() const { return at_ >= text_.size(); }
    char Peek() const { return AtEnd() ? '\0' : text_[at_]; }
    char Before() const { return at_ == 0 ? '\0' : text_[at_ - 1]; }
    bool StartsWith(std::string_view word) const { return text_.substr(at_).starts_with(word); }
    int Line() const { return line_; }

    char Take() {
        const char c = Peek();
        line_ += c == '\n' ? 1 : 0;
        ++at_;
        return c;
    }
    /// What stands before `end`, which is taken as well.
    std::string TakeUntil(std::string_view end) {
        std::string taken;
        while (!AtEnd() && !StartsWith(end)) {
            taken += Take();
        }
        for (std::size_t i = 0; i < end.size() && !AtEnd(); ++i) {
            Take();
        }
        return taken;
    }

  private:
    std::string_view text_;
    std::size_t at_ = 0;
    int line_ = 1;
};

class SourceScanner {
  public:
    explicit SourceScanner(std::string_view text)
        : in_(text) {}

    ScannedSource Scan() {
        while (!in_.AtEnd()) {
            Step();
        }
        return std::move(found_);
    }

  private:
    void Step() {
        if (in_.StartsWith("//")) {
            in_.TakeUntil("\n");
            lineIsEmpty_ = true;
        } else if (in_.StartsWith("/*")) {
            in_.TakeUntil("*/");
        } else if (IsSpace(in_.Peek())) {
            lineIsEmpty_ = lineIsEmpty_ || in_.Peek() == '\n';
            word_.clear();
            in_.Take();
        } else if (in_.Peek() == '#' && lineIsEmpty_) {
            TakeDirective();
        } else {
            lineIsEmpty_ = false;
            TakeCode();
        }
    }

    void TakeDirective() {
        const int line = in_.Line();
        in_.Take();
        const auto skipBlanks = [this] {
            while (in_.Peek() == ' ' || in_.Peek() == '\t') {
                in_.Take();
            }
        };
        skipBlanks();
        if (!in_.StartsWith("include")) {
            lineIsEmpty_ = false;
            return; // the rest is read like any code
        }
        in_.TakeUntil("include");
        skipBlanks();
        const char open = in_.Take();
        const std::string end(1, open == '<' ? '>' : open);
        found_.Includes.push_back({line, open + in_.TakeUntil(end) + end});
        lineIsEmpty_ = false;
    }

    void TakeCode() {
        const char c = in_.Peek();
        if (c == '"') {
            const bool isRaw = in_.Before() == 'R';
            const int line = in_.Line();
            in_.Take();
            AddText(line, isRaw ? TakeRaw() : TakeQuoted('"'));
            return;
        }
        // What follows a digit or a letter separates digits.
        const bool isPrefixed = word_ == "u" || word_ == "U" || word_ == "L" || word_ == "u8";
        const bool isCharacter = c == '\'' && (!IsWordCharacter(in_.Before()) || isPrefixed);
        const bool mayBePrefix = in_.StartsWith("R\"") || in_.StartsWith("u8");
        joins_ = joins_ && mayBePrefix;
        in_.Take();
        if (isCharacter) {
            TakeQuoted('\'');
        }
        if (IsWordCharacter(c)) {
            word_ += c;
        } else {
            isSaying_ =
                c == '(' ? word_ == "Words" || word_ == "CountedWords" : c == ',' && isSaying_;
            word_.clear();
        }
    }

    std::string TakeQuoted(char end) {
        std::string text;
        while (!in_.AtEnd() && in_.Peek() != end) {
            if (in_.Peek() == '\\') {
                text += in_.Take();
            }
            text += in_.Take();
        }
        in_.Take();
        return text;
    }

    std::string TakeRaw() {
        const std::string delimiter = in_.TakeUntil("(");
        return in_.TakeUntil(")" + delimiter + "\"");
    }

    void AddText(int line, const std::string& text) {
        if (joins_) {
            found_.Texts.back().Text += text;
        } else {
            found_.Texts.push_back({line, text, isSaying_});
        }
        joins_ = true;
    }

    Cursor in_;
    ScannedSource found_;
    bool lineIsEmpty_ = true;
    bool joins_ = false;    ///< nothing but blanks since the last literal
    std::string word_;      ///< that is being read
    bool isSaying_ = false; ///< behind the parenthesis of a call of Words, or literals in it alone
};

/// The next word of a CMakeLists.txt, or a parenthesis; nothing at the end.
std::optional<ScannedSource::Item> NextWord(Cursor& in) {
    while (!in.AtEnd()) {
        if (in.Peek() == '#') {
            in.TakeUntil("\n");
        } else if (IsSpace(in.Peek())) {
            in.Take();
        } else {
            break;
        }
    }
    if (in.AtEnd()) {
        return std::nullopt;
    }
    const int line = in.Line();
    if (in.Peek() == '(' || in.Peek() == ')') {
        return ScannedSource::Item{line, std::string(1, in.Take())};
    }
    if (in.Peek() == '"') {
        in.Take();
        return ScannedSource::Item{line, in.TakeUntil("\"")};
    }
    std::string word;
    while (!in.AtEnd() && !IsSpace(in.Peek()) && in.Peek() != '(' && in.Peek() != ')') {
        word += in.Take();
    }
    return ScannedSource::Item{line, word};
}

std::string LowerCase(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

} // namespace

ScannedSource ScanSource(std::string_view text) {
    return SourceScanner(text).Scan();
}

std::vector<ScannedSource::Item> ScanLinkLines(std::string_view text) {
    const std::set<std::string> linking{"target_link_libraries", "tarn_add_library",
                                        "link_libraries"};
    const std::set<std::string> scopes{"LIBS", "PUBLIC", "PRIVATE", "INTERFACE"};
    std::vector<ScannedSource::Item> libraries;
    Cursor in(text);
    std::string command;
    int depth = 0;
    int position = 0; // of the word among the command's arguments
    bool isLibrary = false;
    while (const auto word = NextWord(in)) {
        if (word->Text == "(") {
            ++depth;
        } else if (word->Text == ")") {
            --depth;
        } else if (depth == 0) {
            command = LowerCase(word->Text);
            position = 0;
            isLibrary = command == "link_libraries";
        } else if (linking.contains(command)) {
            ++position;
            if (scopes.contains(word->Text) || word->Text == "SOURCES") {
                isLibrary = word->Text != "SOURCES";
            } else if (isLibrary || (command == "target_link_libraries" && position > 1)) {
                libraries.push_back(*word);
            }
        }
    }
    return libraries;
}

} // namespace tarn::testing
