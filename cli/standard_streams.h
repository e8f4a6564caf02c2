// Standard output belongs to the result alone. The library prints a percentage to the console of its process; while it runs, standard output
// leads nowhere, and the result goes out through a stream of its own, opened before.
#pragma once

#include <cstdio>
#include <string_view>

namespace btz::cli {

/// The program's standard output as it was at the start, in binary mode: line ends are LF on every system.
class ResultStream {
 public:
  ResultStream();
  ~ResultStream();
  ResultStream(const ResultStream&) = delete;
  ResultStream& operator=(const ResultStream&) = delete;

  /// Null when standard output is closed.
  std::FILE* File() { return file_; }

  void Write(std::string_view text);

  /// Writes out what is held back and closes; whether all that was written since the start got through.
  bool Close();

 private:
  std::FILE* file_;
};

/// Leads standard output to the null device for its own lifetime.
class ConsoleGuard {
 public:
  ConsoleGuard();
  ~ConsoleGuard();
  ConsoleGuard(const ConsoleGuard&) = delete;
  ConsoleGuard& operator=(const ConsoleGuard&) = delete;

 private:
  int saved_;  ///< The real standard output; -1 when it could not be put aside.
};

bool IsErrorTerminal();

}  // namespace btz::cli
