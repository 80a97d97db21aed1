#include "view/print.h"

#include <QFileInfo>
#include <QPainter>

#include "view/metrics.h"
#include "view/paint_ops.h"

namespace tessaron::view {

void paintPage(QPainter& painter, const PrintJob& job, int page, QSizeF area, double dpi) {
  if (page < 0 || page >= static_cast<int>(job.pages.size())) return;
  // A pen's width counts in the printer's own dots; the printouts were drawn
  // for a 600-dot laser printer.
  constexpr double kPrinterDotsPerInch = 600;
  const Surface surface{QRectF(QPointF(0, 0), area), dpi / 1440.0, dpi / kPrinterDotsPerInch,
                        &job.pictures};
  paintOps(painter, job.pages[page].ops, surface);
}

void renderJob(const PrintJob& job, QPrinter& printer) {
  QPainter painter;
  if (!painter.begin(&printer)) return;
  // The page's origin is the printable area's corner, as the logic measures.
  const double dpi = printer.resolution();
  const QSizeF area = printer.pageLayout().paintRectPixels(printer.resolution()).size();
  for (int i = 0; i < static_cast<int>(job.pages.size()); ++i) {
    if (i > 0) printer.newPage();
    paintPage(painter, job, i, area, dpi);
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
