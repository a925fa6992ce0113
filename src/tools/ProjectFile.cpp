#include "tools/ProjectFile.h"

#include "base/RunTimeError.h"
#include "base/Text.h"
#include "store/Names.h"
#include "tools/Files.h"
#include "tools/Refusal.h"

#include <iostream>

namespace tarn {

namespace {

[[noreturn]] void RefuseToLoad(const std::string& project, const std::string& cause) {
    throw Refusal("The project " + project + " cannot be loaded: " + cause);
}

} // namespace

std::string NameArgument(std::string_view kind, const std::string& name) {
    const auto refuse = [&](const std::string& cause) {
        throw Refusal("The name of the " + std::string(kind) + " \"" + ShownText(name) + "\" " +
                      cause);
    };
    const TextFault fault = FindTextFault(name);
    if (fault == TextFault::NotUtf8) {
        refuse("is not UTF-8: the terminal that it was typed in writes another code.");
    }
    if (fault == TextFault::NoCharacter) {
        refuse("holds U+FFFE or U+FFFF, which are no characters.");
    }
    if (HoldsControlCharacter(name)) {
        refuse("holds a line break or another control character.");
    }
    std::string stored = StoredName(name);
    if (stored.empty()) {
        throw Refusal(NoNameText(kind));
    }
    return stored;
}

LoadedProject LoadWhole(ProjectStore& store, const std::string& name) {
    try {
        return store.Load(name);
    } catch (const DatabaseError& error) {
        RefuseToLoad(name, error.what());
    } catch (const RunTimeError& error) {
        RefuseToLoad(name, error.Sentences());
    }
}

Project LoadProjectNamed(ProjectStore& store, const std::string& name) {
    const std::string stored = NameArgument("project", name);
    if (!store.DirectoryOf(stored)) {
        throw Refusal("There is no project " + stored +
                      ". \"tarn-data list\" tells the projects that there are.");
    }
    LoadedProject loaded = LoadWhole(store, stored);
    for (const std::string& finding : loaded.Findings) {
        std::cerr << "Warning: " << ShownText(finding) << '\n';
    }
    if (loaded.Value.IsNew) {
        throw Refusal("The project " + stored + " has no saved rooms.");
    }
    return std::move(loaded.Value);
}

void WarnOfMetric(const Project& project, const char* consequence) {
    std::cerr << "Warning: the project " << ShownText(project.Name) << " was entered in metric; "
              << consequence << '\n';
}

std::string MoreMistakes(const RoomCsvReading& reading) {
    if (reading.MoreErrors == 0) {
        return {};
    }
    return "\n  and " + TrimStr(reading.MoreErrors) +
           (reading.MoreErrors == 1 ? " more mistake" : " more mistakes");
}

std::vector<Room> ReadRoomFile(const std::string& path, Units units) {
    RoomCsvReading reading = ReadRoomCsv(ReadWholeFile(path, MaxRoomCsvBytes), units);
    if (!reading.Succeeded()) {
        std::string text = "The file " + path + " cannot be used; nothing was taken from it:";
        for (const RoomCsvError& error : reading.Errors) {
            text += "\n  " + ErrorText(error);
        }
        throw Refusal(text + MoreMistakes(reading));
    }
    return std::move(reading.Rooms);
}

} // namespace tarn
