#include "driver/clean_up.h"

#include <initializer_list>

#include "analysis/fluid.h"
#include "analysis/frequency_response.h"
#include "analysis/set_combination.h"
#include "deck/name_comments.h"
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
#include "mesh/parts.h"
#include "mesh/rigid_elements.h"
#include "mesh/shells.h"
#include "mesh/solids.h"
#include "mesh/springs.h"
#include "properties/connector_properties.h"
#include "sets/analysis_node_set.h"
#include "sets/pretension.h"
#include "support/block_pool.h"
#include "support/hash_table.h"
#include "support/pooled_list.h"

namespace btz {

namespace {

/// Frees one record with all that it owns.
using FreeRecordFunction = void (*)(void* record);

/// A table and how its records are freed.
struct TableRecords {
  HashTable* table;
  FreeRecordFunction freeRecord;
};

/// A list and how its records are freed.
struct ListRecords {
  PooledList* list;
  FreeRecordFunction freeRecord;
};

// In the order of the clean-up.
constexpr TableRecords tablesBeforeParts[] = {
    {&TemperatureSetTable, ReleaseMemory},
    {&ConvectionPropertyTable, ReleaseMemory},
    {&ThermalMaterialTable, ReleaseMemory},
    {&ConvectionSetTable, ReleaseMemory},
    {&SurfaceElementTable, ReleaseMemory},
    {&FluxTable, ReleaseMemory},
    {&MassGroupTable, ReleaseMemory},
    {&GapElementTable, ReleaseMemory},
    {&BushPropertyTable, ReleaseMemory},
    {&SpringPropertyTable, ReleaseMemory},
    {&SpringPairTable, ReleaseMemory},
    {&PartIdTable, ReleaseMemory},
    {&ReducedShellPropertyTable, ReleaseMemory},
};

constexpr TableRecords tablesOfLoads[] = {
    {&RbarTable, ReleaseMemory},
};

constexpr TableRecords nameTables[] = {
    {&PropertyNameTable, ReleaseMemory}, {&NodeSetNameTable, ReleaseMemory},     {&ElementSetNameTable, ReleaseMemory},
    {&SurfaceNameTable, ReleaseMemory},  {&MaterialCommentTable, ReleaseMemory}, {&PropertyCommentTable, ReleaseMemory},
};

constexpr TableRecords tablesOfAnalysis[] = {
    {&BushInstanceTable, ReleaseMemory},  {&SpringPropertyValueTable, ReleaseMemory},
    {&GasketMidNodeTable, ReleaseMemory}, {&RloadTable, ReleaseMemory},
    {&DareaTable, ReleaseMemory},         {&PretensionAdjustTable, ReleaseMemory},
    {&PretensionTable, ReleaseMemory},    {&FluidTable, ReleaseMemory},
    {&EigrTable, ReleaseMemory},
};

void FreeTable(const TableRecords& records) {
  WalkTable<void>(records.table, records.freeRecord);
  HashClear(records.table);
}

template <std::size_t count>
void FreeTables(const TableRecords (&tables)[count]) {
  for (const TableRecords& records : tables) {
    FreeTable(records);
  }
}

void FreeList(const ListRecords& records) {
  WalkList<void>(records.list, records.freeRecord);
  ListClear(records.list);
}

/// Frees a table's records and its memory, if it holds any.
void DestroyTable(const TableRecords& records) {
  if (HashCount(records.table) == 0) {
    return;
  }
  FreeTable(records);
  HashDestroy(records.table);
}

void FreeIndexedList(IndexedList* list, FreeRecordFunction freeRecord) {
  WalkIndexedList<void>(list, freeRecord);
  IndexedListClear(list);
}

void FreeCardLists(RunState* run) {
  RunLists& lists = run->lists;
  for (PooledList* list : {&lists.rigidElements, &lists.mpc}) {
    FreeList({list, ReleaseMemory});
  }
  FreeIndexedList(&lists.spc, ReleaseMemory);
  FreeIndexedList(&lists.spc1, FreeSpc1Record);
}

/// Indexed tables of the process.
void FreeIndexedTables() {
  for (IndexedList* table : {&NodeEnforcedValueTable, &ForceSetTable, &ForceNodeTable}) {
    FreeIndexedList(table, ReleaseMemory);
  }
  FreeIndexedList(&PressureSetTable, FreePressureSetRecord);
  FreeIndexedList(&LoadSetTable, FreeLoadSetRecord);
}

void FreePropertyLists(RunState* run) {
  RunLists& lists = run->lists;
  for (PooledList* list : {&lists.tempd, &lists.coordinateSystems, &lists.gridCp, &lists.pgap, &lists.pelas}) {
    FreeList({list, ReleaseMemory});
  }
  for (IndexedList* list : {&lists.pshell, &lists.materials, &lists.psolid, &lists.beamProperties, &lists.pgask}) {
    FreeIndexedList(list, ReleaseMemory);
  }
}

/// All records of the run and the process, but for SolidPartCounts.
void FreeRecords(RunState* run) {
  FreeTables(tablesBeforeParts);
  ListClear(&PartList);
  FreeCardLists(run);
  FreeTables(tablesOfLoads);
  for (const TableRecords& records : nameTables) {
    DestroyTable(records);
  }
  FreePropertyLists(run);
  FreeTable({&run->gridCdTable, ReleaseMemory});
  HashDestroy(&run->gridCdTable);
  HashClear(&GapGroupTable);
  FreeTables(tablesOfAnalysis);
  FreeIndexedTables();
  SubcaseIndexClear(&run->subcaseIndex);
  FreeList({&run->lists.subcases, FreeSubcaseRecord});
  FreeList({&TransitionElementList, ReleaseMemory});
  FreeList({&AsetList, ReleaseMemory});
  FreeList({&PretensionBoltList, ReleaseMemory});
}

}  // namespace

void CleanUp(RunState* run) {
  FreeRecords(run);
  DestroyTable({&SolidPartCounts, ReleaseMemory});
}

void ReleaseRun(RunState* run) {
  FreeRecords(run);
  ListClear(&run->lists.faceScratch);
  ListClear(&run->lists.hostEntities);
  ListCellPoolReset(&run->listPool);
  PoolReset(&run->recordPool);
  FreeDeckBuffer(&run->deck);
  FreeDeckBuffer(&run->include);
}

void FreeProcessRecords() {
  FreeTables(tablesBeforeParts);
  FreeTables(tablesOfLoads);
  FreeTables(nameTables);
  FreeTables(tablesOfAnalysis);
  FreeIndexedTables();
  FreeTable({&SolidPartCounts, ReleaseMemory});
  FreeList({&TransitionElementList, ReleaseMemory});
  FreeList({&AsetList, ReleaseMemory});
  FreeList({&PretensionBoltList, ReleaseMemory});
  ListClear(&PartList);
  ListClear(&LoadPartList);
}

}  // namespace btz
