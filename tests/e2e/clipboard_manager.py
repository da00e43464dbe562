"""A desktop's clipboard manager, as small as can be: it takes over a picture from a program that ends, and hands it out.
Prints a line when it stands."""
import sys

from Xlib import X, Xatom, display
from Xlib.protocol import event


class Manager:
    KIND = "image/png"

    def __init__(self):
        self.display = display.Display()
        self.window = self.display.screen().root.create_window(0, 0, 1, 1, 0, X.CopyFromParent)
        self.kept = None
        self.waiting = None  # the request of the program that ends
        self.window.set_selection_owner(self.atom("CLIPBOARD_MANAGER"), X.CurrentTime)
        self.display.sync()
        print("ready", flush=True)

    def atom(self, name):
        return self.display.intern_atom(name)

    def answer(self, request, done=True):
        request.requestor.send_event(event.SelectionNotify(
            time=request.time, requestor=request.requestor, selection=request.selection, target=request.target,
            property=request.property if done else X.NONE))
        self.display.flush()

    def requested(self, request):
        target = request.target
        if target == self.atom("SAVE_TARGETS"):
            self.waiting = request
            self.window.convert_selection(self.atom("CLIPBOARD"), self.atom(self.KIND), self.atom("KEPT"), X.CurrentTime)
            self.display.flush()
        elif target == self.atom("TARGETS"):
            offered = [self.atom(name) for name in ("TARGETS", self.KIND)]
            request.requestor.change_property(request.property, Xatom.ATOM, 32, offered)
            self.answer(request)
        elif target == self.atom(self.KIND) and self.kept:
            request.requestor.change_property(request.property, target, 8, self.kept)
            self.answer(request)
        else:
            self.answer(request, done=False)

    def received(self, notice):
        if notice.property:
            self.kept = self.window.get_full_property(self.atom("KEPT"), X.AnyPropertyType).value
            self.window.set_selection_owner(self.atom("CLIPBOARD"), X.CurrentTime)
        if self.waiting:
            self.answer(self.waiting)
            self.waiting = None

    def run(self):
        while True:
            happened = self.display.next_event()
            if happened.type == X.SelectionRequest:
                self.requested(happened)
            elif happened.type == X.SelectionNotify:
                self.received(happened)


if __name__ == "__main__":
    sys.exit(Manager().run())
