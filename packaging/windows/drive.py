"""Draws the same picture twice: drive.py LINUX_PROGRAM WINDOWS_PROGRAM FOLDER. First on the Linux build, whose controls tell where
they are; every movement is written down, relative to the window that it went to. Then on the Windows program under Wine, which gets
just these movements. At each stage the sheet on the screen must come out the same; in the end, the saved files must, byte by byte.
Needs WINEPREFIX."""
import os
import pathlib
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tests/e2e"))
# pylint: disable=wrong-import-position
import driver
import kraspret
from screen import NotSeen, Screen, until
from tour import Tour

PATIENCE = 90.0  # seconds; Wine takes its time
STILL = 0.4      # seconds without a change on the screen after which the program has done what it was asked
BUSY = 9.0       # seconds after which it moves by itself (the bar of an effect runs for five)
SAVED = "C:/prent.bmp"  # letters that every keyboard has
EFFECTS = ("GRIJS RELIEF", "KLEUREN OMKEREN", "VERVAGEN")


def front(desktop):
    """The window that has the keyboard: its title, whether it is as wide as the screen (the welcome and the messages have the titles
    of the large windows), its left and top, its id. None while there is none."""
    window = desktop._xdotool("getactivewindow", check=False).strip()
    place = desktop.geometry(window) if window else None
    if not place:
        return None
    title = desktop._xdotool("getwindowname", window, check=False).rstrip("\n")
    return (title, place[2] == desktop.size[0]), place[0], place[1], int(window)


class Recorder(driver.Desktop):
    """A desktop that writes down what is done before it, in places relative to the front window."""

    def __init__(self):
        super().__init__()
        self.steps = []

    def _place(self):
        return until(lambda: front(self), "front window")[:3]

    def click(self, x, y, button=1):
        title, left, top = self._place()
        self.steps.append(("click", title, (x - left, y - top), button))
        super().click(x, y, button)

    def drag(self, *points, button=1, steps=6):
        title, left, top = self._place()
        self.steps.append(("drag", title, [(x - left, y - top) for x, y in points], button, steps))
        super().drag(*points, button=button, steps=steps)

    def move(self, x, y):
        title, left, top = self._place()
        self.steps.append(("move", title, (x - left, y - top)))
        super().move(x, y)

    def type(self, text):
        self.steps.append(("type", self._place()[0], text))
        super().type(text)

    def key(self, *names):
        self.steps.append(("key", self._place()[0], names))
        super().key(*names)


class Painter(Tour):
    """The tour's house with its finery, where nothing is left to chance; then a text, the effects, the mirrors."""

    def __init__(self, folder):  # pylint: disable=super-init-not-called
        self.folder = folder
        self.desktop = Recorder()
        self.program = kraspret.start(self.desktop)

    def stage(self, name):
        """The sheet as it shows, once the pointer is away and nothing moves any more."""
        program, desktop = self.program, self.desktop
        left, top, width, height = program.sheet().rectangle
        desktop.move(left + width + 8, top + height + 8)
        until(lambda: still(desktop), "quiet screen", PATIENCE)
        title, window_left, window_top = desktop._place()
        picture = desktop.screen().crop(left, top, width, height)
        desktop.steps.append(("sheet", title, (left - window_left, top - window_top, width, height), picture, name))
        print(f"  {name}")

    def run(self):
        program = self.program
        program.wait_menu()
        program.give_name("Emma")
        sheet = program.open_studio()
        self.stage("an empty sheet")
        self.scene(program, sheet)
        self.stage("every shape, and fills")
        program.choose("art line")
        sheet.drag((385, 250), (420, 200), (470, 180), (520, 190), (560, 240))
        program.control("het menu BORSTELSTREKEN").click()
        program.control("STERRETJES").click()
        for place in ((40, 500), (120, 512), (210, 496)):
            self.desktop.click(*sheet.at(*place))
        self.stage("an art line and stamps")
        program.control("TEKST invoeren").click()
        self.desktop.click(*sheet.at(30, 60))
        program.wait_window("Hoe wil je de tekst ?")
        self.desktop.type("Dag Emma")
        program.control("Voeg in").click()
        program.wait_gone("Hoe wil je de tekst ?")
        self.stage("a text")
        for effect in EFFECTS:
            if not program.find(effect):
                program.control("het menu KLEUREFFECTEN").click()
            program.control(effect).click()
            program.wait_dialog()  # "Klaar !!!", when the bar has run
            self.desktop.key("Return")
            program.wait_no_dialog()
            self.stage(effect)
        program.control("HORIZONTAAL spiegelbeeld").click()
        self.stage("mirrored")
        program.control("VERTICAAL spiegelbeeld").click()
        self.stage("mirrored the other way")
        path = self.folder / "linux.bmp"
        program.save(path)
        self.desktop.steps = [(kind, title, SAVED if what == str(path) else what, *rest)
                              for kind, title, what, *rest in self.desktop.steps]
        return self.desktop.steps, path


def still(desktop):
    before = desktop.screen().rows
    time.sleep(STILL)
    return desktop.screen().rows == before


class Wine(Screen):
    """A screen on which a Windows program follows written steps."""

    def __init__(self, folder):
        super().__init__()
        self.out = folder
        for name in ("QT_QPA_PLATFORM", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"):
            del self.env[name]
        self.env.update(WINEDEBUG="-all", WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d", WINEPREFIX=os.environ["WINEPREFIX"],
                        HOME=os.environ["WINEPREFIX"])

    def settled(self):
        """Waits until the program has done what it was asked."""
        try:
            until(lambda: still(self), "quiet screen", BUSY)
        except NotSeen:
            pass  # something moves by itself

    def place(self, title):
        def look():
            found = front(self)
            return found if found and found[0] == title else None
        return until(look, lambda: f"window {title!r} in front, it is {front(self)}", PATIENCE)[1:3]

    def expect_sheet(self, origin, box, wanted, name):
        left, top, width, height = box
        seen = []

        def look():
            seen[:] = [self.screen().crop(origin[0] + left, origin[1] + top, width, height)]
            return seen[0].rows == wanted.rows
        try:
            until(look, name, 20)
        except NotSeen:
            seen[0].save_png(self.out / "windows.png")
            wanted.save_png(self.out / "linux.png")
            other = [(x, y) for x, y, colour in wanted.pixels() if seen[0].at(x, y) != colour]
            raise NotSeen(f"{name}: {len(other)} pixels of the sheet differ, the first at {other[0]}") from None

    def follow(self, steps):
        for kind, title, what, *rest in steps:
            origin = left, top = self.place(title)
            if kind == "click":
                self.click(left + what[0], top + what[1], *rest)
            elif kind == "move":
                self.move(left + what[0], top + what[1])
            elif kind == "drag":
                self.drag(*((left + x, top + y) for x, y in what), button=rest[0], steps=rest[1])
            elif kind == "sheet":
                self.expect_sheet(origin, what, *rest)
                print(f"  the same: {rest[1]}")
                continue
            else:
                {"type": lambda: self.type(what), "key": lambda: self.key(*what)}[kind]()
            self.settled()


def main(linux, windows, folder):
    folder = pathlib.Path(folder).absolute()
    folder.mkdir(parents=True, exist_ok=True)
    os.environ["KRASPRET_PROGRAM"] = os.path.abspath(linux)
    print("on Linux:")
    painter = Painter(folder)
    steps, reference = painter.run()
    painter.desktop.close()

    print("on Windows:")
    saved = pathlib.Path(os.environ["WINEPREFIX"]) / "drive_c/prent.bmp"
    mirror = pathlib.Path(windows).parent / "temp.bmp"
    for old in (saved, mirror):
        old.unlink(missing_ok=True)
    desktop = Wine(folder)
    try:
        program = desktop.start("/usr/bin/wine", [windows], folder / "windows.log")
        desktop.follow(steps)
        until(lambda: saved.exists() and saved.stat().st_size == reference.stat().st_size, "saved picture", PATIENCE)
        if not mirror.exists():
            raise NotSeen("the mirror's file is not in the program's folder")
        desktop.settled()
        if saved.read_bytes() != reference.read_bytes():
            raise NotSeen("the saved pictures differ")
        print("  the saved pictures are the same, byte by byte")
        desktop.close_window(front(desktop)[-1])  # the studio: the menu comes back
        desktop.settled()
        desktop.place((kraspret.MENU, True))
        desktop.close_window(front(desktop)[-1])
        if until(lambda: program.poll() is not None, "end of the program", PATIENCE) and program.returncode:
            raise NotSeen(f"the program ended with status {program.returncode}")
    except NotSeen as fault:
        desktop.screen().save_png(folder / "stuck.png")
        sys.exit(f"{fault}\n(screenshots lie in {folder})")
    finally:
        desktop.close()


if __name__ == "__main__":
    main(*sys.argv[1:])
