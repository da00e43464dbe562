"""Another size for the sheet, typed in centimetres as the system writes numbers, and a new sheet."""
import pathlib
import struct
import unittest
from unittest import mock

import driver
import kraspret
import pixels
import studio
from kraspret import BLACK, SHEET
from studio import HEIGHT, QUESTION, WIDTH, Studio, block


def in_pixels(centimetres):
    return round(centimetres / 2.54 * 96)


class Sheet(Studio):
    def begin_in(self, language):
        """The studio on a system of this language."""
        with mock.patch.dict(self.desktop.env, LC_ALL=language, LANG=language):
            self.program = self.start()
        self.sheet = self.program.open_studio()

    def setUp(self):
        pass

    def tearDown(self):
        pass

    def test_a_dutch_system_shows_and_wants_a_comma(self):
        self.begin_in("nl_NL.UTF-8")
        self.box(10, 10, 30, 30)
        self.stroke((600, 500), (610, 510))
        width, height = self.resize("10,5", "8")
        self.assertRegex(width, r"^16,3\d+$")
        self.assertRegex(height, r"^14,2\d+$")
        size = in_pixels(10.5), in_pixels(8)
        self.assertEqual(self.saved(size).others(kraspret.WHITE), block(10, 10, 30, 30))

        for refused in (("10.5", "8"), ("tien", "8"), ("9", "acht"), ("9", ""), ("9", None), (None, "9"), ("9", "40000")):
            with self.subTest(refused):
                self.resize(*refused)
                self.saved(size)
        self.resize("9", "-3")
        self.saved((in_pixels(9), size[1]))

        self.click(studio.NEW)
        self.program.wait_says("een NIEUW tekenblad met dezelfde grootte openen")
        self.assertEqual(self.painted(), {})

    def test_an_english_system_wants_a_point_and_a_larger_sheet_grows_white(self):
        self.begin_in("en_GB.UTF-8")
        self.box(10, 10, 30, 30)
        width, _ = self.resize("17.25", "15")
        self.assertRegex(width, r"^16\.3\d+$")
        picture = self.saved((in_pixels(17.25), in_pixels(15)))
        self.assertEqual({at: picture.at(*at) for at in picture.others(kraspret.WHITE)},
                         dict.fromkeys(block(10, 10, 30, 30), BLACK))

    def test_the_numbers_offered_keep_the_width_and_round_the_height(self):
        self.begin_in("nl_NL.UTF-8")
        self.click(studio.RESIZE)
        self.program.answer(QUESTION, "Nee")
        for title in (WIDTH, HEIGHT):
            self.program.wait_dialog(title)
            self.desktop.key("Return")
            driver.until(lambda: not self.program.shows(title), f"end of {title!r}")
        self.saved((SHEET[0], in_pixels(14)))

    def test_a_yes_saves_the_drawing_before_the_size_is_asked(self):
        self.begin_in("nl_NL.UTF-8")
        self.box(10, 10, 30, 30)
        self.click(studio.RESIZE)
        text = self.program.answer(QUESTION, "Ja")
        self.assertIn("Je gaat een NIEUWE tekening met een ANDER FORMAAT maken.", text)
        self.assertIn("Wil je de huidige tekening opslaan ?", text)
        self.program.answer_file_dialog(self.path("eerst.bmp"))
        self.answer(WIDTH, "5")
        self.answer(HEIGHT, "5")
        picture = pixels.read_bmp(self.path("eerst.bmp"))
        self.assertEqual((picture.width, picture.height), SHEET)
        self.saved((in_pixels(5), in_pixels(5)))

    def most_memory(self):
        """The most that the program has ever held, in MiB."""
        status = pathlib.Path(f"/proc/{self.program.process.pid}/status").read_text(encoding="ascii")
        return next(int(line.split()[1]) for line in status.splitlines() if line.startswith("VmHWM:")) / 1024

    def test_drawing_on_the_largest_sheet_takes_three_copies_of_it_at_most(self):
        self.begin_in("nl_NL.UTF-8")
        before = self.most_memory()
        self.resize("211,6", "211,6")
        for y in (50, 80, 110, 140):
            self.stroke((40, y), (140, y), steps=4)
            self.program.wait_pixel(100, y, BLACK)
        self.click(studio.UNDO)
        self.program.wait_pixel(100, 140, kraspret.WHITE)
        copy = in_pixels(211.6) ** 2 * 4 / 2**20
        self.assertGreater(copy, 240)
        self.assertLess(self.most_memory() - before, 3 * copy + 32)

    def test_a_large_bitmap_is_opened_within_two_hundred_mebibytes(self):
        side = 4096
        picture = self.path("groot.bmp")
        with open(picture, "wb") as file:
            file.write(b"BM" + struct.pack("<IIIIiiHHIIiiII", 54 + 3 * side * side, 0, 54, 40, side, side, 1, 24, 0, 0, 0, 0, 0, 0))
            for _ in range(side):
                file.write(bytes((0, 0, 255)) * side)
        self.program = self.start(str(picture))
        self.sheet = self.program.open_studio()
        self.program.wait_pixel(300, 300, studio.RED)
        self.assertLess(self.most_memory(), 200)


if __name__ == "__main__":
    unittest.main()
