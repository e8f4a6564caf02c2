// Load cases: whether there are any, their names, profiles and numbers, damping of a case and of the whole model, refusals.
#include <gtest/gtest.h>

#include "tests/unit/analysis/case_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LoadCases : public CaseTest {
 protected:
  std::vector<std::wstring> Names() const {
    std::vector<std::wstring> names;
    for (const auto& loadCase : Cases()) {
      names.push_back(loadCase.name);
    }
    return names;
  }

  std::size_t DampingCount() const { return host.Boundary().dampings.size(); }
};

// Whether there are load cases.

TEST_F(LoadCases, NoSubcaseMakesNone) {
  AddForce(1);
  Assemble();
  EXPECT_THAT(Calls(), IsEmpty());
}

TEST_F(LoadCases, OneSubcaseThatUsesAllMakesNone) {
  AddForce(1);
  AddForce(1);
  AddPlainConstraint(2);
  AddMpc(3);
  AddExcitation(4);
  AddTemperature(5);
  ReadCases("SUBCASE 1\nLOAD = 1\nSPC = 2\nMPC = 3\nDLOAD = 4\nTEMP(LOAD) = 5\nBEGIN\n");
  Assemble();
  EXPECT_THAT(Calls(), IsEmpty());
  EXPECT_EQ(SubcaseNeedsCases, 0);
}

TEST_F(LoadCases, OneSubcaseThatLeavesASetOutMakesOne) {
  AddForce(1);
  AddForce(9);
  ReadCases("SUBCASE 1\nLOAD = 1\nBEGIN\n");
  Assemble();
  EXPECT_EQ(Cases().size(), 1U);
  EXPECT_EQ(SubcaseNeedsCases, 1);
}

TEST_F(LoadCases, EachKindThatIsLeftOutMakesACase) {
  const auto addOther = [this](int kind) {
    switch (kind) {
      case 0:
        return AddForce(9);
      case 1:
        return AddPlainConstraint(9);
      case 2:
        return AddMpc(9);
      case 3:
        return AddExcitation(9);
      default:
        return AddTemperature(9);
    }
  };
  for (int kind = 0; kind < 5; ++kind) {
    SubcaseNeedsCases = 0;
    WalkIndexedList<LoadSetRecord>(&LoadSetTable, FreeLoadSetRecord);
    IndexedListClear(&LoadSetTable);
    AddForce(1);
    addOther(kind);
    if (kind == 0) {
      ReadCases("SUBCASE 1\nLOAD = 1\nBEGIN\n");
    }
    CheckSingleSubcaseCoverage(subcases);
    EXPECT_EQ(SubcaseNeedsCases, 1) << kind;
  }
}

TEST_F(LoadCases, PretensionAndNamedSetsDoNotCount) {
  AddForce(1);
  AddNamedSet(1);
  AddSurface(2, L"Hull");
  AddToLoadSet(7, pretensionSet, AddNamedSet(8));
  ReadCases("SUBCASE 1\nLOAD = 1\nBEGIN\n");
  Assemble();
  EXPECT_THAT(Cases(), IsEmpty());
}

TEST_F(LoadCases, ASetOfTwoKindsIsNotUsedUp) {
  AddPressure(1);
  AddForce(1);
  ReadCases("SUBCASE 1\nLOAD = 1\nBEGIN\n");
  Assemble();
  EXPECT_EQ(Cases().size(), 1U);
}

TEST_F(LoadCases, WhatIsSelectedTwiceCountsTwice) {
  // The enforced constraint of set 1 is selected by LOAD and by SPC: two for one, and the force that is left out makes it even.
  AddEnforced(1);
  AddForce(9);
  ReadCases("SUBCASE 1\nLOAD = 1\nSPC = 1\nBEGIN\n");
  Assemble();
  EXPECT_THAT(Cases(), IsEmpty());
}

TEST_F(LoadCases, WithoutTheForceTheSameSubcaseUsesMoreThanThereIs) {
  AddEnforced(1);
  ReadCases("SUBCASE 1\nLOAD = 1\nSPC = 1\nBEGIN\n");
  Assemble();
  EXPECT_EQ(Cases().size(), 1U);
}

TEST_F(LoadCases, DampingAndFluidAreNoPartOfTheCount) {
  AddForce(1);
  AddCurve(6);
  ReadCases("SUBCASE 1\nLOAD = 1\nSDAMPING = 6\nMFLUID = 1\nBEGIN\n");
  Assemble();
  EXPECT_THAT(Cases(), IsEmpty());
}

TEST_F(LoadCases, OneSubcaseInAnEmptyModelMakesNone) {
  ReadCases("SUBCASE 1\nLOAD = 1\nBEGIN\n");
  Assemble();
  EXPECT_THAT(Calls(), IsEmpty());
}

TEST_F(LoadCases, ASkippedSingleSubcaseMakesNoneHoweverMuchItLeavesOut) {
  AddForce(1);
  ReadCases("SUBCASE 1\nMETHOD = 1\nBEGIN\n");
  Assemble();
  EXPECT_THAT(Cases(), IsEmpty());
  EXPECT_EQ(SubcaseNeedsCases, 1);
}

TEST_F(LoadCases, SeveralSubcasesNeedSomethingInTheSets) {
  ReadCases("SUBCASE 1\nLOAD = 1\nSUBCASE 2\nLOAD = 2\nBEGIN\n");
  Assemble();
  EXPECT_THAT(Cases(), IsEmpty());
  AddNamedSet(1);
  Assemble();
  EXPECT_EQ(Cases().size(), 2U) << "whatever it is";
}

TEST_F(LoadCases, SeveralSubcasesMakeCasesEvenIfOneUsesAll) {
  AddForce(1);
  ReadCases("SUBCASE 1\nLOAD = 1\nSUBCASE 2\nLOAD = 1\nBEGIN\n");
  Assemble();
  EXPECT_EQ(Cases().size(), 2U);
  EXPECT_EQ(SubcaseNeedsCases, 0);
}

// Names, numbers and calls.

TEST_F(LoadCases, TheCallsOfACase) {
  SolNumber = 101;
  AddForce(1);
  AddPlainConstraint(2);
  AddForce(9);
  ReadCases("SUBCASE 1\nLOAD = 1\nSPC = 2\nBEGIN\n");
  Assemble();
  EXPECT_THAT(Calls(), ElementsAre("BoundaryStore.CreateLoadCase(-1) -> 0 LoadCase#1", "LoadCase#1.SetName(\"LoadCase_1\")",
                                   "LoadCase#1.SetSolverProfile(\"NASTRAN\", \"LINEAR\")",
                                   "LoadCase#1.GetParameters(\"NASTRAN\", \"LINEAR\", 14) -> ParameterSet#1",
                                   "LoadCase#1.AddEntity(ForceLoad#1, 0, 0.0)", "LoadCase#1.AddEntity(Constraint#1, 0, 0.0)"));
}

TEST_F(LoadCases, SkippedSubcasesTakeNoNumber) {
  AddForce(1);
  ReadCases("SUBCASE 1\nMETHOD = 1\nSUBCASE 2\nLOAD = 1\nSUBCASE 3\nSUBCASE 4\nLOAD = 1\nBEGIN\n");
  Assemble();
  EXPECT_THAT(Names(), ElementsAre(L"LoadCase_1", L"LoadCase_2"));
}

TEST_F(LoadCases, NamedCasesTakeANumberToo) {
  AddForce(1);
  ReadCases("SUBCASE 1\nLOAD = 1\nLABEL = Door open\nSUBCASE 2\nLOAD = 1\nSUBCASE 3\nLOAD = 1\nSUBTITLE = Gr\xfc\xdf\x65\nBEGIN\n");
  Assemble();
  EXPECT_THAT(Names(), ElementsAre(L"Door open", L"LoadCase_2", L"Gr\u00fc\u00df\u0065")) << "byte by byte";
}

// Analysis.

struct AnalysisOfSolution {
  std::int32_t solution;
  const wchar_t* analysis;
};

constexpr AnalysisOfSolution solutions[] = {
    {101, L"LINEAR"},      {103, L"NORMALMODE"}, {106, L"NONLINEAR"}, {111, L"FREQUENCY"}, {153, L"STEADYSTATE"},
    {159, L"STEADYSTATE"}, {0, L"LINEAR"},       {1, L"LINEAR"},      {105, L"LINEAR"},    {108, L"LINEAR"},
    {112, L"LINEAR"},      {129, L"LINEAR"},     {200, L"LINEAR"},    {400, L"LINEAR"},    {-101, L"LINEAR"},
};

TEST_F(LoadCases, AnalysisForNastranBySolutionAlone) {
  for (const char* name :
       {"", "ANALYSIS = STATICS\n", "ANALYSIS = MODES\n", "ANALYSIS = MFREQ\n", "ANALYSIS = HEAT\n", "FREQUENCY = 3\n"}) {
    ReadCases("SUBCASE 1\nSPC = 1\n" + std::string(name) + "BEGIN\n");
  }
  std::size_t made = 0;
  for (const AnalysisOfSolution& expected : solutions) {
    SolNumber = expected.solution;
    CreateLoadCases({0, subcases, boundary, host.GetCurveStore(), addBolts});
    for (; made < Cases().size(); ++made) {
      EXPECT_EQ(Cases()[made].solver, L"NASTRAN");
      EXPECT_EQ(Cases()[made].analysis, expected.analysis) << expected.solution;
    }
  }
  EXPECT_EQ(made, 6 * std::size(solutions));
}

TEST_F(LoadCases, AnalysisForOtherSolversBySolutionWhenTheSubcaseNamesNone) {
  ReadCases("SUBCASE 1\nSPC = 1\nBEGIN\n");
  std::size_t made = 0;
  for (const std::int32_t target : {1, 2, -1}) {
    for (const AnalysisOfSolution& expected : solutions) {
      SolNumber = expected.solution;
      CreateLoadCases({target, subcases, boundary, host.GetCurveStore(), addBolts});
      ASSERT_EQ(Cases().size(), ++made);
      EXPECT_EQ(Cases().back().solver, L"RADIOSS");
      EXPECT_EQ(Cases().back().analysis, expected.analysis) << expected.solution;
    }
  }
}

struct AnalysisOfName {
  const char* line;
  const wchar_t* analysis;
};

constexpr AnalysisOfName names[] = {
    {"ANALYSIS = STATICS\n", L"LINEAR"},
    {"ANALYSIS = statics\n", L"LINEAR"},
    {"ANALYSIS = NLSTAT\n", L"NONLINEAR"},
    {"ANALYSIS = NlStat\n", L"NONLINEAR"},
    {"ANALYSIS = MODES\n", L"NORMALMODE"},
    {"ANALYSIS = modes\n", L"NORMALMODE"},
    {"ANALYSIS = MFREQ\n", L"FREQUENCY"},
    {"ANALYSIS = mfreq\n", L"FREQUENCY"},
    {"ANALYSIS = HEAT\n", L"STEADYSTATE"},
    {"ANALYSIS = heat\n", L"STEADYSTATE"},
    {"ANALYSIS = BUCK\n", L"LINEAR"},
    {"ANALYSIS = DFREQ\n", L"LINEAR"},
    {"ANALYSIS = STATIC\n", L"LINEAR"},
    {"ANALYSIS = MODES 10\n", L"LINEAR"},
    {"FREQUENCY = 3\n", L"FREQUENCY"},
    {"FREQUENCY = -3\n", L"FREQUENCY"},
    {"ANALYSIS = STATICS\nFREQUENCY = 3\n", L"LINEAR"},
    {"ANALYSIS = NLSTAT\nFREQUENCY = 3\n", L"NONLINEAR"},
    {"ANALYSIS = MODES\nFREQUENCY = 3\n", L"NORMALMODE"},
    {"ANALYSIS = HEAT\nFREQUENCY = 3\n", L"FREQUENCY"},
    {"ANALYSIS = BUCK\nFREQUENCY = 3\n", L"FREQUENCY"},
    {"", L"LINEAR"},
};

TEST_F(LoadCases, AnalysisForOtherSolversByTheNameOfTheSubcase) {
  for (const AnalysisOfName& name : names) {
    ReadCases("SUBCASE 1\nSPC = 1\n" + std::string(name.line) + "BEGIN\n");
  }
  CreateLoadCases({1, subcases, boundary, host.GetCurveStore(), addBolts});
  ASSERT_EQ(Cases().size(), std::size(names));
  for (std::size_t i = 0; i < std::size(names); ++i) {
    EXPECT_EQ(Cases()[i].analysis, names[i].analysis) << names[i].line;
  }
}

TEST_F(LoadCases, ANameOfTheSubcaseGoesBeforeTheSolution) {
  SolNumber = 103;
  ReadCases("SUBCASE 1\nSPC = 1\nANALYSIS = BUCK\nSUBCASE 2\nSPC = 1\nANALYSIS = HEAT\nBEGIN\n");
  CreateLoadCases({1, subcases, boundary, host.GetCurveStore(), addBolts});
  ASSERT_EQ(Cases().size(), 2U);
  EXPECT_EQ(Cases()[0].analysis, L"LINEAR");
  EXPECT_EQ(Cases()[1].analysis, L"STEADYSTATE");
}

TEST_F(LoadCases, ASolutionDoesNotHideAFrequency) {
  ReadCases("SUBCASE 1\nSPC = 1\nFREQUENCY = 3\nBEGIN\n");
  for (const AnalysisOfSolution& expected : {AnalysisOfSolution{101, L"LINEAR"},
                                             {103, L"NORMALMODE"},
                                             {106, L"NONLINEAR"},
                                             {111, L"FREQUENCY"},
                                             {153, L"FREQUENCY"},
                                             {108, L"FREQUENCY"}}) {
    SolNumber = expected.solution;
    CreateLoadCases({1, subcases, boundary, host.GetCurveStore(), addBolts});
    EXPECT_EQ(Cases().back().analysis, expected.analysis) << expected.solution;
  }
}

TEST_F(LoadCases, ASkippedSubcaseIsNotRevivedByASolutionOfNormalModes) {
  SolNumber = 103;
  AddForce(1);
  ReadCases("SUBCASE 1\nMETHOD = 1\nSUBCASE 2\nMETHOD = 2\nBEGIN\n");
  Assemble(1);
  EXPECT_THAT(Cases(), IsEmpty());
}

// Damping.

TEST_F(LoadCases, DampingOfACaseStandsBehindWhatItSelects) {
  AddCurve(6);
  AddForce(1);
  AddForce(9);
  AddTemperature(2);
  ReadCases("SUBCASE 1\nSDAMPING = 6\nLOAD = 1\nTEMP(LOAD) = 2\nBEGIN\n");
  Assemble();
  std::vector<std::string> calls = Calls();
  ASSERT_GT(calls.size(), 4U);
  calls.erase(calls.begin(), calls.begin() + 4);
  EXPECT_THAT(calls, ElementsAre("LoadCase#1.AddEntity(ForceLoad#1, 0, 0.0)", "LoadCase#1.AddEntity(ThermalLoad#1, 0, 0.0)",
                                 "BoundaryStore.CreateDamping() -> Damping#1", "Damping#1.SetCurve(Curve#1)", "Damping#1.SetId(6)",
                                 "Damping#1.SetName(\"Global_Damp_6\")", "LoadCase#1.AddEntity(Damping#1, 0, 0.0)"));
}

TEST_F(LoadCases, EachCaseMakesADampingOfItsOwn) {
  AddCurve(6);
  AddForce(1);
  ReadCases("SUBCASE 1\nSDAMPING = 6\nSUBCASE 2\nSDAMPING = 6\nSUBCASE 3\nSDAMPING = 7\nBEGIN\n");
  Assemble();
  EXPECT_EQ(Cases().size(), 3U);
  EXPECT_EQ(DampingCount(), 2U) << "there is no curve 7";
  EXPECT_EQ(Members(0).size(), 1U);
  EXPECT_THAT(Members(2), IsEmpty());
}

TEST_F(LoadCases, DampingOfTheWholeDeck) {
  AddCurve(6);
  GlobalSdampingId = 6;
  Assemble();
  EXPECT_THAT(Calls(), ElementsAre("BoundaryStore.CreateDamping() -> Damping#1", "Damping#1.SetCurve(Curve#1)", "Damping#1.SetId(6)",
                                   "Damping#1.SetName(\"Global_Damp_6\")"));
}

TEST_F(LoadCases, DampingOfTheWholeDeckBesideThatOfCases) {
  AddCurve(6);
  AddCurve(7);
  AddForce(1);
  GlobalSdampingId = 6;
  ReadCases("SUBCASE 1\nSDAMPING = 7\nSUBCASE 2\nLOAD = 1\nBEGIN\n");
  Assemble();
  ASSERT_EQ(DampingCount(), 2U);
  EXPECT_EQ(host.Boundary().dampings[0].tableId, 7);
  EXPECT_EQ(host.Boundary().dampings[1].tableId, 6) << "behind the cases, and in none of them";
  EXPECT_EQ(Members(0).size(), 1U);
}

TEST_F(LoadCases, TheOneSubcaseWithoutACaseLendsItsDampingToTheWholeModel) {
  AddCurve(6);
  AddForce(1);
  ReadCases("SUBCASE 1\nLOAD = 1\nSDAMPING = 6\nBEGIN\n");
  Assemble();
  EXPECT_THAT(Cases(), IsEmpty());
  ASSERT_EQ(DampingCount(), 1U);
  EXPECT_EQ(host.Boundary().dampings[0].info.name, L"Global_Damp_6");
}

TEST_F(LoadCases, TheDampingOfTheWholeDeckGoesBeforeThatOfTheOneSubcase) {
  AddCurve(6);
  AddCurve(7);
  GlobalSdampingId = 7;
  ReadCases("SUBCASE 1\nSDAMPING = 6\nBEGIN\n");
  Assemble();
  ASSERT_EQ(DampingCount(), 1U);
  EXPECT_EQ(host.Boundary().dampings[0].tableId, 7);
}

TEST_F(LoadCases, AMissingCurveOfTheWholeDeckIsNotReplaced) {
  AddCurve(6);
  GlobalSdampingId = 7;
  ReadCases("SUBCASE 1\nSDAMPING = 6\nBEGIN\n");
  Assemble();
  EXPECT_EQ(DampingCount(), 0U);
}

TEST_F(LoadCases, OneSubcaseWithACaseKeepsItsDampingToIt) {
  AddCurve(6);
  AddForce(9);
  ReadCases("SUBCASE 1\nSDAMPING = 6\nBEGIN\n");
  Assemble();
  EXPECT_EQ(Cases().size(), 1U);
  EXPECT_EQ(DampingCount(), 1U);
}

TEST_F(LoadCases, SeveralSubcasesWithoutCasesLendNoDamping) {
  AddCurve(6);
  ReadCases("SUBCASE 1\nSDAMPING = 6\nSUBCASE 2\nSDAMPING = 6\nBEGIN\n");
  Assemble();
  EXPECT_EQ(DampingCount(), 0U);
}

TEST_F(LoadCases, ASkippedSubcaseThatLeavesSomethingOutLendsNoDamping) {
  AddCurve(6);
  AddForce(1);
  ReadCases("SUBCASE 1\nMETHOD = 1\nBEGIN\n");
  Subcase(0).dampingId = 6;
  Assemble();
  EXPECT_EQ(DampingCount(), 0U);
}

TEST_F(LoadCases, WithoutACurveStoreThereIsNoDamping) {
  AddForce(9);
  GlobalSdampingId = 6;
  ReadCases("SUBCASE 1\nSDAMPING = 6\nBEGIN\n");
  AssembleLoadCases({0, subcases, boundary, nullptr, addBolts});
  EXPECT_EQ(Cases().size(), 1U);
  EXPECT_EQ(DampingCount(), 0U);
}

// Refusals.

TEST_F(LoadCases, ARefusedCaseEndsTheStageAndKeepsTheCasesBefore) {
  for (const Refusal how : {Refusal::Code, Refusal::EmptySuccess}) {
    const std::size_t before = Cases().size();
    host.Refusals().Clear();
    host.Refusals().RefuseCall("BoundaryStore.CreateLoadCase", 2, how);
    ReadCases("SUBCASE 1\nSPC = 1\nSUBCASE 2\nSPC = 1\nSUBCASE 3\nSPC = 1\nBEGIN\n");
    CreateLoadCases({0, subcases, boundary, host.GetCurveStore(), addBolts});
    EXPECT_EQ(Cases().size(), before + 1);
  }
}

TEST_F(LoadCases, ARefusedCaseOfTheOneSubcaseLendsNoDamping) {
  AddCurve(6);
  AddForce(9);
  host.Refusals().RefuseFrom("BoundaryStore.CreateLoadCase", 1);
  ReadCases("SUBCASE 1\nSDAMPING = 6\nBEGIN\n");
  Assemble();
  EXPECT_EQ(DampingCount(), 0U) << "the case was wanted";
}

TEST_F(LoadCases, ARefusedDampingIsLeftOut) {
  host.Refusals().RefuseCall("BoundaryStore.CreateDamping", 1);
  AddCurve(6);
  AddForce(1);
  AddForce(9);
  ReadCases("SUBCASE 1\nSDAMPING = 6\nLOAD = 1\nBEGIN\n");
  Assemble();
  EXPECT_EQ(Members(0).size(), 1U);
}

}  // namespace
}  // namespace btz::test
