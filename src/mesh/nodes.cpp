#include "mesh/nodes.h"

#include <cstring>

#include "deck/fields.h"
#include "platform/log_file.h"
#include "support/block_pool.h"
#include "support/hash_table.h"
#include "support/pooled_list.h"

namespace btz {

namespace {

/// What a card says, and whether a refusal of its node is to be told.
struct GridCard {
  std::int32_t id = 0;
  std::int32_t cpId = 0;
  std::int32_t cdId = 0;
  double position[3] = {0.0, 0.0, 0.0};
  bool isRefusalLogged = true;
};

bool IsFreeFormat(const char* card) {
  const char* behindKeyword = card + strnlen(card, 4);
  return std::memchr(behindKeyword, ',', std::strcspn(behindKeyword, "\n")) != nullptr;
}

/// The byte `width` columns ahead, or NUL when the text ends before it.
char ByteAhead(const char* cursor, std::size_t width) { return cursor[strnlen(cursor, width)]; }

/// Identifier, position system and the first coordinate, in fields of `width` columns from the ninth column on.
void ReadHead(std::int32_t width, CardCursor* cursor, GridCard* card) {
  Advance(cursor, 8);
  ReadIdField(width, cursor, &card->id, false);
  // Judged by the byte as it stands before the field is read: reading may replace a line feed.
  const bool endsLine = ByteAhead(*cursor, static_cast<std::size_t>(width)) == '\n';
  ReadIdField(width, cursor, &card->cpId, false);
  if (endsLine) {
    Advance(cursor, 1);
  }
  const std::int32_t length = FieldLength(*cursor, width);
  card->position[0] = ParseReal(*cursor, static_cast<std::size_t>(length));
  *cursor += length;
}

/// Required: what stands first behind the third coordinate, in whatever column, is the displacement system.
void ReadDisplacementSystem(CardCursor* cursor, GridCard* card) {
  if (**cursor == '\n' || **cursor == '\r' || **cursor == 0) {
    return;
  }
  if (!ReadIdField(8, cursor, &card->cdId, true)) {
    card->cdId = 0;
  }
}

void ReadSmallFields(CardCursor* cursor, GridCard* card) {
  ReadHead(8, cursor, card);
  ReadRealField(8, cursor, &card->position[1]);
  ReadRealToken(8, cursor, &card->position[2], true);
  ReadDisplacementSystem(cursor, card);
}

void ReadLargeFields(CardCursor* cursor, GridCard* card) {
  ReadHead(16, cursor, card);
  ReadRealField(16, cursor, &card->position[1]);
  *cursor += std::strcspn(*cursor, "\n");
  // The line feed and the continuation marker, whatever the marker holds.
  Advance(cursor, 9);
  ReadRealField(16, cursor, &card->position[2]);
  ReadDisplacementSystem(cursor, card);
  card->isRefusalLogged = card->cpId != 0;
}

/// The text up to the next comma, which is overwritten for good, or up to the chunk's end.
/// Required: the search does not stop at the line's end, so a free-format card needs the comma behind its third coordinate.
const char* NextCommaField(CardCursor* cursor) {
  const char* field = *cursor;
  *cursor += std::strcspn(*cursor, ",");
  if (**cursor == ',') {
    **cursor = 0;
    ++*cursor;
  }
  return field;
}

void ReadFreeFields(CardCursor* cursor, GridCard* card) {
  Advance(cursor, 5);
  card->id = ParseInteger(NextCommaField(cursor));
  card->cpId = ParseInteger(NextCommaField(cursor));
  for (double& coordinate : card->position) {
    coordinate = ParseReal(NextCommaField(cursor));
  }
  const std::size_t length = std::strcspn(*cursor, "\n");
  card->cdId = ParseInteger(*cursor, length);
  card->isRefusalLogged = card->cpId != 0;
}

void NoteDisplacementSystem(const GridCard& card, HashTable* gridCdTable) {
  auto* record = static_cast<GridCdRecord*>(AllocateZeroed(sizeof(GridCdRecord)));
  if (record == nullptr) {
    return;
  }
  record->nodeId = card.id;
  record->cdId = card.cdId;
  if (HashInsert(gridCdTable, record) == 0) {
    ReleaseMemory(record);
  }
}

void NotePositionSystem(const GridCard& card, PooledList* gridCpList) {
  auto* record = static_cast<GridCpRecord*>(AllocateZeroed(sizeof(GridCpRecord)));
  if (record == nullptr) {
    return;
  }
  record->nodeId = card.id;
  record->cpId = card.cpId;
  record->cdId = card.cdId;
  record->x = card.position[0];
  record->y = card.position[1];
  record->z = card.position[2];
  ListAppend(gridCpList, record);
}

}  // namespace

void ReadGridCard(MeshModel* model, CardCursor* cursor, PooledList* gridCpList, HashTable* gridCdTable, const char* logPath) {
  GridCard card;
  CardCursor at = *cursor;
  if (IsFreeFormat(at)) {
    ReadFreeFields(&at, &card);
  } else if (at[strnlen(at, 4)] == '*') {
    ReadLargeFields(&at, &card);
  } else {
    ReadSmallFields(&at, &card);
  }
  if (card.cdId > 0) {
    NoteDisplacementSystem(card, gridCdTable);
  }
  if (card.cpId != 0) {
    NotePositionSystem(card, gridCpList);
  }
  const std::int32_t refused = model->CreateNode(card.id, card.position, 0);
  NoteNodeId(card.id);
  at += std::strcspn(at, "\n");
  if (*at == '\n') {
    ++at;
  }
  if (refused != 0 && card.isRefusalLogged) {
    LogFailure(logPath, "Node", card.id);
  }
  *cursor = at;
}

}  // namespace btz
