#include "driver/pass_tables.h"

#include "driver/card_actions.h"
#include "driver/include_file.h"

namespace btz {

namespace {

constexpr CardRow includeRow = {"include", Guard::AnyCase, "", familyNone, ReadIncludeFile, Refusal::Ignored};

constexpr CardRow nodePassDeckRows[] = {
    CountedRow("GRID", familyNode, GridCard),
    Row("PSHELL", PshellCard),
    Row("PSOLID", PsolidCard),
    Row("PBAR", BeamPropertyCard),
    Row("PBEAM", BeamPropertyCard),
    Row("PGASK", PgaskCard),
    Row("SUBCASE", SubcaseLines),
    RowIfNext("SOL", " ", SolLine),
    Row("SDAMPING", SdampingLine),
    Row("MFLUID", MfluidLine),
    Row("METHOD", MethodLine),
    includeRow,
};

// Required: in an include file SUBCASE needs a blank behind it, and the fifth character of SDAMPING comes from the deck.
constexpr CardRow nodePassIncludeRows[] = {
    CountedRow("GRID", familyNode, GridCard),
    Row("PSHELL", PshellCard),
    Row("PSOLID", PsolidCard),
    Row("PBAR", BeamPropertyCard),
    Row("PBEAM", BeamPropertyCard),
    Row("PGASK", PgaskCard),
    RowIfNext("SUBCASE", " ", IncludedSubcaseLines),
    {"SDAMPING", Guard::FifthInParent, "", familyNone, SdampingLine, Refusal::Ignored},
    Row("MFLUID", MfluidLine),
    Row("METHOD", MethodLine),
};

constexpr CardRow includePassDeckRows[] = {includeRow};

// Required: a refused card of the first nine kinds stays counted.
constexpr CardRow includePassIncludeRows[] = {
    CountedRow("CTRIA3", familyTri3, Tria3Card),
    CountedRow("PLOTEL3", familyTri3, Tria3Card),
    CountedRow("CTRIA6", familyTri6, Tria6Card),
    CountedRow("CTETRA", familyTet, TetraCard),
    CountedRow("CHEXA", familyHex, HexaCard),
    CountedRow("CQUAD4", familyQuad4, Quad4Card),
    CountedRow("CQUADR", familyQuad4, Quad4Card),
    CountedRow("PLOTEL4", familyQuad4, Quad4Card),
    CountedRow("CQUAD8", familyQuad8, Quad8Card),
    CountedRow("CPENTA", familyWedge, PentaCard),
    CountedRow("CBAR", familyBar, BarCard),
    CountedRow("CBEAM", familyBar, BeamCard),
    CountedRow("CPYRA", familyPyramid, PyramidCard, Refusal::Undoes),
    Row("MGASK", NotBuilt),
    Row("TABLES1", NotBuilt),
    CountedRow("CGASK12", familyGasket, NotBuilt, Refusal::Undoes),
    CountedRow("CGASK16", familyGasket, NotBuilt, Refusal::Undoes),
    CountedRow("CGASK6", familyGasket, NotBuilt, Refusal::Undoes),
    CountedRow("CGASK8", familyGasket, NotBuilt, Refusal::Undoes),
    Row("TABDMP1", NotBuilt),
};

constexpr CardRow elementPassDeckRows[] = {
    CountedRow("CTRIA3", familyTri3, Tria3Card, Refusal::Undoes),
    CountedRow("PLOTEL3", familyTri3, Tria3Card, Refusal::Undoes),
    CountedRow("CHEXA", familyHex, HexaCard),  // Required: a refused one stays counted.
    CountedRow("CTRIA6", familyTri6, Tria6Card, Refusal::Undoes),
    CountedRow("CTETRA", familyTet, TetraCard, Refusal::Undoes),
    CountedRow("CQUAD4", familyQuad4, Quad4Card, Refusal::Undoes),
    CountedRow("CQUADR", familyQuad4, Quad4Card, Refusal::Undoes),
    CountedRow("PLOTEL4", familyQuad4, Quad4Card, Refusal::Undoes),
    CountedRow("CQUAD8", familyQuad8, Quad8Card, Refusal::Undoes),
    CountedRow("CPENTA", familyWedge, PentaCard, Refusal::Undoes),
    CountedRow("CBAR", familyBar, BarCard, Refusal::Undoes),
    CountedRow("RBE2", familyRbe2, NotBuilt),
    CountedRow("RBE3", familyRbe3, NotBuilt),
    Row("MAT1", Mat1Card),
    CountedRow("CBEAM", familyBar, BeamCard, Refusal::Undoes),
    Row("$ANSA_NAME;", AnsaNameComment),
    Row("$HMNAM", HmNameComment),
    Row("CORD2R", Cord2RectangularCard),
    Row("CORD2C", Cord2CylindricalCard),
    Row("CORD1R", Cord1RectangularCard),
    Row("CORD1C", Cord1CylindricalCard),
    CountedRow("CPYRA", familyPyramid, PyramidCard, Refusal::Undoes),
    Row("LOAD", LoadCard),
    Row("$HMSET", HmSetComment),
    Row("MGASK", NotBuilt),
    Row("TABLES1", NotBuilt),
    CountedRow("CGASK12", familyGasket, NotBuilt, Refusal::Undoes),
    CountedRow("CGASK16", familyGasket, NotBuilt, Refusal::Undoes),
    CountedRow("CGASK6", familyGasket, NotBuilt, Refusal::Undoes),
    CountedRow("CGASK8", familyGasket, NotBuilt, Refusal::Undoes),
    Row("SPCADD", SpcaddCard),
    Row("MPCADD", MpcaddCard),
    Row("TABDMP1", NotBuilt),
    Row("DLOAD", DloadCard),
    Row("RLOAD1", NotBuilt),
    Row("RLOAD2", NotBuilt),
    Row("TABLED1", NotBuilt),
    RowIfNext("FREQ", " ,", NotBuilt),
    Row("FREQ1", NotBuilt),
    Row("PRETENS", NotBuilt),
    Row("PTADJST", NotBuilt),
    Row("PTFORCE", NotBuilt),
    Row("PTADD", NotBuilt),
    Row("MFLUID", NotBuilt),
    Row("EIGRL", NotBuilt),
    Row("EIGRA", NotBuilt),
    includeRow,
};

constexpr CardRow elementPassIncludeRows[] = {
    Row("MAT1", Mat1Card),
    CountedRow("RBE2", familyRbe2, NotBuilt),
    CountedRow("RBE3", familyRbe3, NotBuilt),
    Row("CORD2R", Cord2RectangularCard),
    Row("CORD2C", Cord2CylindricalCard),
    Row("CORD1R", Cord1RectangularCard),
    Row("CORD1C", Cord1CylindricalCard),
    Row("LOAD", LoadCard),
    Row("SPCADD", SpcaddCard),
    Row("MPCADD", MpcaddCard),
    Row("DLOAD", DloadCard),
    Row("RLOAD1", NotBuilt),
    Row("RLOAD2", NotBuilt),
    Row("TABLED1", NotBuilt),
    RowIfNext("FREQ", " ,", NotBuilt),
    Row("FREQ1", NotBuilt),
    Row("PRETENS", NotBuilt),
    Row("PTADJST", NotBuilt),
    Row("PTFORCE", NotBuilt),
    Row("PTADD", NotBuilt),
    Row("MFLUID", NotBuilt),
    Row("EIGRL", NotBuilt),
    Row("EIGRA", NotBuilt),
};

constexpr CardRow loadPassDeckRows[] = {
    Row("CMASS1", NotBuilt),
    RowUnlessNext("MPC", "A", NotBuilt),
    CountedRow("CBUSH", familyBush, NotBuilt),
    RowUnlessNext("SPC", "1", SpcCard),
    Row("SPC1", Spc1Card),
    {"FORCE", Guard::NextIsNoneOf, "1", familyForce, ForceCard, Refusal::Ignored},
    Row("CELAS1", NotBuilt),
    Row("CELAS2", NotBuilt),
    RowUnlessNext("PBUSH", "T", NotBuilt),
    CountedRow("PLOAD4", familyPressure, Pload4Card),
    CountedRow("MOMENT", familyMoment, MomentCard),
    Row("TEMPD", NotBuilt),
    CountedRow("CONM2", familyMass, NotBuilt),
    Row("PELAS", NotBuilt),
    Row("PGAP", NotBuilt),
    Row("CGAP", NotBuilt),
    Row("PCONV", NotBuilt),
    Row("CONV", NotBuilt),
    Row("CHBDYG", NotBuilt),
    Row("MAT4", NotBuilt),
    Row("QBDY3", NotBuilt),
    Row("QBDY1", NotBuilt),
    RowIfNext("TEMP", " *", NotBuilt),
    Row("RBAR", NotBuilt),
    Row("TEMPBC", NotBuilt),
    RowUnlessNext("PLOTEL", "43", NotBuilt),
    RowIfNext("SET", " ", SetCard),
    Row("SURF", SurfCard),
    Row("DAREA", NotBuilt),
    Row("ELIST", NotBuilt),
    Row("PBUSHT", NotBuilt),
    Row("GRAV", GravCard),
    Row("RFORCE", RforceCard),
    includeRow,
};

// Required: ASET is read from include files only; CMASS1, TEMPD and PLOTEL from the deck only.
constexpr CardRow loadPassIncludeRows[] = {
    RowUnlessNext("MPC", "A", NotBuilt),
    CountedRow("CBUSH", familyBush, NotBuilt),
    RowUnlessNext("SPC", "1", SpcCard),
    Row("SPC1", Spc1Card),
    {"FORCE", Guard::NextIsNoneOf, "1", familyForce, ForceCard, Refusal::Ignored},
    Row("CELAS1", NotBuilt),
    Row("CELAS2", NotBuilt),
    RowUnlessNext("PBUSH", "T", NotBuilt),
    CountedRow("PLOAD4", familyPressure, Pload4Card),
    CountedRow("MOMENT", familyMoment, MomentCard),
    CountedRow("CONM2", familyMass, NotBuilt),
    Row("PELAS", NotBuilt),
    Row("PGAP", NotBuilt),
    Row("CGAP", NotBuilt),
    Row("PCONV", NotBuilt),
    Row("CONV", NotBuilt),
    Row("CHBDYG", NotBuilt),
    Row("MAT4", NotBuilt),
    Row("QBDY3", NotBuilt),
    Row("QBDY1", NotBuilt),
    RowIfNext("TEMP", " *", NotBuilt),
    Row("RBAR", NotBuilt),
    Row("TEMPBC", NotBuilt),
    Row("ASET", NotBuilt),
    RowIfNext("SET", " ", SetCard),
    Row("SURF", SurfCard),
    Row("DAREA", NotBuilt),
    Row("ELIST", NotBuilt),
    Row("PBUSHT", NotBuilt),
    Row("GRAV", GravCard),
    Row("RFORCE", RforceCard),
};

}  // namespace

constexpr PassTable nodePassDeck = MakePassTable(true, nodePassDeckRows);
constexpr PassTable nodePassInclude = MakePassTable(true, nodePassIncludeRows);
constexpr PassTable includePassDeck = MakePassTable(false, includePassDeckRows);
constexpr PassTable includePassInclude = MakePassTable(false, includePassIncludeRows);
constexpr PassTable elementPassDeck = MakePassTable(false, elementPassDeckRows);
constexpr PassTable elementPassInclude = MakePassTable(false, elementPassIncludeRows);
constexpr PassTable loadPassDeck = MakePassTable(true, loadPassDeckRows);
constexpr PassTable loadPassInclude = MakePassTable(true, loadPassIncludeRows);

}  // namespace btz
