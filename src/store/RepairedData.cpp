#include "store/RepairedData.h"

#include "base/Text.h"
#include "base/Words.h"
#include "files/QtText.h"
#include "project/Room.h"
#include "store/Months.h"
#include "store/Names.h"
#include "store/ProjectNames.h"
#include "store/Schema.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>

namespace tarn {

namespace {

constexpr const char* MadeDirectory = "REPAIRED";
constexpr auto ValuesChanged = Words("Values that were changed");
constexpr auto RowsLeftOut = Words("Rows that say nothing and were left out");
constexpr double UsualScale = 0.01;

/// Where a field's value stands in the rows of its table.
std::size_t At(std::string_view table, std::string_view field) {
    const auto& fields = ShapeOf(table).Fields;
    return static_cast<std::size_t>(
        std::find_if(fields.begin(), fields.end(),
                     [field](const Field& each) { return each.Name == field; }) -
        fields.begin());
}

const RawValue& In(const RawRow& row, std::string_view table, std::string_view field) {
    return row.Values.at(At(table, field));
}

RawValue& In(RawRow& row, std::string_view table, std::string_view field) {
    return row.Values.at(At(table, field));
}

std::optional<std::int64_t> WholeIn(const RawRow& row, std::string_view table,
                                    std::string_view field) {
    const auto* whole = std::get_if<std::int64_t>(&In(row, table, field));
    return whole != nullptr ? std::optional(*whole) : std::nullopt;
}

/// A number from 0 to below `end` that the row has; nothing for any other value.
std::optional<std::size_t> CountIn(const RawRow& row, std::string_view table,
                                   std::string_view field, std::size_t end) {
    const auto whole = WholeIn(row, table, field);
    return whole && *whole >= 0 && *whole < static_cast<std::int64_t>(end)
               ? std::optional(static_cast<std::size_t>(*whole))
               : std::nullopt;
}

/// A row of a table with a null in every field.
RawRow EmptyRow(std::string_view table) {
    return {0, std::vector<RawValue>(ShapeOf(table).Fields.size())};
}

/// Whether two rooms are the same but for their row numbers.
bool IsSameRoom(const RawRow& a, const RawRow& b) {
    return std::equal(a.Values.begin(), a.Values.end(), b.Values.begin(), b.Values.end(),
                      [](const RawValue& one, const RawValue& other) {
                          return one.index() == other.index() && TextOf(one) == TextOf(other);
                      });
}

RawRow EmptyRoom() {
    RawRow room = EmptyRow(InputData);
    for (std::size_t i = 0; i < room.Values.size(); ++i) {
        if (ShapeOf(InputData).Fields.at(i).Content == FieldContent::WholeNumber) {
            room.Values.at(i) = std::int64_t{0};
        }
    }
    return room;
}

bool IsMonth(const std::string& name) {
    return std::find(MonthNames.begin(), MonthNames.end(), name) != MonthNames.end();
}

std::string RoomText(const std::string& project, std::size_t place) {
    return Words("%1, room %2", project, std::to_string(place + 1));
}

} // namespace

RawValue MendedValue(const RawValue& value, const Field& field) {
    if (!FaultOf(value, field)) {
        return value;
    }
    if (field.Content == FieldContent::WholeNumber) {
        const auto number = NumberOf(value);
        const double nearest = number ? std::nearbyint(*number) : field.Least;
        const bool isInRange = nearest >= field.Least && nearest <= field.Greatest;
        return static_cast<std::int64_t>(isInRange ? nearest : field.Least);
    }
    if (field.Content == FieldContent::AboveZero) {
        return UsualScale;
    }
    return TextOf(value);
}

std::string RepairedData::CleanName(const RawValue& value, bool isProject) {
    std::u32string name = ToQt(TextOf(value)).toStdU32String();
    for (char32_t& c : name) {
        const std::string encoded = FromQt(FromCharacters(std::u32string(1, c)));
        if (HoldsControlCharacter(encoded)) {
            c = U'\uFFFD';
        } else if (isProject && HoldsForbiddenCharacter(encoded)) {
            c = U'-';
        }
    }
    std::string clean = StoredName(FittingNameText(StoredName(FromQt(FromCharacters(name))), 0));
    const auto* text = std::get_if<std::string>(&value);
    if (text == nullptr || !EqualsIgnoringCase(*text, clean)) {
        changes_.Add(Words("Names that were changed"),
                     Words("%1 became \"%2\"", QuotedValue(value), clean));
    }
    return clean;
}

std::string RepairedData::FreeName(const std::string& name) const {
    constexpr long long MostDigits = 8;
    std::string free = name;
    for (int number = 2; names_.contains(free); ++number) {
        free = StoredName(FittingNameText(name, MostDigits)) + " " + std::to_string(number);
    }
    return free;
}

RepairedProject& RepairedData::MakeProject(const std::string& name, const std::string& directory) {
    TakeDirectory(directory);
    projects_.push_back({FreeName(name), directory, {}, 0, EmptyRow(MainTab), {}});
    names_.insert(projects_.back().Name);
    return projects_.back();
}

void RepairedData::TakeDirectory(const std::string& name) {
    if (!IsMonth(name) && knownDirectories_.insert(name).second) {
        directories_.push_back(name);
        changes_.Add(Words("Directories that were made for projects which no screen showed"), name);
    }
}

void RepairedData::AddDirectory(const RawRow& row) {
    const std::string name = CleanName(row.Values.at(0), false);
    if (name.empty() || !knownDirectories_.insert(name).second) {
        changes_.Add(RowsLeftOut, Words("%1, row %2 (%3)", DirTab, std::to_string(row.Number),
                                        QuotedValue(row.Values.at(0))));
        return;
    }
    directories_.push_back(name);
}

void RepairedData::AddProject(const RawRow& row) {
    const RawValue& stored = In(row, ProjTab, "ProjName");
    const std::string known = StoredName(TextOf(stored));
    if (!projectOf_.try_emplace(known, projects_.size()).second) {
        changes_.Add(RowsLeftOut, Words("%1, row %2 (%3, a second time)", ProjTab,
                                        std::to_string(row.Number), QuotedValue(stored)));
        return;
    }
    const std::string name = CleanName(stored, true);
    const std::string directory = CleanName(In(row, ProjTab, "Dir"), false);
    MakeProject(name.empty() ? "WITHOUT A NAME" : name,
                directory.empty() ? MadeDirectory : directory);
}

void RepairedData::AddSheet(const RawRow& row) {
    sheets_.push_back(row);
}

void RepairedData::AddRoom(const RawRow& row) {
    if (const auto number = WholeIn(row, InputData, "TabIndex")) {
        rooms_[*number].push_back(row);
    } else {
        numberless_.push_back(row);
    }
}

void RepairedData::Settle() {
    SettleSheets();
    SettleRooms();
    GiveNumbers();
    MendRows();
}

void RepairedData::SettleSheets() {
    for (const RawRow& sheet : sheets_) {
        SettleSheet(sheet);
    }
}

void RepairedData::SettleSheet(const RawRow& sheet) {
    const RawValue& name = In(sheet, MainTab, "ProjName");
    const auto number = WholeIn(sheet, MainTab, "TabIndex");
    const std::string text =
        Words("number %1 of %2", QuotedValue(In(sheet, MainTab, "TabIndex")), QuotedValue(name));
    const auto leaveOut = [&] {
        changes_.Add(Words("Sheets without rooms that were left out"), text);
    };
    const auto give = [&](RepairedProject& project) {
        project.OldNumber = number;
        project.Sheet = sheet;
    };
    if (!number) {
        leaveOut(); // no room can belong to it
        return;
    }
    const auto found = projectOf_.find(StoredName(TextOf(name)));
    const bool hasProject = found != projectOf_.end();
    if (hasProject && !projects_.at(found->second).OldNumber) {
        give(projects_.at(found->second));
        return;
    }
    const bool isSecond = hasProject && projects_.at(found->second).OldNumber == number;
    if (isSecond || !rooms_.contains(*number)) {
        leaveOut();
        return;
    }
    std::string own = hasProject ? projects_.at(found->second).Name : CleanName(name, true);
    if (own.empty()) {
        own = "SHEET " + std::to_string(*number);
    }
    const std::string directory =
        hasProject ? projects_.at(found->second).Directory : std::string(MadeDirectory);
    RepairedProject& made = MakeProject(own, directory);
    give(made);
    changes_.Add(hasProject
                     ? Words("Second sheets of a project, which became projects of their own")
                     : Words("Sheets without a project, for which one was made"),
                 Words("%1, now %2 in %3", text, made.Name, directory));
}

void RepairedData::SettleRooms() {
    std::map<std::int64_t, std::vector<std::size_t>> projectsUnder;
    for (std::size_t i = 0; i < projects_.size(); ++i) {
        if (projects_.at(i).OldNumber) {
            projectsUnder[*projects_.at(i).OldNumber].push_back(i);
        }
    }
    for (const auto& [number, projects] : projectsUnder) {
        const auto rooms = rooms_.extract(number);
        DivideRooms(projects, rooms ? rooms.mapped() : std::vector<RawRow>());
    }
    const std::string kind = Words("Rooms without a sheet, for which a project was made (in feet "
                                   "and inches: their units are not known)");
    for (const auto& [number, rooms] : rooms_) {
        KeepRest("ROOMS OF SHEET " + std::to_string(number), MadeDirectory, kind, rooms);
    }
    KeepRest("ROOMS WITHOUT A SHEET", MadeDirectory, kind, numberless_);
    rooms_.clear();
    numberless_.clear();
}

void RepairedData::DivideRooms(const std::vector<std::size_t>& projects,
                               const std::vector<RawRow>& rooms) {
    std::vector<bool> taken(rooms.size(), false);
    for (const std::size_t i : projects) {
        FillProject(projects_.at(i), rooms, taken);
        if (projects.size() > 1) {
            changes_.Add(
                Words("Projects that shared their rooms with others, and have them all now"),
                projects_.at(i).Name);
        }
    }
    std::vector<RawRow> rest;
    for (std::size_t i = 0; i < rooms.size(); ++i) {
        if (!taken.at(i)) {
            rest.push_back(rooms.at(i));
        }
    }
    const std::size_t first = projects.front();
    const std::string name = projects_.at(first).Name;
    const std::string directory = projects_.at(first).Directory;
    const std::size_t before = projects_.size();
    KeepRest(name, directory,
             Words("Rooms that their project did not show, which are in one of their own now"),
             rest);
    for (std::size_t i = before; i < projects_.size(); ++i) { // in the same units
        projects_.at(i).Sheet = projects_.at(first).Sheet;
    }
}

void RepairedData::FillProject(RepairedProject& project, const std::vector<RawRow>& rooms,
                               std::vector<bool>& taken) {
    std::size_t count = 0;
    if (const auto told = CountIn(project.Sheet, MainTab, "ObjNum", RoomCapacity + 1)) {
        count = *told;
    } else {
        for (const RawRow& room : rooms) {
            const auto place = CountIn(room, InputData, "ObjNum", RoomCapacity);
            count = std::max(count, place ? *place + 1 : 0);
        }
        constexpr std::string_view ObjNum = "ObjNum";
        changes_.Add(ValuesChanged,
                     Words("%1: %2 %3 became %4", project.Name, ObjNum,
                           QuotedValue(In(project.Sheet, MainTab, ObjNum)), std::to_string(count)));
    }
    std::vector<std::optional<std::size_t>> chosen(count); // of `rooms`, by their places
    for (std::size_t i = 0; i < rooms.size(); ++i) {
        const auto place = CountIn(rooms.at(i), InputData, "ObjNum", count);
        if (!place) {
            continue;
        }
        auto& former = chosen.at(*place);
        if (former && IsSameRoom(rooms.at(*former), rooms.at(i))) {
            taken.at(*former) = true;
            changes_.Add(Words("Rooms that were stored twice alike"),
                         RoomText(project.Name, *place));
        }
        former = i; // the last one counts
    }
    for (std::size_t place = 0; place < count; ++place) {
        if (const auto room = chosen.at(place)) {
            taken.at(*room) = true;
            project.Rooms.push_back(rooms.at(*room));
        } else {
            project.Rooms.push_back(EmptyRoom());
            changes_.Add(Words("Rooms that could not be found and are empty now"),
                         RoomText(project.Name, place));
        }
    }
}

void RepairedData::KeepRest(const std::string& name, const std::string& directory,
                            const std::string& kind, const std::vector<RawRow>& rooms) {
    for (std::size_t first = 0; first < rooms.size(); first += RoomCapacity) {
        const std::size_t count = std::min(rooms.size() - first, RoomCapacity);
        RepairedProject& made = MakeProject(name, directory);
        made.OldNumber = std::numeric_limits<std::int64_t>::min(); // none that rows refer to
        made.Rooms.assign(rooms.begin() + static_cast<std::ptrdiff_t>(first),
                          rooms.begin() + static_cast<std::ptrdiff_t>(first + count));
        changes_.Add(kind, Words("%1, now %2 in %3", std::to_string(count), made.Name, directory));
    }
}

void RepairedData::GiveNumbers() {
    const std::int32_t greatest = ShapeOf(MainTab).Fields.at(At(MainTab, "TabIndex")).Greatest;
    std::set<std::int64_t> used;
    std::vector<RepairedProject*> waiting;
    for (RepairedProject& project : projects_) {
        if (!project.OldNumber) {
            continue;
        }
        const std::int64_t old = *project.OldNumber;
        if (old >= 0 && old <= greatest && used.insert(old).second) {
            project.Number = old;
            newNumbers_.try_emplace(old, old);
        } else {
            waiting.push_back(&project);
        }
    }
    std::int64_t next = 0;
    for (RepairedProject* project : waiting) {
        while (used.contains(next)) {
            ++next;
        }
        if (next > greatest) {
            changes_.Add(Words("Projects for which no number was left, without their rooms"),
                         project->Name + ", " +
                             CountedWords("%n room", "%n rooms",
                                          static_cast<long long>(project->Rooms.size())));
            project->OldNumber.reset();
            continue;
        }
        used.insert(next);
        project->Number = next;
        newNumbers_.try_emplace(*project->OldNumber, next);
    }
}

void RepairedData::MendRows() {
    const auto mend = [this](std::string_view table, RawRow& row, const std::string& where) {
        const auto& fields = ShapeOf(table).Fields;
        for (std::size_t i = 0; i < fields.size(); ++i) {
            const RawValue mended = MendedValue(row.Values.at(i), fields.at(i));
            if (FaultOf(row.Values.at(i), fields.at(i))) {
                changes_.Add(ValuesChanged,
                             Words("%1: %2 %3 became %4", where, fields.at(i).Name,
                                   QuotedValue(row.Values.at(i)), QuotedValue(mended)));
            }
            row.Values.at(i) = mended;
        }
    };
    for (RepairedProject& project : projects_) {
        if (!project.OldNumber) {
            continue;
        }
        // These are settled already, whatever stood there; what is made up needs no telling.
        In(project.Sheet, MainTab, "TabIndex") = project.Number;
        In(project.Sheet, MainTab, "ProjName") = project.Name;
        In(project.Sheet, MainTab, "ObjNum") = static_cast<std::int64_t>(project.Rooms.size());
        if (project.Sheet.Number == 0 && IsNull(In(project.Sheet, MainTab, "DigScale"))) {
            In(project.Sheet, MainTab, "DigScale") = UsualScale;
        }
        mend(MainTab, project.Sheet, project.Name);
        std::size_t place = 0;
        for (RawRow& room : project.Rooms) {
            In(room, InputData, "TabIndex") = project.Number;
            In(room, InputData, "ObjNum") = static_cast<std::int64_t>(place);
            mend(InputData, room, RoomText(project.Name, place));
            ++place;
        }
    }
}

std::optional<std::int64_t> RepairedData::NumberFor(const RawValue& oldNumber) const {
    const auto* whole = std::get_if<std::int64_t>(&oldNumber);
    const auto found = whole != nullptr ? newNumbers_.find(*whole) : newNumbers_.end();
    return found != newNumbers_.end() ? std::optional(found->second) : std::nullopt;
}

} // namespace tarn
