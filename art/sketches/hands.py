"""Hands for the sketches: the wrist lies at (x, y), the fingers point to the right and turn by degrees. Draw them before the sleeve,
whose hem then makes the cuff; or give `hand_parts` to `Page.one` with a bare arm.
"""
import math

OUTLINES = {
    "open": "-12 -11!, 0 -11, 5 -22, 12 -31, 20 -29, 20 -20, 18 -12, 32 -13, 43 -9, 45 0, 42 9, 30 14, 10 13, -12 11!",
    "flat": "-12 -10!, 2 -11, 12 -18, 26 -19, 30 -13, 24 -9, 36 -9, 48 -3, 49 4, 42 10, 24 12, 6 11, -12 10!",
    "fist": "-12 -11!, 0 -12, 8 -19, 22 -20, 31 -14, 33 -2, 32 10, 25 18, 10 18, 1 12, -12 11!",
    "point": "-12 -11!, 2 -13, 14 -17, 25 -15, 29 -8, 48 -8, 52 -3, 48 3, 31 4, 29 13, 14 16, 2 13, -12 11!",
    "glove": "-8 -17!, 4 -19, 8 -36, 17 -42, 26 -36, 25 -21!, 44 -23, 55 -19, 55 -10, 47 -8!, 60 -8, 66 -1, 60 5, 48 4!, 58 7, 61 14, 53 19, 43 16!, 46 22, 40 27, 24 24, 4 19, -8 17!",
}
FINGERS = {
    "open": ("46 -3, 32 -3", "44 5, 32 5"),
    "flat": ("49 0, 36 1",),
    "fist": ("34 -6, 21 -5", "34 4, 21 4"),
    "point": (),
    "glove": (),
}


def mirrored(text):
    return ", ".join(f"{x} {-float(y.rstrip('!'))}{'!' if '!' in y else ''}" for x, y in (part.split() for part in text.split(",")))


def hand_parts(x, y, turn=0, kind="open", thumb=-1, size=1.0):
    """The outline of a hand as a part of `Page.one`, and its finger lines. `thumb`: -1 above, 1 below a hand that points right."""
    c, s = math.cos(math.radians(turn)) * size, math.sin(math.radians(turn)) * size

    def placed(text):
        text = text if thumb < 0 else mirrored(text)
        out = []
        for part in text.split(","):
            a, b = (float(v.rstrip("!")) for v in part.split())
            out.append((x + a * c - b * s, y + a * s + b * c, "!" in part))
        return out

    return placed(OUTLINES[kind]), [placed(line) for line in FINGERS[kind]]


def hand(p, x, y, turn=0, kind="open", thumb=-1, size=1.0, lines=True):
    """Draws a hand with its fingers."""
    outline, fingers = hand_parts(x, y, turn, kind, thumb, size)
    p.shape(outline)
    if lines:
        p.lines(*fingers)
