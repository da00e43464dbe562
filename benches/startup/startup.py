"""What a child waits for and what the machine pays: startup.py KRASPRET EMPTY_WINDOW. Both programs start in turn on the same virtual
screen. A window counts as shown when its pixels are on the screen; a program as idle when it has used no time for a while.
Exit status 1 if a bar is not reached."""
import mmap
import pathlib
import statistics
import struct
import sys
import time

TREE = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(TREE / "tests/e2e"))
from screen import SCREEN, NotSeen, Screen, stop, until  # noqa: E402

ROUNDS = 9
QUIET = 0.25  # seconds without work that make a program idle
MENU, STUDIO = "KRAS PRET", "KRAS PRET - TEKENEN GROOT"
STUDIO_BUTTON = (8280 // 15 + 104, 5760 // 15 + 20)  # inside the menu's window, pixels


class Watched:
    """The screen's pixels as they are at this very moment."""

    def __init__(self, screen):
        self.file = open(screen.framebuffer, "rb")
        self.memory = mmap.mmap(self.file.fileno(), 0, access=mmap.ACCESS_READ)
        head = struct.unpack_from(">20I", self.memory, 0)
        self.start, self.stride = head[0] + 12 * head[19], head[12]

    def pixel(self, x, y):
        at = self.start + y * self.stride + 4 * x
        return self.memory[at:at + 3]

    def close(self):
        self.memory.close()
        self.file.close()


def first_pixels(screen, watched, program):
    """Starts a program; gives it and the seconds until something stands in the middle of the empty screen."""
    x, y = SCREEN[0] // 2 + 40, SCREEN[1] // 2 + 40  # beside the pointer
    empty = watched.pixel(x, y)
    begun = time.perf_counter()
    process = screen.start(program, [], screen.folder / "program.log")
    while watched.pixel(x, y) == empty:
        if time.perf_counter() - begun > 20:
            raise NotSeen(f"{program} shows nothing")
        time.sleep(0.0002)
    return process, time.perf_counter() - begun


def worked(process):
    """Nanoseconds that all threads of a process have run."""
    return sum(int(task.joinpath("schedstat").read_text().split()[0])
               for task in pathlib.Path(f"/proc/{process.pid}/task").iterdir())


def until_idle(process, set_off=None):
    """Waits until a process is idle. Gives the seconds that it was busy, from the first to the last tenth of a millisecond of work;
    with `set_off`, a function that makes it work, only what follows counts."""
    before = worked(process)
    begun = last = time.perf_counter()
    if set_off:
        set_off()
        asked = last
        while worked(process) == before:
            begun = last = time.perf_counter()
            if begun - asked > 20:
                raise NotSeen("work after the click")
    while time.perf_counter() - last < QUIET:
        time.sleep(0.0005)
        now = worked(process)
        if now - before > 100_000:
            last, before = time.perf_counter(), now
    return last - begun


def resident(process):
    """MiB of memory."""
    for line in pathlib.Path(f"/proc/{process.pid}/status").read_text().splitlines():
        if line.startswith("VmRSS:"):
            return int(line.split()[1]) / 1024
    raise NotSeen("VmRSS")


def gone(screen, watched, process):
    stop(process)
    screen.programs.remove(process)
    until(lambda: watched.pixel(SCREEN[0] // 2 + 40, SCREEN[1] // 2 + 40) == b"\0\0\0", "empty screen")


def window(screen, process, title):
    return until(lambda: (screen.windows(title, process.pid) or [None])[0], title)


def session(screen, process):
    """From the intro to the idle studio: memory on the menu, seconds from the click to idle, memory in the studio."""
    menu = None

    def maximised():
        nonlocal menu
        menu = window(screen, process, MENU)
        place = screen.geometry(menu)
        return place and place[2] > 1000 and place
    left, top, _, _ = until(maximised, "menu")
    until_idle(process)
    on_menu = resident(process)
    screen.move(left + STUDIO_BUTTON[0], top + STUDIO_BUTTON[1])
    until_idle(process)
    clicks = []
    seconds = until_idle(process, lambda: clicks.append(screen.click_soon()))
    clicks[0].wait()
    window(screen, process, STUDIO)
    return on_menu, seconds, resident(process)


def main(kraspret, empty_window):
    screen = Screen()
    watched = Watched(screen)
    empty, ours, menu, studio, opened, empty_size = [], [], [], [], [], []
    try:
        screen.move(SCREEN[0] // 2, SCREEN[1] // 2)
        for _ in range(ROUNDS):
            process, seconds = first_pixels(screen, watched, empty_window)
            empty.append(seconds)
            until_idle(process)
            empty_size.append(resident(process))
            gone(screen, watched, process)
            process, seconds = first_pixels(screen, watched, kraspret)
            ours.append(seconds)
            on_menu, to_studio, in_studio = session(screen, process)
            menu.append(on_menu)
            opened.append(to_studio)
            studio.append(in_studio)
            gone(screen, watched, process)
    finally:
        watched.close()
        screen.close()
    base = statistics.median(empty)
    rows = [("start to the first window", statistics.median(ours) / base, 2.0, "times an empty window"),
            ("click to the idle studio", statistics.median(opened) / base, 3.0, "times an empty window"),
            ("memory on the menu", statistics.median(menu), 45.0, "MiB"),
            ("memory in the studio", statistics.median(studio), 65.0, "MiB")]
    print(f"medians of {ROUNDS} runs; an empty window: {1000 * base:.0f} ms, {statistics.median(empty_size):.0f} MiB")
    for what, value, bar, unit in rows:
        print(f"{what:28} {value:8.2f}  at most {bar:5.1f} {unit:24}{'' if value <= bar else '  MISSED'}")
    sys.exit(any(value > bar for _, value, bar, _ in rows))


if __name__ == "__main__":
    main(*sys.argv[1:])
