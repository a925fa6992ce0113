#include "files/CsvText.h"

#include <algorithm>

namespace tarn {

namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

class CsvSplitter {
  public:
    explicit CsvSplitter(std::string_view text)
        : rest_(text) {
        if (rest_.starts_with(ByteOrderMark)) {
            rest_.remove_prefix(ByteOrderMark.size());
        }
    }

    std::vector<CsvRecord> Split() {
        std::vector<CsvRecord> records;
        while (!rest_.empty()) {
            if (const std::size_t end = LineEndLength(); end > 0) {
                TakeLineEnd(end);
                continue;
            }
            records.push_back(TakeRecord());
        }
        return records;
    }

  private:
    /// Length of the line end that the rest begins with, else 0.
    std::size_t LineEndLength() const {
        if (rest_.starts_with("\r\n")) {
            return 2;
        }
        return rest_.starts_with('\n') || rest_.starts_with('\r') ? 1 : 0;
    }

    std::string_view TakeLineEnd(std::size_t length) {
        ++line_;
        return Take(length);
    }

    std::string_view Take(std::size_t length) {
        const std::string_view taken = rest_.substr(0, length);
        rest_.remove_prefix(taken.size());
        return taken;
    }

    CsvRecord TakeRecord() {
        CsvRecord record;
        record.Line = line_;
        record.Fields.push_back(TakeField(record));
        while (rest_.starts_with(',')) {
            Take(1);
            record.Fields.push_back(TakeField(record));
        }
        if (const std::size_t end = LineEndLength(); end > 0) {
            TakeLineEnd(end);
        }
        return record;
    }

    std::string TakeField(CsvRecord& record) {
        std::string field;
        const bool quoted = rest_.starts_with('"');
        if (quoted) {
            Take(1);
            if (!TakeQuoted(field)) {
                SetFault(record, CsvFault::UnclosedQuote);
            }
        }
        const std::string_view plain = Take(std::min(rest_.find_first_of(",\r\n"), rest_.size()));
        if (quoted && !plain.empty()) {
            SetFault(record, CsvFault::TextAfterQuote);
        }
        field += plain;
        return field;
    }

    /// The text up to the closing quote, which is taken too; false when there is none.
    bool TakeQuoted(std::string& field) {
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

    static void SetFault(CsvRecord& record, CsvFault fault) {
        if (record.Fault == CsvFault::None) {
            record.Fault = fault;
            record.FaultyField = record.Fields.size();
        }
    }

    std::string_view rest_;
    long long line_ = 1;
};

} // namespace

std::vector<CsvRecord> SplitCsv(std::string_view text) {
    return CsvSplitter(text).Split();
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
