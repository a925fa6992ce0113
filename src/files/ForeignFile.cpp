#include "files/ForeignFile.h"

#include "base/Words.h"

#include <algorithm>

namespace tarn {

namespace {

using namespace std::string_view_literals;

/// How far the names of the first entries of an archive are looked for.
constexpr std::size_t Beginning = 4096;

std::string_view ArchiveKind(std::string_view bytes) {
    const std::string_view begin = bytes.substr(0, std::min(bytes.size(), Beginning));
    const auto holds = [begin](std::string_view name) {
        return begin.find(name) != std::string_view::npos;
    };
    if (holds("application/vnd.oasis.opendocument.spreadsheet"sv)) {
        return Words("an OpenDocument spreadsheet (ODS)");
    }
    if (holds("[Content_Types].xml"sv) || holds("xl/"sv)) {
        return Words("an Excel workbook (XLSX)");
    }
    return Words("an archive (ZIP), as spreadsheets such as XLSX and ODS are");
}

} // namespace

std::string_view ForeignKind(std::string_view bytes) {
    if (bytes.starts_with("PK\x03\x04"sv) || bytes.starts_with("PK\x05\x06"sv)) {
        return ArchiveKind(bytes);
    }
    if (bytes.starts_with("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1"sv)) {
        return Words("an older Excel workbook (XLS) or another Office file");
    }
    if (bytes.starts_with("%PDF-"sv)) {
        return Words("a PDF document");
    }
    return {};
}

} // namespace tarn
