"""Every stamp, chosen by its button and compared with the figure that the button shows."""
import unittest

import studio
from kraspret import BLACK
from studio import RED, Studio, block

FAN = range(-5, 6)
FIGURES = {  # tooltip -> the lines of the figure, as offsets from the pointer
    "LIJNTJES OMHOOG": [(-5, 5, 5, -5)],
    "PLUSJES": [(0, 5, 0, -5), (5, 0, -5, 0)],
    "KRUISKOPJES IN": [(0, 5, 0, -5), (5, 0, -5, 0), (-5, 5, 5, -5), (5, 5, -5, -5)],
    "PIJLTJES OMHOOG": [(i, 5, 0, -5) for i in FAN],
    "PIJLTJES OMLAAG": [(i, -5, 0, 5) for i in FAN],
    "PIJLTJES LINKS": [(-5, 0, 5, i) for i in FAN],
    "PIJLTJES RECHTS": [(-5, i, 5, 0) for i in FAN],
    "STERRETJES": [(-5, 5, 5, -2), (5, -2, -5, -2), (-5, -2, 5, 5), (5, 5, 0, -5), (0, -5, -5, 5)],
    "RUITJES": [(0, -5, i, 0) for i in FAN] + [(0, 5, i, 0) for i in FAN] + [(-5, 0, 6, 0)],
}


def line(x0, y0, x1, y1):
    """The pixels of a line without its end: those that it must paint, and those that it may where two are equally near."""
    long = max(abs(x1 - x0), abs(y1 - y0))
    must, may = set(), set()
    for i in range(long):
        x, y = x0 + (x1 - x0) * i / long, y0 + (y1 - y0) * i / long
        near = {(a, b) for a in (x // 1, -(-x // 1)) for b in (y // 1, -(-y // 1)) if abs(a - x) <= .5 and abs(b - y) <= .5}
        may |= near
        if len(near) == 1:
            must |= near
    return must, may


class Stamps(Studio):
    def setUp(self):
        super().setUp()
        self.click(studio.STAMPS)
        self.program.wait_says("hulpkader : kies een soort borstel om met figuren te tekenen")

    def choose(self, name):
        self.click(name)
        self.program.wait_says("een punt of lijn tekenen met figuurtjes")

    def test_every_figure_is_the_one_on_its_button(self):
        places = {name: (50 + 40 * n, 100) for n, name in enumerate(FIGURES)}
        places |= {"VIERKANTJES": (50, 200), "KRUISKOPJES UIT": (100, 200), "LUCIFERTJES": (150, 200)}
        for name, place in places.items():
            self.choose(name)
            self.dot(*place)
        painted = self.painted()
        self.assertEqual(set(painted.values()), {BLACK})
        figures = {name: {(px - x, py - y) for px, py in painted if abs(px - x) <= 12 and abs(py - y) <= 12}
                   for name, (x, y) in places.items()}
        self.assertEqual(sum(map(len, figures.values())), len(painted))
        for name, lines in FIGURES.items():
            with self.subTest(name):
                must = set().union(*(line(*points)[0] for points in lines))
                may = set().union(*(line(*points)[1] for points in lines))
                self.assertLessEqual(must, figures[name])
                self.assertLessEqual(figures[name], may)
        with self.subTest("VIERKANTJES"):
            self.assertEqual(figures["VIERKANTJES"], block(-5, -5, 5, 5))
        with self.subTest("KRUISKOPJES UIT"):
            disc = figures["KRUISKOPJES UIT"]
            self.assertEqual(disc, {(-x, y) for x, y in disc} & {(y, x) for x, y in disc})
            self.assertLessEqual({(x, y) for x, y in block(-5, -5, 5, 5) if x * x + y * y <= 16}, disc)
            self.assertLessEqual(disc, {(x, y) for x, y in block(-5, -5, 5, 5) if x * x + y * y < 36})
        with self.subTest("LUCIFERTJES"):
            match = figures["LUCIFERTJES"]
            self.assertIn((0, 0), match)
            self.assertTrue(1 <= len(match) <= 11)

    def test_a_drag_leaves_a_trail_in_the_colour_of_the_palette(self):
        self.choose("VIERKANTJES")
        colour = self.program.pick(RED)
        self.stroke((100, 100), (130, 100), (160, 130))
        self.assertEqual(self.painted(), dict.fromkeys(
            block(95, 95, 105, 105) | block(125, 95, 135, 105) | block(155, 125, 165, 135), colour))

    def test_the_eraser_does_not_reach_the_stamps(self):
        self.choose("VIERKANTJES")
        self.click(studio.RUBBER)
        self.click(studio.STAMPS)
        self.choose("VIERKANTJES")
        self.dot(100, 100)
        self.assertEqual(self.painted(), dict.fromkeys(block(95, 95, 105, 105), BLACK))


if __name__ == "__main__":
    unittest.main()
