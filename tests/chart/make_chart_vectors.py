#!/usr/bin/env python3
"""Reference figures for the summation chart, computed outside the product.

Generated once and checked in; the C++ test types the same amounts into the
chart, chooses the same options and compares what the chart holds and shows:

    python3 tests/chart/make_chart_vectors.py > tests/chart/chart_vectors.txt

Standard library only (decimal, with a precision far beyond the chart's).
The chart's rules as a user meets them:

- An amount is shown and summed as entered; "0" rounds each amount half up
  to a whole number (floor(x + 0.5)), "2" to cents (floor(100 x + 0.5) / 100).
- Column sums, the total (AAA + BBB, plus the third data column with three
  columns) and the balance (AAA - BBB) are exact sums of the shown amounts.
- Per row: AAA + BBB or AAA - BBB exactly; AAA x BBB, AAA / BBB, BBB / AAA
  rounded to three decimals, half away from zero, blank when either is blank.
- Figures are written grouped by thousands with a final point; with "Auto"
  the decimals shown follow the longest entry (none, two, or all up to seven).

One line a chart, tab-separated:
  mode  decimals  balance  cells(36, '|')  SumAAA SumBBB SumCCC SumAll SumThird
  totals(lblAmt 0..4, '|')  relations(12, '|')  relation captions(12, '|')
"""

import random
from decimal import Decimal, ROUND_FLOOR, ROUND_HALF_UP, getcontext

getcontext().prec = 80
random.seed(20261123)

DECIMALS = ["Auto", "Two", "Full", "Zero"]


def shown(x, choice):
    if choice == "Zero":
        return (x + Decimal("0.5")).to_integral_value(rounding=ROUND_FLOOR)
    if choice == "Two":
        return (x * 100 + Decimal("0.5")).to_integral_value(rounding=ROUND_FLOOR) / 100
    return x


def fmt(x, places, fixed=False):
    """A figure grouped by thousands, rounded half away from zero to `places`
    decimals; trailing zeros dropped unless fixed; the point always shown."""
    q = x.quantize(Decimal(1).scaleb(-places), rounding=ROUND_HALF_UP)
    neg = q < 0
    q = abs(q)
    text = format(q, "f")
    whole, _, frac = text.partition(".")
    if not fixed:
        frac = frac.rstrip("0")
    groups = []
    while len(whole) > 3:
        groups.insert(0, whole[-3:])
        whole = whole[:-3]
    groups.insert(0, whole)
    out = ",".join(groups) + "." + frac
    if neg and q != 0:
        out = "-" + out
    return out


def mask_fmt(x, mask):
    return {"full": lambda v: fmt(v, 7), "zero": lambda v: fmt(v, 0),
            "two": lambda v: fmt(v, 2, True), "three": lambda v: fmt(v, 3)}[mask](x)


def decimals_of(x):
    t = format(x.normalize(), "f") if x != 0 else "0"
    return len(t.split(".")[1]) if "." in t else 0


def amount(max_dec, int_digits):
    k = random.randint(0, max_dec)
    n = random.randint(1, int_digits)
    whole = random.randint(10 ** (n - 1) if n > 1 else 0, 10**n - 1)
    frac = ""
    if k:
        frac = str(random.randint(0, 10**k - 1)).rjust(k, "0")
        if frac[-1] == "0":
            frac = frac[:-1] + str(random.randint(1, 9))
    neg = random.random() < 0.3
    return neg, whole, frac


def text_of(neg, whole, frac):
    w = str(whole)
    if random.random() < 0.25 and whole >= 1000:
        w = f"{whole:,}"
    t = w + ("." + frac if frac else "")
    return ("-" if neg else "") + t


def one_chart():
    mode = random.randint(0, 6)
    choice = random.choice(DECIMALS)
    balance = random.random() < 0.4 and mode != 6
    max_dec = random.choice([0, 0, 1, 2, 2, 3, 4, 6])
    floor_dec = 2 if choice == "Two" else 0
    span = 17 - max(max_dec, floor_dec)
    if mode == 3:
        span = min(span, 8)
    int_digits = random.choice([1, 3, 6, span, span])
    int_digits = max(1, min(int_digits, span))
    fill = random.choice([0.3, 0.6, 0.9])
    last = 36 if mode == 6 else 24
    cells = [""] * 37
    values = [Decimal(0)] * 37
    for i in range(1, last + 1):
        if random.random() > fill:
            continue
        if random.random() < 0.04:
            cells[i] = "0"
            continue
        neg, whole, frac = amount(max_dec, int_digits)
        cells[i] = text_of(neg, whole, frac)
        values[i] = Decimal(("-" if neg else "") + str(whole) + ("." + frac if frac else ""))
    # The chart as a whole within seventeen digits, each amount below its limit.
    max_mag = max([Decimal(10) ** 8] + [abs(v) for v in values if v != 0])
    max_dec_real = max([floor_dec] + [decimals_of(v) for v in values if v != 0])
    if max_mag * Decimal(10) ** max_dec_real >= Decimal(10) ** 17:
        return None
    return mode, choice, balance, cells, values, max_dec_real


def expected(mode, choice, balance, values, max_dec):
    show = [shown(v, choice) if v != 0 else Decimal(0) for v in values]
    if choice == "Auto":
        mask = "zero" if max_dec == 0 else "two" if max_dec <= 2 else "full"
    else:
        mask = {"Two": "two", "Full": "full", "Zero": "zero"}[choice]
    sums = [sum(show[1:13], Decimal(0)), sum(show[13:25], Decimal(0)),
            sum(show[25:37], Decimal(0))]
    captions = ["", "", "", "", ""]
    for k in range(3):
        captions[k + 1] = mask_fmt(sums[k], mask)
    for k in range(3):
        if abs(sums[k]) >= Decimal(10) ** 17:
            captions[1 if k == 2 else k + 1] = mask_fmt(sums[k], "zero")
    if balance:
        total = sums[0] - sums[1]
    else:
        total = sums[0] + sums[1] + (sums[2] if mode == 6 else 0)
    captions[0] = mask_fmt(total, mask)
    if (balance and mode == 6) or mode in (3, 4, 5):
        captions[0] = ""
    relations = [""] * 12
    rel_captions = [""] * 12
    third = Decimal(0)
    if 1 <= mode <= 5:
        for r in range(1, 13):
            a, b = show[r], show[r + 12]
            if mode in (1, 2):
                v = a + b if mode == 1 else a - b
                third += v
                relations[r - 1] = str(v)
                if a != 0 or b != 0:
                    rel_captions[r - 1] = mask_fmt(v, mask)
                continue
            if a == 0 or b == 0:
                continue
            exact = a * b if mode == 3 else a / b if mode == 4 else b / a
            v = exact.quantize(Decimal("0.001"), rounding=ROUND_HALF_UP)
            third += v
            relations[r - 1] = str(v)
            rel_captions[r - 1] = mask_fmt(v, "three")
        captions[4] = mask_fmt(third, "full" if mode <= 2 else "three")
        if abs(third) >= Decimal(10) ** 17:
            captions[3] = mask_fmt(third, "zero")
    if mode == 6:
        pass
    return sums, total, third, captions, relations, rel_captions


def main():
    print("# Generated by tests/chart/make_chart_vectors.py; see its header.")
    made = 0
    while made < 600:
        chart = one_chart()
        if chart is None:
            continue
        mode, choice, balance, cells, values, max_dec = chart
        sums, total, third, captions, relations, rel_captions = expected(
            mode, choice, balance, values, max_dec)
        fields = [str(mode), choice, "B" if balance else "T", "|".join(cells[1:]),
                  str(sums[0]), str(sums[1]), str(sums[2]), str(total), str(third),
                  "|".join(captions), "|".join(relations), "|".join(rel_captions)]
        print("\t".join(fields))
        made += 1


main()
