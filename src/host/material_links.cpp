#include "host/material_links.h"

namespace btz {

bool ResolveMaterialNumber(const IndexedList* materials, std::int32_t* materialId) {
  const IndexedCell* first = IndexedListFind(materials, *materialId);
  if (first == nullptr) {
    return false;
  }
  *materialId = static_cast<const MaterialLink*>(first->record)->number;
  return true;
}

Material* GetHostMaterial(MaterialStore* store, std::int32_t number) {
  Material* material = nullptr;
  std::int32_t index = 0;
  store->GetMaterial(number, &material, &index);
  return material;
}

Material* GetOrMakeMaterial(const MaterialSource& source, std::int32_t materialId, bool* wasKnown) {
  Material* material = GetHostMaterial(source.store, materialId);
  *wasKnown = material != nullptr;
  if (*wasKnown) {
    return material;
  }
  source.makeDefault(source.store, source.materials, materialId);
  return GetHostMaterial(source.store, materialId);
}

}  // namespace btz
