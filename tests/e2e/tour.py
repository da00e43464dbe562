"""A short tour of KrasPret with a real pointer on a virtual screen: tour.py PROGRAM FOLDER [PICTURE...]. Leaves screenshots and the
saved picture in the folder; says what it does. Exit status 0 if the program went all the way to its own end."""
import os
import pathlib
import sys

import driver
import kraspret

NAME = "Emma"


class Tour:
    def __init__(self, program, folder, words):
        self.folder = pathlib.Path(folder)
        self.folder.mkdir(parents=True, exist_ok=True)
        for old in (*self.folder.glob("*.png"), *self.folder.glob("*.bmp")):
            old.unlink()
        os.environ["KRASPRET_PROGRAM"] = os.path.abspath(program)
        self.desktop = driver.Desktop()
        self.picture = " ".join(str(pathlib.Path(word).absolute()) if n == 0 else word for n, word in enumerate(words))
        self.program = kraspret.start(self.desktop, *([self.picture] if self.picture else []))
        self.shots = 0

    def shoot(self, name):
        self.shots += 1
        path = self.folder / f"{self.shots}-{name}.png"
        self.still().save_png(path)
        print(f"  {path}")

    def still(self):
        """The screen once it has stopped changing."""
        seen = []

        def look():
            seen.append(self.desktop.screen())
            return len(seen) > 4 and all(s.rows == seen[-1].rows for s in seen[-4:])
        try:
            driver.until(look, "quiet screen", 3)
        except driver.NotSeen:
            pass  # something on it moves all the time: then any moment is as good
        return seen[-1]

    def run(self):
        program = self.program
        program.wait_intro()
        self.shoot("intro")
        program.wait_menu()
        program.give_name(NAME)
        self.shoot("menu")
        program.control("Tekenen Groot").click()
        if not self.refused():
            self.draw()
        program.leave_studio()
        program.quit()
        program.control("Bedankt,")
        self.shoot("farewell")
        return program.wait_exit()

    def refused(self):
        """True if the picture given could not be read; the message is looked at and answered."""
        def look():
            return self.program.dialog() or self.program.find("tekenblad")
        if driver.until(look, "sheet").role not in kraspret.DIALOGS:
            return False
        self.shoot("refused")
        self.program.answer(self.picture, "OK")
        self.program.sheet()
        self.shoot("studio")
        return True

    def draw(self):
        program, sheet = self.program, self.program.sheet()
        self.shoot("studio")
        self.scene(program, sheet)
        self.desktop.move(*sheet.at(560, 500))
        self.shoot("drawing")
        saved = self.folder / "drawing.bmp"
        program.save(saved)
        print(f"  {saved}")

    @staticmethod
    def scene(program, sheet):
        """A house with a garden, the sun and a bird: each tool has its part in it."""
        program.choose("line")
        for points in (((20, 430), (600, 430)), ((150, 250), (250, 170)), ((250, 170), (350, 250)), ((460, 430), (460, 330))):
            sheet.drag(*points)
        program.choose("box")
        for points in (((160, 250), (340, 430)), ((185, 280), (235, 330)), ((265, 280), (315, 330))):
            sheet.drag(*points)
        program.choose("filled box")
        for points in (((230, 360), (270, 430)), ((300, 185), (320, 205))):
            sheet.drag(*points)
        program.choose("circle")
        program.set_radius(45)
        sheet.drag((520, 90), (520, 90))
        program.set_radius(6)
        program.desktop.click(*sheet.at(250, 215))
        program.choose("filled circle")
        program.set_radius(5)
        for place in ((505, 80), (535, 80), (445, 290), (475, 280), (460, 310)):
            program.desktop.click(*sheet.at(*place))
        program.choose("ellipse")
        sheet.drag((453, 283), (500, 320))
        program.choose("filled ellipse")
        sheet.drag((83, 403), (110, 410))
        program.choose("pencil")
        sheet.drag((505, 108), (512, 114), (520, 116), (528, 114), (535, 108))
        sheet.drag((330, 90), (345, 78), (360, 90), (375, 78), (390, 90))
        for x in range(30, 600, 30):
            if not 150 < x < 350:
                sheet.drag((x, 450), (x + 5, 436), (x + 10, 452))


def main(program, folder, *words):
    tour = Tour(program, folder, words)
    try:
        status = tour.run()
    except driver.NotSeen as fault:
        tour.shoot("stuck")
        sys.exit(f"The tour got stuck: {fault}\n{tour.program.output()}")
    finally:
        tour.desktop.close()
    print(f"The program ended by itself with status {status}. Everything the tour saw lies in {folder}.")
    sys.exit(status)


if __name__ == "__main__":
    main(*sys.argv[1:])
