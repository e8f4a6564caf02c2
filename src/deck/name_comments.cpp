#include "deck/name_comments.h"

#include <cstring>
#include <initializer_list>

#include "deck/fields.h"
#include "support/block_pool.h"
#include "support/hash_table.h"
#include "support/text.h"

namespace btz {

HashTable PropertyNameTable;
HashTable NodeSetNameTable;
HashTable ElementSetNameTable;
HashTable SurfaceNameTable;
HashTable MaterialCommentTable;
HashTable PropertyCommentTable;

namespace {

constexpr std::size_t commentLineCapacity = 260;

bool IsUsable(std::int32_t id, const char* name) { return id >= 1 && name != nullptr && *name != 0; }

void AddName(HashTable* table, std::int32_t id, const char* name) {
  auto* record = static_cast<NameRecord*>(AllocateZeroed(sizeof(NameRecord)));
  if (record == nullptr) {
    return;
  }
  record->id = id;
  CopyText(record->name, nameCapacity, name);
  if (HashInsert(table, record) == 0) {
    ReleaseMemory(record);
  }
}

bool IsAnyOf(const char* text, const char* a, const char* b, const char* c, const char* d) {
  for (const char* word : {a, b, c, d}) {
    if (CompareNoCase(text, word) == 0) {
      return true;
    }
  }
  return false;
}

bool ContainsAnyOf(const char* text, const char* a, const char* b, const char* c, const char* d) {
  for (const char* word : {a, b, c, d}) {
    if (std::strstr(text, word) != nullptr) {
      return true;
    }
  }
  return false;
}

/// Start of the line above the card at `cursor`: behind the line feed or NUL that stands before the byte two places back.
const char* LineAbove(const char* cursor) {
  const char* at = cursor - 2;
  while (*at != '\n' && *at != 0) {
    --at;
  }
  return at + 1;
}

bool IsPlainName(const char* line) {
  constexpr const char* foreign[] = {"ANSA_NAME", "HMNAME", "HMCOLOR", "HWCOLOR", "$HM", "$HW"};
  if (line[0] != '$' || !(IsAlpha(line[1]) || IsDigit(line[1])) || StartsWithNoCase(line, "$Default") == 0) {
    return false;
  }
  for (const char* word : foreign) {
    if (FindSubstringNoCase(line, word) != nullptr) {
      return false;
    }
  }
  return true;
}

/// The id of a `$HMNAME` line: for a component the number behind the name, if there is one; else the end of the head.
std::int32_t HmNameId(bool component, const char* head, const char* rest) {
  if (component && rest != nullptr && ParseInteger(rest) != 0) {
    return ParseInteger(rest);
  }
  const std::size_t length = std::strlen(head);
  return length > 8 ? ParseInteger(head + length - 8) : 0;
}

}  // namespace

const NameRecord* FindName(const HashTable* table, std::int32_t id) { return static_cast<const NameRecord*>(HashFind(table, &id)); }

void RegisterPropertyName(std::int32_t id, const char* name, bool overwrite) {
  if (!IsUsable(id, name)) {
    return;
  }
  auto* held = static_cast<NameRecord*>(HashFind(&PropertyNameTable, &id));
  if (held == nullptr) {
    AddName(&PropertyNameTable, id, name);
    return;
  }
  if (overwrite) {
    CopyText(held->name, nameCapacity, name);
  }
}

void RegisterSetName(std::int32_t id, const char* name, std::int32_t kind) {
  if (!IsUsable(id, name)) {
    return;
  }
  switch (kind) {
    case 1:
      return AddName(&NodeSetNameTable, id, name);
    case 2:
      return AddName(&ElementSetNameTable, id, name);
    case 3:
      return AddName(&SurfaceNameTable, id, name);
    default:
      return;
  }
}

void RegisterCommentName(const char* kindText, std::int32_t id, const char* name) {
  if (!IsUsable(id, name) || kindText == nullptr) {
    return;
  }
  if (CompareNoCase(kindText, "MAT") == 0) {
    AddName(&MaterialCommentTable, id, name);
  } else if (CompareNoCase(kindText, "PROP") == 0) {
    AddName(&PropertyCommentTable, id, name);
  }
}

std::int32_t ReadCommentAboveCard(const char* cursor, char* nameOut) {
  nameOut[0] = 0;
  char line[commentLineCapacity];
  auto* start = const_cast<CardCursor>(LineAbove(cursor));
  ReadDeckLine(&start, line, sizeof(line));
  TrimLeft(line);
  char* colon = std::strrchr(line, ':');
  if (colon != nullptr) {
    CopyText(nameOut, nameCapacity, TrimField(colon + 1));
    return 0;
  }
  if (!IsPlainName(line)) {
    return 0;
  }
  const std::size_t length = std::strlen(TrimRight(line));
  if (length < 2 || length > 63) {
    return 0;
  }
  CopyText(nameOut, nameCapacity, line + 1);
  return 3;
}

void ReadAnsaNameComment(CardCursor* cursor) {
  char line[deckLineCapacity];
  CardCursor at = *cursor;
  ReadDeckLine(&at, line, sizeof(line));
  char* rest = line;
  NextToken(&rest, ";\n");
  const std::int32_t id = ParseInteger(NextToken(&rest, ";\n"));
  const char* type = NextToken(&rest, ";\n");
  if (id > 0 && type != nullptr && IsAnyOf(type, "PSHELL", "PSOLID", "PBAR", "PBEAM")) {
    char below[deckLineCapacity];
    ReadDeckLine(&at, below, sizeof(below));
    TrimField(below);
    if (below[0] == '$' && !ContainsAnyOf(below, "PSHELL", "PSOLID", "PBAR", "PBEAM")) {
      RegisterPropertyName(id, below + 1, true);
    }
  }
  *cursor = at;
}

void ReadHmNameComment(CardCursor* cursor) {
  char line[deckLineCapacity];
  char kind[deckLineCapacity];
  CardCursor at = *cursor;
  ReadDeckLine(&at, line, sizeof(line));
  GetFreeToken(line, 1, kind, sizeof(kind), true);
  if (!IsAnyOf(kind, "COMP", "CSURF", "MAT", "PROP")) {
    return;
  }
  *cursor = at;
  char* rest = line;
  const char* head = NextToken(&rest, "\"\t\n");
  const char* name = NextToken(&rest, "\"\t\n");
  const bool component = CompareNoCase(kind, "COMP") == 0;
  const std::int32_t id = HmNameId(component, head, NextToken(&rest, "\"\t\n"));
  if (component) {
    RegisterPropertyName(id, name, true);
  } else if (CompareNoCase(kind, "CSURF") == 0) {
    RegisterSetName(id, name, 3);
  } else {
    RegisterCommentName(kind, id, name);
  }
}

void ReadHmSetComment(CardCursor* cursor) {
  char line[deckLineCapacity];
  ReadDeckLine(cursor, line, sizeof(line));
  char* rest = line;
  constexpr const char* delimiters = "\"\t\n ";
  NextToken(&rest, delimiters);
  const std::int32_t id = ParseInteger(NextToken(&rest, delimiters));
  const std::int32_t kind = ParseInteger(NextToken(&rest, delimiters));
  RegisterSetName(id, NextToken(&rest, delimiters), kind);
}

}  // namespace btz
