#include "app/StartModule.h"
#include "rooms/RoomStore.h"
#include "store/Deletions.h"
#include "store/Names.h"
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

bool IsMonth(SharedState& state, const std::string& directory) {
    FillMonthStr(state);
    for (int month = 0; month < 12; ++month) {
        if (state.MonthStr[month] == directory) {
            return true;
        }
    }
    return false;
}

void AddNewProject(SharedState& state, const std::string& wantedDirectory) {
    const std::string directory = wantedDirectory.empty()
                                      ? MonthDirectoryName(QDate::currentDate(), QLocale::system())
                                      : StoredName(wantedDirectory);
    const bool isThere = IsMonth(state, directory) || CheckDir(state, directory);
    // The current month needs no row of its own, in whatever language it is written.
    if (!isThere && !wantedDirectory.empty()) {
        Require(AddDirectory(state, directory), state);
    }
    Require(AddProject(state, directory, state.CurProjName), state);
}

void Save(SharedState& state, const std::vector<RoomRecord>& rooms, bool metric) {
    PutRooms(state, rooms);
    state.MetricFlag = metric ? 1 : 0;
    Require(SaveProject(state), state);
}

} // namespace

void ImportProject(const ImportRequest& request) {
    const std::vector<RoomRecord> rooms = ReadRoomFile(request.Rooms, request.Metric);
    SharedState state;
    state.CurDB = OpenSqlDatabase(request.Database);
    state.CurProjName = StoredName(request.Project);
    const bool isNew = CheckProjName(state, state.CurProjName);
    const ProjectLoad load = LoadProject(state);
    if (load.Result == ProjectLoad::Outcome::Failed) {
        throw Refusal("The project " + state.CurProjName + " cannot be loaded: " + load.Cause);
    }
    if (state.ObjNum > 0 && !request.Replace) {
        throw Refusal("The project " + state.CurProjName +
                      " has rooms already; --replace puts those of the file in their place.");
    }
    if (isNew) {
        AddNewProject(state, request.Directory);
    }
    try {
        if (load.EnteredMetric && !request.Metric) {
            // A sheet remembers that it was entered in metric until it is saved without rooms.
            Save(state, {}, false);
        }
        Save(state, rooms, request.Metric);
    } catch (const std::exception&) {
        if (isNew) {
            DeleteProjectData(state, state.CurProjName);
        }
        throw;
    }
    std::cout << state.CurProjName << ": " << rooms.size()
              << (rooms.size() == 1 ? " room.\n" : " rooms.\n");
}

} // namespace tarn
