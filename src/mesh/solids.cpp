#include "mesh/solids.h"

#include "mesh/element_card.h"
#include "support/block_pool.h"
#include "support/hash_keys.h"
#include "support/pooled_list.h"

namespace btz {

PooledList TransitionElementList;

namespace {

/// What differs between wedges and hexahedra.
struct SolidForm {
  const char* largeKeyword;
  std::int32_t cornerType;
  std::int32_t midSideType;
  std::int32_t solidFlag;
  const char* logWord;
};

// Required: wedges go to the host with the flag 0, all other solids with 1.
constexpr SolidForm wedge{"CPENTA*", elementWedge6, elementWedge15, 0, "Wedge"};
constexpr SolidForm hexa{"CHEXA*", elementHexa8, elementHexa20, 1, "Hex"};

std::int32_t ReadSolidCard(MeshModel* model, CardCursor* cursor, const char* logPath, const SolidForm& form) {
  const std::int32_t width = FieldWidthFor(*cursor, form.largeKeyword);
  ElementCard card;
  ReadElementHead(model, cursor, width, &card);
  const std::int32_t count = WalkIntegers(cursor, width, card.nodes, TopologyOf(ElementNodeCount, form.midSideType));
  card.type = count > TopologyOf(ElementCornerCount, form.midSideType) ? form.midSideType : form.cornerType;
  return CreateElementInPart(model, card, partOfSolids, form.solidFlag, 0, form.logWord, logPath);
}

void KeepTransitionTetra(const ElementCard& card, const std::int32_t (&byPosition)[10]) {
  auto* record = static_cast<TransitionTetRecord*>(AllocateZeroed(sizeof(TransitionTetRecord)));
  if (record == nullptr) {
    return;
  }
  record->elementId = card.id;
  record->partId = card.partId;
  std::memcpy(record->nodes, byPosition, sizeof(record->nodes));
  ListAppend(&TransitionElementList, record);
}

/// The node ids of a free-format pyramid. The first is converted as an integer, the others as reals that are cut.
void ReadFreePyramid(const char* line, ElementCard* card) {
  card->id = GetFreeInteger(line, 1);
  card->partId = GetFreeInteger(line, 2);
  card->nodes[0] = GetFreeInteger(line, 3);
  for (std::int32_t node = 1; node < 5; ++node) {
    char token[deckLineCapacity];
    GetFreeToken(line, 3 + node, token, sizeof(token), true);
    card->nodes[node] = TruncateToInt(ParseDecimal(token));
  }
}

}  // namespace

std::int32_t ReadTetraCard(MeshModel* model, CardCursor* cursor, const char* logPath) {
  const std::int32_t width = FieldWidthFor(*cursor, "CTETRA*");
  ElementCard card;
  ReadElementHead(model, cursor, width, &card);
  std::int32_t byPosition[10] = {};
  std::int32_t position = 0;
  const auto readNode = [&](std::int32_t slot) {
    ReadIntField(width, cursor, &card.nodes[slot]);
    if (position < 10) {
      byPosition[position] = card.nodes[slot];
    }
    ++position;
  };
  const FieldWalk walk{width, StopTest::AnyText, NumericTest::Integer};
  const std::int32_t count = WalkFields(cursor, 10, walk, readNode, [&] { ++position; });
  card.type = count > 4 ? elementTetra10 : elementTetra4;
  if (count == 4 || count == 10) {
    return CreateElementInPart(model, card, partOfSolids, 1, 0, "Tet", logPath);
  }
  EnsurePart(model, card.partId, partOfSolids);
  KeepTransitionTetra(card, byPosition);
  return 0;
}

std::int32_t ReadPentaCard(MeshModel* model, CardCursor* cursor, const char* logPath) {
  return ReadSolidCard(model, cursor, logPath, wedge);
}

std::int32_t ReadHexaCard(MeshModel* model, CardCursor* cursor, const char* logPath) {
  const std::int32_t refused = ReadSolidCard(model, cursor, logPath, hexa);
  SkipPlusAndBlanks(cursor);
  return refused;
}

std::int32_t ReadPyramidCard(MeshModel* model, DeckBuffer* buffer, const char* logPath) {
  ElementCard card;
  card.type = elementPyramid5;
  CardCursor* cursor = &buffer->cursor;
  if (BeginsWithKeyword(*cursor, "CPYRA,") || BeginsWithKeyword(*cursor, "CPYRAM,")) {
    char line[deckLineCapacity];
    if (ReadDeckLine(cursor, line, sizeof(line)) < 0) {
      // The line is not terminated. Behind the chunk's end there is the next line, or nothing at all.
      *cursor += std::strlen(*cursor);
      if (ReadDeckChunk(buffer) == 1) {
        return 1;
      }
      ReadDeckLine(cursor, line, sizeof(line));
    }
    ReadFreePyramid(line, &card);
  } else {
    const bool large = BeginsWithKeyword(*cursor, "CPYRA*") || BeginsWithKeyword(*cursor, "CPYRAM*");
    const std::int32_t width = large ? 16 : 8;
    ReadElementHead(model, cursor, width, &card);
    WalkIntegers(cursor, width, card.nodes, 5);
  }
  return CreateElementInPart(model, card, partOfSolids, 1, 0, "Pyramid", logPath);
}

}  // namespace btz
