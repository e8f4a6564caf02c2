#include "memory_host/host_context.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace btz::memory {

namespace {

struct Operation {
  ObjectType type;
  std::string_view name;
};

/// What the translator may still call once the host has the model: topology, mending, splitting. By type too, since entities have parts and
/// solids have elements as well, and those are settled by then.
constexpr std::array<Operation, 10> afterHandOver = {{{ObjectType::MeshModel, "UpdateTopology"},
                                                      {ObjectType::MeshModel, "CountDefects"},
                                                      {ObjectType::MeshModel, "RepairDefects"},
                                                      {ObjectType::MeshModel, "GetParts"},
                                                      {ObjectType::MeshModel, "MergeSplitPart"},
                                                      {ObjectType::MeshPart, "HasMesh"},
                                                      {ObjectType::MeshPart, "GetFaceList"},
                                                      {ObjectType::MeshPart, "SplitFaces"},
                                                      {ObjectType::TopoFace, "GetMesh"},
                                                      {ObjectType::FaceMesh, "GetElements"}}};

bool IsAllowedAfterHandOver(ObjectType type, std::string_view operation) {
  return std::any_of(afterHandOver.begin(), afterHandOver.end(),
                     [&](const Operation& allowed) { return allowed.type == type && allowed.name == operation; });
}

void StopProgram(const std::string& message) {
  std::fprintf(stderr, "%s\n", message.c_str());
  std::fflush(stderr);
  std::abort();
}

}  // namespace

HostObject::HostObject(HostContext& host, ObjectType objectType, const void* address) : context(host), type(objectType) {
  host.objects_[address] = this;
}

void HostObject::HandOut() {
  if (number == 0 && !IsSingle(type)) {
    number = ++context.handedOut_[static_cast<std::size_t>(type)];
  }
}

std::string HostObject::Name() {
  HandOut();
  std::string name = TypeName(type);
  if (!IsSingle(type)) {
    name += '#';
    name += std::to_string(number);
  }
  return name;
}

HostContext::HostContext() : faultHandler(StopProgram) { ListCellPoolInit(&listPool); }

HostContext::~HostContext() { ListCellPoolReset(&listPool); }

HostObject* HostContext::Find(const void* address) const {
  const auto found = objects_.find(address);
  return found == objects_.end() ? nullptr : found->second;
}

void HostContext::Fault(HostObject& object, const char* operation, std::string_view what) {
  if (!options.strict) {
    return;
  }
  std::string message = "memory host: ";
  message += operation;
  message += " on ";
  message += object.Name();
  message += ": ";
  message += what;
  faultHandler(message);
}

void OwnedList::Append(void* value) {
  // The translator edits some lists. A cell whose successor is this list is its tail, whatever happened in between.
  if (tail_ == nullptr || tail_->next != &list_) {
    tail_ = &list_;
    while (tail_->next != &list_) {
      tail_ = tail_->next;
    }
  }
  ListRewind(&list_);
  list_.cursor = tail_;
  ListAppend(&list_, value);
  tail_ = list_.cursor;
  ++new_;
}

void AppendLast(PooledList* list, void* value) {
  // The cursor is left on the cell appended, so that one append after another costs one step.
  for (std::int32_t left = list->size; list->cursor->next != list && left > 0; --left) {
    list->cursor = list->cursor->next;
  }
  list->stay = 0;
  ListAppend(list, value);
}

void OwnedList::Clear() {
  ListClear(&list_);
  tail_ = nullptr;
  new_ = 0;
}

bool OwnedList::Holds(const void* value) const {
  for (const ListCell* cell = list_.next; cell != &list_; cell = cell->next) {
    if (cell->value == value) {
      return true;
    }
  }
  return false;
}

void Call::Announce() {
  HostContext& context = object_.context;
  if (context.hook) {
    context.hook(TypeName(object_.type), operation_.name);
  }
  if (context.handedOver && !IsAllowedAfterHandOver(object_.type, operation_.name)) {
    Fault("the model was handed over already");
  }
  if (context.refusals.IsActive()) {
    refusal_ = context.refusals.Ask(TypeName(object_.type), operation_.name);
  }
  if (context.trace == nullptr) {
    return;
  }
  // The owner of an element is reached through the element's record. It counts as handed out with the first call on it, be that a line or
  // not: an object has the same number however much of the calls is written.
  object_.HandOut();
  traced_ = context.trace->Wants(object_.type, operation_);
  if (traced_) {
    text_ = object_.Name();
    text_ += '.';
    text_ += operation_.name;
    text_ += '(';
  }
}

void Call::WriteLine() {
  text_ += ')';
  if (hasCode_ || withheld_ > 0 || !results_.empty()) {
    text_ += " ->";
  }
  if (hasCode_) {
    text_ += ' ';
    text_ += std::to_string(code_);
  } else {
    for (int i = 0; i < withheld_; ++i) {
      text_ += " null";
    }
  }
  text_ += results_;
  object_.context.trace->WriteLine(text_);
}

void Call::GiveObjects(PooledList** out, OwnedList& list) {
  if (IsRefused(out)) {
    return;
  }
  *out = list.Get();
  if (object_.context.trace != nullptr) {
    list.VisitNew([this](const void* value) {
      if (HostObject* object = object_.context.Find(value)) {
        object->HandOut();
      }
    });
  }
  Gave(Objects{list.Get()});
}

std::vector<MeshNode*> ReadNodes(HostObject& object, const char* operation, PooledList* list) {
  std::vector<MeshNode*> nodes;
  ReadList(object, operation, list, [&](void* value) {
    if (MeshNode* node = AcceptNode(object, operation, static_cast<MeshNode*>(value))) {
      nodes.push_back(node);
    }
  });
  return nodes;
}

std::vector<MeshElement*> ReadElements(HostObject& object, const char* operation, PooledList* list) {
  std::vector<MeshElement*> elements;
  ReadList(object, operation, list, [&](void* value) {
    if (object.context.mesh.OwnsElement(value)) {
      elements.push_back(static_cast<MeshElement*>(value));
    } else {
      object.context.Fault(object, operation, "an element that this host never handed out");
    }
  });
  return elements;
}

std::vector<MeshPart*> ReadParts(HostObject& object, const char* operation, PooledList* list) {
  std::vector<MeshPart*> parts;
  ReadList(object, operation, list, [&](void* value) {
    const HostObject* known = object.context.Find(value);
    if (known != nullptr && IsPart(known->type)) {
      parts.push_back(static_cast<MeshPart*>(value));
    } else {
      object.context.Fault(object, operation, "a part that this host never handed out");
    }
  });
  return parts;
}

std::vector<std::int32_t> ReadIds(HostObject& object, const char* operation, PooledList* list) {
  std::vector<std::int32_t> ids;
  ReadList(object, operation, list, [&](void* value) { ids.push_back(*static_cast<const std::int32_t*>(value)); });
  return ids;
}

MeshNode* AcceptNode(HostObject& object, const char* operation, MeshNode* node) {
  if (node != nullptr && !object.context.mesh.OwnsNode(node)) {
    object.context.Fault(object, operation, "a node that this host never handed out");
    return nullptr;
  }
  return node;
}

}  // namespace btz::memory
