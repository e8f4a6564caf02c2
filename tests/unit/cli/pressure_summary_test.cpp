#include <gtest/gtest.h>

#include "cli/load_summary.h"
#include "tests/unit/cli/faced_host.h"

namespace btz::cli {
namespace {

Pressure* MakePressure(FacedHost& built, double value) {
  Pressure* pressure = nullptr;
  built.Store()->CreatePressure(&pressure);
  pressure->SetPressure(value);
  return pressure;
}

std::vector<PressureSummary> Summarise(const FacedHost& built) { return SummarisePressures(built.host, FaceMeter(built.host)); }

TEST(PressureSummary, AUniformOneHasItsValueAndTheFacesOfItsParts) {
  FacedHost built;
  Pressure* pressure = MakePressure(built, -0.5);
  pressure->SetName(L"Pressure1");
  pressure->SetField(nullptr, 0);
  built.SetParts(pressure, {built.plate});

  const std::vector<PressureSummary> pressures = Summarise(built);

  ASSERT_EQ(pressures.size(), 1u);
  EXPECT_EQ(pressures[0].id, 1);
  EXPECT_EQ(pressures[0].name, "Pressure1");
  EXPECT_FALSE(pressures[0].isByField);
  EXPECT_EQ(pressures[0].lowest, -0.5);
  EXPECT_EQ(pressures[0].highest, -0.5);
  EXPECT_EQ(pressures[0].faces.parts, 1u);
  EXPECT_EQ(pressures[0].faces.faces, 2u);
  EXPECT_DOUBLE_EQ(pressures[0].faces.area, 6.0);
}

TEST(PressureSummary, AFieldGivesItsRange) {
  FacedHost built;
  Field* field = nullptr;
  built.host.GetCurveStore()->CreateField(&field);
  double rows[3][4] = {{0.0, 0.0, 9.0, 2.0}, {1.0, 0.0, 9.0, -1.5}, {2.0, 0.0, 9.0, 0.25}};
  PooledList list = built.ListOf();
  for (double(&row)[4] : rows) {
    ListAppend(&list, row);
  }
  field->SetColumnCount(4);
  field->SetRowCount(3);
  field->SetRows(&list);
  ListClear(&list);
  MakePressure(built, 1.0)->SetField(field, 0);

  const std::vector<PressureSummary> pressures = Summarise(built);

  ASSERT_EQ(pressures.size(), 1u);
  EXPECT_TRUE(pressures[0].isByField);
  EXPECT_EQ(pressures[0].lowest, -1.5);
  EXPECT_EQ(pressures[0].highest, 2.0);
  EXPECT_EQ(pressures[0].faces.parts, 0u);
}

TEST(PressureSummary, AFieldWithoutRowsHasNoRange) {
  FacedHost built;
  Field* field = nullptr;
  built.host.GetCurveStore()->CreateField(&field);
  MakePressure(built, 1.0)->SetField(field, 0);

  const std::vector<PressureSummary> pressures = Summarise(built);

  ASSERT_EQ(pressures.size(), 1u);
  EXPECT_EQ(pressures[0].lowest, 0.0);
  EXPECT_EQ(pressures[0].highest, 0.0);
}

}  // namespace
}  // namespace btz::cli
