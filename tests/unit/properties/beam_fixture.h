// A part of lines in the in-memory host, records of bar and beam properties, and materials with and without a link: what the tests of the bar
// and beam transfer share.
#pragma once

#include "materials/material_transfer.h"
#include "memory_host/memory_host.h"
#include "properties/beam_property.h"
#include "properties/property_records.h"
#include "support/block_pool.h"
#include "support/text.h"
#include "tests/unit/mesh/mesh_fixture.h"

namespace btz::test {

/// A FindOrientation that finds nothing: the system id stays as it was.
inline void FindNoSystem(MeshPart* /*part*/, BoundaryStore* /*boundary*/, const double (&/*orientation*/)[3], std::int32_t* /*systemId*/) {}

class BeamPropertyTest : public MeshTest {
 protected:
  static constexpr std::int32_t numberOffset = 100;  ///< The host's number of a material less its deck id.

  BeamPropertyTest() : MeshTest(OffsetOptions()), part(MakePart(7)) { Calls(); }

  static HostOptions OffsetOptions() {
    HostOptions options;
    options.materialNumberOffset = numberOffset;
    return options;
  }

  MeshPart* MakePart(std::int32_t id) {
    MeshPart* made = nullptr;
    CreateMeshPart(partOfLines, id, model, &made);
    return made;
  }

  /// A property of which nothing but the ids is given, at the end of the list.
  BeamPropertyRecord* AddRecord(std::int32_t propertyId, std::int32_t materialId) {
    auto* record = static_cast<BeamPropertyRecord*>(AllocateZeroed(sizeof(BeamPropertyRecord)));
    record->propertyId = propertyId;
    record->materialId = materialId;
    for (std::uint8_t& blank : record->blank) {
      blank = 1;
    }
    IndexedListAppend(&run.lists.beamProperties, propertyId, record);
    return record;
  }

  BeamPropertyRecord* AddSection(std::int32_t isBeam, double dim1, double dim2) {
    BeamPropertyRecord* record = AddRecord(7, 1);
    record->isBeam = isBeam;
    record->isSectionLibrary = 1;
    record->sectionDim1 = dim1;
    record->sectionDim2 = dim2;
    return record;
  }

  /// A material of a card: known to the host by its number, and linked to its deck id.
  void MakeLinkedMaterial(std::int32_t id) {
    CreateDefaultMaterial(host.GetMaterialStore(), &run.lists.materials, id);
    Calls();
  }

  /// A material of the host's own with this number and without a link.
  void MakeHostMaterial(std::int32_t number) {
    Material* material = nullptr;
    host.GetMaterialStore()->CreateMaterial(&material, number - numberOffset);
    Calls();
  }

  void Transfer(std::int32_t partId, FindOrientation findOrientation = FindNoSystem) {
    const MaterialSource source{host.GetMaterialStore(), &run.lists.materials, CreateDefaultMaterial};
    CreateBeamProperty(part, source, &run.lists.beamProperties, partId, host.GetBoundaryStore(), findOrientation);
  }

  /// The calls from now on are traced with all questions.
  void TraceQuestions() { host.SetTrace(&questionSink); }

  /// Values of the n-th property that was made, counted from 0.
  const std::vector<memory::StoredValue>& ValuesOf(std::size_t property) const { return host.Materials().properties.at(property).values; }

  /// One value of a property by its key; fails the test when it is missing.
  memory::StoredValue ValueOf(std::size_t property, std::string_view key) const {
    for (const memory::StoredValue& value : ValuesOf(property)) {
      if (value.key == key) {
        return value;
      }
    }
    ADD_FAILURE() << "no value " << key;
    return {};
  }

  /// Keys of the n-th property in order.
  std::vector<std::string> KeysOf(std::size_t property) const {
    std::vector<std::string> keys;
    for (const memory::StoredValue& value : ValuesOf(property)) {
      keys.push_back(value.key);
    }
    return keys;
  }

  /// The materials that the calls since the last time asked for, made or gave to a property, and the properties made.
  std::vector<std::string> MaterialCalls() {
    std::vector<std::string> calls;
    for (const std::string& line : Calls()) {
      if (line.starts_with("MaterialStore.") || line.find(".SetDescriptor(<1, ") != std::string::npos) {
        calls.push_back(line);
      }
    }
    return calls;
  }

  TraceSink questionSink{&trace, TraceSink::Coverage::All};
  MeshPart* part;
};

}  // namespace btz::test
