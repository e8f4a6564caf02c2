// Parts, materials and captured property cards in a host whose trace shows the questions too: what the tests of the property transfers share.
#pragma once

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "deck/name_comments.h"
#include "materials/material_transfer.h"
#include "properties/property_records.h"
#include "support/block_pool.h"
#include "support/indexed_list.h"
#include "support/text.h"
#include "tests/unit/mesh/mesh_fixture.h"

namespace btz::test {

class TransferTest : public MeshTest {
 protected:
  explicit TransferTest(const HostOptions& options = HostOptions()) : MeshTest(options) { host.SetTrace(&everyCall); }

  MeshPart* MakePart(std::int32_t id) {
    MeshPart* part = nullptr;
    model->CreateBody(1, &part, id, 0, 1, 1);
    trace.clear();
    return part;
  }

  /// A material that a card made: the host has it and the run has a link to it.
  void MakeLinkedMaterial(std::int32_t id) {
    CreateDefaultMaterial(host.GetMaterialStore(), &run.lists.materials, id);
    trace.clear();
  }

  /// A material that only the host knows.
  void MakeHostMaterial(std::int32_t id) {
    Material* material = nullptr;
    host.GetMaterialStore()->CreateMaterial(&material, id);
    trace.clear();
  }

  template <typename Record>
  static Record* AddRecord(IndexedList* list, std::int32_t propertyId, std::int32_t materialId, const char* name = "") {
    auto* record = static_cast<Record*>(AllocateZeroed(sizeof(Record)));
    record->propertyId = propertyId;
    record->materialId = materialId;
    CopyText(record->name, sizeof(record->name), name);
    IndexedListAppend(list, propertyId, record);
    return record;
  }

  MaterialSource Source() { return {host.GetMaterialStore(), &run.lists.materials, CreateDefaultMaterial}; }

  /// Links of the run's materials, in order.
  std::vector<const MaterialLink*> Links() const {
    std::vector<const MaterialLink*> links;
    WalkIndexedList<MaterialLink>(&run.lists.materials, [&](const MaterialLink* link) { links.push_back(link); });
    return links;
  }

  /// The calls whose text holds `part`, since the last time calls were asked for.
  std::vector<std::string> CallsWith(std::string_view part) {
    std::vector<std::string> found;
    for (const std::string& call : Calls()) {
      if (call.find(part) != std::string::npos) {
        found.push_back(call);
      }
    }
    return found;
  }

  TraceSink everyCall{&trace, TraceSink::Coverage::All};
};

/// A host whose numbers of materials are the ids of the cards plus 100.
class NumberedMaterialsTest : public TransferTest {
 protected:
  NumberedMaterialsTest() : TransferTest(Options()) {}

 private:
  static HostOptions Options() {
    HostOptions options;
    options.materialNumberOffset = 100;
    return options;
  }
};

/// A host that writes null where it has nothing to hand out.
class NullingHostTest : public TransferTest {
 protected:
  NullingHostTest() : TransferTest(Options()) {}

 private:
  static HostOptions Options() {
    HostOptions options;
    options.nullOnFailure = true;
    return options;
  }
};

}  // namespace btz::test
