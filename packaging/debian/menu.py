"""The installed program as a desktop knows it: menu.py ROOT. In the folder ROOT lies a Debian with the package, with a menu and
what reads it (python3-xdg, lxmenu-data), with gio and with a user of the number and home below. The virtual screen stands outside.
Asks the menu for the program, starts it from there, then opens a picture with it as a file manager does. Needs the
administrator's rights."""
import ast
import os
import pathlib
import signal
import subprocess
import sys
import tempfile

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tests/e2e"))
# pylint: disable=wrong-import-position
import kraspret
import pixels
from screen import NotSeen, Screen, until

USER, HOME = 1234, pathlib.PurePosixPath("/home") / "kind"
GREEN = (0, 255, 0)  # the button of the large studio, and nothing else as wide in the menu
WIDE = 60            # pixels
KINDS = ("image/bmp", "image/gif", "image/jpeg")
# Runs inside, in one language: where the menu has the program, and under which names.
READER = """
import sys
import xdg.IconTheme
import xdg.Locale
import xdg.Menu
xdg.Locale.update(sys.argv[1])

def entries(menu, way):
    for entry in menu.getEntries():
        if isinstance(entry, xdg.Menu.Menu):
            yield from entries(entry, (*way, entry.getName()))
        elif isinstance(entry, xdg.Menu.MenuEntry):
            yield way, entry.DesktopFileID, entry.DesktopEntry

for way, name, entry in entries(xdg.Menu.parse("/etc/xdg/menus/lxde-applications.menu"), ()):
    if name == "kraspret.desktop":
        icon = xdg.IconTheme.getIconPath(entry.getIcon(), 48, "hicolor")
        print((way[-1], entry.getName(), entry.getGenericName(), icon))
"""


class Desktop(Screen):
    """A screen, and the user inside who sits before it."""

    def __init__(self, root):
        super().__init__()
        self.root = pathlib.Path(root).resolve()

    def inside(self, *command):
        """Runs a command as the user; gives what it prints. What it starts and leaves behind may print for longer."""
        with tempfile.TemporaryFile("w+") as said:
            run = subprocess.run(["chroot", self.root, "setpriv", f"--reuid={USER}", f"--regid={USER}", "--clear-groups", "env", "-i",
                                  "PATH=/usr/bin:/bin", f"HOME={HOME}", "LC_ALL=C.UTF-8", f"DISPLAY={self.env['DISPLAY']}",
                                  "QT_SCALE_FACTOR=1", *command], stdin=subprocess.DEVNULL, stdout=said, stderr=said, timeout=60,
                                 check=False)
            said.seek(0)
            words = said.read()
        if run.returncode:
            raise NotSeen(f"{' '.join(command)}: {words}")
        return words

    def running(self):
        """The ids of the program's processes inside."""
        for place in pathlib.Path("/proc").glob("[0-9]*"):
            try:
                if os.readlink(place / "root") == str(self.root) and "kraspret" in os.readlink(place / "exe"):
                    yield int(place.name)
            except OSError:
                pass  # it has just ended

    def front(self):
        window = self._xdotool("getactivewindow", check=False).strip()
        return (self._xdotool("getwindowname", window, check=False).rstrip("\n"), window) if window else (None, None)

    def wait_front(self, title, look=lambda: True):
        """Waits for the window in front with this title; gives its id."""
        return until(lambda: self.front()[0] == title and look() and self.front()[1], lambda: f"window {title!r}, it is {self.front()}")

    def studio_button(self):
        """A place on the button of the large studio, once the menu shows it."""
        for y, row in enumerate(self.screen().rows):
            start = row.find(bytes(GREEN) * WIDE)
            if start >= 0:
                return start // 3 + WIDE // 2, y + 2
        return None

    def wait_menu(self):
        place = until(self.studio_button, "menu with its buttons")
        self.wait_front(kraspret.MENU)
        return place

    def leave(self, *titles):
        for title in titles:
            self.close_window(self.wait_front(title))
        until(lambda: not list(self.running()), "end of the program")

    def shows(self, picture):
        """Whether the picture is somewhere on the screen."""
        rows = self.screen().rows
        for y in range(len(rows) - picture.height + 1):
            start = rows[y].find(picture.rows[0])
            if start >= 0 and all(rows[y + n][start:start + len(row)] == row for n, row in enumerate(picture.rows)):
                return True
        return False


def expect_menu(desktop):
    for language, folder, words in (("nl", "Onderwijs", "Tekenprogramma voor kinderen"),
                                    ("en", "Education", "Drawing program for children")):
        lines = desktop.inside("python3", "-c", READER, language).splitlines()
        found = [ast.literal_eval(line) for line in lines]
        if [entry[:3] for entry in found if entry[0] == folder] != [(folder, "KrasPret", words)]:
            raise NotSeen(f"the menu in {language} has {found}")
        if not found[0][3] or "48x48" not in found[0][3]:
            raise NotSeen(f"the menu has the icon {found[0][3]}")
        print(f"  in the menu: {folder}, {words}")


def main(root):
    desktop = Desktop(root)
    try:
        expect_menu(desktop)
        desktop.inside("gio", "launch", "/usr/share/applications/kraspret.desktop")
        desktop.wait_menu()
        desktop.leave(kraspret.MENU)
        print("  started from the menu")

        home = desktop.root / HOME.relative_to("/")
        picture = pixels.halves(200, 100)
        pixels.write_bmp(home / "prent.bmp", picture)
        for kind in KINDS:
            if "kraspret.desktop" not in desktop.inside("gio", "mime", kind):
                raise NotSeen(f"KrasPret is not offered for {kind}")
            desktop.inside("gio", "mime", kind, "kraspret.desktop")
        desktop.inside("gio", "open", str(HOME / "prent.bmp"))
        desktop.click(*desktop.wait_menu())
        desktop.wait_front(kraspret.STUDIO)
        until(lambda: desktop.shows(picture), "picture in the studio")
        desktop.leave(kraspret.STUDIO, kraspret.MENU)
        print("  a bitmap opened with it shows in the studio")
    except NotSeen as fault:
        desktop.screen().save_png("stuck.png")
        sys.exit(f"{fault}\n(the screen lies in {os.path.abspath('stuck.png')})")
    finally:
        for process in desktop.running():
            os.kill(process, signal.SIGTERM)
        desktop.close()


if __name__ == "__main__":
    main(*sys.argv[1:])
