#include "driver/run_log.h"

#include <cstdio>

#include "driver/run_state.h"
#include "platform/log_file.h"
#include "platform/platform.h"
#include "support/text.h"

namespace btz {

namespace {

struct SummaryLine {
  const char* label;
  Family family;
};

constexpr SummaryLine elementLines[] = {
    {"Tet  ", familyTet}, {"Tri3 ", familyTri3},  {"Tri6 ", familyTri6}, {"Quad4", familyQuad4}, {"Quad8", familyQuad8},
    {"Hex  ", familyHex}, {"Wedge", familyWedge}, {"Bar  ", familyBar},  {"Rbe2 ", familyRbe2},  {"Rbe3 ", familyRbe3},
};

constexpr SummaryLine lastElementLines[] = {{"Pyramid ", familyPyramid}, {"Gasket ", familyGasket}};

void PrintCount(std::FILE* log, const char* label, std::int32_t count) {
  std::fprintf(log, "\n No.of %s Elements -> %d", label, static_cast<int>(count));
}

void PrintTime(std::FILE* log, const char* text) {
  const LocalTime now = CurrentPlatform().Now();
  std::fprintf(log, "\n%s : %d:%d:%d\n", text, static_cast<int>(now.hour), static_cast<int>(now.minute), static_cast<int>(now.second));
}

}  // namespace

void BuildLogPath(char* logPath, std::size_t capacity) {
  char folder[1024];
  Platform& platform = CurrentPlatform();
  if (!platform.ReadEnvironment("QX_SCRATCH_DIR", folder, sizeof(folder)) &&
      !platform.ReadEnvironment("CAE_HOME", folder, sizeof(folder))) {
    logPath[0] = 0;
    return;
  }
  // A path that does not fit is far longer than any that opens.
  std::snprintf(logPath, capacity, "%s/Bdf_Reader_Log.txt", folder);
}

void StartLog(const char* logPath) {
  std::FILE* log = logPath[0] == 0 ? nullptr : OpenFileUtf8(logPath, "w");
  if (log == nullptr) {
    return;
  }
  PrintTime(log, "File Reading Started");
  std::fclose(log);
}

void LogNodesRead(const char* logPath, std::int32_t nodeCount) {
  std::FILE* log = OpenLog(logPath);
  if (log == nullptr) {
    return;
  }
  std::fputs("\nNode Reading Ended\n", log);
  std::fprintf(log, "\nTotal Nodes Readed -> %d\n", static_cast<int>(nodeCount));
  std::fputs("\nElement Reading Started\n\n", log);
  std::fclose(log);
}

void LogElementSummary(const char* logPath, const std::int32_t* counters) {
  std::FILE* log = OpenLog(logPath);
  if (log == nullptr) {
    return;
  }
  std::fputs("\nElement Reading Ended\n", log);
  for (const SummaryLine& line : elementLines) {
    PrintCount(log, line.label, counters[line.family]);
  }
  // Required: mass elements are told as 0, never counted.
  PrintCount(log, "Mass ", 0);
  for (const SummaryLine& line : lastElementLines) {
    PrintCount(log, line.label, counters[line.family]);
  }
  std::fputs("\n\n", log);
  std::fclose(log);
}

void EndLog(const char* logPath) {
  std::FILE* log = OpenLog(logPath);
  if (log == nullptr) {
    return;
  }
  PrintTime(log, "File Reading Ended");
  std::fputs("\n...........Log File Ended..........", log);
  std::fclose(log);
}

}  // namespace btz
