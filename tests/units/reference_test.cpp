// Every conversion against GNU units (make_reference.sh wrote reference.txt).
// Where the table keeps a figure of its own, the difference is named here and
// the table's figure stays.
#include <cmath>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <vector>

#include "tests/units/conver_fixture.h"

namespace tessaron::test {
namespace {

struct Case {
  int k;
  std::string box, amount, from, to;
  double figure;
};

std::vector<Case> ReadCases() {
  std::ifstream in(UNITS_REFERENCE);
  std::vector<Case> cases;
  std::string line;
  while (std::getline(in, line)) {
    if (line.empty() || line[0] == '#') continue;
    std::istringstream fields(line);
    Case c;
    std::string k, figure;
    for (std::string* f : {&k, &c.box, &c.amount, &c.from, &c.to, &figure})
      std::getline(fields, *f, '\t');
    c.k = std::stoi(k);
    c.figure = std::stod(figure);
    cases.push_back(c);
  }
  return cases;
}

// How the table's figure stands to GNU's.
struct Difference {
  enum { Rounded, Own } kind;
  double bound;  // Rounded: decimals kept; Own: the largest relative difference
  const char* why;
};

const std::map<int, Difference>& Differences() {
  using D = Difference;
  static const std::map<int, Difference> table = {
      {7, {D::Rounded, 3, "the ja (10/33 m) rounded to 0.303 m"}},
      {8, {D::Rounded, 2, "the chi rounded to 3.03 cm"}},
      {12, {D::Rounded, 0, "the acre rounded to whole square metres"}},
      {15, {D::Rounded, 0, "the acre rounded to whole pyong"}},
      {16, {D::Own, 3e-4, "the pyong cut, not rounded, to 3.305 square metres"}},
      {17, {D::Own, 3e-4, "the pyong in square feet from the table's own 3.305 square metres"}},
      {19, {D::Rounded, 6, "the square foot rounded to six decimals"}},
      {23, {D::Rounded, 3, "the cubic foot rounded to 28.317 litres"}},
      {24, {D::Rounded, 6, "the gallon rounded to six decimals"}},
      {25, {D::Rounded, 6, "the quart as a quarter of the rounded gallon"}},
      {26, {D::Rounded, 3, "the oil barrel rounded to 158.987 litres"}},
      {27, {D::Rounded, 4, "the fluid ounce rounded to four decimals"}},
      {28, {D::Rounded, 3, "the bushel rounded to 35.239 litres"}},
      {29,
       {D::Own, 3e-3, "the doe of Korea is 1.8 litres; GNU units knows only the Japanese shou"}},
      {33, {D::Rounded, 4, "the ounce rounded to 28.3495 grams"}},
      {39, {D::Own, 2e-4, "a gallon of water a little warmer than GNU's water at its densest"}},
      {41, {D::Rounded, 3, "the BTU rounded to 0.252 kcal"}},
      {42, {D::Rounded, 3, "the BTU rounded to 0.293 watt hours"}},
      {43, {D::Rounded, 5, "the watt hour rounded to 0.86042 kcal"}},
      {45, {D::Rounded, 4, "the foot pound-force rounded to 1.3558 joules"}},
      {51, {D::Rounded, 0, "the kilowatt rounded to whole BTU an hour"}},
      {53, {D::Rounded, 0, "the horsepower rounded to whole BTU an hour"}},
      {54, {D::Rounded, 4, "the horsepower rounded to 0.7457 kW"}},
      {55, {D::Rounded, 2, "the horsepower rounded to 76.04 kgf m/s"}},
      {57, {D::Rounded, 3, "the ton of refrigeration rounded to 4.716 hp"}},
      {58, {D::Rounded, 3, "the ton of refrigeration rounded to 3.517 kW"}},
      {61, {D::Rounded, 0, "the atmosphere rounded to whole millibars"}},
      {62, {D::Rounded, 0, "the atmosphere as 760 mmHg; GNU's mmHg is a column of mercury"}},
      {63, {D::Rounded, 2, "the atmosphere rounded to 29.92 inHg"}},
      {64, {D::Rounded, 1, "the atmosphere rounded to 406.8 inH2O"}},
      {65, {D::Rounded, 1, "the atmosphere rounded to 1033.2 cmH2O"}},
      {66, {D::Rounded, 4, "the atmosphere rounded to 1.0332 kgf/cm2"}},
      {67, {D::Rounded, 3, "the atmosphere rounded to 14.696 psi"}},
      {68, {D::Rounded, 5, "the psi rounded to 0.07031 kgf/cm2"}},
      {82, {D::Rounded, 3, "the mile an hour rounded to 0.447 m/s"}},
      {84,
       {D::Own, 5e-4, "sound at 331.6 m/s, as the table's own cell says; GNU's mach is 331.46"}},
      {85, {D::Rounded, 3, "the pound per cubic foot rounded to 16.018 kg/m3"}},
  };
  return table;
}

class Reference : public ConverFixture {};

TEST_F(Reference, EveryConversionAgreesWithGnuUnitsOrNamesItsDifference) {
  const std::vector<Case> cases = ReadCases();
  ASSERT_EQ(cases.size(), 81u);
  std::set<int> seen;
  for (const Case& r : cases) {
    SCOPED_TRACE("k " + std::to_string(r.k) + ": " + r.from + " in " + r.to);
    seen.insert(r.k);
    choose(r.k);
    ASSERT_EQ(conver().CurrentUnit, r.k);
    const bool typedA = r.box == "A";
    enter(typedA ? "txtAA" : "txtBB", r.amount);
    const double got = (typedA ? conver().ToValue : conver().FromValue).number();
    const auto d = Differences().find(r.k);
    if (d == Differences().end()) {
      EXPECT_NEAR(got, r.figure, 1e-11 * std::fabs(r.figure) + 1e-11);
      continue;
    }
    SCOPED_TRACE(d->second.why);
    // A named difference must be one: the table's figure is not GNU's.
    EXPECT_NE(got, r.figure);
    if (d->second.kind == Difference::Rounded)
      EXPECT_LE(std::fabs(got - r.figure), 0.5 * std::pow(10.0, -d->second.bound) + 1e-12);
    else
      EXPECT_LE(std::fabs(got - r.figure) / std::fabs(r.figure), d->second.bound);
  }
  // Every conversion of the table is checked.
  std::set<int> all;
  for (const UnitCell& u : UnitCells())
    if (u.k != 0) all.insert(u.k);
  EXPECT_EQ(seen, all);
  for (const auto& [k, d] : Differences()) EXPECT_TRUE(all.contains(k)) << k;
}

// GNU units refuses a temperature below absolute zero; the converter has no
// such limit and converts it by the same rule as any other.
TEST_F(Reference, BelowAbsoluteZeroIsConvertedByTheSameRule) {
  choose(71);
  enter("txtBB", "-300");
  EXPECT_DOUBLE_EQ(conver().FromValue.number(), -300 * 1.8 + 32);
  EXPECT_EQ(text("txtAA"), "-508.");
  choose(72);
  enter("txtAA", "-10");
  EXPECT_DOUBLE_EQ(conver().ToValue.number(), -10 - 273.15);
  EXPECT_EQ(text("txtBB"), "-283.15");
  EXPECT_TRUE(host.fatals.empty());
  EXPECT_TRUE(host.boxes.empty());
}

}  // namespace
}  // namespace tessaron::test
