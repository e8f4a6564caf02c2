// The 32-bit word that a host shares for the progress: a file mapping on Windows, POSIX shared memory elsewhere.
#pragma once

#include <cstdint>
#include <random>
#include <string>

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>
#endif

namespace btz::test {

class SharedWord {
 public:
  /// Shares `size` bytes under a name of its own; the word is readable here if they hold one.
  explicit SharedWord(std::size_t size = sizeof(std::int32_t)) : name("BTZ_TEST_" + std::to_string(std::random_device{}())), length(size) {
#ifdef _WIN32
    handle = CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, static_cast<DWORD>(size), name.c_str());
    word = static_cast<std::int32_t*>(MapViewOfFile(handle, FILE_MAP_ALL_ACCESS, 0, 0, size));
#else
    const int handle = shm_open(("/" + name).c_str(), O_RDWR | O_CREAT | O_EXCL, 0600);
    if (ftruncate(handle, static_cast<off_t>(size)) == 0 && size >= sizeof(std::int32_t)) {
      void* view = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED, handle, 0);
      word = view == MAP_FAILED ? nullptr : static_cast<std::int32_t*>(view);
    }
    close(handle);
#endif
  }

  ~SharedWord() {
#ifdef _WIN32
    UnmapViewOfFile(word);
    CloseHandle(handle);
#else
    if (word != nullptr) {
      munmap(word, length);
    }
    shm_unlink(("/" + name).c_str());
#endif
  }

  SharedWord(const SharedWord&) = delete;
  SharedWord& operator=(const SharedWord&) = delete;

  const char* Name() const { return name.c_str(); }
  bool IsShared() const { return word != nullptr; }
  std::int32_t Value() const { return *static_cast<volatile std::int32_t*>(word); }
  void Set(std::int32_t value) { *static_cast<volatile std::int32_t*>(word) = value; }

 private:
  std::string name;
  std::size_t length;
  std::int32_t* word = nullptr;
#ifdef _WIN32
  HANDLE handle = nullptr;
#endif
};

}  // namespace btz::test
