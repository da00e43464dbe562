"""What the tests of the effects share: a drawing from the command line, ways to change it, and what should have become of it."""
import os
import random

import cases
import driver
import kraspret
import pixels
from pixels import WHITE

DONE = "KRAS PRET"  # the message after an effect has no title of its own


def noise(width, height):
    dice = random.Random(8)
    return pixels.Picture(width, height, [dice.randbytes(3 * width) for _ in range(height)])


class Case(cases.StudioCase):
    """Each test finds its drawing in the upper left corner of the sheet: the studio loads it whenever it opens."""

    def setUp(self):
        cls = type(self)
        cls.home = self.desktop.folder / "program"
        if cls.program is None:
            # Mirroring leaves a file beside the program: it runs from a folder of the test's own.
            cls.home.mkdir(exist_ok=True)
            link = cls.home / "kraspret"
            if not link.exists():
                os.symlink(os.environ.get("KRASPRET_PROGRAM", str(kraspret.BUILT)), link)
            cls.program = kraspret.KrasPret(self.desktop, link, cls.home / "tekening.bmp")
            cls.program.wait_menu()
        self.number = 0
        self.draw(noise(60, 50))

    def draw(self, picture):
        """Opens the studio with this picture."""
        self.picture = picture
        pixels.write_bmp(self.home / "tekening.bmp", picture)
        self.sheet = self.program.open_studio()

    def again(self, picture):
        """The same with another picture."""
        self.program.leave_studio()
        self.draw(picture)

    def at(self, x, y):
        """The sheet before anything happened."""
        return self.picture.at(x, y) if 0 <= x < self.picture.width and 0 <= y < self.picture.height else WHITE

    def click(self, name):
        self.program.control(name).click()

    def file(self):
        """The sheet, saved under a new name."""
        self.number += 1
        path = self.path(f"{self.number}.bmp")
        self.program.save(path)
        return path

    def saved(self):
        result = pixels.read_bmp(self.file())
        self.assertEqual((result.width, result.height), kraspret.SHEET)
        return result

    def wait_done(self):
        """The message that follows an effect after five seconds."""
        self.program.wait_dialog(DONE)
        self.program.control("Klaar !!!", role="label")
        self.program.control("OK", role="push button").click()
        self.program.wait_no_dialog()

    def effect(self, tip):
        self.click("het menu KLEUREFFECTEN")
        self.click(tip)

    def expect(self, result, changed, columns, rows):
        """Every pixel of a part of the result is what `changed` makes of the sheet as it was."""
        wrong = [(x, y) for y in rows for x in columns if result.at(x, y) != changed(self.at, x, y)]
        self.assertEqual(wrong[:9], [])

    def wait_corner(self, colour):
        """Waits until the sheet shows a colour in its upper left corner, which no window covers."""
        left, top, _, _ = self.sheet.rectangle
        driver.until(lambda: self.desktop.screen().at(left, top) == colour, f"{colour} in the corner of the sheet")
