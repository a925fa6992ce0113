#include "store/ProjectChoice.h"

#include "app/Text.h"
#include "store/Deletions.h"
#include "store/Names.h"
#include "store/Projects.h"
#include "store/Renames.h"
#include "store/Sheets.h"

namespace tarn {

namespace {

using Outcome = ChoiceResult::Outcome;

/// Turn a store procedure's False into an error.
void Require(bool succeeded, const SharedState& state) {
    if (!succeeded) {
        throw DatabaseError(state.DatabaseFailure);
    }
}

bool IsSameName(const std::string& a, const std::string& b) {
    return StoredName(a) == StoredName(b);
}

/// After a deletion that failed half-way: let the current project go if its row did.
void ForgetMissingProject(SharedState& state) noexcept {
    try {
        if (!DirectoryOf(state, state.CurProjName)) {
            state.CurProjName.clear();
        }
    } catch (const std::exception&) {
        // Whether it is gone cannot be told: it stays.
    }
}

/// Require, and ForgetMissingProject when it was False.
void RequireDeleted(bool succeeded, SharedState& state) {
    if (!succeeded) {
        const std::string failure = state.DatabaseFailure;
        ForgetMissingProject(state);
        throw DatabaseError(failure);
    }
}

ChoiceResult Refusal(std::string message) {
    return {Outcome::Refused, std::move(message)};
}

ChoiceResult AcceptExisting(SharedState& state, const ProjectChoice& choice,
                            const std::string& name) {
    const auto ownDirectory = DirectoryOf(state, name);
    if (!ownDirectory) {
        return Refusal("The project is no longer there. Please select it again!");
    }
    state.CurDirName = choice.Directory.value_or(*ownDirectory);
    state.CurProjName = name;
    return {Outcome::Existing, {}};
}

ChoiceResult AcceptNew(SharedState& state, const ProjectChoice& choice, const std::string& name) {
    if (!CheckProjName(state, name)) {
        return Refusal("The Project Name: " + TrimStr(choice.Name) + " has been used" +
                       std::string(CrLf) + "Please change to another name!");
    }
    if (!choice.Directory) {
        return Refusal("Please select a month or a directory.");
    }
    Require(AddProject(state, *choice.Directory, name), state);
    state.CurDirName = *choice.Directory;
    state.CurProjName = name;
    return {Outcome::New, {}};
}

} // namespace

ChoiceResult AcceptProject(SharedState& state, const ProjectChoice& choice) {
    const std::string name = StoredName(choice.Name);
    if (name.empty()) {
        state.CurProjName.clear();
        return {Outcome::NoProject, {}};
    }
    return choice.Existing ? AcceptExisting(state, choice, name) : AcceptNew(state, choice, name);
}

void RenameDirectory(SharedState& state, const std::string& oldName, const std::string& newName) {
    Require(ChangeDirName(state, oldName, StoredName(newName)), state);
    if (IsSameName(state.CurDirName, oldName)) {
        state.CurDirName = StoredName(newName);
    }
}

void RenameProject(SharedState& state, const std::string& oldName, const std::string& newName) {
    Require(ChangeProjName(state, oldName, StoredName(newName)), state);
    if (IsSameName(state.CurProjName, oldName)) {
        state.CurProjName = StoredName(newName);
    }
}

void DeleteDirectory(SharedState& state, const std::string& name, const std::string& month) {
    const auto holder = DirectoryOf(state, state.CurProjName);
    LeaveSharedNumbers(state, ListProjects(state, name));
    RequireDeleted(DeleteDirData(state, name), state);
    if (holder && IsSameName(*holder, name)) {
        state.CurProjName.clear();
    }
    if (IsSameName(state.CurDirName, name)) {
        state.CurDirName = month;
    }
}

void DeleteProject(SharedState& state, const std::string& name) {
    LeaveSharedNumbers(state, {name});
    RequireDeleted(DeleteProjectData(state, name), state);
    if (IsSameName(state.CurProjName, name)) {
        state.CurProjName.clear();
    }
}

} // namespace tarn
