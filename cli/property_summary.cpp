#include "cli/property_summary.h"

#include <algorithm>
#include <initializer_list>
#include <unordered_map>

#include "cli/display_text.h"
#include "memory_host/memory_host.h"

namespace btz::cli {

namespace {

/// Materials by the address that the library knows them by.
using MaterialsByAddress = std::unordered_map<const void*, const memory::MemoryMaterial*>;

MaterialsByAddress IndexMaterials(const memory::MemoryMaterialStore& store) {
  MaterialsByAddress materials;
  for (const memory::MemoryMaterial& material : store.materials) {
    materials.emplace(static_cast<const Material*>(&material), &material);
  }
  return materials;
}

const memory::MemoryMaterial* FindMaterial(const MaterialsByAddress& materials, const void* address) {
  const auto found = materials.find(address);
  return found == materials.end() ? nullptr : found->second;
}

std::string JoinWords(std::initializer_list<const wchar_t*> words) {
  std::string text;
  for (const wchar_t* word : words) {
    if (*word != 0) {
      text += text.empty() ? "" : ", ";
      text += DisplayText(word);
    }
  }
  return text.empty() ? "not described" : text;
}

/// A narrow text of the library: single bytes, like the names.
std::string ShownText(const std::string& bytes) {
  std::wstring wide;
  for (const char byte : bytes) {
    wide += static_cast<wchar_t>(static_cast<unsigned char>(byte));
  }
  return DisplayText(wide);
}

ValueSummary Summarise(const memory::StoredValue& stored, const MaterialsByAddress& materials) {
  ValueSummary summary{ShownText(stored.key), {}};
  switch (stored.kind) {
    case ValueUnset:
      break;
    case ValueEnum:
    case ValueFieldRef:
      summary.value = stored.integer;
      break;
    case ValueText:
      summary.value = ShownText(stored.characters);
      break;
    case ValueObject:
      if (const memory::MemoryMaterial* material = FindMaterial(materials, stored.object)) {
        summary.value = material->number;
      }
      break;
    default:
      summary.value = stored.real;
      break;
  }
  return summary;
}

std::vector<ValueSummary> Summarise(const std::vector<memory::StoredValue>& stored, const MaterialsByAddress& materials) {
  std::vector<ValueSummary> values;
  for (const memory::StoredValue& value : stored) {
    values.push_back(Summarise(value, materials));
  }
  return values;
}

PropertySummary Summarise(const memory::MemoryProperty& property, const MaterialsByAddress& materials) {
  PropertySummary summary;
  summary.id = property.id;
  summary.name = DisplayText(property.name);
  summary.kind = JoinWords({property.descriptor.propertyClass, property.descriptor.materialClass});
  if (const memory::MemoryMaterial* material = FindMaterial(materials, property.descriptor.material)) {
    summary.material = {material->number, DisplayText(material->descriptor.name)};
  }
  summary.values = Summarise(property.values, materials);
  return summary;
}

}  // namespace

std::vector<PropertySummary> SummariseProperties(const memory::MemoryHost& host) {
  const MaterialsByAddress materials = IndexMaterials(host.Materials());
  std::vector<PropertySummary> properties;
  for (const memory::MemoryProperty& property : host.Materials().properties) {
    properties.push_back(Summarise(property, materials));
  }
  return properties;
}

std::vector<MaterialSummary> SummariseMaterials(const memory::MemoryHost& host) {
  const MaterialsByAddress materials = IndexMaterials(host.Materials());
  std::vector<MaterialSummary> summaries;
  for (const memory::MemoryMaterial& material : host.Materials().materials) {
    const MaterialDescriptor& descriptor = material.descriptor;
    summaries.push_back({material.number, DisplayText(descriptor.name),
                         JoinWords({descriptor.symmetry, descriptor.behaviour, descriptor.family}), Summarise(material.values, materials)});
  }
  return summaries;
}

const ValueSummary* FindValue(const std::vector<ValueSummary>& values, const std::string& key) {
  const auto found = std::find_if(values.begin(), values.end(), [&](const ValueSummary& value) { return value.key == key; });
  return found == values.end() ? nullptr : &*found;
}

}  // namespace btz::cli
