#include "properties/beam_property.h"

#include <cstring>

#include "properties/property_records.h"
#include "properties/property_transfer.h"
#include "support/decimal_text.h"
#include "support/text.h"

namespace btz {

namespace {

/// Keys of the numbers of a section, by BeamValue.
constexpr const char* beamValueKeys[beamValueCount] = {"Area", "I1", "I2", "Torsional", "NSM", "C1", "C2", "D1",
                                                       "D2",   "E1", "E2", "F1",        "F2",  "K1", "K2", "I12"};

/// The same numbers in the block that the host fills.
constexpr double SectionValues::*sectionValueFields[beamValueCount] = {
    &SectionValues::area, &SectionValues::i1, &SectionValues::i2, &SectionValues::torsion, &SectionValues::nonStructuralMass,
    &SectionValues::c1,   &SectionValues::c2, &SectionValues::d1, &SectionValues::d2,      &SectionValues::e1,
    &SectionValues::e2,   &SectionValues::f1, &SectionValues::f2, &SectionValues::k1,      &SectionValues::k2,
    &SectionValues::i12};

struct BeamTransfer {
  MeshPart* part;
  MeshModel* model;
  const MaterialSource& source;
  std::int32_t partId;
  BoundaryStore* boundary;
  FindOrientation findOrientation;
};

/// The texts of a library section. Required: every section is handed over as a round one, hollow when it has a second dimension, whatever its
/// word was; one of an unknown word has the dimension zero.
struct SectionTexts {
  char name[16];
  char dimensions[2 * decimalTextCapacity];
  std::int32_t nameLength;
  std::int32_t dimensionsExtent;
};

bool IsSolidRound(const BeamPropertyRecord& record) { return record.sectionDim2 == 0.0; }

SectionTexts MakeSectionTexts(const BeamPropertyRecord& record) {
  SectionTexts texts;
  const bool solid = IsSolidRound(record);
  CopyText(texts.name, sizeof(texts.name), solid ? "O1Section" : "OSection");
  texts.nameLength = static_cast<std::int32_t>(std::strlen(texts.name));
  std::size_t length = FormatDecimals(texts.dimensions, record.sectionDim1, 6);
  std::size_t secondLength = 0;
  if (!solid) {
    texts.dimensions[length] = ',';
    secondLength = 1 + FormatDecimals(texts.dimensions + length + 1, record.sectionDim2, 6);
    length += secondLength;
  }
  // Required: the second dimension counts twice, so that the extent is more than the text's length.
  texts.dimensionsExtent = static_cast<std::int32_t>(length + secondLength);
  return texts;
}

SectionValues ComputeSection(MaterialStore* store, const BeamPropertyRecord& record) {
  SectionValues section{};
  section.k1 = 1.0;
  section.k2 = 1.0;
  SectionCalculator* calculator = nullptr;
  store->GetSectionCalculator(&calculator);
  if (calculator == nullptr) {
    return section;
  }
  if (IsSolidRound(record)) {
    calculator->ComputeSolidSection(record.sectionDim1, &section);
  } else {
    calculator->ComputeHollowSection(record.sectionDim1, record.sectionDim2, &section);
  }
  return section;
}

/// Values of a card that gives its numbers.
void AddNumbers(NamedValues& values, const BeamPropertyRecord& record, std::int32_t systemId) {
  if (record.isBeam == 0) {
    values.AddInteger("Sys_Coord_Id", systemId);
  }
  for (std::size_t i = 0; i < beamValueCount; ++i) {
    values.AddReal(beamValueKeys[i], record.*beamValueFields[i], record.blank[i] != 0);
  }
  values.AddInteger("PA", record.pinFlagsA);
  values.AddInteger("PB", record.pinFlagsB);
}

/// Values of a library card. Required: nothing of its own numbers, orientation and pin flags is among them, its mass included; the host works
/// all of them out.
void AddLibrarySection(NamedValues& values, const BeamPropertyRecord& record, MaterialStore* store, SectionTexts* texts) {
  if (record.isBeam == 0) {
    values.AddText("SectionType", texts->name, texts->nameLength);
  }
  values.AddText("SectionParam", texts->dimensions, texts->dimensionsExtent);
  const SectionValues section = ComputeSection(store, record);
  for (std::size_t i = 0; i < beamValueCount; ++i) {
    values.AddReal(beamValueKeys[i], section.*sectionValueFields[i]);
  }
  values.AddEnum(record.isBeam == 0 ? "Nastran_Bar_Type" : "Nastran_Beam_Type", 1);
}

/// False when the host refused the property.
bool TransferRecord(const BeamPropertyRecord& record, Material* material, const BeamTransfer& transfer) {
  Property* property = CreateProperty(transfer.source.store, transfer.partId);
  if (property == nullptr) {
    return false;
  }
  const std::int32_t number = transfer.model == nullptr ? 0 : transfer.model->GetDescriptorNumber();
  DescribeProperty(property, "Bar", record.isBeam == 0 ? "Bar" : "Beam", material, number);
  std::int32_t systemId = 0;
  transfer.findOrientation(transfer.part, transfer.boundary, record.orientation, &systemId);
  NamedValues values;
  SectionTexts texts;
  if (record.isSectionLibrary == 0) {
    AddNumbers(values, record, systemId);
  } else {
    texts = MakeSectionTexts(record);
    AddLibrarySection(values, record, transfer.source.store, &texts);
  }
  HandOverValues(property, values, 0, transfer.part);
  NameProperty(property, record.name, "Property", record.propertyId, transfer.partId);
  return true;
}

}  // namespace

void CreateBeamProperty(MeshPart* part, const MaterialSource& source, const IndexedList* beamPropertyList, std::int32_t partId,
                        BoundaryStore* boundary, FindOrientation findOrientation) {
  MeshModel* model = nullptr;
  part->GetOwnerModel(&model);
  const BeamTransfer transfer{part, model, source, partId, boundary, findOrientation};
  MaterialAtHand atHand;
  for (const IndexedCell* cell = beamPropertyList->first; cell != nullptr; cell = cell->next) {
    auto* record = static_cast<BeamPropertyRecord*>(cell->record);
    // Required: the material comes before the id, so the materials of all records are found anew for each part; an id that has become the
    // host's number counts as a deck id at the next visit.
    if (!FindMaterialOfRecord(source, &record->materialId, &atHand) || record->propertyId != partId) {
      continue;
    }
    if (!TransferRecord(*record, atHand.material, transfer)) {
      return;
    }
  }
}

}  // namespace btz
