#!/usr/bin/env python3
"""Reference figures for the loan form, computed outside the product.

Generated once and checked in; the C++ test drives the loan form with the same
inputs and compares what the user sees with these texts:

    python3 tests/finance/make_loan_vectors.py > tests/finance/loan_vectors.txt

Standard library only. Numbers follow the form's arithmetic: a typed amount is
an exact decimal (96-bit mantissa, up to 28 places, every result rounded half
to even to what fits), a rate or a payment from Pmt is a binary64 float, a float
meeting a decimal enters it through its 15-significant-digit text, and `^`
always yields a float. The payment is the closed annuity formula.
"""

import math
from decimal import Decimal, ROUND_HALF_UP, getcontext
from fractions import Fraction

MAX96 = (1 << 96) - 1
getcontext().prec = 80


class Dec:
    """An exact decimal that keeps as many places (up to 28) as fit 96 bits."""

    __slots__ = ("q",)

    def __init__(self, q):
        self.q = Dec.fit(Fraction(q))

    @staticmethod
    def fit(q):
        for scale in range(28, -1, -1):
            scaled = q * 10**scale
            m = scaled.numerator // scaled.denominator
            rest = scaled - m
            if rest > Fraction(1, 2) or (rest == Fraction(1, 2) and m % 2 == 1):
                m += 1
            if abs(m) <= MAX96:
                return Fraction(m, 10**scale)
        raise OverflowError("Overflow")


def real_to_dec(x):
    return Dec(Fraction(Decimal(format(x, ".15g"))))


def as_dec(v):
    if isinstance(v, Dec):
        return v
    if isinstance(v, int):
        return Dec(v)
    return real_to_dec(v)


def is_dec(*vs):
    return any(isinstance(v, Dec) for v in vs)


def add(a, b):
    return Dec(as_dec(a).q + as_dec(b).q) if is_dec(a, b) else float(a) + float(b)


def sub(a, b):
    return Dec(as_dec(a).q - as_dec(b).q) if is_dec(a, b) else float(a) - float(b)


def mul(a, b):
    return Dec(as_dec(a).q * as_dec(b).q) if is_dec(a, b) else float(a) * float(b)


def div(a, b):
    return Dec(as_dec(a).q / as_dec(b).q) if is_dec(a, b) else float(a) / float(b)


def power(a, b):
    return float(a.q if isinstance(a, Dec) else a) ** float(b)


def floor(v):
    return Dec(math.floor(v.q)) if isinstance(v, Dec) else float(math.floor(v))


def exact_decimal(v):
    """The decimal a mask sees: a Dec with all its digits, a float cut to 15
    significant digits."""
    if isinstance(v, Dec):
        q = v.q
        scale = 0
        while (10**scale) % q.denominator:
            scale += 1
        return Decimal(q.numerator * (10**scale // q.denominator)).scaleb(-scale)
    if isinstance(v, int):
        return Decimal(v)
    return Decimal(format(v, ".15e"))


def group(s):
    out = []
    while len(s) > 3:
        out.insert(0, s[-3:])
        s = s[:-3]
    out.insert(0, s)
    return ",".join(out)


def fmt(v, whole_zeros, grouped, forced, optional, prefix=""):
    """Format by a mask of the shape prefix, #-or-0 whole positions, a point,
    `forced` zero positions then `optional` hash positions."""
    d = exact_decimal(v)
    places = forced + optional
    q = abs(d).quantize(Decimal(1).scaleb(-places), rounding=ROUND_HALF_UP)
    whole, _, frac = f"{q:f}".partition(".")
    frac = frac.ljust(places, "0")[:places]
    whole = whole.lstrip("0")
    if len(whole) < whole_zeros:
        whole = whole.rjust(whole_zeros, "0")
    if grouped and whole:
        whole = group(whole)
    keep = frac[:forced] + frac[forced:].rstrip("0")
    text = prefix + whole + "." + keep
    return ("-" + text) if d < 0 and q != 0 else text


def money(v):  # "###,###,###,###,##0.##"
    return fmt(v, 1, True, 0, 2)


def row(v):  # "###,###,###.00"
    return fmt(v, 0, True, 2, 0)


def rate_box(v):  # "#0.00###"
    return fmt(v, 1, False, 2, 3)


def fnv(texts):
    h = 0xCBF29CE484222325
    for b in "\n".join(texts).encode():
        h = ((h ^ b) * 0x100000001B3) & 0xFFFFFFFFFFFFFFFF
    return f"{h:016x}"


def pmt(rate, nper, pv, due):
    if rate == 0:
        return -pv / nper
    grow = (1 + rate) ** nper
    return -(pv * grow) * rate / ((1 + rate * due) * (grow - 1))


def annual_rate(text):
    """What the rate box leaves: the text shown to five places, read back."""
    shown = rate_box(mul(div(Dec(Fraction(Decimal(text))), 100), 100))
    return float(shown) / 100


def schedule(amount, payment, rate, months, end):
    rows = []
    sum_p, sum_i, balance = 0, 0, amount
    for i in range(1, months + 1):
        if end:
            interest = div(mul(sub(amount, sum_p), rate), 12)
            principal = sub(payment, interest)
            sum_i = add(sum_i, interest)
            sum_p = add(sum_p, principal)
            balance = sub(amount, sum_p)
        else:
            principal = sub(mul(payment, add(1, div(rate, 12))), div(mul(balance, rate), 12))
            interest = sub(payment, principal)
            sum_i = add(sum_i, interest)
            sum_p = add(sum_p, principal)
            balance = sub(balance, principal)
        rows.append((i, principal, interest, sum_i, sum_p, balance))
    return rows


def total(months, payment):
    return div(mul(months, floor(add(mul(payment, 100), 0.5))), 100)


def describe(rows, months):
    keep = sorted({1, 2, months // 2, months - 1, months} & set(range(1, months + 1)))
    texts = ["\t".join(row(v) for v in r[1:]) for r in rows]
    samples = ";".join(f"{rows[i - 1][0]}|{row(rows[i - 1][2])}|{row(rows[i - 1][5])}" for i in keep)
    return fnv(texts), samples


def amount_case(amount_text, rate_text, months, end):
    amount = Dec(Fraction(Decimal(amount_text)))
    r = annual_rate(rate_text)
    payment = pmt(div(r, 12), months, -float(amount.q), 0 if end else 1)
    lbl = money(total(months, payment))
    digest, samples = describe(schedule(amount, payment, r, months, end), months)
    return ["A", amount_text, rate_text, str(months), "E" if end else "F", repr(payment),
            money(payment), lbl, digest, samples]


def payment_case(pay_text, rate_text, months, end):
    payment = Dec(Fraction(Decimal(pay_text)))
    r = annual_rate(rate_text)
    if r == 0:
        amount = mul(payment, months)
    else:
        f = div(1, power(add(1, div(r, 12)), months))
        amount = mul(div(mul(payment, sub(1, f)), r), 12)
        if not end:
            amount = mul(amount, add(1, div(r, 12)))
    lbl = money(total(months, payment))
    digest, samples = describe(schedule(amount, payment, r, months, end), months)
    return ["P", pay_text, rate_text, str(months), "E" if end else "F",
            format(float(amount.q), ".17g"), money(amount), lbl, digest, samples]


def main():
    rates = ["0", "0.005", "10", "29.995", "150"]
    terms = [1, 2, 12, 37, 360, 600]
    amounts = ["1", "1234.56", "100000", "1000000", "987654321.09", "1000000000000"]
    payments = ["1", "665.3", "12345.67", "1000000000"]
    print("# Made by: python3 tests/finance/make_loan_vectors.py > tests/finance/loan_vectors.txt")
    print("# kind\tinput\trate\tmonths\tdue\tvalue\tshown\ttotal\tdigest\tsamples")
    for end in (True, False):
        for rate in rates:
            for months in terms:
                for a in amounts:
                    print("\t".join(amount_case(a, rate, months, end)))
                for p in payments:
                    print("\t".join(payment_case(p, rate, months, end)))


if __name__ == "__main__":
    main()
