#include "cli/exit_codes.h"

namespace btz::cli {

namespace {

struct ResultMeaning {
  std::int32_t result;
  ExitCode exitCode;
  const char* words;
};

constexpr ResultMeaning meanings[] = {
    {0, exitTranslated, "translated"},
    {1, exitNoNodes, "not translated: the deck holds no node"},
    {2, exitNoElements, "not translated: the deck holds no element"},
    {-5, exitNotUsable, "not translated: the file is not usable"},
};

constexpr ResultMeaning unknownMeaning = {0, exitNotUsable, "ended with a result that is not known"};

const ResultMeaning& MeaningOf(std::int32_t result) {
  for (const ResultMeaning& meaning : meanings) {
    if (meaning.result == result) {
      return meaning;
    }
  }
  return unknownMeaning;
}

}  // namespace

ExitCode ExitCodeOf(std::int32_t result) { return MeaningOf(result).exitCode; }

const char* ResultInWords(std::int32_t result) { return MeaningOf(result).words; }

}  // namespace btz::cli
