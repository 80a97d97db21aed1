// The quick bar: each option's length and start, and every step of the bar
// moving the two figures the same way.
#include <cstdlib>
#include <initializer_list>

#include "tests/units/conver_fixture.h"

namespace tessaron::test {
namespace {

class QuickBar : public ConverFixture {
 protected:
  void choose(int option) { click("optChoice", option); }
  void to(int v) { app.scroll(c("HscrAll"), v); }
  int bar(const char* what) {
    const Value v = what[0] == 'M' ? *c("HscrAll").property("Max") : c("HscrAll").value();
    return CInt(v).AsInt16();
  }
  // The first figure of a label, as the user reads it.
  // A minus sign may stand apart from its digits, in front of the mask's blank.
  static double figure(const std::string& s) {
    size_t i = s.find_first_of("-0123456789.");
    if (i == std::string::npos) return 0;
    const bool minus = s[i] == '-';
    if (minus) i = s.find_first_of("0123456789.", i);
    const double v = std::strtod(s.c_str() + i, nullptr);
    return minus ? -v : v;
  }
  // Feet and inches together, in inches.
  static double inches(const std::string& s) {
    const size_t ft = s.find(" ft");
    if (ft == std::string::npos) return figure(s);
    if (s.find('=') != std::string::npos) return 12;
    return 12 * figure(s.substr(0, ft)) + figure(s.substr(ft + 3));
  }
  // Steps the bar from first to last: the upper figure, as read, rises above
  // the one before (floor before the first) and check sees it beside the lower.
  template <class Read, class Check>
  void sweep(int first, int last, double floor, Read read, Check check) {
    for (int v = first; v <= last; ++v) {
      to(v);
      const double upper = read(caption("lblFP"));
      check(v, upper, figure(caption("lblKM")));
      EXPECT_GT(upper, floor) << v;
      floor = upper;
    }
  }
  // Where the bar stops and the words the two figures show there; a null
  // is not looked at.
  struct Stop {
    int v;
    const char* fp;
    const char* km = nullptr;
  };
  void stops(std::initializer_list<Stop> list) {
    for (const Stop& s : list) {
      to(s.v);
      if (s.fp) {
        EXPECT_EQ(caption("lblFP"), s.fp) << s.v;
      }
      if (s.km) {
        EXPECT_EQ(caption("lblKM"), s.km) << s.v;
      }
    }
  }
};

TEST_F(QuickBar, EachOptionGivesTheBarItsLengthAndStart) {
  struct Start {
    int option, max, value;
    const char *fp, *km;
  };
  const Start starts[] = {
      {frmConver::kYard, 304, 150, "150 yards ", "137.2 meter "},
      {frmConver::kPound, 642, 386, "150.0  pounds ", "68.0 kg "},
      {frmConver::kFeetInch, 240, 130, "5 ft 5. in ", "165.1 cm "},
      {frmConver::kTemperature, 256, 77, " 68. degF ", " 20.0 degC "},
  };
  for (const Start& s : starts) {
    SCOPED_TRACE(s.option);
    to(200);
    choose(s.option);
    EXPECT_EQ(conver().Choice, s.option);
    EXPECT_EQ(bar("Max"), s.max);
    EXPECT_EQ(bar("Value"), s.value);
    EXPECT_EQ(caption("lblFP"), s.fp);
    EXPECT_EQ(caption("lblKM"), s.km);
  }
}

TEST_F(QuickBar, FeetAndInchesStepByHalfInches) {
  choose(frmConver::kFeetInch);
  sweep(1, 240, -1, inches, [](int v, double in, double cm) {
    EXPECT_DOUBLE_EQ(in, v / 2.0) << v;
    EXPECT_NEAR(cm, v * 1.27, (v < 24 ? 0.005 : 0.05) + 1e-9) << v;
  });
  stops({{1, "0.5 in. ", "1.27 cm "},
         {24, "1 ft = 12 in ", "30.48 cm "},
         {25, "1 ft 0.5 in ", "31.8 cm "},
         {240, "10 ft 0. in ", "304.8 cm "}});
}

TEST_F(QuickBar, TemperaturesRiseThroughTheirBands) {
  choose(frmConver::kTemperature);
  sweep(1, 256, -1000, figure,
        [](int v, double f, double c) { EXPECT_NEAR(c, (f - 32) * 5 / 9, 0.05 + 1e-9) << v; });
  stops({{1, "-40. degF "},
         {9, "0. degF "},
         {10, " 1. degF "},
         {104, " 95. degF "},
         {105, " 95.1 degF "},
         {234, " 108.0 degF "},
         {235, " 110. degF "},
         {255, " 210. degF "},
         {256, " 212. degF ", " 100. degC "},
         {1, nullptr, "- 40.0 degC "}});
}

TEST_F(QuickBar, PoundsRiseThroughTheirBandsToFourRoundWeights) {
  choose(frmConver::kPound);
  sweep(17, 642, 0, figure, [](int v, double lb, double kg) {
    EXPECT_NEAR(kg, lb * 0.45359237, (v <= 106 ? 0.005 : 0.05) + 1e-9) << v;
  });
  stops({{17, "1.1  pounds "},
         {106, "10.0  pounds "},
         {107, "10.5  pounds "},
         {527, "220.5  pounds "},
         {528, "225.0  pounds "},
         {638, "775.0  pounds "},
         {639, "1000.0  pounds "},
         {640, "2000.0  pounds "},
         {641, "2204.6  pounds "},
         {642, "2240.0  pounds ", "1016.0 kg "},
         {1, "1 ounce = ", "0.063 pound "},
         {15, "15 ounce = ", "0.938 pound "},
         {16, "16 ounce = 1 pound ", "453.6 gram "}});
}

TEST_F(QuickBar, YardsStepByOneThenStopOnFourDistances) {
  choose(frmConver::kYard);
  sweep(1, 304, 0, figure, [](int v, double yd, double m) {
    if (v <= 300) {
      EXPECT_EQ(yd, v);
    }
    EXPECT_NEAR(m, yd * 0.9144, 0.05 + 1e-9) << v;
  });
  stops({{304, "1760 yards ", "1609.3 meter "}, {1, "1 yards ", "0.9 meter "}});
}

}  // namespace
}  // namespace tessaron::test
