#include "cli/interrupts.h"

#ifndef _WIN32

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <cstring>

namespace btz::cli {

namespace {

constexpr std::size_t longestPath = 4096;

// Plain memory, because a signal handler may not ask for more.
char folderPath[longestPath];
char filePath[longestPath];
std::atomic<bool> hasFolder = false;
std::atomic<const char*> sharedMemoryName = nullptr;
static_assert(std::atomic<const char*>::is_always_lock_free, "read in a signal handler");

void CleanUpAndDie(int signal) {
  if (hasFolder) {
    unlink(filePath);
    rmdir(folderPath);
  }
  if (const char* name = sharedMemoryName) {
    shm_unlink(name);
  }
  std::signal(signal, SIG_DFL);
  raise(signal);
}

void WatchInterrupts() {
  static const bool isWatching = [] {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGPIPE}) {
      struct sigaction before = {};
      sigaction(signal, nullptr, &before);
      if (before.sa_handler == SIG_DFL) {
        struct sigaction action = {};
        action.sa_handler = CleanUpAndDie;
        sigaction(signal, &action, nullptr);
      }
    }
    return true;
  }();
  static_cast<void>(isWatching);
}

}  // namespace

void RemoveFolderAtInterrupt(const std::string& folder, const std::string& file) {
  hasFolder = false;
  if (folder.empty() || folder.size() >= longestPath || file.size() >= longestPath) {
    return;
  }
  std::strcpy(folderPath, folder.c_str());
  std::strcpy(filePath, file.c_str());
  hasFolder = true;
  WatchInterrupts();
}

void RemoveSharedMemoryAtInterrupt(const char* name) {
  sharedMemoryName = name;
  WatchInterrupts();
}

}  // namespace btz::cli

#else

namespace btz::cli {

void RemoveFolderAtInterrupt(const std::string&, const std::string&) {}

void RemoveSharedMemoryAtInterrupt(const char*) {}

}  // namespace btz::cli

#endif
