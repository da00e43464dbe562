"""The eight fantasy screens as a child meets them: opened from their menu, watched, left again."""
import time
import unittest

import cases
import driver
import kraspret

TITLE = "KRAS PRET  -  MET ENIGE FANTASIE  KIJKEN  -  "
# The button of the menu, the end of the window's title, whether a start must be pressed.
SCREENS = (
    ("Herfstwindje", "HERFSTWIND", True),
    ("Lentekriebels", "LENTEKRIEBELS", False),
    ("Sterrenpracht", "STERRENPRACHT", False),
    ("Zomervreugde", "ZOMERVREUGDE", False),
    ("Feestvuurwerk", "FEESTELIJK VUURWERK", False),
    ("Windmolentje", "WINDMOLENTJE ( of is het een FIETSWIEL ? )", True),
    ("Bliksemschicht", "BLIKSEMSCHICHTEN", False),
)
FACE = (0xC0, 0xC0, 0xC0)  # of the button that leaves
WATCHED = 1.0  # seconds between two looks


class Fantasy(cases.Case):
    """Each test goes from the main menu to the fantasy menu and back; the program stays for the next one, unless this one spoils it."""

    size = (1280, 800)
    program = None

    def setUp(self):
        cls = type(self)
        if cls.program is None:
            cls.program = kraspret.start(self.desktop)
            cls.program.wait_menu()
            cls.program.give_name("Jan")
        self.program.control("Fantasie Kijken").click()
        self.program.control("Herfstwindje")

    def tearDown(self):
        try:
            self.program.control("Sluiten").click()
            self.program.wait_menu()
        except driver.NotSeen:  # still on a screen, or worse: the next test starts afresh
            driver.stop(self.program.process)
            type(self).program = None

    def picture(self, window):
        left, top, width, height = self.desktop.geometry(window)
        return self.desktop.screen().crop(left, top, width, height)

    def open(self, button, title):
        self.program.control(button).click()
        return self.program.wait_window(TITLE + title)

    def leaving(self, name):
        """The button that leaves. An old menu underneath may have one of the same name, near the bottom."""
        self.program.control(name)
        return min((c for c in self.program.controls() if c.name == name), key=lambda c: c.rectangle[1])

    def back(self, button, title):
        button.click()
        self.program.wait_gone(TITLE + title)
        self.program.control("Herfstwindje")

    def test_each_screen_moves_can_be_read_and_comes_back_to_the_menu(self):
        for button, title, starts in SCREENS:
            with self.subTest(button):
                window = self.open(button, title)
                if starts:
                    self.program.control("Start").click()
                before = self.picture(window)
                time.sleep(WATCHED)
                driver.until(lambda: self.picture(window).rows != before.rows, f"movement of {title}")
                leaving = self.leaving("Sluiten")
                left, top, width, height = leaving.rectangle
                face = self.desktop.screen().crop(left, top, width, height)
                self.assertEqual(face.at(6, face.height // 2), FACE, "the button that leaves is not to be seen")
                dark = sum(1 for _, _, colour in face.pixels() if colour == (0, 0, 0))
                self.assertGreater(dark, 100, "its text is not to be seen")
                self.back(leaving, title)

    def test_the_worms_let_the_child_go_after_twenty_seconds(self):
        window = self.open("Regenwormen", "WRIEMELENDE REGENWORMEN")
        before = self.picture(window)
        driver.until(lambda: self.picture(window).rows != before.rows, "a worm")
        self.assertIsNone(self.program.find("Stoppen"))
        self.program.control("Stoppen", seconds=40)
        self.program.control("Worm 2")
        self.back(self.leaving("Stoppen"), "WRIEMELENDE REGENWORMEN")

    def test_back_on_the_main_menu_only_that_one_shows(self):
        for button, title, _ in (SCREENS[2], SCREENS[6]):
            self.open(button, title)
            self.back(self.leaving("Sluiten"), title)
        self.program.control("Sluiten").click()
        self.program.wait_menu()
        driver.until(lambda: self.program.find("Herfstwindje") is None, "end of all fantasy menus")
        self.assertEqual(self.program.name_field().text, "Jan")
        self.program.control("Fantasie Kijken").click()


if __name__ == "__main__":
    unittest.main()
