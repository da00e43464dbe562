"""At a factor of the user's: the sheet is shown in sharp squares, and the pointer hits what it points at."""
import unittest
from unittest import mock

import scale


class Scale(scale.ScaleCase):
    size = (1920, 1300)

    def given(self, factor):
        with mock.patch.dict(self.desktop.env, QT_SCALE_FACTOR=factor):
            self.lands_where_it_was_pressed(factor)

    def test_at_its_own_size(self):
        self.given("1")

    def test_at_one_and_a_half_it_stays_crisp(self):
        self.given("1.5")

    def test_at_one_and_three_eighths_it_stays_crisp(self):
        self.given("1.375")

    def test_at_twice_the_size(self):
        self.given("2")


if __name__ == "__main__":
    unittest.main()
