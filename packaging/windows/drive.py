"""Draws the same picture twice: drive.py LINUX_PROGRAM WINDOWS_PROGRAM END_SESSION FOLDER. First on the Linux build, whose controls tell where
they are; every movement is written down, relative to the window that it went to. Then on the Windows program under Wine, which gets
just these movements. At each stage the sheet on the screen must come out the same; in the end, the saved files must, byte by byte.
Last, a session is ended by force (by the program END_SESSION) while a drawing is open. Needs WINEPREFIX."""
import os
import pathlib
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tests/e2e"))
# pylint: disable=wrong-import-position
import driver
import kraspret
import pixels
import tour
from screen import NotSeen, Screen, until

PATIENCE = 90.0  # seconds; Wine takes its time
STILL = 0.4      # seconds without a change on the screen after which the program has done what it was asked
UNSEEN = 0.5     # seconds after which a movement is taken to do nothing that is seen
GLANCE = 0.02    # seconds between two looks at the screen
BESIDE = 160     # pixels at the left of the screen, where the studio has its tools and tells the place; the sheet comes after them
BUSY = 9.0       # seconds after which it moves by itself (the bar of an effect runs for five)
SAVED = "C:/prent.bmp"  # letters that every keyboard has
FAMILY = "Andika"
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


def still(desktop):
    before = desktop.screen().rows
    time.sleep(STILL)
    return desktop.screen().rows == before


def settled(desktop):
    """Waits until the program has done what it was asked."""
    try:
        until(lambda: still(desktop), "quiet screen", BUSY)
    except NotSeen:
        pass  # something moves by itself


def drag(desktop, points, button, steps):
    """Like Screen.drag, but each movement waits until the studio tells the new place beside the sheet: of several movements that
    wait, a busy program gets only the last one, and a line by hand would have fewer corners."""
    def shown():
        return pixels.read_screen(desktop.framebuffer, BESIDE).rows

    def wait_shown(former):
        end = time.monotonic() + UNSEEN
        while shown() == former and time.monotonic() < end:
            time.sleep(GLANCE)

    desktop.press(*points[0], button)
    settled(desktop)
    for (x0, y0), (x1, y1) in zip(points, points[1:]):
        for step in range(1, steps + 1):
            former = shown()
            Screen.move(desktop, round(x0 + (x1 - x0) * step / steps), round(y0 + (y1 - y0) * step / steps))
            wait_shown(former)
    desktop.release(button)


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
        drag(self, points, button, steps)

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


class Painter(tour.Tour):
    """The tour's house with its finery, where nothing is left to chance; then a text, the effects, the mirrors."""

    def __init__(self, folder):  # pylint: disable=super-init-not-called
        self.folder = folder
        self.desktop = Recorder()
        self.program = kraspret.start(self.desktop)
        self.opening = 0  # how many steps lead to the empty sheet

    def stage(self, name, former=None):
        """The sheet as it shows, once the pointer is away and nothing moves any more. Where chance chose the colours since the
        stage `former`, only which pixels were painted is to be the same. Gives the picture."""
        program, desktop = self.program, self.desktop
        left, top, width, height = program.sheet().rectangle
        desktop.move(left + width + 8, top + height + 8)
        until(lambda: still(desktop), "quiet screen", PATIENCE)
        title, window_left, window_top = desktop._place()
        picture = desktop.screen().crop(left, top, width, height)
        desktop.steps.append(("sheet", title, (left - window_left, top - window_top, width, height), picture, former, name))
        print(f"  {name}")
        return picture

    def run(self):
        program = self.program
        program.wait_menu()
        program.give_name("Emma")
        sheet = program.open_studio()
        self.stage("an empty sheet")
        self.opening = len(self.desktop.steps)
        self.scene(program, sheet)
        former = self.stage("every shape, and fills")
        program.choose("art line")
        sheet.drag((120, 120), (155, 70), (205, 50), (255, 60), (295, 110))
        self.stage("an art line, in colours of chance", former)
        program.choose("filled box")
        program.pick(tour.SUN)
        sheet.drag((110, 30), (310, 130))
        program.control("het menu BORSTELSTREKEN").click()
        program.control("STERRETJES").click()
        for place in ((40, 500), (120, 512), (210, 496)):
            self.desktop.click(*sheet.at(*place))
        self.stage("a box over it, and stamps")
        program.control("TEKST invoeren").click()
        self.desktop.click(*sheet.at(30, 60))
        program.wait_window("Hoe wil je de tekst ?")
        self.desktop.type("Dag Emma")
        # A typeface that comes with both packages: the first choice is the twelfth that the system has.
        program.control("lettertype").click()
        self.desktop.type(FAMILY)
        self.desktop.key("Return")
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
        path.unlink(missing_ok=True)  # or the program asks whether to write over it
        program.save(path)
        self.desktop.steps = [(kind, title, SAVED if what == str(path) else what, *rest)
                              for kind, title, what, *rest in self.desktop.steps]
        return self.desktop.steps, path


def painted(former, picture):
    """The pixels that are not as they were."""
    return {(x, y) for x, y, colour in picture.pixels() if former.at(x, y) != colour}


def differing(wanted, seen, former):
    """The pixels that are not as they should be; `former`: see Painter.stage."""
    if seen.rows == wanted.rows:
        return set()
    return painted(former, wanted) ^ painted(former, seen) if former else painted(wanted, seen)


class Wine(Screen):
    """A screen on which a Windows program follows written steps."""

    def __init__(self, folder):
        super().__init__()
        self.out = folder
        for name in ("QT_QPA_PLATFORM", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"):
            del self.env[name]
        # Wine keeps what is said to the toolkit of this system from its programs, unless it is said so.
        self.env["WINEQT_SCALE_FACTOR"] = self.env.pop("QT_SCALE_FACTOR")
        self.env.update(WINEDEBUG="-all", WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d", WINEPREFIX=os.environ["WINEPREFIX"],
                        HOME=os.environ["WINEPREFIX"])

    @staticmethod
    def wait_end(program):
        until(lambda: program.poll() is not None, "end of the program", PATIENCE)
        if program.returncode:
            raise NotSeen(f"it ended with status {program.returncode}: {program.args}")

    def place(self, title):
        def look():
            found = front(self)
            return found if found and found[0] == title else None
        return until(look, lambda: f"window {title!r} in front, it is {front(self)}", PATIENCE)[1:3]

    def expect_sheet(self, origin, box, wanted, former, name):
        left, top, width, height = box
        seen = []

        def look():
            seen[:] = [self.screen().crop(origin[0] + left, origin[1] + top, width, height)]
            return not differing(wanted, seen[0], former)
        try:
            until(look, name, 20)
        except NotSeen:
            seen[0].save_png(self.out / "windows.png")
            wanted.save_png(self.out / "linux.png")
            other = differing(wanted, seen[0], former)
            raise NotSeen(f"{name}: {len(other)} pixels of the sheet differ, one of them at {min(other)}") from None

    def follow(self, steps):
        for kind, title, what, *rest in steps:
            origin = left, top = self.place(title)
            if kind == "click":
                self.click(left + what[0], top + what[1], *rest)
            elif kind == "move":
                self.move(left + what[0], top + what[1])
            elif kind == "drag":
                drag(self, [(left + x, top + y) for x, y in what], *rest)
            elif kind == "sheet":
                self.expect_sheet(origin, what, *rest)
                print(f"  the same: {rest[-1]}")
                continue
            else:
                {"type": lambda: self.type(what), "key": lambda: self.key(*what)}[kind]()
            settled(self)


def draw_twice(desktop, windows, steps, reference):
    prefix = pathlib.Path(os.environ["WINEPREFIX"])
    saved, mirror = prefix / "drive_c/prent.bmp", pathlib.Path(windows).parent / "temp.bmp"
    for old in (saved, mirror):
        old.unlink(missing_ok=True)
    program = desktop.start("/usr/bin/wine", [windows], desktop.out / "windows.log")
    desktop.follow(steps)
    until(lambda: saved.exists() and saved.stat().st_size == reference.stat().st_size, "saved picture", PATIENCE)
    if not mirror.exists():
        raise NotSeen("the mirror's file is not in the program's folder")
    settled(desktop)
    if saved.read_bytes() != reference.read_bytes():
        raise NotSeen("the saved pictures differ")
    print("  the saved pictures are the same, byte by byte")
    desktop.close_window(front(desktop)[-1])  # the studio: the menu comes back
    settled(desktop)
    desktop.place((kraspret.MENU, True))
    desktop.close_window(front(desktop)[-1])
    desktop.wait_end(program)


def end_by_force(desktop, windows, end_session, opening):
    """What was drawn lies among the user's pictures afterwards, or in his folder where there are none."""
    user = next((pathlib.Path(os.environ["WINEPREFIX"]) / "drive_c/users").glob("[!P]*"))

    def rescued():
        return [path for folder in (user / "Pictures", user) for path in folder.glob("KrasPret redding *.bmp")]
    for old in rescued():
        old.unlink()
    program = desktop.start("/usr/bin/wine", [windows], desktop.out / "windows.log")
    desktop.follow(opening)
    title, box = opening[-1][1:3]
    left, top = (a + b for a, b in zip(desktop.place(title), box))
    drag(desktop, [(left + 40, top + 50), (left + 140, top + 50)], 1, 6)
    settled(desktop)
    ending = desktop.start("/usr/bin/wine", [end_session, title[0]], desktop.out / "end_session.log")
    desktop.wait_end(program)
    desktop.wait_end(ending)
    if len(rescued()) != 1:
        raise NotSeen(f"the drawing was not kept once, but as {rescued()}")
    if pixels.read_bmp(rescued()[0]).others(pixels.WHITE) != {(x, 50) for x in range(40, 141)}:
        raise NotSeen("what was kept is not the drawing")
    rescued()[0].unlink()
    print("  the drawing is kept when the session is ended by force")


def main(linux, windows, end_session, folder):
    folder = pathlib.Path(folder).absolute()
    folder.mkdir(parents=True, exist_ok=True)
    os.environ["KRASPRET_PROGRAM"] = os.path.abspath(linux)
    print("on Linux:")
    painter = Painter(folder)
    steps, reference = painter.run()
    painter.desktop.close()

    print("on Windows:")
    desktop = Wine(folder)
    try:
        draw_twice(desktop, windows, steps, reference)
        end_by_force(desktop, windows, end_session, steps[:painter.opening])
    except NotSeen as fault:
        desktop.screen().save_png(folder / "stuck.png")
        sys.exit(f"{fault}\n(screenshots lie in {folder})")
    finally:
        desktop.close()


if __name__ == "__main__":
    main(*sys.argv[1:])
