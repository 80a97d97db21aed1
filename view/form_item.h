#pragma once
// What a form window keeps for one control: its widget and the values last
// applied to it, so that a refresh touches only what changed.
#include <QRect>
#include <QString>
#include <QTimer>
#include <QWidget>
#include <climits>
#include <string>
#include <vector>

#include "surface/control.h"
#include "surface/grid.h"
#include "view/form_window.h"

namespace tessaron::view {

struct FormWindow::Item {
  Control* control;
  QWidget* widget = nullptr;
  QTimer* timer = nullptr;
  bool tickWaiting = false;
  bool afterDoubleClick = false;  // the release that ends a double click is no click

  bool fresh = true;
  std::string caption, tip;
  QString text;
  QRect geometry;
  bool visible = false, enabled = false;
  long back = -2, fore = -2;
  double fontSize = 0;
  bool bold = false;
  int value = INT_MIN, min = INT_MIN, max = INT_MIN;
  bool checked = false;
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  long borderColour = -2;
  int borderWidth = -1;
  size_t drawing = 0;
  int interval = -1;
  bool running = false;
  std::vector<Grid::Cell> cells;
  std::vector<int> colWidths, rowHeights;
};

}  // namespace tessaron::view
