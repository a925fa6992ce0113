#include "screens/menu/MenuLoad.h"

#include "base/RunTimeError.h"
#include "base/Text.h"
#include "base/Words.h"
#include "estimate/EstimateChoices.h"
#include "project/Coverings.h"
#include "project/RoomExtents.h"
#include "store/ProjectStore.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace tarn {

namespace {

std::string FailureText(const std::string& project, const std::string& cause) {
    return Words("The project %1 could not be loaded. %2", project, cause);
}

std::string FindingsText(const std::string& project, const std::vector<std::string>& findings) {
    std::string text = Words("The project %1 is not stored as it should be:", project);
    for (const std::string& finding : findings) {
        text.append(CrLf).append(finding);
    }
    return text;
}

/// Why the rooms have no extents, if they have none.
std::string ExtentsFailure(const Project& project) {
    try {
        RequireExtents(project, Units::Imperial);
        return {};
    } catch (const RunTimeError& error) {
        return Words("The size of a room: %1", error.Sentences());
    }
}

/// Load the open project's rooms; why they cannot be used, if they cannot.
std::string LoadRooms(OpenProject& project, ProjectStore& store,
                      std::vector<std::string>& findings) {
    try {
        LoadedProject loaded = store.Load(project.Now.Name);
        std::string cause = ExtentsFailure(loaded.Value);
        if (cause.empty()) {
            loaded.Value.Name = project.Now.Name;
            loaded.Value.Directory = project.Now.Directory;
            project.Now = std::move(loaded.Value);
            project.Saved = project.Now;
            project.Read = std::move(loaded.Mark);
            project.Typed = FittedTo(std::move(project.Typed), project.Now.Rooms);
            findings = std::move(loaded.Findings);
        }
        return cause;
    } catch (const DatabaseError& error) {
        return error.what();
    } catch (const RunTimeError& error) {
        return error.Sentences();
    }
}

} // namespace

MenuLoad LoadMenu(OpenProject& project, ProjectStore& store, MenuEntry entry) {
    MenuLoad menu;
    project.Shown = Units::Imperial;
    if (entry == MenuEntry::Returning && project.HasUnsavedChanges()) {
        menu.Unsaved = true;
        return menu;
    }
    std::vector<std::string> findings;
    const std::string cause = LoadRooms(project, store, findings);
    if (!cause.empty()) {
        DropRooms(project);
        menu.Message = FailureText(project.Now.Name, cause);
    } else if (!findings.empty() && entry != MenuEntry::Returning) {
        menu.Message = FindingsText(project.Now.Name, findings);
    }
    project.IsUsable = cause.empty();
    project.OffersEstimate = entry != MenuEntry::NewProject;
    return menu;
}

void TakeSheetNumber(OpenProject& project, ProjectStore& store) {
    if (project.HasUnsavedChanges()) {
        return; // what was typed is reached without the store too
    }
    const auto sheet = store.SheetOf(project.Now.Name);
    if (sheet) {
        project.Now.Sheet = *sheet;
    }
    project.Now.IsNew = !sheet;
}

bool HasCarpetRoom(const Project& project) {
    return FindCarpets(project).Lowest.has_value();
}

bool HasTilesOnly(const Project& project) {
    const auto& rooms = project.Rooms;
    return !rooms.empty() && std::all_of(rooms.begin(), rooms.end(),
                                         [](const Room& room) { return IsTile(room.Covering); });
}

} // namespace tarn
