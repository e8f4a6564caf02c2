#include "cli/paths.h"

#include <algorithm>
#include <cerrno>
#include <memory>
#include <optional>
#include <system_error>

namespace btz::cli {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t longestPath = 259;  ///< UTF-16 units that the library takes.

/// UTF-16 units of the path, or nothing when it is no valid UTF-8.
std::optional<std::size_t> CountUnits(const fs::path& path) {
  try {
    return path.u16string().size();
  } catch (const std::exception&) {
    return std::nullopt;
  }
}

/// Why the system does not open the file; empty when it does.
std::string WhyNotOpened(const fs::path& path) {
  std::FILE* file = OpenForReading(path);
  if (file == nullptr) {
    return errno == EACCES ? "permission denied" : std::generic_category().message(errno);
  }
  std::fclose(file);
  return "";
}

}  // namespace

fs::path PathOf(const std::string& utf8) { return fs::path(std::u8string(utf8.begin(), utf8.end())); }

std::string Utf8Of(const fs::path& path) {
  const std::u8string text = path.u8string();
  return std::string(text.begin(), text.end());
}

std::string FileNameOf(const std::string& utf8) {
  const std::size_t separator = utf8.find_last_of("/\\");
  return separator == std::string::npos ? utf8 : utf8.substr(separator + 1);
}

std::FILE* OpenForReading(const fs::path& path) {
#ifdef _WIN32
  return _wfopen(path.c_str(), L"rb");
#else
  return std::fopen(path.c_str(), "rb");
#endif
}

std::string WhyNotUsable(const std::string& deckPath) {
  std::string systemPath = deckPath;
#ifndef _WIN32
  // The library takes backslashes for separators everywhere.
  std::replace(systemPath.begin(), systemPath.end(), '\\', '/');
#endif
  const fs::path path = PathOf(systemPath);
  const std::optional<std::size_t> units = CountUnits(path);
  if (!units) {
    return "the path is not valid UTF-8";
  }
  if (*units > longestPath) {
    return "the path is longer than 259 characters";
  }
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (status.type() == fs::file_type::not_found) {
    return "no such file";
  }
  if (status.type() == fs::file_type::directory) {
    return "is a directory";
  }
  if (status.type() == fs::file_type::none) {
    return error == std::errc::permission_denied ? "permission denied" : error.message();
  }
  if (status.type() != fs::file_type::regular) {
    return "is not a regular file";
  }
  std::string reason = WhyNotOpened(path);
  if (!reason.empty()) {
    return reason;
  }
  const bool isEmpty = fs::file_size(path, error) == 0;
  return isEmpty ? "the file is empty" : "holds no node, element or include line";
}

}  // namespace btz::cli
