"""Where colours come from: the palette, the dropper, the colour dialog; and what they last for."""
import unittest

import kraspret
import studio
from kraspret import BLACK, SHEET, WHITE
from studio import BLUE, RED, Studio, block, of_colour, span


class Colours(Studio):
    def on_palette(self, x, y):
        """A place on the palette, on the screen, and the colour that shows there."""
        at = self.program.control(studio.PALETTE).at(x, y)
        return at, self.rainbow.at(x, y)

    def setUp(self):
        super().setUp()
        left, top, width, height = self.program.control(studio.PALETTE).rectangle
        self.rainbow = self.desktop.screen().crop(left, top, width, height)

    def test_the_swatch_follows_the_pointer_and_the_release_sets_the_colour(self):
        self.program.choose("filled box")
        at, colour = self.on_palette(12, 40)
        self.desktop.press(*at)
        self.wait_swatch(colour)
        seen = {colour}
        for x, y in ((40, 30), (70, 50), (100, 36)):
            at, colour = self.on_palette(x, y)
            self.desktop.move(*at)
            self.wait_swatch(colour)
            seen.add(colour)
        self.assertEqual(len(seen), 4, "the palette has one colour only")
        self.desktop.release()
        self.stroke((100, 100), (120, 130))
        self.assertEqual(self.painted(), dict.fromkeys(block(100, 100, 120, 130), colour))
        self.wait_swatch(colour)

    def test_moving_over_the_palette_without_a_button_changes_nothing(self):
        for x in (20, 60, 100):
            self.desktop.move(*self.on_palette(x, 40)[0])
        self.desktop.move(*self.sheet.at(5, 5))
        self.assertEqual(self.swatch(), BLACK)
        self.dot(50, 50)
        self.assertEqual(self.painted(), {(50, 50): BLACK})

    def test_a_release_off_the_palette_keeps_the_former_colour(self):
        self.program.choose("filled box")
        former = self.program.pick(RED)
        start, pressed = self.on_palette(80, 40)
        last, kept = self.on_palette(119, 40)
        self.assertNotIn(former, (pressed, kept))
        self.desktop.press(*start)
        self.desktop.move(*last)
        self.desktop.move(last[0] + 10, last[1])
        self.desktop.release()
        self.assertEqual(self.swatch(), kept)
        self.stroke((100, 100), (120, 130))
        self.assertEqual(self.painted(), dict.fromkeys(block(100, 100, 120, 130), former))

    def test_the_palette_has_pure_white_above_and_pure_black_below(self):
        for x in (0, 60, 119):
            self.assertEqual({self.rainbow.at(x, y) for y in range(4)}, {WHITE})
            self.assertEqual({self.rainbow.at(x, 72 - y) for y in range(3)}, {BLACK})

    def test_a_colour_lasts_until_a_tool_closes_the_panels(self):
        self.program.choose("filled box")
        colour = self.program.pick(BLUE)
        self.program.choose("filled box")
        self.wait_swatch(BLACK)
        self.stroke((10, 10), (30, 30))
        self.program.pick(BLUE)
        self.program.choose("art line")
        self.program.choose("fill")
        self.dot(300, 300)
        picture = self.saved()
        self.assertEqual(of_colour(picture, BLACK), block(10, 10, 30, 30))
        self.assertEqual(of_colour(picture, colour), block(0, 0, SHEET[0] - 1, SHEET[1] - 1) - block(10, 10, 30, 30))

    def test_the_dropper_takes_a_colour_out_of_the_drawing(self):
        colour = self.box(100, 100, 140, 140, RED)
        self.program.choose("pencil")
        self.wait_swatch(BLACK)
        self.program.choose("dropper")
        self.program.wait_says("een kleur vanuit de afbeelding zelf kiezen")
        self.dot(120, 120)
        self.wait_swatch(colour)
        self.dot(5, 5)
        self.wait_swatch(WHITE)
        self.dot(101, 139)
        self.wait_swatch(colour)
        self.program.choose("fill")
        self.dot(5, 5)
        self.assertEqual(set(self.painted().values()), {colour})

    def test_the_background_takes_the_colour_of_the_dialog_and_wipes_the_drawing(self):
        self.stroke((100, 100), (200, 100))
        self.click(studio.BACKGROUND)
        self.program.wait_says("een KLEUR voor de ACHTERGROND kiezen")
        yellow = self.mix(3, 7)
        self.assertEqual(yellow, studio.YELLOW)
        self.assertEqual(self.painted(), dict.fromkeys(block(0, 0, SHEET[0] - 1, SHEET[1] - 1), yellow))

        self.click(studio.RUBBER)
        self.dot(300, 300)
        self.box(50, 50, 350, 350)
        self.click(studio.RUBBER)
        self.stroke((100, 200), (300, 200))
        self.assertEqual(self.saved().at(200, 200), yellow, "the eraser has another colour than the sheet")

        self.click(studio.WIPE)
        self.program.wait_says("hiermee zul je ALLES op je tekening WISSEN")
        self.assertEqual(set(self.painted().values()), {yellow}, "a coloured sheet does not stay coloured")
        self.click(studio.NEW)
        self.program.wait_says("een NIEUW tekenblad met dezelfde grootte openen")
        self.assertEqual(self.painted(), {})

    def test_a_cancelled_colour_changes_nothing(self):
        self.stroke((100, 100), (200, 100))
        self.click(studio.BACKGROUND)
        self.program.wait_dialog("Kleur")
        self.desktop.key("Down", "space", "Escape")
        self.program.wait_no_dialog()
        self.assertEqual(self.painted(), dict.fromkeys(span(100, 200, 100), BLACK))

    def test_the_eraser_draws_in_a_colour_of_its_own(self):
        self.click(studio.ERASER)
        self.program.wait_says("hulpkader : je kan ook met het gommetje tekenen")
        self.click("kies de kleur voor het gommetje")
        self.program.wait_says("een KLEUR voor het gommetje kiezen")
        green = self.mix(0, 6)
        self.assertEqual(green, studio.GREEN)
        self.wait_swatch(green)
        self.slide(studio.RUBBER_THICKNESS, 15)
        self.stroke((100, 200), (300, 200))
        painted = self.painted()
        self.assertEqual(set(painted.values()), {green})
        for x in (100, 200, 300):
            self.assertEqual(sum((x, y) in painted for y in range(SHEET[1])), 15)
        self.click(studio.RUBBER)
        self.wait_swatch(BLACK)

    def test_a_cancelled_colour_of_the_eraser_changes_nothing(self):
        self.click(studio.ERASER)
        self.click("kies de kleur voor het gommetje")
        self.program.wait_dialog("Kleur")
        self.desktop.key("Down", "space", "Escape")
        self.program.wait_no_dialog()
        self.assertEqual(self.swatch(), BLACK)
        self.stroke((100, 200), (300, 200))
        self.assertEqual(self.painted(), {})


if __name__ == "__main__":
    unittest.main()
