"""The ways of KrasPret for the tests and the tour: from screen to screen, tools, colours, saving, answers."""
import os
import pathlib

import driver
import pixels
from pixels import BLACK, WHITE  # the tests take them from here, too

BUILT = pathlib.Path(__file__).resolve().parents[2] / "build/release/kraspret/kraspret"
MENU = "KRAS PRET"
STUDIO = "KRAS PRET - TEKENEN GROOT"
QUIT_QUESTION = "Spijtig - berichtje"
OVERWRITE_QUESTION = "Bestand opslaan als ..."
SHEET = (617, 537)
TOOLS = {
    "pencil": "je tekenpotlood",
    "line": "een rechte lijn trekken",
    "box": "een gewone rechthoek tekenen",
    "filled box": "een GEVULDE rechthoek",
    "circle": "een gewone cirkel",
    "filled circle": "een GEVULDE cirkel",
    "ellipse": "een gewone ellips",
    "filled ellipse": "een GEVULDE ellips",
    "fill": "opvullen van een gesloten oppervlak",
    "dropper": "het kleurenpipetje om kleuren uit afbeeldingen te gebruiken",
    "spray": "een spuitbus om mee te tekenen",
    "art line": "kunstlijnen trekken",
}
UNDO = "de LAATSTE lijn of vorm ONGEDAAN maken"
REDO = "ONGEDAAN maken tenietdoen"
SAVE = "een tekening OPSLAAN ALS ..."
OPEN = "een tekening uit een bestand ophalen"
OPEN_QUESTION = "Opslaan"
RADIUS = "INSTELLEN van de diameter van de cirkel"
DIALOGS = ("dialog", "file chooser", "alert")


class KrasPret(driver.Program):
    """One run of the program, with its screens."""

    # From screen to screen

    def wait_intro(self):
        return self.control("Versie 1.0")

    def wait_menu(self):
        """The window of the menu, once its buttons are there."""
        self.control("Stoppen")  # the intro's window has the same title
        return self.wait_window(MENU)

    def name_field(self):
        return driver.until(lambda: next((c for c in self.controls() if c.role == "text" and c.enabled), None), "name field")

    def wait_thanks(self, name):
        """The farewell, with this name in it."""
        self.control("Bedankt,")
        driver.until(lambda: any(c.text == name for c in self.controls() if c.role == "text"), f"thanks to {name!r}")

    def wait_focus(self, control):
        driver.until(lambda: control.has("FOCUSED"), f"focus on {control.name!r}")

    def give_name(self, name):
        """Types a name as a child would: the field has the focus already."""
        field = self.name_field()
        self.wait_focus(field)
        self.desktop.type(name)
        driver.until(lambda: field.text == name, lambda: f"name {name!r} in the field, it holds {field.text!r}")

    def open_studio(self):
        """The sheet of the large studio, opened from the menu."""
        self.control("Tekenen Groot").click()
        self.wait_window(STUDIO)
        return self.sheet()

    def sheet(self):
        return self.control("tekenblad")

    def leave_studio(self):
        self.control("Einde").click()
        self.wait_gone(STUDIO)
        return self.wait_menu()

    def to_studio(self):
        self.wait_menu()
        self.open_studio()
        return self

    # In the studio

    def choose(self, tool):
        self.control(TOOLS[tool]).click()

    def pick(self, wanted):
        """Picks the colour of the palette that is nearest to the wanted one, and gives it."""
        palette = self.control("het KLEURENPALET")
        left, top, width, height = palette.rectangle
        picture = self.desktop.screen().crop(left, top, width, height)
        x, y, colour = min(picture.pixels(), key=lambda p: sum((a - b) ** 2 for a, b in zip(p[2], wanted)))
        self.desktop.click(left + x, top + y)
        return colour

    def wait_says(self, text):
        self.control(text)

    def set_radius(self, radius):
        """Moves the radius slider by keyboard."""
        slider = self.control(RADIUS)
        slider.click()
        self.wait_focus(slider)
        for _ in range(400):
            value = int(slider.value)
            if value == radius:
                return
            self.desktop.key(*(["Right" if value < radius else "Left"] * min(20, abs(radius - value))))
            driver.until(lambda: int(slider.value) != value, "movement of the slider")
        raise driver.NotSeen(f"radius {radius}, the slider stands at {slider.value}")

    def sheet_on_screen(self):
        """The sheet as it shows."""
        left, top, width, height = self.sheet().rectangle
        return self.desktop.screen().crop(left, top, width, height)

    def wait_pixel(self, x, y, colour):
        """Waits until a pixel of the sheet shows a colour."""
        driver.until(lambda: self.sheet_on_screen().at(x, y) == colour,
                     lambda: f"{colour} at ({x}, {y}) of the sheet, it is {self.sheet_on_screen().at(x, y)}")

    # Dialogs

    def dialog(self):
        """The dialog that is open, or None."""
        return next((c for c in self.controls() if c.role in DIALOGS), None)

    def wait_dialog(self, title=None):
        """The open dialog, once it has the keyboard: a key that comes sooner goes to the window behind it."""
        def look():
            found = self.dialog()
            return found if found and title in (None, found.name) and found.has("ACTIVE") else None
        return driver.until(look, f"dialog {title or ''}")

    def wait_no_dialog(self):
        driver.until(lambda: self.dialog() is None, "end of the dialog")

    def answer(self, question, button):
        """Clicks a button of a message box with this title; gives the text that the box showed."""
        box = self.wait_dialog(question)
        text = driver.until(lambda: "\n".join(c.name for c in self.controls(box) if c.role == "label") or None, "text in the box")
        self.control(button, role="push button").click()
        driver.until(lambda: not self.shows(question), f"end of the question {question!r}")
        return text

    def answer_file_dialog(self, path):
        """Types a file name into the open file dialog, or cancels it when there is none."""
        self.wait_dialog()
        field = driver.until(lambda: next((c for c in self.controls() if c.role == "text" and c.has("FOCUSED")), None),
                             "file name field with the focus")
        if path is None:
            self.desktop.key("Escape")
        else:
            self.desktop.key("ctrl+a")
            self.desktop.type(str(path))
            driver.until(lambda: field.text == str(path), lambda: f"{path} in the field, it holds {field.text!r}")
            self.desktop.key("Return")

    def save(self, path):
        """Saves under a new name and gives the picture in the file."""
        self.control(SAVE).click()
        self.answer_file_dialog(path)
        driver.until(lambda: os.path.exists(path), f"file {path}")
        self.wait_no_dialog()
        return pixels.read_bmp(path)

    def quit(self, answer="Ja"):
        self.control("Stoppen").click()
        return self.answer(QUIT_QUESTION, answer)


def start(desktop, *arguments):
    """Starts the program that the environment names, or else the release build."""
    return KrasPret(desktop, os.environ.get("KRASPRET_PROGRAM", BUILT), *arguments)
