// CSV texts by RFC 4180: records and fields, whatever they mean.

#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// What is wrong with the quoting of a field.
enum class CsvFault {
    None,
    TextAfterQuote, ///< something other than a separator or a line end follows the closing quote
    UnclosedQuote   ///< the text ends within the quotes
};

/// Most fields of a record that are kept; what has more is no table for this program, and may be
/// millions of commas.
inline constexpr std::size_t MostCsvFields = 64;

/// One record of a CSV text.
struct CsvRecord {
    long long Line = 1;              ///< the physical line on which the record begins, from 1
    std::vector<std::string> Fields; ///< the first MostCsvFields of them
    std::size_t FieldCount = 0;      ///< of all
    CsvFault Fault = CsvFault::None; ///< of the first faulty field
    std::size_t FaultyField = 0;     ///< its place among all, from 0, when there is a fault
};

/// Takes a CSV text apart by RFC 4180, record by record: fields separated by commas, or by another
/// character; a field that begins with a quote may hold separators, line ends and doubled quotes. A
/// byte-order mark at the start is skipped, lines end in CR LF, LF or CR, empty lines are no
/// records. A quote further on in a field that does not begin with one is itself, so that 12'6" can
/// be written as it is. Blanks belong to the field. The bytes of the fields are not judged; a
/// record with a fault is still split to its end.
class CsvReader {
  public:
    /// The text is not copied. The separator is neither a quote nor of a line end.
    explicit CsvReader(std::string_view text, char separator = ',');

    /// The next record; nothing behind the last one.
    std::optional<CsvRecord> Next();

  private:
    std::size_t LineEndLength() const;
    std::string_view TakeLineEnd(std::size_t length);
    std::string_view Take(std::size_t length);
    CsvRecord TakeRecord();
    void TakeField(CsvRecord& record);
    bool TakeQuoted(std::string& field);

    std::string_view rest_;
    char separator_;
    long long line_ = 1;
};

/// What keeps a spreadsheet from taking a text for a formula, and marks one that begins with
/// itself.
inline constexpr char CsvTextMark = '\'';

/// A text of the user's as a field: each TextFault in it as it is shown, and with CsvTextMark
/// before it where a spreadsheet would take it for a formula (= + - @ first) or it begins with the
/// mark.
std::string CsvTextCell(std::string_view text);

/// Append one record with a line end (CR LF) to `text`. A field is quoted when it holds a comma, a
/// quote or a line end, or would begin the text with a byte-order mark; CsvReader gives the same
/// fields back, except that one empty field alone is an empty line.
void AppendCsvRecord(std::string& text, const std::vector<std::string>& fields);

} // namespace tarn
