#include "driver/tables.h"

#include <initializer_list>

#include "analysis/fluid.h"
#include "analysis/frequency_response.h"
#include "deck/name_comments.h"
#include "driver/clean_up.h"
#include "loads/constraints.h"
#include "loads/convection.h"
#include "loads/forces.h"
#include "loads/load_parts.h"
#include "loads/load_sets.h"
#include "loads/pressures.h"
#include "loads/temperatures.h"
#include "materials/thermal_material.h"
#include "mesh/gaps.h"
#include "mesh/gaskets.h"
#include "mesh/masses.h"
#include "mesh/nodes.h"
#include "mesh/parts.h"
#include "mesh/rigid_elements.h"
#include "mesh/shells.h"
#include "mesh/solids.h"
#include "mesh/springs.h"
#include "properties/connector_properties.h"
#include "sets/analysis_node_set.h"
#include "sets/pretension.h"
#include "support/block_pool.h"
#include "support/hash_keys.h"
#include "support/hash_table.h"
#include "support/pooled_list.h"

namespace btz {

namespace {

/// One process-wide table and how a run makes it.
struct TableSetUp {
  HashTable* table;
  std::int32_t size;
  HashFunction hash;
  CompareFunction compare;
};

// GasketMidNodeTable is not among them: four buckets an element are too many for decks without gaskets, so the first gasket makes it. Surface
// elements are kept under their own id, which is the first field of their record.
constexpr TableSetUp processTables[] = {
    {&PartIdTable, 1000, HashFirstInt, nullptr},
    {&ReducedShellPropertyTable, 1000, HashFirstInt, nullptr},
    {&GapElementTable, 1000, HashFirstInt, CompareOrientation},
    {&BushPropertyTable, 1000, HashFirstInt, nullptr},
    {&SpringPropertyTable, 1000, HashSecondInt, nullptr},
    {&MassGroupTable, 1000, HashTruncatedThirdReal, CompareThirdReal},
    {&ConvectionSetTable, 1000, HashFirstInt, nullptr},
    {&ThermalMaterialTable, 1000, HashFirstInt, nullptr},
    {&ConvectionPropertyTable, 1000, HashFirstInt, nullptr},
    {&SurfaceElementTable, 1000, HashFirstInt, nullptr},
    {&FluxTable, 1000, HashSecondInt, nullptr},
    {&TemperatureSetTable, 1000, HashFirstInt, nullptr},
    {&RbarTable, 1000, HashFirstInt, nullptr},
    {&PropertyNameTable, 1000, HashFirstInt, nullptr},
    {&SpringPairTable, 1000, HashNodePairMin, CompareNodePair},
    {&BushInstanceTable, 1000, HashMaskSum, CompareSpringRecords},
    {&SpringPropertyValueTable, 1000, HashFirstInt, CompareThreeInts},
    {&NodeSetNameTable, 1000, HashFirstInt, nullptr},
    {&ElementSetNameTable, 1000, HashFirstInt, nullptr},
    {&SurfaceNameTable, 1000, HashFirstInt, nullptr},
    {&GapGroupTable, 100, HashFirstInt, nullptr},
    {&RloadTable, 1000, HashFirstInt, nullptr},
    {&DareaTable, 1000, HashFirstInt, nullptr},
    {&FluidTable, 1000, HashFirstInt, nullptr},
    {&EigrTable, 1000, HashFirstInt, nullptr},
    {&PretensionAdjustTable, 500, HashThirdInt, nullptr},
    {&PretensionTable, 500, HashFirstInt, nullptr},
    {&MaterialCommentTable, 1000, HashFirstInt, nullptr},
    {&PropertyCommentTable, 1000, HashFirstInt, nullptr},
};

// Tables in which a deck can have millions of records, or millions under one key.
IndexedList* const processIndexedLists[] = {&NodeEnforcedValueTable, &PressureSetTable, &ForceSetTable, &ForceNodeTable, &LoadSetTable};

PooledList* const processLists[] = {&PartList, &LoadPartList, &AsetList, &TransitionElementList, &PretensionBoltList};

constexpr std::int32_t gridCdTableSize = 50000;

void SetUpLists(RunState* run) {
  RunLists& lists = run->lists;
  for (PooledList* list : {&lists.faceScratch, &lists.rigidElements, &lists.mpc, &lists.coordinateSystems, &lists.gridCp, &lists.tempd,
                           &lists.pelas, &lists.pgap, &lists.hostEntities, &lists.subcases}) {
    ListInit(list, &run->listPool);
  }
  for (IndexedList* list : {&lists.pshell, &lists.psolid, &lists.beamProperties, &lists.materials, &lists.pgask, &lists.spc, &lists.spc1}) {
    IndexedListInit(list);
  }
  SubcaseIndexInit(&run->subcaseIndex);
}

/// Four buckets for each element counted, kept within what a table can have.
std::int32_t GasketTableSize(std::int32_t elementCount) {
  constexpr std::int32_t most = INT32_MAX / 16;
  return elementCount < most / 4 ? 4 * elementCount : most;
}

void ReleaseProcessTables() {
  for (const TableSetUp& setUp : processTables) {
    HashRelease(setUp.table);
  }
  HashRelease(&GasketMidNodeTable);
  HashRelease(&SolidPartCounts);
  for (IndexedList* list : processIndexedLists) {
    IndexedListClear(list);
  }
  ListCellPoolReset(&ListPool);
}

/// Load and unload of the library.
struct ProcessState {
  ProcessState() { InitProcessState(); }
  ~ProcessState() { ReleaseProcessTables(); }
};

const ProcessState processState;

}  // namespace

void SetUpTables(RunState* run) {
  ListCellPoolInit(&run->listPool);
  PoolInit(&run->recordPool);
  SetUpLists(run);
  HashInit(&run->gridCdTable);
  HashCreate(&run->gridCdTable, gridCdTableSize, HashFirstInt, CompareSignedFirstInt, nullptr, 0);
  for (const TableSetUp& setUp : processTables) {
    HashCreate(setUp.table, setUp.size, setUp.hash, setUp.compare, nullptr, 0);
  }
  for (IndexedList* list : processIndexedLists) {
    IndexedListClear(list);
  }
  HashDestroy(&GasketMidNodeTable);
  GasketMidNodeTableSize = GasketTableSize(run->elementsScanned);
  for (PooledList* list : {&PartList, &AsetList, &TransitionElementList, &PretensionBoltList}) {
    ListClear(list);
  }
  DefaultPartId = 0;
  HighestNodeId = 0;
}

void InitProcessState() {
  for (const TableSetUp& setUp : processTables) {
    HashInit(setUp.table);
  }
  HashInit(&GasketMidNodeTable);
  HashInit(&SolidPartCounts);
  for (IndexedList* list : processIndexedLists) {
    IndexedListInit(list);
  }
  for (PooledList* list : processLists) {
    ListInit(list, &ListPool);
  }
  DefaultPartId = 0;
  HighestNodeId = 0;
}

void ResetProcessState() {
  FreeProcessRecords();
  ReleaseProcessTables();
  InitProcessState();
}

}  // namespace btz
