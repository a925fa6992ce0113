// A database that other programs have left in any state: rows of arbitrary values, read, saved,
// read again and deleted.

#include "Fuzzing.h"
#include "TemporaryFolder.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "store/Check.h"
#include "store/Connection.h"
#include "store/DatabaseError.h"
#include "store/Names.h"
#include "store/ProjectStore.h"
#include "store/Schema.h"

#include <QCoreApplication>

#include <array>
#include <map>
#include <optional>
#include <set>

namespace tarn {
namespace {

struct TableToFill {
    std::string_view Name;
    std::vector<const char*> Fields;
};

const std::array<TableToFill, 4>& Tables() {
    static const std::array<TableToFill, 4> tables = {
        {{ProjTab, {"ProjName", "Dir", "DrawingNum"}},
         {MainTab,
          {"ProjName", "TabIndex", "ObjNum", "DigScale", "TileLabelNUm", "EnteredMetric",
           "PicScale"}},
         {InputData,
          {"TabIndex", "ObjNum", "RoomW", "RoomL", "RoomNoStr", "RoomRemark", "CTType", "BaseSty"}},
         {DirTab, {"Directory"}}}};
    return tables;
}

std::string Hex(std::string_view bytes) {
    constexpr std::string_view Digits = "0123456789abcdef";
    std::string hex;
    for (const char c : bytes) {
        const auto byte = static_cast<std::uint8_t>(c);
        hex += Digits[byte / 16];
        hex += Digits[byte % 16];
    }
    return hex;
}

std::string TextLiteral(std::string_view text) {
    return "CAST(x'" + Hex(text) + "' AS TEXT)";
}

/// A value as the database engine writes it: of any type, whatever the field is for.
std::string Value(FuzzInput& input) {
    static constexpr std::array<const char*, 12> Odd = {
        "-1",    "32767",  "32768", "-32768", "2147483648", "9223372036854775807",
        "1e308", "-1e308", "0.5",   "0.01",   "1e999",      "501"};
    switch (input.Choice(8)) {
    case 0:
        return "NULL";
    case 1:
    case 2:
        return std::to_string(input.Byte() % 16);
    case 3:
        return std::to_string(input.Word());
    case 4:
        return Odd[input.Choice(Odd.size())];
    case 5:
        return std::to_string(static_cast<double>(input.Word()) / 256);
    case 6:
        return TextLiteral(input.Text());
    default:
        return "x'" + Hex(input.Text()) + "'";
    }
}

/// Mostly one of a few names, so that rows of several tables belong together.
std::string NameValue(FuzzInput& input) {
    static constexpr std::array<std::string_view, 6> Names = {"A", "B", "a", "MARCH", "C\"D", " A"};
    const std::size_t choice = input.Choice(Names.size() + 2);
    return choice < Names.size() ? TextLiteral(Names[choice]) : Value(input);
}

std::string Insertion(FuzzInput& input) {
    const TableToFill& table = Tables()[input.Choice(Tables().size())];
    std::string fields;
    std::string values;
    for (const char* field : table.Fields) {
        const std::string_view name = field;
        const bool isName = name == "ProjName" || name == "Dir" || name == "Directory";
        fields += (fields.empty() ? "" : ", ") + std::string(name);
        values += (values.empty() ? "" : ", ") + (isName ? NameValue(input) : Value(input));
    }
    return "INSERT INTO " + std::string(table.Name) + " (" + fields + ") VALUES (" + values + ")";
}

std::string DatabasePath() {
    static const TemporaryFolder folder;
    static const std::string path = [] {
        std::string made = (folder.Path() / "Tarn.mdb").string();
        CreateDatabaseFile(made);
        return made;
    }();
    return path;
}

void Fill(FuzzInput& input) {
    static Connection connection(DatabasePath(), Connection::Access::ReadWrite, 0);
    const auto run = [](const std::string& statement) { connection.Run(statement, "Filling"); };
    run("PRAGMA synchronous = OFF");
    run("BEGIN");
    for (const TableToFill& table : Tables()) {
        run("DELETE FROM " + std::string(table.Name));
    }
    for (int rows = 0; rows < 40 && !input.IsAtEnd(); ++rows) {
        run(Insertion(input));
    }
    run("COMMIT");
}

/// What `action` gives; nothing when the store refuses.
template <class Action>
auto Try(Action action) -> std::optional<decltype(action())> {
    try {
        return action();
    } catch (const DatabaseError& error) {
        Require(*error.what() != '\0', "a refusal has a text");
    } catch (const RunTimeError& error) {
        Require(error.Number() == OverflowNumber || error.Number() == SubscriptNumber,
                "rows raise nothing but an overflow");
    }
    return std::nullopt;
}

std::optional<LoadedProject> LoadedFrom(ProjectStore& store, const std::string& name) {
    auto loaded = Try([&] { return store.Load(name); });
    if (loaded) {
        Require(loaded->Value.Rooms.size() <= RoomCapacity, "a project has a greatest size");
        for (const std::string& line : loaded->Findings) {
            Require(!line.empty() && line.find('\n') == std::string::npos, "a finding is a line");
        }
    }
    return loaded;
}

/// The rooms of every project that can be loaded, by its name.
using Content = std::map<std::string, std::vector<Room>>;

Content ContentOf(ProjectStore& store) {
    Content content;
    for (const auto& [directory, name] : store.AllProjects()) {
        if (const auto loaded = LoadedFrom(store, name)) {
            content[StoredName(name)] = loaded->Value.Rooms;
        }
    }
    return content;
}

void RequireOthersKept(Content before, Content after, const std::string& changed) {
    before.erase(StoredName(changed));
    after.erase(StoredName(changed));
    for (const auto& [name, rooms] : before) {
        const auto now = after.find(name);
        Require(now != after.end() && now->second == rooms, "other projects stay as they are");
    }
}

void CheckSaving(ProjectStore& store, const std::string& name, Units shown, const Room& added) {
    auto loaded = LoadedFrom(store, name);
    if (!loaded) {
        return;
    }
    Project project = loaded->Value;
    if (project.Rooms.size() < RoomCapacity) {
        project.Rooms.push_back(added);
    }
    const Content before = ContentOf(store);
    const auto saved = Try([&] { return store.Save(project, shown, loaded->Mark); });
    const Content after = ContentOf(store);
    RequireOthersKept(before, after, name);
    const auto again = LoadedFrom(store, name);
    Require(again.has_value(), "a project that could be loaded still can");
    if (saved) {
        Require(saved->What == SaveResult::Outcome::Saved, "nothing changed meanwhile");
        Require(saved->Value.Rooms == project.Rooms, "what is saved are the rooms given");
        Require(again->Mark == saved->Mark, "a save says what it stored");
        Require(again->Value.Rooms == project.Rooms, "what was saved is read back");
        Require(!again->Value.IsNew, "a saved project has a sheet");
    } else {
        Require(again->Value == loaded->Value, "what cannot be saved changes nothing");
    }
}

void CheckDeleting(ProjectStore& store, const std::string& name) {
    const Content before = ContentOf(store);
    const bool deleted = Try([&] { return store.DeleteProject(name), true; }).has_value();
    const Content after = ContentOf(store);
    RequireOthersKept(before, after, name);
    Require(deleted || after == before, "a project is deleted whole or not at all");
    for (const auto& [directory, left] : store.AllProjects()) {
        Require(!deleted || !EqualsIgnoringCase(left, name), "a deleted project is gone");
    }
}

void CheckDatabase(FuzzInput input) {
    const Units shown = input.Bit() ? Units::Metric : Units::Imperial;
    const bool deletes = input.Bit();
    const std::size_t chosen = input.Byte();
    Fill(input);
    CheckDatabaseFile(DatabasePath(), 0);
    static ProjectStore store(DatabasePath(), DatabaseAccess::ReadWrite, 0);
    store.Directories();
    const auto projects = store.AllProjects();
    if (projects.empty()) {
        return;
    }
    const std::string& name = projects[chosen % projects.size()].second;
    CheckSaving(store, name, shown, Room{144, 120, 1, 5, "1", "added"});
    if (deletes) {
        CheckDeleting(store, name);
    }
}

} // namespace
} // namespace tarn

extern "C" int LLVMFuzzerInitialize(int* count, char*** arguments) {
    static QCoreApplication application(*count, *arguments); // finds the database engine's driver
    return 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tarn::CheckDatabase(tarn::FuzzInput(data, size));
    return 0;
}
