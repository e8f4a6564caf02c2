// Progress of a run: a percentage on the console and in the word that the host shares. The steps are taken per chunk of the deck.
#pragma once

#include <cstdint>

namespace btz {

struct Progress {
  std::int32_t step = 0;   ///< Added per chunk; 0 for a deck of more than 50 chunks.
  std::int32_t value = 0;  ///< Running through all passes.
};

/// Connects to the host's word and sets it to 0.
void OpenProgress();

/// Takes the step from the deck's length in bytes, prints the head and sets the word to 0.
/// Required: the step assumes two walks of the deck, a run makes four, and the value is not clamped: it passes 100 in the later passes, until
/// the end of the last one sets it to 100.
void BeginProgress(Progress* progress, std::int64_t deckLength);

/// The deck's very first chunk was asked for.
void ShowFirstChunk(Progress* progress);

/// A walk asked for a later chunk, of the deck or of an include file; also for the one that was not there any more.
void ShowNextChunk(Progress* progress);

/// The first chunk was asked for again, behind a rewind.
void ShowRewind(Progress* progress);

/// The last pass is over.
void EndProgress();

}  // namespace btz
