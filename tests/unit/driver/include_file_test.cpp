// Include files: which names are found on an include line, where they are looked for, how deep they are followed, and what they cost in
// progress.
#include "driver/include_file.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "analysis/case_control.h"
#include "driver/pass_tables.h"
#include "driver/progress.h"
#include "tests/unit/driver/walk_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::size_t chunkLimit = 2097145;

std::vector<std::string> taken;

std::int32_t TakeLine(CardContext& context) {
  taken.push_back(LineAt(context.file.cursor));
  PassLine(context.file);
  return 0;
}

constexpr CardRow deckRows[] = {Row("CARD", TakeLine), {"include", Guard::AnyCase, "", familyNone, ReadIncludeFile, Refusal::Ignored}};
constexpr CardRow includeRows[] = {Row("CARD", TakeLine)};
constexpr PassTable deckTable = MakePassTable(false, deckRows);
constexpr PassTable indentedDeckTable = MakePassTable(true, deckRows);
constexpr PassTable includeTable = MakePassTable(false, includeRows);

class IncludeFileTest : public WalkTest {
 protected:
  IncludeFileTest() { taken.clear(); }

  void WalkDeck(std::string_view text) { Walk(text, deckTable, &includeTable); }

  /// Paths that the walk of a deck with this text tried to open, without the deck's folder and the slash behind it.
  std::vector<std::string> NamesTried(std::string_view text, const PassTable& table = deckTable) {
    OpenDeck(text);
    platform.openings.clear();
    WalkDeckFile(&run, &run.deck, table, &includeTable);
    std::vector<std::string> names;
    for (const FakePlatform::Opening& opening : platform.openings) {
      const std::string head = folder.Path() + "/";
      names.push_back(opening.path.starts_with(head) ? opening.path.substr(head.size()) : opening.path);
    }
    return names;
  }
};

TEST_F(IncludeFileTest, CardsOfTheFileStandInThePlaceOfItsLine) {
  folder.Write("part.bdf", "CARD 2\nother\nCARD 3\n");
  WalkDeck("CARD 1\ninclude 'part.bdf'\nCARD 4\n");
  EXPECT_THAT(taken, ElementsAre("CARD 1", "CARD 2", "CARD 3", "CARD 4"));
}

TEST_F(IncludeFileTest, TheKeywordIsTakenInAnyCaseMix) {
  EXPECT_THAT(NamesTried("include a\nINCLUDE b\nInClUdE c\niNCLUDE d\n"), ElementsAre("a", "b", "c", "d"));
}

TEST_F(IncludeFileTest, NamesMayBeQuotedOrNot) {
  EXPECT_THAT(NamesTried("include 'a.bdf'\ninclude \"b.bdf\"\ninclude c.bdf\ninclude   d.bdf  \n"),
              ElementsAre("a.bdf", "b.bdf", "c.bdf", "d.bdf"));
}

TEST_F(IncludeFileTest, AQuoteSeparatesTheNameFromTheKeyword) { EXPECT_THAT(NamesTried("include'a.bdf'\n"), ElementsAre("a.bdf")); }

TEST_F(IncludeFileTest, ACarriageReturnIsNoPartOfTheName) {
  EXPECT_THAT(NamesTried("include 'a.bdf'\r\ninclude b.bdf\r\n"), ElementsAre("a.bdf", "b.bdf"));
}

TEST_F(IncludeFileTest, ANameCannotHoldABlank) { EXPECT_THAT(NamesTried("include 'my part.bdf'\n"), ElementsAre("my")); }

TEST_F(IncludeFileTest, ATabDoesNotSeparateTheNameButIsTrimmed) {
  EXPECT_THAT(NamesTried("include\ta.bdf\ninclude \tb.bdf\t\n"), ElementsAre("b.bdf"));
}

TEST_F(IncludeFileTest, ALineWithoutANameIsSkipped) {
  EXPECT_THAT(NamesTried("include\nCARD 1\ninclude   \ninclude ''\ninclude \r\nCARD 2\n"), IsEmpty());
  EXPECT_THAT(taken, ElementsAre("CARD 1", "CARD 2"));
}

TEST_F(IncludeFileTest, AWordThatOnlyBeginsLikeTheKeywordIsTakenForIt) {
  EXPECT_THAT(NamesTried("includes a.bdf\nincludea.bdf\n"), ElementsAre("a.bdf"));
}

TEST_F(IncludeFileTest, AnIndentedLineIsSeenOnlyWhereBlanksAreSkipped) {
  EXPECT_THAT(NamesTried("  include a\n", deckTable), IsEmpty());
  EXPECT_THAT(NamesTried("  include a\n", indentedDeckTable), ElementsAre("a"));
}

TEST_F(IncludeFileTest, FilesAreLookedForInTheDecksFolder) {
  OpenDeck("include sub/a.bdf\ninclude ../b.bdf\n");
  run.deckPath = "some/folder/deck.bdf";
  platform.openings.clear();
  WalkDeckFile(&run, &run.deck, deckTable, &includeTable);
  ASSERT_EQ(platform.openings.size(), 2u);
  EXPECT_EQ(platform.openings[0].path, "some/folder/sub/a.bdf");
  EXPECT_EQ(platform.openings[0].mode, "rb");
  EXPECT_EQ(platform.openings[1].path, "some/folder/../b.bdf");
}

TEST_F(IncludeFileTest, BothSeparatorsEndTheFolder) {
  OpenDeck("include a\n");
  run.deckPath = "c:\\decks/car\\deck.bdf";
  WalkDeckFile(&run, &run.deck, deckTable, &includeTable);
  EXPECT_EQ(platform.openings.back().path, "c:\\decks/car\\a");
}

TEST_F(IncludeFileTest, ADeckWithoutAFolderHasItsFilesBesideIt) {
  OpenDeck("include a\n");
  run.deckPath = "deck.bdf";
  WalkDeckFile(&run, &run.deck, deckTable, &includeTable);
  EXPECT_EQ(platform.openings.back().path, "a");
}

TEST_F(IncludeFileTest, AnAbsoluteNameIsAppendedToTheFolderAndDoesNotOpen) {
  const std::string path = folder.Write("part.bdf", "CARD 1\n");
  WalkDeck("include '" + path + "'\n");
  EXPECT_EQ(platform.openings.back().path, folder.Path() + "/" + path);
  EXPECT_FALSE(platform.openings.back().succeeded);
  EXPECT_THAT(taken, IsEmpty());
}

TEST_F(IncludeFileTest, AMissingFileIsSkipped) {
  WalkDeck("CARD 1\ninclude 'none.bdf'\nCARD 2\n");
  EXPECT_THAT(taken, ElementsAre("CARD 1", "CARD 2"));
}

TEST_F(IncludeFileTest, AFolderIsNoFile) {
  folder.Write("sub/part.bdf", "CARD 9\n");
  WalkDeck("CARD 1\ninclude 'sub'\ninclude '.'\nCARD 2\n");
  EXPECT_THAT(taken, ElementsAre("CARD 1", "CARD 2"));
}

TEST_F(IncludeFileTest, OnlyOneLevelIsFollowed) {
  folder.Write("outer.bdf", "CARD 1\ninclude 'inner.bdf'\nCARD 2\n");
  folder.Write("inner.bdf", "CARD 9\n");
  WalkDeck("include 'outer.bdf'\n");
  EXPECT_THAT(taken, ElementsAre("CARD 1", "CARD 2"));
}

TEST_F(IncludeFileTest, ADeckThatIncludesItselfIsReadTwice) {
  WalkDeck("CARD 1\ninclude 'deck.bdf'\nCARD 2\n");
  EXPECT_THAT(taken, ElementsAre("CARD 1", "CARD 1", "CARD 2", "CARD 2"));
}

TEST_F(IncludeFileTest, ALastLineWithoutItsLineFeedIsFollowedOnce) {
  folder.Write("part.bdf", "CARD 1\n");
  WalkDeck("include 'part.bdf'");
  EXPECT_THAT(taken, ElementsAre("CARD 1"));
}

TEST_F(IncludeFileTest, TheSameFileMayBeIncludedAgain) {
  folder.Write("part.bdf", "CARD 1\n");
  WalkDeck("include part.bdf\ninclude part.bdf\n");
  EXPECT_THAT(taken, ElementsAre("CARD 1", "CARD 1"));
}

TEST_F(IncludeFileTest, NothingOfALongerFileIsLeftForAShorterOne) {
  folder.Write("long.bdf", "CARD 1\nCARD 2\nCARD 3\nCARD 4\n");
  folder.Write("short.bdf", "CARD 5");
  WalkDeck("include long.bdf\ninclude short.bdf\n");
  EXPECT_THAT(taken, ElementsAre("CARD 1", "CARD 2", "CARD 3", "CARD 4", "CARD 5"));
}

TEST_F(IncludeFileTest, LinesMayEndInCarriageReturnAndLineFeed) {
  folder.Write("part.bdf", "CARD 1\r\nother\r\nCARD 2\r\n");
  WalkDeck("include 'part.bdf'\r\nCARD 3\r\n");
  EXPECT_THAT(taken, ElementsAre("CARD 1\r", "CARD 2\r", "CARD 3\r"));
}

TEST_F(IncludeFileTest, OverlongNamesFindNothing) {
  const std::string name(600, 'x');
  WalkDeck("include '" + name + "'\nCARD 1\n");
  EXPECT_THAT(taken, ElementsAre("CARD 1"));
  for (const FakePlatform::Opening& opening : platform.openings) {
    EXPECT_TRUE(!opening.succeeded || opening.path == run.deckPath);
  }
}

TEST_F(IncludeFileTest, AFileCostsOneStepOfProgressWhereItOpens) {
  folder.Write("part.bdf", "CARD 1\n");
  OpenProgress();
  platform.progress.clear();
  run.progress = {10, 50};
  WalkDeck("include 'part.bdf'\ninclude 'none.bdf'\n");
  // The end of the include file and the end of the deck; the file's first chunk changes nothing.
  EXPECT_THAT(platform.progress, ElementsAre(60, 70));
  EXPECT_EQ(platform.console, "\b\b\b\b 50%\b\b\b\b 60%");
}

TEST_F(IncludeFileTest, LaterChunksOfAFileAreProgress) {
  std::string text;
  while (text.size() < chunkLimit + 100) {
    text += "$ filler\n";
  }
  folder.Write("part.bdf", text + "CARD 1\n");
  OpenProgress();
  platform.progress.clear();
  run.progress = {10, 50};
  WalkDeck("include 'part.bdf'\nCARD 2\n");
  EXPECT_THAT(platform.progress, ElementsAre(60, 70, 80));
  EXPECT_THAT(taken, ElementsAre("CARD 1", "CARD 2"));
}

TEST_F(IncludeFileTest, AnEmptyFileIsWalkedLikeAnyOther) {
  folder.Write("part.bdf", "");
  OpenProgress();
  platform.progress.clear();
  run.progress = {10, 50};
  WalkDeck("include 'part.bdf'\nCARD 2\n");
  EXPECT_THAT(platform.progress, ElementsAre(60, 70));
  EXPECT_THAT(taken, ElementsAre("CARD 2"));
}

TEST_F(IncludeFileTest, AFileOfOneOverlongLineDoesNotStopTheDeck) {
  folder.Write("part.bdf", "CARD 1 " + std::string(chunkLimit, 'x'));
  WalkDeck("include 'part.bdf'\nCARD 2\n");
  ASSERT_FALSE(taken.empty());
  EXPECT_EQ(taken.back(), "CARD 2");
}

// The passes themselves, as far as their rows need no host.
class IncludeInPassTest : public WalkTest {
 protected:
  IncludeInPassTest() {
    const std::string path = folder.Path("log.txt");
    CopyText(run.logPath, sizeof(run.logPath), path.c_str());
    SolNumber = 0;
    GlobalSdampingId = 0;
    GlobalMfluidId = 0;
    GlobalMethodId = 0;
  }

  void WalkNodePass(std::string_view text) { Walk(text, nodePassDeck, &nodePassInclude); }
};

TEST_F(IncludeInPassTest, TheFirstPassTellsOfAMissingFile) {
  WalkNodePass("include 'none.bdf'\ninclude   sub/\"other.bdf\"\n");
  EXPECT_EQ(folder.ReadText("log.txt"), "\nInclude FileName \"none.bdf\" does not exists.\n\nInclude FileName \"sub/\" does not exists.\n");
}

TEST_F(IncludeInPassTest, TheOtherPassesSayNothing) {
  for (const auto& [deck, include] : {std::pair{&includePassDeck, &includePassInclude}, std::pair{&elementPassDeck, &elementPassInclude},
                                      std::pair{&loadPassDeck, &loadPassInclude}}) {
    Walk("include 'none.bdf'\n", *deck, include);
    EXPECT_FALSE(platform.openings.back().succeeded);
    EXPECT_FALSE(folder.Exists("log.txt"));
  }
}

TEST_F(IncludeInPassTest, AMissingFileWithoutALogIsSkippedInSilence) {
  run.logPath[0] = 0;
  WalkNodePass("include 'none.bdf'\nSOL 101\n");
  EXPECT_EQ(SolNumber, 101);
}

TEST_F(IncludeInPassTest, IndentedIncludeLinesAreSeenInTheFirstAndFourthPassOnly) {
  const auto isTried = [&](const PassTable& deck, const PassTable& include) {
    OpenDeck("   include 'none.bdf'\n");
    platform.openings.clear();
    WalkDeckFile(&run, &run.deck, deck, &include);
    return !platform.openings.empty() && platform.openings[0].path == folder.Path("none.bdf");
  };
  EXPECT_TRUE(isTried(nodePassDeck, nodePassInclude));
  EXPECT_FALSE(isTried(includePassDeck, includePassInclude));
  EXPECT_FALSE(isTried(elementPassDeck, elementPassInclude));
  EXPECT_TRUE(isTried(loadPassDeck, loadPassInclude));
}

TEST_F(IncludeInPassTest, SolIsReadFromTheDeckOnly) {
  folder.Write("part.bdf", "SOL 103\n");
  WalkNodePass("include 'part.bdf'\n");
  EXPECT_EQ(SolNumber, 0);
}

TEST_F(IncludeInPassTest, MethodAndFluidAreReadFromIncludeFilesToo) {
  folder.Write("part.bdf", "METHOD = 7\n  MFLUID=3\n");
  WalkNodePass("include 'part.bdf'\n");
  EXPECT_EQ(GlobalMethodId, 7);
  EXPECT_EQ(GlobalMfluidId, 3);
}

TEST_F(IncludeInPassTest, DampingOfAnIncludeFileIsTakenWhenTheDeckGoesOnWithAPInTheFifthPlace) {
  folder.Write("part.bdf", "SDAMPING = 4\n");
  WalkNodePass("include 'part.bdf'\n$$$$P\n");
  EXPECT_EQ(GlobalSdampingId, 4);
}

TEST_F(IncludeInPassTest, DampingOfAnIncludeFileIsLeftOutWhenTheDeckGoesOnOtherwise) {
  folder.Write("part.bdf", "SDAMPING = 4\n");
  for (const char* text : {"include 'part.bdf'\n", "include 'part.bdf'\nPSHELL  1\n", "include 'part.bdf'\n$$$$p\n",
                           "include 'part.bdf'\n$$$P\n", "include 'part.bdf'\nSDAM", "include 'part.bdf'"}) {
    WalkNodePass(text);
    EXPECT_EQ(GlobalSdampingId, 0) << text;
  }
}

TEST_F(IncludeInPassTest, TheFifthCharacterOfDampingInAnIncludeFileIsNotLookedAt) {
  folder.Write("part.bdf", "SDAMxING = 4\n");
  WalkNodePass("include 'part.bdf'\nSDAMPING = 5\n");
  // First 4 from the include file, then the deck's own line.
  EXPECT_EQ(GlobalSdampingId, 5);
  GlobalSdampingId = 0;
  WalkNodePass("include 'part.bdf'\n....P\n");
  EXPECT_EQ(GlobalSdampingId, 4);
}

TEST_F(IncludeInPassTest, TheSeenSubcaseFlagHoldsInIncludeFilesToo) {
  folder.Write("part.bdf", "METHOD = 7\nMFLUID = 3\nSDAMPING = 4\n");
  run.hasSeenSubcase = true;
  WalkNodePass("include 'part.bdf'\n$$$$P\n");
  EXPECT_EQ(GlobalMethodId, 0);
  EXPECT_EQ(GlobalMfluidId, 0);
  EXPECT_EQ(GlobalSdampingId, 0);
}

// Elements come from include files in the second pass, what goes with them in the third.
TEST_F(IncludeInPassTest, ElementsOfIncludeFilesAreTakenInTheSecondPass) {
  folder.Write("part.bdf", "CQUAD4  1\nMAT1    2\nTABLES1 3\nRBE2    4\n$HMSET 1\n CTRIA3  5\n");
  RecordingTable include(includePassInclude);
  Walk("CQUAD4  9\ninclude 'part.bdf'\nTABLES1 9\n", includePassDeck, &include.table);
  EXPECT_THAT(include.taken, ElementsAre(TakenCard{"CQUAD4", "CQUAD4  1"}, TakenCard{"TABLES1", "TABLES1 3"}));
}

TEST_F(IncludeInPassTest, WhatGoesWithElementsOfIncludeFilesIsTakenInTheThirdPass) {
  folder.Write("part.bdf", "CQUAD4  1\nMAT1    2\nTABLES1 3\nRBE2    4\n$HMSET 1\n MAT1    5\n");
  RecordingTable include(elementPassInclude);
  Walk("include 'part.bdf'\n", elementPassDeck, &include.table);
  EXPECT_THAT(include.taken, ElementsAre(TakenCard{"MAT1", "MAT1    2"}, TakenCard{"RBE2", "RBE2    4"}));
}

TEST_F(IncludeInPassTest, LoadsOfIncludeFilesMayBeIndented) {
  folder.Write("part.bdf", "  ASET    1\n FORCE   2\nCMASS1  3\n");
  RecordingTable include(loadPassInclude);
  Walk("include 'part.bdf'\n", loadPassDeck, &include.table);
  EXPECT_THAT(include.taken, ElementsAre(TakenCard{"ASET", "ASET    1"}, TakenCard{"FORCE", "FORCE   2"}));
}

}  // namespace
}  // namespace btz::test
