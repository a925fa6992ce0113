#include "store/Check.h"

#include "base/Text.h"
#include "base/Words.h"
#include "project/Coverings.h"
#include "store/DatabaseError.h"
#include "store/DatabaseFile.h"
#include "store/Findings.h"
#include "store/Months.h"
#include "store/Names.h"
#include "store/OrderRows.h"
#include "store/RawRows.h"
#include "store/Schema.h"
#include "store/UntouchedFile.h"

#include <algorithm>
#include <map>
#include <set>
#include <unordered_map>
#include <unordered_set>

namespace tarn {

namespace {

constexpr std::size_t MostPlaces = 10; // of each kind
constexpr auto RoomsWithoutRow = Words("Rooms without a row, which are read as empty");

// --- the file and its tables ---

void TellOfJournal(const UntouchedFile& file, const std::string& path, Findings& findings) {
    if (file.Journal() == JournalKind::Own) {
        findings.Tell(Words("A change was cut off by a crash: %1 lies beside the file. The next "
                            "program that opens the file takes that change back.",
                            JournalPath(path)));
    } else if (file.Journal() == JournalKind::Foreign) {
        findings.Tell(ForeignJournalText(path));
    }
}

/// Whether the file's structure is in order, so far that its rows can be read.
void FindDamage(UntouchedFile& file, Findings& findings) {
    const Result check = file.Database().Run(
        "PRAGMA integrity_check(20)", Words("The database file %1 cannot be checked", file.Path()));
    bool sound = true;
    for (const QVariantList& row : check.Rows) {
        const QString line = row.at(0).toString();
        if (line != QStringLiteral("ok")) {
            findings.Tell(Words("Damaged: %1", OneLine(line.toStdString())));
            sound = false;
        }
    }
    if (sound) { // a file cut short is not found by the above
        RequireSound(file.Database(), file.Path());
    }
}

/// The names that a query on the schema gives for a table.
std::vector<std::string> NamesOf(Connection& connection, const std::string& query,
                                 const TableShape& shape) {
    const std::string name(shape.Name);
    std::vector<std::string> names;
    for (const QVariantList& row :
         connection.Run(query, Words("The table %1 cannot be checked", name), {TextValue(name)})
             .Rows) {
        names.push_back(ShownText(row.at(0).toString().toStdString()));
    }
    return names;
}

/// Whether the table is one that rows can be stored in.
bool IsTable(Connection& connection, const TableShape& shape, Findings& findings) {
    const std::string name(shape.Name);
    const auto kinds = NamesOf(connection,
                               "SELECT type FROM sqlite_master WHERE name = ? COLLATE NOCASE "
                               "AND type IN ('table', 'view')",
                               shape);
    if (kinds.empty() && shape.Optional) {
        return false;
    }
    if (kinds.empty()) {
        findings.Tell(Words("The table %1 is missing.", name));
        return false;
    }
    if (kinds.front() == "view") {
        findings.Tell(Words("In the place of the table %1 is a view, which stores nothing.", name));
        return false;
    }
    if (!RawTable(connection, shape).HasRowNumbers()) {
        findings.Tell(Words("In the place of the table %1 is one without row numbers.", name));
        return false;
    }
    return true;
}

/// What another program put on a table that changes or refuses what is stored in it, and what is
/// missing for speed.
void FindOddities(Connection& connection, const TableShape& shape, Findings& findings) {
    const auto onTable = [&](std::string_view what) { return Words("%1 on %2", what, shape.Name); };
    for (const std::string& trigger :
         NamesOf(connection,
                 "SELECT name FROM sqlite_master WHERE type = 'trigger' "
                 "AND tbl_name = ? COLLATE NOCASE",
                 shape)) {
        findings.Add(
            Words("Triggers of another program, which may change or refuse what is stored"),
            onTable(trigger));
    }
    for (const std::string& index :
         NamesOf(connection, "SELECT name FROM pragma_index_list(?) WHERE \"unique\"", shape)) {
        findings.Add(Words("Indexes of another program that refuse a value which is there already"),
                     onTable(index));
    }
    const auto indexed = NamesOf(connection,
                                 "SELECT c.name FROM pragma_index_list(?) i, "
                                 "pragma_index_info(i.name) c WHERE c.seqno = 0",
                                 shape);
    for (const Field& field : shape.Fields) {
        if (field.Indexed &&
            std::none_of(indexed.begin(), indexed.end(), [&field](const std::string& name) {
                return EqualsIgnoringCase(name, field.Name);
            })) {
            findings.Add(Words("Fields without their index, by which reading becomes slow"),
                         onTable(field.Name));
        }
    }
}

/// Whether every field is there.
bool HasFields(const RawTable& table, const TableShape& shape, Findings& findings) {
    for (const Field& field : shape.Fields) {
        if (!table.Has(field.Name) && !field.Optional) {
            findings.Tell(Words("The table %1 has no field %2.", shape.Name, field.Name));
        }
    }
    return table.IsComplete();
}

// --- the rows ---

/// The findings in the rows of the tables that can be read.
class RowCheck {
  public:
    RowCheck(Connection& connection, Findings& findings)
        : connection_(connection)
        , findings_(findings) {}

    void Run(const std::vector<const TableShape*>& readable);

  private:
    struct Sheet {
        RawValue Number;
        RawValue Rooms;
        std::string Project; ///< as it is shown
    };

    void ReadDirectories();
    void ReadProjects();
    void ReadSheets();
    void CompareProjects();
    void CompareSheets();
    void CompareRooms();
    void FindUnreached(const TableShape& shape);
    void CompareRequests();
    void FindWrongValues(const TableShape& shape);
    /// The rooms of a sheet beside the number of rooms that the sheet tells.
    void CompareRoomsOf(std::int64_t number, std::int64_t rooms);
    std::string PlaceOf(const TableShape& shape, const RawRow& row, const RawTable& table) const;
    bool Reads(std::string_view table) const { return readable_.contains(table); }

    Connection& connection_;
    Findings& findings_;
    std::set<std::string_view> readable_;
    std::unordered_map<std::string, std::int64_t> directories_; ///< rows by stored name
    std::unordered_map<std::string, std::int64_t> projects_;    ///< rows by stored name
    std::vector<std::pair<std::string, std::string>> places_;   ///< directory and project shown
    std::vector<Sheet> sheets_;
    std::map<std::int64_t, const Sheet*> sheetsByNumber_; ///< the first of each number
};

void RowCheck::Run(const std::vector<const TableShape*>& readable) {
    for (const TableShape* shape : readable) {
        readable_.insert(shape->Name);
    }
    if (Reads(MainTab)) {
        ReadSheets();
    }
    for (const TableShape* shape : readable) {
        FindWrongValues(*shape);
    }
    if (Reads(DirTab)) {
        ReadDirectories();
    }
    if (Reads(ProjTab)) {
        ReadProjects();
        CompareProjects();
    }
    if (!Reads(MainTab)) {
        return;
    }
    CompareSheets();
    for (const TableShape* shape : readable) {
        if (shape->Name != MainTab && IsOfSheets(*shape)) {
            FindUnreached(*shape);
        }
    }
    if (Reads(InputData)) {
        CompareRooms();
    }
    if (Reads(OrderData)) {
        CompareRequests();
    }
}

void RowCheck::ReadDirectories() {
    RawTable(connection_, ShapeOf(DirTab)).Visit([this](const RawRow& row) {
        ++directories_[StoredName(TextOf(row.Values.at(0)))];
    });
    for (const auto& [name, rows] : directories_) {
        if (rows > 1 && !name.empty()) {
            findings_.Add(Words("Directories with more than one row"), name);
        }
    }
}

void RowCheck::ReadProjects() {
    RawTable table(connection_, ShapeOf(ProjTab));
    table.Visit([&](const RawRow& row) {
        const std::string name = TextOf(row.Values.at(table.At("ProjName")));
        ++projects_[StoredName(name)];
        const std::string directory = StoredName(TextOf(row.Values.at(table.At("Dir"))));
        const bool isMonth =
            std::find(MonthNames.begin(), MonthNames.end(), directory) != MonthNames.end();
        if (!isMonth && !directory.empty()) {
            places_.emplace_back(directory, name);
        }
    });
}

void RowCheck::ReadSheets() {
    RawTable table(connection_, ShapeOf(MainTab));
    table.Visit([&](const RawRow& row) {
        sheets_.push_back({row.Values.at(table.At("TabIndex")), row.Values.at(table.At("ObjNum")),
                           TextOf(row.Values.at(table.At("ProjName")))});
    });
    for (const Sheet& sheet : sheets_) {
        if (const auto* number = std::get_if<std::int64_t>(&sheet.Number)) {
            sheetsByNumber_.try_emplace(*number, &sheet);
        }
    }
}

void RowCheck::CompareProjects() {
    for (const auto& [name, rows] : projects_) {
        if (rows > 1 && !name.empty()) {
            findings_.Add(Words("Projects with more than one row"), name);
        }
    }
    if (Reads(DirTab)) {
        for (const auto& [directory, project] : places_) {
            if (!directories_.contains(directory)) {
                findings_.Add(
                    Words("Projects that no screen shows, since their directory is neither "
                          "listed nor a month"),
                    Words("%1 in %2", project, directory));
            }
        }
    }
}

void RowCheck::CompareSheets() {
    std::unordered_map<std::string, std::int64_t> sheetsOf;
    std::unordered_set<std::int64_t> shared;
    for (const Sheet& sheet : sheets_) {
        const std::string stored = StoredName(sheet.Project);
        const std::string number = QuotedValue(sheet.Number);
        if (Reads(ProjTab) && !projects_.contains(stored)) {
            findings_.Add(Words("Sheets without a project"),
                          sheet.Project.empty() ? Words("number %1 of no name", number)
                                                : Words("number %1 of %2", number, sheet.Project));
        }
        if (++sheetsOf[stored] == 2) {
            findings_.Add(
                Words("Projects with more than one sheet, of which the first alone is used"),
                sheet.Project);
        }
        if (const auto* whole = std::get_if<std::int64_t>(&sheet.Number)) {
            const Sheet& first = *sheetsByNumber_.at(*whole);
            if (StoredName(first.Project) != stored && shared.insert(*whole).second) {
                findings_.Add(Words("Sheet numbers of more than one project, whose rooms cannot be "
                                    "told apart"),
                              Words("%1 of %2 and %3", number, first.Project, sheet.Project));
            }
        }
    }
}

void RowCheck::FindUnreached(const TableShape& shape) {
    const std::string name(shape.Name);
    const std::string kind = shape.Name == InputData
                                 ? std::string(Words("Rooms without a sheet, which nothing shows"))
                                 : Words("Rows of %1 without a sheet, which nothing reaches", name);
    const Result groups = connection_.Run("SELECT TabIndex, count(*) FROM " + name +
                                              " WHERE typeof(TabIndex) = 'integer' AND TabIndex "
                                              "NOT IN (SELECT TabIndex FROM MainTab WHERE TabIndex "
                                              "IS NOT NULL) GROUP BY TabIndex",
                                          Words("%1 cannot be read", name));
    for (const QVariantList& row : groups.Rows) {
        findings_.Add(kind, Words("%1 under the number %2", std::to_string(row.at(1).toLongLong()),
                                  row.at(0).toString().toStdString()));
    }
}

void RowCheck::CompareRooms() {
    const Result groups =
        connection_.Run("SELECT TabIndex, count(*), count(DISTINCT ObjNum), min(ObjNum), "
                        "max(ObjNum) FROM InputData WHERE typeof(TabIndex) = 'integer' "
                        "GROUP BY TabIndex",
                        Words("%1 cannot be read", InputData));
    std::unordered_map<std::int64_t, const QVariantList*> rowsOf;
    for (const QVariantList& group : groups.Rows) {
        rowsOf[group.at(0).toLongLong()] = &group;
    }
    for (const auto& [number, sheet] : sheetsByNumber_) {
        const auto* rooms = std::get_if<std::int64_t>(&sheet->Rooms);
        if (rooms == nullptr || *rooms < 0) {
            continue; // told of the sheet already
        }
        const auto found = rowsOf.find(number);
        if (found == rowsOf.end()) {
            if (*rooms > 0) {
                findings_.Add(RoomsWithoutRow,
                              Words("%1, all %2", sheet->Project, std::to_string(*rooms)));
            }
            continue;
        }
        const QVariantList& group = *found->second;
        const bool inOrder = group.at(1).toLongLong() == *rooms &&
                             group.at(2).toLongLong() == *rooms && group.at(3).toLongLong() == 0 &&
                             group.at(4).toLongLong() == *rooms - 1;
        if (!inOrder) {
            CompareRoomsOf(number, *rooms);
        }
    }
}

void RowCheck::CompareRoomsOf(std::int64_t number, std::int64_t rooms) {
    const std::string& project = sheetsByNumber_.at(number)->Project;
    const auto roomText = [&project](std::int64_t place) {
        return Words("%1, room %2", project, std::to_string(place + 1));
    };
    const Result stored = connection_.Run(
        "SELECT ObjNum, count(*) FROM InputData WHERE TabIndex = ? AND typeof(ObjNum) = 'integer' "
        "GROUP BY ObjNum",
        Words("%1 cannot be read", InputData), {QVariant::fromValue<qint64>(number)});
    std::int64_t beyond = 0;
    std::int64_t next = 0; // the room whose row is to come
    const auto tellMissing = [&](std::int64_t end) {
        for (; next < end && next < rooms; ++next) {
            findings_.Add(RoomsWithoutRow, roomText(next));
        }
    };
    for (const QVariantList& row : stored.Rows) {
        const std::int64_t place = row.at(0).toLongLong();
        if (place >= rooms) {
            beyond += row.at(1).toLongLong();
        } else if (place >= 0) {
            tellMissing(place);
            next = place + 1;
            if (row.at(1).toLongLong() > 1) {
                findings_.Add(Words("Rooms with more than one row, of which the last is read"),
                              roomText(place));
            }
        }
    }
    tellMissing(rooms);
    if (beyond > 0) {
        findings_.Add(Words("Rooms beyond the number that the sheet tells, which nothing shows"),
                      project + ", " + CountedWords("%n room", "%n rooms", beyond));
    }
}

/// Those of sheets that are there; what else is wrong with a row is told of its fields.
void RowCheck::CompareRequests() {
    std::map<std::pair<std::int64_t, std::int64_t>, int> rowsOf;
    RawTable(connection_, ShapeOf(OrderData)).Visit([&](const RawRow& row) {
        const auto request = RawRequestOf(row);
        const auto sheet = request ? sheetsByNumber_.find(request->Sheet) : sheetsByNumber_.end();
        if (sheet == sheetsByNumber_.end()) {
            return;
        }
        const std::string place =
            sheet->second->Project + ", " + CoveringCaption(static_cast<Byte>(request->Carpet - 1));
        if (!request->IsReadable) {
            findings_.Add(Words("Requests for orders that cannot be read"), place);
        } else if (++rowsOf[{request->Sheet, request->Carpet}] == 2) {
            findings_.Add(
                Words("Carpets with more than one request for an order, of which the last is "
                      "read"),
                place);
        }
    });
}

void RowCheck::FindWrongValues(const TableShape& shape) {
    RawTable table(connection_, shape);
    table.VisitFaulty([&](const RawRow& row) {
        for (std::size_t i = 0; i < shape.Fields.size(); ++i) {
            const Field& field = shape.Fields.at(i);
            const auto fault = table.Has(field.Name) ? FaultOf(row.Values.at(i), field)
                                                     : std::optional<std::string>();
            if (fault) {
                findings_.Add(Words("%1 in %2 %3", field.Name, shape.Name, *fault),
                              PlaceOf(shape, row, table) + " (" + QuotedValue(row.Values.at(i)) +
                                  ")");
            }
        }
    });
}

std::string RowCheck::PlaceOf(const TableShape& shape, const RawRow& row,
                              const RawTable& table) const {
    if (shape.Name == ProjTab || shape.Name == MainTab) {
        std::string name = TextOf(row.Values.at(table.At("ProjName")));
        if (!name.empty()) {
            return name;
        }
    }
    if (shape.Name == InputData) {
        const auto* number = std::get_if<std::int64_t>(&row.Values.at(table.At("TabIndex")));
        const auto* room = std::get_if<std::int64_t>(&row.Values.at(table.At("ObjNum")));
        const auto sheet =
            number != nullptr ? sheetsByNumber_.find(*number) : sheetsByNumber_.end();
        if (sheet != sheetsByNumber_.end() && room != nullptr) {
            return Words("%1, room %2", sheet->second->Project, std::to_string(*room + 1));
        }
    }
    return Words("row %1", std::to_string(row.Number));
}

} // namespace

std::vector<std::string> CheckDatabaseFile(const std::string& path, int busyWait) {
    Findings findings(MostPlaces);
    try {
        UntouchedFile file(path, busyWait);
        TellOfJournal(file, path, findings);
        FindDamage(file, findings);
        Connection& connection = file.Database();
        const std::string failing = Words("The database file %1 cannot be checked", path);
        connection.Run("BEGIN", failing); // all that follows is of one moment
        std::vector<const TableShape*> readable;
        for (const TableShape& shape : TableShapes()) {
            if (IsTable(connection, shape, findings)) {
                FindOddities(connection, shape, findings);
                if (HasFields(RawTable(connection, shape), shape, findings)) {
                    readable.push_back(&shape);
                }
            }
        }
        RowCheck(connection, findings).Run(readable);
        connection.Run("COMMIT", failing);
    } catch (const DatabaseError& error) {
        findings.Tell(error.what());
    }
    return findings.Lines();
}

} // namespace tarn
