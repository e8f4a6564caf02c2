// Length of a UTF-8 path in the units that Windows counts.
#pragma once

#include <cstdint>

namespace btz {

/// UTF-16 units that `text` takes, its terminator not counted; -1 when it is no valid UTF-8.
std::int32_t CountUtf16Units(const char* text);

}  // namespace btz
