#include "cli/standard_streams.h"

#include <fcntl.h>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace btz::cli {

namespace {

constexpr int outputDescriptor = 1;
constexpr int errorDescriptor = 2;

// On Windows the C runtime's own descriptors are meant. The library shares them, because it uses the same runtime.
#ifdef _WIN32
int Duplicate(int descriptor) { return _dup(descriptor); }
bool Redirect(int from, int to) { return _dup2(from, to) == 0; }
void CloseDescriptor(int descriptor) { _close(descriptor); }
int OpenNullDevice() { return _open("NUL", _O_WRONLY | _O_BINARY); }
std::FILE* StreamOf(int descriptor) {
  // Not every runtime takes the mode from here alone.
  _setmode(descriptor, _O_BINARY);
  return _fdopen(descriptor, "wb");
}
bool IsTerminal(int descriptor) { return _isatty(descriptor) != 0; }
#else
int Duplicate(int descriptor) { return dup(descriptor); }
bool Redirect(int from, int to) { return dup2(from, to) >= 0; }
void CloseDescriptor(int descriptor) { close(descriptor); }
int OpenNullDevice() { return open("/dev/null", O_WRONLY); }
std::FILE* StreamOf(int descriptor) { return fdopen(descriptor, "wb"); }
bool IsTerminal(int descriptor) { return isatty(descriptor) != 0; }
#endif

constexpr std::size_t resultBufferSize = 1 << 16;

}  // namespace

ResultStream::ResultStream() : file_(nullptr) {
  const int descriptor = Duplicate(outputDescriptor);
  if (descriptor < 0) {
    return;
  }
  file_ = StreamOf(descriptor);
  if (file_ == nullptr) {
    CloseDescriptor(descriptor);
    return;
  }
  std::setvbuf(file_, nullptr, _IOFBF, resultBufferSize);
}

ResultStream::~ResultStream() { Close(); }

void ResultStream::Write(std::string_view text) {
  if (file_ != nullptr) {
    std::fwrite(text.data(), 1, text.size(), file_);
  }
}

bool ResultStream::Close() {
  if (file_ == nullptr) {
    return false;
  }
  const bool isWhole = std::fflush(file_) == 0 && std::ferror(file_) == 0;
  const bool isClosed = std::fclose(file_) == 0;
  file_ = nullptr;
  return isWhole && isClosed;
}

ConsoleGuard::ConsoleGuard() : saved_(-1) {
  std::fflush(stdout);
  const int nullDevice = OpenNullDevice();
  if (nullDevice < 0) {
    return;
  }
  saved_ = Duplicate(outputDescriptor);
  if (saved_ >= 0) {
    Redirect(nullDevice, outputDescriptor);
  }
  CloseDescriptor(nullDevice);
}

ConsoleGuard::~ConsoleGuard() {
  if (saved_ < 0) {
    return;
  }
  // What the library left in a buffer goes to the null device too.
  std::fflush(stdout);
  Redirect(saved_, outputDescriptor);
  CloseDescriptor(saved_);
}

bool IsErrorTerminal() { return IsTerminal(errorDescriptor); }

}  // namespace btz::cli
