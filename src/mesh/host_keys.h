// Keys and equality for tables whose records are the host's own objects: parts by their id, faces of solids by their corner nodes.
#pragma once

#include <cstdint>

namespace btz {

/// Key of a MeshPart: its id, negated if it is below 1.
std::int32_t HashHostObjectId(const void* part, void* userData);

/// Key of a face (MeshElement): starts with the first corner's id; of the further corners, a positive id below the key replaces it, and a
/// negative id whose absolute value is above the key replaces it with that value. For positive ids it is the lowest.
std::int32_t HashFaceNodes(const void* face, void* userData);

/// Equality of two faces (MeshElement): the same number of corners, at least one, and each corner of the stored face occurs in the other.
/// Required: of how often it occurs, only the last corner's is looked at: it must occur just once.
std::int32_t CompareFaceNodes(const void* stored, const void* other);

}  // namespace btz
