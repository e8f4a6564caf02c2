#include "cli/report_tables.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdlib>

#include "cli/text_table.h"

namespace btz::cli {

namespace {

constexpr const char* none = "-";
constexpr const char* unset = "unset";

std::string PartName(const PartSummary& part) {
  std::string name = part.name.empty() ? "(no name)" : part.name;
  return part.isRigid ? name + " (rigid body)" : name;
}

std::string NumberText(double number) { return fmt::format("{:g}", number); }

/// The value of a key as a number; a value that the deck left blank, or that is not there, is unset.
std::string NumberText(const std::vector<ValueSummary>& values, const char* key) {
  const ValueSummary* value = FindValue(values, key);
  const double* number = value == nullptr ? nullptr : std::get_if<double>(&value->value);
  return number == nullptr ? unset : NumberText(*number);
}

/// "full round 5", or "hollow round 5, 3": the two sections that those of the section library become.
std::string RoundSectionText(const std::string& dimensions) {
  const std::size_t comma = dimensions.find(',');
  const std::string first = NumberText(std::strtod(dimensions.c_str(), nullptr));
  if (comma == std::string::npos) {
    return "full round " + first;
  }
  return fmt::format("hollow round {}, {}", first, NumberText(std::strtod(dimensions.c_str() + comma + 1, nullptr)));
}

/// The keys that tell a size by one number, the first that a property has.
struct SizeKey {
  const char* key;
  const char* word;
};

constexpr SizeKey sizeKeys[] = {{"Thickness", "thickness"}, {"Initial_Gasket_Thickness", "thickness"}, {"Area", "area"}};

/// What a property says of the size of its part's elements.
std::string SizeText(const std::vector<ValueSummary>& values) {
  const ValueSummary* dimensions = FindValue(values, "SectionParam");
  if (dimensions != nullptr && std::holds_alternative<std::string>(dimensions->value)) {
    return RoundSectionText(std::get<std::string>(dimensions->value));
  }
  for (const SizeKey& size : sizeKeys) {
    if (FindValue(values, size.key) != nullptr) {
      return fmt::format("{} {}", size.word, NumberText(values, size.key));
    }
  }
  return none;
}

std::string MaterialText(const PropertySummary& property) {
  if (!property.material) {
    return none;
  }
  const std::string& name = property.material->name;
  return name.empty() ? fmt::format("{}", property.material->number) : fmt::format("{} {}", property.material->number, name);
}

std::string VectorText(const Vector& vector) { return fmt::format("({:g}, {:g}, {:g})", vector[0], vector[1], vector[2]); }

std::string OriginText(const SystemSummary& system) { return system.origin ? VectorText(*system.origin) : none; }

std::string NameText(const std::string& name) { return name.empty() ? "(no name)" : name; }

/// Id of a system in which components act; the global one has none.
std::string SystemText(std::int32_t id) { return id == 0 ? none : fmt::format("{}", id); }

/// "1: 0.5, 3: 0": the enforced values of the components that are held.
std::string EnforcedText(const ConstraintSummary& constraint) {
  if (!constraint.isEnforced) {
    return none;
  }
  if (constraint.isByField) {
    return "by field";
  }
  std::vector<std::string> values;
  for (const char digit : constraint.components) {
    values.push_back(fmt::format("{}: {:g}", digit, constraint.values.at(static_cast<std::size_t>(digit - '1'))));
  }
  return values.empty() ? none : fmt::format("{}", fmt::join(values, ", "));
}

/// "0.5", or "0.5 to 2, by field".
std::string PressureText(const PressureSummary& pressure) {
  return pressure.isByField ? fmt::format("{:g} to {:g}, by field", pressure.lowest, pressure.highest)
                            : fmt::format("{:g}", pressure.lowest);
}

/// Adds the first rows, `cells(item)` for each, and gives the table's text with the number of the others.
template <typename Item, typename Cells>
std::string ShortenedTable(TextTable table, const std::vector<Item>& items, Cells cells) {
  const std::size_t shown = std::min(items.size(), mostRows);
  for (std::size_t i = 0; i < shown; ++i) {
    table.Add(cells(items[i]));
  }
  return table.Text() + (shown < items.size() ? RestLine(items.size() - shown) : "");
}

}  // namespace

std::string CountsText(const ElementCounts& counts) {
  std::vector<std::string> parts;
  for (std::size_t type = 0; type < counts.size(); ++type) {
    if (counts[type] != 0) {
      parts.push_back(fmt::format("{} {}", counts[type], ElementTypeName(type)));
    }
  }
  return parts.empty() ? "none" : fmt::format("{}", fmt::join(parts, "; "));
}

std::string PartsTable(const ModelSummary& model) {
  TextTable table({{"Id", Align::Right, 8}, {"Number", Align::Right}, {"Name"}, {"Elements"}});
  for (const PartSummary& part : model.parts) {
    const std::string number = part.number == 0 ? none : fmt::format("{}", part.number);
    table.Add({fmt::format("{}", part.id), number, PartName(part), CountsText(part.elements)});
  }
  return table.Text();
}

std::string PropertiesTable(const ModelSummary& model) {
  TextTable table({{"Part", Align::Right, 8}, {"Class"}, {"Name"}, {"Material"}, {"Thickness or section"}});
  for (const PropertySummary& property : model.properties) {
    std::vector<std::int32_t> partIds;
    for (const std::size_t part : property.parts) {
      partIds.push_back(model.parts[part].id);
    }
    table.Add({partIds.empty() ? none : fmt::format("{}", fmt::join(partIds, ", ")), property.kind,
               property.name.empty() ? "(no name)" : property.name, MaterialText(property), SizeText(property.values)});
  }
  return table.Text();
}

std::string MaterialsTable(const ModelSummary& model) {
  TextTable table({{"Number", Align::Right, 8},
                   {"Name"},
                   {"Young's modulus", Align::Right},
                   {"Poisson's ratio", Align::Right},
                   {"Density", Align::Right, 10},
                   {"Class"}});
  for (const MaterialSummary& material : model.materials) {
    table.Add({fmt::format("{}", material.number), material.name.empty() ? "(no name)" : material.name,
               NumberText(material.values, "Youngs_modulus"), NumberText(material.values, "Poissons_ratio"),
               NumberText(material.values, "Density"), material.kind});
  }
  return table.Text();
}

std::string SystemsTable(const ModelSummary& model) {
  TextTable table({{"Id", Align::Right, 8}, {"Kind"}, {"Name"}, {"Nodes", Align::Right}, {"Origin"}});
  for (const SystemSummary& system : model.systems) {
    table.Add({fmt::format("{}", system.id), system.kind, system.name.empty() ? "(no name)" : system.name, fmt::format("{}", system.nodes),
               OriginText(system)});
  }
  return table.Text();
}

std::string RestLine(std::size_t count) { return fmt::format("  ... and {} more, which the JSON report has\n", count); }

std::string ConstraintsTable(const ModelSummary& model) {
  TextTable table(
      {{"Id", Align::Right, 8}, {"Kind"}, {"Name"}, {"Components"}, {"Nodes", Align::Right}, {"System", Align::Right}, {"Values"}});
  return ShortenedTable(std::move(table), model.constraints, [](const ConstraintSummary& constraint) -> std::vector<std::string> {
    return {fmt::format("{}", constraint.id),
            constraint.isEnforced ? "enforced" : "plain",
            NameText(constraint.name),
            constraint.components.empty() ? none : constraint.components,
            fmt::format("{}", constraint.nodes),
            SystemText(constraint.system),
            EnforcedText(constraint)};
  });
}

std::string ForcesTable(const ModelSummary& model) {
  TextTable table({{"Id", Align::Right, 8}, {"Name"}, {"Nodes", Align::Right}, {"System", Align::Right}, {"Force"}, {"Moment"}});
  return ShortenedTable(std::move(table), model.forces, [](const ForceSummary& force) -> std::vector<std::string> {
    return {fmt::format("{}", force.id),
            NameText(force.name),
            fmt::format("{}", force.nodes),
            SystemText(force.system),
            force.isByField ? "by field" : VectorText(force.force),
            force.isByField ? "by field" : VectorText(force.moment)};
  });
}

std::string BodyLoadsTable(const ModelSummary& model) {
  TextTable table({{"Id", Align::Right, 8}, {"Kind"}, {"Name"}, {"Parts", Align::Right}, {"Vector"}});
  return ShortenedTable(std::move(table), model.bodyLoads, [](const BodyLoadSummary& load) -> std::vector<std::string> {
    return {fmt::format("{}", load.id), load.kind, NameText(load.name), fmt::format("{}", load.parts), VectorText(load.vector)};
  });
}

std::string PressuresTable(const ModelSummary& model) {
  TextTable table({{"Id", Align::Right, 8},
                   {"Name"},
                   {"Parts", Align::Right},
                   {"Faces", Align::Right},
                   {"Area", Align::Right},
                   {"Value x area", Align::Right},
                   {"Value"}});
  return ShortenedTable(std::move(table), model.pressures, [](const PressureSummary& pressure) -> std::vector<std::string> {
    return {fmt::format("{}", pressure.id),
            NameText(pressure.name),
            fmt::format("{}", pressure.faces.parts),
            fmt::format("{}", pressure.faces.faces),
            NumberText(pressure.faces.area),
            pressure.isByField ? none : NumberText(pressure.lowest * pressure.faces.area),
            PressureText(pressure)};
  });
}

std::string SetsTable(const ModelSummary& model) {
  TextTable table(
      {{"Id", Align::Right, 8}, {"Kind"}, {"Name"}, {"Members", Align::Right}, {"Parts", Align::Right}, {"Area", Align::Right}});
  return ShortenedTable(std::move(table), model.sets, [](const SetSummary& set) -> std::vector<std::string> {
    return {fmt::format("{}", set.id),
            set.kind,
            NameText(set.name),
            fmt::format("{}", set.members),
            set.isSurface ? fmt::format("{}", set.faces.parts) : none,
            set.isSurface ? NumberText(set.faces.area) : none};
  });
}

}  // namespace btz::cli
