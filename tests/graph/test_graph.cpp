// The graph of a user's function: its view kept and reset, the moves and
// zooms with their limits, the trace's skips, and the picture's marks.
#include <cmath>

#include "graph_fixture.h"

namespace tessaron::test {

namespace {
constexpr double kPi = 3.14159265358979323846;
// y of the true curve in the default view, for one T.
double yAt(double f) { return 3000 - 900 * f; }
}  // namespace

class UserGraph : public GraphTest {
 protected:
  void graph(const std::string& keys, const char* mode = "") {
    if (*mode) fkey(mode);
    function(keys);
    app.click(c("cmdGraph"));
  }
};

TEST_F(UserGraph, ZoomInGoesBySteepsOfOneAndAHalfToTheCapThenGreys) {
  graph("T + 1");
  EXPECT_EQ(calc->GraScale, 900);
  const double want[] = {1350, 2025, 2880};
  for (double w : want) {
    app.click(c("cmdZoomPlus"));
    EXPECT_DOUBLE_EQ(calc->GraScale, w);
    EXPECT_TRUE(c("cmdZoomPlus").Enabled);
  }
  app.click(c("cmdZoomPlus"));
  EXPECT_DOUBLE_EQ(calc->GraScale, 2880);
  EXPECT_FALSE(c("cmdZoomPlus").Enabled);
  // Zooming out again lights the key again.
  app.click(c("cmdZoomMinus"));
  EXPECT_DOUBLE_EQ(calc->GraScale, 1920);
  EXPECT_TRUE(c("cmdZoomPlus").Enabled);
}

TEST_F(UserGraph, ZoomOutSevenTimesReachesTheFloorOf70) {
  graph("T + 1");
  for (int i = 0; i < 6; ++i) {
    app.click(c("cmdZoomMinus"));
    EXPECT_GT(calc->GraScale, 70);
  }
  app.click(c("cmdZoomMinus"));
  EXPECT_DOUBLE_EQ(calc->GraScale, 70);
  EXPECT_TRUE(c("cmdZoomMinus").Enabled);
  app.click(c("cmdZoomMinus"));
  EXPECT_FALSE(c("cmdZoomMinus").Enabled);
  // Far out the square of ten units fits and is the one shown.
  EXPECT_EQ(c("lblSq").Caption, "10,10");
}

TEST_F(UserGraph, TheYAxisStepsLeftByAThousandThenStopsAt300) {
  graph("T + 1");
  for (double x : {4000, 3000, 2000, 1000}) {
    app.click(c("cmdYaxLeft"));
    EXPECT_DOUBLE_EQ(calc->GraX0, x);
    EXPECT_DOUBLE_EQ(c("lineYY").X1, x);
  }
  app.click(c("cmdYaxLeft"));
  EXPECT_DOUBLE_EQ(calc->GraX0, 300);
  EXPECT_FALSE(c("cmdYaxLeft").Enabled);
  for (int i = 0; i < 9; ++i) app.click(c("cmdYaxRite"));
  EXPECT_DOUBLE_EQ(calc->GraX0, 9300);
  app.click(c("cmdYaxRite"));
  EXPECT_DOUBLE_EQ(calc->GraX0, 9800);
  app.click(c("cmdYaxRite"));
  EXPECT_FALSE(c("cmdYaxRite").Enabled);
}

TEST_F(UserGraph, TheViewOutlivesThePictureUntilANewFunction) {
  graph("T + 1");
  app.click(c("cmdZoomPlus"));
  app.click(c("cmdYaxLeft"));
  app.click(c("cmdExitGraph"));
  EXPECT_FALSE(c("picGraph").Visible);
  app.click(c("cmdGraph"));
  EXPECT_DOUBLE_EQ(calc->GraScale, 1350);
  EXPECT_DOUBLE_EQ(calc->GraX0, 4000);
  app.click(c("cmdExitGraph"));
  function("T x2");
  EXPECT_DOUBLE_EQ(calc->GraScale, 900);
  EXPECT_DOUBLE_EQ(calc->GraX0, 5000);
}

// The curve selector goes to the key list of demo 37 alone: a user's list
// is drawn as it was keyed, and is the same list afterwards.
TEST_F(UserGraph, AUsersKeyListIsNotRewrittenByTheGraph) {
  graph("T x2 + T x3");
  const auto before = calc->EqnTable[1];
  app.click(c("cmdExitGraph"));
  EXPECT_EQ(calc->EqnTable[1][34], before[34]);
  EXPECT_EQ(static_cast<int>(calc->EqnTable[1][34]), 52);
}

// A point that fails is skipped, and so is each segment that meets it:
// sqrt(4 - T^2) is drawn from T -2 to 2 only, every end on the half circle.
TEST_F(UserGraph, AFailedPointIsSkippedWithBothItsSegments) {
  graph("( 4 - T x2 ) sqrt");
  const auto drawn = segments();
  ASSERT_GT(drawn.size(), 150u);
  for (const Seg& s : drawn) {
    for (double x : {s.x1, s.x2}) {
      EXPECT_GE(x, 5000 - 2 * 900);
      EXPECT_LE(x, 5000 + 2 * 900);
    }
    // No end stands on the display's 0 of a failed point at the axis: the
    // curve meets the axis only at its own ends, T = -2 and 2.
    for (auto [x, y] : {std::pair{s.x1, s.y1}, std::pair{s.x2, s.y2}})
      if (y >= 3000) {
        EXPECT_GE(std::fabs(x - 5000), 1799) << x;
      }
  }
}

// sqrt(sin T) in radians fails where the sine is negative, which no key of
// its list tells the domain scan: the trace walks through the failing
// stretch and out again. The first point past it is not joined to the last
// failed one: every end stands where the sine is not negative.
TEST_F(UserGraph, TheTraceComesOutOfAFailingStretchWithoutAFalseSegment) {
  graph("T sin sqrt", "Rad");
  const auto drawn = segments();
  bool beyond = false;
  for (const Seg& s : drawn)
    for (double x : {s.x1, s.x2}) {
      // Some T of the end's column has a sine of 0 or more.
      const double t = (x - 5000) / 900;
      EXPECT_GE(std::max(std::sin(t), std::sin(t + 1.0 / 900)), 0) << "an end at T " << t;
      beyond |= t < -kPi;
    }
  // The curve goes on past the stretch where it fails.
  EXPECT_TRUE(beyond);
}

// For a user's function a jump is drawn: 0.03 / (T^2 - 2) jumps across its
// pole at the square root of 2, which the domain scan does not list.
TEST_F(UserGraph, AUsersJumpIsDrawn) {
  graph("0 . 0 3 / ( T x2 - 2 )");
  bool jump = false;
  for (const Seg& s : segments()) jump |= std::fabs(s.y1 - s.y2) >= 1110;
  EXPECT_TRUE(jump);
}

TEST_F(UserGraph, YEndsAreHeldToThePictureAndOutsideSegmentsAreNotDrawn) {
  graph("T x3 - 2 X T");
  const auto drawn = segments();
  bool top = false, foot = false;
  for (const Seg& s : drawn) {
    for (double y : {s.y1, s.y2}) {
      EXPECT_GE(y, 0);
      EXPECT_LE(y, 5130);
    }
    top |= s.y1 == 0 || s.y2 == 0;
    foot |= s.y1 == 5130 || s.y2 == 5130;
    EXPECT_FALSE((s.y1 == 0 || s.y1 == 5130) && (s.y2 == 0 || s.y2 == 5130));
  }
  EXPECT_TRUE(top);
  EXPECT_TRUE(foot);
  // Both passes run until the curve leaves the picture's width or 998 steps.
  EXPECT_LT(drawn.size(), 998u);
}

TEST_F(UserGraph, ThePoleInTheDomainTableIsSteppedOver) {
  graph("0 . 0 1 / ( T - 2 . 0 1 )");
  const double pole = 5000 + 900 * 2.01;
  for (const Seg& s : segments())
    EXPECT_FALSE(std::min(s.x1, s.x2) < pole && std::max(s.x1, s.x2) > pole)
        << s.x1 << " to " << s.x2;
  // The sides stay on the picture near the pole: the gap is little more
  // than a step.
  bool before = false, after = false;
  for (const Seg& s : segments()) {
    before |= s.x2 >= pole - 20 && s.x2 < pole;
    after |= s.x1 > pole && s.x1 <= pole + 25;
  }
  EXPECT_TRUE(before);
  EXPECT_TRUE(after);
}

TEST_F(UserGraph, FailureAtTItselfIsToldForEachPass) {
  function("T sqrt");
  setT("1 +/-");
  host.boxes.clear();
  app.click(c("cmdGraph"));
  int told = 0;
  for (const Box& b : host.boxes)
    told += b.text == "  Not work with Initial T value  - better adjust it ???  ";
  EXPECT_EQ(told, 2);
  EXPECT_TRUE(segments().empty());
}

TEST_F(UserGraph, TheTitleAndTheSquare) {
  graph("T x2");
  EXPECT_EQ(c("lblEqX").Caption, " Y = " + calc->EqnText[1].substr(0, calc->EqnText[1].size() - 2));
  EXPECT_EQ(c("lblEqX").FontSize, 12);
  EXPECT_EQ(c("lblSq").Caption, "1,1");
  EXPECT_TRUE(c("line11").Visible);
  EXPECT_DOUBLE_EQ(c("line11").X1, 5000 - 900);
  EXPECT_DOUBLE_EQ(c("line12").X1, 5000 + 900);
  EXPECT_EQ(c("lblDemoNbr").Caption, " Scroll # 1");
  EXPECT_EQ(c("cmdGoDemo").Caption, "Go Demo");
  EXPECT_TRUE(c("cmdGoDemo").Visible);
  EXPECT_FALSE(c("cmdPrior").Visible);
  // The first segment starts at the function's T.
  const auto drawn = segments();
  ASSERT_FALSE(drawn.empty());
  EXPECT_EQ(drawn.front().x1, 5900);
  EXPECT_EQ(drawn.front().y1, yAt(1));
}

TEST_F(UserGraph, ExitReturnsToTheSlotWithTheCalculatorsKeys) {
  graph("T x2");
  app.click(c("cmdExitGraph"));
  EXPECT_FALSE(c("picGraph").Visible);
  EXPECT_EQ(c("ScrForm").value(), Value(1));
  EXPECT_EQ(calc->GraStage, 0);
  EXPECT_EQ(c("cmdGraph").Caption, "Graph");
  EXPECT_EQ(c("lblFormula").Caption, calc->EqnText[1]);
}

TEST_F(UserGraph, PrintNoPrintsNothingAndYesPrintsThePage) {
  graph("T x2 - 2");
  host.answers.push_back(7);
  app.click(c("cmdGraPrint"));
  EXPECT_TRUE(host.jobs.empty());
  host.answers.push_back(6);
  app.click(c("cmdGraPrint"));
  ASSERT_EQ(host.jobs.size(), 1u);
  EXPECT_TRUE(c("picGraph").Visible);
}

// On paper the picture stands 1000 right and 2500 down, and the page shows
// what the screen shows: an end held at the picture's edge never carries a
// segment alone, so no line runs along the frame where the curve is off it.
TEST_F(UserGraph, ThePrintedCurveIsTheScreensMovedOntoThePage) {
  graph("T x2 - 2");
  const auto screen = segments();
  host.answers.push_back(6);
  app.click(c("cmdGraPrint"));
  ASSERT_EQ(host.jobs.size(), 1u);
  std::vector<Seg> paper;
  for (const DrawOp& op : calc->Printer().lastJob().pages.front().ops)
    if (op.kind == DrawOp::Kind::Line && op.colour == Rgb(0, 0, 255))
      paper.push_back({op.x1, op.y1, op.x2, op.y2});
  ASSERT_EQ(paper.size(), screen.size());
  for (size_t i = 0; i < paper.size(); ++i) {
    EXPECT_EQ(paper[i].x1, screen[i].x1 + 1000);
    EXPECT_EQ(paper[i].y1, screen[i].y1 + 2500);
    EXPECT_EQ(paper[i].x2, screen[i].x2 + 1000);
    EXPECT_EQ(paper[i].y2, screen[i].y2 + 2500);
  }
}

}  // namespace tessaron::test
