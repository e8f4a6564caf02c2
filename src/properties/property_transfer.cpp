#include "properties/property_transfer.h"

#include <iterator>

#include "deck/name_comments.h"
#include "support/pooled_list.h"
#include "support/text.h"

namespace btz {

Property* CreateProperty(MaterialStore* store, std::int32_t partId) {
  Property* property = nullptr;
  return store->CreateProperty(&property, partId) == 0 ? property : nullptr;
}

void DescribeProperty(Property* property, const char* propertyClass, const char* materialClass, Material* material, std::int32_t number) {
  PropertyDescriptor descriptor{};
  descriptor.number = number;
  descriptor.material = material;
  Widen(descriptor.propertyClass, std::size(descriptor.propertyClass), propertyClass);
  Widen(descriptor.materialClass, std::size(descriptor.materialClass), materialClass);
  property->SetDescriptor(&descriptor);
}

void HandOverValues(Property* property, NamedValues& values, std::int32_t linkedIndex, MeshPart* part) {
  property->SetValues(values.List());
  property->SetLinkedIndex(linkedIndex);
  ListCellPool cells;
  ListCellPoolInit(&cells);
  PooledList parts;
  ListInit(&parts, &cells);
  ListAppend(&parts, part);
  property->SetParts(&parts);
  ListCellPoolReset(&cells);
}

void NameProperty(Property* property, const char* recordName, const char* defaultPrefix, std::int32_t propertyId, std::int32_t partId) {
  wchar_t name[nameCapacity];
  if (*recordName != 0) {
    Widen(name, nameCapacity, recordName);
  } else {
    FormatNumbered(name, nameCapacity, defaultPrefix, propertyId);
  }
  property->SetName(name);
  const NameRecord* comment = FindName(&PropertyCommentTable, partId);
  if (comment != nullptr) {
    Widen(name, nameCapacity, comment->name);
    property->SetName(name);
  }
}

bool FindMaterialOfRecord(const MaterialSource& source, std::int32_t* materialId, MaterialAtHand* atHand) {
  if (ResolveMaterialNumber(source.materials, materialId)) {
    if (!atHand->isFetched) {
      atHand->material = GetHostMaterial(source.store, *materialId);
    }
    return true;
  }
  if (*materialId < 1) {
    return false;
  }
  atHand->material = GetOrMakeMaterial(source, *materialId, &atHand->isFetched);
  return true;
}

}  // namespace btz
