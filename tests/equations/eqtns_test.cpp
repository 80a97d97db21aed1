// The equation form's routines and edge cases, driven through the suite.
#include "tests/equations/eqtns_fixture.h"

namespace tessaron::test {
namespace {

TEST(ClosedForms, HelpersFlushTinyResultsToZero) {
  EXPECT_EQ(Three3(Value(1.0), Value(0.0), Value(0.0), Value(-8.0), Value(2.0)), Value(0));
  EXPECT_EQ(Three3(Value(1.0), Value(0.0), Value(0.0), Value(1e-14), Value(0.0)), Value(0));
  EXPECT_EQ(Three3(Value(1.0), Value(0.0), Value(0.0), Value(1e-12), Value(0.0)), Value(1e-12));
  EXPECT_EQ(Three2(Value(1.0), Value(-3.0), Value(3.0), Value(1.0)), Value(0));
  EXPECT_EQ(Three2(Value(2.0), Value(1.0), Value(1.0), Value(2.0)), Value(29));
  EXPECT_EQ(Three1(Value(3.0), Value(2.0), Value(4.0)), Value(1));
  EXPECT_EQ(Three1(Value(1.0), Value(1.0), Value(1.0 - 1e-14)), Value(0));
  EXPECT_EQ(Cramer(Value(2.0), Value(0.0), Value(0.0), Value(0.0), Value(3.0), Value(0.0),
                   Value(0.0), Value(0.0), Value(4.0)),
            Value(24));
  EXPECT_EQ(Cramer(Value(1.0), Value(2.0), Value(3.0), Value(4.0), Value(5.0), Value(6.0),
                   Value(7.0), Value(8.0), Value(9.0)),
            Value(0));
}

class Eqtns : public EqtnsFixture {};

TEST_F(Eqtns, CoefficientIndexOutsideIsABoundsFailure) {
  EXPECT_NO_THROW(eq().Coef(19));
  try {
    eq().Coef(20);
    FAIL();
  } catch (const Failure& f) {
    EXPECT_STREQ(f.what(), "Subscript out of range");
  }
}

TEST_F(Eqtns, OpensBelowTheMenuWithTheQuadratic) {
  EXPECT_EQ(eq().Top, app.form("frmMain").Height + 360);
  EXPECT_EQ(eq().EqnType, Value(1));
  EXPECT_EQ(answer(3), " Quadratic  Equation ");
  EXPECT_FALSE(c("picGraph").Visible);
  EXPECT_TRUE(c("txtBBB", 3).Visible);
  EXPECT_FALSE(c("txtBBB", 4).Visible);
  EXPECT_EQ(c("lblCCC", 1).Caption, " X   +");
  EXPECT_EQ(c("lblCCC", 13).Caption, "2");
  EXPECT_EQ(eq().MaskAns, Value("###,###,##0.###########"));
}

TEST_F(Eqtns, FirstDegreeFallback) {
  solve(1, {{1, "0"}, {2, "4"}, {3, "-2"}});
  EXPECT_EQ(answer(0), " 0.5");
  EXPECT_EQ(answer(3), " First Deg. Equation ");
  EXPECT_EQ(c("cmdGraph").Caption, "Graph");
  click("cmdGraph");
  EXPECT_TRUE(c("picGraph").Visible);
  EXPECT_FALSE(c("cmdZoom", 0).Visible);
  EXPECT_EQ(c("lblY1").Caption, "0.5");
  EXPECT_EQ(c("lineY1").X1, 3650);
  EXPECT_EQ(c("lineY1").BorderColor, Rgb(255, 0, 0));
}

TEST_F(Eqtns, NothingToSolveHasNoGraph) {
  solve(1, {{1, "0"}, {2, "0"}, {3, "5"}});
  EXPECT_EQ(answer(3), " Sorry, Not Good Here.  ");
  EXPECT_EQ(c("cmdGraph").Caption, "no Graph");
}

TEST_F(Eqtns, CubeRootOfEightStepsOverTheFlatStart) {
  solve(2, {{1, "1"}, {2, "0"}, {3, "0"}, {4, "-8"}});
  EXPECT_EQ(answer(3), " Only 1 Real Number Ans.          ");
  EXPECT_EQ(answer(0), " 2.");
  EXPECT_EQ(eq().AnsCount, Value(1));
}

TEST_F(Eqtns, CubeOfXIsThreeSameRoots) {
  solve(2, {{1, "1"}, {2, "0"}, {3, "0"}, {4, "0"}});
  EXPECT_EQ(answer(3), " 3 Same Real Numbers.                   ");
  EXPECT_EQ(answer(0), " 0 ");
}

TEST_F(Eqtns, DoubleRootAtTheRightTurn) {
  solve(2, {{1, "1"}, {2, "0"}, {3, "-3"}, {4, "2"}});
  EXPECT_EQ(answer(3), " 3 (2-Same) Real Number Ans.           ");
  EXPECT_EQ(answer(0), " -2");
  EXPECT_EQ(answer(1), " 1");
  EXPECT_EQ(answer(2), " 1");
  EXPECT_EQ(eq().AnsCount, Value(2));
}

TEST_F(Eqtns, ThreeRootsByNewtonAndDeflation) {
  solve(2, {{1, "1"}, {2, "-6"}, {3, "11"}, {4, "-6"}});
  EXPECT_EQ(answer(0), " 1.");
  EXPECT_EQ(answer(1), " 3.");
  EXPECT_EQ(answer(2), " 2.");
  EXPECT_EQ(eq().AnsCount, Value(3));
  EXPECT_EQ(c("lblFx", 1).Caption, "Maxima=1.42265 , 0.3849");
  EXPECT_EQ(c("lblFx", 2).Caption, "Minima =2.57735 , -0.3849");
}

TEST_F(Eqtns, EnterWalksPastBoxFourInTwoUnknowns) {
  choose(3);
  std::vector<int> walk;
  for (int i = 0; i < 7; ++i) {
    Control* f = app.focused();
    ASSERT_NE(f, nullptr);
    if (f->name() != "txtBBB") break;
    walk.push_back(f->index());
    app.press(*f, 13);
  }
  EXPECT_EQ(walk, (std::vector<int>{1, 2, 3, 5, 6, 7}));
  EXPECT_EQ(app.focused()->name(), "cmdCalc");
}

TEST_F(Eqtns, RefusalsKeepTheOtherBoxes) {
  app.type(c("txtBBB", 1), "3");
  struct Bad {
    const char* text;
    const char* words;
  };
  for (const Bad& b :
       {Bad{"abc", " Please Enter Number Only ! "}, Bad{"--1", " Please Enter Number Only ! "},
        Bad{"   ", " Please Enter Number Only ! "},
        Bad{"0.00000001", " Sorry! Upto  0.000 000 1 ,  No Lower Numer. "},
        Bad{"100000000", " Sorry!  Too  Long / Big  ... "},
        Bad{"-1234567.8", " Sorry!  Too  Long / Big  ... "}}) {
    SCOPED_TRACE(b.text);
    host.boxes.clear();
    app.type(c("txtBBB", 2), b.text);
    app.focus(c("txtBBB", 1));
    ASSERT_EQ(host.boxes.size(), 1u);
    EXPECT_EQ(host.boxes[0].text, b.words);
    EXPECT_EQ(host.boxes[0].flags, 48);
    EXPECT_EQ(host.boxes[0].title, "Tessaron");
    EXPECT_EQ(c("txtBBB", 2).Text, "");
    EXPECT_EQ(app.focused(), &c("txtBBB", 2));
    EXPECT_EQ(eq().Coef(2), Value(0));
    EXPECT_EQ(c("txtBBB", 1).Text, "3");
    EXPECT_EQ(eq().Coef(1), Value(3.0));
  }
  // A negative amount passes the signed test as far as its length allows.
  app.type(c("txtBBB", 2), "-99999999");
  click("cmdCalc");
  EXPECT_EQ(eq().Coef(2), Value(-99999999.0));
  EXPECT_EQ(c("txtBBB", 2).Text, "-99999999");
}

TEST_F(Eqtns, ZoomStopsAtItsLimits) {
  solve(1, {{1, "1"}, {2, "-2"}, {3, "1"}});
  click("cmdGraph");
  const Value base = eq().ZoomBase;
  int in = 0;
  for (int i = 0; i < 20; ++i) {
    const Value before = eq().ScaleX;
    click("cmdZoom", 0);
    if (eq().ScaleX == before) break;
    ++in;
  }
  EXPECT_EQ(in, 8);  // 1.5^7 is still under 20 times the first scale
  EXPECT_GE(eq().ScaleX, Value(20) * base);
  click("cmdReturn");
  click("cmdGraph");
  int out = 0;
  for (int i = 0; i < 20; ++i) {
    const Value before = eq().ScaleX;
    click("cmdZoom", 1);
    if (eq().ScaleX == before) break;
    ++out;
  }
  EXPECT_EQ(out, 6);  // 1.5^-5 is still above a tenth
}

TEST_F(Eqtns, EqualRootsSitLowOrHigh) {
  solve(1, {{1, "1"}, {2, "-2"}, {3, "1"}});
  click("cmdGraph");
  EXPECT_EQ(eq().OriginY, Value(5800));
  click("cmdReturn");
  solve(1, {{1, "-1"}, {2, "2"}, {3, "-1"}});
  click("cmdGraph");
  EXPECT_EQ(eq().OriginY, Value(1500));
}

int BlueCircles(const Canvas& c) {
  int n = 0;
  for (const DrawOp& op : c.ops())
    if (op.kind == DrawOp::Kind::Circle && op.colour == Rgb(0, 0, 255)) ++n;
  return n;
}

TEST_F(Eqtns, RootsAreMarkedInBlueComplexOnesAreNot) {
  solve(1, {{1, "1"}, {2, "-3"}, {3, "2"}});
  click("cmdGraph");
  EXPECT_EQ(BlueCircles(c("picGraph").picture()), 2);
  click("cmdReturn");
  solve(1, {{1, "1"}, {2, "2"}, {3, "5"}});
  click("cmdGraph");
  EXPECT_EQ(BlueCircles(c("picGraph").picture()), 0);
  EXPECT_EQ(eq().OriginY, Value(5300));
  EXPECT_EQ(eq().AnsCount, Value(0));
}

TEST_F(Eqtns, CubicScalesKeepAWholeRatio) {
  solve(2, {{1, "20"}, {2, "0"}, {3, "-20"}, {4, "0"}});
  click("cmdGraph");
  EXPECT_EQ(c("lblFx", 0).Caption, "Graph: y = f(x)  *  20");
  const Value ratio = eq().ScaleX / eq().ScaleY;
  EXPECT_EQ(Int(ratio), ratio);
  EXPECT_EQ(BlueCircles(c("picGraph").picture()), 3);
}

TEST_F(Eqtns, PrintNoLeavesEverything) {
  solve(1, {{1, "1"}, {2, "-3"}, {3, "2"}});
  click("cmdGraph");
  host.answers.push_back(7);
  click("cmdPrint");
  EXPECT_TRUE(host.jobs.empty());
  EXPECT_EQ(host.boxes.back().title, " Tessaron ");
  host.answers.push_back(6);
  const Value origin = eq().OriginY;
  click("cmdPrint");
  ASSERT_EQ(host.jobs.size(), 1u);
  EXPECT_EQ(eq().OriginY, origin);
  EXPECT_TRUE(c("picGraph").Visible);
}

}  // namespace
}  // namespace tessaron::test
