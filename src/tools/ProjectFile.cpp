#include "tools/ProjectFile.h"

#include "rooms/RoomCsv.h"
#include "rooms/RoomStore.h"
#include "store/Names.h"
#include "store/Projects.h"
#include "store/SqlDatabase.h"
#include "tools/Files.h"
#include "tools/Refusal.h"

#include <iostream>

namespace tarn {

void OpenForReading(SharedState& state, const std::string& path) {
    state.CurDB = OpenSqlDatabase(path, DatabaseAccess::ReadOnly);
}

bool LoadProjectNamed(SharedState& state, const std::string& name) {
    state.CurProjName = StoredName(name);
    if (state.CurProjName.empty()) {
        throw Refusal("The project needs a name.");
    }
    if (CheckProjName(state, state.CurProjName)) {
        throw Refusal("There is no project " + state.CurProjName +
                      ". \"tarn-data list\" tells the projects that there are.");
    }
    const ProjectLoad load = LoadProject(state);
    for (const std::string& finding : load.Findings) {
        std::cerr << "Warning: " << finding << '\n';
    }
    switch (load.Result) {
    case ProjectLoad::Outcome::Loaded:
        break;
    case ProjectLoad::Outcome::NoSheet:
        throw Refusal("The project " + state.CurProjName + " has no saved rooms.");
    case ProjectLoad::Outcome::Failed:
        throw Refusal("The project " + state.CurProjName + " cannot be loaded: " + load.Cause);
    }
    return load.EnteredMetric;
}

void WarnOfMetric(const SharedState& state, const char* consequence) {
    std::cerr << "Warning: the project " << state.CurProjName << " was entered in metric; "
              << consequence << '\n';
}

std::vector<RoomRecord> ReadRoomFile(const std::string& path, bool metric) {
    RoomCsvReading reading = ReadRoomCsv(ReadWholeFile(path), metric);
    if (!reading.Succeeded()) {
        std::string text = "The file " + path + " cannot be used; nothing was taken from it:";
        for (const RoomCsvError& error : reading.Errors) {
            text += "\n  " + ErrorText(error);
        }
        throw Refusal(text);
    }
    return std::move(reading.Rooms);
}

} // namespace tarn
