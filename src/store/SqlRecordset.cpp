#include "store/SqlRecordset.h"

#include "app/Text.h"

#include <algorithm>

namespace tarn {

namespace {

/// A field's name as SQL takes it, whatever its characters.
std::string Quoted(std::string_view field) {
    std::string quoted = "\"";
    for (const char c : field) {
        quoted += c == '"' ? "\"\"" : std::string(1, c);
    }
    return quoted + "\"";
}

FieldValue FromStored(const QVariant& value) {
    if (value.isNull()) {
        return std::monostate();
    }
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::LongLong:
        return static_cast<std::int64_t>(value.toLongLong());
    case QMetaType::Double:
        return value.toDouble();
    default:
        return value.toString().toStdString();
    }
}

struct ToStored {
    QVariant operator()(std::monostate) const { return {}; }
    QVariant operator()(std::int64_t value) const { return static_cast<qlonglong>(value); }
    QVariant operator()(double value) const { return value; }
    QVariant operator()(const std::string& value) const { return TextValue(value); }
};

} // namespace

SqlRecordset::SqlRecordset(const std::shared_ptr<Connection>& connection, QueryText query,
                           Kind kind)
    : connection_(connection)
    , query_(std::move(query))
    , kind_(kind) {
    if (kind_ == Kind::Dynaset && (query_.Fields != "*" || query_.Tables.size() != 1)) {
        throw DatabaseError(Failing(" cannot be edited through a query on parts of a table or on "
                                    "several tables."));
    }
    Read();
}

void SqlRecordset::Read() {
    const bool numbered = kind_ == Kind::Dynaset;
    QVariantList values;
    if (query_.Literal) {
        values.push_back(TextValue(*query_.Literal));
    }
    const auto connection = Open();
    // Has SQLite learn of fields that another program added or dropped: the driver does not survive
    // a change in the number of columns that comes to light in the middle of a statement.
    connection->Run("SELECT 1 FROM " + query_.TableList() + " LIMIT 0", Failing(" cannot be read"));
    Result result = connection->Run(numbered ? query_.StatementWithRowNumber() : query_.Statement(),
                                    Failing(" cannot be read"), values);

    std::vector<Row> rows;
    for (QVariantList& stored : result.Rows) {
        Row row;
        if (numbered) {
            row.Number = stored.takeFirst();
        }
        row.Values = std::move(stored);
        rows.push_back(std::move(row));
    }
    if (numbered) {
        result.Fields.erase(result.Fields.begin());
    }
    fields_ = std::move(result.Fields);
    rows_ = std::move(rows);
    position_ = 0;
    pending_ = Pending::Nothing;
}

std::shared_ptr<Connection> SqlRecordset::Open() const {
    auto connection = connection_.lock();
    if (closed_ || !connection) {
        throw DatabaseError(Failing(" cannot be used: it is closed."));
    }
    return connection;
}

void SqlRecordset::RequireEditable() const {
    Open();
    if (kind_ == Kind::Snapshot) {
        throw DatabaseError(Failing(" cannot be changed: it was opened for reading only."));
    }
}

const SqlRecordset::Row& SqlRecordset::Current() const {
    Open();
    if (position_ >= rows_.size() || rows_[position_].Deleted) {
        throw DatabaseError(Failing(" cannot be read: there is no current row."));
    }
    return rows_[position_];
}

qsizetype SqlRecordset::Column(std::string_view name) const {
    const auto found =
        std::find_if(fields_.begin(), fields_.end(),
                     [name](const std::string& field) { return EqualsIgnoringCase(field, name); });
    return found == fields_.end() ? -1 : found - fields_.begin();
}

qsizetype SqlRecordset::RequireColumn(std::string_view name) const {
    const qsizetype column = Column(name);
    if (column < 0) {
        throw DatabaseError(Failing(" has no field ") + std::string(name) + ".");
    }
    return column;
}

bool SqlRecordset::AtEnd() const {
    Open();
    return position_ >= rows_.size();
}

void SqlRecordset::MoveFirst() {
    Open();
    if (kind_ == Kind::Dynaset) {
        Read();
    }
    position_ = 0;
}

void SqlRecordset::MoveNext() {
    if (AtEnd()) {
        throw DatabaseError(Failing(" cannot be read past its last row."));
    }
    ++position_;
    pending_ = Pending::Nothing;
}

bool SqlRecordset::HasField(std::string_view name) const {
    Open();
    return Column(name) >= 0;
}

FieldValue SqlRecordset::Field(std::string_view name) const {
    const Row& row = Current();
    return FromStored(row.Values.at(RequireColumn(name)));
}

void SqlRecordset::AddNew() {
    RequireEditable();
    buffer_.clear();
    pending_ = Pending::New;
}

void SqlRecordset::Edit() {
    RequireEditable();
    Current();
    buffer_.clear();
    pending_ = Pending::Change;
}

void SqlRecordset::SetField(std::string_view name, FieldValue value) {
    RequireEditable();
    if (pending_ == Pending::Nothing) {
        throw DatabaseError(Failing(" cannot be changed: no row is being added or edited."));
    }
    const qsizetype column = RequireColumn(name);
    std::erase_if(buffer_, [column](const auto& set) { return set.first == column; });
    buffer_.emplace_back(column, std::visit(ToStored(), value));
}

void SqlRecordset::Update() {
    RequireEditable();
    if (pending_ == Pending::Nothing) {
        throw DatabaseError(Failing(" cannot be changed: no row is being added or edited."));
    }
    if (pending_ == Pending::New) {
        Insert();
    } else {
        ChangeCurrent();
    }
    pending_ = Pending::Nothing;
}

void SqlRecordset::Insert() {
    std::string names;
    std::string marks;
    QVariantList values;
    for (const auto& [column, value] : buffer_) {
        names += (names.empty() ? "" : ", ") + Quoted(fields_[static_cast<std::size_t>(column)]);
        marks += marks.empty() ? "?" : ", ?";
        values.push_back(value);
    }
    const std::string what =
        names.empty() ? " DEFAULT VALUES" : " (" + names + ") VALUES (" + marks + ")";
    Open()->Run("INSERT INTO " + query_.Tables.front() + what, Failing(" takes no new row"),
                values);
}

void SqlRecordset::ChangeCurrent() {
    if (buffer_.empty()) {
        return;
    }
    std::string changes;
    QVariantList values;
    for (const auto& [column, value] : buffer_) {
        changes += (changes.empty() ? "" : ", ") +
                   Quoted(fields_[static_cast<std::size_t>(column)]) + " = ?";
        values.push_back(value);
    }
    RunOnCurrent("UPDATE " + query_.Tables.front() + " SET " + changes, std::move(values),
                 " cannot be changed");
    for (const auto& [column, value] : buffer_) {
        rows_[position_].Values[column] = value;
    }
}

void SqlRecordset::Delete() {
    RequireEditable();
    RunOnCurrent("DELETE FROM " + query_.Tables.front(), {}, " cannot be deleted from");
    rows_[position_].Deleted = true;
    pending_ = Pending::Nothing;
}

void SqlRecordset::RunOnCurrent(std::string statement, QVariantList values, const char* failing) {
    const Row& row = Current();
    statement += " WHERE rowid = ?";
    values.push_back(row.Number);
    for (std::size_t column = 0; column < fields_.size(); ++column) {
        statement += " AND " + Quoted(fields_[column]) + " IS ?";
        values.push_back(row.Values.at(static_cast<qsizetype>(column)));
    }
    if (Open()->Run(statement, Failing(failing), values).Affected != 1) {
        throw DatabaseError(Failing(failing) +
                            ": another program changed or deleted the row meanwhile. Open the "
                            "project again.");
    }
}

void SqlRecordset::Close() {
    Open();
    closed_ = true;
    rows_.clear();
    pending_ = Pending::Nothing;
}

} // namespace tarn
