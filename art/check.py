"""Judges colouring pages: size, two colours, areas to colour, crumbs, inked corners, lines that stop short. `check.py NN...
[--flood DIR]` also floods every area in a colour of its own and writes DIR/NN.png, which shows leaks and crumbs at once.
Exit status 1 if a page fails. `tests/art/break_pages.py` shows each check a page that it must refuse."""
import colorsys
import pathlib
import re
import sys

import numpy
from PIL import Image

PAGES = pathlib.Path(__file__).resolve().parent.parent / "Beeld"
SOURCES = pathlib.Path(__file__).resolve().parent / "pages"
SMALLEST = 60       # pixels of an area that a child can hit
FEWEST = 35         # areas of a page
MOST = 70           # and at most; 60 are better
PATCH = 9           # black may not be wider (two lines that part are 8 together), but for pupils, noses and buttons
GAP = 7             # a line that ends so near to another one looks as if it had been meant to reach it
HUES = [tuple(round(255 * c) for c in colorsys.hsv_to_rgb(k * .382 % 1, (.85, .45, .7)[k % 3], (.95, 1, .65)[k % 3]))
        for k in range(MOST)]       # steps of the golden section: neighbours differ, no two are the same


def areas(pixels, width, height):
    """The 4-connected white areas, as lists of indices."""
    seen = bytearray(width * height)
    found = []
    for start in range(width * height):
        if seen[start] or not pixels[start]:
            continue
        seen[start] = 1
        stack, area = [start], []
        while stack:
            at = stack.pop()
            area.append(at)
            x = at % width
            for to, ok in ((at - 1, x > 0), (at + 1, x < width - 1), (at - width, at >= width),
                           (at + width, at + width < width * height)):
                if ok and pixels[to] and not seen[to]:
                    seen[to] = 1
                    stack.append(to)
        found.append(area)
    return found


def shifted(mask, dx, dy):
    """The mask, moved; what comes in from outside is False."""
    out = numpy.zeros_like(mask)
    h, w = mask.shape
    out[max(dy, 0):h + min(dy, 0), max(dx, 0):w + min(dx, 0)] = mask[max(-dy, 0):h - max(dy, 0), max(-dx, 0):w - max(dx, 0)]
    return out


def groups(mask):
    """The 8-connected groups of a mask with few pixels, as lists of (x, y)."""
    left, found = {(int(x), int(y)) for y, x in zip(*mask.nonzero())}, []
    while left:
        stack, group = [left.pop()], []
        while stack:
            x, y = stack.pop()
            group.append((x, y))
            for to in [(x + i, y + j) for i in (-1, 0, 1) for j in (-1, 0, 1)]:
                if to in left:
                    left.remove(to)
                    stack.append(to)
        found.append(group)
    return found


def inked(black, spots=()):
    """The middles of black patches wider than PATCH that are no pupil, nose or button. Such a spot stands alone or leans on one
    line, or is large and an ellipse; from an inked corner three lines or more go out, and an inked sliver is longer than any nose. `spots`: the boxes of those that the source declares."""
    r = (PATCH + 1) // 2
    disc = [(x, y) for x in range(-r, r + 1) for y in range(-r, r + 1) if x * x + y * y <= PATCH * PATCH / 4]
    core = black.copy()
    for x, y in disc:
        core &= shifted(black, x, y)
    found = []
    for group in groups(core):
        patch = numpy.zeros_like(black)
        for x, y in group:
            patch[y, x] = True
        solid = numpy.zeros_like(black)
        for x, y in disc:
            solid |= shifted(patch, x, y)
        inner, outer = solid, solid
        for ring in range(4):
            grown = outer.copy()
            for x, y in ((1, 0), (-1, 0), (0, 1), (0, -1)):
                grown |= shifted(outer, x, y)
            inner, outer = outer, grown
        exits = [g for g in groups(outer & ~inner & black) if len(g) > 1]
        wide, high = (max(p[i] for p in group) - min(p[i] for p in group) for i in (0, 1))
        x, y = (sum(p[i] for p in group) // len(group) for i in (0, 1))
        ys, xs = solid.nonzero()
        round_one = len(group) > 11 and len(xs) > .96 * 4 * numpy.pi * numpy.sqrt(max(0, numpy.linalg.det(numpy.cov(xs, ys))))
        edge = x < 12 or y < 12 or x > black.shape[1] - 13 or y > black.shape[0] - 13
        known = any(left <= x <= right and top <= y <= bottom for left, top, right, bottom in spots)
        if not edge and not known and (max(wide, high) > 36 or len(exits) > 2 and not round_one):
            found.append((x, y))
    return found


def declared(svg):
    """The boxes of the solid black shapes (class "spot") of a page's source; none may be larger than a nose."""
    boxes = []
    if not svg.exists():
        return boxes
    for path in re.findall(r'<path class="spot"[^>]* d="([^"]*)"', svg.read_text()):
        n = [float(v) for v in re.findall(r"-?[\d.]+", path)]
        box = min(n[::2]) - 4, min(n[1::2]) - 4, max(n[::2]) + 4, max(n[1::2]) + 4
        if max(box[2] - box[0], box[3] - box[1]) <= 52:
            boxes.append(box)
    return boxes


def skeleton(black):
    """The middle lines of the black, one pixel thick (thinning by Zhang and Suen, 1984)."""
    thin = black.copy()
    thin[0, :] = thin[-1, :] = thin[:, 0] = thin[:, -1] = False
    changed = True
    while changed:
        changed = False
        for second in (False, True):
            n = [shifted(thin, *d) for d in ((0, 1), (-1, 1), (-1, 0), (-1, -1), (0, -1), (1, -1), (1, 0), (1, 1))]
            count = sum(v.astype(numpy.int8) for v in n)
            turns = sum((~n[i] & n[(i + 1) % 8]).astype(numpy.int8) for i in range(8))
            up, right, down, left = n[0], n[2], n[4], n[6]
            free = ~(up & right & left) & ~(up & down & left) if second else ~(up & right & down) & ~(right & down & left)
            drop = thin & (count >= 2) & (count <= 6) & (turns == 1) & free
            if drop.any():
                thin &= ~drop
                changed = True
    return thin


def short_ends(black):
    """Where a line stops 1 to GAP pixels before another one."""
    thin = skeleton(black)
    on = {(int(x), int(y)) for y, x in zip(*thin.nonzero())}
    near = lambda p: [(p[0] + i, p[1] + j) for i in (-1, 0, 1) for j in (-1, 0, 1) if (i or j) and (p[0] + i, p[1] + j) in on]
    found = []
    for end in on:
        if len(near(end)) != 1:
            continue
        walk, at = [end], near(end)[0]
        while len(walk) < 12:
            walk.append(at)
            onward = [p for p in near(at) if p not in walk and all(abs(p[0] - q[0]) > 1 or abs(p[1] - q[1]) > 1 for q in walk[:-1])]
            if len(onward) != 1:
                break
            at = onward[0]
        if len(walk) < 9:
            continue                    # no line: the edge of a spot, or a corner of two lines
        dx, dy = end[0] - walk[-1][0], end[1] - walk[-1][1]
        long = (dx * dx + dy * dy) ** .5 or 1
        dx, dy = dx / long, dy / long
        for turn in (0, .35, -.35):
            tx, ty = dx - dy * turn, dy + dx * turn
            run, gap = 0, 0
            while run < 8 + GAP + 4:
                run += 1
                x, y = round(end[0] + tx * run), round(end[1] + ty * run)
                if not (0 <= x < black.shape[1] and 0 <= y < black.shape[0]):
                    break
                if not black[y, x]:
                    gap += 1
                elif gap:
                    if gap <= GAP and run < 8 + GAP:
                        found.append(end)
                    break
            if found and found[-1] == end:
                break
    return found



def judge(path, flood_dir):
    image = Image.open(path)
    width, height = image.size
    faults = []
    rgb = image.convert("RGB")
    colours = {c for _, c in rgb.getcolors(1 << 20)}
    if colours != {(0, 0, 0), (255, 255, 255)}:
        faults.append(f"colours {sorted(colours)[:4]}")
    if not (600 <= width <= 617 and 520 <= height <= 537):
        faults.append(f"size {width}x{height}")
    pixels = [1 if p[0] else 0 for p in rgb.getdata()]
    found = areas(pixels, width, height)
    large = [a for a in found if len(a) >= SMALLEST]
    crumbs = [a for a in found if len(a) < SMALLEST]
    if not FEWEST <= len(large) <= MOST:
        faults.append("too few or too many areas")
    if len(crumbs) > 6:
        faults.append("too many crumbs")
    biggest = max(len(a) for a in found) / (width * height)
    if biggest > 0.4:
        faults.append("one area takes over 40 % of the page")
    black = 1 - sum(pixels) / len(pixels)
    if not 0.06 <= black <= 0.30:
        faults.append(f"black {black:.0%}")
    mask = ~numpy.array(pixels, dtype=bool).reshape(height, width)
    if spots := inked(mask, declared(SOURCES / f"{path.stem}.svg")):
        faults.append(f"inked corners {spots}")
    if ends := short_ends(mask):
        faults.append(f"lines stop short {ends}")
    where = " ".join(f"({a[0] % width},{a[0] // width})" for a in crumbs[:30])
    print(f"{path.stem}: {len(large)} areas, {len(crumbs)} crumbs {where}, largest {biggest:.0%}, black {black:.0%}"
          + ("  FAULTS: " + "; ".join(faults) if faults else "  ok"))
    if flood_dir:
        out = rgb.copy()
        put = out.load()
        for i, area in enumerate(large):
            for at in area:
                put[at % width, at // width] = HUES[i % len(HUES)]
        for area in crumbs:
            for at in area:
                put[at % width, at // width] = (255, 0, 255)
        out.save(pathlib.Path(flood_dir) / f"{path.stem}.png")
    return not faults


def main(args):
    flood_dir = None
    if "--flood" in args:
        i = args.index("--flood")
        flood_dir = args[i + 1]
        pathlib.Path(flood_dir).mkdir(parents=True, exist_ok=True)
        del args[i:i + 2]
    paths = [PAGES / f"{a}.gif" for a in args] or sorted(PAGES.glob("*.gif"))
    return 0 if all([judge(p, flood_dir) for p in paths]) else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
