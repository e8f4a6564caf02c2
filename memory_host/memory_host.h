// A whole host in memory: the model of a run with its materials, loads and load cases, kept to be looked at. It is the host of the program
// `btz` and of the tests, and the worked example for those who connect the library to a host of their own.
//
//   btz::MemoryHost host;
//   const std::int32_t result = BdfToZel_DLL("deck.bdf", nullptr, host.GetMaterialStore(), host.GetBoundaryStore(), host.GetProject(),
//                                            host.GetCurveStore(), 0.0, 0, 0, 0, host.GetGroupStore(), 0, 0);
//   std::printf("%zu nodes\n", host.Nodes().Size());
//
// Where to look: mesh_model.h and topology.h for the mesh, solid_faces.h for the faces of solids, boundary_store.h for loads and all other
// entities, material_store.h, curve_store.h, group_store.h; host_context.h for what every operation does around its own work.
#pragma once

#include "memory_host/boundary_store.h"
#include "memory_host/curve_store.h"
#include "memory_host/group_store.h"
#include "memory_host/host_context.h"
#include "memory_host/material_store.h"
#include "memory_host/mesh_model.h"

namespace btz::memory {

class MemoryHost {
 public:
  explicit MemoryHost(const HostOptions& options = HostOptions()) { context_.options = options; }
  MemoryHost(const MemoryHost&) = delete;
  MemoryHost& operator=(const MemoryHost&) = delete;

  // What the library is given.
  HostProject* GetProject() { return &project_; }
  MaterialStore* GetMaterialStore() { return &materials_; }
  BoundaryStore* GetBoundaryStore() { return &boundary_; }
  CurveStore* GetCurveStore() { return &curves_; }
  GroupStore* GetGroupStore() { return &groups_; }

  // What was built, in order of creation.
  const MemoryModel& Model() const { return project_.model; }
  const Arena<MemoryNode>& Nodes() const { return context_.mesh.nodes; }
  const Arena<MemoryElement>& Elements() const { return context_.mesh.elements; }        ///< Both registers.
  const Arena<MemoryElement>& FaceRecords() const { return context_.mesh.faceRecords; }  ///< Faces of solids.
  const MemoryMaterialStore& Materials() const { return materials_; }
  const MemoryBoundaryStore& Boundary() const { return boundary_; }
  const MemoryCurveStore& Curves() const { return curves_; }
  const MemoryGroupStore& Groups() const { return groups_; }
  bool IsAttached() const { return project_.attached; }  ///< The model was handed over.

  /// What the script makes the host refuse, by operation: Refusals().RefuseCall("MeshModel.CreateElement", 3).
  RefusalScript& Refusals() { return context_.refusals; }

  /// Answers of MeshModel::CountDefects and MergeSplitPart, one call after another; 0 when used up.
  void ScriptDefects(std::vector<std::int32_t> answers) { project_.model.defects = std::move(answers); }
  void ScriptMerges(std::vector<std::int32_t> answers) { project_.model.merges = std::move(answers); }

  /// Called before each call of the translator with the interface and the name of the operation.
  void SetHook(std::function<void(const char* type, const char* operation)> hook) { context_.hook = std::move(hook); }

  /// Gets the message of a wrong call instead of the default, which prints it and aborts. When it returns the call goes on safely.
  void SetFaultHandler(std::function<void(const std::string& message)> handler) { context_.faultHandler = std::move(handler); }

  /// Writes each call to the sink from now on; null ends the trace. To be set before the run: numbers of objects follow from what was
  /// handed out since.
  void SetTrace(TraceSink* sink) { context_.trace = sink; }

  /// Ends a trace: the state that the translator wrote directly into records, if the model was asked for, and the result of the run.
  void FinishTrace(std::int32_t result);

  /// Opens the model again after a hand-over, for a second run into the same host.
  void BeginRun();

 private:
  HostContext context_;
  MemoryProject project_{context_};
  MemoryMaterialStore materials_{context_};
  MemoryBoundaryStore boundary_{context_};
  MemoryCurveStore curves_{context_};
  MemoryGroupStore groups_{context_};
};

}  // namespace btz::memory

namespace btz {

using memory::HostOptions;
using memory::MemoryHost;
using memory::Refusal;
using memory::TraceSink;

}  // namespace btz
