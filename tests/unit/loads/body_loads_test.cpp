// GRAV and RFORCE cards: body loads that are made as the card is read.
#include "loads/body_loads.h"

#include <random>

#include "tests/unit/loads/loads_fixture.h"

namespace btz::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class BodyLoadCardTest : public LoadsTest {
 protected:
  std::string Grav(std::string_view text) {
    CardText card(text);
    ReadGravCard(&card.cursor, boundary, model);
    return card.Rest();
  }

  std::string Rforce(std::string_view text) {
    CardText card(text);
    ReadRforceCard(&card.cursor, boundary, model);
    return card.Rest();
  }

  void MakePart(std::int32_t id) {
    const std::string before = trace;
    MeshPart* part = nullptr;
    model->CreateBody(1, &part, id, 0, 1, 1);
    trace = before;
  }
};

TEST_F(BodyLoadCardTest, GravityIsTheVectorTimesTheAcceleration) {
  EXPECT_EQ(Grav(Small("GRAV|1|0|9.81|0.0|0.0|-1.0")), "\n");
  // 0.0 times the acceleration stays 0.0.
  EXPECT_THAT(Calls(), ElementsAre("BoundaryStore.CreateBodyLoad() -> 0 BodyLoad#1", "BodyLoad#1.SetGravity(0.0, 0.0, -9.81)"));
  EXPECT_THAT(SetItems(1, loadSet), ElementsAre("BodyLoad 1"));
}

TEST_F(BodyLoadCardTest, EachDirectionIsScaled) {
  Grav(Small("GRAV|1|3|2.|0.5|-1.5|1.+1"));
  EXPECT_EQ(Calls()[1], "BodyLoad#1.SetGravity(1.0, -3.0, 20.0)");
}

TEST_F(BodyLoadCardTest, NoAccelerationCountsAsOne) {
  Grav(Small("GRAV|1|0||0.5|-1.5|2."));
  Grav(Small("GRAV|1|0|0.0|0.5|-1.5|2."));
  EXPECT_THAT(Calls(), ElementsAre("BoundaryStore.CreateBodyLoad() -> 0 BodyLoad#1", "BodyLoad#1.SetGravity(0.5, -1.5, 2.0)",
                                   "BoundaryStore.CreateBodyLoad() -> 0 BodyLoad#2", "BodyLoad#2.SetGravity(0.5, -1.5, 2.0)"));
  EXPECT_THAT(SetItems(1, loadSet), ElementsAre("BodyLoad 1", "BodyLoad 2"));
}

TEST_F(BodyLoadCardTest, TheLastDirectionNeedsNoPadding) {
  EXPECT_EQ(Grav("GRAV    1       0       9.81    0.0     0.0     -1.0\nNEXT\n"), "\nNEXT\n");
  EXPECT_EQ(Calls()[1], "BodyLoad#1.SetGravity(0.0, 0.0, -9.81)");
}

// Required: a line that ends early goes on in the next one, whatever that is.
TEST_F(BodyLoadCardTest, AShortLineTakesItsVectorFromTheNext) {
  EXPECT_EQ(Grav("GRAV    1       0       2.0\n  1.5   2.0     3.0     NEXT\n"), "NEXT\n");
  EXPECT_EQ(Calls()[1], "BodyLoad#1.SetGravity(3.0, 4.0, 6.0)");
}

TEST_F(BodyLoadCardTest, RotationIsTheVectorAsItStands) {
  EXPECT_EQ(Rforce(Small("RFORCE|1|5|0|2.5|0.5|-1.5|1.0")), "\n");
  EXPECT_THAT(Calls(), ElementsAre("BoundaryStore.CreateBodyLoad() -> 0 BodyLoad#1", "BodyLoad#1.SetScaledRotationVector(0.5, -1.5, 1.0)"));
  EXPECT_THAT(SetItems(1, loadSet), ElementsAre("BodyLoad 1"));
}

TEST_F(BodyLoadCardTest, RotationWithoutAFactorIsOfAnotherKind) {
  Rforce(Small("RFORCE|1|5|0||0.5|-1.5|1.0"));
  Rforce(Small("RFORCE|1|5|0|0.0|0.5|-1.5|1.0"));
  Rforce(Small("RFORCE|1|5|0|-1.0|0.5|-1.5|1.0"));
  EXPECT_THAT(Calls(), ElementsAre("BoundaryStore.CreateBodyLoad() -> 0 BodyLoad#1", "BodyLoad#1.SetRotationVector(0.5, -1.5, 1.0)",
                                   "BoundaryStore.CreateBodyLoad() -> 0 BodyLoad#2", "BodyLoad#2.SetRotationVector(0.5, -1.5, 1.0)",
                                   "BoundaryStore.CreateBodyLoad() -> 0 BodyLoad#3", "BodyLoad#3.SetScaledRotationVector(0.5, -1.5, 1.0)"));
}

TEST_F(BodyLoadCardTest, OnlySmallFieldsAreRead) {
  const std::string grav = Large("GRAV*|1|0|9.81|0.0", "*\n") + Large("*|0.0|-1.0");
  const std::string rforce = Large("RFORCE*|1|5|0|2.5", "*\n") + Large("*|0.0|0.0|1.0");
  EXPECT_EQ(Grav(grav), grav);
  EXPECT_EQ(Rforce(rforce), rforce);
  EXPECT_THAT(Calls(), IsEmpty());
  EXPECT_EQ(LoadSetTable.size, 0);
}

TEST_F(BodyLoadCardTest, ALoadCoversThePartsThatExist) {
  Grav(Small("GRAV|1|0|1.0|0.0|0.0|-1.0"));
  MakePart(10);
  Grav(Small("GRAV|2|0|1.0|0.0|0.0|-1.0"));
  MakePart(4);
  Rforce(Small("RFORCE|3|5|0|2.5|0.0|0.0|1.0"));
  EXPECT_THAT(Calls(), ElementsAre("BoundaryStore.CreateBodyLoad() -> 0 BodyLoad#1", "BodyLoad#1.SetGravity(0.0, 0.0, -1.0)",
                                   "BoundaryStore.CreateBodyLoad() -> 0 BodyLoad#2", "BodyLoad#2.SetGravity(0.0, 0.0, -1.0)",
                                   "BodyLoad#2.SetParts([MeshPart#1])", "BoundaryStore.CreateBodyLoad() -> 0 BodyLoad#3",
                                   "BodyLoad#3.SetScaledRotationVector(0.0, 0.0, 1.0)", "BodyLoad#3.SetParts([MeshPart#1, MeshPart#2])"));
}

TEST_F(BodyLoadCardTest, ARefusedLoadIsFiledNowhere) {
  MakePart(10);
  host.Refusals().RefuseCall("BoundaryStore.CreateBodyLoad", 1);
  host.Refusals().RefuseCall("BoundaryStore.CreateBodyLoad", 2, Refusal::EmptySuccess);
  EXPECT_EQ(Grav(Small("GRAV|1|0|1.0|0.0|0.0|-1.0")), "\n");
  EXPECT_EQ(Rforce(Small("RFORCE|1|5|0|2.5|0.0|0.0|1.0")), "\n");
  EXPECT_THAT(Calls(), ElementsAre("BoundaryStore.CreateBodyLoad() -> 1", "BoundaryStore.CreateBodyLoad() -> 0"));
  EXPECT_EQ(LoadSetTable.size, 0);
}

TEST_F(BodyLoadCardTest, ANegativeSetIsFiledNowhere) {
  Grav(Small("GRAV|-1|0|1.0|0.0|0.0|-1.0"));
  EXPECT_EQ(Calls().size(), 2u);
  EXPECT_EQ(LoadSetTable.size, 0);
}

TEST_F(BodyLoadCardTest, CardsCutAtEveryByteStayInTheirText) {
  const std::string grav = "GRAV    1       0       9.81    0.0     0.0     -1.0";
  const std::string rforce = "RFORCE  1       5       0       2.5     0.0     0.0     1.0";
  for (std::size_t length = 4; length <= grav.size(); ++length) {
    EXPECT_EQ(Grav(grav.substr(0, length)), "");
  }
  for (std::size_t length = 6; length <= rforce.size(); ++length) {
    EXPECT_EQ(Rforce(rforce.substr(0, length)), "");
  }
}

TEST_F(BodyLoadCardTest, CardsWithBytesChangedStayInTheirText) {
  std::mt19937 random(97);
  const std::string meaningful = "\n\r ,+*=.E19";
  for (int round = 0; round < 2000; ++round) {
    std::string text = Small("|1|0|9.81|0.0|0.0|-1.0") + Small("|5|6");
    for (std::uint32_t changes = 1 + random() % 8; changes != 0; --changes) {
      text[random() % text.size()] = meaningful[random() % meaningful.size()];
    }
    Grav("GRAV" + text.substr(4));
    Rforce("RFORCE" + text.substr(6));
  }
}

}  // namespace
}  // namespace btz::test
