"""The information screens: their texts scroll, their keys work, and each leads back to where the child came from."""
import unittest

import cases
import driver
from kraspret import BLACK, STUDIO


class Information(cases.Case):
    def setUp(self):
        self.program = self.start()

    def look(self):
        return self.desktop.screen().rows

    def scrolls(self, *keys):
        """True once the screen has changed by these keys."""
        before = self.look()
        self.desktop.key(*keys)
        driver.until(lambda: self.look() != before, f"movement of the text by {keys}")

    def test_info_scrolls_by_keys_and_wheel_and_leads_back_by_its_letter(self):
        self.program.control("INFO KRAS PRET").click()
        self.program.control("Sluiten")
        self.scrolls("Page_Down")
        self.scrolls("Page_Up")
        text = self.program.control("KRAS PRET - INFO", role="text")
        before = self.look()
        self.desktop.click(*text.middle, button=5)
        driver.until(lambda: self.look() != before, "movement of the text by the wheel")
        self.desktop.key("alt+s")
        self.program.wait_menu()

    def test_the_terms_lead_back_by_their_letter(self):
        self.program.control("INFO OLMWERK").click()
        self.program.control("GEBRUIKSOVEREENKOMST")
        self.desktop.key("alt+a")
        self.program.wait_menu()

    def test_the_close_box_of_the_terms_leads_back(self):
        self.program.control("INFO OLMWERK").click()
        self.desktop.close_window(self.program.wait_window("KRAS PRET - INFO OLMWERK"))
        self.program.wait_menu()

    def test_info_from_the_pages_leads_back_to_the_pages(self):
        self.program.control("Kleurplaten").click()
        self.program.control("kleurplaat 1")
        self.program.control("INFO KRAS PRET").click()
        self.program.control("KRAS PRET - INFO", role="text")
        self.program.control("Sluiten").click()
        self.program.control("kleurplaat 1")

    def test_help_of_the_large_studio_gives_the_drawing_back(self):
        sheet = self.program.open_studio()
        sheet.drag((100, 300), (300, 300))
        self.program.wait_pixel(200, 300, BLACK)
        self.desktop.key("F1")
        self.program.wait_window("KRAS PRET - HELP BIJ TEKENEN GROOT")
        self.program.control("Sluiten").click()
        self.program.wait_window(STUDIO)
        self.program.wait_pixel(200, 300, BLACK)


if __name__ == "__main__":
    unittest.main()
