#include "tools/ProjectFile.h"

#include "base/RunTimeError.h"
#include "base/Text.h"
#include "files/RoomCsv.h"
#include "store/Names.h"
#include "tools/Files.h"
#include "tools/Refusal.h"

#include <iostream>

namespace tarn {

namespace {

[[noreturn]] void RefuseToLoad(const std::string& project, const std::string& cause) {
    throw Refusal("The project " + project + " cannot be loaded: " + cause);
}

} // namespace

LoadedProject LoadWhole(ProjectStore& store, const std::string& name) {
    try {
        return store.Load(name);
    } catch (const DatabaseError& error) {
        RefuseToLoad(name, error.what());
    } catch (const RunTimeError& error) {
        RefuseToLoad(name, error.Sentences());
    }
}

Project LoadProjectNamed(ProjectStore& store, const std::string& name) {
    const std::string stored = StoredName(name);
    if (stored.empty()) {
        throw Refusal("The project needs a name.");
    }
    if (!store.DirectoryOf(stored)) {
        throw Refusal("There is no project " + stored +
                      ". \"tarn-data list\" tells the projects that there are.");
    }
    LoadedProject loaded = LoadWhole(store, stored);
    for (const std::string& finding : loaded.Findings) {
        std::cerr << "Warning: " << finding << '\n';
    }
    if (loaded.Value.IsNew) {
        throw Refusal("The project " + stored + " has no saved rooms.");
    }
    return std::move(loaded.Value);
}

void WarnOfMetric(const Project& project, const char* consequence) {
    std::cerr << "Warning: the project " << project.Name << " was entered in metric; "
              << consequence << '\n';
}

std::vector<Room> ReadRoomFile(const std::string& path, Units units) {
    RoomCsvReading reading = ReadRoomCsv(ReadWholeFile(path, MaxRoomCsvBytes), units);
    if (!reading.Succeeded()) {
        std::string text = "The file " + path + " cannot be used; nothing was taken from it:";
        for (const RoomCsvError& error : reading.Errors) {
            text += "\n  " + ErrorText(error);
        }
        if (reading.MoreErrors > 0) {
            text += "\n  and " + TrimStr(reading.MoreErrors) +
                    (reading.MoreErrors == 1 ? " more mistake" : " more mistakes");
        }
        throw Refusal(text);
    }
    return std::move(reading.Rooms);
}

} // namespace tarn
