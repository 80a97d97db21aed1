#pragma once
// Where the chart's controls stand, in twips, for both widths.
namespace tessaron::chart_layout {

inline constexpr int kCellW = 3000, kCellH = 375, kRowPitch = 390;
inline constexpr int kHeadTop = 120, kFirstRow = 480;
inline constexpr int kNumberLeft = 60, kNumberW = 360;
inline constexpr int kColumnPitch = 3450;
inline constexpr int kOptionTop = 6240, kButtonTop = 6960, kButtonW = 1200, kButtonPitch = 1300;
inline constexpr int kPanelLeft = 7080, kPanelW = 2100, kStackPitch = 330;
inline constexpr int kRowFrameLeft = 6000, kRowFrameW = 5280;
inline constexpr int kFormHeight = 7950;

inline constexpr int ColumnLeft(int column) { return kFirstRow + column * kColumnPitch; }
inline constexpr int RowTop(int row) { return kFirstRow + (row - 1) * kRowPitch; }
inline constexpr int TotalTop() { return RowTop(13) + 105; }
inline constexpr int GrandTop() { return TotalTop() + 480; }

struct Place {
  int left, top, width;
};

// optSign(i) stacked in Frame3 on the right of the narrow chart.
inline constexpr Place SignStacked(int i) { return {150, 270 + i * kStackPitch, 1800}; }

// optSign(i) in a row along the foot of the wide chart.
inline constexpr Place SignInRow(int i) {
  constexpr int widths[7] = {600, 540, 540, 680, 800, 800, 1100};
  int left = 90;
  for (int k = 0; k < i; ++k) left += widths[k];
  return {left, 240, widths[i]};
}

}  // namespace tessaron::chart_layout
