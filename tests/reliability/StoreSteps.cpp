// Changes of a database, one after the other, for the tests that kill programs and take their disk
// away: what the screens store, without a screen. After each change that is stored, its name or the
// number of the version is a line on standard output.

#include "store/Backups.h"
#include "store/Drafts.h"
#include "store/ProjectStore.h"
#include "tools/ToolMain.h"

#include <QCoreApplication>
#include <QDateTime>

#include <stdexcept>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

using namespace tarn;
using Arguments = std::vector<std::string>;

/// Tell that a change is stored, at once and in one call, so that it is known when that was.
void Say(const std::string& text) {
    const std::string line = text + '\n';
    if (write(STDOUT_FILENO, line.data(), line.size()) != static_cast<ssize_t>(line.size())) {
        throw std::runtime_error("Standard output cannot be written.");
    }
}

/// The rooms of a version, which tells in every one of them which it is; versions.py knows the
/// rule.
std::vector<Room> RoomsOfVersion(int version) {
    std::vector<Room> rooms(static_cast<std::size_t>(1 + version * 7 % 60));
    Integer number = 0;
    for (Room& room : rooms) {
        room.Width = static_cast<Integer>(100 + ++number);
        room.Length = static_cast<Integer>(200 + version % 1000);
        room.Number = std::to_string(number);
        room.Remark = "version " + std::to_string(version);
    }
    return rooms;
}

/// save PROJECT FIRST LAST: one version after the other.
void SaveVersions(ProjectStore& store, const Arguments& arguments) {
    const int last = std::stoi(arguments.at(2));
    for (int version = std::stoi(arguments.at(1)); version <= last; ++version) {
        Project project = store.Load(arguments.at(0)).Value;
        project.Rooms = RoomsOfVersion(version);
        if (store.Save(project, Units::Imperial).What != SaveResult::Outcome::Saved) {
            throw std::runtime_error("The project is another program's by now.");
        }
        Say(std::to_string(version));
    }
}

/// save-read PROJECT VERSION: as the screens save what they read, and again when the first time
/// fails.
void SaveWhatWasRead(ProjectStore& store, const Arguments& arguments) {
    const LoadedProject read = store.Load(arguments.at(0));
    Project project = read.Value;
    project.Rooms = RoomsOfVersion(std::stoi(arguments.at(1)));
    SaveResult result;
    try {
        result = store.Save(project, Units::Imperial, read.Mark);
    } catch (const DatabaseError&) {
        result = store.Save(project, Units::Imperial, read.Mark);
    }
    if (!result.IsSaved()) {
        throw std::runtime_error("The project is another program's by now.");
    }
}

/// A moment of the one day on which all this happens.
QDateTime Moment(const std::string& minute) {
    return {QDate(2026, 3, 14), QTime(9, std::stoi(minute)), Qt::UTC};
}

/// draft FOLDER NAME PROJECT VERSION: the rooms of a version as a draft in a file of that name.
void KeepDraft(const std::string& database, const Arguments& arguments) {
    const std::string& folder = arguments.at(0);
    Draft draft;
    draft.Rooms = RoomsOfVersion(std::stoi(arguments.at(3)));
    Drafts(folder, database)
        .Write(folder + '/' + arguments.at(1), arguments.at(2), draft, Moment("30"));
}

/// Take one step, STEP ARGUMENT..., and say its name.
void TakeStep(const std::string& database, const std::string& step, const Arguments& arguments) {
    if (step == "make-backup") { // MINUTE
        MakeBackup(database, Moment(arguments.at(0)));
        Say(step);
        return;
    }
    if (step == "restore") { // BACKUP MINUTE
        RestoreBackup(FindBackup(arguments.at(0), database), database, Moment(arguments.at(1)));
        Say(step);
        return;
    }
    ProjectStore store(database, DatabaseAccess::ReadWrite);
    if (step == "save") {
        SaveVersions(store, arguments);
        return;
    }
    if (step == "save-read") {
        SaveWhatWasRead(store, arguments);
    } else if (step == "draft") {
        KeepDraft(database, arguments);
    } else if (step == "add-directory") {
        store.AddDirectory(arguments.at(0));
    } else if (step == "add-project") {
        store.AddProject(arguments.at(0), arguments.at(1));
    } else if (step == "rename-directory") {
        store.RenameDirectory(arguments.at(0), arguments.at(1));
    } else if (step == "rename-project") {
        store.RenameProject(arguments.at(0), arguments.at(1));
    } else if (step == "delete-directory") {
        store.DeleteDirectory(arguments.at(0));
    } else if (step == "delete-project") {
        store.DeleteProject(arguments.at(0));
    } else {
        throw std::runtime_error("There is no step " + step + ".");
    }
    Say(step);
}

} // namespace

/// tarn_store_steps DATABASE STEP ARGUMENT...
int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    return RunTool("tarn_store_steps", [&] {
        const Arguments all(argv + 1, argv + argc);
        TakeStep(all.at(0), all.at(1), Arguments(all.begin() + 2, all.end()));
    });
}
