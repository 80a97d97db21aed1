#pragma once
// The pure arithmetic of the calculus aids: the shapes the recogniser knows,
// their fitting from samples, and their closed-form integrals. No form state
// here, so the shapes are tested on their own.
#include <array>

namespace tessaron {

// The 3 by 3 determinant by its first row; 0 when it is below `tiny` in size.
double Cramer(double a1, double b1, double c1, double a2, double b2, double c2, double a3,
              double b3, double c3, double tiny);

// One recognised shape. Polynomials: a T^2 + b T + c (family 1: b T + c; family
// 4: a T^3 + b T^2 + c T + d). Every other family: a g(k T) + c, with k in b.
struct Shape {
  int no = 0;
  double a = 0, b = 0, c = 0, d = 0;
};

// The samples the recogniser takes: eighteen evenly spaced over the range,
// and f at 0 and at the far points where they answer.
struct GesuSamples {
  std::array<double, 18> t{}, f{};
  bool zeroOk = false, farOk = false;
  double zero = 0, farMean = 0;
  bool degree = false, negOk = false;
};

// The first shape alive over the samples, 0 when none is; `fallback` is set
// when only the looser test of the exponential or of asinh held.
Shape FindShape(const GesuSamples& s, bool& fallback);

// The shape's value at t (radians inside the shape).
double ShapeValue(const Shape& s, double t);

// The integral of the shape from x1 to x2, false where the shape has no
// closed form there (a pole, an end out of its domain).
bool ShapeIntegral(const Shape& s, double x1, double x2, double& out);
// The integral of the square of the shape, for the volume about X.
bool ShapeSquareIntegral(const Shape& s, double x1, double x2, double& out);

}  // namespace tessaron
