// Where the library writes its log during a run. It takes the folder from the environment; this class sets the variable for its own lifetime
// and puts it back afterwards.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace btz::cli {

/// An environment variable that has another value for the lifetime of this object.
class ScopedVariable {
 public:
  /// No value: the variable is taken out of the environment.
  ScopedVariable(const char* name, const std::optional<std::string>& utf8Value);
  ~ScopedVariable();
  ScopedVariable(const ScopedVariable&) = delete;
  ScopedVariable& operator=(const ScopedVariable&) = delete;

 private:
  const char* name_;
  std::optional<std::filesystem::path::string_type> before_;
};

/// The log's folder: the one that the user chose, where the log stays, or else a new temporary one that goes with this object.
class LogFolder {
 public:
  /// `chosen` is UTF-8; empty for a temporary folder.
  explicit LogFolder(const std::string& chosen);
  ~LogFolder();
  LogFolder(const LogFolder&) = delete;
  LogFolder& operator=(const LogFolder&) = delete;

  /// Whole text of the log with LF line ends; nothing when there is none.
  std::optional<std::string> ReadLog() const;

  /// Removes the temporary folder. The user's own is left alone.
  void Remove();

 private:
  std::filesystem::path temporary_;         ///< Empty when the user chose the folder, or none could be made.
  std::filesystem::path folder_;            ///< Empty when there is none; the run goes without a log then.
  std::optional<ScopedVariable> scratch_;   ///< The variable that the library asks first.
  std::optional<ScopedVariable> fallback_;  ///< Its second choice: taken away when there is no folder, so that it is not used unasked.
};

}  // namespace btz::cli
