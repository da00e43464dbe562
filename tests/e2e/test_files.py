"""Pictures from and to the disk: the save dialog and its questions, a picture named at the start."""
import os
import unittest

import driver
import kraspret
import pixels
from kraspret import BLACK, OPEN, OPEN_QUESTION, OVERWRITE_QUESTION, SAVE, SHEET, WHITE

RED, BLUE = (255, 0, 0), (0, 0, 255)


def setUpModule():
    global desktop
    desktop = driver.Desktop()


def tearDownModule():
    desktop.close()


def halves(width, height):
    """A picture whose left half is red and whose right half is blue, with a black pixel in two corners."""
    half = width // 2
    row = bytes(RED) * half + bytes(BLUE) * (width - half)
    rows = [bytes(BLACK) + row[3:]] + [row] * (height - 2) + [row[:-3] + bytes(BLACK)]
    return pixels.Picture(width, height, rows)


class Files(unittest.TestCase):
    def start(self, *arguments):
        program = kraspret.start(desktop, *arguments)
        self.addCleanup(driver.stop, program.process)
        program.wait_menu()
        return program

    def path(self, name):
        folder = desktop.folder / self.id().rsplit(".", 1)[-1]
        folder.mkdir(exist_ok=True)
        return folder / name

    def bystander(self, name):
        """A file that is there before; gives its path."""
        path = self.path(name)
        path.write_bytes(b"not to be lost")
        return path

    def untouched(self, path):
        return path.read_bytes() == b"not to be lost"


class Saving(Files):
    def setUp(self):
        self.program = self.start().to_studio()
        self.program.sheet().drag((40, 50), (140, 50))

    def mark(self, picture):
        self.assertEqual((picture.width, picture.height), SHEET)
        self.assertEqual(picture.others(WHITE), {(x, 50) for x in range(40, 141)})

    def ask_to_save(self, path):
        self.program.control(SAVE).click()
        self.program.wait_says("je tekening in de computer OPSLAAN (=bewaren voor later)")
        self.program.answer_file_dialog(path)

    def test_a_cancelled_dialog_writes_nothing_and_keeps_the_drawing(self):
        before = set(os.listdir(desktop.folder))
        self.ask_to_save(None)
        self.program.wait_no_dialog()
        self.assertEqual(set(os.listdir(desktop.folder)), before)
        self.mark(self.program.save(self.path("after.bmp")))

    def test_a_name_is_taken_as_it_was_typed(self):
        for name in ("zonder", "tekening.jpg", "met blanco en é.bmp"):
            with self.subTest(name):
                self.mark(self.program.save(self.path(name)))
        self.assertEqual(len(os.listdir(self.path("x").parent)), 3, "something else was written beside")

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
        self.assertEqual(os.listdir(path.parent), ["oud.bmp"])

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
        self.program.desktop.key("Escape")
        self.program.desktop.key("Escape")
        self.program.wait_no_dialog()
        self.assertFalse(self.path("nergens").exists())
        self.mark(self.program.save(self.path("na.bmp")))


class Opening(Files):
    def setUp(self):
        self.program = self.start().to_studio()
        self.program.sheet().drag((40, 50), (140, 50))

    def given(self):
        """A picture on disk, and where it lies."""
        path = self.path("gegeven.bmp")
        picture = halves(60, 40)
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
        self.program.wait_pixel(10, 10, RED)
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
        self.program.wait_pixel(10, 10, RED)
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


class PictureAtTheStart(Files):
    def open_with(self, width, height):
        """Starts with a picture of this size; gives it, the program and the saved sheet."""
        given = halves(width, height)
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
        given = halves(200, 100)
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
        pixels.write_bmp(path, halves(60, 40))
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
