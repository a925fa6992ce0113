// What becomes of directories, projects, sheets and rooms that are out of order: what a repair
// makes of the rows that could be read.

#pragma once

#include "store/Findings.h"
#include "store/RawRows.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace tarn {

/// A value as it may stand in a field: itself where it has no FaultOf the field, else the nearest
/// that has none.
RawValue MendedValue(const RawValue& value, const Field& field);

/// A project as it is written by a repair.
struct RepairedProject {
    std::string Name;
    std::string Directory;
    std::optional<std::int64_t> OldNumber; ///< of its sheet; nothing without one
    std::int64_t Number = 0;               ///< the new one
    RawRow Sheet;                          ///< its row of MainTab, in the order of the shape
    std::vector<RawRow> Rooms;             ///< its rows of InputData, by their places
};

/// Takes the rows of the tables one after the other, in the order of the functions below, and
/// brings them in order. What it changes or leaves out it tells.
class RepairedData {
  public:
    explicit RepairedData(Findings& changes)
        : changes_(changes) {}

    void AddDirectory(const RawRow& row);
    void AddProject(const RawRow& row);
    void AddSheet(const RawRow& row);
    void AddRoom(const RawRow& row);
    /// Bring together what belongs together. Nothing may be added any more.
    void Settle();

    const std::vector<std::string>& Directories() const { return directories_; }
    const std::vector<RepairedProject>& Projects() const { return projects_; }
    /// The new number of the sheet that had a number; nothing when no project has it.
    std::optional<std::int64_t> NumberFor(const RawValue& oldNumber) const;

  private:
    std::string CleanName(const RawValue& value, bool isProject);
    /// The name, or one like it that no project has.
    std::string FreeName(const std::string& name) const;
    RepairedProject& MakeProject(const std::string& name, const std::string& directory);
    void TakeDirectory(const std::string& name);
    void SettleSheets();
    void SettleSheet(const RawRow& sheet);
    void SettleRooms();
    /// Divide the rooms under one number among the projects that have it.
    void DivideRooms(const std::vector<std::size_t>& projects, const std::vector<RawRow>& rooms);
    void FillProject(RepairedProject& project, const std::vector<RawRow>& rooms,
                     std::vector<bool>& taken);
    /// Make projects of rooms that no sheet shows.
    void KeepRest(const std::string& name, const std::string& directory, const std::string& kind,
                  const std::vector<RawRow>& rooms);
    void MendRows();
    void GiveNumbers();

    Findings& changes_;
    std::vector<std::string> directories_;
    std::unordered_set<std::string> knownDirectories_;
    std::vector<RepairedProject> projects_;
    std::unordered_set<std::string> names_;
    std::unordered_map<std::string, std::size_t> projectOf_; ///< by the name as it was stored
    std::vector<RawRow> sheets_;
    std::map<std::int64_t, std::vector<RawRow>> rooms_; ///< by the number of their sheet
    std::vector<RawRow> numberless_;                    ///< rooms without one
    std::map<std::int64_t, std::int64_t> newNumbers_;   ///< by the old ones
};

} // namespace tarn
