"""Fits the glyphs of the effects panel to whole pixels, with the tools of glyphs.py. Run it after a change, then `art/render NAME`."""
import math

from glyphs import (BLUE, GRASS, INK, ORANGE, PAPER, PURPLE, RED, SAND, SEA, STONE, SUN, WOOD, Glyph, blend, edge, fat, line, move,
                    oval, poly, rect)


CORNERS = {(0, 0), (20, 0), (0, 20), (20, 20)}


def star(cx, cy, outer, inner, points=5):
    turns = [(i, outer if i % 2 == 0 else inner) for i in range(2 * points)]
    return poly(*((round(cx + r * math.sin(math.pi * i / points)), round(cy - r * math.cos(math.pi * i / points)))
                  for i, r in turns))


def glyphs():
    # A ball that loses its edge towards the right.
    g = Glyph("vervagen")
    for grow, share in ((0, .78), (1, .6), (2, .4), (3, .2)):
        g.put({(x, y) for x, y in oval(1 + grow, 1 + grow, 19 - grow, 19 - grow) if x > 8}, blend(PAPER, BLUE, .85 - share))
    ball = oval(3, 3, 17, 17)
    g.put({(x, y) for x, y in ball if x <= 9}, BLUE)
    g.put({(x, y) for x, y in edge(ball) if x <= 9}, INK)
    g.put({(x, y) for x, y in oval(5, 5, 15, 15) if x > 9}, blend(PAPER, BLUE, .85))
    yield g

    # A raised star in grey clay.
    g = Glyph("relief").fig(rect(0, 0, 20, 20), STONE)
    s = star(10, 10, 8, 3.6)
    g.put((move(s, 1, 1) | move(s, 2, 2)) - s, blend(STONE, INK, .55))
    g.put((move(s, -1, -1) | move(s, -1, 0)) - s, PAPER).put(s, blend(STONE, PAPER, .45))
    yield g.put(CORNERS, None)

    # A patch of colour that flies apart.
    g = Glyph("verspreiden")
    dot = rect(0, 0, 1, 1)
    for x, y, colour in ((9, 9, RED), (7, 9, RED), (11, 9, ORANGE), (9, 7, RED), (9, 11, ORANGE), (11, 11, ORANGE), (7, 11, RED),
                         (7, 7, RED), (11, 7, ORANGE), (4, 8, RED), (5, 5, RED), (9, 4, BLUE), (14, 5, BLUE), (15, 9, BLUE),
                         (14, 13, GRASS), (10, 15, GRASS), (5, 14, GRASS), (1, 10, PURPLE), (2, 3, PURPLE), (8, 0, BLUE),
                         (18, 2, BLUE), (19, 11, SEA), (17, 17, GRASS), (9, 19, GRASS), (2, 18, PURPLE)):
        g.put(move(dot, x, y), colour)
    yield g

    # One half of a face is the other one turned round.
    g = Glyph("omkeren").fig(rect(0, 0, 20, 20), PAPER)
    g.put(rect(10, 1, 19, 19), INK)
    face = oval(3, 3, 17, 17)
    g.put({(x, y) for x, y in face if x < 10}, SUN).put({(x, y) for x, y in face if x >= 10}, BLUE)
    g.put({(x, y) for x, y in edge(face) if x < 10}, INK).put({(x, y) for x, y in edge(face) if x >= 10}, PAPER)
    g.put(rect(6, 8, 7, 9), INK).put(rect(13, 8, 14, 9), PAPER)
    g.put({(6, 13), (7, 14), (8, 14), (9, 14)}, INK).put({(14, 13), (13, 14), (12, 14), (11, 14), (10, 14)}, PAPER)
    yield g.put(CORNERS, None)

    # The sun with its rays.
    g = Glyph("helderheid")
    g.put(line(10, 0, 10, 2) | line(10, 18, 10, 20) | line(0, 10, 2, 10) | line(18, 10, 20, 10), ORANGE)
    g.put(fat(line(3, 3, 4, 4)) | fat(line(16, 16, 17, 17)) | fat(line(3, 17, 4, 16)) | fat(line(16, 4, 17, 3)), ORANGE)
    g.fig(oval(5, 5, 15, 15), SUN)
    g.put({(x, y) for x, y in oval(6, 6, 14, 14) if x + y > 22}, ORANGE)
    yield g

    # A hammer, and the dents it leaves.
    g = Glyph("hamerslag")
    g.fig(poly((11, 8), (13, 10), (5, 18), (3, 18), (2, 17), (2, 15)), WOOD)
    g.fig(poly((7, 4), (10, 1), (13, 1), (19, 7), (19, 9), (17, 11), (14, 8), (10, 8)), STONE)
    g.put(line(10, 3, 12, 3) | line(13, 4, 16, 7), PAPER)
    g.put(edge(oval(12, 14, 18, 20)), blend(STONE, INK, .5)).put(oval(13, 15, 17, 19), SAND)
    yield g

    # A picture whose columns have slipped.
    g = Glyph("zaagrand")
    shifts = (2, 4, 4, 2, 0, 0, 2, 4, 4, 2, 0, 0, 2, 4, 4, 2, 0, 0, 2, 4, 4)
    for x, down in enumerate(shifts):
        g.put(rect(x, down, x, down + 7), RED).put(rect(x, down + 8, x, down + 15), SUN)
        g.put({(x, down), (x, down + 16)}, INK)
    for x, (a, b) in enumerate(zip(shifts, shifts[1:])):
        if a != b:
            g.put(rect(x, min(a, b), x, max(a, b)) | rect(x, min(a, b) + 16, x, max(a, b) + 16), INK)
    yield g

    # Three colours, each on its slider.
    g = Glyph("vervangkleur")
    for y, at, colour in ((3, 13, RED), (10, 5, GRASS), (17, 9, BLUE)):
        g.put(line(0, y, 20, y), INK)
        g.fig(rect(at - 2, y - 3, at + 2, y + 3), colour)
    yield g


if __name__ == "__main__":
    for drawing in glyphs():
        drawing.write()
