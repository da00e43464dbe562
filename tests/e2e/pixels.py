"""Pictures as the tests look at them: Windows bitmaps that the program saved, and the virtual screen itself."""
import pathlib
import struct
import zlib

WHITE, BLACK, RED, BLUE = (255, 255, 255), (0, 0, 0), (255, 0, 0), (0, 0, 255)


class Picture:
    """Pixels as (red, green, blue), (0, 0) at the top left. `rows` holds one bytes object of RGB triples for each row."""

    def __init__(self, width, height, rows):
        self.width, self.height, self.rows = width, height, rows

    def at(self, x, y):
        if not (0 <= x < self.width and 0 <= y < self.height):
            raise IndexError(f"({x}, {y}) lies outside {self.width} by {self.height}")
        return tuple(self.rows[y][3 * x:3 * x + 3])

    def pixels(self):
        for y, row in enumerate(self.rows):
            for x in range(self.width):
                yield x, y, tuple(row[3 * x:3 * x + 3])

    def others(self, colour):
        """The positions of every pixel that has not this colour."""
        blank = bytes(colour) * self.width
        return {(x, y) for y, row in enumerate(self.rows) if row != blank
                for x in range(self.width) if tuple(row[3 * x:3 * x + 3]) != tuple(colour)}

    def crop(self, x, y, width, height):
        return Picture(width, height, [row[3 * x:3 * (x + width)] for row in self.rows[y:y + height]])

    def save_png(self, path):
        def chunk(kind, data):
            return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

        head = struct.pack(">IIBBBBB", self.width, self.height, 8, 2, 0, 0, 0)
        body = zlib.compress(b"".join(b"\0" + row for row in self.rows), 9)
        path = pathlib.Path(path)
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", head) + chunk(b"IDAT", body) + chunk(b"IEND", b""))


def read_bmp(path):
    """An uncompressed 24-bit Windows bitmap. ValueError for anything else, also for one byte too few or too many."""
    data = pathlib.Path(path).read_bytes()
    if len(data) < 54 or data[:2] != b"BM":
        raise ValueError(f"{path}: no Windows bitmap")
    size, start = struct.unpack_from("<I4xI", data, 2)
    width, height, planes, depth, compression = struct.unpack_from("<iiHHI", data, 18)
    stride = (3 * width + 3) // 4 * 4
    if (planes, depth, compression) != (1, 24, 0) or width < 1 or height < 1:
        raise ValueError(f"{path}: not 24 bits a pixel, uncompressed, bottom row first")
    if len(data) != start + stride * height or size != len(data):
        raise ValueError(f"{path}: {len(data)} bytes, the header says {size}, the rows need {start + stride * height}")
    rows = []
    for y in range(height - 1, -1, -1):
        bgr = data[start + y * stride:start + y * stride + 3 * width]
        rgb = bytearray(len(bgr))
        rgb[0::3], rgb[1::3], rgb[2::3] = bgr[2::3], bgr[1::3], bgr[0::3]
        rows.append(bytes(rgb))
    return Picture(width, height, rows)


def write_bmp(path, picture):
    """Writes a picture as an uncompressed 24-bit Windows bitmap."""
    stride = (3 * picture.width + 3) // 4 * 4
    size = 54 + stride * picture.height
    head = b"BM" + struct.pack("<IIIIiiHHIIiiII", size, 0, 54, 40, picture.width, picture.height, 1, 24, 0,
                               stride * picture.height, 3780, 3780, 0, 0)
    body = bytearray()
    for rgb in reversed(picture.rows):
        bgr = bytearray(len(rgb))
        bgr[0::3], bgr[1::3], bgr[2::3] = rgb[2::3], rgb[1::3], rgb[0::3]
        body += bgr + bytes(stride - len(rgb))
    pathlib.Path(path).write_bytes(head + body)


def plain(width, height, colour):
    return Picture(width, height, [bytes(colour) * width for _ in range(height)])


def halves(width, height):
    """A picture whose left half is red and whose right half is blue, with a black pixel in two corners."""
    half = width // 2
    row = bytes(RED) * half + bytes(BLUE) * (width - half)
    rows = [bytes(BLACK) + row[3:]] + [row] * (height - 2) + [row[:-3] + bytes(BLACK)]
    return Picture(width, height, rows)


def read_screen(path, columns=None):
    """The virtual screen, or some columns at its left, from the file in which the X server keeps it (32 bits a pixel, blue first)."""
    data = pathlib.Path(path).read_bytes()
    head, width, height, stride = (struct.unpack_from(">I", data, at)[0] for at in (0, 16, 20, 48))
    depth, colours = struct.unpack_from(">I", data, 44)[0], struct.unpack_from(">I", data, 76)[0]
    if depth != 32:
        raise ValueError(f"a screen of {depth} bits a pixel")
    start, width = head + 12 * colours, columns or width
    rows = []
    for y in range(height):
        bgrx = data[start + y * stride:start + y * stride + 4 * width]
        rgb = bytearray(3 * width)
        rgb[0::3], rgb[1::3], rgb[2::3] = bgrx[2::4], bgrx[1::4], bgrx[0::4]
        rows.append(bytes(rgb))
    return Picture(width, height, rows)
