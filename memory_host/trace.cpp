#include "memory_host/trace.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "memory_host/element_shapes.h"
#include "memory_host/host_context.h"
#include "memory_host/mesh_records.h"

namespace btz::memory {

namespace {

/// Calls `visit` with each value of a list or null-ended stretch of it, without touching the cursor.
template <typename Visit>
void ForEachValue(const PooledList* list, Visit visit) {
  std::int32_t left = list->size;
  for (const ListCell* cell = list->next; cell != nullptr && cell != list && cell->value != nullptr && left > 0; cell = cell->next) {
    visit(cell->value);
    --left;
  }
}

template <typename Number>
void AppendReal(std::string& text, Number value) {
  if (std::isnan(value)) {
    text += "nan";
    return;
  }
  std::array<char, 64> buffer;
  const std::to_chars_result end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
  const std::string_view digits(buffer.data(), static_cast<std::size_t>(end.ptr - buffer.data()));
  text += digits;
  if (digits.find_first_not_of("-0123456789") == std::string_view::npos) {
    text += ".0";
  }
}

void AppendHex(std::string& text, std::uint32_t value, int leastDigits) {
  std::array<char, 16> buffer;
  std::snprintf(buffer.data(), buffer.size(), "%0*X", leastDigits, static_cast<unsigned>(value));
  text += buffer.data();
}

const char* KindName(std::int32_t kind) {
  switch (kind) {
    case ValueInteger:
      return "Integer";
    case ValueFlag:
      return "Flag";
    case ValueEnum:
      return "Enum";
    case ValueReal:
      return "Real";
    case ValueText:
      return "Text";
    case ValueFieldRef:
      return "FieldRef";
    case ValueObject:
      return "Object";
    case ValueUnset:
      return "Unset";
    default:
      return "Unknown";
  }
}

}  // namespace

bool TraceSink::Wants(ObjectType type, const Operation& operation) const {
  if (coverage_ == Coverage::All || !operation.isQuestion) {
    return true;
  }
  // Two questions by name that make what they give: the run's model, and a new set of parameters.
  const std::string_view name = operation.name;
  return (type == ObjectType::HostProject && name == "GetMeshModel") || (type == ObjectType::LoadCase && name == "GetParameters");
}

void TraceSink::WriteLine(std::string_view line) {
  if (text_ != nullptr) {
    text_->append(line);
    text_->push_back('\n');
  }
  if (file_ != nullptr) {
    std::fwrite(line.data(), 1, line.size(), file_);
    std::fputc('\n', file_);
  }
}

void ValueWriter::Write(std::int32_t value) { text_ += std::to_string(value); }

void ValueWriter::Write(double value) { AppendReal(text_, value); }

void ValueWriter::Write(float value) { AppendReal(text_, value); }

void ValueWriter::WriteCharacter(std::uint32_t character, bool quoted) {
  switch (character) {
    case '\n':
      text_ += "\\n";
      return;
    case '\r':
      text_ += "\\r";
      return;
    case '\t':
      text_ += "\\t";
      return;
    case '"':
    case '\\':
      if (quoted) {
        text_ += '\\';
      }
      break;
    default:
      break;
  }
  if (character < 0x20 || character == 0x7F) {
    text_ += "\\x";
    AppendHex(text_, character, 2);
  } else if (character < 0x7F) {
    text_ += static_cast<char>(character);
  } else {
    text_ += "\\u{";
    AppendHex(text_, character, 4);
    text_ += '}';
  }
}

void ValueWriter::WriteUnquoted(const char* text) {
  for (; *text != 0; ++text) {
    WriteCharacter(static_cast<unsigned char>(*text), false);
  }
}

void ValueWriter::Write(const char* text) {
  if (text == nullptr) {
    WriteNull();
    return;
  }
  text_ += '"';
  for (; *text != 0; ++text) {
    WriteCharacter(static_cast<unsigned char>(*text), true);
  }
  text_ += '"';
}

void ValueWriter::Write(const wchar_t* text) {
  if (text == nullptr) {
    WriteNull();
    return;
  }
  text_ += '"';
  for (; *text != 0; ++text) {
    WriteCharacter(static_cast<std::uint32_t>(*text), true);
  }
  text_ += '"';
}

void ValueWriter::Write(const MeshNode* node) {
  if (node == nullptr) {
    WriteNull();
    return;
  }
  if (!context_.mesh.OwnsNode(node)) {
    text_ += "unknown";
    return;
  }
  text_ += 'n';
  Write(node->id);
}

void ValueWriter::Write(const MeshElement* element) {
  if (element == nullptr) {
    WriteNull();
    return;
  }
  if (!context_.mesh.OwnsElement(element)) {
    text_ += "unknown";
    return;
  }
  if (context_.mesh.faceRecords.Owns(element)) {
    const auto* face = static_cast<const MemoryElement*>(element);
    text_ += 'f';
    Write(face->solid->id);
    text_ += ':';
    Write(face->side);
    return;
  }
  text_ += 'e';
  Write(element->id);
}

void ValueWriter::Write(Object object) {
  if (object.address == nullptr) {
    WriteNull();
    return;
  }
  HostObject* known = context_.Find(object.address);
  text_ += known == nullptr ? "unknown" : known->Name();
}

template <typename WriteValue>
void ValueWriter::WriteList(const PooledList* list, WriteValue writeValue) {
  if (list == nullptr) {
    WriteNull();
    return;
  }
  text_ += '[';
  const char* separator = "";
  ForEachValue(list, [&](void* value) {
    text_ += separator;
    writeValue(value);
    separator = ", ";
  });
  text_ += ']';
}

void ValueWriter::Write(Nodes nodes) {
  WriteList(nodes.list, [this](void* value) { Write(static_cast<const MeshNode*>(value)); });
}

void ValueWriter::Write(Elements elements) {
  WriteList(elements.list, [this](void* value) { Write(static_cast<const MeshElement*>(value)); });
}

void ValueWriter::Write(Objects objects) {
  WriteList(objects.list, [this](void* value) { Write(Object{value}); });
}

void ValueWriter::Write(Ids ids) {
  WriteList(ids.list, [this](void* value) { Write(*static_cast<const std::int32_t*>(value)); });
}

void ValueWriter::Write(Rows rows) {
  WriteList(rows.list, [this, rows](void* value) {
    text_ += '[';
    WriteArray(static_cast<const double*>(value), rows.columns);
    text_ += ']';
  });
}

void ValueWriter::WriteArray(const double* numbers, std::int32_t count) {
  for (std::int32_t i = 0; i < count; ++i) {
    text_ += i == 0 ? "" : ", ";
    Write(numbers[i]);
  }
}

void ValueWriter::Write(Values values) {
  if (values.list == nullptr) {
    WriteNull();
    return;
  }
  text_ += '{';
  const char* separator = "";
  ForEachValue(values.list, [&](void* value) {
    text_ += separator;
    WriteNamedValue(*static_cast<const NamedValue*>(value));
    separator = ", ";
  });
  text_ += '}';
}

void ValueWriter::WriteNamedValue(const NamedValue& value) {
  WriteUnquoted(value.key);
  text_ += ": ";
  text_ += KindName(value.kind);
  text_ += ' ';
  switch (value.kind) {
    case ValueEnum:
      Write(value.value.choice);
      break;
    case ValueText:
      Write(static_cast<const char*>(value.value.characters));
      break;
    case ValueFieldRef:
      if (value.value.fieldId == nullptr) {
        WriteNull();
      } else {
        Write(*value.value.fieldId);
      }
      break;
    case ValueObject:
      Write(Object{value.value.object});
      break;
    default:
      Write(value.value.real);
      break;
  }
  if (value.extent != 0) {
    text_ += " extent=";
    Write(value.extent);
  }
  if (value.text != nullptr) {
    text_ += " text=";
    Write(static_cast<const char*>(value.text));
  }
}

void ValueWriter::Write(ElementTable elements) {
  if (elements.table == nullptr) {
    WriteNull();
    return;
  }
  text_ += '{';
  const char* separator = "";
  ForEachRecord(*elements.table, [&](void* record) {
    text_ += separator;
    Write(static_cast<const MeshElement*>(record));
    separator = ", ";
  });
  text_ += '}';
}

void ValueWriter::Write(ElementNodeIds nodes) {
  if (nodes.ids == nullptr) {
    WriteNull();
    return;
  }
  std::int32_t count = NodeCount(nodes.typeIndex);
  if (nodes.typeIndex == rigidType) {
    count = std::max(nodes.ids[0], 0) + 1;
  }
  text_ += '[';
  for (std::int32_t i = 0; i < count; ++i) {
    text_ += i == 0 ? "" : ", ";
    Write(nodes.ids[i]);
  }
  text_ += ']';
}

void ValueWriter::Write(Point point) {
  if (point.xyz == nullptr) {
    WriteNull();
    return;
  }
  text_ += '(';
  WriteArray(point.xyz, 3);
  text_ += ')';
}

void ValueWriter::Write(Colour colour) {
  if (colour.rgb == nullptr) {
    WriteNull();
    return;
  }
  text_ += '(';
  for (int i = 0; i < 3; ++i) {
    text_ += i == 0 ? "" : ", ";
    Write(colour.rgb[i]);
  }
  text_ += ')';
}

void ValueWriter::Write(ComponentMarks marks) {
  if (marks.marks == nullptr) {
    WriteNull();
    return;
  }
  text_ += '(';
  for (int i = 0; i < 6; ++i) {
    text_ += i == 0 ? "" : ", ";
    Write(std::int32_t{marks.marks[i]});
  }
  text_ += ')';
}

void ValueWriter::Write(FileName name) {
  const char* start = name.path;
  for (const char* c = name.path; c != nullptr && *c != 0; ++c) {
    if (*c == '/' || *c == '\\') {
      start = c + 1;
    }
  }
  Write(start);
}

void ValueWriter::Write(const PropertyDescriptor* descriptor) {
  if (descriptor == nullptr) {
    WriteNull();
    return;
  }
  text_ += '<';
  Write(descriptor->number);
  text_ += ", ";
  Write(Object{descriptor->material});
  for (const wchar_t* text : {descriptor->propertyClass, descriptor->materialClass}) {
    text_ += ", ";
    Write(text);
  }
  text_ += '>';
}

void ValueWriter::Write(const MaterialDescriptor* descriptor) {
  if (descriptor == nullptr) {
    WriteNull();
    return;
  }
  text_ += '<';
  Write(descriptor->name);
  for (const wchar_t* text : {descriptor->symmetry, descriptor->behaviour, descriptor->family, descriptor->note}) {
    text_ += ", ";
    Write(text);
  }
  text_ += '>';
}

void ValueWriter::Write(const CutPartStep* step) {
  if (step == nullptr) {
    WriteNull();
    return;
  }
  text_ += '<';
  Write(step->id);
  text_ += ", ";
  Write(step->kind);
  text_ += '>';
}

}  // namespace btz::memory
