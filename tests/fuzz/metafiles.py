"""Writes the metafiles among the fuzzer's seeds: metafiles.py FOLDER. Between them they make every kind of call."""
import pathlib
import struct
import sys


def call(function, *words):
    return struct.pack("<IH", len(words) + 3, function) + b"".join(struct.pack("<H", word & 0xFFFF) for word in words)


def words_of(data):
    data += b"\0" * (len(data) % 2)
    return struct.unpack(f"<{len(data) // 2}H", data)


def colour(red, green, blue):
    return red | green << 8, blue


def plain(*calls, objects=8):
    body = b"".join(calls) + call(0)
    return struct.pack("<HHHIHIH", 1, 9, 0x300, (18 + len(body)) // 2, objects, max(map(len, calls)) // 2, 0) + body


def placeable(box, inch, file):
    head = struct.pack("<IHhhhhHI", 0x9AC6CDD7, 0, *box, inch, 0)
    check = 0
    for word in struct.unpack("<10H", head):
        check ^= word
    return head + struct.pack("<H", check) + file


def dib(bits, width, height, palette, rows):
    return struct.pack("<IiiHHIIiiII", 40, width, height, 1, bits, 0, 0, 0, 0, len(palette), 0) + b"".join(
        bytes((*entry, 0)) for entry in palette) + rows


WINDOW = call(0x20B, 0, 0) + call(0x20C, 60, 80)
PENS = call(0x2FA, 0, 3, 0, *colour(200, 0, 0)) + call(0x2FA, 2, 1, 0, *colour(0, 0, 200)) + call(0x2FA, 5, 0, 0, 0, 0)
BRUSHES = call(0x2FC, 0, *colour(0, 180, 0), 0) + call(0x2FC, 2, *colour(90, 0, 90), 5) + call(0x2FC, 1, 0, 0, 0)
QUARTER = (0, 30, 30, 60, 50, 70, 10, 5)

SHAPES = plain(
    WINDOW, PENS, BRUSHES, call(0x12D, 0), call(0x12D, 3), call(0x41B, 40, 50, 5, 5), call(0x418, 58, 78, 20, 30),
    call(0x12D, 4), call(0x106, 2), call(0x324, 5, 40, 2, 60, 58, 5, 20, 75, 20, 20, 58),
    call(0x538, 2, 4, 3, 1, 1, 70, 1, 70, 50, 1, 50, 20, 20, 30, 20, 25, 30), call(0x12D, 1),
    call(0x325, 3, 1, 1, 79, 30, 2, 58), call(0x214, 3, 3), call(0x213, 50, 70), call(0x61C, 10, 12, 55, 75, 30, 40),
    call(0x817, *QUARTER), call(0x81A, *QUARTER), call(0x830, *QUARTER), call(0x41F, *colour(1, 2, 3), 9, 9),
    call(0x548, 1, *colour(255, 255, 255), 0, 0), call(0x1F0, 1), call(0x2FA, 6, 250, 0, *colour(9, 9, 9)),
    call(0x104, 7), call(0x41B, 60, 80, 0, 0), call(0x61D, 0x09, 0x55, 20, 20, 10, 10))

TEXT = placeable((-1000, -500, 1000, 500), 1440, plain(
    call(0x20B, -500, -1000), call(0x20C, 1000, 2000), call(0x1E), call(0x416, 400, 900, -400, -900),
    call(0x415, 100, 100, -100, -100), call(0x220, 20, 20), call(0x102, 1), call(0x209, *colour(200, 0, 0)),
    call(0x2FB, -240, 0, 0, 0, 700, 1, 0, 0, 0, *words_of(b"Liberation Sans\0")), call(0x12D, 0), call(0x12E, 24),
    call(0x521, 4, *words_of(b"Zo\xeb!"), 0, -800), call(0x102, 2), call(0x201, *colour(255, 255, 0)),
    call(0xA32, 100, -500, 3, 6, -500, 100, 300, 300, *words_of(b"een")), call(0x127, -1 & 0xFFFF), call(0x12C, 0),
    call(0x103, 8), call(0x20D, 5, 5), call(0x20E, 50, 90), call(0x410, 2, 1, 3, 2), call(0x412, 1, 2, 1, 2),
    call(0x20F, 10, 10), call(0x211, 1, 1), call(0x41B, 400, 900, -400, -900), call(0x626, 15, 2, 0x4241)))

CHECKS = dib(1, 9, 4, [(0, 0, 0), (255, 255, 255)], b"\xaa\x80\0\0\x55\0\0\0" * 2)
COLOURS = dib(24, 3, 2, [], bytes(range(9)) + b"\0\0\0" + bytes(range(100, 109)) + b"\0\0\0")
INDEXED = dib(4, 5, 3, [(i * 16, 255 - i * 16, i) for i in range(16)], b"\x12\x34\x50\0" * 3)
BITMAPS = plain(
    WINDOW, call(0x940, 0x20, 0xCC, 0, 0, 4, 9, 5, 5, *words_of(CHECKS)),
    call(0xB41, 0x46, 0x66, 2, 3, 0, 0, -30 & 0xFFFF, 40, 40, 10, *words_of(COLOURS)),
    call(0xF43, 0xC6, 0x88, 0, 3, 5, 0, 0, 30, 50, 20, 20, *words_of(INDEXED)),
    call(0xD33, 0, 3, 0, 0, 0, 3, 5, 2, 70, *words_of(INDEXED)), call(0x940, 0x09, 0x55, 0, 0, 0, 20, 20, 0, 0))

if __name__ == "__main__":
    folder = pathlib.Path(sys.argv[1])
    for name, data in (("shapes", SHAPES), ("text", TEXT), ("bitmaps", BITMAPS)):
        (folder / f"{name}.wmf").write_bytes(data)
