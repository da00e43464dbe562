"""What the tests of the large studio share: its panels, its colours on the screen, and pictures as sets of pixels."""
import cases
import driver
import kraspret
from kraspret import SHEET, WHITE

LINES, ERASER, RULERS = "het menu LIJNEN", "het menu GOMMEN", "het menu LINEALEN"
FILLS, STAMPS = "het menu OPVULLEN", "het menu BORSTELSTREKEN"
RUBBER = "gommetje om foutjes te verbeteren"
THICKNESS, RUBBER_THICKNESS = "de dikte van de lijn veranderen", "de dikte van het gommetje regelen"
UNDO, REDO = kraspret.UNDO, "ONGEDAAN maken tenietdoen"  # the redo button; the help button says the same, but comes later
BACKGROUND = "de kleur van de achtergrond kiezen uit kleurenpalet"
WIPE, NEW = "het hele blad wissen", "een NIEUWE tekening"
RESIZE = "het formaat van het tekenblad wijzigen"
QUESTION = "Nieuwe tekening met aangepast formaat"
WIDTH, HEIGHT = "Afmetingen van de tekening : breedte wijzigen", "Afmetingen van de tekening : hoogte wijzigen"
CUT, COPY, PASTE = "Knippen", "Kopiëren", "Plakken"
PALETTE = "het KLEURENPALET"
RED, GREEN, BLUE, YELLOW = (255, 0, 0), (0, 255, 0), (0, 0, 255), (255, 255, 0)


def span(x0, x1, y):
    """The pixels of a row, both ends included."""
    return {(x, y) for x in range(x0, x1 + 1)}


def block(x0, y0, x1, y1):
    """The pixels of a rectangle, both corners included."""
    return {(x, y) for x in range(x0, x1 + 1) for y in range(y0, y1 + 1)}


def frame(x0, y0, x1, y1):
    """The outline of a rectangle, both corners included."""
    return block(x0, y0, x1, y1) - block(x0 + 1, y0 + 1, x1 - 1, y1 - 1)


def of_colour(picture, colour):
    """The positions of every pixel that has this colour."""
    wanted = bytes(colour)
    return {(x, y) for y, row in enumerate(picture.rows) if wanted in row
            for x in range(picture.width) if row[3 * x:3 * x + 3] == wanted}


class Studio(cases.StudioCase):
    """A test on an empty sheet of the large studio."""

    number = 0

    def click(self, name):
        self.program.control(name).click()

    def dot(self, x, y):
        """Clicks on the sheet."""
        self.desktop.click(*self.sheet.at(x, y))

    def stroke(self, *points, steps=1):
        """Draws on the sheet: the pointer jumps from point to point, so that every movement is known."""
        self.desktop.drag(*(self.sheet.at(*p) for p in points), steps=steps)

    def box(self, x0, y0, x1, y1, colour=None, tool="filled box"):
        """Draws a rectangle, in black or in the palette's colour nearest to the given one; gives the colour."""
        self.program.choose(tool)
        painted = self.program.pick(colour) if colour else kraspret.BLACK
        self.stroke((x0, y0), (x1, y1))
        return painted

    def saved(self, size=SHEET):
        """The picture as a file."""
        Studio.number += 1
        picture = self.program.save(self.path(f"{Studio.number}.bmp"))
        self.assertEqual((picture.width, picture.height), size)
        return picture

    def painted(self):
        """What is not white in the saved picture, as a dictionary from position to colour."""
        picture = self.saved()
        return {at: picture.at(*at) for at in picture.others(WHITE)}

    def swatch(self):
        """The drawing colour as it shows beside the palette."""
        left, top, width, _ = self.program.control(PALETTE).rectangle
        return self.desktop.screen().at(left + width + 19, top + 40)

    def wait_swatch(self, colour):
        driver.until(lambda: self.swatch() == colour, lambda: f"swatch of {colour}, it is {self.swatch()}")

    def redo_button(self):
        return next(c for c in self.program.controls() if c.name == REDO)

    def wait_enabled(self, control, wanted, what):
        driver.until(lambda: control.enabled == wanted, f"{what} to be {'on' if wanted else 'off'}")

    def slide(self, name, value):
        """Moves a slider by keyboard."""
        slider = self.program.control(name)
        slider.click()
        self.program.wait_focus(slider)
        self.desktop.key("Home")
        lowest = int(driver.until(lambda: slider.value, "value of the slider"))
        self.desktop.key(*["Right"] * (value - lowest))
        driver.until(lambda: int(slider.value) == value, lambda: f"{value} on {name!r}, it stands at {slider.value}")

    def choose_style(self, name):
        """Picks a line style from the drop-down list, with the pointer."""
        def combo():
            return next((c for c in self.program.controls() if c.role == "combo box"), None)
        driver.until(combo, "list of styles").click()
        self.program.control(name, role="list item").click()
        driver.until(lambda: combo() and not combo().has("EXPANDED"), f"end of the choice of {name!r}")

    def mix(self, row, column):
        """Picks one of the ready-made colours in the open colour dialog, by keyboard; gives it."""
        self.program.wait_dialog("Kleur")
        self.desktop.key(*["Up"] * 5, *["Left"] * 7, *["Down"] * row, *["Right"] * column, "space")
        self.desktop.key("Return")
        self.program.wait_no_dialog()
        number = 6 * column + row  # four steps of green, each of four of red, each of three of blue
        return number // 3 % 4 * 85, number // 12 * 85, number % 3 * 255 // 2

    def answer(self, title, text):
        """Answers a question for a number; None cancels it. Gives what stood in the field."""
        self.program.wait_dialog(title)
        field = driver.until(lambda: next((c for c in self.program.controls() if c.role == "text" and c.has("FOCUSED")), None),
                             "field with the focus")
        offered = field.text
        if text is None:
            self.desktop.key("Escape")
        else:
            self.desktop.key("ctrl+a", "Delete")
            self.desktop.type(text)
            driver.until(lambda: field.text == text, f"{text!r} in the field")
            self.desktop.key("Return")
        driver.until(lambda: not self.program.shows(title), f"end of {title!r}")
        return offered

    def resize(self, width, height):
        """Goes through the questions for another size; gives the two numbers that were offered."""
        self.click(RESIZE)
        self.program.answer(QUESTION, "Nee")
        offered = self.answer(WIDTH, width), self.answer(HEIGHT, height)
        self.program.wait_no_dialog()
        self.program.wait_says("wijzig hiermee het FORMAAT van je tekenBLAD")
        return offered
