"""The one picture on a printed page: reads just enough of a PDF file to measure it."""
import re
import zlib

import pixels


class Page:
    """A page with its size and its only picture: `box` is (left, top, width, height) on the paper, everything in centimetres."""

    def __init__(self, path):
        data = path.read_bytes()
        self.objects = {int(number): body for number, body in
                        re.findall(rb"(?s)(\d+) 0 obj\s(.*?)\sendobj", data)}
        pages = [body for body in self.objects.values() if re.search(rb"/Type\s*/Page\b(?!s)", body)]
        assert len(pages) == 1, f"{len(pages)} pages"
        sizes = re.search(rb"/MediaBox\s*\[([^\]]*)\]", pages[0] + b"".join(self.objects.values()))
        self.points = [float(word) for word in sizes.group(1).split()]
        self.width, self.height = self.points[2] / 72 * 2.54, self.points[3] / 72 * 2.54
        self.content = self.stream(int(re.search(rb"/Contents\s+(\d+)", pages[0]).group(1))).decode("latin-1")
        self.box = self._place()
        self.picture = self._picture()

    def stream(self, number):
        body = self.objects[number]
        start = body.index(b"stream") + len(b"stream")
        start += 2 if body[start:start + 2] == b"\r\n" else 1
        length = re.search(rb"/Length\s+(\d+)( 0 R)?", body)
        count = int(length.group(1))
        if length.group(2):
            count = int(self.objects[count])
        raw = body[start:start + count]
        return zlib.decompress(raw) if b"/FlateDecode" in body else raw

    def _place(self):
        """Where the unit square of the only `Do` lands, through every `cm`, `q` and `Q` before it."""
        now, saved, numbers, places = (1, 0, 0, 1, 0, 0), [], [], []
        for word in self.content.split():
            try:
                numbers.append(float(word))
                continue
            except ValueError:
                pass
            if word == "cm":
                a, b, c, d, e, f = numbers[-6:]
                p, q, r, s, t, u = now
                now = (a * p + b * r, a * q + b * s, c * p + d * r, c * q + d * s, e * p + f * r + t, e * q + f * s + u)
            elif word == "q":
                saved.append(now)
            elif word == "Q":
                now = saved.pop()
            elif word == "Do":
                places.append(now)
            if not word.startswith("/"):
                numbers = []
        assert len(places) == 1, f"{len(places)} pictures"
        a, b, c, d, e, f = places[0]
        assert b == c == 0, "the picture is turned"
        left, right = sorted((e, e + a))
        low, high = sorted((f, f + d))
        return tuple(v / 72 * 2.54 for v in (left, self.points[3] - high, right - left, high - low))

    def _picture(self):
        """The pixels as they are stored; the file must not ask for smoothing, nor have lost a colour."""
        found = [(number, body) for number, body in self.objects.items() if re.search(rb"/Subtype\s*/Image", body)]
        assert len(found) == 1, f"{len(found)} stored pictures"
        number, body = found[0]
        assert b"/DCTDecode" not in body, "a lossy picture"
        assert not re.search(rb"/Interpolate\s+true", body), "a smoothed picture"
        assert b"/DeviceRGB" in body and re.search(rb"/BitsPerComponent\s+8", body), body[:300]
        width, height = (int(re.search(rb"/%s\s+(\d+)" % key, body).group(1)) for key in (b"Width", b"Height"))
        data = self.stream(number)
        return pixels.Picture(width, height, [data[3 * width * y:3 * width * (y + 1)] for y in range(height)])
