"""The effects of the panel on a picture from the command line, by their buttons, as a child sees, saves and compares them."""
import math
import unittest

import driver
import effects
from pixels import WHITE


def blurred(at, x, y):
    block = [at(x + i, y + j) for j in (-1, 0, 1) for i in (-1, 0, 1)]
    return tuple(round(sum(channel) / 9) for channel in zip(*block))


def embossed(at, x, y):
    return tuple(min(abs(a - b + 128), 255) for a, b in zip(at(x, y), at(x + 1, y + 1)))


def inverted(at, x, y):
    return tuple(255 - c for c in at(x, y))


def halved(at, x, y):
    return tuple(round(c / 2) for c in at(x, y))  # ties to even


def slipped(at, x, y):
    """The last of the column's dots that lands on this row; what none lands on stays."""
    landing = [row for row in range(y - 6, y + 12) if row >= 0 and round(math.sin(x) * 6 + (row - 3)) == y]
    return at(x, landing[-1]) if landing else at(x, y)


class Effects(effects.Case):
    COLUMNS, ROWS = range(1, 66), range(1, 56)  # the drawing, but for the outer ring of the sheet, and some white

    def changes(self, tip, changed):
        self.effect(tip)
        self.wait_done()
        self.expect(self.saved(), changed, self.COLUMNS, self.ROWS)

    def test_blur_takes_the_mean_of_the_neighbours(self):
        self.changes("VERVAGEN", blurred)

    def test_emboss_turns_flat_areas_grey(self):
        self.changes("GRIJS RELIEF", embossed)

    def test_invert_twice_gives_the_picture_back(self):
        self.changes("KLEUREN OMKEREN", inverted)
        self.changes("KLEUREN OMKEREN", lambda at, x, y: at(x, y))

    def test_the_rag_edge_moves_the_columns(self):
        self.changes("ZAAGRAND", slipped)

    def test_brightness_asks_and_halves(self):
        self.effect("HELDERHEID VERANDEREN")
        self.program.wait_dialog("HELDERHEID INSTELLEN")
        self.desktop.key("ctrl+a")
        self.desktop.type("50")
        self.desktop.key("Return")
        self.wait_done()
        self.expect(self.saved(), halved, range(66), range(56))

    def test_the_message_comes_above_an_open_question_which_can_be_answered_after_it(self):
        self.effect("HELDERHEID VERANDEREN")
        question = self.program.wait_dialog("HELDERHEID INSTELLEN")
        left, _, width, _ = question.rectangle
        self.assertTrue(0 <= left and left + width <= self.desktop.size[0])
        self.program.control("Klaar !!!", role="label")
        self.desktop.key("Return")
        driver.until(lambda: self.program.find("Klaar !!!") is None, "end of the message")
        self.program.wait_dialog("HELDERHEID INSTELLEN")
        self.desktop.key("ctrl+a")
        self.desktop.type("50")
        self.desktop.key("Return")
        self.program.wait_no_dialog()
        self.expect(self.saved(), halved, range(66), range(56))

    def test_a_stroke_ends_where_the_message_interrupts_it_and_the_next_one_is_drawn(self):
        self.effect("VERVAGEN")
        self.desktop.press(*self.sheet.at(300, 300))
        self.desktop.move(*self.sheet.at(310, 400))
        self.program.control("Klaar !!!", role="label")
        self.desktop.move(*self.sheet.at(100, 450))
        self.desktop.release()
        self.program.control("OK", role="push button").click()
        self.program.wait_no_dialog()
        self.desktop.move(*self.sheet.at(100, 500))
        self.sheet.drag((400, 100), (450, 120))
        strokes = {(x, y) for x, y in self.saved().others(WHITE) if max(x, y) > 70}
        self.assertTrue(all(300 <= x <= 310 and 300 <= y <= 400 or 400 <= x <= 450 and 100 <= y <= 120 for x, y in strokes))
        self.assertLessEqual({(300, 300), (310, 400), (400, 100), (450, 120)}, strokes)

    def test_hammer_leaves_rings_around_every_tenth_pixel(self):
        self.effect("HAMERSLAG")
        self.wait_done()
        dented = self.saved()
        for x, y in ((305, 305), (405, 215)):
            self.assertEqual(dented.at(x, y), WHITE)
            self.assertLess(dented.at(x + 3, y), WHITE)

    def test_scatter_takes_every_pixel_from_its_neighbourhood(self):
        self.effect("VERSPREIDEN")
        self.wait_done()
        scattered, moved = self.saved(), 0
        for y in range(2, 50):
            for x in range(2, 60):
                self.assertIn(scattered.at(x, y), {self.at(x + i, y + j) for i in range(-2, 2) for j in range(-2, 2)})
                moved += scattered.at(x, y) != self.at(x, y)
        self.assertGreater(moved, 1000)


if __name__ == "__main__":
    unittest.main()
