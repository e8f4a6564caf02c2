// Names of parts, made unique once the properties are transferred.
#pragma once

namespace btz {

/// Gives every part of PartList whose name (in any case mix) an earlier part has a name of its own: the earlier part's, "_" and a running
/// number. The number is not started anew for another name. Leaves all parts marked as named.
void MakePartNamesUnique();

}  // namespace btz
