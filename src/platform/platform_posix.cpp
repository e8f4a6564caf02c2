// The library on Linux and its like. File names follow the rules of the product's first platform, so that a deck behaves alike on both:
// backslashes separate folders, and a path of 260 or more UTF-16 units can't be opened.
#ifndef _WIN32

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <ctime>

#include "platform/platform.h"
#include "platform/utf8.h"

namespace btz {

namespace {

constexpr std::size_t longestPath = 4 * 260;

/// Copies `path` with "/" for every backslash; false when it is no valid UTF-8 or too long.
bool ToSystemPath(const char* path, char (&dest)[longestPath]) {
  const std::int32_t units = CountUtf16Units(path);
  if (units < 0 || units > 259) {
    return false;
  }
  std::size_t i = 0;
  for (; path[i] != 0; ++i) {
    dest[i] = path[i] == '\\' ? '/' : path[i];
  }
  dest[i] = 0;
  return true;
}

class PosixPlatform final : public Platform {
 public:
  std::FILE* OpenFile(const char* path, const char* mode) override {
    char systemPath[longestPath];
    if (path == nullptr || !ToSystemPath(path, systemPath)) {
      return nullptr;
    }
    struct stat status;
    if (stat(systemPath, &status) == 0 && !S_ISREG(status.st_mode)) {
      return nullptr;
    }
    return std::fopen(systemPath, mode);
  }

  void OpenProgressWord(const char* name) override {
    if (word != nullptr) {
      munmap(word, sizeof(std::int32_t));
      word = nullptr;
    }
    char object[64] = "/";
    std::strncat(object, name, sizeof(object) - 2);
    const int handle = shm_open(object, O_RDWR, 0);
    if (handle < 0) {
      return;
    }
    struct stat status;
    if (fstat(handle, &status) == 0 && status.st_size >= static_cast<off_t>(sizeof(std::int32_t))) {
      void* view = mmap(nullptr, sizeof(std::int32_t), PROT_READ | PROT_WRITE, MAP_SHARED, handle, 0);
      word = view == MAP_FAILED ? nullptr : static_cast<std::int32_t*>(view);
    }
    close(handle);
  }

  void StoreProgress(std::int32_t percent) override {
    if (word != nullptr) {
      *static_cast<volatile std::int32_t*>(word) = percent;
    }
  }

  void PrintConsole(const char* text) override {
    std::fputs(text, stdout);
    std::fflush(stdout);
  }

  LocalTime Now() override {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return {local.tm_hour, local.tm_min, local.tm_sec};
  }

  bool ReadEnvironment(const char* name, char* dest, std::size_t capacity) override {
    const char* value = std::getenv(name);
    if (value == nullptr) {
      return false;
    }
    const std::size_t length = strnlen(value, capacity - 1);
    std::memcpy(dest, value, length);
    dest[length] = 0;
    return true;
  }

 private:
  std::int32_t* word = nullptr;  // Stays mapped after a run; the next run's OpenProgressWord replaces it.
};

}  // namespace

Platform& SystemPlatform() {
  static PosixPlatform platform;
  return platform;
}

}  // namespace btz

#endif
