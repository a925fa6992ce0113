#pragma once

#include "engine/reference/PlainSearch.h"

#include <gtest/gtest.h>

#include <ostream>
#include <vector>

// What the tests of the plain search share: exact comparison and readable failures.
namespace tarn::reference {

inline void PrintTo(const PlainPlaced& p, std::ostream* out) {
    *out << '(' << p.x << ", " << p.y << ") " << p.w << " x " << p.l;
}

inline bool operator==(const PlainPlaced& a, const PlainPlaced& b) {
    return a.x == b.x && a.y == b.y && a.w == b.w && a.l == b.l;
}

inline void PrintTo(const PlainPiece& p, std::ostream* out) {
    *out << p.org << ": " << p.x1 << " .. " << p.x2 << ", " << p.y1 << " .. " << p.y2 << " divide "
         << p.divide << " order " << p.order;
}

inline bool operator==(const PlainPiece& a, const PlainPiece& b) {
    return a.x1 == b.x1 && a.x2 == b.x2 && a.y1 == b.y1 && a.y2 == b.y2 && a.org == b.org &&
           a.divide == b.divide && a.order == b.order;
}

using Layout = std::vector<PlainPlaced>;
using Pieces = std::vector<PlainPiece>;
using Numbers = std::vector<int>;

inline void ExpectBest(const PlainResult& result, int power, long length) {
    EXPECT_EQ(result.bestPower, power);
    EXPECT_EQ(result.bestLength, length);
}

} // namespace tarn::reference
