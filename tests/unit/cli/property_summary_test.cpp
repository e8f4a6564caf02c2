#include "cli/property_summary.h"

#include <gtest/gtest.h>

#include "cli/model_summary.h"
#include "host/named_values.h"
#include "memory_host/memory_host.h"
#include "support/pooled_list.h"

namespace btz::cli {
namespace {

void SetText(wchar_t (&dest)[256], const wchar_t* text) {
  for (std::size_t i = 0; text[i] != 0; ++i) {
    dest[i] = text[i];
  }
}

/// A host with the means to fill it as the library does.
class HostBuilder {
 public:
  HostBuilder() {
    ListCellPoolInit(&cells_);
    host.GetProject()->GetMeshModel(&model_, 1);
  }
  ~HostBuilder() { ListCellPoolReset(&cells_); }
  HostBuilder(const HostBuilder&) = delete;
  HostBuilder& operator=(const HostBuilder&) = delete;

  MeshPart* MakePart(std::int32_t id) {
    MeshPart* part = nullptr;
    model_->CreateBody(1, &part, id, 0, 1, 1);
    return part;
  }

  Material* MakeMaterial(std::int32_t id, const wchar_t* name) {
    Material* material = nullptr;
    host.GetMaterialStore()->CreateMaterial(&material, id);
    MaterialDescriptor descriptor = {};
    SetText(descriptor.name, name);
    SetText(descriptor.symmetry, L"Isotropic");
    SetText(descriptor.behaviour, L"Elastic");
    SetText(descriptor.family, L"Metal");
    material->SetDescriptor(&descriptor);
    return material;
  }

  Property* MakeProperty(MeshPart* part, const wchar_t* propertyClass, const wchar_t* materialClass, Material* material) {
    Property* property = nullptr;
    host.GetMaterialStore()->CreateProperty(&property, part->GetId());
    PropertyDescriptor descriptor = {};
    descriptor.material = material;
    SetText(descriptor.propertyClass, propertyClass);
    SetText(descriptor.materialClass, materialClass);
    property->SetDescriptor(&descriptor);
    PooledList parts;
    ListInit(&parts, &cells_);
    ListAppend(&parts, part);
    property->SetParts(&parts);
    ListClear(&parts);
    return property;
  }

  memory::MemoryHost host;

 private:
  MeshModel* model_ = nullptr;
  ListCellPool cells_;
};

TEST(PropertySummary, ClassNameAndMaterialAreThoseOfTheHost) {
  HostBuilder builder;
  Material* steel = builder.MakeMaterial(5, L"Steel");
  builder.MakeProperty(builder.MakePart(7), L"Shell", L"Isotropic", steel)->SetName(L"Skin");

  const std::vector<PropertySummary> properties = SummariseProperties(builder.host);

  ASSERT_EQ(properties.size(), 1u);
  EXPECT_EQ(properties[0].id, 7);
  EXPECT_EQ(properties[0].kind, "Shell, Isotropic");
  EXPECT_EQ(properties[0].name, "Skin");
  ASSERT_TRUE(properties[0].material.has_value());
  EXPECT_EQ(properties[0].material->number, 5);
  EXPECT_EQ(properties[0].material->name, "Steel");
}

TEST(PropertySummary, APropertyWithoutMaterialAndClassSaysSo) {
  HostBuilder builder;
  builder.MakeProperty(builder.MakePart(7), L"", L"", nullptr);

  const std::vector<PropertySummary> properties = SummariseProperties(builder.host);

  ASSERT_EQ(properties.size(), 1u);
  EXPECT_EQ(properties[0].kind, "not described");
  EXPECT_FALSE(properties[0].material.has_value());
}

TEST(PropertySummary, TheMaterialHasTheNameThatIsInItsDescriptorNow) {
  HostBuilder builder;
  Material* material = builder.MakeMaterial(5, L"Material_5");
  builder.MakeProperty(builder.MakePart(7), L"Shell", L"Isotropic", material);
  MaterialDescriptor* held = nullptr;
  material->GetDescriptor(&held);
  SetText(held->name, L"Steel S355 J");

  EXPECT_EQ(SummariseProperties(builder.host)[0].material->name, "Steel S355 J");
  EXPECT_EQ(SummariseMaterials(builder.host)[0].name, "Steel S355 J");
}

TEST(PropertySummary, ValuesOfEveryKindKeepTheirKeysInOrder) {
  HostBuilder builder;
  Material* steel = builder.MakeMaterial(5, L"Steel");
  Property* property = builder.MakeProperty(builder.MakePart(7), L"Bar", L"Bar", steel);
  char section[] = "OSection";
  NamedValues values;
  values.AddReal("Thickness", 2.5);
  values.AddReal("Area", 0.0, true);
  values.AddInteger("PA", 45.0);
  values.AddFlag("Stabilization_Stiffness", true);
  values.AddEnum("Nastran_Bar_Type", 1);
  values.AddText("SectionType", section, 8);
  values.AddObject("Material_Bending", steel);
  values.AddObject("Material_TS", nullptr);
  property->SetValues(values.List());

  const std::vector<ValueSummary> shown = SummariseProperties(builder.host)[0].values;

  ASSERT_EQ(shown.size(), 8u);
  EXPECT_EQ(shown[0].key, "Thickness");
  EXPECT_EQ(std::get<double>(shown[0].value), 2.5);
  EXPECT_EQ(shown[1].key, "Area");
  EXPECT_TRUE(std::holds_alternative<std::monostate>(shown[1].value));
  EXPECT_EQ(std::get<double>(shown[2].value), 45.0);
  EXPECT_EQ(std::get<double>(shown[3].value), 1.0);
  EXPECT_EQ(std::get<std::int32_t>(shown[4].value), 1);
  EXPECT_EQ(std::get<std::string>(shown[5].value), "OSection");
  EXPECT_EQ(shown[6].key, "Material_Bending");
  EXPECT_EQ(std::get<std::int32_t>(shown[6].value), 5);
  EXPECT_TRUE(std::holds_alternative<std::monostate>(shown[7].value));
}

TEST(PropertySummary, AValueIsFoundByItsKey) {
  const std::vector<ValueSummary> values = {{"Area", 1.0}, {"Area2", 2.0}};

  ASSERT_NE(FindValue(values, "Area2"), nullptr);
  EXPECT_EQ(std::get<double>(FindValue(values, "Area2")->value), 2.0);
  EXPECT_EQ(FindValue(values, "Thickness"), nullptr);
}

TEST(MaterialSummary, MaterialsHaveNumberNameClassAndValues) {
  HostBuilder builder;
  builder.MakeMaterial(9, L"Rubber");
  NamedValues values;
  values.AddReal("Youngs_modulus", 70000.0);
  values.AddReal("Shear_modulus", 0.0, true);
  builder.MakeMaterial(2, L"Aluminium")->SetValues(values.List());

  const std::vector<MaterialSummary> materials = SummariseMaterials(builder.host);

  ASSERT_EQ(materials.size(), 2u);
  EXPECT_EQ(materials[0].number, 9);
  EXPECT_EQ(materials[0].name, "Rubber");
  EXPECT_EQ(materials[0].kind, "Isotropic, Elastic, Metal");
  EXPECT_TRUE(materials[0].values.empty());
  EXPECT_EQ(materials[1].number, 2);
  ASSERT_EQ(materials[1].values.size(), 2u);
  EXPECT_EQ(std::get<double>(materials[1].values[0].value), 70000.0);
  EXPECT_TRUE(std::holds_alternative<std::monostate>(materials[1].values[1].value));
}

TEST(ModelSummary, PartsAndPropertiesKnowEachOther) {
  HostBuilder builder;
  Material* steel = builder.MakeMaterial(5, L"Steel");
  MeshPart* first = builder.MakePart(7);
  builder.MakePart(8);
  MeshPart* third = builder.MakePart(9);
  builder.MakeProperty(third, L"Solid", L"Isotropic", steel);
  builder.MakeProperty(first, L"Shell", L"Isotropic", steel);
  builder.MakeProperty(first, L"Bar", L"Bar", steel);

  const ModelSummary summary = SummariseModel(builder.host);

  ASSERT_EQ(summary.parts.size(), 3u);
  EXPECT_EQ(summary.parts[0].properties, (std::vector<std::size_t>{1, 2}));
  EXPECT_TRUE(summary.parts[1].properties.empty());
  EXPECT_EQ(summary.parts[2].properties, (std::vector<std::size_t>{0}));
  ASSERT_EQ(summary.properties.size(), 3u);
  EXPECT_EQ(summary.properties[0].parts, (std::vector<std::size_t>{2}));
  EXPECT_EQ(summary.properties[1].parts, (std::vector<std::size_t>{0}));
  EXPECT_EQ(summary.properties[2].parts, (std::vector<std::size_t>{0}));
}

}  // namespace
}  // namespace btz::cli
