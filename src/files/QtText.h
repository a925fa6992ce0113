// Between the program's UTF-8 texts and the toolkit's.

#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace tarn {

/// U+FEFF is a character like any other here, at a text's beginning, too, where the toolkit takes
/// it for a mark of the encoding.
inline QString ToQt(std::string_view text) {
    QString converted = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    if (text.starts_with("\xEF\xBB\xBF")) {
        converted.prepend(QChar(QChar::ByteOrderMark));
    }
    return converted;
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

/// The text of such characters, none of which is taken for a mark of the encoding either.
inline QString FromCharacters(std::u32string_view characters) {
    QString text;
    for (const char32_t character : characters) {
        text.append(QChar::fromUcs4(character));
    }
    return text;
}

/// A text whose lines are broken by CrLf, as widgets break them.
inline QString ToQtLines(std::string_view text) {
    return ToQt(text).remove(QLatin1Char('\r'));
}

} // namespace tarn
