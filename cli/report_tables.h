// The tables of the text report.
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

// Of these, decks have thousands: a longer table ends with the number of the rows left out.
std::string ConstraintsTable(const ModelSummary& model);
std::string ForcesTable(const ModelSummary& model);
std::string BodyLoadsTable(const ModelSummary& model);
std::string PressuresTable(const ModelSummary& model);
std::string SetsTable(const ModelSummary& model);

/// The line that stands for the rest of a shortened table or list.
std::string RestLine(std::size_t count);

inline constexpr std::size_t mostRows = 40;  ///< Rows shown of a shortened table.

}  // namespace btz::cli
