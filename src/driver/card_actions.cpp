#include "driver/card_actions.h"

#include <cstring>

#include "analysis/case_control.h"
#include "deck/fields.h"
#include "deck/name_comments.h"
#include "loads/body_loads.h"
#include "loads/constraints.h"
#include "materials/material_transfer.h"
#include "mesh/coordinate_systems.h"
#include "mesh/lines.h"
#include "mesh/nodes.h"
#include "mesh/shells.h"
#include "mesh/solids.h"
#include "properties/property_cards.h"
#include "sets/entity_sets.h"
#include "sets/surfaces.h"
#include "support/text.h"

namespace btz {

namespace {

/// Takes the line at the cursor.
void TakeLine(CardContext& context, char (&line)[deckLineCapacity]) { ReadDeckLine(&context.file.cursor, line, sizeof(line)); }

/// Takes a line of the form `WORD = number`; other forms set nothing, nor does a line behind the first subcase.
void TakeAssignment(CardContext& context, std::int32_t* value) {
  char line[deckLineCapacity];
  TakeLine(context, line);
  if (std::strchr(line, '=') != nullptr && !context.run.hasSeenSubcase) {
    *value = GetFreeInteger(line, 1);
  }
}

/// Name of the set or surface at the cursor: that of the comment above it, or the next running number.
void NameSet(CardContext& context) {
  RunState& run = context.run;
  ReadCommentAboveCard(context.file.cursor, run.setName);
  if (run.setName[0] == 0) {
    FormatNumbered(run.setName, sizeof(run.setName), "Set", run.names.set++);
  }
}

bool NamesItsMembers(const char* line) {
  return FindSubstringNoCase(line, "GRID") != nullptr || FindSubstringNoCase(line, "ELEM") != nullptr ||
         FindSubstringNoCase(line, "LIST") != nullptr;
}

std::int32_t Cord2Card(CardContext& context, SystemKind kind) {
  RunState& run = context.run;
  ReadCord2Card(run.model, run.host.boundary, kind, &context.file.cursor, &run.lists.coordinateSystems);
  return 0;
}

std::int32_t Cord1Card(CardContext& context, SystemKind kind) {
  RunState& run = context.run;
  ReadCord1Card(run.model, run.host.boundary, kind, &context.file.cursor, &run.lists.coordinateSystems);
  return 0;
}

std::int32_t LoadCombinationCard(CardContext& context, SubcaseId kind) {
  RunState& run = context.run;
  ReadLoadCombinationCard(&context.file.cursor, &run.lists.subcases, &run.subcaseIndex, kind);
  return 0;
}

std::int32_t ConstraintCombinationCard(CardContext& context, SubcaseId kind) {
  RunState& run = context.run;
  ReadConstraintCombinationCard(&context.file.cursor, &run.lists.subcases, &run.subcaseIndex, kind);
  return 0;
}

}  // namespace

std::int32_t GridCard(CardContext& context) {
  RunState& run = context.run;
  ReadGridCard(run.model, &context.file.cursor, &run.lists.gridCp, &run.gridCdTable, run.logPath);
  return 0;
}

std::int32_t PshellCard(CardContext& context) {
  ReadPshellCard(&context.file.cursor, &context.run.lists.pshell);
  return 0;
}

std::int32_t PsolidCard(CardContext& context) {
  ReadPsolidCard(&context.file.cursor, &context.run.lists.psolid);
  return 0;
}

std::int32_t BeamPropertyCard(CardContext& context) {
  ReadBeamPropertyCard(&context.file.cursor, &context.run.lists.beamProperties);
  return 0;
}

std::int32_t PgaskCard(CardContext& context) {
  ReadPgaskCard(&context.file.cursor, &context.run.lists.pgask);
  return 0;
}

std::int32_t SolLine(CardContext& context) {
  char line[deckLineCapacity];
  TakeLine(context, line);
  SolNumber = GetFreeInteger(line, 1);
  return 0;
}

std::int32_t SdampingLine(CardContext& context) {
  char line[deckLineCapacity];
  TakeLine(context, line);
  if (!context.run.hasSeenSubcase) {
    GlobalSdampingId = GetFreeInteger(line, 1);
  }
  return 0;
}

std::int32_t MfluidLine(CardContext& context) {
  TakeAssignment(context, &GlobalMfluidId);
  return 0;
}

std::int32_t MethodLine(CardContext& context) {
  TakeAssignment(context, &GlobalMethodId);
  return 0;
}

std::int32_t SubcaseLines(CardContext& context) {
  context.run.hasSeenSubcase = true;
  return IncludedSubcaseLines(context);
}

std::int32_t IncludedSubcaseLines(CardContext& context) {
  ReadSubcases(&context.file.cursor, &context.run.lists.subcases);
  return 0;
}

std::int32_t Tria3Card(CardContext& context) { return ReadTria3Card(context.run.model, &context.file.cursor, context.run.logPath); }

std::int32_t Tria6Card(CardContext& context) { return ReadTria6Card(context.run.model, &context.file.cursor, context.run.logPath); }

std::int32_t Quad4Card(CardContext& context) { return ReadQuad4Card(context.run.model, &context.file.cursor, context.run.logPath); }

std::int32_t Quad8Card(CardContext& context) { return ReadQuad8Card(context.run.model, &context.file.cursor, context.run.logPath); }

std::int32_t TetraCard(CardContext& context) { return ReadTetraCard(context.run.model, &context.file.cursor, context.run.logPath); }

std::int32_t PentaCard(CardContext& context) { return ReadPentaCard(context.run.model, &context.file.cursor, context.run.logPath); }

std::int32_t HexaCard(CardContext& context) { return ReadHexaCard(context.run.model, &context.file.cursor, context.run.logPath); }

std::int32_t PyramidCard(CardContext& context) { return ReadPyramidCard(context.run.model, &context.file, context.run.logPath); }

std::int32_t BarCard(CardContext& context) {
  RunState& run = context.run;
  return ReadBarCard(run.model, &context.file.cursor, run.logPath, &run.lists.beamProperties);
}

std::int32_t BeamCard(CardContext& context) { return ReadBeamCard(context.run.model, &context.file.cursor, context.run.logPath); }

std::int32_t Mat1Card(CardContext& context) {
  RunState& run = context.run;
  char name[nameCapacity];
  ReadCommentAboveCard(context.file.cursor, name);
  ReadMat1Card(&context.file.cursor, run.host.materials, &run.lists.materials, name);
  return 0;
}

std::int32_t Cord2RectangularCard(CardContext& context) { return Cord2Card(context, rectangularSystem); }

std::int32_t Cord2CylindricalCard(CardContext& context) { return Cord2Card(context, cylindricalSystem); }

std::int32_t Cord1RectangularCard(CardContext& context) { return Cord1Card(context, rectangularSystem); }

std::int32_t Cord1CylindricalCard(CardContext& context) { return Cord1Card(context, cylindricalSystem); }

std::int32_t LoadCard(CardContext& context) { return LoadCombinationCard(context, SubcaseId::Load); }

std::int32_t DloadCard(CardContext& context) { return LoadCombinationCard(context, SubcaseId::Dload); }

std::int32_t SpcaddCard(CardContext& context) { return ConstraintCombinationCard(context, SubcaseId::Spc); }

std::int32_t MpcaddCard(CardContext& context) { return ConstraintCombinationCard(context, SubcaseId::Mpc); }

std::int32_t AnsaNameComment(CardContext& context) {
  ReadAnsaNameComment(&context.file.cursor);
  return 0;
}

std::int32_t HmNameComment(CardContext& context) {
  ReadHmNameComment(&context.file.cursor);
  return 0;
}

std::int32_t HmSetComment(CardContext& context) {
  ReadHmSetComment(&context.file.cursor);
  return 0;
}

std::int32_t SpcCard(CardContext& context) {
  ReadSpcCard(&context.file.cursor, &context.run.lists.spc);
  return 0;
}

std::int32_t Spc1Card(CardContext& context) {
  ReadSpc1Card(context.run.model, &context.file.cursor, &context.run.lists.spc1);
  return 0;
}

std::int32_t ForceCard(CardContext& context) {
  RunState& run = context.run;
  char name[nameCapacity];
  ReadCommentAboveCard(context.file.cursor, name);
  ReadForceCard(&context.file.cursor, run.model, run.forceReference, name, run.counters[familyForce]);
  return 0;
}

std::int32_t MomentCard(CardContext& context) {
  RunState& run = context.run;
  char name[nameCapacity];
  ReadCommentAboveCard(context.file.cursor, name);
  ReadMomentCard(&context.file.cursor, run.model, run.momentReference, name, run.counters[familyMoment]);
  return 0;
}

std::int32_t GravCard(CardContext& context) {
  ReadGravCard(&context.file.cursor, context.run.host.boundary, context.run.model);
  return 0;
}

std::int32_t RforceCard(CardContext& context) {
  ReadRforceCard(&context.file.cursor, context.run.host.boundary, context.run.model);
  return 0;
}

std::int32_t Pload4Card(CardContext& context) {
  ReadPload4Card(&context.file.cursor, context.run.model, context.run.pressureReference);
  return 0;
}

std::int32_t SetCard(CardContext& context) {
  NameSet(context);
  char line[deckLineCapacity];
  CardCursor unmoved = context.file.cursor;
  ReadDeckLine(&unmoved, line, sizeof(line));
  RunState& run = context.run;
  if (NamesItsMembers(line)) {
    ReadSetGroupCard(&context.file, run.model, run.host.boundary, run.setName);
  } else {
    ReadSetListCard(&context.file, run.model, run.host.boundary, run.setName);
  }
  return 0;
}

std::int32_t SurfCard(CardContext& context) {
  NameSet(context);
  ReadSurfCard(&context.file, context.run.model, context.run.host.boundary, context.run.setName);
  return 0;
}

}  // namespace btz
