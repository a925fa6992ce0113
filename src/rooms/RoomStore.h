#pragma once

#include "app/RunTimeError.h"
#include "app/SharedState.h"

#include <string>
#include <vector>

namespace tarn {

/// Empty every room slot. ObjNum and the converted extents stay as they are.
void EmptyRooms(SharedState& state);

/// Replace all stored rooms of sheet `tid` by rooms 0 .. ObjNum - 1. Answers True. Raises
/// DatabaseError, and "Subscript out of range" for more than 501 rooms; what was stored until then
/// stays, unless a transaction takes it back.
bool SaveInputData(SharedState& state, Integer tid);

/// Fill the room slots from the stored rooms of sheet `tid`: the row's own ObjNum is its slot, and
/// slots without a row keep what they hold. ObjNum of the shared state is not set. A null text
/// loads as empty, a null number as 0. Answers True. Raises, with no slot changed, DatabaseError,
/// "Subscript out of range" for an ObjNum outside 0 .. 500, and "Overflow" for a number that does
/// not fit.
bool LoadInputData(SharedState& state, Integer tid);

/// Save the open project, its sheet and its rooms, in one transaction: afterwards either the old
/// project is stored or the new one, whole. Where CurTabIndex meanwhile is another project's
/// number, that project is left alone and the next free number becomes CurTabIndex; where this
/// project already has a sheet, that sheet is replaced, so that it never has two. NewSheetFlag
/// becomes False. False, with the cause in DatabaseFailure and nothing else changed, when the
/// database fails. Raises, with nothing changed, "Overflow" past sheet 32767 and "Subscript out of
/// range" for more than 501 rooms.
bool SaveProject(SharedState& state);

/// The steps of SaveProject for a caller that stores more with them: it begins the transaction and
/// commits it. Answers the sheet number used; the shared state is not changed. Raises DatabaseError
/// and as SaveProject.
Integer StoreProject(SharedState& state);

/// What LoadProject found.
struct ProjectLoad {
    enum class Outcome {
        NoSheet, ///< the project has never been saved
        Loaded,
        Failed, ///< it has a sheet but cannot be loaded whole, or the database fails
    };
    Outcome Result = Outcome::Failed;
    /// Why it failed.
    std::string Cause;
    /// Rows that are missing, surplus or odd: one line for each kind, with the room numbers as the
    /// user counts them, from 1.
    std::vector<std::string> Findings;
    /// The stored rooms were entered in metric.
    bool EnteredMetric = false;
};

/// Load the project CurProjName into the shared state. In every case MetricFlag becomes 0 and the
/// room slots are emptied first. Loaded: CurTabIndex, ObjNum, DimScale and the rooms are set and
/// NewSheetFlag is False; rows with an ObjNum outside 0 .. 500 are left out. NoSheet: CurTabIndex
/// is the next free sheet number, NewSheetFlag is True, ObjNum 0. Failed: ObjNum is 0 and no slot
/// is filled. The converted extents are not rebuilt. Raises nothing of its own.
ProjectLoad LoadProject(SharedState& state);

} // namespace tarn
