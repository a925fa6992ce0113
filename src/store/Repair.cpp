#include "store/Repair.h"

#include "base/Text.h"
#include "base/Words.h"
#include "store/Check.h"
#include "store/DatabaseError.h"
#include "store/DatabaseFile.h"
#include "store/FileInMaking.h"
#include "store/FileLock.h"
#include "store/Findings.h"
#include "store/OrderRows.h"
#include "store/RawRows.h"
#include "store/Remedies.h"
#include "store/RepairedData.h"
#include "store/Schema.h"
#include "store/UntouchedFile.h"

#include <algorithm>
#include <map>
#include <optional>
#include <utility>

namespace tarn {

namespace {

constexpr std::size_t MostPlaces = 200; // of each kind
constexpr auto LeftOutWithoutSheet = Words("Rows of sheets that are not there, left out");
constexpr auto LeftOutAsStrange = Words("What another program put there, left out");

QVariant VariantOf(const RawValue& value) {
    if (const auto* whole = std::get_if<std::int64_t>(&value)) {
        return QVariant::fromValue<qint64>(*whole);
    }
    if (const auto* number = std::get_if<double>(&value)) {
        return *number;
    }
    if (const auto* text = std::get_if<std::string>(&value)) {
        return TextValue(*text);
    }
    if (const auto* blob = std::get_if<Blob>(&value)) {
        return QByteArray::fromHex(QByteArray::fromStdString(blob->Hexadecimal));
    }
    return {};
}

/// Adds rows to a table of the new file, many with each statement.
class RowWriter {
  public:
    RowWriter(Connection& connection, std::string_view table)
        : connection_(connection)
        , shape_(ShapeOf(table)) {}

    void Add(const std::vector<RawValue>& values) {
        constexpr std::size_t AtOnce = 10; // of more the driver compares all names of values
        for (const RawValue& value : values) {
            values_.push_back(VariantOf(value));
        }
        if (++rows_ == AtOnce) {
            Flush();
        }
    }
    /// Write what was added last. Needed once, at the end.
    void Flush() {
        if (rows_ == 0) {
            return;
        }
        std::string row;
        for (std::size_t i = 0; i < shape_.Fields.size(); ++i) {
            row += row.empty() ? "(?" : ", ?";
        }
        std::string rows;
        for (std::size_t i = 0; i < rows_; ++i) {
            rows += (rows.empty() ? "" : ", ") + row + ")";
        }
        const std::string name(shape_.Name);
        connection_.Run("INSERT INTO " + name + " VALUES " + rows,
                        Words("%1 takes no new row", name), values_);
        values_.clear();
        rows_ = 0;
    }

  private:
    Connection& connection_;
    const TableShape& shape_;
    QVariantList values_;
    std::size_t rows_ = 0;
};

/// Reads the tables of the source.
class Source {
  public:
    Source(const std::string& path, int busyWait, Findings& changes)
        : path_(path)
        , file_(path, busyWait)
        , changes_(changes) {
        // That it is locked is no damage. Nothing was read yet, and so no lock of the engine's
        // goes.
        lock_.emplace(path, FileLock::Kind::Reading, busyWait);
        // Also a file with a damaged description of its tables, or cut short, is read then.
        file_.Database().Run("PRAGMA writable_schema = ON",
                             Words("The database file cannot be read"));
        file_.Database().Run("BEGIN",
                             Words("The database file cannot be read")); // all of one moment
    }

    const UntouchedFile& File() const { return file_; }

    /// Whether there is a table of that name, or a view that shows its rows.
    bool Has(std::string_view table) {
        return !file_.Database()
                    .Run("SELECT 1 FROM sqlite_master WHERE type IN ('table', 'view') AND "
                         "name = ? COLLATE NOCASE",
                         Words("%1 cannot be read", table), {TextValue(table)})
                    .Rows.empty();
    }
    /// Give `visit` every row of a table that can be read.
    void Read(std::string_view table, const RawTable::Visitor& visit) {
        const TableShape& shape = ShapeOf(table);
        const std::string name(table);
        try {
            if (!Has(table)) {
                changes_.Add(Words("Tables that were missing and are empty now"), name);
                return;
            }
            RawTable rows(file_.Database(), shape);
            for (const Field& field : shape.Fields) {
                if (!rows.Has(field.Name) && !field.Optional) {
                    changes_.Add(Words("Fields that were missing"),
                                 name + "." + std::string(field.Name));
                }
            }
            rows.VisitReadable(visit, [&](std::int64_t after) {
                changes_.Add(Words("Rows that cannot be read and are left out"),
                             after < 0 ? Words("%1, from the first row on", name)
                                       : Words("%1, behind row %2", name, std::to_string(after)));
            });
            ++tablesRead_;
        } catch (const DatabaseError& error) {
            changes_.Add(Words("Tables that cannot be read"), name + " (" + error.what() + ")");
        }
    }
    /// Raise DatabaseError when not one table could be read.
    void RequireSomething() const {
        if (tablesRead_ == 0) {
            throw DatabaseError(
                Words("Nothing can be read of the database file %1. %2", path_, RestoreAdvice));
        }
    }
    /// Tell what another program put into the file: it is not taken over.
    void TellOfStrangers() {
        const Result all = file_.Database().Run(
            "SELECT type, name, tbl_name FROM sqlite_master WHERE name NOT LIKE 'sqlite\\_%' "
            "ESCAPE '\\'",
            Words("The tables cannot be listed"));
        for (const QVariantList& row : all.Rows) {
            const std::string type = row.at(0).toString().toStdString();
            const std::string name = ShownText(row.at(1).toString().toStdString());
            const auto& own = TableShapes();
            const bool isOwn = std::any_of(own.begin(), own.end(), [&](const TableShape& shape) {
                return EqualsIgnoringCase(shape.Name, name);
            });
            if (type == "trigger" || type == "view" || (type == "table" && !isOwn)) {
                changes_.Add(LeftOutAsStrange, std::string(type).append(" ").append(name));
            } else if (type == "table") {
                TellOfFields(name);
            }
        }
    }

  private:
    void TellOfFields(const std::string& table) {
        const auto& shapes = TableShapes();
        const auto& fields = std::find_if(shapes.begin(), shapes.end(), [&](const auto& shape) {
                                 return EqualsIgnoringCase(shape.Name, table);
                             })->Fields;
        const Result columns = file_.Database().Run("PRAGMA table_info(" + table + ")",
                                                    Words("%1 cannot be read", table));
        for (const QVariantList& column : columns.Rows) {
            const std::string name = column.at(1).toString().toStdString();
            if (std::none_of(fields.begin(), fields.end(), [&](const Field& field) {
                    return EqualsIgnoringCase(field.Name, name);
                })) {
                changes_.Add(LeftOutAsStrange, Words("field %1 of %2", ShownText(name), table));
            }
        }
    }

    std::string path_;
    std::optional<FileLock> lock_; ///< let go when the engine has closed the file
    UntouchedFile file_;
    Findings& changes_;
    int tablesRead_ = 0;
};

void WriteProjects(Connection& target, const RepairedData& data) {
    RowWriter directories(target, DirTab);
    for (const std::string& name : data.Directories()) {
        directories.Add({name});
    }
    RowWriter projects(target, ProjTab);
    RowWriter sheets(target, MainTab);
    RowWriter rooms(target, InputData);
    for (const RepairedProject& project : data.Projects()) {
        projects.Add({project.Directory, project.Name, std::int64_t{0}});
        if (project.OldNumber) {
            sheets.Add(project.Sheet.Values);
            for (const RawRow& room : project.Rooms) {
                rooms.Add(room.Values);
            }
        }
    }
    for (RowWriter* writer : {&directories, &projects, &sheets, &rooms}) {
        writer->Flush();
    }
}

/// Copy the requests of orders that a load reads, one for each carpet of a sheet.
void CopyRequests(Source& source, Connection& target, const RepairedData& data, Findings& changes) {
    if (!source.Has(OrderData)) {
        return;
    }
    CreateTable(target, ShapeOf(OrderData));
    const auto place = [](const RawRow& row) {
        return Words("%1, row %2", OrderData, std::to_string(row.Number));
    };
    std::map<std::pair<std::int64_t, std::int64_t>, RawRow> kept; // by sheet and carpet
    source.Read(OrderData, [&](const RawRow& row) {
        const auto request = RawRequestOf(row);
        const auto number =
            request ? data.NumberFor(RawValue(request->Sheet)) : std::optional<std::int64_t>();
        if (request && !number) {
            changes.Add(LeftOutWithoutSheet, place(row));
        } else if (!request || !request->IsReadable) {
            changes.Add(Words("Requests for orders that cannot be read, left out"), place(row));
        } else {
            const auto [former, isFirst] = kept.try_emplace({*number, request->Carpet}, row);
            if (!isFirst) {
                changes.Add(Words("Requests for an order that a later one of the carpet replaced, "
                                  "left out"),
                            place(former->second));
                former->second = row;
            }
        }
    });
    RowWriter writer(target, OrderData);
    for (const auto& [of, row] : kept) {
        std::vector<RawValue> values = row.Values;
        values.at(0) = of.first;
        writer.Add(values);
    }
    writer.Flush();
}

/// Copy the other rows of sheets to their new numbers.
void CopySheetTables(Source& source, Connection& target, const RepairedData& data,
                     Findings& changes) {
    for (const TableShape& shape : TableShapes()) {
        const std::string_view table = shape.Name;
        if (!IsOfSheets(shape) || table == MainTab || table == InputData || table == OrderData) {
            continue;
        }
        const auto& fields = shape.Fields;
        RowWriter writer(target, table);
        source.Read(table, [&](const RawRow& row) {
            std::vector<RawValue> values;
            for (std::size_t i = 0; i < fields.size(); ++i) {
                if (fields.at(i).Name != "TabIndex") {
                    values.push_back(MendedValue(row.Values.at(i), fields.at(i)));
                } else if (const auto number = data.NumberFor(row.Values.at(i))) {
                    values.emplace_back(*number);
                } else {
                    changes.Add(LeftOutWithoutSheet,
                                Words("%1, row %2", table, std::to_string(row.Number)));
                    return;
                }
            }
            writer.Add(values);
        });
        writer.Flush();
    }
}

void TellOfJournal(JournalKind journal, Findings& changes) {
    if (journal == JournalKind::Own) {
        changes.Tell(Words("A change that a crash cut off is taken back."));
    } else if (journal == JournalKind::Foreign) {
        changes.Tell(
            Words("The journal beside the file belongs to another state of it and is not used."));
    }
}

/// Raise DatabaseError unless the new file is all in order.
void RequireClean(const std::string& file, const std::string& target, int busyWait) {
    const auto findings = CheckDatabaseFile(file, busyWait);
    if (!findings.empty()) {
        throw DatabaseError(Words("The file %1 cannot be made: it would not be sound. %2", target,
                                  findings.front()));
    }
}

} // namespace

std::vector<std::string> RepairDatabaseFile(const std::string& source, const std::string& target,
                                            int busyWait) {
    Findings changes(MostPlaces);
    Source from(source, busyWait, changes);
    FileInMaking file(target);
    TellOfJournal(from.File().Journal(), changes);
    RepairedData data(changes);
    from.Read(DirTab, [&data](const RawRow& row) { data.AddDirectory(row); });
    from.Read(ProjTab, [&data](const RawRow& row) { data.AddProject(row); });
    from.Read(MainTab, [&data](const RawRow& row) { data.AddSheet(row); });
    from.Read(InputData, [&data](const RawRow& row) { data.AddRoom(row); });
    from.RequireSomething();
    data.Settle();
    {
        Connection to(file.Path(), Connection::Access::Create, busyWait);
        const std::string failing = Words("The file %1 cannot be made", target);
        to.Run("BEGIN", failing);
        CreateTables(to);
        WriteProjects(to, data);
        CopySheetTables(from, to, data, changes);
        CopyRequests(from, to, data, changes);
        MarkAsCopyOfItsOwn(to, failing);
        to.Run("COMMIT", failing);
    }
    from.TellOfStrangers();
    RequireClean(file.Path(), target, busyWait);
    file.Place();
    return changes.LineOfEach();
}

} // namespace tarn
