// Between the program's UTF-8 texts and the toolkit's.

#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace tarn {

inline QString ToQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string FromQt(const QString& text) {
    return text.toStdString();
}

/// The characters of a text one by one; half of a surrogate pair that stands alone is one, too.
inline std::u32string ToCharacters(const QString& text) {
    std::u32string characters;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isPair =
            text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        characters +=
            isPair ? QChar::surrogateToUcs4(text[i], text[i + 1]) : char32_t{text[i].unicode()};
        i += isPair ? 1 : 0;
    }
    return characters;
}

/// A text whose lines are broken by CrLf, as widgets break them.
inline QString ToQtLines(std::string_view text) {
    return ToQt(text).remove(QLatin1Char('\r'));
}

} // namespace tarn
