// Property cards as they are captured. Nothing of them reaches the host while the deck is read: parts are made later, by the elements that use
// a property id, and only then does a transfer look the records of a part's id up and make host properties of them. Each record is a
// zero-filled heap block in a list of the run, in the order of the deck; cards of one id are never merged.
#pragma once

#include <cstddef>
#include <cstdint>

#include "deck/name_comments.h"

namespace btz {

/// `PSHELL`.
struct PshellRecord {
  char name[nameCapacity];         ///< From the comment above the card; empty if there is none.
  std::int32_t materialId;         ///< MID1. Becomes the host's number once it has been found.
  std::int32_t propertyId;         ///< PID.
  double thickness;                ///< T, deck units of length.
  std::int32_t bendingMaterialId;  ///< MID2.
  std::int32_t shearMaterialId;    ///< MID3.
  double bendingRatio;             ///< 12I/T**3.
  double shearRatio;               ///< TS/T.
  double nonStructuralMass;        ///< NSM, mass per area.
  std::uint8_t thicknessBlank;     ///< 1: T was a blank field.
};

/// `PSOLID`.
struct PsolidRecord {
  char name[nameCapacity];
  std::int32_t propertyId;
  std::int32_t materialId;
  std::int32_t coordinateSystemId;  ///< CORDM, used by nobody.
};

/// Values of a beam section that a card can leave blank, in the order of their marks.
enum BeamValue : std::size_t {
  beamArea,
  beamI1,
  beamI2,
  beamTorsion,
  beamNonStructuralMass,
  beamC1,
  beamC2,
  beamD1,
  beamD2,
  beamE1,
  beamE2,
  beamF1,
  beamF2,
  beamK1,
  beamK2,
  beamI12,
  beamValueCount
};

/// `PBAR`, `PBARL`, `PBEAM` and `PBEAML`.
struct BeamPropertyRecord {
  char name[nameCapacity];
  std::int32_t propertyId;
  std::int32_t materialId;
  std::int32_t isBeam;                    ///< 1 for the beam cards, 0 for the bar cards.
  double area, i1, i2, i12, torsion;      ///< Area and moments of area of the section.
  double nonStructuralMass;               ///< NSM, mass per length.
  double c1, c2, d1, d2, e1, e2, f1, f2;  ///< Stress recovery points C to F.
  double k1, k2;                          ///< Shear area factors.
  double sectionDim1;                     ///< First dimension of a library section.
  double sectionDim2;                     ///< Second one; 0.0 for a section that has none.
  std::int32_t isSectionLibrary;          ///< 1 for PBARL and PBEAML.
  double orientation[3];                  ///< X1, X2, X3 of the last `CBAR` of this property.
  std::int32_t pinFlagsA;                 ///< PA of the last `CBAR`: components released at end A, as digits.
  std::int32_t pinFlagsB;                 ///< PB.
  std::uint8_t blank[beamValueCount];     ///< By BeamValue; 1: counts as not given.
};

/// The field of each BeamValue.
inline constexpr double BeamPropertyRecord::*beamValueFields[beamValueCount] = {&BeamPropertyRecord::area,
                                                                                &BeamPropertyRecord::i1,
                                                                                &BeamPropertyRecord::i2,
                                                                                &BeamPropertyRecord::torsion,
                                                                                &BeamPropertyRecord::nonStructuralMass,
                                                                                &BeamPropertyRecord::c1,
                                                                                &BeamPropertyRecord::c2,
                                                                                &BeamPropertyRecord::d1,
                                                                                &BeamPropertyRecord::d2,
                                                                                &BeamPropertyRecord::e1,
                                                                                &BeamPropertyRecord::e2,
                                                                                &BeamPropertyRecord::f1,
                                                                                &BeamPropertyRecord::f2,
                                                                                &BeamPropertyRecord::k1,
                                                                                &BeamPropertyRecord::k2,
                                                                                &BeamPropertyRecord::i12};

/// `PGASK`. A present mark says that the value was read: the opposite sense of the blank marks of the others.
struct PgaskRecord {
  char name[512];  ///< Only the first 256 characters can be filled.
  std::int32_t propertyId;
  std::int32_t materialId;
  std::int32_t membraneMaterialId;
  std::int32_t reservedId;  ///< Used by nobody.
  double thickness;
  std::uint8_t thicknessPresent;
  double gap;
  std::uint8_t gapPresent;
  double voidValue;
  std::uint8_t voidPresent;
  double leakagePressure;
  std::uint8_t leakagePressurePresent;
  std::uint8_t stabilizationOn;  ///< 0 for every card.
};

}  // namespace btz
