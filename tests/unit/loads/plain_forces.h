// Forces and moments in the plainest way, as a model for random tests: tables with all their buckets, records moved from table to table, every
// pair of nodes and every pair of loads compared, every field taken by its own test.
#pragma once

#include <cmath>
#include <cstring>
#include <deque>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "deck/plain_line_walk.h"
#include "host/host_interfaces.h"
#include "support/hash_keys.h"
#include "support/hash_table.h"
#include "support/pooled_list.h"

namespace btz::test {

struct PlainNode {
  MeshNode* node;
  double force[3];
  double moment[3];
  std::int32_t csId;
  bool isMoment;
};

struct PlainSet {
  std::int32_t setId;
  std::int32_t csId;
  double force[3];
  double moment[3];
  bool mixed;
  HashTable nodes;
  std::string name;
};

/// One kind of card through a run.
struct PlainCards {
  double reference[3] = {};
  std::int32_t count = 0;
};

inline void PlainCopy(const double* from, double* to) { std::memcpy(to, from, 3 * sizeof(double)); }

inline bool PlainEqual(const double* a, const double* b) { return a[0] == b[0] && a[1] == b[1] && a[2] == b[2]; }

inline std::int32_t IdOf(Entity* entity) {
  std::int32_t id = 0;
  entity->GetId(&id);
  return id;
}

class PlainForces {
 public:
  PlainForces(MeshModel* usedModel, BoundaryStore* usedBoundary, CurveStore* usedCurves)
      : model(usedModel), boundary(usedBoundary), curves(usedCurves) {
    Create(&setTable, HashFirstInt);
    ListCellPoolInit(&pool);
  }

  ~PlainForces() {
    for (PlainSet& set : sets) {
      HashRelease(&set.nodes);
    }
    HashRelease(&setTable);
    ListCellPoolReset(&pool);
  }

  PlainForces(const PlainForces&) = delete;
  PlainForces& operator=(const PlainForces&) = delete;

  /// Reads a card at the head of the text; gives the place behind it.
  std::size_t Read(const std::string& content, bool isMoment, const std::string& name) {
    PlainCards& cards = isMoment ? moments : forces;
    ++cards.count;
    std::size_t place = 0;
    std::int32_t ids[3] = {};
    double vector[3] = {};
    if (!ReadVector(content, &place, isMoment ? 6 : 5, ids, vector)) {
      return place;
    }
    const std::int32_t setId = ids[0];
    PlainSet* set = FindSet(setId);
    const bool isNew = set == nullptr;
    bool isStored = true;
    if (isNew) {
      sets.push_back({setId, ids[2], {}, {}, false, {}, name});
      set = &sets.back();
      Create(&set->nodes, HashIndirectId);
      if (!isMoment) {
        PlainCopy(vector, set->force);
      }
      isStored = HashInsert(&setTable, set) == 1;
    }
    if (!isNew && !set->mixed) {
      PlainCopy(isMoment ? set->moment : set->force, cards.reference);
    }
    if (isNew || cards.count == 1) {
      PlainCopy(vector, cards.reference);
    }
    if (!set->mixed && !isNew && cards.count != 1) {
      set->mixed = isMoment ? vector[0] != cards.reference[0] : !PlainEqual(vector, cards.reference);
    }
    if (isMoment) {
      PlainCopy(vector, set->moment);
    }
    EnterNode(set, ids[1], ids[2], vector, isMoment);
    if (!isStored) {
      HashRelease(&set->nodes);
      sets.pop_back();
    }
    return place;
  }

  void CreateLoads(std::int32_t* number) {
    HashIterateStart(&setTable);
    while (auto* set = static_cast<PlainSet*>(HashIterateNext(&setTable))) {
      std::int32_t rowCount = 0;
      std::int32_t groups = 0;
      while (HashCount(&set->nodes) != 0) {
        HashTable group;
        Create(&group, HashIndirectId);
        const std::int32_t csId = MoveFirstSystem(&set->nodes, &group);
        if (set->mixed) {
          CreateMixed(set, &group, csId, &rowCount, &groups, number);
        } else {
          CreateUniform(set, &group, csId, &groups, number);
        }
        HashRelease(&group);
      }
    }
  }

  std::map<std::int32_t, std::vector<std::int32_t>> loads;  ///< Ids of the host's forces by set.

 private:
  static void Create(HashTable* table, HashFunction hash) {
    HashInit(table);
    HashCreate(table, 1000, hash, nullptr, nullptr, 0);
  }

  /// Set, node and system, and the scaled vector. False when there is nothing to enter.
  static bool ReadVector(const std::string& content, std::size_t* place, std::size_t keywordLength, std::int32_t* ids, double* vector) {
    const char behind = PlainAt(content, keywordLength);
    if (behind == ',') {
      const std::size_t feed = content.find('\n');
      if (feed == std::string::npos) {
        return false;
      }
      const std::vector<std::string> tokens = Tokens(content.substr(0, feed));
      const auto token = [&](std::size_t index) { return index < tokens.size() ? tokens[index] : std::string(); };
      *place = feed + 1;
      for (std::size_t i = 0; i < 3; ++i) {
        ids[i] = PlainIntegerOf(token(1 + i));
        vector[i] = ParseReal(token(5 + i).c_str()) * ParseReal(token(4).c_str());
      }
      return ids[1] >= 1;
    }
    const std::int32_t width = behind == '*' ? 16 : 8;
    *place = std::min<std::size_t>(8, content.size());
    for (int i = 0; i < 3; ++i) {
      ids[i] = PlainInteger(content, place, width);
    }
    const double scale = PlainReal(content, place, width);
    if (ids[1] < 1) {
      return false;
    }
    const std::vector<double> components = PlainLineReals(content, place, width, 3);
    for (std::size_t i = 0; i < 3; ++i) {
      vector[i] = (i < components.size() ? components[i] : 0.0) * scale;
    }
    return true;
  }

  /// What stands between delimiters.
  static std::vector<std::string> Tokens(const std::string& line) {
    const std::string delimiters = ",=\t\v\a\b\n ";
    std::vector<std::string> tokens;
    for (std::size_t at = line.find_first_not_of(delimiters); at != std::string::npos; at = line.find_first_not_of(delimiters, at)) {
      const std::size_t end = std::min(line.find_first_of(delimiters, at), line.size());
      tokens.push_back(line.substr(at, end - at));
      at = end;
    }
    return tokens;
  }

  PlainSet* FindSet(std::int32_t setId) {
    PlainSet probe{};
    probe.setId = setId;
    return static_cast<PlainSet*>(HashFind(&setTable, &probe));
  }

  void EnterNode(PlainSet* set, std::int32_t nodeId, std::int32_t csId, const double* vector, bool isMoment) {
    MeshNode* node = nullptr;
    model->GetNode(nodeId, &node);
    if (node == nullptr) {
      return;
    }
    PlainNode probe{};
    probe.node = node;
    auto* record = static_cast<PlainNode*>(HashFind(&set->nodes, &probe));
    if (record == nullptr) {
      nodes.push_back({node, {}, {}, csId, isMoment});
      record = &nodes.back();
      HashInsert(&set->nodes, record);
    }
    PlainCopy(vector, isMoment ? record->moment : record->force);
  }

  /// Moves all records of the first one's system.
  static std::int32_t MoveFirstSystem(HashTable* from, HashTable* to) {
    HashIterateStart(from);
    const std::int32_t csId = static_cast<PlainNode*>(HashIterateNext(from))->csId;
    HashIterateStart(from);
    while (auto* record = static_cast<PlainNode*>(HashIterateNext(from))) {
      if (record->csId == csId) {
        HashDelete(from, record);
        HashInsert(to, record);
      }
    }
    return csId;
  }

  static std::vector<PlainNode*> RecordsOf(HashTable* table) {
    std::vector<PlainNode*> records;
    WalkTable<PlainNode>(table, [&](PlainNode* record) { records.push_back(record); });
    return records;
  }

  static bool HasCoincidentPair(const std::vector<PlainNode*>& records) {
    for (const PlainNode* a : records) {
      for (const PlainNode* b : records) {
        const double* p = a->node->position;
        const double* q = b->node->position;
        if (a != b && std::sqrt((p[0] - q[0]) * (p[0] - q[0]) + (p[1] - q[1]) * (p[1] - q[1]) + (p[2] - q[2]) * (p[2] - q[2])) == 0.0) {
          return true;
        }
      }
    }
    return false;
  }

  void Split(HashTable* group, std::int32_t csId, std::int32_t* number, std::int32_t setId) {
    HashTable scan;
    Create(&scan, HashIndirectId);
    WalkTable<PlainNode>(group, [&](PlainNode* record) { HashInsert(&scan, record); });
    if (HasCoincidentPair(RecordsOf(&scan))) {
      HashClear(group);
      while (HashCount(&scan) != 0) {
        HashIterateStart(&scan);
        auto* pattern = static_cast<PlainNode*>(HashIterateNext(&scan));
        std::vector<PlainNode*> run;
        HashIterateStart(&scan);
        while (auto* record = static_cast<PlainNode*>(HashIterateNext(&scan))) {
          if (PlainEqual(record->force, pattern->force) && PlainEqual(record->moment, pattern->moment)) {
            run.push_back(record);
            HashDelete(&scan, record);
          }
        }
        if (run.size() == 1) {
          HashInsert(group, pattern);
        } else {
          CreateRun(*pattern, run, csId, number, setId);
        }
      }
    }
    HashRelease(&scan);
  }

  void FillList(PooledList* list, const std::vector<PlainNode*>& records) {
    ListInit(list, &pool);
    for (const PlainNode* record : records) {
      ListAppend(list, record->node);
    }
  }

  void CreateRun(const PlainNode& pattern, const std::vector<PlainNode*>& run, std::int32_t csId, std::int32_t* number,
                 std::int32_t setId) {
    ForceLoad* force = nullptr;
    std::int32_t id = 0;
    if (boundary->CreateForce(&force, &id) != 0) {
      return;
    }
    PooledList list;
    FillList(&list, run);
    force->SetNodeBased(1);
    force->SetForce(pattern.force[0], pattern.force[1], pattern.force[2]);
    force->SetMoment(pattern.moment[0], pattern.moment[1], pattern.moment[2]);
    force->SetCoordinateSystem(csId);
    force->SetNodes(&list);
    ListClear(&list);
    Name(force, NextName(number));
    loads[setId].push_back(IdOf(force));
  }

  static std::string NextName(std::int32_t* number) { return "PointForce" + std::to_string((*number)++); }

  static void Name(ForceLoad* force, const std::string& name) {
    std::wstring wide;
    for (const char c : name) {
      wide += static_cast<wchar_t>(static_cast<unsigned char>(c));
    }
    force->SetName(wide.c_str());
  }

  void CreateMixed(PlainSet* set, HashTable* group, std::int32_t csId, std::int32_t* rowCount, std::int32_t* groups, std::int32_t* number) {
    Split(group, csId, number, set->setId);
    const std::vector<PlainNode*> records = RecordsOf(group);
    if (records.empty()) {
      return;
    }
    std::deque<std::vector<double>> rows;
    PooledList rowList;
    ListInit(&rowList, &pool);
    for (const PlainNode* record : records) {
      const double* xyz = record->node->position;
      rows.push_back({xyz[0], xyz[1], xyz[2], record->force[0], record->force[1], record->force[2], record->moment[0], record->moment[1],
                      record->moment[2]});
      ListAppend(&rowList, rows.back().data());
      ++*rowCount;
    }
    Field* field = nullptr;
    curves->CreateField(&field);
    if (field != nullptr) {
      field->SetQuantity(L"Force");
      field->SetColumnCount(9);
      field->SetRowCount(*rowCount);
      field->SetRows(&rowList);
      if (++*groups > 1) {
        set->name = NextName(number);
      }
      CreatePointForce(set, csId, records, number, field);
    }
    ListClear(&rowList);
  }

  void CreateUniform(PlainSet* set, HashTable* group, std::int32_t csId, std::int32_t* groups, std::int32_t* number) {
    const std::vector<PlainNode*> records = RecordsOf(group);
    for (const PlainNode* record : records) {
      if (record == records.front()) {
        PlainCopy(record->force, set->force);
      }
      if (record == records.front() || record->isMoment) {
        PlainCopy(record->moment, set->moment);
      }
    }
    if (++*groups > 1) {
      set->name = NextName(number);
    }
    CreatePointForce(set, csId, records, number, nullptr);
  }

  void CreatePointForce(PlainSet* set, std::int32_t csId, const std::vector<PlainNode*>& records, std::int32_t* number, Field* field) {
    ForceLoad* force = nullptr;
    std::int32_t id = 0;
    if (boundary->CreateForce(&force, &id) != 0) {
      return;
    }
    PooledList list;
    FillList(&list, records);
    constexpr double ones[3] = {1.0, 1.0, 1.0};
    constexpr double none[3] = {};
    const double* vector = set->mixed ? ones : set->force;
    const double* moment = set->mixed ? none : set->moment;
    force->SetNodeBased(1);
    force->SetForce(vector[0], vector[1], vector[2]);
    force->SetMoment(moment[0], moment[1], moment[2]);
    force->SetCoordinateSystem(csId);
    force->SetNodes(&list);
    ListClear(&list);
    force->SetField(field, 0);
    Name(force, set->name.empty() ? NextName(number) : set->name);
    loads[set->setId].push_back(IdOf(force));
  }

  MeshModel* model;
  BoundaryStore* boundary;
  CurveStore* curves;
  PlainCards forces;
  PlainCards moments;
  HashTable setTable;
  std::deque<PlainSet> sets;
  std::deque<PlainNode> nodes;
  ListCellPool pool;
};

}  // namespace btz::test
