#include "rooms/OpenProject.h"

namespace tarn {

bool HasUnsavedRooms(const SharedState& state, const OpenProject& project) {
    return TakeRooms(state) != project.StoredRooms;
}

bool IsInMetric(const SharedState& state, const OpenProject& project) {
    return project.StoredInMetric || (project.TypedInMetric && HasUnsavedRooms(state, project));
}

ProjectLoad LoadOpenProject(SharedState& state, OpenProject& project) {
    ProjectLoad load = LoadProject(state);
    project.StoredRooms = TakeRooms(state);
    project.StoredInMetric = load.EnteredMetric;
    project.TypedInMetric = false;
    return load;
}

bool SaveOpenProject(SharedState& state, OpenProject& project) {
    if (!SaveProject(state)) {
        return false;
    }
    project.StoredRooms = TakeRooms(state);
    project.StoredInMetric = state.ObjNum > 0 && (state.IsMetric() || project.StoredInMetric);
    project.TypedInMetric = false;
    return true;
}

void DropOpenProject(SharedState& state, OpenProject& project) {
    EmptyRooms(state);
    state.ObjNum = 0;
    project = OpenProject();
}

} // namespace tarn
