#!/usr/bin/env python3
"""The true curves of the graph's reference test, from Python's math module.

Reads the columns the test met (one "NAME X" a line, written by
graph_tests with TESSARON_GRAPH_RECORD set) and writes, for each, the range
of the picture's y over every T that falls in that column:
    y = Int(3000 - 900 * f(T)), held to 0 ... 5130,   T = (X - 5000) / 900
(the default view: origin at x 5000, y 3000, 900 units per 1). A column
where f is undefined throughout gets no band.

    TESSARON_GRAPH_RECORD=/tmp/columns.txt build/bin/graph_tests \
        --gtest_filter='Graph/ReferenceCurve.*'
    python3 tests/graph/data/make_curves.py /tmp/columns.txt > tests/graph/data/curves.txt
"""
import math
import sys

PI = math.pi


def acot(x):
    return PI / 2 - math.atan(x)


def pw(x, y):
    # A real power: a negative base only to a whole exponent, or to the
    # reciprocal of an odd whole number (an odd root).
    if x > 0:
        return x ** y
    if x == 0:
        return 0.0 if y > 0 else None
    if y == int(y):
        return x ** int(y)
    r = 1 / y
    if abs(r - round(r)) < 1e-9 and int(round(r)) % 2 == 1:
        return -((-x) ** y)
    return None


def acoth(x):
    return 0.5 * math.log((x + 1) / (x - 1))


def asech(x):
    return math.log((1 + math.sqrt(1 - x * x)) / x)


def gauss(x):
    return math.exp(-x * x / 2) / math.sqrt(2 * PI)


CURVES = {
    "D1": lambda t: t,
    "D2": lambda t: 1 / t,
    "D3": lambda t: t * t,
    "D4": lambda t: t ** 3,
    "D5": lambda t: 10 ** t,
    "D6": math.exp,
    "D7": math.log,
    "D8": math.log10,
    "D9": math.sqrt,
    "D10": math.cbrt,
    "D11": lambda t: pw(t, t),
    "D12": lambda t: pw(t, 1 / t),
    "D13": math.tan,
    "D14": math.cos,
    "D15": math.sin,
    "D16": lambda t: 1 / math.tan(t),
    "D17": lambda t: 1 / math.cos(t),
    "D18": lambda t: 1 / math.sin(t),
    "D19": math.atan,
    "D20": math.acos,
    "D21": math.asin,
    "D22": acot,
    "D23": lambda t: math.acos(1 / t),
    "D24": lambda t: math.asin(1 / t),
    "D25": math.tanh,
    "D26": math.cosh,
    "D27": math.sinh,
    "D28": lambda t: 1 / math.tanh(t),
    "D29": lambda t: 1 / math.cosh(t),
    "D30": lambda t: 1 / math.sinh(t),
    "D31": math.atanh,
    "D32": math.acosh,
    "D33": math.asinh,
    "D34": acoth,
    "D35": asech,
    "D36": lambda t: math.asinh(1 / t),
    "D37": (lambda t: -math.sqrt(1 - t * t), lambda t: math.sqrt(1 - t * t)),
    "D38": lambda t: 5 * gauss(t),
    "D39": lambda t: 5 * t * math.exp(-t * t / 2),
    "D40": lambda t: 5 * t * math.exp(-t * t),
    "U1": lambda t: math.sin(t) * t * t - 3 / (t + 1),
    "U2": lambda t: 0.01 / (t - 2.01),
    "U3": lambda t: t ** 3 - 2 * t,
    "U4": lambda t: math.sqrt(4 - t * t),
    "U5": lambda t: math.sin(t * t),
}

SAMPLES = 64


def y_of(f, t):
    try:
        v = f(t)
    except (ValueError, ZeroDivisionError, OverflowError):
        return None
    if v is None or isinstance(v, complex) or math.isnan(v):
        return None
    y = 3000 - 900 * v
    return math.floor(min(max(y, 0), 5130))


def band(f, x):
    ys = []
    for j in range(SAMPLES + 1):
        t = (x + min(j / SAMPLES, 1 - 1e-9) - 5000) / 900
        y = y_of(f, t)
        if y is not None:
            ys.append(y)
    return (min(ys), max(ys)) if ys else None


def main():
    seen = set()
    print("# NAME X then the lowest and highest y of the true curve in column X")
    print("# (two bands for the circle's halves); made by make_curves.py")
    for line in open(sys.argv[1]):
        name, x = line.split()
        if (name, x) in seen:
            continue
        seen.add((name, x))
        fs = CURVES[name]
        fs = fs if isinstance(fs, tuple) else (fs,)
        bands = [b for b in (band(f, int(x)) for f in fs) if b]
        print(name, x, " ".join(f"{lo} {hi}" for lo, hi in bands))


if __name__ == "__main__":
    main()
