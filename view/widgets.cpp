#include "view/widgets.h"

#include <QPainter>
#include <QPainterPath>

#include "surface/control.h"
#include "view/art.h"
#include "view/metrics.h"
#include "view/paint_ops.h"

namespace tessaron::view {

void ArtView::setPicture(const std::string& name) {
  if (name == picture_) return;
  picture_ = name;
  update();
}

void ArtView::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing, true);
  paintArt(p, picture_, QRectF(rect()));
}

LineView::LineView(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void LineView::setLine(QPointF from, QPointF to, QColor colour, int width) {
  from_ = from;
  to_ = to;
  colour_ = colour;
  width_ = width;
  update();
}

void LineView::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing, true);
  QPen pen(colour_);
  pen.setWidth(std::max(1, width_));
  p.setPen(pen);
  p.drawLine(from_, to_);
}

CanvasView::CanvasView(QWidget* parent, const Control* control)
    : QFrame(parent), control_(control) {
  setFrameStyle(QFrame::Panel | QFrame::Sunken);
  setLineWidth(1);
  setAutoFillBackground(true);
}

void CanvasView::paintEvent(QPaintEvent* event) {
  QFrame::paintEvent(event);
  if (!control_) return;
  QPainter p(this);
  const QRectF inner = contentsRect();
  paintOps(p, control_->picture().ops(), {inner, 1.0 / kTwipsPerPixel, 1.0});
}

void HelpIcon::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing, true);
  const QRectF r = QRectF(rect()).adjusted(1, 1, -1, -1);
  if (hasArt("help")) {
    paintArt(p, "help", r);
    return;
  }
  // A page with a question mark, as the platform shows an embedded document.
  const double s = std::min(r.width(), r.height());
  const QRectF page(r.center().x() - s * 0.38, r.center().y() - s / 2, s * 0.76, s);
  QPainterPath path;
  path.moveTo(page.topLeft());
  path.lineTo(page.right() - s * 0.22, page.top());
  path.lineTo(page.right(), page.top() + s * 0.22);
  path.lineTo(page.bottomRight());
  path.lineTo(page.bottomLeft());
  path.closeSubpath();
  p.setPen(QPen(QColor(0x40, 0x60, 0x90), 1));
  p.setBrush(QColor(0xFA, 0xFC, 0xFF));
  p.drawPath(path);
  QFont f = font();
  f.setBold(true);
  f.setPixelSize(std::max(8, static_cast<int>(s * 0.6)));
  p.setFont(f);
  p.setPen(QColor(0x20, 0x50, 0xB0));
  p.drawText(page, Qt::AlignCenter, QStringLiteral("?"));
}

}  // namespace tessaron::view
