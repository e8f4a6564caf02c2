// Random SET cards of both forms, compared with the slow way: the sets that are made, their order and names, what they are filed under, and what
// each card leaves.
#include <random>

#include "tests/unit/deck/random_lines.h"
#include "tests/unit/sets/plain_sets.h"
#include "tests/unit/sets/set_card_fixture.h"

namespace btz::test {
namespace {

constexpr std::int32_t highestId = 12;

class SetsRandomTest : public SetCardTest, public testing::WithParamInterface<std::uint32_t> {
 protected:
  SetsRandomTest() : random(GetParam()) {
    for (std::int32_t id = 1; id <= highestId; ++id) {
      Give(0, id, &plain.nodes, [&] { MakeNodes({id}); });
      switch (random() % 4) {
        case 0:
          Give(1, id, &plain.rigids, [&] { MakeRigids({id}); });
          break;
        default:
          Give(2, id, &plain.shells, [&] { MakeShells({id}); });
      }
      Give(3, id, &plain.solids, [&] { MakeSolids({id}); });
    }
  }

  /// Makes the member, unless this deck is one of those that go without it. The seed says of which sorts there are few.
  template <typename MakeMember>
  void Give(std::uint32_t sort, std::int32_t id, std::set<std::int32_t>* members, MakeMember make) {
    const bool isRare = (GetParam() >> sort & 1) != 0;
    if (random() % 10 < (isRare ? 4 : 9)) {
      members->insert(id);
      make();
    }
  }

  template <std::size_t count>
  std::string OneOf(const char* const (&choices)[count]) {
    return choices[random() % count];
  }

  std::string Id() { return std::to_string(1 + random() % highestId); }

  std::string ListToken() {
    switch (random() % 24) {
      case 0:
      case 1:
      case 2: {
        const std::uint32_t first = 1 + random() % highestId;
        return std::to_string(first) + OneOf({" THRU ", " thru ", "  Thru\t"}) + std::to_string(first + random() % 4);
      }
      case 3:
        return OneOf({"3 THRU 1", "THRU", "2 THRU", "4THRU5", "1 THRU 2 EXCEPT 2", "-1 THRU 1", "$ 2 thru 2"});
      case 4:
        return OneOf({"", " ", "0", "+", "+ 12", "3 4", "-0", "2.5", "\t5"});
      case 5:
        return random() % 4 == 0 ? OneOf({"X", "$", "ALL", "GRID", "-1", "13", "1E+2", "5E2", "*"}) : Id();
      default:
        return Id();
    }
  }

  std::string ListText() {
    std::string text = "SET" + OneOf({" 1 =", " 2=", " -3 = ", " 1001=", "  7 = ", " 7\n", " 7 = "});
    if (random() % 30 == 0) {
      text = "SET 0 = ";
    }
    for (std::uint32_t tokens = random() % 9; tokens != 0; --tokens) {
      text += ListToken() + OneOf({",", ",", ", ", ", ", ",\n", ",\r\n", "\n", ",\n ", " ,", "\r\n", "\n\n"});
    }
    text += OneOf({"\n", "\n", "\n", "", "\r\n", "\nGRID    4\n", "\nSET 9 = 1\n", "\n$ note\n5\n", "\n  SPC1,2\n"});
    return text;
  }

  std::string GroupText() {
    const char* const heads[] = {"+       ", "+       ", "+A      ", "        ", "*       ", "", "+\n", "$ note\n"};
    const char* const fields[] = {"1       ", "2       ", "3       ", "4       ", "5       ", "6       ", "8       ", "      9 ",
                                  "12      ", "THRU    ", "THRU    ", "thru    ", "        ", "        ", "0       ", "-2      ",
                                  "13      ", "7A      ", "10E+1   ", "11*     ", "EXCEPT  ", "+       ", "*       "};
    const std::string word = OneOf({"GRID", "ELEM", "GRID", "ELEM", "grid", "eLeM", "LIST", ""});
    const std::string id = OneOf({"1", "2", "-3", "1001", "7", "0"});
    const bool isLarge = random() % 6 == 0;
    const std::string head = isLarge ? Large("SET*|" + id + "|" + word) : Small("SET|" + id + "|" + word, OneOf({"\n", "\n", "\r\n"}));
    return head + JoinRandomLines(random, heads, fields) + OneOf({"", "", "GRID    4\n", "FORCE   2\n", "CONM2*  3\n"});
  }

  void Compare(const std::string& text, const std::string& left) {
    ASSERT_EQ(Sets(), plain.sets) << text;
    ASSERT_EQ(left, plain.rest) << text;
  }

  void CompareFiled() {
    for (const std::int32_t id : {-3, 0, 1, 2, 7, 9, 1001}) {
      EXPECT_EQ(Filed(id), plain.filed[id]) << id;
    }
  }

  std::mt19937 random;
  PlainSets plain;
};

TEST_P(SetsRandomTest, Lists) {
  for (int i = 0; i < 400; ++i) {
    const std::string text = ListText();
    const std::string name = OneOf({"A", "B", "A_1"});
    plain.ReadList(text, name);
    ASSERT_NO_FATAL_FAILURE(Compare(text, List(text, name.c_str())));
  }
  EXPECT_GT(plain.made, 20u);
  CompareFiled();
}

TEST_P(SetsRandomTest, Groups) {
  for (int i = 0; i < 400; ++i) {
    const std::string text = GroupText();
    plain.ReadGroup(text, "A");
    ASSERT_NO_FATAL_FAILURE(Compare(text, Group(text, "A")));
  }
  EXPECT_GT(plain.made, 100u);
  CompareFiled();
}

INSTANTIATE_TEST_SUITE_P(Decks, SetsRandomTest, testing::Range(0u, 16u));

}  // namespace
}  // namespace btz::test
