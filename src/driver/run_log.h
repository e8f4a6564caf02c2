// The driver's own messages in the log of a run.
#pragma once

#include <cstddef>
#include <cstdint>

namespace btz {

/// Builds the log's path from the environment: the folder named by QX_SCRATCH_DIR, or else by CAE_HOME, and "Bdf_Reader_Log.txt". With
/// neither set the path stays empty, and the run has no log.
void BuildLogPath(char* logPath, std::size_t capacity);

/// Truncates the log and writes its first line.
void StartLog(const char* logPath);

/// Tells how many nodes were read, and that the elements are next.
void LogNodesRead(const char* logPath, std::int32_t nodeCount);

/// Tells the counters of all element families; `counters` is indexed by Family.
void LogElementSummary(const char* logPath, const std::int32_t* counters);

/// Writes the last lines.
void EndLog(const char* logPath);

}  // namespace btz
