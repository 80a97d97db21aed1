// The demo gallery: its table as listed, the demos' own functions, the walk
// with its wrap-around, and the keys that go between a user's graph and the
// gallery.
#include <cmath>

#include "graph_fixture.h"

namespace tessaron::test {

namespace {
constexpr double kPi = 3.14159265358979323846;
}

using Gallery = GraphTest;

TEST_F(Gallery, OpensOnDemoOneWalkingForward) {
  openGallery();
  EXPECT_EQ(calc->DemoNumber, 1);
  EXPECT_EQ(calc->DemoDir, 1);
  EXPECT_EQ(c("lblDemoNbr").Caption, " Demo # 1");
  EXPECT_EQ(calc->EqnText[kDemoSlot], "  T  =");
  EXPECT_TRUE(c("cmdPrior").Visible);
  EXPECT_TRUE(c("cmdGoNext").Visible);
  // No function is stored, so there is no graph to go back to.
  EXPECT_FALSE(c("cmdGoDemo").Visible);
}

TEST_F(Gallery, NextFrom38WrapsTo1AndPriorFrom1To38) {
  openGallery();
  app.click(c("cmdPrior"));
  EXPECT_EQ(calc->DemoNumber, 38);
  EXPECT_EQ(calc->DemoDir, -1);
  app.click(c("cmdGoNext"));
  EXPECT_EQ(calc->DemoNumber, 1);
  for (int n = 2; n <= 38; ++n) {
    app.click(c("cmdGoNext"));
    EXPECT_EQ(calc->DemoNumber, n);
  }
  app.click(c("cmdGoNext"));
  EXPECT_EQ(calc->DemoNumber, 1);
}

TEST_F(Gallery, NextAndPriorResetTheView) {
  openGallery();
  app.click(c("cmdZoomPlus"));
  app.click(c("cmdYaxLeft"));
  app.click(c("cmdGoNext"));
  EXPECT_DOUBLE_EQ(calc->GraScale, 900);
  EXPECT_DOUBLE_EQ(calc->GraX0, 5000);
}

TEST_F(Gallery, TheKeyListsStandBehindTheHeader) {
  openGallery();
  calc->PubDemo();
  // Demo 38: T, Gauss1, the multiplication, 0, 5 and "=".
  EXPECT_EQ(calc->DemoKeys[0][38], 8);
  const int keys38[] = {33, 141, 23, 0, 5, 22};
  for (int i = 0; i < 6; ++i) EXPECT_EQ(calc->DemoKeys[1 + i][38], keys38[i]);
  // Demo 33, the inverse hyperbolic sine: Hyp, Arc, then sin.
  const int keys33[] = {33, 97, 98, 36, 22};
  for (int i = 0; i < 5; ++i) EXPECT_EQ(calc->DemoKeys[1 + i][33], keys33[i]);
  // Demo 11, X^X: T, the power, T.
  const int keys11[] = {33, 27, 33, 22};
  for (int i = 0; i < 4; ++i) EXPECT_EQ(calc->DemoKeys[1 + i][11], keys11[i]);
  EXPECT_EQ(calc->DemoKeys[0][1], 4);
  // Copied into slot 33 behind the radian header.
  while (calc->DemoNumber != 37) app.click(c("cmdGoNext"));
  const auto& col = calc->EqnTable[kDemoSlot];
  EXPECT_EQ(col[29], 5);
  EXPECT_EQ(col[30], 32);
  EXPECT_EQ(col[31], 42);
  EXPECT_EQ(col[32], 99);
  EXPECT_EQ(col[33], 33);
  EXPECT_EQ(col[35], 22);
  // Demo 37 draws its halves with the curve selector in row 34: the lower
  // half with 137, then the upper with 138, which stays.
  EXPECT_EQ(col[34], 138);
  bool above = false, below = false;
  for (const Seg& s : segments()) {
    above |= s.y1 < 3000 - 400;
    below |= s.y1 > 3000 + 400;
  }
  EXPECT_TRUE(above);
  EXPECT_TRUE(below);
}

TEST_F(Gallery, TextsTValuesAndAnswersAsListed) {
  openGallery();
  calc->PubDemo();
  EXPECT_EQ(calc->DemoText[18], " Csc (T rad)  = ");
  EXPECT_EQ(calc->DemoText[25], " tanH (T)  = ");
  EXPECT_EQ(calc->DemoText[33], " AsinH (T)  = ");
  EXPECT_EQ(calc->DemoText[40], " T * e ^ (-T^2 )   *5 (Y scale) :  Dr. Vask's   ");
  for (int n = 1; n <= 40; ++n) {
    const double t = n == 23 ? 1 : (n == 24 || n == 32 || n == 34) ? 1.1 : 0.1;
    EXPECT_EQ(calc->DemoData[2][n], t) << n;
  }
  EXPECT_EQ(calc->DemoData[3][13], 7);
  const double thirteen[] = {0, kPi, 2 * kPi, 3 * kPi, -kPi, -2 * kPi, -3 * kPi};
  for (int i = 0; i < 7; ++i) EXPECT_NEAR(calc->DemoData[4 + i][13], thirteen[i], 1e-14);
  EXPECT_EQ(calc->DemoData[3][16], 6);
  const double sixteen[] = {kPi / 2,  3 * kPi / 2,  5 * kPi / 2,
                            -kPi / 2, -3 * kPi / 2, -5 * kPi / 2};
  for (int i = 0; i < 6; ++i) EXPECT_NEAR(calc->DemoData[4 + i][16], sixteen[i], 1e-14);
  // "35: one" is the root of the inverse hyperbolic secant, at 1.
  EXPECT_EQ(calc->DemoData[3][35], 1);
  EXPECT_EQ(calc->DemoData[4][35], 1);
  for (int n : {20, 23, 32, 7, 8}) EXPECT_EQ(calc->DemoData[4][n], 1) << n;
  for (int n : {2, 5, 6, 11, 12, 17, 18, 22, 24, 26, 28, 29, 30, 34, 36, 37, 38})
    EXPECT_EQ(calc->DemoData[3][n], 0) << n;
}

// Demo 4 counts one answer whose write lands on demo 3's place again: its
// own answer row is never written, so it shows what that row held.
TEST_F(Gallery, Demo4CountsOneAnswerItNeverWrote) {
  openGallery();
  calc->DemoData[4][4] = 123;
  calc->PubDemo();
  EXPECT_EQ(calc->DemoData[3][4], 1);
  EXPECT_EQ(calc->DemoData[4][4], 123);
  EXPECT_EQ(calc->DemoData[4][3], 0);
}

TEST_F(Gallery, TheDemosFunctionsOnTheDisplay) {
  auto at = [this](int code, const char* shown) {
    calc->CalcStage = 5;
    calc->KeyLog = false;
    calc->ErrFlag = false;
    c("Readout").Caption = shown;
    calc->pubCola(code);
    return calc->displayValue();
  };
  const double root2pi = std::sqrt(2 * kPi);
  EXPECT_NEAR(at(137, "0.6"), -0.8, 1e-14);
  EXPECT_NEAR(at(138, "0.6"), 0.8, 1e-14);
  EXPECT_NEAR(at(139, "1"), std::exp(-1.0), 1e-14);
  EXPECT_NEAR(at(140, "2"), 2 * std::exp(-2.0), 1e-14);
  EXPECT_NEAR(at(141, "0"), 1 / root2pi, 1e-14);
  EXPECT_NEAR(at(142, "2"), std::exp(-0.5) / root2pi / 2, 1e-14);
  EXPECT_NEAR(at(143, "3"), std::exp(-0.5) / root2pi / 3, 1e-14);
  // Gauss5 divides by 4, not 5, as the gallery has always drawn it.
  EXPECT_NEAR(at(144, "0"), 1 / root2pi / 4, 1e-14);
  EXPECT_NEAR(at(144, "5"), std::exp(-0.5) / root2pi / 4, 1e-14);
  // Off the circle the half fails and leaves the display.
  calc->ErrFlag = false;
  at(138, "1.5");
  EXPECT_TRUE(calc->ErrFlag);
}

TEST_F(Gallery, DemoJumpsAreNotDrawn) {
  showDemo(13);
  const auto drawn = segments();
  ASSERT_GT(drawn.size(), 100u);
  for (const Seg& s : drawn) EXPECT_LT(std::fabs(s.y1 - s.y2), 1110);
}

TEST_F(Gallery, TheMarksOfTheNormalCurvesAndTheArcSecant) {
  showDemo(38);
  EXPECT_EQ(c("lblSq").Caption, "1, 0.5");
  EXPECT_DOUBLE_EQ(c("line11").X1, 4100);
  EXPECT_DOUBLE_EQ(c("line11").Y2, 3000 - 2.5 * 900);
  EXPECT_TRUE(c("line14").Visible);
  // Zoomed in, the box's top would pass y 300 and is hidden.
  app.click(c("cmdZoomPlus"));
  EXPECT_FALSE(c("line14").Visible);
  showDemo(23);
  EXPECT_TRUE(c("lblPi2").Visible);
  bool pi2 = false;
  for (const DrawOp& op : c("picGraph").picture().ops())
    pi2 |= op.kind == DrawOp::Kind::Line && op.colour == Rgb(255, 127, 0) && op.x1 == 500 &&
           op.x2 == 9500 && std::fabs(op.y1 - (3000 - kPi * 450)) < 1e-9;
  EXPECT_TRUE(pi2);
  showDemo(24);
  EXPECT_FALSE(c("lblPi2").Visible);
}

TEST_F(Gallery, GoDemoAndBackToTheSlotItCameFrom) {
  function("T x2 - 2");
  function("T x3");
  app.click(c("ScrForm"));
  c("ScrForm").setValue(Value(2));
  app.click(c("cmdGraph"));
  EXPECT_EQ(c("lblDemoNbr").Caption, " Scroll # 2");
  app.click(c("cmdGoDemo"));
  EXPECT_EQ(c("cmdGoDemo").Caption, "Go Eqn Graph");
  EXPECT_EQ(calc->DemoNumber, 1);
  EXPECT_TRUE(c("cmdPrior").Visible);
  app.click(c("cmdGoNext"));
  app.click(c("cmdGoDemo"));
  EXPECT_EQ(c("cmdGoDemo").Caption, "Go Demo");
  EXPECT_EQ(c("lblDemoNbr").Caption, " Scroll # 2");
  EXPECT_FALSE(c("cmdPrior").Visible);
  EXPECT_EQ(calc->DemoSub, 0);
}

// Reopened walking backward from demo 1, the gallery comes round to 38 as
// its keys do, not to a demo 0 that does not exist.
TEST_F(Gallery, GoDemoBackwardFromDemo1ComesRoundTo38) {
  function("T x2");
  app.click(c("cmdGraph"));
  app.click(c("cmdGoDemo"));
  app.click(c("cmdPrior"));
  app.click(c("cmdGoNext"));
  app.click(c("cmdPrior"));
  EXPECT_EQ(calc->DemoNumber, 38);
  app.click(c("cmdGoNext"));
  app.click(c("cmdPrior"));
  app.click(c("cmdPrior"));
  // Now at 37 walking back; back to the graph and into the gallery again.
  app.click(c("cmdGoDemo"));
  app.click(c("cmdGoDemo"));
  EXPECT_EQ(calc->DemoNumber, 36);
}

// Back from the histogram's curve, Go Demo starts the gallery at demo 1.
TEST_F(Gallery, GoDemoAfterDemo41StartsAtDemo1) {
  function("T x2");
  app.click(c("cmdGraph"));
  calc->DemoNumber = 41;
  app.click(c("cmdGoDemo"));
  EXPECT_EQ(calc->DemoNumber, 1);
}

TEST_F(Gallery, SolveSaysNotNecessaryAtADemo) {
  openGallery();
  host.boxes.clear();
  calc->cmdTsolve();
  ASSERT_FALSE(host.boxes.empty());
  EXPECT_EQ(host.boxes.back().text, "  Not Necessary at Demo ");
}

}  // namespace tessaron::test
