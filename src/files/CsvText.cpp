#include "files/CsvText.h"

#include "base/Text.h"

#include <algorithm>
#include <array>

namespace tarn {

namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

void SetFault(CsvRecord& record, CsvFault fault) {
    if (record.Fault == CsvFault::None) {
        record.Fault = fault;
        record.FaultyField = record.FieldCount;
    }
}

} // namespace

CsvReader::CsvReader(std::string_view text, char separator)
    : rest_(text)
    , separator_(separator) {
    if (rest_.starts_with(ByteOrderMark)) {
        rest_.remove_prefix(ByteOrderMark.size());
    }
}

std::optional<CsvRecord> CsvReader::Next() {
    while (!rest_.empty()) {
        const std::size_t end = LineEndLength();
        if (end == 0) {
            return TakeRecord();
        }
        TakeLineEnd(end);
    }
    return std::nullopt;
}

/// Length of the line end that the rest begins with, else 0.
std::size_t CsvReader::LineEndLength() const {
    if (rest_.starts_with("\r\n")) {
        return 2;
    }
    return rest_.starts_with('\n') || rest_.starts_with('\r') ? 1 : 0;
}

std::string_view CsvReader::TakeLineEnd(std::size_t length) {
    ++line_;
    return Take(length);
}

std::string_view CsvReader::Take(std::size_t length) {
    const std::string_view taken = rest_.substr(0, length);
    rest_.remove_prefix(taken.size());
    return taken;
}

CsvRecord CsvReader::TakeRecord() {
    CsvRecord record;
    record.Line = line_;
    TakeField(record);
    while (rest_.starts_with(separator_)) {
        Take(1);
        TakeField(record);
    }
    if (const std::size_t end = LineEndLength(); end > 0) {
        TakeLineEnd(end);
    }
    return record;
}

void CsvReader::TakeField(CsvRecord& record) {
    std::string field;
    const bool quoted = rest_.starts_with('"');
    if (quoted) {
        Take(1);
        if (!TakeQuoted(field)) {
            SetFault(record, CsvFault::UnclosedQuote);
        }
    }
    const std::array<char, 3> ends{separator_, '\r', '\n'};
    const std::string_view plain = Take(
        std::min(rest_.find_first_of(std::string_view(ends.data(), ends.size())), rest_.size()));
    if (quoted && !plain.empty()) {
        SetFault(record, CsvFault::TextAfterQuote);
    }
    field += plain;
    if (record.FieldCount++ < MostCsvFields) {
        record.Fields.push_back(std::move(field));
    }
}

/// The text up to the closing quote, which is taken too; false when there is none.
bool CsvReader::TakeQuoted(std::string& field) {
    while (!rest_.empty()) {
        if (rest_.starts_with("\"\"")) {
            field += Take(2).front();
        } else if (rest_.starts_with('"')) {
            Take(1);
            return true;
        } else if (const std::size_t end = LineEndLength(); end > 0) {
            field += TakeLineEnd(end);
        } else {
            field += Take(std::min(rest_.find_first_of("\"\r\n"), rest_.size()));
        }
    }
    return false;
}

std::string CsvTextCell(std::string_view text) {
    constexpr std::string_view MarkedStarts = "=+-@'";
    const std::string shown = ShownText(text);
    const bool marked = !shown.empty() && MarkedStarts.find(shown.front()) != std::string::npos;
    return marked ? CsvTextMark + shown : shown;
}

void AppendCsvRecord(std::string& text, const std::vector<std::string>& fields) {
    std::string_view separator;
    for (const std::string& field : fields) {
        text += separator;
        separator = ",";
        // A mark at the start of the text would be taken for the file's.
        if (field.find_first_of(",\"\r\n") == std::string::npos &&
            !(text.empty() && field.starts_with(ByteOrderMark))) {
            text += field;
            continue;
        }
        text += '"';
        for (const char c : field) {
            text.append(c == '"' ? 2 : 1, c);
        }
        text += '"';
    }
    text += "\r\n";
}

} // namespace tarn
