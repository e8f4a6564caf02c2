#include "platform/platform.h"

namespace btz {

namespace {

Platform* inForce = nullptr;

}  // namespace

Platform& CurrentPlatform() { return inForce == nullptr ? SystemPlatform() : *inForce; }

ScopedPlatform::ScopedPlatform(Platform& platform) : before(inForce) { inForce = &platform; }

ScopedPlatform::~ScopedPlatform() { inForce = before; }

std::FILE* OpenFileUtf8(const char* path, const char* mode) { return CurrentPlatform().OpenFile(path, mode); }

std::int64_t FileLength(std::FILE* file) {
#ifdef _WIN32
  return _fseeki64(file, 0, SEEK_END) == 0 ? _ftelli64(file) : -1;
#else
  static_assert(sizeof(off_t) == 8, "decks can be longer than 2 GB");
  return fseeko(file, 0, SEEK_END) == 0 ? ftello(file) : -1;
#endif
}

}  // namespace btz
