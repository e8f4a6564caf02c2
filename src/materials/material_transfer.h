// Materials. A `MAT1` goes to the host as it is read; the property transfers make a default material, steel-like, where a property names one
// that no card defined; and names from comments are written over those of the host's materials late.
#pragma once

#include "deck/deck_buffer.h"
#include "host/material_links.h"

namespace btz {

/// The values of a material, in the order of the card's fields and of the host's keys.
enum MaterialValue : std::size_t {
  materialYoungsModulus,
  materialShearModulus,
  materialPoissonsRatio,
  materialDensity,
  materialThermalExpansion,
  materialReferenceTemperature,
  materialDampingCoefficient,
  materialStressTension,
  materialStressCompression,
  materialStressShear,
  materialCoordinateSystem,
  materialValueCount
};

/// Reads the `MAT1` or `MAT1*` card at the cursor and makes its material, named `name`. Without an id above 0 nothing is made.
void ReadMat1Card(CardCursor* cursor, MaterialStore* store, IndexedList* materials, const char* name);

/// Makes a host material and its link in `materials`. `values` and `blankMarks` are indexed by MaterialValue; a mark of 1 hands the value over as
/// not given. An empty `name` gives "Material_<id>". With `useDefaults` the moduli, Poisson's ratio, density and reference temperature of the
/// default material are written into `values` first. Nothing happens for an id below 1; when the host refuses, no link is made.
void CreateMaterial(MaterialStore* store, std::int32_t materialId, double (&values)[materialValueCount],
                    const std::uint8_t (&blankMarks)[materialValueCount], const char* name, IndexedList* materials, bool useDefaults);

/// Makes the default material of an id that no card defined. A MakeDefaultMaterial.
void CreateDefaultMaterial(MaterialStore* store, IndexedList* materials, std::int32_t materialId);

/// Writes the names that comments have for materials into the host's own descriptors.
void RenameMaterials(const IndexedList* materials);

}  // namespace btz
