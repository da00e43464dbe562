"""The effects on a picture from the command line, by their buttons, as a child sees, saves and compares them."""
import math
import os
import random
import unittest

import cases
import driver
import kraspret
import pixels

PANEL, DONE = "het menu KLEUREFFECTEN", "KRAS PRET"
WIDTH, HEIGHT = 60, 50  # of the picture, in the upper left corner of the sheet
WHITE = (255, 255, 255)


def whole(value):
    return round(value)  # ties to even


def around(at, x, y):
    return [at(x + i, y + j) for j in (-1, 0, 1) for i in (-1, 0, 1)]


def blurred(at, x, y):
    return tuple(whole(sum(c) / 9) for c in zip(*around(at, x, y)))


def embossed(at, x, y):
    return tuple(min(abs(a - b + 128), 255) for a, b in zip(at(x, y), at(x + 1, y + 1)))


def inverted(at, x, y):
    return tuple(255 - c for c in at(x, y))


def halved(at, x, y):
    return tuple(whole(c / 2) for c in at(x, y))


def slipped(at, x, y):
    """The last of the column's dots that lands on this row; what none lands on stays."""
    landing = [row for row in range(y - 6, y + 12) if row >= 0 and whole(math.sin(x) * 6 + (row - 3)) == y]
    return at(x, landing[-1]) if landing else at(x, y)


class Effects(cases.Case):
    def setUp(self):
        # Mirroring leaves a file beside the program: it runs from a folder of the test's own.
        built = os.environ.get("KRASPRET_PROGRAM", str(kraspret.BUILT))
        link = self.path("kraspret")
        os.symlink(built, link)
        dice = random.Random(8)
        self.picture = pixels.Picture(WIDTH, HEIGHT, [bytes(dice.randrange(256) for _ in range(3 * WIDTH)) for _ in range(HEIGHT)])
        pixels.write_bmp(self.path("tekening.bmp"), self.picture)
        self.program = kraspret.KrasPret(self.desktop, link, str(self.path("tekening.bmp")))
        self.addCleanup(driver.stop, self.program.process)
        self.program.wait_menu()
        self.sheet = self.program.open_studio()
        self.number = 0

    def at(self, x, y):
        """The sheet before anything happened."""
        return self.picture.at(x, y) if 0 <= x < WIDTH and 0 <= y < HEIGHT else WHITE

    def click(self, name):
        self.program.control(name).click()

    def saved(self):
        self.number += 1
        return self.program.save(self.path(f"{self.number}.bmp"))

    def wait_done(self):
        """The message that follows an effect after five seconds."""
        self.program.wait_dialog(DONE)
        self.assertEqual(self.program.answer(DONE, "OK"), "Klaar !!!")

    def effect(self, tip):
        self.click(PANEL)
        self.click(tip)

    def expect(self, changed, left=1, top=1):
        result = self.saved()
        self.assertEqual((result.width, result.height), kraspret.SHEET)
        wrong = [(x, y) for y in range(top, HEIGHT + 5) for x in range(left, WIDTH + 5) if result.at(x, y) != changed(self.at, x, y)]
        self.assertEqual(wrong, [])

    def again(self):
        """The picture as it was, by the way of opening it."""
        self.click(kraspret.OPEN)
        self.program.answer(kraspret.OPEN_QUESTION, "Nee")
        self.program.answer_file_dialog(self.path("tekening.bmp"))
        self.program.wait_no_dialog()

    def test_blur_emboss_invert_and_rag_change_every_pixel_as_they_should(self):
        for tip, changed in (("VERVAGEN", blurred), ("GRIJS RELIEF", embossed), ("KLEUREN OMKEREN", inverted), ("ZAAGRAND", slipped)):
            with self.subTest(tip):
                self.effect(tip)
                self.wait_done()
                self.expect(changed)
                self.again()

    def test_brightness_asks_and_halves(self):
        self.effect("HELDERHEID VERANDEREN")
        self.program.wait_dialog("HELDERHEID INSTELLEN")
        self.desktop.key("ctrl+a")
        self.desktop.type("50")
        self.desktop.key("Return")
        self.wait_done()
        self.expect(halved, 0, 0)

    def test_hammer_and_scatter_leave_their_marks(self):
        self.effect("HAMERSLAG")
        self.wait_done()
        dented = self.saved()
        self.assertEqual(dented.at(305, 305), WHITE)
        self.assertNotEqual(dented.at(308, 305), WHITE)
        self.again()
        self.effect("VERSPREIDEN")
        self.wait_done()
        scattered = self.saved()
        near = lambda x, y: {self.at(x + i, y + j) for i in range(-2, 2) for j in range(-2, 2)}
        self.assertTrue(all(scattered.at(x, y) in near(x, y) for y in range(2, HEIGHT) for x in range(2, WIDTH)))
        self.assertGreater(sum(scattered.at(x, y) != self.at(x, y) for y in range(2, HEIGHT) for x in range(2, WIDTH)), 1000)

    def test_mirroring_twice_gives_the_same_file(self):
        before = self.saved()
        for tip in ("HORIZONTAAL spiegelbeeld", "VERTICAAL spiegelbeeld"):
            self.click(tip)
            once = self.saved()
            self.assertNotEqual(once.rows, before.rows)
            self.click(tip)
            self.assertEqual(self.saved().rows, before.rows)
        self.assertIn("temp.bmp", self.left())

    def test_colours_are_replaced_by_dragging_a_slider(self):
        self.effect("KLEUREN VERVANGEN")
        self.program.wait_window("KLEUREN VERVANGEN")
        self.program.control("Rood", role="graphic").drag((148, 12), (-40, 12))
        self.program.control("-100", role="label")
        self.click("Uitvoeren")
        self.program.wait_gone("KLEUREN VERVANGEN")
        self.wait_done()
        self.expect(lambda at, x, y: (0,) + at(x, y)[1:], 0, 0)

    def test_a_gradient_runs_from_blue_to_red_and_back_with_the_right_button(self):
        self.click("overgang achtergrond van kleur 1 naar kleur 2")
        self.click("UITVOEREN")
        picture = self.saved()
        self.assertEqual(picture.at(300, 0), (0, 0, 255))
        self.assertGreater(picture.at(300, 536)[0], 253)
        self.click("overgang achtergrond van kleur 1 naar kleur 2")
        self.desktop.click(*self.program.control("UITVOEREN").middle, button=3)
        driver.until(lambda: self.program.sheet_on_screen().at(300, 2)[0] > 250, "reversed gradient")
        self.assertEqual(self.saved().at(300, 0), (255, 0, 0))

    def test_turning_by_ninety_and_by_a_full_circle(self):
        self.click("het menu ROTEREN")
        self.program.wait_window("DE TEKENING ONDER EEN HOEK DRAAIEN")
        self.click("INVOEGEN")
        self.program.wait_gone("DE TEKENING ONDER EEN HOEK DRAAIEN")
        turned = self.saved()
        # A quarter to the left brings the upper left corner below the middle of the left half.
        self.assertEqual(turned.at(2, 2), WHITE)
        block = {turned.at(x, y) for y in range(525, 537) for x in range(40, 90)}
        self.assertGreater(len(block & set(self.at(x, y) for y in range(HEIGHT) for x in range(WIDTH))), 50)

    def test_the_magnifier_shows_the_sheets_pixels_as_squares(self):
        self.click("het menu INZOOMEN")
        window = self.program.wait_window("IN / UIT ZOOMEN")
        slider = self.program.control("vergroting")
        slider.click()
        self.program.wait_focus(slider)
        self.desktop.key("Home", *["Down"] * 9)
        self.program.wait_window("Vergroting tekening = 10 X")
        x, y = 30, 25
        self.desktop.move(*self.sheet.at(x, y - 1))
        self.desktop.move(*self.sheet.at(x, y))
        left, top, width, height = slider.rectangle
        corner = left + (1080 - 120) // 15, top

        def wrong():
            glass = self.desktop.screen().crop(*corner, 200, 200)
            return [(i, j) for j in range(0, 200, 7) for i in range(0, 200, 7)
                    if glass.at(i, j) != (self.at(x - 10 + i // 10, y - 10 + j // 10) if 100 not in (i, j) else (0, 0, 0))]
        driver.until(lambda: not wrong(), lambda: f"squares of the sheet, wrong at {wrong()[:5]}")
        self.desktop.click(*self.sheet.at(x, y))
        self.program.wait_gone("Vergroting tekening = 10 X")


if __name__ == "__main__":
    unittest.main()
