// Bolts in load cases: a step of a bolt for the subcase's pretension id puts its entities into the case, with the step's values.
#include "sets/pretension.h"

#include <gtest/gtest.h>

#include <deque>

#include "support/hash_keys.h"
#include "support/hash_table.h"
#include "tests/unit/analysis/case_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class BoltCases : public CaseTest {
 protected:
  BoltCases() { addBolts = AddBoltsToCase; }

  ~BoltCases() override {
    ListClear(&PretensionBoltList);
    for (BoltRecord& bolt : bolts) {
      HashRelease(&bolt.steps);
    }
  }

  BoltRecord& AddBolt() {
    BoltRecord& bolt = bolts.emplace_back();
    HashInit(&bolt.steps);
    HashCreate(&bolt.steps, 10, HashFirstInt, nullptr, nullptr, 0);
    std::int32_t id = 0;
    boundary->CreateForce(&bolt.forceEntity, &id);
    boundary->CreateConstraint(&bolt.constraintEntity, 1);
    ListAppend(&PretensionBoltList, &bolt);
    return bolt;
  }

  BoltStep& AddStep(BoltRecord& bolt, std::int32_t caseId) {
    BoltStep& step = steps.emplace_back();
    step.caseId = caseId;
    HashInsert(&bolt.steps, &step);
    return step;
  }

  /// Additions to the cases of this case control.
  std::vector<std::string> Added(std::string_view caseControl) {
    ReadCases(std::string(caseControl) + "BEGIN\n");
    Calls();
    CreateLoadCases({0, subcases, boundary, host.GetCurveStore(), addBolts});
    std::vector<std::string> added;
    for (const std::string& call : Calls()) {
      if (call.find("AddEntity") != std::string::npos) {
        added.push_back(call);
      }
    }
    return added;
  }

  std::deque<BoltRecord> bolts;
  std::deque<BoltStep> steps;
};

TEST_F(BoltCases, TheConstraintComesBeforeTheForceEachWithItsValue) {
  BoltStep& step = AddStep(AddBolt(), 4);
  step.forceGiven = 1;
  step.forceValue = 5000.0;
  step.adjustGiven = 1;
  step.adjustValue = 0.25;
  EXPECT_THAT(Added("SUBCASE 1\nPRETENSION = 4\n"),
              ElementsAre("LoadCase#1.AddEntity(Constraint#1, 0, 0.25)", "LoadCase#1.AddEntity(ForceLoad#1, 0, 5000.0)"));
}

TEST_F(BoltCases, OnlyWhatIsGivenIsAdded) {
  BoltRecord& bolt = AddBolt();
  BoltStep& force = AddStep(bolt, 4);
  force.forceGiven = 1;
  force.forceValue = 1.0;
  force.adjustValue = 9.0;
  BoltStep& adjust = AddStep(bolt, 5);
  adjust.adjustGiven = 1;
  adjust.adjustValue = 2.0;
  adjust.forceValue = 9.0;
  AddStep(bolt, 6);
  EXPECT_THAT(Added("SUBCASE 1\nPRETENSION = 4\nSUBCASE 2\nPRETENSION = 5\nSUBCASE 3\nPRETENSION = 6\nSUBCASE 4\nPRETENSION = 7\n"),
              ElementsAre("LoadCase#1.AddEntity(ForceLoad#1, 0, 1.0)", "LoadCase#2.AddEntity(Constraint#1, 0, 2.0)"));
}

TEST_F(BoltCases, WhatTheHostRefusedIsLeftOut) {
  BoltRecord& bolt = AddBolt();
  BoltStep& step = AddStep(bolt, 4);
  step.forceGiven = step.adjustGiven = 1;
  bolt.constraintEntity = nullptr;
  BoltRecord& other = AddBolt();
  other.forceEntity = nullptr;
  BoltStep& otherStep = AddStep(other, 4);
  otherStep.forceGiven = otherStep.adjustGiven = 1;
  EXPECT_THAT(Added("SUBCASE 1\nPRETENSION = 4\n"),
              ElementsAre("LoadCase#1.AddEntity(ForceLoad#1, 0, 0.0)", "LoadCase#1.AddEntity(Constraint#2, 0, 0.0)"));
}

TEST_F(BoltCases, BoltsComeInTheOrderOfTheirList) {
  for (const double value : {1.0, 2.0, 3.0}) {
    BoltStep& step = AddStep(AddBolt(), 4);
    step.forceGiven = 1;
    step.forceValue = value;
  }
  EXPECT_THAT(Added("SUBCASE 1\nPRETENSION = 4\n"),
              ElementsAre("LoadCase#1.AddEntity(ForceLoad#1, 0, 1.0)", "LoadCase#1.AddEntity(ForceLoad#2, 0, 2.0)",
                          "LoadCase#1.AddEntity(ForceLoad#3, 0, 3.0)"));
}

TEST_F(BoltCases, ASubcaseWithoutPretensionMeetsTheStepOfIdZero) {
  BoltStep& step = AddStep(AddBolt(), 0);
  step.forceGiven = 1;
  EXPECT_THAT(Added("SUBCASE 1\nSPC = 4\n"), ElementsAre("LoadCase#1.AddEntity(ForceLoad#1, 0, 0.0)"));
}

TEST_F(BoltCases, ABoltWithoutStepsIsPassedBy) {
  BoltRecord& bolt = AddBolt();
  HashRelease(&bolt.steps);
  HashInit(&bolt.steps);
  EXPECT_THAT(Added("SUBCASE 1\nPRETENSION = 4\n"), IsEmpty());
}

TEST_F(BoltCases, BoltsComeBehindTheDampingOfTheCase) {
  AddCurve(6);
  AddForce(1);
  BoltStep& step = AddStep(AddBolt(), 4);
  step.forceGiven = 1;
  EXPECT_THAT(Added("SUBCASE 1\nPRETENSION = 4\nSDAMPING = 6\nLOAD = 1\n"),
              ElementsAre("LoadCase#1.AddEntity(ForceLoad#1, 0, 0.0)", "LoadCase#1.AddEntity(Damping#1, 0, 0.0)",
                          "LoadCase#1.AddEntity(ForceLoad#2, 0, 0.0)"));
}

TEST_F(BoltCases, BoltsAreNoPartOfTheCoverage) {
  AddForce(1);
  BoltStep& step = AddStep(AddBolt(), 4);
  step.forceGiven = 1;
  ReadCases("SUBCASE 1\nPRETENSION = 4\nLOAD = 1\nBEGIN\n");
  Assemble();
  EXPECT_THAT(Cases(), IsEmpty());
}

}  // namespace
}  // namespace btz::test
