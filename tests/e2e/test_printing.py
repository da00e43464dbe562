"""Printing as a child does it: the dialog's own file, and the page in it measured."""
import os
import unittest

import driver
import pdf
import studio
from kraspret import SHEET
from print_case import CENTIMETRES_PER_PIXEL, PRINT, SAYS, PrintCase


class Printing(PrintCase):
    def print_to(self, path):
        """Prints into a file by the dialog's own choice of one."""
        self.click(PRINT)
        self.program.wait_dialog("Afdrukken")
        field = driver.until(lambda: next((c for c in self.program.controls(self.program.dialog()) if c.role == "text" and c.enabled), None),
                             "field for the name of the file")
        left, top, width, height = field.rectangle
        self.desktop.click(left + width // 3, top + height // 2)
        self.program.wait_focus(field)
        self.desktop.key("ctrl+a")
        self.desktop.type(str(path))
        driver.until(lambda: field.text == str(path), lambda: f"{path} in the field, it holds {field.text!r}")
        self.control_of_dialog("Afdrukken").click()
        self.program.wait_no_dialog()
        driver.until(lambda: path.exists() and path.read_bytes().rstrip().endswith(b"%%EOF"), "page in the file")
        return pdf.Page(path)

    def test_the_sheet_stands_in_its_natural_size_two_centimetres_from_the_corner(self):
        self.draw()
        page = self.print_to(self.path("blad.pdf"))
        self.near((page.width, page.height), (21.0, 29.7), "paper")
        width, height = (side * CENTIMETRES_PER_PIXEL for side in SHEET)
        self.near(page.box, (2, 2, width, height), "picture")
        self.program.wait_says(SAYS)
        self.assertEqual(page.picture.rows, self.saved().rows)

    def test_a_smaller_sheet_prints_smaller(self):
        self.click(studio.RESIZE)
        self.program.answer("Nieuwe tekening met aangepast formaat", "Nee")
        for side in ("5", "4"):
            self.program.wait_dialog()
            self.desktop.key("ctrl+a")
            self.desktop.type(side)
            self.desktop.key("Return")
        self.program.wait_no_dialog()
        page = self.print_to(self.path("klein.pdf"))
        self.near(page.box, (2, 2, 5, 4), "picture")

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
