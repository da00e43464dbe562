"""Line styles, thickness, eraser, spray and art line: what a moving pointer leaves behind."""
import unittest

import studio
from kraspret import BLACK, SHEET
from studio import RED, Studio, block, span


class Lines(Studio):
    def style(self, name):
        self.click(studio.LINES)
        self.program.wait_says("hulpkader : bepaal de instellingen van de lijnen")
        self.choose_style(name)

    def column(self, painted, x):
        return sum((x, y) in painted for y in range(SHEET[1]))

    def test_a_dotted_line_has_three_on_and_three_off(self):
        self.style("Stippellijn")
        self.stroke((100, 100), (160, 100))
        # A stroke's piece is drawn from its end back to its beginning, where the press has left a dot.
        self.assertEqual(set(self.painted()), {(160 - i, 100) for i in range(60) if i % 6 < 3} | {(100, 100)})

    def test_a_thick_line_is_solid_also_in_the_dotted_style(self):
        self.style("Stippellijn")
        self.slide(studio.THICKNESS, 12)
        self.stroke((100, 100), (200, 100))
        painted = self.painted()
        self.assertEqual({self.column(painted, x) for x in range(100, 201)}, {12})
        self.assertEqual(set(painted.values()), {BLACK})

    def test_choosing_a_style_makes_the_line_thin_again(self):
        self.click(studio.LINES)
        self.slide(studio.THICKNESS, 12)
        self.choose_style("Stippellijn")
        self.assertEqual(int(self.program.control(studio.THICKNESS).value), 1)
        self.stroke((100, 100), (200, 100))
        self.assertEqual({y for _, y in self.painted()}, {100})

    def test_another_tool_brings_the_plain_thin_line_back(self):
        self.style("Stippellijn")
        self.slide(studio.THICKNESS, 12)
        self.program.choose("line")
        self.stroke((100, 100), (200, 100))
        self.assertEqual(set(self.painted()), span(100, 199, 100))

    def test_a_colourful_stroke_changes_colour_with_every_movement(self):
        self.style("Kleurrijk")
        self.stroke(*((100 + 20 * i, 100) for i in range(8)))
        painted = self.painted()
        self.assertEqual(set(painted) - {(100, 100)}, span(101, 240, 100))
        pieces = [{painted[x, 100] for x in range(101 + 20 * i, 121 + 20 * i)} for i in range(7)]
        self.assertEqual([len(piece) for piece in pieces], [1] * 7)
        self.assertGreater(len(set.union(*pieces)), 5)
        self.assertEqual(self.swatch(), BLACK)

    def test_beads_hang_on_the_stroke_at_every_movement(self):
        self.style("Kraaltjes")
        self.stroke((100, 100), (140, 100), (180, 100), (220, 100))
        painted = self.painted()
        self.assertNotIn((110, 100 - 10), painted, "a press alone strings no bead")
        for x in (140, 180, 220):
            ends = {painted.get(at) for at in ((x, 90), (x, 110), (x - 10, 100), (x + 10, 100))}
            # The stroke goes on over the right end of every bead but the last.
            self.assertLessEqual(len(ends - {BLACK}), 1)
            self.assertNotIn(None, ends)
        self.assertEqual(self.swatch(), painted[220, 90])

    def test_a_zip_has_a_tooth_at_every_movement(self):
        self.style("Ritssluiting")
        self.stroke((100, 100), (140, 100), (180, 100))
        painted = self.painted()
        for x in (140, 180):
            tooth = {(x - 10 + i, 90 + i) for i in range(20)} - {(x, 100)}
            self.assertEqual(len({painted.get(at) for at in tooth}), 1)
            self.assertLessEqual(tooth, set(painted))
            self.assertNotIn((x + 10, 110), painted)
        self.assertEqual(self.swatch(), painted[170, 90])

    def test_the_spray_strews_dots_round_the_moving_pointer(self):
        self.program.choose("spray")
        self.program.wait_says("figuurtjes tekenen met het SPUITBUSJE")
        colour = self.program.pick(RED)
        self.dot(50, 50)
        self.stroke((100, 100), (200, 100), (300, 200))
        painted = self.painted()
        self.assertEqual(set(painted.values()), {colour})
        near = {at: {p for p in painted if at[0] - 7 <= p[0] <= at[0] + 6 and at[1] - 7 <= p[1] <= at[1] + 6}
                for at in ((200, 100), (300, 200))}
        self.assertEqual(set(painted), set.union(*near.values()), "dots too far from the pointer, or at a press alone")
        for dots in near.values():
            self.assertTrue(10 <= len(dots) <= 26, len(dots))

    def test_the_art_line_is_a_fan_from_white_to_one_colour(self):
        self.program.choose("art line")
        self.dot(50, 50)
        self.assertEqual(self.painted(), {}, "a press alone draws")
        self.stroke((150, 150), (300, 150), (300, 300))
        painted = self.painted()
        self.assertTrue(set(painted) <= block(145, 135, 305, 305))
        self.assertGreater(len(painted), 150)
        deepest = min(painted.values(), key=sum)
        span_of = max(255 - c for c in deepest)
        for colour in set(painted.values()):
            share = max(255 - c for c in colour) / span_of
            for part, end in zip(colour, deepest):
                self.assertLessEqual(abs(255 - part - share * (255 - end)), 2.5)

    def test_the_eraser_is_thick_and_has_the_colour_of_the_sheet(self):
        self.box(100, 100, 300, 300)
        self.click(studio.RUBBER)
        self.program.wait_says("Je kunt hiermee foutjes ongedaan GOMMEN")
        self.stroke((80, 200), (320, 200))
        painted = set(self.painted())
        gone = block(100, 100, 300, 300) - painted
        self.assertEqual({sum((x, y) in gone for y in range(100, 301)) for x in range(100, 301)}, {10})
        self.assertEqual(len({y for _, y in gone}), 10)
        self.assertIn((200, 200), gone)
        self.program.choose("line")
        self.stroke((10, 10), (50, 10))
        self.assertEqual(set(self.painted()) - painted, span(10, 49, 10))


if __name__ == "__main__":
    unittest.main()
