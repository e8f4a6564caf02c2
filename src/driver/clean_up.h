// Frees what a run has recorded. Host objects that were handed out stay with the host; lists of host objects lose their cells only.
#pragma once

#include "driver/run_state.h"

namespace btz {

/// The clean-up at the end of a full run: the records of every table and list, in a fixed order. LoadPartList stays filled.
void CleanUp(RunState* run);

/// Frees the records that a run left in its own lists and tables and, but for SolidPartCounts, in the process-wide ones, then the run's
/// pools and blocks. For every exit of a run; behind CleanUp there is little left to do. Counts of an abandoned run add to the next one's.
void ReleaseRun(RunState* run);

/// Frees all records in the process-wide tables and lists.
void FreeProcessRecords();

}  // namespace btz
