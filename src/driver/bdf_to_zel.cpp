#include <btz/bdf_to_zel.h>

#include "driver/translate_deck.h"

extern "C" BTZ_EXPORT std::int32_t BdfToZel_DLL(const char* deckPath, void* reserved, btz::MaterialStore* materialStore,
                                                btz::BoundaryStore* boundaryStore, btz::HostProject* project, btz::CurveStore* curveStore,
                                                double splitFaceValue, std::int32_t earlyTopology, std::int32_t thicknessPrecision,
                                                std::int32_t targetSolver, btz::GroupStore* groupStore, std::uint8_t repairMesh,
                                                std::uint8_t splitFaceRepair) {
  return btz::TranslateDeck(deckPath, reserved, boundaryStore, materialStore, project, curveStore, splitFaceValue, earlyTopology,
                            thicknessPrecision, targetSolver, groupStore, repairMesh, splitFaceRepair);
}
