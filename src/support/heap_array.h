// A zero-filled array on the heap, for work of a stage that grows with the deck.
#pragma once

#include <cstddef>
#include <type_traits>

#include "support/block_pool.h"

namespace btz {

/// `count` zeroed entries, or none when memory ran out.
template <typename Entry>
class HeapArray {
  static_assert(std::is_trivially_copyable_v<Entry>);

 public:
  explicit HeapArray(std::size_t count)
      : entries_(static_cast<Entry*>(AllocateZeroed((count == 0 ? 1 : count) * sizeof(Entry)))), size_(entries_ == nullptr ? 0 : count) {}
  ~HeapArray() { ReleaseMemory(entries_); }
  HeapArray(const HeapArray&) = delete;
  HeapArray& operator=(const HeapArray&) = delete;

  std::size_t size() const { return size_; }
  Entry& operator[](std::size_t index) { return entries_[index]; }
  const Entry& operator[](std::size_t index) const { return entries_[index]; }
  Entry* begin() { return entries_; }
  Entry* end() { return entries_ + size_; }
  const Entry* begin() const { return entries_; }
  const Entry* end() const { return entries_ + size_; }

 private:
  Entry* entries_;
  std::size_t size_;
};

}  // namespace btz
