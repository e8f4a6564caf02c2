// A platform for tests: records what the library does to the system and answers from fields that the test sets. Files are opened for real,
// through the system's platform. Put it in force with `ScopedPlatform scope(fake);`.
#pragma once

#include <cstdint>
#include <cstdio>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/platform.h"
#include "support/text.h"

namespace btz::test {

class FakePlatform final : public Platform {
 public:
  /// One call of OpenFile.
  struct Opening {
    std::string path;
    std::string mode;
    bool succeeded;
  };

  std::vector<Opening> openings;                   ///< Every file opened or tried, in order.
  std::set<std::string> refusedPaths;              ///< Paths that can't be opened.
  bool hasProgressWord = true;                     ///< Whether a host shares a word, that is, whether stores arrive in `progress`.
  std::vector<std::string> progressNames;          ///< Names of the words asked for, in order.
  std::vector<std::int32_t> progress;              ///< Every store into the word since it was opened, in order.
  std::string console;                             ///< All console output.
  LocalTime now{12, 34, 56};                       ///< The clock, which stands still.
  std::map<std::string, std::string> environment;  ///< All variables there are; the real ones are hidden.

  std::FILE* OpenFile(const char* path, const char* mode) override {
    std::FILE* file = refusedPaths.count(path) == 0 ? SystemPlatform().OpenFile(path, mode) : nullptr;
    openings.push_back({path, mode, file != nullptr});
    return file;
  }

  void OpenProgressWord(const char* name) override {
    progressNames.push_back(name);
    isWordOpen = hasProgressWord;
  }

  void StoreProgress(std::int32_t percent) override {
    if (isWordOpen) {
      progress.push_back(percent);
    }
  }

  void PrintConsole(const char* text) override { console += text; }

  LocalTime Now() override { return now; }

  bool ReadEnvironment(const char* name, char* dest, std::size_t capacity) override {
    const auto found = environment.find(name);
    if (found == environment.end()) {
      return false;
    }
    CopyText(dest, capacity, found->second.c_str());
    return true;
  }

  /// Number of openings of `path` with `mode` that succeeded.
  std::int32_t CountOpenings(std::string_view path, std::string_view mode) const {
    std::int32_t count = 0;
    for (const Opening& opening : openings) {
      count += opening.succeeded && opening.path == path && opening.mode == mode ? 1 : 0;
    }
    return count;
  }

 private:
  bool isWordOpen = false;
};

}  // namespace btz::test
