"""Renders the pictures: colouring pages to two-colour GIF, the rest to PNG, GIF, BMP or ICO as art/pictures.txt lists them.

A picture NAME is drawn from pictures/NAME.svg; if there is none, from the source without the size at the end of the name
(pictogram512 from pictogram.svg). The rainbow is computed. The hot spots of the cursors are copied from pictures/cursors.txt.
"""
import colorsys
import io
import pathlib
import re
import shutil
import subprocess
import sys

import numpy
from PIL import Image

HERE = pathlib.Path(__file__).resolve().parent
PAGES = HERE.parent / "Beeld"
OUT = HERE / "rendered"


def rasterise(svg, width, height):
    """The SVG as an RGBA picture of exactly width by height pixels."""
    data = subprocess.run(
        ["rsvg-convert", "-w", str(width), "-h", str(height), str(svg)],
        check=True, stdout=subprocess.PIPE).stdout
    return Image.open(io.BytesIO(data)).convert("RGBA")


def on_white(image):
    white = Image.new("RGBA", image.size, (255, 255, 255, 255))
    return Image.alpha_composite(white, image).convert("RGB")


def ink_specks(bits):
    """Fills white specks of fewer than 12 pixels, as they are left where two lines meet: no child can hit them."""
    put, (width, height), seen = bits.load(), bits.size, set()
    for start in ((x, y) for y in range(height) for x in range(width)):
        if not put[start] or start in seen:
            continue
        stack, area = [start], {start}
        while stack and len(area) < 12:
            x, y = stack.pop()
            for to in ((x - 1, y), (x + 1, y), (x, y - 1), (x, y + 1)):
                if 0 <= to[0] < width and 0 <= to[1] < height and put[to] and to not in area:
                    area.add(to)
                    stack.append(to)
        if stack or len(area) >= 12:
            seen |= area
        else:
            for at in area:
                put[at] = 0


def page(svg):
    """A colouring page: drawn four times as large, each pixel black if at least half of it is, two colours exactly."""
    big = on_white(rasterise(svg, 617 * 4, 537 * 4)).convert("L")
    small = big.resize((617, 537), Image.BOX).point(lambda v: 0 if v < 128 else 1)
    ink_specks(small)
    two = small.convert("P")
    two.putpalette([0, 0, 0, 255, 255, 255])
    two.save(PAGES / (svg.stem + ".gif"), optimize=False)


def few_colours(image):
    """At most 256 colours: every flat colour stays exactly as it was drawn, only the soft edges are rounded."""
    rgb = on_white(image)
    counted = sorted(rgb.getcolors(1 << 24), reverse=True)
    if len(counted) > 256:
        flat = [c for n, c in counted if n * 1500 > rgb.width * rgb.height][:96]
        edges = numpy.array([c for _, c in counted if c not in set(flat)], dtype=numpy.uint8)
        rest = Image.fromarray(edges[None]).quantize(256 - len(flat), method=Image.MEDIANCUT, dither=Image.NONE)
        table = numpy.array(flat + [tuple(rest.getpalette()[i * 3:i * 3 + 3]) for i in range(256 - len(flat))])
    else:
        table = numpy.array([c for _, c in counted])
    pixels = numpy.asarray(rgb).reshape(-1, 3).astype(int)
    known, where = numpy.unique(pixels, axis=0, return_inverse=True)
    nearest = ((known[:, None] - table[None]) ** 2).sum(2).argmin(1)
    out = Image.fromarray(nearest[where].reshape(rgb.height, rgb.width).astype(numpy.uint8), "P")
    out.putpalette(table.astype(numpy.uint8).tobytes())
    return out


def rainbow(width, height):
    """White above, black below, the full colours half-way; hues 0 to 290 degrees from left to right, slowly at first:
    red is as wide as a finger."""
    white, black, red = 4, 5, 17
    image = Image.new("RGBA", (width, height), (255, 255, 255, 255))
    put = image.load()
    rows = height - white - black
    for x in range(width):
        hue = x / 2 if x < red else red / 2 + (290 - red / 2) * (x - red) / (width - 1 - red)
        full = colorsys.hsv_to_rgb(hue / 360, 1, 1)
        for y in range(rows):
            t = 2 * (y + 1) / (rows + 1)        # 0: white, 1: the full colour, 2: black
            put[x, white + y] = tuple(round(255 * (c * t + 1 - t if t < 1 else c * (2 - t))) for c in full) + (255,)
        for y in range(height - black, height):
            put[x, y] = (0, 0, 0, 255)
    return image


def drawn(name, width, height):
    """The picture of that name, drawn at its own size."""
    if name == "regenboog":
        return rainbow(width, height)
    svg = HERE / "pictures" / (name + ".svg")
    if not svg.exists():
        svg = HERE / "pictures" / (re.sub(r"\d+$", "", name) + ".svg")
    return rasterise(svg, width, height)


def picture(name, width, height, kind):
    target = OUT / f"{name}.{kind}"
    if kind == "png":
        drawn(name, width, height).save(target, optimize=True)
    elif kind == "gif":
        few_colours(drawn(name, width, height)).save(target)
    elif kind == "bmp":
        on_white(drawn(name, width, height)).save(target)
    elif kind == "ico":
        sizes = [size for size in (16, 24, 32, 48, 64, 128, 256) if size <= width]
        each = [drawn(f"{name}{size}", size, size) for size in sizes]
        each[-1].save(target, sizes=[(size, size) for size in sizes], append_images=each[:-1])
    else:
        raise SystemExit(f"{name}: unknown kind {kind}")


def main(wanted):
    OUT.mkdir(exist_ok=True)
    PAGES.mkdir(exist_ok=True)
    for svg in sorted((HERE / "pages").glob("[0-9][0-9].svg")):
        if not wanted or svg.stem in wanted:
            page(svg)
    hot_spots = HERE / "pictures" / "cursors.txt"
    if not (OUT / "cursors.txt").exists() or (OUT / "cursors.txt").read_bytes() != hot_spots.read_bytes():
        shutil.copyfile(hot_spots, OUT / "cursors.txt")
    listing = HERE / "pictures.txt"
    if not listing.exists():
        return
    for line in listing.read_text().splitlines():
        fields = line.split("#")[0].split()
        if len(fields) == 4 and (not wanted or fields[0] in wanted):
            picture(fields[0], int(fields[1]), int(fields[2]), fields[3])


if __name__ == "__main__":
    main(set(sys.argv[1:]))
