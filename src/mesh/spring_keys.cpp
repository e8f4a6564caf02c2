#include "mesh/springs.h"
#include "support/hash_keys.h"

namespace btz {

namespace {

const Celas2Record* AsRecord(const void* record) { return static_cast<const Celas2Record*>(record); }

std::int32_t WrappingSum(std::int32_t a, std::int32_t b) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

bool HaveEqualStiffness(const Celas2Record& a, const Celas2Record& b) {
  for (int component = 0; component < 6; ++component) {
    if (a.stiffness[component] != b.stiffness[component]) {
      return false;
    }
  }
  return true;
}

}  // namespace

std::int32_t HashNodePairMin(const void* record, void* /*userData*/) { return LowerId(AsRecord(record)->node1, AsRecord(record)->node2); }

std::int32_t HashNodeSum(const void* record, void* /*userData*/) {
  return record == nullptr ? -1 : WrappingSum(AsRecord(record)->node1, AsRecord(record)->node2);
}

std::int32_t HashMaskSum(const void* record, void* /*userData*/) {
  return record == nullptr ? -1 : WrappingSum(AsRecord(record)->translationMask, AsRecord(record)->rotationMask);
}

std::int32_t CompareNodePair(const void* stored, const void* other) {
  return AsRecord(stored)->node1 == AsRecord(other)->node1 && AsRecord(stored)->node2 == AsRecord(other)->node2 ? 0 : 1;
}

std::int32_t CompareSpringRecords(const void* stored, const void* other) {
  const auto& a = *static_cast<const Celas2Group*>(stored);
  const auto& b = *static_cast<const Celas2Group*>(other);
  if (a.sealed == 1 || b.sealed == 1) {
    return 1;
  }
  if ((a.translationMask & b.translationMask) != 0 && (a.rotationMask & b.rotationMask) != 0) {
    return 0;
  }
  return HaveEqualStiffness(a, b) ? 0 : 1;
}

}  // namespace btz
