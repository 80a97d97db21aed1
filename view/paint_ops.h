#pragma once
// Paints a drawing surface's display list (a picture box, a printed page) on
// any paint device: the screen at 15 twips a pixel, the printer at 1440 twips
// an inch.
#include <QPainter>
#include <QRectF>
#include <vector>

#include "surface/canvas.h"
#include "surface/printer.h"

namespace tessaron::view {

struct Surface {
  QRectF area;           // the surface in device units
  double unitsPerTwip;   // device units per twip until a Scale says otherwise
  double unitsPerPixel;  // device units per DrawWidth pixel
  const std::vector<PictureCopy>* pictures = nullptr;  // for PaintPicture
};

void paintOps(QPainter& painter, const std::vector<DrawOp>& ops, const Surface& surface);

}  // namespace tessaron::view
