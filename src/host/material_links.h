// Materials by the id of their card. A card's id and the host's number of the material need not agree, so every material that is made gets
// a link between the two, and whoever has an id from the deck looks here first.
#pragma once

#include "host/host_interfaces.h"
#include "support/indexed_list.h"

namespace btz {

/// One material made in the host. Heap block, held by the run's list of materials under its deck id.
struct MaterialLink {
  std::int32_t materialId;  ///< Id of the card.
  std::int32_t number;      ///< The host's number.
  Material* material;
};

/// Makes the material that stands in for one that no card defined, and enters its link; whether it could is seen from the host.
using MakeDefaultMaterial = void (*)(MaterialStore* store, IndexedList* materials, std::int32_t materialId);

/// The materials of a run, as the property transfers need them.
struct MaterialSource {
  MaterialStore* store;
  IndexedList* materials;  ///< MaterialLink by deck id, in order of creation.
  MakeDefaultMaterial makeDefault;
};

/// Replaces `*materialId` by the host's number of the first material with that deck id: true. Without one nothing changes: false.
bool ResolveMaterialNumber(const IndexedList* materials, std::int32_t* materialId);

/// The host's material of a number, or null.
Material* GetHostMaterial(MaterialStore* store, std::int32_t number);

/// The host's material under `materialId`; if there is none, a default material of that id is made and looked up. Null when that failed too.
/// `*wasKnown` tells whether the host had it.
Material* GetOrMakeMaterial(const MaterialSource& source, std::int32_t materialId, bool* wasKnown);

}  // namespace btz
