// Case control: what the lines in front of the bulk data ask for as a whole.
#pragma once

#include <btz/containers.h>

namespace btz {

inline std::int32_t SolNumber = 0;          ///< Solution sequence, 0 if the deck names none.
inline std::int32_t GlobalSdampingId = 0;   ///< Damping table in front of the first subcase.
inline std::int32_t GlobalMfluidId = 0;     ///< Fluid set in front of the first subcase.
inline std::int32_t GlobalMethodId = 0;     ///< Eigenvalue method in front of the first subcase.
inline std::uint8_t SubcaseNeedsCases = 0;  ///< Whether the subcases ask for load cases of their own.

}  // namespace btz
