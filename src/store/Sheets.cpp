#include "store/Sheets.h"

#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "base/Words.h"
#include "files/QtText.h"
#include "store/DatabaseError.h"
#include "store/Schema.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <set>

namespace tarn {

namespace {

constexpr std::string_view EnteredMetricField = "EnteredMetric";
/// Every table whose rows belong to a sheet.
std::vector<std::string_view> TablesBySheet() {
    std::vector<std::string_view> tables(SheetTables.begin(), SheetTables.end());
    tables.push_back(OrderData);
    return tables;
}

constexpr Integer GreatestNumber = std::numeric_limits<Integer>::max();

/// A number of the sheet that must be there.
Double RequiredNumber(const StoredRow& sheet, std::string_view field) {
    const auto number = sheet.NumberIn(field);
    if (!number) {
        throw DatabaseError(Words("The project's sheet has no value in its field %1.", field));
    }
    return *number;
}

void RequireGood(bool good, std::string_view field) {
    if (!good) {
        throw DatabaseError(
            Words("The project's sheet holds a wrong value in its field %1.", field));
    }
}

/// Delete what every table but that of the sheets holds under a number, which is taken as it
/// stands: of another number no row may go.
void DeleteRowsUnder(Connection& connection, const QVariant& number) {
    for (const std::string_view table : TablesBySheet()) {
        const std::string kind = KindOf(connection, table);
        if (kind == "view") {
            throw DatabaseError(
                Words("%1 cannot be deleted from: it is a view and no table.", table));
        }
        if (!kind.empty() && table != MainTab) {
            Table(connection, table).DeleteWhere("TabIndex", number);
        }
    }
}

/// The sheet numbers from `least` to `most` under which a table has rows.
std::set<Double> NumbersInUse(Connection& connection, Integer least, Integer most) {
    std::set<Double> numbers;
    for (const std::string_view name : TablesBySheet()) {
        if (!KindOf(connection, name).empty()) {
            Table table(connection, name);
            if (table.HasField("TabIndex")) {
                numbers.merge(table.NumbersBetween("TabIndex", least, most));
            }
        }
    }
    return numbers;
}

} // namespace

StoredProject ReadStored(Connection& connection, std::string_view project) {
    StoredProject stored;
    stored.Sheets = Table(connection, MainTab).RowsShowing("ProjName", project);
    if (!stored.Sheets.empty()) {
        const QVariant& number = stored.Sheets.front().ValueIn("TabIndex");
        stored.Rooms = Table(connection, InputData).RowsWhere("TabIndex", number, "ObjNum");
        if (!KindOf(connection, OrderData).empty()) {
            stored.Orders = Table(connection, OrderData).RowsWhere("TabIndex", number, "Carpet");
        }
    }
    return stored;
}

Integer SheetNumberOf(const StoredRow& sheet, std::string_view project) {
    const Double number = RequiredNumber(sheet, "TabIndex");
    const auto text = [&](const std::string& fault) {
        return Words("The sheet of the project %1 has the number %2; %3", project,
                     sheet.TextIn("TabIndex"), fault);
    };
    if (std::abs(number) > GreatestNumber) {
        RaiseOverflow(text(Words("the greatest is %1.", TrimStr(GreatestNumber))));
    }
    if (number != std::floor(number)) {
        throw DatabaseError(text(Words("it must be a whole one.")));
    }
    return CInt(number);
}

std::optional<Integer> FindSheetNumber(Connection& connection, std::string_view project) {
    const auto sheets = Table(connection, MainTab).RowsShowing("ProjName", project);
    return sheets.empty() ? std::nullopt : std::optional(SheetNumberOf(sheets.front(), project));
}

Integer NewSheetNumber(Connection& connection) {
    const auto overflow = [] {
        RaiseOverflow(Words("No sheet number is left: the greatest one, 32767, is in use."));
    };
    const auto greatest = Table(connection, MainTab).Greatest("TabIndex");
    if (greatest && *greatest >= GreatestNumber) {
        overflow();
    }
    int number = greatest ? std::max<int>(CInt(*greatest + 1), 0) : 0;
    // Rows without a sheet may be all that is left of somebody's rooms.
    const auto inUse = NumbersInUse(connection, ToInteger(number), GreatestNumber);
    while (inUse.contains(number)) {
        ++number;
    }
    if (number > GreatestNumber) {
        overflow();
    }
    return ToInteger(number);
}

std::vector<std::string> OtherProjectsUnder(Connection& connection, Integer number,
                                            std::string_view project) {
    std::vector<std::string> others;
    for (const StoredRow& sheet : Table(connection, MainTab).RowsWhere("TabIndex", number)) {
        std::string name = sheet.TextIn("ProjName");
        if (!EqualsIgnoringCase(name, project)) {
            others.push_back(std::move(name));
        }
    }
    return others;
}

SheetContent ContentOf(const StoredRow& sheet) {
    const Double rooms = RequiredNumber(sheet, "ObjNum");
    const Double scale = RequiredNumber(sheet, "DigScale");
    RequireGood(rooms >= 0 && rooms <= RoomCapacity, "ObjNum");
    RequireGood(scale > 0 && std::isfinite(scale), "DigScale");
    // Fields of older versions: they must be there, their values are not kept.
    for (const char* field : {"PicScale", "MagScale", "ScaleTop", "ScaleLeft"}) {
        sheet.ValueIn(field);
    }
    return {static_cast<std::size_t>(CInt(rooms)), scale};
}

Units EnteredUnitsOf(const StoredRow& sheet) {
    const auto entered =
        sheet.HasField(EnteredMetricField) ? sheet.NumberIn(EnteredMetricField) : std::nullopt;
    const Double metric = entered.value_or(sheet.NumberIn("TileLabelNUm").value_or(0));
    return metric == 1 ? Units::Metric : Units::Imperial;
}

std::vector<std::string> SheetFindings(const std::vector<StoredRow>& sheets, Integer number) {
    if (sheets.size() < 2) {
        return {};
    }
    std::string others;
    for (auto sheet = sheets.begin() + 1; sheet != sheets.end(); ++sheet) {
        const std::string other = sheet->TextIn("TabIndex");
        others += (others.empty() ? "" : ", ") +
                  (other.empty() ? std::string(Words("one without a number")) : other);
    }
    return {
        Words("Stored with more than one sheet, the first, number %1, is used; not reached: %2.",
              TrimStr(number), others)};
}

Integer SheetNumberToSave(Connection& connection, const Project& project,
                          const std::vector<StoredRow>& sheets) {
    const Integer number =
        sheets.empty() ? project.Sheet : SheetNumberOf(sheets.front(), project.Name);
    const bool isFree = sheets.empty()
                            ? NumbersInUse(connection, number, number).empty()
                            : OtherProjectsUnder(connection, number, project.Name).empty();
    return isFree && number != NoSheet ? number : NewSheetNumber(connection);
}

void StoreSheet(Connection& connection, const Project& project,
                const std::vector<StoredRow>& sheets, Units shown) {
    Table table(connection, MainTab);
    if (!table.HasField(EnteredMetricField)) {
        table.AddNumberField(EnteredMetricField);
    }
    std::vector<StoredRow> replaced;
    std::copy_if(sheets.begin(), sheets.end(), std::back_inserter(replaced),
                 [&sheets](const StoredRow& sheet) {
                     return sheet.ValueIn("TabIndex") == sheets.front().ValueIn("TabIndex");
                 });
    table.Delete(replaced);
    const Table::Values values = {
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
    };
    table.Add(values, sheets.empty() ? nullptr : &sheets.front());
}

void DeleteSheetsOf(Connection& connection, std::string_view project) {
    Table table(connection, MainTab);
    const auto sheets = table.RowsShowing("ProjName", project);
    for (const StoredRow& sheet : sheets) {
        if (!sheet.NumberIn("TabIndex")) {
            throw DatabaseError(
                Words("A project's sheet has no number; its data cannot be deleted."));
        }
        sheet.IntegerIn("TabIndex"); // a number past the greatest overflows
    }
    table.Delete(sheets);
    for (const StoredRow& sheet : sheets) {
        const QVariant& number = sheet.ValueIn("TabIndex");
        if (table.RowsWhere("TabIndex", number).empty()) {
            DeleteRowsUnder(connection, number);
        }
    }
}

} // namespace tarn
