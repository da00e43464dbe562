"""A screen smaller than the studio: what fits stays at its place and works, and the rest is reached by scrolling."""
import unittest

import kraspret
import studio
from kraspret import BLACK, SHEET
from studio import Studio, span


class SmallScreen(Studio):
    size = (640, 480)

    def setUp(self):
        cls = type(self)
        if cls.program is None:
            cls.program = kraspret.start(self.desktop)
            cls.program.wait_menu()
        self.tab_to("Tekenen Groot")
        self.desktop.key("space")
        self.program.wait_window(kraspret.STUDIO)
        self.sheet = self.program.sheet()

    def tab_to(self, name):
        """Goes from button to button with the Tab key; the one that is reached can be seen."""
        button = self.program.control(name)
        for _ in range(20):
            self.desktop.key("Tab")
            if button.has("FOCUSED"):
                break
        self.program.wait_focus(button)
        left, top, width, height = button.rectangle
        self.assertTrue(0 <= left and left + width <= self.size[0] and 0 <= top and top + height <= self.size[1], name)

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

    def test_what_does_not_fit_is_reached_by_scrolling(self):
        self.program.choose("line")
        self.turn_wheel(down=5, right=7)
        self.stroke((500, 500), (600, 500))
        self.turn_wheel(up=4, left=6)
        self.assertEqual(self.painted(), dict.fromkeys(span(500, 599, 500), BLACK))

    def test_the_tab_key_brings_a_hidden_button_into_sight(self):
        self.program.leave_studio()
        self.tab_to("Stoppen")
        self.desktop.key("space")
        self.program.answer(kraspret.QUIT_QUESTION, "Nee")
        self.tab_to("Tekenen Groot")
        self.desktop.key("space")
        self.program.wait_window(kraspret.STUDIO)

    def turn_wheel(self, **ways):
        """Turns the wheel in the middle of the window, one of its four ways."""
        for button in ways.values():
            for _ in range(20):
                self.desktop.click(300, 200, button=button)


if __name__ == "__main__":
    unittest.main()
