// All that differs between the operating systems, and the one seam through which tests see and steer it: opening files by UTF-8 path, the
// shared progress word, the console, the local time and the environment. The library reaches the system only through the routines here.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>

namespace btz {

/// Time of day, local.
struct LocalTime {
  std::int32_t hour;
  std::int32_t minute;
  std::int32_t second;
};

/// What the library asks of the operating system. SystemPlatform() is the real one; tests put their own in its place.
class Platform {
 public:
  /// Opens `path` (UTF-8, "/" and "\\" both accepted) with the mode of fopen; null when it can't be opened. A path of more than 259 UTF-16
  /// units and anything but a regular file are refused.
  virtual std::FILE* OpenFile(const char* path, const char* mode) = 0;
  /// Connects to the 32-bit word `name` that the host shares; without one, later stores go nowhere.
  virtual void OpenProgressWord(const char* name) = 0;
  /// Stores a percentage in the word, if there is one.
  virtual void StoreProgress(std::int32_t percent) = 0;
  /// Writes to the console at once.
  virtual void PrintConsole(const char* text) = 0;
  virtual LocalTime Now() = 0;
  /// Copies the value of the variable, cut to `capacity - 1` bytes, into `dest`; false (and `dest` untouched) when it is not set. A variable
  /// set to the empty text counts as set.
  virtual bool ReadEnvironment(const char* name, char* dest, std::size_t capacity) = 0;

 protected:
  ~Platform() = default;
};

/// The operating system.
Platform& SystemPlatform();

/// The platform in force: SystemPlatform() unless a test has put another in its place.
Platform& CurrentPlatform();

/// Puts another platform in force for its own lifetime. For tests.
class ScopedPlatform {
 public:
  explicit ScopedPlatform(Platform& platform);
  ~ScopedPlatform();
  ScopedPlatform(const ScopedPlatform&) = delete;
  ScopedPlatform& operator=(const ScopedPlatform&) = delete;

 private:
  Platform* before;
};

/// The one way to open a file: CurrentPlatform().OpenFile.
std::FILE* OpenFileUtf8(const char* path, const char* mode);

/// Length of an open file in bytes, or -1; the position is the file's end afterwards.
std::int64_t FileLength(std::FILE* file);

}  // namespace btz
