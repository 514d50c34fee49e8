#!/usr/bin/env python3
"""Writes placements.tsv and grips.tsv beside itself: where the drop window of a combo must stand, and how its grip sizes it.

Worked out here anew, from the definition of the placement and without the toolkit's code. A line holds the request's
numbers, in the order of the first line, and behind them the rectangle.
"""

import itertools
import os

HERE = os.path.dirname(os.path.abspath(__file__))


def rows_below(room, row):
    """Whole rows; a negative room counts as its rows do above: towards zero."""
    return room // row if room >= 0 else -((-room) // row)


def placement(q):
    r, n, m = q["item_height"], q["item_count"], q["max_visible"]
    x, y, B, R = q["x"], q["y"], q["work_bottom"], q["work_right"]
    h = r * n + 2
    m_counts = m != -1 and not m > n
    if rows_below(B - y, r) < q["min_visible"]:
        a = y - q["combo_height"]
        if m_counts:
            top = a - r * m - 2
            if top < 0:
                top = 0
            h = a - top
        else:
            top = a - h
            if top < 0:
                top = 0
            if h > a - top:
                h = a - top
    else:
        top = y
        if m_counts:
            h = m * r
            if h > B - y:
                h = B - y
            h += 2
        elif y + h <= B:
            if h < q["arrow_height"]:
                h = q["arrow_height"]
        else:
            h = B - y
    w = q["widest_text"] + q["scroll_width"] + 8
    if w < q["list_width"]:
        w = q["cx"]
    if w < q["combo_width"]:
        w = q["combo_width"]
    left = x
    if w > R - x:
        left = R - w
    if left == 0 and w > R:
        w = R
    return left, top, w, h


FIELDS = ["x", "y", "cx", "combo_width", "combo_height", "work_right", "work_bottom", "item_count", "item_height",
          "widest_text", "max_visible", "min_visible", "list_width", "scroll_width", "arrow_height"]


def request(**changed):
    q = dict(x=100, y=220, cx=150, combo_width=150, combo_height=20, work_right=1280, work_bottom=1024, item_count=10,
             item_height=16, widest_text=80, max_visible=-1, min_visible=5, list_width=133, scroll_width=17,
             arrow_height=17)
    q.update(changed)
    return q


def placements():
    # Heights: how many items of what height, with what limit, at what distance from the lower edge.
    for n, r, m in itertools.product((0, 1, 5, 10, 60, 200), (13, 16, 31), (-1, 0, 3, 8)):
        for y in (220, 1024 - 5 * r, 1024 - 5 * r + 1):
            yield request(item_count=n, item_height=r, max_visible=m, y=y)
    # The screen's upper edge, for a combo without room below, and a combo above or below all edges.
    for y, n, m in itertools.product((20, 60, 100, 180, 182, 183, 990, 1010, 1024, 1060, 5, 0, -40), (3, 10, 100), (-1, 3)):
        yield request(y=y, item_count=n, max_visible=m, work_bottom=min(1024, max(y, 0) + 60))
    # Few rows demanded, or more than there can be.
    for low, n in itertools.product((0, 1, 5, 64), (4, 100)):
        for y in (940, 1000, 1023, 1024):
            yield request(min_visible=low, item_count=n, y=y)
    # Widths: text, list and combo in every order.
    for text, lst, cx, combo in itertools.product((0, 100, 108, 109, 124, 125, 126, 400), (133, 0), (150, 90), (150, 140)):
        yield request(widest_text=text, list_width=lst, cx=cx, combo_width=combo)
    # The work area's right edge, and a monitor left of the first.
    for x, text in itertools.product((0, 1100, 1129, 1130, 1131, 1200, 1279, 1300, -50), (10, 105, 200, 1255, 1256, 1400)):
        yield request(x=x, widest_text=text)
    for x, right in itertools.product((-1280, -300, -151, -150, -149), (0, -40)):
        yield request(x=x, work_right=right, widest_text=200)
    # Other sizes of the system's scroll bars.
    for width, height, n in itertools.product((0, 12, 30), (0, 12, 40), (0, 1, 2, 10)):
        yield request(scroll_width=width, arrow_height=height, list_width=150 - width, item_count=n)


def grip(q):
    left, top, w, h, combo, max_w, max_h, cx, cy = q
    if w < combo:
        w = combo
    elif w > max_w:
        w = max_w
    if h < cy:
        bottom = top + cx + 1
    elif h > max_h:
        bottom = top + max_h
    else:
        bottom = top + h + 2
    return left + w, bottom


def grips():
    for w, h in itertools.product((-5, 0, 99, 100, 101, 300, 399, 400, 401, 5000), (-9, 0, 16, 17, 18, 261, 262, 263, 9000)):
        yield 40, 70, w, h, 100, 400, 262, 17, 17
    for cx, cy in ((20, 12), (12, 20)):
        for h in (11, 12, 19, 20, 21):
            yield -300, -20, 150, h, 100, 400, 262, cx, cy
    # A combo that is wider than the grip may go.
    for w in (99, 149, 150, 151):
        yield 0, 0, w, 50, 150, 120, 262, 17, 17


def write(name, header, lines):
    with open(os.path.join(HERE, name), "w", newline="\n") as file:
        file.write("\t".join(header) + "\n")
        for line in lines:
            file.write("\t".join(str(number) for number in line) + "\n")


if __name__ == "__main__":
    write("placements.tsv", FIELDS + ["left", "top", "width", "height"],
          [[q[name] for name in FIELDS] + list(placement(q)) for q in placements()])
    write("grips.tsv", ["left", "top", "width", "height", "combo_width", "max_width", "max_height", "arrow_width",
                        "arrow_height", "right", "bottom"], [list(q) + list(grip(q)) for q in grips()])
