// Properties and materials of the in-memory host for a report: who they are, what they are of, and their values by the host's keys.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace btz::memory {
class MemoryHost;
}

namespace btz::cli {

/// A value of a property or material.
struct ValueSummary {
  std::string key;
  /// Nothing when the deck left the value blank. A material counts by its number; nothing stands for none.
  std::variant<std::monostate, double, std::int32_t, std::string> value;
};

struct MaterialSummary {
  std::int32_t number = 0;
  std::string name;
  std::string kind;  ///< "Isotropic, Elastic, Metal".
  std::vector<ValueSummary> values;
};

struct PropertySummary {
  /// The material of a property.
  struct MaterialName {
    std::int32_t number = 0;
    std::string name;
  };

  std::int32_t id = 0;
  std::string name;
  std::string kind;  ///< Class and class of the material: "Shell, Isotropic".
  std::optional<MaterialName> material;
  std::vector<std::size_t> parts;  ///< Places of its parts in the model's list.
  std::vector<ValueSummary> values;
};

/// In order of creation. Their parts are left out.
std::vector<PropertySummary> SummariseProperties(const memory::MemoryHost& host);

/// In order of creation.
std::vector<MaterialSummary> SummariseMaterials(const memory::MemoryHost& host);

/// The value of a key, or null when the list does not have it.
const ValueSummary* FindValue(const std::vector<ValueSummary>& values, const std::string& key);

}  // namespace btz::cli
