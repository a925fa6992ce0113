#include "screens/SaveProject.h"

#include "base/Text.h"
#include "project/SizeNotes.h"
#include "screens/Session.h"
#include "store/Names.h"

#include <string>

namespace tarn {

namespace {

using Outcome = SaveResult::Outcome;

constexpr const char* ReplaceIt = "Replace it";
constexpr const char* SaveAsNew = "Save it as a new project";

std::string ChangedText(const std::string& project) {
    return "Another program has changed the project " + project + " since it was opened here." +
           std::string(CrLf) + "What that program stored is lost when you replace it.";
}

std::string GoneText(const std::string& project) {
    return "The project " + project +
           " is no longer there: another program has renamed or deleted it." + std::string(CrLf) +
           "Its rooms can be saved as a new project.";
}

/// Save under a name that the user is asked for until it is taken; false when the user gave it up.
bool SavedUnderNewName(Session& session) {
    std::string typed = session.Project.Now.Name;
    for (;;) {
        const auto answer = session.Boxes.Input("Enter the new project name", typed);
        const std::string name = StoredName(answer.value_or(std::string()));
        if (name.empty()) {
            return false;
        }
        const auto refusal = SaveAsNewProject(session.Project, session.Store, name);
        if (!refusal) {
            return true;
        }
        session.Boxes.Message(*refusal);
        typed = *answer;
    }
}

bool SavedAsNew(Session& session) {
    const std::string former = session.Project.Now.Name;
    if (!session.Boxes.Choose(GoneText(former), {SaveAsNew}) || !SavedUnderNewName(session)) {
        return false;
    }
    session.Drafts.NoteSavedAs(former);
    MoveChosen(session.Project, former, session.Project.Now.Name);
    session.History.NoteSaved();
    return true;
}

} // namespace

std::optional<std::string> SaveOrAsk(Session& session) {
    OpenProject& project = session.Project;
    session.History.Follow();
    std::string emptyRooms = EmptyRoomsText(project.Saved.Rooms, project.Now.Rooms);
    Outcome outcome = SaveOpenProject(project, session.Store);
    if (outcome == Outcome::Changed) {
        if (!session.Boxes.Choose(ChangedText(project.Now.Name), {ReplaceIt})) {
            return std::nullopt;
        }
        outcome = SaveOpenProject(project, session.Store, MeanwhileStored::IsReplaced);
    }
    if (outcome == Outcome::Saved) {
        session.Drafts.NoteSaved();
        session.History.NoteSaved();
    } else if (!SavedAsNew(session)) {
        return std::nullopt;
    }
    return emptyRooms;
}

} // namespace tarn
