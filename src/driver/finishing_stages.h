// The finishing stages, as lists of named steps with their conditions. Most cards are only captured while the deck is read; what turns them
// into host objects runs here, in one block behind the elements and one behind the loads. The order is a requirement: later stages look up
// what earlier ones made, and the host numbers what it is given in order of creation.
#pragma once

#include <span>

#include "driver/run_state.h"

namespace btz {

using StageAction = void (*)(RunState& run);

/// Marks a stage that is not built yet: nothing of its row happens.
inline constexpr StageAction StageNotBuilt = nullptr;

struct FinishingStage {
  const char* name;
  bool (*isDue)(const RunState& run);
  const char* logLine;  ///< Written in front of the stage; null: none.
  StageAction action;
};

/// In front of the element summary.
std::span<const FinishingStage> TransitionStages();

/// Between the element summary and the loads.
std::span<const FinishingStage> StagesBehindElements();

/// Behind the loads, up to the clean-up.
std::span<const FinishingStage> StagesBehindLoads();

/// Runs the stages that are due, in order.
void RunStages(std::span<const FinishingStage> stages, RunState& run);

}  // namespace btz
