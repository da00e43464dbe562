from hand import *
from people import *

p = Page("59", "The juggler in the circus: on one wheel, five balls in flight; the monkey on the elephant has caught one")

p.note("tent, ring")
p.shape("-10 -10!, -10 62, 80 84, 170 66, 260 84, 350 64, 440 82, 530 62, 640 74!, 640 -10!")
for a, b in (("170 66", "206 -10"), ("440 82", "420 -10")):
    p.line(f"{a}, {b}", 4)
p.shape("-10 330, 140 312, 330 306, 500 314, 640 332!, 640 560!, -10 560!")

p.note("tub, elephant on it, three quarters")
p.shape("52 392!, 248 392!, 262 484!, 38 484!")
for x in (112, 186):
    p.line(f"{x} 392, {x + (x - 150) * .16} 484", 4)
p.shape(oval(150, 392, 104, 22))
with p.at(150, 300):
    p.shapes(limb("-54 30, -52 92", 40, 40), limb("48 30, 52 92", 38, 38))
    p.one(limb("-84 -52, -110 -36, -116 6", 18, 13, 10), oval(-117, 14, 9, 13), "-94 -40, -70 -84, -20 -100, 40 -92, 74 -60, 76 0, 60 40, -60 44, -90 10",
          limb("-72 10, -78 96", 52, 48, flat=True), limb("18 10, 22 104", 54, 50, flat=True))
    p.shape("-60 -104!, 14 -108!, 22 -30, 6 4!, -12 -12, -32 4!, -50 -10, -68 4!, -76 -40")
    p.shape(star(-26, -52, 21))
    p.shape("120 -118, 160 -110, 166 -60, 140 -40, 118 -60")
    p.shape("76 18!, 110 36, 134 24!, 108 20, 88 4!")
    p.one("40 -100, 66 -140, 110 -142, 136 -112, 132 -66, 118 -30, 112 10, 124 40, 146 44, 158 30, 172 38, 162 66, 126 72, 94 52, 78 10, 58 -14, 42 -50")
    p.shape("60 -128, 30 -138, 0 -116, -6 -70, 10 -26, 40 -22, 62 -56, 70 -96")
    p.eye(86, -84, 5.4)
    p.eye(120, -86, 5)
    p.lines("78 -102, 88 -107, 97 -102", "94 -8, 112 -10", "94 12, 112 8")

p.note("the monkey on its head with the ball")
with p.at(238, 108, .92, 4):
    p.shape(limb("-22 44, -56 48, -76 26, -70 0", 15, 13))
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
with p.at(462, 294, 1.08, -8, flip=True):
    p.one(limb("6 52, 62 84, 60 140", 54, 46, 36, flat=True))
    with p.at(62, 144, 1, 10):
        shoe(p, 0, 0, 0, 1.1)
    p.shape(oval(10, 156, 62))
    p.shape(oval(10, 156, 46))
    p.shape("-1 66!, 2 160, 18 160, 19 66!")
    p.one(limb("24 -44, 76 -40, 106 -64", 50, 42, 40, flat=True))
    p.one(arm("104 -64, 118 -82, 124 -100", 30, 27, thumb=-1))
    p.shape("-36 -10!, -66 26, -104 30, -122 66!, -84 78, -76 96!, -40 74, -18 30!")
    p.one("-38 -58, -10 -72, 34 -66, 50 -30, 46 34!, 44 66, 8 86, -34 76, -42 36!, -46 -14",
          limb("-6 54, 44 96, 0 152", 62, 52, 38, flat=True))
    with p.at(-2, 160, 1, 14):
        shoe(p, 0, 0, 0, 1.2)
    p.line("-43 36, 4 46, 47 32", 4)
    p.spot(16, -22, 5)
    p.spot(15, 8, 5)
    p.one(limb("-22 -38, -14 18, 44 20", 52, 46, 40, flat=True), join=(-22, -40, 25))
    p.one(arm("44 20, 62 10, 76 -2", 32, 28, thumb=-1))
    p.shape(limb("-2 -80, -2 -54", 28, 28))
    p.shape("-38 -56!, -10 -62, 28 -66!, 40 -48, 16 -36, -22 -38, -40 -44")
    with p.at(8, -122, 1.04, -14):
        head(p, "34", "curly", mouth="open", brows=5, look=(.6, -.6))
        p.shape("-30 -54!, -28 -108!, 22 -60!, -4 -54")
        p.shape(oval(-28, -110, 12))

p.note("balls in flight, in one bow from hand to hand")
for x, y, turn in ((366, 234, 20), (318, 136, -10), (346, 74, 30), (406, 36, 0), (566, 106, -30)):
    p.shape(oval(x, y, 25))
    with p.at(x, y, 1, turn):
        p.line("-25 4, 0 -9, 25 -2", 4)

p.note("two who watch in front")
with p.at(300, 512, .84):
    head(p, "back", "tails")
with p.at(84, 520, .84):
    head(p, "back", "curly")
p.save()
