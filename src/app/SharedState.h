#pragma once

#include "app/BoundedArray.h"
#include "app/Database.h"
#include "app/Types.h"

#include <memory>
#include <string>

namespace tarn {

/// Capacities: upper bounds of the shared arrays, all zero-based.
inline constexpr Integer MaxRoom = 500;   ///< rooms 0 .. 500
inline constexpr Integer MaxPiece = 3000; ///< pieces, cuts and fills 0 .. 3000

inline constexpr Integer FirstTileCode = 8; ///< coverings below are carpets, from here on tiles
inline constexpr Integer LastTileCode = 11;

/// Everything the screens share. One exists in the program; a test, a tool or a benchmark makes its
/// own. Lives from start to end; nothing in it is saved but by an explicit save.
struct SharedState {
    SharedState();

    /// Give the room and cut arrays their fixed bounds, with all elements empty.
    void DimAllArrays();

    bool IsMetric() const noexcept { return MetricFlag == 1; }

    // --- units and options ---
    Byte MetricFlag = 0;               ///< 1 = centimetres and metres, 0 = feet and inches
    Double DimScale = 0.01;            ///< size of one coordinate unit in inches
    Integer EstOption = 0;             ///< 10 × index into MinCutLen + pieces per fill - 1
    BoundedArray<Single> MinCutLen{3}; ///< 0..3: minimum cut lengths in feet; 3 is never set

    // --- the open project ---
    std::string CurProjName;   ///< empty = none selected
    std::string CurDirName;    ///< directory of the project
    Integer CurTabIndex = 0;   ///< the project's sheet number
    bool NewSheetFlag = false; ///< the project has no sheet yet; CurTabIndex was allocated for it
    Integer ObjNum = 0;        ///< number of rooms in use

    // --- start-up ---
    std::string DataPath;                   ///< data folder, without a separator at its end
    std::string DBName;                     ///< path of the database file, with backslashes as text
    BoundedArray<std::string> MonthStr{12}; ///< 0..12: "JANUARY" .. "DECEMBER", 12 empty
    Integer PrnWidth = 0;                   ///< printer page in twips; 0 = not read
    Integer PrnHeight = 0;

    // --- the database ---
    std::unique_ptr<Database> CurDB; ///< unset when it could not be opened
    BoundedArray<std::unique_ptr<Recordset>> DBRS{
        23};                     ///< 0..23: 1 directories, 2 projects, 3 sheets
    std::string DatabaseFailure; ///< why the last store procedure that answered False failed

    // --- rooms, by room 0 .. ObjNum - 1 ---
    BoundedArray<Integer> RoomWidth;  ///< whole inches, or whole centimetres when metric
    BoundedArray<Integer> RoomLength; ///< as RoomWidth
    BoundedArray<Byte> RoomCarpet;    ///< covering 0..7 = CARPET-1..8, 8..11 = TILE-1..4
    BoundedArray<Byte> RoomBase;      ///< wall base: widths + 3 × lengths, each 0..2
    BoundedArray<std::string> RoomNoStr;
    BoundedArray<std::string> RoomRemark;
    /// (room, corner), hundredths of an inch across and along: corner 0 is the near one, 1 the far
    /// one; 2 is there and not used.
    BoundedTable<Single> RoomX;
    BoundedTable<Single> RoomY;

    // --- whole-width cuts, by cut 0 .. ECutCount - 1, hundredths of an inch ---
    Integer ECutCount = 0;
    BoundedArray<Single> ECutX1, ECutX2, ECutY1, ECutY2;
};

} // namespace tarn
