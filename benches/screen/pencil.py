"""What a pencil costs where the program fills a screen of 3840 by 2160, beside the same program at factor 1: pencil.py KRASPRET.
Both draw before a screen of their own, by turns, so that whatever else the machine does meets both. A dot counts as seen when its
pixel is on the screen. Exit status 1 if a bar is not reached."""
import ctypes
import pathlib
import statistics
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "startup"))
from startup import MENU, STUDIO, STUDIO_BUTTON, Watched, until_idle, window, worked  # noqa: E402
from screen import NotSeen, Screen, until  # noqa: E402

SIZE, FACTOR = (3840, 2160), 3.5
PENCIL, SHEET = (240 // 15 + 10, 2280 // 15 + 10), (176, 8)  # places in the studio's window, logical pixels
PRESSES, STROKES, MOVES = 150, 3, 300
PER_SECOND = 100


class Hand:
    """A pointer without the start of a program for each of its movements, and without a picture that would hide the dot."""

    def __init__(self, display):
        self.x11, self.test, fixes = (ctypes.CDLL(f"lib{name}") for name in ("X11.so.6", "Xtst.so.6", "Xfixes.so.3"))
        self.x11.XOpenDisplay.restype = ctypes.c_void_p
        self.x11.XDefaultRootWindow.restype = ctypes.c_ulong
        self.display = ctypes.c_void_p(self.x11.XOpenDisplay(display.encode()))
        fixes.XFixesHideCursor(self.display, ctypes.c_ulong(self.x11.XDefaultRootWindow(self.display)))
        self.x11.XSync(self.display, 0)

    def move(self, x, y):
        self.test.XTestFakeMotionEvent(self.display, -1, int(x), int(y), ctypes.c_ulong(0))
        self.x11.XFlush(self.display)

    def button(self, down):
        self.test.XTestFakeButtonEvent(self.display, 1, int(down), ctypes.c_ulong(0))
        self.x11.XFlush(self.display)

    def click(self, x, y):
        self.move(x, y)
        self.button(True)
        self.button(False)


class Studio:
    """A studio at a factor with the pencil in hand."""

    def __init__(self, kraspret, factor):
        self.factor, self.screen = factor, Screen(SIZE)
        del self.screen.env["QT_SCALE_FACTOR"]
        if factor != FACTOR:
            self.screen.env["QT_SCALE_FACTOR"] = str(factor)
        self.process = self.screen.start(kraspret, [], self.screen.folder / "program.log")
        self.watched, self.hand = Watched(self.screen), Hand(self.screen.env["DISPLAY"])
        self.left, self.top = until(lambda: self._maximised(MENU), "menu")
        until_idle(self.process)
        self._click(*STUDIO_BUTTON)
        self.left, self.top = until(lambda: self._maximised(STUDIO), "studio")
        until_idle(self.process)
        self._click(*PENCIL)
        until_idle(self.process)

    def _maximised(self, title):
        place = self.screen.geometry(window(self.screen, self.process, title))
        return place and place[2] > SIZE[0] - 100 and place[:2]

    def _click(self, x, y):
        self.hand.click(self.left + x * self.factor, self.top + y * self.factor)

    def place(self, x, y):
        """The middle of a pixel of the sheet, on the screen."""
        return (int(self.left + (SHEET[0] + x + 0.5) * self.factor), int(self.top + (SHEET[1] + y + 0.5) * self.factor))

    def dot(self, x, y):
        """Seconds from a press on the white sheet to its dot on the screen."""
        at = self.place(x, y)
        self.hand.move(*at)
        time.sleep(0.02)
        white = self.watched.pixel(*at)
        begun = time.perf_counter()
        self.hand.button(True)
        while self.watched.pixel(*at) == white:
            if time.perf_counter() - begun > 20:
                raise NotSeen(f"dot at {at}")
        seconds = time.perf_counter() - begun
        self.hand.button(False)
        time.sleep(0.01)
        return seconds

    def stroke(self, y):
        """The share of a core that a brisk zigzag takes."""
        self.hand.move(*self.place(20, y))
        self.hand.button(True)
        time.sleep(0.2)
        before, begun = worked(self.process), time.perf_counter()
        for step in range(1, MOVES):
            self.hand.move(*self.place(20 + step * 7 % 550, y + step * 3 % 120))
            time.sleep(max(0.0, begun + step / PER_SECOND - time.perf_counter()))
        self.hand.button(False)
        time.sleep(0.1)
        return (worked(self.process) - before) / 1e9 / (MOVES / PER_SECOND)

    def close(self):
        self.watched.close()
        self.screen.close()


def main(kraspret):
    studios = [Studio(kraspret, 1), Studio(kraspret, FACTOR)]
    try:
        dots = [[studio.dot(20 + 15 * (i % 38), 20 + 15 * (i // 38)) for studio in studios] for i in range(PRESSES)]
        shares = [[studio.stroke(120 + 130 * i) for studio in studios] for i in range(STROKES)]
    finally:
        for studio in studios:
            studio.close()
    one, large = (1000 * statistics.quantiles(times)[0] for times in zip(*dots))  # less disturbed than the middle
    share_one, share = (100 * statistics.median(values) for values in zip(*shares))
    print(f"at factor 1: press to dot {one:.2f} ms, a stroke {share_one:.1f} % of a core; at {FACTOR}: {large:.2f} ms")
    rows = [("press to repainted screen", large / one, 4.0, "times that at factor 1"),
            (f"a stroke at {PER_SECOND} moves a second", share, 25.0, "% of a core")]
    for what, value, bar, unit in rows:
        print(f"{what:34} {value:8.2f}  at most {bar:5.1f} {unit:24}{'' if value <= bar else '  MISSED'}")
    sys.exit(any(value > bar for _, value, bar, _ in rows))


if __name__ == "__main__":
    main(*sys.argv[1:])
