#include "view/print.h"

#include <QFileInfo>
#include <QPainter>

#include "view/metrics.h"
#include "view/paint_ops.h"

namespace tessaron::view {

void renderJob(const PrintJob& job, QPrinter& printer) {
  QPainter painter;
  if (!painter.begin(&printer)) return;
  const double dpi = printer.resolution();
  // The page's origin is the printable area's corner, as the logic measures.
  const QRectF area = printer.pageLayout().paintRectPixels(printer.resolution());
  const Surface page{QRectF(QPointF(0, 0), area.size()), dpi / 1440.0, dpi / 96.0, &job.pictures};
  bool first = true;
  for (const PrintedPage& p : job.pages) {
    if (!first) printer.newPage();
    first = false;
    paintOps(painter, p.ops, page);
  }
  painter.end();
}

bool renderJobToPdf(const PrintJob& job, const std::string& file) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(qs(file));
  printer.setPageSize(QPageSize(QPageSize::Letter));
  printer.setPageMargins(QMarginsF(0.25, 0.25, 0.25, 0.25), QPageLayout::Inch);
  printer.setCreator(QStringLiteral("Tessaron"));
  renderJob(job, printer);
  return QFileInfo(qs(file)).size() > 0;
}

}  // namespace tessaron::view
