// The aids against SciPy over 63 functions: integrals, lengths, volumes,
// surfaces and extremes. A closed form must give the reference to its
// digits; a numeric rule must come within its own error bound (written in
// the data beside each figure) and the rounding the aid applies.
#include <cmath>
#include <fstream>
#include <sstream>
#include <vector>

#include "assist_fixture.h"

namespace tessaron::test {

namespace {
struct Row {
  std::string mode, keys;
  double from, to;
  double integral, ibound, length, lbound, xvol, xvbound, xsurf, xsbound, yvol, yvbound, ysurf,
      ysbound, minx, miny, maxx, maxy;
};

std::vector<Row> rows() {
  std::vector<Row> out;
  std::ifstream in(std::string(TESSARON_ASSIST_DATA) + "/aids.txt");
  std::string line;
  while (std::getline(in, line)) {
    std::vector<std::string> f;
    std::stringstream ss(line);
    std::string part;
    while (std::getline(ss, part, '|')) f.push_back(part);
    if (f.size() != 20) continue;
    Row r;
    r.mode = f[0];
    r.keys = f[1];
    double* v[] = {&r.from,  &r.to,      &r.integral, &r.ibound,  &r.length, &r.lbound,
                   &r.xvol,  &r.xvbound, &r.xsurf,    &r.xsbound, &r.yvol,   &r.yvbound,
                   &r.ysurf, &r.ysbound, &r.minx,     &r.miny,    &r.maxx,   &r.maxy};
    for (int i = 0; i < 18; ++i) *v[i] = std::strtod(f[i + 2].c_str(), nullptr);
    out.push_back(r);
  }
  return out;
}

// Half a unit of the aid's rounding of a numeric answer: six significant
// digits up to a width of 200, four places beyond.
double rounding(double ref, double width) { return width > 200 ? 5e-5 : 5e-6 * std::fabs(ref); }
}  // namespace

class Reference : public AssistTest, public ::testing::WithParamInterface<Row> {
 protected:
  void SetUp() override {
    AssistTest::SetUp();
    const Row& r = GetParam();
    fkey(r.mode);
    function(r.keys);
    range(r.from, r.to);
  }
  void TearDown() override {
    if (HasFailure())
      for (const auto& b : host.boxes)
        ADD_FAILURE() << "box: " << b.text << " shape " << calc->GesuNo;
  }
  // The aid pressed, its answer in memory 3, and whether the shape was
  // recognised with a closed form for it.
  double run(const char* name) {
    aid(name);
    return memory(3);
  }
  bool closedIntegral() {
    double v = 0;
    return calc->GesuNo != kGesuNone &&
           ShapeIntegral(calc->gesuShape(), calc->IntFrom, calc->IntTo, v);
  }
  bool closedSquare() {
    double v = 0;
    return calc->GesuNo != kGesuNone &&
           ShapeSquareIntegral(calc->gesuShape(), calc->IntFrom, calc->IntTo, v);
  }
};

TEST_P(Reference, Integral) {
  const Row& r = GetParam();
  const double got = run("cmdIntegral");
  const double w = r.to - r.from;
  if (closedIntegral())
    EXPECT_NEAR(got, r.integral, 1e-12 * std::max(1.0, std::fabs(r.integral)))
        << "shape " << calc->GesuNo;
  else
    EXPECT_NEAR(got, r.integral, r.ibound + rounding(r.integral, w) + 1e-12) << "numeric";
}

TEST_P(Reference, Length) {
  const Row& r = GetParam();
  const double got = run("cmdLength");
  const bool closed = calc->GesuNo == 1 || calc->GesuNo == kGesuCircle;
  EXPECT_NEAR(got, r.length, (closed ? 1e-12 : 1e-9) * r.length + (closed ? 0 : r.lbound));
}

TEST_P(Reference, VolumeAboutX) {
  const Row& r = GetParam();
  const double got = run("cmdXCyl");
  if (closedSquare())
    EXPECT_NEAR(got, r.xvol, 1e-12 * std::max(1.0, r.xvol)) << "shape " << calc->GesuNo;
  else
    EXPECT_NEAR(got, r.xvol, r.xvbound + rounding(r.xvol, r.to - r.from) + 1e-12);
}

TEST_P(Reference, SurfaceAboutX) {
  const Row& r = GetParam();
  const double got = run("cmdXsurf");
  const bool line = calc->GesuNo == 1;
  EXPECT_NEAR(got, r.xsurf, line ? 1e-12 * r.xsurf : r.xsbound + 1e-9 * r.xsurf);
}

// A solid about Y is measured against the reference only where its figure is
// one: the curve one-to-one on the range, or the range across 0, which is
// refused. The other rows are left out of this suite, not skipped.
class AboutY : public Reference {};

TEST_P(AboutY, Volume) {
  const Row& r = GetParam();
  if (r.from * r.to < 0) {
    run("cmdYCol");
    EXPECT_EQ(lastBox(), "  Memory(1, 2) both need to be same sign(+,-) or one is zero. ");
    return;
  }
  const double got = run("cmdYCol");
  if (calc->GesuNo == 1)
    EXPECT_NEAR(got, r.yvol, 1e-12 * std::max(1.0, r.yvol));
  else
    EXPECT_NEAR(got, r.yvol, r.yvbound + rounding(r.yvol, r.to - r.from) + 1e-12);
}

TEST_P(AboutY, Surface) {
  const Row& r = GetParam();
  if (r.from * r.to < 0) {
    run("cmdYsurf");
    EXPECT_EQ(lastBox(), "  Memory(1, 2) both need to be same sign(+,-) or one is zero. ");
    return;
  }
  const double got = run("cmdYsurf");
  const bool line = calc->GesuNo == 1;
  EXPECT_NEAR(got, r.ysurf, line ? 1e-12 * r.ysurf : r.ysbound + 1e-9 * r.ysurf);
}

TEST_P(Reference, Extremes) {
  const Row& r = GetParam();
  aid("cmdMinMax");
  EXPECT_NEAR(memory(4), r.miny, 1e-9 * std::max(1.0, std::fabs(r.miny)));
  EXPECT_NEAR(memory(6), r.maxy, 1e-9 * std::max(1.0, std::fabs(r.maxy)));
  // Where the extreme is reached twice (both ends of T^2 - 4 on -3 to 3),
  // either place is the answer: f there must be the extreme.
  auto place = [&](double got, double x, double y) {
    return std::fabs(got - x) <= 1e-6 * std::max(1.0, std::fabs(x)) ||
           std::fabs(replayAt(got) - y) <= 1e-9 * std::max(1.0, std::fabs(y));
  };
  const double minX = memory(3), maxX = memory(5);
  EXPECT_TRUE(place(minX, r.minx, r.miny)) << minX << " for " << r.minx;
  EXPECT_TRUE(place(maxX, r.maxx, r.maxy)) << maxX << " for " << r.maxx;
}

INSTANTIATE_TEST_SUITE_P(SciPy, Reference, ::testing::ValuesIn(rows()),
                         [](const ::testing::TestParamInfo<Row>& info) {
                           return "f" + std::to_string(info.index);
                         });

std::vector<Row> rowsAboutY() {
  std::vector<Row> kept;
  for (const Row& r : rows())
    if (r.from * r.to < 0 || (!std::isnan(r.yvol) && !std::isnan(r.ysurf))) kept.push_back(r);
  return kept;
}

INSTANTIATE_TEST_SUITE_P(SciPy, AboutY, ::testing::ValuesIn(rowsAboutY()),
                         [](const ::testing::TestParamInfo<Row>& info) {
                           return "f" + std::to_string(info.index);
                         });

}  // namespace tessaron::test
