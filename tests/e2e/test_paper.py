"""Printing on the print system of the machine, with a printer of the test's own."""
import unittest

import driver
import pdf
import print_system
from kraspret import SHEET
from print_case import PRINT, SAYS, PrintCase


class Paper(PrintCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.printer = print_system.PrintSystem(cls.desktop)

    def test_the_printer_gets_the_sheet_and_nothing_else(self):
        self.draw()
        self.click(PRINT)
        self.program.wait_dialog("Afdrukken")
        self.control_of_dialog("Afdrukken").click()
        self.program.wait_no_dialog()
        sheets = driver.until(self.printer.pages, "paper")
        self.assertEqual(len(sheets), 1)
        page = pdf.Page(sheets[0])
        self.natural(page, SHEET)
        self.assertEqual(page.picture.rows, self.saved().rows)

    def test_a_cancel_prints_no_page(self):
        before = self.printer.pages()
        self.click(PRINT)
        self.program.wait_dialog("Afdrukken")
        self.desktop.key("Escape")
        self.program.wait_no_dialog()
        self.program.wait_says(SAYS)
        self.assertEqual(self.printer.pages(), before)


if __name__ == "__main__":
    unittest.main()
