#include "driver/include_file.h"

#include <cstring>

#include "deck/fields.h"
#include "driver/line_walk.h"
#include "driver/pass_tables.h"
#include "platform/log_file.h"
#include "platform/platform.h"

namespace btz {

namespace {

constexpr std::size_t fileNameCapacity = 260;
constexpr std::size_t fullPathCapacity = 512;

/// The name on the include line at the cursor, without quotes; empty if there is none.
void TakeFileName(CardCursor* cursor, char (&name)[fileNameCapacity]) {
  char line[fileNameCapacity];
  ReadDeckLine(cursor, line, sizeof(line));
  char* rest = line;
  constexpr const char* delimiters = " \"'\n";
  NextToken(&rest, delimiters);
  const char* token = NextToken(&rest, delimiters);
  CopyText(name, sizeof(name), token == nullptr ? "" : token);
  TrimField(name);
}

/// Bytes of the path up to its last separator, that included.
std::size_t FolderLength(const char* path) {
  std::size_t length = 0;
  for (std::size_t i = 0; path[i] != 0; ++i) {
    if (path[i] == '/' || path[i] == '\\') {
      length = i + 1;
    }
  }
  return length;
}

std::FILE* OpenBesideDeck(const char* deckPath, const char* name) {
  char path[fullPathCapacity];
  const std::size_t folder = FolderLength(deckPath);
  const std::size_t length = std::strlen(name);
  if (folder + length >= sizeof(path)) {
    return nullptr;
  }
  std::memcpy(path, deckPath, folder);
  std::memcpy(path + folder, name, length + 1);
  return OpenFileUtf8(path, "rb");
}

void LogMissingFile(const char* logPath, const char* name) {
  char message[fileNameCapacity + 64];
  std::snprintf(message, sizeof(message), "\nInclude FileName \"%s\" does not exists.\n", name);
  AppendToLog(logPath, message);
}

}  // namespace

std::int32_t ReadIncludeFile(CardContext& context) {
  RunState& run = context.run;
  char name[fileNameCapacity];
  TakeFileName(&context.file.cursor, name);
  if (name[0] == 0) {
    return 0;
  }
  std::FILE* stream = OpenBesideDeck(run.deckPath, name);
  if (stream == nullptr) {
    if (context.includeTable == &nodePassInclude) {
      LogMissingFile(run.logPath, name);
    }
    return 0;
  }
  if (AllocateDeckBuffer(&run.include)) {
    AttachDeckStream(&run.include, stream);
    // Whatever the first chunk is like, an empty one too: it is the walk that notices the file's end, and tells progress of it.
    ReadDeckChunk(&run.include);
    WalkDeckFile(&run, &run.include, *context.includeTable, nullptr);
  }
  std::fclose(stream);
  return 0;
}

}  // namespace btz
