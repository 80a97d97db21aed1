#pragma once
// A printed document on a real printer: the pages of a print job drawn at
// 1440 twips an inch, one sheet per page.
#include <QPrinter>
#include <string>

#include "surface/printer.h"

namespace tessaron::view {

void renderJob(const PrintJob& job, QPrinter& printer);
// Writes the job as a PDF file; false when the file cannot be written.
bool renderJobToPdf(const PrintJob& job, const std::string& file);

}  // namespace tessaron::view
