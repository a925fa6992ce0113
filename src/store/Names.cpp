#include "store/Names.h"

#include "app/Text.h"

#include <QString>

namespace tarn {

std::string StoredName(std::string_view name) {
    const std::string trimmed = TrimStr(name);
    return QString::fromUtf8(trimmed.data(), static_cast<qsizetype>(trimmed.size()))
        .toUpper()
        .toStdString();
}

} // namespace tarn
