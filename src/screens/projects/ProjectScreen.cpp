#include "screens/projects/ProjectScreen.h"

#include "base/Text.h"
#include "base/Words.h"
#include "screens/ControlNames.h"
#include "screens/projects/ChoiceList.h"
#include "screens/projects/ProjectBox.h"
#include "screens/projects/ProjectChoice.h"
#include "screens/projects/ProjectPanels.h"
#include "store/Months.h"
#include "store/Names.h"
#include "store/ProjectNames.h"

#include <QKeyEvent>
#include <QPushButton>

#include <algorithm>

namespace tarn {

namespace {

constexpr auto ListFailure = Words("The projects could not be listed.");
constexpr auto MakeDirectoryFailure = Words("The directory could not be made.");
constexpr auto RenameDirectoryFailure = Words("The directory could not be renamed.");
constexpr auto RenameProjectFailure = Words("The project could not be renamed.");

/// The row that takes the place of a removed one; -1 in an empty list.
int NeighbourOf(int removed, const ChoiceList& list) {
    return std::min(removed, list.count() - 1);
}

} // namespace

ProjectScreen::ProjectScreen(Session& session)
    : TitledScreen(session, Controls::projectScreen, Words("*PROJECT SELECTION*"))
    , settings_(new SettingsPanel)
    , selection_(new SelectionPanel)
    , shownList_(selection_->Months) {
    AddPanel(*settings_);
    AddPanel(*selection_);
    ConnectSettings();
    ConnectLists();
    ConnectSelection();
    ShowSettings();
    // Last: when this screen cannot be made, the one in front keeps its rooms.
    Shared().Drafts.LetGo();
    DropRooms(Shared().Project);
    Shared().History.Clear();
}

void ProjectScreen::ConnectSettings() {
    OnClick(*settings_->SelectProject, ListFailure, [this] { OpenSelection(); });
    OnClick(*settings_->Exit, Words("The program could not be ended."),
            [this] { Shared().Go.End(); });
    OnClick(*settings_->BesideSelectProject, {}, [this] { settings_->SelectProject->setFocus(); });
}

void ProjectScreen::ConnectLists() {
    ChoiceList& directories = *selection_->Directories;
    selection_->Months->OnChosen = [this] {
        Guard(ListFailure,
              [this] { DirectoryChosen(*selection_->Months, *selection_->Directories); });
    };
    directories.OnChosen = [this] {
        Guard(ListFailure,
              [this] { DirectoryChosen(*selection_->Directories, *selection_->Months); });
    };
    directories.OnRename = [this] {
        Guard(RenameDirectoryFailure, [this] { AskDirectoryName(); });
    };
    directories.OnDelete = [this] {
        Guard(Words("The directory could not be deleted."), [this] { AskDeleteDirectory(); });
    };
    ChoiceList& projects = *selection_->Projects;
    projects.OnChosen = [this] {
        Guard(Words("The project could not be selected."), [this] { ProjectChosen(); });
    };
    projects.OnRename = [this] { Guard(RenameProjectFailure, [this] { AskProjectName(); }); };
    projects.OnDelete = [this] {
        Guard(Words("The project could not be deleted."), [this] { AskDeleteProject(); });
    };
}

void ProjectScreen::ConnectSelection() {
    selection_->Name->OnTaken = [this] { Guard(ListFailure, [this] { BoxTaken(); }); };
    selection_->Name->OnLeftOut = [this] { Guard({}, [this] { TellLeftOut(); }); };
    OnClick(*selection_->NewProject, ListFailure, [this] { NewProject(); });
    OnClick(*selection_->NewDirectory, MakeDirectoryFailure, [this] { NewDirectory(); });
    OnClick(*selection_->Done, Words("The project could not be selected."), [this] { Done(); });
    OnClick(*selection_->Exit, {}, [this] { CloseSelection(); });
}

void ProjectScreen::keyPressEvent(QKeyEvent* event) {
    const bool closes = event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier;
    if (closes && selection_->isVisible() && !event->isAutoRepeat()) {
        Guard({}, [this] { CloseSelection(); });
        return;
    }
    TitledScreen::keyPressEvent(event);
}

void ProjectScreen::OnBodyRoom() {
    selection_->SetRoom(PanelRoom());
}

QWidget* ProjectScreen::FirstFocus() {
    return settings_->SelectProject;
}

void ProjectScreen::OnCloseByFrame() {
    Shared().Go.End();
}

void ProjectScreen::ShowSettings() {
    const Project& current = Shared().Project.Now;
    settings_->Show(current.Directory, current.Name);
}

std::string ProjectScreen::CurrentMonth() const {
    return std::string(MonthNames.at(static_cast<std::size_t>(Shared().Today().month() - 1)));
}

void ProjectScreen::OpenSelection() {
    ProjectStore& store = Shared().Store;
    const int month = Shared().Today().month() - 1;
    const auto directories = store.Directories();
    const auto projects = store.Projects(CurrentMonth());

    selection_->Months->SetEntries({MonthNames.begin(), MonthNames.end()});
    selection_->Directories->SetEntries(directories);
    selection_->Projects->SetEntries(projects);
    ShowChosenName({});
    selection_->Name->SetLocked(true);
    shownList_ = selection_->Months;
    shownRow_ = month;
    ShowPanel(*selection_);
    selection_->Months->Choose(month);
    selection_->Months->setFocus();
}

void ProjectScreen::CloseSelection() {
    ShowPanel(*settings_);
    settings_->SelectProject->setFocus();
}

void ProjectScreen::Done() {
    const ProjectBox& box = *selection_->Name;
    const ChoiceResult result = AcceptProject(Shared().Store, Shared().Project.Now,
                                              {box.Name(), box.IsLocked(), ChosenDirectory()});
    if (result.Result == ChoiceResult::Outcome::Refused) {
        Shared().Boxes.Message(result.Message);
        return;
    }
    if (result.Result == ChoiceResult::Outcome::New) {
        EndAllOf(Shared().Project.Now.Name); // of one that had its name
    }
    ShowSettings();
    CloseSelection();
    HandOver(result);
}

void ProjectScreen::EndAllOf(const std::string& project) {
    Shared().Drafts.End(project);
    ForgetChosen(Shared().Project, project);
}

void ProjectScreen::HandOver(const ChoiceResult& result) {
    if (result.Result == ChoiceResult::Outcome::Existing) {
        Shared().Go.ShowMenu(MenuEntry::ExistingProject);
    } else if (result.Result == ChoiceResult::Outcome::New) {
        Shared().Go.ShowMenu(MenuEntry::NewProject);
    }
}

std::optional<std::string> ProjectScreen::ChosenDirectory() const {
    const auto month = selection_->Months->ChosenName();
    return month ? month : selection_->Directories->ChosenName();
}

void ProjectScreen::DirectoryChosen(ChoiceList& chosen, ChoiceList& other) {
    try {
        selection_->Projects->SetEntries(Shared().Store.Projects(chosen.ChosenName().value()));
    } catch (...) {
        chosen.Choose(-1);
        other.Choose(-1);
        shownList_->Choose(shownRow_);
        throw;
    }
    other.Choose(-1);
    shownList_ = &chosen;
    shownRow_ = chosen.Chosen();
}

void ProjectScreen::ProjectChosen() {
    ProjectBox& box = *selection_->Name;
    if (box.Name().empty() || box.Name() == chosenName_) {
        box.SetLocked(true);
    }
    if (box.IsLocked()) {
        ShowChosenName(selection_->Projects->ChosenName().value());
    }
}

void ProjectScreen::ShowChosenName(const std::string& name) {
    chosenName_ = name;
    selection_->Name->SetName(name);
}

void ProjectScreen::ListProjectsOfChoice() {
    const auto directory = ChosenDirectory();
    selection_->Projects->SetEntries(directory ? Shared().Store.Projects(*directory)
                                               : std::vector<std::string>());
}

void ProjectScreen::Unlock() {
    ProjectBox& box = *selection_->Name;
    if (box.IsLocked()) {
        box.SetLocked(false);
        box.selectAll(); // the name chosen makes way for the one that is typed
    }
}

void ProjectScreen::NewProject() {
    ListProjectsOfChoice();
    Unlock();
    selection_->Name->setFocus();
}

void ProjectScreen::BoxTaken() {
    try {
        ListProjectsOfChoice();
    } catch (...) {
        shownList_->setFocus(); // so that the next click takes the box again
        throw;
    }
    Unlock();
}

void ProjectScreen::TellLeftOut() {
    Shared().Boxes.Message(std::string(ForbiddenCharactersMessage));
}

void ProjectScreen::AskName(const std::string& prompt, const std::string& failure,
                            const TakeName& take) {
    std::string typed;
    bool taken = false;
    while (!taken) {
        const auto answer = Shared().Boxes.Input(prompt, typed);
        const std::string name = StoredName(answer.value_or(std::string()));
        if (name.empty()) {
            return;
        }
        typed = *answer;
        Guard(failure, [&] {
            const std::optional<std::string> refusal = take(name);
            taken = !refusal;
            if (refusal) {
                Shared().Boxes.Message(*refusal);
            }
        });
    }
}

void ProjectScreen::NewDirectory() {
    AskName(Words("Enter the new directory name"), MakeDirectoryFailure,
            [this](const std::string& name) -> std::optional<std::string> {
                if (IsDirectoryTaken(Shared().Store, name)) {
                    selection_->Directories->ScrollTo(name); // there it is
                    return std::nullopt;
                }
                Shared().Store.AddDirectory(name);
                selection_->Directories->Add(name);
                return std::nullopt;
            });
}

void ProjectScreen::AskDirectoryName() {
    ChoiceList& list = *selection_->Directories;
    const std::string oldName = list.ChosenName().value();
    AskName(Words("Enter the new name you want to change to:"), RenameDirectoryFailure,
            [&](const std::string& name) -> std::optional<std::string> {
                if (name == StoredName(oldName)) {
                    return std::nullopt;
                }
                if (auto refusal = DirectoryNameRefusal(Shared().Store, name)) {
                    return refusal;
                }
                RenameDirectory(Shared().Store, Shared().Project.Now, oldName, name);
                list.SetEntry(list.Chosen(), name);
                ShowSettings();
                return std::nullopt;
            });
}

void ProjectScreen::AskProjectName() {
    ChoiceList& list = *selection_->Projects;
    const std::string oldName = list.ChosenName().value();
    AskName(Words("Enter the new project name you want to change to:"), RenameProjectFailure,
            [&](const std::string& name) -> std::optional<std::string> {
                if (name == StoredName(oldName)) {
                    return std::nullopt;
                }
                if (auto refusal = ProjectNameRefusal(Shared().Store, name)) {
                    return refusal;
                }
                RenameProject(Shared().Store, Shared().Project.Now, oldName, name);
                Shared().Drafts.Move(oldName, name);
                MoveChosen(Shared().Project, oldName, name);
                list.SetEntry(list.Chosen(), name);
                ProjectBox& box = *selection_->Name;
                if (box.IsLocked() && StoredName(box.Name()) == StoredName(oldName)) {
                    ShowChosenName(name);
                }
                ShowSettings();
                return std::nullopt;
            });
}

void ProjectScreen::AskDeleteDirectory() {
    if (!Shared().Boxes.AskYesNo(
            Words("Warning: Delete directory will make data under this directory lost!\r\n"
                  "Do you want to continue deleting?"))) {
        return;
    }
    ChoiceList& list = *selection_->Directories;
    const int row = list.Chosen();
    const std::string name = list.ChosenName().value();
    const auto projects = Shared().Store.Projects(name);
    DeleteDirectory(Shared().Store, Shared().Project.Now, name, CurrentMonth());
    for (const std::string& project : projects) {
        EndAllOf(project);
    }
    ShowSettings();
    list.Remove(row);
    shownRow_ = -1;
    selection_->Projects->SetEntries({});
    if (selection_->Name->IsLocked()) {
        ShowChosenName({});
    }
    const int neighbour = NeighbourOf(row, list);
    if (neighbour >= 0) {
        list.Choose(neighbour);
        Guard(ListFailure, [&] { DirectoryChosen(list, *selection_->Months); });
    }
}

void ProjectScreen::AskDeleteProject() {
    if (!Shared().Boxes.AskYesNo(
            Words("Are you sure to delete this project?\r\n"
                  "Delete operation will make the data of the project lost!"))) {
        return;
    }
    ChoiceList& list = *selection_->Projects;
    const int row = list.Chosen();
    const std::string name = list.ChosenName().value();
    DeleteProject(Shared().Store, Shared().Project.Now, name);
    EndAllOf(name);
    ShowSettings();
    list.Remove(row);
    const int neighbour = NeighbourOf(row, list);
    if (neighbour >= 0) {
        list.Choose(neighbour);
        ProjectChosen();
    } else if (selection_->Name->IsLocked()) {
        ShowChosenName({});
    }
}

} // namespace tarn
