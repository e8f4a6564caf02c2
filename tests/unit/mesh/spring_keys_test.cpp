// Keys and equality of springs between two nodes and of the groups they make; equality of gap groups.
#include <gtest/gtest.h>

#include <climits>

#include "mesh/gaps.h"
#include "mesh/springs.h"

namespace btz::test {
namespace {

Celas2Record Between(std::int32_t node1, std::int32_t node2) {
  Celas2Record record{};
  record.node1 = node1;
  record.node2 = node2;
  return record;
}

Celas2Group GroupOf(std::int32_t translationMask, std::int32_t rotationMask, double stiffness = 0.0) {
  Celas2Group group{};
  group.translationMask = translationMask;
  group.rotationMask = rotationMask;
  for (double& value : group.stiffness) {
    value = stiffness;
  }
  return group;
}

TEST(SpringKeys, ANodePairHasTheLowerIdSigned) {
  Celas2Record record = Between(9, 4);
  EXPECT_EQ(HashNodePairMin(&record, nullptr), 4);
  record = Between(4, 9);
  EXPECT_EQ(HashNodePairMin(&record, nullptr), 4);
  record = Between(-4, 9);
  EXPECT_EQ(HashNodePairMin(&record, nullptr), -4);
}

TEST(SpringKeys, ASumOfNodesHasTheSumAndANullRecordMinusOne) {
  Celas2Record record = Between(9, 4);
  EXPECT_EQ(HashNodeSum(&record, nullptr), 13);
  EXPECT_EQ(HashNodeSum(nullptr, nullptr), -1);
  record = Between(INT_MAX, 1);
  EXPECT_EQ(HashNodeSum(&record, nullptr), INT_MIN);  // Wraps.
}

TEST(SpringKeys, AGroupHasTheSumOfItsMasks) {
  const Celas2Group group = GroupOf(9, 36);
  EXPECT_EQ(HashMaskSum(static_cast<const Celas2Record*>(&group), nullptr), 45);
  EXPECT_EQ(HashMaskSum(nullptr, nullptr), -1);
}

TEST(SpringEquality, NodePairsAreEqualInTheSameOrderOnly) {
  const Celas2Record a = Between(1, 2);
  const Celas2Record b = Between(1, 2);
  const Celas2Record turned = Between(2, 1);
  const Celas2Record other = Between(1, 3);
  EXPECT_EQ(CompareNodePair(&a, &b), 0);
  EXPECT_NE(CompareNodePair(&a, &turned), 0);
  EXPECT_NE(CompareNodePair(&a, &other), 0);
}

TEST(SpringEquality, GroupsWithEqualStiffnessAreEqual) {
  const Celas2Group a = GroupOf(1, 0, 5.0);
  const Celas2Group b = GroupOf(2, 0, 5.0);
  EXPECT_EQ(CompareSpringRecords(&a, &b), 0);
}

TEST(SpringEquality, OneStiffnessThatDiffersMakesGroupsUnequal) {
  for (int component = 0; component < 6; ++component) {
    const Celas2Group a = GroupOf(1, 2, 5.0);
    Celas2Group b = GroupOf(1, 4, 5.0);
    b.stiffness[component] = 6.0;
    EXPECT_NE(CompareSpringRecords(&a, &b), 0) << component;
  }
}

TEST(SpringEquality, BothMasksMustShareABitForGroupsOfUnequalStiffness) {
  const Celas2Group a = GroupOf(3, 6, 1.0);
  const Celas2Group both = GroupOf(2, 4, 2.0);
  const Celas2Group translationOnly = GroupOf(2, 8, 2.0);
  const Celas2Group rotationOnly = GroupOf(4, 2, 2.0);
  EXPECT_EQ(CompareSpringRecords(&a, &both), 0);
  EXPECT_NE(CompareSpringRecords(&a, &translationOnly), 0);
  EXPECT_NE(CompareSpringRecords(&a, &rotationOnly), 0);
}

TEST(SpringEquality, ASealedGroupEqualsNothing) {
  const Celas2Group open = GroupOf(3, 6, 1.0);
  Celas2Group sealed = GroupOf(3, 6, 1.0);
  sealed.sealed = 1;
  EXPECT_NE(CompareSpringRecords(&open, &sealed), 0);
  EXPECT_NE(CompareSpringRecords(&sealed, &open), 0);
  EXPECT_NE(CompareSpringRecords(&sealed, &sealed), 0);
}

TEST(SpringEquality, OnlyTheMarkOneSeals) {
  const Celas2Group open = GroupOf(3, 6, 1.0);
  Celas2Group marked = GroupOf(3, 6, 1.0);
  marked.sealed = 2;
  EXPECT_EQ(CompareSpringRecords(&open, &marked), 0);
}

TEST(GapEquality, AllThreeComponentsOfTheOrientationMustAgree) {
  GapGroup a{};
  a.orientation[0] = 0.1;
  a.orientation[1] = 0.2;
  a.orientation[2] = 0.3;
  GapGroup b = a;
  b.systemId = 5;  // Not looked at.
  EXPECT_EQ(CompareOrientation(&a, &b), 0);
  for (int component = 0; component < 3; ++component) {
    GapGroup c = a;
    c.orientation[component] += 1e-9;
    EXPECT_NE(CompareOrientation(&a, &c), 0) << component;
  }
}

}  // namespace
}  // namespace btz::test
