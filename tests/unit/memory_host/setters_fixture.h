// Things to pass to setters, and the lines that their calls leave in the trace.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "memory_host/host_fixture.h"

namespace btz::memory {

using Triple = std::array<double, 3>;
using Six = std::array<double, 6>;

class SettersTest : public MemoryHostTest {
 protected:
  SettersTest() {
    MakeNodes(3);
    ofAll.Add(Node(1));
    ofAll.Add(Node(2));
    ofOne.Add(Node(3));
    host.GetCurveStore()->CreateField(&field);
    field->SetId(12);
    host.GetCurveStore()->GetCurve(12, &curve);
    body = MakeBody(7);
    face = MakeFace(body, 7);
    parts.Add(static_cast<MeshPart*>(face));
    host.SetTrace(&sink_);
  }

  std::string Lines() {
    std::string lines;
    lines.swap(text_);
    return lines;
  }

  GivenList ofAll;  ///< [n1, n2]
  GivenList ofOne;  ///< [n3]
  GivenList parts;  ///< [TopoFace#1]
  Field* field = nullptr;
  Curve* curve = nullptr;
  MeshPart* body = nullptr;
  TopoFace* face = nullptr;

 private:
  std::string text_;
  TraceSink sink_{&text_};
};

}  // namespace btz::memory
