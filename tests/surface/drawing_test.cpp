// The drawing surface of picture boxes and the printer page: pen, items,
// Tab columns, shapes, and the printed document.
#include <gtest/gtest.h>

#include "surface/canvas.h"
#include "surface/printer.h"

namespace tessaron {
namespace {

std::vector<std::string> lines(const PrintJob& job, size_t page = 0) {
  return job.pages.at(page).lines;
}

class PrinterTest : public ::testing::Test {
 protected:
  PrinterDevice p;
  std::vector<PrintJob> jobs;
  void SetUp() override {
    p.onEndDoc = [this](const PrintJob& job) { jobs.push_back(job); };
  }
};

TEST(CanvasTest, NumberItemsHaveABlankBeforeNonNegativesAndAfterAll) {
  EXPECT_EQ(Canvas::itemText(Value(12.5)), " 12.5 ");
  EXPECT_EQ(Canvas::itemText(Value(0)), " 0 ");
  EXPECT_EQ(Canvas::itemText(Value(-3)), "-3 ");
  EXPECT_EQ(Canvas::itemText(Value("text")), "text");
  EXPECT_EQ(Canvas::itemText(Value(CDec(Value(2)))), " 2 ");
}

TEST(CanvasTest, PrintWritesAtThePenAndMovesIt) {
  Canvas c;
  c.FontSize = 10;
  c.CurrentX = 100;
  c.CurrentY = 200;
  c.Print({Value("ab"), Value("cd")}, false);
  ASSERT_EQ(c.ops().size(), 1u) << "side by side, no separator: one run of text";
  EXPECT_EQ(c.ops()[0].kind, DrawOp::Kind::Text);
  EXPECT_EQ(c.ops()[0].text, "abcd");
  EXPECT_EQ(c.ops()[0].x1, 100);
  EXPECT_EQ(c.ops()[0].y1, 200);
  EXPECT_EQ(c.ops()[0].size, 10);
  EXPECT_EQ(c.CurrentX, 100 + 4 * Canvas::columnWidth(10));
  EXPECT_EQ(c.CurrentY, 200) << "a trailing ; keeps the pen on the line";
  c.Print({Value("e")});
  ASSERT_EQ(c.ops().size(), 1u) << "the next Print flows on from the ;";
  EXPECT_EQ(c.ops()[0].text, "abcde");
  EXPECT_EQ(c.CurrentX, 0) << "a line end returns to the left margin";
  EXPECT_EQ(c.CurrentY, 200 + Canvas::lineHeight(10));
}

TEST(CanvasTest, ATabOrAnotherColourStartsANewRun) {
  Canvas c;
  c.Print({Value("ab"), Tab{10}, Value("cd")}, false);
  ASSERT_EQ(c.ops().size(), 2u);
  EXPECT_EQ(c.ops()[1].x1, 9 * Canvas::columnWidth(c.FontSize));
  c.ForeColor = 0xFF;
  c.Print({Value("ef")});
  ASSERT_EQ(c.ops().size(), 3u);
  EXPECT_EQ(c.ops()[2].text, "ef");
  EXPECT_EQ(c.ops()[2].colour, 0xFF);
}

TEST(CanvasTest, PrintUsesForeColorAndFontSize) {
  Canvas c;
  c.ForeColor = 0xFF;
  c.FontSize = 14;
  c.Print({Value("x")});
  EXPECT_EQ(c.ops()[0].colour, 0xFF);
  EXPECT_EQ(c.ops()[0].size, 14);
}

TEST(CanvasTest, TabMovesToACharacterColumn) {
  Canvas c;
  c.Print({Tab(5), Value("x")});
  EXPECT_EQ(c.ops()[0].x1, 4 * Canvas::columnWidth(c.FontSize));
}

TEST(CanvasTest, LinesBoxesAndCirclesMoveThePen) {
  Canvas c;
  c.ForeColor = 0x00FF00;
  c.DrawWidth = 4;
  c.DrawStyle = 1;
  c.Line(1, 2, 3, 4);
  EXPECT_EQ(c.ops()[0].colour, 0x00FF00) << "ForeColor is the default colour";
  EXPECT_EQ(c.ops()[0].width, 4);
  EXPECT_EQ(c.ops()[0].style, 1);
  EXPECT_EQ(c.CurrentX, 3);
  EXPECT_EQ(c.CurrentY, 4);
  c.Box(10, 20, 30, 40, 0xFF, true);
  EXPECT_EQ(c.ops()[1].kind, DrawOp::Kind::FilledBox);
  c.Box(10, 20, 30, 40, 0xFF, false);
  EXPECT_EQ(c.ops()[2].kind, DrawOp::Kind::Box);
  c.Circle(500, 600, 70);
  EXPECT_EQ(c.ops()[3].kind, DrawOp::Kind::Circle);
  EXPECT_EQ(c.ops()[3].x2, 70);
  EXPECT_EQ(c.CurrentX, 500) << "the pen moves to the centre";
  EXPECT_EQ(c.CurrentY, 600);
}

TEST(CanvasTest, ScaleIsRecordedAndClsClearsAndHomesThePen) {
  Canvas c;
  c.Scale(-10, 10, 10, -10);
  EXPECT_EQ(c.ops()[0].kind, DrawOp::Kind::Scale);
  EXPECT_EQ(c.ops()[0].x1, -10);
  EXPECT_EQ(c.ops()[0].y2, -10);
  c.Line(0, 0, 5, 5);
  c.Cls();
  EXPECT_TRUE(c.ops().empty());
  EXPECT_EQ(c.CurrentX, 0);
  EXPECT_EQ(c.CurrentY, 0);
}

TEST_F(PrinterTest, EndDocReleasesTheDocument) {
  p.Print({Value("one")});
  EXPECT_TRUE(jobs.empty());
  EXPECT_TRUE(p.printing());
  p.EndDoc();
  ASSERT_EQ(jobs.size(), 1u);
  EXPECT_EQ(lines(jobs[0]), (std::vector<std::string>{"one"}));
  EXPECT_FALSE(p.printing());
  EXPECT_EQ(p.lastJob().pages.size(), 1u);
}

TEST_F(PrinterTest, TabColumnsCountFromOne) {
  p.Print({Tab(5), Value("Rate"), Tab(12), Value("x")});
  p.EndDoc();
  EXPECT_EQ(lines(jobs[0]), (std::vector<std::string>{"    Rate   x"}));
}

TEST_F(PrinterTest, ATabToAPassedColumnGoesToTheNextLine) {
  p.Print({Value("abcdef"), Tab(3), Value("x")});
  p.EndDoc();
  EXPECT_EQ(lines(jobs[0]), (std::vector<std::string>{"abcdef", "  x"}));
}

TEST_F(PrinterTest, BlanksThatAlignFiguresTakeHalfAColumnOnThePage) {
  // Eight blanks and "12" fill five columns of the proportional page, so a
  // Tab to column 7 is not passed: the figure after it stays on the line,
  // right after what the line already holds.
  p.Print({Value("        12"), Tab(7), Value("x")});
  // Ten letters do pass column 7.
  p.Print({Value("abcdefghij"), Tab(7), Value("y")});
  p.EndDoc();
  EXPECT_EQ(lines(jobs[0]), (std::vector<std::string>{"        12x", "abcdefghij", "      y"}));
  const auto& ops = jobs[0].pages[0].ops;
  ASSERT_EQ(ops.size(), 4u);
  EXPECT_EQ(ops[1].x1, 6 * Canvas::columnWidth(p.FontSize)) << "the x stands at column 7";
  EXPECT_EQ(ops[1].y1, ops[0].y1);
}

TEST_F(PrinterTest, ALineThatWouldPassTheFootRunsOnToTheNextPage) {
  p.CurrentY = PrinterDevice::kPageFoot - Canvas::lineHeight(p.FontSize) - 1;
  p.CurrentX = 600;
  p.Print({Value("last")});
  p.Print({Value("over")});
  p.CurrentY = 17000;
  p.CurrentX = 900;
  p.Print({Value("placed")});
  p.EndDoc();
  const auto& pages = jobs[0].pages;
  ASSERT_EQ(pages.size(), 3u);
  EXPECT_EQ(pages[0].lines, std::vector<std::string>{"last"});
  EXPECT_EQ(pages[1].lines, std::vector<std::string>{"over"});
  EXPECT_EQ(pages[1].ops[0].y1, 0);
  EXPECT_EQ(pages[2].lines, std::vector<std::string>{"placed"});
  EXPECT_EQ(pages[2].ops[0].x1, 900) << "the pen keeps its place across";
}

TEST_F(PrinterTest, SemicolonKeepsTheLineOpen) {
  p.Print({Value("a")}, false);
  p.Print({Value(5)}, false);
  p.Print({Value("b")});
  p.EndDoc();
  EXPECT_EQ(lines(jobs[0]), (std::vector<std::string>{"a 5 b"}));
}

TEST_F(PrinterTest, FormatResultsEndingInBlanksKeepTheBlanks) {
  p.Print({Value("12.00   ")});
  p.Print({Value("|")});
  p.EndDoc();
  EXPECT_EQ(lines(jobs[0]), (std::vector<std::string>{"12.00   ", "|"}));
}

TEST_F(PrinterTest, AnEmptyPrintIsAnEmptyLine) {
  p.Print({Value("a")});
  p.Print({});
  p.Print({Value("b")});
  p.EndDoc();
  EXPECT_EQ(lines(jobs[0]), (std::vector<std::string>{"a", "", "b"}));
}

TEST_F(PrinterTest, TextPlacedByCurrentXAndYStartsALineOfItsOwn) {
  p.Print({Value("head")}, false);
  p.CurrentX = 2000;
  p.CurrentY = 3000;
  p.Print({Value("placed")});
  p.EndDoc();
  EXPECT_EQ(lines(jobs[0]), (std::vector<std::string>{"head", "placed"}));
  EXPECT_EQ(jobs[0].pages[0].ops[1].x1, 2000);
  EXPECT_EQ(jobs[0].pages[0].ops[1].y1, 3000);
}

TEST_F(PrinterTest, NewPageStartsTheNextPageAtTheTopLeft) {
  p.Print({Value("one")});
  p.Line(0, 0, 100, 100);
  p.NewPage();
  EXPECT_EQ(p.CurrentX, 0);
  EXPECT_EQ(p.CurrentY, 0);
  p.Print({Value("two")});
  p.EndDoc();
  ASSERT_EQ(jobs[0].pages.size(), 2u);
  EXPECT_EQ(lines(jobs[0], 0), (std::vector<std::string>{"one"}));
  EXPECT_EQ(lines(jobs[0], 1), (std::vector<std::string>{"two"}));
  EXPECT_EQ(jobs[0].pages[0].ops.size(), 2u) << "text and line stay on page one";
  EXPECT_EQ(jobs[0].pages[1].ops[0].y1, 0);
}

TEST_F(PrinterTest, EndDocRightAfterNewPageAddsNoBlankPage) {
  p.Print({Value("one")});
  p.NewPage();
  p.EndDoc();
  ASSERT_EQ(jobs.size(), 1u);
  ASSERT_EQ(jobs[0].pages.size(), 1u);
  EXPECT_EQ(lines(jobs[0], 0), (std::vector<std::string>{"one"}));
}

TEST_F(PrinterTest, AnEmptyLastPageStillPrintsWhenSomethingIsOnIt) {
  p.Print({Value("one")});
  p.NewPage();
  p.Print({});
  p.EndDoc();
  ASSERT_EQ(jobs[0].pages.size(), 2u);
  EXPECT_EQ(lines(jobs[0], 1), (std::vector<std::string>{""}));
}

TEST_F(PrinterTest, PaintPicturePlacesAPictureBoxsDrawing) {
  Canvas pic;
  pic.setExtent(1500, 1000);
  pic.Circle(10, 10, 5, 0);
  p.PaintPicture(pic, 720, 1440, 3000, 2000);
  p.EndDoc();
  const DrawOp& op = jobs[0].pages[0].ops.at(0);
  EXPECT_EQ(op.kind, DrawOp::Kind::Picture);
  EXPECT_EQ(op.x1, 720);
  EXPECT_EQ(op.y2, 2000);
  ASSERT_EQ(jobs[0].pictures.size(), 1u);
  EXPECT_EQ(jobs[0].pictures[0].ops.size(), 1u);
  EXPECT_EQ(jobs[0].pictures[0].width, 1500) << "the box's size travels with its drawing";
  EXPECT_EQ(jobs[0].pictures[0].height, 1000);
}

TEST_F(PrinterTest, EachDocumentStartsEmpty) {
  p.Print({Value("first")});
  p.EndDoc();
  p.Print({Value("second")});
  p.EndDoc();
  ASSERT_EQ(jobs.size(), 2u);
  EXPECT_EQ(lines(jobs[1]), (std::vector<std::string>{"second"}));
  EXPECT_EQ(jobs[1].pages.size(), 1u);
}

}  // namespace
}  // namespace tessaron
