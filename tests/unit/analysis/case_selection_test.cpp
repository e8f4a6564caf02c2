// Which entities a subcase selects, in which order; and the comparison with a plain model on random sets and subcases.
#include <gtest/gtest.h>

#include <map>
#include <random>
#include <utility>

#include "tests/unit/analysis/combination_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CaseSelection : public CombinationTest {
 protected:
  /// Subcases with combination cards: case control, then cards.
  std::vector<Entity*> SelectedWith(std::string_view caseControl, SubcaseId kind, std::string_view card) {
    ReadCases(caseControl);
    ReadCard(card, kind);
    CreateLoadCases({0, subcases, boundary, host.GetCurveStore(), addBolts});
    return Members(0);
  }
};

TEST_F(CaseSelection, ALoadSetWithoutCombinationGivesOneKindOnly) {
  Entity* pressure = AddPressure(2);
  AddForce(2);
  Entity* second = AddPressure(2);
  AddBodyLoad(2);
  EXPECT_THAT(Selected("SUBCASE 1\nLOAD = 2\nBEGIN\n"), ElementsAre(pressure, second));
}

TEST_F(CaseSelection, EachAppliedKindMayComeFirst) {
  Entity* firstForce = AddForce(2);
  AddPressure(2);
  Entity* secondForce = AddForce(2);
  Entity* firstBody = AddBodyLoad(3);
  AddForce(3);
  Entity* secondBody = AddBodyLoad(3);
  EXPECT_THAT(Selected("SUBCASE 1\nLOAD = 2\nSUBCASE 2\nLOAD = 3\nBEGIN\n"), ElementsAre(firstForce, secondForce));
  EXPECT_THAT(Members(1), ElementsAre(firstBody, secondBody));
}

TEST_F(CaseSelection, OtherKindsDoNotDecideTheFirstKind) {
  AddTemperature(2, loadSet);
  Entity* enforced = AddEnforced(2);
  Entity* force = AddForce(2);
  AddTemperature(2, loadSet);
  EXPECT_THAT(Selected("SUBCASE 1\nLOAD = 2\nBEGIN\n"), ElementsAre(force, enforced));
}

TEST_F(CaseSelection, EnforcedConstraintsOfTheLoadSetComeBehindItsLoads) {
  Entity* first = AddEnforced(2);
  Entity* force = AddForce(2);
  Entity* second = AddEnforced(2);
  AddConstraint(2, loadSet, 0);
  EXPECT_THAT(Selected("SUBCASE 1\nLOAD = 2\nBEGIN\n"), ElementsAre(force, first, second));
}

TEST_F(CaseSelection, EnforcedConstraintsAloneAreReachedByTheirLoadSet) {
  Entity* enforced = AddEnforced(2);
  EXPECT_THAT(Selected("SUBCASE 1\nLOAD = 2\nBEGIN\n"), ElementsAre(enforced));
}

TEST_F(CaseSelection, ACombinationGivesAllItemsOfItsSets) {
  Entity* pressure = AddPressure(5);
  Entity* force = AddForce(5);
  Entity* enforced = AddEnforced(6);
  Entity* plain = AddConstraint(6, loadSet, 0);
  AddForce(7);
  EXPECT_THAT(SelectedWith("SUBCASE 1\nLOAD = 2\nBEGIN\n", SubcaseId::Load, "LOAD    2       1.0     1.0     6       1.0     5       \n"),
              ElementsAre(pressure, force, enforced, plain));
}

TEST_F(CaseSelection, ACombinationLeavesOutTheLoadsOfItsOwnSetButNotItsEnforcedConstraints) {
  AddForce(2);
  Entity* enforced = AddEnforced(2);
  Entity* force = AddForce(5);
  EXPECT_THAT(SelectedWith("SUBCASE 1\nLOAD = 2\nBEGIN\n", SubcaseId::Load, "LOAD    2       1.0     1.0     5       \n"),
              ElementsAre(force, enforced));
}

TEST_F(CaseSelection, ACombinationThatListsItsOwnSetGivesEnforcedConstraintsTwice) {
  Entity* enforced = AddEnforced(2);
  Entity* force = AddForce(2);
  EXPECT_THAT(SelectedWith("SUBCASE 1\nLOAD = 2\nBEGIN\n", SubcaseId::Load, "LOAD    2       1.0     1.0     2       \n"),
              ElementsAre(enforced, force, enforced));
}

TEST_F(CaseSelection, ACombinationOfMissingSetsGivesNothing) {
  AddForce(2);
  EXPECT_THAT(SelectedWith("SUBCASE 1\nLOAD = 2\nBEGIN\n", SubcaseId::Load, "LOAD    2       1.0     1.0     77      \n"), IsEmpty());
}

TEST_F(CaseSelection, ACombinationWithoutIdsIsNone) {
  Entity* force = AddForce(2);
  EXPECT_THAT(SelectedWith("SUBCASE 1\nLOAD = 2\nBEGIN\n", SubcaseId::Load, "LOAD    2       1.0     1.0     \n"), ElementsAre(force));
}

TEST_F(CaseSelection, ConstraintsAreFollowedByTheEnforcedOnesOfTheirSet) {
  Entity* enforced = AddEnforced(1);
  AddConstraint(1, loadSet, 0);
  AddForce(1);
  Entity* first = AddPlainConstraint(1);
  Entity* second = AddPlainConstraint(1);
  EXPECT_THAT(Selected("SUBCASE 1\nSPC = 1\nBEGIN\n"), ElementsAre(first, second, enforced));
}

TEST_F(CaseSelection, CombinedConstraintsDoNotBringTheEnforcedOnesOfTheirSets) {
  AddPlainConstraint(1);
  Entity* own = AddEnforced(1);
  Entity* third = AddPlainConstraint(3);
  AddEnforced(3);
  Entity* fourth = AddPlainConstraint(4);
  EXPECT_THAT(SelectedWith("SUBCASE 1\nSPC = 1\nBEGIN\n", SubcaseId::Spc, "SPCADD  1       4       3       \n"),
              ElementsAre(third, fourth, own));
}

TEST_F(CaseSelection, TiesOfTheSetOrOfItsCombination) {
  Entity* own = AddMpc(1);
  EXPECT_THAT(Selected("SUBCASE 1\nMPC = 1\nBEGIN\n"), ElementsAre(own));
}

TEST_F(CaseSelection, CombinedTies) {
  AddMpc(1);
  Entity* second = AddMpc(2);
  Entity* third = AddMpc(3);
  EXPECT_THAT(SelectedWith("SUBCASE 1\nMPC = 1\nBEGIN\n", SubcaseId::Mpc, "MPCADD  1       3       2       \n"),
              ElementsAre(second, third));
}

TEST_F(CaseSelection, ExcitationsOfTheSet) {
  Entity* own = AddExcitation(1);
  AddForce(1);
  EXPECT_THAT(Selected("SUBCASE 1\nDLOAD = 1\nBEGIN\n"), ElementsAre(own));
}

TEST_F(CaseSelection, CombinedExcitations) {
  AddExcitation(1);
  Entity* second = AddExcitation(2);
  EXPECT_THAT(SelectedWith("SUBCASE 1\nDLOAD = 1\nBEGIN\n", SubcaseId::Dload, "DLOAD   1       1.0     1.0     2       \n"),
              ElementsAre(second));
}

TEST_F(CaseSelection, TemperaturesOfTheSet) {
  Entity* first = AddTemperature(4);
  Entity* second = AddTemperature(4);
  AddTemperature(5);
  EXPECT_THAT(Selected("SUBCASE 1\nTEMP(LOAD) = 4\nBEGIN\n"), ElementsAre(first, second));
}

TEST_F(CaseSelection, TheOrderIsLoadsConstraintsTiesExcitationsTemperatures) {
  Entity* temperature = AddTemperature(1);
  Entity* excitation = AddExcitation(1);
  Entity* mpc = AddMpc(1);
  Entity* constraint = AddPlainConstraint(1);
  Entity* enforced = AddEnforced(1);
  Entity* force = AddForce(1);
  EXPECT_THAT(Selected("SUBCASE 1\nTEMP(LOAD) = 1\nDLOAD = 1\nMPC = 1\nSPC = 1\nLOAD = 1\nBEGIN\n"),
              ElementsAre(force, enforced, constraint, enforced, mpc, excitation, temperature));
}

TEST_F(CaseSelection, SetZeroIsNoSet) {
  AddForce(0);
  AddPlainConstraint(0);
  AddMpc(0);
  AddExcitation(0);
  AddTemperature(0);
  EXPECT_THAT(Selected("SUBCASE 1\nLOAD = 0\nSPC = 0\nMPC = 0\nDLOAD = 0\nTEMP(LOAD) = 0\nBEGIN\n"), IsEmpty());
}

TEST_F(CaseSelection, MissingSetsArePassedBy) {
  AddForce(1);
  EXPECT_THAT(Selected("SUBCASE 1\nLOAD = 9\nSPC = 9\nMPC = 9\nDLOAD = 9\nTEMP(LOAD) = 9\nSUBCASE 2\nLOAD = -1\nBEGIN\n"), IsEmpty());
  EXPECT_EQ(Cases().size(), 2U);
}

TEST_F(CaseSelection, AnEntityIsAddedWithoutFlagsAndValue) {
  AddForce(1);
  ReadCases("SUBCASE 1\nLOAD = 1\nBEGIN\n");
  Calls();
  CreateLoadCases({0, subcases, boundary, host.GetCurveStore(), addBolts});
  EXPECT_THAT(Calls(), testing::Contains("LoadCase#1.AddEntity(ForceLoad#1, 0, 0.0)"));
}

// The plain model: what the rules say, word by word, over sets in a map and tables that are really rebuilt.

struct ModelItem {
  Entity* entity;
  std::int32_t type;
  bool enforced;
};

struct ModelSubcase {
  std::int32_t load = 0, spc = 0, mpc = 0, dload = 0, temperature = 0;
  std::vector<std::int32_t> loads, spcs, mpcs, dloads;  ///< Listed by combination cards, in the order of the cards.
  bool skip = true;
};

class SelectionModel {
 public:
  std::map<std::pair<std::int32_t, std::int32_t>, std::vector<ModelItem>> sets;  ///< By id and kind.

  std::vector<Entity*> Select(const ModelSubcase& subcase) const {
    std::vector<Entity*> taken;
    if (subcase.load != 0) {
      const std::vector<ModelItem>* own = Find(subcase.load, 0);
      if (subcase.loads.empty()) {
        if (own != nullptr) {
          AddFirstKind(*own, &taken);
        }
      } else {
        AddEach(subcase.loads, 0, &taken);
      }
      AddEnforced(own, &taken);
    }
    if (subcase.spc != 0) {
      AddSets(subcase.spc, subcase.spcs, 1, &taken);
      AddEnforced(Find(subcase.spc, 0), &taken);
    }
    if (subcase.mpc != 0) {
      AddSets(subcase.mpc, subcase.mpcs, 2, &taken);
    }
    if (subcase.dload != 0) {
      AddSets(subcase.dload, subcase.dloads, 3, &taken);
    }
    if (subcase.temperature != 0) {
      AddAll(subcase.temperature, 4, &taken);
    }
    return taken;
  }

  std::size_t Total() const {
    std::size_t total = 0;
    for (const auto& [key, items] : sets) {
      if (key.second != 5 && key.second != 6) {
        total += items.size();
      }
    }
    return total;
  }

 private:
  const std::vector<ModelItem>* Find(std::int32_t id, std::int32_t kind) const {
    const auto found = sets.find({id, kind});
    return found == sets.end() ? nullptr : &found->second;
  }
  void AddAll(std::int32_t id, std::int32_t kind, std::vector<Entity*>* taken) const {
    if (const std::vector<ModelItem>* items = Find(id, kind)) {
      for (const ModelItem& item : *items) {
        taken->push_back(item.entity);
      }
    }
  }
  void AddEach(const std::vector<std::int32_t>& ids, std::int32_t kind, std::vector<Entity*>* taken) const {
    for (const std::int32_t id : TableOrder(ids)) {
      AddAll(id, kind, taken);
    }
  }
  void AddSets(std::int32_t own, const std::vector<std::int32_t>& ids, std::int32_t kind, std::vector<Entity*>* taken) const {
    if (ids.empty()) {
      AddAll(own, kind, taken);
    } else {
      AddEach(ids, kind, taken);
    }
  }
  static void AddFirstKind(const std::vector<ModelItem>& items, std::vector<Entity*>* taken) {
    std::size_t i = 0;
    while (i < items.size() && items[i].type != 1 && items[i].type != 0 && items[i].type != 29) {
      ++i;
    }
    for (std::size_t j = i; j < items.size(); ++j) {
      if (items[j].type == items[i].type) {
        taken->push_back(items[j].entity);
      }
    }
  }
  static void AddEnforced(const std::vector<ModelItem>* items, std::vector<Entity*>* taken) {
    for (std::size_t i = 0; items != nullptr && i < items->size(); ++i) {
      if ((*items)[i].type == 6 && (*items)[i].enforced) {
        taken->push_back((*items)[i].entity);
      }
    }
  }
};

class RandomSelection : public CombinationTest {
 protected:
  std::int32_t Number(std::int32_t first, std::int32_t last) { return std::uniform_int_distribution<std::int32_t>(first, last)(random); }

  void FillSets(std::int32_t count, std::int32_t highestSet) {
    for (std::int32_t i = 0; i < count; ++i) {
      const std::int32_t id = Number(lowestSet, highestSet);
      switch (Number(0, 9)) {
        case 0:
          model.sets[{id, 0}].push_back({AddForce(id), 1, false});
          break;
        case 1:
          model.sets[{id, 0}].push_back({AddPressure(id), 0, false});
          break;
        case 2:
          model.sets[{id, 0}].push_back({AddBodyLoad(id), 29, false});
          break;
        case 3:
          model.sets[{id, 0}].push_back({AddEnforced(id), 6, true});
          break;
        case 4:
          model.sets[{id, 0}].push_back({AddConstraint(id, loadSet, 0), 6, false});
          break;
        case 5:
          model.sets[{id, 1}].push_back({AddPlainConstraint(id), 6, false});
          break;
        case 6:
          model.sets[{id, 2}].push_back({AddMpc(id), 107, false});
          break;
        case 7:
          model.sets[{id, 3}].push_back({AddExcitation(id), 105, false});
          break;
        case 8:
          model.sets[{id, 4}].push_back({AddTemperature(id), 103, false});
          break;
        default:
          model.sets[{id, 6}].push_back({AddNamedSet(id), 101, false});
      }
    }
  }

  /// A subcase of case control; each line stands with a chance of two in three.
  std::string SubcaseText(std::int32_t number, std::int32_t highestSet) {
    ModelSubcase& subcase = modelCases.emplace_back();
    std::string text = "SUBCASE " + std::to_string(number) + "\n";
    const auto line = [&](const char* keyword, std::int32_t* id) {
      if (Number(0, 2) != 0) {
        *id = Number(lowestSet, highestSet);
        text += std::string(keyword) + " = " + std::to_string(*id) + "\n";
        subcase.skip = false;
      }
    };
    line("LOAD", &subcase.load);
    line("SPC", &subcase.spc);
    line("MPC", &subcase.mpc);
    line("DLOAD", &subcase.dload);
    line("TEMP(LOAD)", &subcase.temperature);
    return text;
  }

  /// A combination card of `count` sets.
  void ReadRandomCard(std::int32_t highestSet, std::int32_t count) {
    const auto kind = static_cast<SubcaseId>(Number(0, 3));
    const bool isLoad = kind == SubcaseId::Load || kind == SubcaseId::Dload;
    const std::int32_t setId = Number(0, highestSet);
    std::vector<std::int32_t> ids;
    std::string card = Card8({"CARD", std::to_string(setId), isLoad ? "1.0" : ""});
    card.resize(isLoad ? 24 : 16, ' ');
    for (std::int32_t i = 0; i < count; ++i) {
      ids.push_back(Number(0, highestSet));
      card += i % 3 == 2 ? "\n+       " : "";
      card += Card8({isLoad ? "1.0" : "", std::to_string(ids.back()), ""});
    }
    ReadCard(card + "\n", kind);
    for (ModelSubcase& subcase : modelCases) {
      const std::int32_t asked[] = {subcase.load, subcase.dload, subcase.spc, subcase.mpc};
      std::vector<std::int32_t>* const listed[] = {&subcase.loads, &subcase.dloads, &subcase.spcs, &subcase.mpcs};
      const auto at = static_cast<std::size_t>(kind);
      if (asked[at] == setId && setId > 0) {
        listed[at]->insert(listed[at]->end(), ids.begin(), ids.end());
      }
    }
  }

  std::int32_t lowestSet = 0;
  std::mt19937 random{1996};
  SelectionModel model;
  std::vector<ModelSubcase> modelCases;
};

class RandomSelectionOfSeed : public RandomSelection, public testing::WithParamInterface<std::uint32_t> {};

TEST_P(RandomSelectionOfSeed, SubcasesSelectWhatTheModelSelects) {
  random.seed(GetParam());
  const std::int32_t highestSet = Number(1, 200);
  FillSets(Number(0, 300), highestSet);
  const std::int32_t caseCount = Number(2, 6);
  std::string text;
  for (std::int32_t i = 1; i <= caseCount; ++i) {
    text += SubcaseText(i, highestSet);
  }
  ReadCases(text + "BEGIN BULK\n");
  for (std::int32_t cards = Number(0, 12); cards > 0; --cards) {
    ReadRandomCard(highestSet, Number(0, 3) == 0 ? Number(90, 180) : Number(0, 8));
  }
  Assemble();
  std::size_t number = 0;
  for (const ModelSubcase& subcase : modelCases) {
    if (!subcase.skip && !model.sets.empty()) {
      EXPECT_EQ(Members(number), model.Select(subcase)) << text;
      ++number;
    }
  }
  EXPECT_EQ(Cases().size(), number);
}

TEST_P(RandomSelectionOfSeed, OneSubcaseMakesACaseUnlessItUsesAsManyAsThereAre) {
  random.seed(GetParam() + 1000);
  lowestSet = 1;
  const std::int32_t highestSet = Number(1, 2);
  FillSets(Number(0, 5), highestSet);
  const std::string text = SubcaseText(1, highestSet);
  ReadCases(text + "BEGIN BULK\n");
  if (Number(0, 3) == 0) {
    ReadRandomCard(highestSet, Number(1, 3));
  }
  Assemble();
  const std::vector<Entity*> expected = model.Select(modelCases[0]);
  const bool covered = expected.size() == model.Total();
  EXPECT_EQ(SubcaseNeedsCases, covered ? 0 : 1) << text;
  ASSERT_EQ(Cases().size(), covered || modelCases[0].skip ? 0U : 1U) << text;
  if (!Cases().empty()) {
    EXPECT_EQ(Members(0), expected) << text;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomSelectionOfSeed, testing::Range<std::uint32_t>(0, 150));

TEST_F(RandomSelection, BothAnswersOccurAmongTheSeeds) {
  // The comparison above would be empty if all subcases were covered, or none.
  int covered = 0;
  int open = 0;
  for (std::uint32_t seed = 0; seed < 150; ++seed) {
    random.seed(seed + 1000);
    SelectionModel empty;
    std::swap(model, empty);
    modelCases.clear();
    lowestSet = 1;
    const std::int32_t highestSet = Number(1, 2);
    FillSets(Number(0, 5), highestSet);
    SubcaseText(1, highestSet);
    const std::vector<Entity*> selected = model.Select(modelCases[0]);
    (selected.size() == model.Total() ? covered : open) += model.sets.empty() ? 0 : 1;
  }
  EXPECT_GT(covered, 10);
  EXPECT_GT(open, 10);
}

}  // namespace
}  // namespace btz::test
