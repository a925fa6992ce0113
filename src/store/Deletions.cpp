#include "store/Deletions.h"

#include "store/Failure.h"
#include "store/Fields.h"
#include "store/Schema.h"
#include "store/SharedRows.h"
#include "store/Sheets.h"

namespace tarn {

namespace {

/// Delete the data of every sheet that `query` finds.
void DeleteSheetsOf(SharedState& state, const std::string& query) {
    const auto sheets = OpenedDatabase(state).OpenSnapshot(query);
    for (; !sheets->AtEnd(); sheets->MoveNext()) {
        if (!NumberIn(*sheets, "TabIndex")) {
            throw DatabaseError("A project's sheet has no number; its data cannot be deleted.");
        }
        DeleteProjData(state, IntegerIn(*sheets, "TabIndex"));
    }
}

/// Raise DatabaseError when the database takes no change. Every table of every sheet would wait for
/// another program's lock on its own.
void RequireWritable(SharedState& state) {
    const Transaction probe(OpenedDatabase(state));
}

void DeleteRowsOf(SharedState& state, const std::string& query) {
    DeleteAllRows(*OpenedDatabase(state).OpenDynaset(query));
}

} // namespace

bool DeleteAllRows(Recordset& rows) {
    for (; !rows.AtEnd(); rows.MoveNext()) {
        rows.Delete();
    }
    return true;
}

bool DeleteTabRows(SharedState& state, std::string_view table, Integer tabIndex) {
    Succeeds(state, [&] { DeleteRowsOf(state, SheetQuery(table, tabIndex)); });
    return false;
}

bool DeleteProjData(SharedState& state, Integer tabIndex) {
    for (const std::string_view table : SheetTables) {
        DeleteTabRows(state, table, tabIndex);
    }
    return false;
}

bool DeleteDirData(SharedState& state, const std::string& name) {
    return Succeeds(state, [&] {
        RequireWritable(state);
        const std::string sheets(MainTab);
        const std::string projects(ProjTab);
        DeleteSheetsOf(state, "Select * from " + sheets + ", " + projects + " where " + sheets +
                                  ".ProjName=" + projects + ".ProjName and Dir=\"" + name + "\"");
        DeleteRowsOf(state, TextQuery(ProjTab, "Dir", name));
        DeleteRowsOf(state, TextQuery(DirTab, "Directory", name));
    });
}

bool DeleteProjectData(SharedState& state, const std::string& name) {
    const bool deleted = Succeeds(state, [&] {
        RequireWritable(state);
        DeleteSheetsOf(state, TextQuery(MainTab, "ProjName", name));
        DeleteRowsOf(state, TextQuery(ProjTab, "ProjName", name));
    });
    if (deleted) {
        // Rows that do not reopen now do so when they are read next, or say then why not.
        Succeeds(state, [&] { ReopenRows(state, SharedRows::Projects); });
    }
    return deleted;
}

} // namespace tarn
