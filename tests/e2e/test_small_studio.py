"""The small studio and the colouring pages, as a child meets them: tools, colours, saving, help, choosing a page and colouring it."""
import os
import shutil
import unittest

import cases
import driver
import kraspret
import pixels
from kraspret import BLACK, MENU, SHEET, WHITE

SMALL = "KRAS PRET - TEKENEN KLEIN"
PAGES = "KRAS PRET - KLEURPLATEN"
PALETTE = "het KLEURENPALET"
FIELD = (33, 22)  # pixels of one colour of the palette
RED = (230, 57, 70)
FLOWERS = "een andere KLEURPLAAT uitkiezen"
ERASER = "gommetje om foutjes te verbeteren"


class SmallStudio(cases.Case):
    def setUp(self):
        self.program = self.start()

    def open_studio(self):
        self.program.control("Tekenen Klein").click()
        self.program.wait_window(SMALL)
        return self.program.sheet()

    def open_page(self, number):
        """From the menu to a page of the first screen on the sheet."""
        self.program.control("Kleurplaten").click()
        self.program.control(f"kleurplaat {number}").click()
        self.program.wait_window(SMALL)
        return self.program.sheet()

    def pick_red(self):
        self.desktop.click(*self.program.control(PALETTE).at(FIELD[0] * 3 // 2, FIELD[1] * 3 // 2))

    def stroke(self, sheet, *points):
        self.desktop.drag(*(sheet.at(*p) for p in points), steps=1)

    def test_a_drawing_of_every_tool_is_saved_as_it_shows(self):
        program, sheet = self.program, self.open_studio()
        program.choose("box")
        self.stroke(sheet, (100, 100), (200, 160))
        program.choose("fill")
        self.pick_red()
        self.desktop.click(*sheet.at(150, 130))
        program.choose("line")
        self.stroke(sheet, (300, 300), (340, 300))
        program.choose("ellipse")
        self.stroke(sheet, (400, 200), (430, 200))
        program.choose("pencil")
        self.stroke(sheet, (50, 400), (90, 400))
        program.wait_says("WILLEKEURIGE LIJNEN tekenen")
        saved = program.save(self.path("klein.bmp"))
        self.assertEqual((saved.width, saved.height), SHEET)
        self.assertEqual(saved.at(100, 100), BLACK)
        self.assertEqual(saved.at(150, 130), RED)
        self.assertEqual(saved.at(320, 300), RED)
        self.assertEqual(saved.at(70, 400), BLACK)
        self.assertEqual(saved.at(600, 500), WHITE)

    def test_the_eraser_takes_a_line_away_and_undo_brings_it_back(self):
        program, sheet = self.program, self.open_studio()
        program.choose("line")
        self.stroke(sheet, (100, 300), (300, 300))
        program.wait_pixel(200, 300, BLACK)
        program.control(ERASER).click()
        self.stroke(sheet, (150, 300), (250, 300))
        program.wait_pixel(200, 300, WHITE)
        program.control(kraspret.UNDO).click()
        program.wait_pixel(200, 300, BLACK)

    def test_a_key_undoes_and_a_key_shows_help(self):
        program, sheet = self.program, self.open_studio()
        program.choose("line")
        self.stroke(sheet, (100, 300), (300, 300))
        program.wait_pixel(200, 300, BLACK)
        self.desktop.key("ctrl+z")
        program.wait_pixel(200, 300, WHITE)
        self.desktop.key("F1")
        program.wait_window("KRAS PRET - HELP BIJ TEKENEN KLEIN")

    def test_help_from_the_menus_studio_comes_back_to_an_empty_sheet(self):
        program, sheet = self.program, self.open_studio()
        self.stroke(sheet, (100, 300), (300, 300))
        program.wait_pixel(200, 300, BLACK)
        program.control("Help").click()
        program.control("Sluiten").click()
        program.wait_window(SMALL)
        program.wait_pixel(200, 300, WHITE)
        program.control("Einde").click()
        program.wait_window(MENU)

    def test_a_page_is_coloured_kept_through_help_and_changed_for_another(self):
        program, sheet = self.program, self.open_page(3)
        page = program.sheet_on_screen()
        self.assertEqual(set(page.at(x, y) for x in range(0, 617, 7) for y in range(0, 537, 7)), {BLACK, WHITE})
        program.choose("fill")
        self.pick_red()
        x, y = next((x, y) for x in range(30, 600) for y in range(30, 500) if page.at(x, y) == WHITE)
        self.desktop.click(*sheet.at(x, y))
        self.desktop.move(*sheet.at(600, 520))  # the pointer would lie over the pixel
        program.wait_pixel(x, y, RED)
        program.control("Help").click()
        program.control("Sluiten").click()
        program.wait_window(SMALL)
        program.wait_pixel(x, y, RED)
        program.control(FLOWERS).click()
        program.answer("Opslaan", "Nee")
        program.wait_window(PAGES)
        program.control("kleurplaat 8").click()
        program.wait_window(SMALL)
        driver.until(lambda: program.sheet_on_screen().rows != page.rows and RED not in
                     {program.sheet_on_screen().at(i, y) for i in range(0, 617, 5)}, "another page without red")

    def test_four_screens_of_pages_lead_to_one_another_and_back_to_the_menu(self):
        program = self.program
        program.control("Kleurplaten").click()
        for first in (1, 16, 31):
            program.control(f"kleurplaat {first}")
            program.control(f"kleurplaat {first + 14}")
            program.control("Nog meer").click()
        program.control("een stevige burcht")
        program.control("nog een picnic in het bos")
        program.control("Vorige").click()
        program.control("kleurplaat 31")
        program.control("Sluiten").click()
        program.wait_menu()

    def test_without_its_file_a_page_leaves_the_studio_before_the_pages(self):
        # The pages lie beside the program: it runs from a folder of the test's own.
        built = os.environ.get("KRASPRET_PROGRAM", str(kraspret.BUILT))
        os.symlink(os.path.abspath(built), self.path("kraspret"))
        shutil.copytree(os.path.join(os.path.dirname(built), "Beeld"), self.path("Beeld"))
        driver.stop(self.program.process)
        program = self.program = kraspret.KrasPret(self.desktop, self.path("kraspret"))
        self.addCleanup(driver.stop, program.process)
        program.wait_menu()
        program.control("Kleurplaten").click()
        page = program.control("kleurplaat 5")
        self.path("Beeld/05.gif").unlink()
        page.click()
        self.assertIn("je kunt gewoon verder", program.answer(MENU, "OK"))
        program.wait_pixel(300, 300, WHITE)
        self.stroke(program.sheet(), (200, 300), (300, 300))
        program.wait_pixel(250, 300, BLACK)
        self.assertTrue(program.shows(PAGES))
        program.control("Einde").click()
        program.wait_gone(SMALL)
        program.wait_menu()

    def test_a_page_chosen_by_its_title_is_the_page_of_the_file(self):
        program = self.program
        program.control("Kleurplaten").click()
        for first in (1, 16, 31):
            program.control(f"kleurplaat {first}")
            program.control("Nog meer").click()
        program.control("daar komt de trein").click()
        program.wait_window(SMALL)
        saved = program.save(self.path("trein.bmp"))
        self.assertEqual(program.sheet_on_screen().rows, saved.rows)
        colours = {saved.at(x, y) for x in range(0, SHEET[0], 3) for y in range(0, SHEET[1], 3)}
        self.assertEqual(colours, {BLACK, WHITE})

    def test_a_page_is_chosen_by_keys_alone(self):
        program = self.program
        program.control("Kleurplaten").click()
        program.wait_focus(program.control("kleurplaat 1"))
        self.desktop.key("Tab", "Down")
        program.wait_focus(program.control("kleurplaat 3"))
        self.desktop.key("Return")
        program.wait_window(SMALL)
        by_keys = program.save(self.path("toetsen.bmp")).rows
        program.control("Einde").click()
        self.open_page(3)
        self.assertEqual(program.save(self.path("muis.bmp")).rows, by_keys)

    def test_closing_the_window_brings_the_menu_back(self):
        self.open_studio()
        self.desktop.close_window(self.program.wait_window(SMALL))
        self.program.wait_gone(SMALL)
        self.program.wait_menu()

    def test_a_picture_of_the_command_line_lies_on_the_small_sheet_too(self):
        path = self.path("gegeven.bmp")
        pixels.write_bmp(path, pixels.halves(60, 40))
        driver.stop(self.program.process)
        self.program = self.start(path)
        self.open_studio()
        self.program.wait_pixel(10, 10, pixels.RED)


if __name__ == "__main__":
    unittest.main()
