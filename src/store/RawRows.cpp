#include "store/RawRows.h"

#include "base/Text.h"
#include "base/Words.h"
#include "files/QtText.h"
#include "store/DatabaseError.h"
#include "store/Names.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tarn {

namespace {

constexpr std::int64_t LeastRow = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t GreatestRow = std::numeric_limits<std::int64_t>::max();

template <class... Cases>
struct Overloaded : Cases... {
    using Cases::operator()...;
};
template <class... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>; // clang 14 finds it only so

RawValue ValueFrom(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::LongLong:
        return static_cast<std::int64_t>(value.toLongLong());
    case QMetaType::Double:
        return value.toDouble();
    case QMetaType::QByteArray:
        return value.toByteArray().toStdString();
    case QMetaType::QString:
        return value.isNull() ? RawValue() : RawValue(Blob{value.toString().toStdString()});
    default:
        return {};
    }
}

/// The value of a field as ValueFrom understands it: texts as bytes, bytes as text.
std::string Selected(std::string_view field) {
    const std::string name(field);
    return "CASE typeof(" + name + ") WHEN 'text' THEN CAST(" + name +
           " AS BLOB) WHEN 'blob' THEN hex(" + name + ") ELSE " + name + " END";
}

/// A condition that holds for every row whose value in the field has a fault, and for few others.
/// Empty for a field in which anything may stand.
std::string MayBeFaulty(const Field& field) {
    const std::string name(field.Name);
    switch (field.Content) {
    case FieldContent::Anything:
        return {};
    case FieldContent::WholeNumber: {
        const std::string wrong = "(typeof(" + name + ") <> 'integer' OR " + name +
                                  " NOT BETWEEN " + std::to_string(field.Least) + " AND " +
                                  std::to_string(field.Greatest) + ")";
        return field.MayBeNull ? "(" + name + " IS NOT NULL AND " + wrong + ")" : wrong;
    }
    case FieldContent::AboveZero:
        return "(typeof(" + name + ") NOT IN ('integer', 'real') OR NOT (" + name + " > 0 AND " +
               name + " < 9e999))";
    case FieldContent::Text: // the last condition finds texts that a NUL cuts short
        return "(" + name + " IS NOT NULL AND (typeof(" + name + ") <> 'text' OR " + name +
               " GLOB '*[^ -~]*' OR length(CAST(" + name + " AS BLOB)) <> length(" + name + ")))";
    case FieldContent::DirectoryName:
    case FieldContent::ProjectName:
        return "1";
    }
    return {};
}

/// A row of which the number and then the fields were selected.
RawRow RowFrom(const QVariantList& stored) {
    RawRow row;
    row.Number = stored.at(0).toLongLong();
    for (qsizetype i = 1; i < stored.size(); ++i) {
        row.Values.push_back(ValueFrom(stored.at(i)));
    }
    return row;
}

std::optional<std::string> NameFault(const std::string& name, bool isProject) {
    if (StoredName(name).empty()) {
        return Words("is empty");
    }
    if (Len(name) > MaxNameLength) {
        return Words("has more than %1 characters", TrimStr(MaxNameLength));
    }
    if (isProject ? HoldsForbiddenCharacter(name) : HoldsControlCharacter(name)) {
        return Words("holds a character that no name may");
    }
    if (!EqualsIgnoringCase(StoredName(name), name)) {
        return Words("is not as names are stored: in upper case, without blanks at its ends");
    }
    return std::nullopt;
}

} // namespace

bool IsNull(const RawValue& value) {
    return std::holds_alternative<std::monostate>(value);
}

std::optional<double> NumberOf(const RawValue& value) {
    if (const auto* whole = std::get_if<std::int64_t>(&value)) {
        return static_cast<double>(*whole);
    }
    if (const auto* number = std::get_if<double>(&value)) {
        return *number;
    }
    return std::nullopt;
}

std::string TextOf(const RawValue& value) {
    return std::visit(
        Overloaded{[](std::monostate) { return std::string(); },
                   [](std::int64_t whole) { return std::to_string(whole); },
                   [](double number) { return QString::number(number, 'g', 17).toStdString(); },
                   [](const std::string& text) { return ShownText(text); },
                   [](const Blob& blob) { return "x'" + blob.Hexadecimal + "'"; }},
        value);
}

std::string QuotedValue(const RawValue& value) {
    if (IsNull(value)) {
        return Words("nothing");
    }
    constexpr qsizetype Most = 40; // characters
    QString text = ToQt(TextOf(value));
    if (text.size() > Most) {
        text = text.left(Most) + QStringLiteral("...");
    }
    return std::holds_alternative<std::string>(value) ? "\"" + FromQt(text) + "\"" : FromQt(text);
}

std::optional<std::string> FaultOf(const RawValue& value, const Field& field) {
    const auto* text = std::get_if<std::string>(&value);
    switch (field.Content) {
    case FieldContent::Anything:
        return std::nullopt;
    case FieldContent::WholeNumber: {
        const auto* whole = std::get_if<std::int64_t>(&value);
        const bool good = whole != nullptr ? *whole >= field.Least && *whole <= field.Greatest
                                           : IsNull(value) && field.MayBeNull;
        return good ? std::nullopt
                    : std::optional(Words("is no whole number from %1 to %2",
                                          std::to_string(field.Least),
                                          std::to_string(field.Greatest)));
    }
    case FieldContent::AboveZero: {
        const auto number = NumberOf(value);
        return number && *number > 0 && std::isfinite(*number)
                   ? std::nullopt
                   : std::optional<std::string>(Words("is no number above 0"));
    }
    default:
        break;
    }
    const bool isText = field.Content == FieldContent::Text;
    if (IsNull(value)) {
        return isText ? std::nullopt : std::optional<std::string>(Words("is empty"));
    }
    if (text == nullptr) {
        return Words("is no text");
    }
    if (FindTextFault(*text) != TextFault::None) {
        return Words("holds what no text may: a control character, U+FFFE, U+FFFF, or bytes that "
                     "are not UTF-8");
    }
    return isText ? std::nullopt : NameFault(*text, field.Content == FieldContent::ProjectName);
}

RawTable::RawTable(Connection& connection, const TableShape& shape)
    : connection_(connection)
    , shape_(shape) {
    const std::string name(shape.Name);
    const Result columns =
        connection.Run("PRAGMA table_info(" + name + ")", Words("%1 cannot be read", name));
    for (const Field& field : shape.Fields) {
        has_.push_back(std::any_of(
            columns.Rows.begin(), columns.Rows.end(), [&field](const QVariantList& column) {
                return EqualsIgnoringCase(column.at(1).toString().toStdString(), field.Name);
            }));
        selected_ += ", " + (has_.back() ? Selected(field.Name) : std::string("NULL"));
    }
    hasRowNumbers_ = !connection
                          .Run("SELECT 1 FROM pragma_table_list WHERE schema = 'main' AND "
                               "name = ? COLLATE NOCASE AND type = 'table' AND wr = 0",
                               Words("%1 cannot be read", name), {TextValue(name)})
                          .Rows.empty();
}

std::size_t RawTable::At(std::string_view field) const {
    return static_cast<std::size_t>(
        std::find_if(shape_.Fields.begin(), shape_.Fields.end(),
                     [field](const Field& each) { return each.Name == field; }) -
        shape_.Fields.begin());
}

bool RawTable::Has(std::string_view field) const {
    return has_.at(At(field));
}

bool RawTable::IsComplete() const {
    for (std::size_t i = 0; i < has_.size(); ++i) {
        if (!has_.at(i) && !shape_.Fields.at(i).Optional) {
            return false;
        }
    }
    return true;
}

std::vector<RawRow> RawTable::Read(std::int64_t after, int most, const std::string& condition) {
    const std::string name(shape_.Name);
    const Result result = connection_.Run(
        "SELECT rowid" + selected_ + " FROM " + name + " NOT INDEXED WHERE rowid > ?" + condition +
            " ORDER BY rowid LIMIT " + std::to_string(most),
        Words("%1 cannot be read", name), {QVariant::fromValue(after)});
    std::vector<RawRow> rows;
    rows.reserve(result.Rows.size());
    for (const QVariantList& stored : result.Rows) {
        rows.push_back(RowFrom(stored));
    }
    return rows;
}

std::int64_t RawTable::PageCount() {
    return connection_.Run("PRAGMA page_count", Words("The file cannot be read"))
        .Rows.at(0)
        .at(0)
        .toLongLong();
}

void RawTable::VisitUnnumbered(const Visitor& visit) {
    constexpr std::int64_t MostRowsOfPage = 1000; // a view may give rows without end
    const std::string name(shape_.Name);
    const Result result = connection_.Run("SELECT 0" + selected_ + " FROM " + name + " LIMIT " +
                                              std::to_string(MostRowsOfPage * PageCount()),
                                          Words("%1 cannot be read", name));
    std::int64_t number = 0;
    for (const QVariantList& stored : result.Rows) {
        RawRow row = RowFrom(stored);
        row.Number = ++number;
        visit(row);
    }
}

void RawTable::VisitWhere(const std::string& condition, const Visitor& visit) {
    constexpr int AtOnce = 1000;
    std::vector<RawRow> rows;
    std::int64_t after = LeastRow;
    do {
        rows = Read(after, AtOnce, condition);
        for (const RawRow& row : rows) {
            visit(row);
            after = row.Number;
        }
    } while (rows.size() == AtOnce);
}

void RawTable::Visit(const Visitor& visit) {
    VisitWhere({}, visit);
}

void RawTable::VisitFaulty(const Visitor& visit) {
    std::string faulty;
    for (std::size_t i = 0; i < has_.size(); ++i) {
        const std::string condition = has_.at(i) ? MayBeFaulty(shape_.Fields.at(i)) : std::string();
        faulty += condition.empty() ? "" : (faulty.empty() ? "" : " OR ") + condition;
    }
    if (!faulty.empty()) {
        VisitWhere(" AND (" + faulty + ")", visit);
    }
}

void RawTable::VisitReadable(const Visitor& visit, const GapVisitor& gap) {
    constexpr int AtOnce = 1000;
    if (!hasRowNumbers_) {
        try {
            VisitUnnumbered(visit);
        } catch (const DatabaseError&) {
            gap(LeastRow);
        }
        return;
    }
    int most = AtOnce;
    std::int64_t after = LeastRow;
    for (;;) {
        std::vector<RawRow> rows;
        try {
            rows = Read(after, most, {});
        } catch (const DatabaseError&) {
            if (most > 1) {
                most = 1; // up to the row that cannot be read
                continue;
            }
            gap(after);
            const auto end = EndOfGap(after);
            if (!end) {
                return;
            }
            after = *end;
            most = AtOnce;
            continue;
        }
        for (const RawRow& row : rows) {
            visit(row);
            after = row.Number;
        }
        if (rows.empty()) {
            return;
        }
    }
}

std::optional<std::int64_t> RawTable::EndOfGap(std::int64_t after) {
    const auto isReadable = [this](std::int64_t number) {
        try {
            return !Read(number, 1, {}).empty();
        } catch (const DatabaseError&) {
            return false;
        }
    };
    // In small steps as far as the file can hold rows, so that few between two gaps are passed
    // over, then in ever wider ones; and back to where rows can be read.
    constexpr std::int64_t SmallStep = 32;
    constexpr std::int64_t RowsOfPage = 100; // about
    const std::int64_t nearRows = RowsOfPage * PageCount();
    const std::int64_t first = std::max<std::int64_t>(after, 0);
    std::int64_t before = first;
    std::int64_t step = 1;
    while (!isReadable(before + step)) {
        before += step;
        if (before > GreatestRow / 4) {
            return std::nullopt;
        }
        step = before - first < nearRows ? std::min(step * 2, SmallStep) : step * 2;
    }
    std::int64_t least = before;
    std::int64_t most = before + step;
    while (most - least > 1) {
        const std::int64_t middle = least + (most - least) / 2;
        (isReadable(middle) ? most : least) = middle;
    }
    return most;
}

} // namespace tarn
