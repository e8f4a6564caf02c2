#include "mesh/part_names.h"

#include "mesh/parts.h"
#include "support/pooled_list.h"
#include "support/text.h"

namespace btz {

namespace {

constexpr std::size_t partNameCapacity = 256;

/// Renames the parts behind `part` in name order that bear its name; `*suffix` is the next running number.
void RenameDuplicates(MeshPart* part, std::int32_t* suffix) {
  WalkList<MeshPart>(&PartList, [&](MeshPart* other) {
    if (other == part || other->IsNamed() != 0) {
      return;
    }
    const wchar_t* name = part->GetName();
    if (CompareNoCase(other->GetName(), name) != 0) {
      return;
    }
    wchar_t unique[partNameCapacity];
    FormatSuffixed(unique, partNameCapacity, name, *suffix);
    other->SetName(unique);
    ++*suffix;
  });
}

}  // namespace

void MakePartNamesUnique() {
  // Parts are compared while they are walked, and PartList has one cursor: the outer walk goes over a copy.
  PooledList parts;
  ListInit(&parts, &ListPool);
  WalkList<MeshPart>(&PartList, [&](MeshPart* part) {
    part->SetNamed(0);
    ListAppend(&parts, part);
  });
  std::int32_t suffix = 1;
  WalkList<MeshPart>(&parts, [&](MeshPart* part) {
    if (part->IsNamed() != 0) {
      return;
    }
    part->SetNamed(1);
    RenameDuplicates(part, &suffix);
  });
  ListClear(&parts);
}

}  // namespace btz
