#pragma once
// The calculator with its function panel open, graphing: the picture's
// segments read back from its drawing list, and the gallery walked.
#include <string>
#include <vector>

#include "tests/engine/engine_fixture.h"

namespace tessaron::test {

struct Seg {
  double x1, y1, x2, y2;
};

class GraphTest : public EngineTest {
 protected:
  // The curve's segments: the picture's lines in the curve's colour.
  std::vector<Seg> segments() {
    std::vector<Seg> s;
    for (const DrawOp& op : c("picGraph").picture().ops())
      if (op.kind == DrawOp::Kind::Line && op.colour == Rgb(0, 0, 255))
        s.push_back({op.x1, op.y1, op.x2, op.y2});
    return s;
  }
  // The gallery from the panel with no function: Demo Graph opens demo 1,
  // Next walks on.
  void openGallery() { app.click(c("cmdGraph")); }
  void showDemo(int n) {
    if (!c("picGraph").Visible) openGallery();
    if (n <= calc->DemoLast) {
      while (calc->DemoNumber != n) app.click(c("cmdGoNext"));
      return;
    }
    // The demos past the walk open from the aids' own keys; here they are
    // stepped to as those keys do.
    calc->DemoNumber = n - 1;
    calc->DemoDir = 1;
    calc->PubDemo3();
  }
};

}  // namespace tessaron::test
