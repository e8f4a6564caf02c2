// Names of parts, made unique.
#include "mesh/part_names.h"

#include <gmock/gmock.h>

#include <random>

#include "support/text.h"
#include "tests/unit/mesh/mesh_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;

class PartNamesTest : public MeshTest {
 protected:
  void AddPart(const std::wstring& name) {
    MeshPart* part = nullptr;
    model->CreateBody(1, &part, ++lastId, 0, 1, 1);
    part->SetName(name.c_str());
    ListAppend(&PartList, part);
  }

  /// Names of all parts behind the call, in order.
  std::vector<std::wstring> UniqueNames() {
    Calls();
    MakePartNamesUnique();
    std::vector<std::wstring> names;
    WalkList<MeshPart>(&PartList, [&](MeshPart* part) { names.push_back(part->GetName()); });
    return names;
  }

  std::int32_t lastId = 0;
};

TEST_F(PartNamesTest, DifferentNamesStay) {
  AddPart(L"A");
  AddPart(L"B");
  EXPECT_THAT(UniqueNames(), ElementsAre(L"A", L"B"));
}

TEST_F(PartNamesTest, DuplicatesAreNumbered) {
  AddPart(L"A");
  AddPart(L"A");
  AddPart(L"A");
  EXPECT_THAT(UniqueNames(), ElementsAre(L"A", L"A_1", L"A_2"));
}

TEST_F(PartNamesTest, TheNumberIsNotStartedAnewForAnotherName) {
  AddPart(L"A");
  AddPart(L"B");
  AddPart(L"A");
  AddPart(L"A");
  AddPart(L"B");
  EXPECT_THAT(UniqueNames(), ElementsAre(L"A", L"B", L"A_1", L"A_2", L"B_3"));
}

TEST_F(PartNamesTest, NamesAreEqualInAnyCaseMixAndTheEarlierSpellingIsNumbered) {
  AddPart(L"Door");
  AddPart(L"DOOR");
  EXPECT_THAT(UniqueNames(), ElementsAre(L"Door", L"Door_1"));
}

TEST_F(PartNamesTest, ANewNameMayMeetALaterPart) {
  AddPart(L"A");
  AddPart(L"A");
  AddPart(L"A_1");
  // The second part takes the third one's name, which then gives way.
  EXPECT_THAT(UniqueNames(), ElementsAre(L"A", L"A_1", L"A_1_2"));
}

TEST_F(PartNamesTest, ANewNameDoesNotLookAtEarlierParts) {
  AddPart(L"A_1");
  AddPart(L"A");
  AddPart(L"A");
  EXPECT_THAT(UniqueNames(), ElementsAre(L"A_1", L"A", L"A_1"));
}

TEST_F(PartNamesTest, EmptyNamesAreNamesToo) {
  AddPart(L"");
  AddPart(L"");
  EXPECT_THAT(UniqueNames(), ElementsAre(L"", L"_1"));
}

TEST_F(PartNamesTest, ALongNameIsCutTo255Characters) {
  const std::wstring name(300, L'x');
  AddPart(name);
  AddPart(name);
  const std::vector<std::wstring> names = UniqueNames();
  EXPECT_EQ(names[0], name);
  EXPECT_EQ(names[1].size(), 255u);
}

TEST_F(PartNamesTest, EveryPartIsFirstUnmarkedAndThenMarked) {
  AddPart(L"A");
  AddPart(L"A");
  Calls();
  MakePartNamesUnique();
  EXPECT_THAT(Calls(), ElementsAre("MeshPart#1.SetNamed(0)", "MeshPart#2.SetNamed(0)", "MeshPart#1.SetNamed(1)",
                                   "MeshPart#2.SetName(\"A_1\")", "MeshPart#2.SetNamed(1)"));
}

/// Part names made unique the plain way: for each part in turn, a walk over all.
std::vector<std::wstring> UniqueByPlainWalks(std::vector<std::wstring> names) {
  std::vector<bool> isNamed(names.size(), false);
  std::int32_t suffix = 1;
  for (std::size_t i = 0; i < names.size(); ++i) {
    isNamed[i] = true;
    for (std::size_t j = 0; j < names.size(); ++j) {
      if (!isNamed[j] && CompareNoCase(names[j].c_str(), names[i].c_str()) == 0) {
        names[j] = (names[i] + L"_" + std::to_wstring(suffix++)).substr(0, 255);
      }
    }
  }
  return names;
}

TEST_F(PartNamesTest, ManyNamesBecomeWhatPlainWalksMakeOfThem) {
  std::mt19937 random(7);
  // Names that meet those that renaming makes, in both cases, and one so long that its number is cut off.
  const std::vector<std::wstring> stems = {L"a", L"A", L"a_1", L"A_2", L"a_1_3", L"b", L"B_4", L"", L"_1", std::wstring(255, L'x')};
  for (int round = 0; round < 200; ++round) {
    ListClear(&PartList);
    std::vector<std::wstring> names;
    for (std::uint32_t count = random() % 40; count != 0; --count) {
      names.push_back(stems[random() % stems.size()]);
      AddPart(names.back());
    }
    ASSERT_EQ(UniqueNames(), UniqueByPlainWalks(names)) << "round " << round;
  }
}

TEST_F(PartNamesTest, WithoutPartsNothingHappens) { EXPECT_TRUE(UniqueNames().empty()); }

}  // namespace
}  // namespace btz::test
