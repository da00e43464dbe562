"""A child made of software: before a screen of its own, with eyes that find controls by their accessible names."""
import os

import screen
from screen import PATIENCE, SCREEN, NotSeen, Screen, stop  # the tests take them from here, too

LAUNCHERS = ("/usr/libexec/at-spi-bus-launcher", "/usr/lib/at-spi2-core/at-spi-bus-launcher")


def until(look, what, seconds=PATIENCE):
    """Looks again and again, as the screen's own; a program that is too busy to answer now is asked once more."""
    from gi.repository import GLib  # not before a desktop stands

    def answered():
        try:
            return look()
        except GLib.Error:
            return None
    return screen.until(answered, what, seconds)


def plain_name(text):
    """A name as the accessibility layer gives it: no mnemonic, runs of blanks as one."""
    return " ".join(text.replace("&", "").split())


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

    def drag(self, *points, button=1, steps=6):
        """Draws through the points, which lie inside the control."""
        self.desktop.drag(*(self.at(*p) for p in points), button=button, steps=steps)


class Desktop(Screen):
    """A screen with a screen reader's view of it. One for each test program: the accessibility layer knows one bus in a process."""

    def __init__(self, size=SCREEN):
        super().__init__(size)
        self.env["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        self._start_accessibility()

    def _start_accessibility(self):
        bus = self.helper(["dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address=1"], heard=True)
        self.env["DBUS_SESSION_BUS_ADDRESS"] = self.first_line(bus.stdout, "dbus-daemon")
        launcher = next((path for path in LAUNCHERS if os.path.exists(path)), None)
        if not launcher:
            raise NotSeen("at-spi-bus-launcher is not installed")
        self.helper([launcher, "--launch-immediately"])
        os.environ.update({name: self.env[name] for name in ("DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "XDG_RUNTIME_DIR")})
        import gi  # not before the bus stands: it connects as it is imported
        gi.require_version("Atspi", "2.0")
        from gi.repository import Atspi
        self.atspi = Atspi
        Atspi.init()
        Atspi.set_timeout(3000, 3000)
        self.tree = Atspi.get_desktop(0)
        self.tree.set_cache_mask(0)


class Program:
    """One run of the program."""

    def __init__(self, desktop, program, *arguments):
        self.desktop = desktop
        self.log = desktop.folder / f"program-{len(desktop.programs)}.log"
        self.process = desktop.start(program, arguments, self.log)

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
        until(lambda: self.process.poll() is not None, "end of the program", seconds)
        return self.process.returncode

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

    def controls(self, within=None):
        """Everything that shows, in all windows or within one control, in tree order. Empty when the program is just changing its
        windows."""
        from gi.repository import GLib
        try:
            root = within.node if within else self._application()
            return [Control(self.desktop, node) for node in self._walk(root)] if root else []
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
