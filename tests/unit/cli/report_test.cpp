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
  report.model.groups = {{"properties", {}}, {"loads", {}}};
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

TEST(ReportText, WhatTheModelDoesNotHaveTakesOneLine) {
  const std::string text = ReportText(SmallReport());

  EXPECT_EQ(LineWith(text, "Not in the model"), "Not in the model properties, loads, load cases");
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
  EXPECT_EQ(LineWith(text, "Not in the model"), "Not in the model properties, load cases");
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

}  // namespace
}  // namespace btz::cli
