"""On dense screens: the sheet is shown enlarged by whole pixels, and the pointer hits what it points at."""
import unittest
from unittest import mock

import cases
import kraspret
import pixels
from kraspret import BLACK, STUDIO, WHITE


class Scale(cases.Case):
    size = (1920, 1300)

    def drawn_at(self, factor, whole):
        """Draws a line from (100, 100) to (200, 150) at a scale factor; gives the screen's part with the sheet, and the file."""
        with mock.patch.dict(self.desktop.env, QT_SCALE_FACTOR=str(factor)):
            program = self.start()

        def click(name):
            """The program tells places in its own pixels."""
            self.desktop.click(*(whole * part for part in program.control(name).middle))
        click("Tekenen Groot")
        program.wait_window(STUDIO)
        left, top = self.corner(whole)
        click(kraspret.TOOLS["line"])
        program.wait_says("je bent bezig met LIJNEN TREKKEN")
        self.desktop.drag((left + 100 * whole, top + 100 * whole), (left + 200 * whole, top + 150 * whole))
        self.desktop.move(left + 500 * whole, top + 400 * whole)
        program.wait_says("X=500 Y=400")
        shown = self.desktop.screen().crop(left + 90 * whole, top + 90 * whole, 130 * whole, 80 * whole)
        click(kraspret.SAVE)
        path = self.path("lijn.bmp")
        program.answer_file_dialog(path)
        cases.driver.until(path.exists, "saved file")
        program.wait_no_dialog()
        return shown, pixels.read_bmp(path)

    def corner(self, whole):
        """The sheet's upper left corner on the screen: the first white one in a row well inside, beside the window's grey."""
        def look():
            screen = self.desktop.screen()
            x, y = 176 * whole, 60 * whole
            if screen.at(x - 1, y) != (224, 224, 224) or screen.at(x, y) != WHITE:
                return None
            while screen.at(x, y - 1) == WHITE:
                y -= 1
            return x, y
        return cases.driver.until(look, "white sheet beside the grey window")

    def lands_where_it_was_pressed(self, factor, whole):
        shown, saved = self.drawn_at(factor, whole)
        self.assertEqual((saved.width, saved.height), kraspret.SHEET)
        black = saved.others(WHITE)
        self.assertEqual({x for x, _ in black}, set(range(100, 200)))
        self.assertTrue(all(abs(y - (100 + (x - 100) / 2)) <= 0.5 for x, y in black))
        self.assertEqual(len(black), 100)
        part = saved.crop(90, 90, 130, 80)
        enlarged = [b"".join(row[3 * x:3 * x + 3] * whole for x in range(130)) for row in part.rows for _ in range(whole)]
        self.assertEqual(shown.rows, pixels.Picture(130 * whole, 80 * whole, enlarged).rows)
        self.assertEqual(part.at(10, 10), BLACK)

    def test_at_its_own_size(self):
        self.lands_where_it_was_pressed(1, 1)

    def test_at_one_and_a_half_it_stays_crisp(self):
        self.lands_where_it_was_pressed(1.5, 1)

    def test_at_twice_the_size(self):
        self.lands_where_it_was_pressed(2, 2)


if __name__ == "__main__":
    unittest.main()
