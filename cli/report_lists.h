// Lists of names in the text report, and what load cases hold by them.
#pragma once

#include <cstddef>
#include <string>

#include "cli/model_summary.h"

namespace btz::cli {

inline constexpr std::size_t labelWidth = 20;
inline constexpr std::size_t mostNames = 4;  ///< Names shown of one kind.

/// The first names of a kind: "PointForce1, PointForce2, ...".
std::string NamesText(const ItemKind& kind);

/// The load cases, one below the other, and what is in none of them.
std::string LoadCasesText(const ModelSummary& model);

}  // namespace btz::cli
