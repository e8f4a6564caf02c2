// The stages that go over the parts: names from comments, properties, numbers, default names, and the closing of solids.
#pragma once

#include "driver/run_state.h"

namespace btz {

/// Gives the parts the names that comments have for them, and marks them as named.
void NameParts(RunState& run);

/// For each part: transfers its properties, numbers it when the topology is built last, names it "Body <id>" unless it is named, and rebuilds
/// the face meshes of a part that is not solid.
void FinishParts(RunState& run);

/// Closes each solid part in the model.
void FinishSolidParts(RunState& run);

/// Finishes the solid object of each part that has one.
void FinishSolids(RunState& run);

/// Attaches its shell to the solid of each part that has solid elements.
void AttachShells(RunState& run);

}  // namespace btz
