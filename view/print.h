#pragma once
// A printed document on a real printer: the pages of a print job drawn at
// 1440 twips an inch, one sheet per page.
#include <QPainter>
#include <QPrinter>
#include <string>

#include "surface/printer.h"

namespace tessaron::view {

void renderJob(const PrintJob& job, QPrinter& printer);
// One page of the job on any device with this many dots an inch.
void paintPage(QPainter& painter, const PrintJob& job, int page, QSizeF area, double dpi);
// Writes the job as a PDF file; false when the file cannot be written.
bool renderJobToPdf(const PrintJob& job, const std::string& file);

}  // namespace tessaron::view
