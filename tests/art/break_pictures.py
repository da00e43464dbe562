#!/usr/bin/env python3
"""Proves that every check of check_pictures.py can fail: damages a copy of the pictures in one way at a time and looks whether
the check says so. Standard library only. Exits 1 if a damage goes unnoticed, or if an undamaged file is accused."""
import pathlib
import shutil
import struct
import sys
import tempfile
import zlib

import check_pictures as check

BLACK, WHITE, CLEAR = (0, 0, 0, 255), (255, 255, 255, 255), (0, 0, 0, 0)


def png(rows):
    part = lambda kind, body: struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))
    raw = b"".join(b"\0" + bytes(v for p in row for v in p) for row in rows)
    return (b"\x89PNG\r\n\x1a\n" + part(b"IHDR", struct.pack(">IIBBBBB", len(rows[0]), len(rows), 8, 6, 0, 0, 0))
            + part(b"IDAT", zlib.compress(raw)) + part(b"IEND", b""))


def bmp(rows):
    step = (len(rows[0]) * 3 + 3) // 4 * 4
    body = b"".join(b"".join(bytes((p[2], p[1], p[0])) for p in row).ljust(step, b"\0") for row in rows[::-1])
    return b"BM" + struct.pack("<IIIIiiHHIIiiII", 54 + len(body), 0, 54, 40, len(rows[0]), len(rows), 1, 24, 0, len(body),
                               2835, 2835, 0, 0) + body


def gif(rows):
    """Black and white pages, unpacked: after every two pixels the table is cleared."""
    numbers = [int(p == WHITE) for row in rows for p in row]
    bits = "".join(reversed(["".join(f"{c:03b}" for c in reversed([4] + numbers[i:i + 2])) for i in range(0, len(numbers), 2)]))
    bits = "101" + bits
    bits = bits.rjust((len(bits) + 7) // 8 * 8, "0")
    body = int(bits, 2).to_bytes(len(bits) // 8, "little")
    table = b"\0\0\0\xff\xff\xff".ljust(12, b"\0")
    blocks = b"".join(bytes((len(body[i:i + 255]),)) + body[i:i + 255] for i in range(0, len(body), 255))
    size = struct.pack("<HH", len(rows[0]), len(rows))
    return b"GIF89a" + size + b"\x81\0\0" + table + b"\x2c\0\0\0\0" + size + b"\0\x02" + blocks + b"\0\x3b"


def grid(cell=100, width=617, height=537, line=4):
    """A page of squares: a stand-in for a colouring page."""
    return [[BLACK if x % cell < line or y % cell < line or x >= width - line or y >= height - line else WHITE
             for x in range(width)] for y in range(height)]


def main():
    missed, good, clean = 0, gif(grid()), {}
    with tempfile.TemporaryDirectory() as place:
        place = pathlib.Path(place)
        out, pages = place / "art/rendered", place / "Beeld"

        def fresh():
            shutil.rmtree(place / "art", ignore_errors=True)
            shutil.rmtree(pages, ignore_errors=True)
            (place / "art").mkdir(parents=True)
            pages.mkdir()
            shutil.copytree(check.ROOT / "art/rendered", out)
            shutil.copy(check.ROOT / "art/pictures.txt", place / "art/pictures.txt")
            (pages / "01.gif").write_bytes(good)

        def one_page(root):
            return check.check_pages(root, [1])

        def expect(words, test, damage):
            nonlocal missed
            fresh()
            if test not in clean:
                clean[test] = list(check.guarded(test, place))
            before = clean[test]
            damage()
            faults = list(check.guarded(test, place))
            if before or not any(words in fault for fault in faults):
                missed += 1
                print(f"{test.__name__}, '{words}': before {before[:2]}, after the damage {faults[:2]}")

        def change(name, edit):
            """Reads a picture, lets `edit` change its rows, writes it back."""
            path = out / name
            kind = name[-3:]
            rows = [list(row) for row in check.READERS[kind](path.read_bytes()).rows]
            rows = edit(rows) or rows
            path.write_bytes({"png": png, "bmp": bmp}[kind](rows))

        def paint(x, y, colour):
            def edit(rows):
                rows[y][x] = colour
            return edit

        def rewrite(path, old, new):
            text = path.read_text()
            assert old in text, old
            path.write_text(text.replace(old, new))

        expect("missing", check.check_list, lambda: (out / "lijn.png").unlink())
        expect("is 20 by 21", check.check_list, lambda: change("lijn.png", lambda rows: [row[:20] for row in rows]))
        expect("is no PNG", check.check_list, lambda: (out / "lijn.png").write_bytes((out / "muis.gif").read_bytes()))
        expect("is no GIF", check.check_list, lambda: (out / "muis.gif").write_bytes((out / "lijn.png").read_bytes()))
        expect("is no BMP", check.check_list, lambda: (out / "regenboog.bmp").write_bytes((out / "lijn.png").read_bytes()))
        expect("32 bits a pixel", check.check_list, lambda: (out / "regenboog.bmp").write_bytes(
            (lambda b: b[:28] + b"\x20\0" + b[30:])((out / "regenboog.bmp").read_bytes())))
        expect("is no ICO", check.check_list, lambda: (out / "pictogram.ico").write_bytes((out / "lijn.png").read_bytes()))
        expect("holds the sizes", check.check_list, lambda: (out / "pictogram.ico").write_bytes(
            (lambda b: b[:6] + b"\x11" + b[7:])((out / "pictogram.ico").read_bytes())))
        expect("no transparent pixel", check.check_list, lambda: change(
            "lijn.png", lambda rows: [[p[:3] + (255,) for p in row] for row in rows]))
        expect("should have no transparent", check.check_list, lambda: change("zoom.png", paint(3, 3, CLEAR)))
        expect("is empty", check.check_list, lambda: change("lijn.png", lambda rows: [[CLEAR] * 21 for _ in rows]))
        expect("is empty", check.check_list, lambda: change("kleurvelden.bmp", lambda rows: [[WHITE] * 165 for _ in rows]))
        expect("is cut off", check.check_list, lambda: (out / "muis.gif").write_bytes(
            (lambda b: b[:b.index(b",\0\0\0\0") + 11] + b"\0\x3b")((out / "muis.gif").read_bytes())))
        expect("listed twice", check.check_list, lambda: rewrite(place / "art/pictures.txt", "lijnen 21", "lijn 21"))
        expect("not in art/pictures.txt", check.check_list, lambda: rewrite(place / "art/pictures.txt", "lijnen 21 21 png\n", ""))

        expect("top 4", check.check_rainbow, lambda: change("regenboog.bmp", paint(60, 3, (255, 255, 254, 255))))
        expect("bottom 5", check.check_rainbow, lambda: change("regenboog.bmp", paint(60, 70, (0, 0, 1, 255))))
        expect("all white or black", check.check_rainbow, lambda: change(
            "regenboog.bmp", lambda rows: rows[:4] + [rows[0]] + rows[5:]))
        expect("neighbours differ", check.check_rainbow, lambda: change("regenboog.bmp", paint(60, 35, BLACK)))
        expect("hues", check.check_rainbow, lambda: change("regenboog.bmp", lambda rows: [row[::-1] for row in rows]))
        expect("full colours", check.check_rainbow, lambda: change(
            "regenboog.bmp", lambda rows: [[tuple((v + 127) // 2 for v in p) for p in row] for row in rows]))
        expect("not flat", check.check_fields, lambda: change("kleurvelden.bmp", paint(33, 22, (1, 2, 3, 255))))
        expect("alike", check.check_fields, lambda: change("kleurvelden.bmp", lambda rows: rows[:88] + rows[:22]))

        for n in range(1, 13):
            expect(f"borstel{n}:", check.check_stamps, lambda n=n: shutil.copy(
                out / f"borstel{n % 12 + 1}.png", out / f"borstel{n}.png"))
        expect("borstel13: 1 pixels", check.check_stamps, lambda: change("borstel13.png", lambda rows: [
            [BLACK if x == y == 12 else CLEAR for x in range(25)] for y in range(25)]))
        expect("black on nothing", check.check_stamps, lambda: change("borstel6.png", paint(12, 12, (1, 0, 0, 255))))

        spots = out / "cursors.txt"
        for name in check.CURSORS:
            expect(f"{name}: no opaque pixel", check.check_cursors, lambda name=name: spots.write_text("".join(
                f"{name} 2 2\n" if line.split()[0] == name else line + "\n" for line in spots.read_text().splitlines())))
        expect("names", check.check_cursors, lambda: rewrite(spots, "curGom", "curGum"))
        expect("check_cursors", check.check_cursors, lambda: spots.unlink())
        expect("white rim", check.check_cursors, lambda: change("curPen.png", lambda rows: [
            [CLEAR if min(p[:3]) > 200 else p for p in row] for row in rows]))
        expect("ink outline", check.check_cursors, lambda: change("curPen.png", lambda rows: [
            [p if max(p[:3]) > 80 else WHITE for p in row] for row in rows]))

        page = lambda rows: (pages / "01.gif").write_bytes(gif(rows))
        expect("is missing", one_page, lambda: (pages / "01.gif").unlink())
        expect("is 618 by 537", one_page, lambda: page(grid(width=618)))
        expect("is 617 by 519", one_page, lambda: page(grid(height=519)))
        expect("other colours", one_page, lambda: (pages / "01.gif").write_bytes(
            good.replace(b"\0\0\0\xff\xff\xff", b"\0\0\1\xff\xff\xff", 1)))
        expect("areas to colour", one_page, lambda: page(grid(cell=40)))
        expect("areas to colour", one_page, lambda: page(grid(cell=250)))
        expect("areas to colour", one_page, lambda: page([[WHITE if y % 100 < 4 and 4 <= y < 533 and x % 100 > 3 else p
                                                           for x, p in enumerate(row)] for y, row in enumerate(grid())]))
        expect("is no GIF", one_page, lambda: (pages / "01.gif").write_bytes(b"nothing"))
    print(f"{missed} damages went unnoticed" if missed else "every damage is noticed")
    return 1 if missed else 0


if __name__ == "__main__":
    sys.exit(main())
