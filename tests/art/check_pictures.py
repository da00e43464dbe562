#!/usr/bin/env python3
"""Checks the drawn pictures and the colouring pages with the standard library only: `check_pictures.py [ROOT]`.

Prints what is wrong and exits 1; prints one line and exits 0 if nothing is. `break_pictures.py` proves that every check can fail.
"""
import colorsys
import pathlib
import struct
import sys
import zlib

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
SMALLEST = 60           # pixels of an area that a child can hit
ICON_SIZES = [16, 24, 32, 48, 64, 128, 256]
PANELS = "lijnen gommen lineaal vulling borstels gradient effecten zoom roteren".split()
CURSORS = "curPen curBrush curVullen curGom curDrop curVizier".split()


class Picture:
    """Width, height, bits a pixel, and the pixels as rows of (red, green, blue, alpha)."""

    def __init__(self, width, height, bits, rows):
        self.width, self.height, self.bits, self.rows = width, height, bits, rows

    def colours(self):
        return {p for row in self.rows for p in row}


def read_png(data):
    if data[:8] != b"\x89PNG\r\n\x1a\n":
        raise ValueError("is no PNG")
    at, packed = 8, b""
    while at < len(data):
        size, kind = struct.unpack(">I4s", data[at:at + 8])
        body = data[at + 8:at + 8 + size]
        if kind == b"IHDR":
            width, height, depth, colour, _, _, interlaced = struct.unpack(">IIBBBBB", body)
        elif kind == b"IDAT":
            packed += body
        at += size + 12
    if (depth, colour, interlaced) != (8, 6, 0):
        raise ValueError("is no PNG of 8 bits a channel with transparency")
    raw, step, rows = zlib.decompress(packed), width * 4, []
    above = bytes(step)
    for y in range(height):
        rule, row = raw[y * (step + 1)], bytearray(raw[y * (step + 1) + 1:(y + 1) * (step + 1)])
        for i in range(step):
            left, up = row[i - 4] if i >= 4 else 0, above[i]
            corner = above[i - 4] if i >= 4 else 0
            if rule == 1:
                guess = left
            elif rule == 2:
                guess = up
            elif rule == 3:
                guess = (left + up) // 2
            elif rule == 4:
                p = left + up - corner
                guess = min((left, up, corner), key=lambda v: abs(p - v))
            else:
                guess = 0
            row[i] = (row[i] + guess) & 255
        above = bytes(row)
        rows.append([tuple(row[i:i + 4]) for i in range(0, step, 4)])
    return Picture(width, height, 32, rows)


def unpack_lzw(data, bits):
    """The colour numbers of a GIF image."""
    clear, out = 1 << bits, bytearray()
    table, width, last = [], bits + 1, None
    held = count = 0
    for byte in data:
        held |= byte << count
        count += 8
        while count >= width:
            code = held & ((1 << width) - 1)
            held >>= width
            count -= width
            if code == clear:
                table = [bytes([i]) for i in range(clear)] + [b"", b""]
                width, last = bits + 1, None
                continue
            if code == clear + 1:
                return out
            if last is None:
                entry = table[code]
            else:
                entry = table[code] if code < len(table) else last + last[:1]
                if len(table) < 4096:
                    table.append(last + entry[:1])
                    if len(table) == 1 << width and width < 12:
                        width += 1
            out += entry
            last = entry
    return out


def read_gif(data):
    """The first image; the interlaced order of rows is put straight."""
    if data[:6] not in (b"GIF87a", b"GIF89a"):
        raise ValueError("is no GIF")
    width, height, flags = struct.unpack("<HHB", data[6:11])
    at, palette = 13, b""
    if flags & 128:
        size = 3 << (flags & 7) + 1
        palette, at = data[at:at + size], at + size

    def blocks(at):
        body = b""
        while data[at]:
            body += data[at + 1:at + 1 + data[at]]
            at += 1 + data[at]
        return body, at + 1

    while data[at] == 0x21:
        _, at = blocks(at + 2)
    if data[at] != 0x2C:
        raise ValueError("holds no image")
    x, y, w, h, flags = struct.unpack("<HHHHB", data[at + 1:at + 10])
    at += 10
    if flags & 128:
        size = 3 << (flags & 7) + 1
        palette, at = data[at:at + size], at + size
    if (x, y, w, h) != (0, 0, width, height):
        raise ValueError("has an image of another size than the whole")
    body, _ = blocks(at + 1)
    numbers = unpack_lzw(body, data[at])
    if len(numbers) < width * height:
        raise ValueError("is cut off")
    order = range(height)
    if flags & 64:
        order = [*range(0, height, 8), *range(4, height, 8), *range(2, height, 4), *range(1, height, 2)]
    table = [(palette[i], palette[i + 1], palette[i + 2], 255) for i in range(0, len(palette), 3)]
    rows = [None] * height
    for i, row in enumerate(order):
        rows[row] = [table[n] for n in numbers[i * width:(i + 1) * width]]
    return Picture(width, height, 8, rows)


def read_bmp(data):
    if data[:2] != b"BM":
        raise ValueError("is no BMP")
    start, = struct.unpack("<I", data[10:14])
    width, height, _, bits, packing = struct.unpack("<iiHHI", data[18:34])
    if bits != 24 or packing:
        raise ValueError(f"has {bits} bits a pixel, packing {packing}: 24 and 0 wanted")
    step = (width * 3 + 3) // 4 * 4
    rows = []
    for y in range(abs(height)):
        row = data[start + y * step:start + y * step + width * 3]
        rows.append([(row[i + 2], row[i + 1], row[i], 255) for i in range(0, width * 3, 3)])
    return Picture(width, abs(height), bits, rows[::-1] if height > 0 else rows)


def read_ico(data):
    """The sizes it holds, as a list; the picture is the largest."""
    if data[:4] != b"\0\0\1\0":
        raise ValueError("is no ICO")
    sizes = [data[6 + 16 * i] or 256 for i in range(struct.unpack("<H", data[4:6])[0])]
    if sorted(sizes) != ICON_SIZES:
        raise ValueError(f"holds the sizes {sorted(sizes)}, not {ICON_SIZES}")
    return Picture(max(sizes), max(sizes), 32, [])


READERS = {"png": read_png, "gif": read_gif, "bmp": read_bmp, "ico": read_ico}


def listed(root):
    """What art/pictures.txt asks for: (name, width, height, kind)."""
    for line in (root / "art/pictures.txt").read_text().splitlines():
        fields = line.split("#")[0].split()
        if fields:
            yield (fields[0], int(fields[1]), int(fields[2]), fields[3])


def load(root, name, kind):
    return READERS[kind]((root / "art/rendered" / f"{name}.{kind}").read_bytes())


def check_list(root):
    """Every picture of the list is there, with exactly its size and kind, and there is nothing else."""
    wanted = {"cursors.txt"}
    for name, width, height, kind in listed(root):
        file = f"{name}.{kind}"
        if file in wanted:
            yield f"{file}: is listed twice"
        wanted.add(file)
        if not (root / "art/rendered" / file).exists():
            yield f"{file}: is missing"
            continue
        try:
            got = load(root, name, kind)
        except (ValueError, IndexError, KeyError, struct.error, zlib.error) as fault:
            yield f"{file}: {fault}"
            continue
        if (got.width, got.height) != (width, height):
            yield f"{file}: is {got.width} by {got.height}, not {width} by {height}"
        if kind == "png":
            clear = sum(p[3] < 255 for row in got.rows for p in row)
            if (clear == 0) != (name in PANELS):
                yield f"{file}: " + ("should have no transparent pixel" if name in PANELS else "has no transparent pixel")
            if clear == width * height and all(p[3] == 0 for row in got.rows for p in row):
                yield f"{file}: is empty"
        elif kind != "ico" and len(got.colours()) < 2:
            yield f"{file}: is empty"
    for path in sorted((root / "art/rendered").iterdir()):
        if path.name not in wanted:
            yield f"{path.name}: stands in art/rendered, not in art/pictures.txt"


def check_rainbow(root):
    rows = [[p[:3] for p in row] for row in load(root, "regenboog", "bmp").rows]
    for name, part, colour in (("top 4", rows[:4], (255, 255, 255)), ("bottom 5", rows[-5:], (0, 0, 0))):
        if any(p != colour for row in part for p in row):
            yield f"regenboog: the {name} rows are not all {colour}"
    for y, row in enumerate(rows[4:-5], 4):
        if all(p == (255, 255, 255) for p in row) or all(p == (0, 0, 0) for p in row):
            yield f"regenboog: row {y} is all white or black"
    steps = [(a, b) for row in rows for a, b in zip(row, row[1:])] + \
            [(a, b) for above, row in zip(rows, rows[1:]) for a, b in zip(above, row)]
    worst = max(abs(i - j) for a, b in steps for i, j in zip(a, b))
    if worst > 12:
        yield f"regenboog: neighbours differ by {worst}, more than 12"
    fullest = max(rows, key=lambda row: sum(max(p) - min(p) for p in row))
    hues = [colorsys.rgb_to_hsv(*(v / 255 for v in p))[0] * 360 for p in fullest]
    if any(b <= a for a, b in zip(hues, hues[1:])) or hues[0] > 5 or not 280 <= hues[-1] <= 300:
        yield f"regenboog: the hues do not rise from red to violet ({hues[0]:.0f} to {hues[-1]:.0f} degrees)"
    if min(max(p) - min(p) for p in fullest) < 230:
        yield "regenboog: no row has the full colours"


def check_fields(root):
    """Five by five flat fields that touch, no two alike."""
    picture = load(root, "kleurvelden", "bmp")
    across, down = picture.width // 5, picture.height // 5
    seen = []
    for j in range(5):
        for i in range(5):
            here = {p for row in picture.rows[j * down:(j + 1) * down] for p in row[i * across:(i + 1) * across]}
            if len(here) != 1:
                yield f"kleurvelden: field {i + 1},{j + 1} is not flat"
            seen.append(frozenset(here))
    if len(set(seen)) != 25:
        yield "kleurvelden: two fields are alike"


def strokes(*points):
    """Straight lines of one pixel from point to point, the ends included."""
    found = set()
    for (ax, ay), (bx, by) in zip(points, points[1:]):
        n = max(abs(bx - ax), abs(by - ay))
        found |= {(round(ax + (bx - ax) * i / n), round(ay + (by - ay) * i / n)) for i in range(n + 1)}
    return found


def stamp_shapes():
    """What stamp n prints, as offsets from the middle pixel."""
    square = [(x, y) for x in range(-5, 6) for y in range(-5, 6)]
    plus, rise, fall = strokes((0, 5), (0, -5)) | strokes((5, 0), (-5, 0)), strokes((-5, 5), (5, -5)), strokes((5, 5), (-5, -5))
    up = {(x, y) for x, y in square if 2 * abs(x) <= y + 5}
    return {1: rise, 2: fall, 3: plus, 4: plus | rise | fall, 5: {(x, y) for x, y in square if x * x + y * y <= 29},
            6: set(square), 7: up, 8: {(x, -y) for x, y in up}, 9: {(y, x) for x, y in up}, 10: {(-y, x) for x, y in up},
            11: strokes((-5, 5), (5, -2), (-5, -2), (5, 5), (0, -5), (-5, 5)),
            12: {(x, y) for x, y in square if abs(x) + abs(y) <= 5}}


def check_stamps(root):
    for n in range(1, 14):
        picture = load(root, f"borstel{n}", "png")
        drawn = {(x, y): p for y, row in enumerate(picture.rows) for x, p in enumerate(row) if p[3]}
        if set(drawn.values()) != {(0, 0, 0, 255)}:
            yield f"borstel{n}: is not black on nothing"
        got = {(x - 12, y - 12) for x, y in drawn}
        if n == 13:
            if not 15 <= len(got) <= 120:
                yield f"borstel13: {len(got)} pixels make no few match-sticks"
            continue
        shape = stamp_shapes()[n]
        room = 0 if n in (1, 2, 3, 4, 5, 6) else max(2, len(shape) // 6)       # how the edge of a slope is rounded
        if len(got ^ shape) > room:
            yield f"borstel{n}: {len(got ^ shape)} pixels differ from the shape of the stamp"


def check_cursors(root):
    spots = {}
    for line in (root / "art/rendered/cursors.txt").read_text().splitlines():
        name, x, y = line.split()
        spots[name] = int(x), int(y)
    if sorted(spots) != sorted(CURSORS):
        yield f"cursors.txt: names {sorted(spots)}"
    for name, (x, y) in sorted(spots.items()):
        if name not in CURSORS:
            continue
        rows = load(root, name, "png").rows
        around = [rows[j][i][3] for j in range(y - 1, y + 2) for i in range(x - 1, x + 2) if 0 <= i < 32 and 0 <= j < 32]
        if not (0 <= x < 32 and 0 <= y < 32) or max(around) < 255:
            yield f"{name}: no opaque pixel at or next to the hot spot {x},{y}"
        if not any(p[3] > 200 and max(p[:3]) < 60 for row in rows for p in row) or \
           not any(p[3] > 100 and min(p[:3]) > 230 for row in rows for p in row):
            yield f"{name}: lacks its ink outline or its white rim"


def closed_areas(rows):
    """How many pixels each white area has (pixels that touch by a side belong together)."""
    parent, sizes, above = [], [], []

    def top(i):
        while parent[i] != i:
            parent[i] = parent[parent[i]]
            i = parent[i]
        return i

    for row in rows:
        runs, x, width = [], 0, len(row)
        while x < width:
            if not row[x]:
                x += 1
                continue
            start = x
            while x < width and row[x]:
                x += 1
            me = len(parent)
            parent.append(me)
            sizes.append(x - start)
            for a, b, other in above:
                if a < x and b > start:
                    mine, its = top(me), top(other)
                    if mine != its:
                        parent[mine] = its
                        sizes[its] += sizes[mine]
            runs.append((start, x, me))
        above = runs
    return [sizes[i] for i in range(len(parent)) if parent[i] == i]


def check_pages(root, numbers=range(1, 61)):
    for number in numbers:
        name = f"{number:02}.gif"
        path = root / "Beeld" / name
        if not path.exists():
            yield f"Beeld/{name}: is missing"
            continue
        try:
            picture = read_gif(path.read_bytes())
        except (ValueError, IndexError, struct.error) as fault:
            yield f"Beeld/{name}: {fault}"
            continue
        if not (600 <= picture.width <= 617 and 520 <= picture.height <= 537):
            yield f"Beeld/{name}: is {picture.width} by {picture.height}"
        if picture.colours() != {(0, 0, 0, 255), (255, 255, 255, 255)}:
            yield f"Beeld/{name}: has other colours than black and white"
        large = sum(size >= SMALLEST for size in closed_areas([[p[0] > 127 for p in row] for row in picture.rows]))
        if not 15 <= large <= 90:
            yield f"Beeld/{name}: has {large} areas to colour, not 15 to 90"


def guarded(check, root):
    """The faults; a file that cannot be read is a fault too."""
    try:
        yield from check(root)
    except (OSError, ValueError, IndexError, KeyError, struct.error, zlib.error) as fault:
        yield f"{check.__name__}: {fault}"


CHECKS = [check_list, check_rainbow, check_fields, check_stamps, check_cursors, check_pages]


def main(args):
    root = pathlib.Path(args[0]) if args else ROOT
    faults = [fault for check in CHECKS for fault in guarded(check, root)]
    for fault in faults:
        print(fault)
    if not faults:
        print(f"{sum(1 for _ in listed(root))} pictures and 60 colouring pages are in order")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
