// Transfer of `PSOLID` and `PGASK` to the host.
#pragma once

#include "host/material_links.h"

namespace btz {

/// Makes a host property of each PsolidRecord of `partId`; if that made none, of each PgaskRecord of it.
void CreateSolidOrGasketProperty(MeshPart* part, const MaterialSource& source, const IndexedList* psolidList, const IndexedList* pgaskList,
                                 std::int32_t partId);

}  // namespace btz
