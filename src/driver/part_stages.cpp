#include "driver/part_stages.h"

#include "deck/name_comments.h"
#include "mesh/parts.h"
#include "support/pooled_list.h"
#include "support/text.h"

namespace btz {

namespace {

using PropertyTransfer = void (*)(RunState& run, MeshPart* part);

/// Marks a transfer that is not built yet: nothing happens.
constexpr PropertyTransfer TransferNotBuilt = nullptr;

constexpr PropertyTransfer solidOrGasketProperty = TransferNotBuilt;
constexpr PropertyTransfer shellProperty = TransferNotBuilt;
constexpr PropertyTransfer beamProperty = TransferNotBuilt;

void Transfer(PropertyTransfer transfer, RunState& run, MeshPart* part) {
  if (transfer != TransferNotBuilt) {
    transfer(run, part);
  }
}

void TransferProperties(RunState& run, MeshPart* part, bool solid) {
  if (solid) {
    Transfer(solidOrGasketProperty, run, part);
    return;
  }
  Transfer(shellProperty, run, part);
  Transfer(beamProperty, run, part);
}

void NameByNumber(MeshPart* part) {
  if (part->IsNamed() == 1) {
    return;
  }
  wchar_t name[256];
  FormatNumbered(name, 256, "Body ", part->GetId());
  part->SetName(name);
}

void RebuildFaces(MeshPart* part) {
  PooledList* faces = nullptr;
  part->GetFaceList(&faces);
  WalkList<TopoFace>(faces, [](TopoFace* face) {
    FaceMesh* mesh = nullptr;
    face->GetMesh(&mesh);
    if (mesh != nullptr) {
      mesh->Rebuild();
    }
  });
}

Solid* SolidOf(MeshPart* part) {
  Solid* solid = nullptr;
  part->GetSolid(&solid);
  return solid;
}

}  // namespace

void NameParts(RunState& /*run*/) {
  WalkList<MeshPart>(&PartList, [](MeshPart* part) { part->SetNamed(0); });
  WalkList<MeshPart>(&PartList, [](MeshPart* part) {
    const NameRecord* record = FindName(&PropertyNameTable, part->GetId());
    if (record == nullptr) {
      return;
    }
    wchar_t name[nameCapacity];
    Widen(name, nameCapacity, record->name);
    part->SetName(name);
    part->SetNamed(1);
  });
}

void FinishParts(RunState& run) {
  const bool renumbers = run.options.earlyTopology == 0;
  std::int32_t number = run.model->NextPartId();
  WalkList<MeshPart>(&PartList, [&](MeshPart* part) {
    const bool solid = part->IsSolid();
    TransferProperties(run, part, solid);
    if (renumbers) {
      part->SetNumber(number++);
    }
    NameByNumber(part);
    if (!solid) {
      RebuildFaces(part);
    }
  });
  if (renumbers) {
    run.model->ReservePartId(number);
  }
}

void FinishSolidParts(RunState& run) {
  WalkList<MeshPart>(&PartList, [&](MeshPart* part) {
    if (part->IsSolid()) {
      run.model->FinishSolidPart(part, 0, 0, 0);
    }
  });
}

void FinishSolids(RunState& /*run*/) {
  WalkList<MeshPart>(&PartList, [](MeshPart* part) {
    Solid* solid = SolidOf(part);
    if (solid != nullptr) {
      solid->Finish();
    }
  });
}

void AttachShells(RunState& /*run*/) {
  WalkList<MeshPart>(&PartList, [](MeshPart* part) {
    if (part->HasMesh() == 0 || !part->IsSolid()) {
      return;
    }
    Solid* solid = SolidOf(part);
    if (solid == nullptr) {
      return;
    }
    Shell* shell = nullptr;
    solid->GetShell(&shell);
    solid->AttachShell(shell, 0);
  });
}

}  // namespace btz
