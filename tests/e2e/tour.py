"""A short tour of KrasPret with a real pointer on a virtual screen: tour.py PROGRAM FOLDER [PICTURE...]. Leaves screenshots and the
saved picture in the folder; says what it does. Exit status 0 if the program went all the way to its own end."""
import os
import pathlib
import sys

import driver
import kraspret

NAME = "Emma"
SKY, SUN, SAND, ORANGE, BROWN = (190, 230, 255), (255, 230, 60), (255, 225, 160), (255, 140, 20), (110, 60, 10)
RED, GREEN, LEAF = (215, 30, 30), (80, 170, 50), (20, 90, 20)
WHITE, PINK = (255, 255, 255), (255, 130, 200)


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
        self.pictures = {}  # name of a screenshot -> the screen

    def shoot(self, name):
        self.pictures[name] = self.still()
        path = self.folder / f"{len(self.pictures)}-{name}.png"
        self.pictures[name].save_png(path)
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
        self.finery(program, sheet)
        self.desktop.move(*sheet.at(560, 500))
        self.shoot("drawing")
        saved = self.folder / "drawing.bmp"
        program.save(saved)
        print(f"  {saved}")

    def scene(self, program, sheet):
        """A house with a garden, the sun and a bird: every shape tool has its part in it."""
        def tool(name, colour=None):
            program.choose(name)
            if colour:
                program.pick(colour)

        def fill(colour, *places):
            tool("fill", colour)
            for place in places:
                self.desktop.click(*sheet.at(*place))

        tool("line", GREEN)
        sheet.drag((600, 430), (kraspret.SHEET[0] + 4, 430))
        sheet.drag((600, 430), (-4, 430))
        tool("filled box", BROWN)
        for points in (((300, 170), (318, 222)), ((230, 350), (270, 429)), ((452, 336), (468, 429))):
            sheet.drag(*points)
        tool("box", BROWN)
        for points in (((160, 250), (340, 429)), ((180, 280), (220, 320)), ((280, 280), (320, 320))):
            sheet.drag(*points)
        tool("line", BROWN)
        for points in (((140, 250), (250, 160)), ((250, 160), (360, 250)), ((140, 250), (361, 250)), ((200, 280), (200, 321)),
                       ((300, 280), (300, 321))):
            sheet.drag(*points)
        tool("circle", ORANGE)
        program.set_radius(45)
        self.desktop.click(*sheet.at(520, 90))
        tool("filled circle", RED)
        program.set_radius(6)
        self.desktop.click(*sheet.at(262, 392))
        tool("ellipse", GREEN)
        sheet.drag((453, 283), (505, 325))
        tool("filled ellipse", LEAF)
        sheet.drag((70, 400), (100, 412))
        fill(SKY, (20, 20))
        fill(SUN, (520, 90))
        fill(GREEN, (20, 520))
        fill(RED, (250, 200))
        fill(SAND, (250, 300))
        fill(LEAF, (460, 290))
        tool("filled circle", RED)
        program.set_radius(7)
        for place in ((440, 280), (478, 268), (462, 308), (500, 300)):
            self.desktop.click(*sheet.at(*place))
        tool("filled circle", BROWN)
        program.set_radius(5)
        for place in ((505, 80), (535, 80)):
            self.desktop.click(*sheet.at(*place))
        tool("pencil")
        sheet.drag((503, 106), (510, 113), (520, 116), (530, 113), (537, 106))
        for x, y in ((380, 90), (420, 70), (400, 120)):
            sheet.drag((x, y), (x + 8, y - 6), (x + 16, y), (x + 24, y - 6), (x + 32, y))
        tool("pencil", LEAF)
        for x in range(20, 600, 40):
            sheet.drag((x, 470), (x + 4, 455), (x + 9, 471), (x + 14, 452), (x + 18, 470))


    def finery(self, program, sheet):
        """Roof tiles, smoke, a cloud, a colourful bow and a garden of stars: what only a painter's tools can do."""
        def click(*names):
            for name in names:
                program.control(name).click()

        click("het menu OPVULLEN")
        program.pick(ORANGE)
        click("kruisjes")
        self.desktop.move(*sheet.at(240, 205))  # on its way the pointer takes the colour along
        self.desktop.click(*sheet.at(246, 206))
        click("gommetje om foutjes te verbeteren")
        sheet.drag((309, 163), (314, 152), (306, 142), (316, 130), (308, 118), (320, 104), steps=3)
        program.choose("spray")
        program.pick(WHITE)
        for y in (38, 46, 54):
            sheet.drag((200, y), (330, y), steps=26)
        program.choose("art line")
        sheet.drag(*((385 + 210 * n / 8, 250 - 4 * n * (8 - n)) for n in range(9)), steps=3)
        for stamp, colour, places in (
                ("STERRETJES", SUN, ((40, 500), (120, 512), (210, 496), (300, 515), (395, 498), (480, 514), (570, 500))),
                ("KRUISKOPJES IN", RED, ((80, 508), (165, 500), (255, 510), (345, 500), (440, 508), (525, 502))),
                ("KRUISKOPJES UIT", PINK, ((20, 515), (100, 490), (190, 518), (280, 492), (370, 516), (460, 490), (548, 517)))):
            click("het menu BORSTELSTREKEN")
            program.pick(colour)
            click(stamp)
            for place in places:
                self.desktop.click(*sheet.at(*place))


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
