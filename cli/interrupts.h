// What a run leaves on the system for its own time - a temporary folder with the log, the shared progress word - also goes away when the
// user interrupts the program or the reader of its output ends. On Windows only the folder of an interrupted run stays behind.
#pragma once

#include <string>

namespace btz::cli {

/// Names the temporary folder with the one file that may be in it; empty texts when there is none any more.
void RemoveFolderAtInterrupt(const std::string& folder, const std::string& file);

/// Names the shared memory object that has to go; null when there is none any more.
void RemoveSharedMemoryAtInterrupt(const char* name);

}  // namespace btz::cli
