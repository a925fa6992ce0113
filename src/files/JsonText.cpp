#include "files/JsonText.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <string_view>

namespace tarn {

namespace {

/// The text of a document with escapes for the control characters that the toolkit leaves as they
/// are in texts, DEL and U+0080 to U+009F: printed on a terminal they would move things.
std::string WithEscapedControls(std::string_view json) {
    constexpr char LeadOfHighControls = '\xC2';
    std::string escaped;
    escaped.reserve(json.size());
    for (std::size_t i = 0; i < json.size(); ++i) {
        const bool high = json[i] == LeadOfHighControls && i + 1 < json.size();
        const auto code = static_cast<unsigned char>(high ? json[i + 1] : json[i]);
        if (code >= 0x7FU && code < 0xA0U && (high || code == 0x7FU)) {
            escaped += code < 0x80U ? "\\u007" : code < 0x90U ? "\\u008" : "\\u009";
            escaped += "0123456789abcdef"[code % 16U];
            i += high ? 1 : 0;
        } else {
            escaped += json[i];
        }
    }
    return escaped;
}

} // namespace

std::string JsonText(const QJsonObject& document) {
    return WithEscapedControls(
        QJsonDocument(document).toJson(QJsonDocument::Indented).toStdString());
}

} // namespace tarn
