#!/usr/bin/env python3
"""Writes dec_vectors.txt: Dec arithmetic worked out by Python's decimal module.

Run once from this folder (python3 make_dec_vectors.py); the output is checked
in so that the C++ tests need no Python. Each line is

    OP A B RESULT

with OP one of + - * /, A and B plain decimal text whose trailing zeros give
their scale, and RESULT the expected value with trailing zeros removed, or
the failure words with blanks as underscores.

The rule the library follows: the exact result is kept at the largest scale
(at most 28, and for + - * at most the operands' own) whose mantissa fits 96
bits, rounded half to even; if even scale 0 does not fit, "Overflow". An
exact quotient drops trailing zeros down to the dividend's scale less the
divisor's.
"""
import random
from decimal import Decimal, getcontext, localcontext, ROUND_HALF_EVEN

# Operands are built exactly; only settle() rounds.
getcontext().prec = 400
LIMIT = 2**96
random.seed(20240601)


def settle(exact, top_scale):
    with localcontext() as ctx:
        ctx.prec = 400
        ctx.rounding = ROUND_HALF_EVEN
        for s in range(min(top_scale, 28), -1, -1):
            q = exact.quantize(Decimal(1).scaleb(-s))
            if abs(q.scaleb(s)) < LIMIT:
                return q
    return None


def text(d):
    if d == 0:
        return "0"
    s = format(d, "f")
    if "." in s:
        s = s.rstrip("0").rstrip(".")
    return s


def scale_of(d):
    return max(0, -d.as_tuple().exponent)


def operand():
    kind = random.random()
    if kind < 0.15:
        bits = 96
    elif kind < 0.3:
        bits = random.randint(1, 12)
    else:
        bits = random.randint(1, 96)
    m = random.getrandbits(bits)
    if kind > 0.95:
        m = LIMIT - 1 - random.randint(0, 3)
    s = random.randint(0, 28)
    d = Decimal(m).scaleb(-s)
    if random.random() < 0.5:
        d = -d
    return d


def fmt(d):
    s = scale_of(d)
    return format(d, "f") if s else format(d, "f").split(".")[0]


def result(op, a, b):
    with localcontext() as ctx:
        ctx.prec = 400
        if op == "+":
            r = settle(a + b, max(scale_of(a), scale_of(b)))
        elif op == "-":
            r = settle(a - b, max(scale_of(a), scale_of(b)))
        elif op == "*":
            r = settle(a * b, scale_of(a) + scale_of(b))
        else:
            if b == 0:
                return "Division_by_zero"
            r = settle(a / b, 28)
    return "Overflow" if r is None else text(r)


def main():
    lines = []
    fixed = [
        ("+", "79228162514264337593543950335", "1"),
        ("+", "79228162514264337593543950335", "0.4"),
        ("+", "79228162514264337593543950335", "0.5"),
        ("-", "-79228162514264337593543950335", "0.6"),
        ("*", "0.0000000000000000000000000001", "0.1"),
        ("*", "0.0000000000000000000000000001", "0.5"),
        ("*", "0.0000000000000000000000000003", "0.5"),
        ("*", "1.1", "3"),
        ("*", "7922816251426433759354395033.5", "10"),
        ("/", "0.07", "12"),
        ("/", "1", "3"),
        ("/", "2", "3"),
        ("/", "1", "4"),
        ("/", "1.00", "1"),
        ("/", "100", "0.01"),
        ("/", "1", "0"),
        ("/", "0", "0"),
        ("/", "79228162514264337593543950335", "0.1"),
        ("/", "79228162514264337593543950335", "0.9"),
        ("/", "79228162514264337593543950335", "3"),
        ("/", "1", "79228162514264337593543950335"),
        ("/", "0.0000000000000000000000000001", "3"),
        ("+", "0.1", "0.2"),
        ("-", "1", "0.0000000000000000000000000001"),
        ("+", "12345678901234567890.12345678", "0.000000001"),
    ]
    for op, a, b in fixed:
        lines.append(f"{op} {a} {b} {result(op, Decimal(a), Decimal(b))}")
    for _ in range(1200):
        op = random.choice("+-*/")
        a, b = operand(), operand()
        if op == "*" and random.random() < 0.7:
            # Keep most products in range so they test rounding, not overflow.
            a = Decimal(random.getrandbits(random.randint(1, 48))).scaleb(-random.randint(0, 14))
        lines.append(f"{op} {fmt(a)} {fmt(b)} {result(op, a, b)}")
    with open("dec_vectors.txt", "w") as f:
        f.write("\n".join(lines) + "\n")


if __name__ == "__main__":
    main()
