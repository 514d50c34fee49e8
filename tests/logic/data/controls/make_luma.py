#!/usr/bin/env python3
"""Writes luma.txt: what a change of luminance makes of colours, worked out with fractions.

A line: colour, thousandths, result; colours as BBGGRR. The colour goes to hue, luminance and saturation, whole numbers
of 0 to 240 each, its luminance moves by so many thousandths of the way to 240, or of the way to 0 if they are negative,
by a whole number again, and it goes back by way of components that are whole numbers of 0 to 240. Everything is rounded
to the nearest, halves away from zero; only a grey's components are cut.

    tests/logic/data/controls/make_luma.py > tests/logic/data/controls/luma.txt
"""
from fractions import Fraction
from math import floor
import colorsys
import random


def near(value):
    return floor(abs(value) + Fraction(1, 2)) * (1 if value >= 0 else -1)


def to_hls(red, green, blue):
    """Textbook definition on the circle of six sectors, in fractions of the range."""
    unit = [Fraction(part, 255) for part in (red, green, blue)]
    top, bottom = max(unit), min(unit)
    luminance = near((top + bottom) / 2 * 240)
    if top == bottom:
        return 160, luminance, 0
    chroma = top - bottom
    # Which half of the double cone the colour lies in is decided by the luminance as it is kept.
    room = top + bottom if luminance <= 120 else 2 - top - bottom
    saturation = near(chroma / room * 240)
    strongest = unit.index(top)
    following, preceding = unit[(strongest + 1) % 3], unit[(strongest + 2) % 3]
    # Sectors of 40; the way is measured from the strongest component to each of the others.
    away = near((top - preceding) / chroma * 40) - near((top - following) / chroma * 40)
    return (strongest * 80 + away) % 240, luminance, saturation


def to_rgb(hue, luminance, saturation):
    if saturation == 0:
        return [floor(Fraction(luminance, 240) * 255)] * 3
    if luminance <= 120:
        top = near(Fraction(luminance) * (240 + saturation) / 240)
    else:
        top = luminance + saturation - near(Fraction(luminance) * saturation / 240)
    bottom = 2 * luminance - top
    result = []
    for centre in (0, 80, 160):
        distance = abs((hue - centre + 120) % 240 - 120)  # of the component's own hue, around the circle
        if distance <= 40:
            part = top
        elif distance >= 80:
            part = bottom
        else:
            part = bottom + near(Fraction(80 - distance, 40) * (top - bottom))
        result.append(min(255, max(0, near(Fraction(part, 240) * 255))))
    return result


def moved(red, green, blue, change):
    if change == 0:
        return [red, green, blue]
    hue, luminance, saturation = to_hls(red, green, blue)
    way = 240 - luminance if change > 0 else luminance
    luminance += near(Fraction(way * change, 1000))
    result = to_rgb(hue, luminance, saturation)
    # A colour library of floats must not be far away.
    h, l, s = colorsys.rgb_to_hls(red / 255, green / 255, blue / 255)
    l += ((1 - l) if change > 0 else l) * change / 1000
    floats = [part * 255 for part in colorsys.hls_to_rgb(h, l, s)]
    assert all(abs(a - b) < 8 for a, b in zip(result, floats)), (red, green, blue, change, result, floats)
    return result


random.seed(5)
colours = [(0, 0, 0), (255, 255, 255), (255, 0, 0), (0, 255, 0), (0, 0, 255), (255, 255, 0), (0, 255, 255),
           (255, 0, 255), (128, 128, 128), (192, 192, 192), (1, 0, 0), (254, 255, 255), (0xB4, 0xB4, 0xC8),
           (240, 240, 240), (212, 208, 200), (127, 128, 127), (1, 2, 3), (250, 128, 3)]
colours += [tuple(random.randrange(256) for _ in range(3)) for _ in range(182)]
print("# colour thousandths result, colours as BBGGRR; written by make_luma.py")
for colour in colours:
    for change in (500, -333, random.randrange(-1000, 1001)):
        red, green, blue = moved(*colour, change)
        print(f"{colour[2]:02X}{colour[1]:02X}{colour[0]:02X} {change} {blue:02X}{green:02X}{red:02X}")
