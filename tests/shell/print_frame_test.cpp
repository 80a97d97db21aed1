#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "shell/print_frame.h"
#include "surface/application.h"
#include "tests/support/recording_host.h"

namespace tessaron {
namespace {

using Op = DrawOp::Kind;

class Printing : public Form {
 public:
  explicit Printing(Application& app) : Form(app, "frmPrinting", {.caption = "p"}, {}) {}
};

std::vector<DrawOp> withColour(const std::vector<DrawOp>& ops, long colour) {
  std::vector<DrawOp> out;
  std::copy_if(ops.begin(), ops.end(), std::back_inserter(out),
               [&](const DrawOp& op) { return op.colour == colour; });
  return out;
}

TEST(PubLogo, FillOutlineAndStrokesHaveTheirColoursAndPens) {
  PrinterDevice printer;
  const double left = 9800, top = 1900, R = 320;
  PubLogo(printer, left, top);

  const auto fill = withColour(printer.ops(), Rgb(255, 231, 153));
  ASSERT_FALSE(fill.empty());
  for (const DrawOp& op : fill) {
    EXPECT_EQ(op.kind, Op::Line);
    EXPECT_EQ(op.width, 2);
    EXPECT_EQ(op.style, 2);
    EXPECT_GE(std::min(op.x1, op.x2), left);
    EXPECT_LE(std::max(op.x1, op.x2), left + R);
    EXPECT_LE(std::abs(op.y1 - top), R * 0.866);
  }
  // The widest fill line runs along the middle, two twips in from each arc.
  const auto widest = std::max_element(fill.begin(), fill.end(), [](auto& a, auto& b) {
    return std::abs(a.x2 - a.x1) < std::abs(b.x2 - b.x1);
  });
  EXPECT_DOUBLE_EQ(widest->x1, left + 2);
  EXPECT_DOUBLE_EQ(widest->x2, left + R - 2);
  EXPECT_DOUBLE_EQ(widest->y1, top);

  const auto dots = withColour(printer.ops(), Rgb(0, 0, 0));
  ASSERT_FALSE(dots.empty());
  double furthest = 0;
  for (const DrawOp& op : dots) {
    EXPECT_EQ(op.kind, Op::Circle);
    EXPECT_EQ(op.width, 5);
    EXPECT_EQ(op.style, 1);
    // Every dot of a lens arc lies on a circle of radius R about a centre.
    if (std::abs(op.y1 - top) > 60) {
      const double fromLeft = std::hypot(op.x1 - left, op.y1 - top);
      const double fromRight = std::hypot(op.x1 - left - R, op.y1 - top);
      EXPECT_NEAR(std::min(std::abs(fromLeft - R), std::abs(fromRight - R)), 0, 1e-9);
    }
    furthest = std::max(furthest, std::abs(op.y1 - top));
  }
  EXPECT_NEAR(furthest, R * 0.866, 3);

  const auto brown = withColour(printer.ops(), Rgb(96, 48, 24));
  ASSERT_EQ(brown.size(), 2u);
  for (const DrawOp& op : brown) {
    EXPECT_EQ(op.kind, Op::Line);
    EXPECT_EQ(op.width, 4);
    EXPECT_EQ(op.style, 2);
  }
  const auto red = withColour(printer.ops(), Rgb(255, 0, 0));
  ASSERT_FALSE(red.empty());
  for (const DrawOp& op : red) {
    EXPECT_EQ(op.width, 4);
    EXPECT_EQ(op.style, 2);
  }
  // Fill first, then the outline, then the brown and the red strokes.
  EXPECT_EQ(printer.ops().front().colour, Rgb(255, 231, 153));
  EXPECT_EQ(printer.ops().back().colour, Rgb(255, 0, 0));
  EXPECT_EQ(printer.DrawWidth, 4);
  EXPECT_EQ(printer.DrawStyle, 2);
}

TEST(PubPrintBegin, NoPrintsNothing) {
  test::RecordingHost host;
  Application app(host);
  Printing form(app);
  host.answers.push_back(7);
  EXPECT_FALSE(PubPrintBegin(form, kPlaceTop));
  ASSERT_EQ(host.boxes.size(), 1u);
  EXPECT_EQ(host.boxes[0].text, " Print out ??? ");
  EXPECT_EQ(host.boxes[0].flags, 4);
  EXPECT_EQ(host.boxes[0].title, " Tessaron");
  EXPECT_FALSE(app.printer().printing());
  app.printer().EndDoc();
  EXPECT_TRUE(host.jobs.empty() || host.jobs.back().pages.empty() ||
              host.jobs.back().pages[0].ops.empty());
}

TEST(PubPrintBegin, YesWritesTheNameAndTheMarkAtThePlace) {
  test::RecordingHost host;
  Application app(host);
  Printing form(app);
  ASSERT_TRUE(PubPrintBegin(form, kPlaceFoot));
  PrinterDevice& p = app.printer();
  const DrawOp& name = p.ops().front();
  EXPECT_EQ(name.kind, Op::Text);
  EXPECT_EQ(name.text, "Tessaron");
  EXPECT_EQ(name.x1, 9000);
  EXPECT_EQ(name.y1, 13000);
  EXPECT_EQ(name.size, 8);
  const auto fill = withColour(p.ops(), Rgb(255, 231, 153));
  ASSERT_FALSE(fill.empty());
  double lowest = 1e9;
  for (const DrawOp& op : fill) lowest = std::min(lowest, std::min(op.x1, op.x2));
  EXPECT_GE(lowest, 9800);
  EXPECT_LT(lowest, 9800 + 5);
  EXPECT_EQ(p.FontSize, 14);
  EXPECT_EQ(p.ForeColor, 0);
  p.EndDoc();
  ASSERT_EQ(host.jobs.size(), 1u);
  const auto& lines = host.jobs[0].pages.at(0).lines;
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_EQ(lines[0], "Tessaron");
}

TEST(PubColumn, DigitsAreTwiceAsWideAsBlanks) {
  EXPECT_EQ(PubColumn("1,234.00", 20), Space(4) + "1,234.00");
  EXPECT_EQ(PubColumn("5", 3), " 5");
}

}  // namespace
}  // namespace tessaron
