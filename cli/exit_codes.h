// What the program's end tells the shell.
#pragma once

#include <cstdint>

namespace btz::cli {

/// Exit codes of `btz`; `btz --help` tells them too.
enum ExitCode : int {
  exitTranslated = 0,    ///< The run reached its end.
  exitNoNodes = 1,       ///< The deck holds no node, or there was no path.
  exitNoElements = 2,    ///< The deck holds no element.
  exitNotUsable = 3,     ///< The file can't be opened, is empty, or holds nothing that looks like a deck.
  exitWrongUsage = 64,   ///< Unknown command or option, or a value that makes no sense.
  exitHostMisused = 70,  ///< The library called the host in a way that no host allows.
  exitOutputFailed = 74  ///< The result could not be written to standard output.
};

/// Exit code for what the library returned.
ExitCode ExitCodeOf(std::int32_t result);

/// What the library's result means, as the beginning of a sentence: "translated".
const char* ResultInWords(std::int32_t result);

}  // namespace btz::cli
