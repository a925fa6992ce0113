#include "order/PlainOrderCheck.h"

#include <cmath>
#include <map>
#include <set>
#include <sstream>
#include <vector>

namespace tarn::testing {

namespace {

/// The length and breadth of the room that belongs to a piece, as laid.
struct Sides {
    long long Across;
    long long Along;
};

Sides SidesOf(const Project& project, const OrderPiece& piece, Lay lay) {
    const Room& room = project.Rooms.at(static_cast<std::size_t>(piece.Room - 1));
    return lay == Lay::Down ? Sides{room.Width, room.Length} : Sides{room.Length, room.Width};
}

/// Each cell of each room is covered by one piece and, but for the trim, by no other.
std::string CoverFault(const Project& project, const Order& order, const OrderCandidate& row) {
    std::map<Long, std::vector<int>> cells;
    for (const OrderPiece& piece : row.Pieces) {
        const Sides sides = SidesOf(project, piece, row.Direction);
        auto& room = cells[piece.Room];
        room.resize(static_cast<std::size_t>(sides.Across * sides.Along), 0);
        for (long long y = piece.RoomY;
             y < std::min<long long>(piece.RoomY + piece.Length, sides.Along); ++y) {
            const long long right =
                std::min<long long>(piece.RoomX + row.UsableWidth, sides.Across);
            for (long long x = piece.RoomX;
                 x < std::min<long long>(piece.RoomX + piece.Width, right); ++x) {
                ++room[static_cast<std::size_t>(y * sides.Across + x)];
            }
        }
    }
    for (std::size_t i = 0; i < project.Rooms.size(); ++i) {
        const Room& room = project.Rooms[i];
        if (room.Covering != order.Carpet || room.Width <= 0 || room.Length <= 0) {
            continue;
        }
        const auto found = cells.find(static_cast<Long>(i) + 1);
        if (found == cells.end()) {
            return "room " + std::to_string(i + 1) + " is not laid";
        }
        for (const int count : found->second) {
            if (count != 1) {
                return "room " + std::to_string(i + 1) + " has a place covered " +
                       std::to_string(count) + " times";
            }
        }
    }
    return "";
}

std::string RollFault(const OrderCandidate& row) {
    for (std::size_t i = 0; i < row.Pieces.size(); ++i) {
        const OrderPiece& a = row.Pieces[i];
        if (a.X < 0 || a.Y < 0 || a.X + a.Width > row.UsableWidth || a.Width < 1 || a.Length < 1) {
            return a.Label + " is not on the roll";
        }
        if (a.Y + a.Length > row.Figures->LengthNeeded) {
            return a.Label + " is not on what is needed";
        }
        for (std::size_t j = 0; j < i; ++j) {
            const OrderPiece& b = row.Pieces[j];
            const bool apart = a.X >= b.X + b.Width || b.X >= a.X + a.Width ||
                               a.Y >= b.Y + b.Length || b.Y >= a.Y + a.Length;
            if (!apart) {
                return a.Label + " and " + b.Label + " overlap";
            }
        }
    }
    return "";
}

/// Two pieces match when some k repeats across and some m repeats along lead from one shift to the
/// other: every pair, by trying the k that there can be.
bool Matches(const OrderPiece& a, const OrderPiece& b, const PatternChoice& pattern) {
    const long long across = (a.RoomX - a.X) - (b.RoomX - b.X);
    const long long along = (a.RoomY - a.Y) - (b.RoomY - b.Y);
    const auto fits = [&](long long k) {
        if (pattern.Along == 0) {
            return true;
        }
        const long long twice = 2 * along - (pattern.HalfDrop && k % 2 != 0 ? pattern.Along : 0);
        return twice % (2LL * pattern.Along) == 0;
    };
    if (pattern.Across == 0) {
        return fits(a.Strip - b.Strip);
    }
    for (long long k = -70000 / pattern.Across - 1; k <= 70000 / pattern.Across + 1; ++k) {
        if (k * pattern.Across == across) {
            return fits(k);
        }
    }
    return false;
}

std::string MatchFault(const Order& order, const OrderCandidate& row) {
    for (const OrderPiece& a : row.Pieces) {
        for (const OrderPiece& b : row.Pieces) {
            if (a.Room == b.Room && !Matches(a, b, order.Request.Pattern)) {
                return a.Label + " and " + b.Label + " do not match";
            }
        }
    }
    return "";
}

/// Trims, parts and their least lengths.
std::string PieceFault(const Project& project, const Order& order, const OrderCandidate& row) {
    const OrderRequest& request = order.Request;
    for (const OrderPiece& piece : row.Pieces) {
        const Sides sides = SidesOf(project, piece, row.Direction);
        const long long left = sides.Across - piece.RoomX;
        const long long wide =
            left >= row.UsableWidth
                ? row.UsableWidth
                : std::min<long long>(row.UsableWidth, left + request.TrimAcross);
        if (piece.Width != wide) {
            return piece.Label + " is not as wide as it has to be";
        }
        const bool last = piece.Part == piece.Parts;
        if (last != (piece.RoomY + piece.Length == sides.Along + request.TrimAlong)) {
            return piece.Label + " does not end where it has to";
        }
        const bool divisible =
            wide < row.UsableWidth && (request.JoinRooms || sides.Across > row.UsableWidth);
        if (piece.Parts > 1 && (!divisible || piece.Parts > request.MostParts ||
                                piece.Length < request.ShortestPart)) {
            return piece.Label + " must not be a part like that";
        }
    }
    return "";
}

std::string FigureFault(const Order& order, const OrderCandidate& row) {
    const OrderFigures& figures = *row.Figures;
    const Double drift =
        order.Request.PatternDrift.value_or(order.Request.Pattern.Along > 0 ? 1 : 0);
    long long ordered = 0;
    while (static_cast<Double>(ordered) * 100 <
           static_cast<Double>(figures.LengthNeeded) * (100 + drift) - 1e-6) {
        ++ordered;
    }
    while (ordered % order.Request.Step != 0) {
        ++ordered;
    }
    std::ostringstream text;
    if (figures.Length != ordered) {
        text << "ordered " << figures.Length << ", not " << ordered << "; ";
    }
    if (figures.LeastLength > figures.LengthNeeded || figures.LeastLength < 1) {
        text << "least " << figures.LeastLength << "; ";
    }
    long long needed = 0;
    std::set<std::string> labels;
    for (const OrderPiece& piece : row.Pieces) {
        needed = std::max<long long>(needed, piece.Y + piece.Length);
        labels.insert(piece.Label);
    }
    if (figures.LengthNeeded != needed || labels.size() != row.Pieces.size()) {
        text << "needed " << needed << " with " << labels.size() << " labels";
    }
    return text.str();
}

} // namespace

std::string PlainFaultOf(const Project& project, const Order& order, const OrderCandidate& row) {
    for (const std::string& fault :
         {RollFault(row), PieceFault(project, order, row), CoverFault(project, order, row),
          MatchFault(order, row), FigureFault(order, row)}) {
        if (!fault.empty()) {
            return fault;
        }
    }
    return "";
}

} // namespace tarn::testing
