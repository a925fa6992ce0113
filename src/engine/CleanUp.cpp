#include "engine/CleanUp.h"

#include "base/Lengths.h"
#include "base/RunTimeError.h"
#include "base/Words.h"
#include "engine/PieceGeometry.h"

#include <cmath>

namespace tarn {

namespace {

/// Whether two edges are the same line: at most the length tolerance apart.
bool SameEdge(Single a, Single b) {
    return IsWithinTolerance(std::abs(a - b));
}

/// Whether an extent (inches) is more than the length tolerance.
bool IsExtent(Single extent) {
    return !IsWithinTolerance(extent);
}

/// Whether part `b` continues part `a` of the same piece, both in the piece and on the roll.
bool Continues(const Placed& a, const Placed& b) {
    return a.Part.Number == b.Part.Number && a.Part.X1 == b.Part.X1 && a.Part.X2 == b.Part.X2 &&
           a.Part.Y2 == b.Part.Y1 && SameEdge(a.X, b.X) && SameEdge(a.Y + a.Length, b.Y);
}

/// The number of the first part that continues part `i`; the number of parts when none does.
std::size_t FirstContinuation(const std::vector<Placed>& layout, std::size_t i) {
    std::size_t j = 0;
    while (j < layout.size() && (j == i || !Continues(layout[i], layout[j]))) {
        ++j;
    }
    return j;
}

/// Join part `b` to part `a`; the end of the strip does not move.
void Join(Placed& a, const Placed& b) {
    a.Part.Y2 = b.Part.Y2;
    const Single end = b.Y + b.Length;
    a.Length = end - a.Y;
}

bool Touch(const Box& a, const Box& b) {
    const bool beside = SameEdge(a.X2, b.X1) || SameEdge(b.X2, a.X1);
    const bool behind = SameEdge(a.Y2, b.Y1) || SameEdge(b.Y2, a.Y1);
    return (beside && IsExtent(CommonLength(a, b))) || (behind && IsExtent(CommonWidth(a, b)));
}

bool TouchesAnything(const std::vector<Placed>& layout, std::size_t i, Single rollWidth) {
    const Box piece = BoxOf(layout[i]);
    if (SameEdge(piece.X1, 0) || SameEdge(piece.X2, rollWidth)) {
        return true;
    }
    for (std::size_t j = 0; j < layout.size(); ++j) {
        if (j != i && Touch(piece, BoxOf(layout[j]))) {
            return true;
        }
    }
    return false;
}

/// The nearest right edge to the left of piece `i` along its extent; the roll's edge without one.
Single EdgeToTheLeft(const std::vector<Placed>& layout, std::size_t i) {
    const Box piece = BoxOf(layout[i]);
    Single edge = 0;
    for (std::size_t j = 0; j < layout.size(); ++j) {
        const Box other = BoxOf(layout[j]);
        if (j != i && IsExtent(CommonLength(piece, other)) &&
            IsWithinTolerance(other.X2 - piece.X1) && other.X2 > edge) {
            edge = other.X2;
        }
    }
    return edge;
}

} // namespace

void CheckLayout(const std::vector<Placed>& layout, Single rollWidth) {
    bool sound = true;
    for (std::size_t i = 0; sound && i < layout.size(); ++i) {
        const Box piece = BoxOf(layout[i]);
        const bool tooWide = IsExtent(layout[i].Width - rollWidth);
        sound =
            piece.X1 >= 0 && piece.Y1 >= 0 && (tooWide || IsWithinTolerance(piece.X2 - rollWidth));
        for (std::size_t j = 0; sound && j < i; ++j) {
            sound = !Overlaps(piece, BoxOf(layout[j]));
        }
    }
    if (!sound) {
        RaiseInternal(Words("The layout failed its own check and was discarded."));
    }
}

void JoinParts(std::vector<Placed>& layout) {
    std::size_t i = 0;
    while (i < layout.size()) {
        const std::size_t j = FirstContinuation(layout, i);
        if (j == layout.size()) {
            ++i;
            continue;
        }
        Join(layout[i], layout[j]);
        layout.erase(layout.begin() + static_cast<std::ptrdiff_t>(j));
        // A join changes no piece's beginning, so those before i still have nothing to join; only
        // part i itself is looked at again, one place further up if j stood before it.
        if (j < i) {
            --i;
        }
    }
}

void ShiftLooseLeft(std::vector<Placed>& layout, Single rollWidth) {
    for (std::size_t i = 0; i < layout.size(); ++i) {
        if (!TouchesAnything(layout, i, rollWidth)) {
            layout[i].X = EdgeToTheLeft(layout, i);
        }
    }
}

} // namespace tarn
