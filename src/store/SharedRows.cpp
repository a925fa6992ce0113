#include "store/SharedRows.h"

#include "store/Schema.h"

namespace tarn {

namespace {

std::string QueryFor(SharedRows rows) {
    const std::string select = "SELECT * from ";
    switch (rows) {
    case SharedRows::Directories:
        return select + std::string(DirTab) + " Order by Directory";
    case SharedRows::Projects:
        return select + std::string(ProjTab);
    case SharedRows::Sheets:
        break;
    }
    return select + std::string(MainTab);
}

std::unique_ptr<Recordset>& Slot(SharedState& state, SharedRows rows) {
    return state.DBRS[static_cast<int>(rows)];
}

} // namespace

Database& OpenedDatabase(SharedState& state) {
    if (!state.CurDB) {
        throw DatabaseError(state.DatabaseFailure.empty() ? "No database is open."
                                                          : state.DatabaseFailure);
    }
    return *state.CurDB;
}

void ReopenRows(SharedState& state, SharedRows rows) {
    auto& slot = Slot(state, rows);
    slot.reset();
    slot = OpenedDatabase(state).OpenDynaset(QueryFor(rows));
}

Recordset& RowsOf(SharedState& state, SharedRows rows) {
    auto& slot = Slot(state, rows);
    if (!slot) {
        ReopenRows(state, rows);
    }
    return *slot;
}

} // namespace tarn
