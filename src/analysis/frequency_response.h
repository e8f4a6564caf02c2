// Frequency response and eigenvalue extraction: `RLOAD1`, `RLOAD2`, `DAREA`, `EIGRL` and `EIGRA`.
#pragma once

#include <btz/containers.h>

namespace btz {

/// How eigenvalues are extracted. Heap block, held by EigrTable.
struct EigrRecord {
  std::int32_t setId;
  std::int32_t methodKind;     ///< 0 for EIGRL, 1 for EIGRA.
  std::int32_t modeCount;      ///< ND.
  std::int32_t normalization;  ///< 0 none, 1 MASS, 2 MAX.
  double lowFrequency;         ///< V1.
  double highFrequency;        ///< V2.
  std::int32_t lowPresent;     ///< 0 when the field was blank; so the next two.
  std::int32_t highPresent;
  std::int32_t countPresent;
};

inline HashTable RloadTable;  ///< Dynamic loads by set id.
inline HashTable DareaTable;  ///< Excited nodes by set id.
inline HashTable EigrTable;   ///< EigrRecord by set id.

}  // namespace btz
