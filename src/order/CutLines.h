// The list by which a roll is cut, line by line.

#pragma once

#include "order/Order.h"
#include "project/Project.h"

#include <string>
#include <vector>

namespace tarn {

/// One piece of the list, in words. Lengths are written as WholeLengthText has them.
struct CutLine {
    std::string Label;
    std::string From;   ///< along the roll, from its start
    std::string To;     ///< the same
    std::string Across; ///< from the usable edge
    std::string Size;   ///< across X along
    std::string Room;   ///< its number and remark; its place in the project without either
    std::string Which;  ///< "drop 1 of 2", "fill 2 of 2", "part 2 of 3"; empty for a whole room
    std::string Match;  ///< where it begins in the pattern; empty where nothing has to match
};

/// How a room is told on lists and pieces: its number and remark, or "room 3" without either.
std::string RoomName(const Project& project, const OrderPiece& piece);

/// The lines of a row of the comparison, in cutting order. Where the pieces of a room match each
/// other along the roll, each but the first on the roll says how far behind that one it begins: the
/// pattern of a real carpet drifts, so that it is cut by the pattern and not by the tape.
std::vector<CutLine> CutLines(const Project& project, const OrderRequest& request,
                              const OrderCandidate& candidate);

} // namespace tarn
