// Key and equality callbacks of hash tables, for records that are told apart by integers or reals at a fixed place of their head. Callbacks
// that need to know a record's type stand beside that record, in the room that fills its table.
#pragma once

#include <cstdint>

namespace btz {

/// `value` cut towards zero; INT32_MIN when it does not fit or is no number, so that such a record is refused by its table.
std::int32_t TruncateToInt(double value);

/// The lower of two ids, signed.
inline std::int32_t LowerId(std::int32_t a, std::int32_t b) { return b < a ? b : a; }

// Keys. `userData` is never read.
std::int32_t HashFirstInt(const void* record, void* userData);             ///< First 32-bit field: the id.
std::int32_t HashSecondInt(const void* record, void* userData);            ///< Second 32-bit field.
std::int32_t HashThirdInt(const void* record, void* userData);             ///< Third 32-bit field.
std::int32_t HashFifthInt(const void* record, void* userData);             ///< Fifth 32-bit field.
std::int32_t HashPositiveId(const void* record, void* userData);           ///< First 32-bit field if positive, else 0.
std::int32_t HashTruncatedThirdReal(const void* record, void* userData);   ///< Third 64-bit real, cut towards zero.
std::int32_t HashTruncatedFourthReal(const void* record, void* userData);  ///< Fourth 64-bit real, cut towards zero.
std::int32_t HashPairMin(const void* record, void* userData);              ///< The lower of the first two 32-bit fields.
std::int32_t HashValue(const void* record, void* userData);                ///< Low half of the pointer itself, signed, negated if negative.
std::int32_t HashIndirectId(const void* record, void* userData);  ///< First 32-bit field of what the record's first pointer points to.

// Equality: 0 when both records are equal.
std::int32_t CompareSignedFirstInt(const void* stored, const void* other);  ///< Three-way by the first 32-bit field: -1, 0 or 1.
std::int32_t CompareSecondInt(const void* stored, const void* other);       ///< Second 32-bit fields.
std::int32_t CompareThirdReal(const void* stored, const void* other);       ///< Third 64-bit reals, exactly.
std::int32_t CompareFourthReal(const void* stored, const void* other);      ///< Fourth 64-bit reals, exactly.
std::int32_t CompareUnorderedPair(const void* stored, const void* other);   ///< First two 32-bit fields, in either order.
std::int32_t CompareThreeInts(const void* stored, const void* other);       ///< First three 32-bit fields.
std::int32_t ComparePointer(const void* stored, const void* other);         ///< The very same pointer.

}  // namespace btz
