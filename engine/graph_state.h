#pragma once
// The graph's variables and the demo gallery's tables. The view (scale and
// the origin's x) outlives the picture, so a graph reopens where the user
// left it until a new function is stored.
#include <array>
#include <string>

namespace tessaron {

// The gallery's columns: demo n is column n.
inline constexpr int kDemoCols = 45;
// Rows of a demo's key list: the longest list (three header keys, T, the
// demo's own keys and "=") and rows to spare.
inline constexpr int kDemoKeyRows = 10;
// Rows of a demo's data: text, T, the count and the seven answers of demo 13.
inline constexpr int kDemoDataRows = 12;

struct GraphState {
  // Units per 1 of T and of f; the origin in picture units.
  double GraScale = 900, GraX0 = 5000, GraY0 = 3000;
  // The segment in hand.
  double GraX1 = 0, GraY1 = 0, GraX2 = 0, GraY2 = 0;
  // -1 while the curve goes to the printer as well.
  short GraPrint = 0;
  // 5 while the picture is up, 0 after it.
  int GraStage = 0;
  double GraMax = 0, GraMin = 0;
  int GraSlot = 0;
  // The curve selector: demo 37 draws its halves with 137 and 138.
  int GraCode = 137;

  // The gallery walks 1 to DemoLast with its keys; it opens on demo 1
  // walking forward.
  int DemoDir = 1;
  int DemoLast = 38;
  // Row 0 the last key position, rows 1 on the keys behind the header.
  std::array<std::array<int, kDemoCols>, kDemoKeyRows> DemoKeys{};
  // Row 2 T, row 3 the count of answers, rows 4 on the answers; row 1, the
  // text, is kept beside them.
  std::array<std::array<double, kDemoCols>, kDemoDataRows> DemoData{};
  std::array<std::string, kDemoCols> DemoText;
};

}  // namespace tessaron
