#include "store/Sheets.h"

#include "app/Numbers.h"
#include "app/RunTimeError.h"
#include "app/Text.h"
#include "store/Deletions.h"
#include "store/Failure.h"
#include "store/Fields.h"
#include "store/Names.h"
#include "store/Schema.h"
#include "store/SharedRows.h"

#include <cmath>
#include <limits>
#include <set>

namespace tarn {

namespace {

constexpr std::string_view EnteredMetricField = "EnteredMetric";

/// Stand the rows of one sheet number on that of CurProjName: older files may have several projects
/// under one number. On the first row when that project has none.
void MoveToOwnRow(Recordset& sheets, const SharedState& state) {
    const std::string own = StoredName(state.CurProjName);
    while (!sheets.AtEnd() && StoredName(TextIn(sheets, "ProjName")) != own) {
        sheets.MoveNext();
    }
    if (sheets.AtEnd()) {
        sheets.MoveFirst();
    }
}

/// The current row's EnteredMetric.
bool EnteredMetricOf(const Recordset& sheet) {
    const auto entered =
        sheet.HasField(EnteredMetricField) ? NumberIn(sheet, EnteredMetricField) : std::nullopt;
    return entered.value_or(NumberIn(sheet, "TileLabelNUm").value_or(0)) == 1;
}

void StoreSheet(SharedState& state, Integer tabIndex) {
    const auto sheet = OpenedDatabase(state).OpenDynaset(SheetQuery(MainTab, tabIndex));
    MoveToOwnRow(*sheet, state);
    const bool wasMetric = !sheet->AtEnd() && EnteredMetricOf(*sheet);
    sheet->MoveFirst();
    DeleteAllRows(*sheet);

    sheet->AddNew();
    sheet->SetField("ProjName", state.CurProjName);
    sheet->SetField("ObjNum", std::int64_t{state.ObjNum});
    sheet->SetField("TabIndex", std::int64_t{tabIndex});
    sheet->SetField("PicScale", std::monostate());
    sheet->SetField("DigScale", state.DimScale);
    sheet->SetField("TileLabelNUm", std::int64_t{state.MetricFlag});
    sheet->SetField("MagScale", std::int64_t{1});
    sheet->SetField("ScaleTop", std::int64_t{-500});
    sheet->SetField("ScaleLeft", std::int64_t{-500});
    if (sheet->HasField(EnteredMetricField)) {
        const bool metric = state.ObjNum > 0 && (state.IsMetric() || wasMetric);
        sheet->SetField(EnteredMetricField, std::int64_t{metric ? 1 : 0});
    }
    sheet->Update();
}

/// A number of the sheet row that must be there.
Double RequiredNumber(const Recordset& sheet, std::string_view field) {
    const auto number = NumberIn(sheet, field);
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

void LoadSheet(SharedState& state, Integer& tabIndex) {
    const auto sheet = OpenedDatabase(state).OpenSnapshot(SheetQuery(MainTab, tabIndex));
    MoveToOwnRow(*sheet, state);
    if (sheet->AtEnd()) {
        throw DatabaseError("The project's sheet, number " + TrimStr(tabIndex) + ", is missing.");
    }
    const Double rooms = RequiredNumber(*sheet, "ObjNum");
    const Double number = RequiredNumber(*sheet, "TabIndex");
    const Double scale = RequiredNumber(*sheet, "DigScale");
    RequireGood(rooms >= 0 && rooms <= MaxRoom + 1, "ObjNum");
    RequireGood(scale > 0 && std::isfinite(scale), "DigScale");
    // Fields of older versions: they must be there, their values are not kept.
    for (const char* field : {"PicScale", "MagScale", "ScaleTop", "ScaleLeft"}) {
        sheet->Field(field);
    }

    state.ObjNum = CInt(rooms);
    tabIndex = CInt(number);
    state.DimScale = scale;
}

} // namespace

std::string SheetQuery(std::string_view table, Long tabIndex) {
    return "Select * from " + std::string(table) + " where TabIndex=" + TrimStr(tabIndex);
}

std::string TextQuery(std::string_view table, std::string_view field, std::string_view text) {
    return "Select * from " + std::string(table) + " where " + std::string(field) + "=\"" +
           std::string(text) + "\"";
}

bool SaveMainTab(SharedState& state, Integer tabIndex) {
    return Succeeds(state, [&] { StoreSheet(state, tabIndex); });
}

bool LoadMainTab(SharedState& state, Integer& tabIndex) {
    state.MetricFlag = 0;
    return Succeeds(state, [&] { LoadSheet(state, tabIndex); });
}

bool WasEnteredInMetric(SharedState& state, Integer tabIndex) {
    const auto sheet = OpenedDatabase(state).OpenSnapshot(SheetQuery(MainTab, tabIndex));
    MoveToOwnRow(*sheet, state);
    return !sheet->AtEnd() && EnteredMetricOf(*sheet);
}

Long NewTabIndex(SharedState& state) {
    const auto rows =
        OpenedDatabase(state).OpenSnapshot("Select Max(TabIndex) from " + std::string(MainTab));
    const auto greatest = rows->AtEnd() ? std::nullopt : NumberIn(*rows, "Max(TabIndex)");
    if (!greatest || *greatest + 1 < 0) {
        return 0;
    }
    if (*greatest >= std::numeric_limits<Integer>::max()) {
        RaiseOverflow("No sheet number is left: the greatest one, 32767, is in use.");
    }
    return CInt(*greatest + 1);
}

std::optional<Long> FindProjTabIndex(SharedState& state) {
    const auto rows =
        OpenedDatabase(state).OpenSnapshot("Select TabIndex from " + std::string(MainTab) +
                                           " where ProjName = \"" + state.CurProjName + "\"");
    if (rows->AtEnd()) {
        return std::nullopt;
    }
    const Double number = RequiredNumber(*rows, "TabIndex");
    if (std::abs(number) > std::numeric_limits<Integer>::max()) {
        RaiseOverflow("The sheet of the project " + state.CurProjName + " has the number " +
                      TextIn(*rows, "TabIndex") + "; the greatest is " +
                      TrimStr(std::numeric_limits<Integer>::max()) + ".");
    }
    return CLng(number);
}

Long GetProjTabIndex(SharedState& state) {
    Long number = NoSheet;
    Succeeds(state, [&] { number = FindProjTabIndex(state).value_or(NoSheet); });
    return number;
}

void LeaveSharedNumbers(SharedState& state, const std::vector<std::string>& projects) {
    std::set<std::string> leaving;
    for (const std::string& project : projects) {
        leaving.insert(StoredName(project));
    }
    Transaction transaction(OpenedDatabase(state));
    Recordset& sheets = RowsOf(state, SharedRows::Sheets);
    const auto isLeaving = [&] { return leaving.contains(StoredName(TextIn(sheets, "ProjName"))); };

    // As texts, so that a number out of order in a row of another project stops no deletion.
    std::set<std::string> others;
    for (sheets.MoveFirst(); !sheets.AtEnd(); sheets.MoveNext()) {
        if (!isLeaving()) {
            others.insert(TextIn(sheets, "TabIndex"));
        }
    }
    others.erase(std::string()); // of sheets without a number
    for (sheets.MoveFirst(); !sheets.AtEnd(); sheets.MoveNext()) {
        if (isLeaving() && others.contains(TextIn(sheets, "TabIndex"))) {
            sheets.Edit();
            sheets.SetField("TabIndex", std::int64_t{NewTabIndex(state)});
            sheets.Update();
        }
    }
    transaction.Commit();
}

} // namespace tarn
