// The text log of a run. It is not kept open: each message opens it in append mode, writes and closes it again, so that it is complete on
// disk whatever a later crash does. A log that can't be opened is silently left out.
#pragma once

#include <cstdint>
#include <cstdio>

namespace btz {

/// Opens the log at `logPath` for one or more messages; null for an empty path or a failed open.
std::FILE* OpenLog(const char* logPath);

/// Writes one message: open, write, close.
void AppendToLog(const char* logPath, const char* text);

/// Writes "*** Failed <word> -> <id> \n": what the host refused, "Node" or "Quad4 Element".
void LogFailure(const char* logPath, const char* word, std::int32_t id);

}  // namespace btz
