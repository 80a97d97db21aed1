#!/usr/bin/env python3
"""Reference figures for the annuity form, computed outside the product.

Generated once and checked in; the C++ test drives the annuity form with the
same inputs and compares what the user sees with these texts:

    python3 tests/finance/make_annuity_vectors.py > tests/finance/annuity_vectors.txt

Standard library only; the number kinds (exact decimal amounts, binary64
rates, 15-digit meeting of the two) come from make_loan_vectors.py. Payments
fall at the start of each month, so the future amount of n payments p at the
monthly factor f is p f (f^n - 1) / (f - 1).
"""

import random
from decimal import Decimal
from fractions import Fraction

from make_loan_vectors import Dec, add, annual_rate, div, floor, money, mul, power, sub


def total(months, payment):
    return div(mul(months, floor(add(mul(payment, 100), 0.5))), 100)


def case(kind, text, rate_text, months):
    r = annual_rate(rate_text)
    f = add(1, div(r, 12))
    typed = Dec(Fraction(Decimal(text)))
    if kind == "P":
        payment = typed
        if r == 0:
            value = mul(payment, months)
        else:
            value = mul(div(mul(mul(payment, f), sub(power(f, months), 1)), r), 12)
    else:
        if r == 0:
            value = div(typed, months)
        else:
            factor = mul(div(mul(f, sub(power(f, months), 1)), r), 12)
            value = div(typed, factor)
        payment = value
    return [kind, text, rate_text, str(months), format(float(value.q), ".17g"), money(value),
            money(total(months, payment))]


def rate_text(rng):
    pick = rng.random()
    if pick < 0.05:
        return "0"
    if pick < 0.15:
        return str(rng.randint(1, 150))
    places = rng.randint(0, 3)
    return str(Decimal(rng.randint(1, 30000 * 10**places) // 1000).scaleb(-places))


def amount_text(rng):
    digits = rng.randint(1, 10)
    whole = rng.randint(10 ** (digits - 1), 10**digits - 1)
    return f"{whole}.{rng.randint(0, 99):02d}" if rng.random() < 0.7 else str(whole)


def main():
    rng = random.Random(17)
    print("# Made by: python3 tests/finance/make_annuity_vectors.py > "
          "tests/finance/annuity_vectors.txt")
    print("# base\tinput\trate\tmonths\tvalue\tshown\ttotal")
    fixed = [("P", "100", "0", 36), ("P", "100", "12", 12), ("A", "1000000", "150", 120),
             ("A", "0.01", "29.995", 1), ("P", "99999999.99", "0.005", 600)]
    for k in fixed:
        print("\t".join(case(*k)))
    made = 0
    while made < 395:
        kind = rng.choice("AP")
        months = rng.choice([rng.randint(1, 600), rng.randint(1, 60)])
        try:
            row = case(kind, amount_text(rng), rate_text(rng), months)
        except OverflowError:
            continue  # beyond the decimal's range the form ends with "Overflow"
        print("\t".join(row))
        made += 1


if __name__ == "__main__":
    main()
