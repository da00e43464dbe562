"""The course, from the greeting to the mouse with its diploma."""
import unittest

import cases
import driver
from kraspret import BLACK, WHITE

COURSE = "KRAS PRET - HOE DOE IK HET ?"
RED = (230, 57, 70)


class Course(cases.Case):
    def setUp(self):
        self.program = self.start()
        self.program.control("Hoe doe ik het ?").click()
        self.program.control("Start met de les").click()
        self.program.control("Verder")

    def further(self, times=1):
        for _ in range(times):
            before = self.lesson()
            self.program.control("Verder").click()
            driver.until(lambda: self.lesson() not in (None, before), "next lesson")

    def lesson(self):
        """The text that shows."""
        found = [c.name for c in self.program.controls() if c.role == "label" and len(c.name or "") > 100]
        return found[0] if found else None

    def stroke(self, *points):
        sheet = self.program.sheet()
        self.desktop.drag(*(sheet.at(*p) for p in points), steps=1)

    def test_seventeen_times_further_leads_to_the_end_and_to_the_menu(self):
        self.further(17)
        self.assertTrue(self.lesson().startswith("Ziezo !"))
        self.assertIsNone(self.program.find("Verder"))
        self.assertIsNone(self.program.find("tekenblad"))
        self.program.control("Sluiten").click()
        self.program.wait_menu()

    def test_the_pen_draws_only_once_its_button_is_clicked(self):
        self.further(2)
        self.stroke((50, 50), (150, 50))
        self.program.wait_pixel(100, 50, WHITE)
        self.program.choose("line")
        self.stroke((50, 50), (150, 50))
        self.program.wait_pixel(100, 50, BLACK)

    def test_a_colour_makes_a_thick_rectangle_in_the_lesson_on_colours(self):
        self.further(10)
        self.desktop.click(*self.program.control("het KLEURENPALET").at(49, 33))
        self.program.choose("box")
        self.stroke((50, 50), (150, 120))
        self.program.wait_pixel(100, 52, RED)
        self.program.wait_pixel(100, 54, WHITE)

    def test_the_keyboard_goes_on_without_leaving(self):
        first = self.lesson()
        self.desktop.key("space")
        driver.until(lambda: self.lesson() not in (None, first), "next lesson")
        second = self.lesson()
        self.desktop.key("space")
        driver.until(lambda: self.lesson() not in (None, second), "lesson after that")

    def test_closing_the_window_brings_the_menu_back(self):
        self.desktop.close_window(self.program.wait_window(COURSE))
        self.program.wait_menu()


if __name__ == "__main__":
    unittest.main()
