#include "mesh/vectors.h"

#include <cmath>
#include <limits>

#include "support/sine_cosine.h"

namespace btz {

namespace {

constexpr double smallest = std::numeric_limits<double>::min();
constexpr double largest = std::numeric_limits<double>::max();
constexpr double radiansPerDegree = 0.017453292519943295;

double SquaredLength(const Vector& v) { return v[0] * v[0] + v[1] * v[1] + v[2] * v[2]; }

Vector Divide(const Vector& v, double divisor) { return {v[0] / divisor, v[1] / divisor, v[2] / divisor}; }

}  // namespace

Vector Cross(const Vector& a, const Vector& b) { return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]}; }

Vector NormaliseIfFinite(const Vector& v) {
  const double squared = SquaredLength(v);
  if (!(squared >= smallest && squared <= largest)) {
    return v;
  }
  const double length = std::sqrt(squared);
  return length < smallest ? v : Divide(v, length);
}

void BuildRotation(const Vector& origin, const Vector& axisX, const Vector& axisY, const Vector& axisZ, Rotation* rotation,
                   Vector* translation) {
  const Vector x = NormaliseIfFinite(axisX);
  const Vector y = NormaliseIfFinite(axisY);
  const Vector z = NormaliseIfFinite(axisZ);
  *rotation = {x[0], y[0], z[0], x[1], y[1], z[1], x[2], y[2], z[2]};
  *translation = origin;
}

Vector LocalToGlobal(const Vector& point, const Rotation& rotation, const Vector& translation) {
  Vector moved;
  for (std::size_t row = 0; row < 3; ++row) {
    const double* r = &rotation[3 * row];
    moved[row] = r[0] * point[0] + r[1] * point[1] + r[2] * point[2] + translation[row];
  }
  return moved;
}

Vector CylindricalToRectangular(const Vector& point) {
  const SineAndCosine direction = ComputeSineAndCosine(point[1] * radiansPerDegree);
  return {direction.cosine * point[0], direction.sine * point[0], point[2]};
}

Vector TriangleNormal(const Vector& p0, const Vector& p1, const Vector& p2) {
  const Vector normal = Cross(p1 - p0, p2 - p0);
  const double length = std::sqrt(SquaredLength(normal));
  return length > smallest ? Divide(normal, length) : normal;
}

}  // namespace btz
