// Whole runs into the in-memory host: a deck in a folder of its own, the log beside it, and what the host was told.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "driver/tables.h"
#include "driver/translate_deck.h"
#include "memory_host/memory_host.h"
#include "tests/unit/testing/fake_platform.h"
#include "tests/unit/testing/temporary_folder.h"

namespace btz::test {

/// Arguments of a run beside its deck and the host's objects.
struct Arguments {
  double splitFaceValue = 0.0;
  std::int32_t earlyTopology = 0;
  std::int32_t thicknessPrecision = 0;
  std::int32_t targetSolver = 0;
  bool hasGroupStore = true;
  std::uint8_t repairMesh = 0;
  std::uint8_t splitFaceRepair = 0;
};

/// Four nodes and a quadrilateral of the property 7: the smallest deck that is translated to the end.
inline constexpr std::string_view quadDeck =
    "GRID    1       0       0.0     0.0     0.0\n"
    "GRID    2       0       1.0     0.0     0.0\n"
    "GRID    3       0       1.0     1.0     0.0\n"
    "GRID    4       0       0.0     1.0     0.0\n"
    "CQUAD4  1       7       1       2       3       4\n"
    "ENDDATA\n";

/// One host and what it was told.
struct TracedHost {
  explicit TracedHost(const HostOptions& options = HostOptions(), TraceSink::Coverage coverage = TraceSink::Coverage::Changes)
      : sink(&trace, coverage), host(options) {
    host.SetTrace(&sink);
  }

  /// The calls so far, one a line.
  std::vector<std::string> Calls() const {
    std::vector<std::string> calls;
    for (std::size_t at = 0; at < trace.size();) {
      const std::size_t feed = trace.find('\n', at);
      calls.push_back(trace.substr(at, feed - at));
      at = feed + 1;
    }
    return calls;
  }

  /// The calls whose text holds `part`.
  std::vector<std::string> CallsWith(std::string_view part) const {
    std::vector<std::string> found;
    for (std::string& call : Calls()) {
      if (call.find(part) != std::string::npos) {
        found.push_back(std::move(call));
      }
    }
    return found;
  }

  std::string trace;
  TraceSink sink;
  MemoryHost host;
};

class RunTest : public testing::Test {
 protected:
  RunTest() {
    ResetProcessState();
    platform.environment = {{"QX_SCRATCH_DIR", folder.Path()}};
  }
  ~RunTest() override { ResetProcessState(); }

  std::int32_t TranslateFile(const char* path, TracedHost& traced, const Arguments& arguments = Arguments()) {
    MemoryHost& host = traced.host;
    return TranslateDeck(path, nullptr, host.GetBoundaryStore(), host.GetMaterialStore(), host.GetProject(), host.GetCurveStore(),
                         arguments.splitFaceValue, arguments.earlyTopology, arguments.thicknessPrecision, arguments.targetSolver,
                         arguments.hasGroupStore ? host.GetGroupStore() : nullptr, arguments.repairMesh, arguments.splitFaceRepair);
  }

  std::int32_t Translate(std::string_view deck, TracedHost& traced, const Arguments& arguments = Arguments()) {
    return TranslateFile(folder.Write("deck.bdf", deck).c_str(), traced, arguments);
  }

  std::string Log() const { return folder.ReadText("Bdf_Reader_Log.txt"); }

  bool HasLog() const { return folder.Exists("Bdf_Reader_Log.txt"); }

  TemporaryFolder folder;
  FakePlatform platform;
  ScopedPlatform scope{platform};
};

}  // namespace btz::test
