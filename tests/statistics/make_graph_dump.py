#!/usr/bin/env python3
"""The drawing the distribution graph must show, computed here from the
graph's own rules (bell curve from the point 990, 5000 in steps of 0.01;
cumulative curve by the trapezium rule in single precision from the centre
outward), as `dump` prints it. Used once to write the dump lines of
tests/scripts/statistics/graph.out:

    python3 make_graph_dump.py > dump.txt
"""
import math
import struct


def single(x):
    return struct.unpack("f", struct.pack("f", x))[0]


def yyy(x):
    return math.exp(-(x * x) / 2) / math.pow(6.285185307178, 0.5)


def num(v):
    text = "%.4f" % v
    text = text.rstrip("0").rstrip(".")
    return "0" if text == "-0" else text


def line(x1, y1, x2, y2, colour):
    print("line %s %s %s %s %d" % (num(x1), num(y1), num(x2), num(y2), colour))


def main(shift=0):
    green, red = 0x008000, 0x0000FF
    last_x, last_y = 990 + shift, 5000 + shift
    x = -3.3
    while x <= 3.3:
        X = 3000 + shift + 700 * x
        Y = 5000 + shift - 4000 * yyy(x)
        line(last_x, last_y, X, Y, green)
        last_x, last_y = X, Y
        x += 0.01
    h, mid = 0.01, 3000 + shift
    c, x1 = 0.0, 0.01
    for i in range(1, 366):
        x2 = h * i
        c2 = single(c + (yyy(x1) + yyy(x2)) * h / 2)
        line(mid + 700 * x1, mid - 4000 * c, mid + 700 * x2, mid - 4000 * c2, red)
        line(mid - 700 * x1, mid + 4000 * c, mid - 700 * x2, mid + 4000 * c2, red)
        x1, c = x2, c2


if __name__ == "__main__":
    main()
