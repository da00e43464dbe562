"""Ends that come from outside: the machine goes down, or there is no screen to begin with."""
import os
import signal
import subprocess
import unittest

import cases
import driver
import kraspret
import pixels
from kraspret import SHEET, WHITE


class GoingDown(cases.Case):
    def setUp(self):
        self.pictures = self.desktop.folder / "home" / "Pictures"
        self.pictures.mkdir(exist_ok=True)
        for path in self.pictures.iterdir():
            path.unlink()

    def studio(self):
        """A studio with a line on its sheet."""
        program = self.start().to_studio()
        program.sheet().drag((40, 50), (140, 50))
        program.wait_pixel(100, 50, kraspret.BLACK)
        return program

    def rescued(self):
        return sorted(path.name for path in self.pictures.iterdir())

    def test_the_drawing_lies_among_the_pictures(self):
        for number, asked in enumerate((signal.SIGTERM, signal.SIGHUP, signal.SIGINT), 1):
            with self.subTest(asked.name):
                program = self.studio()
                program.process.send_signal(asked)
                self.assertEqual(program.wait_exit(), 0)
                self.assertEqual(len(self.rescued()), number)
                picture = pixels.read_bmp(self.pictures / f"KrasPret redding {number}.bmp")
                self.assertEqual((picture.width, picture.height), SHEET)
                self.assertEqual(picture.others(WHITE), {(x, 50) for x in range(40, 141)})

    def test_an_open_dialog_does_not_hold_it_up(self):
        program = self.studio()
        program.control(kraspret.OPEN).click()
        program.wait_dialog(kraspret.OPEN_QUESTION)
        program.process.send_signal(signal.SIGTERM)
        self.assertEqual(program.wait_exit(), 0)
        self.assertEqual(self.rescued(), ["KrasPret redding 1.bmp"])

    def test_without_a_drawing_nothing_is_written(self):
        program = self.start()
        program.process.send_signal(signal.SIGTERM)
        self.assertEqual(program.wait_exit(), 0)
        self.assertEqual(self.rescued(), [])


class NoScreen(cases.Case):
    def test_one_line_says_so(self):
        program = os.environ.get("KRASPRET_PROGRAM", str(kraspret.BUILT))
        bare = {name: value for name, value in self.desktop.env.items() if name != "DISPLAY"}
        for what, more in (("no display", {}), ("a display that is gone", {"DISPLAY": ":4711"}),
                           ("an unknown platform", {"QT_QPA_PLATFORM": "krijtbord"}),
                           ("an empty folder of plug-ins", {"QT_QPA_PLATFORM_PLUGIN_PATH": str(self.folder)})):
            with self.subTest(what):
                run = subprocess.run([program], env={**bare, **more}, stdin=subprocess.DEVNULL, capture_output=True, text=True,
                                     timeout=driver.PATIENCE, check=False)
                self.assertEqual(run.returncode, 1, run.stderr)
                self.assertEqual(run.stderr, "KrasPret kan niet starten: er is geen scherm om vensters op te tonen.\n")
                self.assertEqual(run.stdout, "")


if __name__ == "__main__":
    unittest.main()
