"""A virtual screen of its own with a window manager, a pointer and a keyboard. Nothing here sleeps for a fixed time to let
something happen: every wait looks for what it waits for and has a deadline."""
import atexit
import ctypes
import os
import pathlib
import re
import select
import shutil
import signal
import subprocess
import tempfile
import time

import pixels

PATIENCE = 20.0  # seconds that anything may take on a slow, busy machine
GLANCE = 0.05    # seconds between two looks
PAUSE = 0.02     # seconds between two movements of the pointer, so that none is merged with the next
SCREEN = (1280, 1024)


class NotSeen(AssertionError):
    """What was waited for did not come."""


def until(look, what, seconds=PATIENCE):
    """Looks again and again; gives the first result that is neither None nor False."""
    end = time.monotonic() + seconds
    while True:
        result = look()
        if result is not None and result is not False:
            return result
        if time.monotonic() > end:
            raise NotSeen(f"after {seconds:g} s: no {what() if callable(what) else what}")
        time.sleep(GLANCE)


def die_with_parent():
    ctypes.CDLL(None).prctl(1, signal.SIGTERM)  # PR_SET_PDEATHSIG: no helper outlives the tests


def stop(process):
    """Ends one process, by its id, and waits for it."""
    if process.poll() is None:
        process.terminate()
        try:
            process.wait(5)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait()


class Screen:
    """The virtual screen and the folders of whoever sits before it; all of it goes with close()."""

    def __init__(self, size=SCREEN):
        self.size = size
        self.helpers, self.programs = [], []  # processes, in the order of their start
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="kraspret-e2e-"))
        atexit.register(self.close)
        (self.folder / "home").mkdir()
        (self.folder / "run").mkdir(mode=0o700)
        self.env = {name: value for name, value in os.environ.items()
                    if not name.startswith(("QT_", "XDG_", "DBUS_", "AT_SPI", "WAYLAND", "GTK_"))}
        self.env.update(HOME=str(self.folder / "home"), XDG_RUNTIME_DIR=str(self.folder / "run"), LC_ALL="C.UTF-8",
                        XDG_CONFIG_HOME=str(self.folder / "home/.config"), XDG_DATA_HOME=str(self.folder / "home/.local"),
                        XDG_CACHE_HOME=str(self.folder / "home/.cache"), QT_QPA_PLATFORM="xcb",
                        XCURSOR_SIZE="16", QT_SCALE_FACTOR="1")  # a test that is not about the factor sees logical pixels
        self._start_screen()

    # The helpers

    def helper(self, command, heard=False, **options):
        """Starts something that the screen needs; `heard` if its output is to be read here."""
        with open(self.folder / f"{pathlib.Path(command[0]).name}.log", "ab") as log:
            process = subprocess.Popen(command, env=self.env, stdin=subprocess.DEVNULL, stderr=log, preexec_fn=die_with_parent,
                                       stdout=subprocess.PIPE if heard else log, **options)
        self.helpers.append(process)
        return process

    @staticmethod
    def first_line(stream, what):
        if not select.select([stream], [], [], PATIENCE)[0]:
            raise NotSeen(f"{what} says nothing")
        line = stream.readline().decode().strip()
        if not line:
            raise NotSeen(f"{what} ended at once")
        return line

    def _start_screen(self):
        reading, writing = os.pipe()
        self.helper(["Xvfb", "-displayfd", str(writing), "-screen", "0", f"{self.size[0]}x{self.size[1]}x24", "-fbdir", str(self.folder),
                      "-nolisten", "tcp", "-noreset"], pass_fds=[writing])
        os.close(writing)
        with os.fdopen(reading, "rb") as stream:
            self.env["DISPLAY"] = ":" + self.first_line(stream, "Xvfb")
        self.framebuffer = self.folder / "Xvfb_screen0"
        # A keyboard with accents of its own: xdotool lends a key to any letter that has none, and takes it back too soon for a
        # busy program.
        subprocess.run(["setxkbmap", "be"], env=self.env, check=True)
        self.helper(["openbox", "--sm-disable"])
        until(self._managed, "window manager")

    def _managed(self):
        return subprocess.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], env=self.env, stdout=subprocess.PIPE, check=False,
                              stderr=subprocess.DEVNULL).stdout.decode().find("window id") > 0

    def close(self):
        """Ends everything that was started here, the latest first."""
        atexit.unregister(self.close)
        for process in [*self.programs, *reversed(self.helpers)]:
            stop(process)
            if process.stdout:
                process.stdout.close()
        shutil.rmtree(self.folder, ignore_errors=True)

    def start(self, program, arguments, log):
        """Starts a program before this screen; its words go to the file."""
        with open(log, "wb") as words:
            process = subprocess.Popen([os.path.abspath(program), *map(str, arguments)], env=self.env, stdin=subprocess.DEVNULL, stdout=words,
                                       stderr=words, cwd=self.folder, preexec_fn=die_with_parent)
        self.programs.append(process)
        return process

    # The pointer and the keyboard

    def _xdotool(self, *words, check=True):
        run = subprocess.run(["xdotool", *map(str, words)], env=self.env, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                             stderr=subprocess.PIPE, timeout=60, check=False)
        if check and run.returncode:
            raise NotSeen(f"xdotool {' '.join(map(str, words))}: {run.stderr.decode().strip()}")
        return run.stdout.decode()

    def move(self, x, y):
        self._xdotool("mousemove", x, y, "sleep", PAUSE)

    def click(self, x, y, button=1):
        self._xdotool("mousemove", x, y, "sleep", PAUSE, "mousedown", button, "sleep", PAUSE, "mouseup", button, "sleep", PAUSE)

    def click_soon(self, button=1):
        """Clicks where the pointer stands, without any pause, while the caller goes on. Gives the process that does it."""
        return subprocess.Popen(["xdotool", "click", str(button)], env=self.env, stdin=subprocess.DEVNULL)

    def drag(self, *points, button=1, steps=6):
        """Presses at the first point, goes through the others in a few steps each, and lets go at the last."""
        words = ["mousemove", *points[0], "sleep", PAUSE, "mousedown", button, "sleep", PAUSE]
        for (x0, y0), (x1, y1) in zip(points, points[1:]):
            for step in range(1, steps + 1):
                words += ["mousemove", round(x0 + (x1 - x0) * step / steps), round(y0 + (y1 - y0) * step / steps), "sleep", PAUSE]
        self._xdotool(*words, "mouseup", button, "sleep", PAUSE)

    def press(self, x, y, button=1):
        """Goes to a place and holds the button down there."""
        self._xdotool("mousemove", x, y, "sleep", PAUSE, "mousedown", button, "sleep", PAUSE)

    def release(self, button=1):
        self._xdotool("mouseup", button, "sleep", PAUSE)

    def type(self, text):
        self._xdotool("type", "--delay", 20, "--", text)

    def key(self, *names):
        self._xdotool("key", "--delay", 20, *names)

    # The screen

    def screen(self):
        return pixels.read_screen(self.framebuffer)

    def windows(self, title, pid):
        """The ids of a process's visible windows with exactly this title, as the window manager has them."""
        found = self._xdotool("search", "--onlyvisible", "--all", "--pid", pid, "--name", f"^{re.escape(title)}$", check=False)
        return [int(line) for line in found.split()]

    def geometry(self, window):
        """(left, top, width, height) of a window's inside on the screen; None if it has just gone."""
        found = self._xdotool("getwindowgeometry", "--shell", window, check=False)
        place = dict(line.split("=") for line in found.split() if "=" in line)
        return tuple(int(place[name]) for name in ("X", "Y", "WIDTH", "HEIGHT")) if "HEIGHT" in place else None

    def property(self, window, name):
        """What a window's property says, in the words of xprop."""
        return subprocess.run(["xprop", "-id", str(window), name], env=self.env, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              timeout=60, check=False).stdout.decode()

    def wait_icon(self, window, size):
        """Waits until a window has an icon of that many pixels a side."""
        def has_icon():
            shown = subprocess.run(["xprop", "-id", str(window), "_NET_WM_ICON"], env=self.env, stdin=subprocess.DEVNULL,
                                   stdout=subprocess.PIPE, timeout=60, check=False).stdout
            return b"Icon (%d x %d)" % (size, size) in shown
        until(has_icon, f"an icon of {size} pixels")

    def close_window(self, window):
        """Closes a window as its close box does, by the window manager's own key."""
        self._xdotool("windowactivate", "--sync", window, "key", "--clearmodifiers", "alt+F4")
