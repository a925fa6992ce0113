#include "engine/reference/PlainCleanUp.h"

#include "base/RunTimeError.h"
#include "engine/reference/PlainNumbers.h"
#include "engine/reference/PlainPlacement.h"

#include <algorithm>
#include <cstddef>

namespace tarn::reference {

namespace {

bool EndToEnd(const PlainPiece& a, const PlainPlaced& aPlaced, const PlainPiece& b,
              const PlainPlaced& bPlaced) {
    return a.org == b.org && a.x1 == b.x1 && a.x2 == b.x2 && a.y2 == b.y1 &&
           Same(aPlaced.x, bPlaced.x) && Same(End(aPlaced), bPlaced.y);
}

void Join(std::vector<PlainPiece>& rows, std::vector<PlainPlaced>& placed, std::size_t i,
          std::size_t j) {
    rows[i].y2 = rows[j].y2;
    placed[i].l = Minus(End(placed[j]), placed[i].y);
    rows.erase(rows.begin() + static_cast<std::ptrdiff_t>(j));
    placed.erase(placed.begin() + static_cast<std::ptrdiff_t>(j));
}

bool JoinFirstPair(std::vector<PlainPiece>& rows, std::vector<PlainPlaced>& placed) {
    for (std::size_t i = 0; i < rows.size(); ++i) {
        for (std::size_t j = 0; j < rows.size(); ++j) {
            if (j != i && EndToEnd(rows[i], placed[i], rows[j], placed[j])) {
                Join(rows, placed, i, j);
                return true;
            }
        }
    }
    return false;
}

bool Touch(const PlainPlaced& a, const PlainPlaced& b) {
    const bool beside = Same(Right(a), b.x) || Same(Right(b), a.x);
    const bool below = Same(End(a), b.y) || Same(End(b), a.y);
    return (beside && ShareAlong(a, b)) || (below && ShareAcross(a, b));
}

bool TouchesAnything(const std::vector<PlainPlaced>& placed, std::size_t i, float usable) {
    if (Same(placed[i].x, 0) || Same(Right(placed[i]), usable)) {
        return true;
    }
    for (std::size_t j = 0; j < placed.size(); ++j) {
        if (j != i && Touch(placed[i], placed[j])) {
            return true;
        }
    }
    return false;
}

} // namespace

bool TooWide(const PlainPiece& piece, float usable) {
    return !NotBeyond(WidthOf(piece), usable);
}

void CheckLayout(const std::vector<PlainPiece>& rows, const std::vector<PlainPlaced>& placed,
                 float usable) {
    if (placed.size() != rows.size()) {
        RaiseInternal();
    }
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const bool inside = placed[i].x >= 0 && NotBeyond(Right(placed[i]), usable);
        if (!inside && !TooWide(rows[i], usable)) {
            RaiseInternal();
        }
        for (std::size_t j = 0; j < i; ++j) {
            if (ShareAnArea(placed[i], placed[j])) {
                RaiseInternal();
            }
        }
    }
}

void JoinParts(std::vector<PlainPiece>& rows, std::vector<PlainPlaced>& placed) {
    while (JoinFirstPair(rows, placed)) {
    }
}

void ShiftLooseLeft(std::vector<PlainPlaced>& placed, float usable) {
    for (std::size_t i = 0; i < placed.size(); ++i) {
        if (TouchesAnything(placed, i, usable)) {
            continue;
        }
        float edge = 0;
        for (std::size_t j = 0; j < placed.size(); ++j) {
            if (j != i && ShareAlong(placed[i], placed[j]) &&
                NotBeyond(Right(placed[j]), placed[i].x)) {
                edge = std::max(edge, Right(placed[j]));
            }
        }
        placed[i].x = edge;
    }
}

} // namespace tarn::reference
