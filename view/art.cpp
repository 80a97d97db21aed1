#include "view/art.h"

#include <QFile>
#include <QHash>
#include <QPixmap>
#include <QSvgRenderer>
#include <memory>

#include "view/metrics.h"

namespace tessaron::view {

namespace {

struct Art {
  std::unique_ptr<QSvgRenderer> svg;
  QPixmap bitmap;
  bool valid() const { return (svg && svg->isValid()) || !bitmap.isNull(); }
  QSizeF size() const {
    if (svg && svg->isValid()) return svg->defaultSize();
    return bitmap.size();
  }
};

const Art& load(const std::string& name) {
  static QHash<QString, std::shared_ptr<Art>> cache;
  const QString key = qs(name);
  if (auto it = cache.constFind(key); it != cache.constEnd()) return **it;
  auto art = std::make_shared<Art>();
  const QString base = key.startsWith(QLatin1String(":/")) ? key : QStringLiteral(":/art/") + key;
  for (const QString& file : {base, base + QStringLiteral(".svg"), base + QStringLiteral(".png")}) {
    if (!QFile::exists(file)) continue;
    if (file.endsWith(QLatin1String(".svg"))) {
      art->svg = std::make_unique<QSvgRenderer>(file);
      if (art->svg->isValid()) break;
      art->svg.reset();
    } else if (art->bitmap.load(file)) {
      break;
    }
  }
  cache.insert(key, art);
  return *art;
}

QRectF fitted(QSizeF natural, const QRectF& rect) {
  if (natural.isEmpty()) return rect;
  natural.scale(rect.size(), Qt::KeepAspectRatio);
  return QRectF(rect.center() - QPointF(natural.width() / 2, natural.height() / 2), natural);
}

}  // namespace

bool hasArt(const std::string& name) { return !name.empty() && load(name).valid(); }

void paintArt(QPainter& painter, const std::string& name, const QRectF& rect) {
  if (name.empty()) return;
  const Art& art = load(name);
  if (!art.valid()) return;
  const QRectF target = fitted(art.size(), rect);
  if (art.svg) {
    art.svg->render(&painter, target);
  } else {
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform, true);
    painter.drawPixmap(target, art.bitmap, QRectF(art.bitmap.rect()));
    painter.restore();
  }
}

QIcon artIcon(const std::string& name, QSize size) {
  if (!hasArt(name) || size.isEmpty()) return {};
  QPixmap pm(size * 2);
  pm.setDevicePixelRatio(2);
  pm.fill(Qt::transparent);
  QPainter p(&pm);
  p.setRenderHint(QPainter::Antialiasing, true);
  paintArt(p, name, QRectF(QPointF(0, 0), QSizeF(size)));
  p.end();
  return QIcon(pm);
}

}  // namespace tessaron::view
