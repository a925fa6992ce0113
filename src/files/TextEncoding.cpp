#include "files/TextEncoding.h"

#include "base/Text.h"
#include "base/Words.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <iconv.h>

namespace tarn {

namespace {

constexpr std::string_view Utf8Name = "UTF-8";

/// A byte-order mark, and the encoding that it tells.
struct Mark {
    std::string_view Bytes;
    std::string_view Encoding;
};
constexpr std::array<Mark, 3> Marks{{
    {"\xEF\xBB\xBF", Utf8Name},
    {"\xFF\xFE", "UTF-16LE"},
    {"\xFE\xFF", "UTF-16BE"},
}};

/// A name behind which no instruction to iconv can hide, such as //IGNORE, which would drop bytes.
bool IsPlainName(const std::string& name) {
    constexpr std::string_view Signs = "-_.:+()";
    return !name.empty() && std::all_of(name.begin(), name.end(), [&](char c) {
        return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
               Signs.find(c) != std::string_view::npos;
    });
}

/// A conversion to UTF-8 of the system's.
class Conversion {
  public:
    explicit Conversion(const std::string& from)
        : handle_(IsPlainName(from) ? ::iconv_open(Utf8Name.data(), from.c_str()) : None()) {
        if (handle_ == None()) {
            throw UnknownEncoding(
                Words("The encoding \"%1\" is not known; \"iconv -l\" lists those that are.",
                      ShownText(from)));
        }
    }
    ~Conversion() { ::iconv_close(handle_); }
    Conversion(const Conversion&) = delete;
    Conversion& operator=(const Conversion&) = delete;

    /// Convert the bytes, which are taken, and append the text; false where the rest begins with a
    /// misfit.
    bool Convert(std::string_view& bytes, std::string& text) {
        std::array<char, 4096> buffer{};
        while (true) {
            char* from = const_cast<char*>(bytes.data()); // which iconv does not write to
            std::size_t left = bytes.size();
            char* to = buffer.data();
            std::size_t space = buffer.size();
            const bool isDone =
                ::iconv(handle_, &from, &left, &to, &space) != static_cast<std::size_t>(-1);
            const int cause = isDone ? 0 : errno;
            text.append(buffer.data(), buffer.size() - space);
            bytes.remove_prefix(bytes.size() - left);
            if (cause != E2BIG) {
                return isDone;
            }
        }
    }

    /// Append what it still holds back at the end of the text.
    void Finish(std::string& text) {
        std::array<char, 64> buffer{};
        char* to = buffer.data();
        std::size_t space = buffer.size();
        ::iconv(handle_, nullptr, nullptr, &to, &space);
        text.append(buffer.data(), buffer.size() - space);
    }

  private:
    static ::iconv_t None() {
        return reinterpret_cast<::iconv_t>(-1); // NOLINT: as iconv_open says it
    }

    ::iconv_t handle_;
};

/// Follows a text that grows, and knows in which line and at which character it ends.
class Place {
  public:
    void Follow(std::string_view text) {
        for (; at_ < text.size(); ++at_) {
            const char c = text[at_];
            const bool endsCrLf = c == '\n' && at_ > 0 && text[at_ - 1] == '\r';
            if ((c == '\n' && !endsCrLf) || c == '\r') {
                ++line_;
                column_ = 1;
            } else if (!endsCrLf && !ContinuesCharacter(c)) {
                ++column_;
            }
        }
    }
    long long Line() const { return line_; }
    long long Column() const { return column_; }

  private:
    std::size_t at_ = 0;
    long long line_ = 1;
    long long column_ = 1;
};

std::string Hexadecimal(std::string_view bytes) {
    constexpr std::string_view Digits = "0123456789ABCDEF";
    std::string text;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        text += text.empty() ? "0x" : " 0x";
        text += Digits[byte / 16U];
        text += Digits[byte % 16U];
    }
    return text;
}

/// How many bytes are left out where they are no character.
std::size_t BytesOfUnit(std::string_view encoding) {
    const auto isOf = [encoding](std::string_view family) {
        return EqualsIgnoringCase(encoding.substr(0, family.size()), family);
    };
    return isOf("UTF-16") || isOf("UCS-2") ? 2 : isOf("UTF-32") || isOf("UCS-4") ? 4 : 1;
}

DecodedText Converted(std::string_view bytes, const std::string& encoding) {
    DecodedText decoded{{}, encoding, {}, 0};
    Conversion conversion(encoding);
    const std::size_t unit = BytesOfUnit(encoding);
    Place place;
    while (!conversion.Convert(bytes, decoded.Utf8)) {
        const std::string_view misfit = bytes.substr(0, unit);
        bytes.remove_prefix(misfit.size());
        if (decoded.Misfits.size() < MostMisfits) {
            place.Follow(decoded.Utf8);
            decoded.Misfits.push_back({place.Line(), place.Column(), Hexadecimal(misfit)});
        } else {
            ++decoded.MoreMisfits;
        }
        decoded.Utf8 += ReplacementCharacter;
    }
    conversion.Finish(decoded.Utf8);
    return decoded;
}

DecodedText AsItIs(std::string_view utf8) {
    return {std::string(utf8), std::string(Utf8Name), {}, 0};
}

} // namespace

DecodedText DecodeText(std::string_view bytes, const std::string& encoding) {
    if (!encoding.empty()) {
        const Conversion check(encoding); // a wrong name is refused whatever the text
    }
    for (const Mark& mark : Marks) {
        if (bytes.starts_with(mark.Bytes)) {
            bytes.remove_prefix(mark.Bytes.size());
            return mark.Encoding == Utf8Name ? AsItIs(bytes)
                                             : Converted(bytes, std::string(mark.Encoding));
        }
    }
    return encoding.empty() ? AsItIs(bytes) : Converted(bytes, encoding);
}

} // namespace tarn
