"""Judges colouring pages: size, two colours, areas to colour, crumbs. `check.py NN... [--flood DIR]` also floods every area
in a colour of its own and writes DIR/NN.png, which shows leaks and crumbs at once. Exit status 1 if a page fails."""
import pathlib
import sys

from PIL import Image

PAGES = pathlib.Path(__file__).resolve().parent.parent / "Beeld"
SMALLEST = 60       # pixels of an area that a child can hit
HUES = [(230, 57, 70), (255, 210, 63), (87, 185, 71), (47, 125, 225), (255, 140, 66), (142, 91, 208), (31, 163, 196),
        (255, 158, 187), (165, 103, 47), (191, 227, 255), (46, 139, 61), (246, 223, 164), (185, 190, 201), (180, 230, 120)]


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
    if not 15 <= len(large) <= 90:
        faults.append("too few or too many areas")
    if len(crumbs) > 6:
        faults.append("too many crumbs")
    biggest = max(len(a) for a in found) / (width * height)
    if biggest > 0.4:
        faults.append("one area takes over 40 % of the page")
    black = 1 - sum(pixels) / len(pixels)
    if not 0.06 <= black <= 0.30:
        faults.append(f"black {black:.0%}")
    where = " ".join(f"({a[0] % width},{a[0] // width})" for a in crumbs[:8])
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


sys.exit(main(sys.argv[1:]))
