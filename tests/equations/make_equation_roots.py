#!/usr/bin/python3
"""Reference roots for the equation form, computed outside the product.

Generated once and checked in; the C++ test types the same coefficients into
the form and compares the answers it shows with these figures:

    /usr/bin/python3 tests/equations/make_equation_roots.py > tests/equations/equation_roots.txt

Roots come from numpy (python3-numpy): numpy.roots for the polynomials,
numpy.linalg.solve, det and cond for the systems. Coefficients are short
decimal texts that the form accepts (at most 9 characters, under 1e8, at most
7 decimal places). The seed is fixed, so the file is reproducible.

Lines (tab separated):
  Q  tag  a,b,c        real   r1,r2          (roots sorted, with multiplicity)
  Q  tag  a,b,c        complex re,im         (the pair re +- i im, im > 0)
  C  tag  a,b,c,d      real   r1[,r2,r3]     (the real roots with multiplicity)
  S2 tag  a,b,c,d,e,f  x,y    cond           (a x + b y = c; d x + e y = f)
  S2 tag  ...          singular
  S3 tag  12 figures   x,y,z  cond
  S3 tag  ...          singular
"""

import random
from fractions import Fraction as F

import numpy as np

random.seed(20261123)


def text(v):
    """A coefficient as the user types it."""
    if isinstance(v, int) or float(v).is_integer():
        return str(int(v))
    s = ("%.7f" % v).rstrip("0").rstrip(".")
    return s


def fig(x):
    return repr(float(x))


def small_int(lo=-20, hi=20, nonzero=False):
    while True:
        v = random.randint(lo, hi)
        if not nonzero or v != 0:
            return v


def real_roots(coefs):
    """numpy's roots, real ones with multiplicity (a pair whose imaginary part
    is at the level of a repeated root's rounding counts as a double root)."""
    r = np.roots([float(c) for c in coefs])
    out = []
    for z in r:
        if abs(z.imag) <= 1e-4 * max(1.0, abs(z.real)):
            out.append(float(z.real))
    return sorted(out)


lines = []


def quadratic(tag, a, b, c):
    coefs = [a, b, c]
    ts = [text(v) for v in coefs]
    af, bf, cf = (float(t) for t in ts)
    r = np.roots([af, bf, cf])
    # The kind of the roots from the exact sign of b^2 - 4ac on the typed figures.
    d = F(ts[1]) ** 2 - 4 * F(ts[0]) * F(ts[2])
    if d >= 0:
        roots = sorted(float(z.real) for z in r)
        lines.append("Q\t%s\t%s\treal\t%s" % (tag, ",".join(ts), ",".join(fig(x) for x in roots)))
    else:
        z = r[0]
        lines.append("Q\t%s\t%s\tcomplex\t%s,%s" % (tag, ",".join(ts), fig(z.real), fig(abs(z.imag))))


def cubic(tag, coefs):
    ts = [text(v) for v in coefs]
    roots = real_roots([float(t) for t in ts])
    lines.append("C\t%s\t%s\treal\t%s" % (tag, ",".join(ts), ",".join(fig(x) for x in roots)))


def system(kind, tag, rows):
    n = len(rows)
    ts = [[text(v) for v in row] for row in rows]
    A = np.array([[float(t) for t in row[:n]] for row in ts])
    k = np.array([float(row[n]) for row in ts])
    flat = ",".join(",".join(row) for row in ts)
    if np.linalg.matrix_rank(A) < n:
        lines.append("%s\t%s\t%s\tsingular" % (kind, tag, flat))
        return
    x = np.linalg.solve(A, k)
    lines.append("%s\t%s\t%s\t%s\t%s" % (kind, tag, flat, ",".join(fig(v) for v in x),
                                         fig(np.linalg.cond(A))))


# Quadratics: two real roots, one double root, no real roots.
for i in range(45):
    r1, r2 = small_int(), small_int()
    while r2 == r1:
        r2 = small_int()
    k = small_int(-5, 5, nonzero=True)
    quadratic("two", k, -k * (r1 + r2), k * r1 * r2)
for i in range(15):
    quadratic("two-dec", round(random.uniform(-50, 50), 3) or 1.5, round(random.uniform(-900, 900), 2),
              round(random.uniform(-100, 100), 4))
for i in range(30):
    r = small_int() if i % 2 else small_int() + 0.5
    k = small_int(-4, 4, nonzero=True) * 2
    quadratic("equal", k, -2 * k * r, k * r * r)
for i in range(35):
    p, q = small_int(), small_int(1, 9)
    k = small_int(-6, 6, nonzero=True)
    # k (x - p)^2 + k q^2: roots p +- i q
    quadratic("complex", k, -2 * k * p, k * (p * p + q * q))
for i in range(5):
    quadratic("imaginary", small_int(1, 9), 0, small_int(1, 50))

# Cubics from chosen roots: three distinct, one double, a triple, and with 0.
for i in range(35):
    rs = random.sample(range(-9, 10), 3)
    k = small_int(-3, 3, nonzero=True)
    cubic("three", list(k * np.poly(rs).round().astype(int)))
for i in range(20):
    r, s = random.sample(range(-9, 10), 2)
    k = small_int(-3, 3, nonzero=True)
    cubic("double", list(k * np.poly([r, r, s]).round().astype(int)))
for i in range(10):
    r = small_int(-6, 6)
    k = small_int(-2, 2, nonzero=True)
    cubic("triple", list(k * np.poly([r, r, r]).round().astype(int)))
for i in range(35):
    # One real root: (x - r)(x^2 + p x + q) with p^2 < 4 q.
    r = small_int(-9, 9)
    p = small_int(-6, 6)
    q = (p * p) // 4 + small_int(1, 20)
    k = small_int(-3, 3, nonzero=True)
    cubic("one", list(k * np.polymul([1, -r], [1, p, q]).astype(int)))
for i in range(15):
    # Random short figures: whatever numpy finds.
    cubic("random", [small_int(-9, 9, nonzero=True), small_int(-30, 30), small_int(-60, 60),
                     small_int(-90, 90, nonzero=True)])

# Systems of two.
for i in range(30):
    rows = [[small_int(-20, 20) for _ in range(3)] for _ in range(2)]
    system("S2", "plain", rows)
for i in range(8):
    a, b = small_int(nonzero=True), small_int(nonzero=True)
    m = small_int(-4, 4, nonzero=True)
    system("S2", "singular", [[a, b, small_int()], [m * a, m * b, small_int()]])
for i in range(12):
    a, b = small_int(1, 9), small_int(1, 9)
    eps = random.choice([0.001, 0.0001, 0.00001, 0.000001])
    system("S2", "near", [[a, b, small_int()], [a, b + eps, small_int()]])

# Systems of three, written a b c d in each row.
for i in range(30):
    rows = [[small_int(-20, 20) for _ in range(4)] for _ in range(3)]
    system("S3", "plain", rows)
for i in range(8):
    r1 = [small_int(nonzero=True) for _ in range(3)]
    r2 = [small_int() for _ in range(3)]
    m, n = small_int(-3, 3), small_int(-3, 3)
    r3 = [m * u + n * v for u, v in zip(r1, r2)]
    system("S3", "singular", [r1 + [small_int()], r2 + [small_int()], r3 + [small_int()]])
for i in range(12):
    r1 = [small_int(1, 9) for _ in range(3)]
    r2 = [small_int(-9, 9) for _ in range(3)]
    eps = random.choice([0.001, 0.0001, 0.00001])
    r3 = [u + v for u, v in zip(r1, r2)]
    r3[2] = r3[2] + eps
    system("S3", "near", [r1 + [small_int()], r2 + [small_int()], r3 + [small_int()]])

print("# Made by: /usr/bin/python3 tests/equations/make_equation_roots.py > tests/equations/equation_roots.txt")
print("# kind\ttag\tcoefficients\tanswer\t[roots or solution]\t[condition number]")
for line in lines:
    print(line)
