"""A picture named on the command line: on the sheet, or a message and an empty sheet."""
import unittest

import cases
import kraspret
import pixels
from kraspret import BLACK, SHEET, WHITE
from pixels import BLUE, RED


class PictureAtTheStart(cases.Case):
    def open_with(self, width, height):
        """Starts with a picture of this size; gives it, the program and the saved sheet."""
        given = pixels.halves(width, height)
        path = self.path("gegeven.bmp")
        pixels.write_bmp(path, given)
        program = self.start(path).to_studio()
        return given, program, program.save(self.path("opgeslagen.bmp"))

    def test_a_small_picture_lies_in_the_upper_left_corner(self):
        given, program, saved = self.open_with(60, 40)
        self.assertEqual((saved.width, saved.height), SHEET)
        self.assertEqual(saved.crop(0, 0, 60, 40).rows, given.rows)
        self.assertEqual(saved.others(WHITE), {(x, y) for x in range(60) for y in range(40)})
        self.assertEqual(program.sheet_on_screen().rows, saved.rows)

    def test_a_large_picture_is_cut_off_at_the_sheets_edges(self):
        given, _, saved = self.open_with(2000, 2000)
        self.assertEqual((saved.width, saved.height), SHEET)
        self.assertEqual(saved.rows, given.crop(0, 0, *SHEET).rows)

    def test_a_drawing_on_a_picture_is_saved_with_it(self):
        given = pixels.halves(200, 100)
        path = self.path("gegeven.bmp")
        pixels.write_bmp(path, given)
        program = self.start(path).to_studio()
        program.choose("filled box")
        program.sheet().drag((150, 50), (250, 150))
        saved = program.save(self.path("opgeslagen.bmp"))
        self.assertEqual(saved.at(149, 49), BLUE)
        self.assertEqual({saved.at(x, y) for x in range(150, 251) for y in range(50, 151)}, {BLACK})
        self.assertEqual(saved.at(10, 10), RED)
        self.assertEqual(saved.at(251, 151), WHITE)

    def test_a_name_with_blanks_is_one_file(self):
        path = self.path("mijn mooie tekening.bmp")
        pixels.write_bmp(path, pixels.plain(20, 10, RED))
        program = self.start(*str(path).split(" ")).to_studio()
        self.assertEqual(program.save(self.path("opgeslagen.bmp")).at(19, 9), RED)

    def refused(self, path):
        """The message that a start with this file brings; the sheet must be empty behind it, and usable."""
        program = self.start(path)
        program.control("Tekenen Groot").click()
        text = program.answer(str(path), "OK")
        program.wait_window(kraspret.STUDIO)
        program.sheet().drag((40, 50), (140, 50))
        saved = program.save(self.path("opgeslagen.bmp"))
        self.assertEqual(saved.others(WHITE), {(x, 50) for x in range(40, 141)})
        return " ".join(text.split())

    def test_a_broken_picture_brings_a_message_and_an_empty_sheet(self):
        path = self.path("stuk.bmp")
        pixels.write_bmp(path, pixels.halves(60, 40))
        path.write_bytes(path.read_bytes()[:200])
        self.assertEqual(self.refused(path), f"Er is iets misgegaan ! {path} KrasPret kan deze opdracht niet verwerken. "
                                             "Het is mogelijk dat het bestand niet bestaat of beschadigd is.")

    def test_a_file_that_is_not_there_brings_the_same_message(self):
        self.assertIn("Er is iets misgegaan !", self.refused(self.path("niets.bmp")))

    def test_a_text_that_calls_itself_a_picture_brings_the_same_message(self):
        path = self.path("brief.bmp")
        path.write_text("Lieve oma, dit is geen tekening.\n" * 20)
        self.assertIn("Er is iets misgegaan !", self.refused(path))


if __name__ == "__main__":
    unittest.main()
