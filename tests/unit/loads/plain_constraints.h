// SPC, SPCD and SPC1 cards and their constraints the slow way: every record is found by a walk of its list, every group by a walk of the records
// that are left. The lists' cursors stand where the walks leave them. This is what the fast way has to give.
#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "deck/fields.h"
#include "host/host_interfaces.h"
#include "support/pooled_list.h"

namespace btz::test {

class PlainConstraints {
 public:
  /// One SPC or SPCD record.
  struct Spc {
    std::int32_t setId = 0;
    std::int32_t nodeId = 0;
    std::int32_t components = 0;
    std::array<std::int32_t, 6> dofFlag{};
    std::array<double, 6> dofValue{};
    bool isSpc = false;
    bool used = false;
  };

  /// One SPC1 record.
  struct Spc1 {
    std::int32_t setId = 0;
    std::int32_t components = 0;
    std::array<std::int32_t, 6> dofFlag{};
    PooledList nodes{};
  };

  PlainConstraints(MeshModel* meshModel, BoundaryStore* boundaryStore, CurveStore* curveStore)
      : model(meshModel), boundary(boundaryStore), curves(curveStore) {
    ListCellPoolInit(&cells);
    ListInit(&spcList, &cells);
    ListInit(&spc1List, &cells);
  }
  ~PlainConstraints() { ListCellPoolReset(&cells); }
  PlainConstraints(const PlainConstraints&) = delete;
  PlainConstraints& operator=(const PlainConstraints&) = delete;

  /// Reads all cards of a deck.
  void Read(const std::string& deck) {
    text = deck;
    at = 0;
    while (Char(at) != 0) {
      if (text.compare(at, 4, "SPC1") == 0) {
        ReadSpc1();
      } else if (text.compare(at, 3, "SPC") == 0) {
        ReadSpc();
      } else {
        PassLine();
      }
      places.push_back(at);
    }
  }

  void CreateConstraints() {
    CreateSpc();
    CreateSpc1();
  }

  std::vector<std::size_t> places;                                                   ///< Where each card left the cursor.
  std::string text;                                                                  ///< The deck, with what the cards wrote into it.
  std::map<std::int32_t, double> enforcedValues;                                     ///< First value by node.
  std::map<std::int32_t, std::pair<std::int32_t, bool>> systems;                     ///< System of a node, and whether it is used.
  std::map<std::pair<std::int32_t, std::int32_t>, std::vector<const Entity*>> sets;  ///< By set id and kind.

 private:
  struct Group {
    std::int32_t node = 0;
    std::int32_t components = 0;
    double value = 0.0;
  };

  char Char(std::size_t place) const { return place < text.size() ? text[place] : '\0'; }

  void Move(std::size_t count) {
    for (; count != 0 && Char(at) != 0; --count) {
      ++at;
    }
  }

  void MoveToLineEnd() {
    while (Char(at) != 0 && Char(at) != '\n') {
      ++at;
    }
  }

  void PassLine() {
    MoveToLineEnd();
    Move(1);
  }

  /// Text of a field that ends with its line.
  std::string Field(std::size_t width) const {
    std::string field;
    for (std::size_t i = at; i < at + width && Char(i) != 0 && Char(i) != '\n'; ++i) {
      field += Char(i);
    }
    return field;
  }

  static std::int32_t IntegerOf(const std::string& field) { return ParseInteger(field.c_str()); }

  std::int32_t TakeInteger(std::size_t width) {
    const std::string field = Field(width);
    at += field.size();
    return IntegerOf(field);
  }

  std::int32_t TakeId(std::size_t width) {
    if (Char(at) == '\n' || Char(at) == 0) {
      return 0;
    }
    const std::string field = Field(width);
    const std::size_t end = at + field.size();
    if (field.size() == width || Char(end) == 0) {
      at = end;
      return IntegerOf(field);
    }
    // A line feed stands in the field. What is put back is the byte behind the field's full width, or the NUL in front of it.
    std::size_t behind = at;
    while (behind < at + width && Char(behind) != 0) {
      ++behind;
    }
    const char saved = Char(behind);
    if (field.size() == 1) {
      text[at] = saved;
      return 0;
    }
    text[end] = saved;
    at = end;
    return IntegerOf(field);
  }

  double TakeReal(std::size_t width) {
    if (Char(at) == '\n') {
      ++at;
    }
    const std::string field = Field(width);
    at += field.size();
    return ParseReal(field.c_str());
  }

  void Step() {
    if (Char(at) == '+' || Char(at) == '*' || Char(at) == '\n') {
      MoveToLineEnd();
      Move(9);
    }
  }

  void ReadSpc() {
    const std::string keyword = text.substr(at, 8);
    const bool large = Char(at + 3) == '*' || (Char(at + 3) == 'D' && Char(at + 4) == '*');
    const bool small = keyword == "SPC     " || keyword == "SPCD    ";
    const bool isSpc = Char(at + 3) == ' ' || Char(at + 3) == '*';
    const std::size_t lineEnd = text.find('\n', at);
    if (text.substr(at, lineEnd - at).find('=') != std::string::npos) {
      Move(6);
      return;
    }
    if (!large && !small) {
      Move(7);
      return;
    }
    const std::size_t width = large ? 16 : 8;
    Move(8);
    const std::int32_t setId = TakeId(width);
    Step();
    Group groups[2];
    groups[0].node = TakeId(width);
    Step();
    groups[0].components = TakeId(width);
    Step();
    groups[0].value = TakeReal(width);
    if (groups[0].node >= 0) {
      enforcedValues.emplace(groups[0].node, groups[0].value);
    }
    int count = 1;
    if (large) {
      if (Char(at) == '\n') {
        Move(1);
        return;
      }
      if (Char(at) != '+' && Char(at) != '*') {
        return;
      }
      MoveToLineEnd();
      Move(2);
      if (text.compare(at, 7, "       ") == 0) {
        Move(7);
        count = 2;
        groups[1].node = TakeId(16);
      }
    } else {
      groups[1].node = TakeId(8);
      count = groups[1].node < 1 ? 1 : 2;
    }
    if (count == 2) {
      Step();
      groups[1].components = TakeId(width);
      Step();
      groups[1].value = TakeReal(width);
    }
    PassLine();
    EnterGroups(groups, count, setId, isSpc);
  }

  static void SetComponents(Spc* record, const Group& group) {
    for (std::int32_t number = group.components; number > 0; number /= 10) {
      const std::int32_t digit = number % 10;
      if (digit >= 1 && digit <= 6) {
        record->dofFlag[static_cast<std::size_t>(digit - 1)] = 1;
        record->dofValue[static_cast<std::size_t>(digit - 1)] = group.value;
      }
    }
  }

  void EnterGroups(const Group* groups, int count, std::int32_t setId, bool isSpc) {
    bool digits[10] = {};
    bool found = false;
    for (int i = 0; i < count; ++i) {
      const Group& group = groups[i];
      Spc* record = nullptr;
      std::int32_t lastNode = 0;
      bool hit = false;
      ListRewind(&spcList);
      while (void* value = ListNext(&spcList)) {
        record = static_cast<Spc*>(value);
        lastNode = record->nodeId;
        if (record->nodeId == group.node && record->setId == setId) {
          hit = true;
          break;
        }
      }
      if (hit) {
        found = true;
        SetComponents(record, group);
        MergeNumber(record, group.components, digits);
      } else if (!found || lastNode != group.node) {
        Spc* made = &spcRecords.emplace_back();
        made->setId = setId;
        made->nodeId = group.node;
        made->components = group.components;
        made->isSpc = isSpc;
        SetComponents(made, group);
        ListAppend(&spcList, made);
      }
    }
  }

  static void MergeNumber(Spc* record, std::int32_t components, bool (&digits)[10]) {
    if (record->components == components || components == 0) {
      return;
    }
    if (record->components == 0) {
      record->components = components;
      return;
    }
    for (std::int32_t number : {record->components, components}) {
      for (; number % 10 > 0; number /= 10) {
        digits[number % 10] = true;
      }
    }
    std::string merged;
    for (int digit = 1; digit <= 6; ++digit) {
      if (digits[digit]) {
        merged += static_cast<char>('0' + digit);
      }
    }
    record->components = IntegerOf(merged);
  }

  void ReadSpc1() {
    const bool large = Char(at + 4) == '*';
    if (!large && Char(at + 4) != ' ') {
      Move(4);
      return;
    }
    const std::size_t width = large ? 16 : 8;
    Move(8);
    const std::int32_t setId = TakeInteger(width);
    const std::int32_t components = TakeInteger(width);
    const std::int32_t first = TakeInteger(width);
    std::string word;
    for (std::size_t i = at; i < at + width && Char(i) != 0; ++i) {
      if (std::string(" \t\n\v\f\r").find(Char(i)) == std::string::npos) {
        word += Char(i);
      }
    }
    std::int32_t last = first;
    if (word == "THRU") {
      Move(width + (large ? 20 : 0));
      last = TakeInteger(width);
    }
    Spc1* record = nullptr;
    ListRewind(&spc1List);
    while (void* value = ListNext(&spc1List)) {
      auto* candidate = static_cast<Spc1*>(value);
      if (candidate->setId == setId && candidate->components == components) {
        record = candidate;
        break;
      }
    }
    if (record == nullptr) {
      record = &spc1Records.emplace_back();
      record->setId = setId;
      record->components = components;
      for (std::int32_t number = components; number > 0; number /= 10) {
        if (number % 10 >= 1 && number % 10 <= 6) {
          record->dofFlag[static_cast<std::size_t>(number % 10 - 1)] = 1;
        }
      }
      ListInit(&record->nodes, &cells);
      ListAppend(&spc1List, record);
    }
    MeshNode* node = nullptr;
    for (std::int32_t id = first; id <= last; ++id) {
      model->GetNode(id, &node);
      ListAppend(&record->nodes, node);
    }
  }

  void AddToSet(std::int32_t setId, std::int32_t kind, const Entity* entity) {
    if (setId >= 0) {
      sets[{setId, kind}].push_back(entity);
    }
  }

  /// The first system of the nodes, marked as used; `systemId` when there is no node.
  std::int32_t TakeSystem(PooledList* nodes, std::int32_t systemId) {
    ListRewind(nodes);
    while (void* value = ListNext(nodes)) {
      const auto found = systems.find(static_cast<MeshNode*>(value)->id);
      if (found != systems.end()) {
        found->second.second = true;
        return found->second.first;
      }
      systemId = 0;
    }
    return systemId;
  }

  void MarkSystems(PooledList* nodes) {
    ListRewind(nodes);
    while (void* value = ListNext(nodes)) {
      const auto found = systems.find(static_cast<MeshNode*>(value)->id);
      if (found != systems.end()) {
        found->second.second = true;
      }
    }
  }

  void CreateSpc() {
    if (spcList.size == 0) {
      return;
    }
    PooledList working;
    ListInit(&working, &cells);
    std::vector<Spc*> all;
    ListRewind(&spcList);
    while (void* value = ListNext(&spcList)) {
      ListAppend(&working, value);
      all.push_back(static_cast<Spc*>(value));
    }
    std::int32_t counter = 1;
    for (const Spc* record : all) {
      if (!record->used) {
        CreateSpcGroup(*record, &working, &counter);
      }
    }
  }

  void CreateSpcGroup(const Spc& first, PooledList* working, std::int32_t* counter) {
    double values[6] = {};
    double flags[6] = {};
    int masks[2] = {};
    PooledList nodes;
    ListInit(&nodes, &cells);
    std::deque<std::array<double, 9>> rows;
    ListRewind(working);
    while (void* value = ListNext(working)) {
      auto* member = static_cast<Spc*>(value);
      if (member->setId != first.setId || member->components != first.components) {
        continue;
      }
      ListRemoveCurrent(working, value);
      member->used = true;
      MeshNode* node = nullptr;
      model->GetNode(member->nodeId, &node);
      if (node != nullptr) {
        ListAppend(&nodes, node);
      }
      for (std::size_t i = 0; i < 6; ++i) {
        if (member->dofFlag[i] != 0) {
          masks[i / 3] |= 1 << (i % 3);
          values[i] = member->dofValue[i];
          flags[i] = member->dofFlag[i];
        }
      }
      std::array<double, 9> row{};
      for (std::size_t i = 0; i < 3; ++i) {
        row[i] = node == nullptr ? 0.0 : node->position[i];
      }
      std::copy(values, values + 6, row.begin() + 3);
      rows.push_back(row);
    }
    if (nodes.size == 0) {
      return;
    }
    btz::Field* field = nullptr;
    for (const std::array<double, 9>& row : rows) {
      if (!std::equal(row.begin() + 3, row.end(), rows[0].begin() + 3)) {
        field = MakeField(&rows, nodes.size);
        break;
      }
    }
    bool allZero = true;
    for (const double value : values) {
      allZero = allZero && value == 0.0;
    }
    const bool plain = first.isSpc && field == nullptr && allZero;
    std::wstring name = (plain ? L"Node_Constraint_" : L"EnforcedConstraint_") + std::to_wstring(first.setId);
    Entity* taken = nullptr;
    boundary->FindEntity(name.c_str(), &taken, 0, 6);
    if (taken != nullptr) {
      name += L"_" + std::to_wstring((*counter)++);
    }
    Constraint* constraint = nullptr;
    if (boundary->CreateConstraint(&constraint, plain ? 0 : 1) != 0) {
      return;
    }
    const std::int32_t systemId = TakeSystem(&nodes, 0);
    const double none[6] = {};
    const double* shown = plain ? flags : (field != nullptr ? none : values);
    constraint->SetTranslationMask(static_cast<std::uint8_t>(masks[0]));
    constraint->SetRotationMask(static_cast<std::uint8_t>(masks[1]));
    constraint->SetTranslations(shown[0], shown[1], shown[2]);
    constraint->SetRotations(shown[3], shown[4], shown[5]);
    constraint->SetNodes(&nodes);
    constraint->SetNodeBased(1);
    constraint->SetCoordinateSystem(systemId);
    if (systemId > 0) {
      MarkSystems(&nodes);
    }
    constraint->SetName(name.c_str());
    if (field != nullptr) {
      constraint->SetField(field, 0);
    }
    AddToSet(first.setId, plain ? 1 : 0, constraint);
  }

  btz::Field* MakeField(std::deque<std::array<double, 9>>* rows, std::int32_t nodeCount) {
    btz::Field* field = nullptr;
    curves->CreateField(&field);
    if (field == nullptr) {
      return nullptr;
    }
    PooledList list;
    ListInit(&list, &cells);
    for (std::array<double, 9>& row : *rows) {
      ListAppend(&list, row.data());
    }
    field->SetQuantity(L"Displacement");
    field->SetColumnCount(9);
    field->SetRowCount(nodeCount);
    field->SetRows(&list);
    return field;
  }

  void CreateSpc1() {
    std::int32_t counter = 1;
    std::int32_t systemId = 0;
    ListRewind(&spc1List);
    while (void* value = ListNext(&spc1List)) {
      auto* record = static_cast<Spc1*>(value);
      int masks[2] = {};
      for (std::size_t i = 0; i < 6; ++i) {
        masks[i / 3] |= record->dofFlag[i] << (i % 3);
      }
      systemId = TakeSystem(&record->nodes, systemId);
      Constraint* constraint = nullptr;
      if (boundary->CreateConstraint(&constraint, 0) != 0) {
        return;
      }
      constraint->SetTranslationMask(static_cast<std::uint8_t>(masks[0]));
      constraint->SetRotationMask(static_cast<std::uint8_t>(masks[1]));
      constraint->SetTranslations(record->dofFlag[0], record->dofFlag[1], record->dofFlag[2]);
      constraint->SetRotations(record->dofFlag[3], record->dofFlag[4], record->dofFlag[5]);
      constraint->SetNodes(&record->nodes);
      constraint->SetNodeBased(1);
      constraint->SetCoordinateSystem(systemId);
      constraint->SetName((L"Node Constraint" + std::to_wstring(counter++)).c_str());
      if (systemId > 0) {
        MarkSystems(&record->nodes);
      }
      AddToSet(record->setId, 1, constraint);
    }
  }

  MeshModel* model;
  BoundaryStore* boundary;
  CurveStore* curves;
  std::size_t at = 0;
  ListCellPool cells;
  PooledList spcList;
  PooledList spc1List;
  std::deque<Spc> spcRecords;
  std::deque<Spc1> spc1Records;
};

}  // namespace btz::test
