// File names. The command line's are UTF-8 on every system, and what the library refuses to open is refused here for the same reason.
#pragma once

#include <cstdio>
#include <filesystem>
#include <string>

namespace btz::cli {

/// The path in the system's own form.
std::filesystem::path PathOf(const std::string& utf8);

/// The path in UTF-8.
std::string Utf8Of(const std::filesystem::path& path);

/// The path's last part: the name without its folder. Both separators count, as they do for the library.
std::string FileNameOf(const std::string& utf8);

/// Opens a file for reading bytes; null, and errno tells why, when it can't be opened.
std::FILE* OpenForReading(const std::filesystem::path& path);

/// Why the library could not use the deck: "no such file", "the file is empty", "holds no node, element or include line".
std::string WhyNotUsable(const std::string& deckPath);

}  // namespace btz::cli
