// Storage of the in-memory host for records that are made by the million and never freed one by one: blocks of records whose addresses
// never change, and a look-up by id.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace btz::memory {

/// Records in order of creation. An arena knows its own: a pointer can be tested before it is looked into.
template <typename Record>
class Arena {
 public:
  /// A new zeroed record.
  Record& Add() {
    const std::size_t place = count_ % blockLength;
    if (place == 0) {
      blocks_.push_back(std::make_unique<Record[]>(blockLength));
      const Record* start = blocks_.back().get();
      starts_.insert(std::upper_bound(starts_.begin(), starts_.end(), start, std::less<const Record*>()), start);
    }
    ++count_;
    return blocks_.back()[place];
  }

  std::size_t Size() const { return count_; }

  Record& operator[](std::size_t index) { return blocks_[index / blockLength][index % blockLength]; }
  const Record& operator[](std::size_t index) const { return blocks_[index / blockLength][index % blockLength]; }

  /// True when `address` is that of a record made here.
  bool Owns(const void* address) const {
    const auto* record = static_cast<const Record*>(address);
    const auto next = std::upper_bound(starts_.begin(), starts_.end(), record, std::less<const Record*>());
    if (next == starts_.begin()) {
      return false;
    }
    const Record* start = *(next - 1);
    const std::size_t offset = reinterpret_cast<std::uintptr_t>(address) - reinterpret_cast<std::uintptr_t>(start);
    const std::size_t used = start == blocks_.back().get() ? count_ - (blocks_.size() - 1) * blockLength : blockLength;
    return offset < used * sizeof(Record) && offset % sizeof(Record) == 0;
  }

 private:
  static constexpr std::size_t blockLength = 4096;

  std::vector<std::unique_ptr<Record[]>> blocks_;  ///< In order of creation; all full but the last.
  std::vector<const Record*> starts_;              ///< The same by address.
  std::size_t count_ = 0;
};

/// Small arrays of pointers that live as long as the arena.
template <typename Pointer>
class ArrayArena {
 public:
  /// `length` null pointers in a row.
  Pointer* Take(std::size_t length) {
    if (length > left_) {
      const std::size_t size = std::max(length, blockLength);
      blocks_.push_back(std::make_unique<Pointer[]>(size));
      free_ = blocks_.back().get();
      left_ = size;
    }
    Pointer* taken = free_;
    free_ += length;
    left_ -= length;
    return taken;
  }

 private:
  static constexpr std::size_t blockLength = 16384;

  std::vector<std::unique_ptr<Pointer[]>> blocks_;
  Pointer* free_ = nullptr;
  std::size_t left_ = 0;
};

/// Records by positive id, in open addressing. Ids lie in order, since decks number in runs that are also read in runs; when the runs of a deck
/// fall on each other the map starts to scatter them instead.
template <typename Record>
class IdMap {
 public:
  void Reserve(std::size_t count) {
    if (count * 2 > slots_.size()) {
      Rebuild(count * 2);
    }
  }

  /// The record of `id`, or null.
  Record* Find(std::int32_t id) const {
    if (id <= 0 || slots_.empty()) {
      return nullptr;
    }
    std::size_t i = Place(id);
    for (std::size_t steps = 0; steps <= longestWalk_ && slots_[i].id != 0; ++steps) {
      if (slots_[i].id == id) {
        return slots_[i].record;
      }
      i = (i + 1) & mask_;
    }
    return nullptr;
  }

  /// Enters a record under a positive id that is not held yet.
  void Insert(std::int32_t id, Record* record) {
    if ((count_ + 1) * 2 > slots_.size()) {
      Rebuild((count_ + 1) * 4);
    }
    Put(id, record);
    ++count_;
    if (longestWalk_ > orderlyWalk && !scattered_) {
      scattered_ = true;
      Rebuild(slots_.size());
    }
  }

 private:
  static constexpr std::size_t orderlyWalk = 64;

  struct Slot {
    std::int32_t id = 0;
    Record* record = nullptr;
  };

  std::size_t Place(std::int32_t id) const {
    const auto key = static_cast<std::uint32_t>(id);
    return (scattered_ ? (key * std::uint64_t{0x9E3779B97F4A7C15}) >> 32 : key) & mask_;
  }

  void Put(std::int32_t id, Record* record) {
    std::size_t steps = 0;
    std::size_t i = Place(id);
    for (; slots_[i].id != 0; ++steps) {
      i = (i + 1) & mask_;
    }
    slots_[i] = {id, record};
    longestWalk_ = std::max(longestWalk_, steps);
  }

  void Rebuild(std::size_t wanted) {
    std::size_t size = 64;
    while (size < wanted) {
      size *= 2;
    }
    std::vector<Slot> old(size);
    old.swap(slots_);
    mask_ = size - 1;
    longestWalk_ = 0;
    for (const Slot& slot : old) {
      if (slot.id != 0) {
        Put(slot.id, slot.record);
      }
    }
  }

  std::vector<Slot> slots_;
  std::size_t mask_ = 0;
  std::size_t count_ = 0;
  std::size_t longestWalk_ = 0;  ///< Most steps from an id's place to its slot.
  bool scattered_ = false;
};

}  // namespace btz::memory
