from hand import *
from limbs import palm, sleeve
from people import *
from faces import head

p = Page("27", "The school bus waits with its door open: the driver beckons, a boy runs to the step, the dog brings the forgotten lunch box")

p.note("trees behind, street")
p.shape(scallops("-10 250, -10 130, 40 90, 90 120, 100 380, -10 380", 6, .3))
p.shape("-10 372!, 640 372!, 640 560!, -10 560!")

p.note("bus from the side: two decks, a line under each row of windows")
bus = "38 372!, 34 260, 36 80, 48 34, 96 20!, 660 20!, 660 372!"
p.shape(bus)
with p.within(bus):
    p.line("20 146, 640 146", 4)
    p.line("150 290, 640 290", 4)
p.shape(oval(70, 322, 16, 20))

p.note("six windows with a face each, turned to the runner")
FACES = ((130, 50, "34", "bob", "smile", "dot", False), (256, 50, "side", "curly", "smile", "dot", False),
         (382, 50, "side", "short", "smile", "happy", True), (508, 56, "34", "tuft", "smile", "happy", True),
         (306, 176, "34", "short", "smile", "dot", False), (508, 182, "34", "parting", "smile", "dot", True))
for x, y, view, hair, mouth, eyes, flip in FACES:
    pane = box(x - 54, 50 if y < 99 else 176, 108, 82)
    p.shape(pane)
    with p.within(pane):
        with p.at(x, y + 54, .7, flip=flip):
            head(p, view, hair, mouth=mouth, eyes=eyes, brows=None, ear=hair != "curly", r=6.6, nose=False)
    p.put(f'<path fill="none" d="{p.path(pane)}"/>')

p.note("open door with the driver, step")
p.shape("108 172!, 200 172!, 200 372!, 108 372!")
with p.within(box(108, 172, 92, 200)):
    p.one("100 330!, 112 288, 134 262, 162 254, 186 274, 200 320!, 200 380!, 90 380!")
    p.line("96 338, 140 344, 206 338", 4)
p.put(f'<path fill="none" d="{p.path(box(108, 172, 92, 200))}"/>')
with p.at(168, 228, .7, 12):
    head(p, "34", "bald", mouth="open", brows=None, r=6, nose=False)
    p.shape("-54 -18, -50 -50, -14 -70, 34 -60, 46 -32!, 76 -24, 46 -18, 10 -26, -30 -20")
palm(p, 215, 278, -52, .9, "open", -1)
sleeve(p, "154 286, 188 320, 217 276", 40, 35, 26)
p.shape("100 366!, 208 366!, 216 390!, 92 390!")

p.note("two whole wheels")
for x, y in ((262, 372), (558, 372)):
    p.shape(oval(x, y, 48))
    p.shape(oval(x, y, 22))

p.note("boy runs to the step")
with p.at(408, 350, .94, -8, flip=True):
    palm(p, 85, -32, -44, 1, "open", 1)
    p.shape(limb("20 0, 62 8, 87 -34", 36, 32, 26, flat=True))
    p.shape(limb("-16 96, -60 122, -98 100", 48, 38, 30, flat=True))
    with p.at(-102, 92, 1.1, 84):
        shoe(p, 0, 0)
    p.shape("-16 -20!, -54 -30, -78 -4, -72 44, -34 62!")
    p.one("-22 -14, 10 -24, 36 -8, 40 34, 28 78!, -40 74!, -42 24")
    p.one("-41 70!, -6 78, 29 74!, 32 100, 4 116, -36 108", limb("0 94, 66 92, 70 146", 50, 46, 32, flat=True))
    shoe(p, 68, 152, -6, 1.1)
    with p.at(20, -66, .9, 10):
        head(p, "34", "short", mouth="open", brows=None, r=5, nose=False)
        p.line("19 4, 24 10, 17 12")
    palm(p, 28, 46, -18, 1, "fist", 1)
    sleeve(p, "6 6, -12 42, 31 45", 36, 32, 28)

p.note("dog with the lunch box")
with p.at(124, 460, .9, flip=True):
    p.one(limb("70 -2, 96 -20, 98 -50", 20, 16, 14))
    p.one(limb("-16 22, -10 50, -24 66", 28, 20))
    p.one("-34 -34, 10 -26, 56 -20, 78 0, 70 28, 30 34, -20 34, -40 10", limb("62 16, 66 44, 96 62", 34, 22), limb("-24 18, -40 44, -58 58", 30, 20))
    p.line("-110 18, -104 -22, -70 -22, -64 18", 5)
    p.shape("-126 14!, -48 14!, -48 58!, -126 58!")
    p.shape(heart(-87, 36, 13))
    p.one("-34 -70, -10 -62, -6 -30, -30 -10, -50 -14, -82 -16, -92 -30, -78 -42, -60 -46")
    p.shape("-22 -66!, 10 -64, 22 -36, 6 -18, -12 -36")
    p.spot(-86, -32, 8, 7)
    p.eye(-50, -44, 5)
p.save()
