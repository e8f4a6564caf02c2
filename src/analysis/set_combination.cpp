#include "analysis/set_combination.h"

#include "deck/line_field_walk.h"
#include "support/pooled_list.h"

namespace btz {

namespace {

constexpr std::int32_t width = 8;

/// How a subcase answers a kind of card.
struct Answer {
  SubcaseId kind;
  std::int32_t SubcaseRecord::*id;
  IdSet SubcaseRecord::*ids;
};

constexpr Answer answers[] = {
    {SubcaseId::Load, &SubcaseRecord::loadId, &SubcaseRecord::loadIds},
    {SubcaseId::Dload, &SubcaseRecord::dloadId, &SubcaseRecord::dloadIds},
    {SubcaseId::Spc, &SubcaseRecord::spcId, &SubcaseRecord::spcIds},
    {SubcaseId::Mpc, &SubcaseRecord::mpcId, &SubcaseRecord::mpcIds},
};

std::int64_t IndexId(std::int32_t id, SubcaseId kind) { return PairId(id, static_cast<std::int32_t>(kind)); }

void FillIndex(PooledList* subcaseList, SubcaseIndex* index) {
  if (index->isFilled) {
    return;
  }
  index->isFilled = true;
  WalkList<SubcaseRecord>(subcaseList, [&](SubcaseRecord* subcase) {
    for (const Answer& answer : answers) {
      const std::int32_t id = subcase->*answer.id;
      if (id > 0) {
        IndexedListAppend(&index->subcases, IndexId(id, answer.kind), subcase);
      }
    }
  });
}

/// The card at hand: which subcases ask for it.
class Combination {
 public:
  Combination(PooledList* subcaseList, SubcaseIndex* index, std::int32_t setId, SubcaseId kind)
      : ids_(answers[static_cast<std::size_t>(kind)].ids) {
    FillIndex(subcaseList, index);
    first_ = IndexedListFind(&index->subcases, IndexId(setId, kind));
  }

  void Add(std::int32_t id) {
    for (const IndexedCell* cell = first_; cell != nullptr; cell = cell->nextOfId) {
      IdSetInsert(&(static_cast<SubcaseRecord*>(cell->record)->*ids_), id);
    }
  }

 private:
  IdSet SubcaseRecord::*ids_;
  const IndexedCell* first_;
};

enum class FieldUse { Skipped, CardEnd, Value };

FieldUse UseOf(const char* cursor) {
  FieldText text;
  PeekLineField(width, cursor, text);
  TrimField(text);
  if (text[0] == 0 || HasStar(text) || IsContinuationMark(text)) {
    return FieldUse::Skipped;
  }
  return LooksLikeText(text) ? FieldUse::CardEnd : FieldUse::Value;  // A keyword is text too.
}

/// Calls `take()` at each field of the card that is neither blank nor a mark, up to the next card. It reads the field or skips it.
template <typename Take>
void WalkListedFields(CardCursor* cursor, Take take) {
  while (**cursor != 0) {
    const FieldUse use = UseOf(*cursor);
    if (use == FieldUse::CardEnd) {
      return;
    }
    if (use == FieldUse::Skipped) {
      SkipField(cursor, width);
      continue;
    }
    const char* before = *cursor;
    take();
    // A number at the very head of the next line is no continuation: it can't be read from here, and the card has ended.
    if (*cursor == before) {
      return;
    }
  }
}

std::int32_t TakeSetId(CardCursor* cursor) {
  Advance(cursor, 8);
  std::int32_t setId = 0;
  ReadIdField(width, cursor, &setId, false);
  return setId;
}

std::int32_t TakeListedId(CardCursor* cursor) {
  std::int32_t id = 0;
  ReadIntField(width, cursor, &id);
  return id;
}

}  // namespace

void SubcaseIndexInit(SubcaseIndex* index) {
  index->isFilled = false;
  IndexedListInit(&index->subcases);
}

void SubcaseIndexClear(SubcaseIndex* index) {
  IndexedListClear(&index->subcases);
  index->isFilled = false;
}

void ReadLoadCombinationCard(CardCursor* cursor, PooledList* subcaseList, SubcaseIndex* index, SubcaseId kind) {
  char line[deckLineCapacity];
  CardCursor behind = *cursor;
  if (ReadDeckLine(&behind, line, sizeof(line)) < 0) {
    return;
  }
  if (std::strchr(line, '=') != nullptr) {
    *cursor = behind;
    return;
  }
  Combination combination(subcaseList, index, TakeSetId(cursor), kind);
  SkipField(cursor, width);  // S
  SkipField(cursor, width);  // S1
  bool isId = false;
  WalkListedFields(cursor, [&] {
    isId = !isId;
    if (isId) {
      combination.Add(TakeListedId(cursor));
    } else {
      SkipField(cursor, width);  // The factor of the next set.
    }
  });
}

void ReadConstraintCombinationCard(CardCursor* cursor, PooledList* subcaseList, SubcaseIndex* index, SubcaseId kind) {
  Combination combination(subcaseList, index, TakeSetId(cursor), kind);
  WalkListedFields(cursor, [&] { combination.Add(TakeListedId(cursor)); });
}

}  // namespace btz
