"""Opening a picture in the studio: the question before, the dialog, and what lies on the sheet afterwards."""
import unittest

import cases
import driver
import pixels
from kraspret import OPEN, OPEN_QUESTION, WHITE


class Opening(cases.StudioCase):
    def setUp(self):
        super().setUp()
        self.sheet.drag((40, 50), (140, 50))

    def given(self):
        """A picture on disk, and where it lies."""
        path = self.path("gegeven.bmp")
        picture = pixels.halves(60, 40)
        pixels.write_bmp(path, picture)
        return path, picture

    def ask_to_open(self, answer):
        self.program.control(OPEN).click()
        self.program.wait_says("een BESTAANDE tekening uit je computer OPENEN")
        text = self.program.answer(OPEN_QUESTION, answer)
        self.assertIn("Wil je de huidige tekening opslaan ?", text)

    def test_a_picture_takes_the_place_of_the_drawing(self):
        path, picture = self.given()
        self.ask_to_open("Nee")
        self.program.answer_file_dialog(path)
        self.program.wait_no_dialog()
        self.program.wait_pixel(10, 10, pixels.RED)
        saved = self.program.save(self.path("opgeslagen.bmp"))
        self.assertEqual(saved.crop(0, 0, 60, 40).rows, picture.rows)
        self.assertEqual(saved.others(WHITE), {(x, y) for x in range(60) for y in range(40)})

    def test_a_yes_saves_the_drawing_first(self):
        path, picture = self.given()
        drawing = self.path("tekening.bmp")
        self.ask_to_open("Ja")
        self.program.answer_file_dialog(drawing)
        driver.until(drawing.exists, "drawing")
        self.program.answer_file_dialog(path)
        self.program.wait_no_dialog()
        self.program.wait_pixel(10, 10, pixels.RED)
        self.assertEqual(pixels.read_bmp(drawing).others(WHITE), {(x, 50) for x in range(40, 141)})

    def test_a_cancel_keeps_the_drawing(self):
        self.ask_to_open("Nee")
        self.program.answer_file_dialog(None)
        self.program.wait_no_dialog()
        self.assertEqual(self.program.save(self.path("na.bmp")).others(WHITE), {(x, 50) for x in range(40, 141)})

    def test_a_damaged_file_keeps_the_drawing_without_a_word(self):
        path = self.path("stuk.gif")
        path.write_bytes(b"GIF89a" + bytes(20))
        self.ask_to_open("Nee")
        self.program.answer_file_dialog(path)
        self.program.wait_no_dialog()
        self.assertEqual(self.program.save(self.path("na.bmp")).others(WHITE), {(x, 50) for x in range(40, 141)})


if __name__ == "__main__":
    unittest.main()
