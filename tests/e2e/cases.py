"""What the end-to-end tests share: a screen for each test file, folders, and a studio for each test."""
import os
import unittest

import driver
import kraspret


class Case(unittest.TestCase):
    """A test before a screen of its file's own. Each test has a folder."""

    size = driver.SCREEN  # of the screen, in pixels

    @classmethod
    def setUpClass(cls):
        cls.desktop = driver.Desktop(cls.size)
        cls.addClassCleanup(cls.desktop.close)

    def start(self, *arguments):
        """A program for this test alone, at the menu."""
        program = kraspret.start(self.desktop, *arguments)
        self.addCleanup(driver.stop, program.process)
        program.wait_menu()
        return program

    @property
    def folder(self):
        folder = self.desktop.folder / self.id().rsplit(".", 1)[-1]
        folder.mkdir(exist_ok=True)
        return folder

    def path(self, name):
        return self.folder / name

    def left(self):
        """The names of the files in the test's folder."""
        return sorted(os.listdir(self.folder))


class StudioCase(Case):
    """Each test finds an empty large studio; the program stays for the next test, unless this one spoils it."""

    program = None

    def setUp(self):
        cls = type(self)
        if cls.program is None:
            cls.program = kraspret.start(self.desktop)
            cls.program.wait_menu()
        self.sheet = self.program.open_studio()

    def tearDown(self):
        try:
            self.program.leave_studio()
        except driver.NotSeen:  # a dialog in the way, or worse: the next test starts afresh
            driver.stop(self.program.process)
            type(self).program = None
