#include "cli/progress_bar.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdio>

namespace btz::cli {

namespace {

constexpr std::uint64_t chunkBytes = 2097145;  ///< Deck bytes for each step of the word.
constexpr std::uint64_t walks = 4;
constexpr std::int32_t barWidth = 40;
constexpr std::chrono::milliseconds drawInterval(100);

}  // namespace

std::int32_t HighestWord(std::uint64_t deckBytes) {
  const std::uint64_t chunks = deckBytes / chunkBytes + 1;
  const std::uint64_t step = 100 / chunks / 2;
  // Every walk asks once more than there are chunks.
  return static_cast<std::int32_t>(walks * (chunks + 1) * step);
}

std::int32_t PercentDone(std::int32_t word, std::int32_t highest) {
  if (highest <= 0 || word <= 0) {
    return 0;
  }
  return static_cast<std::int32_t>(std::min<std::int64_t>(std::int64_t{100} * word / highest, 99));
}

std::string BarText(std::int32_t percent) {
  const std::int32_t filled = percent * barWidth / 100;
  return fmt::format("[{:<{}}] {:3}%", std::string(static_cast<std::size_t>(filled), '#'), barWidth, percent);
}

ProgressBar::ProgressBar(std::uint64_t deckBytes)
    : highest_(HighestWord(deckBytes)), start_(std::chrono::steady_clock::now()), watcher_([this] { Watch(); }) {}

ProgressBar::~ProgressBar() { End(false); }

void ProgressBar::End(bool isTranslated) {
  if (!watcher_.joinable()) {
    return;
  }
  {
    const std::lock_guard lock(mutex_);
    isEnding_ = true;
  }
  wake_.notify_one();
  watcher_.join();
  if (isTranslated) {
    Show(BarText(100));
  }
  std::fputc('\n', stderr);
  word_.Remove();
}

void ProgressBar::Watch() {
  std::unique_lock lock(mutex_);
  while (!isEnding_) {
    Draw();
    wake_.wait_for(lock, drawInterval, [this] { return isEnding_; });
  }
}

void ProgressBar::Draw() {
  percent_ = std::max(percent_, PercentDone(word_.Read(), highest_));
  if (highest_ > 0) {
    Show(BarText(percent_));
    return;
  }
  const auto elapsed = std::chrono::duration_cast<std::chrono::seconds>(std::chrono::steady_clock::now() - start_);
  Show(fmt::format("reading, {} s", elapsed.count()));
}

void ProgressBar::Show(const std::string& text) {
  if (text == shown_) {
    return;
  }
  // The new text must cover the old one.
  const std::string line = fmt::format("\r{:<{}}", text, shown_.size());
  std::fputs(line.c_str(), stderr);
  std::fflush(stderr);
  shown_ = text;
}

}  // namespace btz::cli
