// Combinations: `LOAD`, `DLOAD`, `SPCADD` and `MPCADD`. Such a card is no set of its own: it expands each subcase that asks for its id by the sets
// that it lists. Required: factors are not read, every combined set applies at full strength.
#pragma once

#include "analysis/case_control.h"

namespace btz {

/// Which id of a subcase a card answers.
enum class SubcaseId : std::int32_t { Load, Dload, Spc, Mpc };

/// The subcases by the ids that they ask for, each in the order of their list. Filled when the first card needs it: the subcases are complete then.
struct SubcaseIndex {
  bool isFilled;
  IndexedList subcases;  ///< SubcaseRecord by id and SubcaseId; ids above 0 only.
};

void SubcaseIndexInit(SubcaseIndex* index);
void SubcaseIndexClear(SubcaseIndex* index);

/// Reads the `LOAD` (SubcaseId::Load) or `DLOAD` (SubcaseId::Dload) card at the cursor; only small fields. A line with an equals sign is case control
/// and stepped over. The cursor does not move at the deck's unterminated last line.
void ReadLoadCombinationCard(CardCursor* cursor, PooledList* subcaseList, SubcaseIndex* index, SubcaseId kind);

/// Reads the `SPCADD` (SubcaseId::Spc) or `MPCADD` (SubcaseId::Mpc) card at the cursor; only small fields.
void ReadConstraintCombinationCard(CardCursor* cursor, PooledList* subcaseList, SubcaseIndex* index, SubcaseId kind);

}  // namespace btz
