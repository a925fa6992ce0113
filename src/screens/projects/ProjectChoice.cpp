#include "screens/projects/ProjectChoice.h"

#include "base/Text.h"
#include "base/Words.h"
#include "store/Names.h"
#include "store/ProjectStore.h"

#include <utility>

namespace tarn {

namespace {

using Outcome = ChoiceResult::Outcome;

bool IsSameName(const std::string& a, const std::string& b) {
    return StoredName(a) == StoredName(b);
}

ChoiceResult Refusal(std::string message) {
    return {Outcome::Refused, std::move(message)};
}

ChoiceResult AcceptExisting(ProjectStore& store, Project& current, const ProjectChoice& choice,
                            const std::string& name) {
    const auto ownDirectory = store.DirectoryOf(name);
    if (!ownDirectory) {
        return Refusal(Words("The project is no longer there. Please select it again!"));
    }
    current.Directory = choice.Directory.value_or(*ownDirectory);
    current.Name = name;
    return {Outcome::Existing, {}};
}

ChoiceResult AcceptNew(ProjectStore& store, Project& current, const ProjectChoice& choice,
                       const std::string& name) {
    if (store.DirectoryOf(name)) {
        return Refusal(Words("The Project Name: %1 has been used\r\n"
                             "Please change to another name!",
                             TrimStr(choice.Name)));
    }
    if (!choice.Directory) {
        return Refusal(Words("Please select a month or a directory."));
    }
    store.AddProject(*choice.Directory, name);
    current.Directory = *choice.Directory;
    current.Name = name;
    return {Outcome::New, {}};
}

} // namespace

ChoiceResult AcceptProject(ProjectStore& store, Project& current, const ProjectChoice& choice) {
    const std::string name = StoredName(choice.Name);
    if (name.empty()) {
        current.Name.clear();
        return {Outcome::NoProject, {}};
    }
    return choice.Existing ? AcceptExisting(store, current, choice, name)
                           : AcceptNew(store, current, choice, name);
}

void RenameDirectory(ProjectStore& store, Project& current, const std::string& oldName,
                     const std::string& newName) {
    store.RenameDirectory(oldName, newName);
    if (IsSameName(current.Directory, oldName)) {
        current.Directory = StoredName(newName);
    }
}

void RenameProject(ProjectStore& store, Project& current, const std::string& oldName,
                   const std::string& newName) {
    store.RenameProject(oldName, newName);
    if (IsSameName(current.Name, oldName)) {
        current.Name = StoredName(newName);
    }
}

void DeleteDirectory(ProjectStore& store, Project& current, const std::string& name,
                     const std::string& month) {
    const auto holder = store.DirectoryOf(current.Name);
    store.DeleteDirectory(name);
    if (holder && IsSameName(*holder, name)) {
        current.Name.clear();
    }
    if (IsSameName(current.Directory, name)) {
        current.Directory = month;
    }
}

void DeleteProject(ProjectStore& store, Project& current, const std::string& name) {
    store.DeleteProject(name);
    if (IsSameName(current.Name, name)) {
        current.Name.clear();
    }
}

} // namespace tarn
