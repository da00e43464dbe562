"""The text tool: a place, a text, an effect, and what stands in the saved picture."""
import math
import unittest

import driver
from kraspret import BLACK, WHITE
from studio import UNDO, Studio, of_colour

TOOL, DIALOG = "TEKST invoeren", "Hoe wil je de tekst ?"
DEPTH = "DIEPTE en HOEK van het 3D-effect"
GREY = (192, 192, 192)  # the colour of the effects until a child picks one
X, Y = 100, 50          # of the click
TEXT = "Zoe 7"


class Text(Studio):
    def open_dialog(self, x=X, y=Y):
        self.click(TOOL)
        self.dot(x, y)
        self.program.wait_window(DIALOG)

    def type(self, text):
        field = driver.until(lambda: next((c for c in self.program.controls() if c.role == "text" and c.has("FOCUSED")), None),
                             "text field with the focus")
        self.desktop.type(text)
        driver.until(lambda: field.text == text, lambda: f"{text!r} in the field, it holds {field.text!r}")

    def tick(self, name):
        box = self.program.control(name, role="check box")
        box.click()
        driver.until(lambda: box.has("CHECKED"), f"tick at {name}")

    def insert(self):
        self.click("Voeg in")
        self.program.wait_gone(DIALOG)

    def place(self, *effects):
        """The picture with the text in it; the sheet is empty again afterwards."""
        self.open_dialog()
        self.type(TEXT)
        for effect in effects:
            self.tick(effect)
        if "3D" in effects:
            slider = self.program.control(DEPTH)
            slider.click()
            self.program.wait_focus(slider)
            self.desktop.key("End")
            driver.until(lambda: int(slider.value) == 10, lambda: f"depth 10, it is {slider.value}")
        self.insert()
        painted = self.painted()
        self.click(UNDO)
        self.assertEqual(self.painted(), {})
        return painted

    def letters(self):
        """Where the letters stand, without an effect, relative to the place of the text."""
        if not hasattr(type(self), "shape"):
            painted = self.place()
            self.assertEqual(set(painted.values()), {BLACK})
            self.assertIn((X + 2, Y + 2), painted)
            type(self).shape = {(x - X - 2, y - Y - 2) for x, y in painted} - {(0, 0)}
            self.assertGreater(len(self.shape), 200)
        return self.shape

    def printed(self, *prints):
        """What is left to see of prints (x, y, colour, colour of the dot), one over the other."""
        canvas = {}
        for x, y, colour, dot in prints:
            canvas[X + 2 + x, Y + 2 + y] = dot
            canvas.update({(X + 2 + x + dx, Y + 2 + y + dy): colour for dx, dy in self.letters()})
        return {at: colour for at, colour in canvas.items() if colour != WHITE}

    def test_a_plain_text_starts_two_pixels_right_and_below_the_click(self):
        letters = self.letters()
        self.assertTrue(all(x > -3 and y > -3 for x, y in letters))
        self.assertTrue(any(x < 6 for x, _ in letters))

    def test_an_outline_goes_round_the_text(self):
        block = [(x, y, GREY, BLACK) for x in (-1, 0, 1) for y in (-1, 0, 1)]
        self.assertEqual(self.place("Buitenlijn"), self.printed(*block, (0, 0, BLACK, BLACK)))

    def test_a_raised_text_has_a_bright_and_a_dark_edge(self):
        upper = [(x, y, GREY, WHITE) for x in (-1, 0) for y in (-1, 0)]
        lower = [(x, y, WHITE, BLACK) for x in (0, 1) for y in (0, 1)]
        self.assertEqual(self.place("Verhoogd"), self.printed(*upper, *lower, (0, 0, BLACK, BLACK)))

    def test_a_deep_text_runs_to_the_lower_left(self):
        angle = math.pi / 2 + 2 * math.pi / 8
        copies = [(round(i * math.cos(angle)), round(i * math.sin(angle)), GREY, BLACK) for i in range(1, 11)]
        self.assertEqual(self.place("3D"), self.printed(*copies, (0, 0, BLACK, BLACK)))

    def test_an_empty_text_is_asked_for_and_the_dialog_stays(self):
        self.open_dialog()
        self.click("Voeg in")
        self.assertEqual(self.program.answer("Oeps ! Een foutje !", "OK"), "Je hebt nog geen tekst ingevoerd !")
        self.type("ja")
        self.insert()
        self.assertGreater(len(self.painted()), 20)

    def test_the_mark_shows_on_the_screen_only(self):
        self.open_dialog(400, 400)
        driver.until(lambda: of_colour(self.program.sheet_on_screen(), (128, 128, 128)), "mark on the sheet")
        self.click("Annuleren")
        self.program.wait_gone(DIALOG)
        self.program.wait_pixel(401, 430, WHITE)
        self.assertEqual(self.painted(), {})

    def test_leaving_the_studio_closes_the_dialog(self):
        self.open_dialog()
        self.desktop.close_window(self.program.wait_window("KRAS PRET - TEKENEN GROOT"))
        self.program.wait_menu()
        self.program.wait_gone(DIALOG)
        self.program.open_studio()


if __name__ == "__main__":
    unittest.main()
