// The host trace: one line of text a call, in which a run can be read, compared and kept. The sink takes finished lines; ValueWriter knows
// how each kind of value is written. The bytes are the same on every platform: no addresses, LF line ends, doubles as the shortest text
// that reads back to the same value.
#pragma once

#include <btz/host_records.h>

#include <cstdio>
#include <string>
#include <string_view>

#include "memory_host/object_types.h"
#include "memory_host/operation.h"

namespace btz::memory {

class HostContext;

/// Where the trace goes: into a text, or to a file that was opened in binary mode.
class TraceSink {
 public:
  enum class Coverage {
    Changes,  ///< Calls that can change the host.
    All       ///< Questions too.
  };

  explicit TraceSink(std::string* text, Coverage coverage = Coverage::Changes) : text_(text), coverage_(coverage) {}
  explicit TraceSink(std::FILE* file, Coverage coverage = Coverage::Changes) : file_(file), coverage_(coverage) {}

  /// True when calls of this operation are lines of the trace.
  bool Wants(ObjectType type, const Operation& operation) const;

  /// Writes one line; the line end is added.
  void WriteLine(std::string_view line);

 private:
  std::string* text_ = nullptr;
  std::FILE* file_ = nullptr;
  Coverage coverage_;
};

// Values that their C++ type alone does not tell apart. A list is written up to its first null, as the host reads it, and its cursor is
// left alone.
struct Nodes {
  const PooledList* list;  ///< MeshNode*.
};
struct Elements {
  const PooledList* list;  ///< MeshElement*.
};
struct Objects {
  const PooledList* list;  ///< Host objects.
};
struct Ids {
  const PooledList* list;  ///< Addresses of int32.
};
struct Rows {
  const PooledList* list;  ///< Addresses of rows of doubles.
  std::int32_t columns;
};
struct Values {
  const NamedValueList* list;  ///< NamedValue*.
};
struct ElementTable {
  const HashTable* table;  ///< MeshElement*, in the order of iteration.
};
struct ElementNodeIds {
  std::int32_t typeIndex;
  const std::int32_t* ids;  ///< As MeshModel::CreateElement takes them.
};
struct Object {
  const void* address;  ///< A host object or null.
};
struct Point {
  const double* xyz;  ///< Three doubles.
};
struct Colour {
  const float* rgb;  ///< Three floats.
};
struct ComponentMarks {
  const std::uint8_t* marks;  ///< Six bytes.
};
struct FileName {
  const char* path;  ///< Of which only what stands behind the last separator is written.
};

/// Appends values to a text.
class ValueWriter {
 public:
  ValueWriter(const HostContext& context, std::string& text) : context_(context), text_(text) {}

  void Write(std::int32_t value);
  void Write(double value);
  void Write(float value);
  void Write(const char* text);
  void Write(const wchar_t* text);
  void Write(const MeshNode* node);
  void Write(const MeshElement* element);
  void Write(Object object);
  void Write(Nodes nodes);
  void Write(Elements elements);
  void Write(Objects objects);
  void Write(Ids ids);
  void Write(Rows rows);
  void Write(Values values);
  void Write(ElementTable elements);
  void Write(ElementNodeIds nodes);
  void Write(Point point);
  void Write(Colour colour);
  void Write(ComponentMarks marks);
  void Write(FileName name);
  void Write(const PropertyDescriptor* descriptor);
  void Write(const MaterialDescriptor* descriptor);
  void Write(const CutPartStep* step);

 private:
  void WriteNull() { text_ += "null"; }
  void WriteCharacter(std::uint32_t character, bool quoted);
  void WriteUnquoted(const char* text);
  template <typename WriteValue>
  void WriteList(const PooledList* list, WriteValue writeValue);
  void WriteNamedValue(const NamedValue& value);
  void WriteArray(const double* numbers, std::int32_t count);

  const HostContext& context_;
  std::string& text_;
};

}  // namespace btz::memory
