// The library on Windows: wide file names, a named file mapping for the progress word.
#ifdef _WIN32

#include <windows.h>

#include "platform/platform.h"

namespace btz {

namespace {

constexpr int wideCapacity = 260;

bool ToWide(const char* text, wchar_t (&dest)[wideCapacity]) {
  // A failed conversion does not leave the buffer empty: only the result tells.
  return MultiByteToWideChar(CP_UTF8, 0, text, -1, dest, wideCapacity) > 0;
}

class WindowsPlatform final : public Platform {
 public:
  std::FILE* OpenFile(const char* path, const char* mode) override {
    wchar_t widePath[wideCapacity] = {};
    wchar_t wideMode[wideCapacity] = {};
    if (!ToWide(path, widePath) || !ToWide(mode, wideMode)) {
      return nullptr;
    }
    return _wfopen(widePath, wideMode);
  }

  void OpenProgressWord(const char* name) override {
    if (word != nullptr) {
      UnmapViewOfFile(word);
      CloseHandle(mapping);
      word = nullptr;
      mapping = nullptr;
    }
    mapping = OpenFileMappingA(FILE_MAP_WRITE, FALSE, name);
    if (mapping == nullptr) {
      return;
    }
    word = static_cast<std::int32_t*>(MapViewOfFile(mapping, FILE_MAP_WRITE, 0, 0, sizeof(std::int32_t)));
    if (word == nullptr) {
      CloseHandle(mapping);
      mapping = nullptr;
    }
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
    SYSTEMTIME now;
    GetLocalTime(&now);
    return {now.wHour, now.wMinute, now.wSecond};
  }

  bool ReadEnvironment(const char* name, char* dest, std::size_t capacity) override {
    // Not getenv: it does not see what the host has set with SetEnvironmentVariable.
    char value[32768] = {};  // The system's limit for one variable.
    SetLastError(ERROR_SUCCESS);
    const DWORD length = GetEnvironmentVariableA(name, value, sizeof(value));
    if (length == 0 && GetLastError() == ERROR_ENVVAR_NOT_FOUND) {
      return false;
    }
    std::size_t i = 0;
    for (; value[i] != 0 && i + 1 < capacity; ++i) {
      dest[i] = value[i];
    }
    dest[i] = 0;
    return true;
  }

 private:
  HANDLE mapping = nullptr;  // Mapping and view stay open after a run; the next run's OpenProgressWord replaces them.
  std::int32_t* word = nullptr;
};

}  // namespace

Platform& SystemPlatform() {
  static WindowsPlatform platform;
  return platform;
}

}  // namespace btz

#endif
