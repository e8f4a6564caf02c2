// Numbers of objects in a trace do not depend on how many of the calls it shows.
#include <algorithm>
#include <iterator>
#include <sstream>

#include "memory_host/host_fixture.h"

namespace btz::memory {
namespace {

constexpr std::int32_t ids[4] = {1, 2, 3, 4};  ///< Corners of a tetrahedron.

/// The model of the host, with the corners.
MeshModel* ModelWithCorners(MemoryHost& host) {
  MeshModel* model = nullptr;
  host.GetProject()->GetMeshModel(&model, 1);
  const double corners[4][3] = {{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}, {0.0, 0.0, 1.0}};
  for (std::size_t i = 0; i < 4; ++i) {
    model->CreateNode(ids[i], corners[i], 0);
  }
  return model;
}

/// A tetrahedron in body 7 whose volume and skin are reached through records only, then a new face beside the skin.
std::string TraceOfALoadedSolid(TraceSink::Coverage coverage) {
  std::string text;
  TraceSink sink(&text, coverage);
  MemoryHost host;
  host.SetTrace(&sink);
  MeshModel* model = ModelWithCorners(host);
  MeshPart* body = nullptr;
  model->CreateBody(1, &body, 7, 0, 1, 1);
  model->ReservePartId(7);
  model->CreateElement(1, 7, ids, 7, 0, 1, 0, 0);
  model->FinishSolidPart(body, 0, 0, 0);

  MeshElement* solid = nullptr;
  model->GetSolidElement(1, &solid, 1);
  TopoFace* skin = solid->faces[0]->owner;
  EXPECT_EQ(skin->GetTopoKind(), topoFace);
  EXPECT_EQ(solid->owner->GetTopoKind(), topoBody);
  TopoEntity* made = nullptr;
  model->CreatePart(topoFace, &made, model->NextPartId(), body);
  static_cast<TopoFace*>(made)->Finish();
  skin->Finish();
  return text;
}

std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) {
    lines.push_back(line);
  }
  return lines;
}

TEST(ObjectNumbers, OwnersCountFromTheFirstCallOnThem) {
  const std::vector<std::string> lines = LinesOf(TraceOfALoadedSolid(TraceSink::Coverage::Changes));
  ASSERT_GE(lines.size(), 3U);
  // The skin was asked first, the volume second, and only then the new face came into being.
  EXPECT_EQ(
      std::vector<std::string>(lines.end() - 3, lines.end()),
      (std::vector<std::string>{"MeshModel.CreatePart(2, 8, MeshPart#1) -> TopoFace#3", "TopoFace#3.Finish()", "TopoFace#1.Finish()"}));
}

TEST(ObjectNumbers, AreTheSameWhetherQuestionsAreLinesOrNot) {
  const std::vector<std::string> changes = LinesOf(TraceOfALoadedSolid(TraceSink::Coverage::Changes));
  std::vector<std::string> all = LinesOf(TraceOfALoadedSolid(TraceSink::Coverage::All));
  EXPECT_EQ(std::count(all.begin(), all.end(), "TopoFace#1.GetTopoKind() -> 2"), 1);
  EXPECT_EQ(std::count(all.begin(), all.end(), "TopoFace#2.GetTopoKind() -> 1"), 1);
  std::erase_if(all, [](const std::string& line) {
    return line.find(".GetTopoKind(") != std::string::npos || line.find(".GetSolidElement(") != std::string::npos ||
           line.find(".NextPartId(") != std::string::npos;
  });
  EXPECT_EQ(changes, all);
}

/// A face of shells and the skin of a solid, both in the list of their body, of which the second is called first.
TEST(ObjectNumbers, ThoseOfAListCountInItsOrderWhenItIsGiven) {
  std::string text;
  TraceSink sink(&text, TraceSink::Coverage::Changes);
  MemoryHost host;
  host.SetTrace(&sink);
  MeshModel* model = ModelWithCorners(host);
  MeshPart* body = nullptr;
  model->CreateBody(1, &body, 7, 0, 1, 1);
  PooledList* faces = nullptr;
  body->GetFaces(&faces);
  ASSERT_EQ(faces->size, 0);
  const std::int32_t middle[3] = {1, 2, 4};
  model->CreateElement(1, 3, middle, 7, 0, 0, 1, 0);
  model->CreateElement(2, 7, ids, 7, 0, 1, 0, 0);
  model->FinishSolidPart(body, 0, 0, 0);
  body->GetFaces(&faces);
  ASSERT_EQ(faces->size, 2);
  // A list that was changed from outside in between: what was in it keeps its number, and what the host adds has the next.
  ListRewind(faces);
  auto* first = static_cast<TopoFace*>(ListNext(faces));
  auto* second = static_cast<TopoFace*>(ListNext(faces));
  ListRewind(faces);
  ListAppend(faces, first);
  second->Finish();
  MeshElement* shell = nullptr;
  model->GetElement(1, &shell);
  TopoEntity* made = nullptr;
  model->CreateTopoEntity(topoFace, &made, 7, body, 1);
  auto* third = static_cast<TopoFace*>(made);
  body->AddFace(third, 1);
  body->GetFaces(&faces);
  ASSERT_EQ(faces->size, 4);
  shell->owner->Finish();
  third->Finish();

  const std::vector<std::string> lines = LinesOf(text);
  std::vector<std::string> finished;
  std::copy_if(lines.begin(), lines.end(), std::back_inserter(finished),
               [](const std::string& line) { return line.find(".Finish()") != std::string::npos; });
  EXPECT_EQ(finished, (std::vector<std::string>{"TopoFace#2.Finish()", "TopoFace#1.Finish()", "TopoFace#3.Finish()"}));
}

}  // namespace
}  // namespace btz::memory
