// What the property transfers share: the host property with its class and material, its parts, and its name. A transfer turns the records of
// a part's id into host properties, one each. All failures are silent: the part then has no property.
#pragma once

#include "host/material_links.h"
#include "host/named_values.h"

namespace btz {

/// A new property with the part id as id, or null when the host refused it: then the transfer of this part ends.
Property* CreateProperty(MaterialStore* store, std::int32_t partId);

/// Tells the property its class ("Shell"), the class of its material ("Isotropic"), the material and the number of its descriptor.
void DescribeProperty(Property* property, const char* propertyClass, const char* materialClass, Material* material, std::int32_t number);

/// Hands the values over, with the linked index and the one part that bears the property.
void HandOverValues(Property* property, NamedValues& values, std::int32_t linkedIndex, MeshPart* part);

/// Names the property: `recordName`, or `defaultPrefix` and the property id when that is empty. A PROP comment for the part wins over both.
void NameProperty(Property* property, const char* recordName, const char* defaultPrefix, std::int32_t propertyId, std::int32_t partId);

/// The material that a transfer has at hand, from record to record.
struct MaterialAtHand {
  Material* material = nullptr;
  bool isFetched = false;  ///< The host knew the last material by an id that has no link: a material with a link is not looked up then.
};

/// Finds the material of a record whose `*materialId` has a link or is above 0; the id becomes the host's number when it has a link. False when
/// it has neither: such a record gets no property.
/// Required: while `atHand->isFetched`, a record whose id has a link goes on with the material at hand.
bool FindMaterialOfRecord(const MaterialSource& source, std::int32_t* materialId, MaterialAtHand* atHand);

}  // namespace btz
