#!/usr/bin/env python3
"""Reference figures for the present value, savings and bond, and mutual
financing forms, computed outside the product with exact rational arithmetic.

Generated once and checked in; the C++ tests drive each form with the same
inputs and compare what the user sees with these texts:

    python3 tests/finance/make_savings_vectors.py present > tests/finance/present_vectors.txt
    python3 tests/finance/make_savings_vectors.py bond > tests/finance/bond_vectors.txt
    python3 tests/finance/make_savings_vectors.py gye > tests/finance/gye_vectors.txt

Standard library only. Every figure is an exact fraction from the textbook
formula (annuity present value, compound growth over whole periods with simple
interest on the months left over, and the level payment of a rotating savings
circle split into whole units by largest remainder). Savings and bond sums are kept
below 10^10, where the form's fifteen significant digits still reach the
cents. Cases whose shown figure
lies too close to a rounding edge for a binary64 computation to be sure of
the last digit are drawn again, so every case that is kept has one right text.
"""

import random
import sys
from fractions import Fraction as F
from math import floor

ONE = F(1)


def shown(x, decimals, group=True):
    """A number as the forms show it: grouped whole part with at least one
    digit, the point always, then up to `decimals` digits without trailing
    zeros; rounded half away from zero."""
    neg = x < 0
    m = floor(abs(x) * 10**decimals + F(1, 2))
    whole, part = divmod(m, 10**decimals)
    digits = str(part).zfill(decimals).rstrip("0") if decimals else ""
    text = (f"{whole:,}" if group else str(whole)) + "." + digits
    return ("-" + text) if neg and m else text


def near_edge(x, decimals, margin):
    """True when x sits within `margin` (in units of the last shown digit) of
    a rounding edge."""
    t = abs(x) * 10**decimals
    return abs((t - floor(t)) - F(1, 2)) < margin


def amount_text(rng, top):
    """A money amount as a user types it: whole, or with one or two decimals."""
    whole = int(10 ** rng.uniform(0, top))
    places = rng.choice([0, 0, 1, 2])
    if places == 0:
        return str(max(whole, 1))
    return f"{whole}.{rng.randrange(1, 10**places):0{places}d}"


def rate_text(rng, low):
    """An annual rate in percent with up to three decimals; now and then one
    above the bar's reach, up to 150."""
    top = 150 if rng.random() < 0.15 else 30
    while True:
        r = F(rng.randrange(int(low * 1000), top * 1000 + 1), 1000)
        if r > 0 or low == 0:
            return r


def text_of(r):
    s = f"{float(r):.3f}".rstrip("0").rstrip(".")
    assert F(s) == r
    return s


def present_case(rng):
    kind = rng.choice("AP")
    term = rng.choice("LLLP")  # limited, or permanent payments
    start = rng.choice("NL")  # the first payment now, or a month later
    amount = amount_text(rng, 8 if kind == "A" else 6)
    rate = rate_text(rng, 0.5)
    months = rng.choice([rng.randint(1, 24), rng.randint(1, 1200), rng.randint(1, 1200)])
    x = F(amount)
    r = rate / 100 / 12
    f = 1 + r
    if term == "L":
        annuity = (1 - 1 / f**months) / r
        if kind == "A":
            value = x / annuity
            if start == "N":
                value /= f
            total = value * months
        else:
            value = x * annuity
            if start == "N":
                value *= f
            total = x * months
    else:
        if kind == "A":
            value = x * r
            if start == "N":
                value /= f
        else:
            value = x / r
            if start == "N":
                value *= f
        total = None
    figures = [value] + ([total] if total is not None else [])
    if any(near_edge(v, 2, F(1, 20)) for v in figures):
        return None
    return [kind, term, start, amount, text_of(rate), str(months), repr(float(value)),
            shown(value, 2), shown(total, 2) if total is not None else "-"]


BOND_OPTIONS = {"Y": 12, "S": 6, "T": 3, "D": 0, "O": 1}


def bond_case(rng):
    kind = rng.choice("AF")
    option = rng.choice("YSTDO")
    amount = amount_text(rng, 7)
    rate = rate_text(rng, 0) if rng.random() < 0.97 else F(0)
    months = rng.choice([rng.randint(1, 36), rng.randint(1, 600)])
    R = rate / 100
    if option == "D":
        growth = (1 + R / 365) ** 365  # one year's growth, whatever the term
        yearly = growth - 1
    elif option == "O":
        growth = (1 + R / 12) ** months
        yearly = (1 + R / 12) ** 12 - 1
    else:
        period = BOND_OPTIONS[option]
        whole, rest = divmod(months, period)
        per_year = 12 // period
        growth = (1 + R / per_year) ** whole * (1 + R / 12 * rest)
        yearly = (1 + R / per_year) ** per_year - 1
    x = F(amount)
    value = x * growth if kind == "A" else x / growth
    # The growth factor reaches the sum through its 15-significant-digit text,
    # so cents are sure only for sums well below 10^13.
    if value >= 10**10:
        return None
    if near_edge(value, 2, F(1, 20)) or near_edge(yearly * 100, 5, F(1, 50)):
        return None
    return [kind, option, amount, text_of(rate), str(months), repr(float(value)), shown(value, 2),
            shown(yearly * 100, 5, group=False)]


def gye_case(rng):
    amount = int(10 ** rng.uniform(0, 9))
    amount = max(1, min(amount, 10**9))
    number = rng.randint(2, 24)
    rate = F(rng.randint(1, 100)) if rng.random() < 0.6 else F(rng.randrange(100, 10001), 100)
    q = 1 + rate / 1200
    pay = amount * q**number * (rate / 1200) / (q**number - 1)
    floors, fractions = [], []
    for _ in range(number):
        pay /= q
        whole = floor(pay)
        floors.append(whole)
        fractions.append(pay - whole)
    # A binary64 computation is sure of a floor only away from whole numbers,
    # and of an order only between fractions that stand apart.
    edge = F(1, 10**5)
    if any(fr < edge or fr > 1 - edge for fr in fractions):
        return None
    ordered = sorted(fractions)
    if any(b - a < edge for a, b in zip(ordered, ordered[1:])):
        return None
    short = amount - sum(floors)
    assert 0 <= short < number
    order = sorted(range(number), key=lambda i: (-fractions[i], i))
    paid = list(floors)
    for i in order[:short]:
        paid[i] += 1
    assert sum(paid) == amount
    return [str(amount), str(number), text_of(rate).rstrip("0").rstrip(".") if rate.denominator > 1
            else str(rate.numerator), "|".join(f"{p:,}." for p in paid), f"{sum(paid):,}."]


FORMS = {
    "present": (present_case, "kind\tterm\tstart\tinput\trate\tmonths\tvalue\tshown\ttotal"),
    "bond": (bond_case, "kind\toption\tinput\trate\tmonths\tvalue\tshown\tyield"),
    "gye": (gye_case, "amount\tnumber\trate\tpaid\ttotal"),
}


def main():
    form = sys.argv[1]
    make, header = FORMS[form]
    rng = random.Random(17 + len(form))
    print(f"# Made by: python3 tests/finance/make_savings_vectors.py {form}"
          f" > tests/finance/{form}_vectors.txt")
    print("# " + header)
    kept = 0
    while kept < 400:
        case = make(rng)
        if case is None:
            continue
        print("\t".join(case))
        kept += 1


if __name__ == "__main__":
    main()
