#include "materials/material_transfer.h"

#include <cstring>
#include <iterator>

#include "deck/name_comments.h"
#include "deck/position_walk.h"
#include "host/named_values.h"
#include "support/block_pool.h"
#include "support/text.h"

namespace btz {

namespace {

/// Keys by MaterialValue. Required: "Mat_cord_Sys" is spelled so.
constexpr const char* materialValueKeys[materialValueCount] = {
    "Youngs_modulus",      "Shear_modulus",  "Poissons_ratio",     "Density",      "Thermal_Expansion", "Reference_Temperature",
    "Damping_coefficient", "Stress_Tension", "Stress_Compression", "Stress_Shear", "Mat_cord_Sys"};

void SetDefaults(double (&values)[materialValueCount]) {
  values[materialYoungsModulus] = 208000.0;
  values[materialShearModulus] = 79000.0;
  values[materialPoissonsRatio] = 0.3;
  values[materialDensity] = 7800.0;
  values[materialReferenceTemperature] = 20.0;
}

void AddMaterialValues(NamedValues& list, const double (&values)[materialValueCount],
                       const std::uint8_t (&blankMarks)[materialValueCount]) {
  for (std::size_t i = 0; i < materialCoordinateSystem; ++i) {
    list.AddReal(materialValueKeys[i], values[i], blankMarks[i] != 0);
  }
  list.AddInteger(materialValueKeys[materialCoordinateSystem], values[materialCoordinateSystem], blankMarks[materialCoordinateSystem] != 0);
}

/// Name of a material. Required: a time stamp in the comment of a writing program is no name.
void FormatMaterialName(wchar_t* dest, std::size_t capacity, const char* name, std::int32_t materialId) {
  if (*name == 0 || std::strstr(name, "Time:") != nullptr) {
    FormatNumbered(dest, capacity, "Material_", materialId);
  } else {
    Widen(dest, capacity, name);
  }
}

void Describe(Material* material, const char* name, std::int32_t materialId) {
  MaterialDescriptor descriptor{};
  FormatMaterialName(descriptor.name, std::size(descriptor.name), name, materialId);
  Widen(descriptor.symmetry, std::size(descriptor.symmetry), "Isotropic");
  Widen(descriptor.behaviour, std::size(descriptor.behaviour), "Elastic");
  Widen(descriptor.family, std::size(descriptor.family), "Metal");
  material->SetDescriptor(&descriptor);
}

void AddLink(IndexedList* materials, std::int32_t materialId, Material* material) {
  auto* link = static_cast<MaterialLink*>(AllocateZeroed(sizeof(MaterialLink)));
  if (link == nullptr) {
    return;
  }
  link->materialId = materialId;
  link->material = material;
  material->GetNumber(&link->number);
  IndexedListAppend(materials, materialId, link);
}

}  // namespace

void ReadMat1Card(CardCursor* cursor, MaterialStore* store, IndexedList* materials, const char* name) {
  const std::int32_t width = FieldWidthFor(*cursor, "MAT1*");
  Advance(cursor, 8);
  std::int32_t materialId = 0;
  ReadIdField(width, cursor, &materialId, false);
  double values[materialValueCount] = {};
  std::uint8_t blankMarks[materialValueCount];
  std::memset(blankMarks, 1, sizeof(blankMarks));
  WalkPositions(cursor, width, values, blankMarks, materialValueCount);
  CreateMaterial(store, materialId, values, blankMarks, name, materials, false);
}

void CreateMaterial(MaterialStore* store, std::int32_t materialId, double (&values)[materialValueCount],
                    const std::uint8_t (&blankMarks)[materialValueCount], const char* name, IndexedList* materials, bool useDefaults) {
  if (store == nullptr || materialId < 1) {
    return;
  }
  if (useDefaults) {
    SetDefaults(values);
  }
  Material* material = nullptr;
  if (store->CreateMaterial(&material, materialId) != 0 || material == nullptr) {
    return;
  }
  Describe(material, name, materialId);
  NamedValues list;
  AddMaterialValues(list, values, blankMarks);
  material->SetValues(list.List());
  material->SetUsageFlag(0);
  AddLink(materials, materialId, material);
}

void CreateDefaultMaterial(MaterialStore* store, IndexedList* materials, std::int32_t materialId) {
  double values[materialValueCount] = {};
  const std::uint8_t blankMarks[materialValueCount] = {};
  CreateMaterial(store, materialId, values, blankMarks, "", materials, true);
}

void RenameMaterials(const IndexedList* materials) {
  WalkIndexedList<MaterialLink>(materials, [](const MaterialLink* link) {
    const NameRecord* comment = FindName(&MaterialCommentTable, link->materialId);
    if (comment == nullptr) {
      return;
    }
    MaterialDescriptor* descriptor = nullptr;
    link->material->GetDescriptor(&descriptor);
    if (descriptor != nullptr) {
      Widen(descriptor->name, std::size(descriptor->name), comment->name);
    }
  });
}

}  // namespace btz
