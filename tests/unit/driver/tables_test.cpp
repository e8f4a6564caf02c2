// The inventory of shared state: sizes, keys and equality of every table, what a run empties, and what the clean-up leaves.
#include "driver/tables.h"

#include <gtest/gtest.h>

#include "analysis/fluid.h"
#include "analysis/frequency_response.h"
#include "analysis/set_combination.h"
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

namespace btz::test {
namespace {

struct ExpectedTable {
  const char* name;
  const HashTable* table;
  std::int32_t buckets;  ///< The smallest odd number above the table's size.
  HashFunction hash;
  CompareFunction compare;
};

const ExpectedTable processTables[] = {
    {"PartIdTable", &PartIdTable, 1001, HashFirstInt, nullptr},
    {"ReducedShellPropertyTable", &ReducedShellPropertyTable, 1001, HashFirstInt, nullptr},
    {"GapElementTable", &GapElementTable, 1001, HashFirstInt, CompareOrientation},
    {"BushPropertyTable", &BushPropertyTable, 1001, HashFirstInt, nullptr},
    {"SpringPropertyTable", &SpringPropertyTable, 1001, HashSecondInt, nullptr},
    {"MassGroupTable", &MassGroupTable, 1001, HashTruncatedThirdReal, CompareThirdReal},
    {"ConvectionSetTable", &ConvectionSetTable, 1001, HashFirstInt, nullptr},
    {"ThermalMaterialTable", &ThermalMaterialTable, 1001, HashFirstInt, nullptr},
    {"ConvectionPropertyTable", &ConvectionPropertyTable, 1001, HashFirstInt, nullptr},
    {"SurfaceElementTable", &SurfaceElementTable, 1001, HashFirstInt, nullptr},  // Its records begin with the element id.
    {"FluxTable", &FluxTable, 1001, HashSecondInt, nullptr},
    {"TemperatureSetTable", &TemperatureSetTable, 1001, HashFirstInt, nullptr},
    {"RbarTable", &RbarTable, 1001, HashFirstInt, nullptr},
    {"PropertyNameTable", &PropertyNameTable, 1001, HashFirstInt, nullptr},
    {"SpringPairTable", &SpringPairTable, 1001, HashNodePairMin, CompareNodePair},
    {"BushInstanceTable", &BushInstanceTable, 1001, HashMaskSum, CompareSpringRecords},
    {"SpringPropertyValueTable", &SpringPropertyValueTable, 1001, HashFirstInt, CompareThreeInts},
    {"NodeSetNameTable", &NodeSetNameTable, 1001, HashFirstInt, nullptr},
    {"ElementSetNameTable", &ElementSetNameTable, 1001, HashFirstInt, nullptr},
    {"SurfaceNameTable", &SurfaceNameTable, 1001, HashFirstInt, nullptr},
    {"GapGroupTable", &GapGroupTable, 101, HashFirstInt, nullptr},
    {"RloadTable", &RloadTable, 1001, HashFirstInt, nullptr},
    {"DareaTable", &DareaTable, 1001, HashFirstInt, nullptr},
    {"FluidTable", &FluidTable, 1001, HashFirstInt, nullptr},
    {"EigrTable", &EigrTable, 1001, HashFirstInt, nullptr},
    {"PretensionAdjustTable", &PretensionAdjustTable, 501, HashThirdInt, nullptr},
    {"PretensionTable", &PretensionTable, 501, HashFirstInt, nullptr},
    {"MaterialCommentTable", &MaterialCommentTable, 1001, HashFirstInt, nullptr},
    {"PropertyCommentTable", &PropertyCommentTable, 1001, HashFirstInt, nullptr},
};

std::int32_t* NewId(std::int32_t id) {
  auto* record = static_cast<std::int32_t*>(AllocateZeroed(sizeof(std::int32_t)));
  *record = id;
  return record;
}

/// A record long enough for every callback that reads fields by place.
void* NewRecord() { return AllocateZeroed(256); }

class TablesTest : public testing::Test {
 protected:
  TablesTest() { ResetProcessState(); }
  ~TablesTest() override { ResetProcessState(); }
};

class RunTablesTest : public TablesTest {
 protected:
  RunTablesTest() { SetUpTables(&run); }
  ~RunTablesTest() override { ReleaseRun(&run); }

  std::vector<IndexedList*> IndexedLists() {
    RunLists& lists = run.lists;
    return {&lists.pshell, &lists.psolid, &lists.beamProperties, &lists.materials, &lists.pgask, &lists.spc};
  }

  static SubcaseRecord* NewSubcaseWithSets() {
    auto* subcase = static_cast<SubcaseRecord*>(AllocateZeroed(sizeof(SubcaseRecord)));
    IdSetOpen(&subcase->loadIds);
    IdSetInsert(&subcase->loadIds, 7);
    return subcase;
  }

  static Spc1Record* NewSpc1WithNode() {
    auto* record = static_cast<Spc1Record*>(AllocateZeroed(sizeof(Spc1Record)));
    ListInit(&record->nodes, &ListPool);
    ListAppend(&record->nodes, record);
    return record;
  }

  RunState run;
};

TEST_F(RunTablesTest, EveryProcessTableIsEmptyAndUsable) {
  for (const ExpectedTable& expected : processTables) {
    EXPECT_EQ(expected.table->bucketCount, expected.buckets) << expected.name;
    EXPECT_EQ(expected.table->hash, expected.hash) << expected.name;
    EXPECT_EQ(expected.table->compare, expected.compare) << expected.name;
    EXPECT_EQ(expected.table->userData, nullptr) << expected.name;
    EXPECT_EQ(expected.table->allowDuplicates, 0) << expected.name;
    EXPECT_EQ(HashCount(expected.table), 0) << expected.name;
  }
}

TEST_F(RunTablesTest, TheTableOfDisplacementSystemsBelongsToTheRun) {
  EXPECT_EQ(run.gridCdTable.bucketCount, 50001);
  EXPECT_EQ(run.gridCdTable.hash, HashFirstInt);
  EXPECT_EQ(run.gridCdTable.compare, CompareSignedFirstInt);
  EXPECT_EQ(HashCount(&run.gridCdTable), 0);
}

TEST_F(RunTablesTest, EveryListOfTheRunIsEmptyAndDrawsFromItsPool) {
  for (const PooledList* list :
       {&run.lists.faceScratch, &run.lists.rigidElements, &run.lists.mpc, &run.lists.coordinateSystems, &run.lists.gridCp, &run.lists.tempd,
        &run.lists.pelas, &run.lists.pgap, &run.lists.hostEntities, &run.lists.subcases}) {
    EXPECT_EQ(list->size, 0);
    EXPECT_EQ(list->next, list);
    EXPECT_EQ(list->pool, &run.listPool);
  }
  for (const IndexedList* list : IndexedLists()) {
    EXPECT_EQ(list->size, 0);
    EXPECT_EQ(list->first, nullptr);
  }
  EXPECT_EQ(run.listPool.blocks.blockSize, 4084u);
  EXPECT_EQ(run.recordPool.blockSize, 4084u);
}

TEST_F(RunTablesTest, EveryProcessListDrawsFromThePoolThatOutlivesRuns) {
  for (const PooledList* list : {&PartList, &LoadPartList, &AsetList, &TransitionElementList, &PretensionBoltList}) {
    EXPECT_EQ(list->size, 0);
    EXPECT_EQ(list->pool, &ListPool);
  }
}

TEST_F(RunTablesTest, CountersAndNamesHaveTheirStartValues) {
  for (const std::int32_t counter : run.counters) {
    EXPECT_EQ(counter, 0);
  }
  EXPECT_EQ(run.names.pressureOrConvection, 1);
  EXPECT_EQ(run.names.pointForce, 1);
  EXPECT_EQ(run.names.mass, 1);
  EXPECT_EQ(run.names.gap, 1);
  EXPECT_EQ(run.names.flux, 1);
  EXPECT_EQ(run.names.thermalLoad, 1);
  EXPECT_EQ(run.names.rigidBar, 1);
  EXPECT_EQ(run.names.set, 1);
  EXPECT_EQ(run.names.plot, 0);
  EXPECT_FALSE(run.hasSeenSubcase);
  EXPECT_EQ(run.setName[0], 0);
}

TEST_F(TablesTest, TheGasketTableIsSizedByTheElementsCounted) {
  const auto sizeFor = [](std::int32_t elements) {
    RunState run;
    run.elementsScanned = elements;
    SetUpTables(&run);
    ReleaseRun(&run);
    return GasketMidNodeTableSize;
  };
  EXPECT_EQ(sizeFor(0), 0);
  EXPECT_EQ(sizeFor(25), 100);
  EXPECT_GT(sizeFor(INT32_MAX), 0);
}

TEST_F(TablesTest, ANewRunForgetsTheRecordsOfProcessTables) {
  RunState first;
  SetUpTables(&first);
  ReleaseRun(&first);
  std::int32_t id = 7;
  ASSERT_EQ(HashInsert(&PartIdTable, &id), 1);
  RunState second;
  SetUpTables(&second);
  EXPECT_EQ(HashCount(&PartIdTable), 0);
  EXPECT_EQ(HashFind(&PartIdTable, &id), nullptr);
  ReleaseRun(&second);
}

TEST_F(TablesTest, ANewRunEmptiesTheListsThatHoldHostObjectsButNotTheFacesThatLoadsUse) {
  int part = 0;
  for (PooledList* list : {&PartList, &LoadPartList, &AsetList, &TransitionElementList, &PretensionBoltList}) {
    ListAppend(list, &part);
  }
  RunState run;
  SetUpTables(&run);
  EXPECT_EQ(PartList.size, 0);
  EXPECT_EQ(AsetList.size, 0);
  EXPECT_EQ(TransitionElementList.size, 0);
  EXPECT_EQ(PretensionBoltList.size, 0);
  EXPECT_EQ(LoadPartList.size, 1);
  ReleaseRun(&run);
  EXPECT_EQ(LoadPartList.size, 1);
}

TEST_F(TablesTest, ANewRunKeepsTheCountsOfThePreScan) {
  HashCreate(&SolidPartCounts, 1000, HashFirstInt, nullptr, nullptr, 0);
  HashInsert(&SolidPartCounts, NewId(5));
  RunState run;
  SetUpTables(&run);
  EXPECT_EQ(HashCount(&SolidPartCounts), 1);
  ReleaseRun(&run);
  EXPECT_EQ(HashCount(&SolidPartCounts), 1);  // Only the clean-up of a full run frees them.
}

TEST_F(TablesTest, ANewRunStartsWithoutADefaultPart) {
  DefaultPartId = 9;
  RunState run;
  SetUpTables(&run);
  EXPECT_EQ(DefaultPartId, 0);
  ReleaseRun(&run);
}

TEST_F(TablesTest, TablesThatNoRunHasMadeAreEmpty) {
  const std::int32_t id = 1;
  for (const ExpectedTable& expected : processTables) {
    EXPECT_EQ(HashCount(expected.table), 0) << expected.name;
    EXPECT_EQ(expected.table->bucketCount, 0) << expected.name;
  }
  EXPECT_EQ(HashCount(&SolidPartCounts), 0);
  EXPECT_EQ(HashFind(&SolidPartCounts, &id), nullptr);
}

TEST_F(RunTablesTest, TheCleanUpEmptiesEveryTable) {
  for (const ExpectedTable& expected : processTables) {
    if (expected.table != &GapGroupTable) {  // Its records are the run's.
      ASSERT_EQ(HashInsert(const_cast<HashTable*>(expected.table), NewRecord()), 1) << expected.name;
    }
  }
  auto* group = static_cast<std::int32_t*>(PoolAllocate(&run.recordPool, sizeof(std::int32_t)));
  HashInsert(&GapGroupTable, group);
  HashInsert(&run.gridCdTable, AllocateZeroed(sizeof(GridCdRecord)));
  HashCreate(&SolidPartCounts, 1000, HashFirstInt, nullptr, nullptr, 0);
  HashInsert(&SolidPartCounts, AllocateZeroed(sizeof(PropertyElementCountRecord)));
  CleanUp(&run);
  for (const ExpectedTable& expected : processTables) {
    EXPECT_EQ(HashCount(expected.table), 0) << expected.name;
  }
  EXPECT_EQ(HashCount(&run.gridCdTable), 0);
  EXPECT_EQ(HashCount(&SolidPartCounts), 0);
  EXPECT_EQ(SolidPartCounts.bucketCount, 0);
  EXPECT_EQ(PropertyNameTable.bucketCount, 0);  // Destroyed, where it held a name.
}

TEST_F(RunTablesTest, TheCleanUpEmptiesTheListsOfRecords) {
  for (PooledList* list : {&run.lists.rigidElements, &run.lists.mpc, &run.lists.coordinateSystems, &run.lists.gridCp, &run.lists.tempd,
                           &run.lists.pelas, &run.lists.pgap}) {
    ListAppend(list, AllocateZeroed(64));
  }
  for (IndexedList* list : IndexedLists()) {
    IndexedListAppend(list, 7, AllocateZeroed(64));
  }
  ListAppend(&run.lists.subcases, NewSubcaseWithSets());
  IndexedListAppend(&run.lists.spc1, 7, NewSpc1WithNode());
  ListAppend(&TransitionElementList, AllocateZeroed(sizeof(TransitionTetRecord)));
  int part = 0;
  ListAppend(&PartList, &part);
  ListAppend(&LoadPartList, &part);
  CleanUp(&run);
  EXPECT_EQ(PartList.size, 0);
  EXPECT_EQ(LoadPartList.size, 1);
  EXPECT_EQ(run.lists.gridCp.size, 0);
  EXPECT_EQ(run.lists.pelas.size, 0);
  EXPECT_EQ(run.lists.subcases.size, 0);
  EXPECT_EQ(TransitionElementList.size, 0);
  for (const IndexedList* list : IndexedLists()) {
    EXPECT_EQ(list->size, 0);
    EXPECT_EQ(IndexedListFind(list, 7), nullptr);
  }
}

TEST_F(RunTablesTest, TheCleanUpEmptiesTheIndexedTables) {
  for (IndexedList* table : {&NodeEnforcedValueTable, &ForceSetTable, &ForceNodeTable}) {
    IndexedListAppend(table, 7, AllocateZeroed(1024));
  }
  int entity = 0;
  AddToLoadSet(7, constraintSet, reinterpret_cast<Entity*>(&entity));
  CleanUp(&run);
  for (const IndexedList* table : {&NodeEnforcedValueTable, &ForceSetTable, &ForceNodeTable, &PressureSetTable, &LoadSetTable}) {
    EXPECT_EQ(table->size, 0);
    EXPECT_EQ(table->slots, nullptr);
  }
}

TEST_F(RunTablesTest, ACleanUpMayBeFollowedByTheReleaseOfTheRun) {
  HashInsert(&run.gridCdTable, AllocateZeroed(sizeof(GridCdRecord)));
  ListAppend(&run.lists.gridCp, AllocateZeroed(sizeof(GridCpRecord)));
  CleanUp(&run);
  ReleaseRun(&run);
  EXPECT_EQ(run.listPool.blocks.firstBlock, nullptr);
  EXPECT_EQ(run.recordPool.firstBlock, nullptr);
  EXPECT_EQ(run.deck.memory, nullptr);
}

}  // namespace
}  // namespace btz::test
