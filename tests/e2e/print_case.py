"""What the tests of printing share: the dialog's buttons and its own file, a drawing, and a measure."""
import driver
import pdf
import studio
from studio import Studio

PRINT = "je tekening AFDRUKKEN"
SAYS = "je tekening AFDRUKKEN (als er een printer is)"
CENTIMETRES_PER_PIXEL = 2.54 / 96
NEAR = 0.02  # centimetres


class Prints:
    """For a test with a `program` on a `desktop`, in any studio."""

    def control_of_dialog(self, name):
        return driver.until(lambda: next((c for c in self.program.controls(self.program.dialog())
                                          if c.role == "push button" and driver.plain_name(c.name) == name), None), f"button {name}")

    def print_to(self, path):
        """Prints into a file by the dialog's own choice of one; gives the page."""
        self.program.control(PRINT).click()
        self.program.wait_dialog("Afdrukken")
        field = driver.until(lambda: next((c for c in self.program.controls(self.program.dialog()) if c.role == "text" and c.enabled), None),
                             "field for the name of the file")
        left, top, width, height = field.rectangle
        self.desktop.click(left + width // 3, top + height // 2)
        self.program.wait_focus(field)
        self.desktop.key("ctrl+a")
        self.desktop.type(str(path))
        driver.until(lambda: field.text == str(path), lambda: f"{path} in the field, it holds {field.text!r}")
        self.control_of_dialog("Afdrukken").click()
        self.program.wait_no_dialog()
        driver.until(lambda: path.exists() and path.read_bytes().rstrip().endswith(b"%%EOF"), "page in the file")
        return pdf.Page(path)

    def near(self, measured, wanted, what):
        for is_, should in zip(measured, wanted):
            self.assertAlmostEqual(is_, should, delta=NEAR, msg=f"{what}: {measured}, should be {wanted}")

    def natural(self, page, size):
        """The whole picture, as large as on the screen, two centimetres from the left and the top of a sheet of A4."""
        self.near((page.width, page.height), (21.0, 29.7), "paper")
        self.near(page.box, (2, 2, *(side * CENTIMETRES_PER_PIXEL for side in size)), "picture")
        self.assertEqual((page.picture.width, page.picture.height), size)


class PrintCase(Prints, Studio):
    def draw(self):
        self.box(30, 40, 200, 300, studio.RED)
        self.program.choose("pencil")
        self.stroke((5, 5), (400, 333), (610, 20))
