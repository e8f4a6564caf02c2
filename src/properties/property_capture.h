// What the readers of property cards share: a new record, and its way into its list.
#pragma once

#include "deck/name_comments.h"
#include "support/block_pool.h"
#include "support/indexed_list.h"

namespace btz {

/// Result of the comment reader for a bare `$name`.
inline constexpr std::int32_t bareName = 3;

/// A zero-filled record; null when memory ran out.
template <typename Record>
Record* NewRecord() {
  return static_cast<Record*>(AllocateZeroed(sizeof(Record)));
}

/// Puts a finished record in its list and, when the comment above the card was a bare name, offers that to the part.
template <typename Record>
void Capture(Record* record, IndexedList* list, std::int32_t comment) {
  IndexedListAppend(list, record->propertyId, record);
  if (comment == bareName) {
    RegisterPropertyName(record->propertyId, record->name, false);
  }
}

}  // namespace btz
