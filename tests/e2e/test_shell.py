"""From the start to the farewell: the intro, the menu, the child's name, leaving."""
import time
import unittest

import cases
import driver
import kraspret
from kraspret import MENU, STUDIO

SLACK = 4.0  # seconds that a busy machine may add to a timer


class Shell(cases.Case):
    def test_the_intro_gives_way_to_the_menu_after_three_seconds(self):
        program = kraspret.start(self.desktop)
        self.addCleanup(driver.stop, program.process)
        program.wait_intro()
        seen = time.monotonic()
        self.assertIsNone(program.find("Stoppen"), "the menu is there before the intro has had its time")
        program.wait_menu()
        stayed = time.monotonic() - seen
        self.assertGreater(stayed, 2.0)
        self.assertLess(stayed, 3.0 + SLACK)
        self.assertIsNone(program.find("Versie 1.0"), "the intro is still there")

    def test_a_name_survives_a_no_and_the_studio_and_is_thanked_at_the_end(self):
        program = self.start()
        program.give_name("Jan")

        text = program.quit("Nee")
        self.assertIn("Ben je zeker dat je wil stoppen ?", text)
        program.wait_menu()
        self.assertEqual(program.name_field().text, "Jan")

        program.open_studio()
        self.assertFalse(program.shows(MENU), "the menu still shows behind the studio")
        program.leave_studio()
        self.assertEqual(program.name_field().text, "Jan")

        program.quit()
        program.wait_thanks("Jan")
        seen = time.monotonic()
        self.assertIsNone(program.find("Stoppen"), "the menu is still there")
        self.assertEqual(program.wait_exit(), 0, program.output())
        stayed = time.monotonic() - seen
        self.assertGreater(stayed, 2.0)
        self.assertLess(stayed, 3.5 + SLACK)

    def test_the_menus_window_has_the_programs_icon(self):
        program = self.start()
        window = self.desktop.windows(MENU, program.process.pid)[0]
        # A window manager gives a window without an icon one of its own, of another size.
        self.desktop.wait_icon(window, 16)

    def test_a_child_without_a_name_is_thanked_as_friend(self):
        program = self.start()
        program.quit()
        program.wait_thanks("vriendje")
        self.assertEqual(program.wait_exit(), 0)

    def test_a_name_has_at_most_sixteen_characters(self):
        program = self.start()
        field = program.name_field()
        program.wait_focus(field)
        self.desktop.type("abcdefghijklmnopqrst")
        driver.until(lambda: len(field.text) >= 16, "sixteen characters")
        self.desktop.key("BackSpace")
        driver.until(lambda: field.text == "abcdefghijklmno", lambda: f"fifteen characters but {field.text!r}")

    def test_closing_the_menus_window_ends_the_program(self):
        program = self.start()
        self.desktop.close_window(program.wait_menu())
        self.assertEqual(program.wait_exit(), 0, program.output())

    def test_closing_the_studios_window_brings_the_menu_back(self):
        program = self.start()
        program.give_name("An")
        program.open_studio()
        self.desktop.close_window(program.wait_window(STUDIO))
        program.wait_gone(STUDIO)
        program.wait_menu()
        self.assertEqual(program.name_field().text, "An")

    def test_the_picture_of_the_command_line_is_no_toolkit_option(self):
        self.start("-platform", "nonsense")


if __name__ == "__main__":
    unittest.main()
