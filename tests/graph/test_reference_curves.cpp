// Every end of every drawn segment lies on the true curve: for demos 1-40 and
// five functions keyed by a user, each end's y is checked against the values
// Python's math module gave for all T that land in the end's column of the
// picture (data/curves.txt; data/make_curves.py made it), to one drawing unit
// after the picture's rounding down.
//
// The columns to check come from the drawings themselves: with
// TESSARON_GRAPH_RECORD=FILE this test writes the columns it meets, and the
// script evaluates the curves there (see data/README).
#include <cstdlib>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "graph_fixture.h"

namespace tessaron::test {

namespace {
struct Band {
  double low, high;
};
// name -> column -> the bands the curve's y may take there (two for the
// circle's halves); none where the curve is undefined all through the column.
using Bands = std::map<std::string, std::map<int, std::vector<Band>>>;

const Bands& reference() {
  static const Bands bands = [] {
    Bands b;
    std::ifstream in(std::string(TESSARON_GRAPH_DATA) + "/curves.txt");
    std::string line;
    while (std::getline(in, line)) {
      if (line.empty() || line[0] == '#') continue;
      std::istringstream row(line);
      std::string name;
      int x;
      row >> name >> x;
      auto& at = b[name][x];
      double low, high;
      while (row >> low >> high) at.push_back({low, high});
    }
    return b;
  }();
  return bands;
}

struct Curve {
  const char* name;
  const char* mode;  // "Rad" or "" before f(T)
  const char* keys;  // empty for a demo
  int demo;
};

const Curve kUsers[] = {
    {"U1", "Rad", "T sin X T x2 - 3 / ( T + 1 )", 0},
    {"U2", "", "0 . 0 1 / ( T - 2 . 0 1 )", 0},
    {"U3", "", "T x3 - 2 X T", 0},
    {"U4", "", "( 4 - T x2 ) sqrt", 0},
    {"U5", "Rad", "T x2 sin", 0},
};
}  // namespace

class ReferenceCurve : public GraphTest, public ::testing::WithParamInterface<Curve> {};

TEST_P(ReferenceCurve, EverySegmentEndLiesOnTheTrueCurve) {
  const Curve& curve = GetParam();
  if (curve.demo > 0) {
    showDemo(curve.demo);
    ASSERT_EQ(calc->DemoNumber, curve.demo);
  } else {
    if (*curve.mode) fkey(curve.mode);
    function(curve.keys);
    app.click(c("cmdGraph"));
  }
  const std::vector<Seg> drawn = segments();
  ASSERT_GT(drawn.size(), 20u) << curve.name;
  if (const char* record = std::getenv("TESSARON_GRAPH_RECORD")) {
    std::set<int> columns;
    for (const Seg& s : drawn) columns.insert({static_cast<int>(s.x1), static_cast<int>(s.x2)});
    std::ofstream out(record, std::ios::app);
    for (int x : columns) out << curve.name << ' ' << x << '\n';
    return;
  }
  const auto found = reference().find(curve.name);
  ASSERT_NE(found, reference().end()) << "no reference for " << curve.name;
  int checked = 0;
  for (const Seg& s : drawn) {
    for (auto [x, y] : {std::pair{s.x1, s.y1}, std::pair{s.x2, s.y2}}) {
      const auto column = found->second.find(static_cast<int>(x));
      ASSERT_NE(column, found->second.end()) << curve.name << ": no reference at x " << x;
      bool on = false;
      for (const Band& b : column->second) on |= y >= b.low - 1 && y <= b.high + 1;
      EXPECT_TRUE(on) << curve.name << ": end (" << x << ", " << y << ") is off the curve";
      ++checked;
    }
  }
  EXPECT_EQ(checked, 2 * static_cast<int>(drawn.size()));
}

std::vector<Curve> allCurves() {
  static const std::vector<std::string> names = [] {
    std::vector<std::string> n;
    for (int d = 1; d <= 40; ++d) n.push_back("D" + std::to_string(d));
    return n;
  }();
  std::vector<Curve> all;
  for (int n = 1; n <= 40; ++n) all.push_back({names[n - 1].c_str(), "", "", n});
  for (const Curve& u : kUsers) all.push_back(u);
  return all;
}

INSTANTIATE_TEST_SUITE_P(Graph, ReferenceCurve, ::testing::ValuesIn(allCurves()),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace tessaron::test
