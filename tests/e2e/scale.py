"""A line on the sheet of an enlarged studio: what the screen shows of it, and what is in the file."""
import math
from fractions import Fraction

import cases
import kraspret
import pixels
from kraspret import BLACK, STUDIO, WHITE

FROM, TO = 96, 208  # the square of the sheet that is compared: with the line, without the sample of it
GREY = 192  # darker is a device pixel that is mostly a black one's


def shares(device, factor):
    """The pixels beneath a device pixel, each with its share of it."""
    first, end = math.floor(device / factor), (device + 1) / factor
    whole = min(end, first + 1) * factor - device
    return [(first, whole)] + ([(first + 1, 1 - whole)] if whole < 1 else [])


def resampled(picture, factor, compared):
    """A square of a picture at a factor, every device pixel mixed by areas."""
    across = [shares(x, factor) for x in compared]
    rows = []
    for down in across:
        row = []
        for beneath in across:
            parts = [(picture.at(px, py), wide * high) for px, wide in beneath for py, high in down]
            row.append([float(sum(colour[channel] * part for colour, part in parts)) for channel in range(3)])
        rows.append(row)
    return rows


def settled(look):
    """What a look finds, once it finds the same twice: the screen can be read while it is being painted."""
    last = None

    def again():
        nonlocal last
        before, last = last, look()
        return last if last == before else None
    return cases.driver.until(again, "the same at two looks")


class ScaleCase(cases.Case):
    """A studio at a factor."""

    def click(self, program, name, factor):
        """The program tells places in its own pixels."""
        self.desktop.click(*(int(factor * part) for part in program.control(name).middle))

    def drawn_at(self, factor, meanwhile):
        """Draws a line from (100, 100) to (200, 150) in a new program; gives the screen's part with the sheet, and the file."""
        factor = Fraction(factor)
        program = self.start()
        self.click(program, "Tekenen Groot", factor)
        program.wait_window(STUDIO)
        meanwhile()
        left, top = self.corner(factor)

        def place(x, y):
            """Well inside a pixel of the sheet, on the screen."""
            return left + int((x + Fraction(1, 2)) * factor), top + int((y + Fraction(1, 2)) * factor)
        self.click(program, kraspret.TOOLS["line"], factor)
        program.wait_says("je bent bezig met LIJNEN TREKKEN")
        self.desktop.drag(place(100, 100), place(200, 150))
        # A release that the window manager is slow to hand on would be one at the pointer's next place.
        cases.driver.until(lambda: max(self.desktop.screen().at(*place(100, 100))) < GREY, "line on the sheet")
        self.desktop.move(*place(500, 400))
        program.wait_says("X=500 Y=400")
        side, ends = int(TO * factor), (place(100, 100), place(199, 149))

        def line():
            screen = self.desktop.screen()
            return screen.crop(left, top, side, side).rows if all(max(screen.at(*end)) < GREY for end in ends) else None
        shown = pixels.Picture(side, side, settled(line))
        self.click(program, kraspret.SAVE, factor)
        path = self.path("lijn.bmp")
        program.answer_file_dialog(path)
        cases.driver.until(path.exists, "saved file")
        program.wait_no_dialog()
        return shown, pixels.read_bmp(path)

    def corner(self, factor):
        """The sheet's upper left corner on the screen: the first white one in a row well inside, beside the window's grey."""
        def look():
            screen = self.desktop.screen()
            x, y = int(176 * factor), int(60 * factor)
            if screen.at(x - 1, y) != (224, 224, 224) or screen.at(x, y) != WHITE:
                return None
            while screen.at(x, y - 1) == WHITE:
                y -= 1
            return x, y
        return settled(look)

    def lands_where_it_was_pressed(self, factor, meanwhile=lambda: None):
        """Draws and compares; `meanwhile` is done once the studio stands."""
        shown, saved = self.drawn_at(factor, meanwhile)
        self.assertEqual((saved.width, saved.height), kraspret.SHEET)
        black = saved.others(WHITE)
        self.assertEqual({x for x, _ in black}, set(range(100, 200)))
        self.assertTrue(all(abs(y - (100 + (x - 100) / 2)) <= 0.5 for x, y in black))
        self.assertEqual(len(black), 100)
        self.assertEqual(saved.at(100, 100), BLACK)
        compared = range(int(FROM * Fraction(factor)), shown.width)
        wanted = resampled(saved, Fraction(factor), compared)
        worst = max(abs(a - b) for y, row in zip(compared, wanted) for x, colour in zip(compared, row)
                    for a, b in zip(shown.at(x, y), colour))
        self.assertLessEqual(worst, 2, "a device pixel has the colours beneath it by their areas")
