#include "base/RunTimeError.h"
#include "engine/PieceGeometry.h"

#include <gtest/gtest.h>

#include <limits>

namespace tarn {
namespace {

TEST(SizeOf, TurnsCoordinatesIntoInches) {
    EXPECT_EQ(SizeOf({100, 3650, 0, 12000}, 0.01), (PieceSize{35.5F, 120.0F}));
    const PieceSize size = SizeOf({0, 1, 0, 33333}, 0.01);
    EXPECT_EQ(size.Width, static_cast<Single>(1.0F * 0.01));
    EXPECT_EQ(size.Length, static_cast<Single>(static_cast<double>(33333.0F) * 0.01));
}

TEST(SizeBetween, ASizeThatIsNotFiniteIsAnOverflow) {
    constexpr Single Largest = std::numeric_limits<Single>::max();
    EXPECT_THROW(SizeBetween(-Largest, Largest, 0.01), RunTimeError);
}

TEST(Transposed, ExchangesTheEdgesWithoutRounding) {
    EXPECT_EQ(Transposed({0.25F, 150.5F, 0, 2000, 3, false}),
              (Piece{0, 2000, 0.25F, 150.5F, 3, false}));
}

} // namespace
} // namespace tarn
