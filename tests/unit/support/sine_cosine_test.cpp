// Sine and cosine against correctly rounded values. The tables were worked out apart from the code, by the series in exact integer arithmetic of
// 600 binary digits, and rounded once to the nearest double.
#include "support/sine_cosine.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>

namespace btz {
namespace {

struct Known {
  double angle;
  double sine;
  double cosine;
};

/// Angles in degrees times 0.017453292519943295: the quarters are no exact zeros.
constexpr Known wholeDegrees[] = {
    {0x1.0c152382d7365p-2, 0x1.0907dc1930690p-2, 0x1.ee8dd4748bf15p-1},
    {0x1.0c152382d7365p-1, 0x1.fffffffffffffp-2, 0x1.bb67ae8584cabp-1},
    {0x1.921fb54442d18p-1, 0x1.6a09e667f3bccp-1, 0x1.6a09e667f3bcdp-1},
    {0x1.0c152382d7365p+0, 0x1.bb67ae8584caap-1, 0x1.0000000000001p-1},
    {0x1.4f1a6c638d03fp+0, 0x1.ee8dd4748bf15p-1, 0x1.0907dc1930690p-2},
    {0x1.921fb54442d18p+0, 0x1.0000000000000p+0, 0x1.1a62633145c07p-54},
    {0x1.d524fe24f89f2p+0, 0x1.ee8dd4748bf15p-1, -0x1.0907dc1930692p-2},
    {0x1.0c152382d7365p+1, 0x1.bb67ae8584cabp-1, -0x1.ffffffffffffcp-2},
    {0x1.2d97c7f3321d2p+1, 0x1.6a09e667f3bcdp-1, -0x1.6a09e667f3bccp-1},
    {0x1.4f1a6c638d03fp+1, 0x1.fffffffffffffp-2, -0x1.bb67ae8584cabp-1},
    {0x1.709d10d3e7eabp+1, 0x1.0907dc1930695p-2, -0x1.ee8dd4748bf14p-1},
    {0x1.921fb54442d18p+1, 0x1.1a62633145c07p-53, -0x1.0000000000000p+0},
    {0x1.b3a259b49db85p+1, -0x1.0907dc1930691p-2, -0x1.ee8dd4748bf15p-1},
    {0x1.d524fe24f89f2p+1, -0x1.0000000000001p-1, -0x1.bb67ae8584caap-1},
    {0x1.f6a7a2955385ep+1, -0x1.6a09e667f3bccp-1, -0x1.6a09e667f3bcep-1},
    {0x1.0c152382d7365p+2, -0x1.bb67ae8584ca8p-1, -0x1.0000000000004p-1},
    {0x1.1cd675bb04a9cp+2, -0x1.ee8dd4748bf15p-1, -0x1.0907dc193068ep-2},
    {0x1.2d97c7f3321d2p+2, -0x1.0000000000000p+0, -0x1.a79394c9e8a0ap-53},
    {0x1.3e591a2b5f908p+2, -0x1.ee8dd4748bf16p-1, 0x1.0907dc1930688p-2},
    {0x1.4f1a6c638d03fp+2, -0x1.bb67ae8584caap-1, 0x1.0000000000001p-1},
    {0x1.5fdbbe9bba775p+2, -0x1.6a09e667f3bcep-1, 0x1.6a09e667f3bcbp-1},
    {0x1.709d10d3e7eabp+2, -0x1.0000000000004p-1, 0x1.bb67ae8584ca8p-1},
    {0x1.815e630c155e2p+2, -0x1.0907dc193068fp-2, 0x1.ee8dd4748bf15p-1},
    {0x1.921fb54442d18p+2, -0x1.1a62633145c07p-52, 0x1.0000000000000p+0},
    {0x1.1df46a2529d39p-6, 0x1.1df0b2b89dd1ep-6, 0x1.ffec097f5af8ap-1},
    {-0x1.1df46a2529d39p-6, -0x1.1df0b2b89dd1ep-6, 0x1.ffec097f5af8ap-1},
    {0x1.4f1a6c638d03fp-1, 0x1.37af93f9513eap-1, 0x1.963268b572492p-1},
    {0x1.8da7e39bae2a3p+0, 0x1.ffec097f5af8ap-1, 0x1.1df0b2b89dd37p-6},
    {0x1.969786ecd778dp+0, 0x1.ffec097f5af8ap-1, -0x1.1df0b2b89dd14p-6},
    {0x1.8fe3cc6ff87dep+1, 0x1.1df0b2b89dd09p-6, -0x1.ffec097f5af8ap-1},
    {0x1.2eb5bc5d5746fp+2, -0x1.ffec097f5af8ap-1, 0x1.1df0b2b89dcb0p-6},
    {0x1.9190bb0f303cap+3, -0x1.1df0b2b89dc72p-6, 0x1.ffec097f5af8ap-1},
    {-0x1.921fb54442d18p-1, -0x1.6a09e667f3bccp-1, 0x1.6a09e667f3bcdp-1},
    {-0x1.921fb54442d18p+0, -0x1.0000000000000p+0, 0x1.1a62633145c07p-54},
    {-0x1.921fb54442d18p+1, -0x1.1a62633145c07p-53, -0x1.0000000000000p+0},
    {0x1.10b52b8a59178p+14, -0x1.f838b8c81279ep-1, 0x1.63a1a7e0a6e0bp-3},
};

/// Whole numbers very close to a multiple of a quarter turn, where a careless reduction loses all digits.
constexpr Known nearTheAxes[] = {
    {0x1.6300000000000p+8, -0x1.f9bd0307d1de3p-16, -0x1.fffffffc18e4cp-1},
    {0x1.9639000000000p+16, -0x1.40efdf1eb8de7p-16, 0x1.fffffffe6da77p-1},
    {0x1.979c000000000p+16, -0x1.719a47d3fbb00p-17, -0x1.ffffffff7a987p-1},
    {0x1.96ea800000000p+17, 0x1.10457669f1408p-17, -0x1.ffffffffb79b1p-1},
    {0x1.315c400000000p+18, 0x1.855345a874784p-19, 0x1.fffffffff6bfap-1},
    {0x1.9716e00000000p+19, 0x1.366f4e5709850p-19, -0x1.fffffffffa1e4p-1},
    {0x1.17e2800000000p+20, -0x1.3b8fdd45b058fp-21, -0x1.ffffffffff9ecp-1},
    {0x1.04ccbc0000000p+22, -0x1.270da18b197e3p-21, 0x1.ffffffffffab0p-1},
    {0x1.4ac55c0000000p+22, -0x1.4823bba96de72p-25, -0x1.ffffffffffff9p-1},
    {0x1.31b97c4000000p+26, -0x1.fb9755b6590d9p-27, 0x1.fffffffffffffp-1},
    {0x1.3c0fa72000000p+27, -0x1.2960433905818p-27, -0x1.0000000000000p+0},
    {0x1.d4ec654000000p+27, 0x1.a46e24faa7183p-28, -0x1.0000000000000p+0},
    {0x1.887e063000000p+28, 0x1.5ca4c2eec7d5cp-29, 0x1.0000000000000p+0},
    {0x1.fdb91f8000000p+29, 0x1.1f25882f7d09cp-30, -0x1.0000000000000p+0},
    {0x1.6000000000000p+3, -0x1.fffeb762e93ebp-1, 0x1.220ae41ee2fdfp-8},
    {0x1.6000000000000p+4, -0x1.220a29f6eb9f4p-7, -0x1.fffadd8d4acdap-1},
    {-0x1.6300000000000p+8, 0x1.f9bd0307d1de3p-16, -0x1.fffffffc18e4cp-1},
};

/// Where the form of the computation changes.
constexpr Known bounds[] = {
    {0x1.0000000000000p+0, 0x1.aed548f090ceep-1, 0x1.14a280fb5068cp-1},
    {0x1.0000000000000p-1, 0x1.eaee8744b05f0p-2, 0x1.c1528065b7d50p-1},
    {0x1.0000000000000p+1, 0x1.d18f6ead1b446p-1, -0x1.aa22657537205p-2},
    {0x1.8000000000000p+1, 0x1.210386db6d55bp-3, -0x1.fae04be85e5d2p-1},
    {0x1.0624dd2f1a9fcp-10, 0x1.0624da5218a62p-10, 0x1.ffffef390876cp-1},
    {0x1.4f8b588e368f1p-17, 0x1.4f8b588e1e8a2p-17, 0x1.ffffffff920c8p-1},
    {0x1.0000000000000p-27, 0x1.0000000000000p-27, 0x1.0000000000000p+0},
    {0x1.0000000000001p-27, 0x1.0000000000001p-27, 0x1.0000000000000p+0},
    {0x1.0000000000000p-26, 0x1.0000000000000p-26, 0x1.fffffffffffffp-1},
    {0x1.921fb54442d18p-1, 0x1.6a09e667f3bccp-1, 0x1.6a09e667f3bcdp-1},
    {0x1.921fb54442d19p-1, 0x1.6a09e667f3bcdp-1, 0x1.6a09e667f3bccp-1},
    {0x1.921fb54442d18p+0, 0x1.0000000000000p+0, 0x1.1a62633145c07p-54},
    {0x1.921fb54442d18p+1, 0x1.1a62633145c07p-53, -0x1.0000000000000p+0},
    {0x1.921fb54442d18p+2, -0x1.1a62633145c07p-52, 0x1.0000000000000p+0},
    {0x1.2d97c7f3321d2p+1, 0x1.6a09e667f3bcdp-1, -0x1.6a09e667f3bccp-1},
    {0x1.0000000000000p+30, -0x1.3c12353728cafp-1, 0x1.92cb46a920144p-1},
    {-0x1.0000000000000p+30, 0x1.3c12353728cafp-1, 0x1.92cb46a920144p-1},
    {0x1.fffffffffffffp+29, -0x1.3c12385cbf55dp-1, 0x1.92cb4430fba6ap-1},
};

/// Any angles.
constexpr Known anyAngles[] = {
    {0x1.e44d825105660p+12, 0x1.fd1fd5b30a5e8p-1, -0x1.b18202fdb2f2fp-4},
    {0x1.e4578fae6bd8cp+23, 0x1.a929925b055ccp-1, -0x1.1d4600f862988p-1},
    {-0x1.6490573c5b6f7p+9, -0x1.c67b70c8aa53cp-7, -0x1.fff3647004c8fp-1},
    {0x1.bcb9efbf08187p+22, -0x1.b057b3a634b91p-2, 0x1.d0208a24f9c89p-1},
    {0x1.f625157a76d45p-18, 0x1.f625157a62b45p-18, 0x1.ffffffffc270bp-1},
    {-0x1.0cf773a4195b6p+27, 0x1.1fc2190bd59a4p-1, 0x1.a77c0fe73660bp-1},
    {-0x1.4c1123c500afdp-7, -0x1.4c0faf49fe46bp-7, 0x1.fff94511ee9e6p-1},
    {0x1.6537979af93e8p+0, 0x1.f8248dca432e2p-1, 0x1.6569fd12429d6p-3},
    {-0x1.c124a9ee8aceep-8, -0x1.c123c382ba645p-8, 0x1.fffcebff28cb1p-1},
    {0x1.393f5044cf798p-6, 0x1.393a6d992143ap-6, 0x1.ffe80b71b3cefp-1},
    {-0x1.40b4aa181c6f3p+7, 0x1.0ccf73640f25dp-3, -0x1.fb920c4353babp-1},
    {0x1.2485cb5378da2p+2, -0x1.fadde339834e7p-1, -0x1.2147178c33e8dp-3},
    {-0x1.f0cc49c57f3c9p+6, 0x1.fd181e05aba5cp-1, 0x1.b3c48f4f6f604p-4},
    {-0x1.96121906af0fdp-19, -0x1.96121906ac66bp-19, 0x1.fffffffff5ef9p-1},
    {-0x1.e1bcb59cd6abdp+12, 0x1.fd4626c386ef8p-1, -0x1.a61b30f688a03p-4},
    {-0x1.2b84201a7568ep+12, 0x1.f11c5371b8393p-1, -0x1.ea4e5b66d09fdp-3},
    {-0x1.59412ae1b8455p-18, -0x1.59412ae1b1bacp-18, 0x1.ffffffffe2e5fp-1},
    {-0x1.242451c809adcp+14, 0x1.fcf8cc78608eap-1, -0x1.bcd1e0165078bp-4},
    {0x1.eca6f5beb2aaep-13, 0x1.eca6f572ad72dp-13, 0x1.ffffff12fb74bp-1},
    {-0x1.6ba6de21d4b30p-24, -0x1.6ba6de21d4b28p-24, 0x1.fffffffffffe0p-1},
    {0x1.ec8cfe3879527p-10, 0x1.ec8ceb3a2cb27p-10, 0x1.ffffc4c51d375p-1},
    {-0x1.9673015f6e135p+10, 0x1.ffde0d0ef299cp-1, 0x1.74e07185c353cp-6},
    {0x1.26070f1956417p-2, 0x1.2200ffc25f985p-2, 0x1.eb09c22779fdbp-1},
    {-0x1.1f164240493a3p+10, 0x1.fda8835c9e021p-1, 0x1.874d732ce92f0p-4},
};

/// The hardest to round of some three million: sine or cosine lies within a millionth of the last place of the middle between two doubles.
constexpr Known hardToRound[] = {
    {0x1.561305b3a95e3p+4, 0x1.25f06d8469db9p-1, -0x1.a337d15cca122p-1},
    {0x1.07bc5c651f146p-6, 0x1.07b971f67b655p-6, 0x1.ffef04cf00f42p-1},
    {0x1.583074bf77571p-4, 0x1.57c8cc0377c72p-4, 0x1.fe31836e58b7cp-1},
    {-0x1.5846e64c8208ep+1, -0x1.bf2eb83852eb7p-2, -0x1.cc99358599bebp-1},
    {-0x1.f1ae3528b6da8p+14, -0x1.bda442359efb9p-1, -0x1.f82c37616fd70p-2},
    {0x1.e9f5d3171edcdp+13, 0x1.a3ade1ff889e5p-1, -0x1.2547c2d5783afp-1},
    {-0x1.0ec92cb410112p+18, -0x1.fc203094773fdp-1, 0x1.f6ef264eedaa8p-4},
    {0x1.5bb9728a9d63bp-3, 0x1.5a0e5e4ad6c4dp-3, 0x1.f8a347b6ff370p-1},
    {0x1.436340bd774abp+24, 0x1.7d76ff39357aap-1, 0x1.55825f91bae93p-1},
    {0x1.d9a5c8b4e9334p-2, 0x1.c8f01beae9f1bp-2, 0x1.ca32d5b9fe3bcp-1},
    {0x1.e402c5dca9d0ap+3, 0x1.19b61e409d5a0p-1, -0x1.ab87ea608d19dp-1},
    {-0x1.1050f728d0754p+2, 0x1.cb5b8d95a65d2p-1, -0x1.c44252f8d7252p-2},
};

/// Beyond 2^30: the angle is taken modulo the double nearest to two pi.
constexpr Known hugeAngles[] = {
    {0x1.0000000000001p+30, -0x1.3c122dd120c49p-1, 0x1.92cb4c775d67bp-1},
    {0x1.2a05f20000000p+33, -0x1.f334b0b220162p-2, 0x1.bf098f6233866p-1},
    {0x1.c6bf526340000p+49, 0x1.acdc9d9884216p-1, -0x1.17ae632761c3ap-1},
    {-0x1.c6bf526340000p+49, -0x1.acdc9d9884216p-1, -0x1.17ae632761c3ap-1},
    {0x1.0f0cf064dd592p+73, 0x1.bf809b25497f6p-1, 0x1.f189552bfea00p-2},
    {0x1.0000000000000p+100, 0x1.db4edf2976203p-1, -0x1.7ca9e996ace59p-2},
    {0x1.fffffffffffffp+1023, 0x1.18de30098ff11p-1, 0x1.ac15e48c1813ap-1},
    {-0x1.f5aa543c31387p+665, 0x1.febcfd3ced0b8p-1, 0x1.1f61feea76e60p-4},
};

template <std::size_t count>
void ExpectExactly(const Known (&table)[count]) {
  for (const Known& known : table) {
    const SineAndCosine result = ComputeSineAndCosine(known.angle);
    EXPECT_EQ(result.sine, known.sine) << std::hexfloat << known.angle;
    EXPECT_EQ(result.cosine, known.cosine) << std::hexfloat << known.angle;
  }
}

TEST(SineCosine, WholeDegreesAreCorrectlyRounded) { ExpectExactly(wholeDegrees); }

TEST(SineCosine, AnglesNextToTheAxesKeepAllDigits) { ExpectExactly(nearTheAxes); }

TEST(SineCosine, TheBoundsOfTheComputationAreCorrectlyRounded) { ExpectExactly(bounds); }

TEST(SineCosine, AnyAngleIsCorrectlyRounded) { ExpectExactly(anyAngles); }

TEST(SineCosine, ValuesNextToTheMiddleOfTwoDoublesAreCorrectlyRounded) { ExpectExactly(hardToRound); }

TEST(SineCosine, HugeAnglesAreTakenModuloTwoPi) { ExpectExactly(hugeAngles); }

TEST(SineCosine, ZeroKeepsItsSign) {
  const SineAndCosine positive = ComputeSineAndCosine(0.0);
  EXPECT_EQ(positive.sine, 0.0);
  EXPECT_FALSE(std::signbit(positive.sine));
  EXPECT_EQ(positive.cosine, 1.0);
  const SineAndCosine negative = ComputeSineAndCosine(-0.0);
  EXPECT_EQ(negative.sine, 0.0);
  EXPECT_TRUE(std::signbit(negative.sine));
  EXPECT_EQ(negative.cosine, 1.0);
}

TEST(SineCosine, TheSineOfATinyAngleIsTheAngle) {
  for (const double angle : {0x1p-28, 1e-20, std::numeric_limits<double>::min(), std::numeric_limits<double>::denorm_min()}) {
    EXPECT_EQ(ComputeSineAndCosine(angle).sine, angle);
    EXPECT_EQ(ComputeSineAndCosine(-angle).sine, -angle);
    EXPECT_EQ(ComputeSineAndCosine(angle).cosine, 1.0);
  }
}

TEST(SineCosine, WhatIsNoAngleHasNoDirection) {
  const double infinity = std::numeric_limits<double>::infinity();
  for (const double angle : {infinity, -infinity, std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_TRUE(std::isnan(ComputeSineAndCosine(angle).sine));
    EXPECT_TRUE(std::isnan(ComputeSineAndCosine(angle).cosine));
  }
}

TEST(SineCosine, TheSineIsOddAndTheCosineEven) {
  std::mt19937_64 random(7);
  for (int i = 0; i < 20000; ++i) {
    // Bit patterns, so that all sizes of angles come up.
    std::uint64_t bits = random();
    double angle = 0.0;
    static_assert(sizeof(angle) == sizeof(bits));
    std::memcpy(&angle, &bits, sizeof(angle));
    if (!std::isfinite(angle)) {
      continue;
    }
    const SineAndCosine one = ComputeSineAndCosine(angle);
    const SineAndCosine other = ComputeSineAndCosine(-angle);
    ASSERT_EQ(other.sine, -one.sine) << std::hexfloat << angle;
    ASSERT_EQ(other.cosine, one.cosine) << std::hexfloat << angle;
  }
}

TEST(SineCosine, TheSquaresAddUpToOne) {
  std::mt19937_64 random(11);
  std::uniform_real_distribution<double> angles(-1e9, 1e9);
  for (int i = 0; i < 20000; ++i) {
    const SineAndCosine result = ComputeSineAndCosine(angles(random));
    ASSERT_NEAR(result.sine * result.sine + result.cosine * result.cosine, 1.0, 4e-16);
  }
}

}  // namespace
}  // namespace btz
