// The recogniser: f is sampled, and each known shape fits its coefficients
// on the first samples and must hold on all the others. A recognised shape
// integrates in closed form, to thirteen digits, from 23 replays instead of
// 10,001.
#include <cmath>
#include <numbers>
#include <vector>

#include "calc/ovicalc.h"
#include "engine/assist_math.h"
#include "engine/rounding.h"
#include "numeric/failure.h"

namespace tessaron {

namespace {
using std::numbers::pi;

// How a family finds its coefficients from the first four samples.
enum class Fit { Poly, Fixed, Exp, Wave, Scaled, Circle };

struct Family {
  int no;
  Fit fit;
  // The level far out on both sides, for the families whose far samples
  // tie their constant.
  bool level;
  double mid;
};

constexpr Family kFamilies[] = {
    {1, Fit::Poly, false, 0},    {2, Fit::Fixed, false, 0},
    {3, Fit::Poly, false, 0},    {4, Fit::Poly, false, 0},
    {5, Fit::Exp, false, 0},     {6, Fit::Exp, false, 0},
    {7, Fit::Fixed, false, 0},   {8, Fit::Fixed, false, 0},
    {9, Fit::Fixed, false, 0},   {10, Fit::Fixed, false, 0},
    {11, Fit::Fixed, false, 0},  {12, Fit::Fixed, false, 0},
    {13, Fit::Scaled, false, 0}, {14, Fit::Wave, false, 0},
    {15, Fit::Wave, false, 0},   {16, Fit::Scaled, false, 0},
    {17, Fit::Scaled, false, 0}, {18, Fit::Scaled, false, 0},
    {19, Fit::Scaled, false, 0}, {20, Fit::Scaled, true, 0},
    {21, Fit::Scaled, false, 0}, {22, Fit::Scaled, true, pi / 2},
    {23, Fit::Scaled, false, 0}, {24, Fit::Scaled, false, 0},
    {25, Fit::Scaled, false, 0}, {26, Fit::Scaled, true, 0},
    {27, Fit::Scaled, true, 0},  {28, Fit::Scaled, true, 0},
    {29, Fit::Scaled, false, 0}, {30, Fit::Scaled, false, 0},
    {31, Fit::Scaled, false, 0}, {32, Fit::Scaled, true, 0},
    {33, Fit::Scaled, false, 0}, {34, Fit::Scaled, true, 0},
    {35, Fit::Scaled, false, 0}, {kGesuCircle, Fit::Circle, false, 0},
};

// The shapes at unit scale, in radians.
double g(int no, double u) {
  switch (no) {
    case 2:
      return 1 / u;
    case 5:
      return std::pow(10.0, u);
    case 6:
      return std::exp(u);
    case 7:
      return std::log(u);
    case 8:
      return std::log10(u);
    case 9:
      return std::sqrt(u);
    case 10:
      return std::cbrt(u);
    case 11:
      return u > 0 ? std::pow(u, u) : NAN;
    case 12:
      return u > 0 ? std::pow(u, 1 / u) : NAN;
    case 13:
      return std::tan(u);
    case 14:
      return std::cos(u);
    case 15:
      return std::sin(u);
    case 16:
      return 1 / std::tan(u);
    case 17:
      return 1 / std::cos(u);
    case 18:
      return 1 / std::sin(u);
    case 19:
      return std::atan(u);
    case 20:
      return std::acos(u);
    case 21:
      return std::asin(u);
    case 22:
      return pi / 2 - std::atan(u);
    case 23:
      return std::fabs(u) >= 1 ? std::acos(1 / u) : NAN;
    case 24:
      return std::fabs(u) >= 1 ? std::asin(1 / u) : NAN;
    case 25:
      return std::tanh(u);
    case 26:
      return std::cosh(u);
    case 27:
      return std::sinh(u);
    case 28:
      return 1 / std::tanh(u);
    case 29:
      return 1 / std::cosh(u);
    case 30:
      return 1 / std::sinh(u);
    case 31:
      return std::atanh(u);
    case 32:
      return std::acosh(u);
    case 33:
      return std::asinh(u);
    case 34:
      return std::fabs(u) > 1 ? std::atanh(1 / u) : NAN;
    case 35:
      return u > 0 && u <= 1 ? std::acosh(1 / u) : NAN;
    default:
      return NAN;
  }
}

// Tolerances relative to the largest sample: the ordinary test, the looser
// one of the two fall-backs, and the rough one a first fit must pass before
// it is polished over all the samples.
constexpr double kTol = 1e-11, kLooseTol = 1e-10, kRoughTol = 1e-6;

struct Trial {
  Shape s;
  bool ok = false;
};

double scaleOf(const GesuSamples& s) {
  double m = 0;
  for (double f : s.f) m = std::max(m, std::fabs(f));
  return m > 0 ? m : 1;
}

bool holds(const Shape& sh, const GesuSamples& s, double tol) {
  const double scale = scaleOf(s);
  for (size_t i = 0; i < s.t.size(); ++i) {
    const double p = ShapeValue(sh, s.t[i]);
    if (!std::isfinite(p) || std::fabs(p - s.f[i]) > tol * scale) return false;
  }
  return true;
}

// a and c of a g(k T) + c through samples 0 and 1, or through sample 0 and
// the far level.
bool fitLinear(const Family& fam, double k, const GesuSamples& s, Shape& sh) {
  const double g0 = g(fam.no, k * s.t[0]);
  sh.no = fam.no;
  sh.b = k;
  if (fam.level && s.farOk) {
    sh.a = (s.f[0] - s.farMean) / (g0 - fam.mid);
    sh.c = s.farMean - sh.a * fam.mid;
  } else {
    // Through sample 0 and the one where g differs most from it: the far
    // end, unless an even shape comes back to its value there.
    int j = 17;
    double gj = g(fam.no, k * s.t[17]);
    for (int i : {12, 8}) {
      const double gi = g(fam.no, k * s.t[i]);
      if (std::fabs(gi - g0) > std::fabs(gj - g0)) {
        j = i;
        gj = gi;
      }
    }
    sh.a = (s.f[j] - s.f[0]) / (gj - g0);
    sh.c = s.f[0] - sh.a * g0;
  }
  return std::isfinite(sh.a) && std::isfinite(sh.c);
}

Trial fitPoly(const Family& fam, const GesuSamples& s, double tiny) {
  Trial tr;
  Shape& sh = tr.s;
  sh.no = fam.no;
  const auto& t = s.t;
  const auto& f = s.f;
  if (fam.no == 1) {
    sh.b = (f[1] - f[0]) / (t[1] - t[0]);
    sh.c = f[0] - sh.b * t[0];
    // A level line is a line too: its volume and surface are closed forms.
    tr.ok = std::isfinite(sh.b) && std::isfinite(sh.c);
    return tr;
  }
  if (fam.no == 3) {
    const double d = Cramer(t[1] * t[1], t[1], 1, t[2] * t[2], t[2], 1, t[3] * t[3], t[3], 1, 0);
    if (d == 0) return tr;
    sh.a = Cramer(f[1], t[1], 1, f[2], t[2], 1, f[3], t[3], 1, 0) / d;
    sh.b = Cramer(t[1] * t[1], f[1], 1, t[2] * t[2], f[2], 1, t[3] * t[3], f[3], 1, 0) / d;
    sh.c = Cramer(t[1] * t[1], t[1], f[1], t[2] * t[2], t[2], f[2], t[3] * t[3], t[3], f[3], 0) / d;
    tr.ok = std::fabs(sh.a) >= tiny;
    return tr;
  }
  // The cubic takes its constant from f(0).
  if (!s.zeroOk) return tr;
  sh.d = s.zero;
  auto row = [&](int i) { return f[i] - s.zero; };
  auto p3 = [&](int i) { return t[i] * t[i] * t[i]; };
  auto p2 = [&](int i) { return t[i] * t[i]; };
  const double d = Cramer(p3(1), p2(1), t[1], p3(2), p2(2), t[2], p3(3), p2(3), t[3], 0);
  if (d == 0) return tr;
  sh.a = Cramer(row(1), p2(1), t[1], row(2), p2(2), t[2], row(3), p2(3), t[3], 0) / d;
  sh.b = Cramer(p3(1), row(1), t[1], p3(2), row(2), t[2], p3(3), row(3), t[3], 0) / d;
  sh.c = Cramer(p3(1), p2(1), row(1), p3(2), p2(2), row(2), p3(3), p2(3), row(3), 0) / d;
  tr.ok = std::fabs(sh.a) >= tiny;
  return tr;
}

// k from the ratio of successive differences, which an exponential keeps
// constant and a wave turns by the cosine of its step.
Trial fitClosedK(const Family& fam, const GesuSamples& s, double tiny) {
  Trial tr;
  const auto& f = s.f;
  const double h = s.t[1] - s.t[0];
  double k = 0;
  if (fam.fit == Fit::Exp) {
    const double r = (f[2] - f[1]) / (f[1] - f[0]);
    if (!(r > 0) || r == 1) return tr;
    k = std::log(r) / h;
    if (fam.no == 5) k /= std::log(10.0);
  } else {
    const double cosStep = (f[0] + f[2] - f[1] - f[3]) / (2 * (f[1] - f[2]));
    if (!(std::fabs(cosStep) < 1)) return tr;
    k = std::fabs(std::acos(cosStep) / h);
  }
  if (std::fabs(k) < tiny || !fitLinear(fam, k, s, tr.s)) return tr;
  tr.ok = std::fabs(tr.s.a) >= tiny;
  return tr;
}

// k by the secant rule on the third sample, from a few starting scales: 1,
// and the degree's scale for the forward circular shapes.
Trial fitScaled(const Family& fam, const GesuSamples& s, double tiny) {
  Trial tr;
  auto residual = [&](double k, Shape& sh) -> double {
    if (!fitLinear(fam, k, s, sh)) return std::nan("");
    const int at = 5;
    return ShapeValue(sh, s.t[at]) - s.f[at];
  };
  for (double start : {1.0, pi / 180, 0.5, 2.0, 0.1, 10.0}) {
    double k0 = start, k1 = start * (1 + 1e-4);
    Shape sh;
    double r0 = residual(k0, sh), r1 = residual(k1, sh);
    for (int it = 0; it < 60 && std::isfinite(r0) && std::isfinite(r1) && r1 != r0; ++it) {
      const double k2 = k1 - r1 * (k1 - k0) / (r1 - r0);
      k0 = k1;
      r0 = r1;
      k1 = k2;
      r1 = residual(k1, sh);
      if (std::fabs(k1 - k0) <= 1e-15 * std::fabs(k1)) break;
    }
    if (!std::isfinite(r1) || std::fabs(k1) < tiny) continue;
    residual(k1, sh);
    if (std::fabs(sh.a) >= tiny && holds(sh, s, kRoughTol)) return {sh, true};
  }
  return tr;
}

Trial fitFamily(const Family& fam, const GesuSamples& s, double tiny) {
  switch (fam.fit) {
    case Fit::Poly:
      return fitPoly(fam, s, tiny);
    case Fit::Exp:
    case Fit::Wave:
      return fitClosedK(fam, s, tiny);
    case Fit::Scaled:
      return fitScaled(fam, s, tiny);
    case Fit::Fixed: {
      Trial tr;
      tr.ok = fitLinear(fam, 1, s, tr.s) && std::fabs(tr.s.a) >= tiny;
      return tr;
    }
    case Fit::Circle: {
      Trial tr;
      tr.s.no = fam.no;
      tr.s.a = std::sqrt(s.f[0] * s.f[0] + s.t[0] * s.t[0]);
      tr.ok = s.f[0] >= 0 && tr.s.a >= tiny;
      return tr;
    }
  }
  return {};
}

// The coefficients fitted on a few samples carry those samples' last digit;
// a least-squares pass over all eighteen (Gauss-Newton, three rounds) takes
// the closed forms to the display's digits.
std::vector<double*> freeParams(Shape& sh) {
  switch (sh.no) {
    case 1:
      return {&sh.b, &sh.c};
    case 3:
      return {&sh.a, &sh.b, &sh.c};
    case 4:
      return {&sh.a, &sh.b, &sh.c, &sh.d};
    case kGesuCircle:
      return {&sh.a};
    default:
      break;
  }
  if (kFamilies[sh.no - 1].fit == Fit::Fixed) return {&sh.a, &sh.c};
  return {&sh.a, &sh.b, &sh.c};
}

double squares(const Shape& sh, const GesuSamples& s) {
  double sum = 0;
  for (size_t i = 0; i < s.t.size(); ++i) {
    const double r = ShapeValue(sh, s.t[i]) - s.f[i];
    sum += r * r;
  }
  return sum;
}

// Solves m x = v by elimination with pivoting; false when singular.
bool solve(std::vector<std::vector<double>> m, std::vector<double> v, std::vector<double>& x) {
  const size_t n = v.size();
  for (size_t c = 0; c < n; ++c) {
    size_t p = c;
    for (size_t r = c + 1; r < n; ++r)
      if (std::fabs(m[r][c]) > std::fabs(m[p][c])) p = r;
    if (m[p][c] == 0) return false;
    std::swap(m[p], m[c]);
    std::swap(v[p], v[c]);
    for (size_t r = c + 1; r < n; ++r) {
      const double q = m[r][c] / m[c][c];
      for (size_t k = c; k < n; ++k) m[r][k] -= q * m[c][k];
      v[r] -= q * v[c];
    }
  }
  x.assign(n, 0);
  for (size_t c = n; c-- > 0;) {
    double sum = v[c];
    for (size_t k = c + 1; k < n; ++k) sum -= m[c][k] * x[k];
    x[c] = sum / m[c][c];
  }
  return true;
}

void polish(Shape& sh, const GesuSamples& s) {
  for (int round = 0; round < 3; ++round) {
    Shape trial = sh;
    const auto params = freeParams(trial);
    const size_t n = params.size(), m = s.t.size();
    std::vector<std::vector<double>> jac(m, std::vector<double>(n));
    std::vector<double> res(m);
    for (size_t i = 0; i < m; ++i) res[i] = ShapeValue(trial, s.t[i]) - s.f[i];
    for (size_t j = 0; j < n; ++j) {
      const double keep = *params[j];
      const double step = 1e-7 * std::max(std::fabs(keep), 1e-3);
      *params[j] = keep + step;
      for (size_t i = 0; i < m; ++i)
        jac[i][j] = (ShapeValue(trial, s.t[i]) - s.f[i] - res[i]) / step;
      *params[j] = keep;
    }
    std::vector<std::vector<double>> jtj(n, std::vector<double>(n, 0));
    std::vector<double> jtr(n, 0), delta;
    for (size_t i = 0; i < m; ++i)
      for (size_t j = 0; j < n; ++j) {
        jtr[j] -= jac[i][j] * res[i];
        for (size_t k = 0; k < n; ++k) jtj[j][k] += jac[i][j] * jac[i][k];
      }
    if (!solve(jtj, jtr, delta)) return;
    for (size_t j = 0; j < n; ++j) *params[j] += delta[j];
    if (!(squares(trial, s) < squares(sh, s))) return;
    sh = trial;
  }
}

// A coefficient that is a whole number of thousandths.
bool round3(double x) {
  const double m = x * 1000;
  return std::fabs(m - std::nearbyint(m)) <= 1e-7 * std::max(1.0, std::fabs(m));
}
int roundness(const Shape& s) { return round3(s.a) + round3(s.b) + round3(s.c); }
}  // namespace

double ShapeValue(const Shape& s, double t) {
  switch (s.no) {
    case 1:
      return s.b * t + s.c;
    case 3:
      return (s.a * t + s.b) * t + s.c;
    case 4:
      return ((s.a * t + s.b) * t + s.c) * t + s.d;
    case kGesuCircle:
      return std::sqrt(s.a * s.a - t * t);
    default:
      return s.a * g(s.no, s.b * t) + s.c;
  }
}

// Where two shapes are one curve (acos and asin, e^ and 10^, ln and log) the
// rounder coefficients name it; on a tie the first alive does.
Shape FindShape(const GesuSamples& s, bool& fallback) {
  const double tiny = 1e-13;
  fallback = false;
  Shape best;
  int bestRound = -1;
  std::array<bool, kGesuHypotheses + 1> alive;
  alive.fill(true);
  if (s.degree && s.zeroOk)
    for (int n = 17; n <= 19; ++n) alive[n] = false;
  if (s.degree && s.negOk)
    for (int n = 20; n <= kGesuHypotheses; ++n) alive[n] = false;
  for (const Family& fam : kFamilies) {
    if (!alive[fam.no]) continue;
    Trial tr = fitFamily(fam, s, tiny);
    if (!tr.ok || !holds(tr.s, s, kRoughTol)) continue;
    polish(tr.s, s);
    if (!holds(tr.s, s, kTol)) continue;
    const int r = roundness(tr.s);
    if (r > bestRound) {
      best = tr.s;
      bestRound = r;
    }
  }
  if (bestRound >= 0) return best;
  for (int no : {33, 5}) {
    Trial tr = fitFamily(kFamilies[no - 1], s, tiny);
    if (!tr.ok || !holds(tr.s, s, kRoughTol)) continue;
    polish(tr.s, s);
    if (holds(tr.s, s, kLooseTol)) {
      fallback = true;
      return tr.s;
    }
  }
  return {};
}

// The probes at 0, at 100 on both sides and far out lie outside the user's
// range: a number too large for a kernel there marks the probe as failed
// instead of ending the program.
bool OviCalc::probeEval(double t, double& f) {
  try {
    return aidEval(t, f);
  } catch (const Failure&) {
    ErrFlag = true;
    return false;
  }
}

void OviCalc::FindGesu() {
  GesuSamples s;
  double f = 0;
  s.zeroOk = probeEval(0, f);
  GesuZero = s.zeroOk ? f : 0;
  s.zero = GesuZero;
  s.degree = bDegree;
  s.negOk = probeEval(-100, f);
  s.degree = s.degree || bDegree;
  double far1 = 0, far2 = 0;
  probeEval(100, f);
  const bool ok1 = probeEval(-1e22, far1), ok2 = probeEval(1e22, far2);
  s.farOk = ok1 && ok2 && std::fabs(far1) < 1e15 && std::fabs(far2) < 1e15;
  s.farMean = (far1 + far2) / 2;
  const double m1 = vMemory[1].number(), m2 = vMemory[2].number();
  IntStep = (m2 - m1) / 17;
  for (int i = 0; i <= 17; ++i) {
    s.t[i] = m1 + i * IntStep;
    if (!aidEval(s.t[i], s.f[i])) {
      GesuNo = -1;
      return;
    }
  }
  bool fallback = false;
  const Shape sh = FindShape(s, fallback);
  GesuNo = static_cast<short>(sh.no > 0 ? sh.no : kGesuNone);
  GesuA = RoundX(15, sh.a);
  GesuB = RoundX(15, sh.b);
  GesuC = RoundX(15, sh.c);
  if (sh.no == 4) GesuZero = RoundX(15, sh.d);
  GesuK = fallback ? 1 : 0;
}

Shape OviCalc::gesuShape() const {
  Shape s;
  s.no = GesuNo;
  s.a = GesuA;
  s.b = GesuB;
  s.c = GesuC;
  s.d = GesuZero;
  return s;
}

}  // namespace tessaron
