#include "screens/OpenProject.h"

#include "project/SizeNotes.h"
#include "store/ProjectStore.h"

#include <utility>

namespace tarn {

void SaveOpenProject(OpenProject& project, ProjectStore& store) {
    project.Now = store.Save(project.Now, project.Shown).Value;
    project.Saved = project.Now;
}

std::string SaveAndNameEmptyRooms(OpenProject& project, ProjectStore& store) {
    std::string emptyRooms = EmptyRoomsText(project.Saved.Rooms, project.Now.Rooms);
    SaveOpenProject(project, store);
    return emptyRooms;
}

void DropRooms(OpenProject& project) {
    OpenProject dropped;
    dropped.Now.Name = std::move(project.Now.Name);
    dropped.Now.Directory = std::move(project.Now.Directory);
    dropped.Saved = dropped.Now;
    project = std::move(dropped);
}

} // namespace tarn
