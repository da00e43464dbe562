"""A screen smaller than the studio: what fits stays at its place and works, and what does not fit is cut off."""
import unittest

import studio
from kraspret import BLACK, SHEET
from studio import Studio, span


class SmallScreen(Studio):
    size = (640, 480)

    def test_controls_keep_their_places_and_the_sheet_its_size(self):
        left, top, width, height = self.sheet.rectangle
        self.assertEqual((width, height), SHEET)
        for name, place in ((studio.PALETTE, (16, 8)), ("Einde", (16, 88)), ("je tekenpotlood", (16, 152)),
                            (studio.LINES, (16, 312)), ("het menu ROTEREN", (144, 440))):
            x, y, _, _ = self.program.control(name).rectangle
            self.assertEqual((x - left + 176, y - top + 8), place, name)

    def test_a_line_to_the_screens_edge_is_in_the_file(self):
        self.program.choose("line")
        self.stroke((100, 300), (400, 300))
        self.assertEqual(self.painted(), dict.fromkeys(span(100, 399, 300), BLACK))

    def test_a_panel_opens_and_its_tool_works(self):
        self.click(studio.LINES)
        self.stroke((100, 300), (140, 300))
        self.assertEqual(self.painted(), dict.fromkeys(span(100, 140, 300), BLACK))


if __name__ == "__main__":
    unittest.main()
