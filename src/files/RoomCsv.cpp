#include "files/RoomCsv.h"

#include "base/Lengths.h"
#include "base/Text.h"
#include "files/CsvText.h"
#include "files/QtText.h"
#include "project/Coverings.h"
#include "project/RoomEntry.h"
#include "project/WallBase.h"

#include <QString>

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <optional>

namespace tarn {

namespace {

enum class Column { Width, Length, Covering, Base, Room, Remark };

constexpr std::array<std::string_view, 6> ColumnNames{"width", "length", "covering",
                                                      "base",  "room",   "remark"};
constexpr std::size_t RequiredColumns = 3;

constexpr std::string_view SaveAsUtf8 = "; save it as UTF-8 (\"CSV UTF-8\" in a spreadsheet)";

std::string_view NameOf(Column column) {
    return ColumnNames[static_cast<std::size_t>(column)];
}

/// What is wrong with a file as a whole, as spreadsheets save one, or nothing: every line of it
/// would otherwise be a mistake.
std::string FormProblem(std::string_view text, const CsvRecord& header) {
    using namespace std::string_view_literals;
    for (const std::string_view utf16Mark : {"\xFF\xFE"sv, "\xFE\xFF"sv}) {
        if (text.starts_with(utf16Mark)) {
            return "the file is not UTF-8" + std::string(SaveAsUtf8);
        }
    }
    if (header.Fault == CsvFault::None && header.Fields.size() == 1) {
        for (const auto& [separator, name] : {std::pair{';', "semicolons"}, {'\t', "tabs"}}) {
            if (header.Fields.front().find(separator) != std::string::npos) {
                return "the columns are separated by " + std::string(name) +
                       "; save the file with commas between them";
            }
        }
    }
    return {};
}

std::optional<Column> ColumnOf(std::string_view headerField) {
    const std::string name = ToQt(headerField).trimmed().toLower().toStdString();
    const auto* const found = std::find(ColumnNames.begin(), ColumnNames.end(), name);
    if (found == ColumnNames.end()) {
        return std::nullopt;
    }
    return static_cast<Column>(found - ColumnNames.begin());
}

// Each of the following sets one field of a room and answers what is wrong with the text, or
// nothing.

using Problem = std::string;

Problem TakeSize(std::string_view field, Units units, Integer& size) {
    constexpr long long Most = std::numeric_limits<Integer>::max();
    const bool metric = units == Units::Metric;
    const std::string trimmed = TrimStr(field);
    std::string_view text = trimmed;
    if (text.empty()) {
        return "is missing";
    }
    const bool negative = text.front() == '-';
    if (negative) {
        text.remove_prefix(1);
    }
    long long value = 0;
    if (!text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos) {
        const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
        if (result.ec != std::errc()) {
            value = Most + 1;
        }
    } else if (const auto inches = metric ? std::nullopt : ReadFeetAndInches(text)) {
        value = *inches;
    } else {
        return metric ? "is not a size in whole centimetres"
                      : "is not a size in whole inches, or in feet and inches such as 12'6\"";
    }
    if (negative) {
        return "is negative";
    }
    if (value > Most) {
        return "is too large: a size is at most " + TrimStr(Most);
    }
    size = static_cast<Integer>(value);
    return {};
}

Problem TakeCovering(std::string_view field, Byte& covering) {
    if (TrimStr(field).empty()) {
        return "is missing";
    }
    const auto code = ReadCovering(field);
    if (!code) {
        return "is not a covering: " + CoveringCaption(0) + " to " +
               CoveringCaption(FirstTileCode - 1) + ", " + CoveringCaption(FirstTileCode) + " to " +
               CoveringCaption(LastTileCode) + ", or short as " + CoveringReportText(0) + " or " +
               CoveringReportText(FirstTileCode);
    }
    covering = *code;
    return {};
}

Problem CheckLength(std::string_view text, long long most) {
    if (Len(text) > most) {
        return "has more than " + TrimStr(most) + " characters";
    }
    return {};
}

Problem TakeBase(std::string_view field, Byte& base) {
    const std::string text = TrimStr(field);
    if (Problem problem = CheckLength(text, MaxBaseTextLength); !problem.empty()) {
        return problem;
    }
    if (!IsBaseText(text)) {
        return "is not a wall base: L or W with 1 or 2, such as " + BaseText(5);
    }
    base = BaseCode(text);
    return {};
}

Problem CheckCharacters(std::string_view text) {
    switch (FindTextFault(text)) {
    case TextFault::NotUtf8:
        return "is not valid UTF-8" + std::string(SaveAsUtf8);
    case TextFault::ControlCharacter:
        return "holds a line break or another control character; write it in one line";
    case TextFault::NoCharacter:
        return "holds U+FFFE or U+FFFF, which are no characters; leave them out";
    case TextFault::None:
        break;
    }
    return {};
}

Problem TakeText(std::string_view field, long long most, std::string& text) {
    if (field.starts_with(CsvTextMark)) {
        field.remove_prefix(1);
    }
    text = field;
    Problem problem = CheckCharacters(field);
    return problem.empty() ? CheckLength(field, most) : problem;
}

Problem TakeField(Column column, std::string_view field, Units units, Room& room) {
    if (FindTextFault(field) == TextFault::NotUtf8) {
        return CheckCharacters(field);
    }
    switch (column) {
    case Column::Width:
        return TakeSize(field, units, room.Width);
    case Column::Length:
        return TakeSize(field, units, room.Length);
    case Column::Covering:
        return TakeCovering(field, room.Covering);
    case Column::Base:
        return TakeBase(field, room.Base);
    case Column::Room:
        return TakeText(field, MaxRoomNumberLength, room.Number);
    case Column::Remark:
        return TakeText(field, MaxRemarkLength, room.Remark);
    }
    return {};
}

class RoomCsvReader {
  public:
    explicit RoomCsvReader(Units units)
        : units_(units) {}

    RoomCsvReading Read(std::string_view text) && {
        CsvReader records(text);
        const auto header = records.Next();
        std::string problem = header ? FormProblem(text, *header) : "the file is empty";
        if (!problem.empty()) {
            AddError(1, std::move(problem));
            return std::move(reading_);
        }
        ReadHeader(*header);
        for (std::size_t count = 1; const auto record = records.Next(); ++count) {
            if (count == RoomCapacity + 1) {
                AddError(record->Line, std::string(ProjectFullText));
            }
            ReadRoom(*record);
        }
        if (!reading_.Succeeded()) {
            reading_.Rooms.clear();
        }
        return std::move(reading_);
    }

  private:
    void AddError(long long line, std::string problem) {
        AddError(line, {}, {}, std::move(problem));
    }
    void AddError(long long line, std::string_view field, std::string value, std::string problem) {
        if (reading_.Errors.size() < MaxRoomCsvErrors) {
            reading_.Errors.push_back(
                {line, std::string(field), std::move(value), std::move(problem)});
        } else {
            ++reading_.MoreErrors;
        }
    }

    /// Report the fault of a record, if it has one; whether it has.
    bool ReportFault(const CsvRecord& record) {
        if (record.Fault == CsvFault::None) {
            return false;
        }
        const std::size_t faulty = record.FaultyField;
        const bool known = faulty < columns_.size() && columns_[faulty].has_value();
        AddError(record.Line, known ? NameOf(*columns_[faulty]) : "field",
                 faulty < record.Fields.size() ? record.Fields[faulty] : std::string(),
                 record.Fault == CsvFault::UnclosedQuote ? "has a quote that is never closed"
                                                         : "has text behind its closing quote");
        return true;
    }

    void ReadHeader(const CsvRecord& header) {
        constexpr std::string_view HeaderField = "column";
        columnCount_ = header.FieldCount;
        if (ReportFault(header)) {
            columns_.resize(header.Fields.size());
            return;
        }
        for (const std::string& field : header.Fields) {
            const auto column = ColumnOf(field);
            if (TrimStr(field).empty()) {
                AddError(header.Line, "a column has no name");
            } else if (!column) {
                AddError(header.Line, HeaderField, field, "is unknown");
            } else if (Has(*column)) {
                AddError(header.Line, HeaderField, field, "appears twice");
            }
            columns_.push_back(column);
        }
        if (columnCount_ > MostCsvFields) {
            AddError(header.Line, "the line has " + TrimStr(static_cast<long long>(columnCount_)) +
                                      " columns; a room has " +
                                      TrimStr(static_cast<long long>(ColumnNames.size())));
        }
        for (std::size_t i = 0; i < RequiredColumns; ++i) {
            if (!Has(static_cast<Column>(i))) {
                AddError(header.Line, HeaderField, std::string(ColumnNames[i]), "is missing");
            }
        }
    }

    bool Has(Column column) const {
        return std::find(columns_.begin(), columns_.end(), column) != columns_.end();
    }

    void ReadRoom(const CsvRecord& record) {
        if (ReportFault(record)) {
            return;
        }
        if (record.FieldCount != columnCount_) {
            AddError(record.Line,
                     "the line has " + TrimStr(static_cast<long long>(record.FieldCount)) +
                         " fields and the header " + TrimStr(static_cast<long long>(columnCount_)));
            return;
        }
        Room room;
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            if (const auto column = columns_[i]) {
                std::string problem = TakeField(*column, record.Fields[i], units_, room);
                if (!problem.empty()) {
                    AddError(record.Line, NameOf(*column), record.Fields[i], std::move(problem));
                }
            }
        }
        if (reading_.Rooms.size() < RoomCapacity) {
            reading_.Rooms.push_back(std::move(room));
        }
    }

    Units units_;
    /// By field, as many as are kept; nothing for one that is left out.
    std::vector<std::optional<Column>> columns_;
    std::size_t columnCount_ = 0; ///< of all
    RoomCsvReading reading_;
};

/// A value for one line of text: control characters as blanks, invalid bytes as replacement
/// characters, and not too long.
std::string Shown(std::string_view value) {
    constexpr qsizetype Most = 40;
    QString text = ToQt(OneLine(value));
    if (text.size() > Most) {
        text.truncate(Most);
        if (text.back().isHighSurrogate()) {
            text.chop(1);
        }
        text += QStringLiteral("...");
    }
    return text.toStdString();
}

} // namespace

std::string MistakeText(const RoomCsvError& error) {
    if (error.Field.empty()) {
        return error.Problem;
    }
    if (error.Value.empty()) {
        return error.Field + " " + error.Problem;
    }
    return error.Field + " \"" + Shown(error.Value) + "\" " + error.Problem;
}

std::string ErrorText(const RoomCsvError& error) {
    return "line " + TrimStr(error.Line) + ": " + MistakeText(error);
}

RoomCsvReading ReadRoomCsv(std::string_view text, Units units) {
    return RoomCsvReader(units).Read(text);
}

std::string WriteRoomCsv(const std::vector<Room>& rooms) {
    std::string text;
    AppendCsvRecord(text, {ColumnNames.begin(), ColumnNames.end()});
    for (const Room& room : rooms) {
        AppendCsvRecord(text,
                        {TrimStr(room.Width), TrimStr(room.Length), CoveringName(room.Covering),
                         BaseText(room.Base), CsvTextCell(room.Number), CsvTextCell(room.Remark)});
    }
    return text;
}

} // namespace tarn
