// Sine and cosine with one result on every platform: the C libraries round the last place differently, and nodes given in cylindrical systems
// must have the same coordinates from every build.
#pragma once

namespace btz {

struct SineAndCosine {
  double sine;
  double cosine;
};

/// Both functions of `angle` in radians, correctly rounded for all angles up to 2^30 in size but for the rare value (one in about 2^40) that lies
/// within the working precision of the middle between two doubles. A larger angle is first reduced by whole multiples of the double nearest
/// to two pi: it has no digits left that would tell a direction. Both are not-a-number for an infinite angle or one that is no number.
SineAndCosine ComputeSineAndCosine(double angle);

}  // namespace btz
