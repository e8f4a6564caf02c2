#include "platform/log_file.h"

#include "platform/platform.h"

namespace btz {

std::FILE* OpenLog(const char* logPath) { return logPath == nullptr || *logPath == 0 ? nullptr : OpenFileUtf8(logPath, "a+"); }

void AppendToLog(const char* logPath, const char* text) {
  std::FILE* log = OpenLog(logPath);
  if (log == nullptr) {
    return;
  }
  std::fputs(text, log);
  std::fclose(log);
}

void LogFailure(const char* logPath, const char* word, std::int32_t id) {
  char message[96];
  std::snprintf(message, sizeof(message), "*** Failed %s -> %d \n", word, static_cast<int>(id));
  AppendToLog(logPath, message);
}

}  // namespace btz
