#include "memory_host/curve_store.h"

namespace btz::memory {

namespace {

/// The n-th field bears this + n until it is given an id, out of the way of the table ids of a deck.
constexpr std::int32_t firstOwnId = 1000000;

}  // namespace

void MemoryField::SetName(const wchar_t* text) {
  Call(object, "SetName").Arguments(text);
  name = CopyOf(text);
}

void MemoryField::GetId(std::int32_t* out) {
  Call call(object, "GetId");
  if (call.HasRoom(out)) {
    *out = id;
    call.Gave(*out);
  }
}

void MemoryField::SetId(std::int32_t value) {
  Call(object, "SetId").Arguments(value);
  id = value;
}

void MemoryField::SetRows(PooledList* list) {
  Call(object, "SetRows").Arguments(Rows{list, columnCount});
  rows.clear();
  ReadList(object, "SetRows", list, [this](void* value) {
    const auto* numbers = static_cast<const double*>(value);
    rows.emplace_back(numbers, numbers + columnCount);
  });
}

void MemoryField::SetQuantity(const wchar_t* text) {
  Call(object, "SetQuantity").Arguments(text);
  quantity = CopyOf(text);
}

void MemoryField::SetRowCount(std::int32_t count) {
  Call(object, "SetRowCount").Arguments(count);
  rowCount = count;
}

void MemoryField::SetColumnCount(std::int32_t count) {
  Call(object, "SetColumnCount").Arguments(count);
  columnCount = count < 0 ? 0 : count;
}

void MemoryCurve::SetQuantity(const wchar_t* text) {
  Call(object, "SetQuantity").Arguments(text);
  field.quantity = CopyOf(text);
}

MemoryField* MemoryCurveStore::FindField(std::int32_t id) {
  for (MemoryField& field : fields) {
    if (field.id == id) {
      return &field;
    }
  }
  return nullptr;
}

void MemoryCurveStore::GetField(std::int32_t id, Field** out) {
  Call call(object, "GetField");
  call.Arguments(id);
  if (!call.HasRoom(out) || call.IsRefused(out)) {
    return;
  }
  MemoryField* field = FindField(id);
  if (field == nullptr) {
    call.Withhold(out);
    return;
  }
  call.Give(out, *field);
}

void MemoryCurveStore::GetCurve(std::int32_t id, Curve** out) {
  Call call(object, "GetCurve");
  call.Arguments(id);
  if (!call.HasRoom(out) || call.IsRefused(out)) {
    return;
  }
  for (MemoryCurve& curve : curves) {
    if (curve.field.id == id) {
      call.Give(out, curve);
      return;
    }
  }
  call.Withhold(out);
}

void MemoryCurveStore::CreateField(Field** out) {
  Call call(object, "CreateField");
  if (!call.HasRoom(out) || call.IsRefused(out)) {
    return;
  }
  MemoryField& field = fields.emplace_back(object.context, *this, firstOwnId + static_cast<std::int32_t>(fields.size()) + 1);
  curves.emplace_back(object.context, field);
  call.Give(out, field);
}

}  // namespace btz::memory
