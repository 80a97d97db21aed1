#include "view/paint_ops.h"

#include <QFontMetricsF>
#include <QPen>

#include "view/metrics.h"

namespace tessaron::view {

namespace {

// Where user coordinates land: twips by default, a Scale's box after one.
struct Mapping {
  double x0, y0, sx, sy;
  QPointF at(double x, double y) const { return {x0 + x * sx, y0 + y * sy}; }
};

QPen pen(const DrawOp& op, const Surface& s) {
  QPen p(colour(op.colour));
  p.setWidthF(std::max(1, op.width) * s.unitsPerPixel);
  p.setStyle(op.style == 1 ? Qt::DashLine : op.style == 2 ? Qt::DotLine : Qt::SolidLine);
  p.setCapStyle(Qt::FlatCap);
  return p;
}

}  // namespace

void paintOps(QPainter& painter, const std::vector<DrawOp>& ops, const Surface& s) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing, true);
  painter.setRenderHint(QPainter::TextAntialiasing, true);
  painter.setClipRect(s.area, Qt::IntersectClip);
  Mapping m{s.area.left(), s.area.top(), s.unitsPerTwip, s.unitsPerTwip};
  for (const DrawOp& op : ops) {
    switch (op.kind) {
      case DrawOp::Kind::Scale: {
        const double w = op.x2 - op.x1, h = op.y2 - op.y1;
        if (w == 0 || h == 0) break;
        m.sx = s.area.width() / w;
        m.sy = s.area.height() / h;
        m.x0 = s.area.left() - op.x1 * m.sx;
        m.y0 = s.area.top() - op.y1 * m.sy;
        break;
      }
      case DrawOp::Kind::Line: {
        QPen p = pen(op, s);
        // A line from a point to itself is how a graph sets a single point:
        // it shows as a dot of the pen's width.
        if (op.x1 == op.x2 && op.y1 == op.y2) p.setCapStyle(Qt::SquareCap);
        painter.setPen(p);
        painter.drawLine(m.at(op.x1, op.y1), m.at(op.x2, op.y2));
        break;
      }
      case DrawOp::Kind::Box:
      case DrawOp::Kind::FilledBox: {
        painter.setPen(pen(op, s));
        painter.setBrush(op.kind == DrawOp::Kind::FilledBox ? QBrush(colour(op.colour))
                                                            : QBrush(Qt::NoBrush));
        painter.drawRect(QRectF(m.at(op.x1, op.y1), m.at(op.x2, op.y2)).normalized());
        painter.setBrush(Qt::NoBrush);
        break;
      }
      case DrawOp::Kind::Circle: {
        painter.setPen(pen(op, s));
        painter.setBrush(Qt::NoBrush);
        // The radius counts in horizontal units, so a circle stays round.
        const double r = std::abs(op.x2 * m.sx);
        painter.drawEllipse(m.at(op.x1, op.y1), r, r);
        break;
      }
      case DrawOp::Kind::Text: {
        QFont f = formFont(op.size > 0 ? op.size : 8.25);
        painter.setFont(f);
        painter.setPen(colour(op.colour));
        const QFontMetricsF fm(f, painter.device());
        const QPointF p = m.at(op.x1, op.y1);
        painter.drawText(QPointF(p.x(), p.y() + fm.ascent()), qs(op.text));
        break;
      }
      case DrawOp::Kind::Picture: {
        if (!s.pictures || op.picture < 0 || op.picture >= static_cast<int>(s.pictures->size()))
          break;
        const QRectF box(m.at(op.x1, op.y1), m.at(op.x1 + op.x2, op.y1 + op.y2));
        const PictureCopy& picture = (*s.pictures)[op.picture];
        Surface inner = s;
        inner.area = box.normalized();
        if (picture.width > 0) inner.unitsPerTwip = inner.area.width() / picture.width;
        paintOps(painter, picture.ops, inner);
        break;
      }
      case DrawOp::Kind::NewPage:
        break;
    }
  }
  painter.restore();
}

}  // namespace tessaron::view
