#include "app/StartModule.h"
#include "rooms/RoomStore.h"
#include "store/Names.h"
#include "store/ProjectNames.h"
#include "store/Projects.h"
#include "store/SqlDatabase.h"
#include "tools/DataCommands.h"
#include "tools/ProjectFile.h"
#include "tools/Refusal.h"

#include <iostream>

namespace tarn {

namespace {

/// Answers of the store to Refusals.
void Require(bool done, const SharedState& state) {
    if (!done) {
        throw Refusal(state.DatabaseFailure);
    }
}

void AddNewProject(SharedState& state, const std::string& wantedDirectory) {
    const std::string directory = wantedDirectory.empty()
                                      ? MonthDirectoryName(QDate::currentDate(), QLocale::system())
                                      : StoredName(wantedDirectory);
    FillMonthStr(state);
    // The current month needs no row of its own, in whatever language it is written.
    if (!wantedDirectory.empty() && !IsDirectoryTaken(state, directory)) {
        Require(AddDirectory(state, directory), state);
    }
    Require(AddProject(state, directory, state.CurProjName), state);
}

void Store(SharedState& state, const std::vector<RoomRecord>& rooms, bool metric) {
    PutRooms(state, rooms);
    state.MetricFlag = metric ? 1 : 0;
    StoreProject(state);
}

/// Raise Refusal unless `count` rooms of the file may take the place of what the project has.
void RequireReplaceable(const SharedState& state, const ProjectLoad& load,
                        const ImportRequest& request, std::size_t count) {
    if (load.Result == ProjectLoad::Outcome::Failed) {
        throw Refusal("The project " + state.CurProjName + " cannot be loaded: " + load.Cause);
    }
    // A sheet that counts no room may have rows of rooms all the same: the findings name them.
    const bool hasRooms = state.ObjNum > 0 || !load.Findings.empty();
    if (hasRooms && !request.Replace) {
        throw Refusal("The project " + state.CurProjName +
                      " has rooms already; --replace puts those of the file in their place.");
    }
    if (hasRooms && count == 0) {
        throw Refusal("The file " + request.Rooms + " has no rooms; the project " +
                      state.CurProjName + " keeps those that it has.");
    }
}

} // namespace

void ImportProject(const ImportRequest& request) {
    const std::vector<RoomRecord> rooms = ReadRoomFile(request.Rooms, request.Metric);
    SharedState state;
    state.CurDB = OpenSqlDatabase(request.Database);
    state.CurProjName = StoredName(request.Project);
    Transaction transaction(*state.CurDB);
    const bool isNew = CheckProjName(state, state.CurProjName);
    RequireReplaceable(state, LoadProject(state), request, rooms.size());
    if (isNew) {
        AddNewProject(state, request.Directory);
    }
    // A sheet remembers that it was entered in metric until it is saved without rooms.
    Store(state, {}, false);
    Store(state, rooms, request.Metric);
    transaction.Commit();
    std::cout << state.CurProjName << ": " << rooms.size()
              << (rooms.size() == 1 ? " room.\n" : " rooms.\n");
}

} // namespace tarn
