from hand import *
from limbs import bare_arm
from sideface import side_head

p = Page("51", "A day at the beach: the boy lies buried in the sand, his sister pats it down, the crab has found his toes")

p.note("sea, dunes, sailing boat")
p.line("-10 142, 640 142", 4)
p.shape("-10 210, 80 196, 180 212, 300 194, 420 210, 640 190!, 640 560!, -10 560!")
with p.at(436, 124):
    p.shape("-60 14!, 60 14!, 40 44!, -44 44!")
    p.shape("-4 8!, -4 -96!, -62 -2!, -40 8!")
    p.shape("8 8!, 8 -80!, 56 8!")
p.shape(scallops([(-40, 150), (300, 172), (660, 150)], 9, .16, closed=False) + [(660, 230, True), (-40, 230, True)])
p.out[-1:] = []

p.note("parasol")
p.tube("97 330, 116 60", 14)
p.shape("58 344!, 78 322, 116 320, 138 344!")
p.shape("-30 130!, -10 60, 60 14, 140 10, 210 50, 250 120!, 200 104, 160 120!, 110 96, 64 124!, 20 108")
p.lines("104 10, 64 124", "126 8, 160 120", width=4)

p.note("girl kneels behind the mound, in profile, and presses the spade on the sand with both hands")
with p.at(276, 157):
    p.shape(limb("88 42, 126 150", 16, 16))
    p.shape("106 148!, 142 136!, 160 166, 158 206, 130 210, 112 182")
    bare_arm(p, "20 98, 58 95, 82 70", 34, 30, 26, turn=-10, size=.95, kind="fist")
    p.shape(limb("16 24, 4 96", 32, 36, flat=True))
    suit = "-56 110, -26 72!, -2 82, 22 68!, 38 98, 26 150, 30 230, -20 240, -64 230, -72 168"
    p.shape(suit)
    with p.within(suit):
        p.lines("-90 166, 60 158", width=4)
    with p.at(24, -3, 1.02, 10):
        side_head(p, "pony", mouth="open", brows=None)
        p.shape("48 -16!, 20 -34, -20 -28, -54 -2!, -62 -30, -40 -60, 4 -70, 36 -52")
    bare_arm(p, "0 118, 46 146, 98 120", 36, 34, 28, turn=-14, size=.95, kind="fist")
    p.one(limb("-22 120, -4 130, 20 136", 42, 44, 42, flat=True), join=[(-24, 112, 29), (8, 106, 15)])

p.note("the mound of sand, toes and head of the boy")
with p.at(150, 420, 1.12, -62):
    p.shape(oval(-42, 8, 11, 14))
    p.shape("0 -54, 34 -42, 48 -8, 46 20, 26 48, -20 48, -44 22, -46 -12, -34 -42")
    p.eye(-12, -2, 5.5)
    p.eye(24, -2, 5.5)
    p.lines("-26 -18, -14 -24, -4 -20", "16 -20, 26 -24, 36 -18", "2 4, 9 11, -1 12")
    p.mouth(6, 25, 14, "open")
    p.shape("48 -14!, 34 -30, 14 -24, 0 -36, -18 -22, -46 -4!, -58 -30, -34 -60, 6 -68, 44 -50")
p.shape("206 470!, 204 398, 248 350, 326 330, 400 340, 460 340, 540 372, 584 420, 600 560!, 160 560!")
p.lines("290 420, 324 410", "360 480, 396 472")
p.note("soles and toes at the end of the mound")
for x, t in ((486, -10), (552, 10)):
    with p.at(x, 366, 1.05, t):
        side = -1 if t > 0 else 1
        p.one("-20 -20, 20 -20, 26 10, 18 56, -18 56, -26 10", *[oval(side * (-18 + 13 * k), -30 + 2.5 * k * k * .6, 9 - k, 10 - k) for k in range(4)])
        p.line("-8 6, 2 10, 10 6")
p.note("gull on the belly")
with p.at(494, 304, .86, flip=True):
    p.lines("-8 40, -10 58", "10 40, 8 58", width=4)
    p.shape("-70 -4!, -40 -22, 0 -26, 10 -56, 34 -66, 52 -50, 50 -24, 36 16, 10 40, -24 36, -46 14")
    p.shape("50 -52!, 82 -42, 50 -36!")
    p.eye(34, -48, 4.5)
    p.shape("-50 -2, -4 -8, 14 6, -16 22")
p.note("crab at the toes, starfish, bucket")
with p.at(540, 474, .92):
    for x in (-44, -26, 26, 44):
        p.line(f"{x} 14, {x * 1.3} 34", 4)
    p.shape(limb("38 -6, 62 -22, 58 -44", 15, 13))
    p.shape("50 -40!, 40 -66, 58 -80!, 60 -64!, 76 -76!, 80 -52, 66 -38")
    p.shape(limb("-38 -6, -60 -18, -58 -36", 15, 13))
    p.shape("-66 -30!, -80 -50, -66 -68!, -62 -52!, -48 -62!, -44 -40, -54 -30")
    p.shape("-50 0, -30 -24, 30 -24, 50 0, 30 24, -30 24")
    p.line("-14 -22, -18 -36", 4)
    p.line("14 -22, 18 -36", 4)
    p.shape(oval(-18, -40, 10), 3)
    p.shape(oval(20, -40, 10), 3)
    p.spot(-15, -43, 5)
    p.spot(23, -43, 5)
    p.line("-14 6, 0 12, 14 6")
with p.at(56, 456):
    p.tube("-30 0, -26 -40, 26 -40, 30 0", 12)
    p.shape("-40 0!, -28 70!, 28 70!, 40 0!")
    p.shape(oval(0, 0, 40, 11))
    p.shape(star(0, 38, 18))
p.save()
