// The stage that makes host pressures of the sets: on which parts, with which field, under which name, and what a refusing host changes.
#include "loads/pressure_loads.h"

#include <string>

#include "loads/pressure_fixture.h"

namespace btz {
namespace {

using test::ExpectedSplit;
using test::Ids;
using test::Joined;
using testing::ElementsAre;
using testing::IsEmpty;

using Lines = std::vector<std::string>;

/// The calls that make a pressure.
Lines ExpectedPressure(const std::string& number, const std::string& value, const std::string& parts, const std::string& field,
                       const std::string& name) {
  const std::string object = "Pressure#" + number;
  return {"BoundaryStore.CreatePressure() -> 0 " + object, object + ".SetPressure(" + value + ")", object + ".SetParts([" + parts + "])",
          object + ".SetField(" + field + ", 0)", object + ".SetName(\"" + name + "\")"};
}

/// The calls that make a field of positions and values.
Lines ExpectedRows(const std::string& number, const std::vector<std::string>& rows) {
  const std::string object = "Field#" + number;
  std::string all;
  for (const std::string& row : rows) {
    all += (all.empty() ? "[" : ", [") + row + "]";
  }
  return {"CurveStore.CreateField() -> " + object, object + ".SetQuantity(\"XYZ\")", object + ".SetColumnCount(4)",
          object + ".SetRowCount(" + std::to_string(rows.size()) + ")", object + ".SetRows([" + all + "])"};
}

class PressureLoads : public test::PressuresTest {
 protected:
  /// What is filed for a set of loads: numbers of pressures, counted from 1; 0 for what is none.
  std::vector<std::size_t> Filed(std::int32_t setId) const {
    std::vector<std::size_t> numbers;
    LoadSetRecord* record = FindLoadSet(setId, loadSet);
    WalkList<Entity>(record == nullptr ? nullptr : &record->items, [&](const Entity* item) {
      std::size_t number = host.Boundary().pressures.size();
      while (number != 0 && EntityOf(number) != item) {
        --number;
      }
      numbers.push_back(number);
    });
    return numbers;
  }
};

/// Quadrilaterals 10 and 11 and triangle 12 side by side in part 7, along x:
///
///     4 --- 3 --- 6
///     | 10  | 11  | \ 12
///     1 --- 2 --- 5 - 7
class ShellPressures : public PressureLoads {
 protected:
  ShellPressures() {
    MakeNode(1, 0.0, 0.0);
    MakeNode(2, 2.0, 0.0);
    MakeNode(3, 2.0, 2.0);
    MakeNode(4, 0.0, 2.0);
    MakeNode(5, 4.0, 0.0);
    MakeNode(6, 4.0, 2.0);
    MakeNode(7, 7.0, 1.0);
    Make(10, elementQuad4, {1, 2, 3, 4}, 7);
    Make(11, elementQuad4, {2, 5, 6, 3}, 7);
    Make(12, elementTria3, {5, 7, 6}, 7);
  }

  /// The field of the first set and the pressure on all three shells.
  static Lines OnAllWithRows(const std::vector<std::string>& rows) {
    return Joined({ExpectedRows("1", rows), ExpectedPressure("1", "1.0", "TopoFace#1", "Field#1", "Pressure1")});
  }
};

TEST_F(ShellPressures, WithoutSetsThereIsNothing) { EXPECT_THAT(Create(), IsEmpty()); }

TEST_F(ShellPressures, OfOneValueAreOnePressureWithoutAField) {
  Read("PLOAD4  5       10      2.5\n");
  Read("PLOAD4  5       11      2.5\n");
  Read("PLOAD4  5       12      2.5\n");
  EXPECT_EQ(Create(), ExpectedPressure("1", "2.5", "TopoFace#1", "null", "Pressure1"));
  EXPECT_EQ(nameNumber, 2);
  EXPECT_THAT(Filed(5), ElementsAre(1U));
}

TEST_F(ShellPressures, OnSomeShellsAreCutOut) {
  Card("5|11|2.5");
  EXPECT_EQ(Create(), Joined({ExpectedSplit("FaceMesh#1", "8", "MeshPart#1", "TopoFace#2", "FaceMesh#2"),
                              ExpectedPressure("1", "2.5", "TopoFace#2", "null", "Pressure1")}));
  EXPECT_EQ(PartsOfPressure(1), (std::vector<Ids>{{11}}));
}

TEST_F(ShellPressures, OfSeveralPartsAreOnePressure) {
  Make(13, elementTria3, {1, 2, 3}, 8);
  Card("5|13|2.5");
  Card("5|10|2.5");
  Card("5|12|2.5");
  EXPECT_EQ(Create(), Joined({ExpectedSplit("FaceMesh#2", "9", "MeshPart#1", "TopoFace#3", "FaceMesh#3"),
                              ExpectedPressure("1", "2.5", "TopoFace#2, TopoFace#3", "null", "Pressure1")}));
}

TEST_F(ShellPressures, OfDifferentValuesAreAFieldOfCentres) {
  Card("5|10|2.0");
  Card("5|11|3.0");
  Card("5|12|4.0");
  EXPECT_EQ(Create(), OnAllWithRows({"1.0, 1.0, 0.0, 2.0", "3.0, 1.0, 0.0, 3.0", "5.0, 1.0, 0.0, 4.0"}));
}

TEST_F(ShellPressures, TheFieldComesBeforeThePartsAreCut) {
  Card("5|10|2.0");
  Card("5|11|3.0");
  EXPECT_EQ(Create(), Joined({ExpectedRows("1", {"1.0, 1.0, 0.0, 2.0", "3.0, 1.0, 0.0, 3.0"}),
                              ExpectedSplit("FaceMesh#1", "8", "MeshPart#1", "TopoFace#2", "FaceMesh#2"),
                              ExpectedPressure("1", "1.0", "TopoFace#2", "Field#1", "Pressure1")}));
}

// Each corner takes the value of the first element that reaches it; a triangle has no fourth.
TEST_F(ShellPressures, OfDifferentCornersHaveARowForEachCorner) {
  Card("5|10|1.0|2.0|3.0|4.0");
  Card("5|11|5.0|6.0|7.0|8.0");
  Card("5|12|9.0|10.0|11.0|12.0");
  EXPECT_EQ(Create(), OnAllWithRows({"0.0, 0.0, 0.0, 1.0", "2.0, 0.0, 0.0, 2.0", "2.0, 2.0, 0.0, 3.0", "0.0, 2.0, 0.0, 4.0",
                                     "4.0, 0.0, 0.0, 6.0", "4.0, 2.0, 0.0, 7.0", "7.0, 1.0, 0.0, 10.0"}));
}

TEST_F(ShellPressures, AUniformShellLeavesItsCornersToItsNeighbours) {
  Card("5|10|1.0|2.0|3.0|4.0");
  Card("5|11|5.0");
  Card("5|12|6.0|7.0|8.0|9.0");
  EXPECT_EQ(Create(), OnAllWithRows({"0.0, 0.0, 0.0, 1.0", "2.0, 0.0, 0.0, 2.0", "2.0, 2.0, 0.0, 3.0", "0.0, 2.0, 0.0, 4.0",
                                     "3.0, 1.0, 0.0, 5.0", "4.0, 0.0, 0.0, 6.0", "7.0, 1.0, 0.0, 7.0", "4.0, 2.0, 0.0, 8.0"}));
}

// Required: a card that ends behind P1 has 0 at its other corners once the set is mixed.
TEST_F(ShellPressures, CardsThatEndBehindP1AreNotUniform) {
  Read("PLOAD4  5       10      2.0\n");
  Read("PLOAD4  5       11      3.0\n");
  Card("5|12|4.0");
  EXPECT_EQ(Create(), OnAllWithRows({"0.0, 0.0, 0.0, 2.0", "2.0, 0.0, 0.0, 0.0", "2.0, 2.0, 0.0, 0.0", "0.0, 2.0, 0.0, 0.0",
                                     "4.0, 0.0, 0.0, 0.0", "4.0, 2.0, 0.0, 0.0", "5.0, 1.0, 0.0, 4.0"}));
}

TEST_F(ShellPressures, OfEqualValuesButTheFourthAreAtOddsInAMixedSetOnly) {
  Card("5|10|1.0|1.0|1.0|9.0");
  Card("6|10|1.0|1.0|1.0|9.0");
  Card("6|11|2.0");
  EXPECT_EQ(Create(), Joined({ExpectedSplit("FaceMesh#1", "8", "MeshPart#1", "TopoFace#2", "FaceMesh#2"),
                              ExpectedPressure("1", "1.0", "TopoFace#2", "null", "Pressure1"),
                              ExpectedRows("1", {"0.0, 0.0, 0.0, 1.0", "2.0, 0.0, 0.0, 1.0", "2.0, 2.0, 0.0, 1.0", "0.0, 2.0, 0.0, 9.0",
                                                 "3.0, 1.0, 0.0, 2.0"}),
                              ExpectedSplit("FaceMesh#1", "9", "MeshPart#1", "TopoFace#3", "FaceMesh#3"),
                              ExpectedPressure("2", "1.0", "TopoFace#2, TopoFace#3", "Field#1", "Pressure2")}));
}

TEST_F(ShellPressures, EachSetHasRowsOfItsOwn) {
  for (const char* set : {"5", "6"}) {
    for (const char* shell : {"10", "11", "12"}) {
      Card(std::string(set) + "|" + shell + "|1.0|2.0|3.0|4.0");
    }
  }
  const Lines rows = {"0.0, 0.0, 0.0, 1.0", "2.0, 0.0, 0.0, 2.0", "2.0, 2.0, 0.0, 3.0", "0.0, 2.0, 0.0, 4.0",
                      "4.0, 0.0, 0.0, 2.0", "4.0, 2.0, 0.0, 3.0", "7.0, 1.0, 0.0, 2.0"};
  EXPECT_EQ(Create(), Joined({ExpectedRows("1", rows), ExpectedPressure("1", "1.0", "TopoFace#1", "Field#1", "Pressure1"),
                              ExpectedRows("2", rows), ExpectedPressure("2", "1.0", "TopoFace#1", "Field#2", "Pressure2")}));
}

TEST_F(ShellPressures, OneAfterTheOtherGoOnCoveringWhatTheyCovered) {
  Card("5|10|2.0");
  Card("5|11|2.0");
  Card("6|11|3.0");
  Card("6|12|3.0");
  Card("7|10|4.0");
  Card("7|11|4.0");
  Card("7|12|4.0");
  EXPECT_EQ(Create(), Joined({ExpectedSplit("FaceMesh#1", "8", "MeshPart#1", "TopoFace#2", "FaceMesh#2"),
                              ExpectedPressure("1", "2.0", "TopoFace#2", "null", "Pressure1"),
                              ExpectedSplit("FaceMesh#2", "9", "MeshPart#1", "TopoFace#3", "FaceMesh#3"),
                              ExpectedPressure("2", "3.0", "TopoFace#3, TopoFace#1", "null", "Pressure2"),
                              ExpectedPressure("3", "4.0", "TopoFace#2, TopoFace#3, TopoFace#1", "null", "Pressure3")}));
  EXPECT_EQ(PartsOfPressure(1), (std::vector<Ids>{{10}, {11}}));
  EXPECT_EQ(PartsOfPressure(2), (std::vector<Ids>{{11}, {12}}));
}

TEST_F(ShellPressures, SetsComeInTheOrderOfTheirTable) {
  for (const char* set : {"9", "1002", "1", "2002", "0", "1010"}) {
    for (const char* shell : {"10", "11", "12"}) {
      Card(std::string(set) + "|" + shell + "|" + set + ".0");
    }
  }
  const std::string all = "TopoFace#1";
  EXPECT_EQ(Create(),
            Joined({ExpectedPressure("1", "2002.0", all, "null", "Pressure1"), ExpectedPressure("2", "0.0", all, "null", "Pressure2"),
                    ExpectedPressure("3", "1002.0", all, "null", "Pressure3"), ExpectedPressure("4", "1.0", all, "null", "Pressure4"),
                    ExpectedPressure("5", "9.0", all, "null", "Pressure5"), ExpectedPressure("6", "1010.0", all, "null", "Pressure6")}));
  EXPECT_THAT(Filed(1002), ElementsAre(3U));
  EXPECT_THAT(Filed(0), ElementsAre(2U));
}

TEST_F(ShellPressures, NamesGoOnFromTheNumberGiven) {
  nameNumber = 41;
  Card("5|10|2.0");
  EXPECT_EQ(Create().back(), "Pressure#1.SetName(\"Pressure41\")");
  EXPECT_EQ(nameNumber, 42);
}

TEST_F(ShellPressures, AShellNamedTwiceCountsOnce) {
  for (const char* shell : {"10", "11", "10", "12"}) {
    Card(std::string("5|") + shell + "|2.0");
  }
  EXPECT_EQ(Create(), ExpectedPressure("1", "2.0", "TopoFace#1", "null", "Pressure1"));
}

// Required: cards behind the first whose element is missing are lost, but have been compared.
TEST_F(ShellPressures, AMissingElementEndsItsSet) {
  Card("5|10|2.0");
  Card("5|99|3.0");
  Card("5|11|4.0");
  EXPECT_EQ(Create(),
            Joined({ExpectedRows("1", {"1.0, 1.0, 0.0, 2.0"}), ExpectedSplit("FaceMesh#1", "8", "MeshPart#1", "TopoFace#2", "FaceMesh#2"),
                    ExpectedPressure("1", "1.0", "TopoFace#2", "Field#1", "Pressure1")}));
  EXPECT_EQ(PartsOfPressure(1), (std::vector<Ids>{{10}}));
}

TEST_F(ShellPressures, ASetThatBeginsWithAMissingElementIsNone) {
  Card("5|99|2.0");
  Card("5|10|3.0");
  EXPECT_THAT(Create(), IsEmpty());
  EXPECT_THAT(Filed(5), IsEmpty());
  EXPECT_EQ(nameNumber, 1);
}

TEST_F(ShellPressures, ARefusedFieldGivesItsSetUp) {
  host.Refusals().RefuseCall("CurveStore.CreateField", 1);
  Card("5|10|2.0");
  Card("5|11|3.0");
  for (const char* shell : {"10", "11", "12"}) {
    Card(std::string("6|") + shell + "|7.0");
  }
  EXPECT_EQ(Create(), Joined({{"CurveStore.CreateField() -> null"}, ExpectedPressure("1", "7.0", "TopoFace#1", "null", "Pressure1")}));
  EXPECT_THAT(Filed(5), IsEmpty());
  EXPECT_THAT(Filed(6), ElementsAre(1U));
}

TEST_F(ShellPressures, ARefusedPressureLeavesItsFieldAndParts) {
  host.Refusals().RefuseCall("BoundaryStore.CreatePressure", 1);
  Card("5|10|2.0");
  Card("5|11|3.0");
  Card("6|12|7.0");
  EXPECT_EQ(Create(), Joined({ExpectedRows("1", {"1.0, 1.0, 0.0, 2.0", "3.0, 1.0, 0.0, 3.0"}),
                              ExpectedSplit("FaceMesh#1", "8", "MeshPart#1", "TopoFace#2", "FaceMesh#2"),
                              {"BoundaryStore.CreatePressure() -> 1"},
                              ExpectedPressure("1", "7.0", "TopoFace#1", "null", "Pressure1")}));
  EXPECT_THAT(Filed(5), IsEmpty());
}

TEST_F(ShellPressures, APressureThatIsNotHandedOutIsRefusedToo) {
  host.Refusals().RefuseCall("BoundaryStore.CreatePressure", 1, memory::Refusal::EmptySuccess);
  Card("5|10|2.0");
  EXPECT_EQ(Create().back(), "BoundaryStore.CreatePressure() -> 0");
  EXPECT_THAT(Filed(5), IsEmpty());
  EXPECT_EQ(nameNumber, 1);
}

TEST_F(ShellPressures, WithoutAPartThereIsNoPressure) {
  host.Refusals().RefuseCall("MeshModel.CreatePart", 1);
  Card("5|10|2.0");
  EXPECT_THAT(Create(), ElementsAre("FaceMesh#1.Rebuild()", "MeshModel.CreatePart(2, 8, MeshPart#1) -> null"));
  EXPECT_THAT(Filed(5), IsEmpty());
}

TEST_F(ShellPressures, MidSideNodesHaveNoRows) {
  for (std::int32_t id = 21; id <= 26; ++id) {
    MakeNode(id, id, 5.0);
  }
  Make(20, elementTria6, {21, 22, 23, 24, 25, 26}, 9);
  Card("5|20|1.0|2.0|3.0|4.0");
  EXPECT_EQ(Create(), Joined({ExpectedRows("1", {"21.0, 5.0, 0.0, 1.0", "22.0, 5.0, 0.0, 2.0", "23.0, 5.0, 0.0, 3.0"}),
                              ExpectedPressure("1", "1.0", "TopoFace#2", "Field#1", "Pressure1")}));
}

/// Hexahedra 20 and 21 side by side along x, wedge 22, pyramid 23 and tetrahedron 24 apart from them, all in part 8. No shells.
///
///        8 ----- 7 ----- 12
///      5 ----- 6 ----- 11       z = 2
///        4 ----- 3 ----- 10
///      1 ----- 2 ----- 9        z = 0
class SolidPressures : public PressureLoads {
 protected:
  SolidPressures() {
    MakeNode(1, 0.0, 0.0);
    MakeNode(2, 2.0, 0.0);
    MakeNode(3, 2.0, 2.0);
    MakeNode(4, 0.0, 2.0);
    MakeNode(5, 0.0, 0.0, 2.0);
    MakeNode(6, 2.0, 0.0, 2.0);
    MakeNode(7, 2.0, 2.0, 2.0);
    MakeNode(8, 0.0, 2.0, 2.0);
    MakeNode(9, 4.0, 0.0);
    MakeNode(10, 4.0, 2.0);
    MakeNode(11, 4.0, 0.0, 2.0);
    MakeNode(12, 4.0, 2.0, 2.0);
    for (std::int32_t id = 31; id <= 59; ++id) {
      MakeNode(id, id, 0.0, id % 2);
    }
    Make(20, elementHexa8, {1, 2, 3, 4, 5, 6, 7, 8}, 8);
    Make(21, elementHexa8, {2, 9, 10, 3, 6, 11, 12, 7}, 8);
    Make(22, elementWedge6, {31, 32, 33, 34, 35, 36}, 8);
    Make(23, elementPyramid5, {41, 42, 43, 44, 45}, 8);
    Make(24, elementTetra4, {51, 52, 53, 54}, 8);
  }

  /// Reads the cards into set 5 and gives the node ids of the faces that its pressure covers, in the order of the new part.
  std::vector<Ids> FacesOf(const std::vector<std::string>& cards) {
    for (const std::string& card : cards) {
      Card("5|" + card);
    }
    MakeFaces();
    Create();
    std::vector<Ids> faces;
    WalkList<MeshPart>(ListOfPressure(1), [&](MeshPart* part) {
      FaceMesh* mesh = nullptr;
      static_cast<TopoFace*>(part)->GetMesh(&mesh);
      PooledList* list = nullptr;
      mesh->GetElements(&list);
      WalkList<MeshElement>(list, [&](const MeshElement* face) {
        faces.emplace_back();
        for (std::int32_t i = 0; i < TopologyOf(ElementCornerCount, face->typeIndex); ++i) {
          faces.back().push_back(face->nodes[i]->id);
        }
      });
    });
    return faces;
  }

  /// The rows of the field that the cards of set 5 make; empty without a field.
  std::string RowsOf(const std::vector<std::string>& cards) {
    for (const std::string& card : cards) {
      Card("5|" + card);
    }
    MakeFaces();
    for (const std::string& call : Create()) {
      const std::string head = "Field#1.SetRows([";
      if (call.find(head) == 0) {
        return call.substr(head.size(), call.size() - head.size() - 2);
      }
    }
    return "";
  }
};

TEST_F(SolidPressures, OfOneValueAreOnePressureOnThePartOfTheFaces) {
  Card("5|20|2.5||||5|7");
  Card("5|21|2.5||||6|12");
  MakeFaces();
  EXPECT_EQ(Create(), Joined({ExpectedSplit("FaceMesh#1", "9", "MeshPart#1", "TopoFace#2", "FaceMesh#2"),
                              ExpectedPressure("1", "2.5", "TopoFace#2", "null", "Pressure1")}));
  EXPECT_EQ(PartsOfPressure(1), (std::vector<Ids>{{21, 20}})) << "3 buckets: 20 in 2, 21 in 0";
  EXPECT_THAT(Filed(5), ElementsAre(1U));
}

TEST_F(SolidPressures, LieOnTheFaceOfTheTwoNodes) {
  EXPECT_EQ(FacesOf({"20|1.0||||1|6", "20|1.0||||8|3", "20|1.0||||1|8", "20|1.0||||2|4", "20|1.0||||8|6"}),
            (std::vector<Ids>{{1, 2, 6, 5}, {3, 4, 8, 7}, {1, 5, 8, 4}, {1, 4, 3, 2}, {5, 6, 7, 8}}));
}

TEST_F(SolidPressures, OnAWedgeLieOnATriangleOfOneNodeOrAQuadrilateralOfTwo) {
  EXPECT_EQ(FacesOf({"22|1.0||||33", "22|1.0||||34", "22|1.0||||36|32", "22|1.0||||31|36", "22|1.0||||32|34"}),
            (std::vector<Ids>{{31, 33, 32}, {34, 35, 36}, {32, 33, 36, 35}, {33, 31, 34, 36}, {31, 32, 35, 34}}));
}

TEST_F(SolidPressures, OnATetrahedronLieOppositeTheSecondNode) {
  EXPECT_EQ(FacesOf({"24|1.0||||51|54", "24|1.0||||51|52"}), (std::vector<Ids>{{51, 53, 52}, {51, 54, 53}}));
}

// Required: nodes that name no face load the first.
TEST_F(SolidPressures, OfNodesThatNameNoFaceLieOnTheFirst) { EXPECT_EQ(FacesOf({"20|1.0||||5|6"}), (std::vector<Ids>{{1, 4, 3, 2}})); }

TEST_F(SolidPressures, OfOneNodeOfAHexahedronLieOnTheFirst) { EXPECT_EQ(FacesOf({"20|1.0||||7"}), (std::vector<Ids>{{1, 4, 3, 2}})); }

// Required.
TEST_F(SolidPressures, OnAPyramidLieOnItsBase) { EXPECT_EQ(FacesOf({"23|1.0||||41|45"}), (std::vector<Ids>{{41, 44, 43, 42}})); }

TEST_F(SolidPressures, OnOneFaceTwiceCountOnce) {
  EXPECT_EQ(FacesOf({"20|1.0||||5|7", "20|1.0||||6|8"}), (std::vector<Ids>{{5, 6, 7, 8}}));
}

TEST_F(SolidPressures, OnAFaceBetweenSolidsAreNone) { EXPECT_THAT(FacesOf({"20|1.0||||2|7"}), IsEmpty()); }

TEST_F(SolidPressures, WithoutAFirstNodeAreNone) { EXPECT_THAT(FacesOf({"20|1.0||||0|7"}), IsEmpty()); }

TEST_F(SolidPressures, WithAFirstNodeThatDoesNotExistAreNone) { EXPECT_THAT(FacesOf({"20|1.0||||99|7"}), IsEmpty()); }

TEST_F(SolidPressures, WithASecondNodeThatDoesNotExistHaveOneNode) {
  EXPECT_EQ(FacesOf({"22|1.0||||34|99"}), (std::vector<Ids>{{34, 35, 36}}));
}

TEST_F(SolidPressures, OnSolidsWithoutFacesAreNone) {
  Card("5|20|1.0||||5|7");
  EXPECT_THAT(Create(), IsEmpty());
}

TEST_F(SolidPressures, OnAFaceUnderAShellLoadTheShell) {
  Make(10, elementQuad4, {6, 5, 8, 7}, 9);
  Card("5|20|2.5||||5|7");
  MakeFaces();
  EXPECT_EQ(Create(), ExpectedPressure("1", "2.5", "TopoFace#1", "null", "Pressure1"));
  EXPECT_EQ(PartsOfPressure(1), (std::vector<Ids>{{10}}));
}

TEST_F(SolidPressures, AMissingSolidEndsItsSet) {
  EXPECT_EQ(FacesOf({"20|1.0||||5|7", "99|1.0||||5|7", "21|1.0||||6|12"}), (std::vector<Ids>{{5, 6, 7, 8}}));
}

// Rows begin at the first node and follow the face round.
TEST_F(SolidPressures, RowsBeginAtTheFirstNode) {
  EXPECT_EQ(RowsOf({"20|1.0|2.0|3.0|4.0|7|5"}), "[2.0, 2.0, 2.0, 1.0], [0.0, 2.0, 2.0, 2.0], [0.0, 0.0, 2.0, 3.0], [2.0, 0.0, 2.0, 4.0]");
}

TEST_F(SolidPressures, CornersTakeTheValueOfTheFirstFace) {
  EXPECT_EQ(RowsOf({"20|1.0|2.0|3.0|4.0|5|7", "21|5.0|6.0|7.0|8.0|11|7"}),
            "[0.0, 0.0, 2.0, 1.0], [2.0, 0.0, 2.0, 2.0], [2.0, 2.0, 2.0, 3.0], [0.0, 2.0, 2.0, 4.0], "
            "[4.0, 0.0, 2.0, 5.0], [4.0, 2.0, 2.0, 6.0]");
}

TEST_F(SolidPressures, AUniformFaceHasARowAtItsCentreAndLeavesNoCornerToItsNeighbour) {
  EXPECT_EQ(RowsOf({"20|9.0||||5|7", "21|5.0|6.0|7.0|8.0|6|12"}), "[1.0, 1.0, 2.0, 9.0], [4.0, 0.0, 2.0, 6.0], [4.0, 2.0, 2.0, 7.0]");
}

TEST_F(SolidPressures, OfATriangleHaveThreeRows) {
  EXPECT_EQ(RowsOf({"22|1.0|2.0|3.0|4.0|35"}), "[35.0, 0.0, 1.0, 1.0], [36.0, 0.0, 0.0, 2.0], [34.0, 0.0, 0.0, 3.0]");
}

TEST_F(SolidPressures, AFirstNodeThatIsNotOnTheFaceCountsAsItsFirst) {
  EXPECT_EQ(RowsOf({"20|1.0|2.0|3.0|4.0|6|5"}), "[0.0, 0.0, 0.0, 1.0], [0.0, 2.0, 0.0, 2.0], [2.0, 2.0, 0.0, 3.0], [2.0, 0.0, 0.0, 4.0]");
}

// Required: cards and faces are walked side by side, so a face that was dropped shifts the nodes and values of those behind it.
TEST_F(SolidPressures, ADroppedFaceShiftsTheValuesOfTheNext) {
  EXPECT_EQ(RowsOf({"20|1.0|2.0|3.0|4.0|2|7", "20|5.0|6.0|7.0|8.0|7|5", "21|11.0|12.0|13.0|14.0|11|7"}),
            "[0.0, 0.0, 2.0, 1.0], [2.0, 0.0, 2.0, 2.0], [2.0, 2.0, 2.0, 3.0], [0.0, 2.0, 2.0, 4.0], "
            "[4.0, 0.0, 2.0, 7.0], [4.0, 2.0, 2.0, 8.0]")
      << "node 7 is the fourth of the last face, so its first value is that of node 7, which has a row";
}

TEST_F(SolidPressures, ACardWithoutAFirstNodeTakesTheRowsFromTheFaceThatMeetsIt) {
  EXPECT_EQ(RowsOf({"20|1.0|2.0|3.0|4.0|0|7", "20|5.0|6.0|7.0|8.0|5|7", "22|11.0|12.0|13.0|14.0|34"}),
            "[34.0, 0.0, 0.0, 5.0], [35.0, 0.0, 1.0, 6.0], [36.0, 0.0, 0.0, 7.0]");
}

TEST_F(SolidPressures, WithoutAnyRowThereIsNoField) {
  Card("5|20|1.0|2.0|3.0|4.0|0|7");
  Card("5|20|5.0|6.0|7.0|8.0|5|7");
  MakeFaces();
  EXPECT_EQ(Create(), Joined({ExpectedSplit("FaceMesh#1", "9", "MeshPart#1", "TopoFace#2", "FaceMesh#2"),
                              ExpectedPressure("1", "1.0", "TopoFace#2", "null", "Pressure1")}));
}

// Corners of the top of a hexahedron with mid-side nodes, and of a tetrahedron that stands on one of these mid-side nodes.
TEST_F(SolidPressures, MidSideNodesOfAFaceWithRowsHaveNoRowEither) {
  for (std::int32_t id = 61; id <= 83; ++id) {
    MakeNode(id, id);
  }
  Make(30, elementHexa20, {61, 62, 63, 64, 65, 66, 67, 68, 69, 70, 71, 72, 73, 74, 75, 76, 77, 78, 79, 80}, 8);
  Make(31, elementTetra4, {77, 81, 82, 83}, 8);
  EXPECT_EQ(RowsOf({"30|1.0|2.0|3.0|4.0|65|67", "31|5.0|6.0|7.0|8.0|77|81"}),
            "[65.0, 0.0, 0.0, 1.0], [66.0, 0.0, 0.0, 2.0], [67.0, 0.0, 0.0, 3.0], [68.0, 0.0, 0.0, 4.0], "
            "[83.0, 0.0, 0.0, 6.0], [82.0, 0.0, 0.0, 7.0]");
}

TEST_F(SolidPressures, EachSetHasRowsOfItsOwn) {
  Card("5|20|1.0|2.0|3.0|4.0|5|7");
  Card("6|20|5.0|6.0|7.0|8.0|5|7");
  MakeFaces();
  EXPECT_EQ(Create(), Joined({ExpectedRows("1", {"0.0, 0.0, 2.0, 1.0", "2.0, 0.0, 2.0, 2.0", "2.0, 2.0, 2.0, 3.0", "0.0, 2.0, 2.0, 4.0"}),
                              ExpectedSplit("FaceMesh#1", "9", "MeshPart#1", "TopoFace#2", "FaceMesh#2"),
                              ExpectedPressure("1", "1.0", "TopoFace#2", "Field#1", "Pressure1"),
                              ExpectedRows("2", {"0.0, 0.0, 2.0, 5.0", "2.0, 0.0, 2.0, 6.0", "2.0, 2.0, 2.0, 7.0", "0.0, 2.0, 2.0, 8.0"}),
                              ExpectedPressure("2", "1.0", "TopoFace#2", "Field#2", "Pressure2")}));
}

TEST_F(SolidPressures, ARefusedFieldGivesItsSetUp) {
  host.Refusals().RefuseCall("CurveStore.CreateField", 1);
  Card("5|20|1.0|2.0|3.0|4.0|5|7");
  MakeFaces();
  EXPECT_THAT(Create(), ElementsAre("CurveStore.CreateField() -> null"));
}

/// Sets of shells and solids: shell 10 in part 9 beside the solids.
class MixedPressures : public SolidPressures {
 protected:
  MixedPressures() { Make(10, elementQuad4, {31, 32, 33, 34}, 9); }
};

// Required: the last card decides for the whole set.
TEST_F(MixedPressures, OfASetThatEndsWithAShellLoadNoSolid) {
  Card("5|20|2.0||||5|7");
  Card("5|10|2.0");
  MakeFaces();
  EXPECT_EQ(Create(), ExpectedPressure("1", "2.0", "TopoFace#1", "null", "Pressure1"));
}

TEST_F(MixedPressures, OfASetThatEndsWithASolidLoadNoShell) {
  EXPECT_EQ(FacesOf({"10|2.0", "20|2.0||||5|7"}), (std::vector<Ids>{{5, 6, 7, 8}}));
}

// The shell's card stands first, so its values go to the solid's face, and it has no first node.
TEST_F(MixedPressures, AShellInASetOfSolidsShiftsTheValues) {
  EXPECT_EQ(RowsOf({"10|2.0", "20|3.0||||5|7", "22|1.0|2.0|3.0|4.0|34"}), "[35.0, 0.0, 0.3333333333333333, 3.0]");
}

TEST_F(MixedPressures, ASolidInASetOfShellsHasARowAtItsCentre) {
  EXPECT_EQ(RowsOf({"20|2.0||||5|7", "10|3.0"}), "[1.0, 1.0, 1.0, 2.0], [32.5, 0.0, 0.5, 3.0]");
}

TEST_F(MixedPressures, ASolidInASetOfShellsHasRowsAtItsFirstFourCorners) {
  EXPECT_EQ(RowsOf({"20|1.0|2.0|3.0|4.0|5|7", "10|3.0"}),
            "[0.0, 0.0, 0.0, 1.0], [2.0, 0.0, 0.0, 2.0], [2.0, 2.0, 0.0, 3.0], [0.0, 2.0, 0.0, 4.0], [32.5, 0.0, 0.5, 3.0]");
}

TEST_F(MixedPressures, AllCornersOfASolidInASetOfShellsAreTaken) {
  Make(11, elementTria3, {8, 12, 1}, 9);
  EXPECT_EQ(RowsOf({"20|1.0|2.0|3.0|4.0|5|7", "11|5.0|6.0|7.0|8.0"}),
            "[0.0, 0.0, 0.0, 1.0], [2.0, 0.0, 0.0, 2.0], [2.0, 2.0, 0.0, 3.0], [0.0, 2.0, 0.0, 4.0], [4.0, 2.0, 2.0, 6.0]");
}

}  // namespace
}  // namespace btz
