// The tints, as they are seen by eyes with one kind of cone less: by the matrices of Machado,
// Oliveira and Fernandes (2009) for the whole loss of one kind, on linear light.

#include "screens/Theme.h"
#include "screens/roll/RollTesting.h"
#include "screens/roll/Tints.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

namespace tarn {
namespace {

using namespace tarn::testing;

using Triple = std::array<double, 3>;
using Matrix = std::array<Triple, 3>;

constexpr std::array<Matrix, 4> Eyes{{
    {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}},
    {{{0.152286, 1.052583, -0.204868}, // protanopia
      {0.114503, 0.786281, 0.099216},
      {-0.003882, -0.048116, 1.051998}}},
    {{{0.367322, 0.860646, -0.227968}, // deuteranopia
      {0.280085, 0.672501, 0.047413},
      {-0.011820, 0.042940, 0.968881}}},
    {{{1.255528, -0.076749, -0.178779}, // tritanopia
      {-0.078411, 0.930809, 0.147602},
      {0.004733, 0.691367, 0.303900}}},
}};

/// Two colours that lie this far apart are told from each other at a glance; 2.3 is just noticed
/// when they touch.
constexpr double LeastDistance = 14;
constexpr double LeastContrast = 7;

Triple LinearOf(std::uint32_t rgb) {
    Triple linear{};
    for (std::size_t i = 0; i < 3; ++i) {
        const double value = static_cast<double>(rgb >> (16 - 8 * i) & 0xFF) / 255;
        linear[i] = value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    }
    return linear;
}

Triple SeenBy(const Matrix& eyes, const Triple& linear) {
    Triple seen{};
    for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t j = 0; j < 3; ++j) {
            seen[i] += eyes[i][j] * linear[j];
        }
        seen[i] = std::clamp(seen[i], 0.0, 1.0);
    }
    return seen;
}

/// Lightness and the two opponent colours, in which distances are about as they are seen.
Triple LabOf(const Triple& linear) {
    const auto [r, g, b] = linear;
    const auto root = [](double value) {
        return value > 0.008856 ? std::cbrt(value) : 7.787 * value + 16.0 / 116;
    };
    const double x = root((0.4124564 * r + 0.3575761 * g + 0.1804375 * b) / 0.95047);
    const double y = root(0.2126729 * r + 0.7151522 * g + 0.0721750 * b);
    const double z = root((0.0193339 * r + 0.1191920 * g + 0.9503041 * b) / 1.08883);
    return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

double DistanceOf(std::uint32_t a, std::uint32_t b, const Matrix& eyes) {
    const Triple from = LabOf(SeenBy(eyes, LinearOf(a)));
    const Triple to = LabOf(SeenBy(eyes, LinearOf(b)));
    return std::hypot(from[0] - to[0], from[1] - to[1], from[2] - to[2]);
}

double ContrastOf(std::uint32_t a, std::uint32_t b) {
    const auto luminance = [](std::uint32_t rgb) {
        const auto [red, green, blue] = LinearOf(rgb);
        return 0.2126 * red + 0.7152 * green + 0.0722 * blue + 0.05;
    };
    const double first = luminance(a);
    const double second = luminance(b);
    return std::max(first, second) / std::min(first, second);
}

std::uint32_t RgbOf(const QColor& colour) {
    return colour.rgb() & 0xFFFFFF;
}

std::array<std::uint32_t, TintCount> TintsIn(bool dark) {
    std::array<std::uint32_t, TintCount> tints{};
    std::transform(Tints().begin(), Tints().end(), tints.begin(),
                   [&](const Tint& tint) { return dark ? tint.Dark : tint.Light; });
    return tints;
}

TEST(Tints, AreToldApartByAllEyes) {
    for (const bool dark : {false, true}) {
        const auto tints = TintsIn(dark);
        for (std::size_t eyes = 0; eyes < Eyes.size(); ++eyes) {
            for (std::size_t i = 0; i < TintCount; ++i) {
                for (std::size_t j = 0; j < i; ++j) {
                    EXPECT_GE(DistanceOf(tints[i], tints[j], Eyes[eyes]), LeastDistance)
                        << (dark ? "dark " : "light ") << i << " and " << j << ", eyes " << eyes;
                }
            }
        }
    }
}

TEST(Tints, HaveTextThatStandsOut) {
    for (const bool dark : {false, true}) {
        const Colours& colours = dark ? DarkColours() : LightColours();
        for (const std::uint32_t tint : TintsIn(dark)) {
            EXPECT_GE(ContrastOf(tint, RgbOf(colours.Text)), LeastContrast) << std::hex << tint;
        }
    }
}

/// Pieces below each other, one for each room.
std::vector<ChartPiece> Column(std::size_t count) {
    std::vector<ChartPiece> pieces;
    for (std::size_t i = 0; i < count; ++i) {
        pieces.push_back(PieceAt("A", 0, static_cast<double>(i) * 100, 100, 100));
    }
    return pieces;
}

std::vector<std::size_t> RoomsOneEach(std::size_t count) {
    std::vector<std::size_t> rooms(count);
    for (std::size_t i = 0; i < count; ++i) {
        rooms[i] = i;
    }
    return rooms;
}

TEST(Tints, AreEachRoomsOwnWhileThereAreEnough) {
    auto pieces = Column(TintCount);
    GiveTints(pieces, RoomsOneEach(TintCount));
    std::set<std::size_t> given;
    for (const ChartPiece& piece : pieces) {
        EXPECT_LT(piece.Tint, TintCount);
        given.insert(piece.Tint);
    }
    EXPECT_EQ(given.size(), TintCount);
}

TEST(Tints, AreTheSameForAllPiecesOfARoom) {
    auto pieces = Column(4);
    GiveTints(pieces, {5, 9, 5, 9});
    EXPECT_EQ(pieces[0].Tint, pieces[2].Tint);
    EXPECT_EQ(pieces[1].Tint, pieces[3].Tint);
    EXPECT_NE(pieces[0].Tint, pieces[1].Tint);
}

TEST(Tints, StayThoseOfTheRoomsHoweverTheyLie) {
    constexpr std::size_t Rooms = 30;
    auto pieces = Column(2 * Rooms);
    std::vector<std::size_t> rooms;
    std::vector<std::size_t> turned;
    for (std::size_t room = 0; room < Rooms; ++room) {
        rooms.insert(rooms.end(), 2, 3 * room); // in pieces, and not all rooms of the project
        turned.insert(turned.begin(), 2, 3 * room);
    }
    GiveTints(pieces, rooms);
    auto others = Column(2 * Rooms);
    GiveTints(others, turned);
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        EXPECT_EQ(pieces[i].Tint, others[others.size() - 1 - i].Tint) << "room " << rooms[i];
    }
    std::array<int, TintCount> used{};
    for (const ChartPiece& piece : pieces) {
        ++used[piece.Tint];
    }
    EXPECT_LE(*std::max_element(used.begin(), used.end()),
              *std::min_element(used.begin(), used.end()) + 2)
        << "each is used as often as the others, but for one room";
}

} // namespace
} // namespace tarn
