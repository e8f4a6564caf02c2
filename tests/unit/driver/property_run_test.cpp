// Whole runs over decks with properties, materials and their names: hosts that number materials their own way or refuse, and runs one after
// another.
#include <gmock/gmock.h>

#include <string>
#include <string_view>
#include <vector>

#include "tests/unit/driver/run_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// A shell, a tetrahedron and a gasket part, with materials that the deck defines, names twice or does not define at all.
constexpr std::string_view propertyDeck =
    "GRID    1       0       0.0     0.0     0.0\n"
    "GRID    2       0       1.0     0.0     0.0\n"
    "GRID    3       0       0.0     1.0     0.0\n"
    "GRID    4       0       0.0     0.0     1.0\n"
    "$HMNAME MAT                    5\"Steel\"\n"
    "$HMNAME PROP                  11\"Sheet\"\n"
    "MAT1    5       210000.         0.25    \n"
    "MAT1    5       70000.          0.25    \n"
    "CTRIA3  1       11      1       2       3       \n"
    "CTETRA  2       21      1       2       3       4       \n"
    "CTETRA  3       22      1       2       3       4       \n"
    "$Door\n"
    "PSHELL  11      5       1.5     6       1.0     5       \n"
    "PSHELL  11      6       2.5     \n"
    "PSOLID  21      6       0       \n"
    "PSOLID  21      5       0       \n"
    "PGASK   22      7       5       0       0.5     \n"
    "ENDDATA\n";

/// How materials and properties are told apart by what the host gave them.
std::vector<std::string> Descriptors(const TracedHost& traced) { return traced.CallsWith("SetDescriptor(<0"); }

using PropertyRunTest = RunTest;

TEST_F(PropertyRunTest, EveryPropertyGetsTheMaterialOfItsCard) {
  TracedHost traced;
  EXPECT_EQ(Translate(propertyDeck, traced), 0);
  EXPECT_THAT(Descriptors(traced), ElementsAre("Property#1.SetDescriptor(<0, Material#1, \"Shell\", \"Isotropic\">)",
                                               "Property#2.SetDescriptor(<0, Material#2, \"Shell\", \"Isotropic\">)",
                                               "Property#3.SetDescriptor(<0, Material#2, \"Solid\", \"Isotropic\">)",
                                               "Property#4.SetDescriptor(<0, Material#1, \"Solid\", \"Isotropic\">)",
                                               "Property#5.SetDescriptor(<0, Material#3, \"Solid\", \"Gasket\">)"));
}

TEST_F(PropertyRunTest, WithOtherNumbersADefaultMaterialIsMissedOnlyByThePropertyThatMadeIt) {
  TracedHost traced(HostOptions{.materialNumberOffset = 1000});
  EXPECT_EQ(Translate(propertyDeck, traced), 0);
  EXPECT_THAT(Descriptors(traced), ElementsAre("Property#1.SetDescriptor(<0, Material#1, \"Shell\", \"Isotropic\">)",
                                               "Property#2.SetDescriptor(<0, null, \"Shell\", \"Isotropic\">)",
                                               "Property#3.SetDescriptor(<0, Material#2, \"Solid\", \"Isotropic\">)",
                                               "Property#4.SetDescriptor(<0, Material#1, \"Solid\", \"Isotropic\">)",
                                               "Property#5.SetDescriptor(<0, null, \"Solid\", \"Gasket\">)"));
}

TEST_F(PropertyRunTest, AHostThatRefusesAllMaterialsGetsPropertiesWithout) {
  TracedHost traced;
  traced.host.Refusals().RefuseFrom("MaterialStore.CreateMaterial", 1);
  EXPECT_EQ(Translate(propertyDeck, traced), 0);
  // Two cards; then one try more for each of the five properties, as no link was made.
  EXPECT_EQ(traced.CallsWith("CreateMaterial").size(), 7u);
  EXPECT_EQ(traced.CallsWith("CreateProperty").size(), 5u);
  EXPECT_EQ(traced.CallsWith("SetDescriptor(<0, null, ").size(), 5u);
}

TEST_F(PropertyRunTest, AHostThatRefusesAllPropertiesIsAskedOncePerPart) {
  TracedHost traced;
  traced.host.Refusals().RefuseFrom("MaterialStore.CreateProperty", 1);
  EXPECT_EQ(Translate(propertyDeck, traced), 0);
  EXPECT_THAT(traced.CallsWith("CreateProperty"),
              ElementsAre("MaterialStore.CreateProperty(11) -> 1", "MaterialStore.CreateProperty(21) -> 1",
                          "MaterialStore.CreateProperty(22) -> 1"));
  EXPECT_THAT(traced.CallsWith("Property#"), IsEmpty());
}

TEST_F(PropertyRunTest, AnyRefusalIsSurvived) {
  for (const char* operation : {"MaterialStore.CreateMaterial", "MaterialStore.CreateProperty", "MaterialStore.GetMaterial",
                                "Material.GetDescriptor", "MeshPart.GetOwnerModel"}) {
    for (const Refusal how : {Refusal::Code, Refusal::EmptySuccess}) {
      for (const bool nulls : {false, true}) {
        for (std::int32_t n = 1; n <= 12; ++n) {
          TracedHost traced(HostOptions{.nullOnFailure = nulls});
          traced.host.Refusals().RefuseCall(operation, n, how);
          EXPECT_EQ(Translate(propertyDeck, traced), 0) << operation << " " << n;
          EXPECT_EQ(traced.CallsWith("MaterialStore.Commit()").size(), 1u) << operation << " " << n;
        }
      }
    }
  }
}

TEST_F(PropertyRunTest, MaterialsAreRenamedBeforeThePropertiesAreMade) {
  TracedHost traced(HostOptions(), TraceSink::Coverage::All);
  EXPECT_EQ(Translate(propertyDeck, traced), 0);
  std::vector<std::string> calls;
  for (const std::string& call : traced.Calls()) {
    if (call.find("GetDescriptor()") != std::string::npos || call.find("CreateProperty(11)") != std::string::npos) {
      calls.push_back(call);
    }
  }
  EXPECT_THAT(calls,
              ElementsAre(HasSubstr("Material#1.GetDescriptor()"), HasSubstr("CreateProperty(11)"), HasSubstr("CreateProperty(11)")));
}

TEST_F(PropertyRunTest, WithoutACommentForAMaterialNoneIsAskedForItsName) {
  std::string deck(propertyDeck);
  deck.erase(deck.find("$HMNAME MAT"), deck.find("$HMNAME PROP") - deck.find("$HMNAME MAT"));
  TracedHost traced(HostOptions(), TraceSink::Coverage::All);
  EXPECT_EQ(Translate(deck, traced), 0);
  EXPECT_THAT(traced.CallsWith("GetDescriptor()"), IsEmpty());
}

TEST_F(PropertyRunTest, ASecondRunKnowsNothingOfTheFirst) {
  TracedHost first(HostOptions{.materialNumberOffset = 1000});
  TracedHost second(HostOptions{.materialNumberOffset = 1000});
  EXPECT_EQ(Translate(propertyDeck, first), 0);
  EXPECT_EQ(Translate(propertyDeck, second), 0);
  EXPECT_EQ(first.trace, second.trace);
}

TEST_F(PropertyRunTest, CardsAndNamesOfAnAbandonedRunAreForgotten) {
  // Without elements the run ends behind the passes that captured its cards.
  std::string withoutElements(propertyDeck);
  for (const char* card : {"CTRIA3  1", "CTETRA  2", "CTETRA  3"}) {
    withoutElements.insert(withoutElements.find(card), "$");
  }
  TracedHost abandoned;
  EXPECT_EQ(Translate(withoutElements, abandoned), 2);
  TracedHost traced;
  EXPECT_EQ(Translate("GRID    1       0       0.0     0.0     0.0\n"
                      "GRID    2       0       1.0     0.0     0.0\n"
                      "GRID    3       0       0.0     1.0     0.0\n"
                      "CTRIA3  1       11      1       2       3       \n"
                      "PSHELL  11      5       1.5     \n"
                      "ENDDATA\n",
                      traced),
            0);
  EXPECT_THAT(traced.CallsWith("Property#1.SetName"), ElementsAre("Property#1.SetName(\"Property11\")"));
  EXPECT_THAT(traced.CallsWith("MeshPart#1.SetName("), ElementsAre("MeshPart#1.SetName(\"Body 11\")"));
  EXPECT_THAT(traced.CallsWith("CreateMaterial"), ElementsAre("MaterialStore.CreateMaterial(5) -> 0 Material#1"));
  EXPECT_EQ(traced.CallsWith("CreateProperty").size(), 1u);
}

}  // namespace
}  // namespace btz::test
