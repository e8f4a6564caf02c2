#include "driver/finishing_stages.h"

#include "analysis/load_cases.h"
#include "analysis/node_systems.h"
#include "deck/name_comments.h"
#include "driver/clean_up.h"
#include "driver/part_stages.h"
#include "driver/split_faces.h"
#include "loads/constraint_stages.h"
#include "loads/force_loads.h"
#include "loads/pressure_loads.h"
#include "loads/pressures.h"
#include "materials/material_transfer.h"
#include "mesh/gaps.h"
#include "mesh/local_nodes.h"
#include "mesh/part_names.h"
#include "mesh/rigid_elements.h"
#include "mesh/springs.h"
#include "platform/log_file.h"
#include "properties/connector_properties.h"
#include "sets/analysis_node_set.h"
#include "sets/pretension.h"
#include "support/block_pool.h"
#include "support/hash_table.h"
#include "support/pooled_list.h"

namespace btz {

namespace {

bool Always(const RunState& /*run*/) { return true; }

bool HasPartNames(const RunState& /*run*/) { return HashCount(&PropertyNameTable) != 0; }

bool IsTopologyEarly(const RunState& run) { return run.options.earlyTopology == 1; }

bool IsTopologyLate(const RunState& run) { return run.options.earlyTopology == 0; }

bool HasMaterialNames(const RunState& /*run*/) { return HashCount(&MaterialCommentTable) != 0; }

bool HasRigidElements(const RunState& run) { return run.counters[familyRbe2] > 0 || run.counters[familyRbe3] > 0; }

bool HasPressures(const RunState& run) { return run.counters[familyPressure] != 0 && PressureSetTable.size != 0; }

bool HasForces(const RunState& run) { return run.counters[familyForce] != 0 || run.counters[familyMoment] != 0; }

bool HasMasses(const RunState& run) { return run.counters[familyMass] > 0; }

bool HasBushes(const RunState& run) { return run.counters[familyBush] > 0 || HashCount(&BushPropertyTable) != 0; }

bool HasSprings(const RunState& /*run*/) {
  return HashCount(&SpringPropertyTable) != 0 || HashCount(&SpringPairTable) != 0 || HashCount(&BushInstanceTable) != 0;
}

bool HasGaps(const RunState& /*run*/) { return HashCount(&GapElementTable) != 0; }

bool IsTargetNastran(const RunState& run) { return run.options.targetSolver == 0; }

bool HasRigidBars(const RunState& /*run*/) { return HashCount(&RbarTable) != 0; }

bool HasAnalysisNodeSets(const RunState& /*run*/) { return AsetList.size != 0; }

bool HasDisplacementSystems(const RunState& run) { return HashCount(&run.gridCdTable) != 0; }

bool HasPretension(const RunState& /*run*/) { return HashCount(&PretensionTable) != 0; }

bool IsRepairAsked(const RunState& run) { return run.options.repairMesh == 1; }

bool IsSplitAsked(const RunState& run) { return run.options.splitFaceValue > 0.0; }

void MoveLocalNodes(RunState& run) {
  PooledList* records = &run.lists.gridCp;
  ApplyGridCoordinateSystems(run.model, records, &run.lists.coordinateSystems);
  WalkList<void>(records, ReleaseMemory);
  ListClear(records);
}

void NameMaterials(RunState& run) { RenameMaterials(&run.lists.materials); }

void UpdateTopology(RunState& run) { run.model->UpdateTopology(0); }

void UniquePartNames(RunState& /*run*/) { MakePartNamesUnique(); }

void CommitMaterials(RunState& run) { run.host.materials->Commit(); }

void MakePressures(RunState& run) { CreatePressures(run.host.boundary, run.host.curves, &run.names.pressureOrConvection); }

void MakeForces(RunState& run) { CreateForceLoads(run.host.boundary, run.host.curves, &run.names.pointForce); }

void MakeSpcConstraints(RunState& run) {
  CreateSpcConstraints(run.model, run.host.boundary, &run.lists.spc, &run.gridCdTable, run.host.curves);
}

void MakeSpc1Constraints(RunState& run) { CreateSpc1Constraints(run.host.boundary, &run.lists.spc1, &run.gridCdTable); }

void AssignDisplacementSystems(RunState& run) {
  CreateNodeCoordinateAssignments(run.model, run.host.boundary, &run.gridCdTable, &run.lists.coordinateSystems);
}

void MakeLoadCases(RunState& run) {
  AssembleLoadCases({run.options.targetSolver, &run.lists.subcases, run.host.boundary, run.host.curves, AddBoltsToCase});
}

void HandOver(RunState& run) {
  run.model->Finish();
  run.host.project->AttachModel(run.model, 1);
}

void RepairMesh(RunState& run) {
  if (run.model->CountDefects(3) != 0) {
    run.model->RepairDefects();
  }
}

void CleanUpRun(RunState& run) { CleanUp(&run); }

constexpr FinishingStage transitionStages[] = {
    {"transition elements", Always, nullptr, StageNotBuilt},
};

constexpr FinishingStage stagesBehindElements[] = {
    {"coordinates of nodes in local systems", Always, nullptr, MoveLocalNodes},
    {"part names", HasPartNames, nullptr, NameParts},
    {"early topology", IsTopologyEarly, nullptr, UpdateTopology},
    {"log of the properties", Always, "Creating Properties....\n", [](RunState&) {}},
    {"material names", HasMaterialNames, nullptr, NameMaterials},
    {"properties, numbers and names by part", Always, nullptr, FinishParts},
    {"rigid bodies", HasRigidElements, nullptr, StageNotBuilt},  // Writes "Creating Rbe Body....\n" and keeps the log open.
    {"solid parts", Always, nullptr, FinishSolidParts},
    {"solids", Always, nullptr, FinishSolids},
    {"unique part names", Always, nullptr, UniquePartNames},
    {"materials and properties committed", Always, nullptr, CommitMaterials},
    {"shells of solids", Always, nullptr, AttachShells},
};

constexpr FinishingStage stagesBehindLoads[] = {
    {"pressures", HasPressures, "Creating Pressure....\n", MakePressures},
    {"forces and moments", HasForces, "Creating Force/Moment....\n", MakeForces},
    {"masses", HasMasses, nullptr, StageNotBuilt},
    {"bushes", HasBushes, nullptr, StageNotBuilt},
    {"springs", HasSprings, nullptr, StageNotBuilt},
    {"gaps", HasGaps, nullptr, StageNotBuilt},
    {"single-point constraints", Always, nullptr, MakeSpcConstraints},
    {"single-point constraints of node lists", Always, nullptr, MakeSpc1Constraints},
    {"multi-point constraints", Always, nullptr, StageNotBuilt},
    {"convection", IsTargetNastran, nullptr, StageNotBuilt},
    {"flux", IsTargetNastran, nullptr, StageNotBuilt},
    {"temperatures", Always, nullptr, StageNotBuilt},
    {"rigid bars", HasRigidBars, nullptr, StageNotBuilt},
    {"analysis node sets", HasAnalysisNodeSets, "Creating Nastarn Aset....\n", StageNotBuilt},
    {"displacement systems", HasDisplacementSystems, nullptr, AssignDisplacementSystems},
    {"excitations", Always, nullptr, StageNotBuilt},
    {"pretension", HasPretension, nullptr, StageNotBuilt},
    {"load cases and global damping", Always, nullptr, MakeLoadCases},
    {"bolts released", Always, nullptr, StageNotBuilt},
    {"model handed over", Always, nullptr, HandOver},
    {"log of the topology", Always, "Updating Topology....\n", [](RunState&) {}},
    {"late topology", IsTopologyLate, nullptr, UpdateTopology},
    {"mesh repair", IsRepairAsked, nullptr, RepairMesh},
    {"split faces", IsSplitAsked, "Processing Split Faces....\n", SplitFaces},
    {"clean-up", Always, "Clean Up process....\n", CleanUpRun},
};

}  // namespace

std::span<const FinishingStage> TransitionStages() { return transitionStages; }

std::span<const FinishingStage> StagesBehindElements() { return stagesBehindElements; }

std::span<const FinishingStage> StagesBehindLoads() { return stagesBehindLoads; }

void RunStages(std::span<const FinishingStage> stages, RunState& run) {
  for (const FinishingStage& stage : stages) {
    if (stage.action == StageNotBuilt || !stage.isDue(run)) {
      continue;
    }
    if (stage.logLine != nullptr) {
      AppendToLog(run.logPath, stage.logLine);
    }
    stage.action(run);
  }
}

}  // namespace btz
