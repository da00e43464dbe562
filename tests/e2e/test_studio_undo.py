"""One step back and forth: what undo and redo bring back, and when they are offered."""
import unittest

import studio
from kraspret import BLACK
from studio import RED, Studio, block, span


class Undo(Studio):
    def setUp(self):
        super().setUp()
        self.undo, self.redo = self.program.control(studio.UNDO), self.redo_button()

    def offered(self, undo, redo):
        self.wait_enabled(self.undo, undo, "undo")
        self.wait_enabled(self.redo, redo, "redo")

    def black(self):
        painted = self.painted()
        self.assertLessEqual(set(painted.values()), {BLACK})
        return set(painted)

    def test_undo_of_a_stroke_leaves_its_first_dot_and_redo_brings_it_back(self):
        self.offered(True, False)
        self.stroke((100, 100), (150, 100))
        self.offered(True, False)
        self.undo.click()
        self.program.wait_says("de LAATSTE handeling (lijn, kleur, ...) ONGEDAAN maken")
        self.offered(False, True)
        self.assertEqual(self.black(), {(100, 100)})
        self.redo.click()
        self.program.wait_says("ONGEDAAN maken HERSTELLEN (= lijn, kleur, ... terug zetten)")
        self.offered(True, False)
        self.assertEqual(self.black(), span(100, 150, 100))

    def test_undo_and_redo_swap_the_same_two_sheets_for_ever(self):
        self.box(100, 100, 120, 120)
        for _ in range(3):
            self.undo.click()
            self.offered(False, True)
            self.redo.click()
            self.offered(True, False)
        self.assertEqual(self.black(), block(100, 100, 120, 120))
        self.undo.click()
        self.assertEqual(self.black(), set())

    def test_undo_takes_back_one_shape_only(self):
        self.box(100, 100, 120, 120)
        self.stroke((200, 200), (220, 220))
        self.undo.click()
        self.offered(False, True)
        self.undo.click()
        self.assertEqual(self.black(), block(100, 100, 120, 120))

    def test_undo_right_at_the_start_leaves_the_empty_sheet(self):
        self.undo.click()
        self.offered(False, True)
        self.assertEqual(self.black(), set())

    def test_redo_after_a_new_stroke_brings_back_the_sheet_of_its_press(self):
        self.box(100, 100, 120, 120)
        self.undo.click()
        self.offered(False, True)
        self.stroke((200, 200), (220, 220))
        self.offered(False, True)
        self.redo.click()
        self.offered(True, False)
        self.assertEqual(self.black(), set())

    def test_choosing_a_tool_offers_undo_again(self):
        self.stroke((100, 100), (150, 100))
        self.undo.click()
        self.offered(False, True)
        self.program.choose("line")
        self.offered(True, True)
        self.undo.click()
        self.assertEqual(self.black(), {(100, 100)})

    def test_the_colour_chosen_is_no_part_of_undo(self):
        self.program.choose("filled box")
        colour = self.program.pick(RED)
        self.stroke((100, 100), (120, 120))
        self.undo.click()
        self.stroke((200, 200), (220, 220))
        self.assertEqual(self.painted(), dict.fromkeys(block(200, 200, 220, 220), colour))


if __name__ == "__main__":
    unittest.main()
