#include "screens/projects/RoomsAsProject.h"

#include "base/Text.h"
#include "base/Words.h"
#include "screens/Guard.h"
#include "store/Names.h"
#include "store/ProjectNames.h"

#include <optional>
#include <stdexcept>

namespace tarn {

namespace {

std::vector<std::string> UnitActions() {
    return {Words("Feet and inches"), Words("Centimetres")};
}

std::optional<Units> AskUnits(const RoomSource& source, Dialogs& boxes) {
    const auto chosen = boxes.Choose(Words("The rooms of %1 become a new project.\r\n"
                                           "What are their sizes in?",
                                           source.Name),
                                     UnitActions());
    if (!chosen) {
        return std::nullopt;
    }
    return *chosen == 0 ? Units::Imperial : Units::Metric;
}

std::string WithLineBreaks(const std::string& text) {
    std::string broken;
    for (const char each : text) {
        broken += each == '\n' ? std::string(CrLf) : std::string(1, each);
    }
    return broken;
}

/// The rooms; none after a message.
std::vector<Room> ReadRooms(const RoomSource& source, Units units, Dialogs& boxes) {
    const std::string failure = Words("No project is made of %1.", source.Name);
    try {
        std::vector<Room> rooms = source.Read(units);
        if (rooms.empty()) {
            boxes.Message(failure, Words("There is no room in it."));
        }
        return rooms;
    } catch (const std::runtime_error& error) {
        boxes.Message(failure, WithLineBreaks(error.what()));
    }
    return {};
}

/// A name that a new project may have; nothing when the user gives up. Raises as the store.
std::optional<std::string> AskProject(const RoomSource& source, Session& session) {
    std::string typed = FittingNameText(PastedNameText(source.Project).Text, 0);
    for (;;) {
        const auto answer = session.Boxes.Input(Words("Name of the project:"), typed);
        const std::string name = StoredName(answer.value_or(std::string()));
        if (name.empty()) {
            return std::nullopt;
        }
        const auto refusal = ProjectNameRefusal(session.Store, name);
        if (!refusal) {
            return name;
        }
        session.Boxes.Message(*refusal);
        typed = *answer;
    }
}

void StoreProject(ProjectStore& store, const std::string& directory, const std::string& name,
                  const std::vector<Room>& rooms, Units units) {
    store.InOneTransaction([&] {
        store.AddProject(directory, name);
        Project project = store.Load(name).Value;
        project.Rooms = rooms;
        project.EnteredIn = units;
        store.Save(project, units);
    });
}

} // namespace

void MakeProjectOf(const RoomSource& source, Session& session) {
    const auto units = AskUnits(source, session.Boxes);
    if (!units) {
        return;
    }
    const std::vector<Room> rooms = ReadRooms(source, *units, session.Boxes);
    if (rooms.empty()) {
        return;
    }
    Guarded(session.Boxes, Words("The project could not be made."), [&] {
        const auto name = AskProject(source, session);
        if (!name) {
            return;
        }
        Project& current = session.Project.Now;
        StoreProject(session.Store, current.Directory, *name, rooms, *units);
        session.Drafts.End(*name); // of one that had its name
        ForgetChosen(session.Project, *name);
        current.Name = *name;
        session.Go.ShowMenu(MenuEntry::ExistingProject);
    });
}

} // namespace tarn
