// Parameters of a load case: frequencies, eigenvalue method and fluid of its subcase.
#pragma once

#include "analysis/case_control.h"
#include "host/host_interfaces.h"

namespace btz {

/// Steps of a frequency response.
void SetFrequencies(ParameterSet* parameters, const SubcaseRecord& subcase);

/// Eigenvalue method of the subcase, or of the whole deck. `isFrequencyResponse` tells the analysis of the case.
void SetEigenvalueMethod(ParameterSet* parameters, const SubcaseRecord& subcase, bool isFrequencyResponse);

/// Fluid of the subcase, or of the whole deck. Only for a frequency response.
void SetFluid(ParameterSet* parameters, const SubcaseRecord& subcase, BoundaryStore* boundary);

}  // namespace btz
