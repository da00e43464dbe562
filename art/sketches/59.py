from hand import *
from limbs import palm
from people import *

p = Page("59", "The juggler in the circus: on one wheel, five balls in flight; the monkey on the elephant has caught one")

p.note("tent, ring")
p.shape("-10 -10!, -10 62, 80 84, 170 66, 260 84, 350 64, 440 82, 530 62, 640 74!, 640 -10!")
for a, b in (("170 66", "206 -10"), ("530 62", "500 -10")):
    p.line(f"{a}, {b}", 4)
p.shape("-10 330, 140 312, 330 306, 500 314, 640 332!, 640 560!, -10 560!")

p.note("tub, elephant on it, three quarters")
p.shape("50 398!, 250 398!, 262 484!, 38 484!")
p.shape(oval(150, 398, 104, 19))
with p.at(150, 300):
    p.shapes(limb("-42 30, -38 84", 40, 40, flat=True), limb("52 30, 58 90", 38, 38, flat=True))
    p.one(limb("-84 -52, -110 -44, -120 -18", 18, 13, 10), oval(-121, -10, 9, 13), "-94 -40, -70 -84, -20 -100, 40 -92, 74 -60, 76 0, 60 40, -60 44, -90 10",
          limb("-72 10, -78 96", 52, 48, flat=True), limb("18 10, 22 104", 54, 50, flat=True))
    p.lines("-86 96, -85 84", "-70 97, -70 85", "12 106, 13 93", "30 106, 30 93")
    p.shape("-60 -104!, 14 -108!, 22 -30, 6 4!, -12 -12, -32 4!, -50 -10, -68 4!, -76 -40")
    p.shape(star(-33, -50, 20))
    p.one("40 -100, 66 -140, 110 -142, 136 -112, 132 -66, 118 -30, 112 10, 124 40, 146 44, 158 30, 172 38, 162 66, 126 72, 94 52, 78 10, 58 -14, 42 -50")
    p.shape("60 -128, 30 -138, 0 -116, -6 -70, 10 -26, 40 -22, 62 -56, 70 -96")
    p.eye(86, -84, 5.4)
    p.eye(120, -86, 5)
    p.lines("78 -102, 88 -107, 97 -102", "94 -8, 112 -10", "94 12, 112 8")

p.note("the monkey on its head with the ball")
with p.at(238, 108, .92, 4):
    p.shape(limb("-22 48, -58 52, -80 30, -100 26", 15, 13))
    p.one("-22 10, 22 10, 32 44, 20 62, -24 62, -34 42", limb("-22 18, -54 -16, -38 -62", 22, 18, 18), limb("24 18, 58 -16, 44 -62", 22, 18, 18),
          limb("-16 54, -30 64", 26, 22), limb("20 54, 40 60", 26, 22))
    p.shape(oval(-33, -20, 13, 14))
    p.shape("0 -54, 28 -46, 40 -16, 24 12, -16 12, -36 -14, -28 -42")
    p.shape("12 -34, 28 -38, 40 -24, 36 4, 10 8, -8 -6, -4 -30", 3)
    p.eye(10, -20, 4.4)
    p.eye(27, -20, 4.2)
    p.mouth(19, -8, 9, "smile")
    p.shape(oval(2, -82, 30))

p.note("the juggler on one wheel, three quarters, leaning towards the flight of the balls")
with p.at(462, 294, 1.06, -6, flip=True):
    p.shape("-30 -44!, -62 -14, -100 0, -128 36!, -92 52, -82 76!, -46 56, -18 30!")
    p.one(limb("10 52, 64 84, 60 140", 58, 48, 36, flat=True))
    with p.at(62, 144, 1, 10):
        shoe(p, 0, 0, 0, 1.1)
    p.shape(oval(10, 158, 62))
    p.shape(oval(10, 158, 46))
    p.shape("-1 66!, 2 162, 18 162, 19 66!")
    palm(p, 112, -66, -60, 1, "wave")
    p.shape(limb("24 -24, 78 -22, 112 -66", 46, 42, 34, flat=True))
    p.shape(limb("-2 -90, -2 -36", 34, 38, flat=True))
    p.one("-44 -34, -20 -60!, -2 -46, 18 -62!, 44 -36, 50 0, 46 34!, 44 66, 8 86, -34 76, -44 36!, -48 -4",
          limb("-6 54, 46 92, 2 152", 66, 54, 38, flat=True))
    with p.at(-2, 160, 1, 14):
        shoe(p, 0, 0, 0, 1.15)
    p.line("-45 36, 4 46, 47 32", 4)
    p.spot(20, 14, 5)
    palm(p, 58, 12, -34, 1.05, "wave")
    p.one(limb("-15 -24, -8 22, 58 14", 42, 42, 36, flat=True), join=(-18, -24, 25))
    with p.at(6, -116, 1.04, -12):
        head(p, "34", "curly", eyes="", mouth="open", brows=None, ear=False, nose=False)
        p.eye(10, 0, 4.6)
        p.eye(34, 0, 4.4)
        p.line("23 -1, 28 5, 21 8")
        p.shape("-30 -54!, -28 -108!, 22 -60!, -4 -54")
        p.shape(oval(-28, -110, 12))

p.note("balls in flight, in one bow from hand to hand")
for x, y, turn in ((374, 254, 20), (326, 150, -10), (350, 76, 30), (412, 36, 0)):
    p.shape(oval(x, y, 25))
    with p.at(x, y, 1, turn):
        p.line("-25 4, 0 -9, 25 -2", 4)

p.note("two who watch in front")
with p.at(316, 492, .84, 4):
    p.one(limb("-22 -44, -32 -80, -28 -110", 22, 36, 18), limb("22 -46, 36 -82, 48 -108", 22, 36, 18))
    p.one(oval(0, -4, 51, 54), oval(0, 24, 46, 34))
with p.at(76, 500, .78, -6):
    head(p, "back", "curly")
p.save()
