#include "store/Sheets.h"

#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "store/DatabaseError.h"
#include "store/Names.h"
#include "store/Schema.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>

namespace tarn {

namespace {

constexpr std::string_view EnteredMetricField = "EnteredMetric";
constexpr Integer GreatestNumber = std::numeric_limits<Integer>::max();

/// A number of the sheet that must be there.
Double RequiredNumber(const StoredRow& sheet, std::string_view field) {
    const auto number = sheet.NumberIn(field);
    if (!number) {
        throw DatabaseError("The project's sheet has no value in its field " + std::string(field) +
                            ".");
    }
    return *number;
}

void RequireGood(bool good, std::string_view field) {
    if (!good) {
        throw DatabaseError("The project's sheet holds a wrong value in its field " +
                            std::string(field) + ".");
    }
}

bool HasTable(Connection& connection, std::string_view name) {
    const std::string table(name);
    return !connection
                .Run("SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = ? COLLATE NOCASE",
                     table + " cannot be read", {TextValue(name)})
                .Rows.empty();
}

void DeleteRowsUnder(Connection& connection, Integer number) {
    for (const std::string_view table : SheetTables) {
        if (HasTable(connection, table)) {
            Table(connection, table).DeleteWhere("TabIndex", number);
        }
    }
}

} // namespace

std::optional<Integer> FindSheetNumber(Connection& connection, std::string_view project) {
    const auto sheets = Table(connection, MainTab).RowsWhere("ProjName", TextValue(project));
    if (sheets.empty()) {
        return std::nullopt;
    }
    const Double number = RequiredNumber(sheets.front(), "TabIndex");
    if (std::abs(number) > GreatestNumber) {
        RaiseOverflow("The sheet of the project " + std::string(project) + " has the number " +
                      sheets.front().TextIn("TabIndex") + "; the greatest is " +
                      TrimStr(GreatestNumber) + ".");
    }
    return CInt(number);
}

Integer NewSheetNumber(Connection& connection) {
    const auto greatest = Table(connection, MainTab).Greatest("TabIndex");
    if (!greatest || *greatest + 1 < 0) {
        return 0;
    }
    if (*greatest >= GreatestNumber) {
        RaiseOverflow("No sheet number is left: the greatest one, 32767, is in use.");
    }
    return CInt(*greatest + 1);
}

SheetsUnder::SheetsUnder(Connection& connection, Integer number, std::string_view project)
    : project_(StoredName(project))
    , sheets_(Table(connection, MainTab).RowsWhere("TabIndex", number)) {}

bool SheetsUnder::IsOwn(const StoredRow& sheet) const {
    return StoredName(sheet.TextIn("ProjName")) == project_;
}

const StoredRow* SheetsUnder::Own() const {
    if (sheets_.empty()) {
        return nullptr;
    }
    const auto own = std::find_if(sheets_.begin(), sheets_.end(),
                                  [this](const StoredRow& sheet) { return IsOwn(sheet); });
    return own == sheets_.end() ? &sheets_.front() : &*own;
}

std::vector<std::string> SheetsUnder::OtherProjects() const {
    std::vector<std::string> others;
    for (const StoredRow& sheet : sheets_) {
        if (!IsOwn(sheet)) {
            others.push_back(sheet.TextIn("ProjName"));
        }
    }
    return others;
}

SheetContent ContentOf(const StoredRow& sheet) {
    const Double rooms = RequiredNumber(sheet, "ObjNum");
    const Double number = RequiredNumber(sheet, "TabIndex");
    const Double scale = RequiredNumber(sheet, "DigScale");
    RequireGood(rooms >= 0 && rooms <= RoomCapacity, "ObjNum");
    RequireGood(scale > 0 && std::isfinite(scale), "DigScale");
    // Fields of older versions: they must be there, their values are not kept.
    for (const char* field : {"PicScale", "MagScale", "ScaleTop", "ScaleLeft"}) {
        sheet.ValueIn(field);
    }
    return {CInt(number), CInt(rooms), scale};
}

Units EnteredUnitsOf(const StoredRow& sheet) {
    const auto entered =
        sheet.HasField(EnteredMetricField) ? sheet.NumberIn(EnteredMetricField) : std::nullopt;
    const Double metric = entered.value_or(sheet.NumberIn("TileLabelNUm").value_or(0));
    return metric == 1 ? Units::Metric : Units::Imperial;
}

Integer SheetNumberToSave(Connection& connection, const Project& project) {
    const auto own = FindSheetNumber(connection, project.Name);
    Integer number = own.value_or(project.Sheet);
    if (number == NoSheet ||
        !SheetsUnder(connection, number, project.Name).OtherProjects().empty()) {
        number = NewSheetNumber(connection);
    }
    if (own) {
        Table table(connection, MainTab);
        for (const StoredRow& sheet : table.RowsWhere("ProjName", TextValue(project.Name))) {
            if (sheet.NumberIn("TabIndex") != number) {
                table.Change(sheet, "TabIndex", number);
            }
        }
    }
    return number;
}

void StoreSheet(Connection& connection, const Project& project, Units shown) {
    Table table(connection, MainTab);
    if (!table.HasField(EnteredMetricField)) {
        table.AddNumberField(EnteredMetricField);
    }
    table.DeleteWhere("TabIndex", project.Sheet);
    table.Add({
        {"ProjName", TextValue(project.Name)},
        {"ObjNum", static_cast<int>(project.Rooms.size())},
        {"TabIndex", project.Sheet},
        {"PicScale", QVariant()},
        {"DigScale", project.Scale},
        {"TileLabelNUm", shown == Units::Metric ? 1 : 0},
        {"MagScale", 1},
        {"ScaleTop", -500},
        {"ScaleLeft", -500},
        {EnteredMetricField, project.EnteredIn == Units::Metric ? 1 : 0},
    });
}

void DeleteSheetsOf(Connection& connection, const QVariant& project) {
    for (const StoredRow& sheet : Table(connection, MainTab).RowsWhere("ProjName", project)) {
        if (!sheet.NumberIn("TabIndex")) {
            throw DatabaseError("A project's sheet has no number; its data cannot be deleted.");
        }
        DeleteRowsUnder(connection, sheet.IntegerIn("TabIndex"));
    }
}

void LeaveSharedNumbers(Connection& connection, const std::vector<std::string>& projects) {
    std::set<std::string> leaving;
    for (const std::string& project : projects) {
        leaving.insert(StoredName(project));
    }
    const auto isLeaving = [&leaving](const StoredRow& sheet) {
        return leaving.contains(StoredName(sheet.TextIn("ProjName")));
    };

    Table table(connection, MainTab);
    const auto sheets = table.Rows();
    // As texts, so that a number out of order in a row of another project stops no deletion.
    std::set<std::string> others;
    for (const StoredRow& sheet : sheets) {
        if (!isLeaving(sheet)) {
            others.insert(sheet.TextIn("TabIndex"));
        }
    }
    others.erase(std::string()); // of sheets without a number
    for (const StoredRow& sheet : sheets) {
        if (isLeaving(sheet) && others.contains(sheet.TextIn("TabIndex"))) {
            table.Change(sheet, "TabIndex", NewSheetNumber(connection));
        }
    }
}

} // namespace tarn
