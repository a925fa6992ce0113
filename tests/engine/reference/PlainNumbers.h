#pragma once

#include "engine/reference/PlainSearch.h"

/// Number steps of the plain search. Each result is rounded once; one that does not fit raises
/// RunTimeError 6.
namespace tarn::reference {

constexpr double Scale = 0.01;      ///< inches per unit of a piece's coordinates
constexpr double Tolerance = 0.005; ///< inches: lengths that differ by less are the same

float ToSingle(double value);
float Plus(float a, float b);
float Minus(float a, float b);

/// Rounded to a whole number of 16 or 32 bits, halves to even.
int ToInteger(double value);
long ToLong(double value);

/// A piece's size in inches: the difference as a Single, times Scale as a Double.
float WidthOf(const PlainPiece& piece);
float LengthOf(const PlainPiece& piece);

/// True when `a` exceeds `b` by less than the tolerance, or not at all.
bool NotBeyond(float a, float b);
/// True when a and b are less than the tolerance apart.
bool Same(float a, float b);

} // namespace tarn::reference
