#pragma once

// What the tests of the engine share: jobs and layouts by sizes in inches.

#include "engine/Search.h"

#include <initializer_list>
#include <ostream>
#include <random>

namespace tarn::testing {

/// A whole number 0 .. `bound` - 1, the same for equal seeds with every standard library.
inline int Below(std::mt19937& random, int bound) {
    return static_cast<int>(random() % static_cast<unsigned>(bound));
}

/// A place on the roll, inches.
struct Point {
    Single X, Y;
    bool operator==(const Point&) const = default;
};

inline void PrintTo(const Point& point, std::ostream* out) {
    *out << "(" << point.X << ", " << point.Y << ")";
}

/// Extents of a piece along its X and its Y, inches.
struct Size {
    double Wid;
    double Len;
};

/// A divisible piece of that size at (0, 0), in coordinate units.
inline Piece MakePiece(Size size, Integer number = 0) {
    return {0, static_cast<Single>(size.Wid * 100), 0, static_cast<Single>(size.Len * 100), number};
}

inline void AddPiece(SearchJob& job, Size size) {
    job.Pieces.push_back(MakePiece(size, static_cast<Integer>(job.Pieces.size())));
}

/// Those pieces on a roll of that width, down lay, not to be divided.
inline SearchJob MakeJob(Single rollWidth, std::initializer_list<Size> pieces = {}) {
    SearchJob job;
    job.RollWidth = rollWidth;
    job.MostParts = 1;
    job.MinCut = 300;
    for (const Size& size : pieces) {
        AddPiece(job, size);
    }
    return job;
}

/// The job's pieces may be divided.
inline SearchJob Divisible(SearchJob job, Integer mostParts, Integer minCut = 300) {
    job.MostParts = mostParts;
    job.MinCut = minCut;
    return job;
}

inline SearchResult Searched(const SearchJob& job) {
    SearchObserver nobody;
    return Search(job, nobody);
}

/// A piece of that number and size, inches, that lies at (x, y).
inline Placed PlacedAt(Single x, Single y, Size size, Integer number = 0) {
    return {MakePiece(size, number), x, y, static_cast<Single>(size.Wid),
            static_cast<Single>(size.Len)};
}

} // namespace tarn::testing
