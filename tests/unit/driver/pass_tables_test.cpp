// The content of the pass tables, row by row, and what the guards of the rows let through.
#include "driver/pass_tables.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "tests/unit/driver/walk_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

using Rows = std::vector<std::string>;

std::string NameOf(Family family) {
  constexpr const char* names[] = {"Tet",  "Tri3",    "Tri6",   "Quad4", "Quad8", "Hex",   "Wedge",  "Bar",      "Rbe2",
                                   "Rbe3", "Pyramid", "Gasket", "Node",  "Bush",  "Force", "Moment", "Pressure", "Mass"};
  static_assert(sizeof(names) / sizeof(names[0]) == familyCount);
  return family == familyNone ? "" : std::string(" +") + names[family];
}

std::string GuardOf(const CardRow& row) {
  switch (row.guard) {
    case Guard::None:
      return "";
    case Guard::NextIsOneOf:
      return std::string("[") + row.guardCharacters + "]";
    case Guard::NextIsNoneOf:
      return std::string("[^") + row.guardCharacters + "]";
    case Guard::AnyCase:
      return " any case";
    case Guard::FifthInParent:
      return " fifth of parent";
  }
  return " unknown guard";
}

/// A row as text: keyword, guard on the next character, family that is raised, and whether a refusal undoes the raise.
std::string Describe(const CardRow& row) {
  return row.keyword + GuardOf(row) + NameOf(row.family) + (row.refusal == Refusal::Undoes ? " undone" : "");
}

/// The rows that a text with this first character is tried with, in order.
Rows RowsOf(const PassTable& table, char letter) {
  Rows rows;
  const auto index = static_cast<unsigned char>(letter);
  for (std::size_t i = 0; i < table.rowCount[index]; ++i) {
    rows.push_back(Describe(table.rows[table.firstRow[index] + i]));
  }
  return rows;
}

/// Compares a table with its rows as the pass tests them. Rows with different first letters can't fit the same text, so what counts is that each
/// letter has its rows, in order.
void ExpectRows(const PassTable& table, const Rows& expected) {
  for (int letter = 0; letter < 256; ++letter) {
    Rows ofLetter;
    for (const std::string& row : expected) {
      const bool anyCase = row.find(" any case") != std::string::npos;
      if (row[0] == static_cast<char>(letter) || (anyCase && letter == row[0] - ('a' - 'A'))) {
        ofLetter.push_back(row);
      }
    }
    EXPECT_THAT(RowsOf(table, static_cast<char>(letter)), ElementsAreArray(ofLetter)) << "first letter " << letter;
  }
}

/// Keywords of the rows that have no reader yet, by first letter.
Rows LeftToBuild(const PassTable& table) {
  Rows left;
  for (const CardRow& row : table.rows) {
    if (row.keyword != nullptr && row.reader == NotBuilt) {
      left.push_back(row.keyword);
    }
  }
  return left;
}

TEST(PassTables, NodePassOfTheDeck) {
  ExpectRows(nodePassDeck, {"GRID +Node", "PSHELL", "PSOLID", "PBAR", "PBEAM", "PGASK", "SUBCASE", "SOL[ ]", "SDAMPING", "MFLUID", "METHOD",
                            "include any case"});
}

TEST(PassTables, NodePassOfIncludeFilesLacksSolAndInclude) {
  ExpectRows(nodePassInclude,
             {"GRID +Node", "PSHELL", "PSOLID", "PBAR", "PBEAM", "PGASK", "SUBCASE[ ]", "SDAMPING fifth of parent", "MFLUID", "METHOD"});
}

TEST(PassTables, IncludePassOfTheDeckTestsIncludeOnly) { ExpectRows(includePassDeck, {"include any case"}); }

TEST(PassTables, IncludePassOfIncludeFilesHasTheElements) {
  ExpectRows(includePassInclude, {"CTRIA3 +Tri3",
                                  "PLOTEL3 +Tri3",
                                  "CTRIA6 +Tri6",
                                  "CTETRA +Tet",
                                  "CHEXA +Hex",
                                  "CQUAD4 +Quad4",
                                  "CQUADR +Quad4",
                                  "PLOTEL4 +Quad4",
                                  "CQUAD8 +Quad8",
                                  "CPENTA +Wedge",
                                  "CBAR +Bar",
                                  "CBEAM +Bar",
                                  "CPYRA +Pyramid undone",
                                  "MGASK",
                                  "TABLES1",
                                  "CGASK12 +Gasket undone",
                                  "CGASK16 +Gasket undone",
                                  "CGASK6 +Gasket undone",
                                  "CGASK8 +Gasket undone",
                                  "TABDMP1"});
}

TEST(PassTables, ElementPassOfTheDeck) {
  ExpectRows(elementPassDeck, {"CTRIA3 +Tri3 undone",
                               "PLOTEL3 +Tri3 undone",
                               "CHEXA +Hex",
                               "CTRIA6 +Tri6 undone",
                               "CTETRA +Tet undone",
                               "CQUAD4 +Quad4 undone",
                               "CQUADR +Quad4 undone",
                               "PLOTEL4 +Quad4 undone",
                               "CQUAD8 +Quad8 undone",
                               "CPENTA +Wedge undone",
                               "CBAR +Bar undone",
                               "RBE2 +Rbe2",
                               "RBE3 +Rbe3",
                               "MAT1",
                               "CBEAM +Bar undone",
                               "$ANSA_NAME;",
                               "$HMNAM",
                               "CORD2R",
                               "CORD2C",
                               "CORD1R",
                               "CORD1C",
                               "CPYRA +Pyramid undone",
                               "LOAD",
                               "$HMSET",
                               "MGASK",
                               "TABLES1",
                               "CGASK12 +Gasket undone",
                               "CGASK16 +Gasket undone",
                               "CGASK6 +Gasket undone",
                               "CGASK8 +Gasket undone",
                               "SPCADD",
                               "MPCADD",
                               "TABDMP1",
                               "DLOAD",
                               "RLOAD1",
                               "RLOAD2",
                               "TABLED1",
                               "FREQ[ ,]",
                               "FREQ1",
                               "PRETENS",
                               "PTADJST",
                               "PTFORCE",
                               "PTADD",
                               "MFLUID",
                               "EIGRL",
                               "EIGRA",
                               "include any case"});
}

TEST(PassTables, ElementPassOfIncludeFilesLacksElementsAndNameComments) {
  ExpectRows(elementPassInclude, {"MAT1",    "RBE2 +Rbe2", "RBE3 +Rbe3", "CORD2R", "CORD2C", "CORD1R",  "CORD1C",   "LOAD",
                                  "SPCADD",  "MPCADD",     "DLOAD",      "RLOAD1", "RLOAD2", "TABLED1", "FREQ[ ,]", "FREQ1",
                                  "PRETENS", "PTADJST",    "PTFORCE",    "PTADD",  "MFLUID", "EIGRL",   "EIGRA"});
}

TEST(PassTables, LoadPassOfTheDeck) {
  ExpectRows(loadPassDeck, {"CMASS1",         "MPC[^A]",
                            "CBUSH +Bush",    "SPC[^1]",
                            "SPC1",           "FORCE[^1] +Force",
                            "CELAS1",         "CELAS2",
                            "PBUSH[^T]",      "PLOAD4 +Pressure",
                            "MOMENT +Moment", "TEMPD",
                            "CONM2 +Mass",    "PELAS",
                            "PGAP",           "CGAP",
                            "PCONV",          "CONV",
                            "CHBDYG",         "MAT4",
                            "QBDY3",          "QBDY1",
                            "TEMP[ *]",       "RBAR",
                            "TEMPBC",         "PLOTEL[^43]",
                            "SET[ ]",         "SURF",
                            "DAREA",          "ELIST",
                            "PBUSHT",         "GRAV",
                            "RFORCE",         "include any case"});
}

TEST(PassTables, LoadPassOfIncludeFilesHasAsetAndLacksMassSpringsDefaultTemperaturesAndPlots) {
  ExpectRows(loadPassInclude, {"MPC[^A]",
                               "CBUSH +Bush",
                               "SPC[^1]",
                               "SPC1",
                               "FORCE[^1] +Force",
                               "CELAS1",
                               "CELAS2",
                               "PBUSH[^T]",
                               "PLOAD4 +Pressure",
                               "MOMENT +Moment",
                               "CONM2 +Mass",
                               "PELAS",
                               "PGAP",
                               "CGAP",
                               "PCONV",
                               "CONV",
                               "CHBDYG",
                               "MAT4",
                               "QBDY3",
                               "QBDY1",
                               "TEMP[ *]",
                               "RBAR",
                               "TEMPBC",
                               "ASET",
                               "SET[ ]",
                               "SURF",
                               "DAREA",
                               "ELIST",
                               "PBUSHT",
                               "GRAV",
                               "RFORCE"});
}

TEST(PassTables, KeywordsMayBeIndentedInTheFirstAndFourthPassOnly) {
  EXPECT_TRUE(nodePassDeck.skipsBlanks);
  EXPECT_TRUE(nodePassInclude.skipsBlanks);
  EXPECT_FALSE(includePassDeck.skipsBlanks);
  EXPECT_FALSE(includePassInclude.skipsBlanks);
  EXPECT_FALSE(elementPassDeck.skipsBlanks);
  EXPECT_FALSE(elementPassInclude.skipsBlanks);
  EXPECT_TRUE(loadPassDeck.skipsBlanks);
  EXPECT_TRUE(loadPassInclude.skipsBlanks);
}

// What is still to be built. A reader that lands takes its keyword out of these lists.
TEST(PassTables, RowsLeftToBuild) {
  EXPECT_THAT(LeftToBuild(nodePassDeck), IsEmpty());
  EXPECT_THAT(LeftToBuild(nodePassInclude), IsEmpty());
  EXPECT_THAT(LeftToBuild(includePassDeck), IsEmpty());
  EXPECT_THAT(LeftToBuild(includePassInclude), ElementsAre("CGASK12", "CGASK16", "CGASK6", "CGASK8", "MGASK", "TABLES1", "TABDMP1"));
  EXPECT_THAT(LeftToBuild(elementPassDeck),
              ElementsAre("CGASK12", "CGASK16", "CGASK6", "CGASK8", "EIGRL", "EIGRA", "FREQ", "FREQ1", "MGASK", "MFLUID", "PRETENS",
                          "PTADJST", "PTFORCE", "PTADD", "RBE2", "RBE3", "RLOAD1", "RLOAD2", "TABLES1", "TABDMP1", "TABLED1"));
  EXPECT_THAT(LeftToBuild(elementPassInclude), ElementsAre("EIGRL", "EIGRA", "FREQ", "FREQ1", "MFLUID", "PRETENS", "PTADJST", "PTFORCE",
                                                           "PTADD", "RBE2", "RBE3", "RLOAD1", "RLOAD2", "TABLED1"));
  EXPECT_THAT(LeftToBuild(loadPassDeck),
              ElementsAre("CMASS1", "CBUSH", "CELAS1", "CELAS2", "CONM2", "CGAP", "CONV", "CHBDYG", "DAREA", "ELIST", "MPC", "MAT4",
                          "PBUSH", "PELAS", "PGAP", "PCONV", "PLOTEL", "PBUSHT", "QBDY3", "QBDY1", "RBAR", "TEMPD", "TEMP", "TEMPBC"));
  EXPECT_THAT(LeftToBuild(loadPassInclude),
              ElementsAre("ASET", "CBUSH", "CELAS1", "CELAS2", "CONM2", "CGAP", "CONV", "CHBDYG", "DAREA", "ELIST", "MPC", "MAT4", "PBUSH",
                          "PELAS", "PGAP", "PCONV", "PBUSHT", "QBDY3", "QBDY1", "RBAR", "TEMP", "TEMPBC"));
}

class PassGuardTest : public WalkTest {
 protected:
  /// Keywords of the rows of `original` that take the lines of `text`, in order.
  std::vector<std::string> Takers(const PassTable& original, std::string_view text) {
    RecordingTable recording(original);
    Walk(text, recording.table);
    return recording.Keywords();
  }
};

TEST_F(PassGuardTest, GridTakesItsStarForm) {
  EXPECT_THAT(Takers(nodePassDeck, "GRID*   1\nGRID,1\nGRIDX\n"), ElementsAre("GRID", "GRID", "GRID"));
}

TEST_F(PassGuardTest, KeywordsAreUpperCaseOnly) {
  EXPECT_THAT(Takers(nodePassDeck, "grid    1\nGrid    2\npshell  1\nsol 101\n"), IsEmpty());
}

TEST_F(PassGuardTest, PbarTakesPbarl) { EXPECT_THAT(Takers(nodePassDeck, "PBARL   1\nPBEAML  2\n"), ElementsAre("PBAR", "PBEAM")); }

TEST_F(PassGuardTest, SolNeedsABlankBehindIt) { EXPECT_THAT(Takers(nodePassDeck, "SOL 101\nSOLID\nSOL,1\nSOL\n"), ElementsAre("SOL")); }

TEST_F(PassGuardTest, SubcaseNeedsABlankInIncludeFilesOnly) {
  EXPECT_THAT(Takers(nodePassDeck, "SUBCASE 1\nSUBCASE=2\n"), ElementsAre("SUBCASE", "SUBCASE"));
}

TEST_F(PassGuardTest, SubcaseOfAnIncludeFileNeedsABlank) {
  EXPECT_THAT(Takers(nodePassInclude, "SUBCASE 1\nSUBCASE=2\nSUBCASE\n"), ElementsAre("SUBCASE"));
}

TEST_F(PassGuardTest, SolIsNotTestedInIncludeFiles) { EXPECT_THAT(Takers(nodePassInclude, "SOL 101\nGRID    1\n"), ElementsAre("GRID")); }

TEST_F(PassGuardTest, ShellsOfPlotKeywordsAreElements) {
  EXPECT_THAT(Takers(elementPassDeck, "PLOTEL3 1\nPLOTEL4 2\nPLOTEL  3\nCQUADR  4\n"), ElementsAre("PLOTEL3", "PLOTEL4", "CQUADR"));
}

TEST_F(PassGuardTest, FreqNeedsABlankOrACommaAndFreq1IsItsOwnRow) {
  EXPECT_THAT(Takers(elementPassDeck, "FREQ    1\nFREQ,1\nFREQ1   1\nFREQ2   1\nFREQ*   1\n"), ElementsAre("FREQ", "FREQ", "FREQ1"));
}

TEST_F(PassGuardTest, PyramidTakesBothSpellings) {
  EXPECT_THAT(Takers(elementPassDeck, "CPYRAM  1\nCPYRA   2\nCPYRA,3\n"), ElementsAre("CPYRA", "CPYRA", "CPYRA"));
}

TEST_F(PassGuardTest, GasketsAreToldApart) {
  EXPECT_THAT(Takers(elementPassDeck, "CGASK6  1\nCGASK8  2\nCGASK12 3\nCGASK16 4\nCGASK1  5\n"),
              ElementsAre("CGASK6", "CGASK8", "CGASK12", "CGASK16"));
}

TEST_F(PassGuardTest, NameCommentsOfThePass) {
  EXPECT_THAT(Takers(elementPassDeck, "$ANSA_NAME;1;PSHELL;\n$HMNAME COMP\n$HMSET 1\n$HMMOVE\n$ANSA_NAME_COMMENT;\n"),
              ElementsAre("$ANSA_NAME;", "$HMNAM", "$HMSET"));
}

TEST_F(PassGuardTest, MpcaddIsNoMpc) {
  EXPECT_THAT(Takers(loadPassDeck, "MPC     1\nMPCADD  1\nMPC*    1\nMPC,1\n"), ElementsAre("MPC", "MPC", "MPC"));
}

TEST_F(PassGuardTest, SpcTakesSpcdAndSpcaddButNotSpc1) {
  EXPECT_THAT(Takers(loadPassDeck, "SPC     1\nSPCD    1\nSPCADD  1\nSPC1    1\nSPC*    1\n"),
              ElementsAre("SPC", "SPC", "SPC", "SPC1", "SPC"));
}

TEST_F(PassGuardTest, SpcaddIsTakenInTheElementPassToo) {
  EXPECT_THAT(Takers(elementPassDeck, "SPCADD  1\nSPC     1\n"), ElementsAre("SPCADD"));
}

TEST_F(PassGuardTest, Force1FitsNoRowAndMoment1FitsMoment) {
  EXPECT_THAT(Takers(loadPassDeck, "FORCE1  1\nMOMENT1 1\nFORCE   1\nFORCE*  1\nFORCE2  1\n"),
              ElementsAre("MOMENT", "FORCE", "FORCE", "FORCE"));
  EXPECT_EQ(run.counters[familyForce], 3);
  EXPECT_EQ(run.counters[familyMoment], 1);
}

TEST_F(PassGuardTest, PbushtIsNoPbush) {
  EXPECT_THAT(Takers(loadPassDeck, "PBUSHT  1\nPBUSH   1\nPBUSH1D 1\n"), ElementsAre("PBUSHT", "PBUSH", "PBUSH"));
}

TEST_F(PassGuardTest, TemperaturesAreToldApart) {
  EXPECT_THAT(Takers(loadPassDeck, "TEMP    1\nTEMP*   1\nTEMPD   1\nTEMPBC  1\nTEMP,1\nTEMPRB  1\n"),
              ElementsAre("TEMP", "TEMP", "TEMPD", "TEMPBC"));
}

TEST_F(PassGuardTest, PlotelOfTheLoadPassIsTheLineOnly) {
  EXPECT_THAT(Takers(loadPassDeck, "PLOTEL  1\nPLOTEL3 1\nPLOTEL4 1\nPLOTEL* 1\nPLOTEL6 1\n"), ElementsAre("PLOTEL", "PLOTEL", "PLOTEL"));
}

TEST_F(PassGuardTest, SetNeedsABlankAndSurfDoesNot) {
  EXPECT_THAT(Takers(loadPassDeck, "SET 1 = 2\nSET,1\nSETREE 1\nSURF    1\nSURFX\n"), ElementsAre("SET", "SURF", "SURF"));
}

TEST_F(PassGuardTest, ConvAndPconvAreToldApart) {
  EXPECT_THAT(Takers(loadPassDeck, "CONV    1\nPCONV   1\nCONVM   1\n"), ElementsAre("CONV", "PCONV", "CONV"));
}

TEST_F(PassGuardTest, QbdyKindsAreToldApart) {
  EXPECT_THAT(Takers(loadPassDeck, "QBDY1   1\nQBDY2   1\nQBDY3   1\n"), ElementsAre("QBDY1", "QBDY3"));
}

TEST_F(PassGuardTest, AsetIsReadFromIncludeFilesOnly) { EXPECT_THAT(Takers(loadPassDeck, "ASET    1\nASET1   1\n"), IsEmpty()); }

TEST_F(PassGuardTest, AsetOfAnIncludeFileIsRead) {
  EXPECT_THAT(Takers(loadPassInclude, "ASET    1\nASET1   1\n"), ElementsAre("ASET", "ASET"));
}

TEST_F(PassGuardTest, CardsThatOnlyTheDeckMayHold) {
  EXPECT_THAT(Takers(loadPassInclude, "CMASS1  1\nTEMPD   1\nPLOTEL  1\ninclude x\n"), IsEmpty());
}

TEST_F(PassGuardTest, CardsOfTheDeckThatItsIncludeFilesMayNotHold) {
  EXPECT_THAT(Takers(loadPassDeck, "CMASS1  1\nTEMPD   1\nPLOTEL  1\n"), ElementsAre("CMASS1", "TEMPD", "PLOTEL"));
}

TEST_F(PassGuardTest, CountersOfTheLoadPass) {
  Takers(loadPassDeck, "CBUSH   1\nPLOAD4  1\nPLOAD4  1\nCONM2   1\nCMASS1  1\nMPC     1\n");
  EXPECT_EQ(run.counters[familyBush], 1);
  EXPECT_EQ(run.counters[familyPressure], 2);
  EXPECT_EQ(run.counters[familyMass], 1);
}

}  // namespace
}  // namespace btz::test
