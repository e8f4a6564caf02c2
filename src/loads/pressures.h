// Pressures: `PLOAD4` cards by set, and the faces that loads use.
#pragma once

#include <btz/containers.h>

namespace btz {

inline HashTable PressureSetTable;  ///< Loaded elements by set id.
/// TopoFace and MeshPart that loads use, whole or split off. Survives a run; its entries are only compared, never called.
inline PooledList LoadPartList;

}  // namespace btz
