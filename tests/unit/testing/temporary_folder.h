// A folder for one test's files, made under the system's folder for temporary files and removed with all that is in it at the end of its
// life. File names are UTF-8; texts are written and read byte for byte, line ends included.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <system_error>

namespace btz::test {

/// The system's form of a UTF-8 path.
inline std::filesystem::path ToSystemPath(std::string_view utf8) { return std::filesystem::path(std::u8string(utf8.begin(), utf8.end())); }

/// The UTF-8 form of a path, with "/" between folders.
inline std::string ToUtf8(const std::filesystem::path& path) {
  const std::u8string text = path.generic_u8string();
  return std::string(text.begin(), text.end());
}

class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::random_device random;
    const std::filesystem::path parent = std::filesystem::temp_directory_path();
    for (int attempt = 0; attempt < 100; ++attempt) {
      folder = parent / ("btz_test_" + std::to_string(random()));
      std::error_code error;
      if (std::filesystem::create_directory(folder, error)) {
        return;
      }
    }
    std::abort();  // A test without its files would prove nothing.
  }

  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
  }

  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  /// The folder itself, without a slash at its end.
  std::string Path() const { return ToUtf8(folder); }

  /// Path of the file or folder `name` in the folder, which need not exist.
  std::string Path(std::string_view name) const { return ToUtf8(folder / ToSystemPath(name)); }

  /// Writes a file, with any folders in `name` that are missing, and returns its path.
  std::string Write(std::string_view name, std::string_view content) const {
    const std::filesystem::path path = folder / ToSystemPath(name);
    std::filesystem::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
    file.close();
    if (!file) {
      std::abort();
    }
    return ToUtf8(path);
  }

  /// Content of the file `name`; empty when there is no such file.
  std::string Read(std::string_view name) const {
    std::ifstream file(folder / ToSystemPath(name), std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
  }

  /// Content of the text file `name` with line ends as the library wrote them: CR LF, which text mode makes on Windows, becomes LF.
  std::string ReadText(std::string_view name) const {
    std::string text = Read(name);
    for (std::size_t at = text.find("\r\n"); at != std::string::npos; at = text.find("\r\n", at)) {
      text.erase(at, 1);
    }
    return text;
  }

  bool Exists(std::string_view name) const { return std::filesystem::exists(folder / ToSystemPath(name)); }

 private:
  std::filesystem::path folder;
};

}  // namespace btz::test
