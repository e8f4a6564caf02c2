// Fields and curves of the host: tables of numbers. A Field and a Curve are two views of one table of the store: a field that was given an
// id by Field::SetId is found under that id both as a field and as a curve. The general rules of the host interfaces stand in host_mesh.h.
#pragma once

#include <btz/host_records.h>

namespace btz {

/// A table of rows: values by position, or a curve. [implemented by: host] [from CurveStore::CreateField, GetField]
class Field {
 public:
  /// Name of the field. [pass 2-3] [stage]
  virtual void SetName(const wchar_t* name) = 0;

  /// Id of the field: what the host gave it, until SetId. [pass 2-3] [stage]
  virtual void GetId(std::int32_t* out) = 0;

  /// Id by which loads and materials find the field. [pass 2-3]
  virtual void SetId(std::int32_t id) = 0;

  /// List of addresses of double rows, each of at least as many doubles as SetColumnCount says. Always comes behind SetColumnCount
  /// and SetRowCount. The host copies; the rows are the caller's. [pass 2-3] [stage]
  virtual void SetRows(PooledList* rows) = 0;

  /// What the numbers mean: "Displacement", "Force", "XYZ" and the like. [pass 2-3] [stage]
  virtual void SetQuantity(const wchar_t* name) = 0;

  /// Number of rows. [pass 2-3] [stage]
  virtual void SetRowCount(std::int32_t count) = 0;

  /// Doubles of a row: 2 for a curve, 3 to 5 for coordinates or ids with values, 9 for three coordinates and six components.
  /// [pass 2-3] [stage]
  virtual void SetColumnCount(std::int32_t count) = 0;

 protected:
  ~Field() = default;
};

/// A table seen as a function. [implemented by: host] [from CurveStore::GetCurve]
class Curve {
 public:
  /// What the curve means: "Frequency_Stiffness", "Frequency_ViscousDamping". [stage]
  virtual void SetQuantity(const wchar_t* name) = 0;

 protected:
  ~Curve() = default;
};

/// Factory and register of fields and curves. [implemented by: host] [handed in as argument `curveStore`]
class CurveStore {
 public:
  /// Finds a field by its id. `*out` stays null if there is none. [pass 2-3] [stage]
  virtual void GetField(std::int32_t id, Field** out) = 0;

  /// Finds a curve by its table id. `*out` stays null if there is none. [stage]
  virtual void GetCurve(std::int32_t id, Curve** out) = 0;

  /// New field. `*out` stays null on refusal. [pass 2-3] [stage]
  virtual void CreateField(Field** out) = 0;

 protected:
  ~CurveStore() = default;
};

}  // namespace btz
