// SET cards read without any short cut, each step as it is told, on a string and a place in it: a model for tests that compare the readers with it.
#pragma once

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "tests/unit/deck/plain_line_walk.h"

namespace btz::test {

/// What a deck has, and the sets that its cards make in the words of SetCardTest::Sets.
struct PlainSets {
  std::set<std::int32_t> nodes;
  std::set<std::int32_t> shells;
  std::set<std::int32_t> solids;
  std::set<std::int32_t> rigids;
  std::set<std::pair<std::int32_t, std::string>> names;    ///< Kind and name of the sets so far.
  std::map<std::int32_t, std::vector<std::size_t>> filed;  ///< Numbers of the sets, by set id.
  std::size_t made = 0;

  std::vector<std::string> sets;  ///< Of the last card.
  std::string rest;               ///< What the last card left.

  void ReadList(const std::string& text, const std::string& name) {
    sets.clear();
    std::size_t place = 3;
    std::string id;
    while (PlainAt(text, place) != '=' && PlainAt(text, place) != '\n' && PlainAt(text, place) != 0) {
      id += text[place++];
    }
    place += PlainAt(text, place) == '=' ? 1 : 0;
    const std::int32_t setId = PlainIntegerOf(id);
    rest = text.substr(place);
    if (setId == 0) {
      return;
    }
    ListNumbers numbers;
    rest = WalkList(text, place, &numbers);
    if (numbers.nodeMissing && numbers.elementMissing) {
      return;
    }
    if (!numbers.nodes.empty() && !numbers.nodeMissing) {
      MakeListSet(setId, 0, name, numbers.nodes);
    }
    if (!numbers.elements.empty() && !numbers.elementMissing) {
      MakeListSet(setId, numbers.solidFound ? 3 : 1, name, numbers.elements);
    }
    if (!numbers.rigids.empty() && !numbers.elementMissing) {
      MakeListSet(setId, 4, name, numbers.rigids);
    }
  }

  void ReadGroup(const std::string& text, const std::string& name) {
    sets.clear();
    rest = text;
    const std::size_t feed = text.find('\n');
    if (text.starts_with("SET,") || feed == std::string::npos) {
      return;
    }
    const std::int32_t width = text.starts_with("SET*") ? 16 : 8;
    std::string line = text.substr(0, feed);
    line.resize(std::max<std::size_t>(line.size(), 40), ' ');
    rest = text.substr(feed + 1);
    const std::string word = Lowered(Trimmed(line.substr(static_cast<std::size_t>(8 + width), static_cast<std::size_t>(width))));
    if (word != "grid" && word != "elem") {
      return;
    }
    GroupNumbers numbers;
    numbers.isNodeSet = word == "grid";
    rest = WalkGroup(text, feed + 1, width, &numbers);
    if (numbers.ids.empty()) {
      return;
    }
    const std::int32_t kind = numbers.isNodeSet ? 0 : (numbers.solidFound ? 3 : 1);
    Make(PlainIntegerOf(line.substr(8)), kind, name, numbers.ids);
  }

 private:
  struct ListNumbers {
    std::vector<std::int32_t> nodes;
    std::vector<std::int32_t> elements;
    std::vector<std::int32_t> rigids;
    bool nodeMissing = false;
    bool elementMissing = false;
    bool solidFound = false;
  };

  struct GroupNumbers {
    bool isNodeSet = false;
    bool isRange = false;
    bool solidFound = false;
    std::int32_t first = 0;
    std::int32_t last = 0;
    std::vector<std::int32_t> ids;
  };

  static std::string Trimmed(std::string text) {
    while (!text.empty() && IsPlainSpace(text.back())) {
      text.pop_back();
    }
    while (!text.empty() && IsPlainSpace(text.front())) {
      text.erase(text.begin());
    }
    return text;
  }

  static std::string Lowered(std::string text) {
    for (char& c : text) {
      c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    }
    return text;
  }

  /// One field of the free form: 0, 1 or -1. `*start` is where it begins.
  static int TakeCommaField(const std::string& text, std::size_t* place, std::size_t* start, std::string* dest) {
    std::size_t at = *place;
    while (IsPlainSpace(PlainAt(text, at))) {
      ++at;
    }
    *start = at;
    const char kept = PlainAt(text, at);
    while (PlainAt(text, at) == '+' || IsPlainSpace(PlainAt(text, at))) {
      ++at;
    }
    dest->clear();
    for (;; ++at) {
      const char c = PlainAt(text, at);
      if (c == 0) {
        return -1;
      }
      if (c == ',') {
        *place = at + (PlainAt(text, at + 1) == '\n' ? 2 : 1);
        return 0;
      }
      *dest += dest->empty() ? kept : c;
      if (c == '\n') {
        while (IsPlainSpace(PlainAt(text, at))) {
          ++at;
        }
        *place = at;
        return 1;
      }
    }
  }

  /// Words of a token, as a splitter that skips delimiters in a row gives them.
  static std::vector<std::string> Words(const std::string& token) {
    std::vector<std::string> words;
    const std::string delimiters = ",=\t\v\a\b\n ";
    for (std::size_t at = token.find_first_not_of(delimiters); at != std::string::npos; at = token.find_first_not_of(delimiters, at)) {
      const std::size_t end = std::min(token.find_first_of(delimiters, at), token.size());
      words.push_back(token.substr(at, end - at));
      at = end;
    }
    words.resize(std::max<std::size_t>(words.size(), 3));
    return words;
  }

  std::string WalkList(const std::string& text, std::size_t place, ListNumbers* numbers) const {
    while (true) {
      std::size_t start = 0;
      std::string token;
      if (TakeCommaField(text, &place, &start, &token) == -1) {
        return "";
      }
      if (token.empty()) {
        continue;
      }
      if (!PlainText(token)) {
        if (PlainIntegerOf(token) != 0) {
          TakeListId(PlainIntegerOf(token), numbers);
        }
        continue;
      }
      if (Lowered(token).find("thru") == std::string::npos) {
        return text.substr(start);
      }
      const std::vector<std::string> words = Words(token);
      for (std::int32_t id = PlainIntegerOf(words[0]); id <= PlainIntegerOf(words[2]); ++id) {
        TakeListId(id, numbers);
      }
    }
  }

  void TakeListId(std::int32_t id, ListNumbers* numbers) const {
    if (nodes.contains(id)) {
      numbers->nodes.push_back(id);
    } else {
      numbers->nodeMissing = true;
    }
    if (!shells.contains(id) && !rigids.contains(id)) {
      numbers->solidFound = true;
      if (!solids.contains(id)) {
        numbers->elementMissing = true;
        return;
      }
    }
    (rigids.contains(id) ? numbers->rigids : numbers->elements).push_back(id);
  }

  std::string WalkGroup(const std::string& text, std::size_t place, std::int32_t width, GroupNumbers* numbers) const {
    while (true) {
      const std::string field = PlainField(text, place, static_cast<std::size_t>(width));
      const bool zero = PlainIntegerOf(field) == 0;
      if (PlainMark(field)) {
        PlainSkip(text, &place, width);
      } else if (field.empty()) {
        if (PlainSkip(text, &place, width) == 1) {
          return "";
        }
      } else if (zero && field.find('*') != std::string::npos) {
        if (IsCardKeyword(field.c_str())) {
          return text.substr(place);
        }
        PlainSkip(text, &place, 8);
      } else if (PlainText(field) && Lowered(field) == "thru") {
        numbers->isRange = true;
        PlainSkip(text, &place, width);
      } else if (PlainText(field) && zero) {
        return text.substr(place);
      } else if (text[place] == '\n') {
        ++place;
      } else {
        TakeGroupValue(PlainInteger(text, &place, width), numbers);
      }
    }
  }

  void TakeGroupValue(std::int32_t value, GroupNumbers* numbers) const {
    if (value == 0) {
      return;
    }
    if (!numbers->isRange) {
      numbers->first = value;
    } else {
      numbers->last = value;
      numbers->isRange = false;
    }
    if (numbers->first < 1 || numbers->last < 1) {
      AddToGroup(value, numbers);
      return;
    }
    for (std::int32_t id = numbers->first + 1; id <= numbers->last; ++id) {
      AddToGroup(id, numbers);
    }
    numbers->first = 0;
    numbers->last = 0;
  }

  void AddToGroup(std::int32_t id, GroupNumbers* numbers) const {
    if (numbers->isNodeSet) {
      if (nodes.contains(id)) {
        numbers->ids.push_back(id);
      }
      return;
    }
    if (shells.contains(id) || rigids.contains(id)) {
      numbers->ids.push_back(id);
    } else if (solids.contains(id)) {
      numbers->solidFound = true;
      numbers->ids.push_back(id);
    }
  }

  void MakeListSet(std::int32_t setId, std::int32_t kind, const std::string& name, const std::vector<std::int32_t>& ids) {
    Make(setId, kind, names.contains({kind, name}) ? name + "_1" : name, ids);
  }

  void Make(std::int32_t setId, std::int32_t kind, const std::string& name, const std::vector<std::int32_t>& ids) {
    names.insert({kind, name});
    std::string text = "kind " + std::to_string(kind) + " of type " + (kind == 0 ? "5" : "6") + " \"" + name + "\":";
    for (const std::int32_t id : ids) {
      text += " " + std::to_string(id);
    }
    sets.push_back(text);
    ++made;
    if (setId >= 0) {
      filed[setId].push_back(made);
    }
  }
};

}  // namespace btz::test
