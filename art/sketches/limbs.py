"""Hands and sleeves for the sketches: a hand has a thumb and fingers that close, a sleeve grows out of its body and ends in a cuff.

A hand leaves its wrist at (x, y) in the direction `turn` (degrees, 0: to the right, 90: down); `thumb` 1: the thumb stands at the
left of that direction (above, for a hand that points to the right), -1: at the other side. A hand is 40 long at size 1.
"""
import math

from hand import along, limb, points

HANDS = {
    # a mitten with its thumb spread
    "open": ("-10 -9!, 2 -10, 8 -15, 13 -26, 22 -25, 22 -15, 27 -11, 37 -10, 44 -1, 38 9, 24 13, 6 11, -10 9!", ()),
    # fingers closed round something that runs across them
    "fist": ("-10 -9!, 4 -11, 16 -16, 28 -13, 33 -4, 33 6, 28 13, 14 15, 2 11, -10 9!", ("33 -4, 20 -4", "33 5, 21 5")),
    # thumb and fingers open like a beak: what they hold lies between
    "pinch": ("-10 -9!, 2 -11, 14 -17, 28 -19, 33 -12, 24 -6, 20 0!, 28 1, 38 1, 41 9, 32 14, 14 14, 2 11, -10 9!", ()),
    # one finger points
    "point": ("-10 -9!, 2 -10, 8 -15, 12 -22, 20 -21, 21 -12, 44 -11, 49 -6, 44 -1, 30 0, 31 8, 22 14, 6 11, -10 9!", ()),
    # fingers stretched together, the thumb beside them: to lie on a table, a back, a belly
    "flat": ("-12 -10!, 2 -11, 12 -18, 26 -19, 30 -13, 24 -9, 36 -9, 48 -3, 49 4, 42 10, 24 12, 6 11, -12 10!", ("49 0, 36 1",)),
    # a hand that waves or is thrown up, its fingers together
    "wave": ("-12 -11!, 0 -11, 5 -22, 12 -31, 20 -29, 20 -20, 18 -12, 32 -13, 43 -9, 45 0, 42 9, 30 14, 10 13, -12 11!",
             ("46 -3, 32 -3", "44 5, 32 5")),
    # a keeper's glove, all fingers apart
    "glove": ("-8 -17!, 4 -19, 8 -36, 17 -42, 26 -36, 25 -21!, 44 -23, 55 -19, 55 -10, 47 -8!, 60 -8, 66 -1, 60 5, 48 4!, 58 7, 61 14, "
              "53 19, 43 16!, 46 22, 40 27, 24 24, 4 19, -8 17!", ()),
}


def placed(text, x, y, turn, size, thumb):
    """The points of a hand's outline or crease, where the hand lies on the page."""
    c, s = math.cos(math.radians(turn)) * size, math.sin(math.radians(turn)) * size
    return [(x + a * c - b * thumb * s, y + a * s + b * thumb * c, corner) for a, b, corner in points(text)]


def palm(p, x, y, turn=0, size=1, kind="open", thumb=1):
    """Draws a hand."""
    outline, creases = HANDS[kind]
    p.shape(placed(outline, x, y, turn, size, thumb))
    for crease in creases:
        p.line(placed(crease, x, y, turn, size, thumb))


def bare_arm(p, way, *widths, turn=0, size=1, kind="open", thumb=1, join=None):
    """Draws an arm without a sleeve: arm and hand are one outline. `join` as in `Page.one`."""
    x, y, _, _ = along(way, 9)[-1]
    outline, creases = HANDS[kind]
    p.one(limb(way, *widths), placed(outline, x, y, turn, size, thumb), join=join)
    for crease in creases:
        p.line(placed(crease, x, y, turn, size, thumb))


def sleeve(p, way, *widths, grow=True, steps=9):
    """Draws a sleeve along a curve from the shoulder to the cuff, without a line where it leaves the body (`grow`)."""
    x, y, dx, dy = along(way, 9)[0]
    p.one(limb(way, *widths, flat=True, steps=steps), join=[(x + dx * 2, y + dy * 2, widths[0] * .62)] if grow else None)
