// Transfer of `PSHELL` to the host.
#pragma once

#include "host/material_links.h"

namespace btz {

/// Makes a host property of each PshellRecord of `partId`. `isReduced` tells whether the part has `CQUADR` elements. With `thicknessPrecision`
/// above 0 the thickness is rounded to that many decimals (up to 6; 0.0 beyond) and the part is named "T_" and the rounded text.
void CreateShellProperty(MeshPart* part, const MaterialSource& source, const IndexedList* pshellList, std::int32_t partId,
                         std::int32_t thicknessPrecision, bool isReduced);

}  // namespace btz
