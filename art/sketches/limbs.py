"""Hands and sleeves for the sketches: a hand has a thumb and fingers that close, a sleeve grows out of its body and ends in a cuff.

A hand leaves its wrist at (x, y) in the direction `turn` (degrees, 0: to the right, 90: down); `thumb` 1: the thumb stands at the
left of that direction (above, for a hand that points to the right), -1: at the other side. A hand is 40 long at size 1.
"""
from hand import along, limb

HANDS = {
    # a mitten with its thumb spread
    "open": ("-10 -9!, 2 -10, 8 -15, 13 -26, 22 -25, 22 -15, 27 -11, 37 -10, 44 -1, 38 9, 24 13, 6 11, -10 9!", ()),
    # fingers closed round something that runs across them
    "fist": ("-10 -9!, 4 -11, 16 -16, 28 -13, 33 -4, 33 6, 28 13, 14 15, 2 11, -10 9!", ("33 -4, 20 -4", "33 5, 21 5")),
    # thumb and fingers open like a beak: what they hold lies between
    "pinch": ("-10 -9!, 2 -11, 14 -17, 28 -19, 33 -12, 24 -6, 20 0!, 28 1, 38 1, 41 9, 32 14, 14 14, 2 11, -10 9!", ()),
    # one finger points
    "point": ("-10 -9!, 2 -10, 8 -15, 12 -22, 20 -21, 21 -12, 44 -11, 49 -6, 44 -1, 30 0, 31 8, 22 14, 6 11, -10 9!", ()),
}


def palm(p, x, y, turn=0, size=1, kind="open", thumb=1):
    """Draws a hand."""
    outline, creases = HANDS[kind]
    side = lambda text: ", ".join(f"{w[0]} {float(w[1].strip('!')) * thumb}{'!' if '!' in w[1] else ''}" for w in (q.split() for q in text.split(",")))
    with p.at(x, y, size, turn):
        p.shape(side(outline))
        for crease in creases:
            p.line(side(crease))


def sleeve(p, way, *widths, grow=True, steps=9):
    """Draws a sleeve along a curve from the shoulder to the cuff, without a line where it leaves the body (`grow`)."""
    x, y, dx, dy = along(way, 9)[0]
    p.one(limb(way, *widths, flat=True, steps=steps), join=[(x + dx * 2, y + dy * 2, widths[0] * .62)] if grow else None)
