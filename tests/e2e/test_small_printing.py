"""Printing from the small studio and from the lesson on it: the page in a file, measured."""
import unittest

import cases
import driver
import kraspret
from print_case import Prints

SAYS = "je TEKENING AFDRUKKEN"


class SmallPrinting(Prints, cases.Case):
    def setUp(self):
        self.program = self.start()

    def test_the_small_studios_sheet_is_printed_as_it_shows(self):
        self.program.control("Tekenen Klein").click()
        sheet = self.program.sheet()
        self.program.choose("box")
        sheet.drag((100, 100), (300, 200))
        self.program.wait_pixel(300, 150, kraspret.BLACK)
        page = self.print_to(self.path("klein.pdf"))
        self.natural(page, kraspret.SHEET)
        self.program.wait_says(SAYS)
        self.assertEqual(page.picture.rows, self.program.save(self.path("klein.bmp")).rows)

    def test_the_lessons_smaller_sheet_is_printed_smaller(self):
        self.program.control("Hoe doe ik het ?").click()
        self.program.control("Start met de les").click()
        first = self.program.control("Verder").middle
        for _ in range(15):
            self.desktop.click(*first)
        driver.until(lambda: self.program.find("je tekening AFDRUKKEN"), "lesson on printing")
        self.natural(self.print_to(self.path("les.pdf")), (425, 289))


if __name__ == "__main__":
    unittest.main()
