// Case control of random lines against a plain reader, and readers on texts that are cut or changed anywhere.
#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <random>
#include <tuple>

#include "tests/unit/analysis/combination_fixture.h"

namespace btz::test {
namespace {

/// A subcase as the plain reader sees it.
struct PlainCase {
  std::map<std::string, std::int32_t> ids;
  std::string title;
  std::string analysis;
  bool skip = false;
};

std::string Upper(std::string text) {
  for (char& c : text) {
    c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c;
  }
  return text;
}

std::string Trimmed(std::string text) {
  const char* const blanks = " \t\n\v\f\r";
  text.erase(0, std::min(text.find_first_not_of(blanks), text.size()));
  text.erase(text.find_last_not_of(blanks) + 1);
  return text;
}

/// Reads subcases from the text as told in words; `*left` is what the reader leaves.
std::vector<PlainCase> ReadPlainly(std::string text, std::string* left) {
  // Those of the words below that begin a card of the list.
  const std::vector<std::string> cards = {"SET", "SPC", "MPC", "FREQ", "GRID", "LOAD", "DLOAD", "BEGIN", "EIGRL", "MFLUID", "CBAR", "SURF"};
  const std::map<std::string, std::string> fields = {{"SPC", "spc"},
                                                     {"LOAD", "load"},
                                                     {"DLOAD", "dload"},
                                                     {"PRETENSION", "pretension"},
                                                     {"TEMP(LOAD)", "temp"},
                                                     {"MPC", "mpc"},
                                                     {"SDAMPING", "damp"},
                                                     {"SDAMPING(STRUCTURE)", "damp"},
                                                     {"METHOD", "method"},
                                                     {"MFLUID", "fluid"},
                                                     {"FREQUENCY", "freq"},
                                                     {"METHOD(STRUCTURE)", "method"},
                                                     {"TEMPERATURE(LOAD)", "temp"}};
  std::vector<PlainCase> cases;
  bool mark = false;
  const auto close = [&] { cases.back().skip = !mark && Upper(cases.back().analysis) != "MODES"; };
  *left = text;
  const std::size_t first = text.find('\n');
  if (first == std::string::npos) {
    return cases;
  }
  text.erase(0, first + 1);
  cases.emplace_back();
  while (text.find('\n') != std::string::npos) {
    const std::size_t end = text.find('\n');
    const std::string line = Trimmed(text.substr(0, end));
    const char* const delimiters = ",=\t\v\a\b ";
    const std::size_t begin = std::min(line.find_first_not_of(delimiters), line.size());
    const std::size_t behind = std::min(line.find_first_of(delimiters, begin), line.size());
    const std::string keyword = line.substr(begin, behind - begin);
    std::string value = behind < line.size() ? line.substr(behind + 1) : "";
    std::erase(value, '=');
    value = Trimmed(value);
    const std::string word = Upper(keyword);
    if (word == "SUBTITLE" || word == "LABEL") {
      cases.back().title = value;
    } else if (word == "ANALYSIS") {
      cases.back().analysis = value;
    } else if (fields.contains(word)) {
      cases.back().ids[fields.at(word)] = std::atoi(value.c_str());
      mark = mark || (word != "FREQUENCY" && word != "MFLUID" && !word.starts_with("METHOD"));
    } else if (word == "SUBCASE") {
      close();
      cases.emplace_back();
      mark = false;
    } else if (word == "BEGIN" ||
               std::any_of(cards.begin(), cards.end(), [&](const std::string& card) { return keyword.starts_with(card); })) {
      break;
    }
    text.erase(0, end + 1);
  }
  close();
  *left = text;
  return cases;
}

class RandomCaseControl : public CombinationTest {
 protected:
  std::size_t Number(std::size_t count) { return std::uniform_int_distribution<std::size_t>(0, count - 1)(random); }
  std::string OneOf(const std::vector<std::string>& texts) { return texts[Number(texts.size())]; }

  std::string Line() {
    std::string word = OneOf({"SPC",
                              "LOAD",
                              "DLOAD",
                              "PRETENSION",
                              "TEMP(LOAD)",
                              "TEMPERATURE(LOAD)",
                              "MPC",
                              "SDAMPING",
                              "SDAMPING(STRUCTURE)",
                              "METHOD",
                              "METHOD(STRUCTURE)",
                              "MFLUID",
                              "FREQUENCY",
                              "SUBTITLE",
                              "LABEL",
                              "ANALYSIS",
                              "SUBCASE",
                              "SUBCASE",
                              "ECHO",
                              "DISPLACEMENT(PLOT)",
                              "$ SPC",
                              "TITLE",
                              "FORCE",
                              "PARAM",
                              ""});
    if (Number(25) == 0) {
      word =
          OneOf({"SET", "SPCFORCES", "MPCFORCES(PLOT)", "FREQ", "GRID", "LOADSET", "BEGIN", "EIGRL", "MFLUIDS", "CBAR*", "SURF", "SETS"});
    }
    if (Number(4) == 0) {
      for (char& c : word) {
        c = ToLower(c);
      }
    }
    return OneOf({"", "", "  ", "\t"}) + word + OneOf({" = ", "=", " =", "= ", " ", "", "  =  ", ",", " == "}) +
           OneOf({"1", "23", "-4", "ALL", "MODES", "modes", "Door = open", "STATICS", "", "7 $ text", "7,8"}) +
           OneOf({"", "", " ", "\r", "   \r"});
  }

  std::mt19937 random{1997};
};

TEST_F(RandomCaseControl, ReadsAsThePlainReaderDoes) {
  std::map<std::string, int> seen;
  for (int round = 0; round < 3000; ++round) {
    std::string text = "SUBCASE 1\n";
    for (std::size_t lines = Number(14); lines > 0; --lines) {
      text += Line() + "\n";
    }
    text += OneOf({"", "BEGIN BULK\n", "SPC = 3", "GRID    1\n"});
    FreeSubcases();
    ReadCases(text);
    std::string left;
    const std::vector<PlainCase> expected = ReadPlainly(text, &left);
    ASSERT_EQ(rest, left) << text;
    ASSERT_EQ(CaseCount(), expected.size()) << text;
    for (std::size_t i = 0; i < expected.size(); ++i) {
      PlainCase plain = expected[i];
      const SubcaseRecord& subcase = Subcase(i);
      ASSERT_EQ(subcase.title, plain.title) << text;
      ASSERT_EQ(subcase.analysisName, plain.analysis) << text;
      ASSERT_EQ(subcase.skip != 0, plain.skip) << text;
      ASSERT_EQ(std::tie(subcase.loadId, subcase.spcId, subcase.mpcId, subcase.temperatureId, subcase.dloadId),
                std::tie(plain.ids["load"], plain.ids["spc"], plain.ids["mpc"], plain.ids["temp"], plain.ids["dload"]))
          << text;
      ASSERT_EQ(std::tie(subcase.dampingId, subcase.pretensionId, subcase.fluidId, subcase.frequencyId, subcase.methodId),
                std::tie(plain.ids["damp"], plain.ids["pretension"], plain.ids["fluid"], plain.ids["freq"], plain.ids["method"]))
          << text;
      ++seen[plain.skip ? "skipped" : "kept"];
    }
    ++seen[left.empty() ? "at the end" : "given back"];
  }
  for (const char* what : {"skipped", "kept", "at the end", "given back"}) {
    EXPECT_GT(seen[what], 300) << what;
  }
}

/// Lines and cards of all forms.
const std::string sample =
    "SUBCASE 1\n  LOAD = 3\nSPC=9\r\nLABEL = a=b\nANALYSIS=MODES\nSUBCASE 2\nDLOAD 6\nMPC\nTEMP(LOAD)=4\nFORCE = ALL\nBEGIN BULK\n";
const std::string cards[] = {
    "LOAD    3       1.0     1.0     4       2.+1            5       +\n+       *       6\r\n        1.E-1   7       X\nGRID    1\n",
    "SPCADD  9       1       2+      *       THRU\n", "SPCADD  9       1       2\n+       3\n        4\n5       6\n", "LOAD    3\n7\n",
    "LOAD = 3\n"};

TEST_F(RandomCaseControl, TextsCutAtEveryByteLeaveNoMoreThanTheirRest) {
  for (std::size_t length = 0; length <= sample.size(); ++length) {
    FreeSubcases();
    ReadCases(sample.substr(0, length));
    EXPECT_LE(rest.size(), length);
  }
  for (const std::string& card : cards) {
    for (std::size_t length = 0; length <= card.size(); ++length) {
      for (const SubcaseId kind : {SubcaseId::Load, SubcaseId::Dload, SubcaseId::Spc, SubcaseId::Mpc}) {
        IdsOfCard(card.substr(0, length), kind);
        EXPECT_LE(rest.size(), length);
      }
    }
  }
}

TEST_F(RandomCaseControl, ChangedTextsEnd) {
  const std::string meaningful = "\n\r ,+*$-.0E'=:9S";
  for (int round = 0; round < 2000; ++round) {
    std::string text = OneOf({sample, cards[0], cards[1], cards[2], cards[3]});
    for (std::size_t changes = 1 + Number(8); changes > 0; --changes) {
      text[Number(text.size())] = meaningful[Number(meaningful.size())];
    }
    FreeSubcases();
    ReadCases(text);
    for (const SubcaseId kind : {SubcaseId::Load, SubcaseId::Spc}) {
      IdsOfCard(text, kind);
      EXPECT_LE(rest.size(), text.size());
    }
  }
}

}  // namespace
}  // namespace btz::test
