#!/usr/bin/python3
"""Reference roots for the root finder, from SciPy's brentq.

Writes roots.txt: one function a line, as
    MODE|T0|KEYS|ROOT,ROOT,...
MODE is Deg or Rad, T0 the T the solve starts from, KEYS the calculator keys
between the f(T) key and "=", ROOTS every real root in [-2000, 2000] found by
bracketing sign changes on a fine grid and closing each with brentq (poles,
where |f| does not vanish, are dropped). Run once:
    /usr/bin/python3 tests/engine/data/make_roots.py > tests/engine/data/roots.txt
"""
import math
import random

import numpy as np
from scipy.optimize import brentq

random.seed(20261123)
L = 2000.0


def num(x):
    """A non-negative number as the digit keys that type it."""
    s = f"{x:.2f}".rstrip("0").rstrip(".")
    return " ".join(s)


def term(r):
    """( T - r ) as keys."""
    return f"( T - {num(r)} )" if r >= 0 else f"( T + {num(-r)} )"


def roots_of(f0, lo=-L, hi=L, n=400_001):
    def f(x):
        with np.errstate(all="ignore"):
            return f0(np.float64(x)) if np.isscalar(x) else f0(x)

    xs = np.linspace(lo, hi, n)
    with np.errstate(all="ignore"):
        ys = f(xs)
    out = []
    for i in np.nonzero(np.isfinite(ys[:-1]) & np.isfinite(ys[1:]))[0]:
        a, b, fa, fb = xs[i], xs[i + 1], ys[i], ys[i + 1]
        if fa == 0:
            out.append(a)
            continue
        if fa * fb < 0:
            r = brentq(f, a, b, xtol=1e-15, rtol=4 * np.finfo(float).eps, maxiter=200)
            # A sign change across a pole is no root.
            if abs(f(r)) < 1e-6 * max(1.0, abs(fa), abs(fb)) or abs(f(r)) < 1e-9:
                out.append(r)
    if ys[-1] == 0:
        out.append(hi)
    return sorted(set(out))


def distinct_roots(k):
    while True:
        rs = sorted(round(random.uniform(-8, 8), 2) for _ in range(k))
        if all(b - a >= 0.3 for a, b in zip(rs, rs[1:])) and all(abs(r - 1) > 0.05 for r in rs):
            return rs


rows = []

# Polynomials with 1 to 6 real roots, some with a factor that has none.
for k in range(1, 7):
    for j in range(25):
        rs = distinct_roots(k)
        keys = " X ".join(term(r) for r in rs)
        extra = j % 5 == 4
        if extra:
            keys += " X ( T x2 + 2 )"
        f = lambda x, rs=rs, extra=extra: np.prod([x - r for r in rs], axis=0) * (
            (x * x + 2) if extra else 1)
        rows.append(("Deg", 1, keys, f))

# Rational functions with poles.
for j in range(20):
    a, p = distinct_roots(2)
    if j % 2:
        a, p = p, a
    if j < 10:
        keys = f"{term(a)} / {term(p)}"
        f = lambda x, a=a, p=p: (x - a) / (x - p)
    else:
        c = round(random.uniform(0.5, 3), 2)
        keys = f"1 / {term(p)} - {num(c)}"
        f = lambda x, p=p, c=c: 1 / (x - p) - c
    rows.append(("Deg", 1, keys, f))

# Trigonometric, in degrees and in radians.
for mode in ("Deg", "Rad"):
    to = math.pi / 180 if mode == "Deg" else 1.0
    for j in range(20):
        c = round(random.uniform(0.05, 0.95), 2)
        m = random.choice([1, 2, 3])
        kind = j % 4
        if kind == 0:
            keys, f = f"( T X {m} ) sin - {num(c)}", (lambda x, c=c, m=m, to=to: np.sin(m * x * to) - c)
        elif kind == 1:
            keys, f = f"( T X {m} ) cos + {num(c)}", (lambda x, c=c, m=m, to=to: np.cos(m * x * to) + c)
        elif kind == 2:
            keys, f = f"T tan - {num(3 * c)}", (lambda x, c=c, to=to: np.tan(x * to) - 3 * c)
        else:
            keys, f = f"T cos X {m} - T X {num(c)}", (
                lambda x, c=c, m=m, to=to: np.cos(x * to) * m - x * c)
        rows.append((mode, 1 if kind != 2 else 0.5, keys, f))

# Exponentials and logarithms.
for j in range(24):
    c = round(random.uniform(0.2, 9), 2)
    kind = j % 6
    if kind == 0:
        keys, f = f"T e^x - {num(c)}", (lambda x, c=c: np.exp(x) - c)
    elif kind == 1:
        q = round(c / 4, 2)
        keys, f = f"T ln - {num(q)}", (lambda x, q=q: np.log(x) - q)
    elif kind == 2:
        keys, f = f"T log + T - {num(c)}", (lambda x, c=c: np.log10(x) + x - c)
    elif kind == 3:
        q = round(c / 9, 2)
        keys, f = f"( 0 - T ) e^x - T + {num(q)}", (lambda x, q=q: np.exp(-x) - x + q)
    elif kind == 4:
        keys, f = f"T e^x X T - {num(c)}", (lambda x, c=c: np.exp(x) * x - c)
    else:
        keys, f = f"( T + {num(c)} ) ln - 1", (lambda x, c=c: np.log(x + c) - 1)
    rows.append(("Deg", 1, keys, f))

for mode, t0, keys, f in rows:
    rs = roots_of(f)
    print(f"{mode}|{t0}|{keys}|" + ",".join(repr(float(r)) for r in rs))
