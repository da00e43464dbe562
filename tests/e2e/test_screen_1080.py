"""On a screen of 1920 by 1080 the program chooses its own size."""
import unittest
from unittest import mock

import scale
from Xlib import X, Xatom, display
from Xlib.ext import randr


class Screen1080(scale.ScaleCase):
    size = (1920, 1080)

    def setUp(self):
        del self.desktop.env["QT_SCALE_FACTOR"]
        self.addCleanup(self.desktop.env.update, QT_SCALE_FACTOR="1")

    def test_it_fills_the_screen_and_a_line_lands_where_it_was_pressed(self):
        self.lands_where_it_was_pressed("7/4")

    def root(self):
        server = display.Display(self.desktop.env["DISPLAY"])
        self.addCleanup(server.close)
        return server, server.screen().root

    def test_the_factors_of_the_desktop_do_not_count_a_second_time(self):
        server, root = self.root()
        root.change_property(Xatom.RESOURCE_MANAGER, Xatom.STRING, 8, b"Xft.dpi:\t192\n", X.PropModeReplace)
        server.sync()
        self.addCleanup(server.sync)
        self.addCleanup(root.delete_property, Xatom.RESOURCE_MANAGER)
        with mock.patch.dict(self.desktop.env, QT_SCREEN_SCALE_FACTORS="2", QT_FONT_DPI="192"):
            self.lands_where_it_was_pressed("7/4")

    def test_a_screen_that_goes_and_comes_back_does_no_harm(self):
        server, root = self.root()
        found = randr.get_screen_resources(root)

        def shown_on(outputs, mode):
            randr.set_crtc_config(server, found.crtcs[0], found.config_timestamp, 0, 0, mode, randr.Rotate_0, outputs)

        def resize(width, height):
            randr.set_screen_size(root, width, height, width // 4, height // 4)
            server.sync()
            scale.cases.driver.until(lambda: root.get_geometry().width == width, "screen of another size")

        def replugged():
            shown_on([], 0)
            resize(1366, 768)
            resize(*self.size)
            shown_on(found.outputs, found.modes[0].id)
        self.addCleanup(replugged)
        self.lands_where_it_was_pressed("7/4", replugged)


if __name__ == "__main__":
    unittest.main()
