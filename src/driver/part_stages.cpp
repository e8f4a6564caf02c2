#include "driver/part_stages.h"

#include "deck/name_comments.h"
#include "materials/material_transfer.h"
#include "mesh/line_orientation.h"
#include "mesh/parts.h"
#include "mesh/shells.h"
#include "properties/beam_property.h"
#include "properties/shell_property.h"
#include "properties/solid_property.h"
#include "support/hash_table.h"
#include "support/pooled_list.h"
#include "support/text.h"

namespace btz {

namespace {

bool HasReducedShells(std::int32_t partId) { return HashFind(&ReducedShellPropertyTable, &partId) != nullptr; }

void TransferProperties(RunState& run, MeshPart* part, bool solid) {
  RunLists& lists = run.lists;
  const MaterialSource materials{run.host.materials, &lists.materials, CreateDefaultMaterial};
  const std::int32_t partId = part->GetId();
  if (solid) {
    CreateSolidOrGasketProperty(part, materials, &lists.psolid, &lists.pgask, partId);
    return;
  }
  CreateShellProperty(part, materials, &lists.pshell, partId, run.options.thicknessPrecision, HasReducedShells(partId));
  CreateBeamProperty(part, materials, &lists.beamProperties, partId, run.host.boundary, FindOrientationSystem);
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
