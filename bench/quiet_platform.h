// What a measured run has of the system: its files and nothing else.
#pragma once

#include <cstdio>

#include "platform/platform.h"

namespace btz::bench {

/// The real platform without console output and without a log.
class QuietPlatform final : public Platform {
 public:
  std::FILE* OpenFile(const char* path, const char* mode) override { return SystemPlatform().OpenFile(path, mode); }
  void OpenProgressWord(const char* /*name*/) override {}
  void StoreProgress(std::int32_t /*percent*/) override {}
  void PrintConsole(const char* /*text*/) override {}
  LocalTime Now() override { return {}; }
  bool ReadEnvironment(const char* /*name*/, char* /*dest*/, std::size_t /*capacity*/) override { return false; }
};

}  // namespace btz::bench
