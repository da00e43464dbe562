"""Renders the pictures: colouring pages to two-colour GIF, the rest to PNG, GIF or BMP as art/pictures.txt lists them."""
import io
import pathlib
import subprocess
import sys

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


def page(svg):
    """A colouring page: drawn four times as large, each pixel black if at least half of it is, two colours exactly."""
    big = on_white(rasterise(svg, 617 * 4, 537 * 4)).convert("L")
    small = big.resize((617, 537), Image.BOX).point(lambda v: 0 if v < 128 else 1)
    two = small.convert("P")
    two.putpalette([0, 0, 0, 255, 255, 255])
    two.save(PAGES / (svg.stem + ".gif"), optimize=False)


def picture(name, width, height, kind):
    svg = HERE / "pictures" / (name + ".svg")
    image = rasterise(svg, width, height)
    target = OUT / f"{name}.{kind}"
    if kind == "png":
        image.save(target, optimize=True)
    elif kind == "gif":
        on_white(image).quantize(256, method=Image.MEDIANCUT, dither=Image.NONE).save(target)
    elif kind == "bmp":
        on_white(image).save(target)
    else:
        raise SystemExit(f"{name}: unknown kind {kind}")


def main(wanted):
    OUT.mkdir(exist_ok=True)
    PAGES.mkdir(exist_ok=True)
    for svg in sorted((HERE / "pages").glob("[0-9][0-9].svg")):
        if not wanted or svg.stem in wanted:
            page(svg)
    listing = HERE / "pictures.txt"
    if not listing.exists():
        return
    for line in listing.read_text().splitlines():
        fields = line.split("#")[0].split()
        if len(fields) == 4 and (not wanted or fields[0] in wanted):
            picture(fields[0], int(fields[1]), int(fields[2]), fields[3])


main(set(sys.argv[1:]))
