#include "view/print.h"

#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>

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

// A PDF is written without the printing system: no print server is asked
// for its printers to make a file.
bool renderJobToPdf(const PrintJob& job, const std::string& file) {
  {
    QPdfWriter pdf(qs(file));
    pdf.setCreator(QStringLiteral("Tessaron"));
    pdf.setResolution(1200);
    pdf.setPageLayout(QPageLayout(QPageSize(QPageSize::Letter), QPageLayout::Portrait,
                                  QMarginsF(0.25, 0.25, 0.25, 0.25), QPageLayout::Inch));
    QPainter painter;
    if (!painter.begin(&pdf)) return false;
    const double dpi = pdf.resolution();
    const QSizeF area = pdf.pageLayout().paintRectPixels(pdf.resolution()).size();
    for (int i = 0; i < static_cast<int>(job.pages.size()); ++i) {
      if (i > 0) pdf.newPage();
      paintPage(painter, job, i, area, dpi);
    }
    painter.end();
  }
  return QFileInfo(qs(file)).size() > 0;
}

}  // namespace tessaron::view
