// The closed forms of the recognised shapes: a g(k T) + c integrates to
// a / k (G(k x2) - G(k x1)) + c (x2 - x1), where G is the standard integral
// of g; a shape whose G has a pole or leaves its domain between the ends has
// no closed form there, and the numeric method takes over.
#include <cmath>
#include <numbers>

#include "engine/assist_math.h"
#include "engine/assist_state.h"

namespace tessaron {

namespace {
using std::numbers::pi;

double sgn(double x) { return x < 0 ? -1 : 1; }
bool sameSide(double u1, double u2) { return u1 * u2 > 0; }
// No pole of the form p0 + n Pi lies between u1 and u2, ends included.
bool clearOfPoles(double u1, double u2, double p0) {
  const double n1 = std::floor((u1 - p0) / pi), n2 = std::floor((u2 - p0) / pi);
  return n1 == n2 && std::fmod(u1 - p0, pi) != 0 && std::fmod(u2 - p0, pi) != 0;
}

// A function at the two ends of [u1, u2], into g1 and g2: true when both
// are numbers.
struct Ends {
  double u1, u2;
  double &g1, &g2;
  template <class G>
  bool operator()(G g) const {
    g1 = g(u1);
    g2 = g(u2);
    return std::isfinite(g1) && std::isfinite(g2);
  }
};

// G at u, false where it does not apply on the whole of [u1, u2].
bool antiderivative(int no, double u1, double u2, double& g1, double& g2) {
  const Ends both{u1, u2, g1, g2};
  const double lo = std::min(u1, u2), hi = std::max(u1, u2);
  switch (no) {
    case 2:
      return sameSide(u1, u2) && both([](double u) { return std::log(std::fabs(u)); });
    case 5:
      return both([](double u) { return std::pow(10.0, u) / std::log(10.0); });
    case 6:
      return both([](double u) { return std::exp(u); });
    case 7:
      return lo > 0 && both([](double u) { return u * std::log(u) - u; });
    case 8:
      return lo > 0 && both([](double u) { return (u * std::log(u) - u) / std::log(10.0); });
    case 9:
      return lo >= 0 && both([](double u) { return 2 * u * std::sqrt(u) / 3; });
    case 10:
      return both([](double u) { return 0.75 * std::pow(std::fabs(u), 4.0 / 3); });
    case 13:
      return clearOfPoles(u1, u2, pi / 2) &&
             both([](double u) { return -std::log(std::fabs(std::cos(u))); });
    case 14:
      return both([](double u) { return std::sin(u); });
    case 15:
      return both([](double u) { return -std::cos(u); });
    case 16:
      return clearOfPoles(u1, u2, 0) &&
             both([](double u) { return std::log(std::fabs(std::sin(u))); });
    case 17:
      return clearOfPoles(u1, u2, pi / 2) &&
             both([](double u) { return std::log(std::fabs(1 / std::cos(u) + std::tan(u))); });
    case 18:
      return clearOfPoles(u1, u2, 0) &&
             both([](double u) { return std::log(std::fabs(std::tan(u / 2))); });
    case 19:
      return both([](double u) { return u * std::atan(u) - std::log(1 + u * u) / 2; });
    case 20:
      return lo >= -1 && hi <= 1 &&
             both([](double u) { return u * std::acos(u) - std::sqrt(1 - u * u); });
    case 21:
      return lo >= -1 && hi <= 1 &&
             both([](double u) { return u * std::asin(u) + std::sqrt(1 - u * u); });
    case 22:
      return both([](double u) { return u * (pi / 2 - std::atan(u)) + std::log(1 + u * u) / 2; });
    case 23:
      return sameSide(u1, u2) && std::fabs(lo) >= 1 && std::fabs(hi) >= 1 && both([](double u) {
               return u * std::acos(1 / u) - sgn(u) * std::acosh(std::fabs(u));
             });
    case 24:
      return sameSide(u1, u2) && std::fabs(lo) >= 1 && std::fabs(hi) >= 1 && both([](double u) {
               return u * std::asin(1 / u) + sgn(u) * std::acosh(std::fabs(u));
             });
    case 25:
      return both([](double u) { return std::log(std::cosh(u)); });
    case 26:
      return both([](double u) { return std::sinh(u); });
    case 27:
      return both([](double u) { return std::cosh(u); });
    case 28:
      return sameSide(u1, u2) && both([](double u) { return std::log(std::fabs(std::sinh(u))); });
    case 29:
      return both([](double u) { return std::atan(std::sinh(u)); });
    case 30:
      return sameSide(u1, u2) &&
             both([](double u) { return std::log(std::fabs(std::tanh(u / 2))); });
    case 31:
      return lo > -1 && hi < 1 &&
             both([](double u) { return u * std::atanh(u) + std::log(1 - u * u) / 2; });
    case 32:
      return lo >= 1 && both([](double u) { return u * std::acosh(u) - std::sqrt(u * u - 1); });
    case 33:
      return both([](double u) { return u * std::asinh(u) - std::sqrt(u * u + 1); });
    case 34:
      return sameSide(u1, u2) && std::fabs(lo) > 1 && std::fabs(hi) > 1 &&
             both([](double u) { return u * std::atanh(1 / u) + std::log(u * u - 1) / 2; });
    case 35:
      return lo > 0 && hi <= 1 &&
             both([](double u) { return u * std::acosh(1 / u) + std::asin(u); });
    case 36:
      return sameSide(u1, u2) &&
             both([](double u) { return u * std::asinh(1 / u) + std::asinh(std::fabs(u)); });
    default:
      return false;
  }
}

double poly(double a3, double a2, double a1, double a0, double x) {
  return ((a3 / 4 * x + a2 / 3) * x + a1 / 2) * x * x + a0 * x;
}
}  // namespace

bool ShapeIntegral(const Shape& s, double x1, double x2, double& out) {
  switch (s.no) {
    case 1:
      out = poly(0, 0, s.b, s.c, x2) - poly(0, 0, s.b, s.c, x1);
      return true;
    case 3:
      out = poly(0, s.a, s.b, s.c, x2) - poly(0, s.a, s.b, s.c, x1);
      return true;
    case 4:
      out = poly(s.a, s.b, s.c, s.d, x2) - poly(s.a, s.b, s.c, s.d, x1);
      return true;
    case kGesuCircle: {
      const double r = s.a;
      if (std::fabs(x1) > r || std::fabs(x2) > r) return false;
      auto G = [r](double x) {
        return (x * std::sqrt(r * r - x * x) + r * r * std::asin(x / r)) / 2;
      };
      out = G(x2) - G(x1);
      return true;
    }
    default:
      break;
  }
  const double k = s.b;
  double g1 = 0, g2 = 0;
  if (k == 0 || !antiderivative(s.no, k * x1, k * x2, g1, g2)) return false;
  out = s.a / k * (g2 - g1) + s.c * (x2 - x1);
  return std::isfinite(out);
}

namespace {
// The integral of g^2 at u, where the shape has one on the whole of [u1, u2].
bool squareAntiderivative(int no, double u1, double u2, double& g1, double& g2) {
  const Ends both{u1, u2, g1, g2};
  const double lo = std::min(u1, u2), hi = std::max(u1, u2);
  const double ln10 = std::log(10.0);
  auto lnSq = [](double u) { return u * std::log(u) * std::log(u) - 2 * u * std::log(u) + 2 * u; };
  switch (no) {
    case 2:
      return sameSide(u1, u2) && both([](double u) { return -1 / u; });
    case 5:
      return both([&](double u) { return std::pow(10.0, 2 * u) / (2 * ln10); });
    case 6:
      return both([](double u) { return std::exp(2 * u) / 2; });
    case 7:
      return lo > 0 && both(lnSq);
    case 8:
      return lo > 0 && both([&](double u) { return lnSq(u) / (ln10 * ln10); });
    case 9:
      return lo >= 0 && both([](double u) { return u * u / 2; });
    case 10:
      return both([](double u) { return 0.6 * sgn(u) * std::pow(std::fabs(u), 5.0 / 3); });
    case 13:
      return clearOfPoles(u1, u2, pi / 2) && both([](double u) { return std::tan(u) - u; });
    case 14:
      return both([](double u) { return u / 2 + std::sin(2 * u) / 4; });
    case 15:
      return both([](double u) { return u / 2 - std::sin(2 * u) / 4; });
    case 16:
      return clearOfPoles(u1, u2, 0) && both([](double u) { return -1 / std::tan(u) - u; });
    case 17:
      return clearOfPoles(u1, u2, pi / 2) && both([](double u) { return std::tan(u); });
    case 18:
      return clearOfPoles(u1, u2, 0) && both([](double u) { return -1 / std::tan(u); });
    case 20:
      return lo >= -1 && hi <= 1 && both([](double u) {
               const double a = std::acos(u);
               return u * a * a - 2 * std::sqrt(1 - u * u) * a - 2 * u;
             });
    case 21:
      return lo >= -1 && hi <= 1 && both([](double u) {
               const double a = std::asin(u);
               return u * a * a + 2 * std::sqrt(1 - u * u) * a - 2 * u;
             });
    case 25:
      return both([](double u) { return u - std::tanh(u); });
    case 26:
      return both([](double u) { return std::sinh(2 * u) / 4 + u / 2; });
    case 27:
      return both([](double u) { return std::sinh(2 * u) / 4 - u / 2; });
    case 29:
      return both([](double u) { return std::tanh(u); });
    default:
      return false;
  }
}
}  // namespace

bool ShapeSquareIntegral(const Shape& s, double x1, double x2, double& out) {
  // The polynomials square into polynomials.
  auto square = [&](std::array<double, 4> p) {
    std::array<double, 7> q{};
    for (int i = 0; i < 4; ++i)
      for (int j = 0; j < 4; ++j) q[i + j] += p[i] * p[j];
    auto F = [&](double x) {
      double sum = 0;
      for (int n = 6; n >= 0; --n) sum = sum * x + q[n] / (n + 1);
      return sum * x;
    };
    out = F(x2) - F(x1);
    return true;
  };
  const double a = s.a, k = s.b, c = s.c;
  switch (s.no) {
    case 1:
      return square({s.c, s.b, 0, 0});
    case 3:
      return square({s.c, s.b, s.a, 0});
    case 4:
      return square({s.d, s.c, s.b, s.a});
    case kGesuCircle:
      if (std::fabs(x1) > a || std::fabs(x2) > a) return false;
      out = a * a * (x2 - x1) - (x2 * x2 * x2 - x1 * x1 * x1) / 3;
      return true;
    default:
      break;
  }
  // (a g + c)^2 = a^2 g^2 + 2 a c g + c^2.
  double q1 = 0, q2 = 0, g1 = 0, g2 = 0;
  if (k == 0 || !squareAntiderivative(s.no, k * x1, k * x2, q1, q2)) return false;
  double linear = 0;
  if (c != 0) {
    if (!antiderivative(s.no, k * x1, k * x2, g1, g2)) return false;
    linear = 2 * a * c * (g2 - g1) / k;
  }
  out = a * a * (q2 - q1) / k + linear + c * c * (x2 - x1);
  return std::isfinite(out);
}

}  // namespace tessaron
