from hand import *
from people import *

p = Page("59", "The juggler in the circus: on one wheel, five balls in flight; the monkey on the elephant has caught one")

p.note("tent, ring")
p.shape("-10 -10!, -10 70, 80 96, 170 80, 260 100, 350 80, 440 100, 530 80, 640 90!, 640 -10!")
for a, b in (("206 90", "250 -10"), ("530 80", "470 -10")):
    p.line(f"{a}, {b}", 4)
p.shape("-10 300, 140 270, 330 258, 500 268, 640 292!, 640 560!, -10 560!")

p.note("elephant, near, cut by the border")
with p.at(90, 360):
    p.one("-120 -110, -40 -130, 30 -120, 80 -140, 130 -120, 150 -70, 152 -20, 140 30, 160 60, 176 52, 184 66, 168 92, 130 90, 112 50, 110 10, 90 0, 60 20, 50 60, 56 160, 0 160, -10 80, -50 80, -50 160, -120 160")
    p.shape("-6 -92, 44 -108, 80 -70, 72 -6, 36 22, 0 -8, -16 -56")
    p.eye(112, -84, 6.5)
    p.lines("100 -102, 112 -108, 124 -102", "126 8, 134 6")
    p.shape("88 -8!, 112 8, 120 36, 104 20, 84 12!")
    p.lines("12 176, 14 132", "34 176, 36 132")
    p.shape("-120 -110!, -70 -118, -40 -60, -34 20, -50 60!, -76 44, -100 62!, -120 48")
    p.shape(star(-66, -30, 20))
p.note("the monkey on its head with the ball")
with p.at(150, 144):
    p.shape(limb("-24 40, -60 40, -64 6, -48 -4", 16, 14))
    p.one("-22 10, 22 10, 34 50, 24 70, -26 70, -36 46", limb("-26 18, -56 -20, -34 -62", 22, 18), limb("26 18, 58 -14, 40 -58", 22, 18), oval(24, 66, 20, 14), oval(-26, 66, 20, 14))
    p.shape(oval(-36, -20, 12, 13))
    p.shape(oval(36, -20, 12, 13))
    p.shape("0 -52, 28 -40, 36 -14, 20 10, -20 10, -36 -14, -28 -40")
    p.shape("0 -32, 18 -40, 28 -22, 22 2, -16 4, -26 -20, -16 -38")
    p.eye(-4, -20, 4.6)
    p.eye(14, -20, 4.6)
    p.mouth(5, -8, 9, "open")
    p.shape(oval(2, -78, 27))
    p.one(oval(-30, -70, 12, 13), limb("-44 -44, -36 -60", 18, 18))
    p.one(oval(34, -66, 12, 13), limb("48 -40, 40 -56", 18, 18))
    p.out[-4:] = []

p.note("one-wheeled bicycle and the juggler, leaning")
with p.at(410, 300, 1, 6):
    p.one(limb("16 50, 66 76, 44 132", 50, 42, 34, flat=True))
    with p.at(44, 136, 1, 4):
        shoe(p, 0, 0, 0, 1.05)
    p.shape(oval(0, 170, 54))
    p.shape(oval(0, 170, 40))
    p.shape("-9 70!, -9 166, 9 166, 9 70!")
    p.shape(oval(0, 170, 14))
    p.one(arm("-30 -40, -86 -30, -110 -76", 36, 28, thumb=1))
    p.one("-38 -62, 34 -66, 50 -20, 44 40!, 40 72, 0 84, -40 72, -44 44!, -50 -16", limb("-10 56, 30 110, -4 172", 58, 48, 36, flat=True), limb("-30 -42, -70 -28, -92 -46", 48, 38, flat=True))
    with p.at(-4, 182, 1, 8):
        shoe(p, 0, 0, 0, 1.15)
    p.line("-44 40, 0 48, 46 38", 4)
    p.line("-2 -46, 2 -10, -2 36")
    p.spot(12, -8, 5)
    p.spot(11, 14, 5)
    p.one(limb("22 -40, 74 -26, 96 -50", 48, 42, 38, flat=True), join=(20, -42, 23))
    p.one(arm("98 -52, 110 -70, 114 -84", 32, 28, thumb=-1))
    p.shape(limb("0 -76, 0 -54", 28, 28))
    p.shape("-34 -62!, -2 -56, 28 -64!, 24 -44, 0 -34, -32 -42")
    with p.at(4, -122, 1, -16):
        head(p, "34", "curly", mouth="open", brows=5)
        p.shape("-20 -56!, -2 -104!, 30 -52!, 4 -48")
        p.shape(oval(-2, -108, 11))

p.note("balls in flight")
for x, y in ((272, 176), (304, 92), (372, 34), (522, 92), (560, 184)):
    p.shape(oval(x, y, 25))
    p.line(f"{x - 24} {y + 4}, {x} {y - 8}, {x + 24} {y - 2}", 4)

p.note("two who watch in front")
with p.at(566, 490, .8, flip=True):
    p.one("-80 100, -60 66, -20 48, 30 52, 60 76, 70 100")
    head(p, "back", "tails")
with p.at(250, 510, .8):
    head(p, "back", "curly")
p.save()
