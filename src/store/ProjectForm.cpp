#include "store/ProjectForm.h"

#include "app/StartModule.h"
#include "app/Text.h"
#include "store/ChoiceList.h"
#include "store/Names.h"
#include "store/ProjectBox.h"
#include "store/ProjectChoice.h"
#include "store/ProjectNames.h"
#include "store/ProjectPanels.h"
#include "store/Projects.h"

#include <QPushButton>

#include <algorithm>

namespace tarn {

namespace {

constexpr double UsualDimScale = 0.01;

constexpr const char* ListFailure = "The projects could not be listed.";
constexpr const char* MakeDirectoryFailure = "The directory could not be made.";
constexpr const char* RenameDirectoryFailure = "The directory could not be renamed.";
constexpr const char* RenameProjectFailure = "The project could not be renamed.";

/// The row that takes the place of a removed one; -1 in an empty list.
int NeighbourOf(int removed, const ChoiceList& list) {
    return std::min(removed, list.count() - 1);
}

} // namespace

ProjectForm::ProjectForm(Session& session)
    : TitledScreen(session, QStringLiteral("ProjectForm"), "*PROJECT SELECTION*")
    , frame1_(new SettingsPanel)
    , frame5_(new SelectionPanel) {
    AddPanel(*frame1_);
    AddPanel(*frame5_);
    ConnectSettings();
    ConnectLists();
    ConnectSelection();
    ShowSettings();
    // Last: when this screen cannot be made, the one in front keeps its rooms.
    DropOpenProject(State(), Shared().Project);
    State().DimScale = UsualDimScale;
}

void ProjectForm::ConnectSettings() {
    OnClick(*frame1_->Command3, ListFailure, [this] { OpenSelection(); });
    OnClick(*frame1_->Command2, "The program could not be ended.", [this] { Shared().Go.End(); });
    OnClick(*frame1_->Command4, {}, [this] { frame1_->Command3->setFocus(); });
}

void ProjectForm::ConnectLists() {
    ChoiceList& directories = *frame5_->List1[Directories];
    frame5_->List1[Months]->OnChosen = [this] {
        Guard(ListFailure, [this] { DirectoryChosen(Months); });
    };
    directories.OnChosen = [this] { Guard(ListFailure, [this] { DirectoryChosen(Directories); }); };
    directories.OnDoubleClick = [this] {
        Guard(RenameDirectoryFailure, [this] { AskDirectoryName(); });
    };
    directories.OnDelete = [this] {
        Guard("The directory could not be deleted.", [this] { AskDeleteDirectory(); });
    };
    ChoiceList& projects = *frame5_->List2;
    projects.OnChosen = [this] {
        Guard("The project could not be selected.", [this] { ProjectChosen(); });
    };
    projects.OnDoubleClick = [this] { Guard(RenameProjectFailure, [this] { AskProjectName(); }); };
    projects.OnDelete = [this] {
        Guard("The project could not be deleted.", [this] { AskDeleteProject(); });
    };
}

void ProjectForm::ConnectSelection() {
    frame5_->Text1->OnTaken = [this] { Guard(ListFailure, [this] { BoxTaken(); }); };
    frame5_->Text1->OnLeftOut = [this] { Guard({}, [this] { TellLeftOut(); }); };
    OnClick(*frame5_->Command1, ListFailure, [this] { NewProject(); });
    OnClick(*frame5_->Command7, MakeDirectoryFailure, [this] { NewDirectory(); });
    OnClick(*frame5_->Command5, "The project could not be selected.", [this] { Done(); });
    OnClick(*frame5_->Command6, {}, [this] { CloseSelection(); });
}

QWidget* ProjectForm::FirstFocus() {
    return frame1_->Command3;
}

void ProjectForm::OnCloseByFrame() {
    Shared().Go.End();
}

void ProjectForm::ShowSettings() {
    frame1_->Show(State().CurDirName, State().CurProjName);
}

std::string ProjectForm::CurrentMonth() const {
    return State().MonthStr[Shared().Today().month() - 1];
}

void ProjectForm::OpenSelection() {
    if (!RetryDataBase(State())) {
        throw DatabaseError(State().DatabaseFailure);
    }
    const int month = Shared().Today().month() - 1;
    const auto directories = ListDirectories(State());
    const auto projects = ListProjects(State(), CurrentMonth());

    frame5_->List1[Months]->SetEntries(MonthNames(State()));
    frame5_->List1[Directories]->SetEntries(directories);
    frame5_->List2->SetEntries(projects);
    frame5_->Text1->SetName({});
    frame5_->Text1->SetLocked(true);
    shownList_ = Months;
    shownRow_ = month;
    ShowPanel(*frame5_);
    frame5_->List1[Months]->Choose(month);
    frame5_->List1[Months]->setFocus();
}

void ProjectForm::CloseSelection() {
    ShowPanel(*frame1_);
    frame1_->Command3->setFocus();
}

void ProjectForm::Done() {
    const ProjectBox& box = *frame5_->Text1;
    const ChoiceResult result =
        AcceptProject(State(), {box.Name(), box.IsLocked(), ChosenDirectory()});
    if (result.Result == ChoiceResult::Outcome::Refused) {
        Shared().Boxes.Message(result.Message);
        return;
    }
    ShowSettings();
    CloseSelection();
    HandOver(result);
}

void ProjectForm::HandOver(const ChoiceResult& result) {
    if (result.Result == ChoiceResult::Outcome::Existing) {
        Shared().Go.ShowMenu(MenuEntry::ExistingProject);
    } else if (result.Result == ChoiceResult::Outcome::New) {
        Shared().Go.ShowMenu(MenuEntry::NewProject);
    }
}

std::optional<std::string> ProjectForm::ChosenDirectory() const {
    const auto month = frame5_->List1[Months]->ChosenName();
    return month ? month : frame5_->List1[Directories]->ChosenName();
}

void ProjectForm::DirectoryChosen(ListIndex list) {
    ChoiceList& chosen = *frame5_->List1[list];
    ChoiceList& other = *frame5_->List1[list == Months ? Directories : Months];
    try {
        frame5_->List2->SetEntries(ListProjects(State(), chosen.ChosenName().value()));
    } catch (...) {
        chosen.Choose(-1);
        other.Choose(-1);
        frame5_->List1[shownList_]->Choose(shownRow_);
        throw;
    }
    other.Choose(-1);
    shownList_ = list;
    shownRow_ = chosen.Chosen();
}

void ProjectForm::ProjectChosen() {
    ProjectBox& box = *frame5_->Text1;
    if (!box.IsLocked() && box.Name().empty()) {
        box.SetLocked(true);
    }
    if (box.IsLocked()) {
        box.SetName(frame5_->List2->ChosenName().value());
    }
}

void ProjectForm::ListProjectsOfChoice() {
    const auto directory = ChosenDirectory();
    frame5_->List2->SetEntries(directory ? ListProjects(State(), *directory)
                                         : std::vector<std::string>());
}

void ProjectForm::Unlock() {
    ProjectBox& box = *frame5_->Text1;
    if (box.IsLocked()) {
        box.SetLocked(false);
        box.selectAll(); // the name chosen makes way for the one that is typed
    }
}

void ProjectForm::NewProject() {
    ListProjectsOfChoice();
    Unlock();
    frame5_->Text1->setFocus();
}

void ProjectForm::BoxTaken() {
    try {
        ListProjectsOfChoice();
    } catch (...) {
        frame5_->List1[shownList_]->setFocus(); // so that the next click takes the box again
        throw;
    }
    Unlock();
}

void ProjectForm::TellLeftOut() {
    Shared().Boxes.Message(std::string(ForbiddenCharactersMessage));
}

void ProjectForm::AskName(const std::string& prompt, const std::string& failure,
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

void ProjectForm::NewDirectory() {
    AskName("Enter the new directory name", MakeDirectoryFailure,
            [this](const std::string& name) -> std::optional<std::string> {
                if (IsDirectoryTaken(State(), name)) {
                    return std::nullopt; // there it is
                }
                if (!AddDirectory(State(), name)) {
                    throw DatabaseError(State().DatabaseFailure);
                }
                frame5_->List1[Directories]->Add(name);
                return std::nullopt;
            });
}

void ProjectForm::AskDirectoryName() {
    ChoiceList& list = *frame5_->List1[Directories];
    const std::string oldName = list.ChosenName().value();
    AskName("Enter the new name you want to change to:", RenameDirectoryFailure,
            [&](const std::string& name) -> std::optional<std::string> {
                if (name == StoredName(oldName)) {
                    return std::nullopt;
                }
                if (auto refusal = DirectoryNameRefusal(State(), name)) {
                    return refusal;
                }
                RenameDirectory(State(), oldName, name);
                list.SetEntry(list.Chosen(), name);
                ShowSettings();
                return std::nullopt;
            });
}

void ProjectForm::AskProjectName() {
    ChoiceList& list = *frame5_->List2;
    const std::string oldName = list.ChosenName().value();
    AskName("Enter the new project name you want to change to:", RenameProjectFailure,
            [&](const std::string& name) -> std::optional<std::string> {
                if (name == StoredName(oldName)) {
                    return std::nullopt;
                }
                if (auto refusal = ProjectNameRefusal(State(), name)) {
                    return refusal;
                }
                RenameProject(State(), oldName, name);
                list.SetEntry(list.Chosen(), name);
                ProjectBox& box = *frame5_->Text1;
                if (box.IsLocked() && StoredName(box.Name()) == StoredName(oldName)) {
                    box.SetName(name);
                }
                ShowSettings();
                return std::nullopt;
            });
}

void ProjectForm::Delete(const std::function<void()>& deletion) {
    try {
        deletion();
    } catch (...) {
        ShowSettings();
        try {
            DropMissingEntries();
        } catch (const DatabaseError&) {
            // What is gone cannot be told: the lists stay. The deletion's own failure is reported.
        }
        throw;
    }
    ShowSettings();
}

void ProjectForm::DropMissingEntries() {
    ChoiceList& directories = *frame5_->List1[Directories];
    ProjectBox& box = *frame5_->Text1;
    const auto directory = ChosenDirectory();
    const auto directoriesThere = ListDirectories(State());
    const auto projectsThere =
        directory ? ListProjects(State(), *directory) : std::vector<std::string>();
    const bool boxHoldsMissing = box.IsLocked() && CheckProjName(State(), box.Name());

    directories.KeepOnly(directoriesThere);
    if (shownList_ == Directories) {
        shownRow_ = directories.Chosen();
    }
    frame5_->List2->KeepOnly(ChosenDirectory() ? projectsThere : std::vector<std::string>());
    if (boxHoldsMissing) {
        box.SetName({});
    }
}

void ProjectForm::AskDeleteDirectory() {
    if (!Shared().Boxes.AskYesNo(
            "Warning: Delete directory will make data under this directory lost!" +
            std::string(CrLf) + "Do you want to continue deleting?")) {
        return;
    }
    ChoiceList& list = *frame5_->List1[Directories];
    const int row = list.Chosen();
    Delete([&] { DeleteDirectory(State(), list.ChosenName().value(), CurrentMonth()); });
    list.Remove(row);
    shownRow_ = -1;
    frame5_->List2->SetEntries({});
    if (frame5_->Text1->IsLocked()) {
        frame5_->Text1->SetName({});
    }
    const int neighbour = NeighbourOf(row, list);
    if (neighbour >= 0) {
        list.Choose(neighbour);
        Guard(ListFailure, [this] { DirectoryChosen(Directories); });
    }
}

void ProjectForm::AskDeleteProject() {
    if (!Shared().Boxes.AskYesNo("Are you sure to delete this project?" + std::string(CrLf) +
                                 "Delete operation will make the data of the project lost!")) {
        return;
    }
    ChoiceList& list = *frame5_->List2;
    const int row = list.Chosen();
    Delete([&] { DeleteProject(State(), list.ChosenName().value()); });
    list.Remove(row);
    const int neighbour = NeighbourOf(row, list);
    if (neighbour >= 0) {
        list.Choose(neighbour);
        ProjectChosen();
    } else if (frame5_->Text1->IsLocked()) {
        frame5_->Text1->SetName({});
    }
}

} // namespace tarn
