#!/usr/bin/python3
"""Reference answers for the calculus aids, from SciPy.

Writes aids.txt: one function a line, as
    MODE|KEYS|FROM|TO|INTEGRAL|IBOUND|LENGTH|LBOUND|XVOL|XVBOUND|XSURF|XSBOUND|YVOL|YVBOUND|YSURF|YSBOUND|MINX|MINY|MAXX|MAXY
MODE is Deg or Rad, KEYS the calculator keys between the f(T) key and "=",
FROM and TO the range (memories 1 and 2). Integrals come from quad, the
extremes from a fine grid closed by minimize_scalar, slopes by the complex
step. Each BOUND is the error
the aid's own numeric rule may make with 5000 steps (Simpson's rule:
(b - a) h^4 max|f''''| / 180; a polyline or a sum of frusta or discs:
(b - a) h^2 times the curve's bends), estimated on a fine grid; a closed form
is held to its digits instead. YVOL and YSURF are "nan" where the range is
not of one sign or f is not monotonic on it. Run once:
    /usr/bin/python3 tests/assist/data/make_aids.py > tests/assist/data/aids.txt
"""
import math

import numpy as np
from scipy.integrate import quad
from scipy.optimize import minimize_scalar

D = math.pi / 180

# (mode, keys, python function, from, to)
FUNCS = [
    ("Rad", "T x2", lambda t: t**2, 0, 3),
    ("Rad", "T x2 - 2 X T + 1", lambda t: t**2 - 2 * t + 1, -1, 2),
    ("Rad", "T x3 - T", lambda t: t**3 - t, -2, 2),
    ("Rad", "2 X T + 3", lambda t: 2 * t + 3, -1, 4),
    ("Rad", "T x3 - 2 X T x2 + T + 5", lambda t: t**3 - 2 * t**2 + t + 5, -1, 2),
    ("Rad", "3 X T x2 - 4 X T + 1", lambda t: 3 * t**2 - 4 * t + 1, 0, 2),
    ("Rad", "T x3", lambda t: t**3, 1, 3),
    ("Rad", "T x2 X 0 . 5 + T", lambda t: 0.5 * t**2 + t, -3, 3),
    ("Rad", "T x2 - 4", lambda t: t**2 - 4, -3, 3),
    ("Rad", "T x3 - 3 X T", lambda t: t**3 - 3 * t, -2, 2),
    ("Rad", "T e^x", np.exp, 0, 2),
    ("Rad", "2 X T e^x + 1", lambda t: 2 * np.exp(t) + 1, -1, 1),
    ("Rad", "T 10^x", lambda t: 10**t, 0, 1),
    ("Rad", "( T X 2 ) e^x", lambda t: np.exp(2 * t), 0, 1),
    ("Rad", "( 0 - T ) e^x", lambda t: np.exp(-t), 0, 3),
    ("Rad", "T ln", np.log, 1, 5),
    ("Rad", "T log", np.log10, 1, 10),
    ("Rad", "T ln X T", lambda t: np.log(t) * t, 1, 3),
    ("Rad", "T x2 e^x", lambda t: np.exp(t**2), 0, 1),
    ("Rad", "( 0 - T x2 ) e^x", lambda t: np.exp(-t**2), -2, 2),
    ("Rad", "T X T e^x", lambda t: t * np.exp(t), 0, 1),
    ("Rad", "( T x2 + 1 ) ln", lambda t: np.log(t**2 + 1), 0, 2),
    ("Rad", "T sqrt", np.sqrt, 0.25, 4),
    ("Rad", "T sqrt + 1", lambda t: np.sqrt(t) + 1, 0.5, 4),
    ("Rad", "T cbrt", lambda t: t ** (1 / 3), 1, 8),
    ("Rad", "( T x2 + 1 ) sqrt", lambda t: np.sqrt(t**2 + 1), 0, 2),
    ("Rad", "T sqrt X T", lambda t: np.sqrt(t) * t, 0.25, 4),
    ("Rad", "1 / T", lambda t: 1 / t, 1, 4),
    ("Rad", "1 / ( T + 1 )", lambda t: 1 / (t + 1), 0, 3),
    ("Rad", "T / ( T + 4 )", lambda t: t / (t + 4), -2, 2),
    ("Rad", "1 / ( T - 5 )", lambda t: 1 / (t - 5), 0, 3),
    ("Rad", "( T + 2 ) / ( T + 3 )", lambda t: (t + 2) / (t + 3), 0, 4),
    ("Rad", "T x2 1/x", lambda t: 1 / t**2, 1, 3),
    ("Rad", "T sin", np.sin, 0, 3),
    ("Rad", "T cos", np.cos, 0, 2),
    ("Rad", "T tan", np.tan, 0, 1),
    ("Rad", "( T X 2 ) sin", lambda t: np.sin(2 * t), 0, 1),
    ("Rad", "T sin X T", lambda t: np.sin(t) * t, 0, 3),
    ("Rad", "T sec", lambda t: 1 / np.cos(t), 0, 1),
    ("Rad", "T csc", lambda t: 1 / np.sin(t), 0.5, 2),
    ("Rad", "T ctn", lambda t: 1 / np.tan(t), 0.5, 1.5),
    ("Rad", "T Arc tan", np.arctan, -1, 1),
    ("Rad", "T Arc sin", np.arcsin, -0.5, 0.5),
    ("Rad", "T Arc cos", np.arccos, -0.5, 0.5),
    ("Rad", "T sin x2", lambda t: np.sin(t) ** 2, 0, 3),
    ("Rad", "T sin X T x2 - 3 / ( T + 1 )", lambda t: np.sin(t) * t**2 - 3 / (t + 1), 0, 2),
    ("Rad", "2 X T sin + T cos", lambda t: 2 * np.sin(t) + np.cos(t), 0, 3),
    ("Deg", "T sin", lambda t: np.sin(t * D), 0, 90),
    ("Deg", "T cos", lambda t: np.cos(t * D), 0, 60),
    ("Deg", "T tan", lambda t: np.tan(t * D), 0, 45),
    ("Deg", "T Arc tan", lambda t: np.arctan(t) / D, 0, 1),
    ("Deg", "T sin X T", lambda t: np.sin(t * D) * t, 0, 180),
    ("Rad", "T Hyp sin", np.sinh, -1, 2),
    ("Rad", "T Hyp cos", np.cosh, -1, 1),
    ("Rad", "T Hyp tan", np.tanh, -2, 2),
    ("Rad", "T Hyp Arc sin", np.arcsinh, -1, 2),
    ("Rad", "T Hyp Arc cos", np.arccosh, 1.5, 3),
    ("Rad", "( T / 2 ) Hyp Arc tan", lambda t: np.arctanh(t / 2), -1, 1),
    ("Rad", "T Hyp sec", lambda t: 1 / np.cosh(t), -1, 1),
    ("Rad", "T Hyp ctn", lambda t: 1 / np.tanh(t), 0.5, 2),
    ("Rad", "T", lambda t: t, 0, 300),
    ("Rad", "T sqrt X T", lambda t: np.sqrt(t) * t, 0, 300),
]
FUNCS.append(("Rad", "( 1 - T x2 ) sqrt", lambda t: np.sqrt(1 - t**2), -0.6, 0.8))

N = 5000


def deriv(f, t, k=1, h=1e-4):
    """The k-th derivative by central differences of high order."""
    if k == 1:
        return (f(t - 2 * h) - 8 * f(t - h) + 8 * f(t + h) - f(t + 2 * h)) / (12 * h)
    return deriv(lambda x: deriv(f, x, k - 1, h * 4), t, 1, h)


def slope(f, t):
    """The first derivative by the complex step: no cancellation at all."""
    return float(np.imag(f(complex(t, 1e-30)))) / 1e-30


def grid_max(g, a, b, n=4001):
    xs = np.linspace(a, b, n)
    with np.errstate(all="ignore"):
        v = np.abs(np.array([g(x) for x in xs], dtype=float))
    v = v[np.isfinite(v)]
    return float(v.max()) if v.size else 0.0


def extremes(f, a, b):
    xs = np.linspace(a, b, 20001)
    ys = f(xs)
    out = []
    for sign in (1, -1):
        i = int(np.argmin(sign * ys))
        if i == 0 or i == len(xs) - 1:
            out.append((float(xs[i]), float(ys[i])))
            continue
        r = minimize_scalar(lambda x: sign * f(x), bounds=(xs[i - 1], xs[i + 1]),
                            method="bounded", options={"xatol": 1e-12})
        out.append((float(r.x), float(f(r.x))))
    return out


def row(mode, keys, f, a, b):
    h = (b - a) / N
    w = b - a
    q = lambda g: quad(g, a, b, limit=400, epsabs=1e-13, epsrel=1e-13)[0]
    fp = lambda t: slope(f, t)
    integral = q(f)
    m4 = grid_max(lambda t: deriv(f, t, 4, 1e-3), a + 1e-3 * w, b - 1e-3 * w)
    ibound = w * h**4 * m4 / 180
    m0 = grid_max(f, a, b)
    m1 = grid_max(lambda t: deriv(f, t), a + 1e-3 * w, b - 1e-3 * w)
    m2 = grid_max(lambda t: deriv(f, t, 2, 1e-3), a + 1e-3 * w, b - 1e-3 * w)
    length = q(lambda t: math.sqrt(1 + fp(t) ** 2))
    lbound = w * h**2 * m2**2 / 8
    xvol = math.pi * q(lambda t: f(t) ** 2)
    m4sq = grid_max(lambda t: deriv(lambda x: f(x) ** 2, t, 4, 1e-3), a + 1e-3 * w, b - 1e-3 * w)
    xvbound = math.pi * w * h**4 * m4sq / 180
    xsurf = 2 * math.pi * q(lambda t: abs(f(t)) * math.sqrt(1 + fp(t) ** 2))
    sbound = 2 * math.pi * w * h**2 * (m0 * m2**2 + m1 * m2 + m2 + m1 + 1)
    yvol = ysurf = yvbound = ysbound = float("nan")
    xs = np.linspace(a, b, 4001)
    d = np.diff(f(xs))
    if a * b >= 0 and (np.all(d >= 0) or np.all(d <= 0)):
        yvol = math.pi * abs(b * b * f(b) - a * a * f(a) - 2 * q(lambda t: t * f(t)))
        yvbound = math.pi * w * h**2 * (max(abs(a), abs(b)) ** 2 * m2 + 4 * max(abs(a), abs(b)) * m1 + 2 * m0 + 1)
        ysurf = 2 * math.pi * q(lambda t: abs(t) * math.sqrt(1 + fp(t) ** 2))
        ysbound = 2 * math.pi * w * h**2 * (max(abs(a), abs(b)) * m2**2 + m1 * m2 + m2 + m1 + 1)
    (minx, miny), (maxx, maxy) = extremes(f, a, b)
    vals = [integral, ibound, length, lbound, xvol, xvbound, xsurf, sbound, yvol, yvbound,
            ysurf, ysbound, minx, miny, maxx, maxy]
    return "|".join([mode, keys, repr(float(a)), repr(float(b))] + [repr(float(v)) for v in vals])


for fn in FUNCS:
    print(row(*fn))
