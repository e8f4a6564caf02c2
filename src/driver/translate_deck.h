// One translation, from call to return.
#pragma once

#include "host/host_interfaces.h"

namespace btz {

/// Result of a run, as the exported function returns it.
enum RunResult : std::int32_t {
  runDone = 0,        ///< The run reached the end.
  runNoNodes = 1,     ///< No path was given, or the deck has no `GRID` card.
  runNoElements = 2,  ///< No element of any counted family was read.
  runNoDeck = -5      ///< The file can't be opened or is empty, or holds no `GRID`, element or include line.
};

/// Translates the deck at `deckPath` (UTF-8) into the host's objects. The arguments are those of the exported function, but with the boundary
/// store in front of the material store. Not reentrant: the process-wide tables serve one run at a time.
std::int32_t TranslateDeck(const char* deckPath, void* reserved, BoundaryStore* boundaryStore, MaterialStore* materialStore,
                           HostProject* project, CurveStore* curveStore, double splitFaceValue, std::int32_t earlyTopology,
                           std::int32_t thicknessPrecision, std::int32_t targetSolver, GroupStore* groupStore, std::uint8_t repairMesh,
                           std::uint8_t splitFaceRepair);

}  // namespace btz
