#include "memory_host/material_store.h"

#include <algorithm>
#include <numbers>

namespace btz::memory {

namespace {

constexpr std::int32_t refused = 1;

/// Circle of radius `outer` with a hole of radius `inner`; stress points on the four ends of the axes.
void ComputeRing(double outer, double inner, SectionValues* out) {
  const double outerSquare = outer * outer;
  const double innerSquare = inner * inner;
  out->area = std::numbers::pi * outerSquare - std::numbers::pi * innerSquare;
  out->i1 = std::numbers::pi * (outerSquare * outerSquare - innerSquare * innerSquare) / 4.0;
  out->i2 = out->i1;
  out->torsion = std::numbers::pi * (outerSquare * outerSquare - innerSquare * innerSquare) / 2.0;
  out->c1 = outer;
  out->d2 = outer;
  out->e1 = -outer;
  out->f2 = -outer;
}

}  // namespace

std::vector<StoredValue> ReadValues(HostObject& object, const char* operation, NamedValueList* list) {
  std::vector<StoredValue> values;
  ReadList(object, operation, list, [&](void* record) {
    const auto& given = *static_cast<const NamedValue*>(record);
    StoredValue& value = values.emplace_back();
    value.key.assign(given.key, std::find(given.key, given.key + sizeof(given.key), '\0'));
    value.kind = given.kind;
    value.extent = given.extent;
    if (given.text != nullptr) {
      value.text = given.text;
    }
    switch (given.kind) {
      case ValueEnum:
        value.integer = given.value.choice;
        break;
      case ValueText:
        value.characters = given.value.characters == nullptr ? "" : given.value.characters;
        break;
      case ValueFieldRef:
        value.integer = given.value.fieldId == nullptr ? 0 : *given.value.fieldId;
        break;
      case ValueObject:
        value.object = Accept(object, operation, given.value.object);
        break;
      default:
        value.real = given.value.real;
        break;
    }
  });
  return values;
}

void MemoryMaterial::GetNumber(std::int32_t* out) {
  Call call(object, "GetNumber");
  if (call.HasRoom(out)) {
    *out = number;
    call.Gave(*out);
  }
}

void MemoryMaterial::SetDescriptor(MaterialDescriptor* given) {
  Call(object, "SetDescriptor").Arguments(static_cast<const MaterialDescriptor*>(given));
  if (given != nullptr) {
    descriptor = *given;
    nameAsSet = given->name;
  }
}

void MemoryMaterial::GetDescriptor(MaterialDescriptor** out) {
  Call call(object, "GetDescriptor");
  if (call.HasRoom(out) && !call.IsRefused(out)) {
    *out = &descriptor;
    call.Gave(static_cast<const MaterialDescriptor*>(*out));
  }
}

void MemoryMaterial::SetValues(NamedValueList* list) {
  Call(object, "SetValues").Arguments(Values{list});
  values = ReadValues(object, "SetValues", list);
}

void MemoryMaterial::SetUsageFlag(std::int32_t flag) {
  Call(object, "SetUsageFlag").Arguments(flag);
  usageFlag = flag;
}

void MemoryProperty::SetName(const wchar_t* text) {
  Call(object, "SetName").Arguments(text);
  name = CopyOf(text);
}

void MemoryProperty::SetDescriptor(PropertyDescriptor* given) {
  Call(object, "SetDescriptor").Arguments(static_cast<const PropertyDescriptor*>(given));
  if (given != nullptr) {
    descriptor = *given;
    descriptor.material = Accept(object, "SetDescriptor", given->material);
  }
}

void MemoryProperty::SetParts(PooledList* list) {
  Call(object, "SetParts").Arguments(Objects{list});
  parts = ReadParts(object, "SetParts", list);
}

void MemoryProperty::SetValues(NamedValueList* list) {
  Call(object, "SetValues").Arguments(Values{list});
  values = ReadValues(object, "SetValues", list);
}

void MemoryProperty::SetLinkedIndex(std::int32_t index) {
  Call(object, "SetLinkedIndex").Arguments(index);
  linkedIndex = index;
}

void MemorySectionCalculator::ComputeHollowSection(double dim1, double dim2, SectionValues* out) {
  Call call(object, "ComputeHollowSection");
  call.Arguments(dim1, dim2);
  if (call.HasRoom(out)) {
    ComputeRing(dim1, dim2, out);
  }
}

void MemorySectionCalculator::ComputeSolidSection(double dim1, SectionValues* out) {
  Call call(object, "ComputeSolidSection");
  call.Arguments(dim1);
  if (call.HasRoom(out)) {
    ComputeRing(dim1, 0.0, out);
  }
}

MemoryMaterial* MemoryMaterialStore::FindMaterial(std::int32_t number) {
  const auto found = byNumber_.find(number);
  return found == byNumber_.end() ? nullptr : found->second;
}

std::int32_t MemoryMaterialStore::CreateMaterial(Material** out, std::int32_t id) {
  Call call(object, "CreateMaterial");
  call.Arguments(id);
  if (!call.HasRoom(out) || call.IsRefused(out)) {
    return call.Failed(refused);
  }
  const std::int32_t number = id == 0 ? highestNumber_ + 1 : id + object.context.options.materialNumberOffset;
  if (id < 0 || FindMaterial(number) != nullptr) {
    call.Withhold(out);
    return call.Code(refused);
  }
  MemoryMaterial& material = materials.emplace_back(object.context, number, static_cast<std::int32_t>(materials.size()) + 1);
  byNumber_[number] = &material;
  highestNumber_ = std::max(highestNumber_, number);
  call.Give(out, material);
  return call.Code(0);
}

void MemoryMaterialStore::GetMaterial(std::int32_t id, Material** out, std::int32_t* index) {
  Call call(object, "GetMaterial");
  call.Arguments(id);
  if (!call.HasRoom(out) || !call.HasRoom(index)) {
    return;
  }
  MemoryMaterial* material = call.IsRefused() ? nullptr : FindMaterial(id);
  if (material == nullptr) {
    call.Withhold(out);
    call.WithholdValue();
    return;
  }
  call.Give(out, *material);
  *index = material->index;
  call.Gave(*index);
}

std::int32_t MemoryMaterialStore::CreateProperty(Property** out, std::int32_t id) {
  Call call(object, "CreateProperty");
  call.Arguments(id);
  if (!call.HasRoom(out) || call.IsRefused(out)) {
    return call.Failed(refused);
  }
  call.Give(out, properties.emplace_back(object.context, id));
  return call.Code(0);
}

void MemoryMaterialStore::GetSectionCalculator(SectionCalculator** out) {
  Call call(object, "GetSectionCalculator");
  if (call.HasRoom(out) && !call.IsRefused(out)) {
    call.Give(out, calculator);
  }
}

void MemoryMaterialStore::Commit() {
  Call(object, "Commit").Arguments();
  committed = true;
}

}  // namespace btz::memory
