// A mesh model of the in-memory host with its trace, and card texts to read from: what the tests of the readers share.
#pragma once

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "deck/deck_buffer.h"
#include "driver/clean_up.h"
#include "driver/tables.h"
#include "memory_host/memory_host.h"
#include "mesh/parts.h"
#include "support/hash_table.h"
#include "support/pooled_list.h"
#include "tests/unit/testing/fake_platform.h"
#include "tests/unit/testing/temporary_folder.h"

namespace btz::test {

/// A card of fields of 8 columns; the last field is not padded.
inline std::string Card8(const std::vector<std::string>& fields) {
  std::string card;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    card.resize(8 * i, ' ');
    card += fields[i];
  }
  return card;
}

/// A line of large fields: a head of 8 columns, then fields of 16; the last field is not padded.
inline std::string Card16(const std::vector<std::string>& fields) {
  std::string card;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    card.resize(i == 0 ? 0 : 8 + 16 * (i - 1), ' ');
    card += fields[i];
  }
  return card;
}

/// Card text in a block of just its size: whoever reads or writes behind its NUL is found out by the address sanitizer. A NUL stands in front.
class CardText {
 public:
  explicit CardText(std::string_view text) : bytes(text.size() + 2, 0) {
    if (!text.empty()) {
      std::memcpy(bytes.data() + 1, text.data(), text.size());
    }
    cursor = bytes.data() + 1;
  }
  CardText(const CardText&) = delete;
  CardText& operator=(const CardText&) = delete;

  /// What stands at the cursor.
  std::string Rest() const { return cursor; }

  CardCursor cursor = nullptr;

 private:
  std::vector<char> bytes;
};

/// The lines of a text, without their line feeds.
inline std::vector<std::string> LinesOf(std::string_view text) {
  std::vector<std::string> lines;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t feed = text.find('\n', at);
    const std::size_t end = feed == std::string_view::npos ? text.size() : feed;
    lines.emplace_back(text.substr(at, end - at));
    at = end + 1;
  }
  return lines;
}

class MeshTest : public testing::Test {
 protected:
  explicit MeshTest(const HostOptions& options = HostOptions()) : host(options) {
    ResetProcessState();
    SetUpTables(&run);
    host.GetProject()->GetMeshModel(&model, 1);
    host.SetTrace(&sink);
  }

  ~MeshTest() override {
    ReleaseRun(&run);
    ResetProcessState();
  }

  /// Makes nodes 1 to `count` without a trace.
  void MakeNodes(std::int32_t count) {
    const std::string before = trace;
    for (std::int32_t id = 1; id <= count; ++id) {
      const double position[3] = {static_cast<double>(id), 0.0, 0.0};
      model->CreateNode(id, position, 0);
    }
    trace = before;
  }

  /// Calls that changed the host, since the last time they were asked for.
  std::vector<std::string> Calls() {
    const std::vector<std::string> lines = LinesOf(trace);
    trace.clear();
    return lines;
  }

  std::string Log() const { return folder.ReadText("log.txt"); }

  TemporaryFolder folder;
  FakePlatform platform;
  ScopedPlatform scope{platform};
  std::string logFile = folder.Path("log.txt");
  const char* logPath = logFile.c_str();
  std::string trace;
  TraceSink sink{&trace};
  MemoryHost host;
  RunState run;
  MeshModel* model = nullptr;
};

}  // namespace btz::test
