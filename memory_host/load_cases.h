// Load cases of the in-memory boundary store with their parameter sets.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "memory_host/host_context.h"

namespace btz::memory {

class MemoryParameterSet final : public ParameterSet {
 public:
  explicit MemoryParameterSet(HostContext& context) : object(context, ObjectType::ParameterSet, this) {}

  void SetRealOptional(const wchar_t* name, double value, std::int32_t present, std::int32_t typeCode) override {
    Call(object, "SetRealOptional").Arguments(name, value, present, typeCode);
    parameters.push_back({CopyOf(name), value, L"", present != 0, typeCode});
  }
  void SetEntityName(const wchar_t* name, const wchar_t* value, std::int32_t typeCode) override {
    Call(object, "SetEntityName").Arguments(name, value, typeCode);
    parameters.push_back({CopyOf(name), 0.0, CopyOf(value), true, typeCode});
  }
  void SetReal(const wchar_t* name, double value) override {
    Call(object, "SetReal").Arguments(name, value);
    parameters.push_back({CopyOf(name), value, L"", true, 0});
  }
  void SetInt(const wchar_t* name, std::int32_t value, std::int32_t typeCode) override {
    Call(object, "SetInt").Arguments(name, value, typeCode);
    parameters.push_back({CopyOf(name), static_cast<double>(value), L"", true, typeCode});
  }

  struct Parameter {
    std::wstring name;
    double value;
    std::wstring entity;  ///< Name of an entity, for a parameter that is one.
    bool present;
    std::int32_t typeCode;  ///< 0 where the operation has none.
  };

  HostObject object;
  std::vector<Parameter> parameters;  ///< In order of the calls; the last one of a name counts.
};

class MemoryLoadCase final : public LoadCase {
 public:
  explicit MemoryLoadCase(HostContext& context) : object(context, ObjectType::LoadCase, this) {}

  void SetName(const wchar_t* text) override {
    Call(object, "SetName").Arguments(text);
    name = CopyOf(text);
  }
  ParameterSet* GetParameters(const wchar_t* solverName, const wchar_t* analysisName, std::int32_t kind) override {
    Call call(object, "GetParameters");
    call.Arguments(solverName, analysisName, kind);
    if (call.IsRefused()) {
      call.WithholdValue();
      return nullptr;
    }
    ParameterSet* given = nullptr;
    call.Give(&given, parameterSets.emplace_back(object.context));
    return given;
  }
  void AddEntity(Entity* entity, std::int32_t flags, double payload) override {
    Call(object, "AddEntity").Arguments(Object{entity}, flags, payload);
    if (Accept(object, "AddEntity", entity) != nullptr) {
      members.push_back({entity, payload});
    }
  }
  void SetSolverProfile(const wchar_t* solverName, const wchar_t* analysisName) override {
    Call(object, "SetSolverProfile").Arguments(solverName, analysisName);
    solver = CopyOf(solverName);
    analysis = CopyOf(analysisName);
  }

  struct Member {
    Entity* entity;
    double payload;
  };

  HostObject object;
  std::wstring name;
  std::wstring solver;
  std::wstring analysis;
  std::vector<Member> members;  ///< In order of the calls.
  std::deque<MemoryParameterSet> parameterSets;
};

}  // namespace btz::memory
