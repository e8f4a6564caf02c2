// Case control: what the lines in front of the bulk data ask for, as a whole and subcase by subcase.
#pragma once

#include <btz/containers.h>

#include "deck/deck_buffer.h"
#include "support/id_set.h"

namespace btz {

inline std::int32_t SolNumber = 0;          ///< Solution sequence, 0 if the deck names none.
inline std::int32_t GlobalSdampingId = 0;   ///< Damping table in front of the first subcase.
inline std::int32_t GlobalMfluidId = 0;     ///< Fluid set in front of the first subcase.
inline std::int32_t GlobalMethodId = 0;     ///< Eigenvalue method in front of the first subcase.
inline std::uint8_t SubcaseNeedsCases = 0;  ///< Whether the subcases ask for load cases of their own.

/// One subcase. Ids are those of the bulk data's sets, 0 where the subcase asks for none. Heap block, held by the run's SubcaseList in the order of
/// the deck.
struct SubcaseRecord {
  std::int32_t loadId;
  std::int32_t spcId;
  std::int32_t mpcId;
  std::int32_t temperatureId;
  std::int32_t dloadId;
  std::int32_t dampingId;
  std::int32_t pretensionId;
  std::int32_t fluidId;
  char title[512];
  char analysisName[64];  ///< "STATICS", "MODES" and the like.
  IdSet loadIds;          ///< Sets that a LOAD card of `loadId` combines.
  IdSet spcIds;           ///< Sets that an SPCADD card of `spcId` combines.
  IdSet mpcIds;           ///< Sets that an MPCADD card of `mpcId` combines.
  IdSet dloadIds;         ///< Sets that a DLOAD card of `dloadId` combines.
  IdSet pretensionIds;    ///< Sets that a PTADD card of `pretensionId` combines.
  std::uint8_t skip;      ///< 1: the subcase makes no load case.
  std::int32_t frequencyId;
  double frequencyStart;
  double frequencyStep;
  double frequencyCount;
  std::int32_t methodId;
};

/// Reads subcases from the SUBCASE line at the cursor on, up to the first line that begins the bulk data; the cursor ends at its start.
/// Required: lines such as `SET 1 = ALL` or `SPCFORCES = ALL`, whose first word begins like a card, end the subcases too.
void ReadSubcases(CardCursor* cursor, PooledList* subcaseList);

/// Frees a SubcaseRecord with its sets.
void FreeSubcaseRecord(void* record);

}  // namespace btz
