#include "driver/progress.h"

#include <cstdio>

#include "deck/deck_buffer.h"
#include "platform/platform.h"

namespace btz {

namespace {

void Print(const char* head, std::int32_t percent, const char* tail) {
  char text[64];
  std::snprintf(text, sizeof(text), "%s%3d%%%s", head, static_cast<int>(percent), tail);
  CurrentPlatform().PrintConsole(text);
}

constexpr const char* overwrite = "\b\b\b\b";

void AddStep(Progress* progress) {
  progress->value = static_cast<std::int32_t>(static_cast<std::uint32_t>(progress->value) + static_cast<std::uint32_t>(progress->step));
}

}  // namespace

void OpenProgress() {
  CurrentPlatform().OpenProgressWord("KRT_PROGRESS");
  CurrentPlatform().StoreProgress(0);
}

void BeginProgress(Progress* progress, std::int64_t deckLength) {
  const std::int64_t chunks = deckLength / static_cast<std::int64_t>(deckChunkLimit) + 1;
  progress->step = static_cast<std::int32_t>(100 / chunks / 2);
  Print("\tCompleted .....", 0, "");
  CurrentPlatform().StoreProgress(0);
}

void ShowFirstChunk(Progress* progress) {
  Print(overwrite, 0, "");
  progress->value = progress->step;
  CurrentPlatform().StoreProgress(progress->value);
}

void ShowNextChunk(Progress* progress) {
  Print(overwrite, progress->value, "");
  AddStep(progress);
  CurrentPlatform().StoreProgress(progress->value);
}

void ShowRewind(Progress* progress) {
  Print(overwrite, progress->value, "");
  CurrentPlatform().StoreProgress(progress->value);
  AddStep(progress);
}

void EndProgress() {
  CurrentPlatform().StoreProgress(100);
  Print(overwrite, 100, "\n\n");
}

}  // namespace btz
