#include "cli/log_folder.h"

#include <cstdlib>
#include <memory>
#include <system_error>
#include <vector>

#include "cli/interrupts.h"
#include "cli/paths.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <unistd.h>
#endif

namespace btz::cli {

namespace {

namespace fs = std::filesystem;

constexpr const char* logName = "Bdf_Reader_Log.txt";

#ifdef _WIN32

using NativeText = std::wstring;

std::optional<NativeText> GetVariable(const char* name) {
  const NativeText wideName = PathOf(name).native();
  wchar_t value[32768];  // The system's limit for one variable.
  SetLastError(ERROR_SUCCESS);
  const DWORD length = GetEnvironmentVariableW(wideName.c_str(), value, 32768);
  if (length == 0 && GetLastError() == ERROR_ENVVAR_NOT_FOUND) {
    return std::nullopt;
  }
  return NativeText(value, length);
}

/// The library reads the bytes of the ANSI value and takes them for UTF-8, so they go in by the same way.
void SetVariable(const char* name, const char* value) { SetEnvironmentVariableA(name, value); }

void RestoreVariable(const char* name, const std::optional<NativeText>& value) {
  SetEnvironmentVariableW(PathOf(name).c_str(), value ? value->c_str() : nullptr);
}

/// A new folder that nobody else uses; empty when none can be made.
fs::path MakeTemporaryFolder() {
  std::error_code error;
  const fs::path parent = fs::temp_directory_path(error);
  for (int attempt = 0; !error && attempt < 1000; ++attempt) {
    const fs::path folder = parent / ("btz-" + std::to_string(GetCurrentProcessId()) + "-" + std::to_string(attempt));
    if (fs::create_directory(folder, error)) {
      return folder;
    }
  }
  return {};
}

#else

using NativeText = std::string;

std::optional<NativeText> GetVariable(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::nullopt : std::optional<NativeText>(value);
}

void SetVariable(const char* name, const char* value) {
  if (value == nullptr) {
    unsetenv(name);
  } else {
    setenv(name, value, 1);
  }
}

void RestoreVariable(const char* name, const std::optional<NativeText>& value) { SetVariable(name, value ? value->c_str() : nullptr); }

/// A new folder that nobody else uses; empty when none can be made.
fs::path MakeTemporaryFolder() {
  std::error_code error;
  const fs::path parent = fs::temp_directory_path(error);
  if (error) {
    return {};
  }
  std::string name = (parent / "btz-XXXXXX").string();
  return mkdtemp(name.data()) == nullptr ? fs::path() : fs::path(name);
}

#endif

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

}  // namespace

ScopedVariable::ScopedVariable(const char* name, const std::optional<std::string>& utf8Value) : name_(name), before_(GetVariable(name)) {
  SetVariable(name, utf8Value ? utf8Value->c_str() : nullptr);
}

ScopedVariable::~ScopedVariable() { RestoreVariable(name_, before_); }

LogFolder::LogFolder(const std::string& chosen) {
  if (chosen.empty()) {
    temporary_ = MakeTemporaryFolder();
    RemoveFolderAtInterrupt(temporary_.string(), (temporary_ / logName).string());
  }
  folder_ = chosen.empty() ? temporary_ : PathOf(chosen);
  if (folder_.empty()) {
    scratch_.emplace("QX_SCRATCH_DIR", std::nullopt);
    fallback_.emplace("CAE_HOME", std::nullopt);
    return;
  }
  scratch_.emplace("QX_SCRATCH_DIR", Utf8Of(folder_));
}

LogFolder::~LogFolder() { Remove(); }

std::optional<std::string> LogFolder::ReadLog() const {
  const std::unique_ptr<std::FILE, FileCloser> file(folder_.empty() ? nullptr : OpenForReading(folder_ / logName));
  if (!file) {
    return std::nullopt;
  }
  std::string text;
  std::vector<char> block(1 << 16);
  for (std::size_t got = 0; (got = std::fread(block.data(), 1, block.size(), file.get())) > 0;) {
    text.append(block.data(), got);
  }
  // The log's line ends are those of the system.
  std::erase(text, '\r');
  return text;
}

void LogFolder::Remove() {
  if (temporary_.empty()) {
    return;
  }
  std::error_code ignored;
  fs::remove(temporary_ / logName, ignored);
  fs::remove(temporary_, ignored);
  RemoveFolderAtInterrupt("", "");
  temporary_.clear();
}

}  // namespace btz::cli
