"""Printing as a child does it: the dialog's own file, and the page in it measured."""
import os
import unittest

from kraspret import SHEET
from print_case import PRINT, SAYS, PrintCase


class Printing(PrintCase):
    def test_the_sheet_stands_in_its_natural_size_two_centimetres_from_the_corner(self):
        self.draw()
        page = self.print_to(self.path("blad.pdf"))
        self.natural(page, SHEET)
        self.program.wait_says(SAYS)
        self.assertEqual(page.picture.rows, self.saved().rows)

    def test_a_smaller_sheet_prints_smaller(self):
        self.resize("5", "4")
        page = self.print_to(self.path("klein.pdf"))
        self.near(page.box, (2, 2, 5, 4), "picture")

    def test_a_sheet_wider_than_the_paper_is_cut_at_its_edge(self):
        self.resize("25", "4")
        page = self.print_to(self.path("breed.pdf"))
        self.near((page.width, page.height), (21.0, 29.7), "paper")
        self.near(page.box, (2, 2, 25, 4), "picture, of which 19 cm are on the paper")

    def test_a_cancel_is_silent(self):
        self.draw()
        before = self.saved().rows
        self.click(PRINT)
        self.program.wait_dialog("Afdrukken")
        self.desktop.key("Escape")
        self.program.wait_no_dialog()
        self.program.wait_says(SAYS)
        self.assertEqual(self.saved().rows, before)
        self.assertFalse([name for name in os.listdir(self.desktop.folder) if name.endswith(".pdf")])


if __name__ == "__main__":
    unittest.main()
