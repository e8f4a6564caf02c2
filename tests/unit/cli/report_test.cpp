#include "cli/report.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

namespace btz::cli {
namespace {

using testing::HasSubstr;
using testing::Not;

RunReport SmallReport() {
  RunReport report;
  report.deckName = "plate.bdf";
  report.deckBytes = 2000000;
  report.seconds = 0.5;
  report.model.nodes = 9;
  report.model.elements[3] = 2;
  report.model.elements[5] = 3;
  PartSummary part;
  part.id = 7;
  part.number = 1;
  part.name = "Wing skin";
  part.elements = report.model.elements;
  report.model.parts.push_back(part);
  report.model.groups = {{"curves and fields", {}}, {"other loads", {}}};
  report.model.isHandedOver = true;
  report.log.isPresent = true;
  report.log.isComplete = true;
  report.log.nodesRead = 9;
  return report;
}

/// The line that holds `text`, with runs of blanks as one blank.
std::string LineWith(const std::string& report, const std::string& text) {
  const std::size_t at = report.find(text);
  if (at == std::string::npos) {
    return "";
  }
  const std::size_t start = report.rfind('\n', at) + 1;
  std::string line;
  for (const char c : report.substr(start, report.find('\n', at) - start)) {
    if (c != ' ' || (!line.empty() && line.back() != ' ')) {
      line += c;
    }
  }
  return line;
}

TEST(ReportText, HeadTellsDeckResultAndSpeed) {
  const std::string text = ReportText(SmallReport());

  EXPECT_EQ(LineWith(text, "Deck"), "Deck plate.bdf, 2000000 bytes");
  EXPECT_EQ(LineWith(text, "Result"), "Result translated (0)");
  EXPECT_EQ(LineWith(text, "Time"), "Time 0.500 s, 4.0 MB/s");
}

TEST(ReportText, ElementsAreCountedByType) {
  const std::string text = ReportText(SmallReport());

  EXPECT_EQ(LineWith(text, "Nodes"), "Nodes 9");
  EXPECT_THAT(text, HasSubstr("\nElements            5\n"));
  EXPECT_THAT(text, HasSubstr("  2  triangles, 3 nodes\n"));
  EXPECT_THAT(text, HasSubstr("  3  quadrilaterals, 4 nodes\n"));
  EXPECT_THAT(text, Not(HasSubstr("tetrahedra")));
}

TEST(ReportText, APartHasIdNumberNameAndItsElements) {
  RunReport report = SmallReport();
  PartSummary rigid;
  rigid.id = 12;
  rigid.isRigid = true;
  report.model.parts.push_back(rigid);

  const std::string text = ReportText(report);

  EXPECT_EQ(LineWith(text, "Wing skin"), "7 1 Wing skin 2 triangles, 3 nodes; 3 quadrilaterals, 4 nodes");
  EXPECT_EQ(LineWith(text, "rigid body"), "12 - (no name) (rigid body) none");
}

PropertySummary MakeProperty(const std::string& kind, const std::string& name, std::size_t part, std::vector<ValueSummary> values) {
  PropertySummary property;
  property.id = 7;
  property.kind = kind;
  property.name = name;
  property.material = {5, "Steel"};
  property.parts = {part};
  property.values = std::move(values);
  return property;
}

/// Adds a property to the model's list and to its part.
void AddProperty(RunReport* report, const PropertySummary& property) {
  report->model.parts[property.parts[0]].properties.push_back(report->model.properties.size());
  report->model.properties.push_back(property);
}

TEST(ReportText, APropertyHasPartClassNameMaterialAndThickness) {
  RunReport report = SmallReport();
  AddProperty(&report, MakeProperty("Shell, Isotropic", "Sheet 2 mm", 0, {{"NSM", 1.0}, {"Thickness", 2.5}}));

  const std::string text = ReportText(report);

  EXPECT_THAT(text, HasSubstr("\nProperties          1\n"));
  EXPECT_EQ(LineWith(text, "Sheet 2 mm"), "7 Shell, Isotropic Sheet 2 mm 5 Steel thickness 2.5");
  EXPECT_THAT(text, Not(HasSubstr("without property")));
}

TEST(ReportText, PropertiesTableIsAligned) {
  RunReport report = SmallReport();
  AddProperty(&report, MakeProperty("Shell, Isotropic", "Sheet", 0, {{"Thickness", 2.5}}));
  AddProperty(&report, MakeProperty("Bar, Bar", "", 0, {{"Area", 50.0}}));
  report.model.properties[1].material.reset();

  EXPECT_THAT(ReportText(report), HasSubstr("\nProperties          2\n"
                                            "      Part  Class             Name       Material  Thickness or section\n"
                                            "         7  Shell, Isotropic  Sheet      5 Steel   thickness 2.5\n"
                                            "         7  Bar, Bar          (no name)  -         area 50\n"));
}

TEST(ReportText, ThicknessAndSectionFollowTheClass) {
  RunReport report = SmallReport();
  const ValueSummary noValue{"Thickness", {}};
  AddProperty(&report, MakeProperty("Shell, Isotropic", "Blank", 0, {noValue}));
  AddProperty(&report, MakeProperty("Bar, Bar", "Rod", 0, {{"SectionType", "O1Section"}, {"SectionParam", "5.000000"}, {"Area", 78.5}}));
  AddProperty(&report, MakeProperty("Bar, Beam", "Tube", 0, {{"SectionParam", "5.250000,3.000000"}, {"Area", 50.0}}));
  AddProperty(&report, MakeProperty("Bar, Beam", "Numbers", 0, {{"Area", {}}}));
  AddProperty(&report, MakeProperty("Solid, Isotropic", "Block", 0, {}));
  AddProperty(&report, MakeProperty("Solid, Gasket", "Seal", 0, {{"Initial_Gasket_Thickness", 1.5}}));

  const std::string text = ReportText(report);

  EXPECT_EQ(LineWith(text, "Blank"), "7 Shell, Isotropic Blank 5 Steel thickness unset");
  EXPECT_EQ(LineWith(text, "Rod"), "7 Bar, Bar Rod 5 Steel full round 5");
  EXPECT_EQ(LineWith(text, "Tube"), "7 Bar, Beam Tube 5 Steel hollow round 5.25, 3");
  EXPECT_EQ(LineWith(text, "Numbers"), "7 Bar, Beam Numbers 5 Steel area unset");
  EXPECT_EQ(LineWith(text, "Block"), "7 Solid, Isotropic Block 5 Steel -");
  EXPECT_EQ(LineWith(text, "Seal"), "7 Solid, Gasket Seal 5 Steel thickness 1.5");
}

TEST(ReportText, PartsWithoutPropertyAreNamedAsFarAsTheyGo) {
  RunReport report = SmallReport();
  AddProperty(&report, MakeProperty("Shell, Isotropic", "Sheet", 0, {{"Thickness", 2.5}}));
  PartSummary rigid;
  rigid.id = 12;
  rigid.isRigid = true;
  report.model.parts.push_back(rigid);
  for (std::int32_t id = 21; id <= 25; ++id) {
    PartSummary part;
    part.id = id;
    part.name = id == 22 ? "" : "Body " + std::to_string(id);
    report.model.parts.push_back(part);
  }

  const std::string text = ReportText(report);

  EXPECT_EQ(LineWith(text, "without property"), "without property 5 parts: 21 Body 21, 22, 23 Body 23, 24 Body 24, ...");
}

TEST(ReportText, MaterialsShowTheirMainValuesOrThatTheyAreUnset) {
  RunReport report = SmallReport();
  report.model.materials = {{5,
                             "Steel",
                             "Isotropic, Elastic, Metal",
                             {{"Youngs_modulus", 210000.0}, {"Shear_modulus", {}}, {"Poissons_ratio", 0.3}, {"Density", 7.85e-9}}},
                            {12, "", "Isotropic, Elastic, Metal", {{"Youngs_modulus", 1.5}, {"Poissons_ratio", {}}}}};

  EXPECT_THAT(ReportText(report),
              HasSubstr("\nMaterials           2\n"
                        "    Number  Name       Young's modulus  Poisson's ratio     Density  Class\n"
                        "         5  Steel               210000              0.3    7.85e-09  Isotropic, Elastic, Metal\n"
                        "        12  (no name)              1.5            unset       unset  Isotropic, Elastic, Metal\n"));
}

TEST(ReportText, SystemsShowKindNameNodesAndOrigin) {
  RunReport report = SmallReport();
  report.model.nodesInLocalSystems = 5;
  report.model.systems = {{10, "cylindrical", "CyliCoordinate10", std::array<double, 3>{0.0, 30.5, -1e9}, 5},
                          {4, "rectangular", "", {}, 0}};

  const std::string text = ReportText(report);

  EXPECT_THAT(text, HasSubstr("\nNodes               9\n  in local systems  5\n"));
  EXPECT_THAT(text, HasSubstr("\nCoordinate systems  2\n"
                              "        Id  Kind         Name              Nodes  Origin\n"
                              "        10  cylindrical  CyliCoordinate10      5  (0, 30.5, -1e+09)\n"
                              "         4  rectangular  (no name)             0  -\n"));
}

TEST(ReportText, NodesInLocalSystemsAreOnlyToldWhenThereAreSome) {
  EXPECT_THAT(ReportText(SmallReport()), Not(HasSubstr("in local systems")));
}

TEST(ReportText, WhatTheModelDoesNotHaveTakesOneLine) {
  const std::string text = ReportText(SmallReport());

  EXPECT_THAT(text, HasSubstr("\nNot in the model    properties, materials, coordinate systems, constraints, forces and moments,\n"
                              "                    body loads, pressures, curves and fields, other loads, sets, load cases\n"));
}

TEST(ReportText, KindsShowTheirFirstNames) {
  RunReport report = SmallReport();
  ItemKind convections{"convections", {}};
  for (std::int32_t id = 1; id <= 6; ++id) {
    convections.items.push_back({id, "Convection" + std::to_string(id)});
  }
  report.model.groups[1].kinds = {convections, {"heat fluxes", {{9, ""}}}};

  const std::string text = ReportText(report);

  EXPECT_THAT(text, HasSubstr("\nOther loads         7\n"));
  EXPECT_EQ(LineWith(text, "  convections"), "convections 6 Convection1, Convection2, Convection3, Convection4, ...");
  EXPECT_EQ(LineWith(text, "heat fluxes"), "heat fluxes 1 id 9");
  EXPECT_THAT(text, Not(HasSubstr("other loads")));
}

TEST(ReportText, ConstraintsShowComponentsNodesSystemAndValues) {
  RunReport report = SmallReport();
  report.model.constraints = {{1, "Node_Constraint_7", false, "123456", {}, false, 12, 0},
                              {2, "", true, "13", {0.5, 9.0, -0.0625, 9.0, 9.0, 9.0}, false, 1, 10},
                              {3, "EnforcedConstraint_8", true, "6", {}, true, 1200, 0},
                              {4, "Node Constraint1", false, "", {}, false, 0, 0}};

  EXPECT_THAT(ReportText(report), HasSubstr("\nConstraints         4\n"
                                            "        Id  Kind      Name                  Components  Nodes  System  Values\n"
                                            "         1  plain     Node_Constraint_7     123456         12       -  -\n"
                                            "         2  enforced  (no name)             13              1      10  1: 0.5, 3: -0.0625\n"
                                            "         3  enforced  EnforcedConstraint_8  6            1200       -  by field\n"
                                            "         4  plain     Node Constraint1      -               0       -  -\n"));
}

TEST(ReportText, ForcesShowVectorsNodesAndSystem) {
  RunReport report = SmallReport();
  report.model.forces = {{1, "Lift", {0.0, 300.0, 400.0}, {}, false, 1, 10}, {2, "PointForce1", {1.0, 1.0, 1.0}, {}, true, 25, 0}};

  EXPECT_THAT(ReportText(report), HasSubstr("\nForces and moments  2\n"
                                            "        Id  Name         Nodes  System  Force          Moment\n"
                                            "         1  Lift             1      10  (0, 300, 400)  (0, 0, 0)\n"
                                            "         2  PointForce1     25       -  by field       by field\n"));
}

TEST(ReportText, BodyLoadsShowKindPartsAndVector) {
  RunReport report = SmallReport();
  report.model.bodyLoads = {{3, "", "gravity", {0.0, 0.0, -9810.0}, 6}, {14, "", "scaled rotation", {0.0, 1.0, 0.0}, 0}};

  EXPECT_THAT(ReportText(report), HasSubstr("\nBody loads          2\n"
                                            "        Id  Kind             Name       Parts  Vector\n"
                                            "         3  gravity          (no name)      6  (0, 0, -9810)\n"
                                            "        14  scaled rotation  (no name)      0  (0, 1, 0)\n"));
}

TEST(ReportText, PressuresShowTheirFacesAreaAndValue) {
  RunReport report = SmallReport();
  report.model.pressures = {{3, "Pressure1", -0.02, -0.02, false, {1, 48, 4800.0}}, {14, "", 0.5, 2.0, true, {2, 1200, 1.5e6}}};

  EXPECT_THAT(ReportText(report), HasSubstr("\nPressures           2\n"
                                            "        Id  Name       Parts  Faces     Area  Value x area  Value\n"
                                            "         3  Pressure1      1     48     4800           -96  -0.02\n"
                                            "        14  (no name)      2   1200  1.5e+06             -  0.5 to 2, by field\n"));
}

TEST(ReportText, SetsShowTheirMembersAndSurfacesTheirArea) {
  RunReport report = SmallReport();
  report.model.sets = {{5, "Rim", "nodes", 4, false, {}}, {6, "", "surface", 12, true, {2, 12, 1200.0}}};

  EXPECT_THAT(ReportText(report), HasSubstr("\nSets                2\n"
                                            "        Id  Kind     Name       Members  Parts  Area\n"
                                            "         5  nodes    Rim              4      -     -\n"
                                            "         6  surface  (no name)       12      2  1200\n"));
}

TEST(ReportText, AHeadingAsLongAsItsColumnKeepsItsDistance) {
  RunReport report = SmallReport();
  report.model.groups = {{"displacement systems", {{"assignments to nodes", {{27, ""}}}}}};

  EXPECT_THAT(ReportText(report), HasSubstr("\nDisplacement systems  1\n"));
}

TEST(ReportText, LongTablesOfLoadsEndWithTheNumberOfTheRest) {
  RunReport report = SmallReport();
  for (std::int32_t id = 1; id <= 1040; ++id) {
    report.model.forces.push_back({id, "F" + std::to_string(id), {}, {}, false, 1, 0});
  }
  for (std::int32_t id = 1; id <= 40; ++id) {
    report.model.constraints.push_back({id, "C" + std::to_string(id), false, "1", {}, false, 1, 0});
  }

  const std::string text = ReportText(report);

  EXPECT_THAT(text, HasSubstr("\nForces and moments  1040\n"));
  EXPECT_EQ(LineWith(text, "F40 "), "40 F40 1 - (0, 0, 0) (0, 0, 0)");
  EXPECT_THAT(text, HasSubstr("\n  ... and 1000 more, which the JSON report has\n"));
  EXPECT_THAT(text, Not(HasSubstr("F41 ")));
  EXPECT_EQ(LineWith(text, "C40 "), "40 plain C40 1 1 - -");
  EXPECT_EQ(text.find("... and"), text.rfind("... and"));
}

TEST(ReportText, LoadCasesTellWhatActsInThemAndTheirParameters) {
  RunReport report = SmallReport();
  const ItemKind forces{"forces and moments", {{1, "A"}, {2, ""}, {3, "C"}, {4, "D"}, {5, "E"}}};
  report.model.loadCases = {{"Pull", "NASTRAN", "LINEAR", {forces, {"constraints", {{6, "G"}}}}, {}},
                            {"", "RADIOSS", "NORMALMODE", {}, {{"Number of Modes", 12.0}, {"Shift", {}}, {"Surface", "Hull"}}}};

  const std::string text = ReportText(report);

  EXPECT_THAT(text, HasSubstr("\nLoad cases          2\n"
                              "  Pull  (NASTRAN, LINEAR)\n"
                              "      forces and moments  5       A, id 2, C, D, ...\n"
                              "      constraints         1       G\n"
                              "  (no name)  (RADIOSS, NORMALMODE): empty\n"
                              "      Number of Modes = 12\n"
                              "      Shift = unset\n"
                              "      Surface = Hull\n"
                              "\n"));
  EXPECT_THAT(text, Not(HasSubstr("in no load case")));
}

TEST(ReportText, WhatNoLoadCaseUsesStandsBelowThem) {
  RunReport report = SmallReport();
  report.model.loadCases = {{"Pull", "NASTRAN", "LINEAR", {{"constraints", {{6, "G"}}}}, {}}};
  report.model.inNoLoadCase = {{"body loads", {{7, ""}}}};

  EXPECT_THAT(ReportText(report), HasSubstr("      constraints         1       G\n"
                                            "  in no load case\n"
                                            "      body loads          1       id 7\n"));
}

TEST(ReportText, WithoutLoadCasesItIsSaidWhyThereMayBeNone) {
  RunReport report = SmallReport();
  report.model.inNoLoadCase = {{"body loads", {{7, ""}}}};

  const std::string text = ReportText(report);

  EXPECT_EQ(LineWith(text, "Load cases"), "Load cases none: the deck has no subcase with loads, or a single one that uses all of them");
  EXPECT_THAT(text, Not(HasSubstr("load cases")));
  EXPECT_THAT(text, Not(HasSubstr("in no load case")));
}

TEST(ReportText, ManyLoadCasesEndWithTheNumberOfTheRest) {
  RunReport report = SmallReport();
  for (int i = 1; i <= 43; ++i) {
    report.model.loadCases.push_back({"Case " + std::to_string(i), "NASTRAN", "LINEAR", {}, {}});
  }

  const std::string text = ReportText(report);

  EXPECT_THAT(text, HasSubstr("\n  Case 40  (NASTRAN, LINEAR): empty\n  ... and 3 more, which the JSON report has\n"));
  EXPECT_THAT(text, Not(HasSubstr("Case 41")));
}

TEST(ReportText, TheLogIsToldInShort) {
  RunReport report = SmallReport();
  report.log.isComplete = false;
  report.log.elementsRead = {{"Tri3", 2}, {"Quad4", 3}};
  report.log.steps = {"Creating Properties", "Updating Topology"};
  report.log.missingIncludes = {"../a.bdf"};
  report.log.refusals = {{"Quad4 Element", 7, {1, 2, 3, 4, 5}}, {"Node", 1, {8}}};
  report.log.otherLines = {"What is this"};

  const std::string text = ReportText(report);

  EXPECT_EQ(LineWith(text, "Log "), "Log ends early");
  EXPECT_EQ(LineWith(text, "cards read"), "cards read 9 nodes, 2 Tri3, 3 Quad4");
  EXPECT_EQ(LineWith(text, "steps"), "steps Creating Properties, Updating Topology");
  EXPECT_EQ(LineWith(text, "not found"), "not found include file \"../a.bdf\"");
  EXPECT_EQ(LineWith(text, "7 x"), "refused by host 7 x Quad4 Element: 1, 2, 3, 4, 5, ...");
  EXPECT_EQ(LineWith(text, "1 x"), "refused by host 1 x Node: 8");
  EXPECT_EQ(LineWith(text, "What is this"), "said What is this");
}

TEST(ReportText, AMissingLogIsSaid) {
  RunReport report = SmallReport();
  report.log = LogDigest();

  EXPECT_EQ(LineWith(ReportText(report), "Log "), "Log none was written");
}

TEST(ReportJson, HoldsWhatTheTextHolds) {
  RunReport report = SmallReport();
  report.model.groups[1].kinds = {{"convections", {{4, "Pull \xFF"}}}};

  const nlohmann::json json = nlohmann::json::parse(ReportJson(report));

  EXPECT_EQ(json["deck"]["name"], "plate.bdf");
  EXPECT_EQ(json["result"]["code"], 0);
  EXPECT_EQ(json["model"]["nodes"], 9);
  EXPECT_EQ(json["model"]["elements"]["triangles, 3 nodes"], 2);
  EXPECT_EQ(json["model"]["parts"][0]["name"], "Wing skin");
  EXPECT_EQ(json["model"]["other loads"]["convections"][0]["id"], 4);
  // A byte that is no UTF-8 becomes the replacement character.
  EXPECT_EQ(json["model"]["other loads"]["convections"][0]["name"], "Pull \xEF\xBF\xBD");
  EXPECT_EQ(json["log"]["nodesRead"], 9);
}

TEST(ReportJson, PressuresAndSetsHaveTheirFaces) {
  RunReport report = SmallReport();
  report.model.pressures = {{3, "Pressure1", -0.02, -0.02, false, {1, 48, 4800.0}}};
  report.model.sets = {{5, "Rim", "nodes", 4, false, {}}, {6, "Contact", "surface", 12, true, {2, 12, 1200.0}}};

  const nlohmann::json model = nlohmann::json::parse(ReportJson(report))["model"];

  EXPECT_EQ(model["pressures"], nlohmann::json::parse(R"([{"id": 3, "name": "Pressure1", "byField": false, "lowest": -0.02,
      "highest": -0.02, "parts": 1, "faces": 48, "area": 4800.0}])"));
  EXPECT_EQ(model["sets"], nlohmann::json::parse(R"([{"id": 5, "name": "Rim", "kind": "nodes", "members": 4},
      {"id": 6, "name": "Contact", "kind": "surface", "members": 12, "parts": 2, "area": 1200.0}])"));
}

TEST(ReportJson, PropertiesMaterialsAndSystemsHaveAllTheirValues) {
  RunReport report = SmallReport();
  AddProperty(&report,
              MakeProperty("Bar, Bar", "Rod", 0, {{"SectionType", "O1Section"}, {"Nastran_Bar_Type", 1}, {"I1", {}}, {"Area", 78.5}}));
  AddProperty(&report, MakeProperty("Solid, Isotropic", "Block", 0, {}));
  report.model.properties[1].material.reset();
  report.model.materials = {{5, "Steel", "Isotropic, Elastic, Metal", {{"Youngs_modulus", 210000.0}, {"Density", {}}}}};
  report.model.nodesInLocalSystems = 5;
  report.model.systems = {{10, "cylindrical", "CyliCoordinate10", std::array<double, 3>{0.0, 30.5, -1.0}, 5},
                          {4, "rectangular", "", {}, 0}};

  const nlohmann::json model = nlohmann::json::parse(ReportJson(report))["model"];

  EXPECT_EQ(model["parts"][0]["properties"], nlohmann::json::parse("[0, 1]"));
  EXPECT_EQ(model["properties"], nlohmann::json::parse(R"([
    {"id": 7, "name": "Rod", "class": "Bar, Bar", "material": {"number": 5, "name": "Steel"}, "parts": [0],
     "values": {"SectionType": "O1Section", "Nastran_Bar_Type": 1, "I1": null, "Area": 78.5}},
    {"id": 7, "name": "Block", "class": "Solid, Isotropic", "material": null, "parts": [0], "values": {}}])"));
  EXPECT_EQ(model["materials"], nlohmann::json::parse(R"([
    {"number": 5, "name": "Steel", "class": "Isotropic, Elastic, Metal", "values": {"Youngs_modulus": 210000.0, "Density": null}}])"));
  EXPECT_EQ(model["nodesInLocalSystems"], 5);
  EXPECT_EQ(model["coordinate systems"], nlohmann::json::parse(R"([
    {"id": 10, "kind": "cylindrical", "name": "CyliCoordinate10", "origin": [0.0, 30.5, -1.0], "nodes": 5},
    {"id": 4, "kind": "rectangular", "name": "", "origin": null, "nodes": 0}])"));
}

TEST(ReportJson, ConstraintsAndLoadsHaveAllTheirNumbers) {
  RunReport report = SmallReport();
  report.model.constraints = {{1, "Node_Constraint_7", false, "123456", {}, false, 12, 0},
                              {2, "EnforcedConstraint_7", true, "13", {0.5, 0.0, -2.0, 0.0, 0.0, 0.0}, false, 1, 10},
                              {3, "EnforcedConstraint_8", true, "6", {}, true, 2, 0}};
  report.model.forces = {{4, "Lift", {0.0, 300.0, 400.0}, {0.0, 0.0, 2.5}, false, 1, 10},
                         {5, "PointForce1", {1.0, 1.0, 1.0}, {}, true, 25, 0}};
  report.model.bodyLoads = {{6, "", "gravity", {0.0, 0.0, -9810.0}, 6}};

  const nlohmann::json model = nlohmann::json::parse(ReportJson(report))["model"];

  EXPECT_EQ(model["constraints"], nlohmann::json::parse(R"([
    {"id": 1, "name": "Node_Constraint_7", "enforced": false, "components": "123456", "values": null, "byField": false, "nodes": 12,
     "system": 0},
    {"id": 2, "name": "EnforcedConstraint_7", "enforced": true, "components": "13", "values": [0.5, 0.0, -2.0, 0.0, 0.0, 0.0],
     "byField": false, "nodes": 1, "system": 10},
    {"id": 3, "name": "EnforcedConstraint_8", "enforced": true, "components": "6", "values": null, "byField": true, "nodes": 2,
     "system": 0}])"));
  EXPECT_EQ(model["forces and moments"], nlohmann::json::parse(R"([
    {"id": 4, "name": "Lift", "force": [0.0, 300.0, 400.0], "moment": [0.0, 0.0, 2.5], "byField": false, "nodes": 1, "system": 10},
    {"id": 5, "name": "PointForce1", "force": null, "moment": null, "byField": true, "nodes": 25, "system": 0}])"));
  EXPECT_EQ(model["body loads"],
            nlohmann::json::parse(R"([{"id": 6, "name": "", "kind": "gravity", "vector": [0.0, 0.0, -9810.0], "parts": 6}])"));
}

TEST(ReportJson, LoadCasesAreCompleteHoweverLongTheyAre) {
  RunReport report = SmallReport();
  ItemKind forces{"forces and moments", {}};
  for (std::int32_t id = 1; id <= 20; ++id) {
    forces.items.push_back({id, "F" + std::to_string(id)});
  }
  report.model.loadCases = {{"Pull", "NASTRAN", "LINEAR", {forces}, {{"Number of Modes", 12.0}, {"Shift", {}}, {"Surface", "Hull"}}}};
  report.model.inNoLoadCase = {{"body loads", {{301, ""}}}};
  report.model.loadCases.resize(45, report.model.loadCases[0]);

  const nlohmann::json model = nlohmann::json::parse(ReportJson(report))["model"];

  ASSERT_EQ(model["load cases"].size(), 45u);
  const nlohmann::json& pull = model["load cases"][0];
  EXPECT_EQ(pull["name"], "Pull");
  EXPECT_EQ(pull["solver"], "NASTRAN");
  EXPECT_EQ(pull["analysis"], "LINEAR");
  ASSERT_EQ(pull["members"]["forces and moments"].size(), 20u);
  EXPECT_EQ(pull["members"]["forces and moments"][19], nlohmann::json::parse(R"({"id": 20, "name": "F20"})"));
  EXPECT_EQ(pull["parameters"], nlohmann::json::parse(R"({"Number of Modes": 12.0, "Shift": null, "Surface": "Hull"})"));
  EXPECT_EQ(model["in no load case"], nlohmann::json::parse(R"({"body loads": [{"id": 301, "name": ""}]})"));
}

}  // namespace
}  // namespace btz::cli
