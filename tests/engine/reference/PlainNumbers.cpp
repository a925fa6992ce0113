#include "engine/reference/PlainNumbers.h"

#include "base/RunTimeError.h"

#include <cfloat>
#include <cmath>

namespace tarn::reference {

namespace {

double HalfToEven(double value) {
    const double below = std::floor(value);
    const double rest = value - below;
    if (rest < 0.5) {
        return below;
    }
    if (rest > 0.5) {
        return below + 1.0;
    }
    return std::fmod(below, 2.0) == 0.0 ? below : below + 1.0;
}

float Inches(float from, float to) {
    return ToSingle(static_cast<double>(Minus(to, from)) * Scale);
}

} // namespace

float ToSingle(double value) {
    if (!(std::fabs(value) <= static_cast<double>(FLT_MAX))) {
        RaiseOverflow();
    }
    return static_cast<float>(value);
}

// A Double holds the sum of two Singles so well that rounding it gives the correct Single sum.
float Plus(float a, float b) {
    return ToSingle(static_cast<double>(a) + static_cast<double>(b));
}

float Minus(float a, float b) {
    return ToSingle(static_cast<double>(a) - static_cast<double>(b));
}

int ToInteger(double value) {
    const double whole = HalfToEven(value);
    if (!(whole >= -32768.0 && whole <= 32767.0)) {
        RaiseOverflow();
    }
    return static_cast<int>(whole);
}

long ToLong(double value) {
    const double whole = HalfToEven(value);
    if (!(whole >= -2147483648.0 && whole <= 2147483647.0)) {
        RaiseOverflow();
    }
    return static_cast<long>(whole);
}

float WidthOf(const PlainPiece& piece) {
    return Inches(piece.x1, piece.x2);
}

float LengthOf(const PlainPiece& piece) {
    return Inches(piece.y1, piece.y2);
}

bool NotBeyond(float a, float b) {
    return static_cast<double>(Minus(a, b)) < Tolerance;
}

bool Same(float a, float b) {
    return std::fabs(static_cast<double>(Minus(a, b))) < Tolerance;
}

} // namespace tarn::reference
