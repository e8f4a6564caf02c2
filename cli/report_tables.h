// The tables of the text report: parts, properties, materials and coordinate systems.
#pragma once

#include <string>

#include "cli/model_summary.h"

namespace btz::cli {

/// "3 lines, 2 nodes; 120 quadrilaterals, 4 nodes".
std::string CountsText(const ElementCounts& counts);

std::string PartsTable(const ModelSummary& model);
std::string PropertiesTable(const ModelSummary& model);
std::string MaterialsTable(const ModelSummary& model);
std::string SystemsTable(const ModelSummary& model);

}  // namespace btz::cli
