#include "support/hash_keys.h"

#include <cstddef>
#include <cstring>

namespace btz {

namespace {

template <typename Field>
Field FieldAt(const void* record, std::size_t index) {
  Field value{};
  if (record != nullptr) {
    std::memcpy(&value, static_cast<const char*>(record) + index * sizeof(Field), sizeof(Field));
  }
  return value;
}

std::int32_t IntAt(const void* record, std::size_t index) { return FieldAt<std::int32_t>(record, index); }

double RealAt(const void* record, std::size_t index) { return FieldAt<double>(record, index); }

}  // namespace

std::int32_t TruncateToInt(double value) {
  // The comparison is false for a value that is no number, too.
  return value > -2147483649.0 && value < 2147483648.0 ? static_cast<std::int32_t>(value) : INT32_MIN;
}

std::int32_t HashFirstInt(const void* record, void* /*userData*/) { return IntAt(record, 0); }

std::int32_t HashSecondInt(const void* record, void* /*userData*/) { return IntAt(record, 1); }

std::int32_t HashThirdInt(const void* record, void* /*userData*/) { return IntAt(record, 2); }

std::int32_t HashFifthInt(const void* record, void* /*userData*/) { return IntAt(record, 4); }

std::int32_t HashPositiveId(const void* record, void* /*userData*/) {
  const std::int32_t id = IntAt(record, 0);
  return id > 0 ? id : 0;
}

std::int32_t HashTruncatedThirdReal(const void* record, void* /*userData*/) { return TruncateToInt(RealAt(record, 2)); }

std::int32_t HashTruncatedFourthReal(const void* record, void* /*userData*/) { return TruncateToInt(RealAt(record, 3)); }

std::int32_t HashPairMin(const void* record, void* /*userData*/) { return LowerId(IntAt(record, 0), IntAt(record, 1)); }

std::int32_t HashValue(const void* record, void* /*userData*/) {
  const auto low = static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(record));
  const bool negative = (low & 0x80000000u) != 0;
  // The lowest value has no positive counterpart: it stays negative, and the table refuses it.
  return static_cast<std::int32_t>(negative ? 0u - low : low);
}

std::int32_t HashIndirectId(const void* record, void* /*userData*/) { return IntAt(FieldAt<const void*>(record, 0), 0); }

std::int32_t CompareSignedFirstInt(const void* stored, const void* other) {
  const std::int32_t a = IntAt(stored, 0);
  const std::int32_t b = IntAt(other, 0);
  return a < b ? -1 : (a > b ? 1 : 0);
}

std::int32_t CompareSecondInt(const void* stored, const void* other) { return IntAt(stored, 1) == IntAt(other, 1) ? 0 : 1; }

std::int32_t CompareThirdReal(const void* stored, const void* other) { return RealAt(stored, 2) == RealAt(other, 2) ? 0 : 1; }

std::int32_t CompareFourthReal(const void* stored, const void* other) { return RealAt(stored, 3) == RealAt(other, 3) ? 0 : 1; }

std::int32_t CompareUnorderedPair(const void* stored, const void* other) {
  const std::int32_t a = IntAt(stored, 0);
  const std::int32_t b = IntAt(stored, 1);
  const std::int32_t c = IntAt(other, 0);
  const std::int32_t d = IntAt(other, 1);
  return (a == c && b == d) || (a == d && b == c) ? 0 : 1;
}

std::int32_t CompareThreeInts(const void* stored, const void* other) {
  return std::memcmp(stored, other, 3 * sizeof(std::int32_t)) == 0 ? 0 : 1;
}

std::int32_t ComparePointer(const void* stored, const void* other) { return stored == other ? 0 : 1; }

}  // namespace btz
