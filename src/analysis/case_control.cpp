#include "analysis/case_control.h"

#include <cstring>
#include <initializer_list>

#include "deck/card_boundaries.h"
#include "support/block_pool.h"
#include "support/pooled_list.h"

namespace btz {

namespace {

/// A line of case control, taken apart.
struct CaseLine {
  char keyword[deckLineCapacity];
  char value[deckLineCapacity];  ///< Behind the keyword, without equals signs and outer blanks.
};

/// Takes the line at the cursor; false at the end of the text, also when the last line has no line end.
bool TakeCaseLine(CardCursor* cursor, CaseLine* taken) {
  char line[deckLineCapacity];
  if (ReadDeckLine(cursor, line, sizeof(line)) < 0) {
    return false;
  }
  TrimField(line);
  GetFreeToken(line, 0, taken->keyword, sizeof(taken->keyword), true);
  const char* behind = std::strstr(line, taken->keyword) + std::strlen(taken->keyword);
  char* to = taken->value;
  for (const char* from = *behind == 0 ? behind : behind + 1; *from != 0; ++from) {
    if (*from != '=') {
      *to++ = *from;
    }
  }
  *to = 0;
  TrimField(taken->value);
  return true;
}

/// What a line of the subcase sets.
struct IdEntry {
  const char* keyword;
  std::int32_t SubcaseRecord::*id;
  IdSet SubcaseRecord::*ids;  ///< Opened for the sets that combination cards list; or null.
  bool isLoad;                ///< Whether a subcase with such a line makes a load case.
};

constexpr IdEntry idEntries[] = {
    {"SPC", &SubcaseRecord::spcId, &SubcaseRecord::spcIds, true},
    {"LOAD", &SubcaseRecord::loadId, &SubcaseRecord::loadIds, true},
    {"DLOAD", &SubcaseRecord::dloadId, &SubcaseRecord::dloadIds, true},
    {"PRETENSION", &SubcaseRecord::pretensionId, &SubcaseRecord::pretensionIds, true},
    {"TEMPERATURE(LOAD)", &SubcaseRecord::temperatureId, nullptr, true},
    {"TEMP(LOAD)", &SubcaseRecord::temperatureId, nullptr, true},
    {"MPC", &SubcaseRecord::mpcId, &SubcaseRecord::mpcIds, true},
    {"SDAMPING(STRUCTURE)", &SubcaseRecord::dampingId, nullptr, true},
    {"SDAMPING", &SubcaseRecord::dampingId, nullptr, true},
    {"FREQUENCY", &SubcaseRecord::frequencyId, nullptr, false},
    {"MFLUID", &SubcaseRecord::fluidId, nullptr, false},
    {"METHOD", &SubcaseRecord::methodId, nullptr, false},
    {"METHOD(STRUCTURE)", &SubcaseRecord::methodId, nullptr, false},
};

/// What a line of a subcase turned out to be.
enum class LineKind { Other, Entry, LoadEntry };

LineKind TakeEntry(const CaseLine& line, SubcaseRecord* subcase) {
  if (CompareNoCase(line.keyword, "SUBTITLE") == 0 || CompareNoCase(line.keyword, "LABEL") == 0) {
    CopyText(subcase->title, sizeof(subcase->title), line.value);
    return LineKind::Entry;
  }
  if (CompareNoCase(line.keyword, "ANALYSIS") == 0) {
    CopyText(subcase->analysisName, sizeof(subcase->analysisName), line.value);
    return LineKind::Entry;
  }
  for (const IdEntry& entry : idEntries) {
    if (CompareNoCase(line.keyword, entry.keyword) == 0) {
      subcase->*entry.id = ParseInteger(line.value);
      if (entry.ids != nullptr) {
        IdSetOpen(&(subcase->*entry.ids));
      }
      return entry.isLoad ? LineKind::LoadEntry : LineKind::Entry;
    }
  }
  return LineKind::Other;
}

SubcaseRecord* NewSubcase(PooledList* subcaseList) {
  auto* subcase = static_cast<SubcaseRecord*>(AllocateZeroed(sizeof(SubcaseRecord)));
  if (subcase == nullptr) {
    return nullptr;
  }
  for (IdSet* ids : {&subcase->loadIds, &subcase->spcIds, &subcase->mpcIds, &subcase->dloadIds, &subcase->pretensionIds}) {
    IdSetInit(ids);
  }
  ListAppend(subcaseList, subcase);
  return subcase;
}

/// A subcase without a load-like line makes no load case, unless it is one of normal modes.
void CloseSubcase(SubcaseRecord* subcase, bool hasLoads) {
  if (!hasLoads && CompareNoCase(subcase->analysisName, "MODES") != 0) {
    subcase->skip = 1;
  }
}

bool EndsCaseControl(const char* keyword) { return CompareNoCase(keyword, "BEGIN") == 0 || IsCardKeyword(keyword); }

}  // namespace

void ReadSubcases(CardCursor* cursor, PooledList* subcaseList) {
  CaseLine line;
  if (!TakeCaseLine(cursor, &line)) {
    return;
  }
  SubcaseRecord* subcase = NewSubcase(subcaseList);
  bool hasLoads = false;
  CardCursor start = *cursor;
  while (subcase != nullptr && TakeCaseLine(cursor, &line)) {
    const LineKind kind = TakeEntry(line, subcase);
    hasLoads = hasLoads || kind == LineKind::LoadEntry;
    if (CompareNoCase(line.keyword, "SUBCASE") == 0) {
      CloseSubcase(subcase, hasLoads);
      subcase = NewSubcase(subcaseList);
      hasLoads = false;
    } else if (kind == LineKind::Other && EndsCaseControl(line.keyword)) {
      *cursor = start;
      break;
    }
    start = *cursor;
  }
  if (subcase != nullptr) {
    CloseSubcase(subcase, hasLoads);
  }
}

void FreeSubcaseRecord(void* record) {
  auto* subcase = static_cast<SubcaseRecord*>(record);
  for (IdSet* ids : {&subcase->loadIds, &subcase->spcIds, &subcase->mpcIds, &subcase->dloadIds, &subcase->pretensionIds}) {
    IdSetClear(ids);
  }
  ReleaseMemory(subcase);
}

}  // namespace btz
