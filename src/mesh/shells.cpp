#include "mesh/shells.h"

#include "mesh/element_card.h"
#include "support/block_pool.h"
#include "support/hash_table.h"

namespace btz {

HashTable ReducedShellPropertyTable;

namespace {

/// What differs between the shell cards. A card without a plot form has null for its plot keyword.
struct ShellForm {
  std::int32_t type;
  const char* logWord;
  const char* keyword;
  const char* plotKeyword;
};

constexpr ShellForm tria3{elementTria3, "Tri3", "CTRIA3", "PLOTEL3"};
constexpr ShellForm tria6{elementTria6, "Tri6", "CTRIA6", nullptr};
constexpr ShellForm quad4{elementQuad4, "Quad4", "CQUAD4", "PLOTEL4"};
constexpr ShellForm quad8{elementQuad8, "Quad8", "CQUAD8", nullptr};

/// Whether `keyword` is `name` or `name*`, in any case mix; `*star` tells which.
bool IsKeywordOrStarForm(const char* keyword, const char* name, bool* star) {
  const std::size_t length = std::strlen(name);
  if (StartsWithNoCase(keyword, name) != 0) {
    return false;
  }
  *star = keyword[length] == '*';
  return std::strlen(keyword) == length + (*star ? 1 : 0);
}

/// What the keyword field says of a shell card.
struct ShellKeyword {
  bool isPlot = false;
  bool isLargePlot = false;
  bool isReduced = false;
};

ShellKeyword TakeShellKeyword(CardCursor* cursor, const ShellForm& form) {
  ShellKeyword result;
  // Most cards bear the plain keyword, which needs no closer look.
  if (BeginsWithKeyword(*cursor, form.keyword)) {
    Advance(cursor, 8);
    return result;
  }
  FieldText keyword;
  TakeKeyword(cursor, keyword);
  bool star = false;
  result.isPlot = form.plotKeyword != nullptr && IsKeywordOrStarForm(keyword, form.plotKeyword, &result.isLargePlot);
  result.isReduced = form.type == elementQuad4 && IsKeywordOrStarForm(keyword, "CQUADR", &star);
  return result;
}

void NoteReducedShell(std::int32_t partId) {
  if (HashFind(&ReducedShellPropertyTable, &partId) != nullptr) {
    return;
  }
  auto* record = static_cast<std::int32_t*>(AllocateZeroed(sizeof(std::int32_t)));
  if (record == nullptr) {
    return;
  }
  *record = partId;
  if (HashInsert(&ReducedShellPropertyTable, record) == 0) {
    ReleaseMemory(record);
  }
}

std::int32_t ReadShellCard(MeshModel* model, CardCursor* cursor, const char* logPath, const ShellForm& form, std::int32_t width) {
  const ShellKeyword keyword = TakeShellKeyword(cursor, form);
  if (keyword.isPlot) {
    width = keyword.isLargePlot ? 16 : 8;
  }
  ElementCard card;
  card.type = form.type;
  ReadIdField(width, cursor, &card.id, false);
  std::int32_t pid = 0;
  if (!keyword.isPlot) {
    ReadIdField(width, cursor, &pid, false);
  }
  card.partId = ResolvePartId(model, pid);
  if (keyword.isReduced) {
    NoteReducedShell(card.partId);
  }
  WalkIntegers(cursor, width, card.nodes, TopologyOf(ElementNodeCount, form.type));
  return CreateElementInPart(model, card, partOfSurfaces, 0, 1, form.logWord, logPath);
}

}  // namespace

std::int32_t ReadTria3Card(MeshModel* model, CardCursor* cursor, const char* logPath) {
  return ReadShellCard(model, cursor, logPath, tria3, FieldWidthFor(*cursor, "CTRIA3*"));
}

std::int32_t ReadTria6Card(MeshModel* model, CardCursor* cursor, const char* logPath) {
  return ReadShellCard(model, cursor, logPath, tria6, FieldWidthFor(*cursor, "CTRIA6*"));
}

std::int32_t ReadQuad4Card(MeshModel* model, CardCursor* cursor, const char* logPath) {
  const bool large = BeginsWithKeyword(*cursor, "CQUAD4*") || BeginsWithKeyword(*cursor, "CQUADR*");
  return ReadShellCard(model, cursor, logPath, quad4, large ? 16 : 8);
}

std::int32_t ReadQuad8Card(MeshModel* model, CardCursor* cursor, const char* logPath) {
  return ReadShellCard(model, cursor, logPath, quad8, FieldWidthFor(*cursor, "CQUAD8*"));
}

}  // namespace btz
