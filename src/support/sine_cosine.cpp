#include "support/sine_cosine.h"

#include <cmath>

namespace btz {

namespace {

/// Unevaluated sum of two doubles: about 106 binary digits. After T. J. Dekker, "A floating-point technique for extending the available
/// precision", Numerische Mathematik 18 (1971).
struct TwoDoubles {
  double high;
  double low;
};

/// Exact sum of two doubles of which the first is not the smaller in size.
TwoDoubles QuickSum(double a, double b) {
  const double sum = a + b;
  return {sum, b - (sum - a)};
}

/// Exact sum of any two doubles.
TwoDoubles ExactSum(double a, double b) {
  const double sum = a + b;
  const double partOfB = sum - a;
  return {sum, (a - (sum - partOfB)) + (b - partOfB)};
}

/// Exact product of two doubles, by splitting each into halves of 26 digits.
TwoDoubles ExactProduct(double a, double b) {
  constexpr double splitter = 134217729.0;  // 2^27 + 1
  const double wideA = splitter * a;
  const double wideB = splitter * b;
  const double highA = wideA - (wideA - a);
  const double highB = wideB - (wideB - b);
  const double lowA = a - highA;
  const double lowB = b - highB;
  const double product = a * b;
  return {product, ((highA * highB - product) + highA * lowB + lowA * highB) + lowA * lowB};
}

TwoDoubles operator+(const TwoDoubles& a, const TwoDoubles& b) {
  const TwoDoubles high = ExactSum(a.high, b.high);
  const TwoDoubles low = ExactSum(a.low, b.low);
  const TwoDoubles sum = QuickSum(high.high, high.low + low.high);
  return QuickSum(sum.high, sum.low + low.low);
}

TwoDoubles operator-(const TwoDoubles& a) { return {-a.high, -a.low}; }

TwoDoubles operator*(const TwoDoubles& a, const TwoDoubles& b) {
  const TwoDoubles product = ExactProduct(a.high, b.high);
  return QuickSum(product.high, product.low + (a.high * b.low + a.low * b.high));
}

TwoDoubles operator/(const TwoDoubles& a, double b) {
  const double quotient = a.high / b;
  const TwoDoubles product = ExactProduct(quotient, b);
  const double remainder = ((a.high - product.high) - product.low) + a.low;
  return QuickSum(quotient, remainder / b);
}

// A quarter turn, to 159 binary digits in three parts.
constexpr double quarterTurn[] = {1.5707963267948966, 6.123233995736766e-17, -1.4973849048591698e-33};

/// An angle within an eighth of a turn around a whole number of quarter turns.
struct ReducedAngle {
  TwoDoubles rest;
  int quarter;  ///< 0 to 3.
};

ReducedAngle Reduce(double angle) {
  constexpr double largest = 1073741824.0;  // 2^30: the number of quarter turns stays exact in all products.
  if (std::fabs(angle) > largest) {
    angle = std::fmod(angle, 4.0 * quarterTurn[0]);
  }
  const double quarters = std::floor(angle / quarterTurn[0] + 0.5);
  const TwoDoubles first = ExactProduct(quarters, quarterTurn[0]);
  TwoDoubles rest = ExactSum(angle, -first.high);
  rest = rest + TwoDoubles{-first.low, 0.0};
  rest = rest + -ExactProduct(quarters, quarterTurn[1]);
  rest = rest + -ExactProduct(quarters, quarterTurn[2]);
  return {rest, static_cast<int>(static_cast<long long>(quarters) & 3)};
}

/// The series 1 - s/((k+1)(k+2)) (1 - s/((k+3)(k+4)) (1 - ...)) with s the square of the angle, of which k = 0 gives the cosine and k = 1 the
/// sine divided by the angle. Fifteen terms leave less than 2^-110 of an eighth of a turn.
TwoDoubles Series(const TwoDoubles& square, int k) {
  constexpr int terms = 15;
  TwoDoubles sum{1.0, 0.0};
  for (int term = terms; term > 0; --term) {
    const double divisor = static_cast<double>((k + 2 * term - 1) * (k + 2 * term));
    sum = TwoDoubles{1.0, 0.0} + -((square * sum) / divisor);
  }
  return sum;
}

}  // namespace

SineAndCosine ComputeSineAndCosine(double angle) {
  if (angle - angle != 0.0) {
    const double none = angle - angle;
    return {none, none};
  }
  // Below 2^-27 the next term of the sine lies below half of the last place. A zero keeps its sign.
  constexpr double tiny = 7.450580596923828e-9;
  if (std::fabs(angle) < tiny) {
    return {angle, 1.0};
  }
  const ReducedAngle reduced = Reduce(angle);
  const TwoDoubles square = reduced.rest * reduced.rest;
  const double sine = (reduced.rest * Series(square, 1)).high;
  const double cosine = Series(square, 0).high;
  switch (reduced.quarter) {
    case 0:
      return {sine, cosine};
    case 1:
      return {cosine, -sine};
    case 2:
      return {-sine, -cosine};
    default:
      return {-cosine, sine};
  }
}

}  // namespace btz
