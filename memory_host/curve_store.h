// Fields and curves of the in-memory host. One table has two faces: what is made as a field is found under its id as a curve too.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "memory_host/host_context.h"

namespace btz::memory {

class MemoryCurveStore;

class MemoryField final : public Field {
 public:
  MemoryField(HostContext& context, MemoryCurveStore& owner, std::int32_t fieldId)
      : object(context, ObjectType::Field, this), store(owner), id(fieldId) {}

  void SetName(const wchar_t* text) override;
  void GetId(std::int32_t* out) override;
  void SetId(std::int32_t value) override;
  void SetRows(PooledList* list) override;
  void SetQuantity(const wchar_t* text) override;
  void SetRowCount(std::int32_t count) override;
  void SetColumnCount(std::int32_t count) override;

  HostObject object;
  MemoryCurveStore& store;
  std::int32_t id;
  std::wstring name;
  std::wstring quantity;  ///< What the field or its curve was told last.
  std::int32_t rowCount = 0;
  std::int32_t columnCount = 0;
  std::vector<std::vector<double>> rows;  ///< `columnCount` numbers each.
};

class MemoryCurve final : public Curve {
 public:
  MemoryCurve(HostContext& context, MemoryField& owner) : object(context, ObjectType::Curve, this), field(owner) {}

  void SetQuantity(const wchar_t* text) override;

  HostObject object;
  MemoryField& field;  ///< The table of which this is the other face.
};

class MemoryCurveStore final : public CurveStore {
 public:
  explicit MemoryCurveStore(HostContext& context) : object(context, ObjectType::CurveStore, this) {}

  void GetField(std::int32_t id, Field** out) override;
  void GetCurve(std::int32_t id, Curve** out) override;
  void CreateField(Field** out) override;

  /// The first table of an id, or null.
  MemoryField* FindField(std::int32_t id);

  HostObject object;
  std::deque<MemoryField> fields;  ///< In order of creation.
  std::deque<MemoryCurve> curves;  ///< The curve of each field, in the same order.
};

}  // namespace btz::memory
