"""Saving: the dialog, its questions, and what is on the disk afterwards."""
import unittest

import cases
import driver
import pixels
from kraspret import OVERWRITE_QUESTION, SAVE, SHEET, WHITE


class Saving(cases.StudioCase):
    def setUp(self):
        super().setUp()
        self.sheet.drag((40, 50), (140, 50))

    def bystander(self, name):
        """A file that is there before; gives its path."""
        path = self.path(name)
        path.write_bytes(b"not to be lost")
        return path

    def untouched(self, path):
        return path.read_bytes() == b"not to be lost"

    def mark(self, picture):
        self.assertEqual((picture.width, picture.height), SHEET)
        self.assertEqual(picture.others(WHITE), {(x, 50) for x in range(40, 141)})

    def ask_to_save(self, path):
        self.program.control(SAVE).click()
        self.program.wait_says("je tekening in de computer OPSLAAN (=bewaren voor later)")
        self.program.answer_file_dialog(path)

    def test_a_cancelled_dialog_writes_nothing_and_keeps_the_drawing(self):
        before = set(self.desktop.folder.iterdir())
        self.ask_to_save(None)
        self.program.wait_no_dialog()
        self.assertEqual(set(self.desktop.folder.iterdir()), before)
        self.mark(self.program.save(self.path("after.bmp")))

    def test_a_name_is_taken_as_it_was_typed(self):
        for name in ("zonder", "tekening.jpg", "met blanco en é.bmp"):
            with self.subTest(name):
                self.mark(self.program.save(self.path(name)))
        self.assertEqual(len(self.left()), 3, "something else was written beside")

    def test_a_yes_to_the_question_writes_over_the_file(self):
        path = self.bystander("oud.bmp")
        self.ask_to_save(path)
        text = self.program.answer(OVERWRITE_QUESTION, "Ja")
        self.assertIn("Deze naam bestaat al ... overschrijven ?", text)
        driver.until(lambda: not self.untouched(path), "new contents")
        self.program.wait_no_dialog()
        self.mark(pixels.read_bmp(path))

    def test_a_no_asks_for_another_name(self):
        path, other = self.bystander("oud.bmp"), self.path("nieuw.bmp")
        self.ask_to_save(path)
        self.program.answer(OVERWRITE_QUESTION, "Nee")
        self.program.answer_file_dialog(other)
        driver.until(other.exists, "second file")
        self.program.wait_no_dialog()
        self.mark(pixels.read_bmp(other))
        self.assertTrue(self.untouched(path))

    def test_a_no_and_a_cancel_write_nothing(self):
        path = self.bystander("oud.bmp")
        self.ask_to_save(path)
        self.program.answer(OVERWRITE_QUESTION, "Nee")
        self.program.answer_file_dialog(None)
        self.program.wait_no_dialog()
        self.assertTrue(self.untouched(path))
        self.assertEqual(self.left(), ["oud.bmp"])

    def test_the_same_name_given_twice_is_written_over_without_another_question(self):
        path = self.bystander("oud.bmp")
        self.ask_to_save(path)
        self.program.answer(OVERWRITE_QUESTION, "Nee")
        self.program.answer_file_dialog(path)
        driver.until(lambda: not self.untouched(path), "new contents")
        self.program.wait_no_dialog()
        self.mark(pixels.read_bmp(path))

    def test_a_folder_that_is_not_there_leaves_everything_as_it_is(self):
        self.ask_to_save(self.path("nergens") / "tekening.bmp")
        self.desktop.key("Escape")
        self.desktop.key("Escape")
        self.program.wait_no_dialog()
        self.assertFalse(self.path("nergens").exists())
        self.mark(self.program.save(self.path("na.bmp")))


if __name__ == "__main__":
    unittest.main()
