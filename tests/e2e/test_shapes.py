"""Every shape tool of the large studio, drawn with a real pointer and judged by the pixels of the saved file."""
import unittest

import cases
import driver
import kraspret
from kraspret import BLACK, SHEET, WHITE


def span(x0, x1, y):
    """The pixels of a row, both ends included."""
    return {(x, y) for x in range(x0, x1 + 1)}


def pillar(x, y0, y1):
    return {(x, y) for y in range(y0, y1 + 1)}


def extent(points):
    """(left, top, right, bottom) of a set of pixels, all included."""
    xs, ys = [x for x, _ in points], [y for _, y in points]
    return min(xs), min(ys), max(xs), max(ys)


def inside(outline):
    """The pixels that a closed outline shuts in: those between the leftmost and the rightmost of each row that the outside,
    walked in four directions, does not reach."""
    left, top, right, bottom = extent(outline)
    seen, edge = set(), [(left - 1, top - 1)]
    while edge:
        x, y = edge.pop()
        if (x, y) in seen or (x, y) in outline or not (left - 1 <= x <= right + 1 and top - 1 <= y <= bottom + 1):
            continue
        seen.add((x, y))
        edge += [(x + 1, y), (x - 1, y), (x, y + 1), (x, y - 1)]
    return {(x, y) for y in range(top, bottom + 1) for x in range(left, right + 1)} - seen - set(outline)


class Shapes(cases.StudioCase):
    def saved(self):
        """The picture as a file."""
        picture = self.program.save(self.path(f"{len(self.left())}.bmp"))
        self.assertEqual((picture.width, picture.height), SHEET)
        return picture

    def black(self):
        """The black pixels of the saved sheet; there must be no third colour."""
        picture = self.saved()
        painted = picture.others(WHITE)
        self.assertEqual({picture.at(x, y) for x, y in painted} - {BLACK}, set())
        return painted

    def symmetric(self, painted, twice_x, twice_y):
        """Mirrored about a centre, given doubled."""
        self.assertEqual(painted, {(twice_x - x, y) for x, y in painted})
        self.assertEqual(painted, {(x, twice_y - y) for x, y in painted})

    def test_a_new_sheet_is_white(self):
        self.assertEqual(self.black(), set())

    def test_the_pencil_leaves_every_point_that_it_went_through(self):
        self.sheet.drag((40, 50), (140, 50), (140, 90))
        self.assertEqual(self.black(), span(40, 140, 50) | pillar(140, 50, 90))

    def test_a_press_of_the_pencil_leaves_a_dot(self):
        self.desktop.click(*self.sheet.at(77, 66))
        self.assertEqual(self.black(), {(77, 66)})

    def test_the_right_button_draws_a_dot_with_the_pencil_and_no_line(self):
        self.sheet.drag((40, 50), (140, 50), button=3)
        self.assertEqual(self.black(), {(40, 50)})

    def test_a_line_goes_from_press_to_release(self):
        self.program.choose("line")
        self.program.wait_says("je bent bezig met LIJNEN TREKKEN")
        self.sheet.drag((40, 50), (100, 80), (140, 50))
        self.sheet.drag((200, 200), (260, 260))
        self.sheet.drag((300, 140), (300, 100))
        self.assertEqual(self.black(), span(40, 139, 50) | {(200 + i, 200 + i) for i in range(60)} | pillar(300, 101, 140))

    def test_the_sample_of_the_first_line_stays_on_the_sheet_and_out_of_the_file(self):
        self.program.choose("line")
        self.sheet.drag((300, 300), (340, 300))
        self.program.wait_pixel(48, 24, BLACK)
        self.assertEqual(self.black(), span(300, 339, 300))

    def test_a_line_begun_at_the_very_edge_is_not_drawn(self):
        self.program.choose("line")
        self.sheet.drag((0, 50), (140, 50))
        self.sheet.drag((50, 0), (50, 140))
        self.sheet.drag((1, 200), (30, 200))
        self.assertEqual(self.black(), span(1, 29, 200))

    def test_a_line_released_outside_the_sheet_reaches_its_edge(self):
        self.program.choose("line")
        self.sheet.drag((500, 400), (SHEET[0] + 20, 400))
        self.assertEqual(self.black(), span(500, SHEET[0] - 1, 400))

    def test_a_rectangle_is_an_outline_with_both_corners(self):
        self.program.choose("box")
        self.program.wait_says("je tekent nu een LEGE RECHTHOEK")
        self.sheet.drag((160, 180), (100, 120))
        self.assertEqual(self.black(), span(100, 160, 120) | span(100, 160, 180) | pillar(100, 120, 180) | pillar(160, 120, 180))

    def test_a_filled_rectangle_is_black_from_corner_to_corner(self):
        self.program.choose("filled box")
        self.program.wait_says("je tekent nu een GEVULDE RECHTHOEK")
        self.sheet.drag((100, 120), (130, 160))
        self.assertEqual(self.black(), {(x, y) for x in range(100, 131) for y in range(120, 161)})

    def test_a_click_with_the_circle_tool_draws_the_smallest_ring(self):
        self.program.choose("circle")
        self.program.wait_says("LEGE cirkels maken : stel eerst de diameter in")
        self.desktop.click(*self.sheet.at(200, 150))
        ring = self.black()
        self.assertEqual(extent(ring), (197, 147, 203, 153))
        self.symmetric(ring, 400, 300)
        self.assertNotIn((200, 150), ring)

    def test_a_circle_has_the_sliders_radius_round_the_press(self):
        self.program.choose("circle")
        self.program.set_radius(40)
        self.program.wait_says("hiermee verandert de DIAMETER (doorsnede) van de CIRKEL")
        self.program.wait_says("40")
        self.sheet.drag((200, 150), (260, 190))
        ring = self.black()
        self.assertEqual(extent(ring), (160, 110, 240, 190))
        self.symmetric(ring, 400, 300)
        for x, y in ring:
            self.assertLess(abs(((x - 200) ** 2 + (y - 150) ** 2) ** 0.5 - 40), 1.0)
        self.assertIn((200, 150), inside(ring))

    def test_a_filled_circle_is_full(self):
        self.program.choose("filled circle")
        self.program.wait_says("GEVULDE cirkels maken : stel eerst de diameter in")
        self.program.set_radius(30)
        self.desktop.click(*self.sheet.at(200, 150))
        disc = self.black()
        self.assertEqual(extent(disc), (170, 120, 230, 180))
        self.symmetric(disc, 400, 300)
        self.assertEqual(inside(disc), set())
        self.assertTrue(all((x - 200) ** 2 + (y - 150) ** 2 < 31 ** 2 for x, y in disc))
        self.assertGreater(len(disc), 3.14 * 29.5 ** 2)

    def test_a_filled_circle_released_outside_fills_the_surroundings(self):
        self.program.choose("filled circle")
        self.program.set_radius(30)
        self.sheet.drag((200, 150), (300, 150))
        painted = self.black()
        self.assertIn((0, 0), painted)
        self.assertNotIn((200, 150), painted)

    def ellipse(self, tool, says):
        """Draws one round (300, 200), 60 to the side and 40 down; the frame that follows the pointer is 15 wider and higher."""
        self.program.choose(tool)
        self.program.wait_says(says)
        self.sheet.drag((300, 200), (360, 240))
        painted = self.black()
        self.assertEqual(extent(painted), (307 - 67, 207 - 47, 307 + 67, 207 + 47))
        self.symmetric(painted, 2 * 307, 2 * 207)
        return painted

    def test_an_ellipse_grows_round_the_press(self):
        ring = self.ellipse("ellipse", "je tekent nu een LEGE ELLIPS (=ovaal, eivorm)")
        self.assertIn((307, 207), inside(ring))
        for x, y in ring:
            self.assertAlmostEqual(((x - 307) / 67) ** 2 + ((y - 207) / (67 * 95 / 135)) ** 2, 1, delta=0.06)

    def test_a_filled_ellipse_is_full(self):
        disc = self.ellipse("filled ellipse", "je tekent nu een GEVULDE ELLIPS (=ovaal, eivorm)")
        self.assertEqual(inside(disc), set())
        self.assertAlmostEqual(len(disc) / (3.14159 * 67.5 * 47.6), 1, delta=0.03)

    def test_undo_is_offered_for_tools_that_can_be_undone(self):
        undo = self.program.control(kraspret.UNDO)
        for tool, offered in (("opvullen van een gesloten oppervlak", False), ("een rechte lijn trekken", True),
                              ("het kleurenpipetje om kleuren uit afbeeldingen te gebruiken", False),
                              ("een gewone ellips", True)):
            self.program.control(tool).click()
            driver.until(lambda: undo.enabled == offered, f"undo {'on' if offered else 'off'} for {tool!r}")

    def wait_offered(self, name, offered):
        """Waits until the first button of this name can, or cannot, be pressed."""
        driver.until(lambda: self.program.control(name).enabled == offered, f"{name!r} {'on' if offered else 'off'}")

    def test_undo_and_redo_swap_the_sheet_before_and_after_the_last_line(self):
        self.program.choose("line")
        self.sheet.drag((40, 50), (140, 50))
        self.sheet.drag((40, 100), (140, 100))
        before, after = span(40, 139, 50), span(40, 139, 50) | span(40, 139, 100)
        self.wait_offered(kraspret.UNDO, True)
        self.wait_offered(kraspret.REDO, False)
        for _ in range(2):
            self.program.control(kraspret.UNDO).click()
            self.wait_offered(kraspret.UNDO, False)
            self.wait_offered(kraspret.REDO, True)
            self.program.wait_pixel(100, 100, WHITE)
            self.program.wait_pixel(100, 50, BLACK)
            self.program.control(kraspret.REDO).click()
            self.wait_offered(kraspret.UNDO, True)
            self.wait_offered(kraspret.REDO, False)
            self.program.wait_pixel(100, 100, BLACK)
        self.assertEqual(self.black(), after)
        self.program.control(kraspret.UNDO).click()
        self.wait_offered(kraspret.UNDO, False)
        self.assertEqual(self.black(), before)

    def test_a_colour_holds_until_a_button_that_gives_a_new_pen(self):
        self.program.choose("filled box")
        red = self.program.pick((255, 0, 0))
        self.sheet.drag((100, 100), (120, 110))
        self.program.choose("filled box")
        self.sheet.drag((200, 100), (220, 110))
        picture = self.saved()
        self.assertNotIn(red, (BLACK, WHITE))
        self.assertEqual({picture.at(x, y) for x in range(100, 121) for y in range(100, 111)}, {red})
        self.assertEqual({picture.at(x, y) for x in range(200, 221) for y in range(100, 111)}, {BLACK})

    def test_a_fill_stops_at_the_outline(self):
        self.program.choose("box")
        self.sheet.drag((100, 100), (160, 140))
        self.program.choose("fill")
        self.program.wait_says("je kunt nu vlakken in je tekening OPVULLEN")
        blue = self.program.pick((0, 0, 255))
        self.desktop.click(*self.sheet.at(130, 120))
        picture = self.saved()
        self.assertEqual({p for p in picture.others(WHITE) if picture.at(*p) == blue},
                         {(x, y) for x in range(101, 160) for y in range(101, 140)})
        self.assertEqual({p for p in picture.others(WHITE) if picture.at(*p) != blue},
                         span(100, 160, 100) | span(100, 160, 140) | pillar(100, 100, 140) | pillar(160, 100, 140))

    def test_the_pointers_place_is_told(self):
        self.desktop.move(*self.sheet.at(123, 45))
        self.program.wait_says("X=123  Y=45")


if __name__ == "__main__":
    unittest.main()
