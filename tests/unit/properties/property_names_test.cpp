// Names of properties: from the card, by number, from a comment for the property; and what the transfers of different kinds share of them.
#include "properties/property_transfer.h"

#include "properties/shell_property.h"
#include "properties/solid_property.h"
#include "tests/unit/properties/transfer_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;

class PropertyNames : public TransferTest {
 protected:
  PropertyNames() { host.GetMaterialStore()->CreateProperty(&property, 7); }

  /// The names that a property of the part 7 gets, in order, quotes included.
  std::vector<std::string> Names(const char* recordName, const char* defaultPrefix = "Property", std::int32_t propertyId = 7) {
    Calls();
    NameProperty(property, recordName, defaultPrefix, propertyId, 7);
    return SetNames();
  }

  std::vector<std::string> SetNames() {
    std::vector<std::string> names;
    for (const std::string& call : CallsWith(".SetName(")) {
      const std::size_t at = call.find('(');
      names.push_back(call.substr(at + 1, call.size() - at - 2));
    }
    return names;
  }

  Property* property = nullptr;
};

TEST_F(PropertyNames, NameOfTheCardIsTaken) { EXPECT_THAT(Names("Door"), ElementsAre("\"Door\"")); }

TEST_F(PropertyNames, WithoutOneTheNumberIsTheName) {
  EXPECT_THAT(Names(""), ElementsAre("\"Property7\""));
  EXPECT_THAT(Names("", "Property_"), ElementsAre("\"Property_7\""));
  EXPECT_THAT(Names("", "Property", -2147483647 - 1), ElementsAre("\"Property-2147483648\""));
}

TEST_F(PropertyNames, ACommentForThePropertyComesSecondAndSoWins) {
  RegisterCommentName("PROP", 7, "Sheet");
  EXPECT_THAT(Names("Door"), ElementsAre("\"Door\"", "\"Sheet\""));
  EXPECT_THAT(Names(""), ElementsAre("\"Property7\"", "\"Sheet\""));
}

TEST_F(PropertyNames, TheCommentIsThatOfThePartsId) {
  RegisterCommentName("PROP", 8, "Other");
  RegisterCommentName("PROP", 7, "Sheet");
  EXPECT_THAT(Names("", "Property", 8), ElementsAre("\"Property8\"", "\"Sheet\""));
}

TEST_F(PropertyNames, CommentsForOtherThingsDoNotNameProperties) {
  RegisterCommentName("PROP", 8, "Other");
  RegisterCommentName("MAT", 7, "Steel");
  RegisterPropertyName(7, "Part", true);
  EXPECT_THAT(Names("Door"), ElementsAre("\"Door\""));
}

TEST_F(PropertyNames, TheFirstCommentForAPropertyStays) {
  RegisterCommentName("PROP", 7, "First");
  RegisterCommentName("PROP", 7, "Second");
  EXPECT_THAT(Names("Door"), ElementsAre("\"Door\"", "\"First\""));
}

TEST_F(PropertyNames, LongNamesAreCutTo255Characters) {
  RegisterCommentName("PROP", 7, std::string(300, 'c').c_str());
  EXPECT_THAT(Names(std::string(300, 'r').c_str()), ElementsAre("\"" + std::string(255, 'r') + "\"", "\"" + std::string(255, 'c') + "\""));
}

TEST_F(PropertyNames, BytesBeyondAsciiAreWidenedOneByOne) { EXPECT_THAT(Names("T\xC3\xBCr"), ElementsAre("\"T\\u{00C3}\\u{00BC}r\"")); }

// Each kind of property, with and without a name on the card and a comment.

TEST_F(PropertyNames, OfShells) {
  MeshPart* part = MakePart(7);
  MakeLinkedMaterial(5);
  AddRecord<PshellRecord>(&run.lists.pshell, 7, 5);
  AddRecord<PshellRecord>(&run.lists.pshell, 7, 5, "Door");
  CreateShellProperty(part, Source(), &run.lists.pshell, 7, 0, false);
  EXPECT_THAT(SetNames(), ElementsAre("\"Property7\"", "\"Door\""));
  RegisterCommentName("prop", 7, "Sheet");
  CreateShellProperty(part, Source(), &run.lists.pshell, 7, 0, false);
  EXPECT_THAT(SetNames(), ElementsAre("\"Property7\"", "\"Sheet\"", "\"Door\"", "\"Sheet\""));
}

TEST_F(PropertyNames, OfSolids) {
  MeshPart* part = MakePart(7);
  MakeLinkedMaterial(5);
  AddRecord<PsolidRecord>(&run.lists.psolid, 7, 5);
  AddRecord<PsolidRecord>(&run.lists.psolid, 7, 5, "Block");
  CreateSolidOrGasketProperty(part, Source(), &run.lists.psolid, &run.lists.pgask, 7);
  EXPECT_THAT(SetNames(), ElementsAre("\"Property7\"", "\"Block\""));
  RegisterCommentName("PROP", 7, "Body");
  CreateSolidOrGasketProperty(part, Source(), &run.lists.psolid, &run.lists.pgask, 7);
  EXPECT_THAT(SetNames(), ElementsAre("\"Property7\"", "\"Body\"", "\"Block\"", "\"Body\""));
}

TEST_F(PropertyNames, OfGaskets) {
  MeshPart* part = MakePart(7);
  MakeLinkedMaterial(5);
  AddRecord<PgaskRecord>(&run.lists.pgask, 7, 5);
  AddRecord<PgaskRecord>(&run.lists.pgask, 7, 5, "Seal");
  CreateSolidOrGasketProperty(part, Source(), &run.lists.psolid, &run.lists.pgask, 7);
  EXPECT_THAT(SetNames(), ElementsAre("\"Property_7\"", "\"Seal\""));
  RegisterCommentName("PROP", 7, "Rubber");
  CreateSolidOrGasketProperty(part, Source(), &run.lists.psolid, &run.lists.pgask, 7);
  EXPECT_THAT(SetNames(), ElementsAre("\"Property_7\"", "\"Rubber\"", "\"Seal\"", "\"Rubber\""));
}

}  // namespace
}  // namespace btz::test
