// A host program as an application would be one: it loads the DLL when it runs, makes the shared progress word, and hands in its stores.
//
//   dll_host DLL FOLDER DECK [OPTIONS]
//
// OPTIONS is written as in a golden file's name: `.early_topology=1.split_face=0.5`. The deck is translated twice, each time into a fresh
// in-memory host. Into FOLDER go the traces, `first.trace` and `second.trace`, and `progress.txt`: what the progress word showed at the host
// calls of the first run and after it, a line for each change. Ends with 0 when both runs came back, whatever their result.
#include <btz/bdf_to_zel.h>

#include <cstdio>
#include <deque>
#include <optional>
#include <string>
#include <vector>

#include <windows.h>

#include "golden/golden_case.h"
#include "memory_host/memory_host.h"

namespace {

using EntryPoint = decltype(&BdfToZel_DLL);

/// The word that the library reports its percentage in, made before the library is called.
class ProgressWord {
 public:
  ProgressWord() : mapping_(CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, sizeof(std::int32_t), "KRT_PROGRESS")) {
    if (mapping_ != nullptr) {
      word_ = static_cast<volatile std::int32_t*>(MapViewOfFile(mapping_, FILE_MAP_ALL_ACCESS, 0, 0, sizeof(std::int32_t)));
    }
  }
  ~ProgressWord() {
    if (word_ != nullptr) {
      UnmapViewOfFile(const_cast<const std::int32_t*>(word_));
    }
    if (mapping_ != nullptr) {
      CloseHandle(mapping_);
    }
  }
  ProgressWord(const ProgressWord&) = delete;
  ProgressWord& operator=(const ProgressWord&) = delete;

  bool Exists() const { return word_ != nullptr; }

  /// Notes the word if it is not the one noted last.
  void Sample() {
    const std::int32_t now = *word_;
    if (samples_.empty() || samples_.back() != now) {
      samples_.push_back(now);
    }
  }

  const std::vector<std::int32_t>& Samples() const { return samples_; }

 private:
  HANDLE mapping_;
  volatile std::int32_t* word_ = nullptr;
  std::vector<std::int32_t> samples_;
};

bool Run(EntryPoint translate, const char* deck, const btz::golden::RunOptions& options, const std::string& tracePath,
         ProgressWord* progress) {
  std::FILE* file = std::fopen(tracePath.c_str(), "wb");
  if (file == nullptr) {
    std::fprintf(stderr, "can't write %s\n", tracePath.c_str());
    return false;
  }
  btz::TraceSink sink(file, options.isEveryCallTraced ? btz::TraceSink::Coverage::All : btz::TraceSink::Coverage::Changes);
  // Hosts stay: the library knows loaded parts of earlier runs by their addresses.
  static std::deque<btz::MemoryHost> hosts;
  btz::MemoryHost& host = hosts.emplace_back();
  host.SetTrace(&sink);
  if (progress != nullptr) {
    host.SetHook([progress](const char*, const char*) { progress->Sample(); });
  }
  const std::int32_t result =
      translate(deck, nullptr, host.GetMaterialStore(), host.GetBoundaryStore(), host.GetProject(), host.GetCurveStore(),
                options.splitFaceValue, options.earlyTopology, options.thicknessPrecision, options.targetSolver,
                options.hasGroupStore ? host.GetGroupStore() : nullptr, options.repairMesh, options.splitFaceRepair);
  if (progress != nullptr) {
    progress->Sample();
  }
  host.FinishTrace(result);
  host.SetTrace(nullptr);
  host.SetHook(nullptr);
  return std::fclose(file) == 0;
}

bool WriteSamples(const std::string& path, const std::vector<std::int32_t>& samples) {
  std::FILE* file = std::fopen(path.c_str(), "wb");
  if (file == nullptr) {
    std::fprintf(stderr, "can't write %s\n", path.c_str());
    return false;
  }
  for (const std::int32_t sample : samples) {
    std::fprintf(file, "%d\n", static_cast<int>(sample));
  }
  return std::fclose(file) == 0;
}

}  // namespace

int main(int argumentCount, char** arguments) {
  if (argumentCount < 4 || argumentCount > 5) {
    std::fprintf(stderr, "usage: dll_host DLL FOLDER DECK [OPTIONS]\n");
    return 64;
  }
  const char* dll = arguments[1];
  const std::string folder = arguments[2];
  const char* deck = arguments[3];
  const std::optional<btz::golden::RunOptions> options = btz::golden::ParseOptions(argumentCount == 5 ? arguments[4] : "");
  if (!options) {
    std::fprintf(stderr, "no options in \"%s\"\n", arguments[4]);
    return 64;
  }
  ProgressWord progress;
  if (!progress.Exists()) {
    std::fprintf(stderr, "can't make the progress word\n");
    return 1;
  }
  const HMODULE library = LoadLibraryA(dll);
  if (library == nullptr) {
    std::fprintf(stderr, "can't load %s: error %lu\n", dll, GetLastError());
    return 1;
  }
  const auto translate = reinterpret_cast<EntryPoint>(reinterpret_cast<void*>(GetProcAddress(library, "BdfToZel_DLL")));
  if (translate == nullptr) {
    std::fprintf(stderr, "no BdfToZel_DLL in %s\n", dll);
    return 1;
  }
  if (!Run(translate, deck, *options, folder + "/first.trace", &progress) ||
      !Run(translate, deck, *options, folder + "/second.trace", nullptr) || !WriteSamples(folder + "/progress.txt", progress.Samples())) {
    return 1;
  }
  return FreeLibrary(library) != 0 ? 0 : 1;
}
