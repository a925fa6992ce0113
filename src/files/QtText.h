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

/// A text whose lines are broken by CrLf, as widgets break them.
inline QString ToQtLines(std::string_view text) {
    return ToQt(text).remove(QLatin1Char('\r'));
}

} // namespace tarn
