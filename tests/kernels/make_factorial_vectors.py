#!/usr/bin/env python3
"""Reference values of n! for the factorial tests, from the standard library only.

For every n listed, prints "n exponent mantissa" with n! = mantissa * 10^exponent
and a 20-digit mantissa. Small n are taken from the exact integer
(math.factorial); large n from Stirling's series evaluated in 60-digit
decimal arithmetic, which is checked against the exact integer where both
are cheap. Run:  python3 make_factorial_vectors.py > factorial_vectors.txt
"""
import math
import sys
from decimal import Decimal, getcontext

getcontext().prec = 60


def pi():
    # The decimal module's documented recipe.
    getcontext().prec += 2
    three = Decimal(3)
    lasts, t, s, n, na, d, da = 0, three, 3, 1, 0, 0, 24
    while s != lasts:
        lasts = s
        n, na = n + na, na + 8
        d, da = d + da, da + 32
        t = (t * n) / d
        s += t
    getcontext().prec -= 2
    return +s


LN10 = Decimal(10).ln()
HALF_LN_2PI = (2 * pi()).ln() / 2
# Bernoulli terms B(2k) / (2k (2k - 1)).
SERIES = [Decimal(1) / 12, Decimal(-1) / 360, Decimal(1) / 1260, Decimal(-1) / 1680,
          Decimal(1) / 1188, Decimal(-691) / 360360, Decimal(1) / 156]


def log10_factorial_stirling(n):
    d = Decimal(n)
    s = (d + Decimal("0.5")) * d.ln() - d + HALF_LN_2PI
    for k, c in enumerate(SERIES):
        s += c / d ** (2 * k + 1)
    return s / LN10


def split(log10):
    e = int(log10)  # log10 > 0 here
    m = (10 ** (log10 - e))
    return e, m


def exact(n):
    digits = str(math.factorial(n))
    return len(digits) - 1, Decimal(digits[:40]) / Decimal(10) ** 39


def reference(n):
    if n <= 3000:
        return exact(n)
    return split(log10_factorial_stirling(n))


def main():
    if hasattr(sys, "set_int_max_str_digits"):
        sys.set_int_max_str_digits(0)
    # Stirling against the exact integer where both are cheap.
    for n in (171, 500, 1000, 3000):
        e1, m1 = exact(n)
        e2, m2 = split(log10_factorial_stirling(n))
        assert e1 == e2 and abs(m1 - m2) < Decimal("1e-30"), n
    ns = [170, 171, 172, 200, 1000, 3000, 4999999, 5000000, 5000001, 6000000, 9999998, 9999999,
          10000000, 20000000, 49999999, 50000000, 50000001, 77777777, 99999998, 99999999,
          100000000, 110000000, 123456788, 123456789]
    for n in ns:
        e, m = reference(n)
        print(n, e, format(m, ".19f"))


if __name__ == "__main__":
    main()
