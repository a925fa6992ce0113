#include "store/Schema.h"

#include "store/Connection.h"
#include "store/DatabaseError.h"
#include "store/DatabaseFile.h"
#include "store/FileInMaking.h"

#include <algorithm>

namespace tarn {

namespace {

struct FieldOfTable {
    std::string_view Name;
    std::string_view Type;
    bool Indexed = false;
    /// A database made without the field is in order all the same.
    bool Optional = false;
};

struct Table {
    std::string_view Name;
    std::vector<FieldOfTable> Fields;
};

constexpr std::string_view Number = "INTEGER";
constexpr std::string_view Real = "REAL";
constexpr std::string_view Text = "TEXT COLLATE NOCASE";
constexpr FieldOfTable SheetNumber = {"TabIndex", Number, true};
constexpr FieldOfTable ProjectName = {"ProjName", Text, true};

std::vector<FieldOfTable> FieldsOf(std::string_view sheetTable) {
    if (sheetTable == MainTab) {
        return {SheetNumber,           ProjectName,
                {"ObjNum", Number},    {"PicScale", Real},
                {"DigScale", Real},    {"TileLabelNUm", Number},
                {"MagScale", Number},  {"ScaleTop", Number},
                {"ScaleLeft", Number}, {"EnteredMetric", Number, false, true}};
    }
    if (sheetTable == InputData) {
        return {{"ObjNum", Number},   {"RoomW", Number},  {"RoomL", Number},   {"RoomNoStr", Text},
                {"RoomRemark", Text}, {"CTType", Number}, {"BaseSty", Number}, SheetNumber};
    }
    return {SheetNumber};
}

std::vector<Table> Tables() {
    std::vector<Table> tables = {
        {DirTab, {{"Directory", Text}}},
        {ProjTab, {{"Dir", Text, true}, ProjectName, {"DrawingNum", Number}}},
    };
    for (const std::string_view name : SheetTables) {
        tables.push_back({name, FieldsOf(name)});
    }
    return tables;
}

void Create(Connection& connection, const Table& table) {
    const std::string name(table.Name);
    const std::string failing = "The table " + name + " cannot be made";
    std::string columns;
    for (const FieldOfTable& field : table.Fields) {
        columns += columns.empty() ? "" : ", ";
        columns.append(field.Name).append(" ").append(field.Type);
    }
    connection.Run("CREATE TABLE " + name + " (" + columns + ")", failing);
    for (const FieldOfTable& field : table.Fields) {
        if (field.Indexed) {
            std::string index = "CREATE INDEX " + name;
            index.append(field.Name).append(" ON ").append(name);
            index.append(" (").append(field.Name).append(")");
            connection.Run(index, failing);
        }
    }
}

void FindIntegrityFaults(Connection& connection, const std::string& path,
                         std::vector<std::string>& findings) {
    const Result check = connection.Run("PRAGMA integrity_check",
                                        "The database file " + path + " cannot be checked");
    for (const QVariantList& row : check.Rows) {
        const QString line = row.at(0).toString();
        if (line != QStringLiteral("ok")) {
            findings.push_back("Damaged: " + line.toStdString());
        }
    }
}

void FindMissingFields(Connection& connection, const Table& table,
                       std::vector<std::string>& findings) {
    const std::string name(table.Name);
    const Result columns = connection.Run("PRAGMA table_info(" + name + ")",
                                          "The table " + name + " cannot be checked");
    if (columns.Rows.empty()) {
        findings.push_back("The table " + name + " is missing.");
        return;
    }
    for (const FieldOfTable& field : table.Fields) {
        const QString wanted = TextValue(field.Name).toString();
        const bool found = std::any_of(
            columns.Rows.begin(), columns.Rows.end(), [&wanted](const QVariantList& column) {
                return column.at(1).toString().compare(wanted, Qt::CaseInsensitive) == 0;
            });
        if (!found && !field.Optional) {
            findings.push_back("The table " + name + " has no field " + std::string(field.Name) +
                               ".");
        }
    }
}

} // namespace

void CreateDatabaseFile(const std::string& path) {
    FileInMaking file(path);
    {
        Connection connection(file.Path(), Connection::Access::Create, DefaultBusyWait);
        const std::string failing = "The database file " + path + " cannot be made";
        connection.Run("BEGIN", failing);
        for (const Table& table : Tables()) {
            Create(connection, table);
        }
        MarkAsCopyOfItsOwn(connection, failing);
        connection.Run("COMMIT", failing);
    }
    file.Place();
}

std::vector<std::string> CheckDatabaseFile(const std::string& path, int busyWait) {
    std::vector<std::string> findings;
    try {
        const auto connection = ConnectToFile(path, DatabaseAccess::ReadOnly, busyWait);
        FindIntegrityFaults(*connection, path, findings);
        if (findings.empty()) {
            RequireSound(*connection, path); // finds a file cut short, which the above does not
        }
        for (const Table& table : Tables()) {
            FindMissingFields(*connection, table, findings);
        }
    } catch (const DatabaseError& error) {
        findings.emplace_back(error.what());
    }
    return findings;
}

void BackUpDatabaseFile(const std::string& source, const std::string& target, int busyWait) {
    const auto connection = ConnectToFile(source, DatabaseAccess::ReadOnly, busyWait);
    RequireSound(*connection, source);
    FileInMaking file(target);
    const std::string failing = "The backup " + target + " cannot be made";
    connection->Run("PRAGMA query_only = OFF",
                    failing); // it keeps the copy from being written, too
    connection->Run("VACUUM INTO ?", failing, {TextValue(file.Path())});
    {
        Connection copy(file.Path(), Connection::Access::ReadWrite, busyWait);
        MarkAsCopyOfItsOwn(copy, failing);
    }
    file.Place();
}

} // namespace tarn
