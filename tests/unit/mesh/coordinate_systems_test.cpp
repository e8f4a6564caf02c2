// Coordinate system cards: fields in either width, helper nodes, what the host is told, the record with its rotation, and the order of the list.
#include "mesh/coordinate_systems.h"

#include <gmock/gmock.h>

#include "tests/unit/mesh/mesh_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CoordinateSystemTest : public MeshTest {
 protected:
  explicit CoordinateSystemTest(const HostOptions& options = HostOptions()) : MeshTest(options) {
    // Nodes 1 to 4 at the origin and on the axes, the others on the x axis.
    MakeNode(1, {0.0, 0.0, 0.0});
    MakeNode(2, {1.0, 0.0, 0.0});
    MakeNode(3, {0.0, 1.0, 0.0});
    MakeNode(4, {0.0, 0.0, 1.0});
    for (std::int32_t id = 5; id <= 30; ++id) {
      MakeNode(id, {static_cast<double>(id), 0.0, 0.0});
    }
    Calls();
  }

  void MakeNode(std::int32_t id, const Vector& position) { model->CreateNode(id, position.data(), 0); }

  /// Reads the CORD2 card at the start of `text`; returns what stands at the cursor afterwards.
  std::string Read2(SystemKind kind, std::string_view text) {
    CardText card(text);
    ReadCord2Card(model, host.GetBoundaryStore(), kind, &card.cursor, list);
    return card.Rest();
  }

  /// The same with a CORD1 card.
  std::string Read1(SystemKind kind, std::string_view text) {
    CardText card(text);
    ReadCord1Card(model, host.GetBoundaryStore(), kind, &card.cursor, list);
    return card.Rest();
  }

  /// Records in list order. The walk leaves the list's cursor behind its end.
  std::vector<CsRecord> Records() {
    std::vector<CsRecord> records;
    WalkList<CsRecord>(list, [&](const CsRecord* record) { records.push_back(*record); });
    return records;
  }

  std::vector<std::int32_t> Ids() {
    std::vector<std::int32_t> ids;
    for (const CsRecord& record : Records()) {
      ids.push_back(record.id);
    }
    return ids;
  }

  /// Points of the helper nodes that the last card made.
  std::vector<std::string> HelperNodes() {
    std::vector<std::string> points;
    for (const std::string& call : Calls()) {
      if (call.find("MeshModel.CreateNode(") == 0) {
        const std::size_t from = call.find(", (") + 2;
        points.push_back(call.substr(from, call.find(')') + 1 - from));
      }
    }
    return points;
  }

  /// The nodes through which systems were made, in order.
  std::vector<std::string> SystemNodes() {
    std::vector<std::string> nodes;
    for (const std::string& call : Calls()) {
      const std::size_t at = call.find(".SetPoints");
      if (at != std::string::npos) {
        nodes.push_back(call.substr(at + 10));
      }
    }
    return nodes;
  }

  PooledList* list = &run.lists.coordinateSystems;
};

using Cord2Card = CoordinateSystemTest;
using Cord1Card = CoordinateSystemTest;

// CORD2: fields.

TEST_F(Cord2Card, MakesThreeHelperNodesAndTheSystem) {
  const std::string rest = Read2(rectangularSystem, Card8({"CORD2R", "5", "0", "1.0", "2.0", "3.0", "1.0", "2.0", "7.0", "+"}) + "\n" +
                                                        Card8({"+", "6.0", "2.0", "3.0"}) + "     \nNEXT\n");
  EXPECT_THAT(
      Calls(),
      ElementsAre("MeshModel.CreateNode(31, (1.0, 2.0, 3.0), 0) -> 0", "MeshModel.CreateNode(32, (1.0, 2.0, 7.0), 0) -> 0",
                  "MeshModel.CreateNode(33, (6.0, 2.0, 3.0), 0) -> 0", "BoundaryStore.CreateCoordinateSystem() -> CoordinateSystem#1",
                  "CoordinateSystem#1.SetPoints(n31, n32, n33)", "CoordinateSystem#1.SetModels(MeshModel, MeshModel, MeshModel)",
                  "CoordinateSystem#1.SetKind(1)", "CoordinateSystem#1.SetActive(1)", "CoordinateSystem#1.SetId(5)",
                  "CoordinateSystem#1.SetFromNodes(0)", "CoordinateSystem#1.SetName(\"RectCoordinate5\")"));
  EXPECT_EQ(rest, "\nNEXT\n");
  EXPECT_FALSE(folder.Exists("log.txt"));
}

TEST_F(Cord2Card, ACylindricalSystemHasItsKindAndName) {
  Read2(cylindricalSystem,
        Card8({"CORD2C", "12", "", "0.0", "0.0", "0.0", "0.0", "0.0", "1.0", "+"}) + "\n" + Card8({"+", "1.0", "0.0", "0.0"}) + "     \n");
  const std::vector<std::string> calls = Calls();
  ASSERT_EQ(calls.size(), 11u);
  EXPECT_EQ(calls[6], "CoordinateSystem#1.SetKind(2)");
  EXPECT_EQ(calls[8], "CoordinateSystem#1.SetId(12)");
  EXPECT_EQ(calls[10], "CoordinateSystem#1.SetName(\"CyliCoordinate12\")");
  EXPECT_EQ(Records()[0].kind, cylindricalSystem);
}

TEST_F(Cord2Card, LargeFieldsHaveSixteenColumns) {
  const std::string card = Card16({"CORD2R*", "5", "0", "1.0", "2.0"}) + "             *\n" + Card16({"*", "3.0", "1.0", "2.0", "7.0"}) +
                           "             *\n" + Card16({"*", "6.0", "2.0", "3.0"}) + "             \nNEXT\n";
  EXPECT_EQ(Read2(rectangularSystem, card), "\nNEXT\n");
  EXPECT_THAT(HelperNodes(), ElementsAre("(1.0, 2.0, 3.0)", "(1.0, 2.0, 7.0)", "(6.0, 2.0, 3.0)"));
  const std::string other = Card16({"CORD2C*", "6", "0", "1.0", "2.0"}) + "             \n" + Card16({"*", "3.0", "1.0", "2.0", "7.0"}) +
                            "             \n" + Card16({"*", "6.0", "2.0", "3.0"}) + "             \n";
  Read2(cylindricalSystem, other);
  EXPECT_THAT(HelperNodes(), ElementsAre("(1.0, 2.0, 3.0)", "(1.0, 2.0, 7.0)", "(6.0, 2.0, 3.0)"));
  EXPECT_THAT(Ids(), ElementsAre(6, 5));
}

TEST_F(Cord2Card, TheStarMustBelongToTheKindsOwnKeyword) {
  // Read as the other kind, the fields have 8 columns: id, reference, and five values in the first line, of which two are blank.
  Read2(cylindricalSystem, Card16({"CORD2R*", "5", "0", "1.0", "2.0"}) + "             \nGRID\n");
  EXPECT_THAT(Ids(), ElementsAre(5));
  EXPECT_THAT(HelperNodes(), ElementsAre("(0.0, 1.0, 2.0)", "(0.0, 0.0, 0.0)", "(0.0, 0.0, 0.0)"));
}

TEST_F(Cord2Card, LinesMayEndInCarriageReturnAndLineFeed) {
  Read2(rectangularSystem, Card8({"CORD2R", "5", "0", "1.0", "2.0", "3.0", "1.0", "2.0", "7.0", "+"}) + "\r\n" +
                               Card8({"+", "6.0", "2.0", "3.0"}) + "     \r\nGRID\r\n");
  EXPECT_THAT(HelperNodes(), ElementsAre("(1.0, 2.0, 3.0)", "(1.0, 2.0, 7.0)", "(6.0, 2.0, 3.0)"));
}

TEST_F(Cord2Card, TheReferenceSystemIsDropped) {
  Read2(rectangularSystem,
        Card8({"CORD2R", "4", "0", "9.0", "9.0", "9.0", "9.0", "9.0", "10.0", "+"}) + "\n" + Card8({"+", "9.0", "10.0", "9.0"}) + "    \n");
  Read2(rectangularSystem,
        Card8({"CORD2R", "5", "4", "1.0", "0.0", "0.0", "1.0", "0.0", "1.0", "+"}) + "\n" + Card8({"+", "2.0", "0.0", "0.0"}) + "     \n");
  const CsRecord record = Records()[0];
  EXPECT_EQ(record.id, 5);
  EXPECT_EQ(record.origin, (Vector{1.0, 0.0, 0.0}));
  EXPECT_EQ(record.rotation, (Rotation{1.0, 0.0, 0.0, 0.0, 1.0, 0.0, 0.0, 0.0, 1.0}));
}

TEST_F(Cord2Card, ABlankFieldTakesNoPlace) {
  // A1 is blank: A2 becomes the first value, and the last one is missing.
  const std::string rest = Read2(rectangularSystem, Card8({"CORD2R", "5", "0", "", "2.0", "3.0", "4.0", "5.0", "6.0", "+"}) + "\n" +
                                                        Card8({"+", "7.0", "8.0", "9.0"}) + "     \nGRID    1\n");
  EXPECT_THAT(HelperNodes(), ElementsAre("(2.0, 3.0, 4.0)", "(5.0, 6.0, 7.0)", "(8.0, 9.0, 0.0)"));
  EXPECT_EQ(Records()[0].origin, (Vector{2.0, 3.0, 4.0}));
  EXPECT_EQ(rest, "\nGRID    1\n");
}

TEST_F(Cord2Card, ACardKeywordEndsTheValues) {
  const std::string rest = Read2(rectangularSystem, Card8({"CORD2R", "5", "0", "1.0", "2.0"}) + "     \nCQUAD4  1\n");
  EXPECT_THAT(HelperNodes(), ElementsAre("(1.0, 2.0, 0.0)", "(0.0, 0.0, 0.0)", "(0.0, 0.0, 0.0)"));
  EXPECT_EQ(rest, "\nCQUAD4  1\n");
}

TEST_F(Cord2Card, OtherTextIsReadAsANumber) {
  // F, O, R and C are digits of the values 22, 31, 34 and 19; E begins an exponent.
  const std::string rest = Read2(rectangularSystem, Card8({"CORD2R", "5", "0", "1.0", "2.0", "3.0"}) + "     \n" +
                                                        Card8({"FORCE", "1", "2"}) + "       \nGRID    1\n");
  EXPECT_THAT(HelperNodes(), ElementsAre("(1.0, 2.0, 3.0)", "(25459.0, 1.0, 2.0)", "(0.0, 0.0, 0.0)"));
  EXPECT_EQ(rest, "\nGRID    1\n");
}

TEST_F(Cord2Card, TheNumericTestTakesFractions) {
  // As whole numbers these would be 0, and the star would make the first of them a marker that is stepped over.
  Read2(rectangularSystem, Card8({"CORD2R", "5", "0", ".5*", ".5E1", "3.0"}) + "     \nGRID\n");
  EXPECT_THAT(HelperNodes(), ElementsAre("(0.5, 5.0, 3.0)", "(0.0, 0.0, 0.0)", "(0.0, 0.0, 0.0)"));
}

TEST_F(Cord2Card, AnExponentWithoutItsLetterIsPassedOverAsAMark) {
  Read2(rectangularSystem, Card8({"CORD2R", "5", "0", "1.5+1", "2.0", "3.0", "4.0-1"}) + "   \nGRID\n");
  EXPECT_THAT(HelperNodes(), ElementsAre("(2.0, 3.0, 0.4)", "(0.0, 0.0, 0.0)", "(0.0, 0.0, 0.0)"));
}

TEST_F(Cord2Card, TheTextsEndEndsTheValues) {
  EXPECT_EQ(Read2(rectangularSystem, Card8({"CORD2R", "5", "0", "1.0", "2.0", "3.0", "1.0"})), "");
  EXPECT_THAT(HelperNodes(), ElementsAre("(1.0, 2.0, 3.0)", "(1.0, 0.0, 0.0)", "(0.0, 0.0, 0.0)"));
  EXPECT_EQ(Read2(rectangularSystem, "CORD2R"), "");
  EXPECT_THAT(Ids(), ElementsAre(0, 5));
}

TEST_F(Cord2Card, AnIdAtTheEndOfItsLineSwallowsTheLineEnd) {
  // The line feed becomes the column behind the id's field, a blank. The next line is then the reference and the first value.
  EXPECT_EQ(Read2(rectangularSystem, "CORD2R  12\nCQUAD  1\n"), "");
  EXPECT_THAT(Ids(), ElementsAre(12));
  EXPECT_THAT(HelperNodes(), ElementsAre("(1.0, 0.0, 0.0)", "(0.0, 0.0, 0.0)", "(0.0, 0.0, 0.0)"));
}

TEST_F(Cord2Card, OneCharacterBeforeTheLineFeedIsNoId) {
  // Neither id nor reference is read; the character becomes the column behind its field.
  EXPECT_EQ(Read2(rectangularSystem, "CORD2R  7\nCQUAD4  1\n"), " \nCQUAD4  1\n");
  EXPECT_THAT(Ids(), ElementsAre(0));
  EXPECT_EQ(Calls().back(), "CoordinateSystem#1.SetName(\"RectCoordinate0\")");
}

TEST_F(Cord2Card, ANegativeIdIsTakenAsItStands) {
  Read2(rectangularSystem, Card8({"CORD2R", "-3", "0", "0.0"}) + "     \nGRID\n");
  EXPECT_THAT(Ids(), ElementsAre(-3));
  EXPECT_EQ(Calls().back(), "CoordinateSystem#1.SetName(\"RectCoordinate-3\")");
}

// CORD2: the record.

TEST_F(Cord2Card, TheColumnsOfTheRotationAreTheAxes) {
  // Z along the global x, X along the global y, so Y runs along the global z.
  Read2(rectangularSystem,
        Card8({"CORD2R", "5", "0", "1.0", "2.0", "3.0", "9.0", "2.0", "3.0", "+"}) + "\n" + Card8({"+", "1.0", "4.0", "3.0"}) + "     \n");
  const CsRecord record = Records()[0];
  EXPECT_EQ(record.id, 5);
  EXPECT_EQ(record.kind, rectangularSystem);
  EXPECT_EQ(record.origin, (Vector{1.0, 2.0, 3.0}));
  EXPECT_EQ(record.translation, (Vector{1.0, 2.0, 3.0}));
  EXPECT_EQ(record.rotation, (Rotation{0.0, 0.0, 1.0,  //
                                       1.0, 0.0, 0.0,  //
                                       0.0, 1.0, 0.0}));
}

TEST_F(Cord2Card, AllPointsInOnePlaceLeaveZeroAxes) {
  Read2(rectangularSystem,
        Card8({"CORD2R", "5", "0", "1.0", "2.0", "3.0", "1.0", "2.0", "3.0", "+"}) + "\n" + Card8({"+", "4.0", "2.0", "3.0"}) + "     \n");
  EXPECT_EQ(Records()[0].rotation, Rotation{});
  EXPECT_EQ(Records()[0].translation, (Vector{1.0, 2.0, 3.0}));
}

TEST_F(Cord2Card, APointOfThePlaneAtTheOriginLeavesTwoZeroAxes) {
  Read2(rectangularSystem,
        Card8({"CORD2R", "5", "0", "1.0", "2.0", "3.0", "1.0", "2.0", "8.0", "+"}) + "\n" + Card8({"+", "1.0", "2.0", "3.0"}) + "     \n");
  EXPECT_EQ(Records()[0].rotation, (Rotation{0.0, 0.0, 0.0,  //
                                             0.0, 0.0, 0.0,  //
                                             0.0, 0.0, 1.0}));
}

TEST_F(Cord2Card, AnAxisThatRoundingSwallowsIsZero) {
  // At 1e16 the next number is 2 away: the host's point on the x axis falls back onto the origin.
  Read2(rectangularSystem, Card8({"CORD2R", "5", "0", "1.0E+16", "0.0", "0.0", "1.0E+16", "0.0", "1.0", "+"}) + "\n" +
                               Card8({"+", "2.0E+16", "0.0", "0.0"}) + "     \n");
  EXPECT_EQ(Records()[0].rotation, (Rotation{0.0, 0.0, 0.0,  //
                                             0.0, 1.0, 0.0,  //
                                             0.0, 0.0, 1.0}));
}

// CORD2: refusals.

TEST_F(Cord2Card, WithoutASystemTheHelperNodesStay) {
  host.Refusals().RefuseCall("BoundaryStore.CreateCoordinateSystem", 1);
  const std::string rest = Read2(rectangularSystem, Card8({"CORD2R", "5", "0", "1.0", "2.0", "3.0", "1.0", "2.0", "7.0", "+"}) + "\n" +
                                                        Card8({"+", "6.0", "2.0", "3.0"}) + "     \nNEXT\n");
  EXPECT_THAT(Calls(), ElementsAre("MeshModel.CreateNode(31, (1.0, 2.0, 3.0), 0) -> 0", "MeshModel.CreateNode(32, (1.0, 2.0, 7.0), 0) -> 0",
                                   "MeshModel.CreateNode(33, (6.0, 2.0, 3.0), 0) -> 0", "BoundaryStore.CreateCoordinateSystem() -> null"));
  EXPECT_THAT(Ids(), IsEmpty());
  EXPECT_EQ(rest, "\nNEXT\n");
  EXPECT_FALSE(folder.Exists("log.txt"));
}

TEST_F(Cord2Card, ARefusedHelperNodeLeavesNoAxes) {
  host.Refusals().RefuseCall("MeshModel.CreateNode", 2);
  Read2(rectangularSystem,
        Card8({"CORD2R", "5", "0", "1.0", "2.0", "3.0", "1.0", "2.0", "7.0", "+"}) + "\n" + Card8({"+", "6.0", "2.0", "3.0"}) + "     \n");
  EXPECT_THAT(SystemNodes(), ElementsAre("(n31, null, n32)"));
  EXPECT_EQ(Records()[0].rotation, Rotation{});
  EXPECT_EQ(Records()[0].translation, (Vector{1.0, 2.0, 3.0}));
}

class NullOnFailureTest : public CoordinateSystemTest {
 protected:
  static HostOptions Options() {
    HostOptions options;
    options.nullOnFailure = true;
    return options;
  }
  NullOnFailureTest() : CoordinateSystemTest(Options()) {}
};

TEST_F(NullOnFailureTest, AHostThatWritesNullIsSafeToo) {
  host.Refusals().RefuseCall("BoundaryStore.CreateCoordinateSystem", 1);
  host.Refusals().RefuseCall("CoordinateSystem.GetAxisPoints", 1);
  for (int i = 0; i < 2; ++i) {
    Read2(rectangularSystem, Card8({"CORD2R", "5", "0", "1.0", "2.0", "3.0", "1.0", "2.0", "7.0", "+"}) + "\n" +
                                 Card8({"+", "6.0", "2.0", "3.0"}) + "     \n");
  }
  Read1(rectangularSystem, Card8({"CORD1R", "6", "1", "99", "3"}) + "       \nGRID\n");
  ASSERT_THAT(Ids(), ElementsAre(5));
  EXPECT_EQ(Records()[0].rotation, Rotation{});
}

// CORD1: fixed format.

TEST_F(Cord1Card, MakesTheSystemThroughItsNodes) {
  const std::string rest = Read1(rectangularSystem, Card8({"CORD1R", "5", "1", "4", "2"}) + "       \nGRID    1\n");
  EXPECT_THAT(Calls(),
              ElementsAre("BoundaryStore.CreateCoordinateSystem() -> CoordinateSystem#1", "CoordinateSystem#1.SetPoints(n1, n4, n2)",
                          "CoordinateSystem#1.SetModels(MeshModel, MeshModel, MeshModel)", "CoordinateSystem#1.SetKind(1)",
                          "CoordinateSystem#1.SetActive(1)", "CoordinateSystem#1.SetId(5)", "CoordinateSystem#1.SetFromNodes(1)",
                          "CoordinateSystem#1.SetName(\"RectCoordinate5\")"));
  EXPECT_EQ(rest, "\nGRID    1\n");
}

TEST_F(Cord1Card, ACylindricalSystemHasItsKindAndName) {
  Read1(cylindricalSystem, Card8({"CORD1C", "12", "1", "4", "2"}) + "       \nGRID    1\n");
  const std::vector<std::string> calls = Calls();
  ASSERT_EQ(calls.size(), 8u);
  EXPECT_EQ(calls[3], "CoordinateSystem#1.SetKind(2)");
  EXPECT_EQ(calls[7], "CoordinateSystem#1.SetName(\"CyliCoordinate12\")");
  EXPECT_EQ(Records()[0].kind, cylindricalSystem);
}

TEST_F(Cord1Card, TheRecordHasTheFirstNodeAsItsOrigin) {
  Read1(rectangularSystem, Card8({"CORD1R", "5", "2", "20", "3"}) + "       \nGRID    1\n");
  // Z along the global x from (1, 0, 0); X is the part of (-1, 1, 0) across it, the global y; Y is the global z.
  const CsRecord record = Records()[0];
  EXPECT_EQ(record.origin, (Vector{1.0, 0.0, 0.0}));
  EXPECT_EQ(record.translation, (Vector{1.0, 0.0, 0.0}));
  EXPECT_EQ(record.rotation, (Rotation{0.0, 0.0, 1.0,  //
                                       1.0, 0.0, 0.0,  //
                                       0.0, 1.0, 0.0}));
}

TEST_F(Cord1Card, ASecondSystemOnTheCardIsMadeToo) {
  Read1(rectangularSystem, Card8({"CORD1R", "5", "1", "4", "2", "6", "2", "1", "3"}) + "       \nGRID    1\n");
  EXPECT_THAT(SystemNodes(), ElementsAre("(n1, n4, n2)", "(n2, n1, n3)"));
  EXPECT_THAT(Ids(), ElementsAre(5, 6));
}

TEST_F(Cord1Card, TheSecondSystemNeedsAllItsFields) {
  Read1(rectangularSystem, Card8({"CORD1R", "5", "1", "4", "2", "6", "2", "1"}) + "       \nGRID    1\n");
  Read1(rectangularSystem, Card8({"CORD1R", "7", "1", "4", "2", "0", "2", "1", "3"}) + "       \nGRID    1\n");
  Read1(rectangularSystem, Card8({"CORD1R", "8", "1", "4", "2", "6", "0", "1", "3"}) + "       \nGRID    1\n");
  Read1(rectangularSystem, Card8({"CORD1R", "9", "1", "4", "2", "6", "2", "0", "3"}) + "       \nGRID    1\n");
  EXPECT_THAT(Ids(), ElementsAre(5, 7, 8, 9));
}

TEST_F(Cord1Card, TheNodesOfAnIncompleteSecondSystemAreNotAskedFor) {
  for (const std::vector<std::string>& second :
       {std::vector<std::string>{"6", "0", "1", "3"}, {"6", "2", "0", "3"}, {"6", "2", "1", "0"}}) {
    std::vector<std::string> fields = {"CORD1R", "5", "1", "4", "2"};
    fields.insert(fields.end(), second.begin(), second.end());
    std::string asked;
    TraceSink questions(&asked, TraceSink::Coverage::All);
    host.SetTrace(&questions);
    Read1(rectangularSystem, Card8(fields) + "       \nGRID    1\n");
    host.SetTrace(&sink);
    std::vector<std::string> nodes;
    for (const std::string& line : LinesOf(asked)) {
      if (line.find("MeshModel.GetNode(") == 0) {
        nodes.push_back(line);
      }
    }
    EXPECT_THAT(nodes, ElementsAre("MeshModel.GetNode(1) -> n1", "MeshModel.GetNode(4) -> n4", "MeshModel.GetNode(2) -> n2"));
  }
}

TEST_F(Cord1Card, EachSystemStandsForItself) {
  Read1(rectangularSystem, Card8({"CORD1R", "5", "1", "4", "99", "6", "2", "1", "3"}) + "       \nGRID    1\n");
  Read1(rectangularSystem, Card8({"CORD1R", "7", "1", "4", "2", "8", "2", "99", "3"}) + "       \nGRID    1\n");
  EXPECT_THAT(Ids(), ElementsAre(6, 7));
  EXPECT_FALSE(folder.Exists("log.txt"));
}

TEST_F(Cord1Card, AMissingNodeMakesNothing) {
  Read1(rectangularSystem, Card8({"CORD1R", "5", "99", "4", "2"}) + "       \nGRID    1\n");
  Read1(rectangularSystem, Card8({"CORD1R", "5", "1", "99", "2"}) + "       \nGRID    1\n");
  Read1(rectangularSystem, Card8({"CORD1R", "5", "1", "4", "99"}) + "      \nGRID    1\n");
  EXPECT_THAT(Calls(), IsEmpty());
  EXPECT_THAT(Ids(), IsEmpty());
  EXPECT_FALSE(folder.Exists("log.txt"));
}

TEST_F(Cord1Card, LargeFieldsHaveSixteenColumns) {
  const std::string rest = Read1(rectangularSystem, Card16({"CORD1R*", "5", "1", "4", "2", "*"}) + "\n" +
                                                        Card16({"*", "6", "2", "1", "3"}) + "               \nGRID    1\n");
  Read1(cylindricalSystem, Card16({"CORD1C*", "7", "1", "4", "2"}) + "               \nGRID    1\n");
  EXPECT_THAT(SystemNodes(), ElementsAre("(n1, n4, n2)", "(n2, n1, n3)", "(n1, n4, n2)"));
  EXPECT_THAT(Ids(), ElementsAre(5, 6, 7));
  EXPECT_EQ(rest, "\nGRID    1\n");
}

TEST_F(Cord1Card, ALargeFieldIsTakenAsAWhole) {
  // The last node's two digits stand on both sides of the field's middle.
  const std::string lastNode = "       13       ";
  Read1(rectangularSystem, Card16({"CORD1R*", "5", "1", "4", lastNode}) + "\nGRID    1\n");
  Read1(cylindricalSystem, Card16({"CORD1C*", "6", "1", "4", lastNode}) + "\nGRID    1\n");
  EXPECT_THAT(SystemNodes(), ElementsAre("(n1, n4, n13)", "(n1, n4, n13)"));
}

TEST_F(Cord1Card, ABlankFieldTakesNoPlace) {
  Read1(rectangularSystem, Card8({"CORD1R", "5", "", "1", "4", "2"}) + "       \nGRID    1\n");
  EXPECT_THAT(SystemNodes(), ElementsAre("(n1, n4, n2)"));
}

TEST_F(Cord1Card, TheNumericTestTakesFractions) {
  // A fraction with a star is no marker but takes a place, with the id 0.
  Read1(rectangularSystem, Card8({"CORD1R", "5", ".9*", "1", "4", "2"}) + "       \nGRID    1\n");
  EXPECT_THAT(Calls(), IsEmpty());
}

TEST_F(Cord1Card, WithoutAnIdNothingIsMade) {
  EXPECT_EQ(Read1(rectangularSystem, Card8({"CORD1R", "0", "1", "4", "2"}) + "       \n"), "1       4       2       \n");
  EXPECT_EQ(Read1(rectangularSystem, Card8({"CORD1R", "", "1", "4", "2"}) + "       \n"), "1       4       2       \n");
  EXPECT_THAT(Calls(), IsEmpty());
}

TEST_F(Cord1Card, OneCharacterBeforeTheLineFeedIsNoId) {
  EXPECT_EQ(Read1(rectangularSystem, "CORD1R  5\nGRID    1\n"), " \nGRID    1\n");
  EXPECT_THAT(Calls(), IsEmpty());
}

TEST_F(Cord1Card, OneCharacterBeforeTheLineFeedIsNoNode) {
  // The third node's place is used up all the same, with 0.
  EXPECT_EQ(Read1(rectangularSystem, Card8({"CORD1R", "5", "1", "4", "2"}) + "\nGRID    21\n"), " \nGRID    21\n");
  EXPECT_THAT(Calls(), IsEmpty());
}

TEST_F(Cord1Card, OfTwoOrMoreDigitsTheLastNodeMayEndItsLine) {
  // The line feed becomes the column behind the node's field.
  EXPECT_EQ(Read1(rectangularSystem, Card8({"CORD1R", "5", "1", "4", "13"}) + "\nGRID    21\n"), " GRID    21\n");
  EXPECT_THAT(SystemNodes(), ElementsAre("(n1, n4, n13)"));
}

TEST_F(Cord1Card, TheCarriageReturnOfAFullLineIsNoId) {
  // The place of the next id is used up by the carriage return alone, and so is that of the nodes behind it.
  EXPECT_EQ(Read1(rectangularSystem, Card8({"CORD1R", "5", "1", "4", "2"}) + "       \r\nGRID    1\r\n"), "\r\nGRID    1\r\n");
  EXPECT_THAT(SystemNodes(), ElementsAre("(n1, n4, n2)"));
}

TEST_F(Cord1Card, OtherTextBehindTheCardIsReadAsNumbers) {
  // The line feed counts as an id of 0 and becomes the x eight columns on; then two more fields of the comment are 0, then the keyword.
  EXPECT_EQ(Read1(rectangularSystem, Card8({"CORD1R", "5", "1", "4", "2"}) + "       \n$ commex$ text$\nGRID    1\n"), "\nGRID    1\n");
  EXPECT_THAT(Ids(), ElementsAre(5));
}

TEST_F(Cord1Card, TheEndOfTheDeckBehindTheCardIsLeft) {
  EXPECT_EQ(Read1(rectangularSystem, Card8({"CORD1R", "5", "1", "4", "2"}) + "       \nENDDATA\n"), "\nENDDATA\n");
  EXPECT_EQ(Read1(rectangularSystem, Card8({"CORD1R", "6", "1", "4", "2"})), "");
  EXPECT_THAT(Ids(), ElementsAre(5, 6));
}

// CORD1: free format.

TEST_F(Cord1Card, FreeFormat) {
  EXPECT_EQ(Read1(rectangularSystem, "CORD1R,5,1,4,2\nCQUAD4  1\n"), "CQUAD4  1\n");
  EXPECT_EQ(Read1(cylindricalSystem, "CORD1C, 6 , 2 , 1 , 3\nCQUAD4  1\n"), "CQUAD4  1\n");
  EXPECT_THAT(SystemNodes(), ElementsAre("(n1, n4, n2)", "(n2, n1, n3)"));
  EXPECT_EQ(Records()[0].kind, rectangularSystem);
  EXPECT_EQ(Records()[1].kind, cylindricalSystem);
}

TEST_F(Cord1Card, FreeFormatWithASecondSystem) {
  Read1(rectangularSystem, "CORD1R,5,1,4,2,6,2,1,3\r\n");
  EXPECT_THAT(SystemNodes(), ElementsAre("(n1, n4, n2)", "(n2, n1, n3)"));
  EXPECT_THAT(Ids(), ElementsAre(5, 6));
  Read1(rectangularSystem, "CORD1R,7,1,4,2,8,2,1\n");
  EXPECT_THAT(Ids(), ElementsAre(7, 5, 6));
}

TEST_F(Cord1Card, AnEmptyFreeFieldTakesNoPlace) {
  Read1(rectangularSystem, "CORD1R,,5,1,,4,2\n");
  EXPECT_THAT(SystemNodes(), ElementsAre("(n1, n4, n2)"));
  EXPECT_THAT(Ids(), ElementsAre(5));
}

TEST_F(Cord1Card, AFreeFormatIdMayBeZero) {
  Read1(rectangularSystem, "CORD1R,0,1,4,2\n");
  EXPECT_THAT(Ids(), ElementsAre(0));
}

TEST_F(Cord1Card, FreeFormatOnTheLastLineLeavesTheCursor) {
  EXPECT_EQ(Read1(rectangularSystem, "CORD1R,5,1,4,2"), "CORD1R,5,1,4,2");
  EXPECT_THAT(Ids(), ElementsAre(5));
}

TEST_F(Cord1Card, TooFewFreeFieldsMakeNothing) {
  Read1(rectangularSystem, "CORD1R,5,1,4\n");
  EXPECT_THAT(Calls(), IsEmpty());
}

// CORD1: refusals.

TEST_F(Cord1Card, WithoutASystemThereIsNoRecord) {
  host.Refusals().RefuseCall("BoundaryStore.CreateCoordinateSystem", 1);
  Read1(rectangularSystem, Card8({"CORD1R", "5", "1", "4", "2", "6", "2", "1", "3"}) + "       \nGRID    1\n");
  EXPECT_THAT(Ids(), ElementsAre(6));
}

TEST_F(Cord1Card, WithoutAStoreOrANodeNothingIsMade) {
  MeshNode* node = nullptr;
  model->GetNode(1, &node);
  CreateCord1System(model, nullptr, 5, rectangularSystem, node, node, node, list);
  CreateCord1System(model, host.GetBoundaryStore(), 5, rectangularSystem, nullptr, node, node, list);
  CreateCord1System(model, host.GetBoundaryStore(), 5, rectangularSystem, node, nullptr, node, list);
  CreateCord1System(model, host.GetBoundaryStore(), 5, rectangularSystem, node, node, nullptr, list);
  EXPECT_THAT(Calls(), IsEmpty());
  EXPECT_THAT(Ids(), IsEmpty());
}

TEST_F(Cord1Card, ASphericalSystemHasItsName) {
  MeshNode* node = nullptr;
  model->GetNode(1, &node);
  CreateCord1System(model, host.GetBoundaryStore(), 5, sphericalSystem, node, node, node, list);
  EXPECT_EQ(Calls().back(), "CoordinateSystem#1.SetName(\"SpheCoordinate5\")");
}

// The order of the list.

TEST_F(CoordinateSystemTest, Cord2GoesToTheHeadOfTheListAndCord1BehindTheLastOneMade) {
  const std::string behind = Card8({"", "0", "0.0", "0.0"}) + "     \nGRID\n";
  const auto cord2 = [&](const char* id) { Read2(rectangularSystem, Card8({"CORD2R", id}) + behind); };
  const auto cord1 = [&](const char* id) { Read1(rectangularSystem, Card8({"CORD1R", id, "1", "4", "2"}) + "       \nGRID    1\n"); };
  cord1("11");
  cord1("12");
  cord2("13");
  cord1("14");
  cord1("15");
  cord2("16");
  cord2("17");
  cord1("18");
  EXPECT_THAT(Ids(), ElementsAre(17, 18, 16, 13, 14, 15, 11, 12));
}

}  // namespace
}  // namespace btz::test
