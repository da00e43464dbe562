"""Turning, mirroring, replacing colours, gradients and the magnifier, by pointer and keyboard, down to the saved file and the screen."""
import math
import struct
import unittest

import driver
import effects
from kraspret import SHEET
from pixels import BLACK, BLUE, RED, WHITE

TURN = "DE TEKENING ONDER EEN HOEK DRAAIEN"
LENS = "Vergroting tekening =   10   X"
PI = 3.14159265359


def single(value):
    return struct.unpack("f", struct.pack("f", value))[0]


def turned(degrees):
    """A turn to the left as a function of a pixel of the sheet, but for its middle row and column."""
    angle = single(degrees * PI / 180)
    middle = [round(side / 2) for side in SHEET]

    def changed(at, x, y):
        x, y = x - middle[0], y - middle[1]
        u, v = (abs(x), abs(y)) if x * y > 0 else (abs(y), abs(x))
        direction, distance = single(math.atan(v / u)) + angle, round(math.hypot(u, v))
        p, q = round(distance * math.cos(direction)), round(distance * math.sin(direction))
        p, q = (p, q) if x * y > 0 else (q, -p)
        side = 1 if x > 0 else -1
        return at(middle[0] + side * p, middle[1] + side * q)
    return changed


class EffectWindows(effects.Case):
    def turn(self, degrees):
        """Turns the drawing by an angle of the list, the last of which is the full circle."""
        self.click("het menu ROTEREN")
        self.program.wait_window(TURN)
        if degrees == 360:
            angles = self.program.control("hoek in graden")
            angles.click()
            driver.until(lambda: angles.has("EXPANDED"), "list of angles")
            self.desktop.key("End", "Return")
            driver.until(lambda: not angles.has("EXPANDED"), "end of the list of angles")
        self.click("INVOEGEN")
        self.program.wait_gone(TURN)
        return self.saved()

    def test_a_quarter_turn_brings_the_upper_left_corner_below_the_middle_of_the_left_half(self):
        picture = self.turn(90)
        block = range(30, 100), range(510, SHEET[1])
        self.assertTrue(all(x in block[0] and y in block[1] for x, y in picture.others(WHITE)))
        self.expect(picture, turned(90), *block)

    def test_a_full_circle_moves_pixels_only_by_the_rounded_radius(self):
        picture = self.turn(360)
        self.assertTrue(all(x <= 60 and y <= 50 for x, y in picture.others(WHITE)))
        self.expect(picture, turned(360), range(65), range(55))
        for y in range(1, 49):
            for x in range(1, 59):
                self.assertIn(picture.at(x, y), {self.at(x + i, y + j) for i in (-1, 0, 1) for j in (-1, 0, 1)})

    def test_mirroring_twice_gives_the_same_file(self):
        before = self.file().read_bytes()
        for tip in ("HORIZONTAAL spiegelbeeld", "VERTICAAL spiegelbeeld"):
            self.click(tip)
            self.wait_corner(WHITE)
            once = self.saved()
            self.assertEqual(once.at(*((616, 0) if tip[0] == "H" else (0, 536))), self.at(0, 0))
            self.click(tip)
            self.wait_corner(self.at(0, 0))
            self.assertEqual(self.file().read_bytes(), before)
        self.assertTrue((self.home / "temp.bmp").is_file())

    def test_mirroring_where_nothing_can_be_written_keeps_the_drawing(self):
        taken = self.home / "temp.bmp"
        taken.unlink(missing_ok=True)
        taken.mkdir()  # keeps even a superuser from writing there
        self.addCleanup(taken.rmdir)
        before = self.file().read_bytes()
        self.click("HORIZONTAAL spiegelbeeld")
        self.program.wait_dialog()
        self.program.control("OK", role="push button").click()
        self.program.wait_no_dialog()
        self.assertEqual(self.file().read_bytes(), before)
        self.assertEqual(sorted(each.name for each in self.home.iterdir()), ["kraspret", "tekening.bmp", "temp.bmp"])

    def test_colours_are_replaced_by_dragging_a_slider(self):
        self.effect("KLEUREN VERVANGEN")
        self.program.wait_window("KLEUREN VERVANGEN")
        self.program.control("Rood", role="image").drag((148, 12), (-40, 12))
        self.program.control("-100", role="label")
        self.click("Uitvoeren")
        self.program.wait_gone("KLEUREN VERVANGEN")
        self.wait_done()
        self.expect(self.saved(), lambda at, x, y: (0,) + at(x, y)[1:], range(65), range(55))

    def test_a_gradient_runs_from_blue_to_red_and_back_with_the_right_button(self):
        self.click("overgang achtergrond van kleur 1 naar kleur 2")
        self.click("UITVOEREN")
        self.wait_corner(BLUE)
        picture = self.saved()
        self.assertEqual(picture.at(300, 0), BLUE)
        self.assertGreater(picture.at(300, 536)[0], 253)
        self.click("overgang achtergrond van kleur 1 naar kleur 2")
        self.desktop.click(*self.program.control("UITVOEREN").middle, button=3)
        self.wait_corner(RED)
        self.assertEqual(self.saved().at(300, 0), RED)

    def test_the_magnifier_shows_the_sheets_pixels_as_squares_and_goes_at_a_press(self):
        self.again(effects.noise(300, 80))  # wide enough to be seen beside the magnifier's own window
        self.click("het menu INZOOMEN")
        self.program.wait_window(" " * 22 + "IN / UIT ZOOMEN")
        slider = self.program.control("vergroting")
        slider.click()
        self.program.wait_focus(slider)
        self.desktop.key("Home", *["Down"] * 9)
        self.program.wait_window(LENS)
        x, y = 250, 40
        left, top, _, _ = slider.rectangle
        self.assertLess(max(left, top), 50, "it stands in the upper left corner")
        corner = left + (1230 - 120) // 15, top

        def shown(i, j):
            return BLACK if 100 in (i, j) else self.at(x - 10 + i // 10, y - 10 + j // 10)

        def wrong():
            self.desktop.move(*self.sheet.at(x, y - 1))
            self.desktop.move(*self.sheet.at(x, y))
            glass = self.desktop.screen().crop(*corner, 200, 200)
            return [(i, j) for j in range(200) for i in range(200) if glass.at(i, j) != shown(i, j)]
        driver.until(lambda: not wrong(), lambda: f"squares of the sheet, wrong at {wrong()[:5]}")
        self.desktop.click(*self.sheet.at(x, y))
        self.program.wait_gone(LENS)


if __name__ == "__main__":
    unittest.main()
