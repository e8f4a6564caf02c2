#include <initializer_list>

#include "deck/card_boundaries.h"
#include "deck/position_walk.h"
#include "properties/property_capture.h"
#include "properties/property_cards.h"

namespace btz {

namespace {

// What stands at each position of an ordinary card. Required: the third line of a PBEAM is not read in a layout of its own; what stands behind
// F2 lands in K1 and K2.
constexpr std::size_t barPositions[beamValueCount] = {
    beamArea, beamI1, beamI2, beamTorsion, beamNonStructuralMass, beamC1, beamC2, beamD1, beamD2, beamE1, beamE2, beamF1,
    beamF2,   beamK1, beamK2, beamI12};
constexpr std::size_t beamPositions[beamValueCount] = {beamArea, beamI1, beamI2, beamI12, beamTorsion, beamNonStructuralMass,
                                                       beamC1,   beamC2, beamD1, beamD2,  beamE1,      beamE2,
                                                       beamF1,   beamF2, beamK1, beamK2};

/// Walks the numbers of an ordinary card. The mark of a position is written before it is known whether the card ends there.
class SectionWalk {
 public:
  SectionWalk(CardCursor* cursor, std::int32_t width, BeamPropertyRecord* record) : cursor_(cursor), width_(width), record_(record) {}

  void Run() {
    while (position_ < beamValueCount && Step()) {
    }
  }

 private:
  /// False at the end of the card.
  bool Step() {
    FieldText text;
    switch (ClassifyPosition(*cursor_, width_, text)) {
      case PositionKind::ContinuationMark:
        markSeen_ = true;
        return SkipField(cursor_, width_) == 0;
      case PositionKind::Blank:
        if (IsPadding()) {
          return SkipField(cursor_, width_) == 0;
        }
        Take(1);
        return true;
      case PositionKind::StarMarker:
        Mark(0);
        return SkipField(cursor_, 8) == 0;
      case PositionKind::StarKeyword:
        // Required: a large-field card behind a short one leaves the next value given, as 0.0.
        Mark(0);
        return false;
      case PositionKind::Text:
        Mark(1);
        return false;
      case PositionKind::Value:
        Take(0);
        return true;
    }
    return false;
  }

  /// A blank field that is no value: the empty eighth field of a bar card's first line, and, on a card without continuation marks, the blank
  /// marker of its third line. Required: it is told by its position alone, so a blank C1 of a bar is stepped over too, as is a blank K1 (F2 of a
  /// beam) on a card without marks, and the value behind it takes the place.
  bool IsPadding() const { return (position_ == 5 && record_->isBeam == 0) || (position_ == 13 && !markSeen_); }

  std::size_t Slot() const { return (record_->isBeam != 0 ? beamPositions : barPositions)[position_]; }

  void Mark(std::uint8_t blank) { record_->blank[Slot()] = blank; }

  void Take(std::uint8_t blank) {
    Mark(blank);
    ReadRealField(width_, cursor_, &(record_->*beamValueFields[Slot()]));
    ++position_;
  }

  CardCursor* cursor_;
  std::int32_t width_;
  BeamPropertyRecord* record_;
  std::size_t position_ = 0;
  bool markSeen_ = false;
};

/// How the dimensions of a library section are understood.
enum class SectionClass { Unknown, TwoDimensions, OneDimension };

/// Class of the section word at the start of `text`. Required: only the head counts (`CHAN`, `TUBE2`, but a `BAROR` card too), and only in upper
/// case; no other section is known.
SectionClass ClassOfSection(const char* text) {
  if (BeginsWithKeyword(text, "ROD")) {
    return SectionClass::OneDimension;
  }
  for (const char* word : {"TUBE", "BAR", "BOX", "CHA"}) {
    if (BeginsWithKeyword(text, word)) {
      return SectionClass::TwoDimensions;
    }
  }
  return SectionClass::Unknown;
}

// Required: of a section with more dimensions the third counts as the mass.
constexpr std::int32_t mostDimensions = 3;

/// Collects the numbers behind GROUP and the class of the section word among them.
SectionClass WalkDimensions(CardCursor* cursor, std::int32_t width, double (&dimensions)[mostDimensions]) {
  SectionClass section = SectionClass::Unknown;
  std::int32_t count = 0;
  FieldText text;
  while (count < mostDimensions) {
    const PositionKind kind = ClassifyPosition(*cursor, width, text);
    if (kind == PositionKind::StarKeyword) {
      return section;
    }
    if (kind == PositionKind::StarMarker) {
      SkipField(cursor, 8);
      continue;
    }
    if (kind == PositionKind::ContinuationMark || kind == PositionKind::Blank) {
      if (SkipField(cursor, width) == 1) {
        return section;
      }
      continue;
    }
    const SectionClass word = LooksLikeText(text) ? ClassOfSection(text) : SectionClass::Unknown;
    if (word != SectionClass::Unknown) {
      section = word;
      SkipField(cursor, width);
      continue;
    }
    if (kind == PositionKind::Text) {
      return section;
    }
    ReadRealField(width, cursor, &dimensions[count++]);
  }
  return section;
}

void ReadLibrarySection(CardCursor* cursor, std::int32_t width, BeamPropertyRecord* record) {
  Advance(cursor, static_cast<std::size_t>(width));  // GROUP
  double dimensions[mostDimensions] = {};
  const SectionClass section = WalkDimensions(cursor, width, dimensions);
  record->sectionDim1 = dimensions[0];
  if (section == SectionClass::TwoDimensions) {
    record->sectionDim2 = dimensions[1];
    record->nonStructuralMass = dimensions[2];
  } else if (section == SectionClass::OneDimension) {
    record->nonStructuralMass = dimensions[1];
  }
}

bool IsAnyKeyword(const char* keyword, const char* name, const char* largeName) {
  return CompareNoCase(keyword, name) == 0 || CompareNoCase(keyword, largeName) == 0;
}

std::int32_t BeamCardWidth(const char* cursor) {
  for (const char* keyword : {"PBAR*", "PBARL*", "PBEAM*", "PBEAML*"}) {
    if (BeginsWithKeyword(cursor, keyword)) {
      return 16;
    }
  }
  return 8;
}

}  // namespace

void ReadBeamPropertyCard(CardCursor* cursor, IndexedList* beamPropertyList) {
  auto* record = NewRecord<BeamPropertyRecord>();
  if (record == nullptr) {
    return;
  }
  for (std::uint8_t& blank : record->blank) {
    blank = 1;
  }
  const std::int32_t comment = ReadCommentAboveCard(*cursor, record->name);
  const std::int32_t width = BeamCardWidth(*cursor);
  FieldText keyword;
  TakeKeyword(cursor, keyword);
  const bool beamLibrary = IsAnyKeyword(keyword, "PBEAML", "PBEAML*");
  record->isBeam = beamLibrary || IsAnyKeyword(keyword, "PBEAM", "PBEAM*");
  record->isSectionLibrary = beamLibrary || IsAnyKeyword(keyword, "PBARL", "PBARL*");
  ReadIntField(width, cursor, &record->propertyId);
  ReadIntField(width, cursor, &record->materialId);
  if (record->isSectionLibrary != 0) {
    ReadLibrarySection(cursor, width, record);
  } else {
    SectionWalk(cursor, width, record).Run();
  }
  Capture(record, beamPropertyList, comment);
}

}  // namespace btz
