// Value lists: every kind with its slot, extent and text, in the order of adding, and their limits.
#include "host/named_values.h"

#include <gmock/gmock.h>

#include <cstring>
#include <string>
#include <vector>

#include "support/pooled_list.h"

namespace btz::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

std::vector<NamedValue*> Entries(NamedValues& values) {
  std::vector<NamedValue*> entries;
  WalkList<NamedValue>(values.List(), [&](NamedValue* value) { entries.push_back(value); });
  return entries;
}

/// The one value of a list.
const NamedValue& Only(NamedValues& values) {
  const std::vector<NamedValue*> entries = Entries(values);
  EXPECT_THAT(entries, SizeIs(1));
  return *entries.at(0);
}

/// The eight bytes of the slot as one number.
std::uint64_t Slot(const NamedValue& value) {
  static_assert(sizeof(value.value) == sizeof(std::uint64_t));
  std::uint64_t slot = 0;
  std::memcpy(&slot, &value.value, sizeof(slot));
  return slot;
}

TEST(NamedValues, ANewListIsEmpty) {
  NamedValues values;
  EXPECT_THAT(Entries(values), IsEmpty());
  EXPECT_EQ(values.List()->size, 0);
}

TEST(NamedValues, ARealNumber) {
  NamedValues values;
  values.AddReal("NSM", 1.5);
  const NamedValue& value = Only(values);
  EXPECT_STREQ(value.key, "NSM");
  EXPECT_EQ(value.kind, ValueReal);
  EXPECT_EQ(value.extent, 0);
  EXPECT_EQ(value.text, nullptr);
  EXPECT_EQ(value.value.real, 1.5);
}

TEST(NamedValues, AnUnsetNumberKeepsWhatTheReaderHad) {
  NamedValues values;
  values.AddReal("Area", 2.5, true);
  values.AddInteger("Mat_cord_Sys", 3.0, true);
  const std::vector<NamedValue*> entries = Entries(values);
  ASSERT_THAT(entries, SizeIs(2));
  EXPECT_EQ(entries[0]->kind, ValueUnset);
  EXPECT_EQ(entries[0]->value.real, 2.5);
  EXPECT_EQ(entries[1]->kind, ValueUnset);
  EXPECT_EQ(entries[1]->value.real, 3.0);
}

TEST(NamedValues, AnIntegerIsHeldAsADouble) {
  NamedValues values;
  values.AddInteger("PA", -2147483648.0);
  EXPECT_EQ(Only(values).kind, ValueInteger);
  EXPECT_EQ(Only(values).value.real, -2147483648.0);
}

TEST(NamedValues, AFlagIsZeroOrOne) {
  NamedValues values;
  values.AddFlag("On", true);
  values.AddFlag("Off", false);
  const std::vector<NamedValue*> entries = Entries(values);
  ASSERT_THAT(entries, SizeIs(2));
  EXPECT_EQ(entries[0]->kind, ValueFlag);
  EXPECT_EQ(entries[0]->value.real, 1.0);
  EXPECT_EQ(entries[1]->kind, ValueFlag);
  EXPECT_EQ(entries[1]->value.real, 0.0);
}

TEST(NamedValues, AChoiceFillsTheLowHalfOfItsSlotAndTheOtherIsZero) {
  NamedValues values;
  values.AddEnum("Nastran_Element_Type", -1);
  EXPECT_EQ(Only(values).kind, ValueEnum);
  EXPECT_EQ(Only(values).value.choice, -1);
  EXPECT_EQ(Slot(Only(values)), 0xFFFFFFFFu);
}

TEST(NamedValues, AnObjectHasTheExtentOneAndNoObjectZero) {
  int object = 0;
  NamedValues values;
  values.AddObject("Material_Bending", &object);
  values.AddObject("Material_TS", nullptr);
  const std::vector<NamedValue*> entries = Entries(values);
  ASSERT_THAT(entries, SizeIs(2));
  EXPECT_EQ(entries[0]->kind, ValueObject);
  EXPECT_EQ(entries[0]->extent, 1);
  EXPECT_EQ(entries[0]->value.object, &object);
  EXPECT_EQ(entries[1]->kind, ValueObject);
  EXPECT_EQ(entries[1]->extent, 0);
  EXPECT_EQ(Slot(*entries[1]), 0u);
}

TEST(NamedValues, ATextHasTheExtentThatItIsGiven) {
  char text[] = "OSection";
  NamedValues values;
  values.AddText("SectionType", text, 26);
  EXPECT_EQ(Only(values).kind, ValueText);
  EXPECT_EQ(Only(values).extent, 26);
  EXPECT_EQ(Only(values).value.characters, text);
  EXPECT_EQ(Only(values).text, nullptr);
}

TEST(NamedValues, ARealNumberWithItsText) {
  char text[] = "1.50";
  NamedValues values;
  values.AddRealWithText("Thickness", 1.5, false, text);
  values.AddRealWithText("Blank", 0.0, true, text);
  const std::vector<NamedValue*> entries = Entries(values);
  ASSERT_THAT(entries, SizeIs(2));
  EXPECT_EQ(entries[0]->kind, ValueReal);
  EXPECT_EQ(entries[0]->text, text);
  EXPECT_EQ(entries[0]->extent, 0);
  EXPECT_EQ(entries[1]->kind, ValueUnset);
  EXPECT_EQ(entries[1]->text, text);
}

TEST(NamedValues, ValuesStandInTheOrderOfAdding) {
  NamedValues values;
  values.AddReal("B", 0.0);
  values.AddFlag("A", true);
  values.AddReal("B", 1.0);
  std::vector<std::string> keys;
  for (const NamedValue* value : Entries(values)) {
    keys.emplace_back(value->key);
  }
  EXPECT_THAT(keys, ElementsAre("B", "A", "B"));
}

TEST(NamedValues, AClearedListStartsAnewWithNothingLeftInItsRecords) {
  int object = 0;
  char text[] = "1.50";
  NamedValues values;
  values.AddRealWithText("Thickness", 1.5, false, text);
  values.AddObject("Material_Bending", &object);
  values.Clear();
  EXPECT_THAT(Entries(values), IsEmpty());
  values.AddEnum("T", 1);
  const NamedValue& value = Only(values);
  EXPECT_EQ(value.text, nullptr);
  EXPECT_EQ(value.extent, 0);
  EXPECT_EQ(Slot(value), 1u);
  EXPECT_EQ(std::string(value.key, sizeof(value.key)), "T" + std::string(255, '\0'));
}

TEST(NamedValues, ALongKeyIsCut) {
  NamedValues values;
  values.AddReal(std::string(300, 'k').c_str(), 1.0);
  EXPECT_EQ(std::string(Only(values).key), std::string(255, 'k'));
}

TEST(NamedValues, ValuesBeyondTheCapacityAreLeftOut) {
  NamedValues values;
  for (std::int32_t i = 0; i <= NamedValues::capacity; ++i) {
    values.AddReal("R", i);
    values.AddInteger("I", i);
    values.AddFlag("F", true);
    values.AddEnum("E", i);
    values.AddObject("O", &values);
    values.AddText("T", nullptr, 0);
  }
  const std::vector<NamedValue*> entries = Entries(values);
  ASSERT_THAT(entries, SizeIs(NamedValues::capacity));
  EXPECT_STREQ(entries.back()->key, "T");
  EXPECT_STREQ(entries.front()->key, "R");
}

}  // namespace
}  // namespace btz::test
