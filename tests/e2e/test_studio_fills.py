"""Filling: up to the exact edge, through gaps, with every pattern; and what it does to undo."""
import unittest

import studio
from kraspret import BLACK, SHEET, WHITE
from studio import BLUE, RED, Studio, block, frame, of_colour

WHOLE = block(0, 0, SHEET[0] - 1, SHEET[1] - 1)
ROWS, COLUMNS = "liggende lijnen", "staande lijnen"
FALLING, RISING = "schuine lijnen omlaag", "schuine lijnen omhoog"
CROSS, DIAGONAL_CROSS, SOLID = "kruisjes", "schuine kruisjes", "PALETkleur"


class Fills(Studio):
    def fill(self, x, y, colour):
        """Fills at a place; gives the colour of the palette that was nearest to the one wanted."""
        self.program.choose("fill")
        self.program.wait_says("je kunt nu vlakken in je tekening OPVULLEN")
        taken = self.program.pick(colour)
        self.dot(x, y)
        return taken

    def hatch(self, caption, colour, *places):
        """Fills at places with a pattern of the panel; gives the colour."""
        self.click(studio.FILLS)
        self.program.wait_says("hulpkader : kies een soort lijn om een vlak mee op te vullen")
        self.click(caption)
        self.program.wait_says("kies een lijn om vlakken in je tekening mee op te vullen")
        taken = self.program.pick(colour)
        for place in places:
            self.dot(*place)
        return taken

    def test_a_fill_stops_at_a_closed_outline(self):
        self.box(100, 100, 160, 140, tool="box")
        red = self.fill(130, 120, RED)
        picture = self.saved()
        self.assertEqual(of_colour(picture, red), block(101, 101, 159, 139))
        self.assertEqual(of_colour(picture, BLACK), frame(100, 100, 160, 140))
        self.assertEqual(len(of_colour(picture, WHITE)), len(WHOLE) - 61 * 41)

    def test_a_gap_of_one_pixel_floods_the_outside_too(self):
        self.stroke((100, 100), (160, 100), (160, 140), (100, 140), (100, 102))
        red = self.fill(130, 120, RED)
        picture = self.saved()
        outline = frame(100, 100, 160, 140) - {(100, 101)}
        self.assertEqual(of_colour(picture, BLACK), outline)
        self.assertEqual(of_colour(picture, red), WHOLE - outline)

    def test_lines_that_meet_at_a_corner_hold_a_fill(self):
        self.stroke((130, 100), (160, 130), (130, 160), (100, 130), (130, 100))
        red = self.fill(130, 130, RED)
        self.assertEqual(of_colour(self.saved(), red),
                         {(x, y) for x, y in block(100, 100, 160, 160) if abs(x - 130) + abs(y - 130) < 30})

    def test_a_fill_covers_exactly_the_colour_under_the_pointer(self):
        blue = self.box(100, 100, 160, 140, BLUE)
        self.box(120, 110, 140, 130)
        red = self.fill(101, 101, RED)
        picture = self.saved()
        self.assertEqual(of_colour(picture, red), block(100, 100, 160, 140) - block(120, 110, 140, 130))
        self.assertEqual(of_colour(picture, blue), set())

    def test_every_pattern_is_drawn_as_its_button_shows_it(self):
        places = {ROWS: (20, 30), COLUMNS: (121, 32), FALLING: (223, 31), RISING: (325, 33),
                  CROSS: (22, 134), DIAGONAL_CROSS: (124, 135), SOLID: (226, 137)}
        self.program.choose("box")
        for x, y in places.values():
            self.stroke((x, y), (x + 51, y + 50))
        colours = {caption: self.hatch(caption, RED, (x + 25, y + 25)) for caption, (x, y) in places.items()}
        picture = self.saved()
        for caption, (x, y) in places.items():
            with self.subTest(caption):
                inner = block(x + 1, y + 1, x + 50, y + 49)
                red = {at for at in inner if picture.at(*at) == colours[caption]}
                self.assertEqual({picture.at(*at) for at in inner - red} - {WHITE}, set())
                self.assertEqual(red, self.expected(caption, inner, red))
        outside = WHOLE.difference(*(block(x, y, x + 51, y + 50) for x, y in places.values()))
        self.assertEqual({picture.at(*at) for at in outside}, {WHITE})

    def expected(self, caption, inner, red):
        """What the pattern paints. Where its first stripe lies is told by the pixels themselves, the distance of eight is not."""
        def on(*measures):
            shifts = [next((s for s in range(8) if {at for at in inner if (m(*at) - s) % 8 == 0} <= red), 0) for m in measures]
            return {at for at in inner if any((m(*at) - s) % 8 == 0 for m, s in zip(measures, shifts))}

        return {ROWS: lambda: on(lambda x, y: y), COLUMNS: lambda: on(lambda x, y: x),
                FALLING: lambda: on(lambda x, y: x - y), RISING: lambda: on(lambda x, y: x + y),
                CROSS: lambda: on(lambda x, y: x, lambda x, y: y),
                DIAGONAL_CROSS: lambda: on(lambda x, y: x - y, lambda x, y: x + y), SOLID: lambda: inner}[caption]()

    def test_patterns_of_neighbours_join(self):
        """The stripes hang on the sheet, not on the place of the press."""
        self.box(100, 100, 103, 199)
        self.box(20, 100, 180, 199, tool="box")
        red = self.hatch(ROWS, RED, (50, 150), (150, 131))
        painted = of_colour(self.saved(), red)
        rows = {y for _, y in painted}
        self.assertEqual(painted, {(x, y) for y in rows for x in (*range(21, 100), *range(104, 180))})
        self.assertEqual({b - a for a, b in zip(sorted(rows), sorted(rows)[1:])}, {8})

    def test_a_pattern_on_a_pattern_fills_one_stripe_between_the_lines(self):
        self.box(100, 100, 180, 199, tool="box")
        red = self.hatch(ROWS, RED, (140, 150))
        lines = sorted({y for x, y in of_colour(self.saved(), red)})
        blue = self.hatch(SOLID, BLUE, (140, lines[3] + 4))
        picture = self.saved()
        self.assertEqual(of_colour(picture, blue), block(101, lines[3] + 1, 179, lines[4] - 1))
        self.assertEqual(len(of_colour(picture, red)), 79 * len(lines))

    def test_undo_is_off_for_fills_and_gives_the_filled_sheet_afterwards(self):
        undo = self.program.control(studio.UNDO)
        self.assertTrue(undo.enabled)
        self.box(100, 100, 160, 140, tool="box")
        red = self.fill(130, 120, RED)
        self.wait_enabled(undo, False, "undo")
        self.program.choose("pencil")
        self.wait_enabled(undo, True, "undo")
        self.stroke((10, 10), (50, 10))
        self.click(studio.UNDO)
        self.wait_enabled(undo, False, "undo")
        picture = self.saved()
        self.assertEqual(of_colour(picture, red), block(101, 101, 159, 139))
        self.assertEqual(of_colour(picture, BLACK), frame(100, 100, 160, 140) | {(10, 10)})

    def test_undo_of_the_first_stroke_after_a_fill_keeps_the_fill(self):
        red = self.fill(300, 300, RED)
        self.program.choose("pencil")
        self.click(studio.UNDO)
        self.assertEqual(of_colour(self.saved(), red), WHOLE)


if __name__ == "__main__":
    unittest.main()
