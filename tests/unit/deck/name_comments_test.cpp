// Names in the comments of the programs that write decks, and the tables that take them.
#include "deck/name_comments.h"

#include <gtest/gtest.h>

#include <string>

#include "deck/deck_text.h"
#include "deck/name_tables.h"

namespace btz {
namespace {

using test::DeckText;

class NameTables : public test::NameTablesTest {};

TEST_F(NameTables, FindNameGivesNullForAnUnknownId) {
  EXPECT_EQ(FindName(&PropertyNameTable, 1), nullptr);
  RegisterPropertyName(2, "Door", false);
  EXPECT_EQ(FindName(&PropertyNameTable, 1), nullptr);
  ASSERT_NE(FindName(&PropertyNameTable, 2), nullptr);
  EXPECT_EQ(FindName(&PropertyNameTable, 2)->id, 2);
}

TEST_F(NameTables, APropertyNameStaysUnlessItIsOverwritten) {
  RegisterPropertyName(7, "Plain", false);
  EXPECT_EQ(Name(PropertyNameTable, 7), "Plain");
  RegisterPropertyName(7, "Other", false);
  EXPECT_EQ(Name(PropertyNameTable, 7), "Plain");
  RegisterPropertyName(7, "Up", true);
  EXPECT_EQ(Name(PropertyNameTable, 7), "Up") << "a shorter name leaves nothing of the longer one";
  RegisterPropertyName(7, "Plain", false);
  EXPECT_EQ(Name(PropertyNameTable, 7), "Up");
  EXPECT_EQ(CountNames(), 1);
}

TEST_F(NameTables, AnOverwritingNameIsAddedWhereThereIsNone) {
  RegisterPropertyName(7, "Door", true);
  EXPECT_EQ(Name(PropertyNameTable, 7), "Door");
}

TEST_F(NameTables, SetNamesGoByKind) {
  RegisterSetName(3, "Nodes", 1);
  RegisterSetName(3, "Elements", 2);
  RegisterSetName(3, "Surface", 3);
  EXPECT_EQ(Name(NodeSetNameTable, 3), "Nodes");
  EXPECT_EQ(Name(ElementSetNameTable, 3), "Elements");
  EXPECT_EQ(Name(SurfaceNameTable, 3), "Surface");
  for (const std::int32_t kind : {0, 4, -1, 100}) {
    RegisterSetName(9, "Other", kind);
  }
  EXPECT_EQ(CountNames(), 3);
}

TEST_F(NameTables, CommentNamesGoByKindInAnyCase) {
  RegisterCommentName("MAT", 1, "Steel");
  RegisterCommentName("mat", 2, "Tin");
  RegisterCommentName("PROP", 1, "Shell");
  RegisterCommentName("Prop", 2, "Beam");
  EXPECT_EQ(Name(MaterialCommentTable, 1), "Steel");
  EXPECT_EQ(Name(MaterialCommentTable, 2), "Tin");
  EXPECT_EQ(Name(PropertyCommentTable, 1), "Shell");
  EXPECT_EQ(Name(PropertyCommentTable, 2), "Beam");
  for (const char* kind : {"", "MATS", "MA", "COMP", " MAT"}) {
    RegisterCommentName(kind, 9, "Other");
  }
  RegisterCommentName(nullptr, 9, "Other");
  EXPECT_EQ(CountNames(), 4);
}

TEST_F(NameTables, TheFirstNameOfASetMaterialOrPropertyStays) {
  RegisterSetName(3, "First", 1);
  RegisterSetName(3, "Second", 1);
  RegisterCommentName("MAT", 3, "First");
  RegisterCommentName("MAT", 3, "Second");
  EXPECT_EQ(Name(NodeSetNameTable, 3), "First");
  EXPECT_EQ(Name(MaterialCommentTable, 3), "First");
  EXPECT_EQ(CountNames(), 2);
}

TEST_F(NameTables, AnIdBelowOneOrAnEmptyNameDoesNothing) {
  for (const std::int32_t id : {0, -1, INT32_MIN}) {
    RegisterPropertyName(id, "Name", true);
    RegisterSetName(id, "Name", 1);
    RegisterCommentName("MAT", id, "Name");
  }
  RegisterPropertyName(1, "", true);
  RegisterPropertyName(1, nullptr, true);
  RegisterSetName(1, "", 1);
  RegisterSetName(1, nullptr, 2);
  RegisterCommentName("PROP", 1, "");
  RegisterCommentName("PROP", 1, nullptr);
  EXPECT_EQ(CountNames(), 0);
  RegisterPropertyName(1, "Door", false);
  RegisterPropertyName(1, "", true);
  EXPECT_EQ(Name(PropertyNameTable, 1), "Door");
}

TEST_F(NameTables, NamesAreCutTo255Characters) {
  const std::string name(300, 'n');
  RegisterPropertyName(1, name.c_str(), false);
  RegisterPropertyName(2, "short", false);
  RegisterPropertyName(2, name.c_str(), true);
  RegisterSetName(1, name.c_str(), 2);
  EXPECT_EQ(Name(PropertyNameTable, 1), std::string(255, 'n'));
  EXPECT_EQ(Name(PropertyNameTable, 2), std::string(255, 'n'));
  EXPECT_EQ(Name(ElementSetNameTable, 1), std::string(255, 'n'));
}

class AnsaNames : public test::NameTablesTest {
 protected:
  std::string RestAfter(const std::string& content) {
    DeckText text(content);
    ReadAnsaNameComment(&text.cursor);
    EXPECT_EQ(text.Bytes(), content);
    return std::string(text.Rest());
  }
};

TEST_F(AnsaNames, TheLineBelowGivesThePropertyItsName) {
  EXPECT_EQ(RestAfter("$ANSA_NAME;5;PSHELL;\n$Door\nPSHELL,5,1\n"), "PSHELL,5,1\n");
  EXPECT_EQ(Name(PropertyNameTable, 5), "Door");
  EXPECT_EQ(CountNames(), 1);
}

TEST_F(AnsaNames, FourPropertyTypesCountInAnyCase) {
  RestAfter("$ANSA_NAME;1;PSHELL;\n$a1\n");
  RestAfter("$ANSA_NAME;2;psolid;\n$a2\n");
  RestAfter("$ANSA_NAME;3;PBar;\n$a3\n");
  RestAfter("$ANSA_NAME;4;PBEAM;\n$a4\n");
  EXPECT_EQ(Name(PropertyNameTable, 1), "a1");
  EXPECT_EQ(Name(PropertyNameTable, 2), "a2");
  EXPECT_EQ(Name(PropertyNameTable, 3), "a3");
  EXPECT_EQ(Name(PropertyNameTable, 4), "a4");
}

TEST_F(AnsaNames, OtherTypesAndIdsLeaveTheNextLineAlone) {
  EXPECT_EQ(RestAfter("$ANSA_NAME;5;MAT1;\n$Steel\n"), "$Steel\n");
  EXPECT_EQ(RestAfter("$ANSA_NAME;5;PCOMP;\n$Skin\n"), "$Skin\n");
  EXPECT_EQ(RestAfter("$ANSA_NAME;0;PSHELL;\n$Door\n"), "$Door\n");
  EXPECT_EQ(RestAfter("$ANSA_NAME;-5;PSHELL;\n$Door\n"), "$Door\n");
  EXPECT_EQ(RestAfter("$ANSA_NAME;X;PSHELL;\n$Door\n"), "$Door\n");
  EXPECT_EQ(RestAfter("$ANSA_NAME;5\n$Door\n"), "$Door\n");
  EXPECT_EQ(RestAfter("$ANSA_NAME;\n$Door\n"), "$Door\n");
  EXPECT_EQ(RestAfter("$ANSA_NAME;5;PSHELL\r\n$Door\n"), "$Door\n") << "the carriage return belongs to the type";
  EXPECT_EQ(CountNames(), 0);
}

TEST_F(AnsaNames, ACardBelowIsReadButGivesNoName) {
  EXPECT_EQ(RestAfter("$ANSA_NAME;5;PSHELL;\nPSHELL,5,1\nGRID,1\n"), "GRID,1\n");
  EXPECT_EQ(CountNames(), 0);
}

TEST_F(AnsaNames, ACommentThatNamesAPropertyTypeGivesNoName) {
  EXPECT_EQ(RestAfter("$ANSA_NAME;5;PSHELL;\n$PSHELL data\nGRID,1\n"), "GRID,1\n");
  RestAfter("$ANSA_NAME;5;PSHELL;\n$the PBAR of it\n");
  RestAfter("$ANSA_NAME;5;PSHELL;\n$PBEAM\n");
  RestAfter("$ANSA_NAME;5;PSHELL;\n$xPSOLIDx\n");
  EXPECT_EQ(CountNames(), 0);
  RestAfter("$ANSA_NAME;5;PSHELL;\n$pshell data\n");
  EXPECT_EQ(Name(PropertyNameTable, 5), "pshell data") << "capitals only";
}

TEST_F(AnsaNames, TheLineBelowIsTrimmed) {
  RestAfter("$ANSA_NAME;5;PSHELL;\r\n  $Left door \t\r\n");
  EXPECT_EQ(Name(PropertyNameTable, 5), "Left door");
  RestAfter("$ANSA_NAME;6;PSHELL;\n$ Right\n");
  EXPECT_EQ(Name(PropertyNameTable, 6), " Right") << "what stands behind the dollar sign, a blank too";
}

TEST_F(AnsaNames, ABareDollarSignGivesNoName) {
  RestAfter("$ANSA_NAME;5;PSHELL;\n$\n");
  RestAfter("$ANSA_NAME;5;PSHELL;\n$  \r\n");
  EXPECT_EQ(CountNames(), 0);
}

TEST_F(AnsaNames, WinsOverANameThatIsHeld) {
  RegisterPropertyName(5, "Plain", false);
  RestAfter("$ANSA_NAME;5;PSHELL;\n$Door\n");
  EXPECT_EQ(Name(PropertyNameTable, 5), "Door");
}

TEST_F(AnsaNames, EmptyPartsOfTheLineAreNotSeen) {
  RestAfter("$ANSA_NAME;;5;;PSHELL;;\n$Door\n");
  EXPECT_EQ(Name(PropertyNameTable, 5), "Door");
}

TEST_F(AnsaNames, StaysOnALineThatEndsAtTheNul) {
  EXPECT_EQ(RestAfter("$ANSA_NAME;5;PSHELL;"), "$ANSA_NAME;5;PSHELL;");
  EXPECT_EQ(CountNames(), 0);
  EXPECT_EQ(RestAfter("$ANSA_NAME;5;PSHELL;\n$Door"), "$Door") << "the name counts, but its line stays unread";
  EXPECT_EQ(Name(PropertyNameTable, 5), "Door");
}

TEST_F(AnsaNames, SurviveOverlongLines) {
  const std::string longLine = "$ANSA_NAME;5;" + std::string(1000, 'x') + "\n";
  EXPECT_EQ(RestAfter(longLine + "$Door\n"), "$Door\n");
  RestAfter("$ANSA_NAME;5;PSHELL;\n$" + std::string(1000, 'n') + "\n");
  EXPECT_EQ(Name(PropertyNameTable, 5), std::string(254, 'n')) << "a line is cut to 255 characters, the dollar sign among them";
}

class HmNames : public test::NameTablesTest {
 protected:
  std::string RestAfter(const std::string& content) {
    DeckText text(content);
    ReadHmNameComment(&text.cursor);
    EXPECT_EQ(text.Bytes(), content);
    return std::string(text.Rest());
  }

  std::string RestAfterSet(const std::string& content) {
    DeckText text(content);
    ReadHmSetComment(&text.cursor);
    EXPECT_EQ(text.Bytes(), content);
    return std::string(text.Rest());
  }
};

TEST_F(HmNames, AComponentNamesItsPart) {
  EXPECT_EQ(RestAfter("$HMNAME COMP                   7\"Door\"\nGRID\n"), "GRID\n");
  EXPECT_EQ(Name(PropertyNameTable, 7), "Door");
  EXPECT_EQ(CountNames(), 1);
}

TEST_F(HmNames, ANumberBehindAComponentsNameIsItsId) {
  RestAfter("$HMNAME COMP                   7\"Door\" 9 \"PSHELL\" 4\n");
  EXPECT_EQ(Name(PropertyNameTable, 9), "Door");
  EXPECT_EQ(Name(PropertyNameTable, 7), "(none)");
}

TEST_F(HmNames, ATextOrZeroBehindAComponentsNameIsNoId) {
  RestAfter("$HMNAME COMP                   7\"Door\" 0\n");
  EXPECT_EQ(Name(PropertyNameTable, 7), "Door");
  RestAfter("$HMNAME COMP                   8\"Hood\"PSHELL\n");
  EXPECT_EQ(Name(PropertyNameTable, 8), "Hood");
  RestAfter("$HMNAME COMP                   6\"Roof\"\r\n");
  EXPECT_EQ(Name(PropertyNameTable, 6), "Roof");
}

TEST_F(HmNames, ANegativeNumberBehindAComponentsNameDropsTheLine) {
  EXPECT_EQ(RestAfter("$HMNAME COMP                   7\"Door\" -3\nGRID\n"), "GRID\n");
  EXPECT_EQ(CountNames(), 0);
}

TEST_F(HmNames, OnlyAComponentTakesItsIdFromBehindTheName) {
  RestAfter("$HMNAME PROP                   7\"Door\" 9\n");
  EXPECT_EQ(Name(PropertyCommentTable, 7), "Door");
  EXPECT_EQ(Name(PropertyCommentTable, 9), "(none)");
}

TEST_F(HmNames, EachKindHasItsTable) {
  RestAfter("$HMNAME CSURF                 11\"Face\"\n");
  RestAfter("$HMNAME MAT                   12\"Steel\"\n");
  RestAfter("$HMNAME PROP                  13\"Shell\"\n");
  EXPECT_EQ(Name(SurfaceNameTable, 11), "Face");
  EXPECT_EQ(Name(MaterialCommentTable, 12), "Steel");
  EXPECT_EQ(Name(PropertyCommentTable, 13), "Shell");
  EXPECT_EQ(CountNames(), 3);
}

TEST_F(HmNames, KindsCountInAnyCase) {
  RestAfter("$HMNAME comp                   7\"Door\"\n");
  RestAfter("$HMNAME Mat                   12\"Steel\"\n");
  EXPECT_EQ(Name(PropertyNameTable, 7), "Door");
  EXPECT_EQ(Name(MaterialCommentTable, 12), "Steel");
}

TEST_F(HmNames, OtherKindsAreNotTakenAndNotPassed) {
  for (const std::string line : {"$HMNAME LOADCOL                 7\"Load\"\n", "$HMNAME\n", "$HMNAME COMPS 7\"Door\"\n"}) {
    EXPECT_EQ(RestAfter(line), line);
  }
  EXPECT_EQ(CountNames(), 0);
}

TEST_F(HmNames, TheIdIsTheLastEightCharactersOfTheHead) {
  RestAfter("$HMNAME COMP          1234567890\"Door\"\n");
  EXPECT_EQ(Name(PropertyNameTable, 34567890), "Door");
  RestAfter("$HMNAME COMP       7        \"Hood\"\n");
  EXPECT_EQ(CountNames(), 1) << "blank columns are no id";
  RestAfter("$HMNAME COMP       7       \"Hood\"\n");
  EXPECT_EQ(Name(PropertyNameTable, 7), "Hood") << "the 7 stands eight columns before the name";
}

TEST_F(HmNames, AHeadOfNoMoreThanEightCharactersHasNoId) {
  EXPECT_EQ(RestAfter("$H COMP7\"Door\"\nGRID\n"), "$H COMP7\"Door\"\nGRID\n") << "no kind";
  EXPECT_EQ(RestAfter("$HM MAT5\"Door\"\nGRID\n"), "$HM MAT5\"Door\"\nGRID\n") << "no kind";
  // Tab ends the head but also separates the kind, so a short head can come with a kind.
  EXPECT_EQ(RestAfter("$HMNAM\tMAT\t7\n"), "");
  EXPECT_EQ(RestAfter("12345678\tMAT\tSteel\n"), "");
  EXPECT_EQ(CountNames(), 0);
  RestAfter("$HMNAM\tCOMP\t7\n");
  RestAfter("123456789\tMAT\tSteel\n");
  EXPECT_EQ(Name(MaterialCommentTable, 23456789), "MAT") << "nine characters are enough";
  EXPECT_EQ(Name(PropertyNameTable, 7), "COMP") << "the third token is an id, the second one the name";
}

TEST_F(HmNames, ALineWithoutANameIsDropped) {
  EXPECT_EQ(RestAfter("$HMNAME COMP                   7\nGRID\n"), "GRID\n");
  EXPECT_EQ(RestAfter("$HMNAME COMP                   7\"\"\nGRID\n"), "GRID\n");
  EXPECT_EQ(CountNames(), 0);
}

TEST_F(HmNames, ANameMayHoldBlanks) {
  RestAfter("$HMNAME COMP                   7\"Left door, inner\"\n");
  EXPECT_EQ(Name(PropertyNameTable, 7), "Left door, inner");
}

TEST_F(HmNames, AComponentWinsOverAHeldNameAndOtherKindsDoNot) {
  RegisterPropertyName(7, "Plain", false);
  RestAfter("$HMNAME COMP                   7\"Door\"\n");
  EXPECT_EQ(Name(PropertyNameTable, 7), "Door");
  RestAfter("$HMNAME MAT                    7\"Steel\"\n");
  RestAfter("$HMNAME MAT                    7\"Tin\"\n");
  EXPECT_EQ(Name(MaterialCommentTable, 7), "Steel");
}

TEST_F(HmNames, OnTheLastLineWithoutLineFeedTheNameCountsAndTheCursorStays) {
  const std::string line = "$HMNAME COMP                   7\"Door\"";
  EXPECT_EQ(RestAfter(line), line);
  EXPECT_EQ(Name(PropertyNameTable, 7), "Door");
}

TEST_F(HmNames, ASetCommentNamesTheSetOfItsKind) {
  EXPECT_EQ(RestAfterSet("$HMSET         3        1 \"Bolts\"\nSET\n"), "SET\n");
  EXPECT_EQ(Name(NodeSetNameTable, 3), "Bolts");
  RestAfterSet("$HMSET         4        2 \"Shells\"\n");
  RestAfterSet("$HMSET         5        3 \"Face\"\n");
  EXPECT_EQ(Name(ElementSetNameTable, 4), "Shells");
  EXPECT_EQ(Name(SurfaceNameTable, 5), "Face");
  EXPECT_EQ(CountNames(), 3);
}

TEST_F(HmNames, ASetNameKeepsOnlyItsFirstWord) {
  RestAfterSet("$HMSET 3 1 \"Left bolts\"\n");
  EXPECT_EQ(Name(NodeSetNameTable, 3), "Left");
}

TEST_F(HmNames, ASetCommentWithoutNameKindOrIdIsPassedWithoutEffect) {
  EXPECT_EQ(RestAfterSet("$HMSET 3 1\nSET\n"), "SET\n");
  EXPECT_EQ(RestAfterSet("$HMSET 3\nSET\n"), "SET\n");
  EXPECT_EQ(RestAfterSet("$HMSET\nSET\n"), "SET\n");
  EXPECT_EQ(RestAfterSet("$HMSET 0 1 \"Bolts\"\nSET\n"), "SET\n");
  EXPECT_EQ(RestAfterSet("$HMSET 3 7 \"Bolts\"\nSET\n"), "SET\n");
  EXPECT_EQ(CountNames(), 0);
}

TEST_F(HmNames, ASetNameWithoutQuotesCarriesTheCarriageReturn) {
  RestAfterSet("$HMSET\t3\t1\tBolts\r\n");
  EXPECT_EQ(Name(NodeSetNameTable, 3), "Bolts\r");
}

}  // namespace
}  // namespace btz
