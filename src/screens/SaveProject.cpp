#include "screens/SaveProject.h"

#include "base/Text.h"
#include "base/Words.h"
#include "project/SizeNotes.h"
#include "screens/Session.h"
#include "store/Names.h"

#include <string>

namespace tarn {

namespace {

using Outcome = SaveResult::Outcome;

constexpr auto ReplaceIt = Words("Replace it");
constexpr auto SaveAsNew = Words("Save it as a new project");

std::string ChangedText(const std::string& project) {
    return Words("Another program has changed the project %1 since it was opened here.\r\n"
                 "What that program stored is lost when you replace it.",
                 project);
}

std::string GoneText(const std::string& project) {
    return Words("The project %1 is no longer there: another program has renamed or deleted it.\r\n"
                 "Its rooms can be saved as a new project.",
                 project);
}

/// Save under a name that the user is asked for until it is taken; false when the user gave it up.
bool SavedUnderNewName(Session& session) {
    std::string typed = session.Project.Now.Name;
    for (;;) {
        const auto answer = session.Boxes.Input(Words("Enter the new project name"), typed);
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
