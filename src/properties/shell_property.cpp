#include "properties/shell_property.h"

#include <iterator>

#include "properties/property_records.h"
#include "properties/property_transfer.h"
#include "support/decimal_text.h"
#include "support/text.h"

namespace btz {

namespace {

constexpr std::int32_t mostDecimals = 6;

/// What the transfer of one part keeps from record to record.
struct ShellTransfer {
  MeshPart* part;
  const MaterialSource& source;
  std::int32_t partId;
  std::int32_t thicknessPrecision;
  bool isReduced;
  std::int32_t linkedIndex = 0;  ///< Index of the last further material that the host knew. Required: it is never reset.
};

/// A further material of the card, looked up by the id as it stands: neither links nor defaults count for it.
Material* FindFurtherMaterial(ShellTransfer* transfer, std::int32_t materialId) {
  Material* material = nullptr;
  transfer->source.store->GetMaterial(materialId, &material, &transfer->linkedIndex);
  return material;
}

/// Writes the thickness with the decimals of the precision. Required: a precision above 6 leaves the text empty, which reads back as 0.0.
void FormatThickness(char* text, double thickness, std::int32_t precision) {
  text[0] = 0;
  if (precision <= mostDecimals) {
    FormatDecimals(text, thickness, precision);
  }
}

/// Names the part by its thickness, a blank one included.
void NameByThickness(MeshPart* part, const char* thicknessText) {
  char narrow[decimalTextCapacity + 2] = "T_";
  CopyText(narrow + 2, decimalTextCapacity, thicknessText);
  wchar_t name[256];
  Widen(name, std::size(name), narrow);
  part->SetName(name);
  part->SetNamed(1);
}

void AddShellValues(NamedValues& values, const PshellRecord& record, ShellTransfer* transfer, char* thicknessText) {
  Material* bending = FindFurtherMaterial(transfer, record.bendingMaterialId);
  Material* shear = FindFurtherMaterial(transfer, record.shearMaterialId);
  double thickness = record.thickness;
  const bool rounds = transfer->thicknessPrecision > 0;
  if (rounds) {
    FormatThickness(thicknessText, thickness, transfer->thicknessPrecision);
    thickness = ParseDecimal(thicknessText);
    NameByThickness(transfer->part, thicknessText);
  }
  values.AddRealWithText("Thickness", thickness, record.thicknessBlank != 0, rounds ? thicknessText : nullptr);
  values.AddEnum("Nastran_Element_Type", transfer->isReduced ? 1 : 0);
  values.AddObject("Material_Bending", bending);
  values.AddReal("Bending_MI_Ratio", record.bendingRatio);
  values.AddObject("Material_TS", shear);
  values.AddReal("TS_Ratio", record.shearRatio);
  values.AddReal("NSM", record.nonStructuralMass);
}

/// False when the host refused the property.
bool TransferRecord(PshellRecord* record, ShellTransfer* transfer) {
  MaterialAtHand atHand;
  if (!FindMaterialOfRecord(transfer->source, &record->materialId, &atHand)) {
    return true;
  }
  Property* property = CreateProperty(transfer->source.store, transfer->partId);
  if (property == nullptr) {
    return false;
  }
  DescribeProperty(property, "Shell", "Isotropic", atHand.material, 0);
  NamedValues values;
  char thicknessText[decimalTextCapacity];
  AddShellValues(values, *record, transfer, thicknessText);
  HandOverValues(property, values, transfer->linkedIndex, transfer->part);
  NameProperty(property, record->name, "Property", record->propertyId, transfer->partId);
  return true;
}

}  // namespace

void CreateShellProperty(MeshPart* part, const MaterialSource& source, const IndexedList* pshellList, std::int32_t partId,
                         std::int32_t thicknessPrecision, bool isReduced) {
  ShellTransfer transfer{part, source, partId, thicknessPrecision, isReduced};
  for (const IndexedCell* cell = IndexedListFind(pshellList, partId); cell != nullptr; cell = cell->nextOfId) {
    if (!TransferRecord(static_cast<PshellRecord*>(cell->record), &transfer)) {
      return;
    }
  }
}

}  // namespace btz
