// Runs one golden case through the library itself, in the in-memory host, and judges it. What a failed case really gave stays in its folder
// below the output folder, as `actual.trace` and `actual.log`, to be compared with any tool.
#pragma once

#include <filesystem>
#include <string>

#include "golden_case.h"

namespace btz::golden {

enum class Verdict { Passed, DeckMissing, RunFailed, Differs };

struct Judgement {
  Verdict verdict = Verdict::Passed;
  std::string details;  ///< For a person; whole lines, empty for a case that passed.
};

/// Runs the case and compares its trace, and its log where one is expected.
Judgement JudgeCase(const GoldenCase& golden, const std::filesystem::path& outputFolder);

/// Runs the case and writes what it gives as the expected trace; the expected log too, if there is one. Whoever calls this must read what
/// has changed. The verdict is Passed when the files are written.
Judgement UpdateCase(const GoldenCase& golden, const std::filesystem::path& outputFolder);

}  // namespace btz::golden
