// What kinds of entities the in-memory host has, under which headings of a report they stand, and lists of their names.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "memory_host/object_types.h"

namespace btz::memory {
struct EntityInfo;
}

namespace btz::cli {

/// One thing with a name: a force, a set.
struct NamedItem {
  std::int32_t id = 0;
  std::string name;
};

/// All things of one kind, "forces", in order of creation.
struct ItemKind {
  std::string kind;
  std::vector<NamedItem> items;
};

/// Under which heading a kind of entity stands, and what it is called.
struct EntityWords {
  memory::ObjectType type;
  const char* title;  ///< Null for those that have a table of their own.
  const char* kind;
  bool isForLoadCases;  ///< Acts through load cases.
};

/// All kinds that a report names, in its order.
const std::vector<EntityWords>& AllEntityWords();

/// The words of a kind, or null.
const EntityWords* FindWords(memory::ObjectType type);

/// What a kind is called.
const char* KindOf(memory::ObjectType type);

NamedItem ItemOf(const memory::EntityInfo& entity);

/// Items by kind, with the kinds in order of first use.
class KindList {
 public:
  void Add(const std::string& kind, NamedItem item);
  std::vector<ItemKind> Take() { return std::move(kinds_); }

 private:
  std::vector<ItemKind> kinds_;
};

}  // namespace btz::cli
