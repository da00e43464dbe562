"""Fits the small glyphs, the stamps and the smallest icons to whole pixels and writes each as an SVG of squares.

Run it after a change (`/usr/bin/python3 art/pictures/glyphs.py`), then `art/render NAME`. A figure is a set of pixels; `fig`
fills it and draws its inner edge in ink, `ring` puts the ink around it, `put` only fills.
"""
import math
import pathlib

HERE = pathlib.Path(__file__).resolve().parent
INK, PAPER, RED, ORANGE, SUN, GRASS, LEAF = "#1b1b2f", "#ffffff", "#e63946", "#ff8c42", "#ffd23f", "#57b947", "#2e8b3d"
BLUE, SKY, SEA, PURPLE, PINK, WOOD, SAND = "#2f7de1", "#bfe3ff", "#1fa3c4", "#8e5bd0", "#ff9ebb", "#a5672f", "#f6dfa4"
STONE, PANEL, BLACK = "#b9bec9", "#cfe6ff", "#000000"


def line(x0, y0, x1, y1):
    n = max(abs(x1 - x0), abs(y1 - y0), 1)
    return {(math.floor(x0 + (x1 - x0) * i / n + .5), math.floor(y0 + (y1 - y0) * i / n + .5)) for i in range(n + 1)}


def path(*points):
    return set().union(*(line(*a, *b) for a, b in zip(points, points[1:])))


def curve(p, q, r):
    at = [tuple((1 - t) ** 2 * a + 2 * t * (1 - t) * b + t * t * c for a, b, c in zip(p, q, r))
          for t in (i / 60 for i in range(61))]
    return {(math.floor(x + .5), math.floor(y + .5)) for x, y in at}


def rect(x0, y0, x1, y1):
    return {(x, y) for x in range(x0, x1 + 1) for y in range(y0, y1 + 1)}


def inside(points, x, y):
    odd = False
    for (ax, ay), (bx, by) in zip(points, points[1:] + points[:1]):
        if (ay > y) != (by > y) and x < ax + (bx - ax) * (y - ay) / (by - ay):
            odd = not odd
    return odd


def poly(*points):
    xs, ys = [p[0] for p in points], [p[1] for p in points]
    points = list(points)
    edge = path(*points, points[0])
    return edge | {(x, y) for x in range(min(xs), max(xs) + 1) for y in range(min(ys), max(ys) + 1) if inside(points, x, y)}


def oval(x0, y0, x1, y1):
    cx, cy, rx, ry = (x0 + x1) / 2, (y0 + y1) / 2, (x1 - x0 + 1) / 2, (y1 - y0 + 1) / 2
    return {(x, y) for x in range(x0, x1 + 1) for y in range(y0, y1 + 1)
            if ((x - cx) / rx) ** 2 + ((y - cy) / ry) ** 2 <= 1 - .02 / max(rx, ry)}


def near(s, corners=False):
    steps = [(1, 0), (-1, 0), (0, 1), (0, -1)] + ([(1, 1), (1, -1), (-1, 1), (-1, -1)] if corners else [])
    return {(x + i, y + j) for x, y in s for i, j in steps}


def edge(s):
    return {p for p in s if not near({p}) <= s}


def fat(s):
    """Two pixels thick: to the right and below."""
    return s | {(x + 1, y) for x, y in s} | {(x, y + 1) for x, y in s} | {(x + 1, y + 1) for x, y in s}


def move(s, dx, dy):
    return {(x + dx, y + dy) for x, y in s}


def flip(s, size):
    return {(size - 1 - x, y) for x, y in s}


def turn(s):
    return {(y, x) for x, y in s}


def grid(rows, x0=0, y0=0, mark="#"):
    return {(x0 + x, y0 + y) for y, row in enumerate(rows.split()) for x, c in enumerate(row) if c in mark}


class Glyph:
    def __init__(self, name, size=21, ground=None):
        self.name, self.size, self.at = name, size, {}
        if ground:
            self.put(rect(0, 0, size - 1, size - 1), ground)

    def put(self, s, colour):
        for x, y in s:
            if 0 <= x < self.size and 0 <= y < self.size:
                if colour is None:
                    self.at.pop((x, y), None)
                else:
                    self.at[x, y] = colour
        return self

    def fig(self, s, fill, ink=INK):
        return self.put(s, fill).put(edge(s), ink)

    def ring(self, s, fill, ink=INK, corners=False):
        return self.put(near(s, corners) - s, ink).put(s, fill)

    def write(self):
        out = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{self.size}" height="{self.size}" '
               f'viewBox="0 0 {self.size} {self.size}" shape-rendering="crispEdges">']
        for y in range(self.size):
            x = 0
            while x < self.size:
                colour, start = self.at.get((x, y)), x
                while x < self.size and self.at.get((x, y)) == colour:
                    x += 1
                if colour:
                    out.append(f'<rect x="{start}" y="{y}" width="{x - start}" height="1" fill="{colour}"/>')
        (HERE / (self.name + ".svg")).write_text("\n".join(out + ["</svg>", ""]))


def blend(a, b, t):
    return "#" + "".join(f"{round(int(a[i:i + 2], 16) * (1 - t) + int(b[i:i + 2], 16) * t):02x}" for i in (1, 3, 5))


# ---- figures that come back ------------------------------------------------------------------------------------------------

def pencil(g, dx=0, dy=0, colour=SUN, shade=ORANGE):
    """Point at (2, 18), rubber at the upper right."""
    m = lambda s: move(s, dx, dy)
    g.fig(m(poly((2, 18), (3, 14), (14, 3), (17, 6), (6, 17))), colour)
    g.put(m(line(7, 15, 15, 7)), shade)
    g.put(m(line(5, 13, 13, 5)), blend(colour, PAPER, .5))
    g.put(m({(3, 15), (4, 15), (4, 14), (5, 15), (5, 16), (4, 16), (3, 16)}), SAND)
    g.put(m({(3, 14), (2, 17), (2, 18), (3, 17), (3, 18), (6, 17)}), INK)
    g.fig(m(poly((14, 3), (16, 1), (17, 1), (19, 3), (19, 4), (17, 6))), PINK)
    g.put(m(line(14, 3, 17, 6)), INK)
    g.put(m(line(13, 4, 16, 7)), STONE)
    g.put(m({(13, 4), (16, 7)}), INK)


def sheet(g, x0, y0, x1, y1, fold=4, paper=PAPER):
    s = poly((x0, y0), (x1 - fold, y0), (x1, y0 + fold), (x1, y1), (x0, y1))
    g.fig(s, paper)
    if fold:
        f = poly((x1 - fold, y0), (x1 - fold, y0 + fold), (x1, y0 + fold))
        g.fig(f, SKY)


def rubber(g, dx=0, dy=0):
    """A block 18 wide and 15 high with its top left at (1, 4)."""
    m = lambda s: move(s, dx, dy)
    g.fig(m(poly((1, 13), (8, 6), (19, 6), (12, 13))), blend(PINK, PAPER, .45))
    g.fig(m(poly((12, 13), (19, 6), (19, 11), (12, 18))), blend(BLUE, INK, .35))
    g.fig(m(rect(1, 13, 12, 18)), PINK)
    g.put(m(rect(6, 14, 11, 17)), BLUE)
    g.put(m(poly((7, 12), (12, 7), (17, 7), (12, 12))), blend(BLUE, PAPER, .35))
    g.put(m(line(5, 14, 5, 17)), INK)
    g.put(m(line(6, 12, 11, 7)), INK)
    g.put(m(line(12, 13, 12, 18) | line(1, 13, 12, 13) | line(12, 13, 18, 7)), INK)


STAR7 = """
...#...
...#...
#######
.#####.
..###..
.#####.
##...##"""


def arrow_back():
    head = poly((1, 8), (8, 1), (8, 15))
    ring = {(x, y) for x, y in oval(3, 5, 19, 23) - oval(7, 11, 15, 25) if y <= 18 and x >= 9}
    return head | rect(8, 5, 11, 10) | ring


def glyphs():
    g = Glyph("tekenen")
    g.put(path((6, 20), (8, 18), (9, 18), (11, 20), (12, 20), (14, 18), (15, 18), (17, 20), (18, 20)), BLUE)
    pencil(g)
    yield g

    g = Glyph("lijn")
    g.put(fat(line(3, 16, 16, 3)), INK)
    g.fig(rect(1, 15, 5, 19), RED).fig(rect(15, 1, 19, 5), RED)
    yield g

    for name, s in (("rechthoek", rect(2, 4, 18, 16)), ("cirkel", oval(2, 2, 18, 18)), ("ellips", oval(1, 5, 19, 15))):
        yield Glyph(name).put(s - (s - edge(s) - edge(s - edge(s))), INK)
        g = Glyph(name + "gevuld").fig(s, BLUE)
        yield g

    g = Glyph("opvullen")
    g.put(curve((4, 9), (3, 0), (12, 3)), INK)
    g.fig(poly((4, 11), (12, 3), (20, 11), (12, 19)), STONE)
    g.put(line(13, 6, 17, 10), PAPER).put(line(13, 17, 18, 12) | line(12, 17, 17, 12), blend(STONE, INK, .3))
    g.put(line(5, 11, 12, 4) | line(5, 12, 12, 5) | line(6, 12, 12, 6) | line(6, 11, 11, 6) | line(6, 10, 11, 5), BLUE)
    g.put(line(6, 13, 13, 6), INK)
    g.fig(oval(0, 16, 8, 20), BLUE)
    g.put(rect(2, 11, 5, 17), BLUE).put({(2, 10), (3, 10), (4, 10), (3, 9), (4, 9)}, BLUE)
    g.put(line(1, 11, 1, 16) | line(6, 13, 6, 16) | {(2, 9), (1, 10), (3, 8), (4, 8)}, INK).put({(2, 10)}, BLUE)
    g.put(line(3, 11, 3, 15), blend(BLUE, PAPER, .55))
    yield g

    g = Glyph("drop")
    g.fig(poly((10, 7), (13, 10), (6, 17), (4, 17), (3, 16), (3, 14)), SKY)
    g.put(line(5, 14, 9, 10), PAPER)
    g.put(line(5, 16, 8, 13) | line(4, 16, 7, 13) | {(5, 15), (4, 15)}, BLUE)
    g.fig(poly((12, 5), (16, 1), (18, 1), (19, 2), (19, 4), (15, 8)), RED)
    g.put(line(15, 4, 17, 2), blend(RED, PAPER, .6))
    g.put(fat(line(10, 4, 15, 9)), INK)
    g.put({(2, 17), (1, 18), (2, 18), (1, 19), (2, 19)}, BLUE)
    yield g

    g = Glyph("tekst")
    a = poly((9, 2), (11, 2), (17, 18), (14, 18), (10, 6), (6, 18), (3, 18)) | rect(6, 12, 14, 13)
    yield g.ring(a, BLUE)

    g = Glyph("spuitbus")
    g.fig(rect(10, 9, 19, 20), BLUE)
    g.put(line(12, 10, 12, 19), blend(BLUE, PAPER, .55)).put(line(17, 10, 17, 19) | line(18, 10, 18, 19), blend(BLUE, INK, .35))
    g.fig(poly((10, 9), (12, 6), (17, 6), (19, 9)), STONE).put(line(12, 8, 13, 8), PAPER)
    g.fig(rect(12, 1, 17, 6), SUN).put(rect(12, 3, 13, 4), INK)
    g.put({(x + i, y + j) for x, y in ((9, 3), (6, 1), (6, 5), (3, 0), (3, 3), (3, 7), (0, 1), (0, 5), (0, 9), (6, 9), (3, 11))
           for i in (0, 1) for j in (0, 1)}, BLUE)
    yield g

    g = Glyph("art")
    for end, bend in (((2, 1), (0, 9)), ((8, 1), (3, 8)), ((14, 2), (6, 8)), ((18, 6), (8, 10)), ((19, 12), (10, 13)), ((19, 18), (10, 18))):
        g.put(fat(curve((2, 17), bend, end)), PURPLE)
    g.fig(rect(0, 15, 5, 20), SUN)
    yield g

    g = Glyph("gom")
    rubber(g, 0, -3)
    g.put(rect(13, 18, 19, 19), BLUE).put({(1, 18), (4, 17), (3, 19), (7, 18), (9, 19), (10, 17), (6, 20)}, BLUE)
    yield g

    g = Glyph("clear")
    sheet(g, 1, 0, 15, 17)
    for y, end in ((3, 9), (4, 9), (6, 13), (7, 13), (9, 7), (10, 7)):
        g.put(line(3, y, end, y), PURPLE)
    g.put({(9, 5), (10, 5), (3, 8), (4, 8)}, PURPLE)
    g.ring(fat(line(8, 9, 17, 18)) | fat(line(17, 9, 8, 18)), RED)
    yield g

    g = Glyph("nieuw")
    sheet(g, 3, 1, 17, 19, 5)
    g.put(line(5, 3, 5, 8) | line(6, 3, 9, 3), SKY)
    yield g

    g = Glyph("openbestand")
    g.fig(poly((1, 5), (2, 4), (7, 4), (9, 6), (16, 6), (16, 18), (1, 18)), ORANGE)
    g.fig(rect(5, 2, 14, 12), PAPER).put(line(7, 5, 12, 5) | line(7, 7, 12, 7), BLUE)
    g.fig(poly((5, 10), (20, 10), (16, 18), (1, 18)), SUN)
    g.put(line(6, 11, 18, 11), blend(SUN, PAPER, .6))
    yield g

    g = Glyph("saveas")
    g.fig(poly((2, 2), (16, 2), (18, 4), (18, 18), (2, 18)), BLUE)
    g.fig(rect(6, 2, 14, 8), STONE).put(rect(11, 4, 12, 6), INK)
    g.fig(rect(5, 11, 15, 18), PAPER).put(line(7, 13, 13, 13) | line(7, 15, 13, 15), RED)
    g.put({(17, 17), (3, 17)}, INK)
    yield g

    g = Glyph("print")
    g.fig(rect(5, 1, 15, 9), PAPER)
    g.fig(poly((1, 9), (3, 7), (17, 7), (19, 9), (19, 16), (1, 16)), STONE)
    g.fig(rect(5, 1, 15, 9), PAPER).put(line(7, 4, 13, 4) | line(7, 6, 13, 6), STONE)
    g.put(line(2, 10, 18, 10), PAPER).put({(16, 12), (17, 12)}, RED).put({(13, 12), (14, 12)}, GRASS)
    g.fig(rect(4, 14, 16, 20), PAPER)
    g.put(oval(6, 15, 8, 17), SUN).put(poly((6, 19), (10, 16), (14, 19)), GRASS)
    yield g

    g = Glyph("knippen")
    g.fig(poly((4, 1), (6, 2), (12, 11), (10, 13)), STONE)
    g.fig(poly((16, 1), (14, 2), (8, 11), (10, 13)), PAPER)
    for x in (2, 11):
        s = oval(x, 12, x + 7, 20)
        hole = oval(x + 3, 15, x + 4, 17)
        g.put(s - hole, RED).put(edge(s), INK).put(near(hole) - hole, INK).put(hole, None)
    g.put(rect(9, 10, 11, 12), INK).put({(10, 11)}, SUN)
    yield g

    g = Glyph("copy")
    for x, y in ((0, 0), (8, 7)):
        sheet(g, x, y, x + 12, y + 13, 3)
        g.put(move(grid(STAR7), x + 3, y + 4), RED)
    yield g

    g = Glyph("plakken")
    g.fig(rect(1, 3, 19, 20), WOOD)
    g.fig(rect(4, 6, 16, 18), PAPER)
    g.fig(rect(5, 2, 15, 6), STONE).put(line(6, 3, 14, 3), PAPER)
    g.fig(rect(8, 0, 12, 3), STONE)
    g.put(move(grid(STAR7), 7, 9), RED)
    yield g

    yield Glyph("undo").fig(arrow_back(), SUN)
    yield Glyph("redo").fig(flip(arrow_back(), 21), GRASS)

    g = Glyph("help")
    bow = oval(4, 0, 16, 11) - oval(8, 4, 12, 7)
    bow = {(x, y) for x, y in bow if not (y >= 6 and x < 9)} | rect(8, 8, 12, 13)
    bow = {(x, y) for x, y in bow if not (x < 8 and y > 5)}
    g.fig(bow, PURPLE)
    g.fig(rect(8, 15, 12, 19), PURPLE)
    yield g

    g = Glyph("formaat")
    g.put({p for p in edge(rect(0, 0, 20, 20)) if sum(p) % 4 < 2}, INK)
    g.fig(rect(0, 10, 10, 20), SKY)
    g.put(rect(1, 17, 9, 19) | poly((1, 17), (4, 14), (7, 17)), GRASS).put(rect(6, 12, 8, 14), SUN)
    arrow = {(x + i, y) for x, y in line(7, 13, 15, 5) for i in (0, 1)}
    g.ring(arrow | poly((11, 3), (17, 3), (17, 9)), RED)
    yield g

    axis = {(x, 10) for x in range(0, 21) if x % 4 != 3}
    up, down = poly((3, 8), (17, 8), (3, 1)), poly((3, 12), (17, 12), (3, 19))
    yield Glyph("spiegelv").put(axis, RED).fig(up, BLUE).fig(down, SKY)
    yield Glyph("spiegelh").put(turn(axis), RED).fig(turn(up), BLUE).fig(turn(down), SKY)

    g = Glyph("palet")
    s = oval(1, 2, 19, 18) - oval(13, 14, 23, 24)
    g.fig(s, SAND)
    hole = rect(10, 10, 11, 11)
    g.put(near(hole), INK).put(hole, None)
    for x, y, c in ((3, 9, RED), (5, 5, SUN), (9, 3, GRASS), (13, 5, BLUE), (4, 13, ORANGE), (8, 14, PURPLE)):
        g.put(rect(x, y, x + 2, y + 2), c)
    yield g

    # ---- buttons that open a panel: on light blue
    g = Glyph("lijnen", ground=PANEL)
    for x0, y0, x1, y1, half in ((1, 7, 7, 1, .6), (2, 14, 14, 2, 1.3), (7, 17, 17, 7, 2.9)):
        g.put({(x, y) for x in range(21) for y in range(21)
               for t in [max(0, min(1, ((x - x0) * (x1 - x0) + (y - y0) * (y1 - y0)) / ((x1 - x0) ** 2 + (y1 - y0) ** 2)))]
               if math.hypot(x - x0 - t * (x1 - x0), y - y0 - t * (y1 - y0)) <= half}, INK)
    yield g

    g = Glyph("gommen", ground=PANEL)
    for x, y, wide, high in ((1, 15, 4, 4), (1, 1, 8, 8), (8, 8, 11, 11)):
        g.fig(rect(x, y, x + wide, y + high), PINK)
        half = x + wide * 2 // 5
        g.put(rect(half, y + 1, x + wide - 1, y + high - 1), BLUE)
        if wide > 4:
            g.put(line(half, y, half, y + high), INK).put(line(half + 2, y + 2, x + wide - 2, y + 2), blend(BLUE, PAPER, .5))
    yield g

    g = Glyph("lineaal", ground=PANEL)
    g.fig(rect(0, 8, 20, 16), SUN)
    for i, x in enumerate(range(2, 20, 2)):
        g.put(line(x, 9, x, 12 if i % 4 == 0 else 10), INK)
    g.put(rect(1, 5, 16, 6), BLUE)
    g.put(line(1, 15, 19, 15), ORANGE)
    yield g

    g = Glyph("vulling", ground=PANEL)
    for x, y, rule, c in ((1, 1, lambda i, j: (i + j) % 3 == 0, RED), (11, 1, lambda i, j: i % 2 == 0 and j % 2 == 0, BLUE),
                          (1, 11, lambda i, j: i % 3 == 1 or j % 3 == 1, LEAF), (11, 11, lambda i, j: (i - j) % 4 < 2, PURPLE)):
        g.fig(rect(x, y, x + 8, y + 8), PAPER)
        g.put({(x + 1 + i, y + 1 + j) for i in range(7) for j in range(7) if rule(i, j)}, c)
    yield g

    g = Glyph("borstels", ground=PANEL)
    g.fig(poly((8, 9), (16, 1), (18, 1), (19, 2), (19, 4), (11, 12)), WOOD)
    g.fig(poly((6, 10), (8, 9), (11, 12), (10, 14), (9, 14)), STONE)
    g.fig(poly((6, 10), (10, 14), (8, 18), (5, 19), (1, 19), (3, 16), (3, 13)), RED)
    g.put(line(4, 17, 7, 14), blend(RED, PAPER, .5))
    g.put(grid(STAR7, 1, 1), ORANGE)
    g.fig(oval(13, 13, 19, 19), GRASS)
    yield g

    g = Glyph("gradient", ground=PANEL)
    g.fig(rect(1, 3, 19, 17), RED)
    for x in range(2, 19):
        t = (x - 2) / 16
        g.put(line(x, 4, x, 16), blend(RED, SUN, t * 2) if t < .5 else blend(SUN, PAPER, t * 2 - 1))
    yield g

    g = Glyph("effecten", ground=PANEL)
    g.fig(poly((8, 10), (10, 8), (20, 18), (18, 20)), PURPLE)
    g.fig(poly((8, 10), (10, 8), (13, 11), (11, 13)), PAPER)
    g.ring(move(grid(STAR7), 2, 2), SUN)
    g.put({(14, 2), (13, 3), (14, 3), (15, 3), (14, 4)}, RED)
    g.put({(3, 14), (2, 15), (3, 15), (4, 15), (3, 16)}, BLUE)
    g.put({(18, 8), (17, 9), (18, 9), (19, 9), (18, 10)}, LEAF)
    g.put({(8, 18), (12, 16), (18, 4), (11, 2)}, INK)
    yield g

    g = Glyph("zoom", ground=PANEL)
    g.fig(poly((11, 13), (13, 11), (19, 17), (19, 18), (18, 19), (17, 19)), WOOD)
    s = oval(1, 1, 14, 14)
    g.put(s, INK)
    g.fig(oval(2, 2, 13, 13), PAPER, STONE).put(edge(oval(3, 3, 12, 12)), INK)
    g.put(oval(4, 4, 11, 11), SKY)
    g.put(line(5, 7, 7, 5) | line(5, 8, 5, 8), PAPER)
    yield g

    g = Glyph("roteren", ground=PANEL)
    g.fig(poly((10, 5), (15, 10), (10, 15), (5, 10)), SUN)
    one = {(x, y) for x, y in oval(0, 0, 20, 20) - oval(3, 3, 17, 17) if x > 9 and y < 9} | poly((13, 8), (20, 8), (17, 12))
    g.fig(one, RED).fig({(20 - x, 20 - y) for x, y in one}, RED)
    yield g

    # ---- the text dialogue
    b = rect(4, 3, 7, 17) | rect(4, 3, 12, 5) | rect(4, 9, 13, 11) | rect(4, 15, 12, 17) | rect(12, 4, 15, 8) | rect(13, 11, 16, 15)
    b |= rect(12, 15, 14, 16) | rect(12, 9, 14, 11)
    yield Glyph("stijlb").put(b, INK)
    yield Glyph("stijli").put({(12 - (y - 3) // 3 + i, y) for y in range(3, 18) for i in (0, 1)} | rect(9, 3, 16, 3) | rect(4, 17, 11, 17), INK)
    u = rect(5, 1, 6, 11) | rect(14, 1, 15, 11) | path((6, 12), (8, 14), (12, 14), (14, 12)) | path((5, 12), (7, 14)) | line(13, 13, 15, 12)
    u |= path((6, 13), (8, 15), (12, 15), (14, 13)) | {(15, 12), (5, 12), (6, 12), (14, 12)}
    yield Glyph("stijlu").put(u, INK).put(rect(3, 18, 17, 19), INK)
    r = rect(5, 3, 6, 17) | rect(5, 3, 12, 3) | rect(5, 10, 12, 10) | rect(14, 5, 15, 8) | {(13, 4), (14, 4), (13, 9), (14, 9)}
    r |= path((10, 10), (15, 17)) | path((11, 10), (16, 17))
    yield Glyph("stijlr").put(r, INK)
    s = path((14, 5), (12, 3), (8, 3), (6, 5), (6, 7), (8, 9), (12, 11), (14, 13), (14, 15), (12, 17), (8, 17), (6, 15))
    s |= move(s, 1, 0)
    yield Glyph("stijls").put(s, INK).put(rect(2, 10, 18, 10), RED)

    # ---- the picture in the gradient panel
    g = Glyph("overgang", 25)
    for x in range(1, 24):
        g.put(line(x, 2, x, 13), blend(RED, SUN, (x - 1) / 22))
    g.put(edge(rect(0, 1, 24, 14)), INK)
    g.ring(rect(2, 19, 14, 20) | poly((15, 17), (15, 22), (18, 19)) | {(18, 20), (17, 21), (16, 21)}, BLUE)
    yield g


def icons():
    """The icon where the large drawing would blur."""
    g = Glyph("pictogram16", 16)
    g.put(path((4, 15), (5, 14), (6, 14), (7, 15), (9, 15), (10, 14), (11, 14), (12, 15), (14, 15)), RED)
    body = poly((0, 15), (1, 10), (10, 1), (12, 1), (14, 3), (14, 5), (5, 14))
    g.put(near(body), PAPER)
    g.fig(body, SUN)
    inner = body - edge(body)
    g.put({(x, y) for x, y in inner if x + y > 16}, ORANGE).put({(x, y) for x, y in inner if x - y > 6}, PINK)
    g.put({(x, y) for x, y in inner if x - y == 6}, INK)
    g.put({(x, y) for x, y in inner if x - y < -7}, SAND).put({(1, 13), (1, 14), (2, 14)}, INK)
    g.put({(5, 8), (5, 9), (8, 8), (8, 9)}, INK).put({(4, 9), (6, 8), (6, 9), (7, 9), (7, 8), (7, 7), (6, 7), (9, 7), (5, 7), (8, 7), (6, 10), (7, 10), (5, 10)}, SUN)
    yield g

    g = Glyph("pictogram24", 24)
    wave = path((0, 22), (2, 20), (3, 20), (5, 22), (7, 22), (9, 20), (10, 20), (12, 22), (14, 22), (16, 20), (17, 20), (19, 22), (21, 22))
    g.put(wave | move(wave, 0, 1), RED)
    g.fig(poly((2, 20), (3, 13), (14, 2), (16, 1), (19, 1), (22, 4), (22, 7), (21, 9), (10, 19)), SUN)
    g.put(line(9, 18, 19, 8) | line(10, 18, 20, 8) | line(9, 17, 19, 7), ORANGE)
    g.fig(poly((13, 3), (14, 2), (16, 1), (19, 1), (22, 4), (22, 7), (20, 10)), PINK)
    g.fig(poly((2, 20), (3, 13), (10, 19)), SAND).put({(3, 18), (3, 19), (4, 19), (4, 18), (5, 19)}, INK)
    g.put(rect(9, 9, 10, 11) | rect(13, 9, 14, 11), INK)
    g.put({(9, 13), (10, 14), (11, 14), (12, 14), (13, 14), (14, 13)}, INK)
    yield g

    g = Glyph("pictogram32", 32)
    wave = path((0, 30), (3, 27), (4, 27), (7, 30), (9, 30), (12, 27), (14, 27), (17, 30), (19, 30), (22, 27), (24, 27), (27, 30), (29, 30))
    g.put(wave | move(wave, 0, 1) | move(wave, 0, -1), RED)
    body = poly((3, 27), (5, 18), (19, 4), (22, 2), (26, 2), (29, 5), (29, 9), (27, 12), (13, 26))
    g.fig(body, SUN)
    g.put({(x, y) for x, y in body if x + y > 34}, ORANGE).put(edge(body), INK)
    g.fig(poly((18, 5), (19, 4), (22, 2), (26, 2), (29, 5), (29, 9), (27, 12), (26, 13)), PINK)
    g.fig(poly((3, 27), (5, 18), (13, 26)), SAND).put(rect(4, 24, 5, 26) | {(6, 26), (6, 25)}, INK)
    g.put(edge(body) | {p for p in edge(body - edge(body))}, INK)
    g.put(rect(14, 12, 15, 14) | rect(19, 12, 20, 14), INK)
    g.put({(13, 16), (14, 17), (15, 18), (16, 18), (17, 18), (18, 17), (19, 16)} | line(14, 18, 18, 18), INK)
    yield g


def stamps():
    """What the tool prints, around the middle pixel."""
    n = 0

    def stamp(s):
        nonlocal n
        n += 1
        return Glyph(f"borstel{n}", 25).put(move(s, 12, 12), BLACK)
    plus = line(0, 5, 0, -5) | line(5, 0, -5, 0)
    rise, fall = line(-5, 5, 5, -5), line(5, 5, -5, -5)
    up = poly((-5, 5), (5, 5), (0, -5))
    yield stamp(rise)
    yield stamp(fall)
    yield stamp(plus)
    yield stamp(plus | rise | fall)
    yield stamp({(x, y) for x, y in rect(-5, -5, 5, 5) if x * x + y * y <= 29})     # radius 5, its edge rounded outwards
    yield stamp(rect(-5, -5, 5, 5))
    yield stamp(up)
    yield stamp({(x, -y) for x, y in up})
    yield stamp({(y, x) for x, y in up})
    yield stamp({(-y, x) for x, y in up})
    yield stamp(path((-5, 5), (5, -2), (-5, -2), (5, 5), (0, -5), (-5, 5)))
    yield stamp({(x, y) for x in range(-5, 6) for y in range(-5, 6) if abs(x) + abs(y) <= 5})
    sticks = (line(-9, 2, -2, -6) | line(2, -9, 4, 1) | line(-6, 7, 3, 5) | line(6, -4, 10, 4) | line(5, 10, 9, 7)
              | line(-10, -8, -6, -3))
    yield stamp(sticks | move(sticks, 1, 0))


if __name__ == "__main__":
    for drawing in [*glyphs(), *icons(), *stamps()]:
        drawing.write()
