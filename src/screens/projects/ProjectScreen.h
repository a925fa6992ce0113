#pragma once

#include "screens/TitledScreen.h"

#include <functional>
#include <optional>
#include <string>

namespace tarn {

class ChoiceList;
class SelectionPanel;
class SettingsPanel;
struct ChoiceResult;

/// The project selection: the current directory and project, and the panel where they are chosen,
/// made, renamed and deleted. Loading it drops the rooms of the project that was open. Closing it
/// by the frame ends the program.
class ProjectScreen : public TitledScreen {
  public:
    explicit ProjectScreen(Session& session);

  protected:
    std::string_view GuidePage() const override { return GuidePages::projects; }
    void OnCloseByFrame() override;
    QWidget* FirstFocus() override;
    void OnBodyRoom() override;
    /// Escape closes the selection, as its EXIT does.
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void ConnectSettings();
    void ConnectLists();
    void ConnectSelection();

    void OpenSelection();
    void CloseSelection();
    void Done();
    void HandOver(const ChoiceResult& result);
    /// Nothing is left of a project that was called so: no draft, and no choices.
    void EndAllOf(const std::string& project);

    std::optional<std::string> ChosenDirectory() const;
    std::string CurrentMonth() const;
    /// The month or directory that the user or the program chose in one of the two lists; the other
    /// one is `other`.
    void DirectoryChosen(ChoiceList& chosen, ChoiceList& other);
    /// The box takes the name chosen unless another one is being typed in it.
    void ProjectChosen();
    void ShowChosenName(const std::string& name);
    void ListProjectsOfChoice();
    void NewProject();
    void BoxTaken();
    void Unlock();
    void TellLeftOut();

    /// Takes a name; why it refuses it, if it does. May raise.
    using TakeName = std::function<std::optional<std::string>(const std::string& name)>;
    /// Ask for a name until it is taken or the user gives up. After a refusal or a failure, of
    /// which a message tells, the box comes back with what was typed.
    void AskName(const std::string& prompt, const std::string& failure, const TakeName& take);
    void NewDirectory();
    void AskDirectoryName();
    void AskProjectName();
    void AskDeleteDirectory();
    void AskDeleteProject();
    void ShowSettings();

    SettingsPanel* settings_;
    SelectionPanel* selection_;
    /// The list and the row whose projects are shown; no row at first.
    ChoiceList* shownList_;
    int shownRow_ = -1;
    std::string chosenName_; ///< what a choice in the list put into the box last
};

} // namespace tarn
