// The few operations on vectors and rotations that coordinate systems and line elements share. All numbers are in deck units. The order of
// additions is part of the result: other code compares directions exactly.
#pragma once

#include <array>

namespace btz {

using Vector = std::array<double, 3>;

/// Three rows of three; column j is the unit vector of local axis j.
using Rotation = std::array<double, 9>;

inline Vector VectorAt(const double* coordinates) { return {coordinates[0], coordinates[1], coordinates[2]}; }

inline Vector operator-(const Vector& a, const Vector& b) { return {a[0] - b[0], a[1] - b[1], a[2] - b[2]}; }

Vector Cross(const Vector& a, const Vector& b);

/// Divides by the length; a vector whose squared length or length is below the smallest normal double, infinite or not a number stays.
Vector NormaliseIfFinite(const Vector& v);

/// Puts the axes, each normalised, into the columns of the rotation, and the origin into the translation.
void BuildRotation(const Vector& origin, const Vector& axisX, const Vector& axisY, const Vector& axisZ, Rotation* rotation,
                   Vector* translation);

/// rotation * point + translation.
Vector LocalToGlobal(const Vector& point, const Rotation& rotation, const Vector& translation);

/// (r, angle in degrees, z) to (x, y, z).
Vector CylindricalToRectangular(const Vector& point);

/// Cross product of p1 - p0 and p2 - p0, made unit length when that is above the smallest normal double.
Vector TriangleNormal(const Vector& p0, const Vector& p1, const Vector& p2);

}  // namespace btz
