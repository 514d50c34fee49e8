#!/usr/bin/env python3
"""Writes outlines.txt, fits.txt and traces.txt beside itself: what the tests of the segment characters expect.

Everything is worked out here anew, from the definition and without the toolkit's code: the outlines from their tables,
the curves in decimal numbers of 60 digits (fits.txt) and in doubles (traces.txt, where whole numbers are compared; the
two must agree here to nine digits).
"""

import os
from decimal import Decimal, getcontext
from math import trunc

getcontext().prec = 60

OUTLINES = """
SevenTop | (5,4) (12,11) (36,11) (43,4) | 6 2 2 2
SevenSide | (4,6) (4,40) (11,36) (11,13) | 6 2 2 2
SevenMiddle | (6,41) (14,45) (34,45) (42,41) (34,37) (14,37) | 6 2 2 2 2 2
SevenTopRound | (6,4) (5,5) (5,6) (8,9) (12,11) (36,11) (39,4) | 6 4 4 4 2 2 2
SevenLeftRound | (4,9) (4,39) (6,40) (7,40) (9,38) (11,36) (11,12) | 6 2 4 4 4 2 2
SevenRightRound | (37,36) (39,38) (41,40) (42,40) (44,39) (44,6) (42,4) (41,4) (39,8) (37,12) | 6 4 4 2 2 2 4 4 4 2
SevenMiddleRound | (8,41) (12,45) (36,45) (40,41) (36,37) (12,37) | 6 2 2 2 2 2
FourteenCentre | (20,13) (20,36) (24,40) (28,36) (28,13) | 6 2 2 2 2
FourteenDiagonal | (5,5) (15,35) (20,37) (18,25) (4,23) | 6 2 2 2 6
FourteenHalfBar | (6,41) (14,45) (18,45) (22,41) (18,37) (14,37) | 6 2 2 2 2 2
FourteenSide | (4,7) (4,40) (11,36) (11,26) | 6 2 2 2
FourteenTop | (6,4) (11,11) (37,11) (42,4) | 6 2 2 2
FourteenCentreRound | (20,12) (20,25) (22,36) (23,39) (24,40) (25,39) (26,36) (28,25) (28,12) (26,10) (24,9) (22,10) (20,12) | 6 2 4 4 4 4 4 2 2 4 4 4 2
FourteenDiagonalRound | (10,10) (10,13) (11,20) (13,28) (21,38) (21,37) (19,26) (15,16) (11,10) (10,10) | 6 4 4 4 2 2 4 4 4 2
FourteenHalfBarRound | (8,41) (12,45) (16,45) (23,41) (16,37) (12,37) | 6 2 2 2 2 2
FourteenSideRound | (4,7) (4,39) (5,40) (6,40) (9,37) (11,33) (11,25) (9,14) (5,6) (4,7) | 6 2 4 4 4 4 2 4 4 2
FourteenTopRound | (8,4) (7,5) (7,6) (9,8) (12,9) (14,11) (19,11) (21,9) (24,7) (27,9) (29,11) (34,11) (36,9) (39,8) (41,6) (41,5) (40,4) | 6 4 4 4 4 2 2 4 4 4 2 2 4 4 4 4 2
ColonUpper | (4,23) (4,32) (13,32) (13,23) | 6 2 2 2
ColonLower | (4,50) (4,59) (13,59) (13,50) | 6 2 2 2
DotMark | (4,68) (4,77) (13,77) (13,68) | 6 2 2 2
"""

# Segment by segment: plain outline, its mirroring, rounded outline, its mirroring.
PLACES = {
    "seven": """
        SevenTop - SevenTopRound -
        SevenSide - SevenLeftRound -
        SevenSide x SevenRightRound -
        SevenMiddle - SevenMiddleRound -
        SevenSide y SevenLeftRound y
        SevenSide xy SevenRightRound y
        SevenTop y SevenTopRound y
        """,
    "fourteen": """
        FourteenCentre - FourteenCentreRound -
        FourteenDiagonal - FourteenDiagonalRound -
        FourteenDiagonal x FourteenDiagonalRound x
        FourteenDiagonal y FourteenDiagonalRound y
        FourteenDiagonal xy FourteenDiagonalRound xy
        FourteenCentre y FourteenCentreRound y
        FourteenHalfBar - FourteenHalfBarRound -
        FourteenHalfBar x FourteenHalfBarRound x
        FourteenSide - FourteenSideRound -
        FourteenSide y FourteenSideRound y
        FourteenTop y FourteenTopRound y
        FourteenSide xy FourteenSideRound xy
        FourteenSide x FourteenSideRound x
        FourteenTop - FourteenTopRound -
        """,
    "colon": """
        ColonUpper - ColonUpper -
        ColonLower - ColonLower -
        DotMark - DotMark -
        """,
}
WIDTHS = {"seven": 49, "fourteen": 49, "colon": 18}

# left, top, right, bottom
RECTS = [
    ("0", "0", "49", "83"),
    ("12.25", "-3.5", "131.6875", "157.3125"),
    ("0", "0", "14.7", "58.1"),
    ("100.5", "7", "590.5", "422"),
    ("-200", "-300", "-151", "-217"),
    ("40", "90", "8", "21"),
]


def read_outlines():
    table = {}
    for line in OUTLINES.strip().splitlines():
        name, points, types = (part.strip() for part in line.split("|"))
        points = [tuple(int(n) for n in point.strip("()").split(",")) for point in points.split()]
        types = [int(n) for n in types.split()]
        assert len(points) == len(types), name
        table[name] = (points, types)
    return table


def placed_outlines():
    """(kind, form, segment, points, types) of every segment of every kind of character."""
    table = read_outlines()
    for kind, places in PLACES.items():
        for form in ("plain", "rounded"):
            for segment, line in enumerate(places.strip().splitlines()):
                words = line.split()
                name, mirror = words[:2] if form == "plain" else words[2:]
                points, types = table[name]
                if "x" in mirror:
                    points = [(48 - x, y) for x, y in points]
                if "y" in mirror:
                    points = [(x, 82 - y) for x, y in points]
                yield kind, form, segment, points, types


def curve_error(points, c1, c2, number):
    dt = number(2) / number(2 * len(points))

    def polynomial(p0, p1, p2, p3):
        a3 = (p3 - p0 + 3 * (p1 - p2)) / 8
        a2 = 3 * (p3 + p0 - p1 - p2) / 8
        return (p3 + p0) / 2 - a2, (p3 - p0) / 2 - a3, a2, a3

    curves = [polynomial(points[0][k], c1[k], c2[k], points[-1][k]) for k in (0, 1)]

    def evaluate(t, target):
        distance = slope = number(0)
        for (a0, a1, a2, a3), wanted in zip(curves, target):
            d = ((a3 * t + a2) * t + a1) * t + a0 - wanted
            distance += d * d
            slope += ((3 * a3 * t + 2 * a2) * t + a1) * d
        return distance, slope

    total = number(0)
    for target in points[1:-1]:
        t, best = number(-1), None
        while t <= number("1.01"):
            distance, slope = evaluate(t, target)
            if distance == 0:
                break
            if best is None or distance < best[1]:
                best = (t, distance, slope)
            t += dt
        if distance == 0:
            continue
        previous_t, _, previous_slope = best
        t = previous_t + dt
        if t > 1:
            t = 1 - dt
        distance, slope = evaluate(t, target)
        rounds = 0
        while distance != 0 and slope != 0:
            if slope != previous_slope:
                next_t = (slope * previous_t - previous_slope * t) / (slope - previous_slope)
            else:
                next_t = (previous_t + t) / 2
            next_t = max(number(-1), min(number(1), next_t))
            if abs(next_t - t) < number("0.001"):
                break
            previous_t, previous_slope, t = t, slope, next_t
            distance, slope = evaluate(t, target)
            rounds += 1
            assert rounds < 10000, "this size gives a search without end; take another"
        total += distance
    return total


def fit(points, number):
    controls = [list(points[1]), list(points[-2])]
    anchors = [points[0], points[-1]]
    for which in (0, 1):
        for k in (0, 1):
            controls[which][k] += controls[which][k] - anchors[which][k]
    least = curve_error(points, *controls, number)
    for _ in range(2):
        for which in (0, 1):
            for k in (0, 1):
                step, best, anchor = number("0.5"), controls[which][k], anchors[which][k]
                while abs(step) >= number("0.01"):
                    controls[which][k] += (controls[which][k] - anchor) * step
                    error = curve_error(points, *controls, number)
                    if error == least:
                        break
                    if error > least:
                        controls[which][k] = best
                        step = step / -3
                    else:
                        least, best = error, controls[which][k]
    return controls


def scaled(points, rect, width, number):
    left, top, right, bottom = (number(n) for n in rect)
    sx = (right - left) / number(width)
    sy = (bottom - top) / number(83)
    return [(left + sx * x, top + sy * y) for x, y in points]


def runs_of(types):
    """(first entry, length) of each run of curve points."""
    at = 1
    while at < len(types):
        length = 0
        while types[at + length] == 4:
            length += 1
        if length:
            yield at, length
        at += length + 1


def rounded(point):
    return "%d %d" % tuple(trunc(n + 0.5) for n in point)


def trace(points, types, rect, width):
    exact = scaled(points, rect, width, float)
    runs = dict(runs_of(types))
    words = ["M", rounded(exact[0])]
    at = 1
    while at < len(types):
        if at in runs:
            length = runs[at]
            first, second = fit(exact[at - 1 : at + length + 1], float)
            words += ["C", rounded(first), rounded(second), rounded(exact[at + length])]
            at += length
        elif types[at] == 2:
            words += ["L", rounded(exact[at])]
        at += 1
    return " ".join(words)


def write(name, comment, lines):
    path = os.path.join(os.path.dirname(os.path.abspath(__file__)), name)
    with open(path, "w", newline="\n") as file:
        for line in comment:
            file.write("# %s\n" % line)
        for line in lines:
            file.write(line + "\n")


def main():
    outlines, fits, traces = [], [], []
    for kind, form, segment, points, types in placed_outlines():
        flat = " ".join("%d %d %d" % (x, y, t) for (x, y), t in zip(points, types))
        outlines.append("%s %s %d %d %s" % (kind, form, segment, len(points), flat))
        for rect in RECTS:
            place = "%s %s %d %s" % (kind, form, segment, " ".join(rect))
            traces.append("%s %s" % (place, trace(points, types, rect, WIDTHS[kind])))
            for at, length in runs_of(types):
                exact = scaled(points, rect, WIDTHS[kind], Decimal)[at - 1 : at + length + 1]
                controls = [n for point in fit(exact, Decimal) for n in point]
                doubles = scaled(points, rect, WIDTHS[kind], float)[at - 1 : at + length + 1]
                for n, d in zip(controls, (d for point in fit(doubles, float) for d in point)):
                    assert abs(float(n) - d) <= 1e-9 * (1 + abs(d)), place
                fits.append("%s %d %d %s" % (place, at, length, " ".join("%.15f" % n for n in controls)))

    made = "Made by make_expectations.py, which works everything out on its own. Left, top, right, bottom: the cell."
    write("outlines.txt", [made, "kind form segment count, and x, y and type of each point"], outlines)
    write("fits.txt", [made, "kind form segment, left top right bottom, first entry and length of the run,",
                       "x and y of the two control points"], fits)
    write("traces.txt", [made, "kind form segment, left top right bottom, then M (move), L (line) and C (curve) with",
                         "whole coordinates"], traces)


if __name__ == "__main__":
    main()
