from hand import *
from limbs import palm, sleeve
from people import *
from faces import head

p = Page("27", "The school bus waits with its door open: the driver beckons, a boy runs to the step, the dog brings the forgotten lunch box")

p.note("trees behind, street")
p.shape(scallops("-10 250, -10 130, 40 90, 90 120, 100 300, -10 300", 6, .3))
p.shape("-10 372!, 640 372!, 640 560!, -10 560!")

p.note("bus from the side: roof, body, band")
bus = "40 372!, 36 260, 52 232, 74 220!, 92 96, 128 56, 180 44!, 660 44!, 660 372!"
p.shape(bus)
with p.within(bus):
    p.line("20 270, 640 270", 4)
p.shape(oval(60, 304, 15, 20))

p.note("open door with the driver, step")
p.shape("112 104!, 200 104!, 200 372!, 112 372!")
with p.within(box(112, 104, 88, 268)):
    p.one("100 310!, 112 254, 138 220, 170 212, 196 236, 206 316!, 206 380!, 90 380!")
    p.line("96 312, 140 320, 206 312", 4)
    p.line("148 318, 146 372", 4)
p.put(f'<path fill="none" d="{p.path(box(112, 104, 88, 268))}"/>')
with p.at(176, 172, .76, 12):
    head(p, "34", "bald", mouth="open", brows=None, r=5.4, nose=False)
    p.line("18 6, 22 10, 17 11")
    p.shape("-54 -18, -50 -50, -14 -70, 34 -60, 46 -32!, 76 -24, 46 -18, 10 -26, -30 -20")
palm(p, 219, 250, -52, .9, "open", -1)
sleeve(p, "158 246, 194 290, 221 248", 42, 36, 26)
p.shape("104 366!, 208 366!, 216 390!, 96 390!")

p.note("windows with faces")
faces = (("34", "bob", "smile", "dot"), ("side", "curly", "open", "dot"), ("34", "tuft", "open", "happy"))
for k, (view, hair, mouth, eyes) in enumerate(faces):
    x = 302 + k * 122
    pane = box(x - 50, 108, 100, 104)
    p.shape(pane)
    with p.within(pane):
        with p.at(x - 4, 178, .8, flip=k != 1):
            head(p, view, hair, mouth=mouth, eyes=eyes, brows=None, r=6.5)
    p.put(f'<path fill="none" d="{p.path(pane)}"/>')

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
    palm(p, 2, 56, -8, 1, "fist", 1)
    sleeve(p, "0 8, -34 46, 6 54", 40, 36, 28)

p.note("dog with the lunch box")
with p.at(124, 460, .9, flip=True):
    p.one(limb("70 -2, 96 -20, 98 -50", 20, 16, 14))
    p.one(limb("-16 22, -10 50, -24 66", 28, 20))
    p.one("-34 -34, 10 -26, 56 -20, 78 0, 70 28, 30 34, -20 34, -40 10", limb("62 16, 66 44, 96 62", 34, 22), limb("-24 18, -40 44, -58 58", 30, 20))
    p.tube("-112 18, -104 -24, -70 -24, -62 18", 13)
    p.shape("-126 14!, -48 14!, -48 58!, -126 58!")
    p.shape(heart(-87, 36, 13))
    p.one("-34 -70, -10 -62, -6 -30, -30 -10, -50 -14, -82 -16, -92 -30, -78 -42, -60 -46")
    p.shape("-22 -66!, 10 -64, 22 -36, 6 -18, -12 -36")
    p.spot(-86, -32, 8, 7)
    p.eye(-50, -44, 5)
p.save()
