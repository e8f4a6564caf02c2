// Value lists of properties and materials: the form in which they reach the host. The records live here until the host has taken the list,
// which copies what it keeps.
#pragma once

#include "host/host_interfaces.h"

namespace btz {

/// Builds one list of named values. Keys are cut to 255 characters. Values beyond the capacity are left out.
class NamedValues {
 public:
  static constexpr std::int32_t capacity = 24;

  NamedValues();
  ~NamedValues();
  NamedValues(const NamedValues&) = delete;
  NamedValues& operator=(const NamedValues&) = delete;

  /// The list as the host takes it, in the order of adding.
  NamedValueList* List() { return &list_; }

  /// A real number; `unset` tells that the deck left it blank.
  void AddReal(const char* key, double value, bool unset = false);

  /// An integer number, held as a double; `unset` tells that the deck left it blank.
  void AddInteger(const char* key, double value, bool unset = false);

  void AddFlag(const char* key, bool value);

  void AddEnum(const char* key, std::int32_t choice);

  /// A host object, or null.
  void AddObject(const char* key, void* object);

  /// A text with the length that the host is told. The text must live until the host has taken the list.
  void AddText(const char* key, char* text, std::int32_t extent);

  /// A real number with its text form, which must live until the host has taken the list.
  void AddRealWithText(const char* key, double value, bool unset, char* text);

  /// Forgets all values.
  void Clear();

 private:
  NamedValue* Add(const char* key, ValueKind kind);

  ListCellPool cells_;
  NamedValueList list_;
  NamedValue values_[capacity];
};

}  // namespace btz
