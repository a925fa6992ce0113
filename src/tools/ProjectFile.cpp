#include "tools/ProjectFile.h"

#include "base/RunTimeError.h"
#include "base/Text.h"
#include "base/Words.h"
#include "files/TextEncoding.h"
#include "store/Names.h"
#include "tools/Files.h"
#include "tools/Refusal.h"

#include <algorithm>
#include <iostream>

namespace tarn {

namespace {

[[noreturn]] void RefuseToLoad(const std::string& project, const std::string& cause) {
    throw Refusal(Words("The project %1 cannot be loaded: %2", project, cause));
}

RoomCsvReading ReadingOf(const RoomFile& file, Units units) {
    const std::string bytes = ReadWholeFile(file.Path, MaxRoomCsvBytes);
    try {
        return ReadRoomCsv(bytes, units, file.Encoding);
    } catch (const UnknownEncoding& error) {
        throw Refusal(error.what());
    }
}

/// What helps where the file is in another encoding than it was read in, with its line break
/// before it; empty where it is not.
std::string EncodingAdvice(const RoomFile& file, const RoomCsvReading& reading) {
    const bool isOther =
        std::any_of(reading.Errors.begin(), reading.Errors.end(), [](const RoomCsvError& error) {
            return FindTextFault(error.Value) == TextFault::NotUtf8;
        });
    return isOther && file.Encoding.empty()
               ? "\n" + std::string(Words("Or name the encoding of the file with --encoding, such "
                                          "as windows-1252."))
               : std::string();
}

void TellNotes(const RoomFile& file, const RoomCsvReading& reading) {
    for (const RoomCsvError& note : reading.Notes) {
        std::cerr << Words("Note: %1", ShownText(file.Path + ", " + ErrorText(note))) << '\n';
    }
    if (reading.MoreNotes > 0) {
        std::cerr << CountedWords("Note: %1, and %n more size that is rounded",
                                  "Note: %1, and %n more sizes that are rounded", reading.MoreNotes,
                                  ShownText(file.Path))
                  << '\n';
    }
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

std::vector<Room> ReadRoomFile(const RoomFile& file, Units units) {
    RoomCsvReading reading = ReadingOf(file, units);
    if (!reading.Succeeded()) {
        std::string text =
            Words("The file %1 cannot be used; nothing was taken from it:", file.Path);
        for (const std::string& line : MistakeLines(reading)) {
            text += "\n  " + line;
        }
        throw Refusal(text + EncodingAdvice(file, reading));
    }
    TellNotes(file, reading);
    return std::move(reading.Rooms);
}

} // namespace tarn
