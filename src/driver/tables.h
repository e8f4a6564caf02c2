// Inventory of the translator's shared state: every table and list, set up in order here, and freed by clean_up.
#pragma once

#include "driver/run_state.h"

namespace btz {

/// Sets up the run's pools, all its lists and tables, and every process-wide table: empty and usable. SolidPartCounts is left as it is: the
/// pre-scan has filled it. Lists of host objects and records that an abandoned run left behind are emptied, so that no part of its model is
/// called again.
void SetUpTables(RunState* run);

/// Sets up the process-wide tables and lists as at the library's load. Nothing that a table holds is freed: the tables are forgotten.
void InitProcessState();

/// Frees all records and memory of the process-wide tables and lists, as at the library's unload, and sets them up anew: for tests.
void ResetProcessState();

}  // namespace btz
