from hand import *
from limbs import bare_arm, palm
from people import shoe
from sideface import side_head

p = Page("58", "Playing with blocks: the girl on tiptoe sets the last one, the boy holds his breath, the dog's tail will do the rest")

p.note("room: floor, carpet, window, picture")
p.line("-10 372, 640 372", 4)
p.shape(oval(310, 458, 290, 64))
p.shape(box(26, 30, 112, 130))
p.lines("82 30, 82 160", "26 96, 138 96", width=4)
p.shape("16 160!, 148 160!, 148 176!, 16 176!")
p.shape("510 40!, 592 34!, 598 112!, 516 118!")
p.shape(heart(554, 78, 24))

p.shape(box(396, 196, 230, 14))
p.shape(oval(440, 170, 25))
p.line("418 160, 440 166, 462 160")
for x, h in ((506, 60), (528, 70), (552, 54)):
    p.shape(box(x, 196 - h, 22, h))
p.note("the dog, tail wagging")
with p.at(520, 330, .9):
    p.shape(limb("-40 30, -84 24, -102 -16, -92 -46", 30, 24, 18))
    p.one(oval(-10, 40, 56, 44), "-20 10, 24 -40, 60 -20, 62 40, 56 96, 0 98, -30 80", limb("40 30, 46 70, 40 100", 40, 32), limb("-20 64, 10 90, 16 102", 50, 34))
    p.one("20 -96, 52 -92, 66 -60, 60 -30, 30 -22, 0 -30, -34 -36, -42 -54, -20 -66, 0 -84")
    p.shape("34 -96!, 66 -88, 82 -50, 66 -24, 46 -46, 42 -76!")
    p.spot(-38, -54, 10, 8)
    p.eye(4, -64, 5.5)
    p.line("-32 -36, -14 -32, 4 -40")
    p.line("-16 56, 6 50, 24 60")
    p.line("30 10, 26 40")

p.note("the tower, leaning")
blocks = ((0, 0, 76, 74, 0), (6, -70, 70, 68, -3), (-2, -136, 66, 66, 3), (10, -200, 62, 62, -5), (2, -260, 58, 58, 3))
with p.at(334, 436):
    for x, y, w, h, t in blocks:
        with p.at(x, y - 2, 1, t):
            p.shape(box(-w / 2, -h / 2, w, h))
    p.shape(star(0, 2, 24))
    p.shape(heart(6, -66, 19))
    p.shape(oval(-2, -138, 20))
    p.shape("10 -220!, 28 -188!, -8 -188!")
    p.shape(scallops(oval(2, -262, 17), 6, .45))

p.note("girl on tiptoe, arms up, in profile")
with p.at(204, 0):
    p.one(limb("0 372, -8 412, -16 452", 40, 28))
    shoe(p, -8, 464, 28, 1)
    p.one(limb("-34 366, -48 410, -64 444", 42, 28))
    shoe(p, -64, 456, 28, 1)
    p.shape(limb("4 176, -4 226", 34, 38, flat=True))
    p.shape("-48 236, -28 206!, -4 216, 20 202!, 42 228, 42 300, 62 380!, 0 394, -78 378!, -52 300, -54 260")
    p.line("-52 294, -4 306, 42 292")
    p.shape(heart(-8, 348, 20))
    with p.at(8, 138, .94, -14):
        side_head(p, "pony", mouth="tongue", brows=None)
    p.shape("90 90!, 152 76!, 160 136!, 100 148!")
    bare_arm(p, "10 244, 64 216, 90 134", 40, 36, 28, turn=-64, size=1.05, kind="flat", thumb=-1)
    p.one(limb("-20 256, 16 246, 48 228", 44, 46, 43, flat=True), join=(-24, 256, 24))

p.note("boy on his belly, cheeks blown up, hands at his mouth")
with p.at(520, 480, flip=True):
    p.one("64 -26, 20 -38, -30 -26, -90 -20, -140 -10, -140 40, -40 36, 56 38")
    p.line("-24 -30, -34 36", 4)
    with p.at(86, -66, .98, -10):
        side_head(p, "curly", mouth="o", brows=8, ear=False)
        p.shape("-14 -2, -26 -4, -30 8, -24 18, -13 15")
    palm(p, 104, 2, -70, .9, "wave", -1)
    p.one(limb("30 -2, 44 26, 70 28, 102 4", 42, 40, 36, 32, flat=True), join=(26, -6, 24))
p.note("blocks that wait")
p.shape("60 474!, 112 464!, 122 510!, 68 520!")
p.save()
