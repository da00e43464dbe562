"""The pen of the sketches: smooth outlines through a few points, limbs that grow out of a body, faces that look somewhere.

A sketch (NN.py beside this file; run it, then art/render NN) builds a `Page` from back to front and writes art/pages/NN.svg. Points are written as text,
"10 20, 30 40!": a smooth curve runs through them, and a point with ! is a corner. Lengths are pixels of the page.
"""
import contextlib
import math
import pathlib
import re

PAGES = pathlib.Path(__file__).resolve().parent.parent / "pages"


def points(text):
    """[(x, y, corner)] of "x y, x y!"; lists pass through."""
    if not isinstance(text, str):
        return [(p[0], p[1], len(p) > 2 and p[2]) for p in text]
    found = []
    for part in text.split(","):
        x, y = part.replace("!", " ").split()
        found.append((float(x), float(y), "!" in part))
    return found


def tangents(pts, closed):
    """The direction of the curve at each point (None at corners and open ends): nearer neighbours weigh more."""
    out, n = [], len(pts)
    for i, (x, y, corner) in enumerate(pts):
        if corner or (not closed and i in (0, n - 1)):
            out.append(None)
            continue
        (ax, ay, _), (bx, by, _) = pts[i - 1], pts[(i + 1) % n]
        da, db = math.hypot(x - ax, y - ay) or 1, math.hypot(bx - x, by - y) or 1
        tx, ty = (x - ax) / da * db + (bx - x) / db * da, (y - ay) / da * db + (by - y) / db * da
        long = math.hypot(tx, ty) or 1
        out.append((tx / long, ty / long))
    return out


def beziers(pts, closed):
    """The curve as a list of (start, control, control, end)."""
    way, n = tangents(pts, closed), len(pts)
    out = []
    for i in range(n if closed else n - 1):
        j = (i + 1) % n
        (ax, ay, _), (bx, by, _) = pts[i], pts[j]
        long = math.hypot(bx - ax, by - ay)
        reach = long * .36
        a, b = way[i], way[j]
        if a is None and b is None:
            c, d = (ax + (bx - ax) / 3, ay + (by - ay) / 3), (bx - (bx - ax) / 3, by - (by - ay) / 3)
        else:
            d = (bx - b[0] * reach, by - b[1] * reach) if b else None
            c = (ax + a[0] * reach, ay + a[1] * reach) if a else (ax + (d[0] - ax) * .4, ay + (d[1] - ay) * .4)
            d = d or (bx + (c[0] - bx) * .4, by + (c[1] - by) * .4)
        out.append(((ax, ay), c, d, (bx, by)))
    return out


def along(text, count, closed=False):
    """`count` places on the curve with the direction there: [(x, y, dx, dy)]."""
    fine = []
    for a, b, c, d in beziers(points(text), closed):
        for k in range(24):
            t, s = k / 24, 1 - k / 24
            fine.append(tuple(s ** 3 * a[i] + 3 * s * s * t * b[i] + 3 * s * t * t * c[i] + t ** 3 * d[i] for i in (0, 1)))
    fine.append(d)
    run = [0]
    for a, b in zip(fine, fine[1:]):
        run.append(run[-1] + math.hypot(b[0] - a[0], b[1] - a[1]))
    out, k = [], 0
    for i in range(count):
        want = run[-1] * i / (count - 1)
        while k < len(run) - 2 and run[k + 1] < want:
            k += 1
        t = (want - run[k]) / ((run[k + 1] - run[k]) or 1)
        (ax, ay), (bx, by) = fine[k], fine[k + 1]
        lo, hi = fine[max(0, k - 2)], fine[min(len(fine) - 1, k + 3)]
        long = math.hypot(hi[0] - lo[0], hi[1] - lo[1]) or 1
        out.append((ax + (bx - ax) * t, ay + (by - ay) * t, (hi[0] - lo[0]) / long, (hi[1] - lo[1]) / long))
    return out


def oval(x, y, rx, ry=None, turn=0):
    """An ellipse as an outline; `turn` in degrees."""
    ry = rx if ry is None else ry
    c, s = math.cos(math.radians(turn)), math.sin(math.radians(turn))
    out = []
    for k in range(8):
        a, b = rx * math.cos(k * math.pi / 4), ry * math.sin(k * math.pi / 4)
        out.append((x + a * c - b * s, y + a * s + b * c, False))
    return out


def limb(text, *widths, flat=False, steps=9):
    """A limb along a curve, as wide as `widths` say from root to tip (any number of them); round at the tip, or cut off flat."""
    widths = widths if len(widths) > 1 else widths * 2
    spine = along(text, steps)
    one, other = [], []
    for i, (x, y, dx, dy) in enumerate(spine):
        at = i / (steps - 1) * (len(widths) - 1)
        k = min(int(at), len(widths) - 2)
        half = (widths[k] + (widths[k + 1] - widths[k]) * (at - k)) / 2
        one.append((x - dy * half, y + dx * half, False))
        other.append((x + dy * half, y - dx * half, False))
    x, y, dx, dy = spine[-1]
    half = widths[-1] / 2
    if flat:
        one[-1], other[-1] = one[-1][:2] + (True,), other[-1][:2] + (True,)
        cap = []
    else:
        cap = [(x + dx * half - dy * half * .1, y + dy * half + dx * half * .1, False)]
        one[-1] = (one[-1][0] + dx * half * .2, one[-1][1] + dy * half * .2, False)
        other[-1] = (other[-1][0] + dx * half * .2, other[-1][1] + dy * half * .2, False)
    x, y, dx, dy = spine[0]
    half = widths[0] / 2
    root = [(x - dx * half * .8, y - dy * half * .8, False)]
    return one + cap + other[::-1] + root


def arm(text, *widths, thumb=1, hand=1.0, grip=False):
    """A bare arm with its mitten hand: the parts of one outline. `thumb` 1 or -1: on which side of the arm it stands."""
    x, y, dx, dy = along(text, 9)[-1]
    turn = math.degrees(math.atan2(dy, dx))
    size = (widths[-1] / 2 + 3) * hand
    palm = oval(x + dx * size * .6, y + dy * size * .6, size * (1.05 if grip else 1.3), size, turn)
    nx, ny = -dy * thumb, dx * thumb
    if grip:
        tip = [(x + nx * size * .3, y + ny * size * .3), (x + nx * size * 1.15 + dx * size * .9, y + ny * size * 1.15 + dy * size * .9)]
    else:
        tip = [(x + nx * size * .3, y + ny * size * .3), (x + nx * size * 1.6 + dx * size * .6, y + ny * size * 1.6 + dy * size * .6)]
    return [limb(text, *widths), palm, limb(tip, size * .8, size * .7, steps=3)]


def scallops(text, count, bulge=.5, closed=True):
    """A border of `count` bows along a curve (curls, clouds, foliage): the outline, corners between the bows."""
    spine = along(text, count + 1, closed)
    pts = [(s[0], s[1]) for s in spine]
    out = []
    area = sum(a[0] * b[1] - b[0] * a[1] for a, b in zip(pts, pts[1:] + pts[:1]))
    side = 1 if area > 0 else -1
    for (ax, ay), (bx, by) in zip(pts, pts[1:]):
        nx, ny = (by - ay) * bulge * side, -(bx - ax) * bulge * side
        out += [(ax, ay, True), (ax + (bx - ax) * .2 + nx * .75, ay + (by - ay) * .2 + ny * .75, False),
                ((ax + bx) / 2 + nx, (ay + by) / 2 + ny, False),
                (ax + (bx - ax) * .8 + nx * .75, ay + (by - ay) * .8 + ny * .75, False)]
    if not closed:
        out.append(pts[-1] + (True,))
    return out


def star(x, y, r, inner=.45, rays=5, turn=-90):
    out = []
    for k in range(rays * 2):
        a, long = math.radians(turn + k * 180 / rays), r if k % 2 == 0 else r * inner
        out.append((x + math.cos(a) * long, y + math.sin(a) * long, True))
    return out


def bunting(p, rope, flags, drop=46):
    """Flags on a rope."""
    spots = along(rope, flags * 6 + 1)
    for k in range(0, flags * 6, 6):
        base = [spots[k + i] for i in (1, 2, 3, 4, 5)]
        x, y, dx, dy = base[2]
        tip = (x - dy * drop * .3, y + drop, True)
        p.shape([base[0][:2] + (True,)] + [b[:2] + (False,) for b in base[1:4]] + [base[4][:2] + (True,), tip])
    p.line(rope, 4)


def box(x, y, w, h):
    return [(x, y, True), (x + w, y, True), (x + w, y + h, True), (x, y + h, True)]


def heart(x, y, s):
    return f"{x} {y + s}!, {x - s} {y - s * .1}, {x - s * .55} {y - s * .75}, {x} {y - s * .3}!, {x + s * .55} {y - s * .75}, {x + s} {y - s * .1}"


class Page:
    """A page under the pen. What is drawn later lies in front."""

    def __init__(self, number, title):
        self.number, self.title = number, title
        self.out, self.clips, self.matrix = [], 0, (1, 0, 0, 1, 0, 0)
        self.clipped = ""

    # where things are drawn

    @contextlib.contextmanager
    def at(self, x=0, y=0, size=1, turn=0, flip=False):
        """Inside the block, points are relative to (x, y), `size` times as large, turned by degrees, mirrored first if asked."""
        old = self.matrix
        c, s = math.cos(math.radians(turn)) * size, math.sin(math.radians(turn)) * size
        m = (-c if flip else c, -s if flip else s, -s, c, x, y)
        a, b = old, m
        self.matrix = (a[0] * b[0] + a[2] * b[1], a[1] * b[0] + a[3] * b[1], a[0] * b[2] + a[2] * b[3],
                       a[1] * b[2] + a[3] * b[3], a[0] * b[4] + a[2] * b[5] + a[4], a[1] * b[4] + a[3] * b[5] + a[5])
        yield
        self.matrix = old

    def placed(self, text):
        a, b, c, d, e, f = self.matrix
        return [(a * x + c * y + e, b * x + d * y + f, corner) for x, y, corner in points(text)]

    @property
    def scale(self):
        return math.sqrt(abs(self.matrix[0] * self.matrix[3] - self.matrix[1] * self.matrix[2]))

    def path(self, text, closed=True):
        pts = self.placed(text)
        if closed and sum(a[0] * b[1] - b[0] * a[1] for a, b in zip(pts, pts[1:] + pts[:1])) < 0:
            pts = pts[::-1]                     # all outlines run the same way round, so that fused ones leave no hole
        n = lambda v: f"{v:.1f}".rstrip("0").rstrip(".")
        d = f"M{n(pts[0][0])} {n(pts[0][1])}"
        for a, b, c, e in beziers(pts, closed):
            straight = abs((e[0] - a[0]) * (b[1] - a[1]) - (e[1] - a[1]) * (b[0] - a[0])) < .2 and \
                abs((e[0] - a[0]) * (c[1] - a[1]) - (e[1] - a[1]) * (c[0] - a[0])) < .2
            d += f"L{n(e[0])} {n(e[1])}" if straight else f"C{n(b[0])} {n(b[1])} {n(c[0])} {n(c[1])} {n(e[0])} {n(e[1])}"
        return d + ("Z" if closed else "")

    def put(self, element):
        self.out.append(element.replace("/>", self.clipped + "/>"))

    def note(self, words):
        self.out.append(f"\n<!-- {words} -->")

    # what is drawn

    def shape(self, text, width=4):
        """A closed outline, white inside."""
        self.put(f'<path stroke-width="{width}" d="{self.path(text)}"/>')

    def shapes(self, *texts, width=4):
        for text in texts:
            self.shape(text, width)

    def line(self, text, width=3):
        self.put(f'<path fill="none" stroke-width="{width}" d="{self.path(text, False)}"/>')

    def lines(self, *texts, width=3):
        for text in texts:
            self.line(text, width)

    def one(self, *parts, join=None, width=4):
        """Parts fused to one outline: no line where they meet. `join` (x, y, radius): the outline is left away there, so that
        a limb in front of a body grows out of it."""
        flat = []
        for part in parts:
            flat += part if isinstance(part, list) and part and isinstance(part[0], (list, str)) else [part]
        d = "".join(self.path(part) for part in flat)
        clip = ""
        if join:
            joins = join if isinstance(join, list) else [join]
            holes = "".join(self.path(oval(*j)) for j in joins)
            self.clips += 1
            self.out.append(f'<clipPath id="c{self.clips}"><path clip-rule="evenodd" d="M-99 -99H799V699H-99Z{holes}"/></clipPath>')
            clip = f' clip-path="url(#c{self.clips})"'
        outer = f'<path fill="#000" stroke-width="{width * 2}"{clip} d="{d}"/>'
        self.put(outer)
        self.put(f'<path stroke="none" d="{d}"/>')

    @contextlib.contextmanager
    def within(self, *parts):
        """Inside the block, everything is cut off at the outline of the parts."""
        flat = []
        for part in parts:
            flat += part if isinstance(part, list) and part and isinstance(part[0], (list, str)) else [part]
        self.clips += 1
        self.out.append(f'<clipPath id="c{self.clips}"><path d="{"".join(self.path(p) for p in flat)}"/></clipPath>')
        old, self.clipped = self.clipped, f' clip-path="url(#c{self.clips})"'
        yield
        self.clipped = old

    def spot(self, x, y, r, ry=None, turn=0):
        """Solid black: pupils, noses, buttons and nothing else."""
        self.put(f'<path class="spot" fill="#000" stroke="none" d="{self.path(oval(x, y, r, ry, turn))}"/>')

    def tube(self, text, wide):
        """A tube, rope or stripe of even width."""
        d = self.path(text, False)
        self.put(f'<path fill="none" stroke-width="{wide}" d="{d}"/>')
        self.put(f'<path fill="none" stroke="#fff" stroke-width="{wide - 8}" d="{d}"/>')

    # faces

    def eye(self, x, y, r=5, kind="dot", look=(0, 0)):
        if kind == "dot":
            self.spot(x, y, r, r * 1.2)
            if r * self.scale > 7.5:
                self.put(f'<path stroke="none" d="{self.path(oval(x - r * .25 + look[0] * r * .2, y - r * .4, r * .32))}"/>')
        elif kind == "white":
            self.shape(oval(x, y, r * 1.9, r * 2.2), 3)
            self.spot(x + look[0] * r * .75, y + look[1] * r * .9, r * .95, r * 1.1)
        elif kind == "happy":
            self.line(f"{x - r * 1.5} {y + r * .7}, {x} {y - r * .8}, {x + r * 1.5} {y + r * .7}")
        elif kind == "closed":
            self.line(f"{x - r * 1.5} {y - r * .4}, {x} {y + r * .9}, {x + r * 1.5} {y - r * .4}")

    def mouth(self, x, y, w, kind="smile", lean=0):
        """`w`: half the width; `lean`: how much the right corner lies higher."""
        if kind == "smile":
            self.line(f"{x - w} {y}, {x - w * .2} {y + w * .62}, {x + w} {y - lean}")
        elif kind == "open":
            self.shape(f"{x - w} {y}!, {x} {y + w * .12}, {x + w} {y - lean}!, {x + w * .62} {y + w * .95}, {x - w * .1} {y + w * 1.25}, {x - w * .75} {y + w * .75}", 3)
        elif kind == "o":
            self.shape(oval(x, y + w * .3, w * .62, w * .8), 3)
        elif kind == "flat":
            self.line(f"{x - w} {y + 2}, {x + w} {y - lean}")
        elif kind == "frown":
            self.line(f"{x - w} {y + w * .4}, {x} {y}, {x + w} {y + w * .4}")
        elif kind == "tongue":
            self.shape(f"{x - w * .1} {y + w * .3}!, {x + w * .1} {y + w * 1.3}, {x + w * .6} {y + w * 1.3}, {x + w * .75} {y + w * .1}!", 3)
            self.line(f"{x - w} {y}, {x - w * .2} {y + w * .5}, {x + w} {y - lean}")

    def save(self, path=None):
        """Writes art/pages/NUMBER.svg, or another file."""
        head = (f'<svg xmlns="http://www.w3.org/2000/svg" width="617" height="537" viewBox="0 0 617 537">\n<!-- {self.title} -->\n'
                '<g fill="#fff" stroke="#000" stroke-width="4" stroke-linejoin="round" stroke-linecap="round">\n'
                '<rect stroke="none" width="617" height="537"/>\n')
        frame = ('\n<!-- frame -->\n<rect x="2.5" y="2.5" width="612" height="532" fill="none" stroke-width="5" '
                 'stroke-linejoin="miter"/>\n</g>\n</svg>\n')
        (path or PAGES / f"{self.number}.svg").write_text(head + "\n".join(self.out) + "\n" + frame)
