// Every answer the root finder writes must be a true root: each is checked
// against the roots SciPy's brentq found for the same function (the data and
// the script that made it stand in data/). The walk may miss roots by its
// design, and only so:
//  - beyond three answers in one direction, a pass ends;
//  - two roots closer than the walk's step where it meets them (8 per cent
//    of the distance walked, from 0.01) give no sign change between points;
//  - beyond where the pass stopped at one of its caps (239 steps, more than
//    7 bisections or plateaus, more than 44 jumps over a pole), or farther
//    than the walk's reach.
#include <algorithm>
#include <fstream>
#include <sstream>

#include "engine_fixture.h"

namespace tessaron::test {

namespace {
struct Case {
  std::string mode, keys;
  double t0 = 1;
  std::vector<double> roots;
};

std::vector<Case> loadCases() {
  std::ifstream in(std::string(TESSARON_ENGINE_DATA) + "/roots.txt");
  std::vector<Case> cases;
  std::string line;
  while (std::getline(in, line)) {
    std::stringstream s(line);
    Case c;
    std::string t0, roots;
    std::getline(s, c.mode, '|');
    std::getline(s, t0, '|');
    std::getline(s, c.keys, '|');
    std::getline(s, roots);
    c.t0 = std::stod(t0);
    std::stringstream r(roots);
    std::string one;
    while (std::getline(r, one, ',')) c.roots.push_back(std::stod(one));
    cases.push_back(c);
  }
  return cases;
}

std::string digitsOf(double t) {
  std::string s = CStr(Value(t)), out;
  for (char ch : s) out += std::string(" ") + ch;
  return out;
}
}  // namespace

class ReferenceRoots : public EngineTest {};

TEST_F(ReferenceRoots, EveryAnswerIsATrueRootAndEveryMissIsByDesign) {
  const auto cases = loadCases();
  ASSERT_GE(cases.size(), 200u);
  int answers = 0, missedBeyondThree = 0, missedClose = 0, missedFar = 0;
  for (const Case& k : cases) {
    SCOPED_TRACE(k.mode + " | " + k.keys);
    // A replay leaves the calculator in its function's angle unit: the unit
    // of the next function is chosen after its T.
    setT(digitsOf(k.t0));
    fkey(k.mode);
    const size_t boxes = host.boxes.size();
    const double before = calc->EvalCount;
    function(k.keys);
    ASSERT_EQ(host.boxes.size(), boxes) << host.boxes.back().text;
    ASSERT_EQ(calc->EqnTable[1][29] > 2, true) << "not stored";
    (void)before;
    calc->EqnTable[1][0] = 0;
    fkey("Solve");
    const auto got = slotAnswers();
    answers += static_cast<int>(got.size());
    // True roots, to 10 significant digits.
    for (double a : got) {
      double nearest = 1e300;
      for (double r : k.roots)
        if (std::fabs(a - r) < std::fabs(a - nearest)) nearest = r;
      EXPECT_LE(std::fabs(a - nearest), 1e-10 * std::max(std::fabs(nearest), 1e-3))
          << "answer " << a << " nearest root " << nearest;
    }
    // Misses, each with its reason.
    for (int dir : {1, -1}) {
      std::vector<double> side;
      for (double r : k.roots)
        if ((r - k.t0) * dir > 0) side.push_back(r);
      std::sort(side.begin(), side.end(),
                [&](double a, double b) { return std::fabs(a - k.t0) < std::fabs(b - k.t0); });
      int foundBefore = 0;
      for (size_t i = 0; i < side.size(); ++i) {
        const double r = side[i];
        if (holds(got, r, 1e-9)) {
          ++foundBefore;
          continue;
        }
        const double d = std::fabs(r - k.t0);
        const double step = 0.01 + 0.08 * d;
        double gap = 1e300;
        for (double o : k.roots)
          if (o != r) gap = std::min(gap, std::fabs(o - r));
        const double reach = calc->WalkReach[dir > 0 ? 0 : 1];
        if (foundBefore >= 3 || i >= 3) {
          ++missedBeyondThree;
        } else if ((r - reach) * dir > 0) {
          ++missedFar;
        } else if (gap < step) {
          ++missedClose;
        } else {
          ADD_FAILURE() << "missed root " << r << " from T = " << k.t0;
        }
      }
    }
    // A fresh start for the next function.
    app.click(c("cmdTeqn"));
    app.click(c("cmdTeqn"));
    for (int n = 1; n <= 33; ++n) calc->vMemory[n] = Value(0);
  }
  RecordProperty("answers", answers);
  std::printf(
      "%zu functions, %d answers; missed by design: %d beyond three a pass, %d closer "
      "than the step, %d past the pass's end\n",
      cases.size(), answers, missedBeyondThree, missedClose, missedFar);
}

}  // namespace tessaron::test
