// Renders the program's icon at the sizes a desktop's icon theme looks for:
//   tessaron-icon SOURCE.svg OUTDIR SIZE...   writes OUTDIR/SIZE.png
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

int main(int argc, char** argv) {
  if (argc < 4) {
    std::fprintf(stderr, "usage: %s SOURCE.svg OUTDIR SIZE...\n", argv[0]);
    return 2;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication app(argc, argv);
  QSvgRenderer svg(QString::fromLocal8Bit(argv[1]));
  if (!svg.isValid()) return 1;
  for (int i = 3; i < argc; ++i) {
    const int side = QByteArray(argv[i]).toInt();
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    svg.render(&p);
    p.end();
    if (!image.save(QString::fromLocal8Bit(argv[2]) + "/" + QString::number(side) + ".png"))
      return 1;
  }
  return 0;
}
