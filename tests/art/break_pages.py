#!/usr/bin/env python3
"""Proves that the checks of art/check.py can fail: draws pages with one fault each and looks whether the check says so, and
that it accuses no page without the fault. Needs what art/render needs (Pillow, numpy). Exits 1 if a fault goes unnoticed."""
import contextlib
import io
import pathlib
import sys
import tempfile

from PIL import Image, ImageDraw

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent.parent / "art"))
import check


def page(damage=lambda pen: None, across=7, down=7, size=(617, 537)):
    """A page of squares with a frame, damaged by `damage`."""
    image = Image.new("RGB", size, "white")
    pen = ImageDraw.Draw(image)
    pen.rectangle([0, 0, size[0] - 1, size[1] - 1], None, "black", 5)
    for k in range(across + 1):
        pen.line([(2 + k * 612 // across, 0), (2 + k * 612 // across, 537)], "black", 4)
    for k in range(down + 1):
        pen.line([(0, 2 + k * 532 // down), (617, 2 + k * 532 // down)], "black", 4)
    damage(pen)
    return image


def line_to(gap):
    """A line in the first square that ends `gap` pixels before the square's right side (which begins at x = 88)."""
    return lambda pen: pen.rectangle([30, 40, 87 - gap, 43], "black")


def wedge(pen):
    """An inked corner: where two lines part, the space between them is filled."""
    pen.line([(90, 80), (177, 140)], "black", 4)
    pen.polygon([(90, 79), (125, 79), (125, 104)], "black")


GOOD = {
    "a clean page": page(),
    "a line that runs into the next": page(line_to(0)),
    "a line that ends well before the next": page(line_to(9)),
    "a pupil": page(lambda pen: pen.ellipse([40, 30, 56, 50], "black")),
    "a nose on a line": page(lambda pen: pen.ellipse([78, 30, 100, 50], "black")),
}
BAD = {
    "areas: too few": ("too few or too many areas", page(across=5, down=6)),
    "areas: too many": ("too few or too many areas", page(across=9, down=9)),
    "crumbs": ("too many crumbs", page(lambda pen: [pen.rectangle([20 + 9 * k, 20, 24 + 9 * k, 24], "white", "black") for k in range(7)])),
    "an inked corner": ("inked corners", page(wedge)),
    "an inked sliver": ("inked corners", page(lambda pen: pen.rectangle([10, 30, 70, 42], "black"))),
    "a line 3 pixels short": ("lines stop short", page(line_to(3))),
    "a line 6 pixels short": ("lines stop short", page(line_to(6))),
    "grey": ("colours", page(lambda pen: pen.rectangle([30, 30, 40, 40], "gray"))),
    "size": ("size", page(size=(617, 540))),
}


def said(image):
    """What check.py says about the page; None if it finds no fault."""
    out = io.StringIO()
    with tempfile.TemporaryDirectory() as place, contextlib.redirect_stdout(out):
        path = pathlib.Path(place) / "sample.png"
        image.save(path)
        fine = check.judge(path, None)
    return None if fine else out.getvalue()


def main():
    missed = 0
    for name, image in GOOD.items():
        if words := said(image):
            missed += 1
            print(f"{name} is accused: {words}")
    for name, (fault, image) in BAD.items():
        if fault not in (said(image) or ""):
            missed += 1
            print(f"{name} goes unnoticed: {said(image)}")
    print(f"{missed} checks fail" if missed else "every fault is noticed")
    return 1 if missed else 0


sys.exit(main())
