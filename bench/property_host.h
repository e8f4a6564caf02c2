// The ignoring host with what the property transfers need to do all their work: a part of its own for each property id, and materials and
// properties that take everything. It counts what it was asked and given.
#pragma once

#include <deque>

#include "bench/ignoring_host.h"

namespace btz {

/// Says that it has a name, so that the names of all parts are not compared pair by pair: that is another cost than the one looked for.
class NumberedPart final : public IgnoringPart {
 public:
  explicit NumberedPart(std::int32_t partId) : id(partId) {}
  std::int32_t GetId() override { return id; }
  std::int32_t IsNamed() override { return 1; }

 private:
  std::int32_t id;
};

class PartsModel final : public IgnoringModel {
 public:
  void CreateBody(std::int32_t /*kind*/, MeshPart** out, std::int32_t partId, std::int32_t /*flag1*/, std::int32_t /*flag2*/,
                  std::uint8_t /*flag3*/) override {
    *out = &parts.emplace_back(partId);
  }

  std::deque<NumberedPart> parts;
};

class PartsProject final : public IgnoringProject {
 public:
  void GetMeshModel(MeshModel** out, std::uint8_t /*mode*/) override { *out = &partsModel; }

  PartsModel partsModel;
};

class TakingMaterial final : public Material {
 public:
  std::int32_t number = 0;

  void GetNumber(std::int32_t* out) override { *out = number; }
  void SetDescriptor(MaterialDescriptor* /*descriptor*/) override {}
  void GetDescriptor(MaterialDescriptor** /*out*/) override {}
  void SetValues(NamedValueList* /*values*/) override {}
  void SetUsageFlag(std::int32_t /*flag*/) override {}
};

class TakingProperty final : public Property {
 public:
  void SetName(const wchar_t* /*name*/) override {}
  void SetDescriptor(PropertyDescriptor* /*descriptor*/) override {}
  void SetParts(PooledList* /*parts*/) override {}
  void SetValues(NamedValueList* /*values*/) override {}
  void SetLinkedIndex(std::int32_t /*index*/) override {}
};

class TakingMaterialStore final : public IgnoringMaterialStore {
 public:
  std::int64_t materialQuestions = 0;
  std::int64_t properties = 0;

  std::int32_t CreateMaterial(Material** out, std::int32_t id) override {
    materials.emplace_back().number = id;
    *out = &materials.back();
    return 0;
  }
  void GetMaterial(std::int32_t /*id*/, Material** out, std::int32_t* index) override {
    ++materialQuestions;
    *out = &materials.front();
    *index = 1;
  }
  std::int32_t CreateProperty(Property** out, std::int32_t /*id*/) override {
    ++properties;
    *out = &property;
    return 0;
  }

 private:
  std::deque<TakingMaterial> materials;
  TakingProperty property;
};

}  // namespace btz
