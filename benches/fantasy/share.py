"""What the fantasy screens cost a child's machine: share.py KRASPRET [SECONDS [FACTOR]]. Each runs at its fastest on a virtual screen of
1920 by 1080, at the factor that the program itself takes there if none is given. Counted is the time that the program has run, so that a
busy machine changes little; the answer of the button that leaves is what a clock on the wall says, less the waiting for a processor.
Exit status 1 if a bar is not reached, or if a screen that rests at first cannot be set going."""
import pathlib
import sys
import time

TREE = pathlib.Path(__file__).resolve().parents[2]
sys.path[:0] = [str(TREE / "tests/e2e"), str(TREE / "benches/startup")]
from screen import Screen, until  # noqa: E402
from startup import Watched, worked  # noqa: E402

SIZE = (1920, 1080)
FACTOR = int(8 * min(SIZE[0] / 800, SIZE[1] / 600)) / 8
MENU, TITLE = "KRAS PRET", "KRAS PRET  -  MET ENIGE FANTASIE  KIJKEN  -  "
FANTASY = (8280, 3600)  # of the main menu; all places in twips, of the corner of a button
# The left edges of two buttons by which their menu is known: the main menu has nothing there. Blue first.
YELLOW, GREEN = ((8040, 1830), b"\x00\xFF\xFF"), ((8040, 2550), b"\x00\xFF\x00")
LEAVES_LATE = 22  # seconds until the worms let a child go
SECONDS = 10.0
ANSWER = 0.1  # seconds
RESTS, MOVES, DRAWS = 2.0, 15.0, 60.0  # percent of a core
STIRS = 0.1  # percent of a core that even the lightest tick takes


class Scene:
    def __init__(self, name, place, title, leave, bar=MOVES, faster=(), rests=False):
        self.name, self.place, self.title, self.leave, self.bar = name, place, TITLE + title, leave, bar
        self.faster, self.rests = faster, rests  # what makes it as fast as it can; whether it stands still until then


TO_THE_START, TO_THE_END = "Home", "End"  # of the slider that was pressed last
SCENES = (
    Scene("wind", (8040, 1680), "HERFSTWIND", (240, 1920), DRAWS, ((240, 600), TO_THE_END, (240, 1200)), True),
    Scene("kaleidoscope", (8040, 2400), "LENTEKRIEBELS", (240, 3480)),
    Scene("stars", (8040, 3120), "STERRENPRACHT", (120, 2040), MOVES, ((120, 600), (120, 1320))),
    Scene("flower", (8040, 3840), "ZOMERVREUGDE", (240, 2040), DRAWS, ((240, 600),)),
    Scene("fireworks", (8040, 4560), "FEESTELIJK VUURWERK", (240, 1680), MOVES, ((240, 960),)),
    Scene("worms", (8040, 5280), "WRIEMELENDE REGENWORMEN", (8040, 2040)),
    Scene("wheel", (8040, 6000), "WINDMOLENTJE ( of is het een FIETSWIEL ? )", (240, 5280), MOVES,
          ((240, 4080), TO_THE_START, (240, 480)), True),
    Scene("lightning", (8040, 6720), "BLIKSEMSCHICHTEN", (120, 120)),
)


def waited(process):
    """Nanoseconds that the threads of a process were ready to run and others had the processors."""
    return sum(int(task.joinpath("schedstat").read_text().split()[1])
               for task in pathlib.Path(f"/proc/{process.pid}/task").iterdir())


def share(process, seconds):
    """Percent of a core."""
    before, begun = worked(process), time.perf_counter()
    time.sleep(seconds)
    return (worked(process) - before) / 1e7 / (time.perf_counter() - begun)


class Child:
    """One that knows where the buttons are."""

    def __init__(self, program, factor):
        self.screen, self.factor = Screen(SIZE), float(factor or FACTOR)
        del self.screen.env["QT_SCALE_FACTOR"]
        if factor:
            self.screen.env["QT_SCALE_FACTOR"] = factor
        self.watched = Watched(self.screen)
        self.process = self.screen.start(program, [], self.screen.folder / "program.log")
        self.corner = self.window(MENU)

    def window(self, title):
        """The corner of the maximised window with this title."""
        def look():
            for window in self.screen.windows(title, self.process.pid):
                place = self.screen.geometry(window)
                if place and place[2] > SIZE[0] / 2:
                    return place[:2]
            return None
        return until(look, title)

    def spot(self, place):
        """A little inside of a control."""
        return tuple(round(corner + (twips / 15 + inside) * self.factor) for corner, twips, inside in zip(self.corner, place, (9, 9)))

    def press(self, place):
        self.screen.click(*self.spot(place))

    def open(self, scene):
        until(self.menu_shows, "menu")
        self.press(scene.place)
        self.window(scene.title)
        self.screen.move(SIZE[0] // 2, SIZE[1] - 5)

    def menu_shows(self):
        return all(self.watched.pixel(*self.spot(place)) == colour for place, colour in (YELLOW, GREEN))

    def hurry(self, scene):
        for step in scene.faster:
            self.screen.key(step) if step in (TO_THE_START, TO_THE_END) else self.press(step)
        self.screen.move(SIZE[0] // 2, SIZE[1] - 5)

    def leave(self, scene):
        """Seconds from the click on the button that leaves until the menu shows."""
        self.screen.move(*self.spot(scene.leave))
        waiting, begun = waited(self.process), time.perf_counter()
        click = self.screen.click_soon()
        while not self.menu_shows():
            if time.perf_counter() - begun > 20:
                raise SystemExit(f"{scene.name} cannot be left")
            time.sleep(0.0005)
        answered = time.perf_counter() - begun - (waited(self.process) - waiting) / 1e9
        click.wait()
        return answered


def main(program, seconds=SECONDS, factor=None):
    child = Child(program, factor)
    good = True

    def tell(what, value, bar, unit):
        nonlocal good
        good &= value <= bar
        print(f"{what:28} {value:7.1f}  at most {bar:5.1f} {unit}{'' if value <= bar else '  MISSED'}", flush=True)

    print(f"{SIZE[0]} by {SIZE[1]}, factor {child.factor}, {float(seconds):g} s each")
    try:
        child.press(FANTASY)
        for scene in SCENES:
            child.open(scene)
            if scene.rests:
                time.sleep(1)  # it has come up
                resting = share(child.process, float(seconds) / 2)
                tell(f"{scene.name}, at rest", resting, RESTS, "% of a core")
            opened = time.perf_counter()
            child.hurry(scene)
            moving = share(child.process, float(seconds))
            if scene.rests and moving < resting + STIRS:
                raise SystemExit(f"{scene.name} stands still")
            tell(scene.name, moving, scene.bar, "% of a core")
            if scene.name == "worms":
                time.sleep(max(0.0, LEAVES_LATE - (time.perf_counter() - opened)))
            tell(f"{scene.name}, left in", 1000 * child.leave(scene), 1000 * ANSWER, "ms")
    finally:
        child.watched.close()
        child.screen.close()
    sys.exit(not good)


if __name__ == "__main__":
    main(*sys.argv[1:])
