#include "files/RoomCsv.h"

#include "base/Format.h"
#include "base/Lengths.h"
#include "base/Numbers.h"
#include "base/TakeNumber.h"
#include "base/Text.h"
#include "base/Words.h"
#include "files/CsvText.h"
#include "files/ForeignFile.h"
#include "files/RoomHeadings.h"
#include "files/TextEncoding.h"
#include "project/Coverings.h"
#include "project/RoomEntry.h"
#include "project/WallBase.h"
#include "project/WholeLength.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <functional>
#include <limits>
#include <optional>
#include <utility>

namespace tarn {

namespace {

bool IsDigits(std::string_view text) {
    return !text.empty() && text.find_first_not_of(DecimalDigits) == std::string_view::npos;
}

std::string Counted(std::size_t count) {
    return TrimStr(static_cast<long long>(count));
}

/// A value for one line of text: control characters as blanks, invalid bytes as replacement
/// characters, and not too long.
std::string Shown(std::string_view value) {
    constexpr std::size_t Most = 40; // characters, of which those beyond U+FFFF count twice
    constexpr unsigned char FirstOfFourBytes = 0xF0;
    std::string line = WellFormedText(OneLine(value));
    std::size_t count = 0;
    for (std::size_t at = 0; at < line.size(); ++at) {
        if (ContinuesCharacter(line[at])) {
            continue;
        }
        count += static_cast<unsigned char>(line[at]) >= FirstOfFourBytes ? 2 : 1;
        if (count > Most) {
            return line.substr(0, at) + "...";
        }
    }
    return line;
}

/// A cell of the table.
struct Cell {
    std::string_view Field; ///< of a room; empty for a heading, and below none that is known
    std::string_view Value;
    bool IsHeading = false;
};

/// A cell as its mistakes name it.
std::string CellText(const Cell& cell) {
    const std::string value = Shown(cell.Value);
    if (cell.IsHeading) {
        return Words("column \"%1\"", value);
    }
    if (cell.Field.empty()) {
        return cell.Value.empty() ? std::string(Words("field")) : Words("field \"%1\"", value);
    }
    return cell.Value.empty() ? std::string(cell.Field) : Words("%1 \"%2\"", cell.Field, value);
}

// Each of the following sets one field of a room and answers what is wrong with the text, or
// nothing.

/// What is wrong with a cell, or else to be said of it: the sentence for the cell's text; none when
/// nothing is.
using Problem = std::function<std::string(const std::string& cell)>;

/// The problem of a sentence with the cell as %1 and `more` as %2, %3, ..
template <typename... More>
Problem Says(Phrase sentence, More... more) {
    return [=](const std::string& cell) { return Words(sentence, cell, more...); };
}

/// What a size column holds.
struct SizeColumn {
    Units In = Units::Imperial;
    std::optional<LengthUnit> Unit; ///< that the heading names
};

/// What is wrong with a number such as 3,45, in words that say how to write it; empty for another
/// text.
Problem CommaProblem(std::string_view text, const SizeColumn& column) {
    const std::size_t comma = text.find(',');
    if (comma == std::string_view::npos) {
        return {};
    }
    const std::string whole(text.substr(0, comma));
    const std::string places(text.substr(comma + 1));
    if (!IsDigits(whole) || !IsDigits(places)) {
        return {};
    }
    const std::string point = whole + "." + places;
    constexpr std::size_t Thousand = 3;
    if (places.size() == Thousand) { // 1,200 may be one as well as the other
        return Says(Words("%1 has a comma: write %2, or %3"), point, whole + places);
    }
    if (column.Unit) {
        return Says(Words("%1 has a decimal comma: write %2"), point);
    }
    return Says(Words("%1 has a decimal comma: write %2 below a heading with its unit, such as %3"),
                point, std::string(column.In == Units::Metric ? "width (m)" : "width (ft)"));
}

/// The size of a whole number, or of feet and inches. A size too large for a room is one more than
/// the largest.
std::optional<long long> PlainSize(std::string_view text, Units units) {
    if (IsDigits(text)) {
        long long value = 0;
        const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
        return result.ec == std::errc() ? value : std::numeric_limits<Integer>::max() + 1LL;
    }
    const auto inches = units == Units::Metric ? std::nullopt : ReadFeetAndInches(text);
    return inches ? std::optional<long long>(*inches) : std::nullopt;
}

/// A number with at most as many places as a length is read with. What spreadsheets compute has
/// more, of which the last are noise.
std::string ShortNumber(std::string_view number) {
    constexpr std::size_t MostPlaces = 6;
    const std::size_t point = number.find('.');
    const bool isLong = point != std::string_view::npos && number.size() - point - 1 > MostPlaces;
    return isLong ? Format(Val(number), "0.000000") : std::string(number);
}

/// The size of a text below a heading that names a unit, as the fields on the screen would read it,
/// before it is rounded. Nothing when it is none.
std::optional<Double> SizeInUnit(std::string_view text, const SizeColumn& column) {
    constexpr std::size_t MostDigits = 9;
    std::string_view rest = text;
    const std::string_view number = TakeNumber(rest);
    if (rest.empty() && std::min(number.find('.'), number.size()) > MostDigits) {
        return std::numeric_limits<Double>::max();
    }
    std::string length(text);
    if (rest.empty() && !number.empty()) {
        const bool isLarge = column.Unit->Part == SizePart::Major;
        const char* const unit =
            column.In == Units::Metric ? (isLarge ? "m" : "cm") : (isLarge ? "ft" : "in");
        length = ShortNumber(number) + unit;
    } else if (const auto inches = PlainSize(text, column.In)) {
        return static_cast<Double>(*inches);
    }
    const auto whole = ReadWholeLength(length);
    return whole && whole->In == column.In ? std::optional(JoinedSize(whole->Parts, column.In))
                                           : std::nullopt;
}

Phrase NoSize(const SizeColumn& column) {
    if (column.In == Units::Metric) {
        return column.Unit ? Words("%1 is not a size such as 3.45 or 3.45m")
                           : Words("%1 is not a size in whole centimetres");
    }
    return column.Unit
               ? Words("%1 is not a size such as 12.5 or 12'6\"")
               : Words("%1 is not a size in whole inches, or in feet and inches such as 12'6\"");
}

Problem TakeSize(std::string_view field, const SizeColumn& column, Integer& size, Problem& note) {
    constexpr long long Most = std::numeric_limits<Integer>::max();
    const std::string trimmed = TrimStr(field);
    std::string_view text = trimmed;
    if (text.empty()) {
        return Says(Words("%1 is missing"));
    }
    const bool negative = text.front() == '-';
    if (negative) {
        text.remove_prefix(1);
    }
    if (Problem problem = CommaProblem(text, column)) {
        return problem;
    }
    std::optional<Double> value;
    if (column.Unit) {
        value = SizeInUnit(text, column);
    } else if (const auto plain = PlainSize(text, column.In)) {
        value = static_cast<Double>(*plain);
    }
    if (!value) {
        return Says(NoSize(column));
    }
    if (negative) {
        return Says(Words("%1 is negative"));
    }
    if (*value > Most) {
        return Says(Words("%1 is too large: a size is at most %2"), TrimStr(Most));
    }
    size = CInt(*value);
    constexpr Double Noise = 0.001; // of what a spreadsheet computes
    if (std::abs(*value - static_cast<Double>(size)) > Noise) {
        note = Says(Words("%1 is kept as %2"),
                    WholeLengthText(size, column.In) + (column.In == Units::Metric ? " cm" : ""));
    }
    return {};
}

Problem TakeCovering(std::string_view field, Byte& covering) {
    if (TrimStr(field).empty()) {
        return Says(Words("%1 is missing"));
    }
    const auto code = ReadCovering(field);
    if (!code) {
        return [](const std::string& cell) {
            return Words("%1 is not a covering: %2 to %3, %4 to %5, or short as %6 or %7", cell,
                         CoveringName(0), CoveringName(FirstTileCode - 1),
                         CoveringName(FirstTileCode), CoveringName(LastTileCode),
                         CoveringReportText(0), CoveringReportText(FirstTileCode));
        };
    }
    covering = *code;
    return {};
}

Problem CheckLength(std::string_view text, long long most) {
    if (Len(text) > most) {
        return Says(Words("%1 has more than %2 characters"), TrimStr(most));
    }
    return {};
}

Problem TakeBase(std::string_view field, Byte& base) {
    const std::string text = TrimStr(field);
    if (Problem problem = CheckLength(text, MaxBaseTextLength)) {
        return problem;
    }
    if (!IsBaseText(text)) {
        return Says(Words("%1 is not a wall base: L or W with 1 or 2, such as %2"), BaseText(5));
    }
    base = BaseCode(text);
    return {};
}

Problem CheckCharacters(std::string_view text) {
    switch (FindTextFault(text)) {
    case TextFault::NotUtf8:
        return Says(
            Words("%1 is not valid UTF-8; save it as UTF-8 (\"CSV UTF-8\" in a spreadsheet)"));
    case TextFault::ControlCharacter:
        return Says(
            Words("%1 holds a line break or another control character; write it in one line"));
    case TextFault::NoCharacter:
        return Says(Words("%1 holds U+FFFE or U+FFFF, which are no characters; leave them out"));
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
    return problem ? problem : CheckLength(field, most);
}

/// `note` is set when something of the field was not kept.
Problem TakeField(const RoomHeading& column, std::string_view field, Units units, Room& room,
                  Problem& note) {
    if (FindTextFault(field) == TextFault::NotUtf8) {
        return CheckCharacters(field);
    }
    switch (column.Field) {
    case RoomField::Width:
        return TakeSize(field, {units, column.Unit}, room.Width, note);
    case RoomField::Length:
        return TakeSize(field, {units, column.Unit}, room.Length, note);
    case RoomField::Covering:
        return TakeCovering(field, room.Covering);
    case RoomField::Base:
        return TakeBase(field, room.Base);
    case RoomField::Room:
        return TakeText(field, MaxRoomNumberLength, room.Number);
    case RoomField::Remark:
        return TakeText(field, MaxRemarkLength, room.Remark);
    }
    return {};
}

/// What is wrong with the unit that a heading names, if anything.
Problem UnitProblem(const RoomHeading& heading, Units units) {
    if (!heading.Unit || heading.Unit->In == units) {
        return {};
    }
    if (!heading.Unit->In) {
        return Says(
            Words("%1 has a unit in which no size is read; give the sizes in ft, in, m or cm"));
    }
    return Says(units == Units::Metric
                    ? Words("%1 is in feet or inches, and the rooms are read in metric; read them "
                            "without metric")
                    : Words("%1 is in metric, and the rooms are read in feet and inches; read them "
                            "with metric"));
}

/// Whether a record is the headings of a table: the sizes have theirs in every one.
bool HasHeadings(const CsvRecord& record) {
    return std::any_of(record.Fields.begin(), record.Fields.end(), [](const std::string& field) {
        const auto heading = ReadRoomHeading(field);
        return heading && IsSize(heading->Field);
    });
}

/// Where the separator is looked for, the first that is tried first.
constexpr std::array<char, 3> Separators{',', ';', '\t'};

/// The separator of a text: the one by which its first record has the most known headings, else the
/// most fields; of equals the first in Separators.
char SeparatorOf(std::string_view text) {
    char best = Separators.front();
    std::pair<std::size_t, std::size_t> most;
    for (const char separator : Separators) {
        const auto record = CsvReader(text, separator).Next();
        if (!record) {
            break;
        }
        const auto known = static_cast<std::size_t>(
            std::count_if(record->Fields.begin(), record->Fields.end(),
                          [](const auto& field) { return ReadRoomHeading(field).has_value(); }));
        if (const std::pair found(known, record->FieldCount); found > most) {
            most = found;
            best = separator;
        }
    }
    return best;
}

/// The separator that a first line "sep=;" names, as spreadsheets write and take it; nothing
/// without such a line.
std::optional<char> NamedSeparator(std::string_view text) {
    constexpr std::string_view Name = "sep=";
    const std::string_view line = text.substr(0, std::min(text.find_first_of("\r\n"), text.size()));
    if (line.size() != Name.size() + 1 || !EqualsIgnoringCase(line.substr(0, Name.size()), Name)) {
        return std::nullopt;
    }
    const auto* const found = std::find(Separators.begin(), Separators.end(), line.back());
    return found == Separators.end() ? std::nullopt : std::optional(*found);
}

class RoomCsvReader {
  public:
    RoomCsvReader(Units units, std::size_t most)
        : units_(units)
        , most_(most) {}

    /// A file: what it is and how it is written is found out.
    RoomCsvReading ReadFile(std::string_view bytes, const std::string& encoding) && {
        if (const std::string_view kind = ForeignKind(bytes); !kind.empty()) {
            AddError(1, Words("the file is %1; open it in a spreadsheet and save it as CSV", kind));
            return std::move(reading_);
        }
        const DecodedText decoded = DecodeText(bytes, encoding);
        for (const MisfitBytes& misfit : decoded.Misfits) {
            AddError(misfit.Line,
                     Words("column %1: the byte %2 is none of %3", TrimStr(misfit.Column),
                           misfit.Bytes, ShownText(decoded.Encoding)));
        }
        reading_.MoreErrors += decoded.MoreMisfits;
        if (!reading_.Succeeded()) {
            return std::move(reading_);
        }
        const std::string_view text = decoded.Utf8;
        const auto named = NamedSeparator(text);
        CsvReader records(text, named ? *named : SeparatorOf(text));
        if (named) {
            records.Next(); // the line that names it
        }
        const auto first = records.Next();
        if (!first) {
            AddError(1, Words("the file is empty"));
            return std::move(reading_);
        }
        ReadHeader(*first);
        ReadRooms(records);
        return Result();
    }

    /// What was copied in a spreadsheet.
    RoomCsvReading ReadPasted(std::string_view text) && {
        if (text.size() > MaxRoomCsvBytes) {
            AddError(1, Words("the text has more than %1 MB",
                              Counted(MaxRoomCsvBytes / (std::size_t{1024} * 1024))));
            return std::move(reading_);
        }
        const std::string_view line =
            text.substr(0, std::min(text.find_first_of("\r\n"), text.size()));
        const bool isOfCells = line.find('\t') != std::string_view::npos;
        CsvReader records(text, isOfCells ? '\t' : SeparatorOf(text));
        const auto first = records.Next();
        if (!first) {
            AddError(1, Words("there is no text to paste"));
            return std::move(reading_);
        }
        if (HasHeadings(*first)) {
            ReadHeader(*first);
        } else if (TakeUsualColumns(*first)) {
            ReadRecord(*first);
        } else {
            return std::move(reading_);
        }
        ReadRooms(records);
        return Result();
    }

  private:
    RoomCsvReading Result() {
        if (!reading_.Succeeded()) {
            reading_.Rooms.clear();
            reading_.Notes.clear();
            reading_.MoreNotes = 0;
        }
        return std::move(reading_);
    }

    void ReadRooms(CsvReader& records) {
        while (const auto record = records.Next()) {
            ReadRecord(*record);
        }
    }

    /// A record of a room; one of empty fields alone, as spreadsheets write an empty row, is none.
    void ReadRecord(const CsvRecord& record) {
        const bool isEmpty = record.Fault == CsvFault::None &&
                             record.FieldCount == record.Fields.size() &&
                             std::all_of(record.Fields.begin(), record.Fields.end(),
                                         [](const std::string& field) { return field.empty(); });
        if (isEmpty) {
            return;
        }
        if (++count_ == most_ + 1) {
            AddError(record.Line, ProjectFullText);
        }
        ReadRoom(record);
    }

    /// The columns of a table without headings; false when it has too few or too many of them.
    bool TakeUsualColumns(const CsvRecord& record) {
        columnCount_ = record.FieldCount;
        if (columnCount_ < NeededRoomFields || columnCount_ > RoomFieldNames.size()) {
            AddError(record.Line,
                     CountedWords("there are no headings, and %n column: without headings they "
                                  "are %1, of which the first %2 are needed",
                                  "there are no headings, and %n columns: without headings they "
                                  "are %1, of which the first %2 are needed",
                                  static_cast<long long>(columnCount_), UsualColumns(),
                                  Counted(NeededRoomFields)));
            return false;
        }
        for (std::size_t i = 0; i < columnCount_; ++i) {
            columns_.push_back(RoomHeading{static_cast<RoomField>(i), std::nullopt});
        }
        return true;
    }

    static std::string UsualColumns() {
        std::string text;
        for (const std::string_view name : RoomFieldNames) {
            text.append(text.empty() ? "" : ", ").append(name);
        }
        return text;
    }

    void AddError(long long line, std::string problem) {
        if (reading_.Errors.size() < MaxRoomCsvErrors) {
            reading_.Errors.push_back({line, {}, {}, std::move(problem)});
        } else {
            ++reading_.MoreErrors;
        }
    }
    void AddError(long long line, const Cell& cell, const Problem& problem) {
        Keep(reading_.Errors, reading_.MoreErrors, line, cell, problem);
    }
    void AddNote(long long line, const Cell& cell, const Problem& problem) {
        Keep(reading_.Notes, reading_.MoreNotes, line, cell, problem);
    }

    /// The text is made for those alone that are told: there may be millions.
    static void Keep(std::vector<RoomCsvError>& told, long long& more, long long line,
                     const Cell& cell, const Problem& problem) {
        if (told.size() < MaxRoomCsvErrors) {
            told.push_back(
                {line, std::string(cell.Field), std::string(cell.Value), problem(CellText(cell))});
        } else {
            ++more;
        }
    }

    /// Report the fault of a record, if it has one; whether it has.
    bool ReportFault(const CsvRecord& record) {
        if (record.Fault == CsvFault::None) {
            return false;
        }
        const std::size_t faulty = record.FaultyField;
        const bool known = faulty < columns_.size() && columns_[faulty].has_value();
        AddError(record.Line,
                 Cell{known ? NameOf(columns_[faulty]->Field) : std::string_view(),
                      faulty < record.Fields.size() ? record.Fields[faulty] : std::string_view()},
                 Says(record.Fault == CsvFault::UnclosedQuote
                          ? Words("%1 has a quote that is never closed")
                          : Words("%1 has text behind its closing quote")));
        return true;
    }

    void ReadHeader(const CsvRecord& header) {
        columnCount_ = header.FieldCount;
        if (ReportFault(header)) {
            columns_.resize(header.Fields.size());
            return;
        }
        for (const std::string& field : header.Fields) {
            const auto column = ReadRoomHeading(field);
            const Cell heading{{}, field, true};
            if (TrimStr(field).empty()) {
                AddError(header.Line, Words("a column has no name"));
            } else if (!column) {
                AddError(header.Line, heading, Says(Words("%1 is unknown")));
            } else if (Has(column->Field)) {
                AddError(header.Line, heading, Says(Words("%1 appears twice")));
            } else if (const Problem problem = UnitProblem(*column, units_)) {
                AddError(header.Line, heading, problem);
            }
            columns_.push_back(column);
        }
        if (columnCount_ > MostCsvFields) {
            AddError(header.Line, Words("the line has %1 columns; a room has %2",
                                        Counted(columnCount_), Counted(RoomFieldNames.size())));
        }
        for (std::size_t i = 0; i < NeededRoomFields; ++i) {
            if (!Has(static_cast<RoomField>(i))) {
                AddError(header.Line, Cell{{}, RoomFieldNames.at(i), true},
                         Says(Words("%1 is missing")));
            }
        }
    }

    bool Has(RoomField field) const {
        return std::any_of(columns_.begin(), columns_.end(), [field](const auto& column) {
            return column && column->Field == field;
        });
    }

    void ReadRoom(const CsvRecord& record) {
        if (ReportFault(record)) {
            return;
        }
        if (record.FieldCount != columnCount_) {
            AddError(record.Line, Words("the line has %1 fields and the header %2",
                                        Counted(record.FieldCount), Counted(columnCount_)));
            return;
        }
        Room room;
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            if (const auto column = columns_[i]) {
                Problem note;
                const Cell cell{NameOf(column->Field), record.Fields[i]};
                if (const Problem problem = TakeField(*column, cell.Value, units_, room, note)) {
                    AddError(record.Line, cell, problem);
                } else if (note) {
                    AddNote(record.Line, cell, note);
                }
            }
        }
        if (reading_.Rooms.size() < most_) {
            reading_.Rooms.push_back(std::move(room));
        }
    }

    Units units_;
    std::size_t most_; ///< rooms
    /// By field, as many as are kept; nothing for one that is left out.
    std::vector<std::optional<RoomHeading>> columns_;
    std::size_t columnCount_ = 0; ///< of all
    std::size_t count_ = 0;       ///< records of rooms so far
    RoomCsvReading reading_;
};

} // namespace

std::string ErrorText(const RoomCsvError& error) {
    return Words("line %1: %2", TrimStr(error.Line), error.Problem);
}

std::string MoreMistakesText(long long count) {
    return CountedWords("and %n more mistake", "and %n more mistakes", count);
}

std::vector<std::string> MistakeLines(const RoomCsvReading& reading, std::size_t most) {
    const std::size_t told = std::min(most, reading.Errors.size());
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < told; ++i) {
        lines.push_back(ErrorText(reading.Errors[i]));
    }
    const long long more =
        reading.MoreErrors + static_cast<long long>(reading.Errors.size() - told);
    if (more > 0) {
        lines.push_back(MoreMistakesText(more));
    }
    return lines;
}

RoomCsvReading ReadRoomCsv(std::string_view bytes, Units units, const std::string& encoding) {
    return RoomCsvReader(units, RoomCapacity).ReadFile(bytes, encoding);
}

RoomCsvReading ReadPastedRooms(std::string_view text, Units units, std::size_t most) {
    return RoomCsvReader(units, most).ReadPasted(text);
}

std::string WriteRoomCsv(const std::vector<Room>& rooms) {
    std::string text;
    AppendCsvRecord(text, {RoomFieldNames.begin(), RoomFieldNames.end()});
    for (const Room& room : rooms) {
        AppendCsvRecord(text,
                        {TrimStr(room.Width), TrimStr(room.Length), CoveringName(room.Covering),
                         BaseText(room.Base), CsvTextCell(room.Number), CsvTextCell(room.Remark)});
    }
    return text;
}

} // namespace tarn
