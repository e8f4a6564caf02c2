// Keys and equality of tables of host objects.
#include "mesh/host_keys.h"

#include <gtest/gtest.h>

#include <climits>
#include <initializer_list>
#include <vector>

#include "memory_host/memory_host.h"
#include "mesh/element_topology.h"

namespace btz::test {
namespace {

/// A face record with nodes of these ids; 0 stands for a null entry.
class Face {
 public:
  Face(std::int32_t typeIndex, std::initializer_list<std::int32_t> ids) : records(ids.size()) {
    for (const std::int32_t id : ids) {
      MeshNode& node = records[nodes.size()];
      node.id = id;
      nodes.push_back(id == 0 ? nullptr : &node);
    }
    element.typeIndex = typeIndex;
    element.nodes = nodes.data();
  }

  MeshElement element{};

 private:
  std::vector<MeshNode> records;
  std::vector<MeshNode*> nodes;
};

std::int32_t KeyOf(const Face& face) { return HashFaceNodes(&face.element, nullptr); }

bool AreEqual(const Face& a, const Face& b) { return CompareFaceNodes(&a.element, &b.element) == 0; }

TEST(FaceKey, IsTheLowestCornerId) {
  EXPECT_EQ(KeyOf({elementTria3, {7, 3, 9}}), 3);
  EXPECT_EQ(KeyOf({elementQuad4, {7, 8, 9, 2}}), 2);
  EXPECT_EQ(KeyOf({elementTria3, {4, 4, 4}}), 4);
}

TEST(FaceKey, LooksAtCornersOnly) {
  EXPECT_EQ(KeyOf({elementTria6, {7, 8, 9, 1, 2, 3}}), 7);
  EXPECT_EQ(KeyOf({elementQuad8, {7, 8, 9, 6, 1, 2, 3, 4}}), 6);
}

TEST(FaceKey, ANegativeIdReplacesTheKeyByItsAbsoluteValueWhenThatIsHigher) {
  EXPECT_EQ(KeyOf({elementTria3, {5, -9, 20}}), 9);
  EXPECT_EQ(KeyOf({elementTria3, {5, -4, 20}}), 5);
  EXPECT_EQ(KeyOf({elementTria3, {5, -9, 3}}), 3);
}

TEST(FaceKey, StartsWithTheFirstIdEvenIfItIsNegative) {
  // -5 first; then |-5| = 5 is above it; 3 is below 5.
  EXPECT_EQ(KeyOf({elementTria3, {-5, 10, 3}}), 3);
  EXPECT_EQ(KeyOf({elementTria3, {-5, 10, 12}}), 5);
}

TEST(FaceKey, AMissingCornerCountsAsNoId) {
  EXPECT_EQ(KeyOf({elementTria3, {7, 0, 9}}), 7);
  EXPECT_EQ(KeyOf({elementTria3, {0, 7, 9}}), 0);
}

TEST(FaceKey, ARecordWithoutCornersHasTheKeyZero) {
  Face face(elementTria3, {7, 8, 9});
  face.element.typeIndex = 17;
  EXPECT_EQ(KeyOf(face), 0);
  face.element.typeIndex = -1;
  EXPECT_EQ(KeyOf(face), 0);
  face.element.typeIndex = 1000;
  EXPECT_EQ(KeyOf(face), 0);
  face.element.typeIndex = elementTria3;
  face.element.nodes = nullptr;
  EXPECT_EQ(KeyOf(face), 0);
}

TEST(FaceEquality, TheSameCornersInAnyOrderAreEqual) {
  EXPECT_TRUE(AreEqual({elementTria3, {1, 2, 3}}, {elementTria3, {3, 1, 2}}));
  EXPECT_TRUE(AreEqual({elementQuad4, {1, 2, 3, 4}}, {elementQuad4, {4, 3, 2, 1}}));
}

TEST(FaceEquality, MidSideNodesAreNotLookedAt) { EXPECT_TRUE(AreEqual({elementTria6, {1, 2, 3, 4, 5, 6}}, {elementTria3, {2, 3, 1}})); }

TEST(FaceEquality, DifferentCornersAreNotEqual) { EXPECT_FALSE(AreEqual({elementTria3, {1, 2, 3}}, {elementTria3, {1, 2, 4}})); }

TEST(FaceEquality, DifferentNumbersOfCornersAreNotEqual) {
  EXPECT_FALSE(AreEqual({elementTria3, {1, 2, 3}}, {elementQuad4, {1, 2, 3, 4}}));
  EXPECT_FALSE(AreEqual({elementQuad4, {1, 2, 3, 4}}, {elementTria3, {1, 2, 3}}));
}

TEST(FaceEquality, WithoutCornersNothingIsEqual) {
  Face a(elementTria3, {1, 2, 3});
  Face b(elementTria3, {1, 2, 3});
  a.element.typeIndex = 17;
  b.element.typeIndex = 17;
  EXPECT_FALSE(AreEqual(a, b));
}

TEST(FaceEquality, TheLastCornerMustOccurJustOnce) {
  // Every corner of the first occurs in the second; how often is asked of the last one only.
  EXPECT_TRUE(AreEqual({elementTria3, {1, 1, 2}}, {elementTria3, {1, 1, 2}}));
  EXPECT_FALSE(AreEqual({elementTria3, {2, 1, 1}}, {elementTria3, {2, 1, 1}}));
  EXPECT_TRUE(AreEqual({elementTria3, {1, 1, 2}}, {elementTria3, {1, 3, 2}}));
}

TEST(HostObjectKey, IsTheIdNegatedBelowOne) {
  MemoryHost host;
  MeshModel* model = nullptr;
  host.GetProject()->GetMeshModel(&model, 1);
  const auto keyFor = [&](std::int32_t id) {
    MeshPart* part = nullptr;
    model->CreateBody(1, &part, id, 0, 1, 1);
    return HashHostObjectId(part, nullptr);
  };
  EXPECT_EQ(keyFor(12), 12);
  EXPECT_EQ(keyFor(0), 0);
  EXPECT_EQ(keyFor(-12), 12);
  EXPECT_EQ(keyFor(INT_MIN), INT_MIN);  // Has no positive counterpart; a table refuses it.
}

}  // namespace
}  // namespace btz::test
