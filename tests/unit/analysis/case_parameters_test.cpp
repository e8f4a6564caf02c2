// Parameters of a load case: frequencies, eigenvalue method and fluid.
#include <gtest/gtest.h>

#include <cstring>
#include <limits>

#include "analysis/fluid.h"
#include "analysis/frequency_response.h"
#include "support/hash_table.h"
#include "tests/unit/analysis/case_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CaseParameters : public CaseTest {
 protected:
  CaseParameters() { AddForce(900); }

  EigrRecord& AddMethod(std::int32_t setId) {
    auto* record = static_cast<EigrRecord*>(AllocateZeroed(sizeof(EigrRecord)));
    record->setId = setId;
    HashInsert(&EigrTable, record);
    return *record;
  }

  FluidRecord& AddFluid(std::int32_t setId) {
    auto* record = static_cast<FluidRecord*>(AllocateZeroed(sizeof(FluidRecord)));
    record->setId = setId;
    HashInsert(&FluidTable, record);
    return *record;
  }

  /// A method with all of its fields.
  void AddFullMethod(std::int32_t setId, std::int32_t normalization) {
    EigrRecord& method = AddMethod(setId);
    method.methodKind = 1;
    method.modeCount = 10;
    method.normalization = normalization;
    method.lowFrequency = 0.5;
    method.highFrequency = 200.0;
    method.lowPresent = method.highPresent = method.countPresent = 1;
  }

  /// Calls on the parameters of the cases that this case control makes.
  std::vector<std::string> ParametersOf(std::string_view caseControl, std::int32_t targetSolver = 0) {
    ReadCases(std::string(caseControl) + "BEGIN BULK\n");
    return ParametersOfCases(targetSolver);
  }

  std::vector<std::string> ParametersOfCases(std::int32_t targetSolver = 0) {
    Calls();
    CreateLoadCases({targetSolver, subcases, boundary, host.GetCurveStore(), addBolts});
    std::vector<std::string> found;
    for (const std::string& call : Calls()) {
      if (call.starts_with("ParameterSet#")) {
        found.push_back(call.substr(call.find('.') + 1));
      }
    }
    return found;
  }
};

// Frequencies.

TEST_F(CaseParameters, FrequenciesOfTheSubcase) {
  ReadCases("SUBCASE 1\nDLOAD = 1\nFREQUENCY = 5\nBEGIN\n");
  Subcase(0).frequencyStart = 10.0;
  Subcase(0).frequencyStep = 2.5;
  Subcase(0).frequencyCount = 7.9;
  EXPECT_THAT(ParametersOfCases(),
              ElementsAre("SetInt(\"No.of Frequency\", 7, 1)", "SetReal(\"Start frequency\", 10.0)", "SetReal(\"Increment\", 2.5)"));
}

TEST_F(CaseParameters, FrequenciesNeedTheirIdAndACountAboveZero) {
  for (const double count : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN()}) {
    ReadCases("SUBCASE 1\nDLOAD = 1\nFREQUENCY = 5\nBEGIN\n");
    Subcase(0).frequencyCount = count;
    EXPECT_THAT(ParametersOfCases(), IsEmpty()) << count;
    WalkList<SubcaseRecord>(subcases, FreeSubcaseRecord);
    ListClear(subcases);
  }
  ReadCases("SUBCASE 1\nDLOAD = 1\nFREQUENCY = 0\nBEGIN\n");
  Subcase(0).frequencyCount = 3.0;
  EXPECT_THAT(ParametersOfCases(), IsEmpty());
}

TEST_F(CaseParameters, ACountBelowOneIsGivenAsZero) {
  ReadCases("SUBCASE 1\nDLOAD = 1\nFREQUENCY = 5\nBEGIN\n");
  Subcase(0).frequencyCount = 0.5;
  EXPECT_THAT(ParametersOfCases(),
              ElementsAre("SetInt(\"No.of Frequency\", 0, 1)", "SetReal(\"Start frequency\", 0.0)", "SetReal(\"Increment\", 0.0)"));
}

// Eigenvalue method.

TEST_F(CaseParameters, AMethodGivesItsLimitsWhenTheyWereGiven) {
  SolNumber = 103;
  AddFullMethod(3, 2);
  EXPECT_THAT(ParametersOf("SUBCASE 1\nSPC = 1\nMETHOD = 3\n"),
              ElementsAre("SetInt(\"Extraction Method\", 1, 3)", "SetInt(\"Normalization Method\", 1, 3)",
                          "SetReal(\"Min frequency\", 0.5)", "SetReal(\"Max frequency\", 200.0)", "SetInt(\"Number of Modes\", 10, 1)"));
}

TEST_F(CaseParameters, AnAbsentLimitIsNotSet) {
  SolNumber = 103;
  EigrRecord& method = AddMethod(3);
  method.lowFrequency = 0.5;
  method.highFrequency = 200.0;
  method.modeCount = 10;
  EXPECT_THAT(ParametersOf("SUBCASE 1\nSPC = 1\nMETHOD = 3\n"),
              ElementsAre("SetInt(\"Extraction Method\", 0, 3)", "SetInt(\"Normalization Method\", 0, 3)"));
}

TEST_F(CaseParameters, EachLimitHasAFlagOfItsOwn) {
  SolNumber = 103;
  EigrRecord& method = AddMethod(3);
  method.highFrequency = 200.0;
  method.highPresent = 1;
  EXPECT_THAT(
      ParametersOf("SUBCASE 1\nSPC = 1\nMETHOD = 3\n"),
      ElementsAre("SetInt(\"Extraction Method\", 0, 3)", "SetInt(\"Normalization Method\", 0, 3)", "SetReal(\"Max frequency\", 200.0)"));
}

TEST_F(CaseParameters, OnlyTheStoredTwoNormalisesToOne) {
  SolNumber = 103;
  for (std::int32_t stored = 0; stored <= 3; ++stored) {
    AddMethod(10 + stored).normalization = stored;
  }
  ReadCases("SUBCASE 1\nSPC=1\nMETHOD=10\nSUBCASE 2\nSPC=1\nMETHOD=11\nSUBCASE 3\nSPC=1\nMETHOD=12\nSUBCASE 4\nSPC=1\nMETHOD=13\nBEGIN\n");
  CreateLoadCases({0, subcases, boundary, host.GetCurveStore(), addBolts});
  ASSERT_EQ(Cases().size(), 4U);
  for (std::size_t i = 0; i < 4; ++i) {
    const auto& parameters = Cases()[i].parameterSets[0].parameters;
    ASSERT_EQ(parameters.size(), 2U);
    EXPECT_EQ(parameters[1].value, i == 2 ? 1.0 : 0.0) << i;
  }
}

TEST_F(CaseParameters, AFrequencyResponseGivesLimitsWithTheirFlags) {
  SolNumber = 111;
  AddFullMethod(3, 2);
  EXPECT_THAT(ParametersOf("SUBCASE 1\nDLOAD = 1\nMETHOD = 3\n"),
              ElementsAre("SetInt(\"Extraction Method\", 1, 3)", "SetInt(\"Normalization Method\", 2, 3)",
                          "SetRealOptional(\"Min frequency\", 0.5, 1, 7)", "SetRealOptional(\"Max frequency\", 200.0, 1, 7)",
                          "SetRealOptional(\"Number of Modes\", 10.0, 1, 7)"));
}

TEST_F(CaseParameters, AFrequencyResponseGivesAbsentLimitsToo) {
  SolNumber = 111;
  EigrRecord& method = AddMethod(3);
  method.modeCount = 4;
  method.lowPresent = 1;
  EXPECT_THAT(ParametersOf("SUBCASE 1\nDLOAD = 1\nMETHOD = 3\n"),
              ElementsAre("SetInt(\"Extraction Method\", 0, 3)", "SetInt(\"Normalization Method\", 0, 3)",
                          "SetRealOptional(\"Min frequency\", 0.0, 1, 7)", "SetRealOptional(\"Max frequency\", 0.0, 0, 7)",
                          "SetRealOptional(\"Number of Modes\", 4.0, 0, 7)"));
}

TEST_F(CaseParameters, TheMethodOfTheSubcaseGoesBeforeThatOfTheDeck) {
  AddMethod(3).methodKind = 1;
  AddMethod(4).methodKind = 0;
  GlobalMethodId = 4;
  EXPECT_THAT(ParametersOf("SUBCASE 1\nSPC = 1\nMETHOD = 3\n"), testing::Contains("SetInt(\"Extraction Method\", 1, 3)"));
}

TEST_F(CaseParameters, TheMethodOfTheDeckServesSubcasesWithoutOne) {
  AddMethod(4).methodKind = 1;
  GlobalMethodId = 4;
  EXPECT_THAT(ParametersOf("SUBCASE 1\nSPC = 1\n"), testing::Contains("SetInt(\"Extraction Method\", 1, 3)"));
}

TEST_F(CaseParameters, AMissingMethodIsNotReplacedByThatOfTheDeck) {
  AddMethod(4);
  GlobalMethodId = 4;
  EXPECT_THAT(ParametersOf("SUBCASE 1\nSPC = 1\nMETHOD = 3\n"), IsEmpty());
}

TEST_F(CaseParameters, MethodZeroIsNoMethod) {
  AddMethod(0);
  EXPECT_THAT(ParametersOf("SUBCASE 1\nSPC = 1\nMETHOD = 0\n"), IsEmpty());
}

// Fluid.

TEST_F(CaseParameters, AFluidInItsOrder) {
  SolNumber = 111;
  FluidRecord& fluid = AddFluid(6);
  fluid.csId = 7;
  fluid.freeSurface = 1.5;
  fluid.density = 1e-9;
  fluid.oneSideList = 11;
  fluid.twoSideList = 12;
  fluid.ratio = 10.0;
  std::strcpy(fluid.firstPlane, "S");
  std::strcpy(fluid.secondPlane, "A");
  fluid.reversed = 1;
  CoordinateSystem* system = nullptr;
  boundary->CreateCoordinateSystem(&system);
  system->SetId(7);
  system->SetName(L"RectCoordinate7");
  AddNamedSet(11);
  AddSurface(11, L"Hull");
  AddSurface(11, L"Deck");
  AddSurface(12, L"Wall");
  EXPECT_THAT(
      ParametersOf("SUBCASE 1\nDLOAD = 1\nMFLUID = 6\n"),
      ElementsAre("SetEntityName(\"Fluid coordinate system\", \"RectCoordinate7\", 5)",
                  "SetEntityName(\"One side damped surface\", \"Hull\", 6)", "SetEntityName(\"One side damped surface\", \"Deck\", 6)",
                  "SetEntityName(\"Two side damped surface\", \"Wall\", 6)", "SetReal(\"Free surface location on z-axis\", 1.5)",
                  "SetReal(\"Fluid density\", 1e-09)", "SetReal(\"Interaction ratio(RMAX)\", 10.0)",
                  "SetInt(\"X-Z plane symmetry type\", 1, 3)", "SetInt(\"Y-Z plane symmetry type\", 2, 3)",
                  "SetInt(\"Fluid direction\", 1, 3)"));
}

const std::vector<std::string> bareFluid = {
    "SetReal(\"Free surface location on z-axis\", 0.0)", "SetReal(\"Fluid density\", 0.0)",
    "SetReal(\"Interaction ratio(RMAX)\", 0.0)",         "SetInt(\"X-Z plane symmetry type\", 0, 3)",
    "SetInt(\"Y-Z plane symmetry type\", 0, 3)",         "SetInt(\"Fluid direction\", 0, 3)"};

TEST_F(CaseParameters, AFluidWithoutSystemSurfacesAndPlanes) {
  SolNumber = 111;
  AddFluid(6);
  EXPECT_EQ(ParametersOf("SUBCASE 1\nDLOAD = 1\nMFLUID = 6\n"), bareFluid);
}

TEST_F(CaseParameters, MissingSystemsAndSurfacesArePassedBy) {
  SolNumber = 111;
  FluidRecord& fluid = AddFluid(6);
  fluid.csId = 7;
  fluid.oneSideList = 11;
  fluid.twoSideList = 12;
  std::strcpy(fluid.firstPlane, "N");
  std::strcpy(fluid.secondPlane, "SA");
  fluid.reversed = 2;
  EXPECT_EQ(ParametersOf("SUBCASE 1\nDLOAD = 1\nMFLUID = 6\n"), bareFluid);
}

TEST_F(CaseParameters, OnlyAFrequencyResponseHasAFluid) {
  AddFluid(6);
  for (const std::int32_t solution : {0, 101, 103, 106, 153, 159}) {
    SolNumber = solution;
    EXPECT_THAT(ParametersOf("SUBCASE 1\nDLOAD = 1\nMFLUID = 6\n"), IsEmpty()) << solution;
  }
}

TEST_F(CaseParameters, TheFluidOfTheDeckServesSubcasesWithoutOne) {
  SolNumber = 111;
  AddFluid(6).density = 2.0;
  AddFluid(8).density = 3.0;
  GlobalMfluidId = 8;
  EXPECT_THAT(ParametersOf("SUBCASE 1\nDLOAD = 1\n"), testing::Contains("SetReal(\"Fluid density\", 3.0)"));
}

TEST_F(CaseParameters, TheFluidOfTheSubcaseGoesBeforeThatOfTheDeck) {
  SolNumber = 111;
  AddFluid(6).density = 2.0;
  AddFluid(8).density = 3.0;
  GlobalMfluidId = 8;
  EXPECT_THAT(ParametersOf("SUBCASE 1\nDLOAD = 1\nMFLUID = 6\n"), testing::Contains("SetReal(\"Fluid density\", 2.0)"));
}

TEST_F(CaseParameters, FrequenciesComeBeforeTheMethodAndTheFluidLast) {
  SolNumber = 111;
  AddMethod(3);
  AddFluid(6);
  ReadCases("SUBCASE 1\nDLOAD = 1\nMFLUID = 6\nMETHOD = 3\nFREQUENCY = 5\nBEGIN\n");
  Subcase(0).frequencyCount = 1.0;
  const std::vector<std::string> calls = ParametersOfCases();
  ASSERT_EQ(calls.size(), 3U + 5U + 6U);
  EXPECT_EQ(calls[0], "SetInt(\"No.of Frequency\", 1, 1)");
  EXPECT_EQ(calls[3], "SetInt(\"Extraction Method\", 0, 3)");
  EXPECT_EQ(calls[8], bareFluid[0]);
}

TEST_F(CaseParameters, ACaseWithoutParametersGetsNone) {
  host.Refusals().RefuseFrom("LoadCase.GetParameters", 1);
  SolNumber = 111;
  AddFullMethod(3, 1);
  AddFluid(6);
  Entity* force = AddForce(1);
  ReadCases("SUBCASE 1\nLOAD = 1\nMFLUID = 6\nMETHOD = 3\nFREQUENCY = 5\nBEGIN\n");
  Subcase(0).frequencyCount = 1.0;
  EXPECT_THAT(ParametersOfCases(), IsEmpty());
  EXPECT_THAT(Members(0), ElementsAre(force));
}

}  // namespace
}  // namespace btz::test
