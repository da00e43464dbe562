"""Cut, copy and paste, also to and from another program."""
import pathlib
import subprocess
import sys
import unittest

import driver
import pixels
import screen
import studio
from kraspret import BLACK, SHEET, WHITE
from studio import RED, Studio, block, span

MANAGER = pathlib.Path(__file__).with_name("clipboard_manager.py")


class Clipboard(Studio):
    def setUp(self):
        super().setUp()
        self.neighbours = []

    def tearDown(self):
        for process in self.neighbours:
            driver.stop(process)
        if self.program.process.poll() is None:
            super().tearDown()
        else:
            type(self).program = None

    def offered(self):
        """What another program can get: the kinds of contents that the clipboard has."""
        return subprocess.run(["xclip", "-selection", "clipboard", "-t", "TARGETS", "-o"], env=self.desktop.env, check=False,
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, timeout=20).stdout.decode().split()

    def taken(self):
        """The picture that another program gets."""
        driver.until(lambda: "image/bmp" in self.offered(), "picture on the clipboard")
        path = self.path("genomen.bmp")
        with open(path, "wb") as file:
            subprocess.run(["xclip", "-selection", "clipboard", "-t", "image/bmp", "-o"], env=self.desktop.env, check=True,
                           stdout=file, timeout=20)
        return pixels.read_bmp(path)

    def give(self, picture):
        """Another program puts a picture on the clipboard, and stays to hand it out."""
        path = self.path("gegeven.png")
        picture.save_png(path)
        self.neighbours.append(subprocess.Popen(["xclip", "-quiet", "-selection", "clipboard", "-t", "image/png", "-i", str(path)],
                                                env=self.desktop.env, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                                stderr=subprocess.DEVNULL, preexec_fn=screen.die_with_parent))
        driver.until(lambda: self.offered() and "image/bmp" not in self.offered(), "picture of the other program")

    def test_another_program_gets_the_copied_sheet(self):
        self.box(100, 100, 140, 130, RED)
        self.click(studio.COPY)
        self.program.wait_says("een KOPIE van de tekening maken (om later te plakken)")
        copy = self.taken()
        self.assertEqual((copy.width, copy.height), SHEET)
        self.assertEqual(copy.rows, self.saved().rows)
        self.assertIn("image/png", self.offered())

    def test_a_picture_of_another_program_is_pasted_into_the_upper_left_corner(self):
        self.box(0, 0, 200, 200)
        given = pixels.Picture(60, 40, [bytes(RED) * 20 + bytes((1, 2, 3)) * 40] * 39 + [bytes(BLACK) * 60])
        self.give(given)
        self.click(studio.PASTE)
        self.program.wait_says("de KOPIE of GEKNIPTE tekening in een NIEUW blad plakken")
        self.program.wait_pixel(59, 0, (1, 2, 3))
        picture = self.saved()
        self.assertEqual(picture.crop(0, 0, 60, 40).rows, given.rows)
        self.assertEqual(picture.others(WHITE), block(0, 0, 59, 39))

    def test_a_larger_picture_is_cut_off(self):
        given = pixels.Picture(800, 700, [bytes((n % 256, n // 256, 7)) * 800 for n in range(700)])
        self.give(given)
        self.click(studio.PASTE)
        self.program.wait_pixel(0, 1, (1, 0, 7))
        self.assertEqual(self.saved().rows, given.crop(0, 0, *SHEET).rows)

    def test_what_was_cut_comes_back_by_pasting(self):
        self.stroke((100, 100), (150, 100))
        self.click(studio.CUT)
        self.program.wait_says("de tekening KNIPPEN om ze in een NIEUW blad te plakken")
        self.assertEqual(self.painted(), {})
        self.assertEqual(self.taken().others(WHITE), span(100, 150, 100))
        self.click(studio.PASTE)
        self.assertEqual(self.painted(), dict.fromkeys(span(100, 150, 100), BLACK))

    def test_a_copy_survives_a_new_sheet(self):
        self.stroke((100, 100), (150, 100))
        self.click(studio.COPY)
        self.click(studio.NEW)
        self.assertEqual(self.painted(), {})
        self.click(studio.PASTE)
        self.assertEqual(self.painted(), dict.fromkeys(span(100, 150, 100), BLACK))

    def test_a_copy_survives_the_end_of_the_program_where_the_desktop_keeps_clipboards(self):
        manager = subprocess.Popen([sys.executable, str(MANAGER)], env=self.desktop.env, stdin=subprocess.DEVNULL,
                                   stdout=subprocess.PIPE, preexec_fn=screen.die_with_parent)
        self.addCleanup(manager.stdout.close)
        self.neighbours.append(manager)
        self.assertEqual(self.desktop.first_line(manager.stdout, "clipboard manager"), "ready")
        driver.stop(self.program.process)
        leaving = self.start()
        leaving.open_studio()
        leaving.choose("filled box")
        colour = leaving.pick(RED)
        leaving.sheet().drag((100, 100), (140, 130))
        leaving.control(studio.COPY).click()
        leaving.leave_studio()
        leaving.quit()
        self.assertEqual(leaving.wait_exit(), 0)

        staying = self.start()
        staying.open_studio()
        staying.control(studio.PASTE).click()
        staying.wait_pixel(120, 110, colour)
        picture = staying.save(self.path("geplakt.bmp"))
        self.assertEqual({at: picture.at(*at) for at in picture.others(WHITE)}, dict.fromkeys(block(100, 100, 140, 130), colour))


if __name__ == "__main__":
    unittest.main()
