// Materials and properties of the in-memory host, and the section calculator.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "memory_host/host_context.h"

namespace btz::memory {

/// A host's copy of a NamedValue: nothing in it points to what the translator frees.
struct StoredValue {
  std::string key;
  std::int32_t kind = 0;
  std::int32_t extent = 0;
  std::optional<std::string> text;  ///< Text form of a real value, if one was given.
  double real = 0.0;                ///< ValueInteger, ValueFlag, ValueReal, ValueUnset.
  std::int32_t integer = 0;         ///< The choice of a ValueEnum, the field id of a ValueFieldRef.
  std::string characters;           ///< ValueText.
  void* object = nullptr;           ///< ValueObject: a host object or null.
};

/// Copies a value list during the call.
std::vector<StoredValue> ReadValues(HostObject& object, const char* operation, NamedValueList* list);

class MemoryMaterial final : public Material {
 public:
  MemoryMaterial(HostContext& context, std::int32_t materialNumber, std::int32_t order)
      : object(context, ObjectType::Material, this), number(materialNumber), index(order) {}

  void GetNumber(std::int32_t* out) override;
  void SetDescriptor(MaterialDescriptor* given) override;
  void GetDescriptor(MaterialDescriptor** out) override;
  void SetValues(NamedValueList* list) override;
  void SetUsageFlag(std::int32_t flag) override;

  HostObject object;
  std::int32_t number;
  std::int32_t index;               ///< Order of creation from 1.
  MaterialDescriptor descriptor{};  ///< Its name may be written over by the translator.
  std::wstring nameAsSet;           ///< Name in the descriptor that was set.
  std::vector<StoredValue> values;
  std::int32_t usageFlag = 0;
};

class MemoryProperty final : public Property {
 public:
  MemoryProperty(HostContext& context, std::int32_t propertyId) : object(context, ObjectType::Property, this), id(propertyId) {}

  void SetName(const wchar_t* text) override;
  void SetDescriptor(PropertyDescriptor* given) override;
  void SetParts(PooledList* list) override;
  void SetValues(NamedValueList* list) override;
  void SetLinkedIndex(std::int32_t index) override;

  HostObject object;
  std::int32_t id;
  std::wstring name;
  PropertyDescriptor descriptor{};
  std::vector<MeshPart*> parts;
  std::vector<StoredValue> values;
  std::int32_t linkedIndex = 0;
};

/// Round sections, full or hollow.
class MemorySectionCalculator final : public SectionCalculator {
 public:
  explicit MemorySectionCalculator(HostContext& context) : object(context, ObjectType::SectionCalculator, this) {}

  void ComputeHollowSection(double dim1, double dim2, SectionValues* out) override;
  void ComputeSolidSection(double dim1, SectionValues* out) override;

  HostObject object;
};

class MemoryMaterialStore final : public MaterialStore {
 public:
  explicit MemoryMaterialStore(HostContext& context) : object(context, ObjectType::MaterialStore, this), calculator(context) {}

  std::int32_t CreateMaterial(Material** out, std::int32_t id) override;
  void GetMaterial(std::int32_t id, Material** out, std::int32_t* index) override;
  std::int32_t CreateProperty(Property** out, std::int32_t id) override;
  void GetSectionCalculator(SectionCalculator** out) override;
  void Commit() override;

  /// The material of a number, or null.
  MemoryMaterial* FindMaterial(std::int32_t number);

  HostObject object;
  std::deque<MemoryMaterial> materials;
  std::deque<MemoryProperty> properties;
  MemorySectionCalculator calculator;
  bool committed = false;

 private:
  std::unordered_map<std::int32_t, MemoryMaterial*> byNumber_;
  std::int32_t highestNumber_ = 0;
};

}  // namespace btz::memory
