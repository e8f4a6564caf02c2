// The four reading passes. The deck is read four times from its first byte, and its include files differently in every pass: nodes and
// properties must exist before elements, elements before loads.
#pragma once

#include "driver/card_table.h"

namespace btz {

extern const PassTable nodePassDeck;        ///< Pass 1: nodes, property cards and case control.
extern const PassTable nodePassInclude;     ///< Pass 1, include files.
extern const PassTable includePassDeck;     ///< Pass 2: looks for include files only.
extern const PassTable includePassInclude;  ///< Pass 2: elements of include files.
extern const PassTable elementPassDeck;     ///< Pass 3: elements of the deck and what goes with them.
extern const PassTable elementPassInclude;  ///< Pass 3: what goes with the elements, in include files.
extern const PassTable loadPassDeck;        ///< Pass 4: loads and remaining element families.
extern const PassTable loadPassInclude;     ///< Pass 4, include files.

}  // namespace btz
