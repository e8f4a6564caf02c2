// A host program as an application would be one: it loads the DLL when it runs, makes the shared progress word, and hands in its stores.
//
//   dll_host DLL FOLDER [option...] DECK
//
// The options are those of `btz`. The deck is translated twice, each time into a fresh in-memory host. Into FOLDER go the traces,
// `first.trace` and `second.trace`, and `progress.txt`: what the progress word showed at the host calls of the first run and after it, a
// line for each change. Ends with 0 when both runs came back, whatever their result.
#include <btz/bdf_to_zel.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include <windows.h>

#include "memory_host/memory_host.h"

namespace {

using EntryPoint = decltype(&BdfToZel_DLL);

struct Arguments {
  const char* dll = nullptr;
  std::string folder;
  const char* deck = nullptr;
  double splitFaceValue = 0.0;
  std::int32_t earlyTopology = 0;
  std::int32_t thicknessPrecision = 0;
  std::int32_t targetSolver = 0;
  bool hasGroupStore = true;
  std::uint8_t repairMesh = 0;
  std::uint8_t splitFaceRepair = 0;
  btz::TraceSink::Coverage coverage = btz::TraceSink::Coverage::Changes;
};

bool ParseArguments(int count, char** values, Arguments* arguments) {
  if (count < 4) {
    return false;
  }
  arguments->dll = values[1];
  arguments->folder = values[2];
  arguments->deck = values[count - 1];
  for (int index = 3; index < count - 1; ++index) {
    const std::string option = values[index];
    if (option == "--no-group-store") {
      arguments->hasGroupStore = false;
    } else if (option == "--repair") {
      arguments->repairMesh = 1;
    } else if (option == "--split-repair") {
      arguments->splitFaceRepair = 1;
    } else if (option == "--all") {
      arguments->coverage = btz::TraceSink::Coverage::All;
    } else if (index + 1 >= count - 1) {
      return false;
    } else if (option == "--split-face") {
      arguments->splitFaceValue = std::strtod(values[++index], nullptr);
    } else if (option == "--early-topology") {
      arguments->earlyTopology = std::atoi(values[++index]);
    } else if (option == "--thickness-precision") {
      arguments->thicknessPrecision = std::atoi(values[++index]);
    } else if (option == "--solver") {
      arguments->targetSolver = std::strcmp(values[++index], "radioss") == 0 ? 1 : 0;
    } else {
      return false;
    }
  }
  return true;
}

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

bool Run(EntryPoint translate, const Arguments& arguments, const std::string& tracePath, ProgressWord* progress) {
  std::FILE* file = std::fopen(tracePath.c_str(), "wb");
  if (file == nullptr) {
    std::fprintf(stderr, "can't write %s\n", tracePath.c_str());
    return false;
  }
  btz::MemoryHost host;
  btz::TraceSink sink(file, arguments.coverage);
  host.SetTrace(&sink);
  if (progress != nullptr) {
    host.SetHook([progress](const char*, const char*) { progress->Sample(); });
  }
  const std::int32_t result =
      translate(arguments.deck, nullptr, host.GetMaterialStore(), host.GetBoundaryStore(), host.GetProject(), host.GetCurveStore(),
                arguments.splitFaceValue, arguments.earlyTopology, arguments.thicknessPrecision, arguments.targetSolver,
                arguments.hasGroupStore ? host.GetGroupStore() : nullptr, arguments.repairMesh, arguments.splitFaceRepair);
  if (progress != nullptr) {
    progress->Sample();
  }
  host.FinishTrace(result);
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

int main(int argumentCount, char** argumentValues) {
  Arguments arguments;
  if (!ParseArguments(argumentCount, argumentValues, &arguments)) {
    std::fprintf(stderr, "usage: dll_host DLL FOLDER [option...] DECK\n");
    return 64;
  }
  ProgressWord progress;
  if (!progress.Exists()) {
    std::fprintf(stderr, "can't make the progress word\n");
    return 1;
  }
  const HMODULE library = LoadLibraryA(arguments.dll);
  if (library == nullptr) {
    std::fprintf(stderr, "can't load %s: error %lu\n", arguments.dll, GetLastError());
    return 1;
  }
  const auto translate = reinterpret_cast<EntryPoint>(reinterpret_cast<void*>(GetProcAddress(library, "BdfToZel_DLL")));
  if (translate == nullptr) {
    std::fprintf(stderr, "no BdfToZel_DLL in %s\n", arguments.dll);
    return 1;
  }
  if (!Run(translate, arguments, arguments.folder + "/first.trace", &progress) ||
      !Run(translate, arguments, arguments.folder + "/second.trace", nullptr) ||
      !WriteSamples(arguments.folder + "/progress.txt", progress.Samples())) {
    return 1;
  }
  return FreeLibrary(library) != 0 ? 0 : 1;
}
