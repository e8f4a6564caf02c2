// Materials and properties of the host. The general rules of the host interfaces stand in host_mesh.h.
#pragma once

#include <btz/host_records.h>

namespace btz {

/// One material. [implemented by: host] [from MaterialStore::CreateMaterial, GetMaterial]
class Material {
 public:
  /// Number under which the store knows the material, which need not be the id of the card. Never changes. [pass 2-3] [stage]
  virtual void GetNumber(std::int32_t* out) = 0;

  /// Name and class texts; the host copies the block. [pass 2-3] [stage]
  virtual void SetDescriptor(MaterialDescriptor* descriptor) = 0;

  /// Gives the host's own block, valid as long as the material. The caller renames the material by writing into its `name`. [stage]
  virtual void GetDescriptor(MaterialDescriptor** out) = 0;

  /// Values by key; the host copies the records with all texts. [pass 2-3] [stage]
  virtual void SetValues(NamedValueList* values) = 0;

  /// Always called with 0. [pass 2-3] [stage]
  virtual void SetUsageFlag(std::int32_t flag) = 0;

 protected:
  ~Material() = default;
};

/// One property, which ties values and a material to parts. [implemented by: host] [from MaterialStore::CreateProperty]
class Property {
 public:
  /// Name of the property. May be called twice; the last call wins. [stage]
  virtual void SetName(const wchar_t* name) = 0;

  /// Class texts and material; the host copies the block. [stage]
  virtual void SetDescriptor(PropertyDescriptor* descriptor) = 0;

  /// List of MeshPart* that bear the property, always one. [stage]
  virtual void SetParts(PooledList* parts) = 0;

  /// Values by key; the host copies the records with all texts. [stage]
  virtual void SetValues(NamedValueList* values) = 0;

  /// The index that MaterialStore::GetMaterial gave, for shells; 0 for others. [stage]
  virtual void SetLinkedIndex(std::int32_t index) = 0;

 protected:
  ~Property() = default;
};

/// Works out the numbers of library sections. [implemented by: host] [from MaterialStore::GetSectionCalculator]
class SectionCalculator {
 public:
  /// Hollow round section of outer radius `dim1` and inner radius `dim2`. Fills what it knows of `out` and leaves the rest as preset.
  /// [stage]
  virtual void ComputeHollowSection(double dim1, double dim2, SectionValues* out) = 0;

  /// Solid round section of radius `dim1`. [stage]
  virtual void ComputeSolidSection(double dim1, SectionValues* out) = 0;

 protected:
  ~SectionCalculator() = default;
};

/// Factory and register of materials and properties. [implemented by: host] [handed in as argument `materialStore`]
class MaterialStore {
 public:
  /// New material for the deck's `id`; with id 0 the host numbers it. 0 on success; otherwise the caller drops the material silently.
  /// [pass 2-3] [stage]
  virtual std::int32_t CreateMaterial(Material** out, std::int32_t id) = 0;

  /// Finds a material by its number. `*out` stays null if there is none. `index` receives a number that only goes to
  /// Property::SetLinkedIndex. [stage]
  virtual void GetMaterial(std::int32_t id, Material** out, std::int32_t* index) = 0;

  /// New property with a part id as id; several may share one id. 0 on success. [stage]
  virtual std::int32_t CreateProperty(Property** out, std::int32_t id) = 0;

  /// Gives the object that works out section numbers. [stage]
  virtual void GetSectionCalculator(SectionCalculator** out) = 0;

  /// Called once, when all properties are made. [stage]
  virtual void Commit() = 0;

 protected:
  ~MaterialStore() = default;
};

}  // namespace btz
