// Each pole exactly, inside its side bands on both sides, and just outside
// them, where the routine computes again; and every domain refusal with its
// message and formula text.
#include <gtest/gtest.h>

#include <cmath>

#include "expect.h"
#include "routines.h"

namespace tessaron::kernels {
namespace {

using testing::FindRoutine;

constexpr double kPi = 3.14159265358979323846;

struct Pole {
  const char* routine;
  bool degree;
  double x;
  const char* message;
  const char* formula;
};

constexpr const char* kNoFormula = "";
constexpr const char* kCscH = " cosecH x =  1 / sinH x =  2 / (e^x - e^-x)  ";
constexpr const char* kCotH = " cotanH x =  cosH x / sinH x= (e^x + e^-x)  /  (e^x - e^-x)  ";
constexpr const char* kTanH = " tanH x = sinH x / cosH x = (e^x - e^-x)  /  (e^x + e^-x)  ";
constexpr const char* kSecH = "  secH x =  1 / cosH x =  2 / (e^x + e^-x)   ";
// acotH shows the cotanH formula followed by its own.
constexpr const char* kAcotH =
    " cotanH x =  cosH x / sinH x= (e^x + e^-x)  /  (e^x - e^-x)   AcotH x = (Log((x + 1) / (x "
    "- 1))) / 2 ";

const Pole kPoles[] = {
    // Tangent, degrees: on the pole, and a hair on either side (the fence at
    // 270 has one digit fewer).
    {"ZTAN", true, 90, "  +  -  Infinity.  tan ", kNoFormula},
    {"ZTAN", true, 270, "  +  -  Infinity.  tan ", kNoFormula},
    {"ZTAN", true, -90, "  +  -  Infinity.  tan ", kNoFormula},
    {"ZTAN", true, 89.999999999999, "  +  Infinity.  tan ", kNoFormula},
    {"ZTAN", true, 89.99999999999, "  +  Infinity.  tan ", kNoFormula},
    {"ZTAN", true, 90.000000000005, "  -  Infinity.  tan ", kNoFormula},
    {"ZTAN", true, 269.99999999990, "  +  Infinity.  tan ", kNoFormula},
    {"ZTAN", true, 270.00000000005, "  -  Infinity.  tan ", kNoFormula},
    {"ZTAN", false, kPi / 2, "  +  -  Infinity.  tan ", kNoFormula},
    {"ZTAN", false, 3 * kPi / 2, "  +  -  Infinity.  tan ", kNoFormula},
    {"ZTAN", false, 1.5707963267945, "  +  -  Infinity.  tan ", kNoFormula},
    {"ZTAN", false, 1.5707963267952, "  +  -  Infinity.  tan ", kNoFormula},
    // Secant: the side named by the sign of the cosine.
    {"ZSEC", true, 90, "  + -   Infinity.  sec ", kNoFormula},
    {"ZSEC", true, 270, "  + -   Infinity.  sec ", kNoFormula},
    {"ZSEC", true, 89.999999999999, "  +  Infinity.  sec ", kNoFormula},
    {"ZSEC", true, 90.000000000005, "  -   Infinity.  sec ", kNoFormula},
    {"ZSEC", true, 269.99999999990, "  -   Infinity.  sec ", kNoFormula},
    {"ZSEC", true, 270.00000000005, "  +  Infinity.  sec ", kNoFormula},
    {"ZSEC", false, kPi / 2, "  +  -  Infinity.  sec ", kNoFormula},
    {"ZSEC", false, 3 * kPi / 2, "  +  -  Infinity.  sec ", kNoFormula},
    // Cosecant at 0 and 180.
    {"ZCSC", true, 0, "  +  -  Infinity.  cosec(0) ", kNoFormula},
    {"ZCSC", true, 360, "  +  -  Infinity.  cosec(0) ", kNoFormula},
    {"ZCSC", true, 0.000000000005, "  +   Infinity.  cosec(0) ", kNoFormula},
    {"ZCSC", true, -0.000000000005, "  -  Infinity.  cosec(0) ", kNoFormula},
    {"ZCSC", true, 359.99999999999, "  -  Infinity.  cosec(0) ", kNoFormula},
    {"ZCSC", true, 180, "  + -   Infinity.  cosec(180) ", kNoFormula},
    {"ZCSC", true, 179.999999999995, "  +  Infinity. cosec(180-)  ", kNoFormula},
    {"ZCSC", true, 180.000000000005, "  -   Infinity.  cosec(180+) ", kNoFormula},
    {"ZCSC", false, 0, "  +  -  Infinity.  cosec(0) ", kNoFormula},
    {"ZCSC", false, kPi, "  + -   Infinity.  cosec(180) ", kNoFormula},
    // In radians the two side texts carry the labels (0-) and (0+) against
    // their signs; each side takes the text whose sign it has: just above 0
    // the cosecant runs to plus infinity.
    {"ZCSC", false, 1e-12, "  +   Infinity.  cosec(0-) ", kNoFormula},
    {"ZCSC", false, -1e-12, "  -   Infinity.  cosec(0+) ", kNoFormula},
    // Cotangent at 0 and 180.
    {"ZCOT", true, 0, "  +  -  Infinity.  cotan ", kNoFormula},
    {"ZCOT", true, 180, "  +  -  Infinity.  cotan ", kNoFormula},
    {"ZCOT", true, 0.000000000005, "  +   Infinity.   cotan ", kNoFormula},
    {"ZCOT", true, -0.000000000005, "  -  Infinity.  cotan ", kNoFormula},
    {"ZCOT", true, 179.999999999995, "  -  Infinity.  cotan ", kNoFormula},
    {"ZCOT", true, 180.000000000005, "  +  Infinity.  cotan ", kNoFormula},
    {"ZCOT", false, 0, "  +  -  Infinity.  cotan  ", kNoFormula},
    {"ZCOT", false, kPi, "  +  -  Infinity.  cotan  ", kNoFormula},
    {"ZCOT", false, 1e-12, "  +   Infinity.  cotan ", kNoFormula},
    {"ZCOT", false, -1e-12, "  -   Infinity.  cotan ", kNoFormula},
    // Inverse domains.
    {"ZAsin", true, 1.0000001, "  Must be -1 <= x =<1 for Asin. ", kNoFormula},
    {"ZAsin", false, -2, "  Must be -1 <= x =<1 for Asin. ", kNoFormula},
    {"ZAcos", true, -1.5, "  Must be   1 => x => -1   Acos ", kNoFormula},
    {"ZAcos", false, 3, "  Must be   1 => x => -1   Acos ", kNoFormula},
    {"ZAsec", true, 0.5, "  Must be   |x| => 1   Asec ", kNoFormula},
    {"ZAsec", false, -0.999, "  Must be   |x| => 1   Asec ", kNoFormula},
    {"ZAsec", true, 0, "  Must be   |x| => 1   Asec ", kNoFormula},
    {"ZAcsc", true, 0.5, "  Must be  |x|  >=  1    Acosec ", kNoFormula},
    {"ZAcsc", false, 0, "  Must be  |x|  >=  1    Acosec ", kNoFormula},
    // Hyperbolic limits and poles.
    {"ZsinH", true, 709.5, " Too big here. (sinH) ", " sinH x =   (e^x - e^-x)  / 2  "},
    {"ZsinH", false, -710, " Too big here. (sinH) ", " sinH x =   (e^x - e^-x)  / 2  "},
    {"ZcosH", true, -709.01, " Too big here,  cosH", " cosH x = (e^x + e^-x)  /  2  "},
    {"ZcosH", false, 800, " Too big here,  cosH", " cosH x = (e^x + e^-x)  /  2  "},
    {"ZcscH", true, 0, " + - infinity  cosecH ", kCscH},
    {"ZcscH", false, 5e-17, " + infinity   cosecH ", kCscH},
    {"ZcscH", true, -5e-17, " - infinity   cosecH ", kCscH},
    {"ZcotH", true, 0, " + - Infinity  cotanH ", kCotH},
    {"ZcotH", false, 5e-16, " + Infinity  cotanH", kCotH},
    {"ZcotH", true, -5e-16, " - Infinity  cotanH ", kCotH},
    {"zAcosH", true, 0.999, " Must be >= One (1)    AcosH", " AcosH(x) = ln( x + sqrt(x^2 - 1) "},
    {"zAcosH", false, -3, " Must be >= One (1)    AcosH", " AcosH(x) = ln( x + sqrt(x^2 - 1) "},
    {"zAtanH", true, 1, " + Infinity.  Absolue Value need to be lesser than  1  atanH .  ", kTanH},
    {"zAtanH", false, -1, " - Infinity.  Absolue Value need to be lesser than  1  atanH.  ", kTanH},
    {"zAtanH", true, 1.5, " Absolue Value need to be lesser than  1  atanH.  ", kTanH},
    {"zAtanH", false, -7, " Absolue Value need to be lesser than  1  atanH.  ", kTanH},
    {"zAsecH", true, 0, " + -  infinity   AsecH ", kSecH},
    {"zAsecH", false, -0.5, " Must be   0 <= x <=1  AsecH", kSecH},
    {"zAsecH", true, 1.0001, " Must be   0 <= x <=1  AsecH", kSecH},
    {"zAcscH", true, 0, " + - Infinity   acosecH ", kCscH},
    {"zAcscH", false, 5e-17, " + Infinity   acosecH ", kCscH},
    {"zAcscH", true, -5e-17, " - Infinity   acosecH ", kCscH},
    {"zAcotH", true, 1, " + Infinity.   |x| > 1    (x<-1 or x>1)   AcotanH  ", kAcotH},
    {"zAcotH", false, -1, " - Infinity.   |x| > 1    (x<-1 or x>1)   AcotanH ", kAcotH},
    {"zAcotH", true, 0.5, "   |x| > 1    (x<-1 or x>1)   AcotanH ", kAcotH},
    {"zAcotH", false, 0, "   |x| > 1    (x<-1 or x>1)   AcotanH ", kAcotH},
};

TEST(TrigPoles, EveryPoleAndDomainByItsMessage) {
  for (const auto& p : kPoles) {
    SCOPED_TRACE(std::string(p.routine) + (p.degree ? " deg " : " rad ") + std::to_string(p.x));
    const Outcome o = (*FindRoutine(p.routine))(p.x, p.degree);
    testing::ExpectRefused(o, Act::Cancel, p.message, p.formula);
  }
}

// Just outside a side band the routine computes again, with the sign of that
// side.
TEST(TrigPoles, OutsideTheBandsItComputes) {
  struct Near {
    const char* routine;
    bool degree;
    double x;
    int sign;
  };
  const Near rows[] = {
      {"ZTAN", true, 89.9999999999, +1},  {"ZTAN", true, 90.0000000001, -1},
      {"ZTAN", true, 269.999999999, +1},  {"ZTAN", true, 270.000000001, -1},
      {"ZTAN", false, 1.5707963267, +1},  {"ZTAN", false, 1.5707963269, -1},
      {"ZSEC", true, 89.9999999999, +1},  {"ZSEC", true, 90.0000000001, -1},
      {"ZSEC", true, 269.999999999, -1},  {"ZSEC", true, 270.000000001, +1},
      {"ZSEC", false, 1.5707963267, +1},  {"ZSEC", false, 1.5707963269, -1},
      {"ZCSC", true, 0.0000000001, +1},   {"ZCSC", true, -0.0000000001, -1},
      {"ZCSC", true, 179.9999999999, +1}, {"ZCSC", true, 180.0000000001, -1},
      {"ZCSC", false, 1e-10, +1},         {"ZCSC", false, -1e-10, -1},
      {"ZCSC", false, 3.14159265358, +1}, {"ZCSC", false, 3.1415926536, -1},
      {"ZCOT", true, 0.0000000001, +1},   {"ZCOT", true, -0.0000000001, -1},
      {"ZCOT", true, 179.9999999999, -1}, {"ZCOT", true, 180.0000000001, +1},
      {"ZCOT", false, 1e-10, +1},         {"ZCOT", false, -1e-10, -1},
      {"ZcscH", true, 1e-15, +1},         {"ZcscH", true, -1e-15, -1},
      {"ZcotH", true, 1e-14, +1},         {"ZcotH", true, -1e-14, -1},
      {"zAcscH", true, 1e-15, +1},        {"ZsinH", true, 709, +1},
      {"ZsinH", true, -709, -1},          {"ZcosH", true, -709, +1},
      {"zAtanH", true, 0.9999999999, +1}, {"zAtanH", true, -0.9999999999, -1},
      {"zAcotH", true, 1.0000000001, +1}, {"zAcotH", true, -1.0000000001, -1},
      {"zAsecH", true, 1e-300, +1},       {"zAcosH", true, 1, 0},
  };
  for (const auto& r : rows) {
    SCOPED_TRACE(std::string(r.routine) + " " + std::to_string(r.x));
    const Outcome o = (*FindRoutine(r.routine))(r.x, r.degree);
    ASSERT_TRUE(o.ok()) << o.message;
    const double v = o.value.number();
    if (r.sign == 0)
      EXPECT_EQ(v, 0);
    else
      EXPECT_GT(v * r.sign, 1.0) << v;
  }
}

// What the steps leave unguarded stays unguarded: beyond the reach of the
// exponential and the square, a run-time failure ends the program, as with
// any other unguarded arithmetic of the forms.
TEST(TrigPoles, UnguardedRangesFail) {
  EXPECT_THROW(ZsecH(Value(710)), Failure);
  EXPECT_THROW(ZcotH(Value(710)), Failure);
  EXPECT_THROW(zAcosH(Value(1e200)), Failure);
  // Between -1.5E-8 and the band around 0 the sum under the logarithm of
  // acosecH vanishes.
  EXPECT_THROW(zAcscH(Value(-1e-10)), Failure);
}

}  // namespace
}  // namespace tessaron::kernels
