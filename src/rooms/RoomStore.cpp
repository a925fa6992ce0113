#include "rooms/RoomStore.h"

#include "app/Numbers.h"
#include "app/RunTimeError.h"
#include "rooms/RoomRows.h"
#include "store/Deletions.h"
#include "store/Failure.h"
#include "store/Fields.h"
#include "store/Names.h"
#include "store/Schema.h"
#include "store/SharedRows.h"
#include "store/Sheets.h"

namespace tarn {

namespace {

void AddRoomRow(Recordset& rows, std::int64_t number, const RoomRecord& room, std::int64_t sheet) {
    rows.AddNew();
    rows.SetField("ObjNum", number);
    rows.SetField("RoomW", std::int64_t{room.Width});
    rows.SetField("RoomL", std::int64_t{room.Length});
    rows.SetField("RoomNoStr", room.RoomNo);
    rows.SetField("RoomRemark", room.Remark);
    rows.SetField("CTType", std::int64_t{room.Covering});
    rows.SetField("BaseSty", std::int64_t{room.Base});
    rows.SetField("TabIndex", sheet);
    rows.Update();
}

/// The other projects that have a sheet under that number, as stored.
std::vector<std::string> OthersUnder(SharedState& state, Integer sheet) {
    const auto rows = OpenedDatabase(state).OpenSnapshot(SheetQuery(MainTab, sheet));
    std::vector<std::string> others;
    for (; !rows->AtEnd(); rows->MoveNext()) {
        const std::string project = TextIn(*rows, "ProjName");
        if (StoredName(project) != StoredName(state.CurProjName)) {
            others.push_back(project);
        }
    }
    return others;
}

/// Give every sheet of the open project that number: saving then replaces them all, and keeps from
/// the first whether the rooms were entered in metric.
void RenumberSheets(SharedState& state, Integer number) {
    const auto rows =
        OpenedDatabase(state).OpenDynaset(TextQuery(MainTab, "ProjName", state.CurProjName));
    for (; !rows->AtEnd(); rows->MoveNext()) {
        if (NumberIn(*rows, "TabIndex") != number) {
            rows->Edit();
            rows->SetField("TabIndex", std::int64_t{number});
            rows->Update();
        }
    }
}

/// The number under which to save the open project; see SaveProject.
Integer SheetToSave(SharedState& state) {
    const auto own = FindProjTabIndex(state);
    Long sheet = own.value_or(state.CurTabIndex);
    if (sheet == NoSheet || !OthersUnder(state, ToInteger(sheet)).empty()) {
        sheet = NewTabIndex(state);
    }
    if (own) {
        RenumberSheets(state, ToInteger(sheet));
    }
    return ToInteger(sheet);
}

/// The project has no sheet: allocate a number for it.
void PrepareNewSheet(SharedState& state) {
    state.CurTabIndex = ToInteger(NewTabIndex(state));
    state.NewSheetFlag = true;
}

void LoadSheetAndRooms(SharedState& state, Integer sheet, ProjectLoad& load) {
    Integer number = sheet;
    if (!LoadMainTab(state, number)) {
        throw DatabaseError(state.DatabaseFailure);
    }
    const auto rows = ReadRoomRows(state, sheet);
    load.EnteredMetric = WasEnteredInMetric(state, sheet);
    for (const RoomRow& row : rows) {
        if (row.Slot) {
            PutRoom(state, *row.Slot, row.Room);
        }
    }
    load.Findings = RoomFindings(rows, state.ObjNum, OthersUnder(state, sheet));
    state.CurTabIndex = number;
    state.NewSheetFlag = false;
}

} // namespace

void EmptyRooms(SharedState& state) {
    state.RoomWidth.Fill(0);
    state.RoomLength.Fill(0);
    state.RoomCarpet.Fill(0);
    state.RoomBase.Fill(0);
    state.RoomNoStr.Fill({});
    state.RoomRemark.Fill({});
}

bool SaveInputData(SharedState& state, Integer tid) {
    const auto rooms = TakeRooms(state);
    const auto rows = OpenedDatabase(state).OpenDynaset(SheetQuery(InputData, tid));
    DeleteAllRows(*rows);
    std::int64_t number = 0;
    for (const RoomRecord& room : rooms) {
        AddRoomRow(*rows, number++, room, tid);
    }
    rows->Close();
    return true;
}

bool LoadInputData(SharedState& state, Integer tid) {
    const auto rows = ReadRoomRows(state, tid);
    for (const RoomRow& row : rows) {
        if (!row.Slot) {
            RaiseSubscript("A room row has the ObjNum " + row.ObjNumText + ".");
        }
    }
    for (const RoomRow& row : rows) {
        PutRoom(state, *row.Slot, row.Room);
    }
    return true;
}

Integer StoreProject(SharedState& state) {
    const Integer sheet = SheetToSave(state);
    if (!SaveMainTab(state, sheet)) {
        throw DatabaseError(state.DatabaseFailure);
    }
    SaveInputData(state, sheet);
    return sheet;
}

bool SaveProject(SharedState& state) {
    return Succeeds(state, [&] {
        Transaction transaction(OpenedDatabase(state));
        const Integer sheet = StoreProject(state);
        transaction.Commit();
        state.CurTabIndex = sheet;
        state.NewSheetFlag = false;
    });
}

ProjectLoad LoadProject(SharedState& state) {
    ProjectLoad load;
    EmptyRooms(state);
    state.MetricFlag = 0;
    state.ObjNum = 0;
    try {
        if (const auto sheet = FindProjTabIndex(state)) {
            LoadSheetAndRooms(state, ToInteger(*sheet), load);
            load.Result = ProjectLoad::Outcome::Loaded;
        } else {
            PrepareNewSheet(state);
            load.Result = ProjectLoad::Outcome::NoSheet;
        }
        return load;
    } catch (const DatabaseError& error) {
        load.Cause = error.what();
    } catch (const RunTimeError& error) {
        load.Cause = error.Sentences();
    }
    state.ObjNum = 0;
    return load;
}

} // namespace tarn
