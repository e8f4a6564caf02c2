// The split face stage: has the host split the faces of every part but those that loads already use.
#pragma once

#include "driver/run_state.h"

namespace btz {

void SplitFaces(RunState& run);

}  // namespace btz
