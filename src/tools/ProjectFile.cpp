#include "tools/ProjectFile.h"

#include "base/RunTimeError.h"
#include "base/Text.h"
#include "base/Words.h"
#include "store/Names.h"
#include "tools/Files.h"
#include "tools/Refusal.h"

#include <iostream>

namespace tarn {

namespace {

[[noreturn]] void RefuseToLoad(const std::string& project, const std::string& cause) {
    throw Refusal(Words("The project %1 cannot be loaded: %2", project, cause));
}

} // namespace

std::string NameArgument(std::string_view kind, const std::string& name) {
    const auto refuse = [&](std::string_view cause) {
        throw Refusal(Words(kind == "project" ? Words("The name of the project \"%1\" %2")
                                              : Words("The name of the directory \"%1\" %2"),
                            ShownText(name), cause));
    };
    const TextFault fault = FindTextFault(name);
    if (fault == TextFault::NotUtf8) {
        refuse(Words("is not UTF-8: the terminal that it was typed in writes another code."));
    }
    if (fault == TextFault::NoCharacter) {
        refuse(Words("holds U+FFFE or U+FFFF, which are no characters."));
    }
    if (HoldsControlCharacter(name)) {
        refuse(Words("holds a line break or another control character."));
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
        throw Refusal(Words("There is no project %1. \"tarn-data list\" tells the projects that "
                            "there are.",
                            stored));
    }
    LoadedProject loaded = LoadWhole(store, stored);
    for (const std::string& finding : loaded.Findings) {
        std::cerr << Words("Warning: %1", ShownText(finding)) << '\n';
    }
    if (loaded.Value.IsNew) {
        throw Refusal(Words("The project %1 has no saved rooms.", stored));
    }
    return std::move(loaded.Value);
}

void WarnOfMetric(Phrase warning, const Project& project) {
    std::cerr << Words(warning, ShownText(project.Name)) << '\n';
}

std::string MoreMistakes(const RoomCsvReading& reading) {
    if (reading.MoreErrors == 0) {
        return {};
    }
    return "\n  " + CountedWords("and %n more mistake", "and %n more mistakes", reading.MoreErrors);
}

std::vector<Room> ReadRoomFile(const std::string& path, Units units) {
    RoomCsvReading reading = ReadRoomCsv(ReadWholeFile(path, MaxRoomCsvBytes), units);
    if (!reading.Succeeded()) {
        std::string text = Words("The file %1 cannot be used; nothing was taken from it:", path);
        for (const RoomCsvError& error : reading.Errors) {
            text += "\n  " + ErrorText(error);
        }
        throw Refusal(text + MoreMistakes(reading));
    }
    return std::move(reading.Rooms);
}

} // namespace tarn
