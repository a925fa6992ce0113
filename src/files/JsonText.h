#pragma once

#include <string>

class QJsonObject;

namespace tarn {

/// A JSON document as it is written: UTF-8, indented, ending with a line feed, with escapes for all
/// control characters.
std::string JsonText(const QJsonObject& document);

} // namespace tarn
