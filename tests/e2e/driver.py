"""A child made of software: a virtual screen of its own with a window manager, the program on it, a real pointer and keyboard,
and eyes that find controls by their accessible names. Nothing here sleeps for a fixed time to let something happen: every wait
looks for what it waits for and has a deadline."""
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
LAUNCHERS = ("/usr/libexec/at-spi-bus-launcher", "/usr/lib/at-spi2-core/at-spi-bus-launcher")


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


def plain_name(text):
    """A name as the accessibility layer gives it: no mnemonic, runs of blanks as one."""
    return " ".join(text.replace("&", "").split())


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


class Control:
    """A control as the program tells it to a screen reader."""

    def __init__(self, desktop, node):
        self.desktop, self.node = desktop, node

    @property
    def name(self):
        return self.node.get_name()

    @property
    def role(self):
        return self.node.get_role_name()

    @property
    def text(self):
        """The contents of a text field."""
        return self.desktop.atspi.Text.get_text(self.node, 0, -1)

    @property
    def value(self):
        return self.desktop.atspi.Value.get_current_value(self.node)

    @property
    def rectangle(self):
        """(left, top, width, height) on the screen."""
        atspi = self.desktop.atspi
        box = atspi.Component.get_extents(self.node, atspi.CoordType.SCREEN)
        return box.x, box.y, box.width, box.height

    @property
    def middle(self):
        left, top, width, height = self.rectangle
        return left + width // 2, top + height // 2

    def has(self, state):
        """True in a state such as "ENABLED", "FOCUSED", "SHOWING"."""
        return self.node.get_state_set().contains(getattr(self.desktop.atspi.StateType, state))

    @property
    def enabled(self):
        return self.has("ENABLED")

    def at(self, x, y):
        """A place inside the control, on the screen."""
        left, top, _, _ = self.rectangle
        return left + x, top + y

    def click(self):
        self.desktop.click(*self.middle)

    def drag(self, *points, button=1):
        """Draws through the points, which lie inside the control."""
        self.desktop.drag(*(self.at(*p) for p in points), button=button)


class Desktop:
    """The virtual screen. One for each test program: the accessibility layer knows one bus in a process."""

    def __init__(self):
        self.helpers, self.programs = [], []
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="kraspret-e2e-"))
        atexit.register(self.close)
        (self.folder / "home").mkdir()
        (self.folder / "run").mkdir(mode=0o700)
        self.env = {name: value for name, value in os.environ.items()
                    if not name.startswith(("QT_", "XDG_", "DBUS_", "AT_SPI", "WAYLAND", "GTK_"))}
        self.env.update(HOME=str(self.folder / "home"), XDG_RUNTIME_DIR=str(self.folder / "run"), LC_ALL="C.UTF-8",
                        XDG_CONFIG_HOME=str(self.folder / "home/.config"), XDG_DATA_HOME=str(self.folder / "home/.local"),
                        XDG_CACHE_HOME=str(self.folder / "home/.cache"), QT_QPA_PLATFORM="xcb",
                        QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", XCURSOR_SIZE="16")
        self._start_screen()
        self._start_accessibility()

    # The helpers

    def _helper(self, command, **options):
        log = open(self.folder / f"{pathlib.Path(command[0]).name}.log", "ab")
        process = subprocess.Popen(command, env=self.env, stdin=subprocess.DEVNULL, preexec_fn=die_with_parent, stderr=log,
                                   **{"stdout": log, **options})
        log.close()
        self.helpers.append(process)
        return process

    @staticmethod
    def _first_line(stream, what):
        if not select.select([stream], [], [], PATIENCE)[0]:
            raise NotSeen(f"{what} says nothing")
        line = stream.readline().decode().strip()
        if not line:
            raise NotSeen(f"{what} ended at once")
        return line

    def _start_screen(self):
        reading, writing = os.pipe()
        self._helper(["Xvfb", "-displayfd", str(writing), "-screen", "0", f"{SCREEN[0]}x{SCREEN[1]}x24", "-fbdir", str(self.folder),
                      "-nolisten", "tcp", "-noreset"], pass_fds=[writing])
        os.close(writing)
        with os.fdopen(reading, "rb") as stream:
            self.env["DISPLAY"] = ":" + self._first_line(stream, "Xvfb")
        self.framebuffer = self.folder / "Xvfb_screen0"
        self._helper(["openbox", "--sm-disable"])
        until(self._managed, "window manager")

    def _managed(self):
        return subprocess.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], env=self.env, stdout=subprocess.PIPE, check=False,
                              stderr=subprocess.DEVNULL).stdout.decode().find("window id") > 0

    def _start_accessibility(self):
        bus = self._helper(["dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address=1"], stdout=subprocess.PIPE)
        self.env["DBUS_SESSION_BUS_ADDRESS"] = self._first_line(bus.stdout, "dbus-daemon")
        launcher = next((path for path in LAUNCHERS if os.path.exists(path)), None)
        if not launcher:
            raise NotSeen("at-spi-bus-launcher is not installed")
        self._helper([launcher, "--launch-immediately"])
        os.environ.update({name: self.env[name] for name in ("DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "XDG_RUNTIME_DIR")})
        import gi  # not before the bus stands: it connects as it is imported
        gi.require_version("Atspi", "2.0")
        from gi.repository import Atspi
        self.atspi = Atspi
        Atspi.init()
        Atspi.set_timeout(3000, 3000)
        self.tree = Atspi.get_desktop(0)
        self.tree.set_cache_mask(0)

    def close(self):
        """Ends everything that was started here, the latest first."""
        atexit.unregister(self.close)
        for program in self.programs:
            stop(program.process)
        for process in reversed(self.helpers):
            stop(process)
            if process.stdout:
                process.stdout.close()
        shutil.rmtree(self.folder, ignore_errors=True)

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

    def drag(self, *points, button=1, steps=6):
        """Presses at the first point, goes through the others in a few steps each, and lets go at the last."""
        words = ["mousemove", *points[0], "sleep", PAUSE, "mousedown", button, "sleep", PAUSE]
        for (x0, y0), (x1, y1) in zip(points, points[1:]):
            for step in range(1, steps + 1):
                words += ["mousemove", round(x0 + (x1 - x0) * step / steps), round(y0 + (y1 - y0) * step / steps), "sleep", PAUSE]
        self._xdotool(*words, "mouseup", button, "sleep", PAUSE)

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

    def close_window(self, window):
        """Closes a window as its close box does, by the window manager's own key."""
        self._xdotool("windowactivate", "--sync", window, "key", "--clearmodifiers", "alt+F4")


class Program:
    """One run of the program."""

    def __init__(self, desktop, program, *arguments):
        self.desktop = desktop
        self.log = desktop.folder / f"program-{len(desktop.programs)}.log"
        with open(self.log, "wb") as log:
            self.process = subprocess.Popen([str(program), *map(str, arguments)], env=desktop.env, stdin=subprocess.DEVNULL,
                                            cwd=desktop.folder, stdout=log, stderr=log, preexec_fn=die_with_parent)
        self.started = time.monotonic()
        desktop.programs.append(self)

    def output(self):
        return self.log.read_text(errors="replace")

    def _alive(self):
        if self.process.poll() is not None:
            raise NotSeen(f"the program ended with status {self.process.returncode}:\n{self.output()}")
        return True

    def shows(self, title):
        """True while a window with this title can be seen."""
        return self.process.poll() is None and bool(self.desktop.windows(title, self.process.pid))

    def wait_window(self, title, seconds=PATIENCE):
        """The id of the window with this title, once it can be seen."""
        def look():
            self._alive()
            found = self.desktop.windows(title, self.process.pid)
            return found[0] if found else None
        return until(look, f"window with the title {title!r}", seconds)

    def wait_gone(self, title, seconds=PATIENCE):
        until(lambda: self._alive() and not self.shows(title), f"end of the window {title!r}", seconds)

    def wait_exit(self, seconds=PATIENCE):
        """The exit status."""
        try:
            return self.process.wait(seconds)
        except subprocess.TimeoutExpired:
            raise NotSeen(f"after {seconds:g} s: the program still runs") from None

    # Controls

    def _application(self):
        tree = self.desktop.tree
        for index in range(tree.get_child_count()):
            application = tree.get_child_at_index(index)
            if application and application.get_process_id() == self.process.pid:
                application.set_cache_mask(0)
                return application
        return None

    def _walk(self, node):
        showing = self.desktop.atspi.StateType.SHOWING
        for index in range(node.get_child_count()):
            child = node.get_child_at_index(index)
            if child and child.get_state_set().contains(showing):
                yield child
                yield from self._walk(child)

    def controls(self):
        """Everything that shows, in all windows, in tree order. Empty when the program is just changing its windows."""
        from gi.repository import GLib
        try:
            application = self._application()
            return [Control(self.desktop, node) for node in self._walk(application)] if application else []
        except GLib.Error:
            return []

    def find(self, name, role=None):
        """The showing control of this name, or None."""
        wanted = plain_name(name)
        from gi.repository import GLib
        for control in self.controls():
            try:
                if plain_name(control.name or "") == wanted and role in (None, control.role):
                    return control
            except GLib.Error:
                pass
        return None

    def control(self, name, role=None, seconds=PATIENCE):
        """The showing control of this name, once it is there."""
        return until(lambda: self._alive() and self.find(name, role), lambda: f"control {name!r} among {self._names()}", seconds)

    def _names(self):
        return [(c.role, c.name) for c in self.controls()]
