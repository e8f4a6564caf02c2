#include "driver/translate_deck.h"

#include "analysis/case_control.h"
#include "driver/clean_up.h"
#include "driver/finishing_stages.h"
#include "driver/line_walk.h"
#include "driver/pass_tables.h"
#include "driver/pre_scan.h"
#include "driver/run_log.h"
#include "driver/tables.h"
#include "mesh/gaps.h"
#include "platform/log_file.h"
#include "platform/platform.h"
#include "support/block_pool.h"
#include "support/hash_table.h"
#include "support/pooled_list.h"

namespace btz {

namespace {

constexpr std::int32_t gapEntityType = 47;

/// Counts that hold when the scan can't open the deck a second time.
void SetDefaultCounts(RunState& run) {
  run.nodesScanned = 800000;
  run.elementsScanned = 1200000;
  run.includesScanned = 0;
}

/// Scans the deck; whether it is worth reading.
bool ScanDeck(RunState& run) {
  SetDefaultCounts(run);
  PreScanDeck(run.deckPath, &run.nodesScanned, &run.elementsScanned, &run.includesScanned);
  return run.nodesScanned != 0 || run.elementsScanned != 0 || run.includesScanned != 0;
}

void ClearGlobalIds() {
  SolNumber = 0;
  GlobalSdampingId = 0;
  GlobalMfluidId = 0;
  GlobalMethodId = 0;
}

/// Loads the deck's first chunk; false when there is none.
bool ReadFirstChunk(RunState& run, std::FILE* deck) {
  if (!AllocateDeckBuffer(&run.deck)) {
    return false;
  }
  AttachDeckStream(&run.deck, deck);
  RewindDeck(&run.deck);
  const std::int32_t exhausted = ReadDeckChunk(&run.deck);
  ShowFirstChunk(&run.progress);
  return exhausted == 0;
}

/// Goes back to the deck's first chunk for the next pass; false when there is none.
bool RewindForPass(RunState& run) {
  RewindDeck(&run.deck);
  const std::int32_t exhausted = ReadDeckChunk(&run.deck);
  ShowRewind(&run.progress);
  return exhausted == 0;
}

void OpenModel(RunState& run) {
  run.host.project->GetMeshModel(&run.model, 1);
  if (run.model == nullptr) {
    return;
  }
  run.model->SetSourcePath(run.deckPath);
  if (run.nodesScanned > 0 && run.elementsScanned > 0) {
    run.model->Reserve(run.nodesScanned, run.elementsScanned);
  }
}

bool HasElements(const RunState& run) {
  for (std::size_t family = 0; family < elementFamilyCount; ++family) {
    if (run.counters[family] >= 1) {
      return true;
    }
  }
  return false;
}

/// Notes the group numbers of the gaps that the host has already.
void CollectGapGroups(RunState& run) {
  run.host.boundary->GetEntitiesOfType(gapEntityType, &run.lists.hostEntities);
  WalkList<Entity>(&run.lists.hostEntities, [&](Entity* gap) {
    const std::int32_t groupId = gap->GetGroupId();
    auto* record = groupId > 0 ? static_cast<std::int32_t*>(PoolAllocate(&run.recordPool, sizeof(std::int32_t))) : nullptr;
    if (record != nullptr) {
      *record = groupId;
      HashInsert(&GapGroupTable, record);
    }
  });
}

/// Pass 1. False when it found no node.
bool ReadNodes(RunState& run) {
  AppendToLog(run.logPath, "Node Reading Started\n\n");
  WalkDeckFile(&run, &run.deck, nodePassDeck, &nodePassInclude);
  const std::int32_t nodeCount = run.counters[familyNode];
  if (nodeCount == 0) {
    return false;
  }
  if (nodeCount > run.nodesScanned || nodeCount > run.elementsScanned) {
    run.model->Reserve(nodeCount, nodeCount);
  }
  LogNodesRead(run.logPath, nodeCount);
  return true;
}

/// Passes 2 and 3. False when the deck's text can't be had again.
bool ReadElements(RunState& run) {
  if (!RewindForPass(run)) {
    return false;
  }
  WalkDeckFile(&run, &run.deck, includePassDeck, &includePassInclude);
  if (!RewindForPass(run)) {
    return false;
  }
  WalkDeckFile(&run, &run.deck, elementPassDeck, &elementPassInclude);
  return true;
}

/// Pass 4. False when the deck's text can't be had again.
bool ReadLoads(RunState& run) {
  if (!RewindForPass(run)) {
    return false;
  }
  CollectGapGroups(run);
  WalkDeckFile(&run, &run.deck, loadPassDeck, &loadPassInclude);
  EndProgress();
  return true;
}

/// The passes and stages, on an open deck.
RunResult ReadAndBuild(RunState& run, std::FILE* deck) {
  if (!ReadFirstChunk(run, deck)) {
    return runDone;
  }
  ClearGlobalIds();
  OpenModel(run);
  if (run.model == nullptr) {
    return runDone;
  }
  if (!ReadNodes(run)) {
    return runNoNodes;
  }
  if (!ReadElements(run)) {
    return runDone;
  }
  RunStages(TransitionStages(), run);
  LogElementSummary(run.logPath, run.counters);
  if (!HasElements(run)) {
    return runNoElements;
  }
  RunStages(StagesBehindElements(), run);
  if (!ReadLoads(run)) {
    return runDone;
  }
  RunStages(StagesBehindLoads(), run);
  return runDone;
}

/// The run on an open deck of `length` bytes.
RunResult RunOnDeck(RunState& run, std::FILE* deck, std::int64_t length) {
  BuildLogPath(run.logPath, sizeof(run.logPath));
  StartLog(run.logPath);
  if (!ScanDeck(run)) {
    return runNoDeck;
  }
  OpenProgress();
  SubcaseNeedsCases = 0;
  SetUpTables(&run);
  BeginProgress(&run.progress, length);
  const RunResult result = ReadAndBuild(run, deck);
  // Required: a run that ends for want of nodes or elements leaves its log without the last lines.
  if (result == runDone) {
    EndLog(run.logPath);
  }
  ReleaseRun(&run);
  return result;
}

}  // namespace

std::int32_t TranslateDeck(const char* deckPath, void* /*reserved*/, BoundaryStore* boundaryStore, MaterialStore* materialStore,
                           HostProject* project, CurveStore* curveStore, double splitFaceValue, std::int32_t earlyTopology,
                           std::int32_t thicknessPrecision, std::int32_t targetSolver, GroupStore* groupStore, std::uint8_t repairMesh,
                           std::uint8_t splitFaceRepair) {
  if (deckPath == nullptr) {
    return runNoNodes;
  }
  std::FILE* deck = OpenFileUtf8(deckPath, "rb");
  if (deck == nullptr) {
    return runNoDeck;
  }
  RunState run;
  run.deckPath = deckPath;
  run.host = {materialStore, boundaryStore, project, curveStore, groupStore};
  run.options = {splitFaceValue, earlyTopology, thicknessPrecision, targetSolver, repairMesh, splitFaceRepair};
  const std::int64_t length = FileLength(deck);
  const RunResult result = length > 0 ? RunOnDeck(run, deck, length) : runNoDeck;
  std::fclose(deck);
  return result;
}

}  // namespace btz
