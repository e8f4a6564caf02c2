#include "golden_run.h"

#include <btz/bdf_to_zel.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <deque>
#include <fstream>
#include <iterator>
#include <string_view>
#include <system_error>
#include <vector>

#if defined(_WIN32)
#include <windows.h>
#endif

#include "memory_host/memory_host.h"

namespace btz::golden {

namespace {

/// What a run gives.
struct Output {
  std::string trace;
  std::string log;
  std::string fault;  ///< Why the run counts as failed; else empty.
};

std::string ReadFile(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

bool WriteFile(const std::filesystem::path& path, const std::string& text) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file.write(text.data(), static_cast<std::streamsize>(text.size()));
  file.close();
  return !file.fail();
}

std::string ToUtf8(const std::filesystem::path& path) {
  const std::u8string text = path.generic_u8string();
  return std::string(text.begin(), text.end());
}

/// Sets a variable where the library looks for it: on Windows that is the system's own environment, not the C library's copy of it.
void SetVariable(const char* name, const std::string& value) {
#if defined(_WIN32)
  SetEnvironmentVariableA(name, value.c_str());
#else
  setenv(name, value.c_str(), 1);
#endif
}

/// LF line ends.
std::string WithoutCarriageReturns(std::string text) {
  for (std::size_t position = text.find("\r\n"); position != std::string::npos; position = text.find("\r\n", position)) {
    text.erase(position, 1);
  }
  return text;
}

/// Replaces the time of day in the log's first and last lines by 0:0:0.
std::string WithoutTimes(std::string log) {
  for (const std::string_view head : {"File Reading Started : ", "File Reading Ended : "}) {
    for (std::size_t found = log.find(head); found != std::string::npos; found = log.find(head, found)) {
      found += head.size();
      const std::size_t lineEnd = std::min(log.find('\n', found), log.size());
      std::vector<std::size_t> colons;
      for (std::size_t i = found; i < lineEnd; ++i) {
        if (log[i] == ':') {
          colons.push_back(i);
        } else if (log[i] < '0' || log[i] > '9') {
          colons.clear();
          break;
        }
      }
      const bool isTime = colons.size() == 2 && colons[0] > found && colons[1] > colons[0] + 1 && lineEnd > colons[1] + 1;
      if (isTime) {
        log.replace(found, lineEnd - found, "0:0:0");
      }
    }
  }
  return log;
}

/// A host that stays to the end of the process, as the models of a pre-processor do. The library knows loaded parts of earlier runs by their addresses,
/// and a new part must not get one of these.
MemoryHost& NewHost() {
  static std::deque<MemoryHost> hosts;
  return hosts.emplace_back();
}

Output Run(const GoldenCase& golden, const RunOptions& options, const std::filesystem::path& folder) {
  const std::filesystem::path logPath = folder / "Bdf_Reader_Log.txt";
  std::error_code error;
  std::filesystem::remove(logPath, error);
  std::filesystem::create_directories(folder, error);
  SetVariable("QX_SCRATCH_DIR", ToUtf8(folder));

  Output output;
  TraceSink sink(&output.trace, options.isEveryCallTraced ? TraceSink::Coverage::All : TraceSink::Coverage::Changes);
  MemoryHost& host = NewHost();
  host.SetTrace(&sink);
  host.SetFaultHandler([&](const std::string& message) { output.fault += message + "\n"; });
  const std::string deck = ToUtf8(golden.deck);
  const std::int32_t result =
      BdfToZel_DLL(deck.c_str(), nullptr, host.GetMaterialStore(), host.GetBoundaryStore(), host.GetProject(), host.GetCurveStore(),
                   options.splitFaceValue, options.earlyTopology, options.thicknessPrecision, options.targetSolver,
                   options.hasGroupStore ? host.GetGroupStore() : nullptr, options.repairMesh, options.splitFaceRepair);
  host.FinishTrace(result);
  host.SetTrace(nullptr);
  host.SetFaultHandler(nullptr);
  output.log = WithoutTimes(WithoutCarriageReturns(ReadFile(logPath)));
  return output;
}

std::vector<std::string_view> SplitLines(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    lines.push_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

/// The line at `index` with up to five lines before and behind it.
std::string ShowLines(const char* title, const std::vector<std::string_view>& lines, std::size_t index) {
  constexpr std::size_t around = 5;
  std::string text = std::string("  ") + title + "\n";
  for (std::size_t i = index < around ? 0 : index - around; i < std::min(lines.size(), index + around + 1); ++i) {
    text += (i == index ? "  > " : "    ") + std::to_string(i + 1) + "  " + std::string(lines[i]) + "\n";
  }
  return index >= lines.size() ? text + "  > (end)\n" : text;
}

/// Nothing when both are equal, byte for byte.
std::string ShowDifference(const std::string& what, const std::string& expected, const std::string& actual) {
  if (expected == actual) {
    return "";
  }
  const std::vector<std::string_view> expectedLines = SplitLines(expected);
  const std::vector<std::string_view> actualLines = SplitLines(actual);
  std::size_t first = 0;
  while (first < expectedLines.size() && first < actualLines.size() && expectedLines[first] == actualLines[first]) {
    ++first;
  }
  if (first == expectedLines.size() && first == actualLines.size()) {
    return what + " differs in its last line end\n";
  }
  return what + " differs at line " + std::to_string(first + 1) + "\n" + ShowLines("expected:", expectedLines, first) +
         ShowLines("actual:", actualLines, first);
}

/// What judging and updating share: a run, or the verdict that there can be none.
Judgement Produce(const GoldenCase& golden, const std::filesystem::path& folder, Output* output) {
  if (!std::filesystem::is_regular_file(golden.deck)) {
    return {Verdict::DeckMissing, "deck missing: " + ToUtf8(golden.deck) + "\n"};
  }
  const std::optional<RunOptions> options = ParseOptions(golden.optionText);
  if (!options) {
    return {Verdict::RunFailed, "run failed: no options in \"" + golden.optionText + "\"\n"};
  }
  *output = Run(golden, *options, folder);
  if (!output->fault.empty()) {
    return {Verdict::RunFailed, "run failed: " + output->fault};
  }
  return {};
}

}  // namespace

Judgement JudgeCase(const GoldenCase& golden, const std::filesystem::path& outputFolder) {
  const std::filesystem::path folder = outputFolder / golden.name;
  std::error_code error;
  std::filesystem::remove_all(folder, error);
  Output output;
  Judgement judgement = Produce(golden, folder, &output);
  if (judgement.verdict != Verdict::Passed) {
    return judgement;
  }
  judgement.details = ShowDifference("trace", ReadFile(golden.trace), output.trace);
  if (std::filesystem::is_regular_file(golden.log)) {
    judgement.details += ShowDifference("log", WithoutCarriageReturns(ReadFile(golden.log)), output.log);
  }
  if (judgement.details.empty()) {
    return judgement;
  }
  judgement.verdict = Verdict::Differs;
  if (WriteFile(folder / "actual.trace", output.trace) && WriteFile(folder / "actual.log", output.log)) {
    judgement.details += "both are in " + ToUtf8(folder) + "\n";
  }
  return judgement;
}

Judgement UpdateCase(const GoldenCase& golden, const std::filesystem::path& outputFolder) {
  Output output;
  const Judgement judgement = Produce(golden, outputFolder / golden.name, &output);
  if (judgement.verdict != Verdict::Passed) {
    return judgement;
  }
  const bool hasLog = std::filesystem::is_regular_file(golden.log);
  if (!WriteFile(golden.trace, output.trace) || (hasLog && !WriteFile(golden.log, output.log))) {
    return {Verdict::RunFailed, "run failed: can't write " + ToUtf8(golden.trace) + "\n"};
  }
  return judgement;
}

}  // namespace btz::golden
