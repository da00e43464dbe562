from hand import *
from beasts import *

p = Page("08", "A hedgehog carries an apple on its spines; its young runs behind with a leaf, the snail looks up at the apple")

def hedgehog(p):
    """Walking to the right, 300 long, its feet at y = 100."""
    for x in (-28, 62):
        p.one(limb(f"{x} 60, {x - 2} 84", 30, 26), oval(x + 8, 92, 24, 13))
    feet = []
    for x in (-72, 104):
        feet += [limb(f"{x} 50, {x - 2} 88", 40, 34), oval(x + 10, 98, 29, 16)]
    p.one(feet, "-120 40, -90 84, 0 94, 80 92, 122 76, 158 54, 192 36, 206 20, 188 4, 158 -10, 132 -46, 60 -40, -60 -20")
    spines = along("-100 80!, -142 60, -156 0, -122 -74, -50 -116, 30 -116, 88 -84, 104 -60!", 15)
    coat = []
    for i, (x, y, dx, dy) in enumerate(spines):
        coat.append((x, y, True))
        if i < len(spines) - 1:
            nx, ny, ndx, ndy = spines[i + 1]
            mx, my = (x + nx) / 2, (y + ny) / 2
            coat.append((mx + dy * 24 - dx * 16, my - dx * 24 - dy * 16, True))
    coat += [(90, -34, True), (102, -16, False), (84, -2, True), (94, 20, False), (74, 32, True), (80, 54, False), (56, 64, True), (20, 76, False), (-30, 74, False)]
    p.shape(coat)
    for x, y, t in ((-90, 20, -20), (-70, -50, 10), (-20, -10, 0), (0, -70, 20), (50, -40, 30), (-30, 44, -10), (30, 26, 10)):
        with p.at(x, y, 1, t):
            p.lines("-12 10!, 0 -10!, 12 10!", width=3)
    p.one("100 -18, 92 -44, 108 -62, 130 -50, 128 -26", join=[(122, -14, 17)])
    p.line("106 -30, 106 -44, 116 -46")
    p.spot(202, 12, 14, 12)
    p.eye(148, -8, 8)
    p.line("174 32, 162 42, 148 40")

def leaf(x, y, turn, size=1):
    with p.at(x, y, size, turn):
        p.shape("0 30!, -20 12, -16 -14, 0 -34!, 16 -14, 20 12")
        p.line("0 44!, 0 -12")

def young(p):
    """The young one, in fewer lines: 200 long, its feet at y = 70."""
    for x in (-50, 46):
        p.one(limb(f"{x} 40, {x} 70", 36, 32), oval(x + 8, 76, 28, 15))
    p.one("-80 30, -50 66, 20 66, 70 60, 110 40, 150 20, 156 2, 120 -14, 90 -50, 0 -40")
    p.shape("-70 70!, -110 56!, -92 28!, -124 4!, -92 -16!, -104 -52!, -62 -52!, -58 -92!, -18 -72!, 4 -104!, 28 -74!, 62 -88!, 68 -56!, 60 -20, 44 16, 40 50, 0 66")
    p.spot(150, 6, 15, 13)
    p.eye(100, -14, 9)
    p.line("120 30, 106 38, 92 32", 3)

p.note("hills, tree with a hole, the squirrel looks at the apple")
p.shape("-10 250, 180 214, 400 250, 640 226!, 640 560!, -10 560!")
p.shape("356 -20!, 360 100, 352 320!, 404 320!, 394 100, 402 -20!")
p.shape("-10 360, 200 330, 420 344, 640 330!, 640 560!, -10 560!")
p.shape("474 -20!, 486 120, 476 270, 436 366!, 486 352, 514 376!, 548 354, 590 372!, 640 380!, 640 -20!")
p.lines("506 20, 512 90", "600 250, 596 320")
p.shape(oval(556, 146, 50, 62))
with p.within(oval(556, 146, 50, 62)):
    p.shape("574 180, 570 130, 586 96, 620 110, 640 220, 590 240")
    p.one("546 132!, 550 98!, 572 124!", oval(556, 146, 28, 25), oval(536, 152, 17, 13), "548 160, 584 160, 604 240, 530 240, 536 190")
    p.spot(524, 147, 6, 5)
    p.eye(549, 141, 5)
    p.line("530 161, 538 164, 546 160")
p.out.append(f'<path fill="none" d="{p.path(oval(556, 146, 50, 62))}"/>')

p.note("mushroom")
p.shape("86 186!, 98 260, 84 352, 112 366, 150 364, 170 350, 160 260, 168 186!")
p.shape("-4 190, 14 110, 80 50, 150 44, 220 86, 248 160, 250 186, 210 200, 120 206, 40 202")
for x, y, rx, ry in ((76, 120, 26, 22), (154, 92, 28, 23), (200, 150, 20, 17), (122, 166, 20, 16)):
    p.shape(oval(x, y, rx, ry, -8))

p.note("apple on the spines")
with p.at(282, 216):
    p.shape("4 -40!, 2 -60, 14 -76, 22 -70, 12 -56, 12 -40!")
    p.shape("16 -54!, 28 -80, 58 -76!, 48 -52")
    p.shape("8 -42, 36 -52, 56 -22, 46 24, 18 46, -10 44, -40 24, -46 -20, -24 -50")
    p.line("-28 -24, -31 -14, -29 -6")

p.note("hedgehog")
with p.at(336, 368, 1.06):
    hedgehog(p)
p.note("young hedgehog with a leaf")
with p.at(88, 454, .56):
    with p.at(-30, -118, 1.7, 70):
        p.shape("0 40!, -30 18, -24 -20, 0 -50!, 24 -20, 30 18")
        p.line("0 18!, 0 -24")
    young(p)

p.note("snail")
with p.at(530, 484, .92):
    p.shape("-62 -4, -78 -40, -86 -66!, -72 -70, -62 -44!, -52 -74!, -40 -72, -44 -40, -34 0")
    p.one("-66 -34, -46 -40, -32 -16, 10 0, 60 10, 78 24!, -50 24, -72 4")
    p.shape(oval(6, -26, 44, 42))
    p.line("-2 -20, 8 -28, 16 -20, 8 -4, -14 -6, -22 -26, -8 -48, 16 -50, 34 -26", 4)
    p.line("-62 0, -54 5, -46 2")
    p.eye(-54, -18, 4)

leaf(184, 508, 70, .8)
leaf(276, 60, 30, .9)
leaf(440, 130, -40, .8)
p.save()
