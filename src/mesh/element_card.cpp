#include "mesh/element_card.h"

#include <cstdio>

#include "platform/log_file.h"

namespace btz {

void ReadElementHead(MeshModel* model, CardCursor* cursor, std::int32_t width, ElementCard* card) {
  Advance(cursor, 8);
  ReadIdField(width, cursor, &card->id, false);
  std::int32_t pid = 0;
  ReadIdField(width, cursor, &pid, false);
  card->partId = ResolvePartId(model, pid);
}

std::int32_t CreateElementInPart(MeshModel* model, const ElementCard& card, PartKind kind, std::int32_t solidFlag, std::uint8_t shellFlag,
                                 const char* word, const char* logPath) {
  EnsurePart(model, card.partId, kind);
  if (model->CreateElement(card.id, card.type, card.nodes, card.partId, 0, solidFlag, shellFlag, 0) >= 0) {
    return 0;
  }
  char refused[32];
  std::snprintf(refused, sizeof(refused), "%s Element", word);
  LogFailure(logPath, refused, card.id);
  return 1;
}

}  // namespace btz
