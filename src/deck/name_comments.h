// Names from comments. A deck carries no names in its cards, but the programs that write decks put them in `$HMNAME`, `$HMSET` and
// `$ANSA_NAME;` lines, or in a plain comment above a card. The readers here collect them in tables by id, from which later stages name the
// host's parts, materials, properties, sets and surfaces.
#pragma once

#include <btz/containers.h>

#include "deck/deck_buffer.h"

namespace btz {

inline constexpr std::size_t nameCapacity = 256;  ///< 255 characters and the terminator.

/// One name. Heap block, owned by its table.
struct NameRecord {
  std::int32_t id;
  char name[nameCapacity];
};

extern HashTable PropertyNameTable;     ///< Names of parts, by part id.
extern HashTable NodeSetNameTable;      ///< Names of node sets.
extern HashTable ElementSetNameTable;   ///< Names of element sets.
extern HashTable SurfaceNameTable;      ///< Names of contact surfaces.
extern HashTable MaterialCommentTable;  ///< Names of materials, by material id.
extern HashTable PropertyCommentTable;  ///< Names of properties, by property id.

/// The name held for `id`, or null.
const NameRecord* FindName(const HashTable* table, std::int32_t id);

// Each of these does nothing for an id below 1 or an empty name; names are cut to 255 characters.

/// Names a part. A name that the part has is kept unless `overwrite`: an explicit name comment wins over a plain comment.
void RegisterPropertyName(std::int32_t id, const char* name, bool overwrite);

/// Names a node set (kind 1), an element set (2) or a contact surface (3); other kinds are ignored. The first name of an id stays.
void RegisterSetName(std::int32_t id, const char* name, std::int32_t kind);

/// Names a material ("MAT") or a property ("PROP"), in any case mix; other kinds are ignored. The first name of an id stays.
void RegisterCommentName(const char* kindText, std::int32_t id, const char* name);

/// Gives the name in the comment line above the card at `cursor`, or an empty text. `nameOut` holds 256 characters. Returns 3 when the line is
/// a bare `$name`, 0 for a name behind a colon and for none. The cursor does not move.
/// The card is taken to begin its line: for an indented card its own line is looked at.
std::int32_t ReadCommentAboveCard(const char* cursor, char* nameOut);

/// Takes a `$ANSA_NAME;id;type;` line and, for a property type, the line below it, which holds the name.
void ReadAnsaNameComment(CardCursor* cursor);

/// Takes a `$HMNAME kind id"name"` line of a component, contact surface, material or property. Does not move for other kinds.
void ReadHmNameComment(CardCursor* cursor);

/// Takes a `$HMSET id kind "name"` line.
void ReadHmSetComment(CardCursor* cursor);

}  // namespace btz
