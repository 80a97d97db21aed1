#pragma once
// The default printer as one page object. Every print routine ends with
// EndDoc, which releases the finished document to the host.
#include <functional>
#include <string>
#include <vector>

#include "surface/canvas.h"

namespace tessaron {

struct PrintedPage {
  std::vector<std::string> lines;  // the text, laid out in character columns
  std::vector<DrawOp> ops;         // everything drawn, text included
};

// A picture box's drawing as PaintPicture placed it, with the box's size in
// twips so that it scales into its rectangle on the page.
struct PictureCopy {
  std::vector<DrawOp> ops;
  double width = 0, height = 0;
};

struct PrintJob {
  std::vector<PrintedPage> pages;
  std::vector<PictureCopy> pictures;
};

class PrinterDevice : public Canvas {
 public:
  // The foot of the printable page, in twips from its top: a Letter page
  // with quarter-inch margins, as the print preview sets it up.
  static constexpr double kPageFoot = 15120;

  std::function<void(const PrintJob&)> onEndDoc;

  void NewPage();
  void EndDoc();
  void PaintPicture(const Canvas& picture, double x, double y, double width, double height);
  void Cls() override;

  const PrintJob& lastJob() const { return last_; }
  bool printing() const { return !ops_.empty() || !line_.empty() || !pages_.empty(); }

 protected:
  void wrote(const std::string& text, int column) override;
  void freshLine() override;
  void endedLine() override;
  void beforeLine() override;

 private:
  void flushLine();
  std::vector<PrintedPage> pages_;
  std::vector<std::string> lines_;
  std::vector<PictureCopy> pictures_;
  std::string line_;
  bool lineOpen_ = false;
  PrintJob last_;
};

}  // namespace tessaron
