#!/usr/bin/env python3
"""Reference figures for the lease form, computed outside the product.

Generated once and checked in; the C++ test drives the lease form with the
same inputs and compares what the user sees with these texts:

    python3 tests/finance/make_lease_vectors.py > tests/finance/lease_vectors.txt

Standard library only; the number kinds (exact decimal amounts, binary64
rates, 15-digit meeting of the two) come from make_loan_vectors.py. A figure
never typed stays a plain 0; a typed one is an exact decimal.

The lease amount of the detailed form is price plus other costs, less down
payment and rebate, less the residual value discounted over the term (over
one month less when payments fall at the end of the month). The payment is
the ordinary annuity payment on it, times one plus the sales tax; the total
adds the extra cost to the cent-rounded payments; the actual rate adds the
extra cost, discounted over the term, as a share of the lease amount to the
annual rate, held in single precision.
"""

import random
import struct
from decimal import Decimal
from fractions import Fraction

from make_loan_vectors import (Dec, add, annual_rate, div, fmt, floor, money, mul, pmt, power,
                               sub)

FIELDS = ["simple", "price", "cost", "down", "rebate", "residual", "tax", "extra"]


def single(x):
    return struct.unpack("f", struct.pack("f", x))[0]


def value(text):
    return 0 if text == "-" else Dec(Fraction(Decimal(text)))


def positive(v):
    return (v.q if isinstance(v, Dec) else v) > 0


def case(mode, due, rate_text, months, texts):
    v = {name: value(t) for name, t in zip(FIELDS, texts)}
    r = annual_rate(rate_text)
    monthly = add(1, div(r, 12))
    end = due == "E"
    out = {"cash": "", "detail": "", "pay": "", "value": "0", "sum": "", "actual": ""}
    if mode == "D":
        cash = add(v["price"], v["cost"])
        detail = sub(sub(cash, v["down"]), v["rebate"])
        if positive(v["residual"]):
            e = months - 1 if end else months
            detail = sub(detail, div(v["residual"], power(monthly, e)))
        out["cash"] = money(cash)
        out["detail"] = money(detail)
        lease = detail
    else:
        lease = v["simple"]
    if positive(lease):
        payment = pmt(div(r, 12), months, -float(lease.q), 0 if end else 1)
        payment = mul(payment, add(1, div(v["tax"], 100)))
        out["pay"] = money(payment)
        out["value"] = format(float(payment.q) if isinstance(payment, Dec) else payment, ".17g")
        total = add(div(mul(months, floor(add(mul(payment, 100), 0.5))), 100), v["extra"])
        out["sum"] = money(total)
        if positive(v["extra"]):
            p = div(v["extra"], power(monthly, months))
            actual = single(float(add(r, div(p, lease)).q))
            out["actual"] = fmt(single(actual * 100), 1, False, 2, 2)
    return [mode, due, rate_text, str(months)] + texts + [
        out[k] for k in ("cash", "detail", "pay", "value", "sum", "actual")]


def rate_text(rng):
    pick = rng.random()
    if pick < 0.05:
        return "0"
    if pick < 0.1:
        return str(rng.randint(1, 150))
    places = rng.randint(0, 3)
    return str(Decimal(rng.randint(1, 30000 * 10**places) // 1000).scaleb(-places))


def money_text(rng, low, high):
    cents = rng.randint(int(low * 100), int(high * 100))
    return str(Decimal(cents).scaleb(-2)) if rng.random() < 0.6 else str(cents // 100)


def maybe(rng, chance, make):
    if rng.random() >= chance:
        return "-"
    return "0" if rng.random() < 0.1 else make()


def inputs(rng, mode):
    if mode == "S":
        texts = [money_text(rng, 100, 2000000)] + ["-"] * 5
    else:
        price = rng.randint(1000, 300000)
        texts = ["-", money_text(rng, 1000, price),
                 maybe(rng, 0.6, lambda: money_text(rng, 0, 3000)),
                 maybe(rng, 0.6, lambda: money_text(rng, 0, price * 0.3)),
                 maybe(rng, 0.5, lambda: money_text(rng, -2000, 5000)),
                 maybe(rng, 0.6, lambda: money_text(rng, 0, price * 0.7))]
    tax = maybe(rng, 0.6, lambda: str(Decimal(rng.randint(0, 15000)).scaleb(-3)))
    extra = maybe(rng, 0.5, lambda: money_text(rng, 0, 20000))
    return texts + [tax, extra]


def main():
    rng = random.Random(1717)
    print("# Made by: python3 tests/finance/make_lease_vectors.py > tests/finance/lease_vectors.txt")
    print("# mode\tdue\trate\tmonths\t" + "\t".join(FIELDS) +
          "\tcash\tdetail\tpay\tvalue\tsum\tactual")
    fixed = [("S", "E", "5", 36, ["20000", "-", "-", "-", "-", "-", "-", "1000"]),
             ("S", "E", "0", 36, ["3600", "-", "-", "-", "-", "-", "8", "-"]),
             ("D", "E", "5", 36, ["-", "25000", "1000", "2000", "500", "10000", "8", "1000"]),
             ("D", "F", "12", 1, ["-", "1000", "-", "-", "-", "500", "-", "-"]),
             ("D", "E", "7.5", 48, ["-", "30000", "-", "-", "-", "40000", "-", "-"])]
    for k in fixed:
        print("\t".join(case(*k)))
    for _ in range(395):
        mode = rng.choice("SD")
        due = rng.choice("EEF")
        months = rng.choice([rng.randint(1, 600), rng.randint(12, 72)])
        print("\t".join(case(mode, due, rate_text(rng), months, inputs(rng, mode))))


if __name__ == "__main__":
    main()
