// The tables: their names and fields, what may stand in each, and how they are made.

#pragma once

#include "store/Connection.h"
#include "store/DatabaseAccess.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// The tables, each name written here alone.
inline constexpr std::string_view DirTab = "DirTab";       ///< a row for each directory
inline constexpr std::string_view ProjTab = "ProjTab";     ///< a row for each project
inline constexpr std::string_view MainTab = "MainTab";     ///< a project's sheet
inline constexpr std::string_view InputData = "InputData"; ///< the rooms of a sheet

/// The tables that hold rows of a sheet, by its TabIndex, in the order in which they are emptied.
inline constexpr std::array<std::string_view, 10> SheetTables = {
    "AFillTab", "AngleMCut", "AInputData", "ESTTab",   "FillCut",
    InputData,  "MasterCut", "SAFill",     "SFillCut", MainTab};

/// Also holds rows of a sheet, by its TabIndex, where it is there; a database needs none.
inline constexpr std::string_view OrderData = "OrderData";

/// What may stand in a field.
enum class FieldContent {
    Anything,      ///< its value is not used
    WholeNumber,   ///< from Field::Least to Field::Greatest
    AboveZero,     ///< a number above 0
    Text,          ///< a text without a TextFault, or a null
    DirectoryName, ///< a name as StoredName makes it
    ProjectName,   ///< the same, without the characters that no project name holds
};

/// A field of a table.
struct Field {
    std::string_view Name;
    std::string_view Type; ///< as it is declared
    FieldContent Content = FieldContent::Anything;
    std::int32_t Least = 0; ///< of a WholeNumber
    std::int32_t Greatest = 0;
    bool Indexed = false;
    bool MayBeNull = false; ///< of a WholeNumber
    /// A database made without the field is in order all the same.
    bool Optional = false;
};

/// A table with its fields.
struct TableShape {
    std::string_view Name;
    std::vector<Field> Fields;
    /// A database made without the table is in order all the same.
    bool Optional = false;
};

/// Every table.
const std::vector<TableShape>& TableShapes();
/// The table of that name, which must be one of them.
const TableShape& ShapeOf(std::string_view table);

/// Whether a table holds rows of a sheet, by its TabIndex.
bool IsOfSheets(const TableShape& shape);

/// Make a table, empty, with its indexes. Raises DatabaseError.
void CreateTable(Connection& connection, const TableShape& table);
/// The same for every table that must be there.
void CreateTables(Connection& connection);

/// Make an empty database file with every table. The folders on the way are made too. Raises
/// DatabaseError, and leaves nothing behind, when it cannot, and when anything stands at `path`.
void CreateDatabaseFile(const std::string& path);

/// Copy a database file as it stands between two changes, also while programs use it. Raises
/// DatabaseError, and leaves nothing behind, when the source is refused or the copy cannot be made,
/// and when anything stands at `target`.
void BackUpDatabaseFile(const std::string& source, const std::string& target,
                        int busyWait = DefaultBusyWait);

} // namespace tarn
