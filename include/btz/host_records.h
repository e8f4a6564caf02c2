// Records that cross the boundary between the translator and a host as plain memory: nodes and elements, which the host owns and both sides
// read and write, and the blocks in which the translator hands over values, descriptors and section numbers. A host must have exactly these
// layouts (64-bit, natural alignment, `wchar_t` of the platform: 2 bytes on Windows, 4 elsewhere). Lengths, stiffnesses, temperatures and
// all other quantities are in deck units: the translator knows no unit system and passes on what the deck says.
#pragma once

#include <btz/containers.h>

#include <cstdint>

namespace btz {

class Material;
class TopoFace;

/// One grid point. Owned by the host from CreateNode on; the translator moves it and writes its coordinate system in place.
struct MeshNode {
  std::int32_t id;                  ///< Grid point id, above 0.
  double position[3];               ///< Coordinates in the basic system, in deck units.
  std::int32_t coordinateSystemId;  ///< System in which the card gave the coordinates, 0 for the basic one. Written by the translator.
  std::int32_t mark;                ///< Working mark of the translator. The host sets it to 0 once and never touches it again.
};

/// One element, and also the record of one face of a solid element (which is of a triangle or quadrilateral type).
///
/// Type indices, with the number of entries of `nodes`: 0 point (1), 1 and 2 line of 2 and 3 nodes, 3 and 4 triangle of 3 and 6 nodes, 5
/// and 6 quadrilateral of 4 and 8 nodes, 7 and 8 tetrahedron of 4 and 10 nodes, 9 rigid element (any number, of which only the first
/// counts), 10 one-node kind, 11 two-node connection (2), 12 and 15 hexahedron of 8 and 20 nodes, 13 and 16 wedge of 6 and 15 nodes, 14
/// pyramid (5). Corner nodes come first, mid-side nodes behind them.
struct MeshElement {
  std::int32_t id;         ///< Element id. Two registers: lines, shells and rigid elements share one, solids have their own.
  std::int32_t rigidKind;  ///< 0 or 1 for the two kinds of rigid elements. Written by the translator.
  std::int32_t typeIndex;  ///< Type index, see above.
  double normal[3];        ///< Unit normal of a surface element whose nodes were moved. Written by the translator.
  MeshNode** nodes;        ///< As many as the type has; an entry is null where the card left a mid-side node out.
  std::int32_t mark;       ///< Working mark of the translator; see MeshNode::mark.
  TopoFace* owner;         ///< What holds the element: a face (kind 2), or the volume of its body (kind 1) for a solid. May be null.
  MeshElement** faces;     ///< Null, or one record for each side of a solid; null where the side is shared with another solid.
};

/// What the value slot of a NamedValue means.
enum ValueKind : std::int32_t {
  ValueInteger = 1,   ///< `real`: an integer number held as a double.
  ValueFlag = 2,      ///< `real`: 0.0 or 1.0.
  ValueEnum = 3,      ///< `choice`: a choice out of a list of the host.
  ValueReal = 4,      ///< `real`.
  ValueText = 5,      ///< `characters`: narrow text, its length in `extent`.
  ValueFieldRef = 6,  ///< `fieldId`: address of the id of a Field of the CurveStore; `extent` is 1.
  ValueObject = 8,    ///< `object`: a host object (a Material), or null. `extent` is 1 when it is set.
  ValueUnset = 9      ///< The deck left the field blank. `real` still holds what the reader had, 0.0.
};

/// One keyed value of a property or material. The record and all that it points to belong to the translator and are gone after the call.
struct NamedValue {
  char key[256];        ///< Narrow key by which the host picks the value, such as "Thickness".
  std::int32_t kind;    ///< A ValueKind.
  std::int32_t extent;  ///< Length of a text; 1 for a field reference and for an object that is set; else 0.
  char* text;           ///< Text form of a real value, or null.
  union {
    double real;
    std::int32_t choice;
    char* characters;
    std::int32_t* fieldId;
    void* object;
  } value;
};

/// List of NamedValue*.
using NamedValueList = PooledList;

/// Class and material of a property, as Property::SetDescriptor takes it.
struct PropertyDescriptor {
  std::int32_t reserved;       ///< Always 0.
  std::int32_t number;         ///< MeshModel::GetDescriptorNumber for bars, beams and rigid bodies; else 0.
  Material* material;          ///< Material of the property, may be null.
  wchar_t propertyClass[256];  ///< "Shell", "Solid", "Bar", "RigidBar".
  wchar_t materialClass[256];  ///< "Isotropic", "Gasket", "Bar", "Beam", "Rbe2", "Rbe3" and the like.
};

/// Name and class of a material. The translator renames a material by writing into the host's own block (Material::GetDescriptor).
struct MaterialDescriptor {
  std::uint8_t reserved[80];  ///< Never set by the translator.
  wchar_t name[256];          ///< Name of the material.
  wchar_t symmetry[256];      ///< "Isotropic".
  wchar_t behaviour[256];     ///< "Elastic" or "Elastic-Plastic".
  wchar_t family[256];        ///< "Metal" or "Gasket".
  wchar_t note[256];          ///< Empty.
};

/// Numbers of a beam section, in deck units. Before a SectionCalculator fills them all are 0.0 but k1 and k2, which are 1.0.
struct SectionValues {
  double i1;                 ///< Second moment of area in plane 1.
  double i2;                 ///< Second moment of area in plane 2.
  double area;               ///< Area of the section.
  double torsion;            ///< Torsional constant.
  double nonStructuralMass;  ///< Mass per unit length beside that of the material.
  double i12;                ///< Product of area.
  double c1;                 ///< Stress recovery points C, D, E, F: offsets from the section's centre in direction 1 and 2.
  double c2;
  double d1;
  double d2;
  double e1;
  double e2;
  double f1;
  double f2;
  double k1;  ///< Shear area factor in plane 1.
  double k2;  ///< Shear area factor in plane 2.
};

/// The load step in which a cut part is tightened, as Pretension::AddPart takes it.
struct CutPartStep {
  std::int32_t id;    ///< Subcase id of the step.
  std::int32_t kind;  ///< Always 5.
};

}  // namespace btz
