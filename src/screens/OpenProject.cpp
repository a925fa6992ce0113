#include "screens/OpenProject.h"

#include "base/Words.h"
#include "project/RoomExtents.h"
#include "store/Names.h"
#include "store/ProjectNames.h"

#include <utility>

namespace tarn {

bool OpenProject::IsInMetric() const {
    return Saved.EnteredIn == Units::Metric ||
           (Now.EnteredIn == Units::Metric && HasUnsavedRooms()) ||
           (Now.Rooms.empty() && !Typed.IsEmpty() && Typed.In == Units::Metric);
}

std::optional<LastChoices> OpenProject::LastChosen() const {
    const auto found = Chosen.find(Now.Name);
    return found != Chosen.end() && found->second.In == Shown ? std::optional(found->second)
                                                              : std::nullopt;
}

Phrase UnitsWarning(const OpenProject& project) {
    const bool hasSizes = !project.Now.Rooms.empty() || !project.Typed.IsEmpty();
    if (project.Shown == Units::Imperial) {
        return project.IsInMetric() ? Words("E&NTERED IN METRIC") : Phrase();
    }
    return hasSizes && !project.IsInMetric() ? Words("E&NTERED IN FEET") : Phrase();
}

Draft DraftOf(const OpenProject& project) {
    Draft draft;
    if (project.HasUnsavedRooms()) {
        draft.Rooms = project.Now.Rooms;
    }
    if (project.HasUnsavedOrders()) {
        draft.Orders = project.Now.Orders;
    }
    draft.EnteredIn = project.Now.EnteredIn;
    draft.Typed = project.Typed;
    draft.TypedOrders = project.TypedOrders;
    return draft;
}

bool IsWorthTakingBack(const Draft& draft, const OpenProject& project) {
    const bool hasTyping = !draft.Typed.IsEmpty() || !draft.TypedOrders.empty();
    const auto isAsIn = [&draft](const Project& other) {
        return draft.Rooms.value_or(other.Rooms) == other.Rooms &&
               draft.Orders.value_or(other.Orders) == other.Orders;
    };
    const bool isStored = isAsIn(project.Saved);
    const bool isInMemory = isAsIn(project.Now);
    const bool isStanding =
        !hasTyping || (draft.Typed == project.Typed && draft.TypedOrders == project.TypedOrders);
    return (!isStored || hasTyping) && (!isInMemory || !isStanding);
}

void TakeBack(OpenProject& project, const Draft& draft) {
    OpenProject taken = project;
    if (draft.Rooms) {
        taken.Now.Rooms = *draft.Rooms;
        taken.Now.EnteredIn = draft.EnteredIn;
    }
    if (draft.Orders) {
        taken.Now.Orders = *draft.Orders;
    }
    taken.Typed = FittedTo(draft.Typed, taken.Now.Rooms);
    taken.TypedOrders = draft.TypedOrders;
    taken.Shown = taken.Typed.IsEmpty() ? taken.Now.EnteredIn : taken.Typed.In;
    RequireExtents(taken.Now, taken.Shown);
    project = std::move(taken);
}

namespace {

void TakeSaved(OpenProject& project, SaveResult result) {
    project.Now = std::move(result.Value);
    project.Saved = project.Now;
    project.Read = std::move(result.Mark);
}

} // namespace

SaveResult::Outcome SaveOpenProject(OpenProject& project, ProjectStore& store,
                                    MeanwhileStored meanwhile) {
    const bool replaces = meanwhile == MeanwhileStored::IsReplaced;
    SaveResult result =
        store.Save(project.Now, project.Shown, replaces ? std::nullopt : project.Read);
    const SaveResult::Outcome outcome = result.What;
    if (result.IsSaved()) {
        TakeSaved(project, std::move(result));
    }
    return outcome;
}

std::optional<std::string> SaveAsNewProject(OpenProject& project, ProjectStore& store,
                                            const std::string& name) {
    Project renamed = project.Now;
    renamed.Name = StoredName(name);
    std::optional<std::string> refusal;
    SaveResult result;
    store.InOneTransaction([&] {
        refusal = ProjectNameRefusal(store, renamed.Name);
        if (refusal) {
            return;
        }
        if (!IsDirectoryTaken(store, renamed.Directory)) {
            store.AddDirectory(renamed.Directory);
        }
        store.AddProject(renamed.Directory, renamed.Name);
        result = store.Save(renamed, project.Shown);
    });
    if (!refusal) {
        TakeSaved(project, std::move(result));
    }
    return refusal;
}

void ForgetChosen(OpenProject& project, const std::string& name) {
    project.Chosen.erase(name);
}

void MoveChosen(OpenProject& project, const std::string& from, const std::string& to) {
    if (from == to) {
        return;
    }
    ForgetChosen(project, to);
    if (auto chosen = project.Chosen.extract(from)) {
        chosen.key() = to;
        project.Chosen.insert(std::move(chosen));
    }
}

void DropRooms(OpenProject& project) {
    OpenProject dropped;
    dropped.Now.Name = std::move(project.Now.Name);
    dropped.Now.Directory = std::move(project.Now.Directory);
    dropped.Saved = dropped.Now;
    dropped.Chosen = std::move(project.Chosen);
    project = std::move(dropped);
}

} // namespace tarn
