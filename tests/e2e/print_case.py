"""What the tests of printing share: a drawing, the dialog's buttons, and a measure."""
import driver
import studio
from studio import Studio

PRINT = "je tekening AFDRUKKEN"
SAYS = "je tekening AFDRUKKEN (als er een printer is)"
CENTIMETRES_PER_PIXEL = 2.54 / 96
NEAR = 0.02  # centimetres


class PrintCase(Studio):
    def draw(self):
        self.box(30, 40, 200, 300, studio.RED)
        self.program.choose("pencil")
        self.stroke((5, 5), (400, 333), (610, 20))

    def control_of_dialog(self, name):
        return driver.until(lambda: next((c for c in self.program.controls(self.program.dialog())
                                          if c.role == "push button" and driver.plain_name(c.name) == name), None), f"button {name}")

    def near(self, measured, wanted, what):
        for is_, should in zip(measured, wanted):
            self.assertAlmostEqual(is_, should, delta=NEAR, msg=f"{what}: {measured}, should be {wanted}")
