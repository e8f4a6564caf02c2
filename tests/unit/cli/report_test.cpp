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
  report.model.groups = {{"curves and fields", {}}, {"loads", {}}};
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

  EXPECT_EQ(LineWith(text, "Not in the model"),
            "Not in the model properties, materials, coordinate systems, curves and fields, loads, load cases");
}

TEST(ReportText, KindsShowTheirFirstNames) {
  RunReport report = SmallReport();
  ItemKind forces{"forces", {}};
  for (std::int32_t id = 1; id <= 6; ++id) {
    forces.items.push_back({id, "PointForce" + std::to_string(id)});
  }
  report.model.groups[1].kinds = {forces, {"pressures", {{9, ""}}}};

  const std::string text = ReportText(report);

  EXPECT_THAT(text, HasSubstr("\nLoads               7\n"));
  EXPECT_EQ(LineWith(text, "  forces"), "forces 6 PointForce1, PointForce2, PointForce3, PointForce4, ...");
  EXPECT_EQ(LineWith(text, "pressures"), "pressures 1 9");
  EXPECT_EQ(LineWith(text, "Not in the model"),
            "Not in the model properties, materials, coordinate systems, curves and fields, load cases");
}

TEST(ReportText, LoadCasesTellWhatActsInThem) {
  RunReport report = SmallReport();
  report.model.loadCases = {{"Pull", "NASTRAN", "Linear", {{"forces", {{1, "A"}, {2, "B"}}}, {"constraints", {{3, "C"}}}}},
                            {"", "NASTRAN", "Linear", {}}};

  const std::string text = ReportText(report);

  EXPECT_THAT(text, HasSubstr("\nLoad cases          2\n"));
  EXPECT_EQ(LineWith(text, "Pull"), "Pull NASTRAN Linear: 2 forces, 1 constraints");
  EXPECT_EQ(LineWith(text, "(no name)"), "(no name) NASTRAN Linear: empty");
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
  report.model.groups[1].kinds = {{"forces", {{4, "Pull \xFF"}}}};

  const nlohmann::json json = nlohmann::json::parse(ReportJson(report));

  EXPECT_EQ(json["deck"]["name"], "plate.bdf");
  EXPECT_EQ(json["result"]["code"], 0);
  EXPECT_EQ(json["model"]["nodes"], 9);
  EXPECT_EQ(json["model"]["elements"]["triangles, 3 nodes"], 2);
  EXPECT_EQ(json["model"]["parts"][0]["name"], "Wing skin");
  EXPECT_EQ(json["model"]["loads"]["forces"][0]["id"], 4);
  // A byte that is no UTF-8 becomes the replacement character.
  EXPECT_EQ(json["model"]["loads"]["forces"][0]["name"], "Pull \xEF\xBF\xBD");
  EXPECT_EQ(json["log"]["nodesRead"], 9);
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

}  // namespace
}  // namespace btz::cli
