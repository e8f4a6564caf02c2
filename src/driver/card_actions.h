// What the rows of the pass tables do: each hands the readers just what they need of the run, or takes a line that the driver reads itself.
#pragma once

#include "driver/card_table.h"

namespace btz {

// Pass 1.
std::int32_t GridCard(CardContext& context);
std::int32_t PshellCard(CardContext& context);
std::int32_t PsolidCard(CardContext& context);
std::int32_t BeamPropertyCard(CardContext& context);  ///< PBAR, PBARL, PBEAM, PBEAML.
std::int32_t PgaskCard(CardContext& context);
std::int32_t SolLine(CardContext& context);       ///< Solution sequence.
std::int32_t SdampingLine(CardContext& context);  ///< Damping table for all subcases, in front of the first.
std::int32_t MfluidLine(CardContext& context);    ///< Fluid set for all subcases, in front of the first.
std::int32_t MethodLine(CardContext& context);    ///< Eigenvalue method for all subcases, in front of the first.

std::int32_t SubcaseLines(CardContext& context);          ///< The subcases from here on; no later line speaks for all of them.
std::int32_t IncludedSubcaseLines(CardContext& context);  ///< The same in an include file, which leaves later lines their say.

// Passes 2 and 3.
std::int32_t Tria3Card(CardContext& context);
std::int32_t Tria6Card(CardContext& context);
std::int32_t Quad4Card(CardContext& context);
std::int32_t Quad8Card(CardContext& context);
std::int32_t TetraCard(CardContext& context);
std::int32_t PentaCard(CardContext& context);
std::int32_t HexaCard(CardContext& context);
std::int32_t PyramidCard(CardContext& context);
std::int32_t BarCard(CardContext& context);
std::int32_t BeamCard(CardContext& context);
std::int32_t Mat1Card(CardContext& context);  ///< With the name in the comment above it.
std::int32_t Cord2RectangularCard(CardContext& context);
std::int32_t Cord2CylindricalCard(CardContext& context);
std::int32_t Cord1RectangularCard(CardContext& context);
std::int32_t Cord1CylindricalCard(CardContext& context);
std::int32_t LoadCard(CardContext& context);
std::int32_t DloadCard(CardContext& context);
std::int32_t SpcaddCard(CardContext& context);
std::int32_t MpcaddCard(CardContext& context);
std::int32_t AnsaNameComment(CardContext& context);
std::int32_t HmNameComment(CardContext& context);
std::int32_t HmSetComment(CardContext& context);

// Pass 4.
std::int32_t SpcCard(CardContext& context);
std::int32_t Spc1Card(CardContext& context);
std::int32_t ForceCard(CardContext& context);   ///< With the name in the comment above it.
std::int32_t MomentCard(CardContext& context);  ///< Likewise.
std::int32_t GravCard(CardContext& context);
std::int32_t RforceCard(CardContext& context);
std::int32_t Pload4Card(CardContext& context);
std::int32_t SetCard(CardContext& context);
std::int32_t SurfCard(CardContext& context);

}  // namespace btz
