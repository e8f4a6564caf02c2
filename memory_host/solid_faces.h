// Faces of solid elements: which sides lie on the outside, what stands for them, and faces that are made on request.
#pragma once

#include "memory_host/topology.h"

namespace btz::memory {

class MemoryModel;

/// Gives `faces` to every solid element that has none. A side that two elements share is null; a side that is used once is a shell with the
/// same corners if the model has one, else a new record in the skin face of the element's body.
void BuildSolidFaces(MemoryModel& model);

/// Carries out MeshPart::CreateFaces for a part of `body`: one new face with a record for each pair of element and side number.
void MakeFaces(Call& call, HostObject& object, MemoryBody& body, PooledList* elements, PooledList* faceNumbers, PooledList* result,
               MeshPart** outPart);

}  // namespace btz::memory
