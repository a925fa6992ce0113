#include "base/Words.h"
#include "store/Drafts.h"
#include "store/Months.h"
#include "store/ProjectNames.h"
#include "store/ProjectStore.h"
#include "tools/DataCommands.h"
#include "tools/ProjectFile.h"
#include "tools/Refusal.h"

#include <iostream>

namespace tarn {

namespace {

/// The months under which projects are kept are the same in every language.
std::string CurrentMonth() {
    return std::string(MonthNames.at(static_cast<std::size_t>(QDate::currentDate().month() - 1)));
}

void AddNewProject(ProjectStore& store, const std::string& project,
                   const std::string& wantedDirectory) {
    const std::string directory = wantedDirectory.empty() ? CurrentMonth() : wantedDirectory;
    if (!IsDirectoryTaken(store, directory)) { // a month is, and needs no row of its own
        store.AddDirectory(directory);
    }
    store.AddProject(directory, project);
}

/// Raise Refusal unless `count` rooms of the file may take the place of what the project has.
void RequireReplaceable(const LoadedProject& loaded, const ImportRequest& request,
                        std::size_t count) {
    const std::string& name = loaded.Value.Name;
    // A sheet that counts no room may have rows of rooms all the same: the findings name them.
    const bool hasRooms = !loaded.Value.Rooms.empty() || !loaded.Findings.empty();
    if (hasRooms && !request.Replace) {
        throw Refusal(Words("The project %1 has rooms already; --replace puts those of the file in "
                            "their place.",
                            name));
    }
    if (hasRooms && count == 0) {
        throw Refusal(Words("The file %1 has no rooms; the project %2 keeps those that it has.",
                            request.Rooms.Path, name));
    }
}

} // namespace

void ImportProject(const ImportRequest& request) {
    const std::string name = NameArgument("project", request.Project);
    const std::string directory =
        request.Directory.empty() ? "" : NameArgument("directory", request.Directory);
    const std::vector<Room> rooms = ReadRoomFile(request.Rooms, request.In);
    ProjectStore store(request.Database, DatabaseAccess::ReadWrite);
    bool isNew = false;
    store.InOneTransaction([&] {
        isNew = !store.DirectoryOf(name);
        if (isNew) {
            AddNewProject(store, name, directory);
        }
        LoadedProject loaded = LoadWhole(store, name);
        RequireReplaceable(loaded, request, rooms.size());
        loaded.Value.Rooms = rooms;
        loaded.Value.EnteredIn = request.In;
        store.Save(loaded.Value, request.In);
    });
    if (isNew) {
        UserDrafts(request.Database).End(name); // of a project that had its name
    }
    std::cout << CountedWords("%1: %n room.", "%1: %n rooms.", static_cast<long long>(rooms.size()),
                              name)
              << '\n';
}

} // namespace tarn
