"""On a screen of 1366 by 768 the program chooses its own size."""
import unittest

import scale


class Screen768(scale.ScaleCase):
    size = (1366, 768)

    def setUp(self):
        del self.desktop.env["QT_SCALE_FACTOR"]
        self.addCleanup(self.desktop.env.update, QT_SCALE_FACTOR="1")

    def test_it_fills_the_screen_and_a_line_lands_where_it_was_pressed(self):
        self.lands_where_it_was_pressed("5/4")


if __name__ == "__main__":
    unittest.main()
