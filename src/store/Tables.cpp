#include "store/Tables.h"

#include "base/Numbers.h"
#include "base/Text.h"
#include "base/Words.h"
#include "files/QtText.h"
#include "store/DatabaseError.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace tarn {

namespace {

std::string DecimalText(Double value) {
    std::array<char, 32> buffer{}; // the shortest exact text of a Double has at most 24 characters
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr;
    return std::string(buffer.data(), end);
}

bool IsWhole(const QVariant& value) {
    return value.typeId() == QMetaType::Int || value.typeId() == QMetaType::LongLong;
}

bool IsReal(const QVariant& value) {
    return value.typeId() == QMetaType::Double;
}

/// The number that `value` of `field` is; nothing for a null.
std::optional<Double> NumberOf(const QVariant& value, std::string_view field) {
    if (value.isNull()) {
        return std::nullopt;
    }
    if (!IsWhole(value) && !IsReal(value)) {
        throw DatabaseError(Words("The field %1 should hold a number and holds \"%2\".", field,
                                  value.toString().toStdString()));
    }
    return IsWhole(value) ? static_cast<Double>(value.toLongLong()) : value.toDouble();
}

/// Where the field stands among `fields`; their number when it is none of them.
std::size_t PlaceOf(std::string_view field, const std::vector<std::string>& fields) {
    const auto found = std::find_if(fields.begin(), fields.end(), [field](const std::string& each) {
        return EqualsIgnoringCase(each, field);
    });
    return static_cast<std::size_t>(found - fields.begin());
}

std::size_t RequirePlace(std::string_view field, const std::vector<std::string>& fields,
                         const std::string& table) {
    const std::size_t place = PlaceOf(field, fields);
    if (place == fields.size()) {
        throw DatabaseError(Words("%1 has no field %2.", table, field));
    }
    return place;
}

/// A text or a whole number as UTF-8.
std::string TextOf(const QVariant& value) {
    if (value.typeId() == QMetaType::QByteArray) {
        return value.toByteArray().toStdString();
    }
    const QString text = value.toString();
    // The toolkit writes a question mark for half of a surrogate pair, unless it comes this way.
    return text.isValidUtf16() ? FromQt(text) : FromQt(FromCharacters(text.toStdU32String()));
}

[[noreturn]] void RaiseKept(const std::string& failing) {
    throw DatabaseError(Words("%1: the database keeps a row as it was.", failing));
}

} // namespace

StoredRow::StoredRow(std::shared_ptr<const Source> source, QVariant rowNumber, QVariantList values)
    : source_(std::move(source))
    , rowNumber_(std::move(rowNumber))
    , values_(std::move(values)) {}

bool StoredRow::HasField(std::string_view field) const {
    return PlaceOf(field, source_->Fields) < source_->Fields.size();
}

const QVariant& StoredRow::ValueIn(std::string_view field) const {
    return values_.at(static_cast<qsizetype>(RequirePlace(field, source_->Fields, source_->Table)));
}

std::optional<Double> StoredRow::NumberIn(std::string_view field) const {
    return NumberOf(ValueIn(field), field);
}

Integer StoredRow::IntegerIn(std::string_view field) const {
    return CInt(NumberIn(field).value_or(0));
}

Byte StoredRow::ByteIn(std::string_view field) const {
    return ToByte(CLng(NumberIn(field).value_or(0)));
}

std::string StoredRow::TextIn(std::string_view field) const {
    const QVariant& value = ValueIn(field);
    if (value.isNull()) {
        return {};
    }
    return IsReal(value) ? DecimalText(value.toDouble()) : ShownText(TextOf(value));
}

std::string StoredRow::Content() const {
    std::string content;
    for (std::size_t place = 0; place < source_->Fields.size(); ++place) {
        const QVariant& value = values_.at(static_cast<qsizetype>(place));
        if (value.isNull()) {
            continue;
        }
        const QByteArray bytes = IsReal(value)
                                     ? QByteArray::fromStdString(DecimalText(value.toDouble()))
                                     : value.toByteArray();
        content += source_->Fields[place] + ':' + value.typeName() + ':' +
                   std::to_string(bytes.size()) + ':';
        content.append(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    }
    return content;
}

Table::Table(Connection& connection, std::string_view name)
    : connection_(connection)
    , name_(name) {}

void Table::LearnOfChanges() {
    connection_.Run("SELECT 1 FROM " + name_ + " LIMIT 0", Failing(Words("%1 cannot be read")));
}

const std::vector<std::string>& Table::Fields() {
    if (fields_.empty()) {
        LearnOfChanges();
        fields_ =
            connection_
                .Run("SELECT * FROM " + name_ + " LIMIT 0", Failing(Words("%1 cannot be read")))
                .Fields;
    }
    return fields_;
}

bool Table::HasField(std::string_view field) {
    return PlaceOf(field, Fields()) < Fields().size();
}

void Table::AddNumberField(std::string_view field) {
    connection_.Run("ALTER TABLE " + name_ + " ADD COLUMN " + std::string(field) + " INTEGER",
                    Words("%1 cannot be given the field %2", name_, field));
    fields_.clear();
}

std::vector<StoredRow> Table::Rows(std::string_view order) {
    return Read({}, {}, order);
}

std::vector<StoredRow> Table::RowsWhere(std::string_view field, const QVariant& value,
                                        std::string_view order) {
    return Read(" WHERE " + std::string(field) + " = ?", {value}, order);
}

std::vector<StoredRow> Table::RowsShowing(std::string_view field, std::string_view text) {
    const std::string name(field);
    std::vector<StoredRow> rows;
    if (text.find(ReplacementCharacter) != std::string_view::npos) {
        rows = Rows(); // what is replaced in reading stands there as something else
    } else {
        rows = RowsWhere(field, TextValue(text));
        // A blob is no text, whatever it reads as; each is greater than x'', and no text is.
        for (StoredRow& row : Read(" WHERE " + name + " >= x''", {}, {})) {
            rows.push_back(std::move(row));
        }
        if (text.empty()) { // which is what nothing reads as
            for (StoredRow& row : Read(" WHERE " + name + " IS NULL", {}, {})) {
                rows.push_back(std::move(row));
            }
        }
    }
    std::erase_if(rows, [field, text](const StoredRow& row) {
        return !EqualsIgnoringCase(row.TextIn(field), text);
    });
    return rows;
}

std::vector<StoredRow> Table::Read(const std::string& condition, const QVariantList& values,
                                   std::string_view order) {
    LearnOfChanges();
    const std::string rowNumber = name_ + ".rowid";
    Result result =
        connection_.Run("SELECT " + rowNumber + ", * FROM " + name_ + condition + " ORDER BY " +
                            (order.empty() ? std::string() : std::string(order) + ", ") + rowNumber,
                        Failing(Words("%1 cannot be read")), values);

    result.Fields.erase(result.Fields.begin()); // the row number is no field of the table
    fields_ = result.Fields;
    const auto source =
        std::make_shared<const StoredRow::Source>(StoredRow::Source{name_, result.Fields});
    std::vector<StoredRow> rows;
    rows.reserve(result.Rows.size());
    for (QVariantList& stored : result.Rows) {
        QVariant number = stored.takeFirst();
        rows.emplace_back(source, std::move(number), std::move(stored));
    }
    return rows;
}

std::optional<Double> Table::Greatest(std::string_view field) {
    const std::string greatest = "Max(" + std::string(field) + ")";
    const Result result = connection_.Run("SELECT " + greatest + " FROM " + name_,
                                          Failing(Words("%1 cannot be read")));
    return NumberOf(result.Rows.at(0).at(0), greatest);
}

std::set<Double> Table::NumbersBetween(std::string_view field, Double least, Double most) {
    const std::string name(field);
    const Result result = connection_.Run("SELECT DISTINCT " + name + " FROM " + name_ + " WHERE " +
                                              name + " BETWEEN ? AND ?",
                                          Failing(Words("%1 cannot be read")), {least, most});
    std::set<Double> numbers;
    for (const QVariantList& row : result.Rows) {
        numbers.insert(NumberOf(row.at(0), field).value());
    }
    return numbers;
}

void Table::Add(const Values& values, const StoredRow* place) {
    std::string names;
    std::string marks;
    QVariantList bound;
    if (place != nullptr) {
        names = "rowid";
        marks = "?";
        bound.push_back(place->rowNumber_);
    }
    for (const auto& [field, value] : values) {
        RequirePlace(field, Fields(), name_);
        names += (names.empty() ? "" : ", ") + std::string(field);
        marks += marks.empty() ? "?" : ", ?";
        bound.push_back(value);
    }
    const std::string failing = Failing(Words("%1 takes no new row"));
    const std::string statement =
        "INSERT INTO " + name_ + " (" + names + ") VALUES (" + marks + ")";
    if (connection_.Run(statement, failing, bound).Affected != 1) {
        throw DatabaseError(Words("%1: the database leaves it out.", failing));
    }
}

void Table::Change(const StoredRow& row, std::string_view field, const QVariant& value) {
    RunOnRow("UPDATE " + name_ + " SET " + std::string(field) + " = ? WHERE rowid = ?",
             Failing(Words("%1 cannot be changed")), {value, row.rowNumber_});
}

void Table::Delete(const std::vector<StoredRow>& rows) {
    const qint64 before = Count({}, {});
    for (const StoredRow& row : rows) {
        RunOnRow("DELETE FROM " + name_ + " WHERE rowid = ?", DeleteFailing(), {row.rowNumber_});
    }
    if (Count({}, {}) != before - static_cast<qint64>(rows.size())) {
        RaiseKept(DeleteFailing()); // it put one back
    }
}

qint64 Table::Count(const std::string& condition, const QVariantList& values) {
    return connection_
        .Run("SELECT count(*) FROM " + name_ + condition, Failing(Words("%1 cannot be read")),
             values)
        .Rows.at(0)
        .at(0)
        .toLongLong();
}

void Table::DeleteWhere(std::string_view field, const QVariant& value) {
    const std::string condition = " WHERE " + std::string(field) + " = ?";
    const qint64 count = Count(condition, {value});
    if (count == 0) {
        return;
    }
    const Result deletion =
        connection_.Run("DELETE FROM " + name_ + condition, DeleteFailing(), {value});
    if (deletion.Affected != count || Count(condition, {value}) != 0) {
        RaiseKept(DeleteFailing());
    }
}

void Table::RunOnRow(const std::string& statement, const std::string& failing,
                     const QVariantList& values) {
    if (connection_.Run(statement, failing, values).Affected != 1) {
        RaiseKept(failing);
    }
}

std::string KindOf(Connection& connection, std::string_view table) {
    const Result found = connection.Run("SELECT type FROM sqlite_master WHERE type IN ('table', "
                                        "'view') AND name = ? COLLATE NOCASE",
                                        Words("%1 cannot be read", table), {TextValue(table)});
    return found.Rows.empty() ? std::string() : FromQt(found.Rows.at(0).at(0).toString());
}

} // namespace tarn
