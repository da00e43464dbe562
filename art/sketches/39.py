from hand import *
from limbs import palm, sleeve
from sideface import side_head

p = Page("39", "Skating: the girl leans forward at full speed, the boy has fallen, his cap is still in the air")

p.note("far bank with a mill, ice")
p.shape("-10 214!, 120 196, 260 210, 400 190, 640 206!, 640 560!, -10 560!")
p.shape("-10 252!, 200 240, 420 256, 640 232!, 640 560!, -10 560!")
with p.at(470, 136, .8):
    p.shape("-38 64!, -26 -14!, 26 -14!, 38 64!")
    p.shape("-11 60!, -11 34, 0 24, 11 34, 11 60!")
    for t in (45, 135, 225, 315):
        with p.at(0, -26, 1, t):
            p.shape(box(10, -9, 58, 18))
    p.shape(oval(0, -26, 13))

p.note("willow with a thick trunk and eight closed branches")
for way in ("70 30, 120 -6, 196 20, 214 84", "66 34, 90 10, 152 34, 164 120", "60 34, 70 16, 112 46, 116 138", "50 34, 40 20, 2 40, 8 110"):
    p.shape(limb(way, 34, 30, 16))
p.shape("8 320!, 26 250, 20 160, 4 80, 20 20, 60 4, 96 28, 92 80, 84 160, 92 260, 116 324!, 60 332")
p.lines("46 110, 44 180", "66 200, 70 260")

p.note("girl, one forward-leaning shape")
with p.at(278, 292):
    p.shape(limb("-56 76, -118 54, -164 14", 46, 34, 26, flat=True))
    with p.at(-170, 8, 1, 132):
        p.shape("-16 -14!, -18 16!, 40 16!, 38 -4, 14 -14!")
        p.shape("-22 16!, 52 16!, 52 28!, -22 28!")
    palm(p, -70, -58, 184, 1.15, "open", -1)
    p.shape(limb("30 -34, -20 -56, -72 -58", 44, 38, 30, flat=True))
    p.one("64 -66, 84 -34, 66 4, 20 60, -10 96, -62 92, -84 62, -52 14, -10 -34, 30 -70")
    p.one(limb("-26 106, 30 132", 52, 46), limb("30 132, 24 160, 6 186", 44, 38, 30, flat=True))
    p.shape("-84 56!, -106 92!, -60 130, 0 128, 22 112!, 8 66, -40 66")
    with p.at(6, 196):
        p.shape("-18 -14!, -20 16!, 44 16!, 42 -2, 16 -14!")
        p.shape("-24 16!, 58 16!, 58 28!, -24 28!")
    p.shape("36 -62, 0 -98, -48 -104, -92 -78!, -96 -100!, -50 -124, 10 -116, 56 -84")
    p.shape("40 -92!, 64 -80, 112 -66!, 110 -38, 70 -32, 34 -60!")
    with p.at(92, -106, 1, 4):
        side_head(p, "pony", mouth="open", brows=3)
        p.shape("46 -18!, 30 -60, -14 -66, -50 -40, -54 -4!, -20 -20, 10 -26")
        p.shape("46 -18!, 48 -32, 10 -40, -30 -28, -58 -2!, -52 10, -20 -8, 12 -18")
        p.shape(scallops(oval(-22, -68, 15), 7, .4))
    palm(p, 104, 34, -14, 1.15, "open", 1)
    sleeve(p, "44 -22, 50 40, 106 34", 50, 44, 32)

p.note("the boy has fallen: profile, he looks up at his cap")
with p.at(540, 392, flip=True):
    with p.at(78, 8, 1, -50):
        p.shape("-16 -10!, -18 14!, 34 14!, 34 0, 14 -12!")
        p.shape("-24 14!, 44 14!, 44 26!, -24 26!")
    p.one(limb("4 84, 46 66, 76 18", 50, 42, 34, flat=True))
    p.shape(limb("2 -26, 2 -4", 30, 30))
    p.one("-26 -8, 0 -18, 30 -6, 42 34, 42 76, 30 106, -30 108, -50 78, -46 24", limb("-4 84, 48 92, 92 96", 52, 44, 34, flat=True))
    with p.at(106, 96, 1, -84):
        p.shape("-16 -12!, -18 14!, 38 14!, 38 -2, 14 -14!")
        p.shape("-24 14!, 50 14!, 50 26!, -24 26!")
    p.line("-44 62, -10 72, 30 66", 4)
    with p.at(-8, -72, .88, -24):
        side_head(p, "curly", mouth="open", brows=5, ear=False)
        p.shape("-14 -2, -26 -4, -30 8, -24 18, -13 15")
    palm(p, 76, -34, -64, 1.1, "open", 1)
    sleeve(p, "-6 14, 46 22, 76 -36", 44, 38, 29)
with p.at(560, 196, 1, 20):
    p.shape("-34 14, -32 -16, 0 -30, 32 -14, 36 14")
    p.shape("-38 10!, 0 20, 40 10!, 40 26!, 0 36, -38 26!")
    p.shape(scallops(oval(0, -34, 13), 7, .4))
p.note("traces on the ice, a duck slides by")
p.lines("30 514, 130 502, 222 520")
with p.at(86, 458, .95):
    p.shape("-52 -8, -66 -24!, -40 -22, 0 -18, 12 -44, 34 -54, 52 -40, 50 -20, 40 4, 20 22, -26 22, -48 10")
    p.shape("50 -44!, 74 -36, 50 -26!")
    p.eye(34, -38, 4.5)
    p.shape("-28 -6, 4 -6, 10 6, -14 12")
p.save()
