#include "host/named_values.h"

#include "support/pooled_list.h"
#include "support/text.h"

namespace btz {

NamedValues::NamedValues() {
  ListCellPoolInit(&cells_);
  ListInit(&list_, &cells_);
}

NamedValues::~NamedValues() {
  ListClear(&list_);
  ListCellPoolReset(&cells_);
}

void NamedValues::AddReal(const char* key, double value, bool unset) { AddRealWithText(key, value, unset, nullptr); }

void NamedValues::AddInteger(const char* key, double value, bool unset) {
  if (NamedValue* added = Add(key, unset ? ValueUnset : ValueInteger)) {
    added->value.real = value;
  }
}

void NamedValues::AddFlag(const char* key, bool value) {
  if (NamedValue* added = Add(key, ValueFlag)) {
    added->value.real = value ? 1.0 : 0.0;
  }
}

void NamedValues::AddEnum(const char* key, std::int32_t choice) {
  if (NamedValue* added = Add(key, ValueEnum)) {
    added->value.choice = choice;
  }
}

void NamedValues::AddObject(const char* key, void* object) {
  if (NamedValue* added = Add(key, ValueObject)) {
    added->extent = object == nullptr ? 0 : 1;
    added->value.object = object;
  }
}

void NamedValues::AddText(const char* key, char* text, std::int32_t extent) {
  if (NamedValue* added = Add(key, ValueText)) {
    added->extent = extent;
    added->value.characters = text;
  }
}

void NamedValues::AddRealWithText(const char* key, double value, bool unset, char* text) {
  if (NamedValue* added = Add(key, unset ? ValueUnset : ValueReal)) {
    added->text = text;
    added->value.real = value;
  }
}

void NamedValues::Clear() { ListClear(&list_); }

NamedValue* NamedValues::Add(const char* key, ValueKind kind) {
  if (list_.size == capacity) {
    return nullptr;
  }
  // All bytes that a host may copy are defined, also those of the half of a slot that an integer leaves.
  NamedValue* value = &values_[list_.size];
  *value = NamedValue{};
  CopyText(value->key, sizeof(value->key), key);
  value->kind = kind;
  ListAppend(&list_, value);
  return value;
}

}  // namespace btz
