#include "app/MenuLoad.h"

#include "app/Numbers.h"
#include "app/RunTimeError.h"
#include "app/Text.h"
#include "estimate/EstimateChoices.h"
#include "rooms/RoomExtents.h"
#include "store/Sheets.h"

namespace tarn {

namespace {

std::string FailureText(const SharedState& state, const std::string& cause) {
    return "The project " + state.CurProjName + " could not be loaded. " + cause;
}

std::string FindingsText(const SharedState& state, const std::vector<std::string>& findings) {
    std::string text = "The project " + state.CurProjName + " is not stored as it should be:";
    for (const std::string& finding : findings) {
        text.append(CrLf).append(finding);
    }
    return text;
}

/// The rooms' extents; why they cannot be built, if they cannot.
std::string ExtentsFailure(SharedState& state) {
    try {
        BuildAllRoomExtents(state);
        return {};
    } catch (const RunTimeError& error) {
        return "The size of a room: " + error.Sentences();
    }
}

} // namespace

MenuLoad LoadMenu(SharedState& state, OpenProject& project, MenuEntry entry) {
    MenuLoad menu;
    if (entry == MenuEntry::Returning && HasUnsavedRooms(state, project)) {
        state.MetricFlag = 0;
        menu.Unsaved = true;
        return menu;
    }
    const ProjectLoad load = LoadOpenProject(state, project);
    project.EstimateVisible = entry != MenuEntry::NewProject;
    std::string cause = load.Cause;
    project.Usable = load.Result != ProjectLoad::Outcome::Failed;
    if (project.Usable) {
        cause = ExtentsFailure(state);
        project.Usable = cause.empty();
    }
    if (!project.Usable) {
        const bool estimateVisible = project.EstimateVisible;
        DropOpenProject(state, project);
        project.EstimateVisible = estimateVisible;
        project.Usable = false;
        menu.Message = FailureText(state, cause);
    } else if (!load.Findings.empty() && entry != MenuEntry::Returning) {
        menu.Message = FindingsText(state, load.Findings);
    }
    return menu;
}

void TakeSheetNumber(SharedState& state, const OpenProject& project) {
    if (HasUnsavedRooms(state, project)) {
        return; // what was typed is reached without the database too
    }
    const auto sheet = FindProjTabIndex(state);
    if (sheet) {
        state.CurTabIndex = ToInteger(*sheet);
    }
    state.NewSheetFlag = !sheet;
}

bool LoadData(const SharedState& state) {
    return FindCarpets(state).Lowest.has_value();
}

} // namespace tarn
