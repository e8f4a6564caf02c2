#include "properties/solid_property.h"

#include "properties/property_records.h"
#include "properties/property_transfer.h"

namespace btz {

namespace {

struct SolidTransfer {
  MeshPart* part;
  const MaterialSource& source;
  std::int32_t partId;
};

/// A solid property has no values of its own. False when the host refused it.
bool TransferSolid(const PsolidRecord& record, Material* material, const SolidTransfer& transfer) {
  Property* property = CreateProperty(transfer.source.store, transfer.partId);
  if (property == nullptr) {
    return false;
  }
  DescribeProperty(property, "Solid", "Isotropic", material, 0);
  NamedValues none;
  HandOverValues(property, none, 0, transfer.part);
  NameProperty(property, record.name, "Property", record.propertyId, transfer.partId);
  return true;
}

void AddGasketValues(NamedValues& values, const PgaskRecord& record, MaterialStore* store) {
  Material* membrane = record.membraneMaterialId > 0 ? GetHostMaterial(store, record.membraneMaterialId) : nullptr;
  if (membrane != nullptr) {
    values.AddObject("Membrane_Property_Material", membrane);
  }
  values.AddReal("Initial_Gasket_Thickness", record.thickness, record.thicknessPresent == 0);
  values.AddReal("Initial_Gap", record.gap, record.gapPresent == 0);
  values.AddReal("Initial_Void", record.voidValue, record.voidPresent == 0);
  values.AddReal("Leakage_Pressure", record.leakagePressure, record.leakagePressurePresent == 0);
  values.AddFlag("Stabilization_Stiffness", record.stabilizationOn != 0);
}

/// False when the host refused the property.
bool TransferGasket(const PgaskRecord& record, Material* material, const SolidTransfer& transfer) {
  Property* property = CreateProperty(transfer.source.store, transfer.partId);
  if (property == nullptr) {
    return false;
  }
  DescribeProperty(property, "Solid", "Gasket", material, 0);
  NamedValues values;
  AddGasketValues(values, record, transfer.source.store);
  HandOverValues(property, values, 0, transfer.part);
  // Required: the underscore, which the names of the other properties lack.
  NameProperty(property, record.name, "Property_", record.propertyId, transfer.partId);
  return true;
}

/// Whether no gasket is to be tried any more: a solid property was made, or the host refused one.
bool TransferSolids(const IndexedList* psolidList, const SolidTransfer& transfer) {
  bool solidMade = false;
  MaterialAtHand atHand;
  for (const IndexedCell* cell = IndexedListFind(psolidList, transfer.partId); cell != nullptr; cell = cell->nextOfId) {
    auto* record = static_cast<PsolidRecord*>(cell->record);
    if (!FindMaterialOfRecord(transfer.source, &record->materialId, &atHand)) {
      continue;
    }
    if (!TransferSolid(*record, atHand.material, transfer)) {
      return true;
    }
    solidMade = true;
  }
  return solidMade;
}

}  // namespace

void CreateSolidOrGasketProperty(MeshPart* part, const MaterialSource& source, const IndexedList* psolidList, const IndexedList* pgaskList,
                                 std::int32_t partId) {
  const SolidTransfer transfer{part, source, partId};
  if (TransferSolids(psolidList, transfer)) {
    return;
  }
  for (const IndexedCell* cell = IndexedListFind(pgaskList, partId); cell != nullptr; cell = cell->nextOfId) {
    auto* record = static_cast<PgaskRecord*>(cell->record);
    MaterialAtHand atHand;
    if (!FindMaterialOfRecord(source, &record->materialId, &atHand)) {
      continue;
    }
    if (!TransferGasket(*record, atHand.material, transfer)) {
      return;
    }
  }
}

}  // namespace btz
