// Subcases of case control: what each line sets, where case control ends, and which subcases make no load case.
#include <gtest/gtest.h>

#include "tests/unit/analysis/case_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;

class Subcases : public CaseTest {};

std::string Lower(std::string text) {
  for (char& c : text) {
    c = ToLower(c);
  }
  return text;
}

/// A keyword of the table, the id it sets and the table it opens, if any.
struct Keyword {
  const char* text;
  std::int32_t SubcaseRecord::*id;
  IdSet SubcaseRecord::*ids;
  bool isLoad;
};

const Keyword keywords[] = {
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

std::int32_t SumOfIds(const SubcaseRecord& subcase) {
  return subcase.loadId + subcase.spcId + subcase.mpcId + subcase.temperatureId + subcase.dloadId + subcase.dampingId +
         subcase.pretensionId + subcase.fluidId + subcase.frequencyId + subcase.methodId;
}

std::vector<bool> OpenTables(const SubcaseRecord& subcase) {
  return {subcase.loadIds.isOpen, subcase.spcIds.isOpen, subcase.mpcIds.isOpen, subcase.dloadIds.isOpen, subcase.pretensionIds.isOpen};
}

TEST_F(Subcases, EachKeywordSetsItsIdAloneInAnyCaseAndSpacing) {
  std::size_t index = 0;
  for (const Keyword& keyword : keywords) {
    for (const std::string& word : {std::string(keyword.text), Lower(keyword.text)}) {
      for (const char* value : {" = 17", "=17", " =17", "= 17", " 17", "  =  17  ", " = 17\r", "\t=\t17", "==17", " = 17 $ text"}) {
        const std::string line = word + value;
        ReadCases("SUBCASE 1\n" + line + "\nBEGIN BULK\n");
        ASSERT_EQ(CaseCount(), index + 1) << line;
        const SubcaseRecord& subcase = Subcase(index++);
        EXPECT_EQ(subcase.*keyword.id, 17) << line;
        EXPECT_EQ(SumOfIds(subcase), 17) << line;
        EXPECT_EQ(subcase.skip, keyword.isLoad ? 0 : 1) << line;
        EXPECT_EQ(subcase.title[0], 0) << line;
      }
    }
  }
}

TEST_F(Subcases, TheTableOfAKeywordIsOpenedByItsLineOnly) {
  std::size_t index = 0;
  for (const Keyword& keyword : keywords) {
    ReadCases("SUBCASE 1\n" + std::string(keyword.text) + " = 17\nBEGIN BULK\n");
    SubcaseRecord& subcase = Subcase(index++);
    std::vector<bool> open = OpenTables(subcase);
    EXPECT_EQ(std::count(open.begin(), open.end(), true), keyword.ids != nullptr ? 1 : 0) << keyword.text;
    if (keyword.ids != nullptr) {
      EXPECT_TRUE((subcase.*keyword.ids).isOpen) << keyword.text;
      EXPECT_EQ(IdSetCount(&(subcase.*keyword.ids)), 0U) << keyword.text;
    }
  }
}

TEST_F(Subcases, ANewRecordIsEmpty) {
  ReadCases("SUBCASE 1\nBEGIN BULK\n");
  ASSERT_EQ(CaseCount(), 1U);
  const SubcaseRecord& subcase = Subcase(0);
  EXPECT_EQ(SumOfIds(subcase), 0);
  EXPECT_STREQ(subcase.title, "");
  EXPECT_STREQ(subcase.analysisName, "");
  EXPECT_EQ(subcase.frequencyCount, 0.0);
  EXPECT_THAT(OpenTables(subcase), ElementsAre(false, false, false, false, false));
}

TEST_F(Subcases, AKeywordIsAWholeWord) {
  ReadCases("SUBCASE 1\nLOADS = 1\nTEMPERATURE = 3\nTEMP = 4\nTEMPERATURE (LOAD) = 5\nFREQ1 = 6\nBEGIN\n");
  EXPECT_EQ(SumOfIds(Subcase(0)), 0);
  EXPECT_EQ(rest, "LOADS = 1\nTEMPERATURE = 3\nTEMP = 4\nTEMPERATURE (LOAD) = 5\nFREQ1 = 6\nBEGIN\n") << "LOADS begins like a card";
  ReadCases("SUBCASE 1\nTEMPERATURE = 3\nTEMP = 4\nTEMPERATURE (LOAD) = 5\nSDAMPINGX = 6\nMETHODS = 7\nANALYSES = MODES\nBEGIN\n");
  EXPECT_EQ(SumOfIds(Subcase(1)), 0);
  EXPECT_EQ(Subcase(1).skip, 1);
  EXPECT_EQ(rest, "BEGIN\n");
}

TEST_F(Subcases, TheLaterLineOfAKeywordOverwrites) {
  ReadCases("SUBCASE 1\nLOAD = 3\nLOAD = 4\nTEMP(LOAD) = 5\nTEMPERATURE(LOAD) = 6\nMETHOD = 7\nMETHOD(STRUCTURE) = 8\nBEGIN\n");
  EXPECT_EQ(Subcase(0).loadId, 4);
  EXPECT_EQ(Subcase(0).temperatureId, 6);
  EXPECT_EQ(Subcase(0).methodId, 8);
}

TEST_F(Subcases, IdsAreTakenWithoutATestOfTheirValue) {
  ReadCases("SUBCASE 1\nLOAD = -3\nSPC = ALL\nMPC = 4294967297\nDLOAD = 12.7\nBEGIN\n");
  EXPECT_EQ(Subcase(0).loadId, -3);
  EXPECT_EQ(Subcase(0).spcId, 0);
  EXPECT_EQ(Subcase(0).mpcId, 1) << "modulo 2^32";
  EXPECT_EQ(Subcase(0).dloadId, 12);
  EXPECT_EQ(Subcase(0).skip, 0);
}

TEST_F(Subcases, AKeywordAloneGivesZeroAndStillCounts) {
  for (const char* line : {"SPC\n", "SPC=\n", "SPC =\n", "SPC \n", "SPC = \r\n", "  SPC\n"}) {
    const std::size_t index = CaseCount();
    ReadCases("SUBCASE 1\nSPC = 9\n" + std::string(line) + "BEGIN\n");
    EXPECT_EQ(Subcase(index).spcId, 0) << line;
    EXPECT_EQ(Subcase(index).skip, 0) << line;
  }
}

TEST_F(Subcases, TheCharacterBehindTheKeywordIsNoPartOfTheValue) {
  ReadCases("SUBCASE 1\nLABEL,1st\nSUBTITLE = ,x\nBEGIN\n");
  EXPECT_STREQ(Subcase(0).title, ",x");
  ReadCases("SUBCASE 1\nLABEL,1st\nBEGIN\n");
  EXPECT_STREQ(Subcase(1).title, "1st");
}

TEST_F(Subcases, TheTitleIsTheLaterOfSubtitleAndLabel) {
  ReadCases("SUBCASE 1\nSUBTITLE = Door open\nLABEL = Door shut\nBEGIN\n");
  EXPECT_STREQ(Subcase(0).title, "Door shut");
  ReadCases("SUBCASE 1\nlabel = Door shut\nsubtitle=Door  Open \r\nBEGIN\n");
  EXPECT_STREQ(Subcase(1).title, "Door  Open");
  ReadCases("SUBCASE 1\nSUBTITLE = Door open\nLABEL =\nBEGIN\n");
  EXPECT_STREQ(Subcase(2).title, "");
  ReadCases("SUBCASE 1\nTITLE = Door open\nBEGIN\n");
  EXPECT_STREQ(Subcase(3).title, "");
}

TEST_F(Subcases, EqualsSignsLeaveATitle) {
  ReadCases("SUBCASE 1\nLABEL = A=B == C\nBEGIN\n");
  EXPECT_STREQ(Subcase(0).title, "AB  C");
}

TEST_F(Subcases, TitlesAndNamesAreCutToWhatTheirBuffersHold) {
  const std::string title(400, 't');
  const std::string name(100, 'n');
  ReadCases("SUBCASE 1\nLABEL = " + title + "\nANALYSIS = " + name + "\nSPC = 3\nBEGIN\n");
  EXPECT_EQ(Subcase(0).title, std::string(255 - std::strlen("LABEL = "), 't')) << "a line is 255 characters at most";
  EXPECT_EQ(Subcase(0).analysisName, std::string(63, 'n'));
  EXPECT_THAT(OpenTables(Subcase(0)), ElementsAre(false, true, false, false, false)) << "what stands behind the name is whole";
  EXPECT_EQ(Subcase(0).spcId, 3) << "the next line is read from its start";
}

TEST_F(Subcases, ALongLineKeepsItsKeyword) {
  ReadCases("SUBCASE 1\nSPC = 5" + std::string(1000, ' ') + "9\n" + std::string(300, ' ') + "LOAD = 6\nMPC = 7\nBEGIN\n");
  EXPECT_EQ(Subcase(0).spcId, 5);
  EXPECT_EQ(Subcase(0).loadId, 0) << "the keyword stands behind the 255th character";
  EXPECT_EQ(Subcase(0).mpcId, 7);
}

TEST_F(Subcases, LinesInBetweenAreIgnored) {
  ReadCases(
      "SUBCASE 1\n\n$ SPC = 1\n$SPC = 1\n   \n\r\nECHO = NONE\nDISPLACEMENT(PLOT) = ALL\nFORCE = ALL\nSTRESS = 4\n= 5\n,\nSUBCOM "
      "3\nSUBCASE2\n"
      "include 'more.inc'\nSOL 101\n  SPC = 2\nBEGIN BULK\n");
  ASSERT_EQ(CaseCount(), 1U);
  EXPECT_EQ(SumOfIds(Subcase(0)), 2);
  EXPECT_EQ(Subcase(0).spcId, 2);
  EXPECT_EQ(rest, "BEGIN BULK\n");
}

TEST_F(Subcases, EachSubcaseLineBeginsARecord) {
  ReadCases("SUBCASE 7\nSPC = 1\nsubcase 8\nSPC = 2\n  Subcase=9\nSPC = 3\nBEGIN\n");
  ASSERT_EQ(CaseCount(), 3U);
  EXPECT_EQ(Subcase(0).spcId, 1);
  EXPECT_EQ(Subcase(1).spcId, 2);
  EXPECT_EQ(Subcase(2).spcId, 3);
}

TEST_F(Subcases, BeginInAnyCaseEndsThem) {
  for (const char* line : {"BEGIN BULK\n", "begin bulk\n", "Begin\n", "  BEGIN BULK\n", "BEGIN=BULK\n", "BEGIN,BULK\r\n"}) {
    const std::string end = std::string(line) + "SPC = 9\n";
    ReadCases("SUBCASE 1\nLOAD = 2\n" + end);
    EXPECT_EQ(rest, end);
    EXPECT_EQ(Subcase(CaseCount() - 1).spcId, 0) << line;
    EXPECT_EQ(Subcase(CaseCount() - 1).skip, 0) << line;
  }
}

TEST_F(Subcases, AWordThatBeginsLikeACardEndsThemAndIsGivenBack) {
  for (const char* line : {"GRID    1",
                           "GRID,1,,0.,0.,0.",
                           "GRID*   1",
                           "CQUAD4  1",
                           "SPC1    1",
                           "SPC     1       2",
                           "SPCADD  1",
                           "LOAD*   3",
                           "MPCADD  1",
                           "SET 1 = ALL",
                           "SETS 1 = ALL",
                           "SPCFORCES = ALL",
                           "SPCFORCES(PLOT) = ALL",
                           "MPCFORCES = ALL",
                           "FREQ = 3",
                           "FREQ1 = 3",
                           "SURF 3",
                           "LOADSET = 4",
                           "BEGINNING",
                           "EIGRL   1",
                           "PLOTELX",
                           "  SET 1 = ALL",
                           "SPC(3) = 4",
                           "METHODX"}) {
    const std::string text = line;
    const std::string end = text + "\nMPC = 9\n";
    ReadCases("SUBCASE 1\nDLOAD = 2\n" + end);
    const SubcaseRecord& subcase = Subcase(CaseCount() - 1);
    if (text == "METHODX") {
      EXPECT_EQ(rest, "") << "no card begins so";
      EXPECT_EQ(subcase.mpcId, 9);
      continue;
    }
    // SPC, LOAD and the like as a whole word are lines of the subcase, whatever the card form.
    if (text == "SPC     1       2") {
      EXPECT_EQ(rest, "");
      EXPECT_EQ(subcase.spcId, 1);
      continue;
    }
    EXPECT_EQ(rest, end);
    EXPECT_EQ(subcase.mpcId, 0) << line;
  }
}

TEST_F(Subcases, CardWordsInSmallLettersEndNothing) {
  ReadCases("SUBCASE 1\nset 1 = all\nspcforces = all\ngrid    1\nMPC = 9\nBEGIN\n");
  EXPECT_EQ(Subcase(0).mpcId, 9);
  EXPECT_EQ(rest, "BEGIN\n");
}

TEST_F(Subcases, CardsThatDoNotEndACardEndNoSubcaseEither) {
  ReadCases("SUBCASE 1\nFORCE   2       1\nPARAM   POST    -1\nPLOAD4  1       2\nMAT8    1\nSPC = 4\nGRID    1\n");
  EXPECT_EQ(Subcase(0).spcId, 4);
  EXPECT_EQ(rest, "GRID    1\n");
}

// Which subcases make no load case.

TEST_F(Subcases, ASubcaseWithOnlyAMethodIsSkipped) {
  for (const char* line : {"METHOD = 3", "FREQUENCY = 3", "MFLUID = 3", "LABEL = Empty", "ANALYSIS = STATICS", ""}) {
    ReadCases("SUBCASE 1\n" + std::string(line) + "\nBEGIN\n");
    EXPECT_EQ(Subcase(CaseCount() - 1).skip, 1) << line;
  }
}

TEST_F(Subcases, ANormalModesSubcaseIsKept) {
  for (const char* line : {"ANALYSIS = MODES", "analysis = modes", "ANALYSIS=Modes\r", "ANALYSIS MODES"}) {
    ReadCases("SUBCASE 1\n" + std::string(line) + "\nMETHOD = 3\nBEGIN\n");
    EXPECT_EQ(Subcase(CaseCount() - 1).skip, 0) << line;
    EXPECT_EQ(Subcase(CaseCount() - 1).methodId, 3) << line;
  }
  for (const char* line : {"ANALYSIS = MODES $ first ten", "ANALYSIS = MODE", "ANALYSIS = MODESX", "ANALYSIS = MODES\nANALYSIS = BUCK"}) {
    ReadCases("SUBCASE 1\n" + std::string(line) + "\nMETHOD = 3\nBEGIN\n");
    EXPECT_EQ(Subcase(CaseCount() - 1).skip, 1) << line;
  }
}

TEST_F(Subcases, EachSubcaseIsJudgedByItsOwnLines) {
  ReadCases(
      "SUBCASE 1\nSPC = 1\nSUBCASE 2\nMETHOD = 1\nSUBCASE 3\nANALYSIS = MODES\nSUBCASE 4\nSUBCASE 5\nLOAD = 0\nSUBCASE 6\nFREQUENCY = "
      "2\nBEGIN\n");
  ASSERT_EQ(CaseCount(), 6U);
  const std::vector<int> expected = {0, 1, 0, 1, 0, 1};
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(Subcase(i).skip, expected[i]) << i;
  }
}

TEST_F(Subcases, TheLastSubcaseIsJudgedHoweverItEnds) {
  for (const char* end : {"BEGIN BULK\n", "", "GRID    1\n", "unterminated", "SET 1 = ALL\n"}) {
    ReadCases("SUBCASE 1\nMETHOD = 1\n" + std::string(end));
    EXPECT_EQ(Subcase(CaseCount() - 1).skip, 1) << end;
    ReadCases("SUBCASE 1\nMPC = 1\n" + std::string(end));
    EXPECT_EQ(Subcase(CaseCount() - 1).skip, 0) << end;
  }
}

// Ends of the text.

TEST_F(Subcases, AnUnterminatedLastLineIsNotTaken) {
  ReadCases("SUBCASE 1\nSPC = 1\nLOAD = 2");
  EXPECT_EQ(Subcase(0).spcId, 1);
  EXPECT_EQ(Subcase(0).loadId, 0);
  EXPECT_EQ(rest, "LOAD = 2");
  ReadCases("SUBCASE 1\nSPC = 1\nSUBCASE 2");
  EXPECT_EQ(CaseCount(), 2U);
  EXPECT_EQ(rest, "SUBCASE 2");
}

TEST_F(Subcases, AnUnterminatedSubcaseLineMakesNoRecord) {
  ReadCases("SUBCASE 1");
  EXPECT_EQ(CaseCount(), 0U);
  EXPECT_EQ(rest, "SUBCASE 1");
  ReadCases("");
  EXPECT_EQ(CaseCount(), 0U);
}

TEST_F(Subcases, ASubcaseLineAtTheEndMakesASkippedRecord) {
  ReadCases("SUBCASE 1\n");
  ASSERT_EQ(CaseCount(), 1U);
  EXPECT_EQ(Subcase(0).skip, 1);
  EXPECT_EQ(rest, "");
}

}  // namespace
}  // namespace btz::test
