// Texts of the tests as the toolkit's.

#pragma once

#include <QString>

namespace tarn::testing {

inline QString S(const char* text) {
    return QString::fromUtf8(text);
}

} // namespace tarn::testing
