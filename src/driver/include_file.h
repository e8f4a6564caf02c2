// Include files. Only one level is followed: an include line in an include file is unknown text.
#pragma once

#include "driver/card_table.h"

namespace btz {

/// Takes the include line at the cursor and walks the file it names, in the deck's folder, with the walk's include table. A file that can't
/// be opened is skipped, which pass 1 alone tells in the log. A name can't hold a blank.
std::int32_t ReadIncludeFile(CardContext& context);

}  // namespace btz
