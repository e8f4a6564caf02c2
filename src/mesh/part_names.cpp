#include "mesh/part_names.h"

#include <algorithm>

#include "mesh/parts.h"
#include "support/heap_array.h"
#include "support/indexed_list.h"
#include "support/pooled_list.h"
#include "support/text.h"

namespace btz {

namespace {

constexpr std::size_t partNameCapacity = 256;

/// One part in the array of all, which stands in the order of PartList.
struct PartEntry {
  MeshPart* part;
  PartEntry* next;  ///< In the bag of its name.
};

/// The parts whose names fold to one key and whose turn has not come, in no order.
struct NameBag {
  PartEntry* first;
};

/// Key that names share which are equal without regard to case.
std::int64_t KeyOf(const wchar_t* name) {
  std::uint64_t key = 14695981039346656037u;
  for (; name != nullptr && *name != 0; ++name) {
    const bool isUpper = *name >= L'A' && *name <= L'Z';
    key = (key ^ static_cast<std::uint64_t>(isUpper ? *name + (L'a' - L'A') : *name)) * 1099511628211u;
  }
  return static_cast<std::int64_t>(key);
}

/// Finds the parts of a name without a look at all of them. The result is that of a walk over all parts for each part.
class PartNames {
 public:
  PartNames() {
    IndexedListInit(&bags_);
    PoolInit(&memory_);
  }
  ~PartNames() {
    IndexedListClear(&bags_);
    PoolReset(&memory_);
  }
  PartNames(const PartNames&) = delete;
  PartNames& operator=(const PartNames&) = delete;

  void Enter(PartEntry* entry) {
    NameBag* bag = BagOf(KeyOf(entry->part->GetName()));
    if (bag != nullptr) {
      entry->next = bag->first;
      bag->first = entry;
    }
  }

  /// Takes `part` and the other parts that bear its name out of their bag and calls `visit` for each of the others, in the order of PartList.
  template <typename Visit>
  void TakeNamesakes(MeshPart* part, const wchar_t* name, Visit visit) {
    NameBag* bag = BagOf(KeyOf(name));
    if (bag == nullptr) {
      return;
    }
    HeapArray<PartEntry*> namesakes(TakeOut(bag, part, name));
    std::size_t count = 0;
    for (PartEntry* entry = taken_; entry != nullptr && count < namesakes.size(); entry = entry->next) {
      namesakes[count++] = entry;
    }
    std::sort(namesakes.begin(), namesakes.end());
    for (PartEntry* entry : namesakes) {
      if (entry->part != part) {
        visit(entry);
      }
    }
  }

 private:
  NameBag* BagOf(std::int64_t key) {
    const IndexedCell* cell = IndexedListFind(&bags_, key);
    if (cell != nullptr) {
      return static_cast<NameBag*>(cell->record);
    }
    auto* bag = static_cast<NameBag*>(PoolAllocate(&memory_, sizeof(NameBag)));
    if (bag != nullptr) {
      IndexedListAppend(&bags_, key, bag);
    }
    return bag;
  }

  /// Moves `part` and the other parts with its name from the bag to `taken_` and returns their number.
  std::size_t TakeOut(NameBag* bag, MeshPart* part, const wchar_t* name) {
    std::size_t count = 0;
    taken_ = nullptr;
    for (PartEntry** link = &bag->first; *link != nullptr;) {
      PartEntry* entry = *link;
      if (entry->part != part && CompareNoCase(entry->part->GetName(), name) != 0) {
        link = &entry->next;
        continue;
      }
      *link = entry->next;
      entry->next = taken_;
      taken_ = entry;
      ++count;
    }
    return count;
  }

  IndexedList bags_;
  BlockPool memory_;
  PartEntry* taken_ = nullptr;
};

}  // namespace

void MakePartNamesUnique() {
  HeapArray<PartEntry> parts(static_cast<std::size_t>(PartList.size));
  std::size_t count = 0;
  PartNames names;
  WalkList<MeshPart>(&PartList, [&](MeshPart* part) {
    part->SetNamed(0);
    if (count < parts.size()) {
      parts[count].part = part;
      names.Enter(&parts[count++]);
    }
  });
  std::int32_t suffix = 1;
  for (const PartEntry& current : parts) {
    MeshPart* part = current.part;
    if (part == nullptr || part->IsNamed() != 0) {
      continue;
    }
    part->SetNamed(1);
    const wchar_t* name = part->GetName();
    names.TakeNamesakes(part, name, [&](PartEntry* other) {
      if (other->part->IsNamed() != 0) {
        return;
      }
      wchar_t unique[partNameCapacity];
      FormatSuffixed(unique, partNameCapacity, name, suffix++);
      other->part->SetName(unique);
      names.Enter(other);
    });
  }
}

}  // namespace btz
