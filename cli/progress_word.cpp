#include "cli/progress_word.h"

#include "cli/interrupts.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace btz::cli {

#ifdef _WIN32

ProgressWord::ProgressWord() {
  mapping_ = CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, sizeof(std::int32_t), "KRT_PROGRESS");
  if (mapping_ != nullptr) {
    word_ = static_cast<const volatile std::int32_t*>(MapViewOfFile(mapping_, FILE_MAP_READ, 0, 0, sizeof(std::int32_t)));
  }
}

ProgressWord::~ProgressWord() { Remove(); }

void ProgressWord::Remove() {
  if (word_ != nullptr) {
    UnmapViewOfFile(const_cast<const std::int32_t*>(word_));
    word_ = nullptr;
  }
  if (mapping_ != nullptr) {
    CloseHandle(mapping_);
    mapping_ = nullptr;
  }
}

#else

namespace {

constexpr const char* wordName = "/KRT_PROGRESS";

}  // namespace

ProgressWord::ProgressWord() {
  int handle = shm_open(wordName, O_RDWR | O_CREAT | O_EXCL, 0600);
  isMadeHere_ = handle >= 0;
  if (isMadeHere_) {
    RemoveSharedMemoryAtInterrupt(wordName);
    if (ftruncate(handle, sizeof(std::int32_t)) != 0) {
      close(handle);
      Remove();
      return;
    }
  } else {
    handle = shm_open(wordName, O_RDONLY, 0);
  }
  if (handle < 0) {
    return;
  }
  struct stat status;
  if (fstat(handle, &status) == 0 && status.st_size >= static_cast<off_t>(sizeof(std::int32_t))) {
    void* view = mmap(nullptr, sizeof(std::int32_t), PROT_READ, MAP_SHARED, handle, 0);
    word_ = view == MAP_FAILED ? nullptr : static_cast<const volatile std::int32_t*>(view);
  }
  close(handle);
}

ProgressWord::~ProgressWord() { Remove(); }

void ProgressWord::Remove() {
  if (word_ != nullptr) {
    munmap(const_cast<std::int32_t*>(word_), sizeof(std::int32_t));
    word_ = nullptr;
  }
  if (isMadeHere_) {
    shm_unlink(wordName);
    RemoveSharedMemoryAtInterrupt(nullptr);
    isMadeHere_ = false;
  }
}

#endif

}  // namespace btz::cli
