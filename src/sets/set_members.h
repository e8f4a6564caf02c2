// Members of a set, as its card names them by number.
#pragma once

#include "host/host_interfaces.h"
#include "support/pooled_list.h"

namespace btz {

/// Lists of members, with cells of their own.
class SetMembers {
 public:
  SetMembers() {
    ListCellPoolInit(&cells_);
    for (PooledList* list : {&nodes, &elements, &rigidElements}) {
      ListInit(list, &cells_);
    }
  }
  ~SetMembers() { ListCellPoolReset(&cells_); }
  SetMembers(const SetMembers&) = delete;
  SetMembers& operator=(const SetMembers&) = delete;

  PooledList nodes;
  PooledList elements;
  PooledList rigidElements;  ///< Only of the list form.

 private:
  ListCellPool cells_;
};

/// The element of an id, sought among lines, shells and rigid elements first; `*isSolid` becomes true when it was not there. Null when there is none.
inline MeshElement* FindAnyElement(MeshModel* model, std::int32_t id, bool* isSolid) {
  MeshElement* element = nullptr;
  model->GetElement(id, &element);
  if (element == nullptr) {
    *isSolid = true;
    model->GetSolidElement(id, &element, 1);
  }
  return element;
}

}  // namespace btz
