// What all objects of one in-memory host share, and the three steps of every operation: announce the call, read what was given, answer.
//
//   std::int32_t MemoryMaterialStore::CreateProperty(Property** out, std::int32_t id) {
//     Call call(object, "CreateProperty");      // hook, order of calls, trace line
//     call.Arguments(id);
//     if (!call.HasRoom(out) || call.IsRefused(out)) {
//       return call.Failed(1);
//     }
//     call.Give(out, properties.emplace_back(object.context, id));
//     return call.Code(0);
//   }                                           // the line is written here
#pragma once

#include <btz/host_interfaces.h>

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "memory_host/entity_names.h"
#include "memory_host/mesh_records.h"
#include "memory_host/object_types.h"
#include "memory_host/refusal_script.h"
#include "memory_host/trace.h"
#include "support/pooled_list.h"

namespace btz::memory {

class HostContext;

struct HostOptions {
  bool strict = true;                     ///< A wrong call stops the host. Otherwise it is survived in silence.
  bool nullOnFailure = false;             ///< A failed look-up or create writes null to `*out` instead of leaving it alone.
  std::int32_t materialNumberOffset = 0;  ///< Number of a material = id of the deck + this.
};

/// What a host object knows of itself: its type and its number in the order in which objects of the type were handed out.
struct HostObject {
  /// Registers the object under the address under which the translator will know it.
  HostObject(HostContext& host, ObjectType objectType, const void* address);
  HostObject(const HostObject&) = delete;
  HostObject& operator=(const HostObject&) = delete;

  /// Gives the object its number if it has none yet.
  void HandOut();

  /// "ForceLoad#3", "BoundaryStore".
  std::string Name();

  HostContext& context;
  ObjectType type;
  std::int32_t number = 0;  ///< 0 until the object is handed out.
};

class HostContext {
 public:
  HostContext();
  HostContext(const HostContext&) = delete;
  HostContext& operator=(const HostContext&) = delete;
  ~HostContext();

  HostOptions options;
  RefusalScript refusals;
  TraceSink* trace = nullptr;                                         ///< Null: no trace.
  std::function<void(const char* type, const char* operation)> hook;  ///< Called before each call of the translator.
  std::function<void(const std::string& message)> faultHandler;       ///< Of a strict host. May return: the call then goes on safely.
  bool handedOver = false;                                            ///< HostProject::AttachModel was called.
  MeshRecords mesh;
  EntityNames names;
  ListCellPool listPool;  ///< Cells of all lists of the host.

  /// The object that was registered under `address`, or null.
  HostObject* Find(const void* address) const;

  /// Reports a wrong call of a strict host.
  void Fault(HostObject& object, const char* operation, std::string_view what);

  /// True when calls have to be announced.
  bool IsWatched() const { return trace != nullptr || handedOver || refusals.IsActive() || hook; }

 private:
  friend struct HostObject;

  std::unordered_map<const void*, HostObject*> objects_;
  std::array<std::int32_t, objectTypeCount> handedOut_{};  ///< Highest number for each type.
};

/// Calls `visit` with each record of a hash table in the order of iteration, without touching its iterator.
template <typename Visit>
void ForEachRecord(const HashTable& table, Visit visit) {
  for (std::int32_t bucket = 0; table.buckets != nullptr && bucket < table.bucketCount; ++bucket) {
    for (const HashCell* cell = &table.buckets[bucket]; cell != nullptr && cell->record != nullptr; cell = cell->next) {
      visit(cell->record);
    }
  }
}

/// A list of the host's own, in order of creation, which may be edited by whoever got it.
class OwnedList {
 public:
  explicit OwnedList(HostContext& context) { ListInit(&list_, &context.listPool); }
  OwnedList(const OwnedList&) = delete;
  OwnedList& operator=(const OwnedList&) = delete;

  PooledList* Get() { return &list_; }
  const PooledList* Get() const { return &list_; }
  std::int32_t Size() const { return list_.size; }

  /// Appends behind the last value, wherever the cursor stands.
  void Append(void* value);
  void Clear();
  bool Holds(const void* value) const;

  /// The first value, or null.
  void* First() const { return list_.next == &list_ ? nullptr : list_.next->value; }

  /// Calls `visit` with each value that was appended since the last such walk. What the translator puts in or takes out is none of them.
  template <typename Visit>
  void VisitNew(Visit visit) {
    std::int32_t known = list_.size - new_;
    new_ = 0;
    for (const ListCell* cell = list_.next; cell != &list_ && cell->value != nullptr; cell = cell->next) {
      if (--known < 0) {
        visit(cell->value);
      }
    }
  }

  /// The values as pointers of one type, up to the first null; the cursor is left alone.
  template <typename Value>
  std::vector<Value*> As() const {
    std::vector<Value*> values;
    for (const ListCell* cell = list_.next; cell != &list_ && cell->value != nullptr; cell = cell->next) {
      values.push_back(static_cast<Value*>(cell->value));
    }
    return values;
  }

 private:
  PooledList list_;
  ListCell* tail_ = nullptr;  ///< Last cell appended; the tail unless the list was edited since.
  std::int32_t new_ = 0;      ///< Values appended since VisitNew.
};

/// Appends to a list that the caller passed in to be filled: behind its last value, wherever the cursor stands.
void AppendLast(PooledList* list, void* value);

/// One call of an operation, from its announcement to its line in the trace.
class Call {
 public:
  Call(HostObject& object, Operation operation) : object_(object), operation_(operation) {
    if (object.context.IsWatched()) {
      Announce();
    }
  }
  Call(const Call&) = delete;
  Call& operator=(const Call&) = delete;
  ~Call() {
    if (traced_) {
      WriteLine();
    }
  }

  /// The in-arguments, in declared order.
  template <typename... Value>
  void Arguments(const Value&... values) {
    if (traced_) {
      (AddArgument(values), ...);
    }
  }

  /// False for a null out parameter, which stops a strict host.
  bool HasRoom(const void* out) {
    if (out == nullptr) {
      Fault("null out parameter");
    }
    return out != nullptr;
  }

  /// True when the script refuses this call; `*out` is left in the state of a failure.
  template <typename Interface>
  bool IsRefused(Interface** out) {
    if (refusal_ == Refusal::None) {
      return false;
    }
    Withhold(out);
    return true;
  }
  bool IsRefused() const { return refusal_ != Refusal::None; }

  /// The same for a call that fills a list of the caller's, which stays as it is.
  bool IsFillingRefused() {
    withheld_ += IsRefused() ? 1 : 0;
    return IsRefused();
  }

  /// The failure of a look-up or create: `*out` stays as it is, or becomes null if the host is told so.
  template <typename Interface>
  void Withhold(Interface** out) {
    if (object_.context.options.nullOnFailure && out != nullptr) {
      *out = nullptr;
    }
    ++withheld_;
  }

  /// The same for a number or a returned pointer.
  void WithholdValue() { ++withheld_; }

  /// Hands an object out, unless the script refuses the call.
  template <typename Interface, typename Class>
  void Give(Interface** out, Class& given) {
    if (IsRefused(out)) {
      return;
    }
    *out = static_cast<Interface*>(&given);
    given.object.HandOut();
    Gave(Object{*out});
  }

  /// Hands a list of objects out, unless the script refuses the call.
  void GiveObjects(PooledList** out, OwnedList& list);

  /// The same for a list of nodes or elements; `Kind` is Nodes or Elements.
  template <typename Kind>
  void GiveList(PooledList** out, OwnedList& list) {
    if (IsRefused(out)) {
      return;
    }
    *out = list.Get();
    Gave(Kind{list.Get()});
  }

  /// A value that was handed out.
  template <typename Value>
  void Gave(const Value& value) {
    if (traced_) {
      AddResult(value);
    }
  }

  /// The integer that the operation returns.
  std::int32_t Code(std::int32_t code) {
    code_ = code;
    hasCode_ = true;
    return code;
  }

  /// The integer of a failed operation: `code`, unless the script asks for an empty success.
  std::int32_t Failed(std::int32_t code) { return Code(refusal_ == Refusal::EmptySuccess ? 0 : code); }

  /// Stops a strict host; a lax one goes on.
  void Fault(std::string_view what) { object_.context.Fault(object_, operation_.name, what); }

 private:
  template <typename Value>
  void AddArgument(const Value& value) {
    text_ += firstArgument_ ? "" : ", ";
    firstArgument_ = false;
    ValueWriter(object_.context, text_).Write(value);
  }
  template <typename Value>
  void AddResult(const Value& value) {
    results_ += ' ';
    ValueWriter(object_.context, results_).Write(value);
  }
  void Announce();
  void WriteLine();

  HostObject& object_;
  Operation operation_;
  Refusal refusal_ = Refusal::None;
  bool traced_ = false;
  bool firstArgument_ = true;
  int withheld_ = 0;  ///< Things that were asked for and not given.
  bool hasCode_ = false;
  std::int32_t code_ = 0;
  std::string text_;
  std::string results_;
};

/// Calls `visit` with each value of a list that was passed in, in the manner of every host: rewind, then next until null. A null list is
/// empty; a ring that never comes back to the list stops a strict host and ends the walk of a lax one.
template <typename Visit>
void ReadList(HostObject& object, const char* operation, PooledList* list, Visit visit) {
  if (list == nullptr) {
    return;
  }
  ListRewind(list);
  for (std::int32_t left = list->size; list->cursor->next != nullptr; --left) {
    void* value = ListNext(list);
    if (value == nullptr) {
      return;
    }
    if (left <= 0) {
      break;
    }
    visit(value);
  }
  ListRewind(list);
  object.context.Fault(object, operation, "a list without end");
}

// Copies of lists that were passed in. Values that the host never handed out stop a strict host; a lax one leaves them out.
std::vector<MeshNode*> ReadNodes(HostObject& object, const char* operation, PooledList* list);
std::vector<MeshElement*> ReadElements(HostObject& object, const char* operation, PooledList* list);
std::vector<MeshPart*> ReadParts(HostObject& object, const char* operation, PooledList* list);
std::vector<std::int32_t> ReadIds(HostObject& object, const char* operation, PooledList* list);

/// `given` if it is null or an object of this host; otherwise null, and a strict host stops.
template <typename Interface>
Interface* Accept(HostObject& object, const char* operation, Interface* given) {
  if (given != nullptr && object.context.Find(given) == nullptr) {
    object.context.Fault(object, operation, "an object that this host never handed out");
    return nullptr;
  }
  return given;
}

/// The same for nodes.
MeshNode* AcceptNode(HostObject& object, const char* operation, MeshNode* node);

/// A copy of a text; null counts as empty.
inline std::wstring CopyOf(const wchar_t* text) { return text == nullptr ? std::wstring() : std::wstring(text); }

}  // namespace btz::memory
