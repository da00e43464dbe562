"""The rulers: above the studio, on their places, dragged by their title bars, and gone when they should be."""
import subprocess
import unittest

import driver
import kraspret
import studio
from kraspret import STUDIO
from studio import Studio

HORIZONTAL, VERTICAL = " " * 49 + "LINEAAL - CENTIMETERS", " "
PALE = (255, 255, 192)


class Rulers(Studio):
    def choose_ruler(self, option):
        self.click(studio.RULERS)
        self.program.wait_says("hulpkader : de beide linealen kan je over het blad slepen")
        self.click(option)
        driver.until(lambda: self.program.find("BEIDE") is None, "end of the panel")

    def ruler(self, title):
        return self.program.wait_window(title)

    def ask(self, *command):
        return subprocess.run(command, env=self.desktop.env, check=True, stdout=subprocess.PIPE).stdout.decode()

    def inside(self, window):
        """(left, top, width, height) of a window without its frame, on the screen."""
        told = dict(line.split(":", 1) for line in self.ask("xwininfo", "-id", str(window)).splitlines() if ":" in line)
        told = {name.strip(): value.strip() for name, value in told.items()}
        return tuple(int(told[name]) for name in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))

    def frame(self, window):
        """(left, top) of a window with its frame, and the height of its title bar."""
        left, top, _, _ = self.inside(window)
        edges = self.ask("xprop", "-id", str(window), "_NET_FRAME_EXTENTS").split("=")[1]
        west, _, north, _ = (int(edge) for edge in edges.split(","))
        return left - west, top - north, north

    def wait_frame(self, window, x, y):
        driver.until(lambda: self.frame(window)[:2] == (x, y), lambda: f"frame at ({x}, {y}), it is at {self.frame(window)[:2]}")

    def stacking(self):
        """The ids of all windows, the lowest first."""
        listed = self.ask("xprop", "-root", "_NET_CLIENT_LIST_STACKING").split("#")[1]
        return [int(number, 16) for number in listed.split(",")]

    def test_both_lie_above_the_studio_also_when_it_is_clicked(self):
        self.choose_ruler("BEIDE")
        rulers = [self.ruler(HORIZONTAL), self.ruler(VERTICAL)]
        window = self.program.wait_window(STUDIO)
        self.dot(400, 400)
        for ruler in rulers:
            driver.until(lambda: self.stacking().index(ruler) > self.stacking().index(window), "ruler above the studio")
            driver.until(lambda: self.paleness(ruler) > 0.5, lambda: f"ruler on the screen, {self.paleness(ruler):.0%} is pale")

    def test_a_question_comes_up_above_a_ruler(self):
        self.choose_ruler("horizontaal")
        self.click(kraspret.OPEN)
        question = self.program.wait_window(kraspret.OPEN_QUESTION)
        driver.until(lambda: self.stacking().index(question) > self.stacking().index(self.ruler(HORIZONTAL)), "question above the ruler")
        self.program.answer(kraspret.OPEN_QUESTION, "Nee")
        self.program.answer_file_dialog(None)

    def paleness(self, window):
        """How much of a window's place shows the rulers' pale yellow."""
        seen = self.desktop.screen().crop(*self.inside(window))
        return len(studio.of_colour(seen, PALE)) / (seen.width * seen.height)

    def test_each_is_dragged_by_its_title_bar(self):
        self.choose_ruler("BEIDE")
        for title, (dx, dy) in ((HORIZONTAL, (100, 300)), (VERTICAL, (200, 60))):
            ruler = self.ruler(title)
            x, y, bar = self.frame(ruler)
            self.assertGreaterEqual(y, 0, "the title bar lies beyond the screen's edge")
            self.assertGreater(bar, 5)
            grip = (x + self.inside(ruler)[2] * 7 // 8 - (60 if title == HORIZONTAL else 0), y + bar // 2)
            self.desktop.drag(grip, (grip[0] + dx, grip[1] + dy))
            self.wait_frame(ruler, x + dx, y + dy)

    def test_choosing_both_again_puts_them_back(self):
        self.choose_ruler("BEIDE")
        ruler = self.ruler(HORIZONTAL)
        self.wait_frame(ruler, 176, 0)
        self.desktop.drag((500, 10), (600, 310))
        self.wait_frame(ruler, 276, 300)
        self.choose_ruler("BEIDE")
        self.wait_frame(ruler, 176, 0)
        self.wait_frame(self.ruler(VERTICAL), 176, 8)

    def test_one_leaves_the_other_and_none_takes_both(self):
        self.choose_ruler("verticaal")
        self.ruler(VERTICAL)
        self.assertFalse(self.program.shows(HORIZONTAL))
        self.choose_ruler("horizontaal")
        self.ruler(HORIZONTAL)
        self.assertTrue(self.program.shows(VERTICAL))
        self.choose_ruler("GEEN")
        self.program.wait_gone(HORIZONTAL)
        self.program.wait_gone(VERTICAL)

    def test_the_printers_dialog_opens_above_them(self):
        self.choose_ruler("BEIDE")
        self.ruler(HORIZONTAL)
        self.click("je tekening AFDRUKKEN")
        self.program.wait_dialog("Afdrukken")
        window = self.program.wait_window("Afdrukken")
        self.assertIn("_NET_WM_STATE_ABOVE", self.desktop.property(window, "_NET_WM_STATE"))
        self.desktop.key("Escape")
        self.program.wait_no_dialog()

    def test_none_without_a_ruler_does_nothing(self):
        self.choose_ruler("GEEN")
        self.assertTrue(self.program.shows(STUDIO))

    def test_leaving_the_studio_takes_the_rulers_along(self):
        self.choose_ruler("BEIDE")
        self.ruler(HORIZONTAL)
        self.ruler(VERTICAL)
        self.program.leave_studio()
        self.program.wait_gone(HORIZONTAL)
        self.program.wait_gone(VERTICAL)
        self.program.open_studio()


if __name__ == "__main__":
    unittest.main()
