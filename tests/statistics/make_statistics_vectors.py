#!/usr/bin/env python3
"""Reference figures for the statistics sheet, made once with Python's own
statistics module and checked in beside this script:

    python3 make_statistics_vectors.py > statistics_vectors.txt

Each set is the text typed into the sheet's places ("_" for a blank place),
the Last typed (places including trailing blanks), the limits typed ("-" for
none), and the figures:
  count, sum (math.fsum), mean (statistics.fmean), pstdev
  (statistics.pstdev), mean over all places, data below the low limit, data
  above the high limit, the shares beyond each limit by straight-line
  interpolation in the printed normal table below, and the same shares by
  statistics.NormalDist (exact cumulative distribution).
"""
import math
import random
import statistics

# z and the cumulative probability below z, as a printed table gives them.
TABLE = [
    (0, 0.5), (0.04, 0.51595), (0.1, 0.53982), (0.14, 0.55567), (0.2, 0.57925),
    (0.24, 0.59483), (0.3, 0.61791), (0.34, 0.63307), (0.4, 0.65542), (0.44, 0.67003),
    (0.5, 0.69146), (0.54, 0.7054), (0.6, 0.72574), (0.64, 0.73891), (0.7, 0.75803),
    (0.74, 0.77035), (0.8, 0.78814), (0.84, 0.79955), (0.9, 0.81593), (0.94, 0.82639),
    (1.0, 0.84134), (1.04, 0.85083), (1.1, 0.86433), (1.14, 0.87286), (1.2, 0.88493),
    (1.24, 0.89251), (1.3, 0.90319), (1.34, 0.90988), (1.4, 0.91924), (1.44, 0.92507),
    (1.5, 0.93319), (1.54, 0.93822), (1.6, 0.9452), (1.64, 0.9495), (1.7, 0.95543),
    (1.74, 0.95907), (1.8, 0.96406), (1.84, 0.96712), (1.9, 0.97128), (1.94, 0.97381),
    (2.0, 0.97724), (2.04, 0.97932), (2.1, 0.98213), (2.14, 0.98382), (2.2, 0.98609),
    (2.24, 0.98745), (2.3, 0.98927), (2.34, 0.99036), (2.4, 0.9918), (2.44, 0.99266),
    (2.5, 0.99379), (2.54, 0.99446), (2.6, 0.99533), (2.64, 0.99585), (2.7, 0.99653),
    (2.74, 0.99693), (2.8, 0.99744), (2.84, 0.99774), (2.9, 0.99813), (2.94, 0.99836),
    (3.0, 0.99865), (3.1, 0.999032), (3.2, 0.999312), (3.291, 0.9995), (3.3, 0.999517),
    (3.4, 0.999663), (3.5, 0.999767), (3.6, 0.999841), (3.7, 0.999892), (3.8, 0.999927),
    (4.0, 0.999968), (4.3, 0.999991), (4.43, 0.999995), (4.6, 0.999998), (4.8, 0.9999992),
    (5.0, 0.9999997),
]


def upper_tail(z):
    """The share above z >= 0, interpolated on a straight line between rows."""
    if z > 5:
        return 0.0
    for (z0, p0), (z1, p1) in zip(TABLE, TABLE[1:]):
        if z <= z1:
            return (1 - p1) + (z1 - z) * (p1 - p0) / (z1 - z0)
    return 0.0


def table_shares(mu, sigma, low, high):
    stat_low = stat_high = None
    if low is not None:
        if sigma == 0:
            stat_low = 1.0 if low > mu else 0.0
        else:
            stat_low = upper_tail(abs((mu - low) / sigma))
            if low > mu:
                stat_low = 1 - stat_low
    if high is not None:
        if sigma == 0:
            stat_high = 0.0 if high < mu else 1.0
        else:
            stat_high = upper_tail(abs((mu - high) / sigma))
            if high < mu:
                stat_high = 1 - stat_high
    return stat_low, stat_high


def number_text(rng, kind):
    if kind == "small":
        return "%.*f" % (rng.randint(0, 3), rng.uniform(-999, 999))
    if kind == "large":
        return "%.*f" % (rng.randint(0, 1), rng.uniform(-99999, 99999))
    if kind == "fine":
        return "%.6f" % rng.uniform(0, 1)
    if kind == "whole":
        return str(rng.randint(-20, 20))
    return "%.2f" % rng.gauss(50, 8)


def tidy(text):
    """The text as a user types it: no trailing zeros after the point."""
    if "." in text:
        text = text.rstrip("0").rstrip(".")
    if text in ("-0", ""):
        text = "0"
    return text


def limit_text(value):
    for decimals in (3, 2, 1, 0):
        text = tidy("%.*f" % (decimals, value))
        if len(text) <= 8 and abs(value) < 1e6:
            return text
    return None


def make_set(rng, index):
    kind = rng.choice(["small", "large", "fine", "whole", "normal"])
    if index < 6:
        places = rng.randint(1000, 1200)
    else:
        places = rng.randint(2, 70)
    blank_share = rng.choice([0, 0, 0.1, 0.3])
    zero_share = rng.choice([0, 0.05, 0.2])
    cells = []
    for _ in range(places):
        r = rng.random()
        if r < blank_share:
            cells.append("_")
        elif r < blank_share + zero_share:
            cells.append("0")
        else:
            cells.append(tidy(number_text(rng, kind)))
    if index % 25 == 7:  # all data equal
        same = tidy(number_text(rng, kind))
        cells = ["_" if c == "_" else same for c in cells]
    # At least one datum, and the first place not blank, so that the sheet
    # is entered from its first cell.
    if cells[0] == "_":
        cells[0] = tidy(number_text(rng, kind))
    values = [float(c) for c in cells if c != "_"]
    # Last: the places typed, sometimes with a few more blank places.
    last = places + (rng.randint(1, 5) if places < 1190 and rng.random() < 0.3 else 0)
    mu = statistics.fmean(values)
    sigma = statistics.pstdev(values)
    spread = sigma if sigma > 0 else 1.0
    low = high = None
    choice = rng.random()
    if choice < 0.85:
        low = float(limit_text(mu - rng.uniform(-1, 3.5) * spread) or 0)
    if 0.15 < choice:
        high = float(limit_text(mu + rng.uniform(-1, 3.5) * spread) or 0)
    if index % 17 == 3 and low is not None:  # beyond five deviations
        low = float(limit_text(mu - 6 * spread) or 0)
    low_text = "-" if low is None else limit_text(low)
    high_text = "-" if high is None else limit_text(high)
    stat_low, stat_high = table_shares(mu, sigma, low, high)
    exact_low = exact_high = None
    if sigma > 0:
        nd = statistics.NormalDist(mu, sigma)
        if low is not None:
            exact_low = nd.cdf(low)
        if high is not None:
            exact_high = 1 - nd.cdf(high)
    over_low = sum(1 for v in values if low is not None and v < low)
    over_high = sum(1 for v in values if high is not None and v > high)

    def r(x):
        return "-" if x is None else repr(x)

    lines = ["set %d" % index, "cells " + " ".join(cells), "last %d" % last,
             "limits %s %s" % (low_text, high_text),
             "figures %d %r %r %r %r %d %d %s %s %s %s" % (
                 len(values), math.fsum(values), mu, sigma, math.fsum(values) / last,
                 over_low, over_high, r(stat_low), r(stat_high), r(exact_low),
                 r(exact_high))]
    return "\n".join(lines)


def main():
    rng = random.Random(20261123)
    print("# made by make_statistics_vectors.py; one set a block")
    for i in range(320):
        print(make_set(rng, i))


if __name__ == "__main__":
    main()
