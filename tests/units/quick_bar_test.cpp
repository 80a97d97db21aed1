// The quick bar: each option's length and start, and every step of the bar
// moving the two figures the same way.
#include <cstdlib>

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
  double last = -1;
  for (int v = 1; v <= 240; ++v) {
    to(v);
    const double in = inches(caption("lblFP"));
    EXPECT_DOUBLE_EQ(in, v / 2.0) << v;
    EXPECT_NEAR(figure(caption("lblKM")), v * 1.27, (v < 24 ? 0.005 : 0.05) + 1e-9) << v;
    EXPECT_GT(in, last);
    last = in;
  }
  to(1);
  EXPECT_EQ(caption("lblFP"), "0.5 in. ");
  EXPECT_EQ(caption("lblKM"), "1.27 cm ");
  to(24);
  EXPECT_EQ(caption("lblFP"), "1 ft = 12 in ");
  EXPECT_EQ(caption("lblKM"), "30.48 cm ");
  to(25);
  EXPECT_EQ(caption("lblFP"), "1 ft 0.5 in ");
  EXPECT_EQ(caption("lblKM"), "31.8 cm ");
  to(240);
  EXPECT_EQ(caption("lblFP"), "10 ft 0. in ");
  EXPECT_EQ(caption("lblKM"), "304.8 cm ");
}

TEST_F(QuickBar, TemperaturesRiseThroughTheirBands) {
  choose(frmConver::kTemperature);
  double last = -1000;
  for (int v = 1; v <= 256; ++v) {
    to(v);
    const double f = figure(caption("lblFP"));
    const double cdeg = figure(caption("lblKM"));
    EXPECT_GT(f, last) << v;
    EXPECT_NEAR(cdeg, (f - 32) * 5 / 9, 0.05 + 1e-9) << v;
    last = f;
  }
  const std::pair<int, const char*> ends[] = {
      {1, "-40. degF "},    {9, "0. degF "},      {10, " 1. degF "},
      {104, " 95. degF "},  {105, " 95.1 degF "}, {234, " 108.0 degF "},
      {235, " 110. degF "}, {255, " 210. degF "}, {256, " 212. degF "}};
  for (const auto& [v, text] : ends) {
    to(v);
    EXPECT_EQ(caption("lblFP"), text) << v;
  }
  EXPECT_EQ(caption("lblKM"), " 100. degC ");
  to(1);
  EXPECT_EQ(caption("lblKM"), "- 40.0 degC ");
}

TEST_F(QuickBar, PoundsRiseThroughTheirBandsToFourRoundWeights) {
  choose(frmConver::kPound);
  double last = 0;
  for (int v = 17; v <= 642; ++v) {
    to(v);
    const double lb = figure(caption("lblFP"));
    EXPECT_GT(lb, last) << v;
    EXPECT_NEAR(figure(caption("lblKM")), lb * 0.45359237, (v <= 106 ? 0.005 : 0.05) + 1e-9) << v;
    last = lb;
  }
  const std::pair<int, const char*> ends[] = {{17, "1.1  pounds "},     {106, "10.0  pounds "},
                                              {107, "10.5  pounds "},   {527, "220.5  pounds "},
                                              {528, "225.0  pounds "},  {638, "775.0  pounds "},
                                              {639, "1000.0  pounds "}, {640, "2000.0  pounds "},
                                              {641, "2204.6  pounds "}, {642, "2240.0  pounds "}};
  for (const auto& [v, text] : ends) {
    to(v);
    EXPECT_EQ(caption("lblFP"), text) << v;
  }
  EXPECT_EQ(caption("lblKM"), "1016.0 kg ");
  to(1);
  EXPECT_EQ(caption("lblFP"), "1 ounce = ");
  EXPECT_EQ(caption("lblKM"), "0.063 pound ");
  to(15);
  EXPECT_EQ(caption("lblFP"), "15 ounce = ");
  EXPECT_EQ(caption("lblKM"), "0.938 pound ");
  to(16);
  EXPECT_EQ(caption("lblFP"), "16 ounce = 1 pound ");
  EXPECT_EQ(caption("lblKM"), "453.6 gram ");
}

TEST_F(QuickBar, YardsStepByOneThenStopOnFourDistances) {
  choose(frmConver::kYard);
  double last = 0;
  for (int v = 1; v <= 304; ++v) {
    to(v);
    const double yd = figure(caption("lblFP"));
    if (v <= 300) EXPECT_EQ(yd, v);
    EXPECT_GT(yd, last) << v;
    EXPECT_NEAR(figure(caption("lblKM")), yd * 0.9144, 0.05 + 1e-9) << v;
    last = yd;
  }
  EXPECT_EQ(caption("lblFP"), "1760 yards ");
  EXPECT_EQ(caption("lblKM"), "1609.3 meter ");
  to(1);
  EXPECT_EQ(caption("lblFP"), "1 yards ");
  EXPECT_EQ(caption("lblKM"), "0.9 meter ");
}

}  // namespace
}  // namespace tessaron::test
