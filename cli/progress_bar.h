// A progress bar on standard error, fed from the shared progress word by a thread of its own while the library runs on the caller's.
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <string>
#include <thread>

#include "cli/progress_word.h"

namespace btz::cli {

/// Value that the progress word reaches at the end of the last walk over a deck of `deckBytes`, include files not counted. The library's
/// percentage assumes two walks and makes four: 400 for a deck of one chunk, less for more chunks. 0: the deck is so long that the word
/// does not move.
std::int32_t HighestWord(std::uint64_t deckBytes);

/// Share of the run that is done: `word` out of `highest` in per cent, at most 99, because the stages behind the last walk are not told.
std::int32_t PercentDone(std::int32_t word, std::int32_t highest);

/// "[##########                              ]  25%".
std::string BarText(std::int32_t percent);

class ProgressBar {
 public:
  /// Makes the word and begins to draw.
  explicit ProgressBar(std::uint64_t deckBytes);
  /// Ends the bar where it stands.
  ~ProgressBar();
  ProgressBar(const ProgressBar&) = delete;
  ProgressBar& operator=(const ProgressBar&) = delete;

  /// Ends the bar: full when the deck was translated, else where it stands. The word is taken away.
  void End(bool isTranslated);

 private:
  void Watch();
  void Draw();
  void Show(const std::string& text);

  ProgressWord word_;
  const std::int32_t highest_;
  const std::chrono::steady_clock::time_point start_;
  std::int32_t percent_ = 0;  ///< Highest so far: the word falls back to 100 at the end of the last walk.
  std::string shown_;
  std::mutex mutex_;
  std::condition_variable wake_;
  bool isEnding_ = false;
  std::thread watcher_;
};

}  // namespace btz::cli
