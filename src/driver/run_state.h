// Everything that lives for one run: what the host handed in, the files, the counters, and the tables and lists of the run's own frame. The
// stages and the rows of the pass tables get it; the readers behind them get only what they need.
#pragma once

#include <btz/containers.h>

#include "analysis/set_combination.h"
#include "deck/deck_buffer.h"
#include "driver/progress.h"
#include "host/host_interfaces.h"
#include "loads/forces.h"
#include "loads/pressures.h"
#include "support/indexed_list.h"

namespace btz {

/// The host's objects, by role. Never tested for null, but for the group store, which may be.
struct HostStores {
  MaterialStore* materials;
  BoundaryStore* boundary;
  HostProject* project;
  CurveStore* curves;
  GroupStore* groups;
};

/// Arguments that act on the finishing stages only.
struct RunOptions {
  double splitFaceValue;            ///< Above 0.0: the split face stage runs with it.
  std::int32_t earlyTopology;       ///< 1: topology before the properties; 0: last, with parts renumbered; else neither.
  std::int32_t thicknessPrecision;  ///< Decimals to which a shell thickness is rounded.
  std::int32_t targetSolver;        ///< 0: NASTRAN; else RADIOSS.
  std::uint8_t repairMesh;          ///< Exactly 1: defects are counted and repaired.
  std::uint8_t splitFaceRepair;     ///< Exactly 1: split parts are merged again.
};

/// Families of cards that are counted.
enum Family : std::size_t {
  familyTet,
  familyTri3,
  familyTri6,
  familyQuad4,
  familyQuad8,
  familyHex,
  familyWedge,
  familyBar,
  familyRbe2,
  familyRbe3,
  familyPyramid,
  familyGasket,
  elementFamilyCount,  ///< The families above are the elements: without any of them a run ends with the result 2.
  familyNode = elementFamilyCount,
  familyBush,
  familyForce,
  familyMoment,
  familyPressure,
  familyMass,
  familyCount,
  familyNone = familyCount
};

/// Running numbers in generated names, with the values they start from. Most users add 1 before they write, so their first number is 2; a set
/// is named before its counter is raised, and the plot counter starts one lower.
struct NameCounters {
  std::int32_t pressureOrConvection = 1;
  std::int32_t pointForce = 1;
  std::int32_t mass = 1;
  std::int32_t gap = 1;
  std::int32_t flux = 1;
  std::int32_t thermalLoad = 1;
  std::int32_t rigidBar = 1;
  std::int32_t set = 1;
  std::int32_t plot = 0;
};

/// Lists of the run; the cells of the pooled ones come from the run's list pool.
struct RunLists {
  PooledList faceScratch;
  PooledList rigidElements;
  IndexedList pshell;          ///< PshellRecord by property id.
  IndexedList psolid;          ///< PsolidRecord by property id.
  IndexedList beamProperties;  ///< BeamPropertyRecord by property id.
  PooledList mpc;
  PooledList coordinateSystems;  ///< CsRecord.
  PooledList gridCp;             ///< GridCpRecord.
  IndexedList spc1;              ///< Spc1Record by set and components, the newest first.
  IndexedList materials;         ///< MaterialLink by deck id.
  IndexedList spc;               ///< SpcRecord by set and node, the newest first.
  PooledList tempd;
  PooledList pelas;
  PooledList pgap;
  IndexedList pgask;        ///< PgaskRecord by property id.
  PooledList hostEntities;  ///< Entity, gaps that the host has already.
  PooledList subcases;      ///< SubcaseRecord, in the order of the deck.
};

struct RunState {
  const char* deckPath = nullptr;  ///< UTF-8; its folder is that of the include files.
  HostStores host{};
  RunOptions options{};
  MeshModel* model = nullptr;
  char logPath[1024] = "";  ///< Empty: no log.
  DeckBuffer deck;
  DeckBuffer include;  ///< The include file being walked; includes are not nested.
  Progress progress;
  std::int32_t nodesScanned = 0;     ///< `GRID` lines that the pre-scan counted.
  std::int32_t elementsScanned = 0;  ///< Element lines that the pre-scan counted.
  std::int32_t includesScanned = 0;  ///< Include lines that the pre-scan counted.
  std::int32_t counters[familyCount] = {};
  NameCounters names;
  LoadVector forceReference = {};       ///< What FORCE cards are compared with.
  LoadVector momentReference = {};      ///< What MOMENT cards are compared with.
  CornerValues pressureReference = {};  ///< What PLOAD4 cards are compared with.
  SubcaseIndex subcaseIndex;            ///< For the combination cards.
  bool hasSeenSubcase = false;
  char setName[256] = "";  ///< Name of the current set or surface.
  ListCellPool listPool;   ///< Cells of the run's lists.
  BlockPool recordPool;    ///< Small records that live to the end of the run.
  RunLists lists;
  HashTable gridCdTable;  ///< GridCdRecord by node id.
};

}  // namespace btz
