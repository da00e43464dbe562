from hand import *
from people import *

p = Page("27", "The school bus waits: a boy runs to the step, the dog brings the forgotten lunch box")

p.note("street and roofs")
p.shape("62 162!, 160 172!, 160 430!, 62 430!")
p.shape("14 92!, 110 106!, 170 184!, 62 164!")
p.shape("-40 430!, -40 160!, 14 92!, 62 162!, 62 430!")
p.shape("-10 400!, 640 372!, 640 560!, -10 560!")

p.note("bus from the side")
bus = "150 366!, 140 110, 190 40, 300 -20!, 640 -20!, 640 386!"
p.shape(bus)
with p.within(bus):
    p.line("120 294, 640 284", 4)

p.note("six windows, a face in each")
faces = (("34", "bob", "smile", "dot"), ("side", "curly", "open", "dot"), ("34", "tuft", "open", "happy"))
p.shape("154 132, 172 96, 236 94!, 236 212!, 154 214!")
with p.within("154 132, 172 96, 236 94!, 236 212!, 154 214!"):
    with p.at(196, 176, .66, flip=True):
        head(p, "34", "bald", mouth="smile", brows=None, r=7)
        p.shape("-46 -18, -42 -46, -8 -64, 34 -52, 44 -26!, 66 -16, 40 -14, 10 -22, -30 -18")
for k, (view, hair, mouth, eyes) in enumerate(faces):
    x = 366 + k * 92
    pane = box(x - 38, 100 - k * 4, 76, 98)
    p.shape(pane)
    with p.within(pane):
        with p.at(x, 170 - k * 4, .7, flip=k != 1):
            head(p, view, hair, mouth=mouth, eyes=eyes, brows=None, r=6.5)

p.note("open door, step")
p.shape("254 90!, 316 88!, 316 378!, 254 380!")
p.shape("316 88!, 342 76!, 342 392!, 316 378!")
p.line("329 130, 329 230", 4)
p.shape("246 372!, 318 368!, 322 396!, 240 400!")
with p.within(box(256, 92, 58, 276)):
    with p.at(284, 178, .62):
        p.one("-40 62!, 16 58!, 44 90, 52 310!, -66 310!, -52 100")
        p.line("-62 206, 60 200", 4)
        head(p, "side", "bun", mouth="open", brows=None, r=7)
p.one(arm("272 250, 268 282, 290 302", 24, 21, thumb=-1), join=(272, 246, 18))
p.note("two whole wheels")
for x, y in ((206, 380), (510, 366)):
    p.shape(oval(x, y, 52))
    p.shape(oval(x, y, 24))

p.note("boy runs to the step")
with p.at(386, 372, .84, flip=True):
    p.one(arm("-4 0, -50 30, -86 12", 30, 24, thumb=1))
    p.shape(limb("-26 78, -84 92, -124 66", 44, 30, flat=True))
    with p.at(-134, 60, 1, 100):
        shoe(p, 0, 0, 0, 1.1)
    p.shape("-30 -20, -84 -30, -94 10, -84 52, -30 58")
    p.one("-24 -26, 26 -22, 38 20, 30 66, 6 84, -34 72, -50 20")
    p.shape("-42 62!, 0 72, 36 58!, 46 86, 40 104!, -8 112, -44 100, -52 84")
    p.shape(limb("16 98, 56 112, 60 142", 36, 28, flat=True))
    shoe(p, 62, 150, -6, 1.1)
    with p.at(12, -68, .98, 6):
        head(p, "34", "short", mouth="open", brows=5)
    p.one(limb("-2 0, 36 20, 52 -2", 38, 34, 30, flat=True), arm("48 4, 62 -20, 66 -36", 26, 24, thumb=1), join=(-4, -2, 19))

p.note("dog with the lunch box")
with p.at(136, 462, .88, flip=True):
    p.one(limb("70 -2, 96 -20, 98 -50", 20, 16, 14))
    p.one(limb("56 20, 84 44, 74 66", 30, 20), limb("-16 22, -10 50, -24 66", 28, 20))
    p.one("-34 -34, 10 -26, 56 -20, 78 0, 70 28, 30 34, -20 34, -40 10", limb("62 16, 66 44, 96 62", 34, 22), limb("-24 18, -40 44, -58 58", 30, 20))
    p.tube("-112 18, -104 -24, -70 -24, -62 18", 13)
    p.shape("-126 14!, -48 14!, -48 58!, -126 58!")
    p.shape(heart(-87, 36, 13))
    p.one("-34 -70, -10 -62, -6 -30, -30 -10, -50 -14, -82 -16, -92 -30, -78 -42, -60 -46")
    p.shape("-22 -66!, 10 -64, 22 -36, 6 -18, -12 -36")
    p.spot(-86, -32, 8, 7)
    p.eye(-50, -44, 5)
p.save()
